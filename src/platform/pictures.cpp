#include "platform/pictures.h"

#include "platform/failure.h"

#include <algorithm>

namespace quill::platform {

int ImageList::index(const std::string& key) const
{
    const auto place = std::find(mKeys.begin(), mKeys.end(), key);
    if (place == mKeys.end()) {
        throw Failure(kInvalidCall, "no image of the key '" + key + "'");
    }
    return static_cast<int>(place - mKeys.begin());
}

} // namespace quill::platform
