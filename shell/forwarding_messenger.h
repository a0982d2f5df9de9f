#pragma once

#include "framework/host_contract.h"

namespace quill::shell {

/// A Messenger that hands every call to another one, and that one's events to whoever listens here.
/// A derived class stands between a host and one view: it overrides what that view is not to say.
/// The other one must live until this one is gone.
class ForwardingMessenger : public Messenger {
public:
    explicit ForwardingMessenger(Messenger& other) : mOther(other) {}

    AddressService* GetAddressService() override { return mOther.GetAddressService(); }
    UnitConverter*  GetUnitConverter() override { return mOther.GetUnitConverter(); }
    std::string     GetHostDocument(const std::string& name) override
    {
        return mOther.GetHostDocument(name);
    }
    bool SetHostDocument(const std::string& name, const std::string& xml) override
    {
        return mOther.SetHostDocument(name, xml);
    }
    void SendCommunicationRequest(const std::string& requestXml,
                                  const std::string& requestName) override
    {
        mOther.SendCommunicationRequest(requestXml, requestName);
    }
    bool SetMonitoringActive(bool active) override { return mOther.SetMonitoringActive(active); }
    std::string GetDatasetXml() override { return mOther.GetDatasetXml(); }
    bool ExecuteCommunicationRequest(const std::string& requestXml, const std::string& progressKey,
                                     std::int16_t first, std::int16_t second) override
    {
        return mOther.ExecuteCommunicationRequest(requestXml, progressKey, first, second);
    }
    bool ExecuteNamedRequest(const std::string& requestName, const std::string& progressKey,
                             std::int16_t first, std::int16_t second) override
    {
        return mOther.ExecuteNamedRequest(requestName, progressKey, first, second);
    }
    std::int32_t GetCommunicationMode() override { return mOther.GetCommunicationMode(); }
    void SetParameterState(const std::string& parameterName, const std::string& state) override
    {
        mOther.SetParameterState(parameterName, state);
    }
    IXMLDOMDocument            GetDeviceTypeInfo() override { return mOther.GetDeviceTypeInfo(); }
    ReportPrinter*             GetReportPrinter() override { return mOther.GetReportPrinter(); }
    std::string                GetInstallPath() override { return mOther.GetInstallPath(); }
    std::optional<std::string> GetStoreName() override { return mOther.GetStoreName(); }
    std::string                GetWorkPath() override { return mOther.GetWorkPath(); }
    std::string                GetUserDataPath() override { return mOther.GetUserDataPath(); }
    std::int16_t               GetUserLevel() override { return mOther.GetUserLevel(); }
    bool        IsErrorDialogEnabled() override { return mOther.IsErrorDialogEnabled(); }
    Translator* GetTranslator() override { return mOther.GetTranslator(); }
    void        RequestChanges(std::int16_t scope) override { mOther.RequestChanges(scope); }
    void BookChange(IQornDataEditor& editor, const std::string& tag, const std::string& label,
                    const std::string& oldText, const std::string& newText,
                    const std::string& extra, const std::string& type,
                    const std::string& contextTag) override
    {
        mOther.BookChange(editor, tag, label, oldText, newText, extra, type, contextTag);
    }
    bool RestoreDataset(const std::string& xml) override { return mOther.RestoreDataset(xml); }
    bool GetDialogsAllowed() override { return mOther.GetDialogsAllowed(); }
    std::int16_t GetStatusClassification() override { return mOther.GetStatusClassification(); }
    void         SetFixedStatusClassification(std::int16_t classification) override
    {
        mOther.SetFixedStatusClassification(classification);
    }
    void SetStatusClassification(std::int16_t classification) override
    {
        mOther.SetStatusClassification(classification);
    }
    bool IsStatusClassificationFixed() override { return mOther.IsStatusClassificationFixed(); }
    bool HasConfigurationChangedSign() override { return mOther.HasConfigurationChangedSign(); }
    void SetDownloadPhase(std::int16_t phase) override { mOther.SetDownloadPhase(phase); }
    void SetConfigurationChanged(const std::string& value) override
    {
        mOther.SetConfigurationChanged(value);
    }
    void TransferFocus() override { mOther.TransferFocus(); }
    void SetCombinedStatus(std::int16_t level, const std::string& text) override
    {
        mOther.SetCombinedStatus(level, text);
    }
    void NotifyDialog(std::int16_t phase) override { mOther.NotifyDialog(phase); }
    void WriteLog(std::int16_t category, const std::string& text) override
    {
        mOther.WriteLog(category, text);
    }
    void         RefreshData() override { mOther.RefreshData(); }
    std::int32_t AskQuestion(const std::string& titleKey, const std::string& questionKey) override
    {
        return mOther.AskQuestion(titleKey, questionKey);
    }
    void ReportErrorObject(const std::string& where, std::int32_t number,
                           const std::string& description) override
    {
        mOther.ReportErrorObject(where, number, description);
    }
    void ReportError(const std::string& where, std::int32_t number,
                     const std::string& description) override
    {
        mOther.ReportError(where, number, description);
    }
    void ShowMessage(const std::string& titleKey, const std::string& messageKey) override
    {
        mOther.ShowMessage(titleKey, messageKey);
    }
    void ReportProblem(const std::string& text, const std::string& mode) override
    {
        mOther.ReportProblem(text, mode);
    }

protected:
    /// Whether the view hears of a communication mode.
    [[nodiscard]] virtual bool handsOnMode(std::int32_t) const { return true; }

private:
    template <class... Arguments>
    [[nodiscard]] static platform::Subscription raiseToo(platform::Event<Arguments...>& from,
                                                         platform::Event<Arguments...>& to)
    {
        return from.subscribe([&to](const auto&... arguments) { to.raise(arguments...); });
    }

    Messenger&             mOther;
    platform::Subscription mOnMode =
        mOther.ViewSetCommunicationMode.subscribe([this](std::int32_t mode) {
            if (handsOnMode(mode)) {
                ViewSetCommunicationMode.raise(mode);
            }
        });
    platform::Subscription mOnGetChanges = raiseToo(mOther.ViewGetChanges, ViewGetChanges);
    platform::Subscription mOnUnits      = raiseToo(mOther.ViewSetUnits, ViewSetUnits);
    platform::Subscription mOnValue      = raiseToo(mOther.ViewReceiveValue, ViewReceiveValue);
    platform::Subscription mOnSetChanges = raiseToo(mOther.DialogSetChanges, DialogSetChanges);
};

} // namespace quill::shell
