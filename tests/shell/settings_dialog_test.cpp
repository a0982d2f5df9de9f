// The settings: a dialog, a file, and the whole window.
#include "shell/settings_dialog.h"

#include "shell/folders.h"
#include "shell/settings_file.h"
#include "window_fixture.h"

#include <QComboBox>
#include <gmock/gmock.h>

#include <filesystem>

namespace quill::shell::test {
namespace {

class SettingsWindow : public WindowTest {
protected:
    SettingsWindow() { startAnew(); }

    void startAnew()
    {
        window = std::make_unique<MainWindow>(&dialogs, Folders::in(folder.path("user")));
        window->statusCycle().setInterval(std::chrono::milliseconds{0});
        window->show();
        window->activateWindow();
        EXPECT_TRUE(window->openDatafile(path()));
        window->showPage("configuration");
        userInput::settle();
    }
    SettingsDialog& dialog() { return window->settingsDialog(); }
    CtrSettings&    control() { return dialog().control(); }
    void            open()
    {
        userInput::click(toolButton("settings"));
        ASSERT_TRUE(dialog().isVisible());
    }
    QWidget& inDialog(const platform::Widget& widget)
    {
        dialog().view().flush();
        return *dialog().view().shown(widget);
    }
    void choose(const platform::ComboBox& box, int key = Qt::Key_Down)
    {
        inDialog(box).setFocus();
        userInput::press(inDialog(box), key);
    }
    [[nodiscard]] std::string unit() { return editor<CtrTextEdit>("supplyLowPressure").Unit(); }
    [[nodiscard]] std::string label()
    {
        return window->book().page("configuration")->labelOf("supplyLowPressure")->Caption;
    }
    Settings onDisk() { return SettingsFile(folder.path("user/settings.json")).load(); }
};

TEST_F(SettingsWindow, ShowsWhatIsInForce)
{
    open();
    EXPECT_EQ(control().cboSelectLanguage.Text(), "English");
    EXPECT_EQ(control().cboSelectLanguage.List().size(), 3U);
    EXPECT_EQ(control().cboStatusClassification.ListIndex(), kClassSeverity);
    EXPECT_GT(control().scgUnits.RowCount(), 10);
    EXPECT_FALSE(inDialog(control().cmdApply).isEnabled());
}

TEST_F(SettingsWindow, TakesEffectEverywhereAtOnceWithOK)
{
    const auto english = label();
    open();
    choose(control().cboSelectLanguage);
    choose(control().cboStatusClassification);
    userInput::click(inDialog(control().cmdUS));
    EXPECT_EQ(label(), english) << "not before";
    EXPECT_EQ(unit(), "bar");
    userInput::click(inDialog(control().cmdOK));
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(messenger().texts().GetLanguage(), "German");
    EXPECT_NE(label(), english);
    EXPECT_EQ(unit(), "psi");
    EXPECT_EQ(messenger().GetStatusClassification(), kClassNAMUR)
        << "chosen together with a language";
    EXPECT_EQ(window->findChild<QComboBox*>("language")->currentText(), "Deutsch");
}

TEST_F(SettingsWindow, ApplyKeepsTheDialogAndTranslatesIt)
{
    open();
    choose(control().cboSelectLanguage);
    userInput::click(inDialog(control().cmdApply));
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(control().lblTitle.Caption.get(), "Einstellungen");
    EXPECT_EQ(control().cboSelectLanguage.Text(), "Deutsch");
    EXPECT_EQ(dialog().windowTitle(), "Einstellungen");
    dialog().reject();
    EXPECT_EQ(messenger().texts().GetLanguage(), "German") << "what was applied stays";
}

TEST_F(SettingsWindow, CancelAndEscapeChangeNothing)
{
    for (const bool byKey : {false, true}) {
        open();
        choose(control().cboSelectLanguage);
        choose(control().cboStatusClassification);
        userInput::click(inDialog(control().cmdUS));
        if (byKey) {
            userInput::press(*dialog().focusWidget(), Qt::Key_Escape);
        } else {
            userInput::click(inDialog(control().cmdCancel));
        }
        EXPECT_FALSE(dialog().isVisible());
        EXPECT_EQ(messenger().texts().GetLanguage(), "English");
        EXPECT_EQ(messenger().GetStatusClassification(), kClassSeverity);
        EXPECT_EQ(unit(), "bar");
    }
    open();
    EXPECT_EQ(control().cboStatusClassification.ListIndex(), kClassSeverity);
    EXPECT_FALSE(control().isModified());
}

TEST_F(SettingsWindow, EnterIsOKAndTheFirstChoiceHasTheFocus)
{
    open();
    QWidget* const first = dialog().focusWidget();
    ASSERT_EQ(first, &inDialog(control().cboSelectLanguage));
    userInput::press(*first, Qt::Key_End);
    userInput::press(*first, Qt::Key_Return);
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(messenger().texts().GetLanguage(), "Finnish");
}

TEST_F(SettingsWindow, SurviveARestart)
{
    open();
    choose(control().cboSelectLanguage);
    choose(control().cboStatusClassification);
    userInput::click(inDialog(control().cmdUS));
    userInput::click(inDialog(control().cmdOK));
    window->command("dark")->trigger();
    messenger().setUserLevel(2);
    startAnew();
    EXPECT_EQ(messenger().texts().GetLanguage(), "German");
    EXPECT_EQ(unit(), "psi");
    EXPECT_EQ(messenger().GetStatusClassification(), kClassNAMUR);
    EXPECT_EQ(messenger().GetUserLevel(), 2);
    EXPECT_EQ(window->findChild<QComboBox*>("userLevel")->currentData().toInt(), 2);
    EXPECT_EQ(window->chosenScheme(), ColorScheme::dark);
    EXPECT_TRUE(window->command("dark")->isChecked());
    window->setScheme(ColorScheme::light);
}

TEST_F(SettingsWindow, WhatTheMenusChangeIsKeptAndShownToo)
{
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->data().toString() == "US") {
            action->trigger();
            EXPECT_TRUE(action->isChecked());
        }
    }
    window->setLanguage("Finnish");
    EXPECT_EQ(onDisk().units["pressure"], "psi");
    EXPECT_EQ(onDisk().language, "Finnish");
    open();
    EXPECT_EQ(control().cboSelectLanguage.Text(), "Suomi");
    userInput::click(inDialog(control().cmdOK));
    EXPECT_EQ(unit(), "psi") << "the dialog did not bring older units back";
}

