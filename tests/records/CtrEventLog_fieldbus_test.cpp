// Pages of events from a fieldbus device, and the end of the log.
#include "event_log_fixture.h"

#include "support/some_and_each.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using namespace platform;

TEST_F(FieldbusLogTest, AFieldbusDeviceHasNoSuchItem)
{
    view.SetOnlineData(
        okResponse("eventLog", item("eventLogTotalOperationTime", "h", "floatVal", "12") +
                                   items({{1, "a", "b", "1"}})));
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "");
    EXPECT_EQ(view.lsvEventLog.Count(), 1);
}

TEST_F(FieldbusLogTest, TheDateOfTheReadStaysWhenMoreEventsAreRead)
{
    receive({{1, "a", "c", "3"}});
    toolkit.clock = {2025, 1, 1, 0, 0, 0};
    receiveMore({{1, "b", "c", "2"}});
    EXPECT_EQ(view.ctrDateLabels.Caption(), "2024-05-06 07:08:09");
    receive({{1, "a", "c", "3"}});
    EXPECT_EQ(view.ctrDateLabels.Caption(), "2025-01-01 00:00:00");
}

TEST_F(FieldbusLogTest, TheSecondPartFillsTheRowsOfTheFirst)
{
    receive({{1, "a", "c", ""}, {2, "b", "d", ""}}, false);
    EXPECT_THAT(times(), ElementsAre("", ""));
    receive({{1, "", "", "3"}, {2, "", "", "2"}}, true);
    EXPECT_THAT(row(1), ElementsAre("t:c", "t:a", "3.0000", "", "1", "1"));
    EXPECT_THAT(row(2), ElementsAre("t:d", "t:b", "2.0000", "", "2", "2"));
    EXPECT_EQ(view.lsvEventLog.Item(2).ToolTipText, "t:b 2.0000");
    EXPECT_EQ(view.paging().mvarIndexBase, 25);
    EXPECT_FALSE(host.wasCalled("ExecuteCommunicationRequest"));
    EXPECT_THAT(logged("miResetEvents = 0"),
                SomeAndEach("WriteLog(70, miResetEvents = 0 in miMessagesInParts > 1)"));
}

TEST_F(FieldbusLogTest, APieceThatMeetsASeparatorMovesOnBehindIt)
{
    receive({{1, "a", "c", ""}, {2, kResetEvent, "d", ""}, {3, "b", "c", ""}, {4, "e", "c", ""}},
            false);
    EXPECT_THAT(events(), ElementsAre("t:a", "t:" + kResetEvent, kDashes, "t:b", "t:e"));
    EXPECT_EQ(view.paging().miResetEvents, 1);
    receive({{1, "", "", "5"}, {2, "", "", "4"}, {3, "", "", "3"}, {4, "", "", "2"}}, false);
    EXPECT_EQ(view.paging().miResetEvents, 1) << "counted anew";
    EXPECT_THAT(times(), ElementsAre("5.0000", "4.0000", "", "3.0000", "2.0000"));
    EXPECT_THAT(indexes(), ElementsAre("1", "2", "", "3", "4"));
    receive({}, true);
    EXPECT_FALSE(view.lblFootnote.Visible) << "a message without events met no separator";
}

TEST_F(FieldbusLogTest, TheFootnoteIsShownWhenTheSecondPartMetASeparator)
{
    receive({{1, kResetEvent, "d", ""}, {2, "b", "c", ""}}, false);
    receive({{1, "", "", "5"}, {2, "", "", "4"}}, true);
    EXPECT_TRUE(view.lblFootnote.Visible);
    EXPECT_EQ(view.paging().miResetEvents, 0);
    EXPECT_EQ(view.times().miFirstResetRow, 1);
}

