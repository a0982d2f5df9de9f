#include "platform/date_picker.h"

#include "platform/failure.h"

#include <algorithm>

namespace quill::platform {

namespace {

PropertyVisitor::Setter isoSetter(DatePicker& picker, void (DatePicker::*set)(const DateTime&),
                                  const DateTime& (DatePicker::*get)() const noexcept)
{
    return [&picker, set, get](const PropertyValue& value) {
        const auto date = fromIso(std::get<std::string>(value), (picker.*get)());
        if (!date) {
            throw failure(kTypeMismatch);
        }
        (picker.*set)(*date);
    };
}

} // namespace

DatePicker::DatePicker(const Design& design) : Widget(design)
{
    BackColor = kWindowBackground;
}

DatePicker::DatePicker(Widget& container, const Design& design) : Widget(container, design)
{
    BackColor = kWindowBackground;
}

void DatePicker::visit(PropertyVisitor& visitor)
{
    Widget::visit(visitor);
    visitor.visit("Format", Format);
    visitor.visit("Locked", Locked);
    visitor.visit(
        "Value", [this] { return PropertyValue{toIso(Value())}; },
        isoSetter(*this, &DatePicker::setValue, &DatePicker::Value));
    visitor.visit(
        "MinDate", [this] { return PropertyValue{toIso(MinDate())}; },
        isoSetter(*this, &DatePicker::setMinDate, &DatePicker::MinDate));
    visitor.visit(
        "MaxDate", [this] { return PropertyValue{toIso(MaxDate())}; },
        isoSetter(*this, &DatePicker::setMaxDate, &DatePicker::MaxDate));
}

bool DatePicker::allows(const DateTime& value) const
{
    return isValid(value) && value >= mMinDate && value <= mMaxDate;
}

void DatePicker::setValue(const DateTime& value)
{
    if (!allows(value)) {
        throw failure(kInvalidCall);
    }
    if (value != mValue) {
        mValue = value;
        notify({});
    }
}

void DatePicker::setMinDate(const DateTime& value)
{
    if (!isValid(value) || value > mMaxDate) {
        throw failure(kInvalidCall);
    }
    mMinDate = value;
    mValue   = std::max(mValue, mMinDate);
    notify({});
}

void DatePicker::setMaxDate(const DateTime& value)
{
    if (!isValid(value) || value < mMinDate) {
        throw failure(kInvalidCall);
    }
    mMaxDate = value;
    mValue   = std::min(mValue, mMaxDate);
    notify({});
}

UserDoor DatePicker::pick(const std::string& iso)
{
    const auto value = fromIso(iso, mValue);
    return value ? pick(*value) : UserDoor::refused;
}

UserDoor DatePicker::pick(const DateTime& value)
{
    if (!acceptsUser() || Locked || !allows(value)) {
        return UserDoor::refused;
    }
    if (value != mValue) {
        mValue = value;
        notify({});
        Change.raise();
    }
    return UserDoor::done;
}

} // namespace quill::platform
