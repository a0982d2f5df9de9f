#pragma once

#include "platform/failure.h"

#include <cstddef>

/// What the tables of a status tree have in common: entries by row index, from 0.
namespace quill {

/// An entry; failure 9 outside.
template <class Table>
[[nodiscard]] auto& entryAt(Table& table, int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= table.size()) {
        throw platform::failure(platform::kSubscriptOutOfRange);
    }
    return table[static_cast<std::size_t>(index)];
}

/// Gives a table exactly this last index; failure 9 for one below 0.
template <class Table>
void cutTo(Table& table, int last)
{
    if (last < 0) {
        throw platform::failure(platform::kSubscriptOutOfRange);
    }
    table.resize(static_cast<std::size_t>(last) + 1);
}

/// Lets a table grow to a last index, and never loses an entry. Failure 9 for one below 0.
template <class Table>
void growTo(Table& table, int last)
{
    if (last < 0 || static_cast<std::size_t>(last) >= table.size()) {
        cutTo(table, last);
    }
}

} // namespace quill
