// The log that the datafile keeps.
#include "event_log_fixture.h"

#include "support/some_and_each.h"

namespace quill::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using namespace platform;

class StoredLogTest : public EventLogTest {};

const char* const kGroups =
    R"(<data:requestGroup name="eventLog" lastUpdate="05.04.2024 12:13:14"/>)"
    R"(<data:requestGroup name="counters" lastUpdate="06.05.2024 12:00:00">)"
    R"(<data:includedParam name="eventLogTotalOperationTime"/>)"
    R"(<data:includedParam name="totalOperationTime"/></data:requestGroup>)";

TEST_F(StoredLogTest, TheStoredLogComesUp)
{
    view.SetOfflineData(log("Valve H", parameters({{0, "a", "info", "3.25"},
                                                   {1, "b", "alarm", "2"},
                                                   {2, "", "", ""},
                                                   {3, "d", "", ""}})));
    EXPECT_THAT(row(1), ElementsAre("t:info", "t:a", "3.2500", "", "0", "1"));
    EXPECT_THAT(row(2), ElementsAre("t:alarm", "t:b", "2.0000", "", "1", "2"));
    EXPECT_THAT(row(3), ElementsAre("", "t:d", "", "", "3", "3")) << "an empty event has no row";
    EXPECT_EQ(view.ctrDateLabels.Caption(), "2024-04-05 12:13:14");
    EXPECT_EQ(view.lsvEventLog.EnsuredVisible(), 1);
    EXPECT_EQ(view.externalResetText(), "t:" + kResetEvent);
    EXPECT_FALSE(host.wasCalled("SetParameterState")) << "no import";
    EXPECT_FALSE(view.cmdNext.Enabled);
    EXPECT_THAT(host.errors(), IsEmpty());
    EXPECT_EQ(view.eventNode(1, 1).selectSingleNode("./@name").get_text(), "eventLogClass01");
    EXPECT_FALSE(view.eventNode(4, 0));
}

TEST_F(StoredLogTest, TheDeviceTypeTellsTheFamily)
{
    view.SetOfflineData(log("Valve H", ""));
    EXPECT_TRUE(view.paging().mblnIsHART);
    EXPECT_THAT(view.paging().mstrOperationTimeRequest, StartsWith("<?xml"));
    view.SetOfflineData(log("Valve h", ""));
    EXPECT_FALSE(view.paging().mblnIsHART);
    EXPECT_EQ(view.paging().miTopEventIndex, 1);
    view.UseHART();
    view.SetOfflineData(log("", ""));
    EXPECT_TRUE(view.paging().mblnIsHART) << "no device, no change";
}

TEST_F(StoredLogTest, ADeviceWithoutANameIsAFieldbusDevice)
{
    view.UseHART();
    const auto datafile = log("X", "");
    datafile.selectSingleNode("//typeInfo:internalInfo").get_attributes().removeNamedItem("name");
    view.SetOfflineData(datafile);
    EXPECT_FALSE(view.paging().mblnIsHART);
    EXPECT_THAT(host.errors(), Contains(StartsWith("ReportError(CtrEventLog "
                                                   "IQornDataUser_setOfflineData: , 91, ")));
}

