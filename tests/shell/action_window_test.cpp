// The pages that do something with the device.
#include "action_window_fixture.h"

#include <gmock/gmock.h>

#include <cmath>

namespace quill::shell::test {
namespace {

using testing::HasSubstr;

// --- Reset ------------------------------------------------------------------------------------

class ResetWindow : public ActionWindowTest {
protected:
    ResetWindow() { window->showPage("reset"); }
    CtrReset& reset() { return view<CtrReset>("reset"); }
};

TEST_F(ResetWindow, IsForWhoIsOnlineAndMayChangeTheDevice)
{
    EXPECT_FALSE(reset().cmdReset.Enabled);
    goOnline();
    EXPECT_TRUE(reset().cmdReset.Enabled);
    messenger().setUserLevel(2);
    EXPECT_FALSE(reset().cmdReset.Enabled);
    messenger().setUserLevel(kMaintenanceLevel);
    EXPECT_TRUE(reset().cmdReset.Enabled);
}

TEST_F(ResetWindow, AsksBeforeItDestroysAndHeedsTheAnswer)
{
    goOnline();
    press(reset().cceReset[1].cboBox, Qt::Key_Down);
    const std::string before = inDevice("cycleCounter");
    ASSERT_NE(before, "0");
    dialogs.answers.push_back(false);
    click(reset().cmdReset);
    EXPECT_EQ(inDevice("cycleCounter"), before);
    dialogs.answers.push_back(true);
    click(reset().cmdReset);
    EXPECT_EQ(inDevice("cycleCounter"), "0");
    EXPECT_EQ(dialogs.boxes.size(), 2U);
    EXPECT_FALSE(reset().cceReset[1].Modified()) << "done";
}

TEST_F(ResetWindow, AChoiceIsNoEditOfTheDatafile)
{
    const auto before = messenger().GetDatasetXml();
    press(reset().cceReset[1].cboBox, Qt::Key_Down);
    press(reset().cceReset[2].cboBox, Qt::Key_Down);
    EXPECT_EQ(messenger().GetDatasetXml(), before);
    EXPECT_EQ(edits(), 0U);
    window->command("changes")->trigger();
    for (const auto& row : window->changesDialog().control().lstChanges.ListItems()) {
        EXPECT_THAT(row.Text, testing::Not(HasSubstr("Reset")));
    }
    window->changesDialog().reject();
}

TEST_F(ResetWindow, ARefusalOfTheDeviceIsTold)
{
    goOnline();
    press(reset().cceReset[0].cboBox, Qt::Key_Down);
    messenger().device().failNext("hartCmdErrAccessRestricted");
    click(reset().cmdReset);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_THAT(dialogs.boxes[0].text.toStdString(), testing::Not(HasSubstr("Err:")));
}

TEST_F(ResetWindow, WorksByKeyboardAlone)
{
    goOnline();
    window->showPage("reset");
    QWidget* at = QApplication::focusWidget();
    ASSERT_EQ(at, &shown(reset().cceReset[0].cboBox));
    userInput::press(*at, Qt::Key_Tab);
    at = QApplication::focusWidget();
    ASSERT_EQ(at, &shown(reset().cceReset[1].cboBox));
    userInput::press(*at, Qt::Key_Down);
    userInput::press(*at, Qt::Key_Tab);
    userInput::press(*QApplication::focusWidget(), Qt::Key_Tab);
    at = QApplication::focusWidget();
    ASSERT_EQ(at, &shown(reset().cmdReset));
    dialogs.answers.push_back(true);
    userInput::press(*at, Qt::Key_Space);
    waitForDevice();
    EXPECT_EQ(inDevice("cycleCounter"), "0");
}

// --- HART address -----------------------------------------------------------------------------

class AddressWindow : public ActionWindowTest {
protected:
    AddressWindow() { window->showPage("hartAddress"); }
    CtrHartAddress& address() { return view<CtrHartAddress>("hartAddress"); }
    void            chooseMultidrop() { press(address().cceMultidrop.cboBox, Qt::Key_Down); }
};

TEST_F(AddressWindow, ShowsTheAddressOfTheDatafileWhileOffline)
{
    EXPECT_EQ(address().cceAddress.Text(), "0");
    EXPECT_FALSE(address().cmdSet.Enabled);
}

TEST_F(AddressWindow, ShowsTheAddressOfTheDeviceOnceItIsThere)
{
    messenger().device().set("pollingAddress", "7");
    messenger().device().set("multidrop", "1");
    goOnline();
    EXPECT_EQ(address().cceAddress.Text(), "7");
    EXPECT_TRUE(address().cmdSet.Enabled);
}

TEST_F(AddressWindow, SetsItAndEverybodyKnows)
{
    goOnline();
    chooseMultidrop();
    press(address().cceAddress.cboBox, Qt::Key_Down);
    EXPECT_EQ(inDevice("pollingAddress"), "0") << "not before OK";
    click(address().cmdSet);
    EXPECT_EQ(inDevice("pollingAddress"), "2");
    EXPECT_EQ(inDevice("multidrop"), "1");
    EXPECT_EQ(inDocument("pollingAddress", "value"), "2");
    EXPECT_EQ(editor<CtrTextEdit>("pollingAddress").Text(), "2");
    EXPECT_FALSE(address().cceAddress.Modified());
    EXPECT_TRUE(window->log().lines().join('\n').contains("address 2"));
}

TEST_F(AddressWindow, ARefusalIsTold)
{
    goOnline();
    chooseMultidrop();
    messenger().device().failNext("communicationError");
    click(address().cmdSet);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].text, "The device did not take the address.");
    EXPECT_EQ(inDevice("pollingAddress"), "0");
    EXPECT_TRUE(address().cceMultidrop.Modified()) << "the choice stands";
}

