#include "tests/status/configurable_view_fixture.h"

#include "support/some_and_each.h"

// `CtrStatusF` while it shows: tree, modes, life, form.
namespace quill::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

// --- The tree ---------------------------------------------------------------------------------

TEST_F(CtrStatusFView, TheImageListHasCheckMarksAndClasses)
{
    EXPECT_THAT(view.imlStatusIcons.Keys(),
                ElementsAre("modified", "checkDisabled", "checkDisabledmodified", "checkEnabled",
                            "checkEnabledmodified", "deviceDiagnosisPassiv", "deviceOk",
                            "deviceInfo", "deviceMaintenanceRequired", "deviceOffSpecification",
                            "deviceUnderTest", "deviceFailure"));
}

TEST_F(CtrStatusFView, TheGridsAreReadyFromTheStart)
{
    const CtrStatusF fresh;
    EXPECT_EQ(fresh.scgStatus.ColCount(), 1);
    EXPECT_EQ(fresh.scgStatus.column(1).Width, 600);
    EXPECT_FALSE(fresh.scgStatus.HeaderVisible);
    EXPECT_FALSE(fresh.scgStatusKey.Visible);
    EXPECT_FALSE(fresh.IsConfiguring());
    EXPECT_TRUE(fresh.cmdDownload.Enabled);
    EXPECT_EQ(fresh.cmdDownload.Caption, "Download");
    EXPECT_EQ(fresh.cmdConfiguration.Caption, "Status Configuration");
    EXPECT_EQ(fresh.cmdConfiguration.Tag, "statusMasks");
}

TEST_F(CtrStatusFView, TheHostIsToldInOrder)
{
    CtrStatusF fresh;
    fresh.SetMessenger(&messenger);
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(69, CtrStatusF IQornComponent_SetMessenger entered)",
                            "SetFixedStatusClassification(1)", "GetDeviceTypeInfo()",
                            "GetCommunicationMode()",
                            "WriteLog(69, CtrStatusF IQornComponent_SetMessenger leaving)"));
    EXPECT_THAT(textsOf(fresh.scgStatus), ElementsAre("g", "fail", "info", "plain"));
    EXPECT_THAT(textsOf(fresh.scgStatusKey), ElementsAre("g", "fail", "info", "plain"));
    EXPECT_EQ(fresh.scgStatus.RowParent(4), 1);
    EXPECT_EQ(fresh.lastRow(), 3);
}

TEST_F(CtrStatusFView, RowsComeUpAsNotReadAndTheirImagesEmpty)
{
    EXPECT_THAT(icons(), Each(kOff));
    EXPECT_THAT(view.images(), ElementsAre("", "", "", ""));
}

TEST_F(CtrStatusFView, OfflineRowsComeUpWithoutAnIcon)
{
    messenger.communicationMode = kOffline;
    CtrStatusF fresh;
    fresh.SetMessenger(&messenger);
    EXPECT_THAT(iconsOf(fresh), Each(""));
    EXPECT_THAT(descriptionsOf(fresh), ElementsAre("g", "fail, statusNotRead",
                                                   "info, statusNotRead", "plain, statusNotRead"));
}

TEST_F(CtrStatusFView, AModeThatCannotBeAskedForIsNotOffline)
{
    messenger.failOn("GetCommunicationMode", 75);
    CtrStatusF fresh;
    fresh.SetMessenger(&messenger);
    EXPECT_THAT(iconsOf(fresh), Each(kOff));
    EXPECT_THAT(toolkit.debugLines,
                ElementsAre("CtrStatusF LoadStatusTree error 75: Path/File access error"));
}

TEST_F(CtrStatusFView, FaultsOfTheDefinitionGoToTheDebugOutput)
{
    CtrStatusF fresh;
    messenger.deviceTypeInfo = {};
    fresh.SetMessenger(&messenger);
    EXPECT_THAT(toolkit.debugLines,
                SomeAndEach(StartsWith("CtrStatusF LoadStatusTree error 91: ")));
    EXPECT_FALSE(toolkit.debugLines.empty());
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrStatusFView, AHostThatFailsIsReported)
{
    CtrStatusF fresh;
    messenger.failOn("GetDeviceTypeInfo", 75);
    messenger.failOn("SetFixedStatusClassification", 76);
    fresh.SetMessenger(&messenger);
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(CtrStatusF IQornComponent_SetMessenger: , 76, Path not "
                            "found)",
                            "ReportError(CtrStatusF IQornComponent_SetMessenger: , 75, Path/File "
                            "access error)"));
}

