// The masks of the conditions, from the user's click to the device and into the datafile.
#include "status_window_fixture.h"

#include <QCloseEvent>
#include <gmock/gmock.h>

namespace quill::shell::test {

namespace {

using testing::Contains;

constexpr const char* kOn      = "statusStrokeTestFailed"; ///< mask 3, switched on in the device
constexpr const char* kOff     = "statusSeatWear";         ///< mask 2, switched off in the device
constexpr const char* kCover   = "statusCoverOpen";        ///< mask 1
constexpr const char* kRequest = "write deviceStatusMasks ok";

class StatusConfigurationPage : public StatusWindowTest {
protected:
    void beginOnline()
    {
        window->showPage("statusConfiguration");
        readPage();
        beginConfiguration();
    }
    void download()
    {
        userInput::click(shown(configurable().cmdDownload));
        waitForDevice();
    }
};

} // namespace

TEST_F(StatusConfigurationPage, CheckMarksShowTheMasksOfTheDevice)
{
    beginOnline();
    EXPECT_EQ(iconOf(configurable(), kOn), "checkEnabled");
    EXPECT_EQ(iconOf(configurable(), kOff), "checkDisabled");
    EXPECT_EQ(inDocument("statusMask2", "value"), deviceValue("statusMask2"));
    EXPECT_EQ(inDocument("statusMask2", "synchronised"), "1");
}

TEST_F(StatusConfigurationPage, MouseAndKeyboardToggleAndTheMasksReachDeviceAndDatafile)
{
    beginOnline();
    const std::string before2 = deviceValue("statusMask2");
    const std::string before3 = deviceValue("statusMask3");
    clickRow(configurable(), kOn);
    EXPECT_EQ(iconOf(configurable(), kOn), "checkDisabledmodified");
    auto& rows = tree(configurable());
    rows.setCurrentIndex(userInput::rowNumber(rows, rowOf(configurable(), kOff) - 1));
    rows.setFocus();
    userInput::press(rows, Qt::Key_Down);
    userInput::press(rows, Qt::Key_Space);
    EXPECT_EQ(iconOf(configurable(), kOff), "checkEnabledmodified");
    userInput::press(rows, Qt::Key_Space);
    EXPECT_EQ(iconOf(configurable(), kOff), "checkDisabled") << "a second time takes it back";
    userInput::press(rows, Qt::Key_Space);
    download();
    EXPECT_THAT(responses, Contains(kRequest));
    EXPECT_FALSE(configurable().IsConfiguring());
    EXPECT_NE(deviceValue("statusMask2"), before2);
    EXPECT_NE(deviceValue("statusMask3"), before3);
    for (const char* mask : {"statusMask1", "statusMask2", "statusMask3"}) {
        EXPECT_EQ(inDocument(mask, "value"), deviceValue(mask)) << mask;
        EXPECT_EQ(inDocument(mask, "synchronised"), "1") << mask;
    }
    ASSERT_TRUE(window->save());
    EXPECT_EQ(onDisk("statusMask3", "value"), deviceValue("statusMask3"));

    diagnosis().setPresent(messenger().device(), kOn, true);
    diagnosis().setPresent(messenger().device(), kOff, true);
    readPage();
    EXPECT_EQ(iconOf(configurable(), kOn), "deviceDiagnosisPassiv");
    EXPECT_EQ(iconOf(configurable(), kOff), "deviceMaintenanceRequired");
    EXPECT_EQ(iconOf(view(), kOn), "inactive") << "on the other page too";
    EXPECT_EQ(iconOf(view(), kOff), "warning");
}

TEST_F(StatusConfigurationPage, OfflineTheMasksGoIntoTheDatafile)
{
    beginConfiguration();
    EXPECT_EQ(configurable().cmdDownload.Caption.get(), "Accept");
    const std::string device = deviceValue("statusMask1");
    clickRow(configurable(), kCover);
    download();
    EXPECT_FALSE(configurable().IsConfiguring());
    EXPECT_TRUE(responses.isEmpty());
    EXPECT_EQ(deviceValue("statusMask1"), device);
    EXPECT_NE(inDocument("statusMask1", "value"), device);
    EXPECT_EQ(inDocument("statusMask1", "synchronised"), "0");
    ASSERT_TRUE(window->save());
    EXPECT_EQ(onDisk("statusMask1", "value"), inDocument("statusMask1", "value"));
    EXPECT_EQ(onDisk("statusMask1", "synchronised"), "0");

    const std::string accepted = inDocument("statusMask1", "value");
    window.reset();
    openWindow();
    ASSERT_TRUE(window->openDatafile(path()));
    beginConfiguration();
    EXPECT_EQ(iconOf(configurable(), kCover), "checkDisabled");
    EXPECT_EQ(inDocument("statusMask1", "value"), accepted);
}

TEST_F(StatusConfigurationPage, CancelDropsTheChanges)
{
    beginOnline();
    clickRow(configurable(), kOn);
    userInput::click(shown(configurable().cmdConfiguration));
    EXPECT_FALSE(configurable().IsConfiguring());
    userInput::settle();
    EXPECT_FALSE(responses.contains(kRequest));
    EXPECT_FALSE(messenger().isWaiting());
    beginConfiguration();
    EXPECT_EQ(iconOf(configurable(), kOn), "checkEnabled");
}

TEST_F(StatusConfigurationPage, NothingIsReadMeanwhile)
{
    beginOnline();
    EXPECT_TRUE(window->statusCycle().isConfiguring());
    EXPECT_FALSE(window->command("readPage")->isEnabled());
    EXPECT_FALSE(window->command("readAll")->isEnabled());
    userInput::click(shown(configurable().cmdConfiguration));
    EXPECT_FALSE(window->statusCycle().isConfiguring());
    EXPECT_TRUE(window->command("readPage")->isEnabled());
    EXPECT_TRUE(window->command("readAll")->isEnabled());
}

TEST_F(StatusConfigurationPage, AnotherPageEndsItAndTheSamePageDoesNot)
{
    beginOnline();
    window->showPage("statusConfiguration");
    EXPECT_TRUE(configurable().IsConfiguring()) << "who chooses the page he is on stays there";
    window->showPage("status");
    EXPECT_EQ(window->book().GetSelectedView(), "status");
    EXPECT_FALSE(configurable().IsConfiguring());
    EXPECT_FALSE(window->statusCycle().isConfiguring());
}

TEST_F(StatusConfigurationPage, AnotherDatafileEndsIt)
{
    beginOnline();
    EXPECT_TRUE(window->statusCycle().isConfiguring());
    dialogs.saveChoices.push_back(SaveChoice::discard);
    window->openSample();
    EXPECT_FALSE(window->statusCycle().isConfiguring());
}

TEST_F(StatusConfigurationPage, GoingOfflineEndsIt)
{
    beginOnline();
    goOnline();
    EXPECT_FALSE(messenger().isOnline());
    EXPECT_FALSE(configurable().IsConfiguring());
    EXPECT_FALSE(window->statusCycle().isConfiguring());
}

TEST_F(StatusConfigurationPage, ADownloadThatFailsIsToldAndCanBeTriedAgain)
{
    beginOnline();
    clickRow(configurable(), kOn);
    const std::string before = deviceValue("statusMask3");
    dialogs.boxes.clear();
    messenger().device().failNext("communicationError");
    download();
    ASSERT_EQ(dialogs.boxes.size(), 1U) << "the view itself tells nobody";
    EXPECT_EQ(dialogs.boxes.front().title, "Error");
    EXPECT_TRUE(dialogs.boxes.front().text.startsWith("The device does not answer"));
    EXPECT_EQ(deviceValue("statusMask3"), before);
    ASSERT_TRUE(configurable().IsConfiguring());
    EXPECT_TRUE(configurable().cmdDownload.Enabled);
    EXPECT_EQ(inDocument("statusMask3", "synchronised"), "0");
    window->setLanguage("German"); // which looks at every parameter
    download();
    EXPECT_NE(deviceValue("statusMask3"), before);
    EXPECT_EQ(inDocument("statusMask3", "value"), deviceValue("statusMask3"));
    EXPECT_EQ(inDocument("statusMask3", "synchronised"), "1");
    EXPECT_FALSE(configurable().IsConfiguring());
}

TEST_F(StatusConfigurationPage, WhoGivesUpAfterAFailureSeesWhatTheDeviceHas)
{
    beginOnline();
    clickRow(configurable(), kOn);
    messenger().device().failNext("communicationError");
    download();
    userInput::click(shown(configurable().cmdConfiguration));
    waitForDevice();
    EXPECT_EQ(inDocument("statusMask3", "value"), deviceValue("statusMask3"));
    EXPECT_EQ(inDocument("statusMask3", "synchronised"), "1");
    beginConfiguration();
    EXPECT_EQ(iconOf(configurable(), kOn), "checkEnabled");
}

TEST_F(StatusConfigurationPage, AnObserverChangesNothingOnTheDevice)
{
    beginOnline();
    messenger().setUserLevel(2);
    clickRow(configurable(), kOn);
    const std::string before = deviceValue("statusMask3");
    dialogs.boxes.clear();
    download();
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes.front().text, "Your user level does not allow changes on the device.");
    EXPECT_EQ(deviceValue("statusMask3"), before);
    window->showPage("status");
    waitForDevice();
    EXPECT_EQ(inDocument("statusMask3", "value"), before);
    EXPECT_EQ(inDocument("statusMask3", "synchronised"), "1");
}

TEST_F(StatusConfigurationPage, AFieldbusDeviceShowsWhereItsMasksPutAConditon)
{
    window->command("openVX4400F")->trigger();
    settleDevice();
    diagnosis().setPresent(messenger().device(), "statusCavitation", true);
    window->showPage("status");
    readPage();
    EXPECT_EQ(iconOf(view(), "statusCavitation"), "alarm") << "a warning when it left the factory";
    EXPECT_EQ(iconOf(view(), kOff), "inactive");
    EXPECT_EQ(inDocument("statusMaskAlarm3", "value"), deviceValue("statusMaskAlarm3"));
}

} // namespace quill::shell::test
