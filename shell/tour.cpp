#include "shell/tour.h"

#include "editors/CtrComboEdit.h"
#include "editors/CtrDateEdit.h"
#include "editors/CtrTextEdit.h"
#include "framework/values.h"
#include "qt/text.h"
#include "shell/tour_actions.h"
#include "shell/tour_guide.h"
#include "shell/tour_status.h"
#include "shell/user_input.h"

#include <QMessageBox>
#include <QPushButton>

#include <cstdio>

namespace quill::shell {

namespace {

using qt::toQt;

// One parameter of each kind; the text and the date belong to the request group "maintenance", the
// combo to "signal". The device keeps the interval in days, the datafile in hours.
constexpr const char* kText   = "strokeTestInterval";
constexpr const char* kCombo  = "characteristic";
constexpr const char* kDate   = "maintenanceDate";
constexpr const char* kTime   = "dailyTestTime";
constexpr const char* kFirst  = "supplyLowPressure";
constexpr const char* kSecond = "supplyHighPressure";

/// A number as documents write it.
double number(const std::string& text)
{
    return toQt(text).toDouble();
}

/// The number in a box, in the user's own form.
double number(const CtrTextEdit& editor)
{
    return values::isNumeric(editor.Text()) ? values::parseLocal(editor.Text()) : 0;
}

void openTheDatafile(TourGuide& guide)
{
    auto& window = guide.window();
    for (const auto& page : window.book().pages()) {
        window.showPage(page->Tag);
        guide.check(window.book().shownPage() == page.get(),
                    "page " + toQt(page->Tag) + " is shown");
        guide.picture(toQt(page->Tag) + "-offline");
    }
    window.showPage("configuration");
    const auto& text = guide.editor<CtrTextEdit>(kText);
    guide.check(text.Text().starts_with("720") && text.Unit() == "h",
                "the interval of the stroke test is 720 h");
    guide.check(text.txtBox.ToolTipText.get().find("8760") != std::string::npos,
                "its tool tip tells the limits: " + toQt(text.txtBox.ToolTipText));
    guide.check(guide.editor<CtrComboEdit>(kCombo).Text() == "Equal percentage",
                "the characteristic is \"Equal percentage\"");
    guide.check(guide.editor<CtrDateEdit>(kDate).Text() == "5.4.2024",
                "the next maintenance is on 5.4.2024");
    const auto& time = guide.editor<CtrDateEdit>(kTime);
    guide.check(time.timeMode() && time.Text() == "6:30:00", "the daily test is at 6:30:00");
    guide.check(guide.inDocument(kCombo, "value") == "1", "the datafile holds what is shown");
}

void goOnline(TourGuide& guide)
{
    guide.clickCommand("online");
    guide.check(guide.window().messenger().isOnline(), "the host is online");
    guide.check(guide.window().book().shownPage()->readButton("pressure")->Enabled,
                "request groups can be read now");
}

void readTheRequestGroups(TourGuide& guide)
{
    auto& window = guide.window();
    auto* page   = window.book().shownPage();
    guide.forget();
    userInput::click(guide.shown(*page->readButton("pressure")));
    guide.waitForDevice();
    guide.check(guide.heard().responses == QStringList{"read pressure ok"},
                "the request group \"pressure\" was read");
    const auto& low = guide.editor<CtrTextEdit>(kFirst);
    guide.check(window.messenger().device().find(kFirst)->unit == "psi" && low.Unit() == "bar",
                "the device speaks psi, the editor shows bar");
    guide.check(number(low) == 3.45, "50 psi came as " + toQt(low.Text()) + " bar");
    guide.check(guide.heard().states.contains(QString(kFirst) + " sync"),
                "the editor reported \"sync\"");

    // The other groups of the page have edits, so the shell asks; the answer is yes.
    guide.dialogs().answers.push_back(true);
    guide.clickCommand("readPage");
    guide.waitForDevice();
    guide.check(guide.dialogs().answers.empty(), "the shell asked before it read over edits");
    guide.check(number(guide.editor<CtrTextEdit>(kText)) == 672, "28 d came as 672 h");
    guide.check(!guide.editor<CtrDateEdit>(kDate).Modified(), "the date is in step");
    guide.check(guide.inDocument(kDate, "synchronised") == "1", "and so it is in the datafile");
    guide.picture("configuration-read");
}

void editTheValues(TourGuide& guide)
{
    guide.forget();
    auto& text = guide.editor<CtrTextEdit>(kText);
    auto& box  = guide.shown(text.txtBox);
    userInput::type(box, "99999");
    guide.check(!text.Correct() && text.lblError.Visible, "99999 h is too much: \"!\"");
    guide.check(text.txtBox.ForeColor == editorColors::kRed, "the text is red");
    guide.check(guide.heard().states.contains(QString(kText) + " editedError"),
                "the editor reported \"editedError\"");
    guide.check(number(guide.inDocument(kText, "value")) != 99999, "the datafile was spared");
    guide.picture("configuration-bad-value");

    userInput::type(box, "1000");
    guide.check(text.Correct() && text.Modified() && text.lblModified.Visible, "1000 h: \"*\"");
    guide.check(text.txtBox.ForeColor == editorColors::kBlue, "the text is blue");
    guide.check(guide.heard().states.contains(QString(kText) + " corrected"),
                "the editor reported \"corrected\"");
    guide.check(number(guide.inDocument(kText, "value")) == 1000, "the datafile has it");

    auto& combo = guide.editor<CtrComboEdit>(kCombo);
    auto& list  = guide.shown(combo.cboBox);
    list.setFocus();
    userInput::press(list, Qt::Key_Down);
    guide.check(combo.Modified() && combo.Text() == "Equal percentage",
                "the arrow key chose another characteristic");
    auto& date   = guide.editor<CtrDateEdit>(kDate);
    auto& picker = guide.shown(date.datePicker);
    picker.setFocus();
    userInput::press(picker, Qt::Key_Up);
    guide.check(date.Modified() && date.Text() != "15.9.2026",
                "the arrow key chose another date: " + toQt(date.Text()));
    guide.picture("configuration-edited");
}

void downloadTheChanges(TourGuide& guide)
{
    auto&       window  = guide.window();
    const auto  newDate = guide.editor<CtrDateEdit>(kDate).Text();
    const auto& device  = window.messenger().device();
    guide.clickCommand("changes");
    auto& dialog = window.changesDialog();
    guide.check(dialog.isVisible(), "the dialog of pending changes is open");
    const auto row = [&](const char* parameter) -> const platform::ListItem* {
        const std::string label = window.book().find(parameter)->labelText();
        for (const auto& item : dialog.control().lstChanges.ListItems()) {
            if (item.Text == label) {
                return &item;
            }
        }
        return nullptr;
    };
    const auto lists = [&](const char* parameter, const QString& before, const QString& after) {
        const auto* item  = row(parameter);
        const bool  holds = item != nullptr && item->Checked &&
                           toQt(item->SubItems.at(0)).startsWith(before) &&
                           toQt(item->SubItems.at(1)).startsWith(after);
        guide.check(holds, QString("it lists %1: %2 -> %3").arg(parameter, before, after));
    };
    lists(kText, "672", "1000");
    lists(kCombo, "Linear", "Equal percentage");
    lists(kDate, "15.9.2026", toQt(newDate));
    guide.picture("pending-changes", 1, &dialog);

    guide.forget();
    dialog.view().flush();
    userInput::click(*dialog.view().shown(dialog.control().cmdDownload));
    guide.check(!dialog.isVisible(), "the dialog has closed itself");
    guide.waitForDevice();
    guide.check(guide.heard().responses == QStringList({"write signal ok", "write maintenance ok"}),
                "one request per group, in the order of the list: " +
                    guide.heard().responses.join(", "));
    guide.check(device.find(kCombo)->value == "1", "the device has the characteristic");
    guide.check(device.find(kDate)->value == newDate, "the device has the date");
    guide.check(std::abs(number(device.find(kText)->value) - 1000.0 / 24) < 1e-3,
                "the device has 1000 h as " + toQt(device.find(kText)->value) + " d");
    for (const char* parameter : {kText, kCombo, kDate}) {
        const auto& editor = guide.editor<EditorBase>(parameter);
        guide.check(!editor.Modified() && editor.Correct(),
                    QString("the sign of %1 has gone").arg(parameter));
        guide.check(guide.inDocument(parameter, "synchronised") == "1",
                    QString("%1 is in step in the datafile").arg(parameter));
    }
    guide.picture("configuration-downloaded");
}

void meetErrors(TourGuide& guide)
{
    auto& window = guide.window();
    auto& device = window.messenger().device();
    auto* button = window.book().shownPage()->readButton("pressure");
    guide.dialogs().boxes.clear();
    guide.forget();
    device.failNext("missingItems", {kFirst, kSecond});
    userInput::click(guide.shown(*button));
    guide.waitForDevice();
    for (const char* parameter : {kFirst, kSecond}) {
        const auto& editor = guide.editor<CtrTextEdit>(parameter);
        guide.check(!editor.Correct() && editor.Modified(),
                    QString("%1, which is missing in the device, has both signs").arg(parameter));
    }
    guide.check(guide.editor<CtrTextEdit>("supplyPressure").Correct(),
                "an editor that the answer does not name has none");
    const auto& boxes = guide.dialogs().boxes;
    guide.check(boxes.size() == 1 && boxes.front().text.contains(QString("\"%1\"").arg(kFirst)) &&
                    boxes.front().text.contains(QString("\"%1\"").arg(kSecond)),
                "one message names both items");
    if (!boxes.empty()) {
        QMessageBox box(QMessageBox::Information, boxes.front().title, boxes.front().text,
                        QMessageBox::NoButton, &window);
        box.addButton(window.messenger().texts().text("ok"), QMessageBox::AcceptRole);
        box.show();
        guide.picture("missing-items", 1, &box);
    }

    guide.dialogs().boxes.clear();
    guide.forget();
    device.failNext("communicationError");
    guide.dialogs().answers.push_back(true); // read over what counts as edited
    userInput::click(guide.shown(*button));
    guide.waitForDevice();
    guide.check(guide.heard().states.contains(QString(kFirst) + " syncError") &&
                    guide.heard().states.contains("actuatorPressure syncError"),
                "the editors of the group reported \"syncError\"");
    guide.check(boxes.size() == 2, "after the question a message tells the communication error");
    guide.check(guide.inDocument(kFirst, "synchronised") == "2", "the datafile has the mark");

    guide.forget();
    device.set(kFirst, "52");
    device.set(kSecond, "98");
    guide.dialogs().answers.push_back(true);
    userInput::click(guide.shown(*button));
    guide.waitForDevice();
    guide.check(guide.dialogs().answers.empty(), "the shell asked before each reading");
    guide.check(guide.heard().states.contains(QString(kFirst) + " reSync"),
                "the next answer brings the editors back: \"reSync\"");
    for (const char* parameter : {kFirst, kSecond}) {
        const auto& editor = guide.editor<CtrTextEdit>(parameter);
        guide.check(editor.Correct() && !editor.Modified(),
                    QString("the signs of %1 have gone").arg(parameter));
    }
}

void saveAndLoad(TourGuide& guide)
{
    const auto date = guide.editor<CtrDateEdit>(kDate).Text();
    guide.clickCommand("save");
    guide.check(!guide.window().messenger().store().hasUnsavedChanges(), "everything is saved");
    guide.check(number(guide.onDisk(kText, "value")) == 1000 && guide.onDisk(kText, "unit") == "h",
                "the file has 1000 h");
    guide.check(guide.onDisk(kCombo, "value") == "1", "the file has the characteristic");
    guide.check(guide.onDisk(kDate, "value") == date, "the file has the date");

    guide.startAnew();
    guide.window().showPage("configuration");
    guide.check(number(guide.editor<CtrTextEdit>(kText)) == 1000, "a new window shows 1000 h");
    guide.check(guide.editor<CtrComboEdit>(kCombo).Text() == "Equal percentage",
                "and the characteristic");
    guide.check(guide.editor<CtrDateEdit>(kDate).Text() == date, "and the date");
    for (const char* parameter : {kText, kCombo, kDate}) {
        guide.check(!guide.editor<EditorBase>(parameter).Modified(),
                    QString("%1 carries no sign").arg(parameter));
    }
    guide.picture("configuration-loaded-again");
}

void switchLanguagesAndColours(TourGuide& guide)
{
    auto&      window  = guide.window();
    const auto caption = [&] { return window.book().shownPage()->labelOf(kText)->Caption.get(); };
    const auto english = caption();
    window.setLanguage("German");
    const auto german = caption();
    guide.check(german != english, "the labels are German: " + toQt(german));
    guide.picture("configuration-german");
    window.setScheme(ColorScheme::dark);
    guide.clickCommand("changes");
    guide.picture("pending-changes-german-dark", 1, &window.changesDialog());
    window.changesDialog().reject();
    window.setScheme(ColorScheme::light);
    window.setLanguage("Finnish");
    guide.check(caption() != german && caption() != english,
                "the labels are Finnish: " + toQt(caption()));
    guide.picture("configuration-finnish");
    window.setScheme(ColorScheme::dark);
    guide.picture("configuration-finnish-dark-192dpi", 2);
    window.setLanguage("English");
    guide.picture("configuration-dark");
    window.setScheme(ColorScheme::light);
    guide.picture("configuration-192dpi", 2);
    guide.check(caption() == english, "the labels are English again");
}

} // namespace

int takeTour(const Options& options)
{
    const struct {
        const char* what;
        void (*take)(TourGuide&);
    } kSteps[] = {
        {"The datafile is loaded and every page shown.", openTheDatafile},
        {"The host goes online.", goOnline},
        {"Request groups are read; the device uses other units.", readTheRequestGroups},
        {"The user types a bad value, then a good one, and changes a choice and a date.",
         editTheValues},
        {"The pending changes are confirmed and go to the device.", downloadTheChanges},
        {"The device answers with errors.", meetErrors},
        {"The datafile is saved and loaded again.", saveAndLoad},
        {"Languages, colours and screen resolutions.", switchLanguagesAndColours},
        {"Conditions of the device come and go.", watchTheStatus},
        {"The classification of the conditions is switched.", switchClassifications},
        {"Conditions are switched off and on in the device.", configureOnline},
        {"Conditions are switched off in the datafile.", configureOffline},
        {"A device that knows severities only.", showTheOtherSample},
        {"The status in all languages.", showStatusInAllLanguages},
        {"Options, checks and durations are edited and go to the device.", editTheOptions},
        {"The event log is read to its end, on both devices.", readTheEventLog},
        {"The device is reset.", resetTheDevice},
        {"The device gets another polling address.", changeTheAddress},
        {"The current output is calibrated.", calibrateTheOutput},
        {"The user walks away in the middle of a calibration.", walkAwayFromTheCalibration},
        {"A module is chosen for the bus.", chooseAModule},
        {"The settings are changed and stay.", changeTheSettings},
        {"Actions and settings in other languages.", showActionsInAllLanguages},
    };
    TourGuide guide(options.tourFolder, options.datafile);
    guide.tell("The road of one value");
    for (const auto& step : kSteps) {
        guide.tell(QString::fromUtf8(step.what));
        try {
            step.take(guide);
        } catch (const platform::Failure& failure) {
            guide.check(false, toQt(failure.description()));
        }
    }
    return guide.finish() ? 0 : 1;
}

} // namespace quill::shell
