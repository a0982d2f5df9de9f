#pragma once

#include "platform/widget.h"

namespace quill::platform {

/// What the push button, the check box and the option button have in common: a caption, a click,
/// and up to three images named by key.
class ButtonBase : public Widget {
public:
    explicit ButtonBase(const Design& design = {})
        : Widget(design), Caption(*this, design.Caption), Picture(*this), DisabledPicture(*this),
          DownPicture(*this)
    {
    }
    explicit ButtonBase(Widget& container, const Design& design = {})
        : Widget(container, design), Caption(*this, design.Caption), Picture(*this),
          DisabledPicture(*this), DownPicture(*this)
    {
    }

    Property<std::string> Caption;
    Property<std::string> Picture; ///< key of an image, empty for none
    Property<std::string> DisabledPicture;
    Property<std::string> DownPicture;
    /// Raised by the user's door only.
    Event<> Click;

    void visit(PropertyVisitor& visitor) override
    {
        Widget::visit(visitor);
        visitor.visit("Caption", Caption);
        visitor.visit("Picture", Picture);
        visitor.visit("DisabledPicture", DisabledPicture);
        visitor.visit("DownPicture", DownPicture);
    }

    /// User's door: the focus comes here, the state follows, then `Click`.
    UserDoor click()
    {
        if (focus() == UserDoor::refused) {
            return UserDoor::refused;
        }
        toggle();
        Click.raise();
        return UserDoor::done;
    }

protected:
    virtual void toggle() {}
};

class CommandButton : public ButtonBase {
public:
    using ButtonBase::ButtonBase;
    [[nodiscard]] const char* TypeName() const override { return "CommandButton"; }
};

class CheckBox : public ButtonBase {
public:
    using ButtonBase::ButtonBase;
    /// 0 unchecked, 1 checked.
    Property<std::int32_t> Value{*this};

    [[nodiscard]] const char* TypeName() const override { return "CheckBox"; }
    void                      visit(PropertyVisitor& visitor) override
    {
        ButtonBase::visit(visitor);
        visitor.visit("Value", Value);
    }

protected:
    void toggle() override { Value = Value == 0 ? 1 : 0; }
};

/// One of several: choosing it takes the mark from the others in the same container.
class OptionButton : public ButtonBase {
public:
    using ButtonBase::ButtonBase;
    Property<bool> Value{*this};

    [[nodiscard]] const char* TypeName() const override { return "OptionButton"; }
    void                      visit(PropertyVisitor& visitor) override
    {
        ButtonBase::visit(visitor);
        visitor.visit("Value", Value);
    }
    void propertyChanged(const void* property) override
    {
        ButtonBase::propertyChanged(property);
        if (property == &Value && Value && Owner() != nullptr) {
            for (Widget* widget : Owner()->Widgets()) {
                auto* other = dynamic_cast<OptionButton*>(widget);
                if (other != nullptr && other != this && other->Container() == Container()) {
                    other->Value = false;
                }
            }
        }
    }

protected:
    void toggle() override { Value = true; }
};

} // namespace quill::platform