TEST_F(StoredLogTest, AFieldbusLogBeginsWithIndexOne)
{
    view.SetOfflineData(
        log("Valve F", parameters({{1, "a", "c", "3"}, {25, "b", "c", "2"}, {26, "x", "c", "1"}})));
    EXPECT_THAT(events(), ElementsAre("t:a", "t:b")) << "26 is behind the last index";
    EXPECT_THAT(indexes(), ElementsAre("1", "25"));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(StoredLogTest, IndexZeroOfAFieldbusLogHasNoRow)
{
    view.SetOfflineData(log("Valve F", parameters({{0, "a", "c", "3"}, {1, "b", "c", "2"}})));
    EXPECT_THAT(events(), ElementsAre("t:b"));
    EXPECT_THAT(host.errors(),
                ElementsAre(StartsWith("ReportError(CtrEventLog AddEventLogEvent, 9, ")));
}

TEST_F(StoredLogTest, TheTopIndexShiftsTheRows)
{
    view.SetTopEventIndex(3);
    view.SetOfflineData(log("Valve H", parameters({{3, "a", "c", "3"}, {4, "b", "c", "2"}})));
    EXPECT_THAT(numbers(), ElementsAre("1", "2"));
    EXPECT_THAT(host.errors(), IsEmpty());
    view.SetOfflineData(log("Valve H", parameters({{2, "x", "c", "3"}})));
    EXPECT_THAT(host.errors(),
                ElementsAre(StartsWith("ReportError(CtrEventLog AddEventLogEvent, 9, ")));
}

TEST_F(StoredLogTest, AResetDrawsASeparatorAndItsRowIsTheFirstReset)
{
    view.SetOfflineData(log("Valve H",
                            parameter("eventLogTotalOperationTime", "10", "h") +
                                parameters({{0, "a", "c", "9"},
                                            {1, kResetEvent, "c", "8"},
                                            {2, "b", "c", "7"},
                                            {3, kResetEvent, "c", "6"},
                                            {4, "d", "c", "5"}}),
                            kGroups));
    EXPECT_THAT(events(), ElementsAre("t:a", "t:" + kResetEvent, kDashes, "t:b", "t:" + kResetEvent,
                                      kDashes, "t:d"));
    EXPECT_EQ(view.times().miFirstResetRow, 3);
    EXPECT_TRUE(view.lblFootnote.Visible);
    EXPECT_EQ(view.paging().miResetEvents, 2);
    EXPECT_THAT(dates(), ElementsAre("2024-05-06 11:00:00", "2024-05-06 10:00:00", "",
                                     "2024-05-06 09:00:00 *", "2024-05-06 08:00:00 *", "",
                                     "2024-05-06 07:00:00 *"));
    EXPECT_THAT(numbers(), ElementsAre("1", "2", "3", "4", "5", "6", "7"));
}

TEST_F(StoredLogTest, AnotherDatafileForgetsTheFirstReset)
{
    view.SetOfflineData(log("Valve H", parameters({{0, kResetEvent, "c", "8"}})));
    ASSERT_EQ(view.times().miFirstResetRow, 2);
    view.SetOfflineData(log("Valve H", parameters({{0, "a", "c", "8"}})));
    EXPECT_EQ(view.times().miFirstResetRow, 32767);
}

TEST_F(StoredLogTest, ANewListForgetsTheStoredResets)
{
    view.SetOfflineData(log("Valve F", parameters({{1, kResetEvent, "c", "8"}})));
    EXPECT_EQ(view.paging().miResetEvents, 1);
    receive({{1, "a", "c", "9"}});
    EXPECT_THAT(events(), ElementsAre("t:a"));
    EXPECT_FALSE(view.lblFootnote.Visible);
}

TEST_F(StoredLogTest, ObsoleteEventsAreKeptInTheDatafileAndNotShown)
{
    const auto datafile =
        log("Valve H",
            parameters({{0, "a", "c", "9"}, {1, "eventObsolete", "c", "8"}, {2, "b", "c", "7"}}));
    view.SetOfflineData(datafile);
    EXPECT_THAT(events(), ElementsAre("t:a", "t:b"));
    EXPECT_THAT(numbers(), ElementsAre("1", "2"));
    EXPECT_EQ(value(datafile, "eventLogEvent01"), "eventObsolete");
}

TEST_F(StoredLogTest, ALogOfObsoleteEventsOnlyIsNoFailure)
{
    view.SetOfflineData(log("Valve H", parameters({{0, "eventObsolete", "c", "9"}})));
    EXPECT_EQ(view.lsvEventLog.Count(), 0);
    EXPECT_THAT(host.errors(), IsEmpty());
    EXPECT_EQ(view.externalResetText(), "t:" + kResetEvent);
}

TEST_F(StoredLogTest, ADatafileWithoutALogLeavesTheListEmpty)
{
    view.SetOfflineData(log("Valve H", parameters({{0, "", "", ""}}),
                            "<data:requestGroup "
                            "name=\"other\"/>"));
    EXPECT_EQ(view.lsvEventLog.Count(), 0);
    EXPECT_EQ(view.externalResetText(), "") << "nothing was written";
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(StoredLogTest, AnEmptyPieceIsNotTranslated)
{
    view.SetOfflineData(log("Valve H", parameters({{0, "", "", "1"}})));
    EXPECT_THAT(row(1), ElementsAre("", "", "1.0000", "", "0", "1"));
    EXPECT_THAT(translator.calls, Not(Contains("Translate()")));
}

TEST_F(StoredLogTest, AStoredEventWithoutATextShowsItsKey)
{
    translator.prefix = "Err:";
    view.SetOfflineData(
        log("Valve H",
            parameters({{0, "a", "c", "3"}, {1, "eventObsolete", "c", "2"}, {2, "b", "d", "1"}})));
    EXPECT_THAT(row(1), ElementsAre("c", "a", "3.0000", "", "0", "1"));
    EXPECT_THAT(row(2), ElementsAre("d", "b", "1.0000", "", "2", "2"));
    EXPECT_EQ(view.lsvEventLog.Count(), 2);
    EXPECT_EQ(view.externalResetText(), kResetEvent);
}

// --- The stored operation time ----------------------------------------------------------------

TEST_F(StoredLogTest, TheStoredOperationTimeDatesTheList)
{
    view.SetOfflineData(log("Valve H",
                            parameter("eventLogTotalOperationTime", "1000.456", "h") +
                                parameter("totalOperationTime", "5", "min") +
                                parameters({{0, "a", "c", "1000.456"}, {1, "b", "c", "976.456"}}),
                            kGroups));
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "1000.46");
    EXPECT_EQ(view.lblOperationTime[1].Caption.get(), "h");
    EXPECT_EQ(view.lblOperationTime[2].Caption.get(), "2024-05-06 12:00:00");
    EXPECT_TRUE(view.times().mblnHasTimeReference);
    EXPECT_EQ(view.times().mdblOperationTime, 1000.456);
    EXPECT_THAT(dates(), ElementsAre("2024-05-06 12:00:00", "2024-05-05 12:00:00"));
}

TEST_F(StoredLogTest, TheOtherParameterStandsInForIt)
{
    view.SetOfflineData(
        log("Valve F", parameter("totalOperationTime", "5", "min") + parameters({}), kGroups));
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "5.00");
    EXPECT_EQ(view.lblOperationTime[1].Caption.get(), "min");
    EXPECT_EQ(view.lblOperationTime[2].Caption.get(), "2024-05-06 12:00:00");
}

