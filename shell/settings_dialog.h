#pragma once

#include "framework/named_callbacks.h"
#include "qt/view.h"
#include "records/CtrSettings.h"
#include "shell/control_dialog.h"
#include "shell/shell_messenger.h"

#include <QTimer>

#include <memory>

namespace quill::shell {

/// The page that the settings control stands on: it does for the whole program what the control
/// asks of it by name.
class SettingsPage : public platform::Control, public NamedCallbacks {
public:
    explicit SettingsPage(ShellMessenger& messenger);
    ~SettingsPage() override;

    CtrSettings settings{*this, {.Name = "settings", .Tag = "settings", .Visible = false}};

    [[nodiscard]] const char* TypeName() const override { return "SettingsPage"; }

    void callByName(const std::string& method, const std::vector<std::string>& args) override;

private:
    ShellMessenger& mMessenger;
};

/// The settings in a window. Each time it comes up it shows what is in force then.
class SettingsDialog : public ControlDialog {
    Q_OBJECT

public:
    /// The messenger must outlive the dialog.
    SettingsDialog(ShellMessenger& messenger, QWidget* parent);
    ~SettingsDialog() override;

    [[nodiscard]] CtrSettings& control() { return mPage->settings; }
    [[nodiscard]] qt::View&    view() { return *mView; }

    void ask();
    /// Shows its texts in the language in force, once the control has done what it is about.
    void localize();

protected:
    [[nodiscard]] platform::CommandButton& mainButton() override { return mPage->settings.cmdOK; }
    [[nodiscard]] platform::CommandButton& leaveButton() override
    {
        return mPage->settings.cmdCancel;
    }
    void arrange() override;

private:
    void makePage();
    void takeTexts();

    ShellMessenger&               mMessenger;
    std::unique_ptr<SettingsPage> mPage;
    std::unique_ptr<qt::View>     mView;
    QTimer                        mTextsTimer;
};

} // namespace quill::shell
