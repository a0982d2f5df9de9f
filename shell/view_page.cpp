#include "shell/view_page.h"

#include "framework/documents.h"
#include "framework/steps.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "shell/forwarding_messenger.h"
#include "shell/row_metrics.h"

#include <algorithm>
#include <utility>

namespace quill::shell {

namespace {

constexpr std::int32_t kMargin = kPageMargin;

const ViewKind& kindOf(const PageDescription& description)
{
    const ViewKind* const kind = findView(description.view);
    if (kind == nullptr) {
        throw platform::Failure(platform::kInvalidCall, "there is no view " + description.view);
    }
    return *kind;
}

/// For a view that is not to say or to hear everything.
class ViewMessenger : public ForwardingMessenger {
public:
    ViewMessenger(Messenger& other, const ViewKind& kind, bool speaks,
                  TestCurrentWatch& testCurrent)
        : ForwardingMessenger(other), mKind(kind), mSpeaks(speaks), mTestCurrent(testCurrent)
    {
    }

    void SendCommunicationRequest(const std::string& requestXml,
                                  const std::string& requestName) override
    {
        ForwardingMessenger::SendCommunicationRequest(requestXml, requestName);
        // A host that refuses a request has nothing to do.
        if (mKind.drivesCurrent && GetCommunicationMode() == kEditingBarred) {
            mTestCurrent.sent(requestXml);
        }
    }
    void SetFixedStatusClassification(std::int16_t classification) override
    {
        if (mSpeaks) {
            ForwardingMessenger::SetFixedStatusClassification(classification);
        }
    }
    void SetCombinedStatus(std::int16_t level, const std::string& text) override
    {
        if (mSpeaks) {
            ForwardingMessenger::SetCombinedStatus(level, text);
        }
    }
    void BookChange(IQornDataEditor& editor, const std::string& tag, const std::string& label,
                    const std::string& oldText, const std::string& newText,
                    const std::string& extra, const std::string& type,
                    const std::string& contextTag) override
    {
        if (!mKind.actsByItself) {
            ForwardingMessenger::BookChange(editor, tag, label, oldText, newText, extra, type,
                                            contextTag);
        }
    }

protected:
    [[nodiscard]] bool handsOnMode(std::int32_t) const override { return mKind.hearsModes; }

private:
    const ViewKind&   mKind;
    bool              mSpeaks;
    TestCurrentWatch& mTestCurrent;
};

/// A document of the view's own.
IXMLDOMDocument copyOf(const IXMLDOMNode& node)
{
    return documents::openText(node.get_xml());
}

} // namespace

ViewPage::ViewPage(platform::Widget& container, const PageDescription& description)
    : Page(container, description), mKind(kindOf(description)),
      mCard(*this, {.Name = "card", .Tag = description.viewTag})
{
    makeView();
}

ViewPage::~ViewPage() = default;

void ViewPage::makeView()
{
    mView = mKind.make(mCard, {.Name = description().view, .Tag = description().viewTag});
    // The card is the ground that the view stands on. On a dark palette white frames are not filled
    // anyway; on a light one they would lie on the card's edge and title, which the blank of a
    // design reaches over.
    mView->BackColor = platform::kButtonFace;
    for (platform::Widget* widget : mView->Widgets()) {
        if (dynamic_cast<platform::Frame*>(widget) != nullptr) {
            widget->BackColor = platform::kButtonFace;
        }
    }
}

void ViewPage::renewView()
{
    const Steps step{GetMessenger(), "ViewPage renewView: "};
    mView.reset();
    makeView();
    if (auto* const component = dynamic_cast<IQornComponent*>(mView.get())) {
        step([&] { component->SetMessenger(GetMessenger()); });
    }
    step([&] { SetOfflineData(mDatafile); });
}

bool ViewPage::isConcernedBy(const IXMLDOMNode& response) const
{
    const std::string tag = mView->Tag;
    return !tag.empty() && values::contains(documents::responseAttribute(response, "name"), tag);
}

void ViewPage::layOut(const PageSpace& space)
{
    const ViewKind::Blank& blank        = mKind.blank;
    const std::int32_t     besideView   = 2 * kMargin - blank.left - blank.right;
    const std::int32_t     aboveView    = kTitleHeight + kMargin - blank.top - blank.bottom;
    const std::int32_t     leastWidth   = mKind.leastWidth + besideView + 2 * kMargin;
    const std::int32_t     leastHeight  = mKind.leastHeight + aboveView + 2 * kMargin;
    const bool             scrollsDown  = space.height < leastHeight;
    const bool             scrollsRight = space.width < leastWidth;
    const std::int32_t     width        = space.width - (scrollsDown ? space.bar : 0);
    const std::int32_t     height       = space.height - (scrollsRight ? space.bar : 0);
    resize(std::max(width, leastWidth), std::max(height, leastHeight));
    mCard.Left   = kMargin;
    mCard.Top    = kMargin;
    mCard.Width  = (mKind.fills ? Width.get() : leastWidth) - 2 * kMargin;
    mCard.Height = (mKind.fills ? Height.get() : leastHeight) - 2 * kMargin;
    mView->Left  = kMargin - blank.left;
    mView->Top   = kTitleHeight - blank.top;
    mView->resize(mCard.Width - besideView, mCard.Height - aboveView);
    if (mKind.arrange != nullptr) {
        const Steps step{GetMessenger(), "ViewPage layOut: "};
        step([&] { mKind.arrange(*mView, blank); });
    }
}

std::unique_ptr<Messenger> ViewPage::messengerFor(Messenger& messenger)
{
    const bool isPlain =
        description().speaks && !mKind.actsByItself && mKind.hearsModes && !mKind.drivesCurrent;
    return isPlain ? nullptr
                   : std::make_unique<ViewMessenger>(messenger, mKind, description().speaks,
                                                     mTestCurrent);
}

void ViewPage::SetMessenger(Messenger* messenger)
{
    mOnMode.drop();
    auto own = messenger != nullptr ? messengerFor(*messenger) : nullptr;
    Page::SetMessenger(own ? own.get() : messenger);
    mOwn = std::move(own);
    if (messenger == nullptr) {
        return;
    }
    // Behind the view, which may have a mind of its own.
    mOnMode =
        messenger->ViewSetCommunicationMode.subscribe([this](std::int32_t mode) { follow(mode); });
    follow(messenger->GetCommunicationMode());
}

void ViewPage::follow(std::int32_t mode)
{
    const Steps step{GetMessenger(), "ViewPage ViewSetCommunicationMode: "};
    if (mode != kEditingBarred) {
        mTestCurrent.forgetRequests();
    }
    // While a transfer runs it stays as it is: who works by keyboard would lose his place.
    if (mKind.sendButton != nullptr && mode != kEditingBarred) {
        step([&] {
            mKind.sendButton(*mView)->Enabled =
                mode == kOnline && existing(GetMessenger()).GetUserLevel() >= kMaintenanceLevel;
        });
    }
    if (mode != kEditingBarred && Visible) {
        refresh();
    }
}

void ViewPage::refresh()
{
    if (mKind.refresh != nullptr) {
        const Steps step{GetMessenger(), "ViewPage refresh: "};
        step([&] { mKind.refresh(*mView); });
    }
}

void ViewPage::Localize(Translator& translator)
{
    const std::string language = translator.GetLanguage();
    if (mKind.keepsTexts && language != std::exchange(mLanguage, language) && mDatafile) {
        renewView();
    }
    Page::Localize(translator);
    const Steps step{GetMessenger(), "ViewPage Localize: "};
    step([&] { mCard.Caption = translator.Translate(mCard.Tag); });
}

void ViewPage::SetOfflineData(const IXMLDOMNode& node)
{
    mDatafile = node;
    if (!mKind.actsByItself) {
        Page::SetOfflineData(node);
        return;
    }
    const Steps step{GetMessenger(), "ViewPage SetOfflineData: "};
    step([&] { Page::SetOfflineData(copyOf(node)); });
}

void ViewPage::SetOnlineData(const IXMLDOMNode& node)
{
    if (!isConcernedBy(node)) {
        return;
    }
    mTestCurrent.answered(node);
    // Straight to the view: the walk over a page would report each time that a card takes no data.
    if (auto* const user = dynamic_cast<IQornDataUser*>(mView.get())) {
        const Steps step{GetMessenger(), "ViewPage SetOnlineData: "};
        step([&] { user->SetOnlineData(mKind.actsByItself ? copyOf(node) : node); });
    }
}

void ViewPage::SetErrorData(const IXMLDOMNode& node)
{
    mTestCurrent.answered(node);
    // A wizard takes an error for the answer to its last step and goes one back. One that was left
    // has gone to its beginning; what it could not end is told to the user by the window.
    if (!mKind.drivesCurrent || Visible) {
        Page::SetErrorData(node);
    }
}

bool ViewPage::LeaveSelectedView()
{
    if (!Page::LeaveSelectedView()) {
        return false;
    }
    letGo();
    return true;
}

void ViewPage::letGo()
{
    const Steps step{GetMessenger(), "ViewPage letGo: "};
    step([&] {
        if (mTestCurrent.mayFlow() && existing(GetMessenger()).GetCommunicationMode() != kOffline) {
            GetMessenger()->SendCommunicationRequest(TestCurrentWatch::endRequest(),
                                                     TestCurrentWatch::kName);
        }
    });
}

void ViewPage::SetSelectedView(const std::string& name)
{
    auto* const view = dynamic_cast<IQornView*>(mView.get());
    if (view != nullptr && name == Tag) {
        const Steps step{GetMessenger(), "ViewPage SetSelectedView: "};
        step([&] { view->SetSelectedView(mView->Tag); });
        refresh();
    }
}

void ViewPage::RequestFocus()
{
    if (auto* const view = dynamic_cast<IQornView*>(mView.get())) {
        const Steps step{GetMessenger(), "ViewPage RequestFocus: "};
        step([&] { view->RequestFocus(); });
        // One that leaves it to its host, or whose first part is barred at present.
        if (!mView->HasFocus()) {
            (void)mView->focus();
        }
    }
}

} // namespace quill::shell
