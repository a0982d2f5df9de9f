// Messages from a HART device: which of them concern the log, and how a new list comes about.
#include "event_log_fixture.h"

namespace quill::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using namespace platform;

// --- Which message is which -------------------------------------------------------------------

TEST_F(HartLogTest, AMessageOfSomethingElseIsOnlyWrittenDown)
{
    view.SetOnlineData(message(items({{0, "a", "b", "1"}}), true, "deviceStatus"));
    EXPECT_THAT(host.calls, ElementsAre("WriteLog(69, CtrEventLog SetOnlineData entering)",
                                        "WriteLog(69, CtrEventLog SetOnlineData leaving)"));
    EXPECT_EQ(view.lsvEventLog.Count(), 0);
}

TEST_F(HartLogTest, ADocumentWithoutAResponseEndsTheProcedure)
{
    view.SetOnlineData(documents::openEmptyRequest());
    ASSERT_THAT(host.calls, SizeIs(2)) << "the prefix is not known there";
    host.clear();
    view.SetOnlineData(documents::openText("<comm:dtm xmlns:comm=\"" +
                                           std::string(documents::kCommunicationSchema) + "\"/>"));
    EXPECT_THAT(host.calls, ElementsAre("WriteLog(69, CtrEventLog SetOnlineData entering)"));
    host.clear();
    view.SetOnlineData({});
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setOnlineData: , 91, ")));
}

TEST_F(HartLogTest, AMessageWithoutANameBelongsToNobody)
{
    view.SetOnlineData(response("isFinal=\"1\"", items({{0, "a", "b", "1"}})));
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setOnlineData: , 91, ")));
    EXPECT_THAT(host.calls.back(), HasSubstr("leaving"));
    EXPECT_EQ(view.lsvEventLog.Count(), 0);
}

// --- The total operation time -----------------------------------------------------------------

TEST_F(HartLogTest, TheOperationTimeIsShownAndDatesTheList)
{
    receive({{0, "a", "b", "1000.5"}, {1, "c", "d", "976.5"}});
    EXPECT_THAT(dates(), ElementsAre("", ""));
    host.clear();
    view.SetOnlineData(okResponse("eventLogOperationTime",
                                  item("eventLogTotalOperationTime", "h", "floatVal", "1000.5")));
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "1000.50");
    EXPECT_EQ(view.lblOperationTime[1].Caption.get(), "h");
    EXPECT_EQ(view.lblOperationTime[2].Caption.get(), "2024-05-06 07:08:09");
    EXPECT_THAT(dates(), ElementsAre("2024-05-06 07:08:09", "2024-05-05 07:08:09"));
    EXPECT_EQ(logged("leaving").size(), 0U) << "the procedure ends there";
    EXPECT_THAT(host.callsTo("WriteLog"),
                Contains("WriteLog(68, AddStamps Operation Time 1000.5 at 2024-05-06 07:08:09)"));
    EXPECT_EQ(view.lsvEventLog.Count(), 2);
}

TEST_F(HartLogTest, AnyItemThatNamesTheOperationTimeEndsTheMessage)
{
    view.SetOnlineData(
        okResponse("eventLog", item("myeventLogTotalOperationTimeX", "min", "floatVal", "60") +
                                   items({{0, "a", "b", "1"}})));
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "60.00");
    EXPECT_EQ(view.lblOperationTime[1].Caption.get(), "min");
    EXPECT_EQ(view.lsvEventLog.Count(), 0);
}

TEST_F(HartLogTest, AnEmptyOperationTimeShowsItsUnitOnly)
{
    for (const char* content : {"", "<comm:floatVal/>"}) {
        host.clear();
        view.SetOnlineData(okResponse("eventLogOperationTime",
                                      "<comm:item name=\"eventLogTotalOperationTime\" unit=\"h\">" +
                                          std::string(content) + "</comm:item>"));
        EXPECT_EQ(view.lblOperationTime[1].Caption.get(), "h");
        EXPECT_EQ(view.lblOperationTime[2].Caption.get(), "");
        EXPECT_THAT(host.calls, ElementsAre("WriteLog(69, CtrEventLog SetOnlineData entering)"));
    }
}

