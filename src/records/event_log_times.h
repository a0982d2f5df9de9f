#pragma once

#include "platform/date_time.h"

#include <cstdint>
#include <string>

namespace quill {

/// Dates of events. A device counts operation hours and knows no calendar, so the date of an event
/// is worked out from the operation time at which it happened and from one moment at which both the
/// total operation time and the date are known. An external reset stops the count: what lies behind
/// one is an estimate.
struct EventLogTimes {
    static constexpr std::int16_t kNoResetRow = 32767;

    bool         mblnHasTimeReference = false; ///< stamps can be computed
    double       mdblOperationTime    = 0;     ///< total operation time at the reference, hours
    double       mdblUpdateDate       = 0;     ///< date of the reference, as a date number
    std::int16_t miFirstResetRow      = kNoResetRow; ///< row of the first external reset

    /// The moment at which total operation time and date are known.
    void setReference(double operationTime, const platform::DateTime& date);
    /// An external reset stands in this row.
    void noteReset(int row);
    /// The date of an event at an operation time in hours; " *" marks an estimate, which every row
    /// behind the first reset holds. Empty without a time or a reference. A time that is no number
    /// is failure 13, a date outside the years 100 to 9999 failure 6.
    [[nodiscard]] std::string stamp(const std::string& time, int row) const;
};

namespace eventLog {

/// Operation times as they are shown, the total one and that of an event. A text that is no number
/// is failure 13.
[[nodiscard]] std::string operationTimeText(const std::string& time);
[[nodiscard]] std::string eventTimeText(const std::string& time);

/// Whether the text of a time or date says something: devices that were never read say "00...".
[[nodiscard]] bool isKnown(const std::string& text);

/// A date as a number of days, the time of day as a fraction; 0 is 1899-12-30.
[[nodiscard]] double dateNumber(const platform::DateTime& date);
/// The date of such a number, to the nearest second; outside the years 100 to 9999 failure 6.
[[nodiscard]] platform::DateTime dateOfNumber(double number);
/// A date as text in the locale's form: short date and long time, without the time at midnight and
/// without the date on day 0.
[[nodiscard]] std::string dateText(const platform::DateTime& date);

} // namespace eventLog

} // namespace quill
