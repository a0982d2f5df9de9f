#include "status/StatusNAMUR.h"

#include "status/status_classes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quill {

namespace {

constexpr std::array<const char*, 6> kRanks{
    "deviceFailure", "deviceUnderTest", "deviceOffSpecification", "deviceMaintenanceRequired",
    "deviceInfo",    "deviceOk"};
constexpr const char* kRest = "deviceDiagnosisPassiv";

/// The class of a condition whose definition does not tell it, by the last part of its name.
std::string classByName(const std::string& name)
{
    constexpr std::array<std::pair<const char*, const char*>, 4> kEnds{{
        {"_Maint", "deviceMaintenanceRequired"},
        {"_Offspec", "deviceOffSpecification"},
        {"_Check", "deviceUnderTest"},
        {"_Fail", "deviceFailure"},
    }};

    const auto at = name.rfind('_');
    if (at == std::string::npos) {
        return {};
    }
    const std::string end   = name.substr(at);
    const auto* const found = std::find_if(kEnds.begin(), kEnds.end(),
                                           [&](const auto& entry) { return end == entry.first; });
    return found == kEnds.end() ? std::string{} : found->second;
}

} // namespace

std::string StatusNAMUR::GetClass(const std::string& name) const
{
    return mClasses.classOf(name);
}

void StatusNAMUR::SetClass(const std::string& name, const std::string& statusClass)
{
    if (!mClasses.change(name, statusClass)) {
        mClasses.add(name, statusClass);
    }
}

std::string StatusNAMUR::GetWorst(const std::string& a, const std::string& b) const
{
    return statusClasses::worst(kRanks, kRest, a, b);
}

std::string StatusNAMUR::ReadClass(const platform::IXMLDOMNode& status)
{
    const Steps step        = statusClasses::debugSteps("StatusNAMUR ReadClass error ");
    const auto  name        = statusClasses::attribute(step, status, "name");
    const auto  statusClass = statusClasses::attribute(step, status, "classNAMUR");
    if (!name) {
        return {};
    }
    if (!statusClass) {
        return classByName(*name);
    }
    mClasses.add(*name, *statusClass);
    return *statusClass;
}

} // namespace quill
