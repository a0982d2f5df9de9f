#include "tests/status/configurable_view_fixture.h"

#include "support/some_and_each.h"

// `CtrStatusF` while it shows: status, masks, errors.
namespace quill::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

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
    EXPECT_THAT(
        messenger.callsTo("WriteLog"),
        SomeAndEach("WriteLog(83, CtrStatusF UpdateBranchImage error 9: Subscript out of range)"));
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

} // namespace
} // namespace quill::test
