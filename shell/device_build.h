#pragma once

#include "shell/device.h"

namespace quill::shell {

/// The device that a datafile is for, with all that a device of its type can do. A type that this
/// program brings samples of has their memory and their diagnosis; any other type keeps its
/// parameters and nothing else.
[[nodiscard]] SimulatedDevice buildDevice(const IXMLDOMNode& datafile);

} // namespace quill::shell
