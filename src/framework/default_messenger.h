#pragma once

#include "framework/change_labels.h"
#include "framework/host_contract.h"

namespace quill {

/// A Messenger that answers every operation plainly: offline, user level of maintenance, no
/// services, messages dropped, questions declined. A host overrides what it has.
///
/// Two operations do real work, as every host needs them: `RequestChanges` raises
/// `ViewGetChanges`, and `BookChange` raises `DialogSetChanges` at once, with labels kept apart.
class DefaultMessenger : public Messenger {
public:
    AddressService* GetAddressService() override { return nullptr; }
    UnitConverter*  GetUnitConverter() override { return nullptr; }
    std::string     GetHostDocument(const std::string&) override { return {}; }
    bool        SetHostDocument(const std::string&, const std::string&) override { return false; }
    void        SendCommunicationRequest(const std::string&, const std::string&) override {}
    bool        SetMonitoringActive(bool) override { return false; }
    std::string GetDatasetXml() override { return {}; }
    bool        ExecuteCommunicationRequest(const std::string&, const std::string&, std::int16_t,
                                            std::int16_t) override
    {
        return false;
    }
    bool ExecuteNamedRequest(const std::string&, const std::string&, std::int16_t,
                             std::int16_t) override
    {
        return false;
    }
    std::int32_t               GetCommunicationMode() override { return kOffline; }
    void                       SetParameterState(const std::string&, const std::string&) override {}
    IXMLDOMDocument            GetDeviceTypeInfo() override { return {}; }
    ReportPrinter*             GetReportPrinter() override { return nullptr; }
    std::string                GetInstallPath() override { return {}; }
    std::optional<std::string> GetStoreName() override { return std::nullopt; }
    std::string                GetWorkPath() override { return {}; }
    std::string                GetUserDataPath() override { return {}; }
    std::int16_t               GetUserLevel() override { return kMaintenanceLevel; }
    bool                       IsErrorDialogEnabled() override { return true; }
    Translator*                GetTranslator() override { return nullptr; }
    void RequestChanges(std::int16_t scope) override { ViewGetChanges.raise(scope); }
    void BookChange(IQornDataEditor& editor, const std::string& tag, const std::string& label,
                    const std::string& oldText, const std::string& newText,
                    const std::string& extra, const std::string& type,
                    const std::string& contextTag) override
    {
        DialogSetChanges.raise(&editor, tag, mLabels.unique(tag, label), extra, oldText, newText,
                               type, contextTag);
    }
    bool         RestoreDataset(const std::string&) override { return false; }
    bool         GetDialogsAllowed() override { return true; }
    std::int16_t GetStatusClassification() override { return kClassSeverity; }
    void         SetFixedStatusClassification(std::int16_t) override {}
    void         SetStatusClassification(std::int16_t) override {}
    bool         IsStatusClassificationFixed() override { return false; }
    bool         HasConfigurationChangedSign() override { return false; }
    void         SetDownloadPhase(std::int16_t) override {}
    void         SetConfigurationChanged(const std::string&) override {}
    void         TransferFocus() override {}
    void         SetCombinedStatus(std::int16_t, const std::string&) override {}
    void         NotifyDialog(std::int16_t) override {}
    void         WriteLog(std::int16_t, const std::string&) override {}
    void         RefreshData() override {}
    std::int32_t AskQuestion(const std::string&, const std::string&) override { return 0; }
    void         ReportErrorObject(const std::string&, std::int32_t, const std::string&) override {}
    void         ReportError(const std::string&, std::int32_t, const std::string&) override {}
    void         ShowMessage(const std::string&, const std::string&) override {}
    void         ReportProblem(const std::string&, const std::string&) override {}

private:
    ChangeLabels mLabels;
};

} // namespace quill
