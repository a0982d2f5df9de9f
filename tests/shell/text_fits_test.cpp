// No text is cut off, in no language, on no page, on no screen.
#include "platform/buttons.h"
#include "platform/grid.h"
#include "platform/label.h"
#include "shell/status_sign.h"
#include "shell/view_page.h"
#include "status/CtrStatusF.h"
#include "window_fixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QProcess>
#include <QProcessEnvironment>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyleOptionComboBox>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

namespace quill::shell::test {

namespace {

class TextFits : public WindowTest, public testing::WithParamInterface<const char*> {
protected:
    TextFits()
    {
        window->setLanguage(GetParam());
        userInput::settle();
    }

    /// Every label, button and drop-down list of a form, those of its child controls included.
    void expectFits(qt::View& view, platform::Control& form)
    {
        view.flush();
        for (platform::Widget* widget : form.Widgets()) {
            if (auto* control = dynamic_cast<platform::Control*>(widget)) {
                expectFits(view, *control);
            }
            QWidget* const shown = view.shown(*widget);
            if (shown == nullptr || !widget->isShown()) {
                continue;
            }
            if (auto* label = dynamic_cast<platform::Label*>(widget)) {
                expectFits(*shown, label->Caption, static_cast<QLabel*>(shown)->text());
            } else if (auto* button = dynamic_cast<platform::ButtonBase*>(widget)) {
                expectFits(*shown, button->Caption, static_cast<QAbstractButton*>(shown)->text());
            } else if (auto* combo = dynamic_cast<platform::ComboBox*>(widget)) {
                expectFits(*static_cast<QComboBox*>(shown), *combo);
            } else if (dynamic_cast<platform::Grid*>(widget) != nullptr) {
                expectFits(*static_cast<QTreeView*>(shown));
            }
            ++seen;
        }
    }
    static void expectFits(const QWidget& shown, const std::string& wanted, const QString& text)
    {
        EXPECT_EQ(text.toStdString(), wanted) << "shortened";
        EXPECT_GE(shown.width(), shown.fontMetrics().size(Qt::TextShowMnemonic, text).width())
            << wanted;
        EXPECT_GE(shown.height(), shown.fontMetrics().height()) << wanted;
        EXPECT_LE(shown.geometry().right(), shown.parentWidget()->width()) << wanted;
    }
    static void expectFits(const QComboBox& shown, const platform::ComboBox& combo)
    {
        QStyleOptionComboBox option;
        option.initFrom(&shown);
        const int room =
            shown.style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &shown)
                .width();
        for (const auto& entry : combo.List()) {
            EXPECT_GE(room, shown.fontMetrics().horizontalAdvance(QString::fromStdString(entry)))
                << entry;
        }
    }

    /// The rows of a tree with all branches unfolded, none behind a horizontal bar.
    static void expectFits(QTreeView& tree)
    {
        EXPECT_GT(tree.model()->rowCount(), 0);
        EXPECT_LE(static_cast<QAbstractItemView&>(tree).sizeHintForColumn(0),
                  tree.viewport()->width());
        EXPECT_LE(static_cast<QAbstractItemView&>(tree).sizeHintForColumn(0), tree.columnWidth(0));
        EXPECT_FALSE(tree.horizontalScrollBar()->isVisible());
    }
    static void expectFits(const QLabel& label)
    {
        EXPECT_GE(label.width(), label.sizeHint().width()) << label.text().toStdString();
        EXPECT_GE(label.height(), label.fontMetrics().height()) << label.text().toStdString();
    }
    /// On a page of editors there is more than on one that a view fills.
    static int least(const Page& page) { return page.description().view.empty() ? 10 : 2; }

    int seen = 0;
};

INSTANTIATE_TEST_SUITE_P(Languages, TextFits, testing::Values("English", "German", "Finnish"),
                         [](const auto& language) { return std::string(language.param); });

} // namespace

TEST_P(TextFits, OnEveryPageAlsoAfterARead)
{
    goOnline();
    ASSERT_TRUE(messenger().readAll());
    waitForDevice();
    for (const auto& page : window->book().pages()) {
        SCOPED_TRACE(page->Tag.get());
        window->showPage(page->Tag);
        userInput::settle();
        seen = 0;
        expectFits(window->view(), window->book());
        EXPECT_GT(seen, least(*page));
        for (platform::Widget* widget : page->Widgets()) {
            if (dynamic_cast<platform::Frame*>(widget) && widget->Container() == page.get()) {
                EXPECT_LE(widget->Left + widget->Width, window->book().Width);
            }
        }
    }
}

TEST_P(TextFits, OnTheStatusPagesOfBothSamples)
{
    window->resize(window->minimumSize());
    for (const Sample& sample : samples()) {
        SCOPED_TRACE(sample.type);
        window->openSample(sample);
        if (!messenger().isOnline()) {
            goOnline();
        }
        for (const auto& page : window->book().pages()) {
            if (page->description().viewTag != "deviceStatus") {
                continue;
            }
            SCOPED_TRACE(page->Tag.get());
            window->showPage(page->Tag);
            EXPECT_TRUE(window->readPage());
            waitForDevice();
            seen = 0;
            expectFits(window->view(), window->book());
            EXPECT_GT(seen, least(*page));
            auto* const view =
                dynamic_cast<CtrStatusF*>(&dynamic_cast<const ViewPage&>(*page).view());
            for (int time = 0; view != nullptr && time < 2; ++time) { // begins, and cancels
                userInput::click(shown(view->cmdConfiguration));
                EXPECT_EQ(view->IsConfiguring(), time == 0);
                expectFits(window->view(), window->book());
            }
        }
    }
}

