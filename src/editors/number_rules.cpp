#include "editors/number_rules.h"

#include "framework/modTools.h"
#include "framework/values.h"

#include <algorithm>
#include <cmath>

namespace quill::numberRules {

namespace {

/// Behind these no double has a digit but 0: a datafile that asks for more gets no longer texts.
constexpr std::int16_t kMostDecimals = 340;

std::string read(const Steps& step, const documents::IXMLDOMNode& node, const char* attribute)
{
    return step.text([&] { return documents::attributeText(node, attribute); });
}

} // namespace

Limits readLimits(const Steps& step, const documents::IXMLDOMNode& parameter,
                  const std::string& type, const Limits& before)
{
    const bool isInteger = values::isIntegerType(type);
    const auto take      = [&](const char* attribute, double none, double last) {
        const std::string text = read(step, parameter, attribute);
        return text.empty() ? none : step.value(last, [&] { return modTools::ParseNumber(text); });
    };
    Limits limits;
    limits.min = take("minVal", isInteger ? -kIntegerSentinel : kLowerSentinel, before.min);
    limits.max = take("maxVal", isInteger ? kIntegerSentinel : kUpperSentinel, before.max);
    return limits;
}

Format readFormat(const Steps& step, const documents::IXMLDOMNode& parameter, const Format& before)
{
    const std::string decimals = read(step, parameter, "decimals");
    if (decimals.empty()) {
        return {"######0.000", 3};
    }
    Format format;
    format.decimals = step.value(before.decimals,
                                 [&] { return values::toInt16(modTools::ParseNumber(decimals)); });
    if (format.decimals >= 1) {
        format.pattern += '.';
        format.pattern.append(static_cast<std::size_t>(std::min(format.decimals, kMostDecimals)),
                              '0');
    }
    return format;
}

std::string formatted(const std::string& text, const std::string& pattern)
{
    return values::isNumeric(text) ? values::formatNumber(values::parseLocal(text), pattern) : text;
}

double compare(double a, double b, std::int16_t decimals)
{
    constexpr double kBeyond = 50;
    if (a == kUpperSentinel || b == kLowerSentinel) {
        return kBeyond;
    }
    if (a == kLowerSentinel || b == kUpperSentinel) {
        return -kBeyond;
    }
    const double tolerance = decimals < 1 ? 0.9 : 0.9 * std::pow(0.1, decimals + 2);
    const double distance  = a - b;
    return std::fabs(distance) < tolerance ? 0 : distance;
}

bool isInside(double value, const Limits& limits, std::int16_t decimals)
{
    return compare(value, limits.min, decimals) >= 0 && compare(value, limits.max, decimals) <= 0;
}

} // namespace quill::numberRules
