#pragma once

#include <string>
#include <vector>

namespace quill::probe {

/// What the program does with its arguments; the answer is its exit status: 0 when every line was
/// answered with ok, 1 when one was not, 2 for a usage error.
[[nodiscard]] int runProbe(const std::vector<std::string>& arguments);

} // namespace quill::probe
