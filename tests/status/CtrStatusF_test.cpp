#include "tests/status/status_tree_fixture.h"

// `CtrStatusF` while it shows: tree, responses, masks, modes, form.
namespace quill::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* kOff = "deviceDiagnosisPassiv";

class CtrStatusFView : public StatusViewTest<CtrStatusF> {
protected:
    CtrStatusFView() { messenger.communicationMode = kOnline; }

    void SetUp() override
    {
        load(branch("g", condition("fail", namur("deviceFailure") + maskAt(0, 0)) +
                             condition("info", namur("deviceInfo") + maskAt(0, 1)) +
                             condition("plain", maskAt(0, 2))));
        view.SetOfflineData(datafile(maskParameter("statusMask1", "07")));
        messenger.clear();
    }
    void masks(const std::string& value, const std::string& final = "1")
    {
        view.SetOnlineData(
            response("name=\"deviceStatusMasks\" responseStatus=\"ok\" isFinal=\"" + final + "\"",
                     item("statusMask1", "noUnit", "hexVal", value)));
    }
    std::string iconOf(const std::string& items, int row)
    {
        online(items);
        return view.scgStatus.CellIcon(row, 1);
    }
};

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
    EXPECT_THAT(toolkit.debugLines, Each(StartsWith("CtrStatusF LoadStatusTree error 91: ")));
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

// --- A status response ------------------------------------------------------------------------

TEST_F(CtrStatusFView, ConditionsShowTheirClassAndTheBranchTheWorst)
{
    online(statusItem("fail", "1") + statusItem("info", "1") + statusItem("plain", "0"));
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "deviceFailure", "deviceInfo", "deviceOk"));
    EXPECT_EQ(view.CombinedStatus(), "deviceFailure");
}

TEST_F(CtrStatusFView, TheHostHearsUnderTheNameOfTheNAMURStatus)
{
    online(statusItem("fail", "1"));
    EXPECT_THAT(messenger.calls, ElementsAre("SetCombinedStatus(1, deviceFailure)",
                                             "SetParameterState(deviceStatusNAMUR, sync)",
                                             "ExecuteNamedRequest(deviceStatusMasks, , 0, 0)"));
}

TEST_F(CtrStatusFView, OtherResponsesAreIgnored)
{
    online(statusItem("fail", "1"), "deviceStatusX");
    online(statusItem("fail", "1"), "eventLog");
    EXPECT_THAT(view.images(), Each(""));
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrStatusFView, AResponseWithoutANameIsLogged)
{
    view.SetOnlineData(response("isFinal=\"1\"", statusItem("fail", "1")));
    EXPECT_THAT(view.images(), Each(""));
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(72, CtrStatusF IQornDataUser_SetOnlineData 91: Object "
                            "variable or With block variable not set)"));
}

TEST_F(CtrStatusFView, AnItemBelongsToTheRowWhoseKeyItsNameBeginsWith)
{
    EXPECT_EQ(iconOf(statusItem("failure7", "1"), 2), "deviceFailure");
    EXPECT_EQ(iconOf(statusItem("fai", "0") + statusItem("xfail", "0"), 2), "deviceFailure");
    EXPECT_EQ(iconOf(statusItem("failX", "0") + statusItem("fail", "1"), 2), "deviceFailure")
        << "the first item decides, and this condition keeps its mark";
}

TEST_F(CtrStatusFView, ASwitchedOffConditionLooksAsOneThatWasNeverRead)
{
    masks("06");
    online(statusItem("fail", "1") + statusItem("info", "0"));
    EXPECT_THAT(icons(), ElementsAre("deviceOk", kOff, "deviceOk", kOff));
    EXPECT_EQ(view.scgStatus.RowDescription(2),
              std::string("fail, ") + kOff + ", statusSwitchedOff");
    EXPECT_EQ(view.scgStatus.RowDescription(4), std::string("plain, ") + kOff + ", statusNotRead");
}

