#include "actions/form.h"

#include "framework/caption_width.h"

#include <algorithm>

namespace quill {

void fitRows(const std::vector<platform::Label*>& labels, const platform::WidgetList& boxes,
             platform::CommandButton& button, std::int32_t leastLabel)
{
    constexpr std::int32_t kGap         = 100;
    constexpr std::int32_t kLeastBox    = 2700;
    constexpr std::int32_t kRightOfBox  = 5900;
    constexpr std::int32_t kLeastButton = 1200;

    std::int32_t widest = leastLabel;
    for (const platform::Label* label : labels) {
        widest = std::max(widest, captionWidth(label->Caption));
    }
    for (platform::Label* label : labels) {
        label->Width = widest;
    }
    const std::int32_t left  = labels.front()->Left + widest + kGap;
    const std::int32_t width = std::max(kLeastBox, kRightOfBox - left);
    for (platform::Widget* box : boxes) {
        box->Left  = left;
        box->Width = width;
    }
    button.Left  = left + width + 2 * kGap;
    button.Width = buttonWidth(button.Caption, kLeastButton);
}

platform::WidgetList listedBefore(platform::WidgetList widgets, const platform::Widget& widget,
                                  const platform::Widget& next)
{
    const auto to   = std::find(widgets.begin(), widgets.end(), &next);
    const auto from = std::find(to, widgets.end(), &widget);
    if (from != widgets.end()) {
        std::rotate(to, from, from + 1);
    }
    return widgets;
}

} // namespace quill
