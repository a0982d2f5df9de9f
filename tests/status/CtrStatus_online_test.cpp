#include "tests/status/status_tree_fixture.h"

#include "support/some_and_each.h"

// What a response does to `CtrStatus`.
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

class CtrStatusOnline : public StatusViewTest<CtrStatus> {
protected:
    void SetUp() override
    {
        load(branch("first", condition("a", severity("alarm") + namur("deviceFailure")) +
                                 condition("b", severity("warning") + namur("deviceInfo"))) +
             branch("second", condition("c", severity("failsafe") + namur("deviceUnderTest"))));
    }
};

TEST_F(CtrStatusOnline, EachActiveConditionShowsItsClassAndEachBranchTheWorst)
{
    online(statusItem("a", "0") + statusItem("b", "1") + statusItem("c", "0"));
    EXPECT_THAT(icons(), ElementsAre("warning", "ok", "warning", "ok", "ok"));
    EXPECT_THAT(view.images(), ElementsAre("warning", "ok", "warning", "ok", "ok"));
    EXPECT_EQ(view.CombinedStatus(), "warning");
}

TEST_F(CtrStatusOnline, TheWorstOfAllBranchesIsTheCombinedStatus)
{
    online(statusItem("a", "1") + statusItem("b", "1") + statusItem("c", "1"));
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm", "warning", "failsafe", "failsafe"));
    EXPECT_THAT(messenger.callsTo("SetCombinedStatus"),
                ElementsAre("SetCombinedStatus(1, failsafe)"));
}

TEST_F(CtrStatusOnline, AConditionThatHasGoneIsWellAgain)
{
    online(statusItem("a", "1") + statusItem("b", "1") + statusItem("c", "1"));
    online(statusItem("a", "0") + statusItem("b", "0") + statusItem("c", "0"));
    EXPECT_THAT(icons(), Each("ok"));
    EXPECT_EQ(view.CombinedStatus(), "ok");
}

TEST_F(CtrStatusOnline, OnlyTheTextZeroIsNotActive)
{
    for (const char* value : {"00", "0 ", "", "-0", "0.0", "x", "1"}) {
        online(statusItem("a", "0"));
        online(statusItem("a", value));
        EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "alarm") << value;
    }
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_THAT(messenger.callsTo("WriteLog"), IsEmpty());
}

TEST_F(CtrStatusOnline, AConditionThatIsNotCoveredKeepsItsImageInTheBranch)
{
    online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "0"));
    online(statusItem("b", "1") + statusItem("c", "0"));
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm", "warning", "ok", "ok"));
    EXPECT_EQ(view.CombinedStatus(), "alarm");
}

TEST_F(CtrStatusOnline, AConditionThatWasNeverReadRanksLowest)
{
    online(statusItem("a", "0"));
    EXPECT_THAT(icons(), ElementsAre("ok", "ok", "notMonitored", "unknown", "notMonitored"));
    EXPECT_EQ(view.CombinedStatus(), "ok");
    online("");
    EXPECT_THAT(icons(), ElementsAre("ok", "ok", "notMonitored", "unknown", "notMonitored"));
}

TEST_F(CtrStatusOnline, AnyResponseRunsThePassWhateverItsName)
{
    online(statusItem("a", "1"), "somethingElse");
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "alarm");
}

TEST_F(CtrStatusOnline, UnderNAMURTheOtherClassesAreShown)
{
    messenger.classification = kClassNAMUR;
    online(statusItem("a", "1") + statusItem("b", "1") + statusItem("c", "0"));
    EXPECT_THAT(icons(), ElementsAre("deviceFailure", "deviceFailure", "deviceInfo", "deviceOk",
                                     "deviceOk"));
    EXPECT_EQ(view.CombinedStatus(), "deviceFailure");
}

TEST_F(CtrStatusOnline, ItemNamesAreComparedAsAWhole)
{
    online(statusItem("ab", "1") + statusItem("A", "1"));
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "notMonitored");
}

