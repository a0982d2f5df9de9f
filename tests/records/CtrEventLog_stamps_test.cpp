// Dates of the events.
#include "event_log_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using namespace platform;

class StampsTest : public EventLogTest {
protected:
    void SetUp() override
    {
        EventLogTest::SetUp();
        view.UseHART();
    }
    /// The hours of the dates on screen, given that the device had counted 12 at noon.
    [[nodiscard]] std::vector<std::string> hours() const
    {
        std::vector<std::string> texts;
        for (const auto& date : dates()) {
            texts.push_back(date.empty() ? "" : date.substr(11, 2) + date.substr(19));
        }
        return texts;
    }
    void stamp() { view.AddStamps("12", "2024-05-06 12:00:00"); }
};

TEST_F(StampsTest, EveryEventIsDatedAndTheLogTellsHow)
{
    receive({{0, "a", "c", "12"}, {1, "b", "c", "1.5"}});
    host.clear();
    stamp();
    EXPECT_THAT(dates(), ElementsAre("2024-05-06 12:00:00", "2024-05-06 01:30:00"));
    EXPECT_THAT(host.calls,
                ElementsAre("WriteLog(68, AddStamps Operation Time 12 at 2024-05-06 12:00:00)",
                            "WriteLog(68, i = 1)", "WriteLog(68, strTime from uitem = 12.0000)",
                            "WriteLog(68, stamp = 2024-05-06 12:00:00)", "WriteLog(68, i = 2)",
                            "WriteLog(68, strTime from uitem = 1.5000)",
                            "WriteLog(68, stamp = 2024-05-06 01:30:00)"));
    EXPECT_TRUE(view.times().mblnHasTimeReference);
    EXPECT_EQ(view.times().mdblOperationTime, 12);
    EXPECT_EQ(view.times().mdblUpdateDate, 45418.5);
}

TEST_F(StampsTest, TextsThatSayNothingChangeNothing)
{
    receive({{0, "a", "c", "12"}});
    for (const auto& [time, date] :
         {std::pair{"", "2024-05-06"}, std::pair{"12", ""}, std::pair{"00", "2024-05-06"},
          std::pair{"0012", "2024-05-06"}, std::pair{"12", "00.00.0000"}}) {
        host.clear();
        view.AddStamps(time, date);
        EXPECT_FALSE(view.times().mblnHasTimeReference);
        EXPECT_THAT(host.calls, SizeIs(1));
    }
    EXPECT_THAT(dates(), ElementsAre(""));
}

TEST_F(StampsTest, TextsThatAreNoNumberOrNoDateAreReportedAndKeepTheOldReference)
{
    receive({{0, "a", "c", "12"}});
    stamp();
    view.AddStamps("soon", "2024-05-06");
    view.AddStamps("12", "tomorrow");
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog AddStamps, 13, "),
                                           StartsWith("ReportError(CtrEventLog AddStamps, 13, ")));
    EXPECT_EQ(view.times().mdblOperationTime, 12);
    EXPECT_EQ(view.times().mdblUpdateDate, 45418.5);
}

TEST_F(StampsTest, EventsListedLaterAreDatedAtOnce)
{
    receive({{0, "a", "c", "12"}});
    stamp();
    receiveMore({{0, "b", "c", "6"}});
    EXPECT_THAT(hours(), ElementsAre("12", "06"));
}

TEST_F(StampsTest, TheDatafileHasTheTimeMorePreciselyThanTheList)
{
    view.SetOfflineData(log("XH", parameters({{0, "", "", ""}, {1, "", "", ""}})));
    receive({{0, "a", "c", "11.50001"}, {1, "b", "c", "3"}});
    view.lsvEventLog.edit(2, [](ListItem& item) { item.SubItems[eventLog::kTime] = "9"; });
    view.AddStamps("11.50001", "2024-05-06 12:00:00");
    EXPECT_THAT(dates(), ElementsAre("2024-05-06 12:00:00", "2024-05-06 03:30:00"));
}

