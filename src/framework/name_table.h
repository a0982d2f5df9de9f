#pragma once

#include "framework/text_list.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

namespace quill {

/// A list of names that finds the place of a name without a search. A name may come again.
class NameTable {
public:
    /// No place.
    static constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

    /// Adds a name at the end.
    void add(std::string_view name);
    /// The first place of a name.
    [[nodiscard]] std::uint32_t find(std::string_view name) const;
    /// The next place of the name that stands at this one.
    [[nodiscard]] std::uint32_t next(std::uint32_t place) const { return mLinks[place].next; }
    [[nodiscard]] std::size_t   size() const noexcept { return mNames.size(); }

private:
    struct Link {
        std::uint32_t next = kNone;
        std::uint32_t last = kNone; ///< the last place of the name; kept by the first
    };

    /// Where in `mBuckets` the first place of this name stands, or would.
    [[nodiscard]] std::size_t bucketOf(std::string_view name) const;
    void                      grow();

    TextList                   mNames;
    std::vector<Link>          mLinks;
    std::vector<std::uint32_t> mBuckets = std::vector<std::uint32_t>(8, kNone);
};

} // namespace quill
