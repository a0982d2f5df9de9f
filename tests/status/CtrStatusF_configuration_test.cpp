#include "tests/status/configurable_view_fixture.h"

// `CtrStatusF` while the user switches conditions on and off.
namespace quill::test {
namespace {

using platform::UserDoor;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

// --- Entering and leaving ---------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, EnteringTurnsTheIconsOfConditionsIntoCheckMarks)
{
    enter();
    EXPECT_TRUE(view.IsConfiguring());
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "checkEnabled", "checkEnabled", kOff,
                                     "checkDisabled"));
    EXPECT_EQ(view.cmdConfiguration.Caption, "cancel");
    EXPECT_TRUE(view.cmdDownload.Visible);
    EXPECT_TRUE(view.scgStatus.HasFocus());
    EXPECT_THAT(messenger.calls, ElementsAre("NotifyDialog(52)"));
}

TEST_F(CtrStatusFConfiguration, CancellingDropsTheChangesAndTheIcons)
{
    enter();
    click(2);
    click(5);
    messenger.clear();
    ASSERT_EQ(view.cmdConfiguration.click(), UserDoor::done);
    EXPECT_FALSE(view.IsConfiguring());
    EXPECT_THAT(icons(), Each(""));
    EXPECT_EQ(view.cmdConfiguration.Caption, "statusConfiguration");
    EXPECT_EQ(inFile(), "03");
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(83, CtrStatusF LeaveConfiguration entered)",
                            "NotifyDialog(53)", "GetCommunicationMode()",
                            "WriteLog(83, CtrStatusF LeaveConfiguration leaving)"));
    enter();
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkEnabled");
    EXPECT_EQ(view.scgStatus.CellIcon(5, 1), "checkDisabled");
}

TEST_F(CtrStatusFConfiguration, TheNextStatusGivesEveryRowItsIconAgain)
{
    const auto before = icons();
    enter();
    (void)view.cmdConfiguration.click();
    EXPECT_THAT(descriptions(), ElementsAre("g", "a", "b", "h", "c"));
    online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "1"));
    EXPECT_EQ(icons(), before);
    EXPECT_EQ(view.scgStatus.RowDescription(2), "a, deviceFailure, statusActive");
}

TEST_F(CtrStatusFConfiguration, RowsThatTheNextStatusLeavesOutGetTheirIconToo)
{
    const auto before = icons();
    enter();
    (void)view.cmdConfiguration.click();
    online(statusItem("c", "1"));
    EXPECT_EQ(icons(), before);
    EXPECT_EQ(view.scgStatus.RowDescription(2), "a, deviceFailure, statusActive");
}

TEST_F(CtrStatusFConfiguration, WhatTheDeviceToldMeanwhileIsSaidAfterwards)
{
    enter();
    online(statusItem("a", "0") + statusItem("b", "0"));
    (void)view.cmdConfiguration.click();
    online(statusItem("c", "1"));
    EXPECT_EQ(view.scgStatus.RowDescription(2), "a, deviceFailure, statusNotActive");
    enter();
    view.SetErrorData(errorResponse("deviceStatus"));
    (void)view.cmdConfiguration.click();
    online(statusItem("c", "1"));
    EXPECT_EQ(view.scgStatus.RowDescription(2), std::string("a, ") + kOff + ", statusUnknown");
}

TEST_F(CtrStatusFConfiguration, LeavingTheViewEndsTheConfiguration)
{
    enter();
    EXPECT_TRUE(view.LeaveSelectedView());
    EXPECT_FALSE(view.IsConfiguring());
    messenger.clear();
    EXPECT_TRUE(view.LeaveSelectedView());
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrStatusFConfiguration, GoingOfflineEndsTheConfiguration)
{
    enter();
    click(2);
    messenger.clear();
    messenger.ViewSetCommunicationMode.raise(kOffline);
    EXPECT_FALSE(view.IsConfiguring());
    EXPECT_THAT(icons(), Each(kOff));
    EXPECT_EQ(view.cmdConfiguration.Caption, "statusConfiguration");
    EXPECT_THAT(messenger.callsTo("NotifyDialog"), ElementsAre("NotifyDialog(53)"));
}