TEST_P(TextFits, AroundThePage)
{
    window->resize(window->minimumSize());
    goOnline();
    messenger().SetConfigurationChanged("1");
    auto& sign = window->statusSign();
    for (const char* status : {"deviceOffSpecification", "deviceMaintenanceRequired",
                               "deviceUnderTest", "deviceDiagnosisPassiv", "failsafe"}) {
        messenger().SetCombinedStatus(1, status);
        userInput::settle();
        EXPECT_GE(sign.width(), sign.sizeHint().width()) << status;
        EXPECT_LE(sign.geometry().right(), sign.parentWidget()->width()) << status;
        EXPECT_FALSE(sign.word().startsWith("Err:")) << status;
    }
    auto& acknowledge = *window->findChild<QToolButton*>("clearChanged");
    EXPECT_TRUE(acknowledge.isVisible());
    EXPECT_GE(acknowledge.width(), acknowledge.sizeHint().width());
    for (const QLabel* label : window->statusBar()->findChildren<QLabel*>()) {
        if (label->isVisible()) {
            expectFits(*label);
        }
    }
}

TEST_P(TextFits, InTheSimulation)
{
    window->resize(window->minimumSize());
    window->command("simulation")->trigger();
    userInput::settle();
    auto& pane = window->simulation();
    expectFits(pane.tree());
    for (const QLabel* label : pane.findChildren<QLabel*>()) {
        expectFits(*label);
    }
    for (const QAbstractButton* button : pane.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && !button->text().isEmpty()) {
            EXPECT_GE(button->width(), button->minimumSizeHint().width())
                << button->text().toStdString();
        }
    }
}

TEST_P(TextFits, InTheDialogOfChanges)
{
    window->command("changes")->trigger();
    userInput::settle();
    auto& dialog = window->changesDialog();
    ASSERT_TRUE(dialog.isVisible());
    expectFits(dialog.view(), dialog.control());
    EXPECT_GE(seen, 6);
    userInput::click(*dialog.view().shown(dialog.control().chkChanges));
    dialog.view().flush();
    auto& list = *static_cast<QTreeView*>(dialog.view().shown(dialog.control().lstChanges));
    EXPECT_GT(list.model()->rowCount(), 40) << "all that can be written";
    for (int column = 0; column < 3; ++column) {
        EXPECT_GE(list.columnWidth(column),
                  static_cast<QAbstractItemView&>(list).sizeHintForColumn(column));
    }
    EXPECT_LE(list.header()->length(), list.viewport()->width()) << "no horizontal bar";
    dialog.reject();
}

TEST_P(TextFits, OnThePagesOfTheOtherDevice)
{
    dialogs.saveChoices.push_back(SaveChoice::discard);
    window->command("openVX4400F")->trigger();
    userInput::settle();
    for (const auto& page : window->book().pages()) {
        SCOPED_TRACE(page->Tag.get());
        window->showPage(page->Tag);
        userInput::settle();
        expectFits(window->view(), window->book());
    }
}

TEST_P(TextFits, InTheSettings)
{
    window->command("settings")->trigger();
    userInput::settle();
    auto& dialog = window->settingsDialog();
    ASSERT_TRUE(dialog.isVisible());
    expectFits(dialog.view(), dialog.control());
    EXPECT_GE(seen, 10);
    auto& units = *static_cast<QTreeView*>(dialog.view().shown(dialog.control().scgUnits));
    for (int column = 0; column < 2; ++column) {
        EXPECT_GE(units.columnWidth(column),
                  static_cast<QAbstractItemView&>(units).sizeHintForColumn(column));
    }
    EXPECT_LE(units.header()->length(), units.viewport()->width()) << "no horizontal bar";
    dialog.reject();
}

TEST_P(TextFits, InTheSmallestWindow)
{
    window->resize(window->minimumSize());
    goOnline();
    userInput::settle();
    auto* bar = window->findChild<QToolBar*>("commands");
    EXPECT_FALSE(bar->findChild<QToolButton*>("qt_toolbar_ext_button")->isVisible())
        << "every command is on the bar";
    for (QAction* action : bar->actions()) {
        QWidget* const widget = bar->widgetForAction(action);
        if (qobject_cast<QToolButton*>(widget) || qobject_cast<QLabel*>(widget) ||
            qobject_cast<QComboBox*>(widget)) {
            EXPECT_GE(widget->width(), widget->sizeHint().width()) << action->text().toStdString();
        }
    }
    auto* tree = window->findChild<QTreeWidget*>("pages");
    EXPECT_GE(tree->viewport()->width(),
              static_cast<QAbstractItemView*>(tree)->sizeHintForColumn(0));
    for (const auto& page : window->book().pages()) {
        window->showPage(page->Tag);
        userInput::settle();
        EXPECT_LE(window->view().width(), window->view().parentWidget()->width())
            << page->Tag.get() << " needs no horizontal bar";
        expectFits(window->view(), window->book());
    }
}

TEST(TextFitsOnASharpScreen, AllOfTheAbove)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", "2");
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess again;
    again.setProcessEnvironment(environment);
    again.setProcessChannelMode(QProcess::MergedChannels);
    again.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=Languages/TextFits.*"});
    ASSERT_TRUE(again.waitForFinished(600'000));
    EXPECT_EQ(again.exitCode(), 0) << again.readAll().toStdString();
}

} // namespace quill::shell::test
