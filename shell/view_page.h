#pragma once

#include "shell/page.h"
#include "shell/test_current.h"
#include "shell/view_factory.h"

#include <memory>
#include <string>
#include <vector>

namespace quill::shell {

/// A page that one view of the library fills. The view has the `Tag` that the description gives it:
/// responses that carry this in their name are its own, and it gets no others. What else a view
/// needs of its host, and what it is kept from, its `ViewKind` tells. A view that does not speak
/// for the device sees everything of the host and says everything but that.
class ViewPage : public Page {
public:
    /// Failure 5 for a view that there is none of.
    ViewPage(platform::Widget& container, const PageDescription& description);
    ~ViewPage() override;

    [[nodiscard]] const char*        TypeName() const override { return "ViewPage"; }
    [[nodiscard]] platform::Control& view() const { return *mView; }

    /// The named requests of the description.
    [[nodiscard]] std::vector<std::string> groups() const override { return description().read; }
    [[nodiscard]] bool isConcernedBy(const IXMLDOMNode& response) const override;
    [[nodiscard]] bool tellsAnyError() const override { return false; }
    /// The whole room, as long as it is not too small for the view; a form's card has its size.
    void layOut(const PageSpace& space) override;
    void letGo() override;

    void SetMessenger(Messenger* messenger) override;
    void Localize(Translator& translator) override;
    void SetOfflineData(const IXMLDOMNode& node) override;
    void SetOnlineData(const IXMLDOMNode& node) override;
    void SetErrorData(const IXMLDOMNode& node) override;
    void SetSelectedView(const std::string& name) override;
    bool LeaveSelectedView() override;
    void RequestFocus() override;

private:
    void makeView();
    /// A new view with the last datafile, in the language in force.
    void renewView();

    [[nodiscard]] std::unique_ptr<Messenger> messengerFor(Messenger& messenger);
    void                                     follow(std::int32_t mode);
    void                                     refresh();

    const ViewKind&                    mKind;
    TestCurrentWatch                   mTestCurrent;
    std::unique_ptr<Messenger>         mOwn; ///< of a view that is kept from something
    platform::Frame                    mCard;
    std::unique_ptr<platform::Control> mView;
    IXMLDOMNode                        mDatafile; ///< delivered last
    std::string                        mLanguage;
    platform::Subscription             mOnMode;
};

} // namespace quill::shell
