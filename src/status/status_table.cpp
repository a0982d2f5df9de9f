#include "status/status_table.h"

namespace quill {

void StatusTable::add(const std::string& name, const std::string& statusClass)
{
    if (mNames.find(name) == NameTable::kNone) {
        mNames.add(name);
        mClasses.push_back(statusClass);
    }
}

bool StatusTable::change(const std::string& name, const std::string& statusClass)
{
    const auto place = mNames.find(name);
    if (place == NameTable::kNone) {
        return false;
    }
    mClasses[place] = statusClass;
    return true;
}

std::string StatusTable::classOf(const std::string& name) const
{
    const auto place = mNames.find(name);
    return place == NameTable::kNone ? std::string{} : mClasses[place];
}

} // namespace quill
