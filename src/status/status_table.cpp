#include "status/status_table.h"

namespace quill {

bool StatusTable::change(const std::string& name, const std::string& statusClass)
{
    const auto found = mClasses.find(name);
    if (found == mClasses.end()) {
        return false;
    }
    found->second = statusClass;
    return true;
}

std::string StatusTable::classOf(const std::string& name) const
{
    const auto found = mClasses.find(name);
    return found == mClasses.end() ? std::string{} : found->second;
}

} // namespace quill
