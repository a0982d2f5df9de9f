// Language, units and classification in every corner of the window: a window in which they were
// changed looks like one that has begun with them.
#include "action_window_fixture.h"
#include "shell/folders.h"
#include "shell/status_sign.h"

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTextEdit>
#include <QTreeWidget>
#include <gmock/gmock.h>

namespace quill::shell::test {
namespace {

using Lines = std::vector<std::string>;

/// What a person sees and hears, but for what depends on the hour.
std::string timeless(QString text)
{
    static const QRegularExpression times{
        R"(\d{1,4}[-./]\d{1,2}[-./]\d{1,4}( \d{1,2}[:.]\d{2}([:.]\d{2})?( [AaPp][Mm])?)?( \*)?)"};
    return text.replace(times, "<time>").toStdString();
}

void addTree(const QAbstractItemModel& rows, const QModelIndex& parent, Lines& lines)
{
    for (int row = 0; row < rows.rowCount(parent); ++row) {
        QString line;
        for (int column = 0; column < rows.columnCount(parent); ++column) {
            const QModelIndex cell = rows.index(row, column, parent);
            line += cell.data().toString() + " | " + cell.data(Qt::AccessibleTextRole).toString() +
                    " | ";
        }
        lines.push_back("row " + timeless(line));
        addTree(rows, rows.index(row, 0, parent), lines);
    }
}

void addWidget(const QWidget& widget, Lines& lines)
{
    const std::string kind = widget.metaObject()->className();
    const auto        add  = [&](const QString& text) {
        if (!text.isEmpty()) {
            lines.push_back(kind + ": " + timeless(text));
        }
    };
    add(widget.accessibleName());
    add(widget.toolTip());
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        add(label->text());
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        add(button->text());
    } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
        add(group->title());
    } else if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
        add(box->text());
    } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        for (int entry = 0; entry < combo->count(); ++entry) {
            add(combo->itemText(entry));
        }
        add("chosen: " + combo->currentText());
    } else if (const auto* tree = qobject_cast<const QTreeView*>(&widget)) {
        for (int column = 0; column < tree->model()->columnCount(); ++column) {
            add(tree->model()->headerData(column, Qt::Horizontal).toString());
        }
        addTree(*tree->model(), {}, lines);
    }
}