TEST_F(CtrStatusOnline, OfSeveralItemsOfOneNameTheFirstCounts)
{
    online(statusItem("a", "0") + statusItem("a", "1"));
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "ok");
}

TEST_F(CtrStatusOnline, ASwitchedOffConditionShowsSoWhateverItsValue)
{
    load(branch("g", condition("a", severity("alarm") + maskAt(0, 0)) +
                         condition("b", severity("info") + maskAt(0, 1))));
    view.SetOfflineData(datafile(maskParameter("statusMaskOnOff", "02")));
    online(statusItem("a", "1") + statusItem("b", "0"));
    EXPECT_THAT(icons(), ElementsAre("ok", "inactive", "ok")) << "ok is worse than inactive";
    online(statusItem("a", "0") + statusItem("b", "0"));
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "inactive");
    EXPECT_EQ(view.scgStatus.RowDescription(2), "a, inactive, statusSwitchedOff");
}

TEST_F(CtrStatusOnline, AnEmptyClassIsStoredAndRanksLowestButGetsNoIcon)
{
    load(branch("g", condition("a", severity("")) + condition("b", severity("info"))));
    online(statusItem("a", "1") + statusItem("b", "0"));
    EXPECT_THAT(icons(), ElementsAre("ok", "notMonitored", "ok"));
    EXPECT_THAT(view.images(), ElementsAre("ok", "", "ok"));
    EXPECT_THAT(messenger.callsTo("WriteLog"), IsEmpty()) << "the exception is NAMUR's";
}

TEST_F(CtrStatusOnline, ANAMURConditionWithoutAClassUsesItsSeverity)
{
    messenger.classification = kClassNAMUR;
    load(branch("g", condition("a", severity("alarm")) + condition("b", namur("deviceInfo"))));
    online(statusItem("a", "1") + statusItem("b", "0"));
    EXPECT_THAT(icons(), ElementsAre("deviceOk", "alarm", "deviceOk"))
        << "a class of the other scale ranks lowest";
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre("WriteLog(83, TEMPORARY EXCEPTION: Status has  no NAMUR image, using "
                            "severity image)"));
    messenger.clear();
    online(statusItem("a", "0"));
    EXPECT_THAT(messenger.callsTo("WriteLog"), IsEmpty());
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "deviceOk");
}

TEST_F(CtrStatusOnline, AClassWithoutAnImageFailsTheIconAndNothingElse)
{
    load(branch("g", condition("a", severity("mystery")) + condition("b", severity("info"))));
    online(statusItem("a", "0") + statusItem("b", "0"));
    online(statusItem("a", "1") + statusItem("b", "1"));
    EXPECT_THAT(icons(), ElementsAre("info", "ok", "info")) << "the row keeps its old icon";
    EXPECT_THAT(view.images(), ElementsAre("info", "mystery", "info"));
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre(StartsWith("WriteLog(72, CtrStatus IQornDataUser_SetOnlineData 5: ")));
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_EQ(view.CombinedStatus(), "info");
}

// --- What the host hears ----------------------------------------------------------------------

TEST_F(CtrStatusOnline, TheHostHearsInOrder)
{
    online(statusItem("a", "1"));
    EXPECT_THAT(messenger.calls,
                ElementsAre("GetStatusClassification()", "SetCombinedStatus(1, alarm)",
                            "SetParameterState(deviceStatus, sync)"));
    messenger.clear();
    online(statusItem("a", "1"));
    EXPECT_THAT(messenger.calls, ElementsAre("GetStatusClassification()"));
    EXPECT_EQ(view.syncState(), "sync");
}

TEST_F(CtrStatusOnline, TheStateOfTheSynchronisationFollowsGoodAndBadResponses)
{
    view.SetErrorData(errorResponse("deviceStatus"));
    view.SetErrorData(errorResponse("deviceStatus"));
    online(statusItem("a", "1"));
    online(statusItem("a", "1"));
    EXPECT_THAT(messenger.callsTo("SetParameterState"),
                ElementsAre("SetParameterState(deviceStatus, syncError)",
                            "SetParameterState(deviceStatus, reSync)"));
}

