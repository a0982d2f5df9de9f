#pragma once

#include "platform/headless_toolkit.h"
#include "probe/json.h"

#include <string>

namespace quill::probe {

/// What a control did with the toolkit and nobody sees: "Clipboard", "MousePointer",
/// "CurrentFolder". Another name is failure 438. A prepared failure does not reach these.
[[nodiscard]] Reply getToolkitProperty(const platform::HeadlessToolkit& toolkit,
                                       const std::string&               name);
void                setToolkitProperty(platform::HeadlessToolkit& toolkit, const std::string& name,
                                       const Json& value);

} // namespace quill::probe
