#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Text is UTF-8 and a character is a code point. Bytes that are no valid UTF-8 count as one
/// character each, so that no text is ever refused or lost.
namespace quill::platform::utf8 {

[[nodiscard]] bool         isValid(std::string_view text);
[[nodiscard]] std::int32_t length(std::string_view text);
/// `count` characters from the 0-based `start`; fewer where the text ends before.
[[nodiscard]] std::string substring(std::string_view text, std::int32_t start,
                                    std::int32_t count = INT32_MAX);
/// The characters of a text, one text each.
[[nodiscard]] std::vector<std::string> characters(std::string_view text);
/// The code of the first character, 0 for an empty text.
[[nodiscard]] char32_t    codePoint(std::string_view character);
[[nodiscard]] std::string fromCodePoint(char32_t code);
/// Simple case mapping of one code point each: Latin with its supplements, Greek and Cyrillic.
[[nodiscard]] std::string toUpper(std::string_view text);
[[nodiscard]] std::string toLower(std::string_view text);

} // namespace quill::platform::utf8