TEST_F(AddressWindow, TheButtonComesBackAfterATransfer)
{
    goOnline();
    read("alarms");
    EXPECT_TRUE(address().cmdSet.Enabled);
    messenger().setUserLevel(2);
    EXPECT_FALSE(address().cmdSet.Enabled);
}

TEST_F(AddressWindow, AChoiceIsNoPendingChange)
{
    const auto before = messenger().GetDatasetXml();
    chooseMultidrop();
    EXPECT_TRUE(address().cceMultidrop.Modified());
    EXPECT_EQ(messenger().GetDatasetXml(), before);
    EXPECT_EQ(edits(), 0U);
}

TEST_F(AddressWindow, ATransferLeavesAChoiceThatIsNotSet)
{
    goOnline();
    chooseMultidrop();
    read("alarms");
    EXPECT_TRUE(address().cceMultidrop.Modified());
    EXPECT_EQ(address().cceAddress.Text(), "1");
}

// --- Calibration ------------------------------------------------------------------------------

class CalibrationWindow : public ActionWindowTest {
protected:
    CalibrationWindow()
    {
        messenger().device().function<DevicePhysics>()->model().setDemand(12);
        messenger().device().advance(30);
        goOnline();
        window->showPage("mACalibration");
    }
    CtrMACalibration&  wizard() { return view<CtrMACalibration>("mACalibration"); }
    const LoopCurrent& loop() { return messenger().device().function<CurrentOutput>()->loop(); }
    double             deviation(double current)
    {
        LoopCurrent copy = loop();
        copy.setTest(current);
        return std::abs(copy.measured() - current);
    }
    void type(std::size_t row)
    {
        userInput::type(shown(wizard().cteMACalibration.at(row).txtBox),
                        QString::number(measuredLoopCurrent(messenger().device()), 'f', 3));
    }
};

