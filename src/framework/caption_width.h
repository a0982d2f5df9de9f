#pragma once

#include "platform/toolkit.h"
#include "platform/widget.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace quill {

/// The width that a text takes on the form, in twips; 0 if the toolkit cannot tell.
[[nodiscard]] inline std::int32_t captionWidth(const std::string& text) noexcept
{
    try {
        return platform::Toolkit::current().textWidth(text);
    } catch (...) {
        return 0;
    }
}

/// The width of a button that shows a text, with room at both ends, and at least `least`: a caption
/// is longer in one language than in another.
[[nodiscard]] inline std::int32_t buttonWidth(const std::string& caption, std::int32_t least)
{
    constexpr std::int32_t kRoom = 360;
    return std::max(least, captionWidth(caption) + kRoom);
}

} // namespace quill