TEST_F(FieldbusLogTest, APieceBehindASeparatorAtTheEndGetsARowOfItsOwn)
{
    receive({{1, "a", "c", ""}, {2, kResetEvent, "d", ""}}, false);
    receive({{3, "late", "c", "1"}}, false);
    EXPECT_THAT(events(), ElementsAre("t:a", "t:" + kResetEvent, kDashes, "t:late"));
    EXPECT_EQ(row(4)[5], "4 <> 3") << "meant for the separator's row";
    EXPECT_EQ(view.paging().miResetEvents, 0);
    receive({}, true);
    EXPECT_THAT(numbers(), ElementsAre("1", "2", "3", "4"));
}

TEST_F(FieldbusLogTest, AGapEndsWhereTheListEnds)
{
    receive({{1, "a", "c", ""}, {4, "d", "c", ""}, {5, "e", "c", ""}}, false);
    EXPECT_THAT(events(), ElementsAre("t:a", "t:d", "t:e"));
    EXPECT_THAT(numbers(), ElementsAre("1", "2 <> 4", "3 <> 5"));
    // Times of the same indexes now go where the numbers say.
    receive({{1, "", "", "1"}, {2, "", "", "2"}, {4, "", "", "4"}}, true);
    EXPECT_THAT(times(), ElementsAre("1.0000", "2.0000", "", "4.0000"));
    EXPECT_THAT(numbers(), ElementsAre("1", "2", "3", "4"));
}

TEST_F(FieldbusLogTest, IndexZeroHasNoRowThere)
{
    receive({{0, "a", "c", "1"}, {1, "b", "c", "2"}});
    EXPECT_THAT(events(), ElementsAre("t:b"));
    EXPECT_THAT(host.errors(),
                ElementsAre(StartsWith("ReportError(CtrEventLog AddEventLogEvent, 9, ")));
}

TEST_F(FieldbusLogTest, MoreEventsArePastedBehindInBothParts)
{
    std::vector<LogEvent> texts;
    std::vector<LogEvent> hours;
    for (int index = 1; index <= 25; ++index) {
        texts.push_back({index, "e" + std::to_string(index), "c", ""});
        hours.push_back({index, "", "", std::to_string(100 - index)});
    }
    receive(texts, false);
    receive(hours, true);
    ASSERT_EQ(view.lsvEventLog.Count(), 25);
    texts[2].event = kResetEvent;
    receiveMore(texts, false);
    EXPECT_EQ(view.lsvEventLog.Count(), 51);
    EXPECT_EQ(view.times().miFirstResetRow, 28);
    host.clear();
    view.SetOnlineData(message(items(hours, true), true));
    EXPECT_THAT(logged("(71, "), ElementsAre(HasSubstr("Count 51)"), HasSubstr("Message 25)"),
                                             HasSubstr("-1) 1)"), HasSubstr("Events 1)")));
    EXPECT_THAT(logged("indexShift = "), ElementsAre("WriteLog(70, indexShift = 25)"));
    EXPECT_EQ(row(26), (Row{"t:c", "t:e1", "99.0000", "", "26", "26"}));
    EXPECT_EQ(row(28), (Row{"t:c", "t:" + kResetEvent, "97.0000", "", "28", "28"}));
    EXPECT_EQ(row(29)[1], kDashes);
    EXPECT_EQ(row(51), (Row{"t:c", "t:e25", "75.0000", "", "50", "51"}));
    EXPECT_EQ(view.paging().mvarIndexBase, 50);
    EXPECT_TRUE(view.lblFootnote.Visible);
}

TEST_F(FieldbusLogTest, AReadOfMoreEventsWithoutEventsAddsNoRow)
{
    receive({{1, "a", "c", "2"}, {2, "vx4400eventNone", "vx4400eventClassNone", "1"}});
    view.cmdNext.Enabled = true;
    receiveMore({});
    EXPECT_EQ(view.lsvEventLog.Count(), 2);
    EXPECT_FALSE(view.cmdNext.Enabled);
    EXPECT_FALSE(view.paging().mblnIsNextAllowed);
}

