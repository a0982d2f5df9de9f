#pragma once

#include "framework/ListTools.h"
#include "probe/json.h"

namespace quill::probe {

/// The rows of a list of pending changes, null for an empty row.
[[nodiscard]] Reply writeRows(const ListContainers& rows);

} // namespace quill::probe
