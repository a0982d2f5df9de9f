#pragma once

#include "platform/widget.h"

namespace quill::qt {

/// Takes `next` into `last` where the two are one change of rows; false where they are not.
[[nodiscard]] bool merge(platform::WidgetChange& last, const platform::WidgetChange& next);

} // namespace quill::qt
