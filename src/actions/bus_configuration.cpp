#include "actions/bus_configuration.h"

#include "framework/values.h"
#include "platform/failure.h"
#include "platform/utf8.h"

#include <charconv>
#include <cstdint>

namespace quill::busConfiguration {

std::optional<int> wordAt(const std::string& text, int digit)
{
    const std::string digits = piece(text, digit, 4);
    int               number = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    // A minus sign is no digit, though it reads as one.
    if (error != std::errc{} || end != digits.data() + digits.size() || digits[0] == '-') {
        return std::nullopt;
    }
    return number;
}

std::string word(double number)
{
    constexpr const char* kDigits = "0123456789ABCDEF";
    const auto            bits    = static_cast<std::uint16_t>(values::toInt16(number));
    std::string           text;
    for (int shift = 12; shift >= 0; shift -= 4) {
        text += kDigits[(bits >> shift) & 0xF];
    }
    return text;
}

std::string piece(const std::string& text, int digit, int length)
{
    if (digit < 1 || length < 0) {
        throw platform::failure(platform::kInvalidCall);
    }
    return platform::utf8::substring(text, digit - 1, length);
}

std::string rest(const std::string& text, int digit)
{
    return piece(text, digit, platform::utf8::length(text));
}

} // namespace quill::busConfiguration
