#include "status/StatusSeverity.h"

#include "status/status_classes.h"

#include <array>

namespace quill {

namespace {

constexpr std::array<const char*, 6> kRanks{"failsafe", "alarm", "warning",
                                            "info",     "ok",    "inactive"};
constexpr const char*                kRest = "unknown";

} // namespace

std::string StatusSeverity::GetClass(const std::string& name) const
{
    return mClasses.classOf(name);
}

void StatusSeverity::SetClass(const std::string& name, const std::string& statusClass)
{
    mClasses.change(name, statusClass);
}

std::string StatusSeverity::GetWorst(const std::string& a, const std::string& b) const
{
    return statusClasses::worst(kRanks, kRest, a, b);
}

std::string StatusSeverity::ReadClass(const platform::IXMLDOMNode& status)
{
    const Steps step        = statusClasses::debugSteps("StatusSeverity ReadClass error ");
    const auto  name        = statusClasses::attribute(step, status, "name");
    const auto  statusClass = statusClasses::attribute(step, status, "class");
    if (!name || !statusClass) {
        return {};
    }
    mClasses.add(*name, *statusClass);
    return *statusClass;
}

} // namespace quill
