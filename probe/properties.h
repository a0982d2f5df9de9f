#pragma once

#include "platform/widget.h"
#include "probe/json.h"
#include "probe/scene.h"

#include <string>

namespace quill::probe {

/// A property by its name: one that the class has registered, else one that the widget itself
/// lists. `index` is a list, empty for a property without an index. A name that is none is failure
/// 438.
[[nodiscard]] Reply getProperty(const Scene& scene, platform::Widget& widget,
                                const std::string& name, const Json& index);
/// The program's door. Also failure 438 for a property that can only be read.
void setProperty(const Scene& scene, platform::Widget& widget, const std::string& name,
                 const Json& index, const Json& value);

/// The widget, its properties and what it holds, as a tree.
[[nodiscard]] Reply dump(const Scene& scene, platform::Widget& widget);

} // namespace quill::probe
