#pragma once

#include <optional>
#include <string>

/// The hexadecimal configuration of a bus master, which holds the configuration of the module in
/// its second block. Words have four digits and are read without
/// a sign, written up to 32767; lengths count bytes of two digits and
/// include the two of the length word itself. What is no digit counts as one character all the
/// same:
///
/// | Digits | Holds |
/// |---|---|
/// | 1 to 4 | length of the whole text |
/// | 5 to 32 | head, 14 bytes |
/// | 33 to 36 | L1, length of the first block |
/// | 37 to 32 + 2 L1 | first block |
/// | four digits | L2, length of the second block |
/// | 2 L2 - 4 digits | second block |
/// | the rest | tail |
namespace quill::busConfiguration {

/// The word at a digit counted from 1; nothing for what is not hexadecimal, such as an empty text.
[[nodiscard]] std::optional<int> wordAt(const std::string& text, int digit);
/// Four upper-case digits. Failure 6 for a number that is no 16-bit integer.
[[nodiscard]] std::string word(double number);
/// A piece of a text, from a digit counted from 1; shorter where the text ends. Failure 5 for a
/// digit below 1 or a length below 0.
[[nodiscard]] std::string piece(const std::string& text, int digit, int length);
/// The rest of a text from a digit on.
[[nodiscard]] std::string rest(const std::string& text, int digit);

} // namespace quill::busConfiguration
