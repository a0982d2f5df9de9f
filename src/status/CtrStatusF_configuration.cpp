#include "framework/documents.h"
#include "framework/values.h"
#include "platform/toolkit.h"
#include "status/CtrStatusF.h"
#include "status/status_masks.h"

namespace quill {

namespace {

constexpr const char* kCheckEnabled  = "checkEnabled";
constexpr const char* kCheckDisabled = "checkDisabled";
constexpr const char* kModified      = "modified";

bool isModified(const std::string& key)
{
    return values::contains(key, kModified);
}

/// The check mark that a click makes of another one; empty for what is no check mark. A second
/// click takes a change back.
std::string toggled(const std::string& key)
{
    std::string next;
    if (values::contains(key, kCheckEnabled)) {
        next = kCheckDisabled;
    } else if (values::contains(key, kCheckDisabled)) {
        next = kCheckEnabled;
    } else {
        return {};
    }
    return isModified(key) ? next : next + kModified;
}

} // namespace

std::string CtrStatusF::checkMarkOf(const std::string& key)
{
    return configuration().IsEnabled(key) ? kCheckEnabled : kCheckDisabled;
}

bool CtrStatusF::isIconInUse(int index)
{
    return IsConfiguring() &&
           silentSteps().value(false, [&] { return isCheckMark(iconAt(index)); });
}

void CtrStatusF::setCheckMark(int index, const std::string& key)
{
    setIcon(index, key);
    mDescriptions.showImage(index + 1, key);
}

void CtrStatusF::showCheckMarks(const Steps& step, const char* suffix)
{
    for (int index = 0; index <= miLastRow; ++index) {
        step([&] {
            if (!hasChildren(index)) {
                setCheckMark(index, checkMarkOf(keyAt(index)) + suffix);
            }
        });
    }
}

void CtrStatusF::cmdConfiguration_Click()
{
    const Steps step = steps("cmdConfiguration_Click");
    if (IsConfiguring()) {
        for (int index = 0; index <= miLastRow; ++index) {
            step([&] {
                if (isModified(iconAt(index))) {
                    setCheckMark(index, checkMarkOf(keyAt(index)));
                }
            });
        }
        LeaveConfiguration();
        return;
    }
    showCheckMarks(step, mblnImported ? kModified : "");
    step([&] { host().NotifyDialog(kConfigurationBegins); });
    cmdConfiguration.Caption = mstrTextCancel;
    cmdDownload.Visible      = true;
    step([&] { scgStatus.SetFocus(); });
}

void CtrStatusF::cmdConfiguration_LostFocus()
{
    if (!IsConfiguring()) {
        modView::TransferFocusOnTab(*this, modView::FocusPosition::last);
        return;
    }
    const Steps step = steps("cmdConfiguration_LostFocus");
    if (step.value(false,
                   [] { return platform::Toolkit::current().keyDown(platform::kKeyShift); })) {
        step([&] { cmdDownload.SetFocus(); });
    } else {
        step([&] { scgStatus.SetFocus(); });
    }
}

void CtrStatusF::scgStatus_Click(int row, int col)
{
    if (row < 1 || col < 1 || row > scgStatus.RowCount() || col > scgStatus.ColCount()) {
        return;
    }
    steps("scgStatus_Click")([&] {
        const std::string next = toggled(scgStatus.CellIcon(row, col));
        if (!next.empty()) {
            setCheckMark(row - 1, next);
        }
    });
}

void CtrStatusF::cmdDownload_Click()
{
    const Steps step = steps("cmdDownload_Click");
    log(step, kLogContract, "CtrStatusF cmdDownload_Click entered");
    cmdDownload.Enabled = false;
    const bool offline  = isOffline(step);
    for (int index = 0; index <= miLastRow; ++index) {
        if (isModified(step.text([&] { return iconAt(index); }))) {
            takeCheckMark(step, index, offline);
        }
    }
    sendMasks(step, offline);
    if (offline) {
        LeaveConfiguration();
    }
    log(step, kLogContract, "CtrStatusF cmdDownload_Click leaving");
}

void CtrStatusF::takeCheckMark(const Steps& step, int index, bool offline)
{
    const std::string key = step.text([&] { return keyAt(index); });
    if (values::contains(iconAt(index), kCheckEnabled)) {
        step([&] { configuration().SetEnabled(key, true); });
        step([&] { scgStatus.setCellIcon(index + 1, 1, {}); });
        mDescriptions.showImage(index + 1, {});
        step([&] { imageAt(index).clear(); });
        return;
    }
    step([&] { configuration().SetEnabled(key, false); });
    step([&] { imageAt(index) = statusClass().ImageDisabled(); });
    if (offline) {
        mDescriptions.keepState(index + 1, ConditionState::switchedOff);
    } else {
        step([&] { showIcon(step, index, imageAt(index), ConditionState::switchedOff); });
    }
}

void CtrStatusF::sendMasks(const Steps& step, bool offline)
{
    IXMLDOMNodeList items;
    if (!step([&] { items = configuration().GetXmlItem(true).selectNodes("//item"); })) {
        return;
    }
    std::string request = std::string("<communicationRequest name=\"") + kMasksRequest +
                          "\" access=\"" + (offline ? "writeOffline" : "write") + "\">";
    for (const IXMLDOMNode& item : items) {
        request += step.text([&] { return item.get_xml(); });
    }
    request += "</communicationRequest>";
    step([&] { host().SendCommunicationRequest(request, kMasksRequest); });
}

void CtrStatusF::SetOnlineMask(const IXMLDOMNode& response)
{
    const Steps step = steps("SetOnlineMask");
    step([&] {
        const auto masks = documents::findItemsByPrefix(response, statusMasks::kNamePrefix);
        if (mobjConfiguration) {
            mobjConfiguration->SetOnlineParameters(masks);
        }
    });
    if (step.text([&] { return documents::responseAttribute(response, "isFinal"); }) == "1") {
        if (IsConfiguring()) {
            if (mblnMasksUnread) {
                showCheckMarks(step, "");
            } else {
                LeaveConfiguration(); // the answer to a download
            }
        }
        mblnMasksUnread = false;
        mblnImported    = false;
    }
    log(step, kLogDecision, "SetOnlineMask leaving");
}

void CtrStatusF::LeaveConfiguration()
{
    const Steps step = steps("LeaveConfiguration");
    log(step, kLogStatusMask, "CtrStatusF LeaveConfiguration entered");
    if (IsConfiguring()) {
        for (int index = 0; index <= miLastRow; ++index) {
            step([&] { scgStatus.setCellIcon(index + 1, 1, {}); });
            mDescriptions.showImage(index + 1, {});
        }
        mblnIconsGone            = true;
        cmdConfiguration.Caption = mstrTextConfiguration;
        cmdDownload.Visible      = false;
        step([&] { host().NotifyDialog(kConfigurationEnds); });
        if (step.value(0, [&] { return host().GetCommunicationMode(); }) != kCommunication) {
            cmdDownload.Enabled = true;
        }
    }
    log(step, kLogStatusMask, "CtrStatusF LeaveConfiguration leaving");
}

} // namespace quill
