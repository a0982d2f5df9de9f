#pragma once

#include "platform/widget.h"

namespace quill::platform {

enum class TextAlignment : std::int32_t { left = 0, right = 1, center = 2 };

/// One line of text with a cursor. Positions and lengths count characters (code points).
class TextBox : public Widget {
public:
    explicit TextBox(const Design& design = {});
    TextBox(Widget& container, const Design& design = {});

    /// An assignment of another text puts the cursor to the start and raises `Change`.
    Property<std::string>  Text;
    Property<std::int32_t> SelStart;
    Property<std::int32_t> SelLength;
    /// Most characters that the user may type, 0 for no limit. Binds the user's door only: what
    /// the program writes is never cut.
    Property<std::int32_t> MaxLength;
    /// A `TextAlignment` as its number.
    Property<std::int32_t> Alignment;
    Property<bool>         Locked;
    /// The text has changed, through either door.
    Event<> Change;

    [[nodiscard]] const char* TypeName() const override { return "TextBox"; }
    void                      visit(PropertyVisitor& visitor) override;
    void                      propertyChanged(const void* property) override;

    /// User's door: the whole text is replaced, as far as `MaxLength` allows, with the cursor
    /// behind it, or at `cursor` where a renderer knows better.
    UserDoor type(const std::string& text, std::int32_t cursor = -1);

private:
    std::int32_t mTypedCursor = -1;
};

} // namespace quill::platform
