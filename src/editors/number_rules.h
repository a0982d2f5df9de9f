#pragma once

#include "framework/documents.h"
#include "framework/steps.h"

#include <bit>
#include <cstdint>
#include <string>

/// The limits and the form of a number, as a parameter tells them.
namespace quill::numberRules {

/// "No limit" of a double: the doubles of these bit patterns, not the largest ones.
inline constexpr double kUpperSentinel = std::bit_cast<double>(0x7FEFFFFFFFFFFFE2U);
inline constexpr double kLowerSentinel = std::bit_cast<double>(0xFFEFFFFFFFFFFFE2U);
/// "No limit" of an integer, with either sign.
inline constexpr double kIntegerSentinel = 2147483647.0;

/// Least and greatest value, in the parameter's unit.
struct Limits {
    double min = kLowerSentinel;
    double max = kUpperSentinel;
};
/// `minVal` and `maxVal`. A missing or empty one is the sentinel of the type, one that is no number
/// leaves the limit of `before`; both are reported.
[[nodiscard]] Limits readLimits(const Steps& step, const documents::IXMLDOMNode& parameter,
                                const std::string& type, const Limits& before);

/// How a number is shown.
struct Format {
    std::string  pattern  = "######0";
    std::int16_t decimals = 0;
};
/// `decimals`: three where the parameter does not tell. One that is no number is reported and
/// leaves the number of decimals of `before`.
[[nodiscard]] Format readFormat(const Steps& step, const documents::IXMLDOMNode& parameter,
                                const Format& before);
/// A text that is a number by the pattern, any other as it stands. Failure 6 for a number that is
/// too large.
[[nodiscard]] std::string formatted(const std::string& text, const std::string& pattern);

/// Less than, equal to or greater than 0 as `a` is to `b`; numbers that are nearer than 0.9 of the
/// second decimal place behind `decimals` count as equal, without decimals those nearer than 0.9.
/// "No limit" is beyond everything.
[[nodiscard]] double compare(double a, double b, std::int16_t decimals);
/// Whether a number lies in the limits by this comparison.
[[nodiscard]] bool isInside(double value, const Limits& limits, std::int16_t decimals);

} // namespace quill::numberRules
