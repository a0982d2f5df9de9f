#pragma once

#include "framework/default_messenger.h"
#include "platform/failure.h"

#include <algorithm>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace quill::test {

/// A host that writes down every call as one line, `SetParameterState(ctr_speed, edited)`, and
/// answers what a test has set. What `DefaultMessenger` does for real (`RequestChanges`,
/// `BookChange`) is done here too.
class RecordingMessenger : public DefaultMessenger {
public:
    struct Booking {
        IQornDataEditor* editor = nullptr;
        std::string      tag, label, oldText, newText, extra, type, contextTag;
    };

    // What was heard, in order.
    std::vector<std::string> calls;
    std::vector<Booking>     bookings;

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

    /// Is called after a call was written down and before it is answered.
    std::function<void(const std::string& call)> onCall;

    /// From now on the operation throws this failure; it is still written down.
    void failOn(const std::string& operation, int number = platform::kInvalidCall)
    {
        mFailing[operation] = number;
    }
    void stopFailing() { mFailing.clear(); }

    void clear()
    {
        calls.clear();
        bookings.clear();
    }
    /// The lines of one operation.
    [[nodiscard]] std::vector<std::string> callsTo(const std::string& operation) const
    {
        std::vector<std::string> found;
        std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
                     [&](const std::string& call) { return call.starts_with(operation + "("); });
        return found;
    }
    [[nodiscard]] bool wasCalled(const std::string& operation) const
    {
        return !callsTo(operation).empty();
    }
    /// All lines but the log and the questions that change nothing (`Get...`, `Is...`, `Has...`).
    [[nodiscard]] std::vector<std::string> actions() const
    {
        std::vector<std::string> found;
        std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
                     [](const std::string& call) {
                         return !call.starts_with("Get") && !call.starts_with("Is") &&
                                !call.starts_with("Has") && !call.starts_with("WriteLog(");
                     });
        return found;
    }
    /// The lines `ReportError(where, number, description)`.
    [[nodiscard]] std::vector<std::string> errors() const { return callsTo("ReportError"); }

    AddressService* GetAddressService() override
    {
        heard("GetAddressService");
        return addressService;
    }
    UnitConverter* GetUnitConverter() override
    {
        heard("GetUnitConverter");
        return converter;
    }
    std::string GetHostDocument(const std::string& name) override
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
        heard("SetMonitoringActive", active);
        return accepts;
    }
    std::string GetDatasetXml() override
    {
        heard("GetDatasetXml");
        return datasetXml;
    }
    bool ExecuteCommunicationRequest(const std::string& xml, const std::string& progressKey,
                                     std::int16_t first, std::int16_t second) override
    {
        heard("ExecuteCommunicationRequest", xml, progressKey, first, second);
        return accepts;
    }
    bool ExecuteNamedRequest(const std::string& name, const std::string& progressKey,
                             std::int16_t first, std::int16_t second) override
    {
        heard("ExecuteNamedRequest", name, progressKey, first, second);
        return accepts;
    }
    std::int32_t GetCommunicationMode() override
    {
        heard("GetCommunicationMode");
        return communicationMode;
    }
    void SetParameterState(const std::string& name, const std::string& state) override
    {
        heard("SetParameterState", name, state);
    }
    IXMLDOMDocument GetDeviceTypeInfo() override
    {
        heard("GetDeviceTypeInfo");
        return deviceTypeInfo;
    }
    ReportPrinter* GetReportPrinter() override
    {
        heard("GetReportPrinter");
        return reportPrinter;
    }
    std::string GetInstallPath() override
    {
        heard("GetInstallPath");
        return installPath;
    }
    std::optional<std::string> GetStoreName() override
    {
        heard("GetStoreName");
        return storeName;
    }
    std::string GetWorkPath() override
    {
        heard("GetWorkPath");
        return workPath;
    }
    std::string GetUserDataPath() override
    {
        heard("GetUserDataPath");
        return userDataPath;
    }
    std::int16_t GetUserLevel() override
    {
        heard("GetUserLevel");
        return userLevel;
    }
    bool IsErrorDialogEnabled() override
    {
        heard("IsErrorDialogEnabled");
        return errorDialog;
    }
    Translator* GetTranslator() override
    {
        heard("GetTranslator");
        return translator;
    }
    void RequestChanges(std::int16_t scope) override
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
        heard("RestoreDataset", xml);
        return accepts;
    }
    bool GetDialogsAllowed() override
    {
        heard("GetDialogsAllowed");
        return dialogsAllowed;
    }
    std::int16_t GetStatusClassification() override
    {
        heard("GetStatusClassification");
        return classification;
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
        heard("IsStatusClassificationFixed");
        return classificationFixed;
    }
    bool HasConfigurationChangedSign() override
    {
        heard("HasConfigurationChangedSign");
        return configurationChanged;
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
        heard("AskQuestion", titleKey, questionKey);
        return answer;
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

private:
    template <class... Args>
    void heard(const std::string& operation, const Args&... args)
    {
        std::ostringstream line;
        line << std::boolalpha << operation << '(';
        [[maybe_unused]] const char* separator = "";
        ((line << separator << args, separator = ", "), ...);
        line << ')';
        calls.push_back(line.str());
        if (onCall) {
            onCall(line.str());
        }
        if (const auto found = mFailing.find(operation); found != mFailing.end()) {
            throw platform::failure(found->second);
        }
    }

    std::map<std::string, int> mFailing;
};

} // namespace quill::test
