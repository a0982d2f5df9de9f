#pragma once

#include "status/IQornStatusClass.h"
#include "status/status_table.h"

#include <string>

namespace quill {

/// The maker's own scale: how serious a condition is, in four steps. A condition's class is its
/// attribute `class`.
class StatusSeverity : public IQornStatusClass {
public:
    [[nodiscard]] std::string ImageOk() const override { return "ok"; }
    [[nodiscard]] std::string ImageDisabled() const override { return "inactive"; }
    [[nodiscard]] std::string ImageNotRead() const override { return "notMonitored"; }
    [[nodiscard]] std::string ImageUnknown() const override { return "unknown"; }
    /// Serves also a view that shows NAMUR classes, for a condition that has none.
    [[nodiscard]] std::string GetClass(const std::string& name) const override;
    /// Changes a condition that was read; any other is left alone.
    void SetClass(const std::string& name, const std::string& statusClass) override;
    /// "failsafe", "alarm", "warning", "info", "ok", "inactive"; else "unknown". "notMonitored" has
    /// no rank of its own.
    [[nodiscard]] std::string GetWorst(const std::string& a, const std::string& b) const override;
    /// A condition without `name` or `class` is not taken and has the empty class.
    std::string ReadClass(const platform::IXMLDOMNode& status) override;

private:
    StatusTable mClasses;
};

} // namespace quill
