#pragma once

#include "framework/control_contract.h"
#include "framework/host_services.h"
#include "platform/event.h"

#include <cstdint>
#include <optional>
#include <string>

/// What the host and the controls know of each other.
///
/// The order of life that the controls expect: create; `SetMessenger`; `Localize`;
/// `SetOfflineData` (and `SetImportData` after an import); `SetOnlineData` or `SetErrorData` for
/// every response, at any time; `SetSelectedView` and `RequestFocus` when the page comes up;
/// `LeaveSelectedView` before it goes; `PrepareToRelease` last. Everything runs on the host's
/// user-interface thread, and every call is synchronous.
namespace quill {

class AddressService;
class ReportPrinter;

/// Communication mode. The host may use further numbers; they enable editing.
enum CommunicationMode : std::int32_t {
    kOffline       = 10, ///< edits go into the datafile: access word "writeOffline"
    kOnline        = 11, ///< edits go to the device: access word "write"
    kCommunication = 12, ///< a transfer runs
    kEditingBarred = 20, ///< every editor and every set button is disabled
};

/// User level from which on a user may change the device.
constexpr std::int16_t kMaintenanceLevel = 3;

/// Status classification.
enum StatusClassification : std::int16_t { kClassSeverity = 0, kClassNAMUR = 1 };

/// Category of a log line: a letter as its character code.
enum LogCategory : std::int16_t {
    kLogConfiguration   = 'B', ///< configuration warnings
    kLogLostError       = 'C', ///< an error that could not reach its target
    kLogDecision        = 'D', ///< decisions worth tracing
    kLogContract        = 'E', ///< entry and exit of contract calls, mode changes
    kLogFlow            = 'F', ///< flow of long procedures
    kLogDetail          = 'G', ///< fine detail
    kLogTrend           = 'H',
    kLogUserInformation = 'I', ///< user information requests
    kLogMapping         = 'M', ///< parsing of mapping names
    kLogStatusMask      = 'S', ///< status mask work
    kLogUnit            = 'T', ///< unit problems
};

/// Whose changes `RequestChanges` and `ViewGetChanges` mean.
enum ChangeScope : std::int16_t {
    kAllEditors      = 1, ///< every editor with a `ContextTag`
    kModifiedEditors = 2,
};

/// Phase of a download, for `SetDownloadPhase`.
enum DownloadPhase : std::int16_t { kBeforeDownload = 2, kAfterDownload = 3 };

/// Phase of a dialog, for `NotifyDialog`.
enum DialogPhase : std::int16_t {
    kDialogComesUp       = 50,
    kDialogGoes          = 51,
    kConfigurationBegins = 52, ///< a view turns from showing to configuring
    kConfigurationEnds   = 53,
};

/// The one answer of `AskQuestion` that is a yes; any other is a no.
constexpr std::int32_t kPositiveAnswer = 4;

/// The host's side of the contract. Owned by the host; usable from the moment it is handed out,
/// as a control may call back from its `SetMessenger`. A key may carry a parameter behind "#"; a
/// text that is no key is shown as it stands. An operation that cannot be done may throw: the
/// control reports that and goes on. `DefaultMessenger` answers all of them plainly.
class Messenger {
public:
    virtual ~Messenger() = default;