TEST_F(CtrStatusOnline, TheConfigurationSignGoesToTheHostThatShowsIt)
{
    messenger.configurationChanged = true;
    view.SetMessenger(&messenger);
    messenger.clear();
    online(statusItem("statusHARTConfigurationChanged", "7"));
    online(statusItem("a", "1"));
    EXPECT_THAT(messenger.callsTo("SetConfigurationChanged"),
                ElementsAre("SetConfigurationChanged(7)"));
}

TEST_F(CtrStatusOnline, TheSignIsClearedByItsRequest)
{
    messenger.configurationChanged = true;
    view.SetMessenger(&messenger);
    messenger.clear();
    online("", "deviceStatusClearConfigurationChanged");
    online(statusItem("statusHARTConfigurationChanged", "1"),
           "deviceStatusClearConfigurationChanged");
    EXPECT_THAT(messenger.callsTo("SetConfigurationChanged"),
                ElementsAre("SetConfigurationChanged(0)", "SetConfigurationChanged(1)",
                            "SetConfigurationChanged(0)"));
}

TEST_F(CtrStatusOnline, AHostWithoutTheSignIsNotBothered)
{
    online(statusItem("statusHARTConfigurationChanged", "1"),
           "deviceStatusClearConfigurationChanged");
    EXPECT_FALSE(messenger.wasCalled("SetConfigurationChanged"));
}

TEST_F(CtrStatusOnline, ASignWithoutAValueIsNone)
{
    messenger.configurationChanged = true;
    view.SetMessenger(&messenger);
    messenger.clear();
    online("<comm:item name=\"statusHARTConfigurationChanged\"/>");
    EXPECT_FALSE(messenger.wasCalled("SetConfigurationChanged"));
    EXPECT_FALSE(messenger.wasCalled("WriteLog"));
}

// --- Faults -----------------------------------------------------------------------------------

TEST_F(CtrStatusOnline, AnItemWithoutItsValueIsLoggedAndCountsAsActive)
{
    online("<comm:item name=\"a\"/>" + statusItem("b", "0"));
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm", "ok", "unknown", "notMonitored"));
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre("WriteLog(72, CtrStatus IQornDataUser_SetOnlineData 91: Object "
                            "variable or With block variable not set)"));
}

TEST_F(CtrStatusOnline, ABranchWithoutConditionsHasNoParentToUpdate)
{
    load(branch("empty", "") + branch("g", condition("a", severity("alarm"))));
    online(statusItem("a", "1"));
    EXPECT_THAT(icons(), ElementsAre("notMonitored", "alarm", "alarm"));
    EXPECT_THAT(
        messenger.callsTo("WriteLog"),
        SomeAndEach("WriteLog(83, CtrStatus UpdateBranchImage error 9: Subscript out of range)"));
    EXPECT_THAT(messenger.callsTo("WriteLog"), SizeIs(3));
    EXPECT_EQ(view.CombinedStatus(), "alarm");
}

TEST_F(CtrStatusOnline, ABranchThatIsNamedByAnItemStillGoesByItsConditions)
{
    online(statusItem("first", "1") + statusItem("a", "0") + statusItem("b", "0"));
    // The branch has no class of its own, so only its conditions give it an icon.
    EXPECT_EQ(view.scgStatus.CellIcon(1, 1), "ok");
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                SomeAndEach(HasSubstr("UpdateBranchImage error 9: Subscript out of range")));
}

TEST_F(CtrStatusOnline, AKeyThatBreaksTheExpressionIsLoggedAndThePassGoesOn)
{
    load(branch("g", condition("a&quot;b", severity("alarm")) + condition("c", severity("info"))));
    online(statusItem("a&quot;b", "1") + statusItem("c", "1"));
    EXPECT_THAT(icons(), ElementsAre("info", "notMonitored", "info"));
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre(StartsWith("WriteLog(72, CtrStatus IQornDataUser_SetOnlineData 5: ")));
}