TEST_F(CtrStatusFConfiguration, ComingOnlineLeavesTheCheckMarksAlone)
{
    enter();
    click(2);
    const auto before = icons();
    messenger.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_EQ(icons(), before);
    EXPECT_TRUE(view.IsConfiguring());
    EXPECT_EQ(view.cmdConfiguration.Caption, "cancel");
}

TEST_F(CtrStatusFConfiguration, AnotherLanguageKeepsTheMode)
{
    enter();
    translator.prefix = "de:";
    view.Localize(translator);
    EXPECT_EQ(view.cmdConfiguration.Caption, "de:cancel");
    EXPECT_TRUE(view.IsConfiguring());
}

TEST_F(CtrStatusFConfiguration, DuringATransferTheDownloadStaysDisabledBehindTheConfiguration)
{
    enter();
    messenger.ViewSetCommunicationMode.raise(kCommunication);
    messenger.communicationMode = kCommunication;
    (void)view.cmdConfiguration.click();
    EXPECT_FALSE(view.cmdDownload.Enabled);
    messenger.communicationMode = kOnline;
    enter();
    (void)view.cmdConfiguration.click();
    EXPECT_TRUE(view.cmdDownload.Enabled);
}

TEST_F(CtrStatusFConfiguration, ABranchWithoutConditionsIsTakenForOneAndReported)
{
    CtrStatusF fresh{page};
    messenger.deviceTypeInfo = definition(branch("empty", ""));
    fresh.SetMessenger(&messenger);
    (void)fresh.cmdConfiguration.click();
    EXPECT_THAT(iconsOf(fresh), ElementsAre("checkDisabled"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(clsStatusConfiguration IsEnabled, 9, ")));
}

// --- Clicks -----------------------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, AClickChangesTheMarkAndASecondOneTakesItBack)
{
    enter();
    click(2);
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkDisabledmodified");
    click(2);
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkEnabled");
    click(5);
    EXPECT_EQ(view.scgStatus.CellIcon(5, 1), "checkEnabledmodified");
    click(5);
    EXPECT_EQ(view.scgStatus.CellIcon(5, 1), "checkDisabled");
}

TEST_F(CtrStatusFConfiguration, BranchesHaveNoCheckMark)
{
    enter();
    click(1);
    EXPECT_EQ(view.scgStatus.CellIcon(1, 1), "deviceFailure");
}

TEST_F(CtrStatusFConfiguration, OutsideTheConfigurationAClickDoesNothing)
{
    const auto before = icons();
    for (int row = 1; row <= 5; ++row) {
        click(row);
    }
    EXPECT_EQ(icons(), before);
}

TEST_F(CtrStatusFConfiguration, ClicksBesideTheRowsDoNothing)
{
    enter();
    const auto before = icons();
    for (const auto& [row, col] :
         std::vector<std::pair<int, int>>{{0, 1}, {1, 0}, {6, 1}, {2, 2}, {-1, 1}}) {
        view.scgStatus.Click.raise(row, col);
    }
    EXPECT_EQ(icons(), before);
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrStatusFConfiguration, CheckMarksAreToldInWords)
{
    translator.texts = {{"checkEnabled", "on"}, {"checkDisabledmodified", "off, changed"}};
    view.Localize(translator);
    enter();
    EXPECT_EQ(view.scgStatus.RowDescription(2), "a, on");
    click(2);
    EXPECT_EQ(view.scgStatus.RowDescription(2), "a, off, changed");
}

// --- Data while configuring -------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, AStatusWhileConfiguringLeavesTheCheckMarksAlone)
{
    enter();
    click(2);
    online(statusItem("a", "0") + statusItem("b", "1") + statusItem("c", "1"));
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "checkDisabledmodified", "checkEnabled", kOff,
                                     "checkDisabled"));
    EXPECT_EQ(view.images().at(2), "deviceInfo");
    EXPECT_EQ(view.scgStatus.RowDescription(3), "b, checkEnabled");
}

TEST_F(CtrStatusFConfiguration, AnErrorWhileConfiguringLeavesTheCheckMarksAlone)
{
    enter();
    click(2);
    view.SetErrorData(errorResponse("deviceStatus"));
    EXPECT_THAT(icons(),
                ElementsAre(kOff, "checkDisabledmodified", "checkEnabled", kOff, "checkDisabled"));
    EXPECT_THAT(view.images(), Each(kOff));
    EXPECT_EQ(view.CombinedStatus(), kOff);
}

TEST_F(CtrStatusFConfiguration, MasksThatAreReadForTheFirstTimeRenewTheCheckMarks)
{
    view.SetOfflineData(file);
    enter();
    click(2);
    masks("04", "0");
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkDisabledmodified") << "not the last part";
    masks("04");
    EXPECT_TRUE(view.IsConfiguring());
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "checkDisabled", "checkDisabled", kOff,
                                     "checkEnabled"));
    masks("04");
    EXPECT_FALSE(view.IsConfiguring()) << "they had been read";
}

