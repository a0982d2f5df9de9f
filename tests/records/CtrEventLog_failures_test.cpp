// Pages of events in documents and from hosts that fail, and hosts without texts.
#include "event_log_fixture.h"

#include "support/some_and_each.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using namespace platform;

TEST_F(HartLogTest, ATimeThatIsNoNumberCostsTimeAndIndexOfItsRow)
{
    receive({{0, "a", "c", "soon"}, {1, "b", "c", "1"}});
    EXPECT_THAT(row(1), ElementsAre("t:c", "t:a", "", "", "", "1"));
    EXPECT_THAT(row(2), ElementsAre("t:c", "t:b", "1.0000", "", "1", "2"));
    EXPECT_THAT(host.errors(),
                ElementsAre(StartsWith("ReportError(CtrEventLog AddEventLogEvent, 13, ")));
}

TEST_F(HartLogTest, AMessageThatDoesNotSayWhetherItIsTheLastIsNot)
{
    view.SetOnlineData(response("name=\"eventLog\"", items({{0, "a", "c", "1"}})));
    EXPECT_EQ(view.lsvEventLog.Count(), 1);
    EXPECT_EQ(view.paging().miMessageCount, 1);
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setOnlineData: , 91, ")));
    EXPECT_THAT(host.calls.back(), HasSubstr("leaving"));
}

TEST_F(HartLogTest, AMessengerThatFailsCostsItsLinesOnly)
{
    for (const char* operation :
         {"WriteLog", "SetParameterState", "ReportError", "ExecuteCommunicationRequest"}) {
        host.failOn(operation);
    }
    receive({{0, "a", "c", "1"}, {1, kResetEvent, "c", "0.5"}});
    EXPECT_THAT(events(), ElementsAre("t:a", "t:" + kResetEvent, kDashes));
    EXPECT_TRUE(view.cmdNext.Enabled);
    EXPECT_EQ(view.syncState(), "sync");
    EXPECT_TRUE(host.wasCalled("ExecuteCommunicationRequest"));
}

TEST_F(HartLogTest, AHostWithoutATranslatorShowsTimesOnly)
{
    host.translator = nullptr;
    receive({{0, "a", "c", "1"}, {1, "b", "c", ""}});
    ASSERT_EQ(view.lsvEventLog.Count(), 1);
    EXPECT_THAT(row(1), ElementsAre("", "", "1.0000", "", "0", ""));
    EXPECT_THAT(host.errors(), SomeAndEach(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setOnlineData: , 91, ")));
}

TEST_F(HartLogTest, WithoutWordsForItNothingIsObsoleteAndNothingIsTheEnd)
{
    translator.texts["eventObsolete"]        = "";
    translator.texts["vx4400eventNone"]      = "";
    translator.texts["vx4400eventClassNone"] = "";
    receive({{0, "a", "c", "2"}, {1, "vx4400eventNone", "vx4400eventClassNone", "1"}});
    EXPECT_THAT(events(), ElementsAre("t:a", ""));
    EXPECT_TRUE(view.cmdNext.Enabled);
}

TEST_F(HartLogTest, ATextThatFailsCostsItsColumn)
{
    translator.failingKey = "a";
    receive({{0, "a", "c", "1"}});
    EXPECT_THAT(row(1), ElementsAre("t:c", "", "1.0000", "", "0", "1"));
    EXPECT_THAT(host.errors(), SizeIs(1));
}

TEST_F(HartLogTest, AnEventWithoutATextShowsItsKey)
{
    translator.prefix = "Err:";
    translator.texts  = {{"a", "Started"}};
    receive({{0, "a", "c", "4"}, {1, "b", "d", "3"}, {2, kResetEvent, "c", "2"}});
    EXPECT_THAT(row(1), ElementsAre("c", "Started", "4.0000", "", "0", "1"));
    EXPECT_THAT(row(2), ElementsAre("d", "b", "3.0000", "", "1", "2"));
    EXPECT_THAT(events(), ElementsAre("Started", "b", kResetEvent, kDashes));
    EXPECT_EQ(view.externalResetText(), kResetEvent);
    EXPECT_EQ(view.lsvEventLog.Item(2).ToolTipText, "b 3.0000");
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(HartLogTest, WithoutTextsObsoleteEventsGoAndTheEndIsFound)
{
    translator.prefix = "Err:";
    receive({{0, "a", "c", "4"},
             {1, "eventObsolete", "c", "3"},
             {2, "vx4400eventNone", "vx4400eventClassNone", "2"}});
    EXPECT_THAT(events(), ElementsAre("a", "vx4400eventNone"));
    EXPECT_FALSE(view.cmdNext.Enabled);
    EXPECT_FALSE(view.paging().mblnIsNextAllowed);
}

TEST_F(HartLogTest, AnUnknownTextForObsoleteEventsKeepsThemAndIsReported)
{
    translator.failingKey = "eventObsolete";
    receive({{0, "a", "", "1"}});
    EXPECT_EQ(view.lsvEventLog.Count(), 1);
    EXPECT_TRUE(view.cmdNext.Enabled);
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setOnlineData: , 5, ")));
}

TEST_F(HartLogTest, MoreMessagesThanTheCounterHoldsAreReported)
{
    receive({{0, "a", "c", "1"}}, false);
    for (int count = 0; count < 254; ++count) {
        receive({}, false);
    }
    EXPECT_EQ(view.paging().miMessageCount, 255);
    EXPECT_THAT(host.errors(), IsEmpty());
    receive({{1, "b", "c", "1"}}, true);
    EXPECT_THAT(host.errors(), ElementsAre(StartsWith("ReportError(CtrEventLog "
                                                      "IQornDataUser_setOnlineData: , 6, ")));
    EXPECT_EQ(view.lsvEventLog.Count(), 2);
    EXPECT_EQ(view.paging().mlngMessagesRead, 256);
}

TEST_F(HartLogTest, WithACommaTimesAreReadAndShownInTheLocalesForm)
{
    toolkit.localeSettings = {",", "d.M.yyyy", "H:mm:ss"};
    receive({{0, "a", "c", "12.5"}});
    EXPECT_THAT(times(), ElementsAre("12,5000"));
    view.SetOnlineData(okResponse("eventLogOperationTime",
                                  item("eventLogTotalOperationTime", "h", "floatVal", "1234.5")));
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "1234,50");
    EXPECT_EQ(view.lblOperationTime[2].Caption.get(), "6.5.2024 7:08:09");
    EXPECT_THAT(dates(), ElementsAre("16.3.2024 9:08:09"));
    EXPECT_THAT(host.errors(), IsEmpty());
}

} // namespace
} // namespace quill::test
