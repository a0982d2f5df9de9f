#include "editors/CtrDateLabel.h"

#include "framework/steps.h"
#include "framework/values.h"

namespace quill {

CtrDateLabel::CtrDateLabel(const platform::Design& design) : Control(design)
{
    start();
}

CtrDateLabel::CtrDateLabel(platform::Widget& container, const platform::Design& design)
    : Control(container, design)
{
    start();
}

void CtrDateLabel::start()
{
    const auto fill = [this] {
        lblDate.Width  = Width.get();
        lblDate.Height = Height.get();
    };
    fill();
    lblDate.BackColor = BackColor.get();
    TabStop           = false; // a label, though a control of its own
    mOnResize         = Resize.subscribe(fill);
}

void CtrDateLabel::setCaption(const std::string& text)
{
    const Steps step{nullptr, "CtrDateLabel Caption"};
    lblDate.Caption = step.value(text, [&] {
        const auto date = values::parseDate(text);
        return date ? values::formatDate(*date, "ddddd ttttt") : text;
    });
}

void CtrDateLabel::propertyChanged(const void* property)
{
    Control::propertyChanged(property);
    if (property == &BackColor) {
        lblDate.BackColor = BackColor.get();
    }
}

} // namespace quill
