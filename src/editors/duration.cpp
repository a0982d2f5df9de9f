#include "editors/duration.h"

#include "framework/values.h"
#include "platform/failure.h"

#include <algorithm>
#include <limits>

namespace quill::duration {

std::array<std::int32_t, kParts> split(std::int32_t seconds)
{
    std::array<std::int32_t, kParts> parts{};
    for (std::size_t i = 0; i < kParts; ++i) {
        parts[i] = seconds / kSeconds[i];
        seconds %= kSeconds[i];
    }
    return parts;
}

std::optional<std::int32_t> total(const std::array<std::string, kParts>& texts)
{
    std::optional<std::int32_t> seconds;
    for (std::size_t i = 0; i < kParts; ++i) {
        if (!values::isNumeric(texts[i])) {
            continue;
        }
        const std::int64_t sum =
            seconds.value_or(0) +
            static_cast<std::int64_t>(values::toInt32(values::parseLocal(texts[i]))) * kSeconds[i];
        if (sum < std::numeric_limits<std::int32_t>::min() ||
            sum > std::numeric_limits<std::int32_t>::max()) {
            throw platform::failure(platform::kOverflow);
        }
        seconds = static_cast<std::int32_t>(sum);
    }
    return seconds;
}

bool isPlain(const std::string& text)
{
    return values::isNumeric(text) && std::all_of(text.begin(), text.end(), [](char c) {
               return (c >= '0' && c <= '9') || c == ' ';
           });
}

} // namespace quill::duration
