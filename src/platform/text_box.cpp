#include "platform/text_box.h"

#include "platform/utf8.h"

namespace quill::platform {

TextBox::TextBox(const Design& design)
    : Widget(design), Text(*this, design.Caption), SelStart(*this), SelLength(*this),
      MaxLength(*this), Alignment(*this), Locked(*this)
{
    BackColor = kWindowBackground;
}

TextBox::TextBox(Widget& container, const Design& design)
    : Widget(container, design), Text(*this, design.Caption), SelStart(*this), SelLength(*this),
      MaxLength(*this), Alignment(*this), Locked(*this)
{
    BackColor = kWindowBackground;
}

void TextBox::visit(PropertyVisitor& visitor)
{
    Widget::visit(visitor);
    visitor.visit("Text", Text);
    visitor.visit("SelStart", SelStart);
    visitor.visit("SelLength", SelLength);
    visitor.visit("MaxLength", MaxLength);
    visitor.visit("Alignment", Alignment);
    visitor.visit("Locked", Locked);
}

void TextBox::propertyChanged(const void* property)
{
    if (property == &Text) {
        SelLength    = 0;
        SelStart     = mTypedCursor >= 0 ? mTypedCursor : 0;
        mTypedCursor = -1;
    }
    Widget::propertyChanged(property);
    if (property == &Text) {
        Change.raise();
    }
}

UserDoor TextBox::type(const std::string& text, std::int32_t cursor)
{
    if (!acceptsUser() || Locked) {
        return UserDoor::refused;
    }
    const auto length = utf8::length(text);
    const auto typed =
        MaxLength > 0 && length > MaxLength ? utf8::substring(text, 0, MaxLength) : text;
    const auto end = utf8::length(typed);
    mTypedCursor   = cursor < 0 || cursor > end ? end : cursor;
    if (Text == typed) {
        SelStart     = mTypedCursor;
        SelLength    = 0;
        mTypedCursor = -1;
    } else {
        Text = typed;
    }
    return UserDoor::done;
}

} // namespace quill::platform