TEST_F(FieldbusLogTest, AFailedSecondPartLeavesTheFirst)
{
    receive({{1, "a", "c", ""}}, false);
    fail(true);
    EXPECT_EQ(view.paging().miMessageCount, 0);
    EXPECT_TRUE(view.paging().mblnReadOk);
    EXPECT_THAT(events(), ElementsAre("t:a"));
    EXPECT_FALSE(view.cmdNext.Enabled);
    receive({{1, "b", "c", ""}}, false);
    receive({{1, "", "", "1"}}, true);
    EXPECT_THAT(events(), ElementsAre("t:b"));
    EXPECT_TRUE(view.cmdNext.Enabled);
}

// --- The end of the log -----------------------------------------------------------------------

class EndOfLogTest : public FieldbusLogTest {
protected:
    [[nodiscard]] bool isOver() const
    {
        EXPECT_EQ(view.cmdNext.Enabled.get(), view.paging().mblnIsNextAllowed);
        return !view.paging().mblnIsNextAllowed;
    }
};

TEST_F(EndOfLogTest, GoesOnWhileEventsCome)
{
    receive({{1, "a", "c", "2"}});
    EXPECT_FALSE(isOver());
}

TEST_F(EndOfLogTest, AnEmptyEventAtTheLastIndexHandled)
{
    receive({{1, "", "", ""}, {2, "x", "", ""}, {3, "b", "c", ""}}, false);
    receive({{1, "vx4400eventNone", "vx4400eventClassNone", ""}}, true);
    ASSERT_EQ(events().back(), "t:b") << "not the last row";
    EXPECT_TRUE(isOver());
}

TEST_F(EndOfLogTest, ATimeOfNothingAtTheLastIndexHandled)
{
    receive({{1, "a", "c", "2"}, {2, "b", "c", "0."}});
    EXPECT_EQ(times().back(), "0.0000");
    EXPECT_TRUE(isOver());
}

TEST_F(EndOfLogTest, TimesAreComparedAsTheyStand)
{
    receive({{1, "a", "c", "2"}, {2, "b", "c", "0.0"}});
    EXPECT_FALSE(isOver());
    receive({{1, "a", "c", "2"}, {2, "b", "c", "0"}});
    EXPECT_FALSE(isOver());
}

TEST_F(EndOfLogTest, AnEmptyEventInTheLastRow)
{
    receive({{1, "a", "c", ""}, {2, "vx4400eventNone", "vx4400eventClassNone", ""}}, false);
    receive({{1, "", "", "5"}}, true);
    EXPECT_TRUE(isOver());
}

TEST_F(EndOfLogTest, ATimeOfNothingInTheLastRow)
{
    receive({{1, "a", "c", "1"}, {2, "b", "c", "1"}}, false);
    view.lsvEventLog.edit(2, [](ListItem& shown) { shown.SubItems[eventLog::kTime] = "0."; });
    receive({{1, "a", "c", "1"}}, true);
    EXPECT_TRUE(isOver());
}

TEST_F(EndOfLogTest, ClassAndEventMustBothBeEmpty)
{
    receive({{1, "vx4400eventNone", "c", "1"}});
    EXPECT_FALSE(isOver());
    receive({{1, "a", "vx4400eventClassNone", "1"}});
    EXPECT_FALSE(isOver());
}

TEST_F(EndOfLogTest, OnlyTheLastIndexWithContentCounts)
{
    receive({{1, "vx4400eventNone", "vx4400eventClassNone", "1"}, {2, "a", "c", "1"}});
    EXPECT_FALSE(isOver());
}

TEST_F(EndOfLogTest, AnEmptyListIsNotTested)
{
    receive({});
    EXPECT_FALSE(isOver());
    EXPECT_THAT(logged("iLast"), ElementsAre("WriteLog(70, Online iLast = 0)"));
}

TEST_F(EndOfLogTest, APartInTheMiddleIsTestedToo)
{
    receive({{1, "a", "c", "1"}});
    ASSERT_FALSE(isOver());
    receiveMore({{1, "vx4400eventNone", "vx4400eventClassNone", ""}}, false);
    EXPECT_TRUE(isOver());
}

} // namespace
} // namespace quill::test
