#pragma once

#include "probe/json.h"
#include "probe/scene.h"

#include <string>

namespace quill::probe {

/// The host's Messenger raises one of its events. A name that is none is failure 438.
void raiseEvent(const Scene& scene, const std::string& event, const Json& args);

} // namespace quill::probe
