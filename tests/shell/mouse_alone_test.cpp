// Every page by the mouse, and by keys only where something is typed.
#include "person_fixture.h"

#include <gmock/gmock.h>

namespace quill::shell::test {
namespace {

using testing::HasSubstr;

class ByMouseAlone : public PersonTest {};

TEST_F(ByMouseAlone, FaultsAreMadeAndTheStatusFollows)
{
    clickCommand("online");
    clickPage("status");
    window->command("simulation")->trigger(); // of a menu
    userInput::settle();
    auto&      status = view<StatusTreeView>("status");
    auto&      pane   = window->simulation();
    const auto toggle = [&](const char* name) {
        const QModelIndex row = pane.tree().indexFromItem(pane.row(name));
        pane.tree().scrollTo(row);
        userInput::settle();
        const QRect place = pane.tree().visualRect(row);
        mouse(*pane.tree().viewport(), QPoint(place.left() + 10, place.center().y()));
    };
    toggle("faultCoverOpen");
    EXPECT_TRUE(model().has(Fault::coverOpen));
    messenger().device().advance(5);
    clickCommand("readPage");
    EXPECT_EQ(iconOf(status, "statusCoverOpen"), "warning");
    toggle("faultCoverOpen");
    messenger().device().advance(5);
    clickCommand("readPage");
    EXPECT_EQ(iconOf(status, "statusCoverOpen"), "ok");
}

TEST_F(ByMouseAlone, ConditionsAreSwitchedOff)
{
    clickCommand("online");
    clickPage("statusConfiguration");
    clickCommand("readPage");
    auto& status = view<CtrStatusF>("statusConfiguration");
    mouse(status.cmdConfiguration);
    ASSERT_TRUE(status.IsConfiguring());
    const int row = rowOf(status, "statusCoverOpen");
    clickCell(status.scgStatus, row, 1, 10);
    EXPECT_EQ(iconOf(status, "statusCoverOpen"), "checkDisabledmodified");
    clickCell(status.scgStatus, row, 1, 10);
    EXPECT_EQ(iconOf(status, "statusCoverOpen"), "checkEnabled");
    clickCell(status.scgStatus, row, 1); // in the middle of the row
    EXPECT_EQ(iconOf(status, "statusCoverOpen"), "checkDisabledmodified");
    const std::string before = inDevice("statusMask1");
    mouse(status.cmdDownload);
    EXPECT_FALSE(status.IsConfiguring());
    EXPECT_NE(inDevice("statusMask1"), before);
    EXPECT_EQ(inDocument("statusMask1", "value"), inDevice("statusMask1"));
}

TEST_F(ByMouseAlone, OptionsAreEditedAndSent)
{
    clickCommand("online");
    clickPage("options");
    clickCommand("readPage");
    auto& option   = editor<CtrOptionEdit>("failsafeAction");
    auto& checks   = editor<CtrCheckEdit>("alarmMask");
    auto& interval = editor<CtrTimeEdit>("serviceInterval");
    mouse(option.Option(4));
    EXPECT_EQ(option.Text(), "Hold position");
    const std::string mask = inDevice("alarmMask");
    clickCell(checks.scgCheck, 3, 2);
    EXPECT_TRUE(checks.Modified());
    auto& hours = shown(interval.txtBox[1]);
    mouse(hours);
    QTest::mouseDClick(&hours, Qt::LeftButton, {}, hours.rect().center());
    QTest::keyClicks(&hours, "6");
    userInput::settle();
    clickCommand("changes");
    auto& dialog = window->changesDialog();
    ASSERT_TRUE(dialog.isVisible());
    dialog.view().flush();
    mouse(*dialog.view().shown(dialog.control().cmdDownload));
    await();
    EXPECT_EQ(inDevice("failsafeAction"), "4");
    EXPECT_EQ(std::stoi(inDevice("alarmMask")), std::stoi(mask) ^ 4);
    EXPECT_NEAR(std::stod(inDevice("serviceInterval")), 200.25, 1e-3);
    EXPECT_FALSE(option.Modified() || checks.Modified() || interval.Modified());
}

class LogByMouseAlone : public PersonTest, public testing::WithParamInterface<bool> {};

INSTANTIATE_TEST_SUITE_P(Devices, LogByMouseAlone, testing::Values(false, true),
                         [](const auto& fieldbus) { return fieldbus.param ? "F" : "H"; });

TEST_P(LogByMouseAlone, TheEventLogIsReadToItsEnd)
{
    if (GetParam()) {
        openFieldbus();
    }
    clickCommand("online");
    clickPage("eventLog");
    clickCommand("readPage");
    auto& log = view<CtrEventLog>("eventLog");
    for (int pages = 0; log.cmdNext.Enabled && pages < 20; ++pages) {
        mouse(log.cmdNext);
    }
    EXPECT_FALSE(log.cmdNext.Enabled);
    EXPECT_GT(log.lsvEventLog.Count(), 60);
    const int last = log.lsvEventLog.Count();
    clickCell(log.lsvEventLog, last, 2);
    EXPECT_TRUE(log.lsvEventLog.Item(last).Selected);
    clickCell(log.lsvEventLog, 1, 2);
    EXPECT_TRUE(log.lsvEventLog.Item(1).Selected);
    EXPECT_FALSE(log.lsvEventLog.Item(last).Selected);
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ByMouseAlone, ARowIsReset)
{
    clickCommand("online");
    clickPage("reset");
    auto& reset = view<CtrReset>("reset");
    pick(reset.cceReset[1].cboBox, 1);
    ASSERT_EQ(reset.cceReset[1].Text(), "Counters");
    dialogs.answers.push_back(true);
    mouse(reset.cmdReset);
    EXPECT_EQ(inDevice("cycleCounter"), "0");
    EXPECT_FALSE(reset.cceReset[1].Modified());
}

TEST_F(ByMouseAlone, TheAddressIsChanged)
{
    clickCommand("online");
    clickPage("hartAddress");
    auto& address = view<CtrHartAddress>("hartAddress");
    pick(address.cceMultidrop.cboBox, 1);
    pick(address.cceAddress.cboBox, 6);
    const std::string chosen = address.cceAddress.Text();
    EXPECT_EQ(inDevice("pollingAddress"), "0") << "not yet";
    mouse(address.cmdSet);
    EXPECT_EQ(inDevice("pollingAddress"), chosen);
    EXPECT_EQ(inDocument("pollingAddress", "value"), chosen);
    EXPECT_EQ(inDevice("multidrop"), "1");
}

TEST_F(ByMouseAlone, TheOutputIsCalibrated)
{
    clickCommand("online");
    clickPage("mACalibration");
    auto&      wizard      = view<CtrMACalibration>("mACalibration");
    const auto typeReading = [&](std::size_t row) {
        mouse(shown(wizard.cteMACalibration.at(row).txtBox));
        QTest::keyClicks(&shown(wizard.cteMACalibration.at(row).txtBox),
                         QString::number(measuredLoopCurrent(messenger().device()), 'f', 3));
        userInput::settle();
    };
    mouse(wizard.cmdNext);
    mouse(wizard.cmdBack);
    EXPECT_EQ(wizard.miCalibrationStep(), 0);
    mouse(wizard.cmdNext);
    typeReading(1);
    mouse(wizard.cmdNext);
    mouse(wizard.cmdNext);
    typeReading(3);
    mouse(wizard.cmdNext);
    mouse(wizard.cmdNext);
    EXPECT_EQ(wizard.miCalibrationStep(), 5);
    EXPECT_FALSE(loop().test().has_value());
    LoopCurrent tried = loop();
    tried.setTest(12);
    EXPECT_NEAR(tried.measured(), 12, 0.002);
}

TEST_F(ByMouseAlone, AModuleIsChosen)
{
    openFieldbus();
    clickPage("moduleSelection");
    auto& modules = view<CtrModuleSelection>("moduleSelection");
    pick(modules.ModuleSelection, 2);
    const std::string chosen = modules.ModuleSelection.Text();
    mouse(modules.cmdSetSelection);
    EXPECT_THAT(messenger().GetHostDocument("FDT"), HasSubstr(chosen));
}

TEST_F(ByMouseAlone, EverySettingIsChangedAndTakesEffect)
{
    clickPage("configuration");
    clickCommand("settings");
    auto& dialog = window->settingsDialog();
    ASSERT_TRUE(dialog.isVisible());
    auto&      control  = dialog.control();
    const auto inDialog = [&](const platform::Widget& widget) -> QWidget& {
        dialog.view().flush();
        return *dialog.view().shown(widget);
    };
    pick(dynamic_cast<QComboBox&>(inDialog(control.cboSelectLanguage)), 1);
    pick(dynamic_cast<QComboBox&>(inDialog(control.cboStatusClassification)), 1);
    mouse(inDialog(control.cmdUS));
    auto& tree     = dynamic_cast<QTreeView&>(inDialog(control.scgUnits));
    int   pressure = 0;
    for (int row = 1; row <= control.scgUnits.RowCount(); ++row) {
        pressure = control.scgUnits.cell(row, 2).Text == "psi" ? row : pressure;
    }
    ASSERT_GT(pressure, 0);
    const auto cell = userInput::rowNumber(tree, pressure).siblingAtColumn(1);
    tree.scrollTo(cell);
    userInput::settle();
    mouse(*tree.viewport(), tree.visualRect(cell).center());
    QComboBox* box = nullptr;
    for (QComboBox* const found : tree.viewport()->findChildren<QComboBox*>()) {
        box = found->isVisible() ? found : box;
    }
    ASSERT_NE(box, nullptr) << "a click opens the list";
    const int kPa = box->findText("kPa");
    ASSERT_GE(kPa, 0);
    QTest::qWait(QApplication::doubleClickInterval());
    const QRect place = box->view()->visualRect(box->model()->index(kPa, 0));
    QTest::mouseMove(box->view()->viewport(), place.center());
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, {}, place.center());
    userInput::settle();
    EXPECT_EQ(control.scgUnits.cell(pressure, 2).Text, "kPa");
    mouse(inDialog(control.cmdOK));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(messenger().texts().GetLanguage(), "German");
    EXPECT_EQ(messenger().GetStatusClassification(), kClassNAMUR);
    EXPECT_EQ(editor<CtrTextEdit>("supplyLowPressure").Unit(), "kPa");
}

} // namespace
} // namespace quill::shell::test