TEST_F(HartLogTest, AnOperationTimeWithoutAUnitOrThatIsNoNumberIsReported)
{
    view.SetOnlineData(okResponse("eventLogOperationTime",
                                  "<comm:item name=\"eventLogTotalOperationTime\"><comm:floatVal>"
                                  "12</comm:floatVal></comm:item>"));
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setOnlineData: , 91, ")));
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "12.00");
    host.clear();
    view.SetOnlineData(okResponse("eventLogOperationTime",
                                  item("eventLogTotalOperationTime", "h", "floatVal", "soon")));
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setOnlineData: , 13, "),
                                           StartsWith("ReportError(CtrEventLog AddStamps, 13, ")));
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "12.00");
}

TEST_F(HartLogTest, AClockThatFailsLeavesTheDateEmptyAndNothingIsDated)
{
    receive({{0, "a", "b", "1"}});
    toolkit.beforeOperation = [](const char* operation) {
        if (std::string(operation) == "now") {
            throw failure(kInvalidCall);
        }
    };
    view.SetOnlineData(okResponse("eventLogOperationTime",
                                  item("eventLogTotalOperationTime", "h", "floatVal", "12")));
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "12.00");
    EXPECT_EQ(view.lblOperationTime[2].Caption.get(), "");
    EXPECT_THAT(dates(), ElementsAre(""));
}

// --- A new list, HART -------------------------------------------------------------------------

TEST_F(HartLogTest, ANewListTranslatesTheEventsAndNumbersTheRows)
{
    receive({{0, "open", "info", "12.3456789"}, {1, "close", "warning", "1"}});
    EXPECT_THAT(row(1), ElementsAre("t:info", "t:open", "12.3457", "", "0", "1"));
    EXPECT_THAT(row(2), ElementsAre("t:warning", "t:close", "1.0000", "", "1", "2"));
    EXPECT_EQ(view.lsvEventLog.Item(1).ToolTipText, "t:open 12.3457");
    EXPECT_EQ(view.lsvEventLog.FirstVisible(), 1);
    EXPECT_EQ(view.lsvEventLog.EnsuredVisible(), 1);
}

TEST_F(HartLogTest, TheLogTellsEveryStep)
{
    receive({{1, "open", "info", "1"}});
    const auto lines = host.callsTo("WriteLog");
    EXPECT_EQ(lines[0], "WriteLog(69, CtrEventLog SetOnlineData entering)");
    EXPECT_THAT(lines[1], StartsWith("WriteLog(70, <comm:dtm"));
    EXPECT_EQ(lines[2], "WriteLog(70, indexShift = 1)");
    EXPECT_EQ(lines[3], "WriteLog(70, Onlinedata iIndex = 0)");
    EXPECT_EQ(lines[4], "WriteLog(70, Onlinedata iIndex = 1)");
    EXPECT_EQ(lines[5],
              "WriteLog(70, Online Listing: indexShift 1 + index 1 + reset events0 = row 2)");
    EXPECT_EQ(lines[6], "WriteLog(70, Onlinedata iIndex = 2)");
    EXPECT_EQ(lines[34], "WriteLog(70, Onlinedata iIndex = 30)");
    EXPECT_EQ(lines[35], "WriteLog(70, Online iLast = 1)");
    EXPECT_EQ(lines[36], "WriteLog(69, CtrEventLog SetOnlineData leaving)");
    EXPECT_THAT(lines, SizeIs(37));
}

TEST_F(HartLogTest, EventsOfANewListComeInSeveralMessages)
{
    receive({{0, "a", "c", "3"}, {9, "b", "c", "2"}}, false);
    EXPECT_EQ(view.paging().miMessageCount, 1);
    EXPECT_EQ(view.paging().mlngMessagesRead, 1);
    EXPECT_FALSE(view.cmdNext.Enabled);
    EXPECT_FALSE(host.wasCalled("SetParameterState"));
    receive({{10, "d", "c", "1"}}, false);
    EXPECT_EQ(view.paging().miMessageCount, 2);
    receive({{30, "e", "c", "0.5"}}, true);
    EXPECT_EQ(view.paging().miMessageCount, 0);
    EXPECT_EQ(view.paging().mlngMessagesRead, 3);
    EXPECT_THAT(events(), ElementsAre("t:a", "t:b", "t:d", "t:e")) << "no gaps";
    EXPECT_THAT(indexes(), ElementsAre("0", "9", "10", "30"));
    EXPECT_THAT(numbers(), ElementsAre("1", "2", "3", "4"));
}

