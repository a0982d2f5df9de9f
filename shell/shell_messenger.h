#pragma once

#include "framework/default_messenger.h"
#include "shell/datafile_store.h"
#include "shell/device.h"
#include "shell/device_link.h"
#include "shell/translator.h"
#include "shell/units.h"

#include <QObject>
#include <QString>

#include <map>
#include <string>

namespace quill::shell {

/// Who shows messages and asks questions: a window, or a script.
class UserDialogs {
public:
    virtual ~UserDialogs() = default;
    /// Both texts are translated.
    virtual void showMessage(const QString& title, const QString& text) = 0;
    /// Whether the user said yes.
    virtual bool askQuestion(const QString& title, const QString& text) = 0;
};

/// The shell's side of the host contract: puts store, device, texts and units together, and turns
/// what the controls tell into signals for the window. It owns them all; views must be released
/// before it goes.
class ShellMessenger : public QObject, public DefaultMessenger {
    Q_OBJECT

public:
    explicit ShellMessenger(QObject* parent = nullptr);
    ~ShellMessenger() override;

    [[nodiscard]] DatafileStore&       store() { return mStore; }
    [[nodiscard]] SimulatedDevice&     device() { return mDevice; }
    [[nodiscard]] DeviceLink&          link() { return mLink; }
    [[nodiscard]] CatalogueTranslator& texts() { return mTexts; }
    [[nodiscard]] HartUnitConverter&   units() { return mUnits; }

    /// Opens the sample datafile. Raises `datafileReplaced`.
    void openSample();
    /// Opens a datafile; the device is one of the type that it describes, and stays the one it is
    /// if that is its type already. Throws as `DatafileStore::load` does. Raises
    /// `datafileReplaced`.
    void openDatafile(const std::string& path);

    /// Nothing lets messages go to the log only, and questions be declined. The caller keeps it.
    void               setDialogs(UserDialogs* dialogs) { mDialogs = dialogs; }
    void               setOnline(bool online);
    [[nodiscard]] bool isOnline() const { return mOnline; }
    void               setUserLevel(std::int16_t level);
    /// False for an unknown language. The views must be localized again, which is what
    /// `languageChanged` is for.
    bool setLanguage(const std::string& language);

    /// Gives the datafile to a view; what its editors write meanwhile is no edit.
    void deliverDatafile(IQornDataUser& view);
    /// Localizes a view in the same way.
    void localize(ILocalizable& view);
    /// Tells the views that the display units have changed.
    void informUnitChanges();
    /// Asks the device for all parameters of a request group; false while offline.
    bool readGroup(const std::string& group);
    /// Asks for every request group of the datafile, in its order; false while offline.
    bool readAll();

    // --- The host contract -------------------------------------------------------------------
    UnitConverter* GetUnitConverter() override { return &mUnits; }
    Translator*    GetTranslator() override { return &mTexts; }
    std::string    GetHostDocument(const std::string& name) override;
    bool           SetHostDocument(const std::string& name, const std::string& xml) override;
    /// Online the request goes to the device; one that changes it needs `kMaintenanceLevel`.
    /// Offline the items of "writeOffline" go into the datafile. Anything else is refused with a
    /// message. A request that is no XML is a failure 5.
    void        SendCommunicationRequest(const std::string& requestXml,
                                         const std::string& requestName) override;
    std::string GetDatasetXml() override;
    bool ExecuteCommunicationRequest(const std::string& requestXml, const std::string& progressKey,
                                     std::int16_t first, std::int16_t second) override;
    bool ExecuteNamedRequest(const std::string& requestName, const std::string& progressKey,
                             std::int16_t first, std::int16_t second) override;
    /// While a transfer runs editing is barred: an answer would overwrite what is being typed.
    std::int32_t GetCommunicationMode() override;
    void SetParameterState(const std::string& parameterName, const std::string& state) override;
    std::string  GetInstallPath() override;
    std::string  GetWorkPath() override;
    std::string  GetUserDataPath() override;
    std::int16_t GetUserLevel() override { return mUserLevel; }
    void BookChange(IQornDataEditor& editor, const std::string& tag, const std::string& label,
                    const std::string& oldText, const std::string& newText,
                    const std::string& extra, const std::string& type,
                    const std::string& contextTag) override;
    std::int16_t GetStatusClassification() override { return mClassification; }
    void         SetStatusClassification(std::int16_t classification) override;
    void         SetFixedStatusClassification(std::int16_t classification) override;
    bool         IsStatusClassificationFixed() override { return mClassificationFixed; }
    void         SetDownloadPhase(std::int16_t phase) override;
    void         TransferFocus() override;
    void         NotifyDialog(std::int16_t phase) override;
    void         WriteLog(std::int16_t category, const std::string& text) override;
    std::int32_t AskQuestion(const std::string& titleKey, const std::string& questionKey) override;
    void         ReportErrorObject(const std::string& where, std::int32_t number,
                                   const std::string& description) override;
    void         ReportError(const std::string& where, std::int32_t number,
                             const std::string& description) override;
    void         ShowMessage(const std::string& titleKey, const std::string& messageKey) override;
    void         ReportProblem(const std::string& text, const std::string& mode) override;

signals:
    /// Another datafile is open: views must be made anew.
    void datafileReplaced();
    /// Accepted edits went into the datafile: views must take it again by `deliverDatafile`.
    void datafileChanged();
    /// A response for `SetOnlineData`, and one for `SetErrorData`. Connect directly: the store
    /// counts what happens meanwhile as the device's doing.
    void onlineDataArrived(const quill::IXMLDOMNode& response);
    void errorDataArrived(const quill::IXMLDOMNode& response);
    void communicationModeChanged(int mode);
    void userLevelChanged(int level);
    void languageChanged();
    void parameterStateChanged(const QString& parameter, const QString& state);
    void downloadPhaseChanged(int phase);
    void dialogNotified(int phase);
    void focusTransferred();
    /// A log line; the category is its letter.
    void logWritten(QChar category, const QString& text);
    void errorReported(const QString& where, int number, const QString& description);
    /// A message that was shown, for the log.
    void messageShown(const QString& title, const QString& text);

private:
    bool sendToDevice(const std::string& requestXml, const std::string& access);
    void connectDevice();
    void takeResponse(const QString& xml);
    void raiseMode();
    void tellAccepted();

    DatafileStore                      mStore;
    SimulatedDevice                    mDevice;
    DeviceLink                         mLink{mDevice};
    CatalogueTranslator                mTexts;
    HartUnitConverter                  mUnits;
    ChangeLabels                       mChangeLabels;
    std::map<std::string, std::string> mHostDocuments;
    std::string                        mDeviceType;
    UserDialogs*                       mDialogs             = nullptr;
    bool                               mOnline              = false;
    std::int16_t                       mUserLevel           = kMaintenanceLevel;
    std::int16_t                       mClassification      = kClassSeverity;
    bool                               mClassificationFixed = false;
    bool                               mDownloading         = false;
    bool                               mAccepted            = false;
};

} // namespace quill::shell
