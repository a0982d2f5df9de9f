#pragma once

#include "platform/date_time.h"
#include "platform/widget.h"

namespace quill::platform {

/// What a date picker shows: 0 the long date, 1 the short date, 2 the time of day.
enum class PickerFormat : std::int32_t { longDate = 0, shortDate = 1, time = 2 };

/// A widget for a date or a time of day. A value that the program sets raises no `Change`.
class DatePicker : public Widget {
public:
    explicit DatePicker(const Design& design = {});
    DatePicker(Widget& container, const Design& design = {});

    /// A `PickerFormat` as its number.
    Property<std::int32_t> Format{*this, 1};
    Property<bool>         Locked{*this};
    /// The user has picked another value.
    Event<> Change;

    [[nodiscard]] const char* TypeName() const override { return "DatePicker"; }
    void                      visit(PropertyVisitor& visitor) override;

    [[nodiscard]] const DateTime& Value() const noexcept { return mValue; }
    /// A value that is no date or lies outside the limits is a failure 5.
    void setValue(const DateTime& value);

    [[nodiscard]] const DateTime& MinDate() const noexcept { return mMinDate; }
    [[nodiscard]] const DateTime& MaxDate() const noexcept { return mMaxDate; }
    /// A limit on the wrong side of the other one is a failure 5. A value outside moves inside.
    void setMinDate(const DateTime& value);
    void setMaxDate(const DateTime& value);

    /// User's door: an ISO date, time or both; what is left out stays. Refused outside the limits
    /// and while the picker is locked.
    UserDoor pick(const std::string& iso);
    UserDoor pick(const DateTime& value);

private:
    [[nodiscard]] bool allows(const DateTime& value) const;

    DateTime mValue{2000, 1, 1};
    DateTime mMinDate{1601, 1, 1};
    DateTime mMaxDate{9999, 12, 31, 23, 59, 59};
};

} // namespace quill::platform
