#include "qt/images.h"

#include "qt/svg_icon.h"

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
    if (found != icons().end() && !found->second.isNull()) {
        return found->second;
    }
    static auto& builtIn = *new std::unordered_map<std::string, QIcon>;
    const auto   known   = builtIn.find(key);
    return known != builtIn.end() ? known->second
                                  : builtIn.emplace(key, builtInIcon(key)).first->second;
}

} // namespace quill::qt