TEST_F(CtrStatusFView, ACompleteStatusIsWellWhereNothingIsActive)
{
    online(statusItem("fail", "0") + statusItem("info", "0") + statusItem("plain", "0"));
    EXPECT_THAT(icons(), Each("deviceOk"));
    EXPECT_EQ(view.CombinedStatus(), "deviceOk");
}

TEST_F(CtrStatusFView, OnlyTheTextZeroIsNotActive)
{
    EXPECT_EQ(iconOf(statusItem("fail", "00"), 2), "deviceFailure");
    EXPECT_EQ(iconOf(statusItem("info", "0 "), 3), "deviceInfo");
}

TEST_F(CtrStatusFView, AConditionThatIsNotCoveredKeepsItsImage)
{
    online(statusItem("fail", "1") + statusItem("info", "0") + statusItem("plain", "0"));
    online(statusItem("info", "1"));
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "deviceFailure", "deviceInfo", "deviceOk"));
}

// A condition that has gone: its old image is its class.

TEST_F(CtrStatusFView, AConditionThatHasGoneKeepsItsMark)
{
    online(statusItem("fail", "1"));
    online(statusItem("fail", "0"));
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "deviceFailure");
    EXPECT_EQ(view.CombinedStatus(), "deviceFailure");
    EXPECT_EQ(view.scgStatus.RowDescription(2), "fail, deviceFailure, statusNotActive");
}

TEST_F(CtrStatusFView, AnInformationThatHasGoneIsWell)
{
    online(statusItem("info", "1"));
    online(statusItem("info", "0"));
    EXPECT_EQ(view.scgStatus.CellIcon(3, 1), "deviceOk");
}

TEST_F(CtrStatusFView, AGoneConditionIsWellWhenTheLastClassIsItsOwn)
{
    load(branch("h", condition("one", namur("deviceFailure") + maskAt(0, 0)) +
                         condition("two", namur("deviceFailure") + maskAt(0, 1))));
    CtrStatusF fresh;
    fresh.SetMessenger(&messenger);
    fresh.SetOfflineData(datafile(maskParameter("statusMask1", "03")));
    fresh.SetOnlineData(statusResponse(statusItem("one", "1") + statusItem("two", "1")));
    fresh.SetOnlineData(statusResponse(statusItem("one", "1") + statusItem("two", "0")));
    EXPECT_THAT(iconsOf(fresh), ElementsAre("deviceFailure", "deviceFailure", "deviceOk"));
}

TEST_F(CtrStatusFView, TheFirstItemOfAResponseGivesTheLastClassToBeginWith)
{
    online(statusItem("fail", "1"));
    // An item whose name says its class stands in front: the gone condition is of that class.
    online(statusItem("other_Fail", "0") + statusItem("fail", "0"));
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "deviceOk");
}

TEST_F(CtrStatusFView, AGoneConditionIsWellAfterItWasSwitchedOff)
{
    online(statusItem("fail", "1"));
    masks("06");
    online(statusItem("fail", "0"));
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), kOff);
    masks("07");
    online(statusItem("fail", "0"));
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "deviceOk");
}

TEST_F(CtrStatusFView, AfterOfflineTheImagesAreEmptyAndZeroIsWell)
{
    online(statusItem("fail", "1"));
    messenger.ViewSetCommunicationMode.raise(kOffline);
    EXPECT_THAT(view.images(), ElementsAre("", "", "", ""));
    online(statusItem("fail", "0"));
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "deviceOk");
}

// A condition whose definition tells no class.

TEST_F(CtrStatusFView, AClassThatIsMissingComesFromTheItem)
{
    online("<comm:item name=\"plain\" classNAMUR=\"deviceUnderTest\"><comm:integerVal>1"
           "</comm:integerVal></comm:item>");
    EXPECT_EQ(view.scgStatus.CellIcon(4, 1), "deviceUnderTest");
    online(statusItem("plain", "1"));
    EXPECT_EQ(view.scgStatus.CellIcon(4, 1), "deviceUnderTest") << "and is kept";
}