TEST_F(StoredLogTest, AnUnknownOperationTimeShowsItsUnitOnly)
{
    for (const char* unknown : {"", "00", "00123"}) {
        CtrEventLog fresh;
        fresh.SetMessenger(&host);
        fresh.SetOfflineData(
            log("Valve H", parameter("eventLogTotalOperationTime", unknown, "h"), kGroups));
        EXPECT_EQ(fresh.lblOperationTime[0].Caption.get(), "");
        EXPECT_EQ(fresh.lblOperationTime[1].Caption.get(), "h");
        EXPECT_EQ(fresh.lblOperationTime[2].Caption.get(), "");
        EXPECT_FALSE(fresh.times().mblnHasTimeReference);
    }
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(StoredLogTest, AnOperationTimeThatWasNeverReadDatesNothing)
{
    for (const char* never : {"", "00.00.0000 00:00:00", "never"}) {
        CtrEventLog fresh;
        fresh.SetMessenger(&host);
        fresh.SetOfflineData(log("Valve H",
                                 parameter("eventLogTotalOperationTime", "10", "h") +
                                     parameters({{0, "a", "c", "9"}}),
                                 R"(<data:requestGroup name="eventLog" lastUpdate=""/>)"
                                 R"(<data:requestGroup name="g" lastUpdate=")" +
                                     std::string(never) +
                                     R"("><data:includedParam name="eventLogTotalOperationTime"/>)"
                                     "</data:requestGroup>"));
        EXPECT_EQ(fresh.lblOperationTime[0].Caption.get(), "10.00");
        EXPECT_EQ(fresh.lblOperationTime[2].Caption.get(), "");
        EXPECT_FALSE(fresh.times().mblnHasTimeReference);
        EXPECT_EQ(fresh.lsvEventLog.Item(1).SubItems[eventLog::kDate], "");
    }
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(StoredLogTest, AnOperationTimeInNoGroupOrWithoutAttributesIsReported)
{
    view.SetOfflineData(log("Valve H", "<data:parameter name=\"eventLogTotalOperationTime\" "
                                       "value=\"10\"/>"));
    EXPECT_THAT(host.errors(),
                ElementsAre(StartsWith("ReportError(CtrEventLog IQornDataUser_setOfflineData: , "
                                       "91, "),
                            StartsWith("ReportError(CtrEventLog IQornDataUser_setOfflineData: , "
                                       "91, ")))
        << "no unit, no group";
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "10.00");
    EXPECT_FALSE(view.times().mblnHasTimeReference);
}

