#include "shell/shell_messenger.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "platform/toolkit.h"
#include "records/event_log_times.h"
#include "shell/device_build.h"
#include "shell/install_folder.h"

#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <array>
#include <string_view>

namespace quill::shell {

namespace {

constexpr const char* kMasksRequest = "deviceStatusMasks";
constexpr const char* kAddressGroup = "hartAddress";
constexpr const char* kAddress      = "pollingAddress";
constexpr const char* kClearRequest = "deviceStatusClearConfigurationChanged";
/// Requests that are answered beside the transfers.
constexpr std::array<std::string_view, 2> kStatusRequests = {"deviceStatus", kMasksRequest};

constexpr std::int16_t kDeviceLevel = 1; ///< of a combined status

QString qString(const std::string& text)
{
    return QString::fromStdString(text);
}

std::string folder(QStandardPaths::StandardLocation location)
{
    return (QStandardPaths::writableLocation(location) + '/').toStdString();
}

/// What happens while it lives is the program's doing and no edit.
class Loading {
public:
    explicit Loading(DatafileStore& store) : mStore(store) { mStore.beginLoading(); }
    ~Loading() { mStore.endLoading(); }
    Loading(const Loading&)            = delete;
    Loading& operator=(const Loading&) = delete;

private:
    DatafileStore& mStore;
};

std::string emptyRequest(const std::string& name, const std::string& access)
{
    const IXMLDOMDocument document = documents::openEmptyRequest();
    const IXMLDOMNode     request  = document.createElement("communicationRequest");
    documents::writeAttribute(request, "name", name);
    documents::writeAttribute(request, "access", access);
    document.get_documentElement().appendChild(request);
    return document.get_xml();
}

} // namespace

ShellMessenger::ShellMessenger(QObject* parent)
    : QObject(parent),
      mUserAddresses(mAddresses,
                     {.isOnline = [this] { return mOnline; },
                      .storedAddress =
                          [this] {
                              const auto parameter =
                                  documents::findParameter(mStore.document(), kAddress);
                              return parameter
                                         ? std::optional{values::toInt16(values::parseDocument(
                                               documents::attributeText(parameter, "value")))}
                                         : std::nullopt;
                          },
                      .tell    = [this](const std::string& key) { ShowMessage("error", key); },
                      .written = [this](std::uint8_t address) { takeNewAddress(address); }})
{
    connect(&mLink, &DeviceLink::responseArrived, this, &ShellMessenger::takeResponse);
    connect(&mBeside, &DeviceLink::responseArrived, this, &ShellMessenger::takeResponseBeside);
    connect(&mLink, &DeviceLink::busyChanged, this, &ShellMessenger::raiseMode);
}

ShellMessenger::~ShellMessenger() = default;

void ShellMessenger::setFolder(const std::string& folder)
{
    mFolder      = folder;
    mIsInstalled = false;
    mHostDocuments.setFolder(folder);
}

void ShellMessenger::openSample(const Sample& sample)
{
    mStore.loadBytes(sampleFile(sample.datafile));
    connectDevice();
}

void ShellMessenger::openDatafile(const std::string& path)
{
    mStore.load(path);
    connectDevice();
}

void ShellMessenger::connectDevice()
{
    forgetRequests();
    mChangeLabels = {};
    mFixedClassification.reset();
    const IXMLDOMNode info = mStore.document().selectSingleNode("//typeInfo:internalInfo/@name");
    const std::string type = info ? info.get_text() : std::string{};
    if (type.empty() || type != mDeviceType) {
        mDevice     = buildDevice(mStore.document());
        mDeviceType = type;
    }
    const Sample* const sample = findSample(type);
    mTypeInfo =
        sample != nullptr ? documents::openText(sampleFile(sample->typeInfo)) : IXMLDOMDocument{};
    // What the views of the former device have told means nothing for this one.
    SetCombinedStatus(kDeviceLevel, {});
    SetConfigurationChanged({});
    emit datafileReplaced();
}

void ShellMessenger::setOnline(bool online)
{
    if (online == mOnline) {
        return;
    }
    mOnline = online;
    // What is cancelled tells the mode as well.
    const bool isTold = mLink.isBusy();
    forgetRequests();
    if (!isTold) {
        raiseMode();
    }
}

void ShellMessenger::setUserLevel(std::int16_t level)
{
    mUserLevel = level;
    // Views look at the level when they hear of the mode.
    raiseMode();
    emit userLevelChanged(level);
}

bool ShellMessenger::setLanguage(const std::string& language)
{
    if (!mTexts.setLanguage(language)) {
        return false;
    }
    mChangeLabels = {};
    const Loading loading{mStore};
    emit          languageChanged();
    return true;
}

void ShellMessenger::deliverDatafile(IQornDataUser& view)
{
    const Loading loading{mStore};
    view.SetOfflineData(mStore.document());
}

void ShellMessenger::localize(ILocalizable& view)
{
    const Loading loading{mStore};
    view.Localize(mTexts);
}

void ShellMessenger::informUnitChanges()
{
    {
        const Loading loading{mStore};
        ViewSetUnits.raise();
    }
    emit unitsChanged();
}

bool ShellMessenger::readGroup(const std::string& group)
{
    if (std::ranges::find(kStatusRequests, std::string_view{group}) == kStatusRequests.end()) {
        return sendToDevice(emptyRequest(group, "read"), "read");
    }
    if (!maySend("read")) {
        return false;
    }
    readBeside(group);
    return true;
}

void ShellMessenger::readBeside(const std::string& group)
{
    mBeside.setDelay(mLink.delay());
    mBeside.send(emptyRequest(group, "read"));
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

std::string ShellMessenger::GetHostDocument(const std::string& name)
{
    return mHostDocuments.get(name);
}

bool ShellMessenger::SetHostDocument(const std::string& name, const std::string& xml)
{
    try {
        mHostDocuments.set(name, xml);
    } catch (const platform::Failure& failure) {
        ShowMessage("error", failure.description());
        return false;
    }
    emit hostDocumentKept(qString(name));
    return true;
}

bool ShellMessenger::clearConfigurationChanged()
{
    return sendToDevice(emptyRequest(kClearRequest, "act"), "act");
}

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

bool ShellMessenger::sendToDevice(const std::string& requestXml, const std::string& access)
{
    if (!maySend(access)) {
        return false;
    }
    mKept.push_back(!documents::openText(requestXml)
                         .selectSingleNode("//*[local-name()='communicationRequest' and "
                                           "@datasetSave='0']"));
    mLink.send(requestXml);
    return true;
}

void ShellMessenger::SendCommunicationRequest(const std::string& requestXml, const std::string&)
{
    const IXMLDOMDocument document = documents::openText(requestXml);
    const std::string     access =
        document.selectSingleNode("//*[local-name()='communicationRequest']/@access").get_text();
    if (mOnline || access != "writeOffline") {
        mStore.keepSent(document);
        sendToDevice(requestXml, access);
        return;
    }
    mStore.accept(document);
    tellMasks(document);
    mAccepted = true;
    tellAccepted();
}

std::string ShellMessenger::GetDatasetXml()
{
    return mStore.isOpen() ? mStore.document().get_xml() : std::string{};
}

bool ShellMessenger::ExecuteCommunicationRequest(const std::string& requestXml, const std::string&,
                                                 std::int16_t, std::int16_t)
{
    const IXMLDOMDocument document = documents::openText(requestXml);
    return sendToDevice(
        requestXml,
        document.selectSingleNode("//*[local-name()='communicationRequest']/@access").get_text());
}

bool ShellMessenger::ExecuteNamedRequest(const std::string& requestName, const std::string&,
                                         std::int16_t, std::int16_t)
{
    return readGroup(requestName);
}

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

void ShellMessenger::forgetRequests()
{
    mKept.clear();
    mLink.cancel();
    mBeside.cancel();
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

void ShellMessenger::SetParameterState(const std::string& parameterName, const std::string& state)
{
    mStore.setParameterState(parameterName, state);
    emit parameterStateChanged(qString(parameterName), qString(state));
}

std::string ShellMessenger::GetInstallPath()
{
    if (mFolder.empty() && !mTemporaryFolder) {
        mTemporaryFolder.emplace();
    }
    const std::string base =
        mFolder.empty() ? mTemporaryFolder->path().toStdString() + '/' : mFolder;
    const std::string result = base + "install/";
    if (!mIsInstalled) {
        mIsInstalled = true; // or a folder that cannot be written would be told each time
        try {
            installDocuments(result);
        } catch (const platform::Failure& failure) {
            ShowMessage("error", failure.description());
        }
    }
    return result;
}

std::string ShellMessenger::GetWorkPath()
{
    return folder(QStandardPaths::CacheLocation);
}

std::string ShellMessenger::GetUserDataPath()
{
    return folder(QStandardPaths::AppDataLocation);
}

void ShellMessenger::BookChange(IQornDataEditor& editor, const std::string& tag,
                                const std::string& label, const std::string& oldText,
                                const std::string& newText, const std::string& extra,
                                const std::string& type, const std::string& contextTag)
{
    DialogSetChanges.raise(&editor, tag, mChangeLabels.unique(tag, label), extra, oldText, newText,
                           type, contextTag);
}

std::int16_t ShellMessenger::GetStatusClassification()
{
    return mFixedClassification.value_or(mClassification);
}

void ShellMessenger::SetStatusClassification(std::int16_t classification)
{
    if (!mFixedClassification && classification != mClassification) {
        mClassification = classification;
        emit classificationChanged();
    }
}

void ShellMessenger::SetFixedStatusClassification(std::int16_t classification)
{
    mFixedClassification = classification;
    emit classificationChanged();
}

bool ShellMessenger::HasConfigurationChangedSign()
{
    return mTypeInfo &&
           mTypeInfo.selectSingleNode("//deviceStatus/*/*[@name='statusHARTConfigurationChanged']");
}

void ShellMessenger::SetConfigurationChanged(const std::string& value)
{
    const bool changed = !value.empty() && value != "0";
    if (changed != mConfigurationChanged) {
        mConfigurationChanged = changed;
        emit configurationChangedChanged();
    }
}

void ShellMessenger::SetCombinedStatus(std::int16_t, const std::string& text)
{
    if (text != mCombinedStatus) {
        mCombinedStatus = text;
        emit combinedStatusChanged();
    }
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

void ShellMessenger::TransferFocus()
{
    emit focusTransferred();
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

void ShellMessenger::WriteLog(std::int16_t category, const std::string& text)
{
    emit logWritten(QChar{static_cast<char16_t>(category)}, qString(text));
}

void ShellMessenger::RefreshData()
{
    if (mStore.isOpen()) {
        emit datafileChanged();
    }
}

std::int32_t ShellMessenger::AskQuestion(const std::string& titleKey,
                                         const std::string& questionKey)
{
    const bool yes =
        mDialogs && mDialogs->askQuestion(mTexts.shown(titleKey), mTexts.shown(questionKey));
    return yes ? kPositiveAnswer : 0;
}

void ShellMessenger::ReportErrorObject(const std::string& where, std::int32_t number,
                                       const std::string& description)
{
    ReportError(where, number, description);
}

void ShellMessenger::ReportError(const std::string& where, std::int32_t number,
                                 const std::string& description)
{
    emit errorReported(qString(where), number, qString(description));
}

void ShellMessenger::ShowMessage(const std::string& titleKey, const std::string& messageKey)
{
    const QString title = mTexts.shown(titleKey);
    const QString text  = mTexts.shown(messageKey);
    emit          messageShown(title, text);
    if (mDialogs) {
        mDialogs->showMessage(title, text);
    }
}

void ShellMessenger::ReportProblem(const std::string& text, const std::string&)
{
    emit logWritten(QChar{static_cast<char16_t>(kLogConfiguration)}, qString(text));
}

} // namespace quill::shell
