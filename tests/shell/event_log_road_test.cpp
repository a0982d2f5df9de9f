// The event log from the device's ring to the rows of the view.
#include "device_host.h"
#include "device_requests.h"
#include "records/CtrEventLog.h"
#include "shell/device_actions.h"
#include "shell/device_events.h"
#include "support/toolkit_scope.h"

namespace quill::shell {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::SizeIs;

const std::string kSeparator(43, '-');

struct Row {
    std::string eventClass, event, time, index;
};

class EventLogRoad : public testing::TestWithParam<const char*> {
protected:
    EventLogRoad()
    {
        view.SetMessenger(&host);
        view.Localize(host.texts);
        view.SetOfflineData(datafile);
        host.ViewSetCommunicationMode.raise(kOnline);
    }

    void read()
    {
        host.send(request("eventLog", "read"));
        host.deliver(view);
    }
    void readMore()
    {
        view.cmdNext.click();
        host.deliver(view);
    }
    /// Until the view lets the user read no more.
    void readAll()
    {
        read();
        for (int pages = 0; view.cmdNext.Enabled && pages < 20; ++pages) {
            readMore();
        }
        EXPECT_FALSE(view.cmdNext.Enabled);
    }

    std::vector<Row> rows()
    {
        std::vector<Row> all;
        for (int row = 1; row <= view.lsvEventLog.Count(); ++row) {
            const auto& item = view.lsvEventLog.Item(row);
            all.push_back({item.Text, item.SubItems.at(0), item.SubItems.at(1),
                           item.SubItems.size() > 3 ? item.SubItems.at(3) : ""});
        }
        return all;
    }
    /// What the list should hold: the ring from the newest on, without what is obsolete, a
    /// separator behind each reset, and the mark of the end.
    std::vector<std::string> expectedEvents()
    {
        std::vector<std::string> all;
        const EventRing&         ring = device.function<DeviceEvents>()->ring();
        for (auto number = ring.next() - 1; number >= ring.oldest(); --number) {
            const std::string& key = ring.find(number)->key;
            if (key != kEventObsolete) {
                all.push_back(key);
            }
            if (key == kEventExternalReset) {
                all.push_back(kSeparator);
            }
        }
        all.push_back(kEventNone);
        return all;
    }
    std::vector<std::string> events()
    {
        std::vector<std::string> all;
        for (const Row& row : rows()) {
            all.push_back(row.event);
        }
        return all;
    }