class SettingsEverywhere : public ActionWindowTest,
                           public testing::WithParamInterface<std::tuple<std::string, bool>> {
protected:
    SettingsEverywhere() { startAnew(); }

    void startAnew()
    {
        dialogs.saveChoices = {SaveChoice::discard, SaveChoice::discard};
        window = std::make_unique<MainWindow>(&dialogs, Folders::in(folder.path("user")));
        window->statusCycle().setInterval(std::chrono::milliseconds{0});
        window->resize(1400, 1000);
        window->show();
        window->activateWindow();
        window->command(("open" + std::get<0>(GetParam())).c_str())->trigger();
        window->command("simulation")->trigger();
        userInput::settle();
        if (std::get<1>(GetParam())) {
            goOnline();
            read();
        }
    }
    void read()
    {
        ASSERT_TRUE(messenger().readAll());
        waitForDevice();
        for (const char* request : {"deviceStatusMasks", "deviceStatus"}) {
            ASSERT_TRUE(messenger().readGroup(request));
            waitForDevice();
        }
        userInput::settle();
    }

    /// All that there is, page by page.
    std::map<std::string, Lines> everything()
    {
        std::map<std::string, Lines> all;
        for (const auto& page : window->book().pages()) {
            window->showPage(page->Tag);
            userInput::settle();
            window->view().flush();
            add(*window, all[page->Tag]);
        }
        Lines& commands = all["commands"];
        for (const QAction* action : window->findChildren<QAction*>()) {
            if (action->menu() == nullptr && !action->isSeparator()) {
                commands.push_back(timeless(action->text() + " | " + action->toolTip()) +
                                   (action->isChecked() ? " (checked)" : ""));
            }
        }
        for (const QMenu* menu : window->findChildren<QMenu*>()) {
            commands.push_back(menu->title().toStdString());
        }
        commands.push_back(timeless(window->windowTitle()));
        window->command("settings")->trigger();
        userInput::settle();
        window->settingsDialog().view().flush();
        add(window->settingsDialog(), all["settings"]);
        window->settingsDialog().reject();
        window->command("changes")->trigger();
        userInput::settle();
        window->changesDialog().view().flush();
        add(window->changesDialog(), all["changes"]);
        window->changesDialog().reject();
        userInput::settle();
        return all;
    }
    void add(const QWidget& shown, Lines& lines)
    {
        lines.push_back(timeless(shown.windowTitle()));
        for (const QWidget* widget : shown.findChildren<QWidget*>()) {
            // The log keeps what was said in the language of that time.
            if (widget->isVisibleTo(&shown) && !window->log().isAncestorOf(widget) &&
                widget->window() == &shown) {
                addWidget(*widget, lines);
            }
        }
    }

    void change(const char* language, const char* system, int classification)
    {
        window->command("settings")->trigger();
        userInput::settle();
        CtrSettings& control = window->settingsDialog().control();
        for (std::size_t row = 0; row < control.cboSelectLanguage.List().size(); ++row) {
            if (control.cboSelectLanguage.List()[row] == language) {
                control.cboSelectLanguage.choose(static_cast<int>(row));
            }
        }
        if (control.cboStatusClassification.Visible) {
            control.cboStatusClassification.choose(classification);
        }
        (system == std::string("US") ? control.cmdUS : control.cmdSI).click();
        control.cmdOK.click();
        userInput::settle();
        if (messenger().isOnline()) {
            // The window reads at once in another classification; here nothing happens by itself.
            ASSERT_TRUE(messenger().readGroup("deviceStatus"));
            waitForDevice();
        }
    }

    void expectSame(const std::map<std::string, Lines>& one,
                    const std::map<std::string, Lines>& other)
    {
        ASSERT_EQ(one.size(), other.size());
        for (const auto& [page, lines] : one) {
            SCOPED_TRACE(page);
            const Lines& others = other.at(page);
            EXPECT_GT(lines.size(), 10U);
            EXPECT_EQ(lines.size(), others.size());
            for (std::size_t i = 0; i < std::min(lines.size(), others.size()); ++i) {
                EXPECT_EQ(lines[i], others[i]) << i;
            }
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Devices, SettingsEverywhere,
                         testing::Combine(testing::Values(std::string("VX4400H"),
                                                          std::string("VX4400F")),
                                          testing::Bool()),
                         [](const auto& tested) {
                             return std::get<0>(tested.param) +
                                    (std::get<1>(tested.param) ? "Online" : "Offline");
                         });

TEST_P(SettingsEverywhere, AChangeReachesEveryCornerAndSurvivesARestart)
{
    const auto english = everything();
    // A tree takes icons of another classification with what is read next: offline nothing is.
    change("Suomi", "US", messenger().isOnline() ? kClassNAMUR : kClassSeverity);
    const auto changed = everything();
    for (const auto& [page, lines] : english) {
        EXPECT_NE(lines, changed.at(page)) << page;
    }
    startAnew();
    expectSame(changed, everything());
}

TEST_P(SettingsEverywhere, AChangeBackLeavesNoTrace)
{
    change("English", "SI", kClassSeverity);
    const auto before = everything();
    change("Deutsch", "US", kClassNAMUR);
    (void)everything();
    change("English", "SI", kClassSeverity);
    expectSame(before, everything());
}

TEST_P(SettingsEverywhere, UnitsThereAndBackLeaveEveryDigitAndEveryEdit)
{
    change("English", "SI", kClassSeverity);
    window->showPage("configuration");
    userInput::type(shown(editor<CtrTextEdit>("supplyHighPressure").txtBox), "650.5");
    userInput::type(shown(editor<CtrTextEdit>("openingTime").txtBox), "x");
    const auto edits       = store().editCount();
    const auto shownValues = [&] {
        std::map<std::string, std::string> values;
        for (const auto& page : window->book().pages()) {
            for (const auto& section : page->description().sections) {
                for (const auto& row : section.rows) {
                    if (auto* const text = dynamic_cast<CtrTextEdit*>(page->find(row.parameter))) {
                        values[row.parameter] =
                            text->Text() + ' ' + text->Unit() + ' ' + text->changeState() + ' ' +
                            (text->Modified() ? "*" : "") + (text->Correct() ? "" : "!");
                    }
                }
            }
        }
        return values;
    };
    auto before = shownValues();
    ASSERT_THAT(before.at("supplyHighPressure"), testing::StartsWith("650.5"));
    ASSERT_TRUE(editor<CtrTextEdit>("supplyHighPressure").Modified());
    for (int time = 0; time < 3; ++time) {
        change("English", "US", kClassSeverity);
        EXPECT_NE(shownValues(), before);
        EXPECT_TRUE(editor<CtrTextEdit>("supplyHighPressure").Modified());
        EXPECT_FALSE(editor<CtrTextEdit>("openingTime").Correct());
        change("English", "SI", kClassSeverity);
    }
    auto after = shownValues();
    // What is being edited is converted as it stands on the screen.
    EXPECT_THAT(after["supplyHighPressure"], testing::StartsWith("650."));
    before.erase("supplyHighPressure");
    after.erase("supplyHighPressure");
    EXPECT_EQ(after, before);
    EXPECT_EQ(editor<CtrTextEdit>("openingTime").Text(), "x");
    EXPECT_EQ(store().editCount(), edits);
}

TEST_P(SettingsEverywhere, NoTextIsLeftInAnotherLanguage)
{
    // Texts that two languages share are names, numbers, units and the like: they are few.
    const auto english = everything();
    change("Suomi", "SI", kClassSeverity);
    const auto            finnish = everything();
    std::set<std::string> shared;
    for (const auto& [page, lines] : finnish) {
        const Lines& others = english.at(page);
        for (std::size_t i = 0; i < std::min(lines.size(), others.size()); ++i) {
            static const QRegularExpression words{R"([A-Za-z]{4,} [A-Za-z]{4,})"};
            // What stands in a box is the user's, and modules have the names of their maker.
            if (lines[i] == others[i] && !lines[i].starts_with("QLineEdit") &&
                page != "moduleSelection" &&
                words.match(QString::fromStdString(lines[i])).hasMatch()) {
                shared.insert(lines[i]);
            }
        }
    }
    EXPECT_THAT(shared, testing::IsEmpty());
}

} // namespace
} // namespace quill::shell::test
