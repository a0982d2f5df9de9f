#pragma once

#include <QIcon>

#include <string>

namespace quill::qt {

/// A picture that comes with the library, by its key; a null icon for a key that has none. It is
/// drawn anew for every size and density, so its edges are sharp. The pictures have an outline for
/// light grounds and another one around it for dark grounds and for the ground of a selected row,
/// so they look the same on all of them.
[[nodiscard]] QIcon builtInIcon(const std::string& key);

} // namespace quill::qt
