// The view itself: the host's calls and events, requests, errors.
#include "event_log_fixture.h"

#include "support/test_page.h"

namespace quill::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using namespace platform;

class CtrEventLogTest : public EventLogTest {};

TEST_F(CtrEventLogTest, TheFormAtTheStart)
{
    CtrEventLog fresh;
    EXPECT_EQ(fresh.frmViews.Tag.get(), "eventLog");
    EXPECT_EQ(fresh.frmViews.BackColor.get(), 0xffffffU);
    EXPECT_EQ(fresh.cmdNext.Caption.get(), "More events");
    EXPECT_EQ(fresh.cmdNext.Tag.get(), "moreEvents");
    EXPECT_FALSE(fresh.cmdNext.Enabled);
    EXPECT_EQ(fresh.ctrDateLabels.Tag.get(), "date_eventLog");
    EXPECT_EQ(fresh.lblTitle[0].Tag.get(), "totalOperationTime");
    EXPECT_EQ(fresh.lblTitle[1].Tag.get(), "eventLog");
    EXPECT_EQ(fresh.lblFootnote.Caption.get(), "*) Assuming 0s downtime");
    EXPECT_EQ(fresh.lblFootnote.Tag.get(), "dateEstimate");
    EXPECT_FALSE(fresh.lblFootnote.Visible);
    EXPECT_TRUE(fresh.lsvEventLog.MultiSelect);
    std::vector<std::string> tags;
    for (const auto& header : fresh.lsvEventLog.ColumnHeaders()) {
        tags.push_back(header.Tag);
    }
    EXPECT_THAT(tags,
                ElementsAre("class", "event", "eventLogTimeHeader", "date", "channelIndex", "row"));
    EXPECT_TRUE(fresh.paging().mblnReadOk);
    EXPECT_EQ(fresh.times().miFirstResetRow, 32767);
    EXPECT_EQ(fresh.syncState(), "notRead");
    EXPECT_FALSE(fresh.classesHidden());
    EXPECT_EQ(fresh.paging().mstrOperationTimeRequest, "");
}

