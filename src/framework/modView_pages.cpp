#include "framework/modView.h"
#include "framework/modView_walk.h"
#include "platform/toolkit.h"

namespace quill::modView {

using namespace walk;

namespace {

std::string showFirst(const platform::WidgetList& pages)
{
    if (pages.empty()) {
        return {};
    }
    pages.front()->ZOrder();
    return pages.front()->Tag;
}

/// Whether the page is, or could be made, the one of that name. A sub-view is asked, a plain frame
/// goes by its `Tag`.
bool takesName(platform::Widget& page, const std::string& name)
{
    if (auto* view = dynamic_cast<IQornView*>(&page)) {
        // There is no Messenger here; what goes wrong is for the debug output.
        const Steps step{nullptr, "modView ShowViewPage: "};
        step([&] { view->SetSelectedView(name); });
        return step.text([&] { return view->GetSelectedView(); }) == name;
    }
    return dynamic_cast<platform::Control*>(&page) == nullptr && page.Tag == name;
}

} // namespace

std::string ShowViewPage(const std::string& name, const std::string& current,
                         const platform::WidgetList& pages)
{
    if (name == current) {
        return showFirst(pages);
    }
    for (platform::Widget* page : pages) {
        if (takesName(*page, name)) {
            page->ZOrder();
            return name;
        }
    }
    return {};
}

std::string ShowFramePage(const std::string& name, const std::string& current,
                          const platform::WidgetList& frames)
{
    if (name == current) {
        return showFirst(frames);
    }
    for (platform::Widget* frame : frames) {
        if (frame->Tag == name) {
            frame->ZOrder();
            return name;
        }
    }
    return {};
}

void TransferFocusOnTab(IQornView& view, FocusPosition position)
{
    Messenger*  messenger = messengerOf(view);
    const Steps step{messenger, "modView TransferFocusOnTab: "};
    const auto  isDown = [&](int key) {
        return step.value(false, [&] { return platform::Toolkit::current().keyDown(key); });
    };
    if (!isDown(platform::kKeyTab)) {
        return;
    }
    const bool shift    = isDown(platform::kKeyShift);
    const bool leadsOut = position == FocusPosition::only ||
                          (position == FocusPosition::last && !shift) ||
                          (position == FocusPosition::first && shift);
    if (leadsOut) {
        step([&] { existing(messenger).TransferFocus(); });
    }
}

} // namespace quill::modView
