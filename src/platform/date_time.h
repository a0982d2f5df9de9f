#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace quill::platform {

/// A date and a time of day on the wall clock, without a time zone.
struct DateTime {
    int year   = 1899;
    int month  = 12;
    int day    = 30;
    int hour   = 0;
    int minute = 0;
    int second = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): the rule misreads a defaulted comparison
    friend auto operator<=>(const DateTime&, const DateTime&) = default;
};

/// Whether day, month, year (100 to 9999) and time of day exist.
[[nodiscard]] bool isValid(const DateTime& value);
/// "YYYY-MM-DD HH:MM:SS".
[[nodiscard]] std::string toIso(const DateTime& value);
/// Reads "YYYY-MM-DD", "HH:MM", "HH:MM:SS", or date and time with a blank or a "T" between. What
/// the text leaves out is taken from `base`. Nothing for any other text or a day that is none.
[[nodiscard]] std::optional<DateTime> fromIso(std::string_view text, const DateTime& base = {});
/// The time `seconds` later (earlier if negative); fractions are dropped.
[[nodiscard]] DateTime addSeconds(const DateTime& value, long long seconds);
/// Seconds from `from` to `to`.
[[nodiscard]] long long secondsBetween(const DateTime& from, const DateTime& to);

} // namespace quill::platform
