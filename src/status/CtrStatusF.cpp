#include "status/CtrStatusF.h"

#include "framework/caption_width.h"
#include "framework/documents.h"
#include "framework/modTools.h"
#include "framework/values.h"
#include "status/status_masks.h"

#include <algorithm>

namespace quill {

namespace {

constexpr const char* kStatusSyncName = "deviceStatusNAMUR";

} // namespace

CtrStatusF::CtrStatusF(const platform::Design& design) : StatusTreeView("CtrStatusF", design)
{
    UserControl_Initialize();
}

CtrStatusF::CtrStatusF(platform::Widget& container, const platform::Design& design)
    : StatusTreeView("CtrStatusF", container, design)
{
    UserControl_Initialize();
}

void CtrStatusF::UserControl_Initialize()
{
    constexpr std::uint8_t kUnused    = 255;
    constexpr std::int16_t kMaskBytes = 12;
    constexpr std::int16_t kParts     = 3;

    for (const char* key : {"modified", "checkDisabled", "checkDisabledmodified", "checkEnabled",
                            "checkEnabledmodified", "deviceDiagnosisPassiv", "deviceOk",
                            "deviceInfo", "deviceMaintenanceRequired", "deviceOffSpecification",
                            "deviceUnderTest", "deviceFailure"}) {
        imlStatusIcons.Add(key);
    }
    mobjConfiguration->SetMaskProperties(kUnused, kMaskBytes, kParts);
    setUpGrids();
    paintFrames();
    Resize.raise();
}

// --- The host ---------------------------------------------------------------------------------

void CtrStatusF::SetMessenger(Messenger* messenger)
{
    const Steps step{messenger, "CtrStatusF IQornComponent_SetMessenger: "};
    mOnMode.drop();
    if (messenger != nullptr) {
        step([&] {
            messenger->WriteLog(kLogContract, "CtrStatusF IQornComponent_SetMessenger entered");
        });
        mOnMode = messenger->ViewSetCommunicationMode.subscribe(
            [this](std::int32_t mode) { mMessenger_ViewSetCommunicationMode(mode); });
    }
    if (mobjConfiguration) {
        mobjConfiguration->SetMessenger(messenger);
    }
    StatusTreeView::SetMessenger(messenger);
    if (messenger == nullptr) {
        return;
    }
    step([&] { host().SetFixedStatusClassification(kClassNAMUR); });
    LoadStatusTree(step.value(IXMLDOMDocument{}, [&] { return host().GetDeviceTypeInfo(); }));
    log(step, kLogContract, "CtrStatusF IQornComponent_SetMessenger leaving");
}

void CtrStatusF::PrepareToRelease()
{
    mobjStatusClass.reset();
    mobjConfiguration.reset();
    StatusTreeView::PrepareToRelease();
}

bool CtrStatusF::LeaveSelectedView()
{
    if (IsConfiguring()) {
        LeaveConfiguration();
    }
    return true;
}

void CtrStatusF::Sleep(bool isIdle)
{
    mblnSleeping = isIdle;
}

void CtrStatusF::mMessenger_ViewSetCommunicationMode(std::int32_t mode)
{
    if (mblnSleeping) {
        return;
    }
    const Steps step = steps("mMessenger_ViewSetCommunicationMode");
    log(step, kLogDetail, "CtrStatusF ViewSetCommunicationMode entered ");
    if (mode == kOffline) {
        log(step, kLogDetail, "Offline");
        LeaveConfiguration();
        const std::string image = step.text([&] { return statusClass().ImageUnknown(); });
        showIconOfAll(step, image);
        std::fill(mastrImages.begin(), mastrImages.end(), std::string{});
        setCombinedStatus(image);
        mblnAccepts = true;
        showCaptions();
        cmdDownload.Enabled = true;
    } else if (mode == kOnline) {
        log(step, kLogDetail, "Online");
        mblnAccepts = false;
        showCaptions();
        cmdDownload.Enabled = true;
        if (!IsConfiguring()) {
            const std::string image = step.text([&] { return statusClass().ImageUnknown(); });
            showIconOfAll(step, image);
            std::fill(mastrImages.begin(), mastrImages.end(), image);
        }
    } else if (mode == kCommunication) {
        log(step, kLogDetail, "Communication");
        cmdDownload.Enabled = false;
    }
    log(step, kLogDetail, "CtrStatusF ViewSetCommunicationMode leaving ");
}

bool CtrStatusF::isOffline(const Steps& step)
{
    return step.value(false, [&] { return host().GetCommunicationMode() == kOffline; });
}

// --- Form -------------------------------------------------------------------------------------

void CtrStatusF::Localize(Translator& translator)
{
    StatusTreeView::Localize(translator);
    const Steps step = steps("Localize");
    const auto  take = [&](std::string& text, const char* key) {
        step([&] {
            const std::string answer = translator.Translate(key);
            if (modTools::IsNotErrorText(answer)) {
                text = answer;
            }
        });
    };
    take(mstrTextAccept, "accept");
    take(mstrTextDownload, "download");
    take(mstrTextConfiguration, "statusConfiguration");
    take(mstrTextCancel, "cancel");
    showCaptions();
    arrange();
}

void CtrStatusF::showCaptions()
{
    cmdDownload.Caption      = mblnAccepts ? mstrTextAccept : mstrTextDownload;
    cmdConfiguration.Caption = IsConfiguring() ? mstrTextCancel : mstrTextConfiguration;
}

/// The buttons stand below the tree, in the lower right corner: side by side, or one above the
/// other where the view is too narrow for their texts.
void CtrStatusF::arrange()
{
    constexpr std::int32_t kHeight = 420;
    constexpr std::int32_t kGap    = 150;
    constexpr std::int32_t kLeast  = 1800;

    StatusTreeView::arrange();
    // Wide enough for either caption, so that a change of the mode moves nothing.
    cmdDownload.Width =
        std::max(buttonWidth(mstrTextDownload, kLeast), buttonWidth(mstrTextAccept, kLeast));
    cmdConfiguration.Width =
        std::max(buttonWidth(mstrTextConfiguration, kLeast), buttonWidth(mstrTextCancel, kLeast));

    const std::int32_t right = Width - kGap;
    const bool   fit = cmdDownload.Width + cmdConfiguration.Width + kGap <= right - scgStatus.Left;
    std::int32_t top = Height - kGap - kHeight;
    for (platform::CommandButton* button : {&cmdConfiguration, &cmdDownload}) {
        button->Height = kHeight;
        button->Left   = std::max(0, right - button->Width);
        button->Top    = std::max(0, top);
        top -= fit ? 0 : kHeight + kGap;
    }
    if (fit) {
        cmdDownload.Left = cmdConfiguration.Left - kGap - cmdDownload.Width;
    }
    scgStatus.Height =
        std::max(0, std::min(cmdDownload.Top, cmdConfiguration.Top) - kGap - scgStatus.Top);
}

// --- The tree ---------------------------------------------------------------------------------

void CtrStatusF::LoadStatusTree(const IXMLDOMDocument& document)
{
    const Steps step{[](int number, const std::string& description) {
        modTools::WriteDebugError("CtrStatusF", "LoadStatusTree", number, description);
    }};
    const auto  tree = treeIn(step, document);
    mblnAccepts      = isOffline(step);
    const auto icon =
        mblnAccepts ? std::string{} : step.text([&] { return statusClass().ImageNotRead(); });
    loadRows(step, tree, {icon, {}});
}

void CtrStatusF::readClasses(const Steps& step, const IXMLDOMNode& status)
{
    step([&] { (void)statusClass().ReadClass(status); });
}

void CtrStatusF::readMask(const Steps& step, int row, const IXMLDOMNode& status)
{
    step([&] { configuration().AddBit(values::toInt16(row), status); });
}

// --- Data -------------------------------------------------------------------------------------

void CtrStatusF::SetImportData(const IXMLDOMNode& node)
{
    if (!mblnSleeping) {
        SetOfflineData(node);
        mblnImported = true;
    }
}

void CtrStatusF::SetOfflineData(const IXMLDOMNode& node)
{
    if (mblnSleeping) {
        return;
    }
    const Steps step = steps("IQornDataUser_SetOfflineData");
    log(step, kLogDecision, "CtrStatusF entering IQornDataUser_SetOfflineData");
    step([&] {
        const auto masks = documents::findParametersByPrefix(node, statusMasks::kNamePrefix);
        if (mobjConfiguration) {
            mobjConfiguration->SetOfflineParameters(masks);
        }
    });
    mblnMasksUnread = true;
    log(step, kLogDecision, "CtrStatusF leaving IQornDataUser_SetOfflineData");
}

void CtrStatusF::SetErrorData(const IXMLDOMNode& node)
{
    if (!mblnSleeping) {
        StatusTreeView::SetErrorData(node);
    }
}

void CtrStatusF::SetOnlineData(const IXMLDOMNode& node)
{
    if (mblnSleeping) {
        return;
    }
    const Steps       step = passSteps();
    const std::string name = step.text([&] { return documents::responseAttribute(node, "name"); });
    if (name == "deviceStatus") {
        showStatus(step, node);
    } else if (name == kMasksRequest) {
        SetOnlineMask(node);
    }
}

void CtrStatusF::showStatus(const Steps& step, const IXMLDOMNode& response)
{
    Pass        pass = beginPass(step);
    std::string lastClass;
    step([&] {
        // Every name begins with nothing: this is the first item of all.
        if (const auto first = documents::findItemByPrefix(response, "")) {
            lastClass = statusClass().ReadClass(first);
        }
    });
    for (int index = 0; index <= miLastRow; ++index) {
        showRow(pass, response, index, lastClass);
    }
    mblnIconsGone = mblnIconsGone && IsConfiguring();
    endPass(pass);
    modView::forwardSyncChanges(kStatusSyncName, true, mstrSyncState, GetMessenger());
    if (mblnMasksUnread &&
        step.text([&] { return documents::responseAttribute(response, "isFinal"); }) == "1") {
        step([&] { host().ExecuteNamedRequest(kMasksRequest, "", 0, 0); });
    }
}

void CtrStatusF::showRow(Pass& pass, const IXMLDOMNode& response, int index, std::string& lastClass)
{
    const Steps&      step = pass.step;
    const std::string key  = step.text([&] { return keyAt(index); });
    const auto        item =
        step.value(IXMLDOMNode{}, [&] { return documents::findItemByPrefix(response, key); });
    if (!item) {
        passOver(pass, index);
        restoreIcon(step, index);
        return;
    }
    const auto value    = step.text([&] { return documents::itemValue(item, "integerVal"); });
    const auto oldImage = step.text([&] { return imageAt(index); });
    const auto ownClass = step.text([&] { return statusClass().GetClass(key); });
    const auto disabled = step.text([&] { return statusClass().ImageDisabled(); });

    std::string image = oldImage;
    auto        state = ConditionState::notActive;
    if (!step.value(false, [&] { return configuration().IsEnabled(key); })) {
        image = disabled;
        state = ConditionState::switchedOff;
    } else if (value != "0") {
        if (ownClass.empty()) {
            step([&] { lastClass = statusClass().ReadClass(item); });
            step([&] { statusClass().SetClass(key, lastClass); });
        } else {
            lastClass = ownClass;
        }
        image = lastClass;
        state = ConditionState::active;
    } else if (ownClass.empty() || oldImage.empty() || oldImage == disabled ||
               lastClass == ownClass || ownClass == "deviceInfo") {
        image = step.text([&] { return statusClass().ImageOk(); });
    }
    step([&] { imageAt(index) = image; });
    if (isIconInUse(index)) {
        mDescriptions.keepState(index + 1, state);
    } else {
        if (!image.empty() && (image != oldImage || mblnIconsGone)) {
            step([&] { setIcon(index, image); });
        }
        mDescriptions.show(index + 1, image, state);
    }
    mergeIntoBranch(pass, index);
}

void CtrStatusF::restoreIcon(const Steps& step, int index)
{
    if (!mblnIconsGone || isIconInUse(index)) {
        return;
    }
    const std::string image = step.text([&] { return imageAt(index); });
    if (!image.empty()) {
        step([&] { setIcon(index, image); });
        mDescriptions.showImage(index + 1, image);
    }
}

} // namespace quill
