#include "editors/editor_core.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "platform/utf8.h"

namespace quill {

namespace {

constexpr std::int32_t kDefaultWidth  = 2400;
constexpr std::int32_t kDefaultHeight = 315;

/// Whether an error code is one by which the device refuses a value.
bool isRefusal(const std::string& code)
{
    return code == "hartCmdErrSuspiciousCalibration" ||
           code == "hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed";
}

} // namespace

EditorCore::EditorCore(const platform::Design& design) : Control(design)
{
    start();
}

EditorCore::EditorCore(platform::Widget& container, const platform::Design& design)
    : Control(container, design)
{
    start();
}

void EditorCore::start()
{
    if (Width == 0) {
        Width = kDefaultWidth;
    }
    if (Height == 0) {
        Height = kDefaultHeight;
    }
}

void EditorCore::SetModifiedForward(bool modified)
{
    setModified(modified);
    forwardChanges();
}

bool EditorCore::Enabled() const
{
    return box().Enabled;
}

void EditorCore::setEnabled(bool enabled)
{
    if (mSilent && isLocked()) {
        return;
    }
    for (std::size_t i = 0; i < boxCount(); ++i) {
        boxAt(i).Enabled   = enabled;
        boxAt(i).BackColor = enabled ? editorColors::kWhite : editorColors::kGrey;
    }
    if (enabled) {
        paintText();
    }
}

void EditorCore::SetMessenger(Messenger* messenger)
{
    mMessenger = messenger;
    mOnMode.drop();
    mOnGetChanges.drop();
    messengerChanged(messenger);
    if (messenger == nullptr) {
        return;
    }
    mOnMode = messenger->ViewSetCommunicationMode.subscribe(
        [this](std::int32_t mode) { ViewSetCommunicationMode(mode); });
    mOnGetChanges =
        messenger->ViewGetChanges.subscribe([this](std::int16_t scope) { ViewGetChanges(scope); });
}

void EditorCore::ViewSetCommunicationMode(std::int32_t mode)
{
    for (std::size_t i = 0; i < boxCount(); ++i) {
        boxAt(i).Enabled = mode != kEditingBarred;
    }
}

void EditorCore::Localize(Translator& translator)
{
    const Steps step = steps("Localize");
    step([&] { mLabelText = translator.TranslateTag(Tag); });
}

Messenger& EditorCore::host() const
{
    if (mMessenger == nullptr) {
        throw platform::failure(platform::kObjectNotSet);
    }
    return *mMessenger;
}

Translator* EditorCore::hostTexts(const Steps& step) const
{
    return step.value<Translator*>(nullptr, [&] { return host().GetTranslator(); });
}

void EditorCore::bindTo(const IXMLDOMNode& parameter)
{
    if (!mDataNode) {
        mDataNode = parameter;
    }
}

std::string EditorCore::read(const Steps& step, const IXMLDOMNode& node, const char* attribute)
{
    return step.text([&] { return documents::attributeText(node, attribute); });
}

void EditorCore::reportState(const std::string& state) const
{
    if (mMessenger != nullptr) {
        mMessenger->SetParameterState(
            Container() != nullptr ? Container()->Tag.get() : std::string{}, state);
    }
}

void EditorCore::forwardChanges()
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

void EditorCore::forwardSyncChanges()
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

void EditorCore::takeAsSynced()
{
    mHasSynced = true;
    forwardSyncChanges();
}

void EditorCore::takeAsSyncError()
{
    mHasSynced       = false;
    mSyncState       = "syncError";
    const Steps step = steps("handleError");
    step([&] { reportState(mSyncState); });
}

void EditorCore::handleError(const std::string& code)
{
    if (code == "communicationError") {
        takeAsSyncError();
    }
}

void EditorCore::handleRefusableError(const std::string& code)
{
    if (isRefusal(code)) {
        setModified(false);
        forwardChanges();
        takeAsSynced();
    } else {
        EditorCore::handleError(code);
    }
}

bool EditorCore::isAskedFor(std::int16_t scope) const
{
    return (scope == kModifiedEditors && Modified()) ||
           (scope == kAllEditors && !mContextTag.empty());
}

void EditorCore::writeValue(const Steps& step, const std::string& value)
{
    if (!mDataNode) {
        return;
    }
    step([&] { mWriter.writeValue(mDataNode, value); });
    step([&] { mWriter.markOutOfStep(mDataNode); });
}

IXMLDOMDocument EditorCore::itemOf(const Steps& step, const std::string& type,
                                   const std::string& value, const std::string& unit) const
{
    constexpr std::int32_t kPrefixLength = 4; // "ctr_"
    return step.value(IXMLDOMDocument::create(), [&] {
        return Tag.get().empty() || type.empty()
                   ? IXMLDOMDocument::create()
                   : documents::itemDocument(platform::utf8::substring(Tag.get(), kPrefixLength),
                                             unit, type, value);
    });
}

void EditorCore::setWritable(bool writable)
{
    for (std::size_t i = 0; i < boxCount(); ++i) {
        boxAt(i).BackColor = writable ? editorColors::kWhite : editorColors::kGrey;
    }
    setLocked(!writable);
    mSilent = mSilent || !writable;
}

void EditorCore::takeAccess(const std::string& access)
{
    mAccessText = access;
    setWritable(values::containsNoCase(access, "write"));
}

void EditorCore::takeAccessIfTold(const Steps& step, const IXMLDOMNode& parameter)
{
    step([&] {
        if (const IXMLDOMNode access = platform::attributeNode(parameter, "access")) {
            takeAccess(access.get_text());
        }
    });
}

} // namespace quill