TEST_F(CtrStatusFView, AClassThatIsMissingComesFromTheNameOfTheItem)
{
    online(statusItem("plain_Maint", "1"));
    EXPECT_EQ(view.scgStatus.CellIcon(4, 1), "deviceMaintenanceRequired");
    online(statusItem("plain_Fail", "1"));
    EXPECT_EQ(view.scgStatus.CellIcon(4, 1), "deviceMaintenanceRequired") << "the first one stays";
}

TEST_F(CtrStatusFView, AClassThatNobodyTellsLeavesTheIconAndRanksLowest)
{
    online(statusItem("plain", "0"));
    online(statusItem("plain", "1"));
    EXPECT_EQ(view.scgStatus.CellIcon(4, 1), "deviceOk") << "the icon stays";
    EXPECT_EQ(view.images().at(3), "");
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_EQ(view.CombinedStatus(), kOff);
}

TEST_F(CtrStatusFView, AClassWithoutAnImageIsLoggedAndThePassGoesOn)
{
    CtrStatusF fresh;
    messenger.deviceTypeInfo =
        definition(branch("h", condition("odd", namur("mystery") + maskAt(0, 0)) +
                                   condition("two", namur("deviceFailure") + maskAt(0, 1))));
    fresh.SetMessenger(&messenger);
    fresh.SetOfflineData(datafile(maskParameter("statusMask1", "03")));
    messenger.clear();
    fresh.SetOnlineData(statusResponse(statusItem("odd", "1") + statusItem("two", "1")));
    EXPECT_THAT(iconsOf(fresh), ElementsAre("deviceFailure", kOff, "deviceFailure"));
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre(StartsWith("WriteLog(72, CtrStatusF IQornDataUser_SetOnlineData 5: ")));
}

TEST_F(CtrStatusFView, ABranchWithoutConditionsHasNoParentToUpdate)
{
    CtrStatusF fresh;
    messenger.deviceTypeInfo = definition(branch("empty", ""));
    fresh.SetMessenger(&messenger);
    messenger.clear();
    fresh.SetOnlineData(statusResponse(statusItem("x", "1")));
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                Each("WriteLog(83, CtrStatusF UpdateBranchImage error 9: Subscript out of range)"));
    EXPECT_THAT(messenger.callsTo("WriteLog"), SizeIs(3));
}

TEST_F(CtrStatusFView, AKeyThatBreaksTheExpressionIsLogged)
{
    CtrStatusF fresh;
    messenger.deviceTypeInfo = definition(branch("h", condition("it's", namur("deviceInfo"))));
    fresh.SetMessenger(&messenger);
    messenger.clear();
    fresh.SetOnlineData(statusResponse(statusItem("it's", "1")));
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre(StartsWith("WriteLog(72, CtrStatusF IQornDataUser_SetOnlineData 5: ")));
}

TEST_F(CtrStatusFView, AnItemWithoutAValueIsLoggedAndCountsAsActive)
{
    online("<comm:item name=\"fail\"/>");
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "deviceFailure");
    EXPECT_THAT(
        messenger.callsTo("WriteLog"),
        ElementsAre(StartsWith("WriteLog(72, CtrStatusF IQornDataUser_SetOnlineData 91: ")));
}

TEST_F(CtrStatusFView, AResponseThatSaysTheSamePaintsNothing)
{
    online(statusItem("fail", "1") + statusItem("info", "0"));
    PaintCounter painted{view.scgStatus};
    online(statusItem("fail", "1") + statusItem("info", "0"));
    EXPECT_THAT(painted.rows, IsEmpty());
    online(statusItem("fail", "1") + statusItem("info", "1"));
    EXPECT_THAT(painted.rows, ElementsAre(3));
}

TEST_F(CtrStatusFView, ThePageIsNeverCalledAboutTheCombinedStatus)
{
    view.setCombinedStatus("deviceOk");
    EXPECT_THAT(messenger.calls, ElementsAre("SetCombinedStatus(1, deviceOk)"));
    messenger.failOn("SetCombinedStatus");
    view.setCombinedStatus("deviceFailure");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatusF CombinedStatus: , 5, ")));
}

// --- Masks ------------------------------------------------------------------------------------

