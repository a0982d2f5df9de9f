#include "framework/view_base.h"

#include "framework/modView.h"
#include "framework/steps.h"
#include "platform/label.h"

namespace quill {

void ViewBase::SetMessenger(Messenger* messenger)
{
    mMessenger = messenger;
    modView::setMessenger(*this, messenger);
}

void ViewBase::Localize(Translator& translator)
{
    modView::Localize(*this, translator);
}

void ViewBase::SetErrorData(const IXMLDOMNode& node)
{
    modView::setErrorData(*this, node);
}

void ViewBase::SetImportData(const IXMLDOMNode& node)
{
    modView::setImportData(*this, node);
}

void ViewBase::SetOfflineData(const IXMLDOMNode& node)
{
    modView::setOfflineData(*this, node);
}

void ViewBase::SetOnlineData(const IXMLDOMNode& node)
{
    modView::setOnlineData(*this, node);
}

platform::WidgetList ViewBase::subPages() const
{
    platform::WidgetList pages;
    for (platform::Widget* widget : Widgets()) {
        if (widget->Container() == this && (dynamic_cast<platform::Frame*>(widget) != nullptr ||
                                            dynamic_cast<IQornView*>(widget) != nullptr)) {
            pages.push_back(widget);
        }
    }
    return pages;
}

void ViewBase::SetSelectedView(const std::string& name)
{
    mSelectedView = modView::ShowViewPage(name, mSelectedView, subPages());
}

bool ViewBase::LeaveSelectedView()
{
    const Steps          step{mMessenger, "modView LeaveSelectedView: "};
    platform::WidgetList children = Widgets();
    for (platform::Widget* widget : children) {
        auto* view = dynamic_cast<IQornView*>(widget);
        if (view != nullptr && !step.value(true, [&] { return view->LeaveSelectedView(); })) {
            return false;
        }
    }
    return true;
}

void ViewBase::RequestFocus()
{
    focus();
}

void ViewBase::PrepareToRelease()
{
    const Steps          step{mMessenger, "modView PrepareToRelease: "};
    platform::WidgetList children = Widgets();
    for (platform::Widget* widget : children) {
        if (auto* view = dynamic_cast<IQornView*>(widget)) {
            step([&] { view->PrepareToRelease(); });
        }
    }
    SetMessenger(nullptr);
}

} // namespace quill
