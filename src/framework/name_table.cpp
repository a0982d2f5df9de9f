#include "framework/name_table.h"

#include <functional>

namespace quill {

void NameTable::add(std::string_view name)
{
    const auto place = static_cast<std::uint32_t>(mNames.size());
    mNames.add(name);
    mLinks.push_back({kNone, place});
    if (2 * mNames.size() > mBuckets.size()) {
        grow();
    }
    std::uint32_t& first = mBuckets[bucketOf(name)];
    if (first == kNone) {
        first = place;
        return;
    }
    Link& link             = mLinks[first];
    mLinks[link.last].next = place;
    link.last              = place;
}

std::uint32_t NameTable::find(std::string_view name) const
{
    return mBuckets[bucketOf(name)];
}

std::size_t NameTable::bucketOf(std::string_view name) const
{
    const std::size_t mask = mBuckets.size() - 1; // their number is a power of two
    std::size_t       at   = std::hash<std::string_view>{}(name)&mask;
    while (mBuckets[at] != kNone && mNames[mBuckets[at]] != name) {
        at = (at + 1) & mask;
    }
    return at;
}

void NameTable::grow()
{
    constexpr std::size_t      kFactor = 4;
    std::vector<std::uint32_t> old(mBuckets.size() * kFactor, kNone);
    old.swap(mBuckets);
    for (const std::uint32_t first : old) {
        if (first != kNone) {
            mBuckets[bucketOf(mNames[first])] = first;
        }
    }
}

} // namespace quill
