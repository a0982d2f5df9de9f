#pragma once

#include "framework/host_contract.h"
#include "framework/steps.h"

#include <climits>
#include <optional>
#include <string>

namespace quill {

constexpr int kAllTails = INT_MAX;

/// The unit in which the user wants to see a parameter: that of its whole name, else of the first
/// tail that the converter knows. A tail begins, from the left, at each character that is its own
/// upper-case form, turned to lower case: "valveTravelUnit" also finds "travelUnit" and "unit".
/// At most `mostTails` of them are tried. Nothing if none is known.
[[nodiscard]] std::optional<std::string> findDisplayUnit(const Steps& step, UnitConverter& units,
                                                         const std::string& name,
                                                         int                mostTails = kAllTails);

} // namespace quill
