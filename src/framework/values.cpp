#include "framework/values.h"

#include "platform/failure.h"
#include "platform/toolkit.h"
#include "platform/utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace quill::values {

using platform::failure;
using platform::Toolkit;
namespace utf8 = platform::utf8;

namespace {

constexpr int kDoubleDigits = 15;
constexpr int kSingleDigits = 7;
/// Smallest power of ten that is still written out with zeros behind the separator.
constexpr int kSmallestPlainExponent = -5;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string_view trimBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string localeSeparator()
{
    const std::string& separator = Toolkit::current().locale().decimal;
    return separator.empty() ? "." : separator;
}

// --- Reading numbers --------------------------------------------------------------------------

/// Moves the digits at the front of `rest` behind `into` and answers how many there were.
std::size_t takeDigits(std::string_view& rest, std::string& into)
{
    const auto count = std::min(
        rest.size(), static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), isDigit) -
                                              rest.begin()));
    into += rest.substr(0, count);
    rest.remove_prefix(count);
    return count;
}

/// The number in the form that `std::from_chars` reads; nothing for a text that is no number.
std::optional<std::string> plainForm(std::string_view text, std::string_view separator)
{
    std::string_view rest = trimBlanks(text);
    std::string      plain;
    if (rest.starts_with('+') || rest.starts_with('-')) {
        if (rest.front() == '-') {
            plain = '-';
        }
        rest.remove_prefix(1);
    }
    std::size_t digits = takeDigits(rest, plain);
    if (rest.starts_with(separator)) {
        rest.remove_prefix(separator.size());
        plain += '.';
        digits += takeDigits(rest, plain);
    }
    if (digits == 0) {
        return std::nullopt;
    }
    if (rest.starts_with('e') || rest.starts_with('E')) {
        rest.remove_prefix(1);
        plain += 'e';
        if (rest.starts_with('+') || rest.starts_with('-')) {
            plain += rest.front();
            rest.remove_prefix(1);
        }
        if (takeDigits(rest, plain) == 0) {
            return std::nullopt;
        }
    }
    return rest.empty() ? std::optional{plain} : std::nullopt;
}

/// Whether a number in plain form that no double can hold is too small rather than too large.
bool isTiny(std::string_view plain)
{
    const auto      exponentAt = plain.find('e');
    const auto      mantissa   = plain.substr(0, exponentAt);
    const auto      first      = mantissa.find_first_of("123456789");
    const auto      point      = std::min(mantissa.find('.'), mantissa.size());
    const long long above =
        static_cast<long long>(point) - static_cast<long long>(std::min(first, mantissa.size()));
    if (exponentAt == std::string_view::npos) {
        return above < 0;
    }
    auto power = plain.substr(exponentAt + 1);
    if (power.starts_with('+')) {
        power.remove_prefix(1);
    }
    long long exponent = 0;
    if (std::from_chars(power.data(), power.data() + power.size(), exponent).ec != std::errc{}) {
        return power.starts_with('-');
    }
    return exponent < -above;
}

double parse(std::string_view text, std::string_view separator)
{
    const auto plain = plainForm(text, separator);
    if (!plain) {
        throw failure(platform::kTypeMismatch);
    }
    const auto mantissa = std::string_view{*plain}.substr(0, plain->find('e'));
    if (mantissa.find_first_of("123456789") == std::string_view::npos) {
        return 0;
    }
    double     number = 0;
    const auto result = std::from_chars(plain->data(), plain->data() + plain->size(), number);
    if (result.ec == std::errc::result_out_of_range || std::isinf(number)) {
        if (isTiny(*plain)) {
            return 0;
        }
        throw failure(platform::kOverflow);
    }
    return number;
}

// --- Writing numbers --------------------------------------------------------------------------

/// The significant digits of a finite number, without trailing zeros, and the power of ten of the
/// first one.
struct Decimal {
    std::string digits;
    int         exponent = 0;
};

Decimal decimalOf(double number, int significant)
{
    std::array<char, 40> buffer{};
    const auto           written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(number),
                      std::chars_format::scientific, significant - 1);
    const std::string_view text{buffer.data(),
                                static_cast<std::size_t>(written.ptr - buffer.data())};
    const auto             exponentAt = text.find('e');

    Decimal decimal;
    std::copy_if(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(exponentAt),
                 std::back_inserter(decimal.digits), isDigit);
    decimal.digits.erase(std::max<std::size_t>(decimal.digits.find_last_not_of('0') + 1, 1));
    auto power = text.substr(exponentAt + 1);
    if (power.starts_with('+')) {
        power.remove_prefix(1);
    }
    std::from_chars(power.data(), power.data() + power.size(), decimal.exponent);
    return decimal;
}

/// NaN and the infinities have no digits; devices send and screens show them by these names.
std::string notFinite(double number)
{
    return std::isnan(number) ? "NaN" : number < 0 ? "-Inf" : "Inf";
}

std::string textOf(double number, int significant, const std::string& separator)
{
    if (!std::isfinite(number)) {
        return notFinite(number);
    }
    auto [digits, exponent] = decimalOf(number, significant);
    std::string text        = number < 0 ? "-" : "";
    if (exponent < kSmallestPlainExponent || exponent >= significant) {
        text += digits.front();
        if (digits.size() > 1) {
            text += separator + digits.substr(1);
        }
        const std::string power = std::to_string(std::abs(exponent));
        text += exponent < 0 ? "E-" : "E+";
        return text + (power.size() < 2 ? "0" : "") + power;
    }
    if (exponent < 0) {
        digits.insert(0, static_cast<std::size_t>(-exponent), '0');
        exponent = 0;
    }
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() < whole) {
        digits.resize(whole, '0');
    }
    text += digits.substr(0, whole);
    return digits.size() > whole ? text + separator + digits.substr(whole) : text;
}