TEST_F(CtrEventLogTest, EveryTextIsTranslated)
{
    translator.texts = {{"moreEvents", "Lisää"}, {"dateEstimate", "*) arvio"}};
    view.Localize(translator);
    EXPECT_EQ(view.cmdNext.Caption.get(), "Lisää");
    EXPECT_EQ(view.lblFootnote.Caption.get(), "*) arvio");
    EXPECT_EQ(view.lblTitle[0].Caption.get(), "t:totalOperationTime");
    EXPECT_EQ(view.lblTitle[1].Caption.get(), "t:eventLog");
    std::vector<std::string> headings;
    for (const auto& header : view.lsvEventLog.ColumnHeaders()) {
        headings.push_back(header.Text);
    }
    EXPECT_THAT(headings, ElementsAre("t:class", "t:event", "t:eventLogTimeHeader", "t:date",
                                      "t:channelIndex", "t:row"));
    EXPECT_THAT(translator.calls, Contains("Translate(moreEvents)"));
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "");
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(CtrEventLogTest, AHeadingWithoutATextShowsItsKey)
{
    translator.prefix = "Err:";
    translator.texts  = {{"event", "Tapahtuma"}};
    view.Localize(translator);
    std::vector<std::string> headings;
    for (const auto& header : view.lsvEventLog.ColumnHeaders()) {
        headings.push_back(header.Text);
    }
    EXPECT_THAT(headings, ElementsAre("class", "Tapahtuma", "eventLogTimeHeader", "date",
                                      "channelIndex", "row"));
    EXPECT_EQ(view.cmdNext.Caption.get(), "moreEvents");
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(CtrEventLogTest, OneTextThatFailsCostsOneText)
{
    translator.failingKey = "event";
    view.Localize(translator);
    EXPECT_EQ(view.lsvEventLog.ColumnHeaders()[1].Text, "Event");
    EXPECT_EQ(view.lsvEventLog.ColumnHeaders()[2].Text, "t:eventLogTimeHeader");
    EXPECT_THAT(host.errors(), Contains(StartsWith("ReportError(CtrEventLog Localize: , 5, ")));
}

// --- The contract -----------------------------------------------------------------------------

TEST_F(CtrEventLogTest, ItIsAPageOfItsOwn)
{
    view.SetSelectedView("eventLog");
    EXPECT_EQ(view.GetSelectedView(), "eventLog");
    EXPECT_TRUE(view.LeaveSelectedView());
    EXPECT_EQ(view.GetMessenger(), &host);
    EXPECT_THAT(view.GetControls(), Contains(&view.lsvEventLog));
}

TEST_F(CtrEventLogTest, TheFocusGoesToTheListAndItsCurrentRow)
{
    readHart();
    view.lsvEventLog.select({2});
    view.lsvEventLog.edit(2, [](ListItem& item) { item.Selected = false; });
    view.RequestFocus();
    EXPECT_TRUE(view.lsvEventLog.HasFocus());
    EXPECT_TRUE(view.lsvEventLog.Item(2).Selected);
    EXPECT_FALSE(host.wasCalled("TransferFocus"));
}

TEST_F(CtrEventLogTest, AListWithoutACurrentRowTakesTheFocusAllTheSame)
{
    readHart();
    view.RequestFocus();
    EXPECT_TRUE(view.lsvEventLog.HasFocus());
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(CtrEventLogTest, AnEmptyListHandsTheFocusOnWhileTabIsDown)
{
    view.RequestFocus();
    EXPECT_FALSE(host.wasCalled("TransferFocus"));
    for (const bool shift : {false, true}) {
        toolkit.keysDown = shift ? std::set<int>{kKeyTab, kKeyShift} : std::set<int>{kKeyTab};
        host.clear();
        view.RequestFocus();
        EXPECT_THAT(host.callsTo("TransferFocus"), SizeIs(1));
    }
}

TEST_F(CtrEventLogTest, AHiddenListIsReportedWhenItIsToTakeTheFocus)
{
    readHart();
    view.lsvEventLog.select({2});
    view.lsvEventLog.Visible = false;
    view.RequestFocus();
    EXPECT_THAT(host.errors(),
                ElementsAre(StartsWith("ReportError(CtrEventLog IQornView_RequestFocus: , 5, ")));
    EXPECT_TRUE(view.lsvEventLog.Item(2).Selected);
}

TEST_F(CtrEventLogTest, FocusStopsStandBehindEverythingElse)
{
    const auto& widgets = view.Widgets();
    EXPECT_EQ(widgets[widgets.size() - 2]->Name, "CtrFocusTransfer1");
    EXPECT_EQ(widgets[widgets.size() - 1]->Name, "CtrFocusTransfer2");
    view.CtrFocusTransfer1.focus();
    EXPECT_TRUE(host.wasCalled("TransferFocus"));
}

TEST_F(CtrEventLogTest, AReleasedViewHearsNothing)
{
    view.SetOfflineData(log("X", parameters({{1, "a", "b", "1"}})));
    ASSERT_TRUE(view.eventNode(1, 0));
    view.PrepareToRelease();
    EXPECT_EQ(view.GetMessenger(), nullptr);
    for (int index = 0; index < 32; ++index) {
        for (int piece = 0; piece < 3; ++piece) {
            EXPECT_FALSE(view.eventNode(index, piece));
        }
    }
    host.clear();
    view.cmdNext.Enabled = true;
    host.ViewSetCommunicationMode.raise(kOffline);
    host.ViewReceiveValue.raise("ctr_totalOperationTime", "12");
    EXPECT_TRUE(view.cmdNext.Enabled);
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "");
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(CtrEventLogTest, NodesOutsideTheTableAreAFailure)
{
    for (const auto& [index, piece] :
         {std::pair{-1, 0}, std::pair{32, 0}, std::pair{0, 3}, std::pair{0, -1}}) {
        try {
            (void)view.eventNode(index, piece);
            ADD_FAILURE() << index << " " << piece;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), kSubscriptOutOfRange);
        }
    }
}

