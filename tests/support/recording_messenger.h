#pragma once

#include "framework/default_messenger.h"
#include "support/call_log.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quill::test {

/// A host that writes down every call and answers what a test has set. What `DefaultMessenger` does
/// for real (`RequestChanges`, `BookChange`) is done here too.
class RecordingMessenger : public DefaultMessenger, public CallLog {
public:
    struct Booking {
        IQornDataEditor* editor = nullptr;
        std::string      tag, label, oldText, newText, extra, type, contextTag;
    };

    std::vector<Booking> bookings;

    // What is answered.
    AddressService*                    addressService = nullptr;
    UnitConverter*                     converter      = nullptr;
    Translator*                        translator     = nullptr;
    ReportPrinter*                     reportPrinter  = nullptr;
    std::map<std::string, std::string> hostDocuments;
    bool                               accepts = true; ///< every lone ok
    std::string                        datasetXml;
    std::int32_t                       communicationMode = kOffline;
    IXMLDOMDocument                    deviceTypeInfo;
    std::string                        installPath, workPath, userDataPath;
    std::optional<std::string>         storeName;
    std::int16_t                       userLevel            = kMaintenanceLevel;
    bool                               errorDialog          = true;
    bool                               dialogsAllowed       = true;
    std::int16_t                       classification       = kClassSeverity;
    bool                               classificationFixed  = false;
    bool                               configurationChanged = false;
    std::int32_t                       answer               = kPositiveAnswer;

    void clear()
    {
        calls.clear();
        bookings.clear();
    }
    AddressService* GetAddressService() override
    {
        return answered(addressService, "GetAddressService");
    }
    UnitConverter* GetUnitConverter() override { return answered(converter, "GetUnitConverter"); }
    std::string    GetHostDocument(const std::string& name) override
    {
        heard("GetHostDocument", name);
        return hostDocuments[name];
    }
    bool SetHostDocument(const std::string& name, const std::string& xml) override
    {
        heard("SetHostDocument", name, xml);
        if (accepts) {
            hostDocuments[name] = xml;
        }
        return accepts;
    }
    void SendCommunicationRequest(const std::string& xml, const std::string& name) override
    {
        heard("SendCommunicationRequest", xml, name);
    }
    bool SetMonitoringActive(bool active) override
    {
        return answered(accepts, "SetMonitoringActive", active);
    }
    std::string GetDatasetXml() override { return answered(datasetXml, "GetDatasetXml"); }
    bool        ExecuteCommunicationRequest(const std::string& xml, const std::string& progressKey,
                                            std::int16_t first, std::int16_t second) override
    {
        return answered(accepts, "ExecuteCommunicationRequest", xml, progressKey, first, second);
    }
    bool ExecuteNamedRequest(const std::string& name, const std::string& progressKey,
                             std::int16_t first, std::int16_t second) override
    {
        return answered(accepts, "ExecuteNamedRequest", name, progressKey, first, second);
    }
    std::int32_t GetCommunicationMode() override
    {
        return answered(communicationMode, "GetCommunicationMode");
    }
    void SetParameterState(const std::string& name, const std::string& state) override
    {
        heard("SetParameterState", name, state);
    }
    IXMLDOMDocument GetDeviceTypeInfo() override
    {
        return answered(deviceTypeInfo, "GetDeviceTypeInfo");
    }
    ReportPrinter* GetReportPrinter() override
    {
        return answered(reportPrinter, "GetReportPrinter");
    }
    std::string GetInstallPath() override { return answered(installPath, "GetInstallPath"); }
    std::optional<std::string> GetStoreName() override
    {
        return answered(storeName, "GetStoreName");
    }
    std::string  GetWorkPath() override { return answered(workPath, "GetWorkPath"); }
    std::string  GetUserDataPath() override { return answered(userDataPath, "GetUserDataPath"); }
    std::int16_t GetUserLevel() override { return answered(userLevel, "GetUserLevel"); }
    bool IsErrorDialogEnabled() override { return answered(errorDialog, "IsErrorDialogEnabled"); }
    Translator* GetTranslator() override { return answered(translator, "GetTranslator"); }
    void        RequestChanges(std::int16_t scope) override
    {
        heard("RequestChanges", scope);
        DefaultMessenger::RequestChanges(scope);
    }
    void BookChange(IQornDataEditor& editor, const std::string& tag, const std::string& label,
                    const std::string& oldText, const std::string& newText,
                    const std::string& extra, const std::string& type,
                    const std::string& contextTag) override
    {
        bookings.push_back(Booking{&editor, tag, label, oldText, newText, extra, type, contextTag});
        heard("BookChange", tag, label, oldText, newText, extra, type, contextTag);
        DefaultMessenger::BookChange(editor, tag, label, oldText, newText, extra, type, contextTag);
    }
    bool RestoreDataset(const std::string& xml) override
    {
        return answered(accepts, "RestoreDataset", xml);
    }
    bool GetDialogsAllowed() override { return answered(dialogsAllowed, "GetDialogsAllowed"); }
    std::int16_t GetStatusClassification() override
    {
        return answered(classification, "GetStatusClassification");
    }
    void SetFixedStatusClassification(std::int16_t fixed) override
    {
        heard("SetFixedStatusClassification", fixed);
    }
    void SetStatusClassification(std::int16_t chosen) override
    {
        heard("SetStatusClassification", chosen);
    }
    bool IsStatusClassificationFixed() override
    {
        return answered(classificationFixed, "IsStatusClassificationFixed");
    }
    bool HasConfigurationChangedSign() override
    {
        return answered(configurationChanged, "HasConfigurationChangedSign");
    }
    void SetDownloadPhase(std::int16_t phase) override { heard("SetDownloadPhase", phase); }
    void SetConfigurationChanged(const std::string& value) override
    {
        heard("SetConfigurationChanged", value);
    }
    void TransferFocus() override { heard("TransferFocus"); }
    void SetCombinedStatus(std::int16_t level, const std::string& text) override
    {
        heard("SetCombinedStatus", level, text);
    }
    void NotifyDialog(std::int16_t phase) override { heard("NotifyDialog", phase); }
    void WriteLog(std::int16_t category, const std::string& text) override
    {
        heard("WriteLog", category, text);
    }
    void         RefreshData() override { heard("RefreshData"); }
    std::int32_t AskQuestion(const std::string& titleKey, const std::string& questionKey) override
    {
        return answered(answer, "AskQuestion", titleKey, questionKey);
    }
    void ReportErrorObject(const std::string& where, std::int32_t number,
                           const std::string& description) override
    {
        heard("ReportErrorObject", where, number, description);
    }
    void ReportError(const std::string& where, std::int32_t number,
                     const std::string& description) override
    {
        heard("ReportError", where, number, description);
    }
    void ShowMessage(const std::string& titleKey, const std::string& messageKey) override
    {
        heard("ShowMessage", titleKey, messageKey);
    }
    void ReportProblem(const std::string& text, const std::string& mode) override
    {
        heard("ReportProblem", text, mode);
    }
};

} // namespace quill::test