TEST_F(StampsTest, ObsoleteEventsInTheDatafileHaveNoRowAndArePassed)
{
    view.SetOfflineData(log("XH", parameters({{0, "eventObsolete", "c", "1"},
                                              {1, "a", "c", "12"},
                                              {2, "eventObsolete", "c", "2"},
                                              {3, "eventObsolete", "c", "3"},
                                              {4, "b", "c", "6"},
                                              {5, "d", "c", "5"}})));
    ASSERT_EQ(view.lsvEventLog.Count(), 3);
    stamp();
    EXPECT_THAT(hours(), ElementsAre("12", "06", "05"));
}

TEST_F(StampsTest, SeparatorsHaveNoEventInTheDatafile)
{
    view.SetOfflineData(log("XH", parameters({{0, kResetEvent, "c", "12"},
                                              {1, "a", "c", "11"},
                                              {2, kResetEvent, "c", "10"},
                                              {3, "b", "c", "9"}})));
    stamp();
    EXPECT_THAT(hours(), ElementsAre("12", "", "11 *", "10 *", "", "09 *"));
    EXPECT_EQ(view.times().miFirstResetRow, 1) << "the event itself is no estimate";
}

TEST_F(StampsTest, TheTopIndexShiftsTheSearchInTheDatafile)
{
    view.SetTopEventIndex(2);
    view.SetOfflineData(log("XH", parameters({{2, "a", "c", "12"}, {3, "b", "c", "6"}})));
    view.lsvEventLog.edit(1, [](ListItem& item) { item.SubItems[eventLog::kTime] = "1"; });
    stamp();
    EXPECT_THAT(hours(), ElementsAre("12", "06"));
}

TEST_F(StampsTest, AParameterWithoutATimeIsPassed)
{
    view.SetOfflineData(log("XH", parameter("eventLogEvent00", "a") +
                                      parameters({{1, "b", "c", "6"}, {2, "d", "c", "5"}})));
    stamp();
    EXPECT_THAT(hours(), ElementsAre("06", "06", "05"));
}

TEST_F(StampsTest, ATimeWithoutAnEventEndsTheStampsWithAReport)
{
    view.SetOfflineData(log("XH", parameters({{0, "a", "c", "12"}}) +
                                      parameter("eventLogTime01", "6") +
                                      parameters({{2, "b", "c", "5"}})));
    host.clear();
    stamp();
    EXPECT_THAT(hours(), ElementsAre("12", "", ""));
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog AddStamps, 91, ")));
}

TEST_F(StampsTest, ATimeThatIsNoNumberCostsItsDateOnly)
{
    const auto datafile = log("XH", parameters({{0, "a", "c", "12"}, {1, "b", "c", "6"}}));
    view.SetOfflineData(datafile);
    stamp();
    documents::writeAttribute(documents::findParameter(datafile, "eventLogTime00"), "value",
                              "soon");
    host.clear();
    stamp();
    EXPECT_THAT(hours(), ElementsAre("", "06"));
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog Stamp, 13, ")));
}

TEST_F(StampsTest, ADateOutsideTheCalendarIsReported)
{
    receive({{0, "a", "c", "1000000000"}, {1, "b", "c", "6"}});
    stamp();
    EXPECT_THAT(hours(), ElementsAre("", "06"));
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog Stamp, 6, ")));
}

TEST_F(StampsTest, AResetThatNobodyMarkedIsFoundByItsText)
{
    receive({{0, "a", "c", "12"}, {1, "b", "c", "6"}});
    view.lsvEventLog.edit(
        1, [](ListItem& item) { item.SubItems[eventLog::kEvent] = "t:" + kResetEvent; });
    ASSERT_FALSE(view.lblFootnote.Visible);
    stamp();
    EXPECT_TRUE(view.lblFootnote.Visible);
    EXPECT_EQ(view.times().miFirstResetRow, 1);
    EXPECT_THAT(hours(), ElementsAre("12", "06 *"));
}

