#pragma once

#include "framework/host_contract.h"
#include "platform/widget.h"

#include <string>

namespace quill {

/// A view that serves its children by `modView` and does nothing else: the base of the views, and
/// a page ready for use for a host. Children are members of a derived class, or widgets that the
/// host makes with the page as their container; they may come and go between two calls.
class ViewBase : public platform::Control,
                 public IQornComponent,
                 public ILocalizable,
                 public IQornDataUser,
                 public IQornView {
public:
    using Control::Control;

    // IQornComponent
    void SetMessenger(Messenger* messenger) override;
    // ILocalizable
    void Localize(Translator& translator) override;
    // IQornDataUser
    void SetErrorData(const IXMLDOMNode& node) override;
    void SetImportData(const IXMLDOMNode& node) override;
    void SetOfflineData(const IXMLDOMNode& node) override;
    void SetOnlineData(const IXMLDOMNode& node) override;
    // IQornView
    platform::WidgetList GetControls() override { return Widgets(); }
    Messenger*           GetMessenger() override { return mMessenger; }
    std::string          GetSelectedView() override { return mSelectedView; }
    /// Shows a sub-page: one of `subPages`.
    void SetSelectedView(const std::string& name) override;
    /// False as soon as one child view has a reason to stay.
    bool LeaveSelectedView() override;
    void RequestFocus() override;
    /// Lets go of the Messenger, after the children have.
    void PrepareToRelease() override;

protected:
    /// The frames and child views that hold the sub-pages: those that lie right on this view.
    [[nodiscard]] virtual platform::WidgetList subPages() const;
    /// The name that `GetSelectedView` answers from now on.
    void rememberSelectedView(std::string name) { mSelectedView = std::move(name); }

private:
    Messenger*  mMessenger = nullptr;
    std::string mSelectedView;
};

} // namespace quill
