#include "shell/tour_status.h"

#include "qt/text.h"
#include "shell/device_physics.h"
#include "shell/device_status.h"
#include "shell/status_sign.h"
#include "shell/user_input.h"
#include "status/CtrStatusF.h"

#include <QAction>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

namespace quill::shell {

namespace {

using qt::toQt;

constexpr const char* kStatus        = "status";
constexpr const char* kConfiguration = "statusConfiguration";
constexpr const char* kSupplyLow     = "statusSupplyPressureLow";
constexpr const char* kSeatWear      = "statusSeatWear";
constexpr const char* kStrokeTest    = "statusStrokeTestFailed";
constexpr const char* kCavitation    = "statusCavitation";
constexpr const char* kCover         = "statusCoverOpen";
constexpr const char* kChanged       = "statusHARTConfigurationChanged";

/// Seconds in which every condition has come or gone.
constexpr double kAWhile = 60;

/// The view that fills a page.
template <class View>
View& viewOn(TourGuide& guide, const char* page)
{
    return guide.view<View>(page);
}

/// The row of a condition or branch, from 1.
int rowOf(const StatusTreeView& view, const std::string& name)
{
    for (int row = 1; row <= view.scgStatusKey.RowCount(); ++row) {
        if (view.scgStatusKey.cell(row, 1).Text == name) {
            return row;
        }
    }
    throw platform::Failure(platform::kInvalidCall, "no row of " + name);
}

std::string iconOf(const StatusTreeView& view, const std::string& name)
{
    return view.scgStatus.CellIcon(rowOf(view, name), 1);
}

QTreeView& treeOf(TourGuide& guide, const StatusTreeView& view)
{
    return dynamic_cast<QTreeView&>(guide.shown(view.scgStatus));
}

void clickRow(TourGuide& guide, const StatusTreeView& view, const std::string& name)
{
    QTreeView& tree = treeOf(guide, view);
    userInput::clickRow(tree, userInput::rowNumber(tree, rowOf(view, name)));
}

/// Switches a fault or a condition by its check box.
void simulate(TourGuide& guide, const std::string& name)
{
    SimulationPane& pane = guide.window().simulation();
    if (!pane.isVisible()) {
        guide.window().command("simulation")->trigger();
    }
    QTreeWidgetItem* const item = pane.row(name);
    if (item == nullptr) {
        throw platform::Failure(platform::kInvalidCall, "nothing to simulate: " + name);
    }
    const auto before = item->checkState(0);
    userInput::clickRow(pane.tree(), pane.tree().indexFromItem(item));
    guide.check(item->checkState(0) != before, "a click on its check box switches " + toQt(name));
}

/// Time goes by, then the user reads the page.
void liveAndRead(TourGuide& guide)
{
    guide.window().messenger().device().advance(kAWhile);
    guide.window().simulation().refresh();
    guide.clickCommand("readPage");
    guide.waitForDevice();
    userInput::settle();
}

void checkSign(TourGuide& guide, const QString& word)
{
    userInput::settle();
    const StatusSign& sign = guide.window().statusSign();
    guide.check(sign.isVisible() && sign.word() == word,
                "the sign beside the title says \"" + word + "\": " + sign.word());
    guide.check(!sign.icon().isNull() && sign.accessibleName().contains(word),
                "it has a symbol, and a name for who does not see it");
}

std::string valueIn(TourGuide& guide, const char* mask)
{
    return guide.window().messenger().device().find(mask)->value;
}

void mend(TourGuide& guide)
{
    userInput::click(*guide.window().simulation().findChild<QWidget*>("mend"));
    liveAndRead(guide);
}

} // namespace

void watchTheStatus(TourGuide& guide)
{
    auto& window = guide.window();
    guide.clickCommand("online");
    window.showPage(kStatus);
    auto& view = viewOn<StatusTreeView>(guide, kStatus);
    window.messenger().device().function<DevicePhysics>()->model().setDemand(12);
    liveAndRead(guide);
    guide.check(guide.heard().states.contains("deviceStatus sync"),
                "the status was read and is in step");
    guide.check(iconOf(view, kSupplyLow) == "ok", "the supply is in order");
    checkSign(guide, "OK");

    simulate(guide, "faultSupplyFailure");
    liveAndRead(guide);
    guide.check(iconOf(view, kSupplyLow) == "alarm", "without supply comes an alarm");
    guide.check(iconOf(view, "statusGroupPneumatics") == "alarm",
                "the branch shows the worst of its conditions");
    guide.check(iconOf(view, "statusGroupSensors") == "ok", "other branches are in order");
    checkSign(guide, "Alarm");
    guide.picture("status-supply-broken");

    window.showPage("configuration");
    checkSign(guide, "Alarm");
    guide.picture("configuration-with-alarm");
    userInput::click(window.statusSign());
    guide.check(window.book().shownPage()->Tag == kStatus, "a click on the sign leads to the page");

    for (std::size_t i = 0; i < window.book().shownPage()->groups().size(); ++i) {
        window.messenger().device().failNext("communicationError");
    }
    guide.dialogs().boxes.clear();
    liveAndRead(guide);
    guide.check(iconOf(view, kSupplyLow) == "unknown", "a reading that fails leaves it unknown");
    guide.check(guide.dialogs().boxes.empty(), "without a message each time");
    checkSign(guide, "Unknown");

    mend(guide);
    guide.check(iconOf(view, kSupplyLow) == "ok", "with the supply back the alarm has gone");
    checkSign(guide, "OK");

    const auto cycle = window.statusCycle().interval();
    window.statusCycle().setInterval(std::chrono::milliseconds{50});
    simulate(guide, "faultCoverOpen");
    window.messenger().device().advance(kAWhile);
    guide.check(userInput::wait([&] { return iconOf(view, kCover) == "warning"; }),
                "in its cycle the shell sees by itself that the cover was lifted");
    checkSign(guide, "Warning");
    guide.check(window.command("save")->isEnabled() &&
                    window.messenger().GetCommunicationMode() == kOnline,
                "and bars nothing meanwhile");
    window.statusCycle().setInterval(cycle);
    guide.waitForDevice();
    mend(guide);
    window.command("simulation")->trigger();
}

void switchClassifications(TourGuide& guide)
{
    auto& window = guide.window();
    auto& view   = viewOn<StatusTreeView>(guide, kStatus);
    simulate(guide, "faultSupplyFailure");
    window.command("classNAMUR")->trigger();
    liveAndRead(guide);
    guide.check(iconOf(view, kSupplyLow) == "deviceOffSpecification", "by NAMUR it is out of spec");
    checkSign(guide, "Out of spec");
    guide.picture("status-namur");
    window.command("classSeverity")->trigger();
    liveAndRead(guide);
    guide.check(iconOf(view, kSupplyLow) == "alarm", "by severity it is an alarm again");
    mend(guide);

    window.command("simulation")->trigger();
}

void configureOnline(TourGuide& guide)
{
    auto& window = guide.window();
    window.showPage(kConfiguration);
    auto& view = viewOn<CtrStatusF>(guide, kConfiguration);
    liveAndRead(guide);
    guide.check(iconOf(view, kStrokeTest) != "", "the conditions have their icons");
    userInput::click(guide.shown(view.cmdConfiguration));
    guide.check(view.IsConfiguring() && iconOf(view, kStrokeTest) == "checkEnabled" &&
                    iconOf(view, kSeatWear) == "checkDisabled",
                "now they have check marks, as the masks say");
    guide.check(window.statusCycle().isConfiguring() && !window.command("readPage")->isEnabled(),
                "nothing is read meanwhile");

    clickRow(guide, view, kStrokeTest);
    guide.check(iconOf(view, kStrokeTest) == "checkDisabledmodified",
                "a click takes the mark of the stroke test away");
    QTreeView& tree = treeOf(guide, view);
    tree.setCurrentIndex(userInput::rowNumber(tree, rowOf(view, kSeatWear) - 1));
    tree.setFocus();
    userInput::press(tree, Qt::Key_Down);
    userInput::press(tree, Qt::Key_Space);
    guide.check(iconOf(view, kSeatWear) == "checkEnabledmodified",
                "the space bar sets that of seat wear");
    guide.picture("status-configuration-online");

    const std::string before2 = valueIn(guide, "statusMask2");
    const std::string before3 = valueIn(guide, "statusMask3");
    guide.forget();
    userInput::click(guide.shown(view.cmdDownload));
    guide.waitForDevice();
    guide.check(guide.heard().responses.contains("write deviceStatusMasks ok"),
                "the masks were written");
    guide.check(valueIn(guide, "statusMask2") != before2 &&
                    valueIn(guide, "statusMask3") != before3,
                "the device has other masks: " + toQt(before2) + " -> " +
                    toQt(valueIn(guide, "statusMask2")) + ", " + toQt(before3) + " -> " +
                    toQt(valueIn(guide, "statusMask3")));
    guide.check(guide.inDocument("statusMask2", "value") == valueIn(guide, "statusMask2") &&
                    guide.inDocument("statusMask3", "value") == valueIn(guide, "statusMask3") &&
                    guide.inDocument("statusMask3", "synchronised") == "1",
                "and so has the datafile, in step");
    guide.check(!view.IsConfiguring() && !window.statusCycle().isConfiguring(),
                "the answer ended the configuration");

    for (const char* name : {kStrokeTest, kSeatWear}) {
        simulate(guide, name);
    }
    liveAndRead(guide);
    guide.check(iconOf(view, kStrokeTest) == "deviceDiagnosisPassiv",
                "the stroke test is not diagnosed any more");
    guide.check(iconOf(view, kSeatWear) == "deviceMaintenanceRequired", "but seat wear is");
    const auto& plain = viewOn<StatusTreeView>(guide, kStatus);
    guide.check(iconOf(plain, kStrokeTest) == "inactive" && iconOf(plain, kSeatWear) == "warning",
                "the other page agrees");
    guide.picture("status-configuration-done");

    guide.check(iconOf(plain, kChanged) == "info",
                "the device says that its configuration was changed");
    auto* const acknowledge = window.findChild<QWidget*>("clearChanged");
    guide.check(acknowledge->isVisible(), "there is a sign for that in the status line");
    userInput::click(*acknowledge);
    guide.waitForDevice();
    guide.check(!acknowledge->isVisible(), "acknowledged, it has gone");
    mend(guide);
    window.command("simulation")->trigger();
}

void configureOffline(TourGuide& guide)
{
    guide.clickCommand("online");
    auto& view = viewOn<CtrStatusF>(guide, kConfiguration);
    guide.check(view.CombinedStatus() == "deviceDiagnosisPassiv", "offline nothing is known");
    const std::string before = valueIn(guide, "statusMask1");
    userInput::click(guide.shown(view.cmdConfiguration));
    guide.check(view.cmdDownload.Caption.get() == "Accept", "offline the user accepts");
    clickRow(guide, view, kCover);
    guide.picture("status-configuration-offline-marks");
    clickRow(guide, view, kCover);
    guide.check(iconOf(view, kCover) == "checkEnabled", "a second click takes the change back");
    clickRow(guide, view, kCover);
    userInput::click(guide.shown(view.cmdDownload));
    guide.check(!view.IsConfiguring(), "the configuration is over");
    const std::string accepted = guide.inDocument("statusMask1", "value");
    guide.check(accepted != before && guide.inDocument("statusMask1", "synchronised") == "0",
                "the datafile has the mask, out of step: " + toQt(before) + " -> " +
                    toQt(accepted));
    guide.check(valueIn(guide, "statusMask1") == before, "the device has not heard of it");
    guide.clickCommand("save");
    guide.check(guide.onDisk("statusMask1", "value") == accepted, "the file has it too");

    guide.startAnew();
    guide.window().showPage(kConfiguration);
    auto& again = viewOn<CtrStatusF>(guide, kConfiguration);
    userInput::click(guide.shown(again.cmdConfiguration));
    guide.check(iconOf(again, kCover) == "checkDisabled", "a new window shows it");
    guide.window().showPage(kStatus);
    guide.check(!again.IsConfiguring(), "leaving the page ends the configuration");
    guide.clickCommand("online");
}

void showTheOtherSample(TourGuide& guide)
{
    auto& window = guide.window();
    guide.dialogs().saveChoices.push_back(SaveChoice::discard);
    window.command("openVX4400F")->trigger();
    userInput::settle();
    guide.check(window.messenger().deviceType() == "VX4400F" &&
                    window.book().page(kConfiguration) == nullptr,
                "the fieldbus sample is open; it has no switches of its own");
    window.showPage(kStatus);
    auto& view = viewOn<StatusTreeView>(guide, kStatus);
    window.messenger().device().function<DevicePhysics>()->model().setDemand(12);
    simulate(guide, "faultSupplyFailure");
    simulate(guide, kCavitation);
    liveAndRead(guide);
    guide.check(window.messenger().IsStatusClassificationFixed(),
                "it knows severities only, so there is no choice");
    guide.check(iconOf(view, kSupplyLow) == "alarm", "without supply comes an alarm");
    guide.check(iconOf(view, kCavitation) == "alarm",
                "its masks make an alarm of cavitation, which is a warning by default");
    guide.picture("status-fieldbus");
    mend(guide);
    window.command("simulation")->trigger();
    guide.dialogs().saveChoices.push_back(SaveChoice::discard);
    window.command("openVX4400H")->trigger();
    userInput::settle();
    guide.check(!window.messenger().IsStatusClassificationFixed(), "the HART sample leaves it");
}

void showStatusInAllLanguages(TourGuide& guide)
{
    auto& window = guide.window();
    window.messenger().device().function<DevicePhysics>()->model().setDemand(12);
    window.showPage(kStatus);
    simulate(guide, "faultSupplyFailure");
    simulate(guide, "faultCoverOpen");
    liveAndRead(guide);
    const auto row = [&] {
        return toQt(
            viewOn<StatusTreeView>(guide, kStatus)
                .scgStatus.cell(rowOf(viewOn<StatusTreeView>(guide, kStatus), kSupplyLow), 1)
                .Text);
    };
    QStringList seen;
    for (const auto& [language, scheme] :
         {std::pair{"English", ColorScheme::dark}, std::pair{"German", ColorScheme::light},
          std::pair{"Finnish", ColorScheme::dark}}) {
        window.setLanguage(language);
        window.setScheme(scheme);
        window.showPage(kStatus);
        guide.check(!seen.contains(row()), "the conditions have their names: " + row());
        seen << row();
        const QString name =
            QString(language).toLower() + (scheme == ColorScheme::dark ? "-dark" : "");
        guide.picture("status-" + name);
        window.showPage(kConfiguration);
        auto& view = viewOn<CtrStatusF>(guide, kConfiguration);
        userInput::click(guide.shown(view.cmdConfiguration));
        clickRow(guide, view, kSupplyLow);
        guide.picture("status-configuration-" + name);
        userInput::click(guide.shown(view.cmdConfiguration));
    }
    window.setLanguage("English");
    window.setScheme(ColorScheme::light);
    window.showPage(kStatus);
    mend(guide);
    window.command("simulation")->trigger();
    guide.clickCommand("online");
}

} // namespace quill::shell