TEST_F(CtrStatusOnline, AHostThatThrowsEverywhereCostsNoIcon)
{
    messenger.onCall = [](const std::string&) { throw platform::failure(5); };
    online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "mystery"));
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm", "ok", "failsafe", "failsafe"));
    EXPECT_EQ(view.CombinedStatus(), "failsafe");
    EXPECT_EQ(view.syncState(), "sync");
}

TEST_F(CtrStatusOnline, AClassificationThatCannotBeReadIsLogged)
{
    messenger.failOn("GetStatusClassification", 75);
    online(statusItem("a", "1"));
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre("WriteLog(72, CtrStatus IQornDataUser_SetOnlineData 75: Path/File "
                            "access error)"));
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "alarm");
}

TEST_F(CtrStatusOnline, NoResponseAtAllIsLoggedAndKeepsTheImages)
{
    online(statusItem("a", "1"));
    messenger.clear();
    view.SetOnlineData({});
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "alarm");
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                SomeAndEach(StartsWith("WriteLog(72, CtrStatus IQornDataUser_SetOnlineData 91: ")));
    EXPECT_THAT(messenger.callsTo("WriteLog"), SizeIs(5)) << "one for each row";
}

TEST_F(CtrStatusOnline, AViewWithoutAHostSaysSoInTheDebugOutput)
{
    CtrStatus alone;
    alone.SetOnlineData(statusResponse(statusItem("a", "1")));
    EXPECT_THAT(toolkit.debugLines,
                Contains(StartsWith("CtrStatus IQornDataUser_SetOnlineData 91: ")));
}

// --- What is painted --------------------------------------------------------------------------

TEST_F(CtrStatusOnline, AResponseThatSaysTheSamePaintsNothing)
{
    online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "0"));
    PaintCounter painted{view.scgStatus};
    online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "0"));
    EXPECT_THAT(painted.rows, IsEmpty());
    EXPECT_EQ(painted.others, 0);
}

TEST_F(CtrStatusOnline, OnlyTheRowsThatChangeArePainted)
{
    online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "0"));
    PaintCounter painted{view.scgStatus};
    online(statusItem("a", "1") + statusItem("b", "1") + statusItem("c", "0"));
    EXPECT_THAT(painted.rows, ElementsAre(3)) << "the branch stays at alarm";
    EXPECT_EQ(painted.others, 0);
}

// --- Errors -----------------------------------------------------------------------------------

class CtrStatusError : public CtrStatusOnline {
protected:
    void SetUp() override
    {
        CtrStatusOnline::SetUp();
        online(statusItem("a", "1") + statusItem("b", "0") + statusItem("c", "0"));
        messenger.clear();
    }
};

TEST_F(CtrStatusError, AnErrorWithoutItemsMakesEveryRowUnknown)
{
    view.SetErrorData(errorResponse("deviceStatus"));
    EXPECT_THAT(icons(), Each("unknown"));
    EXPECT_THAT(view.images(), Each("unknown"));
    EXPECT_THAT(messenger.calls, ElementsAre("SetCombinedStatus(1, unknown)",
                                             "SetParameterState(deviceStatus, syncError)"));
}

TEST_F(CtrStatusError, AnErrorThatNamesRowsMakesThoseUnknown)
{
    view.SetErrorData(errorResponse("deviceStatus", statusItem("a", "") + statusItem("x", "")));
    EXPECT_THAT(icons(), ElementsAre("alarm", "unknown", "ok", "ok", "ok"));
    EXPECT_THAT(messenger.calls, ElementsAre("SetParameterState(deviceStatus, syncError)"))
        << "the combined status stays";
}

TEST_F(CtrStatusError, AnErrorOfOneItemIsOfThatRow)
{
    view.SetErrorData(errorResponse("deviceStatus", statusItem("second", "")));
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm", "ok", "unknown", "ok"));
}

TEST_F(CtrStatusError, AnErrorOfTheExtensionPartAloneIsOfEveryRow)
{
    view.SetErrorData(
        errorResponse("deviceStatus", statusItem("statusDiagnosisExtensionPart", "")));
    EXPECT_THAT(icons(), Each("unknown"));
    EXPECT_EQ(view.CombinedStatus(), "unknown");
}

