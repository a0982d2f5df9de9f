#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// A duration in days, hours, minutes and seconds.
namespace quill::duration {

inline constexpr std::size_t kParts = 4;
/// Seconds in one of each part, from the largest.
inline constexpr std::array<std::int32_t, kParts> kSeconds{86400, 3600, 60, 1};

/// The parts of a duration in seconds. Those of a negative one are negative.
[[nodiscard]] std::array<std::int32_t, kParts> split(std::int32_t seconds);

/// The seconds of the parts that are numbers in the locale's form, each rounded to a whole number;
/// nothing if none is. A sum that leaves 32 bits on the way is failure 6.
[[nodiscard]] std::optional<std::int32_t> total(const std::array<std::string, kParts>& texts);

/// Whether a part is one that a user may enter: a number out of digits and blanks.
[[nodiscard]] bool isPlain(const std::string& text);

} // namespace quill::duration
