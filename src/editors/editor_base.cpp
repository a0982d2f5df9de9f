#include "editors/editor_base.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "platform/utf8.h"

#include <algorithm>

namespace quill {

using namespace editorColors;

namespace {

constexpr std::int32_t kDefaultWidth  = 2400;
constexpr std::int32_t kDefaultHeight = 315;
constexpr std::int32_t kSignWidth     = 120;
constexpr std::int32_t kGap           = 100;

} // namespace

EditorBase::EditorBase(const platform::Design& design) : Control(design)
{
    start();
}

EditorBase::EditorBase(platform::Widget& container, const platform::Design& design)
    : Control(container, design)
{
    start();
}

void EditorBase::start()
{
    lblModified.ForeColor = kBlue;
    lblError.ForeColor    = kRed;
    lblModified.Width     = kSignWidth;
    lblError.Width        = kSignWidth;
    if (Width == 0) {
        Width = kDefaultWidth;
    }
    if (Height == 0) {
        Height = kDefaultHeight;
    }
}

void EditorBase::layout(std::int32_t unitWidth)
{
    const std::int32_t signs = lblModified.Width + lblError.Width;
    box().Width              = std::max(0, Width - signs - unitWidth - kGap);
    box().Height             = Height.get();
    lblModified.Left         = box().Width + unitWidth + kGap;
    lblError.Left            = lblModified.Left + lblModified.Width;
    lblModified.Height       = Height.get();
    lblError.Height          = Height.get();
}

void EditorBase::setCorrect(bool correct)
{
    lblError.Visible = !correct;
    if (correct) {
        setModified(Modified());
    } else {
        box().ForeColor = kRed;
    }
}

void EditorBase::setModified(bool modified)
{
    lblModified.Visible = modified;
    if (modified) {
        box().ForeColor = kBlue;
    } else {
        keepOriginal();
        box().ForeColor = Correct() ? platform::kWindowText : kRed;
    }
}

void EditorBase::SetModifiedForward(bool modified)
{
    setModified(modified);
    forwardChanges();
}

void EditorBase::paintText()
{
    box().ForeColor = !Correct() ? kRed : Modified() ? kBlue : platform::kWindowText;
}

bool EditorBase::Enabled() const
{
    return box().Enabled;
}

void EditorBase::setEnabled(bool enabled)
{
    if (mSilent && isLocked()) {
        return;
    }
    box().Enabled   = enabled;
    box().BackColor = enabled ? kWhite : kGrey;
    if (enabled) {
        paintText();
    }
}

void EditorBase::SetMessenger(Messenger* messenger)
{
    mMessenger = messenger;
    mOnMode.drop();
    mOnGetChanges.drop();
    messengerChanged(messenger);
    if (messenger == nullptr) {
        return;
    }
    mOnMode = messenger->ViewSetCommunicationMode.subscribe(
        [this](std::int32_t mode) { box().Enabled = mode != kEditingBarred; });
    mOnGetChanges =
        messenger->ViewGetChanges.subscribe([this](std::int16_t scope) { ViewGetChanges(scope); });
}

void EditorBase::Localize(Translator& translator)
{
    const Steps step = steps("Localize");
    step([&] { mLabelText = translator.TranslateTag(Tag); });
}

Messenger& EditorBase::host() const
{
    if (mMessenger == nullptr) {
        throw platform::failure(platform::kObjectNotSet);
    }
    return *mMessenger;
}

void EditorBase::bindTo(const IXMLDOMNode& parameter)
{
    if (!mDataNode) {
        mDataNode = parameter;
    }
}

std::string EditorBase::read(const Steps& step, const IXMLDOMNode& node, const char* attribute)
{
    return step.text([&] { return documents::attributeText(node, attribute); });
}

void EditorBase::reportState(const std::string& state) const
{
    if (mMessenger != nullptr) {
        mMessenger->SetParameterState(
            Container() != nullptr ? Container()->Tag.get() : std::string{}, state);
    }
}

void EditorBase::forwardChanges()
{
    if (mMessenger == nullptr) {
        return;
    }
    const Steps step = steps("forwardChanges");
    if (Modified() && mChangeState == "original") {
        mChangeState = "edited";
        step([&] { reportState(mChangeState); });
    } else if (!Modified() && mChangeState == "edited") {
        mChangeState = "original";
        step([&] { reportState(mChangeState); });
    }
}

void EditorBase::forwardSyncChanges()
{
    if (!mHasSynced) {
        return;
    }
    if (mSyncState == "notRead") {
        mSyncState = "sync";
    } else if (mSyncState == "syncError") {
        mSyncState = "reSync";
    }
    const Steps step = steps("forwardSyncChanges");
    step([&] { reportState(mSyncState); });
}

void EditorBase::takeAsSynced()
{
    mHasSynced = true;
    forwardSyncChanges();
}

void EditorBase::takeAsSyncError()
{
    mHasSynced       = false;
    mSyncState       = "syncError";
    const Steps step = steps("handleError");
    step([&] { reportState(mSyncState); });
}

void EditorBase::takeAsRefused()
{
    setModified(false);
    forwardChanges();
    takeAsSynced();
}

bool EditorBase::isRefusal(const std::string& code)
{
    return code == "hartCmdErrSuspiciousCalibration" ||
           code == "hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed";
}

bool EditorBase::isAskedFor(std::int16_t scope) const
{
    return (scope == kModifiedEditors && Modified()) ||
           (scope == kAllEditors && !mContextTag.empty());
}

void EditorBase::writeValue(const Steps& step, const std::string& value)
{
    if (!mDataNode) {
        return;
    }
    step([&] { mWriter.writeValue(mDataNode, value); });
    step([&] { mWriter.markOutOfStep(mDataNode); });
}

IXMLDOMDocument EditorBase::itemOf(const Steps& step, const std::string& type,
                                   const std::string& value) const
{
    constexpr std::int32_t kPrefixLength = 4; // "ctr_"
    return step.value(IXMLDOMDocument::create(), [&] {
        return Tag.get().empty() || type.empty()
                   ? IXMLDOMDocument::create()
                   : documents::itemDocument(platform::utf8::substring(Tag.get(), kPrefixLength),
                                             documents::kNoUnit, type, value);
    });
}

bool EditorBase::isWritable(const std::string& access)
{
    return values::containsNoCase(access, "write");
}

} // namespace quill
