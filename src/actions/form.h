#pragma once

#include "platform/buttons.h"
#include "platform/label.h"

#include <vector>

namespace quill {

/// Makes labels as wide as the longest of their texts, at least `leastLabel`, and puts the boxes
/// beside them and the button behind those. The boxes give up width first, as far as their entries
/// can still be read; only then does the button move.
void fitRows(const std::vector<platform::Label*>& labels, const platform::WidgetList& boxes,
             platform::CommandButton& button, std::int32_t leastLabel);

/// The widgets of a form that lists `widget` right before `next`, though the Tab key comes to it
/// later.
[[nodiscard]] platform::WidgetList listedBefore(platform::WidgetList    widgets,
                                                const platform::Widget& widget,
                                                const platform::Widget& next);

} // namespace quill
