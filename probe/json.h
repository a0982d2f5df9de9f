#pragma once

#include "platform/failure.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quill::probe {

/// What comes in. Its objects look keys up in logarithmic time, however many a line holds.
using Json = nlohmann::json;
/// What goes out, with its keys in the order in which they were written.
using Reply = nlohmann::ordered_json;

/// Deepest nesting of a line that is read.
constexpr std::size_t kMaxDepth = 100;

/// Reads one line: a JSON object. Anything else is failure 5 with the reason.
[[nodiscard]] Json parseLine(std::string_view line);
/// The reply as one line of UTF-8; bytes that are none are replaced.
[[nodiscard]] std::string toLine(const Reply& reply);

/// A line that cannot be done because of what stands in it.
[[nodiscard]] platform::Failure invalid(const std::string& reason);
/// A value of the wrong type: failure 13.
[[nodiscard]] platform::Failure mismatch(const std::string& wanted, const Json& found);

/// JSON values as C++ values. A wrong type is failure 13, a number out of range failure 6.
[[nodiscard]] bool         asBool(const Json& value);
[[nodiscard]] std::int64_t asInteger(const Json& value, std::int64_t low, std::int64_t high);
[[nodiscard]] std::int32_t asInt32(const Json& value);
[[nodiscard]] double       asDouble(const Json& value);
[[nodiscard]] std::string  asText(const Json& value);
/// `value` itself, which must be an object or an array.
[[nodiscard]] const Json& asObject(const Json& value);
[[nodiscard]] const Json& asArray(const Json& value);

/// A key of an object; nothing if it is not there.
[[nodiscard]] const Json* find(const Json& object, const char* key);
/// A key that must be there.
[[nodiscard]] const Json&  field(const Json& object, const char* key);
[[nodiscard]] std::string  textField(const Json& object, const char* key);
[[nodiscard]] std::string  textOr(const Json& object, const char* key, const std::string& fallback);
[[nodiscard]] bool         boolOr(const Json& object, const char* key, bool fallback);
[[nodiscard]] std::int32_t int32Field(const Json& object, const char* key);

} // namespace quill::probe
