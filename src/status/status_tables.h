#pragma once

#include "platform/failure.h"
#include "platform/xml_dom.h"

#include <cstddef>
#include <cstdint>

/// What the tables of status conditions have in common.
namespace quill {

/// Parameters whose name begins like this hold status masks.
inline constexpr const char* kMaskPrefix = "statusMask";

/// The byte or the bit of a condition that is in no mask.
inline constexpr std::int16_t kNoMask = -1;

/// The attribute `maskByte` or `maskBit` of a condition's definition; `kNoMask` if it is missing or
/// no number. Failure 6 for a number beyond 16 bits, 91 for what has no attributes.
[[nodiscard]] std::int16_t maskNumber(const platform::IXMLDOMNode& status, const char* attribute);

/// An entry of a table that starts at 0; failure 9 outside.
template <class Table>
[[nodiscard]] auto& entryAt(Table& table, int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= table.size()) {
        throw platform::failure(platform::kSubscriptOutOfRange);
    }
    return table[static_cast<std::size_t>(index)];
}

} // namespace quill
