// Reads of a HART device as a whole: further pages, obsolete events, parts that fail, and what the
// datafile keeps.
#include "event_log_fixture.h"

namespace quill::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using namespace platform;

// --- More events, HART ------------------------------------------------------------------------

TEST_F(HartLogTest, APageOfMoreEventsIsPastedBehind)
{
    receive({{0, "a", "c", "3"}, {1, "b", "c", "2"}});
    host.clear();
    receiveMore({{0, "d", "c", "1"}, {3, "e", "c", "0.5"}});
    EXPECT_THAT(events(), ElementsAre("t:a", "t:b", "t:d", "t:e"));
    EXPECT_THAT(indexes(), ElementsAre("0", "1", "30", "33"));
    EXPECT_EQ(view.paging().mvarIndexBase, 60);
    EXPECT_FALSE(view.paging().mblnIsMoreEventsClicked);
    EXPECT_THAT(logged("(71, "), ElementsAre("WriteLog(71, lsvEventLog(0).ListItems.Count 2)",
                                             "WriteLog(71,  - miEventsInMessage 10)",
                                             "WriteLog(71, * (miMessageCount -1) 0)",
                                             "WriteLog(71,  - miResetEvents 0)"));
    EXPECT_THAT(logged("indexShift = "), ElementsAre("WriteLog(70, indexShift = 2)"));
    EXPECT_THAT(host.callsTo("ExecuteCommunicationRequest"), SizeIs(1))
        << "the operation time is not asked for again";
    EXPECT_THAT(host.callsTo("SetParameterState"),
                ElementsAre("SetParameterState(eventLog, original)"));
}

TEST_F(HartLogTest, MessagesOfOneReadOfMoreEventsCountTogether)
{
    receive({{0, "a", "c", "9"}});
    receiveMore({{0, "b", "c", "8"}}, false);
    host.clear();
    view.SetOnlineData(
        message(items({{10, kResetEvent, "c", "7"}}, true), false, "eventLogContinued"));
    EXPECT_THAT(logged("indexShift = "), ElementsAre("WriteLog(70, indexShift = -8)"));
    EXPECT_EQ(view.times().miFirstResetRow, 2);
    host.clear();
    view.SetOnlineData(message(items({{20, "d", "c", "6"}}, true), true, "eventLogContinued"));
    EXPECT_THAT(logged("(71, "), ElementsAre(HasSubstr("Count 4)"), HasSubstr("Message 10)"),
                                             HasSubstr("-1) 2)"), HasSubstr("Events 1)")));
    EXPECT_THAT(logged("indexShift = "), ElementsAre("WriteLog(70, indexShift = -17)"));
    EXPECT_THAT(indexes(), ElementsAre("0", "30", "40", "", "50"));
    EXPECT_EQ(view.paging().mlngMessagesRead, 4);
}