TEST_F(StoredLogTest, AnOperationTimeThatIsNoNumberIsReportedTwiceAndDatesNothing)
{
    view.SetOfflineData(
        log("Valve H", parameter("eventLogTotalOperationTime", "soon", "h"), kGroups));
    EXPECT_THAT(host.errors(), SizeIs(2)) << "shown, and used";
    EXPECT_THAT(host.errors(), SomeAndEach(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setOfflineData: , 13, ")));
    EXPECT_EQ(view.lblOperationTime[2].Caption.get(), "2024-05-06 12:00:00");
    EXPECT_FALSE(view.times().mblnHasTimeReference);
}

// --- For the second time ----------------------------------------------------------------------

TEST_F(StoredLogTest, AnImportGoesIntoTheDatafileAndIsAnEdit)
{
    const auto datafile = log("Valve H",
                              parameters({{0, "a", "c", "9"}, {1, "b", "c", "8"}}) +
                                  parameter("eventLogTotalOperationTime", "10", "h"),
                              kGroups);
    view.SetOfflineData(datafile);
    ASSERT_TRUE(view.times().mblnHasTimeReference);
    host.clear();
    view.SetImportData(log("Valve H",
                           parameters({{0, "x", "y", "7"}, {1, "z", "", ""}, {2, "n", "c", "1"}}) +
                               parameter("eventLogTotalOperationTime", "99", "min"),
                           R"(<data:requestGroup name="eventLog" lastUpdate="yesterday"/>)"));
    EXPECT_THAT(events(), ElementsAre("t:x", "t:z", "t:n"));
    EXPECT_EQ(value(datafile, "eventLogEvent00"), "x");
    EXPECT_EQ(value(datafile, "eventLogTime00"), "7");
    EXPECT_EQ(value(datafile, "eventLogClass01"), "") << "what is empty is taken over too";
    EXPECT_THAT(host.callsTo("SetParameterState"),
                ElementsAre("SetParameterState(eventLog, edited)"));
    EXPECT_EQ(view.ctrDateLabels.Caption(), "yesterday") << "as it stands";
    EXPECT_EQ(view.lblOperationTime[1].Caption.get(), "h") << "the operation time is not imported";
    EXPECT_FALSE(view.times().mblnHasTimeReference);
    EXPECT_THAT(dates(), Each(""));
}

TEST_F(StoredLogTest, AnImportWithoutEventsEmptiesTheListAndIsNoEdit)
{
    view.SetOfflineData(log("Valve H", parameters({{1, "a", "c", "9"}})));
    host.clear();
    view.SetImportData(log("Valve H", ""));
    EXPECT_EQ(view.lsvEventLog.Count(), 0);
    EXPECT_FALSE(host.wasCalled("SetParameterState"));
}

TEST_F(StoredLogTest, KnownMeansTheEventOfIndexOne)
{
    view.SetOfflineData(log("Valve H", parameters({{0, "a", "c", "9"}})));
    host.clear();
    view.SetOfflineData(log("Valve H", parameters({{0, "b", "c", "9"}})));
    EXPECT_FALSE(host.wasCalled("SetParameterState"));
    EXPECT_THAT(events(), ElementsAre("t:b"));
}

TEST_F(StoredLogTest, MissingAttributesAreReportedAndCostTheirTextOnly)
{
    view.SetOfflineData(log("Valve H", "<data:parameter name=\"eventLogEvent00\"/>" +
                                           parameter("eventLogTime00", "5")));
    EXPECT_THAT(row(1), ElementsAre("", "", "5.0000", "", "0", "1"));
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setOfflineData: , 91, ")));
    EXPECT_TRUE(view.eventNode(0, 0));
    host.clear();
    view.SetOfflineData(log("Valve H", parameter("eventLogTime00", "5"), ""));
    EXPECT_EQ(view.ctrDateLabels.Caption(), "") << "no group, no date";
    EXPECT_THAT(host.errors(), SizeIs(1));
}

TEST_F(StoredLogTest, NoDocumentAtAllIsReported)
{
    view.SetOfflineData({});
    EXPECT_EQ(view.lsvEventLog.Count(), 0);
    EXPECT_THAT(host.errors(), Contains(StartsWith("ReportError(CtrEventLog "
                                                   "IQornDataUser_setOfflineData: , 91, ")));
    host.clear();
    view.SetImportData({});
    EXPECT_THAT(host.errors(), Contains(StartsWith("ReportError(CtrEventLog "
                                                   "IQornDataUser_setOfflineData: , 91, ")));
}

TEST_F(StoredLogTest, AHostThatFailsGetsTheListAllTheSame)
{
    view.SetOfflineData(log("Valve H", parameters({{1, "a", "c", "9"}})));
    host.failOn("SetParameterState");
    host.failOn("ReportError");
    view.SetImportData(log("Valve H", parameters({{1, "b", "c", "9"}})));
    EXPECT_THAT(events(), ElementsAre("t:b"));
    host.stopFailing();
    host.failOn("GetTranslator");
    view.SetImportData(log("Valve H", parameters({{1, "b", "c", "9"}})));
    EXPECT_THAT(row(1), ElementsAre("", "", "9.0000", "", "1", ""));
}

} // namespace
} // namespace quill::test