TEST_F(CtrEventLogTest, OnlyATopIndexAboveZeroCounts)
{
    view.SetTopEventIndex(3);
    EXPECT_EQ(view.paging().miTopEventIndex, 3);
    view.SetTopEventIndex(0);
    view.SetTopEventIndex(-2);
    EXPECT_EQ(view.paging().miTopEventIndex, 3);
}

TEST_F(CtrEventLogTest, TheButtonCannotBeBroughtBack)
{
    view.ShowMoreEvents(true);
    EXPECT_TRUE(view.cmdNext.Visible);
    view.ShowMoreEvents(false);
    EXPECT_FALSE(view.cmdNext.Visible);
    view.ShowMoreEvents(true);
    EXPECT_FALSE(view.cmdNext.Visible);
}

// --- Asking for more --------------------------------------------------------------------------

TEST_F(CtrEventLogTest, AHartDeviceIsAskedToGoOnBehindTheMessagesReceived)
{
    readHart();
    ASSERT_TRUE(view.cmdNext.Enabled);
    view.cmdNext.click();
    EXPECT_THAT(host.calls,
                ElementsAre("WriteLog(70, MoreEvents requesting events from 31)",
                            "ExecuteCommunicationRequest(" +
                                view.paging().moreEventsRequest(false) + ", reading, 2, 2)"));
    EXPECT_THAT(host.calls[1], HasSubstr("<integerVal>10</integerVal>"));
    EXPECT_EQ(view.paging().miReadsDone, 3);
    EXPECT_TRUE(view.paging().mblnIsMoreEventsClicked);
}

TEST_F(CtrEventLogTest, WithHiddenClassesTheClassIsNotAskedFor)
{
    readHart();
    view.HideClasses(true);
    view.cmdNext.click();
    EXPECT_THAT(host.callsTo("ExecuteCommunicationRequest"),
                ElementsAre("ExecuteCommunicationRequest(" + view.paging().moreEventsRequest(true) +
                            ", reading, 2, 2)"));
}

TEST_F(CtrEventLogTest, AFieldbusDeviceIsAskedWithoutALogLine)
{
    view.UseFieldbus();
    receive({{1, "a", "b", "1"}});
    host.clear();
    view.cmdNext.click();
    EXPECT_THAT(host.calls,
                ElementsAre("ExecuteCommunicationRequest(" +
                            view.paging().moreEventsRequest(false) + ", reading, 2, 2)"));
    EXPECT_EQ(view.paging().miReadsDone, 1);
}

TEST_F(CtrEventLogTest, ARefusedRequestIsNotCountedButCountsAsClicked)
{
    readHart();
    host.accepts = false;
    view.cmdNext.click();
    EXPECT_EQ(view.paging().miReadsDone, 0);
    EXPECT_TRUE(view.paging().mblnIsMoreEventsClicked);
}

TEST_F(CtrEventLogTest, AHostThatFailsOnTheRequestIsReported)
{
    readHart();
    host.failOn("ExecuteCommunicationRequest");
    host.failOn("WriteLog");
    view.cmdNext.click();
    EXPECT_EQ(view.paging().miReadsDone, 0);
    EXPECT_TRUE(view.paging().mblnIsMoreEventsClicked);
    EXPECT_THAT(host.errors(),
                ElementsAre(StartsWith("ReportError(CtrEventLog cmdNext_Click: , 5, "),
                            StartsWith("ReportError(CtrEventLog cmdNext_Click: , 5, ")));
}

// --- The host's events ------------------------------------------------------------------------

