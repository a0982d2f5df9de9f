#pragma once

#include "platform/date_time.h"

#include <cstdint>
#include <optional>
#include <string>

/// The text forms of values. Screen texts follow the current toolkit's `Locale`; documents use ".".
namespace quill::values {

/// Whether a parameter's `type` is numeric: "int..." or "float...".
[[nodiscard]] bool isNumericType(const std::string& type);
[[nodiscard]] bool isIntegerType(const std::string& type); ///< "int..."
[[nodiscard]] bool isFloatType(const std::string& type);   ///< "float..."

/// The locale's decimal separator: the second-last character of the text of one half. A locale
/// that names none counts as one with ".".
[[nodiscard]] std::string decimalSeparator();

/// Whether a text is a number: blanks at the ends, a sign, digits with at most one decimal
/// separator of the locale and at least one digit, an exponent behind "e" or "E"; nothing else, so
/// neither group separators nor "NaN". A number that is too large for a double is still one.
[[nodiscard]] bool isNumeric(const std::string& text);
/// The number of such a text; a text that is no number is failure 13, one too large failure 6, one
/// too small is 0.
[[nodiscard]] double parseLocal(const std::string& text);
/// The same with "." as decimal separator whatever the locale.
[[nodiscard]] double parseDocument(const std::string& text);

/// Up to 15 significant digits without trailing zeros, with the locale's separator. More digits
/// than that in front of the separator, or more than four zeros right behind it, give the form with
/// an exponent of at least two digits: "1E+20", "1.5E-07". Zero never has a sign. What is no number
/// is "NaN", "Inf" or "-Inf".
[[nodiscard]] std::string numberText(double number);
/// The same with up to 7 significant digits.
[[nodiscard]] std::string numberText(float number);
/// `numberText` with "." whatever the locale.
[[nodiscard]] std::string documentText(double number);
[[nodiscard]] std::string documentText(float number);

/// A number by a pattern of "#", "0" and one "." ("######0.00"); any other pattern is failure 5. A
/// "0" always shows its digit, a "#" only one that counts; the digits in front of the point are
/// never cut. A pattern with a point always shows the locale's separator. The number is rounded on
/// its text of 15 digits, half away from zero; one that becomes zero has no sign. What is no number
/// is shown as in `numberText`.
[[nodiscard]] std::string formatNumber(double number, const std::string& pattern);

/// To the nearest whole number, a tie to the even one.
[[nodiscard]] double roundToEven(double number);
/// The same as a 16-bit or 32-bit integer; outside the range, and for NaN, failure 6.
[[nodiscard]] std::int16_t toInt16(double number);
[[nodiscard]] std::int32_t toInt32(double number);
/// Narrowed for a unit conversion; a number that is too large for single precision is failure 6.
[[nodiscard]] float toSingle(double number);
/// Two lengths together; what is beyond 32 bits ends there.
[[nodiscard]] std::int32_t sum(std::int32_t length, std::int32_t more);
/// `percent` (0 to 100) of a length, rounded by `roundToEven`; any length is allowed.
[[nodiscard]] std::int32_t percentOf(std::int32_t length, int percent);

/// All occurrences replaced; an empty `what` replaces nothing.
[[nodiscard]] std::string replaceAll(std::string text, const std::string& what,
                                     const std::string& by);
/// An empty part is contained in every text.
[[nodiscard]] bool contains(const std::string& text, const std::string& part);
/// The same in any letter case.
[[nodiscard]] bool containsNoCase(const std::string& text, const std::string& part);

/// Whether a text is a date, a time of day, or both with a blank between, in an ISO form or in the
/// locale's own short date and long time; blanks at the ends do not count. Days, months and hours
/// may have one digit where the locale shows two. A year of two digits is one of 1930 to 2029.
[[nodiscard]] bool isDate(const std::string& text);
/// What such a text says; a missing date is 1899-12-30, a missing time midnight.
[[nodiscard]] std::optional<platform::DateTime> parseDate(const std::string& text);
/// By a pattern: "ddddd" is the locale's short date and "ttttt" its long time, both shown whatever
/// the value; "d", "dd", "m", "mm", "yy", "yyyy", "h", "hh", "n", "nn" (minutes), "s", "ss" are in
/// any letter case ("d.m.yyyy", "h:Nn:Ss"). Anything else stands for itself.
[[nodiscard]] std::string formatDate(const platform::DateTime& value, const std::string& pattern);

} // namespace quill::values
