#pragma once

#include "status/IQornStatusClass.h"
#include "status/status_table.h"

#include <string>

namespace quill {

/// The diagnostic categories of NAMUR. A condition's class is its attribute `classNAMUR`. Switched
/// off, not read and unknown look the same: nothing is known.
class StatusNAMUR : public IQornStatusClass {
public:
    [[nodiscard]] std::string ImageOk() const override { return "deviceOk"; }
    [[nodiscard]] std::string ImageDisabled() const override { return "deviceDiagnosisPassiv"; }
    [[nodiscard]] std::string ImageNotRead() const override { return "deviceDiagnosisPassiv"; }
    [[nodiscard]] std::string ImageUnknown() const override { return "deviceDiagnosisPassiv"; }
    [[nodiscard]] std::string GetClass(const std::string& name) const override;
    /// A condition that was not read is added.
    void SetClass(const std::string& name, const std::string& statusClass) override;
    /// "deviceFailure", "deviceUnderTest", "deviceOffSpecification", "deviceMaintenanceRequired",
    /// "deviceInfo", "deviceOk"; else "deviceDiagnosisPassiv".
    [[nodiscard]] std::string GetWorst(const std::string& a, const std::string& b) const override;
    /// A condition with a name but without `classNAMUR` has the class that the end of its name says
    /// ("_Maint", "_Offspec", "_Check", "_Fail"), which is not kept: `GetClass` stays empty for it.
    std::string ReadClass(const platform::IXMLDOMNode& status) override;

private:
    StatusTable mClasses;
};

} // namespace quill