TEST_F(HartLogTest, ARowIsMadeVisibleAsItComes)
{
    receive({{0, "a", "c", "3"}, {9, "b", "c", "2"}}, false);
    EXPECT_EQ(view.lsvEventLog.EnsuredVisible(), 2);
    receive({{10, "d", "c", "1"}}, true);
    EXPECT_EQ(view.lsvEventLog.EnsuredVisible(), 1) << "a new list is shown from its top";
    receiveMore({{0, "e", "c", "1"}});
    EXPECT_EQ(view.lsvEventLog.EnsuredVisible(), 4);
}

TEST_F(HartLogTest, IndexesBehindTheLastAreLeftAlone)
{
    receive({{31, "a", "c", "3"}});
    EXPECT_EQ(view.lsvEventLog.Count(), 0);
}

TEST_F(HartLogTest, TheEndOfAReadIsToldToTheHost)
{
    receive({{0, "a", "c", "3"}});
    EXPECT_THAT(host.actions(),
                ElementsAre("SetParameterState(eventLog, sync)",
                            "SetParameterState(eventLog, original)",
                            "ExecuteCommunicationRequest(" +
                                view.paging().mstrOperationTimeRequest + ", reading, 2, 1)"));
    EXPECT_TRUE(view.cmdNext.Enabled);
    EXPECT_TRUE(view.paging().mblnIsNextAllowed);
    EXPECT_EQ(view.paging().mvarIndexBase, 30);
    EXPECT_EQ(view.ctrDateLabels.Caption(), "2024-05-06 07:08:09");
    EXPECT_EQ(view.externalResetText(), "t:" + kResetEvent);
}

TEST_F(HartLogTest, ANewListStartsOver)
{
    receive({{0, "a", "c", "3"}, {1, kResetEvent, "c", "2"}});
    receiveMore({{0, "b", "c", "1"}});
    ASSERT_EQ(view.lsvEventLog.Count(), 4);
    receive({{0, "new", "c", "4"}});
    EXPECT_THAT(events(), ElementsAre("t:new"));
    EXPECT_EQ(view.times().miFirstResetRow, 32767);
    EXPECT_FALSE(view.lblFootnote.Visible);
    EXPECT_EQ(view.paging().miReadsDone, 0);
    EXPECT_EQ(view.paging().mlngMessagesRead, 1);
    EXPECT_EQ(view.paging().mvarIndexBase, 30);
    EXPECT_THAT(indexes(), ElementsAre("0"));
}

TEST_F(HartLogTest, WhatIsMissingStaysEmpty)
{
    receive({{0, "a", "", ""}, {1, "", "c", ""}, {2, "", "", "3"}});
    EXPECT_THAT(row(1), ElementsAre("", "t:a", "", "", "0", "1"));
    EXPECT_THAT(row(2), ElementsAre("t:c", "", "", "", "1", "2"));
    EXPECT_THAT(row(3), ElementsAre("", "", "3.0000", "", "2", "3"));
    EXPECT_EQ(view.lsvEventLog.Item(3).ToolTipText, " 3.0000");
}

TEST_F(HartLogTest, AnItemWithAnEmptyTextIsNoEvent)
{
    view.SetOnlineData(
        message("<comm:item name=\"eventLogEvent00\"/><comm:item name=\"eventLogClass00\">"
                "<comm:stringVal/></comm:item>"));
    EXPECT_EQ(view.lsvEventLog.Count(), 0);
    EXPECT_THAT(translator.calls, Not(Contains("Translate()")));
}

TEST_F(HartLogTest, TheFirstOfTwoItemsWithOneIndexCounts)
{
    view.SetOnlineData(
        message(items({{0, "next", "c", "1"}}, true) + items({{0, "first", "c", "2"}}, false)));
    EXPECT_THAT(events(), ElementsAre("t:next"));
}

