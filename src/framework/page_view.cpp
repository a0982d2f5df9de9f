#include "framework/page_view.h"

#include "framework/modView.h"
#include "platform/label.h"
#include "platform/toolkit.h"

namespace quill {

namespace {
} // namespace

PageView::PageView(const char* className, const platform::Design& design)
    : ViewBase(design), mClassName(className)
{
}

PageView::PageView(const char* className, platform::Widget& container,
                   const platform::Design& design)
    : ViewBase(container, design), mClassName(className)
{
}

Steps PageView::steps(const char* procedure)
{
    return {GetMessenger(), std::string(mClassName) + " " + procedure + ": "};
}

Steps PageView::debugSteps(const char* procedure) const
{
    const std::string place = std::string(mClassName) + " " + procedure + " - Error";
    return Steps{[place](int number, const std::string& description) {
        platform::Toolkit::current().debugOutput(place + std::to_string(number) + ": " +
                                                 description);
    }};
}

Messenger& PageView::host()
{
    return existing(GetMessenger());
}

platform::WidgetList PageView::subPages() const
{
    platform::WidgetList frames;
    for (platform::Widget* widget : Widgets()) {
        if (widget->Container() == this && dynamic_cast<platform::Frame*>(widget) != nullptr) {
            frames.push_back(widget);
        }
    }
    return frames;
}

void PageView::paintFrames()
{
    for (platform::Widget* frame : subPages()) {
        frame->BackColor = platform::kWhite;
    }
}

void PageView::SetSelectedView(const std::string& name)
{
    steps("IQornView_SetSelectedView")(
        [&] { rememberSelectedView(modView::ShowViewPage(name, Tag, subPages())); });
}

void PageView::PrepareToRelease()
{
    steps("IQornView_PrepareToRelease")([&] { SetMessenger(nullptr); });
}

void PageView::UserControl_Resize()
{
    const Steps step =
        GetMessenger() != nullptr ? steps("UserControl_Resize") : debugSteps("UserControl_Resize");
    step([&] {
        for (platform::Widget* frame : subPages()) {
            frame->Left   = 0;
            frame->Top    = 0;
            frame->Width  = Width;
            frame->Height = Height;
        }
    });
    step([&] { arrange(); });
}

} // namespace quill