TEST_F(CtrEventLogTest, TheButtonFollowsTheMode)
{
    readHart();
    for (const std::int32_t mode : {10, 12}) {
        view.cmdNext.Enabled = true;
        host.ViewSetCommunicationMode.raise(mode);
        EXPECT_FALSE(view.cmdNext.Enabled) << mode;
    }
    EXPECT_THAT(host.calls, IsEmpty());
    host.ViewSetCommunicationMode.raise(11);
    EXPECT_TRUE(view.cmdNext.Enabled);
    EXPECT_THAT(host.calls, ElementsAre("WriteLog(69, CtrEventLog ViewSetCommunicationMode 11 "
                                        "mblnIsNextAllowed = True mblnIsMoreEventsClicked = "
                                        "False)"));
    host.ViewSetCommunicationMode.raise(20);
    EXPECT_TRUE(view.cmdNext.Enabled);
}

TEST_F(CtrEventLogTest, OnlineTheButtonComesBackOnlyWhenThereIsMoreAndNoReadUnderWay)
{
    host.ViewSetCommunicationMode.raise(11);
    EXPECT_FALSE(view.cmdNext.Enabled) << "nothing was read";
    readHart();
    view.cmdNext.click();
    host.ViewSetCommunicationMode.raise(12);
    host.ViewSetCommunicationMode.raise(11);
    EXPECT_FALSE(view.cmdNext.Enabled) << "a read is under way";
}

TEST_F(CtrEventLogTest, AModeWhoseLogLineFailsCountsAllTheSame)
{
    readHart();
    host.ViewSetCommunicationMode.raise(12);
    host.failOn("WriteLog");
    host.ViewSetCommunicationMode.raise(11);
    EXPECT_TRUE(view.cmdNext.Enabled);
    EXPECT_THAT(host.errors(), SizeIs(1));
}

// --- Errors -----------------------------------------------------------------------------------

TEST_F(CtrEventLogTest, AnErrorThatIsNotAboutTheLogIsOnlyWrittenDown)
{
    fail(true, "deviceStatus");
    ASSERT_THAT(host.calls, SizeIs(1));
    EXPECT_THAT(host.calls[0], StartsWith("WriteLog(70, CtrEventLog SetErrorData <comm:dtm"));
    EXPECT_EQ(view.syncState(), "notRead");
}

TEST_F(CtrEventLogTest, AnErrorOfTheOperationTimeIsShownAndChangesNothing)
{
    fail(false, "eventLogOperationTime");
    EXPECT_THAT(host.callsTo("ShowMessage"),
                ElementsAre("ShowMessage(t:error, t:communicationError\r\n)"));
    EXPECT_FALSE(host.wasCalled("SetParameterState"));
    EXPECT_TRUE(view.paging().mblnReadOk);
}

TEST_F(CtrEventLogTest, AnErrorMarksTheLogAsOutOfStepOnce)
{
    fail(true);
    fail(true);
    EXPECT_THAT(host.callsTo("SetParameterState"),
                ElementsAre("SetParameterState(eventLog, syncError)"));
    EXPECT_THAT(host.callsTo("ShowMessage"), SizeIs(2));
    EXPECT_EQ(view.syncState(), "syncError");
}

TEST_F(CtrEventLogTest, AnErrorInTheMiddleSpoilsTheRestOfTheRead)
{
    fail(false);
    EXPECT_FALSE(view.paging().mblnReadOk);
    fail(true);
    EXPECT_TRUE(view.paging().mblnReadOk);
}

TEST_F(CtrEventLogTest, AnErrorAtTheEndPutsTheFlagsBack)
{
    readHart();
    receiveMore({{0, "more", "class", "1"}}, false);
    ASSERT_EQ(view.paging().miMessageCount, 1);
    fail(true, "eventLogContinued");
    EXPECT_EQ(view.paging().miMessageCount, 0);
    EXPECT_TRUE(view.paging().mblnReadOk);
    EXPECT_FALSE(view.paging().mblnIsMoreEventsClicked);
}

