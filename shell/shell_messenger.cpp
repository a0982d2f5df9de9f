#include "shell/shell_messenger.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "qt/text.h"
#include "shell/device_build.h"
#include "shell/folders.h"

namespace quill::shell {

namespace {

using qt::toQt;

constexpr const char* kAddress = "pollingAddress";

constexpr std::int16_t kDeviceLevel = 1; ///< of a combined status

} // namespace

ShellMessenger::ShellMessenger(QObject* parent)
    : QObject(parent),
      mUserAddresses(mAddresses,
                     {.isOnline = [this] { return mOnline; },
                      .storedAddress =
                          [this] {
                              const auto parameter =
                                  documents::findParameter(mStore.document(), kAddress);
                              return parameter
                                         ? std::optional{values::toInt16(values::parseDocument(
                                               documents::attributeText(parameter, "value")))}
                                         : std::nullopt;
                          },
                      .tell    = [this](const std::string& key) { ShowMessage("error", key); },
                      .written = [this](std::uint8_t address) { takeNewAddress(address); }})
{
    connect(&mLink, &DeviceLink::responseArrived, this, &ShellMessenger::takeResponse);
    connect(&mBeside, &DeviceLink::responseArrived, this, &ShellMessenger::takeResponseBeside);
    connect(&mLink, &DeviceLink::busyChanged, this, &ShellMessenger::raiseMode);
}

ShellMessenger::~ShellMessenger() = default;

void ShellMessenger::setFolder(const std::string& folder)
{
    mInstallFolder.setFolder(folder);
    mHostDocuments.setFolder(folder);
}

void ShellMessenger::openSample(const Sample& sample)
{
    mStore.loadBytes(sampleFile(sample.datafile));
    connectDevice();
}

void ShellMessenger::openDatafile(const std::string& path)
{
    mStore.load(path);
    connectDevice();
}

void ShellMessenger::connectDevice()
{
    forgetRequests();
    mChangeLabels = {};
    mFixedClassification.reset();
    const IXMLDOMNode info = mStore.document().selectSingleNode("//typeInfo:internalInfo/@name");
    const std::string type = info ? info.get_text() : std::string{};
    if (type.empty() || type != mDeviceType) {
        mDevice     = buildDevice(mStore.document());
        mDeviceType = type;
    }
    const Sample* const sample = findSample(type);
    mTypeInfo =
        sample != nullptr ? documents::openText(sampleFile(sample->typeInfo)) : IXMLDOMDocument{};
    // What the views of the former device have told means nothing for this one.
    SetCombinedStatus(kDeviceLevel, {});
    SetConfigurationChanged({});
    emit datafileReplaced();
}

void ShellMessenger::setOnline(bool online)
{
    if (online == mOnline) {
        return;
    }
    mOnline = online;
    // What is cancelled tells the mode as well.
    const bool isTold = mLink.isBusy();
    forgetRequests();
    if (!isTold) {
        raiseMode();
    }
}

void ShellMessenger::setUserLevel(std::int16_t level)
{
    mUserLevel = level;
    // Views look at the level when they hear of the mode.
    raiseMode();
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
    {
        const Loading loading{mStore};
        ViewSetUnits.raise();
    }
    emit unitsChanged();
}

std::string ShellMessenger::GetHostDocument(const std::string& name)
{
    return mHostDocuments.get(name);
}

bool ShellMessenger::SetHostDocument(const std::string& name, const std::string& xml)
{
    try {
        mHostDocuments.set(name, xml);
    } catch (const platform::Failure& failure) {
        ShowMessage("error", failure.description());
        return false;
    }
    emit hostDocumentKept(toQt(name));
    return true;
}

std::string ShellMessenger::GetDatasetXml()
{
    return mStore.isOpen() ? mStore.document().get_xml() : std::string{};
}

void ShellMessenger::SetParameterState(const std::string& parameterName, const std::string& state)
{
    mStore.setParameterState(parameterName, state);
    emit parameterStateChanged(toQt(parameterName), toQt(state));
}

std::string ShellMessenger::GetInstallPath()
{
    try {
        mInstallFolder.prepare();
    } catch (const platform::Failure& failure) {
        ShowMessage("error", failure.description());
    }
    return mInstallFolder.path();
}

std::string ShellMessenger::GetWorkPath()
{
    return systemFolder(QStandardPaths::CacheLocation);
}

std::string ShellMessenger::GetUserDataPath()
{
    return systemFolder(QStandardPaths::AppDataLocation);
}

void ShellMessenger::BookChange(IQornDataEditor& editor, const std::string& tag,
                                const std::string& label, const std::string& oldText,
                                const std::string& newText, const std::string& extra,
                                const std::string& type, const std::string& contextTag)
{
    DialogSetChanges.raise(&editor, tag, mChangeLabels.unique(tag, label), extra, oldText, newText,
                           type, contextTag);
}

std::int16_t ShellMessenger::GetStatusClassification()
{
    return mFixedClassification.value_or(mClassification);
}

void ShellMessenger::SetStatusClassification(std::int16_t classification)
{
    if (!mFixedClassification && classification != mClassification) {
        mClassification = classification;
        emit classificationChanged();
    }
}

void ShellMessenger::SetFixedStatusClassification(std::int16_t classification)
{
    mFixedClassification = classification;
    emit classificationChanged();
}

bool ShellMessenger::HasConfigurationChangedSign()
{
    return mTypeInfo &&
           mTypeInfo.selectSingleNode("//deviceStatus/*/*[@name='statusHARTConfigurationChanged']");
}

void ShellMessenger::SetConfigurationChanged(const std::string& value)
{
    const bool changed = !value.empty() && value != "0";
    if (changed != mConfigurationChanged) {
        mConfigurationChanged = changed;
        emit configurationChangedChanged();
    }
}

void ShellMessenger::SetCombinedStatus(std::int16_t, const std::string& text)
{
    if (text != mCombinedStatus) {
        mCombinedStatus = text;
        emit combinedStatusChanged();
    }
}

void ShellMessenger::TransferFocus()
{
    emit focusTransferred();
}

void ShellMessenger::WriteLog(std::int16_t category, const std::string& text)
{
    emit logWritten(QChar{static_cast<char16_t>(category)}, toQt(text));
}

void ShellMessenger::RefreshData()
{
    if (mStore.isOpen()) {
        emit datafileChanged();
    }
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
    emit errorReported(toQt(where), number, toQt(description));
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
    emit logWritten(QChar{static_cast<char16_t>(kLogConfiguration)}, toQt(text));
}

} // namespace quill::shell
