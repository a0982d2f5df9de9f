#include "platform/grid_parts.h"

#include "platform/failure.h"

#include <algorithm>

namespace quill::platform {

std::size_t GridLists::find(const std::string& key) const
{
    const auto found = std::find_if(mLists.begin(), mLists.end(),
                                    [&](const auto& list) { return list.first == key; });
    return static_cast<std::size_t>(found - mLists.begin());
}

void GridLists::add(const std::string& key)
{
    if (find(key) < size()) {
        throw Failure(kInvalidCall, "there is a drop-down list of the key '" + key + "'");
    }
    mLists.emplace_back(key, Entries{});
}

std::size_t GridLists::place(const std::string& key) const
{
    const std::size_t found = find(key);
    if (found == size()) {
        throw Failure(kInvalidCall, "no drop-down list of the key '" + key + "'");
    }
    return found;
}

} // namespace quill::platform
