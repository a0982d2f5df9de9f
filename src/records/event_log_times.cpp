#include "records/event_log_times.h"

#include "framework/modTools.h"
#include "framework/values.h"
#include "platform/failure.h"

#include <cmath>

namespace quill {

using platform::DateTime;

namespace {

constexpr double kHoursPerDay   = 24;
constexpr double kSecondsPerDay = 86400;
// 0100-01-01 and the day behind 9999-12-31.
constexpr double kFirstDay = -657434;
constexpr double kEndDay   = 2958466;

} // namespace

namespace eventLog {

std::string operationTimeText(const std::string& time)
{
    return values::formatNumber(modTools::ParseNumber(time), "######0.00");
}

std::string eventTimeText(const std::string& time)
{
    return values::formatNumber(modTools::ParseNumber(time), "0.0000");
}

bool isKnown(const std::string& text)
{
    return !text.empty() && !text.starts_with("00");
}

double dateNumber(const DateTime& date)
{
    return static_cast<double>(platform::secondsBetween(DateTime{}, date)) / kSecondsPerDay;
}

DateTime dateOfNumber(double number)
{
    const double seconds = std::round(number * kSecondsPerDay);
    if (!(seconds >= kFirstDay * kSecondsPerDay && seconds < kEndDay * kSecondsPerDay)) {
        throw platform::failure(platform::kOverflow);
    }
    return platform::addSeconds(DateTime{}, std::llround(seconds));
}

std::string dateText(const DateTime& date)
{
    const DateTime zero;
    const bool     isDayZero =
        date.year == zero.year && date.month == zero.month && date.day == zero.day;
    if (isDayZero) {
        return values::formatDate(date, "ttttt");
    }
    const bool isMidnight = date.hour == 0 && date.minute == 0 && date.second == 0;
    return values::formatDate(date, isMidnight ? "ddddd" : "ddddd ttttt");
}

} // namespace eventLog

void EventLogTimes::setReference(double operationTime, const DateTime& date)
{
    mdblOperationTime    = operationTime;
    mdblUpdateDate       = eventLog::dateNumber(date);
    mblnHasTimeReference = true;
}

void EventLogTimes::noteReset(int row)
{
    if (row < miFirstResetRow) {
        miFirstResetRow = values::toInt16(row);
    }
}

std::string EventLogTimes::stamp(const std::string& time, int row) const
{
    if (time.empty() || !mblnHasTimeReference) {
        return {};
    }
    const double date =
        mdblUpdateDate - (mdblOperationTime - modTools::ParseNumber(time)) / kHoursPerDay;
    return eventLog::dateText(eventLog::dateOfNumber(date)) + (row > miFirstResetRow ? " *" : "");
}

} // namespace quill
