// What the shell asks the device, and what it makes of the answers.

#include "framework/documents.h"
#include "platform/toolkit.h"
#include "records/event_log_times.h"
#include "shell/device_messages.h"
#include "shell/shell_messenger.h"

#include <QTimer>

#include <algorithm>
#include <array>
#include <string_view>

namespace quill::shell {

namespace {

constexpr const char* kMasksRequest = "deviceStatusMasks";
constexpr const char* kAddressGroup = "hartAddress";
constexpr const char* kClearRequest = "deviceStatusClearConfigurationChanged";
/// Requests that are answered beside the transfers.
constexpr std::array<std::string_view, 2> kStatusRequests = {"deviceStatus", kMasksRequest};

IXMLDOMDocument emptyRequest(const std::string& name, const std::string& access)
{
    const IXMLDOMDocument document = documents::openEmptyRequest();
    const IXMLDOMNode     request  = document.createElement("communicationRequest");
    documents::writeAttribute(request, "name", name);
    documents::writeAttribute(request, "access", access);
    document.get_documentElement().appendChild(request);
    return document;
}

/// The request in its document.
IXMLDOMNode requestIn(const IXMLDOMDocument& document)
{
    return document.selectSingleNode("//*[local-name()='communicationRequest']");
}

} // namespace

// --- Requests ---------------------------------------------------------------------------------

bool ShellMessenger::maySend(const std::string& access)
{
    if (!mOnline) {
        ShowMessage("error", "shell_offlineNoRequest");
        return false;
    }
    if (access != "read" && mUserLevel < kMaintenanceLevel) {
        ShowMessage("error", "shell_userLevelTooLow");
        return false;
    }
    return true;
}

bool ShellMessenger::sendToDevice(const std::string& requestXml, const IXMLDOMNode& request)
{
    if (!maySend(documents::attributeText(request, "access"))) {
        return false;
    }
    mKept.push_back(optionalAttribute(request, "datasetSave") != "0");
    mLink.send(requestXml);
    return true;
}

void ShellMessenger::SendCommunicationRequest(const std::string& requestXml, const std::string&)
{
    const IXMLDOMDocument document = documents::openText(requestXml);
    const IXMLDOMNode     request  = requestIn(document);
    if (mOnline || documents::attributeText(request, "access") != "writeOffline") {
        mStore.keepSent(document);
        sendToDevice(requestXml, request);
        return;
    }
    mStore.accept(document);
    tellMasks(document);
    mAccepted = true;
    tellAccepted();
}

bool ShellMessenger::ExecuteCommunicationRequest(const std::string& requestXml, const std::string&,
                                                 std::int16_t, std::int16_t)
{
    return sendToDevice(requestXml, requestIn(documents::openText(requestXml)));
}

bool ShellMessenger::ExecuteNamedRequest(const std::string& requestName, const std::string&,
                                         std::int16_t, std::int16_t)
{
    return readGroup(requestName);
}

bool ShellMessenger::readGroup(const std::string& group)
{
    if (std::ranges::find(kStatusRequests, std::string_view{group}) == kStatusRequests.end()) {
        const IXMLDOMDocument request = emptyRequest(group, "read");
        return sendToDevice(request.get_xml(), requestIn(request));
    }
    if (!maySend("read")) {
        return false;
    }
    readBeside(group);
    return true;
}

bool ShellMessenger::readAll()
{
    bool sent = false;
    for (const IXMLDOMNode& name :
         mStore.document().selectNodes("./data:dtm/data:requestGroups/data:requestGroup/@name")) {
        sent = readGroup(name.get_text());
        if (!sent) {
            break;
        }
    }
    return sent;
}

bool ShellMessenger::clearConfigurationChanged()
{
    const IXMLDOMDocument request = emptyRequest(kClearRequest, "act");
    return sendToDevice(request.get_xml(), requestIn(request));
}

void ShellMessenger::readBeside(const std::string& group)
{
    mBeside.setDelay(mLink.delay());
    mBeside.send(emptyRequest(group, "read").get_xml());
}

void ShellMessenger::takeNewAddress(std::uint8_t address)
{
    emit addressChanged(address);
    // Not from within the control that has set it.
    QTimer::singleShot(0, this, [this] {
        if (mOnline) {
            readBeside(kAddressGroup);
        }
    });
}

void ShellMessenger::NotifyDialog(std::int16_t phase)
{
    emit dialogNotified(phase);
    if (phase == kConfigurationEnds) {
        // Not from within the response that may have ended it. What the device did not take is
        // dropped with the configuration: view and datafile show what it has.
        QTimer::singleShot(0, this, [this] {
            if (mOnline && mStore.hasSent()) {
                readGroup(kMasksRequest);
            }
        });
    }
}

void ShellMessenger::forgetRequests()
{
    mKept.clear();
    mLink.cancel();
    mBeside.cancel();
}

// --- Mode and answers -------------------------------------------------------------------------

std::int32_t ShellMessenger::GetCommunicationMode()
{
    if (mLink.isBusy()) {
        return kEditingBarred;
    }
    return mOnline ? kOnline : kOffline;
}

void ShellMessenger::raiseMode()
{
    const std::int32_t mode = GetCommunicationMode();
    ViewSetCommunicationMode.raise(mode);
    emit communicationModeChanged(mode);
}

void ShellMessenger::takeResponse(const QString& xml)
{
    const IXMLDOMDocument response = documents::openText(xml.toStdString());
    const bool            isKept   = mKept.empty() || mKept.front();
    // Answers come in the order of their requests.
    if (!mKept.empty() && documents::responseAttribute(response, "isFinal") == "1") {
        mKept.pop_front();
    }
    if (isKept) {
        mStore.beginResponse(response, ReadBy::user);
    }
    handOut(response);
}

void ShellMessenger::takeResponseBeside(const QString& xml)
{
    const IXMLDOMDocument response = documents::openText(xml.toStdString());
    mStore.beginResponse(response, ReadBy::program);
    handOut(response);
}

void ShellMessenger::handOut(const IXMLDOMDocument& response)
{
    const std::string status = documents::responseAttribute(response, "responseStatus");
    if (status == "ok" || status == "local") {
        emit onlineDataArrived(response);
        tellMasks(response);
        tellOperationTime(response);
    } else {
        emit errorDataArrived(response);
    }
    mStore.endResponse();
}

void ShellMessenger::tellMasks(const IXMLDOMNode& message)
{
    for (const IXMLDOMNode& item :
         message.selectNodes("//*[local-name()='item' and starts-with(@name,'statusMask')]")) {
        ViewReceiveValue.raise(documents::attributeText(item, "name"), item.get_text());
    }
}

void ShellMessenger::tellOperationTime(const IXMLDOMNode& response)
{
    const IXMLDOMNode item = documents::findItem(response, "totalOperationTime");
    if (!item || item.get_text().empty()) {
        return;
    }
    ViewReceiveValue.raise("ctr_totalOperationTime", item.get_text());
    ViewReceiveValue.raise("date_counters", eventLog::dateText(platform::Toolkit::current().now()));
}

void ShellMessenger::SetDownloadPhase(std::int16_t phase)
{
    mDownloading = phase == kBeforeDownload;
    emit downloadPhaseChanged(phase);
    tellAccepted();
}

void ShellMessenger::tellAccepted()
{
    // One change of the datafile however many request groups were accepted.
    if (!mDownloading && mAccepted) {
        mAccepted = false;
        emit datafileChanged();
    }
}

} // namespace quill::shell
