#pragma once

#include "platform/widget.h"
#include "probe/json.h"

#include <string>

namespace quill::probe {

/// Does what a user does with a widget, by the fields of a `do` line. An action that is none, or
/// none for this kind of widget, is failure 438.
platform::UserDoor act(platform::Widget& widget, const std::string& action, const Json& line);

} // namespace quill::probe
