#include "qt/images.h"

#include <unordered_map>

namespace quill::qt {

namespace {

std::unordered_map<std::string, QIcon>& icons()
{
    // Never destroyed: pictures must not go after the application object.
    static auto& all = *new std::unordered_map<std::string, QIcon>;
    return all;
}

} // namespace

void Images::put(const std::string& key, const QIcon& icon)
{
    icons()[key] = icon;
}

QIcon Images::find(const std::string& key)
{
    const auto found = icons().find(key);
    return found == icons().end() ? QIcon{} : found->second;
}

} // namespace quill::qt
