#include "probe/host.h"

namespace quill::probe {

Host::Host(const Output& output, NameOf nameOf) : mOutput(output), mNameOf(std::move(nameOf))
{
    mToolkit.onDebug = [this](const std::string& text) {
        mToolkit.debugLines.clear();
        Reply report;
        report["debug"] = text;
        mOutput.line(report);
    };
    mToolkit.beforeOperation = [this](const char* operation) {
        mSettings.failToolkitIfPrepared(operation);
    };
}

void Host::take(const Json& line)
{
    mSettings.take(line);
    if (find(line, "clock") != nullptr) {
        mToolkit.clock = mSettings.clock;
    }
    mToolkit.localeSettings   = mSettings.locale;
    mToolkit.characterWidth   = mSettings.textWidth;
    mToolkit.keysDown         = mSettings.keysDown;
    mToolkit.fileDialogAnswer = mSettings.fileDialog;
}

void Host::calledBack(const std::string& method, const std::vector<std::string>& args) const
{
    mOutput.call("callback", method, Reply(args));
    mSettings.failIfPrepared(method);
}

template <class... Args>
void Host::called(const char* operation, const Args&... args) const
{
    mOutput.call("messenger", operation, Reply::array({Reply(args)...}));
    mSettings.failIfPrepared(operation);
}

bool Host::isAccepted(const char* operation) const
{
    return mSettings.isAccepted(operation);
}

AddressService* Host::GetAddressService()
{
    called("GetAddressService");
    return mSettings.addressService ? &mAddressService : nullptr;
}

UnitConverter* Host::GetUnitConverter()
{
    called("GetUnitConverter");
    return mSettings.converter ? &mConverter : nullptr;
}

std::string Host::GetHostDocument(const std::string& name)
{
    called("GetHostDocument", name);
    const auto found = mSettings.hostDocuments.find(name);
    return found == mSettings.hostDocuments.end() ? std::string{} : found->second;
}

bool Host::SetHostDocument(const std::string& name, const std::string& xml)
{
    called("SetHostDocument", name, xml);
    if (!isAccepted("SetHostDocument")) {
        return false;
    }
    mSettings.hostDocuments[name] = xml;
    return true;
}

void Host::SendCommunicationRequest(const std::string& requestXml, const std::string& requestName)
{
    called("SendCommunicationRequest", requestXml, requestName);
}

bool Host::SetMonitoringActive(bool active)
{
    called("SetMonitoringActive", active);
    return isAccepted("SetMonitoringActive");
}

std::string Host::GetDatasetXml()
{
    called("GetDatasetXml");
    return mSettings.dataset;
}

bool Host::ExecuteCommunicationRequest(const std::string& requestXml,
                                       const std::string& progressKey, std::int16_t first,
                                       std::int16_t second)
{
    called("ExecuteCommunicationRequest", requestXml, progressKey, first, second);
    return isAccepted("ExecuteCommunicationRequest");
}

bool Host::ExecuteNamedRequest(const std::string& requestName, const std::string& progressKey,
                               std::int16_t first, std::int16_t second)
{
    called("ExecuteNamedRequest", requestName, progressKey, first, second);
    return isAccepted("ExecuteNamedRequest");
}

std::int32_t Host::GetCommunicationMode()
{
    called("GetCommunicationMode");
    return mSettings.communicationMode;
}

void Host::SetParameterState(const std::string& parameterName, const std::string& state)
{
    called("SetParameterState", parameterName, state);
}

IXMLDOMDocument Host::GetDeviceTypeInfo()
{
    called("GetDeviceTypeInfo");
    return mSettings.deviceTypeInfo;
}

ReportPrinter* Host::GetReportPrinter()
{
    called("GetReportPrinter");
    return nullptr;
}

std::string Host::GetInstallPath()
{
    called("GetInstallPath");
    return mSettings.installPath ? *mSettings.installPath : mInstallFolder.path();
}

std::optional<std::string> Host::GetStoreName()
{
    called("GetStoreName");
    return std::nullopt;
}

std::string Host::GetWorkPath()
{
    called("GetWorkPath");
    return mSettings.workPath ? *mSettings.workPath : mWorkFolder.path();
}

std::string Host::GetUserDataPath()
{
    called("GetUserDataPath");
    return mSettings.userDataPath ? *mSettings.userDataPath : mUserDataFolder.path();
}

std::int16_t Host::GetUserLevel()
{
    called("GetUserLevel");
    return mSettings.userLevel;
}

bool Host::IsErrorDialogEnabled()
{
    called("IsErrorDialogEnabled");
    return mSettings.errorDialogEnabled;
}

Translator* Host::GetTranslator()
{
    called("GetTranslator");
    return &mTranslator;
}

void Host::RequestChanges(std::int16_t scope)
{
    called("RequestChanges", scope);
    ViewGetChanges.raise(scope);
}

void Host::BookChange(IQornDataEditor& editor, const std::string& tag, const std::string& label,
                      const std::string& oldText, const std::string& newText,
                      const std::string& extra, const std::string& type,
                      const std::string& contextTag)
{
    const auto* widget = dynamic_cast<const platform::Widget*>(&editor);
    called("BookChange", widget != nullptr ? mNameOf(*widget) : std::string{}, tag, label, oldText,
           newText, extra, type, contextTag);
    DialogSetChanges.raise(&editor, tag, mLabels.unique(tag, label), extra, oldText, newText, type,
                           contextTag);
}

bool Host::RestoreDataset(const std::string& xml)
{
    called("RestoreDataset", xml);
    return isAccepted("RestoreDataset");
}

bool Host::GetDialogsAllowed()
{
    called("GetDialogsAllowed");
    return mSettings.dialogsAllowed;
}

std::int16_t Host::GetStatusClassification()
{
    called("GetStatusClassification");
    return mSettings.statusClassification;
}

void Host::SetFixedStatusClassification(std::int16_t classification)
{
    called("SetFixedStatusClassification", classification);
}

void Host::SetStatusClassification(std::int16_t classification)
{
    called("SetStatusClassification", classification);
}

bool Host::IsStatusClassificationFixed()
{
    called("IsStatusClassificationFixed");
    return mSettings.statusClassificationFixed;
}

bool Host::HasConfigurationChangedSign()
{
    called("HasConfigurationChangedSign");
    return mSettings.configurationChangedSign;
}

void Host::SetDownloadPhase(std::int16_t phase)
{
    called("SetDownloadPhase", phase);
}

void Host::SetConfigurationChanged(const std::string& value)
{
    called("SetConfigurationChanged", value);
}

void Host::TransferFocus()
{
    called("TransferFocus");
}

void Host::SetCombinedStatus(std::int16_t level, const std::string& text)
{
    called("SetCombinedStatus", level, text);
}

void Host::NotifyDialog(std::int16_t phase)
{
    called("NotifyDialog", phase);
}

void Host::WriteLog(std::int16_t category, const std::string& text)
{
    called("WriteLog", category, text);
}

void Host::RefreshData()
{
    called("RefreshData");
}

std::int32_t Host::AskQuestion(const std::string& titleKey, const std::string& questionKey)
{
    called("AskQuestion", titleKey, questionKey);
    // A key may carry a parameter behind "#", which belongs to the text and not to the key.
    for (const auto& key :
         {questionKey, questionKey.substr(0, questionKey.find('#')), std::string{"*"}}) {
        if (const auto found = mSettings.answers.find(key); found != mSettings.answers.end()) {
            return found->second;
        }
    }
    return 0;
}

void Host::ReportErrorObject(const std::string& where, std::int32_t number,
                             const std::string& description)
{
    Reply error;
    error["number"]      = number;
    error["description"] = description;
    called("ReportErrorObject", where, error);
}

void Host::ReportError(const std::string& where, std::int32_t number,
                       const std::string& description)
{
    called("ReportError", where, number, description);
}

void Host::ShowMessage(const std::string& titleKey, const std::string& messageKey)
{
    called("ShowMessage", titleKey, messageKey);
}

void Host::ReportProblem(const std::string& text, const std::string& mode)
{
    called("ReportProblem", text, mode);
}

} // namespace quill::probe
