#pragma once

#include <cstdint>

namespace quill::shell {

// Lengths in twips that all pages have in common, so that what is on them stands in line.

constexpr std::int32_t kPageMargin  = 240; ///< around a card and inside it
constexpr std::int32_t kTitleHeight = 585; ///< of a card, down to its first row
constexpr std::int32_t kRowHeight   = 390;
constexpr std::int32_t kRowPitch    = 480;
constexpr std::int32_t kTextHeight  = 270; ///< of a label in its row
constexpr std::int32_t kTitleText   = 120; ///< from the top of a card to a label beside its title

} // namespace quill::shell
