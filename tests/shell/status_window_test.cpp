#include "status_window_fixture.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>
#include <gmock/gmock.h>

namespace quill::shell::test {

namespace {

using testing::Contains;
using testing::HasSubstr;

class StatusWindow : public StatusWindowTest {
protected:
    [[nodiscard]] StatusSign& sign() { return window->statusSign(); }
    QMenu&   classifications() { return *window->findChild<QMenu*>("shell_menuClassification"); }
    QWidget& acknowledge() { return *window->findChild<QWidget*>("clearChanged"); }
};

} // namespace

// --- Pages ------------------------------------------------------------------------------------

TEST_F(StatusWindow, TheTreeHasThePagesOfTheDevice)
{
    auto* const pages = window->findChild<QTreeWidget*>("pages");
    EXPECT_EQ(
        pages->findItems("Status configuration", Qt::MatchExactly | Qt::MatchRecursive).size(), 1);
    EXPECT_EQ(pages->findItems("Burst mode", Qt::MatchExactly | Qt::MatchRecursive).size(), 1);
    window->command("openVX4400F")->trigger();
    EXPECT_EQ(messenger().deviceType(), "VX4400F");
    EXPECT_EQ(window->book().page("statusConfiguration"), nullptr);
    EXPECT_NE(window->book().page("status"), nullptr);
    EXPECT_TRUE(
        pages->findItems("Status configuration", Qt::MatchExactly | Qt::MatchRecursive).isEmpty());
    EXPECT_TRUE(pages->findItems("Burst mode", Qt::MatchExactly | Qt::MatchRecursive).isEmpty())
        << "a fieldbus device has none";
    window->command("openVX4400H")->trigger();
    EXPECT_NE(window->book().page("statusConfiguration"), nullptr);
}

TEST_F(StatusWindow, APageThatTheNextDeviceDoesNotHaveGivesWayToTheFirst)
{
    window->showPage("statusConfiguration");
    window->command("openVX4400F")->trigger();
    EXPECT_EQ(window->book().GetSelectedView(), "identification");
    EXPECT_EQ(window->findChild<QTreeWidget*>("pages")->currentItem()->text(0), "Identification");
}

TEST_F(StatusWindow, AViewFillsItsPageAndFollowsTheWindow)
{
    window->showPage("status");
    auto* const area  = window->findChild<QScrollArea*>();
    const auto  check = [&] {
        userInput::settle();
        window->view().flush();
        EXPECT_EQ(window->view().size(), area->viewport()->size());
        EXPECT_FALSE(area->verticalScrollBar()->isVisible());
        EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
        const QRect grid(shown(view().scgStatus).mapTo(area->viewport(), QPoint(0, 0)),
                          shown(view().scgStatus).size());
        EXPECT_TRUE(area->viewport()->rect().contains(grid));
        EXPECT_GT(grid.width(), area->viewport()->width() * 4 / 5);
        EXPECT_GT(grid.height(), area->viewport()->height() * 2 / 3);
    };
    check();
    window->resize(window->width() + 300, window->height() + 150);
    check();
    window->resize(window->minimumSize());
    check();
}

TEST_F(StatusWindow, AViewThatGetsTooLittleRoomHasScrollBars)
{
    window->showPage("statusConfiguration");
    auto* const area = window->findChild<QScrollArea*>();
    area->setMaximumSize(300, 200);
    userInput::settle();
    EXPECT_TRUE(area->verticalScrollBar()->isVisible());
    EXPECT_TRUE(area->horizontalScrollBar()->isVisible());
    EXPECT_GE(configurable().Height, 200 * 15);
    EXPECT_GT(configurable().scgStatus.Height, 0);
}

TEST_F(StatusWindow, TheFocusGoesToTheTreeOfThePage)
{
    window->showPage("status");
    userInput::settle();
    EXPECT_EQ(QApplication::focusWidget(), &tree(view()));
    EXPECT_THAT(tree(view()).accessibleName().toStdString(), HasSubstr("Status"));
}

TEST_F(StatusWindow, ReadingThePageReadsMasksAndStatus)
{
    window->showPage("status");
    EXPECT_FALSE(window->command("readPage")->isEnabled()) << "offline";
    readPage();
    QStringList names = responses;
    names.removeDuplicates();
    EXPECT_EQ(names, QStringList({"read deviceStatusMasks ok", "read deviceStatus ok"}));
    EXPECT_EQ(iconOf(view(), "statusSupplyPressureLow"), "ok");
    EXPECT_TRUE(states.contains("deviceStatus sync"));
    EXPECT_TRUE(states.contains("deviceStatusNAMUR sync")) << "the other page takes it too";
}

TEST_F(StatusWindow, ReadingTheStatusDisturbsNobodyWhoIsTyping)
{
    goOnline();
    window->showPage("configuration");
    auto& box = shown(editor<CtrTextEdit>("ratedTravel").txtBox);
    userInput::type(box, "5");
    ASSERT_TRUE(messenger().readGroup("deviceStatus"));
    EXPECT_TRUE(box.isEnabled());
    waitForDevice();
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(editor<CtrTextEdit>("ratedTravel").Text(), "5");
}

// --- The sign ---------------------------------------------------------------------------------

TEST_F(StatusWindow, TheSignTellsTheCombinedStatusWithASymbolAndAWord)
{
    EXPECT_FALSE(sign().isVisible()) << "nothing is known yet";
    window->showPage("status");
    readPage();
    EXPECT_TRUE(sign().isVisible());
    EXPECT_EQ(sign().word(), "OK");
    EXPECT_FALSE(sign().icon().isNull());
    EXPECT_EQ(sign().accessibleName(), "Device status: OK");
    model().setFault(Fault::supplyFailure, true);
    messenger().device().advance(30);
    readPage();
    EXPECT_EQ(sign().word(), "Alarm");
    const auto alarm = sign().icon().pixmap(24).toImage();
    model().setFault(Fault::supplyFailure, false);
    messenger().device().advance(60);
    readPage();
    EXPECT_NE(sign().icon().pixmap(24).toImage(), alarm) << "another symbol for another status";
}

TEST_F(StatusWindow, TheTitleBarTellsTheStatusToTheTaskListToo)
{
    const auto symbol = [&] { return window->windowIcon().pixmap(24).toImage(); };
    const auto valve  = symbol();
    EXPECT_TRUE(window->windowTitle().startsWith("Quill")) << "nothing is known yet";
    window->showPage("status");
    readPage();
    EXPECT_TRUE(window->windowTitle().startsWith("OK – Quill – "));
    EXPECT_EQ(symbol(), sign().icon().pixmap(24).toImage());
    model().setFault(Fault::supplyFailure, true);
    messenger().device().advance(30);
    readPage();
    EXPECT_TRUE(window->windowTitle().startsWith("Alarm – Quill – "));
    EXPECT_EQ(symbol(), sign().icon().pixmap(24).toImage());
    goOnline(); // and thereby offline
    EXPECT_TRUE(window->windowTitle().startsWith("Unknown – Quill – "));
    dialogs.saveChoices.push_back(SaveChoice::discard); // the masks were read
    window->command("openVX4400F")->trigger();
    userInput::settle();
    EXPECT_TRUE(window->windowTitle().startsWith("Quill"));
    EXPECT_EQ(symbol(), valve);
}

TEST_F(StatusWindow, TheSignFollowsAlsoWhileAnotherPageIsInFront)
{
    goOnline();
    window->showPage("identification");
    model().setFault(Fault::coverOpen, true);
    messenger().device().advance(5);
    ASSERT_TRUE(messenger().readGroup("deviceStatus"));
    waitForDevice();
    EXPECT_EQ(sign().word(), "Warning");
    userInput::click(sign());
    EXPECT_EQ(window->book().GetSelectedView(), "status");
}

TEST_F(StatusWindow, ACommandLeadsToTheStatusByKeyboard)
{
    EXPECT_TRUE(window->command("status")->isEnabled());
    EXPECT_NE(window->book().GetSelectedView(), "status");
    // A shortcut is heard by the window only, wherever the focus is.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_T, Qt::ControlModifier);
    userInput::settle();
    EXPECT_EQ(window->book().GetSelectedView(), "status");
}

TEST_F(StatusWindow, TheSignSpeaksTheUsersLanguage)
{
    window->showPage("status");
    model().setFault(Fault::coverOpen, true);
    messenger().device().advance(5);
    readPage();
    window->setLanguage("German");
    userInput::settle();
    EXPECT_EQ(sign().word(), "Warnung");
    EXPECT_EQ(sign().accessibleName(), "Gerätestatus: Warnung");
    window->setLanguage("Finnish");
    userInput::settle();
    EXPECT_EQ(sign().word(), "Varoitus");
}

TEST_F(StatusWindow, OfflineTheStatusIsUnknown)
{
    window->showPage("status");
    readPage();
    goOnline();
    EXPECT_FALSE(messenger().isOnline());
    EXPECT_EQ(sign().word(), "Unknown");
    EXPECT_EQ(iconOf(view(), "statusSupplyPressureLow"), "unknown");
}

TEST_F(StatusWindow, TheStatusOfOneDeviceIsNotThatOfTheNext)
{
    window->showPage("status");
    readPage();
    dialogs.saveChoices.push_back(SaveChoice::discard); // the masks were read
    window->command("openVX4400F")->trigger();
    userInput::settle();
    EXPECT_EQ(messenger().deviceType(), "VX4400F");
    EXPECT_FALSE(sign().isVisible());
}

TEST_F(StatusWindow, TheViewBesideDoesNotSpeakForTheDevice)
{
    window->showPage("statusConfiguration");
    model().setFault(Fault::supplyFailure, true);
    messenger().device().advance(30);
    readPage();
    EXPECT_EQ(configurable().CombinedStatus(), "deviceOffSpecification");
    EXPECT_EQ(sign().word(), "Alarm") << "by severity, as the user has chosen";
    EXPECT_FALSE(messenger().IsStatusClassificationFixed());
}

TEST_F(StatusWindow, AReadingThatFailsIsShownAndToldToNobody)
{
    window->showPage("status");
    readPage();
    dialogs.boxes.clear();
    messenger().device().failNext("communicationError");
    ASSERT_TRUE(messenger().readGroup("deviceStatus"));
    waitForDevice();
    EXPECT_EQ(iconOf(view(), "statusSupplyPressureLow"), "unknown");
    EXPECT_EQ(sign().word(), "Unknown");
    EXPECT_TRUE(dialogs.boxes.empty());
    ASSERT_TRUE(messenger().readGroup("deviceStatus"));
    waitForDevice();
    EXPECT_EQ(iconOf(view(), "statusSupplyPressureLow"), "ok");
    EXPECT_TRUE(states.contains("deviceStatus syncError"));
    EXPECT_TRUE(states.contains("deviceStatus reSync"));
}

// --- Classification ---------------------------------------------------------------------------

TEST_F(StatusWindow, TheUserChoosesTheClassification)
{
    EXPECT_TRUE(classifications().menuAction()->isVisible());
    EXPECT_TRUE(window->command("classSeverity")->isChecked());
    window->showPage("status");
    model().setFault(Fault::supplyFailure, true);
    messenger().device().advance(30);
    window->command("classNAMUR")->trigger();
    EXPECT_EQ(messenger().GetStatusClassification(), kClassNAMUR);
    readPage();
    EXPECT_EQ(iconOf(view(), "statusSupplyPressureLow"), "deviceOffSpecification");
    EXPECT_EQ(sign().word(), "Out of spec");
    window->command("classSeverity")->trigger();
    readPage();
    EXPECT_EQ(sign().word(), "Alarm");
}

TEST_F(StatusWindow, ADeviceWithOneClassificationLeavesNoChoice)
{
    window->command("classNAMUR")->trigger();
    window->command("openVX4400F")->trigger();
    userInput::settle();
    EXPECT_FALSE(classifications().menuAction()->isVisible());
    EXPECT_EQ(messenger().GetStatusClassification(), kClassSeverity);
    window->command("openVX4400H")->trigger();
    userInput::settle();
    EXPECT_TRUE(classifications().menuAction()->isVisible());
    EXPECT_TRUE(window->command("classNAMUR")->isChecked()) << "the user's choice is back";
}

// --- Changed configuration --------------------------------------------------------------------

TEST_F(StatusWindow, AChangedConfigurationHasASignThatTheUserCanAcknowledge)
{
    window->showPage("status");
    readPage();
    EXPECT_FALSE(acknowledge().isVisible());
    window->showPage("configuration");
    userInput::type(shown(editor<CtrTextEdit>("ratedTravel").txtBox), "55");
    messenger().SendCommunicationRequest(
        "<communicationRequest name='assembly' access='write'><item name='ratedTravel' unit='mm'>"
        "<floatVal>55</floatVal></item></communicationRequest>",
        "assembly");
    waitForDevice();
    ASSERT_TRUE(messenger().readGroup("deviceStatus"));
    waitForDevice();
    EXPECT_TRUE(messenger().isConfigurationChanged());
    EXPECT_TRUE(acknowledge().isVisible());
    EXPECT_TRUE(acknowledge().isEnabled());
    EXPECT_FALSE(acknowledge().accessibleName().isEmpty());
    userInput::click(acknowledge());
    waitForDevice();
    EXPECT_THAT(responses, Contains("act deviceStatusClearConfigurationChanged ok"));
    EXPECT_FALSE(messenger().isConfigurationChanged());
    EXPECT_FALSE(acknowledge().isVisible());
}

TEST_F(StatusWindow, TheSignOfAChangedConfigurationIsForWhoMayChangeTheDevice)
{
    goOnline();
    messenger().SetConfigurationChanged("1");
    messenger().setUserLevel(2);
    userInput::settle();
    EXPECT_TRUE(acknowledge().isVisible());
    EXPECT_FALSE(acknowledge().isEnabled());
    messenger().setUserLevel(kMaintenanceLevel);
    userInput::settle();
    EXPECT_TRUE(acknowledge().isEnabled());
    goOnline();
    EXPECT_FALSE(acknowledge().isEnabled()) << "offline";
    EXPECT_TRUE(window->command("clearConfigurationChanged")->isVisible());
    window->command("openVX4400F")->trigger();
    userInput::settle();
    EXPECT_FALSE(window->command("clearConfigurationChanged")->isVisible());
    EXPECT_FALSE(acknowledge().isVisible());
}

} // namespace quill::shell::test