TEST_F(HartLogTest, TheTopIndexDoesNotMatterForRowsOfAHartDevice)
{
    view.SetTopEventIndex(5);
    receive({{5, "a", "c", "1"}, {7, "b", "c", "1"}});
    EXPECT_THAT(numbers(), ElementsAre("1", "2"));
    EXPECT_THAT(logged("Online Listing: "),
                ElementsAre(HasSubstr("indexShift -4 + index 5 + reset events0 = row 1"),
                            HasSubstr("indexShift -4 + index 7 + reset events0 = row 3")));
}

// --- Resets -----------------------------------------------------------------------------------

TEST_F(HartLogTest, AResetDrawsASeparatorAndMarksWhatLiesBehind)
{
    receive({{0, "a", "c", "3"}, {1, kResetEvent, "w", "2"}, {2, "b", "c", "1"}});
    EXPECT_THAT(events(), ElementsAre("t:a", "t:" + kResetEvent, kDashes, "t:b"));
    EXPECT_THAT(row(3), ElementsAre("", kDashes, "", "", "", "3"));
    EXPECT_THAT(indexes(), ElementsAre("0", "1", "", "2"));
    EXPECT_EQ(view.times().miFirstResetRow, 2);
    EXPECT_TRUE(view.lblFootnote.Visible);
    EXPECT_EQ(view.paging().miResetEvents, 0) << "put back at the end";
    EXPECT_THAT(logged("miResetEvents =+ 1"), ElementsAre("WriteLog(70, miResetEvents =+ 1)"));
    EXPECT_THAT(logged("Break"), ElementsAre("WriteLog(70, Online Listing Break 3)"));
    view.AddStamps("3", "2024-05-06 12:00:00");
    EXPECT_THAT(dates(), ElementsAre("2024-05-06 12:00:00", "2024-05-06 11:00:00", "",
                                     "2024-05-06 10:00:00 *"));
}

TEST_F(HartLogTest, AResetAtTheFirstPlace)
{
    receive({{0, kResetEvent, "w", "2"}, {1, "b", "c", "1"}});
    EXPECT_THAT(events(), ElementsAre("t:" + kResetEvent, kDashes, "t:b"));
    EXPECT_EQ(view.times().miFirstResetRow, 1);
}

TEST_F(HartLogTest, AResetAtTheLastPlace)
{
    receive({{0, "a", "c", "3"}, {30, kResetEvent, "w", "2"}});
    EXPECT_THAT(events(), ElementsAre("t:a", "t:" + kResetEvent, kDashes));
    EXPECT_EQ(view.times().miFirstResetRow, 31) << "index and shift, not the row on screen";
    EXPECT_TRUE(view.lblFootnote.Visible);
}

TEST_F(HartLogTest, TwoResetsInOnePageKeepTheFirstRow)
{
    receive({{0, kResetEvent, "w", "3"}, {1, "a", "c", "2"}, {2, kResetEvent, "w", "1"}});
    EXPECT_THAT(events(),
                ElementsAre("t:" + kResetEvent, kDashes, "t:a", "t:" + kResetEvent, kDashes));
    EXPECT_EQ(view.times().miFirstResetRow, 1);
    EXPECT_THAT(logged("Break"), ElementsAre(HasSubstr("Break 2)"), HasSubstr("Break 5)")));
}

TEST_F(HartLogTest, ResetsOfEarlierMessagesMoveTheFirstResetRowOfLaterOnes)
{
    receive({{0, "a", "c", "3"}}, false);
    receive({{1, kResetEvent, "w", "2"}}, false);
    EXPECT_EQ(view.paging().miResetEvents, 1);
    EXPECT_EQ(view.times().miFirstResetRow, 2);
    receive({{2, "b", "c", "1"}}, true);
    EXPECT_THAT(logged("+ index 2 "), ElementsAre(HasSubstr("+ reset events1 = row 4")));
    EXPECT_TRUE(view.lblFootnote.Visible) << "hidden by the message, shown at the end";
}

TEST_F(HartLogTest, AResetWithoutATextIsNoReset)
{
    translator.texts[kResetEvent] = "";
    receive({{0, kResetEvent, "w", "2"}});
    EXPECT_EQ(view.lsvEventLog.Count(), 1);
    EXPECT_EQ(view.times().miFirstResetRow, 32767);
}

} // namespace
} // namespace quill::test
