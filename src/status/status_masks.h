#pragma once

#include "framework/steps.h"
#include "platform/xml_dom.h"

#include <cstdint>
#include <optional>
#include <string>

/// The arithmetic of status masks. A mask is a text of hexadecimal digits, two to a byte, byte 0
/// first; devices keep it in parts of equal length. A condition has a byte, counted over the whole
/// mask from 0, and a bit from 0, bit 0 having the value 1.
namespace quill::statusMasks {

/// Parameters whose name begins like this hold status masks.
inline constexpr const char* kNamePrefix = "statusMask";

/// The byte or the bit of a condition that is in no mask.
inline constexpr std::int16_t kNone = -1;

/// Where a condition stands in the whole mask.
struct Position {
    std::int16_t byte = kNone;
    std::int16_t bit  = kNone;
};

/// The attributes `maskByte` and `maskBit` of a condition's definition, each in a step of its own;
/// `kNone` for one that is missing, is no number, or fails: 6 beyond 16 bits, 91 without
/// attributes.
[[nodiscard]] Position readPosition(const Steps& step, const platform::IXMLDOMNode& status);
/// The part that a mask parameter holds: the digit at the end of its name, nothing if there is
/// none.
[[nodiscard]] std::optional<int> partInName(const std::string& name);

/// How many bytes a part of so many digits has: the half, rounded to the even number on a tie.
[[nodiscard]] int bytesInPart(int digits);
/// The part of a byte, counted from 1. Failure 11 if a part has no bytes.
[[nodiscard]] int partOf(int maskByte, int bytesInPart);
/// The place of a byte within its part, counted from 0. Failure 11 if a part has no bytes.
[[nodiscard]] int byteInPart(int maskByte, int bytesInPart);
/// The value of a bit from 0 to 7; failure 9 for any other.
[[nodiscard]] std::uint8_t bitValue(int bit);

/// A byte as it stands in a mask: two upper-case digits.
[[nodiscard]] std::string digitsOf(std::uint8_t value);

/// The byte at a place, counted from 0. 255 behind the end: what a device does not list is switched
/// on. One digit alone counts too. Failure 13 for what is not hexadecimal, 5 for a place below 0.
[[nodiscard]] std::uint8_t getByte(const std::string& mask, int place);
/// The same in a step: 0 for digits that cannot be read, nothing for a place that no mask has.
[[nodiscard]] std::optional<std::uint8_t> readByte(const Steps& step, const std::string& mask,
                                                   int place);

} // namespace quill::statusMasks