TEST_F(CtrStatusError, TheExtensionPartMayStandAnywhereInTheDocument)
{
    view.SetErrorData(response(
        R"(name="deviceStatus" responseStatus="error" errorCode="statusDiagnosisExtensionPart2")",
        statusItem("a", "")));
    EXPECT_THAT(icons(), Each("unknown"));
}

TEST_F(CtrStatusError, TheExtensionPartBesideAnotherItemIsNothingSpecial)
{
    view.SetErrorData(errorResponse("deviceStatus", statusItem("statusDiagnosisExtensionPart", "") +
                                                        statusItem("a", "")));
    EXPECT_THAT(icons(), ElementsAre("alarm", "unknown", "ok", "ok", "ok"));
}

TEST_F(CtrStatusError, ItemsWithoutANameDoNotCount)
{
    view.SetErrorData(errorResponse("deviceStatus", "<comm:item/><comm:item/>"));
    EXPECT_THAT(icons(), Each("unknown"));
}

TEST_F(CtrStatusError, ATestStatusIsAnItemLikeAnyOther)
{
    view.SetErrorData(errorResponse("deviceStatus", statusItem("testStatus", "")));
    EXPECT_THAT(icons(), ElementsAre("alarm", "alarm", "ok", "ok", "ok"));
}

TEST_F(CtrStatusError, AResponseOfAnotherNameIsNotTheViews)
{
    view.SetErrorData(errorResponse("eventLog"));
    EXPECT_THAT(icons(), Not(Contains("unknown")));
    EXPECT_EQ(view.syncState(), "sync");
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrStatusError, TheTagMayStandAnywhereInTheName)
{
    view.SetErrorData(errorResponse("my_deviceStatusPart"));
    EXPECT_EQ(view.syncState(), "syncError");
}

TEST_F(CtrStatusError, AViewWithoutATagTakesNoError)
{
    view.Tag = "";
    view.SetErrorData(errorResponse("deviceStatus"));
    EXPECT_EQ(view.syncState(), "sync");
}

TEST_F(CtrStatusError, AResponseThatWentWellChangesNoRowButTheState)
{
    view.SetErrorData(errorResponse("deviceStatus", "", "ok"));
    EXPECT_THAT(icons(), Not(Contains("unknown")));
    EXPECT_EQ(view.syncState(), "syncError");
    EXPECT_THAT(messenger.calls, ElementsAre("SetParameterState(deviceStatus, syncError)"));
}

TEST_F(CtrStatusError, AResponseWithoutAStatusIsReportedAndIsAnError)
{
    view.SetErrorData(response("name=\"deviceStatus\""));
    EXPECT_THAT(icons(), Each("unknown"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatus setErrorData: , 91, ")));
}

TEST_F(CtrStatusError, AResponseWithoutANameIsReportedAndLeft)
{
    view.SetErrorData(response("responseStatus=\"error\""));
    EXPECT_EQ(view.syncState(), "sync");
    EXPECT_THAT(messenger.calls,
                ElementsAre(StartsWith("ReportError(CtrStatus setErrorData: , 91, ")));
}

TEST_F(CtrStatusError, AKeyThatBreaksTheExpressionIsReportedAndTheOthersGoOn)
{
    load(branch("g", condition("a&quot;b", severity("alarm")) + condition("c", severity("info"))));
    view.SetErrorData(
        errorResponse("deviceStatus", statusItem("a&quot;b", "") + statusItem("c", "")));
    EXPECT_THAT(icons(), ElementsAre("notMonitored", "notMonitored", "unknown"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatus setErrorData: , 5, ")));
}

TEST_F(CtrStatusError, AHostThatThrowsStillLeavesTheRowsUnknown)
{
    messenger.onCall = [](const std::string&) { throw platform::failure(5); };
    view.SetErrorData(errorResponse("deviceStatus"));
    EXPECT_THAT(icons(), Each("unknown"));
    EXPECT_EQ(view.syncState(), "syncError");
}

} // namespace
} // namespace quill::test