TEST_F(CalibrationWindow, TakesTwoReadingsAndLeavesTheOutputToTheValve)
{
    ASSERT_GT(deviation(4), 0.01) << "there is something to calibrate";
    click(wizard().cmdNext);
    EXPECT_EQ(loop().test(), 4);
    type(1);
    click(wizard().cmdNext);
    click(wizard().cmdNext);
    EXPECT_EQ(loop().test(), 20);
    type(3);
    click(wizard().cmdNext);
    click(wizard().cmdNext);
    EXPECT_EQ(wizard().miCalibrationStep(), 5);
    EXPECT_FALSE(loop().test().has_value());
    EXPECT_LT(deviation(4), 0.002);
    EXPECT_LT(deviation(20), 0.002);
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(CalibrationWindow, OnlyTheBoxOfItsStepIsOpenAlsoAfterATransfer)
{
    click(wizard().cmdNext);
    for (std::size_t row = 0; row < 4; ++row) {
        EXPECT_EQ(shown(wizard().cteMACalibration[row].txtBox).isEnabled(), row == 1) << row;
    }
    EXPECT_TRUE(shown(wizard().cteMACalibration[1].txtBox).hasFocus());
}

TEST_F(CalibrationWindow, AnErrorOfItsOwnGoesOneStepBackAndOthersDoNot)
{
    click(wizard().cmdNext);
    ASSERT_EQ(wizard().miCalibrationStep(), 1);
    messenger().device().failNext("communicationError");
    read("alarms");
    EXPECT_EQ(wizard().miCalibrationStep(), 1);
    EXPECT_EQ(dialogs.boxes.size(), 1U) << "the user is told of it";
    messenger().device().failNext("communicationError");
    type(1);
    click(wizard().cmdNext);
    EXPECT_EQ(wizard().miCalibrationStep(), 1);
    EXPECT_EQ(dialogs.boxes.size(), 2U);
}

TEST_F(CalibrationWindow, WhoWalksAwayIsAsked)
{
    click(wizard().cmdNext);
    dialogs.answers.push_back(false);
    window->showPage("tuning");
    EXPECT_EQ(shownPage(), "mACalibration");
    EXPECT_TRUE(loop().test().has_value());
    dialogs.answers.push_back(true);
    window->showPage("tuning");
    waitForDevice();
    EXPECT_EQ(shownPage(), "tuning");
    EXPECT_FALSE(loop().test().has_value());
    EXPECT_EQ(wizard().miCalibrationStep(), 0) << "it begins anew the next time";
}

TEST_F(CalibrationWindow, GoingOfflineAsksAndTurnsTheCurrentOffFirst)
{
    messenger().link().setDelay(std::chrono::milliseconds{30});
    click(wizard().cmdNext);
    dialogs.answers.push_back(false);
    userInput::click(toolButton("online"));
    EXPECT_TRUE(messenger().isOnline());
    dialogs.answers.push_back(true);
    userInput::click(toolButton("online"));
    EXPECT_FALSE(messenger().isOnline());
    EXPECT_FALSE(loop().test().has_value());
    EXPECT_FALSE(wizard().cmdNext.Enabled);
}

TEST_F(CalibrationWindow, ClosingTheWindowAsksAndTurnsTheCurrentOffFirst)
{
    messenger().link().setDelay(std::chrono::milliseconds{30});
    click(wizard().cmdNext);
    dialogs.answers.push_back(false);
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(loop().test().has_value());
    dialogs.answers.push_back(true);
    dialogs.saveChoices.push_back(SaveChoice::discard);
    EXPECT_TRUE(window->close());
    EXPECT_FALSE(loop().test().has_value());
}

TEST_F(CalibrationWindow, SoDoesOpeningAnotherDatafile)
{
    click(wizard().cmdNext);
    dialogs.answers.push_back(false);
    window->command("openVX4400F")->trigger();
    EXPECT_EQ(messenger().deviceType(), "VX4400H");
    EXPECT_TRUE(loop().test().has_value());
}

TEST_F(CalibrationWindow, AddsNothingToTheDatafile)
{
    click(wizard().cmdNext);
    type(1);
    click(wizard().cmdNext);
    EXPECT_EQ(messenger().GetDatasetXml().find("loopTestValueStep"), std::string::npos);
    EXPECT_EQ(edits(), 0U);
}

TEST_F(CalibrationWindow, AMeterShowsWhatReallyFlows)
{
    window->command("simulation")->trigger();
    click(wizard().cmdNext);
    window->simulation().refresh();
    bool isShown = false;
    for (const QLabel* label : window->simulation().findChildren<QLabel*>()) {
        isShown = isShown ||
                  label->text() ==
                      QLocale().toString(measuredLoopCurrent(messenger().device()), 'f', 3) + " mA";
    }
    EXPECT_TRUE(isShown);
}

TEST_F(CalibrationWindow, ARestartOfTheDeviceEndsTheTestCurrent)
{
    click(wizard().cmdNext);
    window->command("restartDevice")->trigger();
    EXPECT_FALSE(loop().test().has_value());
    dialogs.answers.push_back(true);
    window->showPage("tuning");
}

// --- Modules ----------------------------------------------------------------------------------

class ModuleWindow : public ActionWindowTest {
protected:
    ModuleWindow()
    {
        openFieldbus();
        window->showPage("moduleSelection");
        userInput::settle();
    }
    CtrModuleSelection& modules() { return view<CtrModuleSelection>("moduleSelection"); }
};

TEST_F(ModuleWindow, OffersTheModulesThatComeWithTheProgram)
{
    EXPECT_EQ(modules().ModuleSelection.List().size(), 4U);
    EXPECT_EQ(modules().ModuleSelection.Text(), "Set point");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ModuleWindow, WritesTheChosenOneAndSaysSo)
{
    press(modules().ModuleSelection, Qt::Key_Down);
    click(modules().cmdSetSelection);
    EXPECT_THAT(messenger().GetHostDocument("FDT"), HasSubstr("C68484080508"));
    EXPECT_TRUE(window->log().lines().contains("The bus configuration was saved."));
}

TEST_F(ActionWindowTest, EachDeviceHasThePagesOfItsKind)
{
    EXPECT_NE(window->book().page("hartAddress"), nullptr);
    EXPECT_NE(window->book().page("mACalibration"), nullptr);
    EXPECT_EQ(window->book().page("moduleSelection"), nullptr);
    openFieldbus();
    EXPECT_EQ(window->book().page("hartAddress"), nullptr);
    EXPECT_EQ(window->book().page("mACalibration"), nullptr);
    EXPECT_NE(window->book().page("moduleSelection"), nullptr);
}

} // namespace
} // namespace quill::shell::test
