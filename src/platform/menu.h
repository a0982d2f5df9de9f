#pragma once

#include "platform/widget.h"

namespace quill::platform {

struct MenuItem {
    std::string Caption;
    bool        Enabled = true;
};

/// A pop-up menu. Items count from 0.
class Menu : public Widget {
public:
    explicit Menu(const Design& design = {}) : Widget(design) {}
    Menu(Widget& container, const Design& design = {}) : Widget(container, design) {}

    /// The user has chosen this item.
    Event<int> Click;

    [[nodiscard]] const char* TypeName() const override { return "Menu"; }

    [[nodiscard]] const std::vector<MenuItem>& Items() const noexcept { return mItems; }
    void                                       setItems(std::vector<MenuItem> items)
    {
        mItems = std::move(items);
        notify({WidgetChange::What::reset});
    }

    /// User's door; refused for an item that is disabled or none.
    UserDoor click(int index)
    {
        if (!acceptsUser() || index < 0 || index >= static_cast<int>(mItems.size()) ||
            !mItems[static_cast<std::size_t>(index)].Enabled) {
            return UserDoor::refused;
        }
        Click.raise(index);
        return UserDoor::done;
    }

private:
    std::vector<MenuItem> mItems;
};

} // namespace quill::platform
