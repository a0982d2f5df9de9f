#include "status/status_masks.h"

#include "framework/values.h"
#include "platform/failure.h"
#include "platform/utf8.h"

#include <charconv>
#include <limits>

namespace quill::statusMasks {

namespace utf8 = platform::utf8;

namespace {

constexpr int kBits         = 8;
constexpr int kDigitsOfByte = 2;
constexpr int kHexadecimal  = 16;
constexpr int kLastPlace    = std::numeric_limits<int>::max() / kDigitsOfByte - 1;

void expectBytes(int bytesInPart)
{
    if (bytesInPart == 0) {
        throw platform::failure(platform::kDivisionByZero);
    }
}

void expectPlace(int place)
{
    if (place < 0) {
        throw platform::failure(platform::kInvalidCall);
    }
}

} // namespace

Position readPosition(const Steps& step, const platform::IXMLDOMNode& status)
{
    const auto number = [&](const char* attribute) {
        return step.value(kNone, [&] {
            const auto        node = platform::attributeNode(status, attribute);
            const std::string text = node ? node.get_text() : std::string{};
            return values::isNumeric(text) ? values::toInt16(values::parseLocal(text)) : kNone;
        });
    };
    const std::int16_t byte = number("maskByte");
    return {byte, number("maskBit")};
}

std::optional<int> partInName(const std::string& name)
{
    const std::string last = utf8::substring(name, utf8::length(name) - 1);
    return values::isNumeric(last) ? std::optional{static_cast<int>(values::parseLocal(last))}
                                   : std::nullopt;
}

int bytesInPart(int digits)
{
    return static_cast<int>(values::roundToEven(static_cast<double>(digits) / kDigitsOfByte));
}

int partOf(int maskByte, int bytesInPart)
{
    expectBytes(bytesInPart);
    return maskByte / bytesInPart + 1;
}

int byteInPart(int maskByte, int bytesInPart)
{
    expectBytes(bytesInPart);
    return maskByte % bytesInPart;
}

std::uint8_t bitValue(int bit)
{
    if (bit < 0 || bit >= kBits) {
        throw platform::failure(platform::kSubscriptOutOfRange);
    }
    return static_cast<std::uint8_t>(1U << static_cast<unsigned>(bit));
}

std::string digitsOf(std::uint8_t value)
{
    constexpr const char* kDigits = "0123456789ABCDEF";
    return {kDigits[value / kHexadecimal], kDigits[value % kHexadecimal]};
}

std::uint8_t getByte(const std::string& mask, int place)
{
    expectPlace(place);
    if (place > kLastPlace) {
        return std::numeric_limits<std::uint8_t>::max();
    }
    const std::string digits = utf8::substring(mask, place * kDigitsOfByte, kDigitsOfByte);
    if (digits.empty()) {
        return std::numeric_limits<std::uint8_t>::max();
    }
    std::uint8_t      value = 0;
    const char* const end   = digits.data() + digits.size();
    const auto        read  = std::from_chars(digits.data(), end, value, kHexadecimal);
    if (read.ec != std::errc{} || read.ptr != end) {
        throw platform::failure(platform::kTypeMismatch);
    }
    return value;
}

std::optional<std::uint8_t> readByte(const Steps& step, const std::string& mask, int place)
{
    std::optional<std::uint8_t> byte;
    if (place >= 0) {
        byte = 0;
    }
    step([&] { byte = getByte(mask, place); });
    return byte;
}

} // namespace quill::statusMasks
