#pragma once

#include <string>

namespace quill::shell {

class SimulatedDevice;

/// When a condition follows the device itself.
struct ConditionRule {
    const char* condition;
    bool (*holds)(const SimulatedDevice&);
    /// For so many seconds the cause must be there before the condition comes, and be gone before
    /// it goes.
    double delay;
};

/// The rule of a condition, null if it has none.
[[nodiscard]] const ConditionRule* findRule(const std::string& condition);

} // namespace quill::shell
