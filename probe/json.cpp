#include "probe/json.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quill::probe {

namespace {

/// Whether brackets nest deeper than a line may. Looks before the parser builds anything.
bool isTooDeep(std::string_view line)
{
    std::size_t depth  = 0;
    bool        inText = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (inText) {
            if (c == '\\') {
                ++i;
            } else if (c == '"') {
                inText = false;
            }
        } else if (c == '"') {
            inText = true;
        } else if (c == '{' || c == '[') {
            if (++depth > kMaxDepth) {
                return true;
            }
        } else if ((c == '}' || c == ']') && depth > 0) {
            --depth;
        }
    }
    return false;
}

} // namespace

Json parseLine(std::string_view line)
{
    if (isTooDeep(line)) {
        throw invalid("the line is nested too deep");
    }
    Json value;
    try {
        value = Json::parse(line.begin(), line.end());
    } catch (const Json::exception& error) {
        throw invalid("the line is no JSON: " + std::string{error.what()});
    }
    if (!value.is_object()) {
        throw invalid("the line is no JSON object");
    }
    return value;
}

std::string toLine(const Reply& reply)
{
    return reply.dump(-1, ' ', false, Reply::error_handler_t::replace);
}

platform::Failure invalid(const std::string& reason)
{
    return {platform::kInvalidCall, reason};
}

platform::Failure mismatch(const std::string& wanted, const Json& found)
{
    return {platform::kTypeMismatch,
            "type mismatch: " + wanted + " expected, " + found.type_name() + " given"};
}

bool asBool(const Json& value)
{
    if (!value.is_boolean()) {
        throw mismatch("true or false", value);
    }
    return value.get<bool>();
}

std::int64_t asInteger(const Json& value, std::int64_t low, std::int64_t high)
{
    constexpr double kExact = 9007199254740992.0; // whole numbers up to here are exact doubles
    std::int64_t     number = 0;
    if (value.is_number_unsigned()) {
        const auto big = value.get<std::uint64_t>();
        if (big > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
            throw platform::failure(platform::kOverflow);
        }
        number = static_cast<std::int64_t>(big);
    } else if (value.is_number_integer()) {
        number = value.get<std::int64_t>();
    } else if (value.is_number_float()) {
        const auto real = value.get<double>();
        if (std::abs(real) > kExact) {
            throw platform::failure(platform::kOverflow);
        }
        if (std::trunc(real) != real) {
            throw platform::Failure{platform::kTypeMismatch, "a whole number expected"};
        }
        number = static_cast<std::int64_t>(real);
    } else {
        throw mismatch("a number", value);
    }
    if (number < low || number > high) {
        throw platform::failure(platform::kOverflow);
    }
    return number;
}

std::int32_t asInt32(const Json& value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(asInteger(value, Limits::min(), Limits::max()));
}

double asDouble(const Json& value)
{
    if (!value.is_number()) {
        throw mismatch("a number", value);
    }
    return value.get<double>();
}

std::string asText(const Json& value)
{
    if (!value.is_string()) {
        throw mismatch("a text", value);
    }
    return value.get<std::string>();
}

const Json& asObject(const Json& value)
{
    if (!value.is_object()) {
        throw mismatch("an object", value);
    }
    return value;
}

const Json& asArray(const Json& value)
{
    if (!value.is_array()) {
        throw mismatch("a list", value);
    }
    return value;
}

const Json* find(const Json& object, const char* key)
{
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

const Json& field(const Json& object, const char* key)
{
    const Json* value = find(object, key);
    if (value == nullptr) {
        throw invalid("\"" + std::string{key} + "\" is missing");
    }
    return *value;
}

std::string textField(const Json& object, const char* key)
{
    return asText(field(object, key));
}

std::string textOr(const Json& object, const char* key, const std::string& fallback)
{
    const Json* value = find(object, key);
    return value == nullptr ? fallback : asText(*value);
}

bool boolOr(const Json& object, const char* key, bool fallback)
{
    const Json* value = find(object, key);
    return value == nullptr ? fallback : asBool(*value);
}

std::int32_t int32Field(const Json& object, const char* key)
{
    return asInt32(field(object, key));
}

} // namespace quill::probe