TEST_F(CtrStatusFView, SkippedNodesCountAsInThePlainView)
{
    CtrStatusF fresh;
    messenger.deviceTypeInfo =
        definition(branch("a", "<!-- x -->" + condition("a1", namur("deviceInfo"))) +
                   branch("b", condition("b1", namur("deviceInfo"))) +
                   branch("c", condition("c1", namur("deviceInfo"))) +
                   branch("d", condition("d1", namur("deviceInfo"))));
    fresh.SetMessenger(&messenger);
    EXPECT_EQ(fresh.scgStatus.RowCount(), 8);
    EXPECT_EQ(fresh.lastRow(), 4);
    EXPECT_THAT(fresh.images(), SizeIs(5));
}

TEST_F(CtrStatusFView, AnotherMessengerAddsItsRowsAndTakesNoneAway)
{
    view.SetMessenger(&messenger);
    EXPECT_EQ(view.scgStatus.RowCount(), 8);
    EXPECT_EQ(view.scgStatus.ColCount(), 1);
    EXPECT_EQ(view.lastRow(), 3);
}

// --- Modes ------------------------------------------------------------------------------------

TEST_F(CtrStatusFView, OfflineNothingIsKnownAndADownloadIsAnAcceptance)
{
    view.Localize(translator);
    online(statusItem("fail", "1"));
    messenger.clear();
    messenger.ViewSetCommunicationMode.raise(kOffline);
    EXPECT_THAT(icons(), Each(kOff));
    EXPECT_EQ(view.cmdDownload.Caption, "accept");
    EXPECT_TRUE(view.cmdDownload.Enabled);
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(71, CtrStatusF ViewSetCommunicationMode entered )",
                            "WriteLog(71, Offline)",
                            "WriteLog(83, CtrStatusF LeaveConfiguration entered)",
                            "WriteLog(83, CtrStatusF LeaveConfiguration leaving)",
                            "SetCombinedStatus(1, deviceDiagnosisPassiv)",
                            "WriteLog(71, CtrStatusF ViewSetCommunicationMode leaving )"));
}

TEST_F(CtrStatusFView, OnlineEverythingStartsAsUnknown)
{
    view.Localize(translator);
    online(statusItem("fail", "1"));
    messenger.clear();
    messenger.ViewSetCommunicationMode.raise(kOffline);
    messenger.clear();
    messenger.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_THAT(icons(), Each(kOff));
    EXPECT_THAT(view.images(), Each(kOff));
    EXPECT_EQ(view.cmdDownload.Caption, "download");
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(71, CtrStatusF ViewSetCommunicationMode entered )",
                            "WriteLog(71, Online)",
                            "WriteLog(71, CtrStatusF ViewSetCommunicationMode leaving )"));
}

TEST_F(CtrStatusFView, WhileATransferRunsNothingCanBeDownloaded)
{
    messenger.ViewSetCommunicationMode.raise(kCommunication);
    EXPECT_FALSE(view.cmdDownload.Enabled);
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(71, CtrStatusF ViewSetCommunicationMode entered )",
                            "WriteLog(71, Communication)",
                            "WriteLog(71, CtrStatusF ViewSetCommunicationMode leaving )"));
    messenger.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_TRUE(view.cmdDownload.Enabled);
}

TEST_F(CtrStatusFView, OtherModesAreOnlyLogged)
{
    online(statusItem("fail", "1"));
    messenger.clear();
    messenger.ViewSetCommunicationMode.raise(kEditingBarred);
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "deviceFailure");
    EXPECT_THAT(messenger.calls, SizeIs(2));
}

// --- Sleep and life ---------------------------------------------------------------------------

TEST_F(CtrStatusFView, ASleepingViewTakesNothing)
{
    online(statusItem("fail", "1"));
    const auto before = icons();
    messenger.clear();
    view.Sleep(true);
    online(statusItem("info", "1"));
    masks("00");
    view.SetErrorData(errorResponse("deviceStatus"));
    view.SetOfflineData(datafile(maskParameter("statusMask1", "00")));
    view.SetImportData(datafile(maskParameter("statusMask1", "00")));
    messenger.ViewSetCommunicationMode.raise(kOffline);
    EXPECT_EQ(icons(), before);
    EXPECT_THAT(messenger.calls, IsEmpty());
    view.Sleep(false);
    online(statusItem("info", "1"));
    EXPECT_EQ(view.scgStatus.CellIcon(3, 1), "deviceInfo");
}

