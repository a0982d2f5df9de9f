#include "shell/settings_dialog.h"

#include "framework/caption_width.h"
#include "platform/failure.h"
#include "qt/geometry.h"
#include "shell/languages.h"

#include <algorithm>

namespace quill::shell {

namespace {

// Lengths in twips. At this size most quantities are seen at once.
constexpr std::int32_t kWidth       = 9600;
constexpr std::int32_t kHeight      = 9000;
constexpr std::int32_t kLeastHeight = 6000;
constexpr std::int32_t kPadding     = 480;

std::vector<std::string> writtenLanguages()
{
    std::vector<std::string> result;
    for (const Language& language : kLanguages) {
        result.emplace_back(language.written);
    }
    return result;
}

} // namespace

// --- The page ---------------------------------------------------------------------------------

SettingsPage::SettingsPage(ShellMessenger& messenger)
    : Control({.Name = "settingsPage"}), mMessenger(messenger)
{
    settings.SetMessenger(&messenger);
    settings.SetSupportedLanguages(writtenLanguages());
    settings.SetCurrentLanguage(writtenLanguage(messenger.texts().GetLanguage()));
}

SettingsPage::~SettingsPage()
{
    settings.SetMessenger(nullptr);
}

void SettingsPage::callByName(const std::string& method, const std::vector<std::string>& args)
{
    if (method == "QuillTranslateTexts" && args.size() == 1) {
        mMessenger.setLanguage(languageByWritten(args.front()));
    } else if (method == "QuillInformUnitChanges") {
        mMessenger.informUnitChanges();
    } else {
        throw platform::failure(platform::kNotSupportedByObject);
    }
}

// --- The window -------------------------------------------------------------------------------

SettingsDialog::SettingsDialog(ShellMessenger& messenger, QWidget* parent)
    : ControlDialog(parent), mMessenger(messenger)
{
    setMinimumSize(qt::toPixels(kWidth), qt::toPixels(kLeastHeight));
    resize(qt::toPixels(kWidth), qt::toPixels(kHeight));
    mTextsTimer.setSingleShot(true);
    connect(&mTextsTimer, &QTimer::timeout, this, &SettingsDialog::takeTexts);
    makePage();
}

SettingsDialog::~SettingsDialog() = default;

void SettingsDialog::makePage()
{
    mView.reset();
    mPage = std::make_unique<SettingsPage>(mMessenger);
    mView = std::make_unique<qt::View>(*mPage, this);
    follow(mPage->settings);
    takeTexts();
}

void SettingsDialog::ask()
{
    if (isVisible()) {
        return;
    }
    // The control reads units and what can be chosen only once; others choose them too.
    makePage();
    mView->show();
    open();
    mPage->settings.show();
    arrange();
    mView->flush();
    markMainButton(*mView);
}

void SettingsDialog::localize()
{
    // The control may be in the middle of putting choices into force, one after the other, and new
    // texts would put its lists back to what was in force before.
    mTextsTimer.start(0);
}

void SettingsDialog::takeTexts()
{
    mTextsTimer.stop();
    mMessenger.localize(mPage->settings);
    setWindowTitle(mMessenger.texts().text("settings"));
    arrange();
}

void SettingsDialog::arrange()
{
    if (!mPage) {
        return;
    }
    mView->resize(size());
    const std::int32_t width  = qt::toTwips(this->width());
    const std::int32_t height = qt::toTwips(this->height());
    mPage->resize(width, height);
    CtrSettings& settings = mPage->settings;
    for (platform::CommandButton* button : {&settings.cmdSI, &settings.cmdUS, &settings.cmdOK,
                                            &settings.cmdCancel, &settings.cmdApply}) {
        button->Width = std::max(button->Width.get(), captionWidth(button->Caption) + kPadding);
    }
    settings.resize(width, height);
}

} // namespace quill::shell