    /// With which the bus address is read and set; may be nothing.
    virtual AddressService* GetAddressService() = 0;
    /// May be nothing: values then stay in the unit of the datafile.
    virtual UnitConverter* GetUnitConverter() = 0;
    /// XML text that the host keeps under a name ("FDT"); empty if there is none.
    virtual std::string GetHostDocument(const std::string& name)                         = 0;
    virtual bool        SetHostDocument(const std::string& name, const std::string& xml) = 0;
    /// Hands over one `communicationRequest`. The answer comes later through `SetOnlineData` or
    /// `SetErrorData`.
    virtual void SendCommunicationRequest(const std::string& requestXml,
                                          const std::string& requestName) = 0;
    /// A monitoring run starts or stops; false if the host refuses.
    virtual bool SetMonitoringActive(bool active) = 0;
    /// The current dataset as XML text, empty if there is none.
    virtual std::string GetDatasetXml() = 0;
    /// Sends a complete request with a progress text ("reading"); whether it was accepted. The
    /// meaning of the two numbers lies with the host.
    virtual bool ExecuteCommunicationRequest(const std::string& requestXml,
                                             const std::string& progressKey, std::int16_t first,
                                             std::int16_t second) = 0;
    /// The same for a request group by its name.
    virtual bool ExecuteNamedRequest(const std::string& requestName, const std::string& progressKey,
                                     std::int16_t first, std::int16_t second) = 0;
    /// A `CommunicationMode`.
    virtual std::int32_t GetCommunicationMode() = 0;
    /// A change state ("edited", "editedError", "corrected", "original") or synchronisation state
    /// ("notRead", "sync", "syncError", "reSync"). `parameterName` is the `Tag` of the editor's
    /// container, or a group name.
    virtual void SetParameterState(const std::string& parameterName, const std::string& state) = 0;
    /// The document with `//deviceStatus`; may be nothing.
    virtual IXMLDOMDocument GetDeviceTypeInfo() = 0;
    /// Turns a report into a PDF; may be nothing.
    virtual ReportPrinter* GetReportPrinter() = 0;
    /// Install folder, with a separator at the end.
    virtual std::string GetInstallPath() = 0;
    /// Name of the test store; nothing if there is none.
    virtual std::optional<std::string> GetStoreName() = 0;
    /// Folder for generated files, with a separator at the end.
    virtual std::string GetWorkPath() = 0;
    /// Folder of the user's data, with a separator at the end.
    virtual std::string GetUserDataPath() = 0;
    /// Actions that change the device need `kMaintenanceLevel` or more.
    virtual std::int16_t GetUserLevel() = 0;
    /// Whether errors of a graph are shown (true) or only logged.
    virtual bool        IsErrorDialogEnabled() = 0;
    virtual Translator* GetTranslator()        = 0;
    /// Asks for pending changes: the host raises `ViewGetChanges(scope)`, the editors answer by
    /// `BookChange`, and the host raises `DialogSetChanges` for each.
    virtual void RequestChanges(std::int16_t scope) = 0;
    /// One pending change. `editor` lives at least until the host has raised `DialogSetChanges`.
    virtual void BookChange(IQornDataEditor& editor, const std::string& tag,
                            const std::string& label, const std::string& oldText,
                            const std::string& newText, const std::string& extra,
                            const std::string& type, const std::string& contextTag) = 0;
    virtual bool RestoreDataset(const std::string& xml)                             = 0;
    /// False: no file dialog may be shown.
    virtual bool GetDialogsAllowed() = 0;
    /// A `StatusClassification`.
    virtual std::int16_t GetStatusClassification() = 0;
    /// The device permits only this classification.
    virtual void SetFixedStatusClassification(std::int16_t classification) = 0;
    /// The user's choice.
    virtual void SetStatusClassification(std::int16_t classification) = 0;
    virtual bool IsStatusClassificationFixed()                        = 0;
    /// Whether the sign "configuration changed" is shown.
    virtual bool HasConfigurationChangedSign() = 0;
    /// A `DownloadPhase`.
    virtual void SetDownloadPhase(std::int16_t phase)              = 0;
    virtual void SetConfigurationChanged(const std::string& value) = 0;
    /// The keyboard focus leaves the control for the host.
    virtual void TransferFocus() = 0;
    /// The combined device status; `level` is 1.
    virtual void SetCombinedStatus(std::int16_t level, const std::string& text) = 0;
    /// A `DialogPhase`.
    virtual void NotifyDialog(std::int16_t phase) = 0;
    /// A line for the log; `category` is a `LogCategory`.
    virtual void WriteLog(std::int16_t category, const std::string& text) = 0;
    /// The data changed behind the host's back, after a restore.
    virtual void RefreshData() = 0;
    /// Asks the user; `kPositiveAnswer` is the yes.
    virtual std::int32_t AskQuestion(const std::string& titleKey,
                                     const std::string& questionKey) = 0;
    /// An error that is reported as an object.
    virtual void ReportErrorObject(const std::string& where, std::int32_t number,
                                   const std::string& description) = 0;
    /// A step that failed: the place, the number and the text. The procedure has gone on.
    virtual void ReportError(const std::string& where, std::int32_t number,
                             const std::string& description)                             = 0;
    virtual void ShowMessage(const std::string& titleKey, const std::string& messageKey) = 0;
    virtual void ReportProblem(const std::string& text, const std::string& mode)         = 0;

    /// Events. A control subscribes when it stores the Messenger; it handles those it needs.
    /// The communication mode has changed.
    platform::Event<std::int32_t> ViewSetCommunicationMode;
    /// Every data editor that the scope means books itself.
    platform::Event<std::int16_t> ViewGetChanges;
    /// The display units have changed.
    platform::Event<> ViewSetUnits;
    /// A single value that concerns several views.
    platform::Event<const std::string&, const std::string&> ViewReceiveValue;
    /// One booked change for the dialog of pending changes. Order: editor, tag, label, extra, old
    /// text, new text, type, context tag.
    platform::Event<IQornDataEditor*, const std::string&, const std::string&, const std::string&,
                    const std::string&, const std::string&, const std::string&, const std::string&>
        DialogSetChanges;
};

} // namespace quill