TEST_F(StampsTest, WhileTheTextOfAResetIsNotKnownNoRowIsOne)
{
    receive({{0, "", "c", "12"}, {1, "", "c", "6"}}, false);
    ASSERT_EQ(view.externalResetText(), "");
    stamp();
    EXPECT_FALSE(view.lblFootnote.Visible);
    EXPECT_THAT(hours(), ElementsAre("12", "06"));
}

TEST_F(StampsTest, AHostThatFailsOnTheLogGetsNoStamps)
{
    receive({{0, "a", "c", "12"}});
    host.failOn("WriteLog");
    stamp();
    EXPECT_THAT(dates(), ElementsAre(""));
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog AddStamps, 5, ")));
}

// --- Values from other views, fieldbus --------------------------------------------------------

class ReceivedValueTest : public EventLogTest {
protected:
    void SetUp() override
    {
        EventLogTest::SetUp();
        view.UseFieldbus();
        receive({{1, "a", "c", "12"}});
        host.clear();
    }
};

TEST_F(ReceivedValueTest, TimeAndDateTogetherDateTheList)
{
    host.ViewReceiveValue.raise("ctr_totalOperationTime", "12.345");
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "12.345") << "as it came";
    EXPECT_THAT(dates(), ElementsAre(""));
    EXPECT_THAT(host.calls, IsEmpty());
    host.ViewReceiveValue.raise("date_counters", "2024-05-06 12:20:42");
    EXPECT_EQ(view.lblOperationTime[2].Caption.get(), "2024-05-06 12:20:42");
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "12.35") << "rewritten";
    EXPECT_THAT(dates(), ElementsAre("2024-05-06 12:00:00"));
    EXPECT_EQ(view.times().mdblOperationTime, 12.345) << "before it was rewritten";
}

TEST_F(ReceivedValueTest, EitherOfThemDatesTheListAnew)
{
    host.ViewReceiveValue.raise("ctr_totalOperationTime", "12");
    host.ViewReceiveValue.raise("date_counters", "2024-05-06 12:00:00");
    host.ViewReceiveValue.raise("ctr_totalOperationTime", "13");
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "13");
    EXPECT_THAT(dates(), ElementsAre("2024-05-06 11:00:00"));
}

TEST_F(ReceivedValueTest, TheCaptionIsRewrittenAlsoWhenNothingIsDated)
{
    host.ViewReceiveValue.raise("ctr_totalOperationTime", "0012.345");
    host.ViewReceiveValue.raise("date_counters", "2024-05-06 12:00:00");
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "12.35");
    EXPECT_FALSE(view.times().mblnHasTimeReference);
}

TEST_F(ReceivedValueTest, ADateThatArrivesFirstIsNoFailure)
{
    host.ViewReceiveValue.raise("date_counters", "2024-05-06 12:00:00");
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "");
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(ReceivedValueTest, ATimeThatIsNoNumberStaysAsItIs)
{
    host.ViewReceiveValue.raise("ctr_totalOperationTime", "soon");
    host.ViewReceiveValue.raise("date_counters", "2024-05-06 12:00:00");
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "soon");
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog AddStamps, 13, ")));
}

TEST_F(ReceivedValueTest, OtherNamesAreLeftAlone)
{
    host.ViewReceiveValue.raise("totalOperationTime", "12");
    host.ViewReceiveValue.raise("date_eventLog", "2024-05-06 12:00:00");
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "");
    EXPECT_EQ(view.lblOperationTime[2].Caption.get(), "");
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(ReceivedValueTest, AHartDeviceIsAskedInstead)
{
    view.UseHART();
    host.ViewReceiveValue.raise("ctr_totalOperationTime", "12");
    host.ViewReceiveValue.raise("date_counters", "2024-05-06 12:00:00");
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "");
    EXPECT_EQ(view.lblOperationTime[2].Caption.get(), "");
}

} // namespace
} // namespace quill::test