TEST_F(HartLogTest, AfterMoreThan32EventsTheNextPageGoesOnBehindThem)
{
    std::vector<LogEvent> page;
    for (int index = 0; index <= 30; ++index) {
        page.push_back({index, "e" + std::to_string(index), "c", "1"});
    }
    receive(page);
    receiveMore(page);
    receiveMore(page);
    EXPECT_EQ(view.lsvEventLog.Count(), 93);
    EXPECT_EQ(row(93), (Row{"t:c", "t:e30", "1.0000", "", "90", "93"}));
    view.AddStamps("1", "2024-05-06 12:00:00");
    EXPECT_THAT(dates(), Each("2024-05-06 12:00:00"));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(HartLogTest, TheDateOfTheReadFollowsTheNameOfTheMessage)
{
    receive({{0, "a", "c", "3"}});
    toolkit.clock = {2025, 1, 1, 0, 0, 0};
    receiveMore({{0, "b", "c", "2"}});
    EXPECT_EQ(view.ctrDateLabels.Caption(), "2024-05-06 07:08:09");
    view.ctrDateLabels.Tag = "date_eventLogContinued";
    receiveMore({{0, "b", "c", "2"}});
    EXPECT_EQ(view.ctrDateLabels.Caption(), "2025-01-01 00:00:00");
}

// --- Obsolete events --------------------------------------------------------------------------

TEST_F(HartLogTest, ObsoleteEventsGoWhenTheReadIsOver)
{
    receive({{0, "eventObsolete", "c", "9"}, {1, "a", "c", "8"}, {2, "eventObsolete", "c", "7"}},
            false);
    EXPECT_EQ(view.lsvEventLog.Count(), 3);
    receive({{10, "b", "c", "6"}, {11, "eventObsolete", "c", "5"}}, true);
    EXPECT_THAT(events(), ElementsAre("t:a", "t:b"));
    EXPECT_THAT(numbers(), ElementsAre("1", "2"));
    EXPECT_THAT(indexes(), ElementsAre("1", "10"));
}

TEST_F(HartLogTest, ALogOfObsoleteEventsOnlyEndsEmpty)
{
    receive({{0, "eventObsolete", "c", "9"}, {1, "eventObsolete", "c", "8"}});
    EXPECT_EQ(view.lsvEventLog.Count(), 0);
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(HartLogTest, RowsThatSomebodyChangedAreLookedAtAgain)
{
    receive({{0, "a", "c", "9"}, {1, "b", "c", "8"}, {2, "d", "c", "7"}});
    view.lsvEventLog.edit(
        1, [](ListItem& shown) { shown.SubItems[eventLog::kEvent] = "t:eventObsolete"; });
    view.lsvEventLog.edit(3, [](ListItem& shown) { shown.SubItems[eventLog::kRow] = "x"; });
    receiveMore({{0, "e", "c", "6"}});
    EXPECT_THAT(events(), ElementsAre("t:b", "t:d", "t:e"));
    EXPECT_THAT(numbers(), ElementsAre("1", "2", "3"));
    view.lsvEventLog.Remove(1);
    receiveMore({{0, "f", "c", "5"}});
    EXPECT_THAT(numbers(), ElementsAre("1", "2", "3"));
    auto rows                          = view.lsvEventLog.ListItems();
    rows[0].SubItems[eventLog::kEvent] = "t:eventObsolete";
    view.lsvEventLog.setItems(rows);
    receiveMore({{0, "g", "c", "4"}});
    EXPECT_THAT(events(), ElementsAre("t:e", "t:f", "t:g"));
    EXPECT_THAT(numbers(), ElementsAre("1", "2", "3"));
}

TEST_F(HartLogTest, AnotherLanguageIsLookedForInAllRows)
{
    receive({{0, "a", "c", "9"}, {1, "b", "c", "8"}});
    translator.texts["eventObsolete"] = "t:a";
    receiveMore({{0, "d", "c", "7"}});
    EXPECT_THAT(events(), ElementsAre("t:b", "t:d"));
}

TEST_F(HartLogTest, AReadChangesNoRowOfEarlierReads)
{
    receive({{0, "a", "c", "9"}, {1, kResetEvent, "c", "8"}});
    int        first = 100;
    const auto watch = view.lsvEventLog.Changed.subscribe([&](const WidgetChange& change) {
        if (change.what != WidgetChange::What::property) {
            first = std::min(first, change.first);
        }
    });
    receiveMore({{0, "d", "c", "7"}, {1, "eventObsolete", "c", "6"}});
    EXPECT_EQ(first, 3);
}

// --- A part that failed -----------------------------------------------------------------------

TEST_F(HartLogTest, BehindAFailedPartMessagesAreCountedButNotListed)
{
    receive({{0, "a", "c", "9"}}, false);
    fail(false);
    host.clear();
    receive({{10, "b", "c", "8"}}, false);
    EXPECT_EQ(view.paging().miMessageCount, 2);
    EXPECT_EQ(view.paging().mlngMessagesRead, 2);
    EXPECT_THAT(events(), ElementsAre("t:a"));
    EXPECT_THAT(host.actions(), IsEmpty());
    EXPECT_THAT(logged("indexShift"), IsEmpty());
    receive({{20, "d", "c", "7"}}, true);
    EXPECT_THAT(events(), ElementsAre("t:a"));
    EXPECT_THAT(host.actions(), ElementsAre("SetParameterState(eventLog, original)"));
    EXPECT_EQ(view.syncState(), "syncError");
    EXPECT_FALSE(view.cmdNext.Enabled);
    EXPECT_FALSE(view.paging().mblnIsNextAllowed);
    EXPECT_EQ(view.paging().mvarIndexBase, 0);
    EXPECT_EQ(view.ctrDateLabels.Caption(), "");
    EXPECT_TRUE(view.paging().mblnReadOk);
    EXPECT_EQ(view.paging().miMessageCount, 0);
    host.clear();
    receive({{0, "a", "c", "9"}}, true);
    EXPECT_THAT(host.callsTo("SetParameterState"),
                ElementsAre("SetParameterState(eventLog, reSync)",
                            "SetParameterState(eventLog, original)"));
}

TEST_F(HartLogTest, AfterAFailedReadThereIsStillTheOldEndToTest)
{
    receive({{0, "vx4400eventNone", "vx4400eventClassNone", "1"}}, false);
    view.cmdNext.Enabled = true;
    fail(false);
    receive({{10, "a", "c", "9"}}, true);
    EXPECT_FALSE(view.cmdNext.Enabled);
    EXPECT_THAT(logged("leaving"), SizeIs(2));
}

// --- The datafile -----------------------------------------------------------------------------

TEST_F(HartLogTest, ANewListGoesIntoTheDatafile)
{
    const auto datafile = log("XH", parameters({{0, "old", "old", "1"}, {1, "old", "", ""}}));
    view.SetOfflineData(datafile);
    receive({{0, "a", "c", "12.5"}, {1, "b", "", ""}, {2, "d", "c", "1"}});
    EXPECT_EQ(value(datafile, "eventLogEvent00"), "a");
    EXPECT_EQ(value(datafile, "eventLogClass00"), "c");
    EXPECT_EQ(value(datafile, "eventLogTime00"), "12.5");
    EXPECT_EQ(value(datafile, "eventLogEvent01"), "b");
    EXPECT_EQ(value(datafile, "eventLogClass01"), "") << "no item, no change";
    receiveMore({{0, "more", "c", "0.5"}});
    EXPECT_EQ(value(datafile, "eventLogEvent00"), "a") << "further pages are not kept";
}

TEST_F(HartLogTest, AnEmptyItemEmptiesTheDatafilesValue)
{
    const auto datafile = log("XH", parameters({{0, "old", "old", "1"}}));
    view.SetOfflineData(datafile);
    view.SetOnlineData(message("<comm:item name=\"eventLogEvent00\"/>"));
    EXPECT_EQ(value(datafile, "eventLogEvent00"), "");
    EXPECT_EQ(value(datafile, "eventLogClass00"), "old");
}

} // namespace
} // namespace quill::test
