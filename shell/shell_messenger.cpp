#include "shell/shell_messenger.h"

#include "framework/documents.h"
#include "platform/failure.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

// Resources of a static library are linked only where somebody asks for them.
static void initData()
{
    Q_INIT_RESOURCE(quill_shell_data);
}

namespace quill::shell {

namespace {

constexpr const char* kSampleType = "VX4400H";

std::string resource(const char* name)
{
    QFile file{QStringLiteral(":/quill/data/") + name};
    if (!file.open(QIODevice::ReadOnly)) {
        throw platform::failure(platform::kFileNotFound);
    }
    return file.readAll().toStdString();
}

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

std::string readRequest(const std::string& group)
{
    const IXMLDOMDocument document = documents::openEmptyRequest();
    const IXMLDOMNode     request  = document.createElement("communicationRequest");
    documents::writeAttribute(request, "name", group);
    documents::writeAttribute(request, "access", "read");
    document.get_documentElement().appendChild(request);
    return document.get_xml();
}

} // namespace

ShellMessenger::ShellMessenger(QObject* parent) : QObject(parent)
{
    initData();
    connect(&mLink, &DeviceLink::responseArrived, this, &ShellMessenger::takeResponse);
    connect(&mLink, &DeviceLink::busyChanged, this, &ShellMessenger::raiseMode);
}

ShellMessenger::~ShellMessenger() = default;

void ShellMessenger::openSample()
{
    mStore.loadBytes(resource("vx4400h.xml"));
    connectDevice();
}

void ShellMessenger::openDatafile(const std::string& path)
{
    mStore.load(path);
    connectDevice();
}

void ShellMessenger::connectDevice()
{
    mLink.cancel();
    mChangeLabels          = {};
    const IXMLDOMNode info = mStore.document().selectSingleNode("//typeInfo:internalInfo/@name");
    const std::string type = info ? info.get_text() : std::string{};
    if (type.empty() || type != mDeviceType) {
        mDevice     = SimulatedDevice{mStore.document(),
                                  type == kSampleType ? resource("vx4400h_device.xml") : ""};
        mDeviceType = type;
    }
    emit datafileReplaced();
}

void ShellMessenger::setOnline(bool online)
{
    if (online == mOnline) {
        return;
    }
    mOnline = online;
    if (!online && mLink.isBusy()) {
        mLink.cancel(); // which tells the mode as well
    } else {
        raiseMode();
    }
}

void ShellMessenger::setUserLevel(std::int16_t level)
{
    mUserLevel = level;
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
    const Loading loading{mStore};
    ViewSetUnits.raise();
}

bool ShellMessenger::readGroup(const std::string& group)
{
    return sendToDevice(readRequest(group), "read");
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
    const auto found = mHostDocuments.find(name);
    return found == mHostDocuments.end() ? std::string{} : found->second;
}

bool ShellMessenger::SetHostDocument(const std::string& name, const std::string& xml)
{
    mHostDocuments[name] = xml;
    return true;
}

bool ShellMessenger::sendToDevice(const std::string& requestXml, const std::string& access)
{
    if (!mOnline) {
        ShowMessage("error", "shell_offlineNoRequest");
        return false;
    }
    if (access != "read" && mUserLevel < kMaintenanceLevel) {
        ShowMessage("error", "shell_userLevelTooLow");
        return false;
    }
    mLink.send(requestXml);
    return true;
}

void ShellMessenger::SendCommunicationRequest(const std::string& requestXml, const std::string&)
{
    const IXMLDOMDocument document = documents::openText(requestXml);
    const std::string     access =
        document.selectSingleNode("//*[local-name()='communicationRequest']/@access").get_text();
    if (mOnline || access != "writeOffline") {
        sendToDevice(requestXml, access);
        return;
    }
    mStore.accept(document);
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
    const std::string     status   = documents::responseAttribute(response, "responseStatus");
    mStore.beginResponse(response);
    if (status == "ok" || status == "local") {
        emit onlineDataArrived(response);
    } else {
        emit errorDataArrived(response);
    }
    mStore.endResponse();
}

void ShellMessenger::SetParameterState(const std::string& parameterName, const std::string& state)
{
    mStore.setParameterState(parameterName, state);
    emit parameterStateChanged(qString(parameterName), qString(state));
}

std::string ShellMessenger::GetInstallPath()
{
    return (QCoreApplication::applicationDirPath() + '/').toStdString();
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

void ShellMessenger::SetStatusClassification(std::int16_t classification)
{
    if (!mClassificationFixed) {
        mClassification = classification;
    }
}

void ShellMessenger::SetFixedStatusClassification(std::int16_t classification)
{
    mClassification      = classification;
    mClassificationFixed = true;
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
}

void ShellMessenger::WriteLog(std::int16_t category, const std::string& text)
{
    emit logWritten(QChar{static_cast<char16_t>(category)}, qString(text));
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