TEST_F(SettingsWindow, NoSystemIsMarkedWhenTheUnitsAreMixed)
{
    ASSERT_TRUE(messenger().units().SetDisplayUnit("pressure", "psi"));
    messenger().informUnitChanges();
    for (const QAction* action : window->findChildren<QAction*>()) {
        const QString system = action->data().toString();
        if (system == "metric" || system == "US" || system == "SI") {
            EXPECT_FALSE(action->isChecked()) << system.toStdString();
        }
    }
}

TEST_F(SettingsWindow, AFixedClassificationIsNoChoiceAndComesBack)
{
    messenger().SetFixedStatusClassification(kClassSeverity);
    open();
    EXPECT_FALSE(control().cboStatusClassification.Visible);
    userInput::click(inDialog(control().cmdOK));
    dialogs.saveChoices.push_back(SaveChoice::discard);
    window->openSample(); // which fixes none
    open();
    EXPECT_TRUE(control().cboStatusClassification.Visible);
}

TEST_F(SettingsWindow, ADamagedFileIsToldAndReplaced)
{
    window.reset();
    std::filesystem::create_directories(folder.path("user"));
    folder.write("user/settings.json", "{ this is none");
    startAnew();
    ASSERT_FALSE(dialogs.boxes.empty());
    EXPECT_TRUE(dialogs.boxes.front().text.contains("settings.json"));
    window->setLanguage("German");
    EXPECT_EQ(onDisk().language, "German");
}

TEST(SettingsInTests, TouchNothingOfTheUser)
{
    EXPECT_TRUE(Folders{}.settings.empty());
    EXPECT_NE(Folders::ofUser().settings, Folders::ofUser().documents);
    EXPECT_TRUE(Folders::ofUser().settings.ends_with('/'));
    EXPECT_EQ(Folders::in("/a").settings, "/a/");
}

} // namespace
} // namespace quill::shell::test
