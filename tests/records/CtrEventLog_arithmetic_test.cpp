#include "records/event_log_paging.h"
#include "records/event_log_rows.h"
#include "records/event_log_times.h"

#include "platform/failure.h"
#include "support/failure_of.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>

namespace quill::test {
namespace {

using namespace platform;

const std::string kHead = "<?xml version=\"1.0\"?><dtm xmlns=\"x-schema:QVXCommunicationSchema."
                          "xml\"><communicationRequest ";
const std::string kEnd  = "</communicationRequest></dtm>";

EventLogPaging hart()
{
    EventLogPaging paging;
    paging.UseHART();
    return paging;
}

EventLogPaging fieldbus()
{
    EventLogPaging paging;
    paging.UseFieldbus();
    return paging;
}

TEST(EventLogPagingTest, TheFamiliesDifferInSizesAndRequests)
{
    const auto a = hart();
    EXPECT_TRUE(a.mblnIsHART);
    EXPECT_EQ(a.miEventsInMessage, 10);
    EXPECT_EQ(a.miMessagesInParts, 1);
    EXPECT_EQ(a.miMessagesPerRead, 3);
    EXPECT_EQ(a.miEventsPerRead, 30);
    EXPECT_EQ(a.miTopEventIndex, 0);
    EXPECT_EQ(a.mstrOperationTimeRequest,
              kHead +
                  "name=\"eventLogOperationTime\" access=\"read\">\r\n<item name=\""
                  "eventLogTotalOperationTime\" unit=\"h\"><floatVal/></item>\r\n" +
                  kEnd);
    EXPECT_FALSE(a.partsFillTheSameRows());

    const auto b = fieldbus();
    EXPECT_FALSE(b.mblnIsHART);
    EXPECT_EQ(b.miEventsInMessage, 25);
    EXPECT_EQ(b.miMessagesInParts, 2);
    EXPECT_EQ(b.miMessagesPerRead, 1);
    EXPECT_EQ(b.miEventsPerRead, 25);
    EXPECT_EQ(b.miTopEventIndex, 1);
    EXPECT_EQ(b.mstrOperationTimeRequest, "");
    EXPECT_TRUE(b.partsFillTheSameRows());
}

TEST(EventLogPagingTest, AHartDeviceKeepsTheTopIndexAsItWas)
{
    auto paging = fieldbus();
    paging.UseHART();
    EXPECT_EQ(paging.miTopEventIndex, 1);
    EXPECT_EQ(paging.firstIndexShift(), 0);
    paging.UseFieldbus();
    EXPECT_EQ(paging.mstrOperationTimeRequest, "");
}

TEST(EventLogPagingTest, AtTheStartNothingIsUnderWay)
{
    const EventLogPaging paging;
    EXPECT_EQ(paging.mstrOperationTimeRequest, "");
    EXPECT_EQ(paging.miTopEventIndex, 0);
    EXPECT_TRUE(paging.mblnReadOk);
    EXPECT_EQ(paging.miMessageCount, 0);
    EXPECT_FALSE(paging.mblnIsNextAllowed);
    EXPECT_FALSE(paging.mblnIsMoreEventsClicked);
    EXPECT_EQ(paging.miResetEvents, 0);
}

TEST(EventLogPagingTest, TheShiftTakesEarlierMessagesAndSeparatorsOff)
{
    auto paging           = hart();
    paging.miMessageCount = 1;
    EXPECT_EQ(paging.firstIndexShift(), 1);
    EXPECT_EQ(paging.nextIndexShift(34), 34);
    paging.miMessageCount = 3;
    paging.miResetEvents  = 2;
    EXPECT_EQ(paging.nextIndexShift(56), 56 - 20 - 2);
    EXPECT_EQ(paging.rowOf(7, 34), 7 + 34 + 2);
    // Behind a counter that was put back there is nothing to take off.
    paging.miMessageCount = 0;
    EXPECT_EQ(paging.nextIndexShift(5), 5 + 10 - 2);
}

TEST(EventLogPagingTest, TheLastIndexDependsOnTheRead)
{
    EXPECT_EQ(hart().lastIndex(true), 30);
    EXPECT_EQ(hart().lastIndex(false), 30);
    EXPECT_EQ(fieldbus().lastIndex(true), 25);
    EXPECT_EQ(fieldbus().lastIndex(false), 25);
}

TEST(EventLogPagingTest, AHartDeviceIsToldWhereToGoOn)
{
    auto paging             = hart();
    paging.mlngMessagesRead = 6;
    paging.miReadsDone      = 3;
    EXPECT_EQ(paging.nextEvent(), 30 + 10 * 3 * 3 + 1);
    EXPECT_EQ(paging.moreEventsRequest(false),
              kHead +
                  "name=\"eventLogContinued\" access=\"write\" datasetSave=\"0\"><item name=\""
                  "eventLogIndex\" unit=\"noUnit\"><integerVal>60</integerVal></item><item "
                  "name=\"eventLogClass\" unit=\"noUnit\"><integerVal>9</integerVal></item>" +
                  kEnd);
    EXPECT_EQ(paging.moreEventsRequest(true),
              kHead +
                  "name=\"eventLogContinued\" access=\"write\" datasetSave=\"0\"><item name=\""
                  "eventLogIndex\" unit=\"noUnit\"><integerVal>60</integerVal></item>" +
                  kEnd);
}

TEST(EventLogPagingTest, AFieldbusDeviceIsAskedForTheNextPage)
{
    const std::string request =
        kHead +
        "name=\"eventLog\" access=\"read\" datasetSave=\"0\"><item name=\""
        "eventLogNextEvent01\" unit=\"noUnit\"><stringVal/></item><item name=\""
        "eventLogNextTime01\" unit=\"noUnit\"><stringVal/></item>" +
        kEnd;
    EXPECT_EQ(fieldbus().moreEventsRequest(false), request);
    EXPECT_EQ(fieldbus().moreEventsRequest(true), request);
}

TEST(EventLogPagingTest, AReadThatBrokeOffCountsWhatArrived)
{
    auto paging           = hart();
    paging.miReadsDone    = 6;
    paging.mvarIndexBase  = 60;
    paging.miMessageCount = 2;
    paging.keepWhatArrived();
    EXPECT_EQ(paging.miReadsDone, 6 - 3 + 2);
    EXPECT_EQ(paging.mvarIndexBase, 60 + 20);
}

TEST(EventLogPagingTest, CountersEndAtTheirType)
{
    auto paging           = hart();
    paging.miMessageCount = 255;
    EXPECT_EQ(failureOf([&] { paging.countMessage(); }), kOverflow);
    EXPECT_EQ(paging.miMessageCount, 255);
    paging.miResetEvents = 32767;
    EXPECT_EQ(failureOf([&] { paging.countResetEvent(); }), kOverflow);
    EXPECT_EQ(paging.miResetEvents, 32767);
    paging.miReadsDone = 32766;
    EXPECT_EQ(failureOf([&] { paging.countRead(); }), kOverflow);
    EXPECT_EQ(paging.miReadsDone, 32766);
}

TEST(EventLogPagingTest, IndexesGoOnBehindThePage)
{
    auto paging = hart();
    paging.moveIndexBase(true);
    EXPECT_EQ(paging.mvarIndexBase, 30);
    paging.moveIndexBase(false);
    EXPECT_EQ(paging.mvarIndexBase, 60);
    auto other = fieldbus();
    other.moveIndexBase(true);
    other.moveIndexBase(false);
    EXPECT_EQ(other.mvarIndexBase, 50);
}

TEST(EventLogRowsTest, AnIndexHasTwoDigitsAtLeast)
{
    EXPECT_EQ(eventLog::suffix(0), "00");
    EXPECT_EQ(eventLog::suffix(9), "09");
    EXPECT_EQ(eventLog::suffix(10), "10");
    EXPECT_EQ(eventLog::suffix(30), "30");
}

TEST(EventLogRowsTest, ARowTellsWhereItWasMeantToStand)
{
    EXPECT_EQ(eventLog::rowText(7, 7), "7");
    EXPECT_EQ(eventLog::rowText(7, 9), "7 <> 9");
}

TEST(EventLogRowsTest, AShortRowReadsAsEmptyColumns)
{
    ListItem item{.Text = "c", .SubItems = {"e"}};
    EXPECT_EQ(eventLog::clipboardLine(item), "c\te\t\t\r\n");
    eventLog::setColumn(item, eventLog::kDate, "d");
    EXPECT_EQ(eventLog::clipboardLine(item), "c\te\t\td\r\n");
    EXPECT_EQ(item.SubItems.size(), 5U);
}

TEST(EventLogRowsTest, TheSeparatorHas43Dashes)
{
    EXPECT_EQ(std::string(eventLog::kSeparator), std::string(43, '-'));
}

class EventLogTimesTest : public testing::Test {
protected:
    ToolkitScope  toolkit;
    EventLogTimes times;
};

TEST_F(EventLogTimesTest, DateNumbersCountDaysFrom1899)
{
    EXPECT_EQ(eventLog::dateNumber({1899, 12, 30, 0, 0, 0}), 0);
    EXPECT_EQ(eventLog::dateNumber({1900, 1, 1, 12, 0, 0}), 2.5);
    EXPECT_EQ(eventLog::dateNumber({2024, 5, 6, 6, 0, 0}), 45418.25);
    EXPECT_EQ(eventLog::dateNumber({1899, 12, 29, 18, 0, 0}), -0.25);
}

TEST_F(EventLogTimesTest, ADateComesBackToTheNearestSecond)
{
    const DateTime date{2024, 5, 6, 7, 8, 9};
    EXPECT_EQ(eventLog::dateOfNumber(eventLog::dateNumber(date)), date);
    EXPECT_EQ(eventLog::dateOfNumber(45418 + 0.6 / 86400), (DateTime{2024, 5, 6, 0, 0, 1}));
    EXPECT_EQ(eventLog::dateOfNumber(45418 - 0.4 / 86400), (DateTime{2024, 5, 6, 0, 0, 0}));
    EXPECT_EQ(eventLog::dateOfNumber(-0.25), (DateTime{1899, 12, 29, 18, 0, 0}));
}

TEST_F(EventLogTimesTest, NumbersOutsideTheCalendarAreAnOverflow)
{
    EXPECT_EQ(eventLog::dateOfNumber(-657434), (DateTime{100, 1, 1, 0, 0, 0}));
    EXPECT_EQ(eventLog::dateOfNumber(2958465), (DateTime{9999, 12, 31, 0, 0, 0}));
    for (const double outside :
         {-657435.0, 2958466.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(failureOf([&] { (void)eventLog::dateOfNumber(outside); }), kOverflow) << outside;
    }
}

TEST_F(EventLogTimesTest, ADateShowsItsTimeUnlessItIsMidnight)
{
    EXPECT_EQ(eventLog::dateText({2024, 5, 6, 7, 8, 9}), "2024-05-06 07:08:09");
    EXPECT_EQ(eventLog::dateText({2024, 5, 6, 0, 0, 0}), "2024-05-06");
    EXPECT_EQ(eventLog::dateText({1899, 12, 30, 7, 8, 9}), "07:08:09");
    toolkit.localeSettings = {",", "d.M.yyyy", "H.mm.ss"};
    EXPECT_EQ(eventLog::dateText({2024, 5, 6, 7, 8, 9}), "6.5.2024 7.08.09");
}

TEST_F(EventLogTimesTest, ATimeThatBeginsWithTwoZerosSaysNothing)
{
    EXPECT_TRUE(eventLog::isKnown("0"));
    EXPECT_TRUE(eventLog::isKnown("0.5"));
    EXPECT_TRUE(eventLog::isKnown("100"));
    EXPECT_FALSE(eventLog::isKnown(""));
    EXPECT_FALSE(eventLog::isKnown("00"));
    EXPECT_FALSE(eventLog::isKnown("00.00.0000 00:00:00"));
}

TEST_F(EventLogTimesTest, TheTotalTimeHasTwoDecimalsAndTheTimeOfAnEventFour)
{
    EXPECT_EQ(eventLog::operationTimeText("1234567890.5"), "1234567890.50");
    EXPECT_EQ(eventLog::operationTimeText(".25"), "0.25");
    EXPECT_EQ(eventLog::eventTimeText("12.34565"), "12.3457");
    EXPECT_EQ(eventLog::eventTimeText("0."), "0.0000");
    EXPECT_EQ(failureOf([] { (void)eventLog::operationTimeText("soon"); }), kTypeMismatch);
    EXPECT_EQ(failureOf([] { (void)eventLog::eventTimeText(""); }), kTypeMismatch);
    toolkit.localeSettings.decimal = ",";
    EXPECT_EQ(eventLog::eventTimeText("12.5"), "12,5000");
}

TEST_F(EventLogTimesTest, AStampCountsBackFromTheReference)
{
    EXPECT_EQ(times.stamp("1", 1), "") << "no reference";
    times.setReference(100, {2024, 5, 6, 12, 0, 0});
    EXPECT_EQ(times.stamp("", 1), "");
    EXPECT_EQ(times.stamp("100", 1), "2024-05-06 12:00:00");
    EXPECT_EQ(times.stamp("76", 1), "2024-05-05 12:00:00");
    EXPECT_EQ(times.stamp("88", 1), "2024-05-06");
    EXPECT_EQ(times.stamp("99.5", 1), "2024-05-06 11:30:00");
    EXPECT_EQ(times.stamp("124", 1), "2024-05-07 12:00:00") << "behind the reference";
}

TEST_F(EventLogTimesTest, RowsBehindTheFirstResetAreEstimates)
{
    times.setReference(100, {2024, 5, 6, 12, 0, 0});
    times.noteReset(3);
    EXPECT_EQ(times.stamp("100", 2), "2024-05-06 12:00:00");
    EXPECT_EQ(times.stamp("100", 3), "2024-05-06 12:00:00");
    EXPECT_EQ(times.stamp("100", 4), "2024-05-06 12:00:00 *");
    times.noteReset(5);
    EXPECT_EQ(times.miFirstResetRow, 3);
    times.noteReset(2);
    EXPECT_EQ(times.miFirstResetRow, 2);
}

TEST_F(EventLogTimesTest, AStampFailsForATimeThatIsNoNumberAndForADateThatIsNone)
{
    times.setReference(100, {2024, 5, 6, 12, 0, 0});
    EXPECT_EQ(failureOf([&] { (void)times.stamp("soon", 1); }), kTypeMismatch);
    EXPECT_EQ(failureOf([&] { (void)times.stamp("1e12", 1); }), kOverflow);
}

TEST_F(EventLogTimesTest, TimesAreReadWithTheLocalesSeparatorAndWithAPoint)
{
    toolkit.localeSettings.decimal = ",";
    times.setReference(100, {2024, 5, 6, 12, 0, 0});
    EXPECT_EQ(times.stamp("99,5", 1), "2024-05-06 11:30:00");
    EXPECT_EQ(times.stamp("99.5", 1), "2024-05-06 11:30:00");
}

} // namespace
} // namespace quill::test