TEST_F(CtrStatusFView, TheMasksAreAskedForOnceBehindTheFirstCompleteStatus)
{
    view.SetOnlineData(response(R"(name="deviceStatus" responseStatus="ok" isFinal="0")"));
    EXPECT_FALSE(messenger.wasCalled("ExecuteNamedRequest"));
    online("");
    masks("07");
    online("");
    EXPECT_THAT(messenger.callsTo("ExecuteNamedRequest"), SizeIs(1));
    view.SetOfflineData(datafile(maskParameter("statusMask1", "07")));
    online("");
    EXPECT_THAT(messenger.callsTo("ExecuteNamedRequest"), SizeIs(2)) << "another datafile";
}

TEST_F(CtrStatusFView, MasksAreAskedForAgainUntilTheLastOneHasCome)
{
    online("");
    masks("07", "0");
    online("");
    EXPECT_THAT(messenger.callsTo("ExecuteNamedRequest"), SizeIs(2));
}

TEST_F(CtrStatusFView, AMaskFromTheDeviceSwitchesAndGoesIntoTheDatafile)
{
    const auto file = datafile(maskParameter("statusMask1", "07"));
    view.SetOfflineData(file);
    messenger.clear();
    masks("06", "0");
    EXPECT_EQ(file.selectSingleNode("//data:parameter/@value").get_text(), "06");
    EXPECT_THAT(messenger.calls, Contains("WriteLog(68, SetOnlineMask leaving)"));
    EXPECT_EQ(iconOf(statusItem("fail", "1"), 2), kOff);
}

TEST_F(CtrStatusFView, OnlyItemsThatBeginLikeAMaskAreMasks)
{
    view.SetOnlineData(
        okResponse("deviceStatusMasks", item("xstatusMask1", "noUnit", "hexVal", "00") +
                                            item("StatusMask1", "noUnit", "hexVal", "00")));
    EXPECT_EQ(iconOf(statusItem("fail", "1"), 2), "deviceFailure");
}

TEST_F(CtrStatusFView, AMaskResponseWithoutAnEndMarkIsReported)
{
    view.SetOnlineData(response("name=\"deviceStatusMasks\""));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatusF SetOnlineMask: , 91, ")));
    EXPECT_THAT(messenger.calls, Contains("WriteLog(68, SetOnlineMask leaving)"));
}

TEST_F(CtrStatusFView, TheDatafileIsLogged)
{
    view.SetOfflineData(datafile(""));
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre("WriteLog(68, CtrStatusF entering IQornDataUser_SetOfflineData)",
                            "WriteLog(69, StatusConfiguration SetOfflineParameters entered)",
                            "WriteLog(68, CtrStatusF leaving IQornDataUser_SetOfflineData)"));
}

TEST_F(CtrStatusFView, ADatafileThatIsNoneIsReported)
{
    view.SetOfflineData({});
    EXPECT_THAT(
        messenger.errors(),
        ElementsAre(StartsWith("ReportError(CtrStatusF IQornDataUser_SetOfflineData: , 91, ")));
}

// --- Errors -----------------------------------------------------------------------------------

TEST_F(CtrStatusFView, AnErrorMakesRowsUnknownAndIsReportedUnderTheTag)
{
    online(statusItem("fail", "1") + statusItem("info", "1"));
    messenger.clear();
    view.SetErrorData(errorResponse("deviceStatus", statusItem("fail", "")));
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", kOff, "deviceInfo", kOff));
    view.SetErrorData(errorResponse("deviceStatus"));
    EXPECT_THAT(icons(), Each(kOff));
    EXPECT_THAT(view.images(), Each(kOff));
    EXPECT_THAT(messenger.calls, ElementsAre("SetParameterState(deviceStatus, syncError)",
                                             "SetCombinedStatus(1, deviceDiagnosisPassiv)"));
}

TEST_F(CtrStatusFView, ErrorsOfAnErrorAreReportedUnderTheViewsName)
{
    view.SetErrorData(response("name=\"deviceStatus\""));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatusF setErrorData: , 91, ")));
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
