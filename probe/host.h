#pragma once

#include "framework/change_labels.h"
#include "framework/host_contract.h"
#include "platform/headless_toolkit.h"
#include "probe/host_services.h"
#include "probe/host_settings.h"
#include "probe/output.h"
#include "probe/temporary_folder.h"

#include <functional>
#include <string>
#include <vector>

namespace quill::probe {

/// The host that the controls see: reports every operation, then fails if it was told to, then
/// answers what the settings say.
class Host : public Messenger {
public:
    /// How a control is called in reports.
    using NameOf = std::function<std::string(const platform::Widget&)>;

    Host(const Output& output, NameOf nameOf);

    /// A `host` line. A line with a wrong key changes nothing.
    void take(const Json& line);

    /// A control has called its page by the name of a method: reported, then failed if prepared.
    void calledBack(const std::string& method, const std::vector<std::string>& args) const;

    [[nodiscard]] HostTranslator&            translator() { return mTranslator; }
    [[nodiscard]] platform::HeadlessToolkit& toolkit() { return mToolkit; }
    AddressService*                          GetAddressService() override;
    UnitConverter*                           GetUnitConverter() override;
    std::string                              GetHostDocument(const std::string& name) override;
    bool        SetHostDocument(const std::string& name, const std::string& xml) override;
    void        SendCommunicationRequest(const std::string& requestXml,
                                         const std::string& requestName) override;
    bool        SetMonitoringActive(bool active) override;
    std::string GetDatasetXml() override;
    bool ExecuteCommunicationRequest(const std::string& requestXml, const std::string& progressKey,
                                     std::int16_t first, std::int16_t second) override;
    bool ExecuteNamedRequest(const std::string& requestName, const std::string& progressKey,
                             std::int16_t first, std::int16_t second) override;
    std::int32_t GetCommunicationMode() override;
    void SetParameterState(const std::string& parameterName, const std::string& state) override;
    IXMLDOMDocument            GetDeviceTypeInfo() override;
    ReportPrinter*             GetReportPrinter() override;
    std::string                GetInstallPath() override;
    std::optional<std::string> GetStoreName() override;
    std::string                GetWorkPath() override;
    std::string                GetUserDataPath() override;
    std::int16_t               GetUserLevel() override;
    bool                       IsErrorDialogEnabled() override;
    Translator*                GetTranslator() override;
    void                       RequestChanges(std::int16_t scope) override;
    void BookChange(IQornDataEditor& editor, const std::string& tag, const std::string& label,
                    const std::string& oldText, const std::string& newText,
                    const std::string& extra, const std::string& type,
                    const std::string& contextTag) override;
    bool RestoreDataset(const std::string& xml) override;
    bool GetDialogsAllowed() override;
    std::int16_t GetStatusClassification() override;
    void         SetFixedStatusClassification(std::int16_t classification) override;
    void         SetStatusClassification(std::int16_t classification) override;
    bool         IsStatusClassificationFixed() override;
    bool         HasConfigurationChangedSign() override;
    void         SetDownloadPhase(std::int16_t phase) override;
    void         SetConfigurationChanged(const std::string& value) override;
    void         TransferFocus() override;
    void         SetCombinedStatus(std::int16_t level, const std::string& text) override;
    void         NotifyDialog(std::int16_t phase) override;
    void         WriteLog(std::int16_t category, const std::string& text) override;
    void         RefreshData() override;
    std::int32_t AskQuestion(const std::string& titleKey, const std::string& questionKey) override;
    void         ReportErrorObject(const std::string& where, std::int32_t number,
                                   const std::string& description) override;
    void         ReportError(const std::string& where, std::int32_t number,
                             const std::string& description) override;
    void         ShowMessage(const std::string& titleKey, const std::string& messageKey) override;
    void         ReportProblem(const std::string& text, const std::string& mode) override;

private:
    /// Reports an operation with its inputs; throws what was prepared for it.
    template <class... Args>
    void               called(const char* operation, const Args&... args) const;
    [[nodiscard]] bool isAccepted(const char* operation) const;

    const Output&             mOutput;
    NameOf                    mNameOf;
    HostSettings              mSettings;
    HostTranslator            mTranslator{mSettings};
    HostConverter             mConverter{mSettings, mOutput};
    HostAddressService        mAddressService{mSettings, mOutput};
    platform::HeadlessToolkit mToolkit;
    ChangeLabels              mLabels;
    TemporaryFolder           mInstallFolder;
    TemporaryFolder           mWorkFolder;
    TemporaryFolder           mUserDataFolder;
};

} // namespace quill::probe