TEST_F(CtrStatusFView, AReleasedViewNeitherHearsNorSpeaks)
{
    view.PrepareToRelease();
    messenger.ViewSetCommunicationMode.raise(kOnline);
    online(statusItem("fail", "1"));
    masks("00");
    view.SetOfflineData(datafile(maskParameter("statusMask1", "00")));
    view.SetErrorData(errorResponse("deviceStatus"));
    (void)view.cmdConfiguration.click();
    EXPECT_THAT(icons(), Each(kOff));
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrStatusFView, AHostThatThrowsEverywhereCostsNoIcon)
{
    messenger.onCall = [](const std::string&) { throw platform::failure(5); };
    online(statusItem("fail", "1") + statusItem("info", "0"));
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "deviceFailure", "deviceOk", kOff));
    messenger.ViewSetCommunicationMode.raise(kOffline);
    EXPECT_THAT(icons(), Each(kOff));
}

// --- Form -------------------------------------------------------------------------------------

TEST_F(CtrStatusFView, ItsControlsComeInTheOrderOfTheKeyboard)
{
    EXPECT_THAT(view.GetControls(),
                ElementsAre(&view.frmViews, &view.scgStatus, &view.scgStatusKey,
                            &view.imlStatusIcons, &view.cmdDownload, &view.cmdConfiguration));
}

TEST_F(CtrStatusFView, LocalizeTranslatesRowsFramesAndButtons)
{
    translator.texts = {{"fail", "Ausfall"},
                        {"deviceStatus", "Status"},
                        {"statusConfiguration", "Konfigurieren"},
                        {"download", "Laden"}};
    view.Localize(translator);
    EXPECT_EQ(view.scgStatus.cell(2, 1).Text, "Ausfall");
    EXPECT_EQ(view.frmViews.Caption, "Status");
    EXPECT_EQ(view.cmdConfiguration.Caption, "Konfigurieren");
    EXPECT_EQ(view.cmdDownload.Caption, "Laden");
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrStatusFView, TextsThatFailAreReportedAndKeepTheOldOnes)
{
    translator.failingKey = "statusConfiguration";
    translator.texts      = {{"download", "Err: download"}};
    view.Localize(translator);
    EXPECT_EQ(view.cmdConfiguration.Caption, "Status Configuration");
    EXPECT_EQ(view.cmdDownload.Caption, "Download");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatusF Localize: , 5, ")));
}

/// Whether two widgets of one container share a place.
bool overlap(const platform::Widget& a, const platform::Widget& b)
{
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
           b.Top < a.Top + a.Height;
}

TEST_F(CtrStatusFView, ButtonsStandBelowTheTreeAndShowTheirWholeText)
{
    translator.texts = {{"statusConfiguration", "A very long text for this button"},
                        {"download", "Short"},
                        {"accept", "Also quite a long text here"}};
    view.Localize(translator);
    for (const std::int32_t width : {12000, 6000, 4000}) {
        view.resize(width, 6000);
        EXPECT_GE(view.cmdConfiguration.Width, 32 * 100);
        EXPECT_GE(view.cmdDownload.Width, 27 * 100) << "wide enough for the offline text";
        EXPECT_FALSE(overlap(view.scgStatus, view.cmdConfiguration));
        EXPECT_FALSE(overlap(view.scgStatus, view.cmdDownload));
        EXPECT_FALSE(overlap(view.cmdDownload, view.cmdConfiguration));
        for (const platform::CommandButton* button : {&view.cmdDownload, &view.cmdConfiguration}) {
            EXPECT_GE(button->Left, 0);
            EXPECT_LE(button->Left + button->Width, width);
            EXPECT_LE(button->Top + button->Height, 6000);
        }
        EXPECT_GT(view.scgStatus.Height, 0);
    }
}

TEST_F(CtrStatusFView, GridsThatSomebodyHasClearedCostTheRowsAndNotTheLoad)
{
    view.scgStatus.Clear();
    view.scgStatusKey.Clear();
    messenger.clear();
    toolkit.debugLines.clear();
    view.SetMessenger(&messenger);
    EXPECT_THAT(toolkit.debugLines, Contains(HasSubstr("CtrStatusF LoadStatusTree error 9: ")));
    EXPECT_THAT(messenger.callsTo("WriteLog").back(), HasSubstr("leaving"));
    EXPECT_EQ(view.lastRow(), 3);
}

TEST_F(CtrStatusFView, AToolkitThatCannotMeasureStillLeavesButtonsOfUsableSize)
{
    toolkit.beforeOperation = [](const char*) { throw platform::failure(5); };
    view.Localize(translator);
    view.resize(9000, 6000);
    EXPECT_GE(view.cmdConfiguration.Width, 1800);
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

} // namespace
} // namespace quill::test
