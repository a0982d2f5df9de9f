#pragma once

#include "framework/text_list.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quill {

/// Finds the first text of a list that begins with a prefix, without looking at the others. Built
/// once in the time of a sort; a question costs the logarithm of the list.
class PrefixTable {
public:
    explicit PrefixTable(TextList texts);

    /// The place in the list, from 0, of the first text that begins with `prefix`, byte for byte;
    /// nothing if none does. Every text begins with an empty prefix.
    [[nodiscard]] std::optional<std::size_t> first(std::string_view prefix) const;

private:
    /// A text by what comes behind the beginning that all have in common: names of one kind share
    /// much of it, and the eight bytes that follow nearly always tell two of them apart.
    struct Entry {
        std::uint64_t head  = 0;
        std::uint32_t place = 0;
    };

    [[nodiscard]] std::string_view tailOf(const Entry& entry) const;
    /// Behind the last of the texts from `begin` on that begin with this.
    [[nodiscard]] std::size_t   endOf(std::size_t begin, std::string_view tail) const;
    [[nodiscard]] std::uint32_t lowest(std::size_t begin, std::size_t end) const;

    TextList           mTexts;
    std::size_t        mCommon = 0; ///< length of the beginning that all texts share
    std::vector<Entry> mSorted;     ///< in ascending order of the texts
    /// A tree of lowest places: the leaves are those of `mSorted`, from the middle on; each node
    /// above holds the lower of its two.
    std::vector<std::uint32_t> mLowest;
};

} // namespace quill
