// No text is cut off in lists and grids either, nor on the way through a page.
#include "person_fixture.h"

#include "platform/label.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <gmock/gmock.h>

namespace quill::shell::test {
namespace {

class TextFitsInLists : public PersonTest, public testing::WithParamInterface<const char*> {
protected:
    TextFitsInLists()
    {
        window->setLanguage(GetParam());
        userInput::settle();
    }

    /// What a cell needs by its own delegate, its icon and check mark included.
    static int needed(const QTreeView& tree, const QModelIndex& cell)
    {
        QStyleOptionViewItem option;
        option.initFrom(&tree);
        option.font        = tree.font();
        option.fontMetrics = tree.fontMetrics();
        option.rect        = QRect(0, 0, tree.columnWidth(cell.column()), 30);
        return tree.itemDelegateForIndex(cell)->sizeHint(option, cell).width();
    }
    /// Every cell of every row, and the headings.
    static void expectFits(QTreeView& tree, int most = 100'000)
    {
        const QAbstractItemModel& rows = *tree.model();
        ASSERT_GT(rows.rowCount(), 0);
        for (int column = 0; column < rows.columnCount(); ++column) {
            if (tree.isColumnHidden(column)) {
                continue;
            }
            if (!tree.isHeaderHidden()) {
                EXPECT_GE(tree.columnWidth(column), tree.header()->sectionSizeHint(column))
                    << rows.headerData(column, Qt::Horizontal).toString().toStdString();
            }
            for (int row = 0; row < std::min(most, rows.rowCount()); ++row) {
                const QModelIndex cell = rows.index(row, column);
                EXPECT_GE(tree.columnWidth(column), needed(tree, cell))
                    << cell.data().toString().toStdString();
            }
        }
        EXPECT_EQ(tree.horizontalScrollBar()->maximum(), 0);
    }
    /// Labels and buttons of a form, not those of its child controls.
    void expectFits(platform::Control& form)
    {
        int seen = 0;
        for (platform::Widget* const widget : form.Widgets()) {
            if (!widget->isShown()) {
                continue;
            }
            if (auto* const label = dynamic_cast<platform::Label*>(widget)) {
                auto& onScreen = dynamic_cast<QLabel&>(shown(*label));
                EXPECT_EQ(onScreen.text().toStdString(), label->Caption.get()) << "shortened";
                EXPECT_GE(onScreen.width(),
                          onScreen.fontMetrics().horizontalAdvance(onScreen.text()))
                    << label->Caption.get();
                ++seen;
            } else if (auto* const button = dynamic_cast<platform::ButtonBase*>(widget)) {
                auto& onScreen = dynamic_cast<QAbstractButton&>(shown(*button));
                EXPECT_GE(onScreen.width(), onScreen.minimumSizeHint().width())
                    << button->Caption.get();
                EXPECT_LE(onScreen.geometry().right(), onScreen.parentWidget()->width())
                    << button->Caption.get();
                ++seen;
            }
        }
        EXPECT_GT(seen, 2);
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, TextFitsInLists,
                         testing::Values("English", "German", "Finnish"),
                         [](const auto& language) { return std::string(language.param); });

TEST_P(TextFitsInLists, InTheEventLogsOfBothDevices)
{
    for (const bool fieldbus : {false, true}) {
        SCOPED_TRACE(fieldbus ? "fieldbus" : "HART");
        if (fieldbus) {
            openFieldbus();
        }
        if (!messenger().isOnline()) {
            goOnline();
        }
        window->showPage("eventLog");
        userInput::click(toolButton("readPage"));
        waitForDevice();
        auto& log = view<CtrEventLog>("eventLog");
        for (int pages = 0; log.cmdNext.Enabled && pages < 20; ++pages) {
            mouse(log.cmdNext);
        }
        userInput::settle();
        expectFits(dynamic_cast<QTreeView&>(shown(log.lsvEventLog)));
        expectFits(log);
        goOnline();
    }
}

TEST_P(TextFitsInLists, OfEveryEventThatADeviceCanLog)
{
    for (const bool fieldbus : {false, true}) {
        SCOPED_TRACE(fieldbus ? "fieldbus" : "HART");
        if (fieldbus) {
            openFieldbus();
        }
        goOnline();
        window->showPage("eventLog");
        auto& events = *messenger().device().function<DeviceEvents>();
        auto& log    = view<CtrEventLog>("eventLog");
        auto  names  = diagnosis().conditions();
        // As many as the ring holds, in two goes.
        for (const bool active : {true, false}) {
            events.clear();
            for (const DeviceCondition& condition : names) {
                messenger().device().tellCondition(condition.name, active);
            }
            userInput::click(toolButton("readPage"));
            waitForDevice();
            for (int pages = 0; log.cmdNext.Enabled && pages < 20; ++pages) {
                mouse(log.cmdNext);
            }
            ASSERT_GT(log.lsvEventLog.Count(), 40);
            expectFits(dynamic_cast<QTreeView&>(shown(log.lsvEventLog)));
        }
        goOnline();
    }
}

TEST_P(TextFitsInLists, InTheChecksOfTheOptions)
{
    window->resize(window->minimumSize());
    window->showPage("options");
    auto& checks = editor<CtrCheckEdit>("alarmMask");
    expectFits(dynamic_cast<QTreeView&>(shown(checks.scgCheck)));
    auto& option = editor<CtrOptionEdit>("failsafeAction");
    for (std::size_t place = 0; place < option.OptionCount(); ++place) {
        auto& button = dynamic_cast<QAbstractButton&>(shown(option.Option(place)));
        EXPECT_GE(button.width(), button.sizeHint().width()) << button.text().toStdString();
        EXPECT_LE(button.geometry().right(), button.parentWidget()->width());
    }
}

TEST_P(TextFitsInLists, AtEveryStepOfTheCalibration)
{
    window->resize(window->minimumSize());
    messenger().device().function<DevicePhysics>()->model().setDemand(12);
    messenger().device().advance(30);
    goOnline();
    window->showPage("mACalibration");
    auto& wizard = view<CtrMACalibration>("mACalibration");
    for (int step = 0; step <= 5; ++step) {
        SCOPED_TRACE(step);
        ASSERT_EQ(wizard.miCalibrationStep(), step);
        expectFits(wizard);
        if (step == 1 || step == 3) {
            userInput::type(shown(wizard.cteMACalibration[static_cast<std::size_t>(step)].txtBox),
                            QString::number(measuredLoopCurrent(messenger().device()), 'f', 3));
        }
        mouse(wizard.cmdNext);
    }
}

TEST_P(TextFitsInLists, WithEverythingChosenThatIsToBeReset)
{
    window->resize(window->minimumSize());
    goOnline();
    window->showPage("reset");
    auto& reset = view<CtrReset>("reset");
    for (CtrComboEdit& row : reset.cceReset) {
        for (int entry = 0; entry < row.cboBox.ListCount(); ++entry) {
            (void)row.cboBox.choose(entry);
            auto&                box = dynamic_cast<QComboBox&>(shown(row.cboBox));
            QStyleOptionComboBox option;
            option.initFrom(&box);
            EXPECT_GE(box.style()
                          ->subControlRect(QStyle::CC_ComboBox, &option,
                                           QStyle::SC_ComboBoxEditField, &box)
                          .width(),
                      box.fontMetrics().horizontalAdvance(box.currentText()))
                << box.currentText().toStdString();
        }
    }
    expectFits(reset);
}

TEST_P(TextFitsInLists, InTheUnitsOfTheSettings)
{
    window->command("settings")->trigger();
    userInput::settle();
    auto& dialog = window->settingsDialog();
    dialog.view().flush();
    expectFits(dynamic_cast<QTreeView&>(*dialog.view().shown(dialog.control().scgUnits)));
    dialog.reject();
}

TEST_P(TextFitsInLists, InTheQuestionsAndMessagesOfTheActions)
{
    // What the boxes are asked to show, in words of the language.
    goOnline();
    window->showPage("reset");
    auto& reset = view<CtrReset>("reset");
    for (CtrComboEdit& row : reset.cceReset) {
        (void)row.cboBox.choose(row.cboBox.ListCount() - 1);
    }
    mouse(reset.cmdReset);
    window->showPage("mACalibration");
    mouse(view<CtrMACalibration>("mACalibration").cmdNext);
    window->showPage("tuning");
    ASSERT_GE(dialogs.boxes.size(), 2U);
    for (const auto& box : dialogs.boxes) {
        EXPECT_FALSE(box.title.isEmpty());
        EXPECT_FALSE(box.title.startsWith("Err:")) << box.title.toStdString();
        EXPECT_FALSE(box.text.startsWith("Err:")) << box.text.toStdString();
        EXPECT_TRUE(box.text.contains(' ')) << box.text.toStdString();
        MessageBoxes boxes{*window, messenger().texts()};
        boxes.showMessage(box.title, box.text);
        userInput::settle();
        auto* const shownBox = window->findChild<QMessageBox*>();
        ASSERT_NE(shownBox, nullptr);
        for (const QLabel* label : shownBox->findChildren<QLabel*>()) {
            if (label->isVisible() && !label->text().isEmpty()) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                    << label->text().toStdString();
            }
        }
        for (const QAbstractButton* button : shownBox->buttons()) {
            EXPECT_GE(button->width(), button->minimumSizeHint().width());
        }
        shownBox->close();
        userInput::settle();
    }
}

} // namespace
} // namespace quill::shell::test
