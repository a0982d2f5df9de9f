#pragma once

#include "platform/widget.h"

namespace quill::platform {

/// A caption. A click reaches it only while it is enabled and shown.
class Label : public Widget {
public:
    explicit Label(const Design& design = {}) : Widget(design), Caption(*this, design.Caption) {}
    Label(Widget& container, const Design& design = {})
        : Widget(container, design), Caption(*this, design.Caption)
    {
        TabStop = false;
    }

    Property<std::string> Caption;
    Property<bool>        Bold{*this, false}; ///< of a title
    Event<>               Click;

    [[nodiscard]] const char* TypeName() const override { return "Label"; }
    void                      visit(PropertyVisitor& visitor) override
    {
        Widget::visit(visitor);
        visitor.visit("Caption", Caption);
        visitor.visit("Bold", Bold);
    }

    /// User's door.
    UserDoor click()
    {
        if (!acceptsUser()) {
            return UserDoor::refused;
        }
        Click.raise();
        return UserDoor::done;
    }
};

/// A group of widgets; it holds those that name it as their container.
class Frame : public Widget {
public:
    explicit Frame(const Design& design = {}) : Widget(design), Caption(*this, design.Caption) {}
    Frame(Widget& container, const Design& design = {})
        : Widget(container, design), Caption(*this, design.Caption)
    {
        TabStop = false;
    }

    Property<std::string> Caption;

    [[nodiscard]] const char* TypeName() const override { return "Frame"; }
    void                      visit(PropertyVisitor& visitor) override
    {
        Widget::visit(visitor);
        visitor.visit("Caption", Caption);
    }
};

} // namespace quill::platform
