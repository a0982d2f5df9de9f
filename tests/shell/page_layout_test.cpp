// Where things stand: pages that a view fills line up with those that the shell lays out.
#include "action_window_fixture.h"
#include "editors/CtrOptionEdit.h"
#include "qt/colors.h"
#include "shell/row_metrics.h"
#include "status/CtrStatusF.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOption>

namespace quill::shell::test {
namespace {

class PageLayout : public ActionWindowTest, public testing::WithParamInterface<const char*> {
protected:
    PageLayout()
    {
        window->setLanguage(GetParam());
        goOnline();
    }
    QRect place(const platform::Widget& widget)
    {
        const QWidget& found = shown(widget);
        return {found.mapTo(&window->view(), QPoint(0, 0)), found.size()};
    }
    /// The card of the page that is shown.
    QRect card()
    {
        for (platform::Widget* widget : window->book().shownPage()->Widgets()) {
            if (dynamic_cast<platform::Frame*>(widget) != nullptr) {
                return place(*widget);
            }
        }
        return {};
    }
    void show(const char* page)
    {
        window->showPage(page);
        userInput::settle();
    }
    /// A row of a form: it begins where rows of editors begin.
    void expectRow(int number, const platform::Label& label, const platform::Widget& box)
    {
        SCOPED_TRACE(label.Name + std::to_string(number));
        const QRect beside = place(box);
        const int   middle =
            card().top() + (kTitleHeight + kRowHeight / 2) / 15 + number * kRowPitch / 15;
        EXPECT_NEAR(beside.center().y(), middle, 1);
        EXPECT_NEAR(place(label).center().y(), beside.center().y(), 1);
        EXPECT_EQ(place(label).left(), card().left() + kPageMargin / 15);
        EXPECT_GT(beside.left(), place(label).right());
    }
    void expectButton(const platform::CommandButton& button, const platform::Widget& box)
    {
        EXPECT_EQ(place(button).top(), place(box).top());
        EXPECT_EQ(place(button).bottom(), place(box).bottom());
        EXPECT_GT(place(button).left(), place(box).right());
        EXPECT_LE(place(button).right(), card().right() - kPageMargin / 15);
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, PageLayout, testing::Values("English", "German", "Finnish"),
                         [](const auto& language) { return std::string(language.param); });

} // namespace

TEST_P(PageLayout, TheRowsOfTheResetsStandAsThoseOfEditors)
{
    show("reset");
    auto& reset = view<CtrReset>("reset");
    for (std::size_t row = 0; row < reset.cceReset.size(); ++row) {
        expectRow(static_cast<int>(row), reset.lblReset[row], reset.cceReset[row].cboBox);
    }
    expectButton(reset.cmdReset, reset.cceReset[0].cboBox);
}

TEST_P(PageLayout, TheRowsOfTheAddressToo)
{
    show("hartAddress");
    auto& address = view<CtrHartAddress>("hartAddress");
    expectRow(0, address.lblAssemblyRelated[1], address.cceMultidrop.cboBox);
    expectRow(1, address.lblAssemblyRelated[0], address.cceAddress.cboBox);
    expectButton(address.cmdSet, address.cceMultidrop.cboBox);
}

TEST_P(PageLayout, TheCalibrationBeginsAtTheMarginAlsoWhenItIsDone)
{
    show("mACalibration");
    auto& calibration = view<CtrMACalibration>("mACalibration");
    for (int step = 0; step < 6; ++step) {
        EXPECT_EQ(place(calibration.imgMACalibration[0]).left(), card().left() + 16);
        EXPECT_EQ(place(calibration.cmdBack).left(), card().left() + 16);
        EXPECT_LE(place(calibration.cmdNext).bottom(), card().bottom());
        for (std::size_t row : {1U, 3U}) {
            if (step == static_cast<int>(row)) {
                userInput::type(shown(calibration.cteMACalibration[row].txtBox),
                                row == 1 ? "4.1" : "20.1");
            }
        }
        click(calibration.cmdNext);
        const QRect date = place(calibration.ctrDateLabels[0]);
        EXPECT_GT(date.top(), card().top());
        EXPECT_LT(date.bottom(), place(calibration.cteMACalibration[0].txtBox).top());
        EXPECT_NEAR(date.right(), card().right() - 16, 1);
    }
}

TEST_P(PageLayout, TheModuleAndItsButtonAreOnOneLine)
{
    openFieldbus();
    show("moduleSelection");
    auto& modules = view<CtrModuleSelection>("moduleSelection");
    EXPECT_EQ(place(modules.ModuleSelection).left(), card().left() + 16);
    expectButton(modules.cmdSetSelection, modules.ModuleSelection);
}

TEST_P(PageLayout, TreesAndListsReachFromMarginToMargin)
{
    const auto expectWide = [this](const platform::Widget& rows) {
        EXPECT_NEAR(place(rows).left(), card().left() + 16, 1);
        EXPECT_NEAR(place(rows).right(), card().right() - 16, 1);
    };
    show("status");
    expectWide(view<StatusTreeView>("status").scgStatus);
    EXPECT_NEAR(place(view<StatusTreeView>("status").scgStatus).bottom(), card().bottom() - 16, 1);
    show("statusConfiguration");
    auto& configuration = view<CtrStatusF>("statusConfiguration");
    for (int time = 0; time < 2; ++time) { // begins, and cancels
        expectWide(configuration.scgStatus);
        const QRect button = place(configuration.cmdConfiguration);
        EXPECT_NEAR(button.right(), card().right() - 16, 1);
        EXPECT_NEAR(button.bottom(), card().bottom() - 16, 1);
        EXPECT_LT(place(configuration.scgStatus).bottom(), button.top());
        click(configuration.cmdConfiguration);
    }
    show("eventLog");
    auto& log = view<CtrEventLog>("eventLog");
    expectWide(log.lsvEventLog);
    EXPECT_EQ(place(log.lblTitle[0]).left(), card().left() + 16);
    EXPECT_NEAR(place(log.cmdNext).bottom(), card().bottom() - 16, 1);
}

TEST_P(PageLayout, TheLogShowsItsTitlesWholeInTheSmallestWindow)
{
    window->resize(window->minimumSize());
    show("eventLog");
    ASSERT_TRUE(window->readPage());
    waitForDevice();
    const auto& list = dynamic_cast<QTreeView&>(shown(view<CtrEventLog>("eventLog").lsvEventLog));
    for (int column = 0; column < list.model()->columnCount(); ++column) {
        if (!list.isColumnHidden(column)) {
            EXPECT_GE(list.columnWidth(column), list.header()->sectionSizeHint(column)) << column;
        }
    }
    EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
}

TEST_P(PageLayout, AFormNeedsNoScrollBarInTheSmallestWindow)
{
    window->resize(window->minimumSize());
    for (const char* page : {"reset", "hartAddress", "mACalibration"}) {
        show(page);
        const auto& area =
            dynamic_cast<QScrollArea&>(*window->view().parentWidget()->parentWidget());
        EXPECT_FALSE(area.verticalScrollBar()->isVisible()) << page;
        EXPECT_FALSE(area.horizontalScrollBar()->isVisible()) << page;
    }
}

TEST_P(PageLayout, ALabelStandsOnTheLineOfItsFirstOption)
{
    show("options");
    const auto& option = editor<CtrOptionEdit>("failsafeAction");
    const auto& label  = *window->book().shownPage()->labelOf("failsafeAction");
    EXPECT_NEAR(place(label).center().y(), place(option.Option(0)).center().y(), 1);
}

// --- Window -----------------------------------------------------------------------------------

class WindowLook : public ActionWindowTest {};

TEST_F(WindowLook, TheCardIsTheGroundOfItsView)
{
    for (const auto scheme : {ColorScheme::light, ColorScheme::dark}) {
        window->setScheme(scheme);
        for (const auto& page : window->book().pages()) {
            window->showPage(page->Tag);
            window->view().flush();
            const auto* const filled = dynamic_cast<const ViewPage*>(page.get());
            for (platform::Widget* widget :
                 filled != nullptr ? filled->view().Widgets() : platform::WidgetList{}) {
                if (dynamic_cast<platform::Frame*>(widget) != nullptr) {
                    EXPECT_FALSE(shown(*widget).autoFillBackground()) << page->Tag.get();
                }
            }
        }
    }
}

TEST_F(WindowLook, APageThatIsTurnedToShowsItsCorner)
{
    window->resize(window->minimumSize());
    window->command("simulation")->trigger();
    window->showPage("configuration");
    userInput::settle();
    const auto& area = dynamic_cast<QScrollArea&>(*window->view().parentWidget()->parentWidget());
    area.horizontalScrollBar()->setValue(area.horizontalScrollBar()->maximum());
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum());
    ASSERT_GT(area.horizontalScrollBar()->value(), 0);
    window->showPage("alarms");
    userInput::settle();
    EXPECT_EQ(area.horizontalScrollBar()->value(), 0);
    EXPECT_EQ(area.verticalScrollBar()->value(), 0);
}

TEST_F(WindowLook, WhatCanBeOnOrOffHasACheckMarkInTheMenu)
{
    int found = 0;
    for (const QMenu* menu : window->findChildren<QMenu*>()) {
        for (const QAction* action : menu->actions()) {
            if (action->isCheckable()) {
                EXPECT_TRUE(action->icon().isNull()) << action->text().toStdString();
                ++found;
            }
        }
    }
    EXPECT_GE(found, 5);
}

TEST_F(WindowLook, BoxesOfTheWindowItselfHaveEdgesToo)
{
    for (const auto scheme : {ColorScheme::light, ColorScheme::dark}) {
        window->setScheme(scheme);
        userInput::settle();
        const QPalette palette = window->palette();
        for (const char* name : {"language", "userLevel", "signal", "mend"}) {
            const QColor edge =
                window->findChild<QWidget*>(name)->palette().color(QPalette::Window).darker(140);
            EXPECT_GE(qt::contrast(edge, palette.color(QPalette::Window)), 2.9) << name;
        }
        EXPECT_EQ(palette.color(QPalette::Window), shellPalette(scheme).color(QPalette::Window));
    }
}

TEST_F(WindowLook, TheArrowOfTheChosenRowIsSeenOnItsGround)
{
    for (const auto scheme : {ColorScheme::light, ColorScheme::dark}) {
        applyStyle(scheme);
        const QColor ground = QApplication::palette().color(QPalette::Highlight);
        QImage       picture(20, 20, QImage::Format_RGB32);
        picture.fill(ground);
        QPainter     painter(&picture);
        QStyleOption option;
        option.rect    = picture.rect();
        option.palette = QApplication::palette();
        option.state   = QStyle::State_Enabled | QStyle::State_Selected | QStyle::State_Children |
                       QStyle::State_Open | QStyle::State_Item;
        QApplication::style()->drawPrimitive(QStyle::PE_IndicatorBranch, &option, &painter);
        painter.end();
        double most = 1;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                most = std::max(most, qt::contrast(picture.pixelColor(x, y), ground));
            }
        }
        EXPECT_GE(most, 3);
    }
}

