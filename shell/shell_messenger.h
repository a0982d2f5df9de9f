#pragma once

#include "framework/default_messenger.h"
#include "shell/address_service.h"
#include "shell/datafile_store.h"
#include "shell/device.h"
#include "shell/device_link.h"
#include "shell/host_documents.h"
#include "shell/install_folder.h"
#include "shell/samples.h"
#include "shell/translator.h"
#include "shell/units.h"
#include "shell/user_address_service.h"
#include "shell/user_dialogs.h"

#include <QObject>
#include <QString>

#include <deque>
#include <optional>
#include <string>

namespace quill::shell {

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
    /// Type of the device that the datafile describes, empty before there is one.
    [[nodiscard]] const std::string& deviceType() const { return mDeviceType; }

    /// Opens the datafile of a sample. Raises `datafileReplaced`.
    void openSample(const Sample& sample = samples().front());
    /// Opens a datafile; the device is one of the type that it describes, and stays the one it is
    /// if that is its type already. Throws as `DatafileStore::load` does. Raises
    /// `datafileReplaced`.
    void openDatafile(const std::string& path);

    /// Where the documents lie that come with the program or that the controls leave with it: a
    /// folder, with a separator at its end. Without one they lie in a temporary folder and are gone
    /// with this object.
    void setFolder(const std::string& folder);

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
    ///
    /// What the device says of its status goes beside the transfers and bars no editing: there is
    /// no editor that the answer could overwrite, and it is asked for all the time.
    bool readGroup(const std::string& group);
    /// Asks for every request group of the datafile, in its order; false while offline.
    bool readAll();
    /// Number of requests that the device has not answered yet.
    [[nodiscard]] std::size_t outstanding() const { return mKept.size(); }
    /// What the user has chosen, also while a device fixes another one.
    [[nodiscard]] std::int16_t chosenClassification() const { return mClassification; }
    /// Whether the device owes an answer of either kind.
    [[nodiscard]] bool isWaiting() const { return mLink.isBusy() || mBeside.isBusy(); }

    /// The combined status that the views have told last, the key of its image; empty for none.
    [[nodiscard]] const std::string& combinedStatus() const { return mCombinedStatus; }
    /// Whether the device says that somebody has changed its configuration.
    [[nodiscard]] bool isConfigurationChanged() const { return mConfigurationChanged; }
    /// Asks the device to forget that. False while offline or if the user may not.
    bool clearConfigurationChanged();

    // --- The host contract -------------------------------------------------------------------
    AddressService* GetAddressService() override { return &mUserAddresses; }
    UnitConverter*  GetUnitConverter() override { return &mUnits; }
    Translator*     GetTranslator() override { return &mTexts; }
    std::string     GetHostDocument(const std::string& name) override;
    /// What cannot be kept is told to the user, who else would not know.
    bool SetHostDocument(const std::string& name, const std::string& xml) override;
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
    /// What comes with the program for this type; nothing for a type that it does not know.
    IXMLDOMDocument GetDeviceTypeInfo() override { return mTypeInfo; }
    /// The folder with the documents that come with the program, which are put there if need be.
    std::string  GetInstallPath() override;
    std::string  GetWorkPath() override;
    std::string  GetUserDataPath() override;
    std::int16_t GetUserLevel() override { return mUserLevel; }
    void BookChange(IQornDataEditor& editor, const std::string& tag, const std::string& label,
                    const std::string& oldText, const std::string& newText,
                    const std::string& extra, const std::string& type,
                    const std::string& contextTag) override;
    std::int16_t GetStatusClassification() override;
    /// The user's choice; it comes back with a device that does not fix another.
    void SetStatusClassification(std::int16_t classification) override;
    void SetFixedStatusClassification(std::int16_t classification) override;
    bool IsStatusClassificationFixed() override { return mFixedClassification.has_value(); }
    /// Where the device has a condition that says so.
    bool HasConfigurationChangedSign() override;
    void SetConfigurationChanged(const std::string& value) override;
    void SetCombinedStatus(std::int16_t level, const std::string& text) override;
    void SetDownloadPhase(std::int16_t phase) override;
    void TransferFocus() override;
    void NotifyDialog(std::int16_t phase) override;
    void WriteLog(std::int16_t category, const std::string& text) override;
    /// The datafile was replaced behind the views' back.
    void         RefreshData() override;
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
    void classificationChanged();
    void combinedStatusChanged();
    void configurationChangedChanged();
    void dialogNotified(int phase);
    /// A control has left a document with the host, and it is kept.
    void hostDocumentKept(const QString& name);
    /// The device has another polling address.
    void addressChanged(int address);
    void focusTransferred();
    /// Other display units, and the views have been told.
    void unitsChanged();
    /// A log line; the category is its letter.
    void logWritten(QChar category, const QString& text);
    void errorReported(const QString& where, int number, const QString& description);
    /// A message that was shown, for the log.
    void messageShown(const QString& title, const QString& text);

private:
    /// Whether a request of this access may go out now; the user is told why not.
    bool maySend(const std::string& access);
    /// `request` is the element in the document of the text.
    bool sendToDevice(const std::string& requestXml, const IXMLDOMNode& request);
    void connectDevice();
    void takeResponse(const QString& xml);
    void takeResponseBeside(const QString& xml);
    void handOut(const IXMLDOMDocument& response);
    void forgetRequests();
    /// Views that take no masks from responses hear of them here.
    void tellMasks(const IXMLDOMNode& message);
    /// And those that take no counters.
    void tellOperationTime(const IXMLDOMNode& response);
    void takeNewAddress(std::uint8_t address);
    /// Asks beside the transfers, which bars nothing.
    void readBeside(const std::string& group);
    void raiseMode();
    void tellAccepted();

    DatafileStore               mStore;
    SimulatedDevice             mDevice;
    DeviceLink                  mLink{mDevice};
    DeviceLink                  mBeside{mDevice}; ///< for what bars no editing
    std::deque<bool>            mKept;            ///< by request: its answer goes into the datafile
    DeviceAddressService        mAddresses{mDevice, [this] { return mOnline; }};
    UserAddressService          mUserAddresses;
    CatalogueTranslator         mTexts;
    HartUnitConverter           mUnits;
    ChangeLabels                mChangeLabels;
    HostDocuments               mHostDocuments;
    InstallFolder               mInstallFolder;
    std::string                 mDeviceType;
    UserDialogs*                mDialogs        = nullptr;
    bool                        mOnline         = false;
    std::int16_t                mUserLevel      = kMaintenanceLevel;
    std::int16_t                mClassification = kClassSeverity;
    std::optional<std::int16_t> mFixedClassification;
    IXMLDOMDocument             mTypeInfo;
    std::string                 mCombinedStatus;
    bool                        mConfigurationChanged = false;
    bool                        mDownloading          = false;
    bool                        mAccepted             = false;
};

} // namespace quill::shell