TEST_F(CtrEventLogTest, AHartReadThatBreaksOffGoesOnBehindWhatArrived)
{
    readHart();
    receiveMore({{0, "more", "class", "1"}}, false);
    EXPECT_EQ(view.paging().miReadsDone, 3);
    fail(false, "eventLogContinued");
    EXPECT_EQ(view.paging().miReadsDone, 1);
    EXPECT_EQ(view.paging().mvarIndexBase, 30 + 10);
    fail(true, "eventLogContinued");
    EXPECT_EQ(view.paging().miReadsDone, 1) << "counted once";
    EXPECT_EQ(view.paging().mvarIndexBase, 40);
    receiveMore({{0, "next", "class", "1"}});
    EXPECT_EQ(indexes().back(), "40");
}

TEST_F(CtrEventLogTest, AFieldbusReadOrANewListThatBreaksOffCountsNothing)
{
    readHart();
    fail(true);
    EXPECT_EQ(view.paging().mvarIndexBase, 30);
    EXPECT_EQ(view.paging().miReadsDone, 0);
    view.UseFieldbus();
    view.cmdNext.click();
    fail(true);
    EXPECT_EQ(view.paging().mvarIndexBase, 30);
    EXPECT_EQ(view.paging().miReadsDone, 1);
}

TEST_F(CtrEventLogTest, AnErrorWithoutANameOrAnEndIsReported)
{
    view.SetErrorData(response("isFinal=\"1\""));
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setErrorData: , 91, ")));
    host.clear();
    view.SetErrorData(response("name=\"eventLog\" errorCode=\"x\""));
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setErrorData: , 91, ")));
    EXPECT_FALSE(view.paging().mblnReadOk) << "no word of the end";
    EXPECT_EQ(view.syncState(), "syncError");
}

TEST_F(CtrEventLogTest, AnErrorWithoutADocumentIsReported)
{
    view.SetErrorData({});
    EXPECT_THAT(host.errors(), SizeIs(2));
    EXPECT_FALSE(host.wasCalled("SetParameterState"));
}

TEST_F(CtrEventLogTest, AHostThatFailsOnEverythingGetsTheStateAllTheSame)
{
    for (const char* operation : {"WriteLog", "ShowMessage", "GetTranslator"}) {
        host.failOn(operation);
    }
    fail(true);
    EXPECT_TRUE(host.wasCalled("SetParameterState"));
    EXPECT_EQ(view.syncState(), "syncError");
}

TEST_F(CtrEventLogTest, APageHandsTheErrorOfAContinuedReadToTheLogAlone)
{
    TestPage    page;
    CtrEventLog child{page, {.Name = "log", .Tag = "eventLog"}};
    page.SetMessenger(&host);
    host.clear();
    page.SetErrorData(response("name=\"eventLogContinued\" errorCode=\"x\" isFinal=\"1\""));
    EXPECT_EQ(child.syncState(), "syncError");
    EXPECT_THAT(host.callsTo("ShowMessage"), SizeIs(1));
    child.PrepareToRelease();
    page.PrepareToRelease();
}

TEST_F(CtrEventLogTest, WithoutAMessengerNothingIsLostButTheReports)
{
    CtrEventLog alone;
    alone.UseHART();
    alone.SetOnlineData(message(items({{0, "a", "b", "1"}})));
    alone.SetErrorData(response("name=\"eventLog\" isFinal=\"1\""));
    alone.SetOfflineData(log("XH", parameters({{0, "a", "b", "1"}})));
    EXPECT_EQ(alone.lsvEventLog.Count(), 1);
    EXPECT_EQ(alone.lsvEventLog.Item(1).SubItems[eventLog::kTime], "1.0000");
    EXPECT_THAT(toolkit.debugLines, Not(IsEmpty()));
}

} // namespace
} // namespace quill::test