// --- Import -----------------------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, AnImportMakesEveryCheckMarkAChange)
{
    const auto imported = datafile(maskParameter("statusMask1", "05"));
    view.SetImportData(imported);
    enter();
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "checkEnabledmodified",
                                     "checkDisabledmodified", kOff, "checkEnabledmodified"));
    messenger.clear();
    (void)view.cmdDownload.click();
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                Contains(HasSubstr("StatusConfiguration SetEnabled entered ")).Times(3));
    EXPECT_EQ(imported.selectSingleNode("//data:parameter/@value").get_text(), "05");
}

TEST_F(CtrStatusFConfiguration, AClickOnAnImportedMarkTakesTheChangeBack)
{
    view.SetImportData(file);
    enter();
    click(2);
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkDisabled");
}

TEST_F(CtrStatusFConfiguration, MasksFromTheDeviceEndTheImport)
{
    view.SetImportData(file);
    masks("03", "0");
    enter();
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkEnabledmodified");
    (void)view.cmdConfiguration.click();
    masks("03");
    enter();
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkEnabled");
}

TEST_F(CtrStatusFConfiguration, AnImportWhileSleepingIsForgotten)
{
    view.Sleep(true);
    view.SetImportData(file);
    view.Sleep(false);
    enter();
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "checkEnabled");
}

// --- Keyboard ---------------------------------------------------------------------------------

TEST_F(CtrStatusFConfiguration, WhileConfiguringTheFocusStaysInside)
{
    enter();
    (void)view.cmdConfiguration.focus();
    (void)view.cmdConfiguration.blur();
    EXPECT_TRUE(view.scgStatus.HasFocus());
    (void)view.cmdConfiguration.focus();
    toolkit.keysDown = {platform::kKeyShift, platform::kKeyTab};
    (void)view.cmdConfiguration.blur();
    EXPECT_TRUE(view.cmdDownload.HasFocus());
    EXPECT_FALSE(messenger.wasCalled("TransferFocus"));
}

TEST_F(CtrStatusFConfiguration, AClickReachesTheDownloadFromTheConfigurationButton)
{
    enter();
    (void)view.cmdConfiguration.focus();
    messenger.clear();
    EXPECT_EQ(view.cmdDownload.click(), UserDoor::done);
    EXPECT_TRUE(messenger.wasCalled("SendCommunicationRequest"));
}

TEST_F(CtrStatusFConfiguration, OtherwiseTabHandsTheFocusToTheHost)
{
    (void)view.cmdConfiguration.focus();
    toolkit.keysDown = {platform::kKeyTab};
    (void)view.cmdConfiguration.blur();
    EXPECT_THAT(messenger.callsTo("TransferFocus"), SizeIs(1));
    (void)view.cmdConfiguration.focus();
    toolkit.keysDown = {platform::kKeyTab, platform::kKeyShift};
    (void)view.cmdConfiguration.blur();
    EXPECT_THAT(messenger.callsTo("TransferFocus"), SizeIs(1)) << "backwards stays in the view";
}

TEST_F(CtrStatusFConfiguration, AFocusThatCannotGoWhereItShouldIsReported)
{
    enter();
    (void)view.cmdConfiguration.focus();
    toolkit.keysDown         = {platform::kKeyShift};
    view.cmdDownload.Enabled = false;
    (void)view.cmdConfiguration.blur();
    EXPECT_THAT(
        messenger.errors(),
        ElementsAre(StartsWith("ReportError(CtrStatusF cmdConfiguration_LostFocus: , 5, ")));
}

} // namespace
} // namespace quill::test