    quill::test::ToolkitScope toolkit;
    SimulatedDevice           device = fullDevice(GetParam());
    IXMLDOMDocument datafile = documents::openText(sampleText(GetParam() + std::string(".xml")));
    DeviceHost      host{device};
    CtrEventLog     view{{.Name = "eventLog", .Tag = "eventLog"}};
};

INSTANTIATE_TEST_SUITE_P(Devices, EventLogRoad, testing::Values("vx4400h", "vx4400f"));

TEST_P(EventLogRoad, TheDatafileKeepsAnOlderLog)
{
    const auto stored = rows();
    ASSERT_GE(stored.size(), 25U);
    EXPECT_THAT(stored.front().event, Not(""));
    EXPECT_TRUE(view.lblFootnote.Visible) << "a reset is among them";
    EXPECT_THAT(host.callsTo("ReportError"), SizeIs(0));
}

TEST_P(EventLogRoad, PagesPasteTogetherToTheWholeLog)
{
    readAll();
    EXPECT_EQ(events(), expectedEvents());
    EXPECT_THAT(host.callsTo("ReportError"), SizeIs(0));
    const auto all = rows();
    for (std::size_t i = 0; i + 1 < all.size(); ++i) {
        EXPECT_NE(all[i].time.empty(), all[i].event != kSeparator) << i;
    }
    EXPECT_EQ(all.back().eventClass, kEventClassNone);
}

TEST_P(EventLogRoad, TimesFallFromRowToRowAndIndexesRise)
{
    readAll();
    double before = 1e9;
    int    index  = -1;
    for (const Row& row : rows()) {
        if (row.event == kSeparator || row.event == kEventNone) {
            continue;
        }
        EXPECT_LT(std::stod(row.time), before) << row.event;
        EXPECT_GT(std::stoi(row.index), index) << row.event;
        before = std::stod(row.time);
        index  = std::stoi(row.index);
    }
}

TEST_P(EventLogRoad, EventsThatHappenMeanwhileDoNotDisturbThePages)
{
    auto expected = expectedEvents();
    read();
    device.function<DeviceEvents>()->log("vx4400eventStatusReset");
    while (view.cmdNext.Enabled) {
        readMore();
        device.function<DeviceEvents>()->log("vx4400eventAddressChanged");
    }
    EXPECT_EQ(events(), expected);
    read();
    EXPECT_EQ(events().front(), "vx4400eventAddressChanged") << "the next read begins anew";
}

TEST_P(EventLogRoad, ALogThatFillsItsPagesExactlyEndsToo)
{
    // 50 events are two pages of the fieldbus device; 30 one of the HART device.
    auto& log = *device.function<DeviceEvents>();
    log.clear();
    for (int i = 0; i < 150; ++i) {
        log.log("event" + std::to_string(i));
    }
    ASSERT_EQ(log.ring().size(), 120U) << "four pages of the HART device";
    readAll();
    EXPECT_EQ(events(), expectedEvents());
    log.clear();
    for (int i = 0; i < 50; ++i) {
        log.log("event" + std::to_string(i));
    }
    readAll();
    EXPECT_EQ(events(), expectedEvents());
}

TEST_P(EventLogRoad, AnEmptyLogIsOneRow)
{
    device.function<DeviceEvents>()->clear();
    readAll();
    EXPECT_THAT(events(), ElementsAre(kEventNone));
}

TEST_P(EventLogRoad, TheDatafileHoldsTheFirstPageAndNothingOlder)
{
    device.function<DeviceEvents>()->clear();
    read();
    const std::string first = device.isHart() ? "00" : "01";
    EXPECT_EQ(documents::attributeText(documents::findParameter(datafile, "eventLogEvent" + first),
                                       "value"),
              kEventNone);
    EXPECT_EQ(
        documents::attributeText(documents::findParameter(datafile, "eventLogEvent24"), "value"),
        kEventObsolete);
    view.SetOfflineData(datafile);
    EXPECT_THAT(events(), ElementsAre(kEventNone));
}

TEST_P(EventLogRoad, ARestartDrawsASeparatorAndMakesOlderDatesEstimates)
{
    restartDevice(device);
    device.advance(60);
    device.function<DeviceEvents>()->log("vx4400eventStatusReset");
    read();
    if (!device.isHart()) {
        host.ViewReceiveValue.raise("ctr_totalOperationTime",
                                    device.find("totalOperationTime")->value);
        host.ViewReceiveValue.raise("date_counters", "2024-05-06 07:08:09");
    }
    ASSERT_GE(view.lsvEventLog.Count(), 4);
    const auto all = events();
    const auto at  = std::ranges::find(all, kEventExternalReset) - all.begin();
    ASSERT_LT(at, 3);
    EXPECT_EQ(all.at(static_cast<std::size_t>(at) + 1), kSeparator);
    const auto date = [&](std::ptrdiff_t row) {
        return view.lsvEventLog.Item(static_cast<int>(row) + 1).SubItems.at(2);
    };
    EXPECT_FALSE(date(0).empty());
    EXPECT_FALSE(date(0).ends_with(" *"));
    EXPECT_TRUE(date(at + 2).ends_with(" *")) << date(at + 2);
    EXPECT_TRUE(view.lblFootnote.Visible);
}

TEST_P(EventLogRoad, TheTotalOperationTimeIsThatOfTheDevice)
{
    device.advance(36);
    read();
    if (device.isHart()) {
        EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "8611.01");
        EXPECT_THAT(host.sent.back(), testing::HasSubstr("eventLogOperationTime"));
    } else {
        EXPECT_EQ(device.find("totalOperationTime")->value, "3307.01");
    }
}

class HartEventLogRoad : public EventLogRoad {};
INSTANTIATE_TEST_SUITE_P(Devices, HartEventLogRoad, testing::Values("vx4400h"));

TEST_P(HartEventLogRoad, AReadThatBreaksOffGoesOnBehindWhatArrived)
{
    const auto expected = expectedEvents();
    read();
    host.breaksAfter = 1;
    readMore();
    EXPECT_THAT(host.callsTo("SetParameterState"),
                Contains("SetParameterState(eventLog, syncError)"));
    EXPECT_TRUE(view.cmdNext.Enabled);
    while (view.cmdNext.Enabled) {
        readMore();
    }
    EXPECT_THAT(host.sent, Contains(testing::HasSubstr("<integerVal>40</integerVal>")));
    EXPECT_EQ(events(), expected);
    EXPECT_THAT(host.callsTo("SetParameterState"), Contains("SetParameterState(eventLog, reSync)"));
}

TEST_P(HartEventLogRoad, HiddenClassesAreNotAskedFor)
{
    view.HideClasses(true);
    read();
    readMore();
    EXPECT_THAT(host.sent.back(), Not(testing::HasSubstr("eventLogClass")));
    EXPECT_EQ(rows().back().eventClass, "");
    EXPECT_NE(rows().back().event, "");
}

} // namespace
} // namespace quill::shell
