#include "platform/widget.h"

#include "platform/failure.h"

#include <algorithm>

namespace quill::platform {

namespace {

Widget* gFocused = nullptr;

/// A walk along widgets whose handlers may destroy any of them: who dies meanwhile turns into
/// nothing in every walk under way.
class Walk {
public:
    Walk() { sActive.push_back(this); }
    ~Walk() { sActive.pop_back(); }
    Walk(const Walk&)            = delete;
    Walk& operator=(const Walk&) = delete;

    void add(Widget* widget) { mWidgets.push_back(widget); }
    void reverse() { std::reverse(mWidgets.begin(), mWidgets.end()); }

    [[nodiscard]] std::size_t size() const { return mWidgets.size(); }
    /// The widget at a place, nothing if it has died.
    [[nodiscard]] Widget* at(std::size_t place) const { return mWidgets[place]; }

    static void forget(const Widget* widget)
    {
        for (Walk* walk : sActive) {
            std::replace(walk->mWidgets.begin(), walk->mWidgets.end(), const_cast<Widget*>(widget),
                         static_cast<Widget*>(nullptr));
        }
    }

private:
    static std::vector<Walk*> sActive;
    std::vector<Widget*>      mWidgets;
};

std::vector<Walk*> Walk::sActive;

} // namespace

void detail::propertyChanged(Widget& owner, const void* property)
{
    owner.propertyChanged(property);
}

Widget::Widget(const Design& design)
    : Visible(*this, design.Visible), Enabled(*this, design.Enabled), ForeColor(*this, kWindowText),
      BackColor(*this, kButtonFace), TabStop(*this, true), Left(*this, design.Left),
      Top(*this, design.Top), Width(*this, design.Width), Height(*this, design.Height),
      ZPosition(*this), Tag(*this, design.Tag), ToolTipText(*this), Index(design.Index),
      Name(design.Name)
{
}

Widget::Widget(Widget& container, const Design& design) : Widget(design)
{
    mContainer = &container;
    ++container.mHeld;
    mOwner = dynamic_cast<Control*>(&container);
    if (mOwner == nullptr) {
        mOwner = container.mOwner;
    }
    if (mOwner != nullptr) {
        mOwner->mWidgets.push_back(this);
        mOwner->notify({WidgetChange::What::form});
    }
}

Widget::~Widget()
{
    notify({WidgetChange::What::destroyed});
    Walk::forget(this);
    if (gFocused == this) {
        gFocused = nullptr;
    }
    if (mContainer != nullptr) {
        --mContainer->mHeld;
    }
    if (mOwner == nullptr) {
        return;
    }
    auto& list = mOwner->mWidgets;
    if (mHeld > 0) {
        // A frame that goes before what it holds leaves it on the form.
        for (Widget* other : list) {
            if (other->mContainer == this) {
                other->mContainer = mOwner;
                ++mOwner->mHeld;
            }
        }
    }
    // Forms die in the reverse of their order, so the search from the back is short.
    const auto found = std::find(list.rbegin(), list.rend(), this);
    if (found != list.rend()) {
        list.erase(std::next(found).base());
    }
}

Control::~Control()
{
    // Widgets that outlive their form stand alone from now on.
    for (Widget* widget : mWidgets) {
        widget->mOwner     = nullptr;
        widget->mContainer = nullptr;
    }
    mWidgets.clear();
}

bool Widget::isWithin(const Widget& other) const noexcept
{
    for (const Widget* widget = this; widget != nullptr; widget = widget->mContainer) {
        if (widget == &other) {
            return true;
        }
    }
    return false;
}

bool Widget::isShown() const noexcept
{
    for (const Widget* widget = this; widget != nullptr; widget = widget->mContainer) {
        if (!widget->Visible) {
            return false;
        }
    }
    return true;
}

bool Widget::acceptsUser() const noexcept
{
    for (const Widget* widget = this; widget != nullptr; widget = widget->mContainer) {
        if (!widget->Visible || !widget->Enabled) {
            return false;
        }
    }
    return true;
}

Widget* Widget::focused() noexcept
{
    return gFocused;
}

bool Widget::HasFocus() const noexcept
{
    return gFocused != nullptr && gFocused->isWithin(*this);
}

void Widget::moveFocus(Widget* to)
{
    Widget* from = gFocused;
    if (from == to) {
        return;
    }
    gFocused = to;
    // Whoever is left hears of it from the inside out, whoever is entered from the outside in. A
    // handler may move the focus on; then the rest of this move is void.
    Walk left;
    for (Widget* widget = from; widget != nullptr; widget = widget->mContainer) {
        if (to == nullptr || !to->isWithin(*widget)) {
            left.add(widget);
        }
    }
    Walk entered;
    for (Widget* widget = to; widget != nullptr; widget = widget->mContainer) {
        if (from == nullptr || !from->isWithin(*widget)) {
            entered.add(widget);
        }
    }
    entered.reverse();
    for (std::size_t place = 0; place < left.size() && gFocused == to; ++place) {
        if (Widget* widget = left.at(place)) {
            widget->LostFocus.raise();
        }
    }
    for (std::size_t place = 0; place < entered.size() && gFocused == to; ++place) {
        if (Widget* widget = entered.at(place)) {
            widget->GotFocus.raise();
        }
    }
}

void Widget::SetFocus()
{
    if (!acceptsUser()) {
        throw failure(kInvalidCall);
    }
    moveFocus(focusTarget());
}

void Widget::ZOrder()
{
    if (mOwner != nullptr) {
        for (Widget* other : mOwner->mWidgets) {
            if (other != this && other->mContainer == mContainer && other->ZPosition <= ZPosition) {
                other->ZPosition = other->ZPosition + 1;
            }
        }
    }
    ZPosition = 0;
}

UserDoor Widget::focus()
{
    if (!acceptsUser()) {
        return UserDoor::refused;
    }
    moveFocus(focusTarget());
    return UserDoor::done;
}

UserDoor Widget::blur()
{
    if (HasFocus()) {
        moveFocus(nullptr);
    }
    return UserDoor::done;
}

UserDoor Widget::press(int code, int shift)
{
    if (!acceptsUser()) {
        return UserDoor::refused;
    }
    Walk path;
    for (Widget* widget = this; widget != nullptr; widget = widget->mContainer) {
        path.add(widget);
    }
    const auto climb = [&path](Event<KeyPress&> Widget::*event, KeyPress key) {
        for (std::size_t place = 0; place < path.size() && !key.handled; ++place) {
            if (Widget* widget = path.at(place)) {
                (widget->*event).raise(key);
            }
        }
        return key.handled;
    };
    if (!climb(&Widget::KeyDown, {code, shift})) {
        climb(&Widget::KeyUp, {code, shift});
    }
    return UserDoor::done;
}

void Widget::visit(PropertyVisitor& visitor)
{
    visitor.visit(
        "Name", [this] { return PropertyValue{Name}; }, nullptr);
    visitor.visit(
        "Index", [this] { return PropertyValue{std::int32_t{Index}}; }, nullptr);
    visitor.visit("Tag", Tag);
    visitor.visit("Left", Left);
    visitor.visit("Top", Top);
    visitor.visit("Width", Width);
    visitor.visit("Height", Height);
    visitor.visit("Visible", Visible);
    visitor.visit("Enabled", Enabled);
    visitor.visit("TabStop", TabStop);
    visitor.visit("ForeColor", ForeColor);
    visitor.visit("BackColor", BackColor);
    visitor.visit("ToolTipText", ToolTipText);
    visitor.visit("ZPosition", ZPosition);
    visitor.visit(
        "HasFocus", [this] { return PropertyValue{HasFocus()}; }, nullptr);
}

void Widget::propertyChanged(const void* property)
{
    if (((property == &Visible && !Visible) || (property == &Enabled && !Enabled)) && HasFocus()) {
        moveFocus(nullptr);
    }
    notify({WidgetChange::What::property, property});
}

Widget* Control::focusTarget()
{
    for (Widget* widget : mWidgets) {
        if (widget->isTabStop()) {
            return widget->focusTarget();
        }
    }
    return this;
}

UserDoor Control::show()
{
    if (Visible) {
        Show.raise();
    } else {
        Visible = true;
    }
    return UserDoor::done;
}

UserDoor Control::hide()
{
    Visible = false;
    return UserDoor::done;
}

UserDoor Control::resize(std::int32_t width, std::int32_t height)
{
    Width  = width;
    Height = height;
    return UserDoor::done;
}

void Control::propertyChanged(const void* property)
{
    Widget::propertyChanged(property);
    if (property == &Width || property == &Height) {
        Resize.raise();
    } else if (property == &Visible) {
        (Visible ? Show : Hide).raise();
    }
}

} // namespace quill::platform
