#include "shell/tour_actions.h"

#include "actions/CtrHartAddress.h"
#include "actions/CtrMACalibration.h"
#include "actions/CtrModuleSelection.h"
#include "actions/CtrReset.h"
#include "editors/CtrCheckEdit.h"
#include "editors/CtrOptionEdit.h"
#include "editors/CtrTextEdit.h"
#include "editors/CtrTimeEdit.h"
#include "qt/text.h"
#include "records/CtrEventLog.h"
#include "shell/device_actions.h"
#include "shell/device_events.h"
#include "shell/device_physics.h"
#include "shell/user_input.h"

#include <QAction>
#include <QLineEdit>
#include <QTreeView>

#include <cmath>

namespace quill::shell {

namespace {

using qt::toQt;

SimulatedDevice& deviceOf(TourGuide& guide)
{
    return guide.window().messenger().device();
}

std::string inDevice(TourGuide& guide, const char* parameter)
{
    const DeviceParameter* const found = deviceOf(guide).find(parameter);
    return found != nullptr ? found->value : "missing";
}

/// The arrow key, pressed on a drop-down list.
void step(TourGuide& guide, const platform::ComboBox& list, int key)
{
    QWidget& box = guide.shown(list);
    box.setFocus();
    userInput::press(box, key);
}

void openOther(TourGuide& guide, const char* command)
{
    guide.dialogs().saveChoices.push_back(SaveChoice::discard);
    guide.window().command(command)->trigger();
    userInput::settle();
    guide.dialogs().saveChoices.clear();
}

// --- Event log --------------------------------------------------------------------------------

/// Rows of the whole log: events that are not obsolete, a line behind each reset, the end mark.
int expectedRows(TourGuide& guide)
{
    const EventRing& ring = deviceOf(guide).function<DeviceEvents>()->ring();
    int              rows = 1;
    for (auto number = ring.oldest(); number < ring.next(); ++number) {
        const std::string& key = ring.find(number)->key;
        rows += key == kEventObsolete ? 0 : 1;
        rows += key == kEventExternalReset ? 1 : 0;
    }
    return rows;
}

void readWholeLog(TourGuide& guide, const QString& sample)
{
    auto& view = guide.view<CtrEventLog>("eventLog");
    guide.window().showPage("eventLog");
    guide.forget();
    guide.clickCommand("readPage");
    guide.waitForDevice();
    guide.check(view.cmdNext.Enabled, sample + ": the newest events are there, and there are more");
    guide.check(
        view.lblOperationTime[0].Caption.get().find_first_of("123456789") != std::string::npos,
        "the total operation time is told: " + toQt(view.lblOperationTime[0].Caption) + " h");
    guide.check(!eventLog::column(view.lsvEventLog.Item(1), eventLog::kDate).empty(),
                "each event has its date");
    guide.picture("event-log-" + sample.toLower());
    int pages = 1;
    for (; view.cmdNext.Enabled && pages < 20; ++pages) {
        const int before = view.lsvEventLog.Count();
        userInput::click(guide.shown(view.cmdNext));
        guide.waitForDevice();
        guide.check(view.lsvEventLog.Count() > before,
                    QString("page %1 brings older ones").arg(pages + 1));
    }
    guide.check(!view.cmdNext.Enabled, QString("after %1 pages the log ends").arg(pages));
    guide.check(view.lsvEventLog.Count() == expectedRows(guide),
                QString("the list holds what the device has: %1 rows").arg(expectedRows(guide)));
    guide.check(view.lblFootnote.Visible, "dates behind a reset are told to be estimates");
    view.lsvEventLog.EnsureVisible(view.lsvEventLog.Count());
    guide.picture("event-log-end-" + sample.toLower());
}

// --- Calibration ------------------------------------------------------------------------------

bool isCurrentFixed(TourGuide& guide)
{
    return deviceOf(guide).function<CurrentOutput>()->loop().test().has_value();
}

void clickNext(TourGuide& guide)
{
    userInput::click(guide.shown(guide.view<CtrMACalibration>("mACalibration").cmdNext));
    guide.waitForDevice();
}

/// What a technician does: looks at the meter and types what it shows.
double typeReading(TourGuide& guide, std::size_t row)
{
    auto&        view    = guide.view<CtrMACalibration>("mACalibration");
    const double reading = measuredLoopCurrent(deviceOf(guide));
    userInput::type(guide.shown(view.cteMACalibration.at(row).txtBox),
                    QLocale::c().toString(reading, 'f', 3));
    return reading;
}

/// How far the output would be off at this current.
double deviationAt(TourGuide& guide, double current)
{
    LoopCurrent loop = deviceOf(guide).function<CurrentOutput>()->loop();
    loop.setTest(current);
    return std::abs(loop.measured() - current);
}

} // namespace

void editTheOptions(TourGuide& guide)
{
    guide.startAnew();
    auto& window = guide.window();
    guide.clickCommand("online");
    window.showPage("options");
    guide.clickCommand("readPage");
    guide.waitForDevice();
    auto& option   = guide.editor<CtrOptionEdit>("failsafeAction");
    auto& interval = guide.editor<CtrTimeEdit>("serviceInterval");
    auto& checks   = guide.editor<CtrCheckEdit>("alarmMask");
    guide.check(option.Text() == "Move open",
                "the device's choice is marked: " + toQt(option.Text()));
    guide.check(interval.txtBox[0].Text.get() == "200" && interval.txtBox[1].Text.get() == "0",
                "the service interval is 200 days");
    guide.check(checks.originalValue() == "19", "the device's alarms are checked");
    guide.picture("options-read");

    userInput::click(guide.shown(option.Option(0)));
    guide.check(option.Modified() && option.Text() == "No action", "a click chooses: \"*\"");
    userInput::type(guide.shown(interval.txtBox[0]), "100");
    guide.check(interval.Modified() && interval.Correct(), "100 days: \"*\"");
    auto& tree = dynamic_cast<QTreeView&>(guide.shown(checks.scgCheck));
    tree.setFocus();
    userInput::press(tree, Qt::Key_Down);
    userInput::press(tree, Qt::Key_Down);
    userInput::press(tree, Qt::Key_Space);
    guide.check(checks.Modified(), "the space bar checks the third alarm");
    guide.picture("options-edited");

    guide.clickCommand("changes");
    auto& dialog = window.changesDialog();
    guide.check(dialog.control().lstChanges.ListItems().size() >= 3,
                "the changes are listed, with others that were there before");
    guide.picture("options-changes", 1, &dialog);
    dialog.view().flush();
    userInput::click(*dialog.view().shown(dialog.control().cmdDownload));
    guide.waitForDevice();
    guide.check(inDevice(guide, "failsafeAction") == "0", "the device has the choice");
    guide.check(inDevice(guide, "alarmMask") == "23",
                "the device has the alarms: " + toQt(inDevice(guide, "alarmMask")));
    guide.check(std::abs(toQt(inDevice(guide, "serviceInterval")).toDouble() - 100) < 1e-3,
                "the device has the interval: " + toQt(inDevice(guide, "serviceInterval")) + " d");
    guide.check(!option.Modified() && !interval.Modified() && !checks.Modified(),
                "the signs have gone");
}

void readTheEventLog(TourGuide& guide)
{
    readWholeLog(guide, "HART");
    openOther(guide, "openVX4400F");
    readWholeLog(guide, "Fieldbus");
    openOther(guide, "openVX4400H");
}

void resetTheDevice(TourGuide& guide)
{
    auto& window = guide.window();
    window.showPage("reset");
    auto& view = guide.view<CtrReset>("reset");
    step(guide, view.cceReset[1].cboBox, Qt::Key_Down);
    guide.check(view.cceReset[1].Text() == "Counters",
                "the counters are chosen: " + toQt(view.cceReset[1].Text()));
    const std::string before = inDevice(guide, "cycleCounter");
    guide.dialogs().boxes.clear();
    guide.dialogs().answers.push_back(false);
    userInput::click(guide.shown(view.cmdReset));
    guide.check(guide.dialogs().boxes.size() == 1, "the shell asks first");
    guide.check(inDevice(guide, "cycleCounter") == before, "a no leaves them: " + toQt(before));
    guide.picture("reset-chosen");
    guide.dialogs().answers.push_back(true);
    userInput::click(guide.shown(view.cmdReset));
    guide.waitForDevice();
    guide.check(inDevice(guide, "cycleCounter") == "0", "a yes resets them");
    window.showPage("diagnostics");
    guide.clickCommand("readPage");
    guide.waitForDevice();
    guide.check(guide.editor<CtrTextEdit>("cycleCounter").Text() == "0", "the page shows it");
    guide.picture("reset-done");
}

void changeTheAddress(TourGuide& guide)
{
    auto& window = guide.window();
    window.showPage("hartAddress");
    auto& view = guide.view<CtrHartAddress>("hartAddress");
    guide.check(view.cceAddress.Text() == "0", "the device is alone on its wires: address 0");
    step(guide, view.cceMultidrop.cboBox, Qt::Key_Down);
    guide.check(view.cceAddress.Text() == "1", "with multidrop an address is proposed");
    step(guide, view.cceAddress.cboBox, Qt::Key_Down);
    step(guide, view.cceAddress.cboBox, Qt::Key_Down);
    guide.picture("hart-address-chosen");
    guide.check(inDevice(guide, "pollingAddress") == "0", "nothing has happened yet");
    userInput::click(guide.shown(view.cmdSet));
    guide.waitForDevice();
    guide.check(inDevice(guide, "pollingAddress") == "3" && inDevice(guide, "multidrop") == "1",
                "the device has the address 3");
    guide.check(!view.cceAddress.Modified() && !view.cceMultidrop.Modified(),
                "the signs have gone");
    guide.check(guide.inDocument("pollingAddress", "value") == "3", "the datafile knows it");
    guide.check(guide.editor<CtrTextEdit>("pollingAddress").Text() == "3",
                "and so does the page with the identification");
    step(guide, view.cceMultidrop.cboBox, Qt::Key_Up);
    userInput::click(guide.shown(view.cmdSet));
    guide.waitForDevice();
    guide.check(inDevice(guide, "pollingAddress") == "0", "without multidrop it is 0 again");
}

void calibrateTheOutput(TourGuide& guide)
{
    auto& window = guide.window();
    if (!window.simulation().isVisible()) {
        window.command("simulation")->trigger();
    }
    deviceOf(guide).function<DevicePhysics>()->model().setDemand(12);
    deviceOf(guide).advance(60);
    const double before = deviationAt(guide, 4);

    window.showPage("mACalibration");
    auto& view = guide.view<CtrMACalibration>("mACalibration");
    clickNext(guide);
    window.simulation().refresh();
    guide.check(isCurrentFixed(guide) && view.miCalibrationStep() == 1,
                "the device drives the low test current");
    guide.check(!view.cteMACalibration[0].Enabled() && view.cteMACalibration[1].Enabled() &&
                    !view.cteMACalibration[2].Enabled(),
                "only the box of this step is open");
    const double low = typeReading(guide, 1);
    guide.check(low > 3.5 && low < 4.5, QString("the meter shows %1 mA").arg(low, 0, 'f', 3));
    guide.picture("calibration-low");
    clickNext(guide);
    clickNext(guide);
    window.simulation().refresh();
    const double high = typeReading(guide, 3);
    guide.check(high > 19 && high < 21, QString("and then %1 mA").arg(high, 0, 'f', 3));
    guide.picture("calibration-high");
    clickNext(guide);
    guide.check(view.miCalibrationStep() == 4 && isCurrentFixed(guide), "both are taken");
    clickNext(guide);
    guide.check(view.miCalibrationStep() == 5 && !isCurrentFixed(guide),
                "the output follows the valve again");
    guide.picture("calibration-done");
    const double low2  = deviationAt(guide, 4);
    const double high2 = deviationAt(guide, 20);
    guide.check(low2 < before && low2 < 0.002 && high2 < 0.002,
                QString("the output is right now: %1 and %2 mA off").arg(low2).arg(high2));
    guide.dialogs().boxes.clear();
    window.showPage("tuning");
    guide.check(guide.dialogs().boxes.empty(), "the page may be left without a question");
}

void walkAwayFromTheCalibration(TourGuide& guide)
{
    auto& window = guide.window();
    window.showPage("mACalibration");
    auto& view = guide.view<CtrMACalibration>("mACalibration");
    clickNext(guide); // begins anew
    clickNext(guide);
    guide.check(view.miCalibrationStep() == 1 && isCurrentFixed(guide), "the wizard begins anew");
    guide.dialogs().boxes.clear();
    guide.dialogs().answers.push_back(false);
    window.showPage("tuning");
    guide.check(guide.dialogs().boxes.size() == 1, "who walks away is asked");
    guide.check(window.book().shownPage()->Tag.get() == "mACalibration" && isCurrentFixed(guide),
                "a no keeps him here");
    guide.dialogs().answers.push_back(true);
    window.showPage("tuning");
    guide.waitForDevice();
    guide.check(window.book().shownPage()->Tag.get() == "tuning" && !isCurrentFixed(guide),
                "a yes turns the current off and the page");

    window.showPage("mACalibration");
    clickNext(guide);
    guide.check(isCurrentFixed(guide), "once more");
    guide.dialogs().answers.push_back(false);
    guide.clickCommand("online");
    guide.check(window.messenger().isOnline(), "going offline asks too");
    guide.dialogs().answers.push_back(true);
    guide.clickCommand("online");
    guide.check(!window.messenger().isOnline() && !isCurrentFixed(guide),
                "and leaves the device without a test current");
    guide.clickCommand("online");
    window.command("simulation")->trigger();
}

void chooseAModule(TourGuide& guide)
{
    openOther(guide, "openVX4400F");
    guide.window().showPage("moduleSelection");
    const auto view = [&]() -> CtrModuleSelection& {
        return guide.view<CtrModuleSelection>("moduleSelection");
    };
    const auto document = [&] { return guide.window().messenger().GetHostDocument("FDT"); };
    guide.check(view().ModuleSelection.List().size() == 4, "the device has four modules");
    guide.check(view().ModuleSelection.Text() == "Set point", "the bus knows the first one");
    const std::string before = document();
    step(guide, view().ModuleSelection, Qt::Key_Down);
    const std::string chosen = view().ModuleSelection.Text();
    userInput::click(guide.shown(view().cmdSetSelection));
    guide.check(document() != before && document().find(chosen) != std::string::npos,
                "the bus configuration has \"" + toQt(chosen) + "\"");
    guide.check(document().find("C68484080508") != std::string::npos, "with its configuration");
    guide.picture("module-chosen");
    guide.startAnew();
    openOther(guide, "openVX4400F");
    guide.window().showPage("moduleSelection");
    guide.check(view().ModuleSelection.Text() == chosen, "a new window reads it back");
    openOther(guide, "openVX4400H");
}

void changeTheSettings(TourGuide& guide)
{
    const auto caption = [&] {
        guide.window().showPage("configuration");
        return guide.window().book().shownPage()->labelOf("supplyLowPressure")->Caption.get();
    };
    const auto        unit = [&] { return guide.editor<CtrTextEdit>("supplyLowPressure").Unit(); };
    const std::string english = caption();
    guide.clickCommand("settings");
    auto& dialog = guide.window().settingsDialog();
    guide.check(dialog.isVisible(), "the settings are open");
    const auto shown = [&](const platform::Widget& widget) -> QWidget& {
        dialog.view().flush();
        return *dialog.view().shown(widget);
    };
    auto& control = dialog.control();
    shown(control.cboSelectLanguage).setFocus();
    userInput::press(shown(control.cboSelectLanguage), Qt::Key_Down);
    shown(control.cboStatusClassification).setFocus();
    userInput::press(shown(control.cboStatusClassification), Qt::Key_Down);
    userInput::click(shown(control.cmdUS));
    guide.check(control.cmdApply.Enabled, "something can be applied");
    guide.check(caption() == english && unit() == "bar", "nothing has taken effect yet");
    guide.picture("settings", 1, &dialog);
    userInput::click(shown(control.cmdApply));
    userInput::settle();
    guide.check(dialog.isVisible() && caption() != english,
                "applied, the window is German: " + toQt(caption()));
    guide.picture("settings-applied", 1, &dialog);
    userInput::click(shown(control.cmdOK));
    guide.check(!dialog.isVisible(), "the dialog has gone");
    guide.check(unit() == "psi", "pressures are in " + toQt(unit()));
    guide.check(guide.window().messenger().GetStatusClassification() == kClassNAMUR,
                "conditions are classified by NAMUR");
    guide.picture("settings-in-force");

    const std::string german = caption();
    guide.startAnew();
    guide.check(caption() == german && unit() == "psi" &&
                    guide.window().messenger().GetStatusClassification() == kClassNAMUR,
                "a new window begins with all that");
    guide.window().setLanguage("English");
    guide.window().command("classSeverity")->trigger();
    for (QAction* action : guide.window().findChildren<QAction*>()) {
        if (action->data().toString() == "metric") {
            action->trigger();
        }
    }
    guide.check(caption() == english && unit() == "bar", "everything is as it was");
}

void showActionsInAllLanguages(TourGuide& guide)
{
    auto& window = guide.window();
    for (const auto& [language, scheme] :
         {std::pair{"German", ColorScheme::dark}, std::pair{"Finnish", ColorScheme::light}}) {
        window.setLanguage(language);
        window.setScheme(scheme);
        const QString name = QString(language).toLower();
        for (const char* page : {"options", "eventLog", "reset", "hartAddress", "mACalibration"}) {
            window.showPage(page);
            guide.picture(QString(page) + '-' + name);
        }
        window.command("settings")->trigger();
        guide.picture("settings-" + name, 1, &window.settingsDialog());
        window.settingsDialog().reject();
    }
    window.setLanguage("English");
    window.setScheme(ColorScheme::light);
}

} // namespace quill::shell