TEST_F(WindowLook, TheButtonThatEnterMeansIsMarkedInTheDialogs)
{
    window->command("changes")->trigger();
    userInput::settle();
    auto& changes = window->changesDialog();
    for (const auto* button : {&changes.control().cmdDownload, &changes.control().cmdClose}) {
        EXPECT_EQ(dynamic_cast<QPushButton&>(*changes.view().shown(*button)).isDefault(),
                  button == &changes.control().cmdDownload);
    }
    changes.reject();
    for (int time = 0; time < 2; ++time) {
        window->command("settings")->trigger();
        userInput::settle();
        auto& settings = window->settingsDialog();
        EXPECT_TRUE(dynamic_cast<QPushButton&>(*settings.view().shown(settings.control().cmdOK))
                        .isDefault());
        settings.reject();
    }
}

TEST_F(WindowLook, WhatHasTheFocusHasARingAroundIt)
{
    constexpr int kCorner = 4;
    int           boxes   = 0;
    int           buttons = 0;
    for (const char* page :
         {"configuration", "reset", "hartAddress", "eventLog", "statusConfiguration"}) {
        window->showPage(page);
        userInput::settle();
        for (QWidget* widget : window->view().findChildren<QWidget*>()) {
            const bool isBox    = qobject_cast<QComboBox*>(widget) != nullptr;
            const bool isButton = qobject_cast<QPushButton*>(widget) != nullptr;
            if (!(isBox || isButton) || !widget->isVisible() || !widget->isEnabled()) {
                continue;
            }
            widget->clearFocus();
            userInput::settle();
            const QImage without = widget->grab().toImage();
            widget->setFocus(Qt::TabFocusReason);
            userInput::settle();
            const QImage with    = widget->grab().toImage();
            int          changed = 0;
            for (int x = kCorner; x < with.width() - kCorner; ++x) {
                changed += with.pixel(x, 1) != without.pixel(x, 1) ? 1 : 0;
            }
            EXPECT_GE(changed, with.width() - 3 * kCorner)
                << page << " " << widget->objectName().toStdString();
            (isBox ? boxes : buttons) += 1;
        }
    }
    EXPECT_GT(boxes, 0);
    EXPECT_GT(buttons, 0);
}

} // namespace quill::shell::test
