#include "framework/prefix_table.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quill {

namespace {

constexpr std::size_t kHeadBytes = 8;

/// The first bytes as a number that is in the order of the texts; missing ones count as 0.
std::uint64_t headOf(std::string_view tail)
{
    std::uint64_t head = 0;
    for (std::size_t at = 0; at < kHeadBytes; ++at) {
        head = head << 8U | (at < tail.size() ? static_cast<unsigned char>(tail[at]) : 0U);
    }
    return head;
}

std::size_t commonLength(const TextList& texts)
{
    if (texts.size() == 0) {
        return 0;
    }
    std::string_view common = texts[0];
    for (std::size_t place = 1; place < texts.size(); ++place) {
        const std::string_view text = texts[place];
        const auto [end, other] =
            std::mismatch(common.begin(), common.end(), text.begin(), text.end());
        common = common.substr(0, static_cast<std::size_t>(end - common.begin()));
    }
    return common.size();
}

} // namespace

PrefixTable::PrefixTable(TextList texts) : mTexts(std::move(texts)), mCommon(commonLength(mTexts))
{
    const std::size_t count = mTexts.size();
    mSorted.resize(count);
    for (std::size_t place = 0; place < count; ++place) {
        mSorted[place].place = static_cast<std::uint32_t>(place);
        mSorted[place].head  = headOf(tailOf(mSorted[place]));
    }
    std::sort(mSorted.begin(), mSorted.end(), [this](const Entry& a, const Entry& b) {
        return a.head != b.head ? a.head < b.head : tailOf(a) < tailOf(b);
    });
    mLowest.resize(2 * count);
    for (std::size_t leaf = 0; leaf < count; ++leaf) {
        mLowest[count + leaf] = mSorted[leaf].place;
    }
    for (std::size_t node = count; node-- > 1;) {
        mLowest[node] = std::min(mLowest[2 * node], mLowest[2 * node + 1]);
    }
}

std::string_view PrefixTable::tailOf(const Entry& entry) const
{
    return mTexts[entry.place].substr(mCommon);
}

std::optional<std::size_t> PrefixTable::first(std::string_view prefix) const
{
    if (mTexts.size() == 0) {
        return std::nullopt;
    }
    const std::size_t shared = std::min(prefix.size(), mCommon);
    if (mTexts[0].substr(0, shared) != prefix.substr(0, shared)) {
        return std::nullopt;
    }
    const std::string_view rest = prefix.substr(shared);
    if (rest.empty()) {
        return 0;
    }
    // Those that begin with the prefix stand side by side.
    const std::uint64_t head  = headOf(rest);
    const auto          found = std::lower_bound(
                 mSorted.begin(), mSorted.end(), head, [&](const Entry& entry, std::uint64_t h) {
            return entry.head != h ? entry.head < h : tailOf(entry) < rest;
        });
    const auto begin = static_cast<std::size_t>(found - mSorted.begin());
    const auto end   = endOf(begin, rest);
    return begin == end ? std::nullopt : std::optional<std::size_t>{lowest(begin, end)};
}

std::size_t PrefixTable::endOf(std::size_t begin, std::string_view tail) const
{
    const auto isOne = [&](const Entry& entry) { return tailOf(entry).starts_with(tail); };
    // There are rarely more than one, so the search begins with short steps.
    std::size_t reach = 1;
    std::size_t end   = begin;
    while (end < mSorted.size() && isOne(mSorted[end])) {
        end += reach;
        reach *= 2;
    }
    const auto from = mSorted.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto to   = mSorted.begin() + static_cast<std::ptrdiff_t>(std::min(end, mSorted.size()));
    return static_cast<std::size_t>(std::partition_point(from, to, isOne) - mSorted.begin());
}

std::uint32_t PrefixTable::lowest(std::size_t begin, std::size_t end) const
{
    std::uint32_t place = std::numeric_limits<std::uint32_t>::max();
    begin += mSorted.size();
    end += mSorted.size();
    for (; begin < end; begin /= 2, end /= 2) {
        if (begin % 2 == 1) {
            place = std::min(place, mLowest[begin++]);
        }
        if (end % 2 == 1) {
            place = std::min(place, mLowest[--end]);
        }
    }
    return place;
}

} // namespace quill
