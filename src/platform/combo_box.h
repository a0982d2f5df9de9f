#pragma once

#include "platform/widget.h"

namespace quill::platform {

/// A drop-down list. Rows count from 0; `ListIndex` is -1 while nothing is chosen. A row that the
/// program chooses raises no `Click`.
class ComboBox : public Widget {
public:
    explicit ComboBox(const Design& design = {});
    ComboBox(Widget& container, const Design& design = {});

    Property<bool> Locked{*this};
    /// The user may type a text that is not in the list.
    Property<bool> Editable{*this};
    /// The user has chosen a row.
    Event<> Click;
    /// The user has typed.
    Event<> Change;

    [[nodiscard]] const char* TypeName() const override { return "ComboBox"; }
    void                      visit(PropertyVisitor& visitor) override;

    [[nodiscard]] const std::vector<std::string>&  List() const noexcept { return mList; }
    [[nodiscard]] const std::vector<std::int32_t>& ItemData() const noexcept { return mItemData; }
    [[nodiscard]] std::int32_t                     ListCount() const noexcept;
    [[nodiscard]] std::int32_t                     ListIndex() const noexcept { return mListIndex; }
    /// Chooses a row; -1 none. Any other number outside the list is a failure 5.
    void setListIndex(std::int32_t index);
    /// The text of the chosen row, or what was typed; empty for none.
    [[nodiscard]] std::string Text() const;
    /// Chooses the first row with this text; an editable box takes any text. Else a failure 5.
    void setText(const std::string& text);

    /// Empties the list; nothing is chosen afterwards.
    void Clear();
    void AddItem(const std::string& text, std::int32_t itemData = 0);
    void setItemData(std::int32_t index, std::int32_t itemData);

    /// User's door: chooses a row, also the one that is chosen already.
    UserDoor choose(std::int32_t index);
    /// User's door: types into an editable box.
    UserDoor type(const std::string& text);

private:
    std::vector<std::string>  mList;
    std::vector<std::int32_t> mItemData;
    std::string               mTyped;
    std::int32_t              mListIndex = -1;
};

} // namespace quill::platform