/// The digits of a number in front of and behind the point.
struct FixedPoint {
    std::string whole;
    std::string fraction;
};

/// Rounds on the decimal text, half away from zero, as a reader of the text would.
FixedPoint fixedPoint(double number, std::size_t decimals)
{
    auto [digits, exponent] = decimalOf(number, kDoubleDigits);
    if (exponent < 0) {
        digits.insert(0, static_cast<std::size_t>(-exponent), '0');
        exponent = 0;
    }
    std::size_t       point = static_cast<std::size_t>(exponent) + 1;
    const std::size_t keep  = point + decimals;
    const bool        up    = digits.size() > keep && digits[keep] >= '5';
    digits.resize(keep, '0');
    if (up) {
        const auto nine = [](char c) { return c == '9'; };
        const auto last = std::find_if_not(digits.rbegin(), digits.rend(), nine);
        std::fill(digits.rbegin(), last, '0');
        if (last != digits.rend()) {
            ++*last;
        } else {
            digits.insert(0, 1, '1');
            ++point;
        }
    }
    return {digits.substr(0, point), digits.substr(point)};
}

template <class Integer>
Integer toInteger(double number)
{
    const double rounded = roundToEven(number);
    if (!(rounded >= std::numeric_limits<Integer>::min() &&
          rounded <= std::numeric_limits<Integer>::max())) {
        throw failure(platform::kOverflow);
    }
    return static_cast<Integer>(rounded);
}

} // namespace

bool isNumericType(const std::string& type)
{
    return isIntegerType(type) || isFloatType(type);
}

bool isIntegerType(const std::string& type)
{
    return type.starts_with("int");
}

bool isFloatType(const std::string& type)
{
    return type.starts_with("float");
}

std::string decimalSeparator()
{
    const std::string half = numberText(0.5);
    return utf8::substring(half, utf8::length(half) - 2, 1);
}

bool isNumeric(const std::string& text)
{
    return plainForm(text, localeSeparator()).has_value();
}

double parseLocal(const std::string& text)
{
    return parse(text, localeSeparator());
}

double parseDocument(const std::string& text)
{
    return parse(text, ".");
}

std::string numberText(double number)
{
    return textOf(number, kDoubleDigits, localeSeparator());
}

std::string numberText(float number)
{
    return textOf(static_cast<double>(number), kSingleDigits, localeSeparator());
}

std::string documentText(double number)
{
    return textOf(number, kDoubleDigits, ".");
}

std::string documentText(float number)
{
    return textOf(static_cast<double>(number), kSingleDigits, ".");
}

std::string formatNumber(double number, const std::string& pattern)
{
    const auto point = pattern.find('.');
    const auto front = pattern.substr(0, point);
    const auto back  = point == std::string::npos ? std::string{} : pattern.substr(point + 1);
    if ((front + back).find_first_not_of("#0") != std::string::npos) {
        throw platform::Failure(platform::kInvalidCall, "Not a number pattern: " + pattern);
    }
    if (!std::isfinite(number)) {
        return notFinite(number);
    }
    const auto firstZero     = std::min(front.find('0'), front.size());
    const auto leastWhole    = front.size() - firstZero;
    const auto leastDecimals = back.find_last_of('0') + 1;

    auto [whole, fraction] = fixedPoint(number, back.size());
    const bool isZero      = (whole + fraction).find_first_not_of('0') == std::string::npos;
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    whole.insert(0, leastWhole - std::min(leastWhole, whole.size()), '0');
    fraction.erase(std::max(fraction.find_last_not_of('0') + 1, leastDecimals));

    const std::string sign = number < 0 && !isZero ? "-" : "";
    return sign + whole + (point == std::string::npos ? "" : localeSeparator() + fraction);
}

double roundToEven(double number)
{
    return std::nearbyint(number);
}

std::int32_t sum(std::int32_t length, std::int32_t more)
{
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(std::int64_t{length} + more, Limits::min(), Limits::max()));
}

std::int32_t percentOf(std::int32_t length, int percent)
{
    return static_cast<std::int32_t>(roundToEven(static_cast<double>(length) * percent / 100.0));
}

std::int16_t toInt16(double number)
{
    return toInteger<std::int16_t>(number);
}

std::int32_t toInt32(double number)
{
    return toInteger<std::int32_t>(number);
}

float toSingle(double number)
{
    if (std::isfinite(number) && std::abs(number) > std::numeric_limits<float>::max()) {
        throw failure(platform::kOverflow);
    }
    return static_cast<float>(number);
}

std::string replaceAll(std::string text, const std::string& what, const std::string& by)
{
    if (what.empty()) {
        return text;
    }
    std::string result;
    std::size_t from = 0;
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, from)) {
        result.append(text, from, at - from).append(by);
        from = at + what.size();
    }
    return from == 0 ? std::move(text) : result.append(text, from);
}

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

bool containsNoCase(const std::string& text, const std::string& part)
{
    return contains(utf8::toLower(text), utf8::toLower(part));
}

} // namespace quill::values
