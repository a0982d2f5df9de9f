// Every page from the first key to the last, without a mouse.
#include "person_fixture.h"

#include <QClipboard>
#include <gmock/gmock.h>

namespace quill::shell::test {
namespace {

using testing::HasSubstr;

class ByKeyboardAlone : public PersonTest {};

TEST_F(ByKeyboardAlone, TheStatusIsFoundReadAndFolded)
{
    connectByKey();
    model().setFault(Fault::coverOpen, true);
    messenger().device().advance(5);
    key(Qt::Key_T, Qt::ControlModifier);
    ASSERT_EQ(shownPage(), "status");
    auto& status = view<StatusTreeView>("status");
    EXPECT_EQ(QApplication::focusWidget(), &shown(status.scgStatus));
    readByKey();
    EXPECT_EQ(iconOf(status, "statusCoverOpen"), "warning");
    auto& tree = dynamic_cast<QTreeView&>(shown(status.scgStatus));
    key(Qt::Key_Home);
    ASSERT_TRUE(tree.isExpanded(tree.model()->index(0, 0)));
    key(Qt::Key_Left);
    EXPECT_FALSE(tree.isExpanded(tree.model()->index(0, 0)));
    key(Qt::Key_Right);
    EXPECT_TRUE(tree.isExpanded(tree.model()->index(0, 0)));
    key(Qt::Key_Down);
    EXPECT_EQ(status.scgStatus.CurRow(), 2);
}

TEST_F(ByKeyboardAlone, ConditionsAreSwitchedOffOnlineAndOffline)
{
    connectByKey();
    walkToPage("statusConfiguration");
    auto& status = view<CtrStatusF>("statusConfiguration");
    readByKey();
    ASSERT_TRUE(tabTo(status.cmdConfiguration));
    key(Qt::Key_Space);
    ASSERT_TRUE(status.IsConfiguring());
    const auto toggle = [&](const char* condition) {
        ASSERT_TRUE(tabTo(status.scgStatus, Qt::Key_Backtab));
        key(Qt::Key_Home);
        const int row = rowOf(status, condition);
        while (status.scgStatus.CurRow() < row) {
            key(Qt::Key_Down);
        }
        key(Qt::Key_Space);
        EXPECT_THAT(iconOf(status, condition), HasSubstr("modified"));
    };
    const std::string before = inDevice("statusMask1");
    toggle("statusCoverOpen");
    ASSERT_TRUE(tabTo(status.cmdDownload));
    key(Qt::Key_Space);
    await();
    EXPECT_FALSE(status.IsConfiguring());
    EXPECT_NE(inDevice("statusMask1"), before);
    EXPECT_EQ(inDocument("statusMask1", "value"), inDevice("statusMask1"));

    key(Qt::Key_L, Qt::ControlModifier);
    ASSERT_FALSE(messenger().isOnline());
    ASSERT_TRUE(tabTo(status.cmdConfiguration));
    key(Qt::Key_Space);
    toggle("statusCoverOpen");
    ASSERT_TRUE(tabTo(status.cmdDownload));
    key(Qt::Key_Space);
    EXPECT_FALSE(status.IsConfiguring());
    EXPECT_EQ(inDocument("statusMask1", "value"), before);
    EXPECT_NE(inDevice("statusMask1"), before) << "the device has not heard of it";
}

TEST_F(ByKeyboardAlone, OptionsAreEditedAndSent)
{
    connectByKey();
    walkToPage("options");
    readByKey();
    auto& option = editor<CtrOptionEdit>("failsafeAction");
    EXPECT_TRUE(QApplication::focusWidget()->parentWidget()->isVisible());
    const std::string before = option.Selected();
    key(Qt::Key_Down);
    EXPECT_NE(option.Selected(), before);
    auto& interval = editor<CtrTimeEdit>("serviceInterval");
    ASSERT_TRUE(tabTo(interval.txtBox[0]));
    keys("30");
    key(Qt::Key_Tab);
    keys("6");
    auto& checks = editor<CtrCheckEdit>("alarmMask");
    ASSERT_TRUE(tabTo(checks.scgCheck));
    key(Qt::Key_Down);
    key(Qt::Key_Space);
    EXPECT_TRUE(option.Modified() && interval.Modified() && checks.Modified());
    const std::string mask = inDevice("alarmMask");
    key(Qt::Key_D, Qt::ControlModifier);
    ASSERT_TRUE(window->changesDialog().isVisible());
    key(Qt::Key_Return);
    await();
    EXPECT_FALSE(window->changesDialog().isVisible());
    EXPECT_EQ(inDevice("failsafeAction"), option.Selected());
    EXPECT_NEAR(std::stod(inDevice("serviceInterval")), 30.25, 1e-3) << "in days";
    EXPECT_NE(inDevice("alarmMask"), mask);
    EXPECT_FALSE(option.Modified() || interval.Modified() || checks.Modified());
}

class LogByKeyboardAlone : public PersonTest, public testing::WithParamInterface<bool> {};

INSTANTIATE_TEST_SUITE_P(Devices, LogByKeyboardAlone, testing::Values(false, true),
                         [](const auto& fieldbus) { return fieldbus.param ? "F" : "H"; });

TEST_P(LogByKeyboardAlone, TheEventLogIsReadToItsEndAndCopied)
{
    if (GetParam()) {
        openFieldbus();
    }
    connectByKey();
    walkToPage("eventLog");
    auto& log = view<CtrEventLog>("eventLog");
    readByKey();
    ASSERT_TRUE(tabTo(log.lsvEventLog));
    const int first = log.lsvEventLog.Count();
    key(Qt::Key_End);
    key(Qt::Key_PageDown);
    await();
    EXPECT_GT(log.lsvEventLog.Count(), first);
    for (int pages = 0; log.cmdNext.Enabled && pages < 20; ++pages) {
        ASSERT_TRUE(tabTo(log.cmdNext));
        key(Qt::Key_Space);
        await();
    }
    EXPECT_FALSE(log.cmdNext.Enabled);
    EXPECT_GT(log.lsvEventLog.Count(), 60);
    ASSERT_TRUE(tabTo(log.lsvEventLog));
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    const auto lines = QApplication::clipboard()->text().split("\r\n", Qt::SkipEmptyParts);
    EXPECT_GE(lines.size(), log.lsvEventLog.Count());
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ByKeyboardAlone, ARowIsResetThatTheUserWalkedTo)
{
    connectByKey();
    walkToPage("reset");
    auto& reset = view<CtrReset>("reset");
    EXPECT_EQ(QApplication::focusWidget(), &shown(reset.cceReset[0].cboBox));
    ASSERT_TRUE(tabTo(reset.cceReset[1].cboBox));
    key(Qt::Key_Down);
    ASSERT_TRUE(tabTo(reset.cmdReset));
    dialogs.answers.push_back(true);
    key(Qt::Key_Space);
    await();
    EXPECT_EQ(inDevice("cycleCounter"), "0");
}

TEST_F(ByKeyboardAlone, TheAddressIsChanged)
{
    connectByKey();
    walkToPage("hartAddress");
    auto& address = view<CtrHartAddress>("hartAddress");
    EXPECT_EQ(QApplication::focusWidget(), &shown(address.cceMultidrop.cboBox));
    key(Qt::Key_Down);
    ASSERT_TRUE(tabTo(address.cceAddress.cboBox));
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    ASSERT_TRUE(tabTo(address.cmdSet));
    key(Qt::Key_Space);
    await();
    EXPECT_EQ(inDevice("pollingAddress"), "3");
    EXPECT_EQ(inDocument("pollingAddress", "value"), "3");
}

TEST_F(ByKeyboardAlone, TheOutputIsCalibrated)
{
    connectByKey();
    walkToPage("mACalibration");
    auto&      wizard = view<CtrMACalibration>("mACalibration");
    const auto next   = [&] {
        ASSERT_TRUE(tabTo(wizard.cmdNext));
        key(Qt::Key_Space);
        await();
    };
    const auto typeReading = [&](std::size_t row) {
        // The wizard leads to the box that is open.
        ASSERT_EQ(QApplication::focusWidget(), &shown(wizard.cteMACalibration.at(row).txtBox));
        keys(QString::number(measuredLoopCurrent(messenger().device()), 'f', 3));
    };
    EXPECT_EQ(QApplication::focusWidget(), &shown(wizard.cteMACalibration[0].txtBox));
    next();
    EXPECT_EQ(loop().test(), 4);
    typeReading(1);
    next();
    next();
    EXPECT_EQ(loop().test(), 20);
    typeReading(3);
    next();
    next();
    EXPECT_EQ(wizard.miCalibrationStep(), 5);
    EXPECT_FALSE(loop().test().has_value());
    LoopCurrent tried = loop();
    for (const double current : {4.0, 12.0, 20.0}) {
        tried.setTest(current);
        EXPECT_NEAR(tried.measured(), current, 0.002);
    }
}

TEST_F(ByKeyboardAlone, AModuleIsChosen)
{
    openFieldbus();
    walkToPage("moduleSelection");
    auto& modules = view<CtrModuleSelection>("moduleSelection");
    ASSERT_EQ(QApplication::focusWidget(), &shown(modules.ModuleSelection));
    key(Qt::Key_Down);
    const std::string chosen = modules.ModuleSelection.Text();
    EXPECT_NE(chosen, "Set point");
    ASSERT_TRUE(tabTo(modules.cmdSetSelection));
    key(Qt::Key_Space);
    EXPECT_THAT(messenger().GetHostDocument("FDT"), HasSubstr(chosen));
}

TEST_F(ByKeyboardAlone, EverySettingIsChangedAndTakesEffect)
{
    walkToPage("configuration");
    key(Qt::Key_Comma, Qt::ControlModifier);
    auto& dialog = window->settingsDialog();
    ASSERT_TRUE(dialog.isVisible());
    auto&      control  = dialog.control();
    const auto inDialog = [&](const platform::Widget& widget) -> QWidget& {
        dialog.view().flush();
        return *dialog.view().shown(widget);
    };
    ASSERT_EQ(QApplication::focusWidget(), &inDialog(control.cboSelectLanguage));
    key(Qt::Key_Down);
    EXPECT_EQ(control.cboSelectLanguage.Text(), "Deutsch");
    ASSERT_TRUE(tabTo(inDialog(control.cboStatusClassification)));
    key(Qt::Key_Down);

    // One unit by its list.
    ASSERT_TRUE(tabTo(inDialog(control.scgUnits)));
    int pressure = 0;
    for (int row = 1; row <= control.scgUnits.RowCount(); ++row) {
        pressure = control.scgUnitsKey.cell(row, 1).Text == "pressure" ? row : pressure;
    }
    ASSERT_GT(pressure, 0);
    key(Qt::Key_Down);
    key(Qt::Key_Home);
    ASSERT_EQ(control.scgUnits.CurRow(), 1);
    while (control.scgUnits.CurRow() < pressure) {
        key(Qt::Key_Down);
    }
    while (control.scgUnits.CurCol() < 2) {
        key(Qt::Key_Right);
    }
    key(Qt::Key_F2);
    auto&      tree = dynamic_cast<QTreeView&>(inDialog(control.scgUnits));
    QComboBox* box  = nullptr;
    for (QComboBox* const found : tree.viewport()->findChildren<QComboBox*>()) {
        box = found->isVisible() ? found : box;
    }
    ASSERT_NE(box, nullptr);
    ASSERT_TRUE(box->view()->isVisible());
    QTest::keyClick(box->view(), box->currentIndex() > 0 ? Qt::Key_Up : Qt::Key_Down);
    userInput::settle();
    QTest::keyClick(box->view(), Qt::Key_Return);
    userInput::settle();
    const std::string chosen = control.scgUnits.cell(pressure, 2).Text;
    EXPECT_NE(chosen, "bar");
    ASSERT_TRUE(tabTo(inDialog(control.cmdOK)));
    key(Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(messenger().texts().GetLanguage(), "German");
    EXPECT_EQ(messenger().GetStatusClassification(), kClassNAMUR);
    EXPECT_EQ(editor<CtrTextEdit>("supplyLowPressure").Unit(), chosen);
}

TEST_F(ByKeyboardAlone, TheTabKeyReachesEveryPartOfTheSettings)
{
    key(Qt::Key_Comma, Qt::ControlModifier);
    auto&        dialog  = window->settingsDialog();
    CtrSettings& control = dialog.control();
    dialog.view().flush();
    (void)control.cboSelectLanguage.choose(1); // so that something can be applied
    userInput::settle();
    for (const platform::Widget* part : std::initializer_list<const platform::Widget*>{
             &control.cboSelectLanguage, &control.cboStatusClassification, &control.scgUnits,
             &control.cmdSI, &control.cmdUS, &control.cmdOK, &control.cmdCancel,
             &control.cmdApply}) {
        EXPECT_TRUE(tabTo(*dialog.view().shown(*part))) << part->Name;
    }
    key(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(messenger().texts().GetLanguage(), "English");
}

TEST_F(ByKeyboardAlone, EveryPageHandsTheFocusAroundAndBack)
{
    auto* const pages = window->findChild<QTreeWidget*>("pages");
    for (const bool fieldbus : {false, true}) {
        if (fieldbus) {
            openFieldbus();
        }
        connectByKey();
        for (const auto& page : window->book().pages()) {
            SCOPED_TRACE(page->Tag.get());
            walkToPage(page->Tag.get().c_str());
            EXPECT_TRUE(tabTo(*pages)) << "forwards";
            walkToPage(page->Tag.get().c_str());
            EXPECT_TRUE(tabTo(*pages, Qt::Key_Backtab)) << "backwards";
        }
        key(Qt::Key_L, Qt::ControlModifier);
    }
}

} // namespace
} // namespace quill::shell::test
