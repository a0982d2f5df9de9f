#include "platform/date_time.h"

#include <chrono>
#include <cstdio>

namespace quill::platform {

namespace {

namespace chr = std::chrono;

chr::sys_seconds toSeconds(const DateTime& value)
{
    const chr::year_month_day date{chr::year{value.year},
                                   chr::month{static_cast<unsigned>(value.month)},
                                   chr::day{static_cast<unsigned>(value.day)}};
    return chr::sys_days{date} + chr::hours{value.hour} + chr::minutes{value.minute} +
           chr::seconds{value.second};
}

/// Reads `digits` digits at `at` and moves on behind them.
std::optional<int> number(std::string_view text, std::size_t& at, std::size_t least,
                          std::size_t most)
{
    int         value = 0;
    std::size_t count = 0;
    while (count < most && at < text.size() && text[at] >= '0' && text[at] <= '9') {
        value = value * 10 + (text[at] - '0');
        ++at;
        ++count;
    }
    return count < least ? std::nullopt : std::optional<int>{value};
}

bool skip(std::string_view text, std::size_t& at, char c)
{
    if (at < text.size() && text[at] == c) {
        ++at;
        return true;
    }
    return false;
}

bool readTime(std::string_view text, std::size_t& at, DateTime& into)
{
    const auto hour = number(text, at, 1, 2);
    if (!hour || !skip(text, at, ':')) {
        return false;
    }
    const auto minute = number(text, at, 2, 2);
    if (!minute) {
        return false;
    }
    int second = 0;
    if (skip(text, at, ':')) {
        const auto read = number(text, at, 2, 2);
        if (!read) {
            return false;
        }
        second = *read;
    }
    into.hour   = *hour;
    into.minute = *minute;
    into.second = second;
    return true;
}

} // namespace

bool isValid(const DateTime& value)
{
    if (value.year < 100 || value.year > 9999 || value.month < 1 || value.day < 1) {
        return false;
    }
    const chr::year_month_day date{chr::year{value.year},
                                   chr::month{static_cast<unsigned>(value.month)},
                                   chr::day{static_cast<unsigned>(value.day)}};
    return date.ok() && value.hour >= 0 && value.hour < 24 && value.minute >= 0 &&
           value.minute < 60 && value.second >= 0 && value.second < 60;
}

std::string toIso(const DateTime& value)
{
    char buffer[80];
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d %02d:%02d:%02d", value.year, value.month,
                  value.day, value.hour, value.minute, value.second);
    return buffer;
}

std::optional<DateTime> fromIso(std::string_view text, const DateTime& base)
{
    DateTime    result = base;
    std::size_t at     = 0;
    if (text.size() >= 8 && text.find('-') == 4) {
        const auto year = number(text, at, 4, 4);
        if (!year || !skip(text, at, '-')) {
            return std::nullopt;
        }
        const auto month = number(text, at, 1, 2);
        if (!month || !skip(text, at, '-')) {
            return std::nullopt;
        }
        const auto day = number(text, at, 1, 2);
        if (!day) {
            return std::nullopt;
        }
        result.year  = *year;
        result.month = *month;
        result.day   = *day;
        if (at < text.size()) {
            if ((!skip(text, at, ' ') && !skip(text, at, 'T')) || !readTime(text, at, result)) {
                return std::nullopt;
            }
        }
    } else if (!readTime(text, at, result)) {
        return std::nullopt;
    }
    if (at != text.size() || !isValid(result)) {
        return std::nullopt;
    }
    return result;
}

DateTime addSeconds(const DateTime& value, long long seconds)
{
    const auto                moment = toSeconds(value) + chr::seconds{seconds};
    const auto                midday = chr::floor<chr::days>(moment);
    const chr::year_month_day date{midday};
    const chr::hh_mm_ss       time{moment - midday};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count())};
}

long long secondsBetween(const DateTime& from, const DateTime& to)
{
    return (toSeconds(to) - toSeconds(from)).count();
}

} // namespace quill::platform
