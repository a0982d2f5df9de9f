#include "shell/device_events.h"

#include "device_requests.h"
#include "event_keys.h"
#include "platform/failure.h"
#include "shell/translator.h"

#include <QRegularExpression>

#include <set>

namespace quill::shell {
namespace {

using namespace test;
using testing::ElementsAre;

DeviceEvents& events(SimulatedDevice& device)
{
    return *device.function<DeviceEvents>();
}

const DeviceEvent& newest(SimulatedDevice& device, int back = 0)
{
    const EventRing& ring = events(device).ring();
    return *ring.find(ring.next() - 1 - back);
}

std::vector<std::string> newestKeys(SimulatedDevice& device, int count)
{
    std::vector<std::string> all;
    for (int i = 0; i < count; ++i) {
        all.push_back(newest(device, i).key);
    }
    return all;
}

std::string continued(int index, bool withClasses = true)
{
    return "<?xml version=\"1.0\"?><dtm xmlns=\"x-schema:QVXCommunicationSchema.xml\">"
           "<communicationRequest name=\"eventLogContinued\" access=\"write\" datasetSave=\"0\">" +
           item("eventLogIndex", "noUnit", "integerVal", std::to_string(index)) +
           (withClasses ? item("eventLogClass", "noUnit", "integerVal", "9") : "") +
           "</communicationRequest></dtm>";
}

const std::string kNextOfFieldbus =
    "<?xml version=\"1.0\"?><dtm xmlns=\"x-schema:QVXCommunicationSchema.xml\">"
    "<communicationRequest name=\"eventLog\" access=\"read\" datasetSave=\"0\">"
    "<item name=\"eventLogNextEvent01\" unit=\"noUnit\"><stringVal/></item>"
    "<item name=\"eventLogNextTime01\" unit=\"noUnit\"><stringVal/></item>"
    "</communicationRequest></dtm>";

std::vector<std::string> isFinal(const std::vector<IXMLDOMDocument>& parts)
{
    std::vector<std::string> all;
    for (const IXMLDOMDocument& part : parts) {
        all.push_back(documents::responseAttribute(part, "isFinal"));
    }
    return all;
}

/// Values of "eventLogEvent" and its like over a read, in the order of the indexes.
std::vector<std::string> pieces(const std::vector<IXMLDOMDocument>& parts,
                                const std::string& beginning, int first, int count)
{
    std::vector<std::string> all;
    for (int i = first; i < first + count; ++i) {
        const std::string suffix = (i < 10 ? "0" : "") + std::to_string(i);
        all.push_back(valueIn(parts, beginning + suffix));
    }
    return all;
}

/// What the ring holds from the newest on, as a reader gets it.
std::vector<std::string> expectedKeys(SimulatedDevice& device, std::size_t first, std::size_t count)
{
    EventReader reader;
    reader.start(events(device).ring());
    return keys(reader.page(events(device).ring(), first, count));
}

TEST(HartEventLog, GivesThirtyEventsInThreeMessages)
{
    auto       device = fullDevice("vx4400h");
    const auto parts  = ask(device, request("eventLog", "read"));
    EXPECT_THAT(isFinal(parts), ElementsAre("0", "0", "1"));
    EXPECT_EQ(documents::responseAttribute(parts[1], "name"), "eventLog");
    EXPECT_EQ(documents::responseAttribute(parts[1], "responseStatus"), "ok");
    for (std::size_t i = 0; i < 3; ++i) {
        const std::string ten = std::to_string(i);
        EXPECT_EQ(itemNames(parts[i]).size(), 30U);
        EXPECT_TRUE(documents::findItem(parts[i], "eventLogEvent" + ten + "0"));
        EXPECT_TRUE(documents::findItem(parts[i], "eventLogClass" + ten + "0"));
        EXPECT_TRUE(documents::findItem(parts[i], "eventLogTime" + ten + "9"));
    }
    EXPECT_EQ(pieces(parts, "eventLogEvent", 0, 30), expectedKeys(device, 0, 30));
    EXPECT_EQ(valueIn(parts, "eventLogEvent00"), "vx4400eventConfigurationChanged");
    EXPECT_EQ(valueIn(parts, "eventLogClass00"), kEventClassNotification);
    EXPECT_EQ(valueIn(parts, "eventLogTime00"), "8610.25");
}

TEST(HartEventLog, GoesOnAtAnIndexWithinTheSameLog)
{
    auto device = fullDevice("vx4400h");
    ASSERT_EQ(ask(device, request("eventLog", "read")).size(), 3U);
    const auto second = expectedKeys(device, 30, 30);
    const auto third  = expectedKeys(device, 60, 30);
    events(device).log("vx4400eventMeanwhile");

    const auto page = ask(device, continued(30));
    EXPECT_THAT(isFinal(page), ElementsAre("0", "0", "1"));
    EXPECT_EQ(documents::responseAttribute(page[0], "name"), "eventLogContinued");
    EXPECT_EQ(documents::responseAttribute(page[0], "access"), "write");
    EXPECT_EQ(pieces(page, "eventLogEvent", 0, 30), second) << "indexes begin at 00 again";
    EXPECT_NE(valueIn(page, "eventLogClass07"), "?");

    const auto last = ask(device, continued(60));
    EXPECT_EQ(pieces(last, "eventLogEvent", 0, 30), third);
    EXPECT_EQ(valueIn(last, "eventLogEvent11"), kEventNone);
    EXPECT_EQ(valueIn(last, "eventLogClass11"), kEventClassNone);
    EXPECT_EQ(valueIn(last, "eventLogTime11"), "0.") << "by which a reader knows the end";
    EXPECT_EQ(valueIn(last, "eventLogEvent12"), kEventObsolete);

    ASSERT_EQ(ask(device, request("eventLog", "read")).size(), 3U);
    EXPECT_EQ(valueIn(ask(device, continued(0)), "eventLogEvent00"), "vx4400eventMeanwhile");
}

TEST(HartEventLog, LeavesClassesOutWhereNobodyShowsThem)
{
    auto       device = fullDevice("vx4400h");
    const auto parts  = ask(device, continued(30, false));
    ASSERT_EQ(parts.size(), 3U);
    EXPECT_EQ(itemNames(parts[0]).size(), 20U);
    EXPECT_EQ(valueIn(parts, "eventLogClass00"), "?");
    EXPECT_NE(valueIn(parts, "eventLogEvent00"), "?");
}

TEST(HartEventLog, RefusesToGoOnNobodyKnowsWhere)
{
    auto       device = fullDevice("vx4400h");
    const auto at     = [&](const std::string& index) {
        return outcome(ask(device, request("eventLogContinued", "write",
                                               item("eventLogIndex", "noUnit", "integerVal", index)))
                               .at(0));
    };
    EXPECT_THAT(at("x"), ElementsAre(kErrWrongValue, "eventLogIndex"));
    EXPECT_THAT(at("-1"), ElementsAre(kErrWrongValue, "eventLogIndex"));
    EXPECT_THAT(at(""), ElementsAre(kErrWrongValue, "eventLogIndex"));
    EXPECT_THAT(outcome(ask(device, request("eventLogContinued", "write")).at(0)),
                ElementsAre(kErrMissingItems));
    EXPECT_EQ(valueIn(ask(device, request("eventLogContinued", "write",
                                          item("eventLogIndex", "noUnit", "integerVal",
                                               "18446744073709551615"))),
                      "eventLogEvent00"),
              kEventObsolete);
}

TEST(HartEventLog, GivesWhatARequestLists)
{
    auto       device = fullDevice("vx4400h");
    const auto parts  = ask(device, request("eventLog", "read",
                                            item("eventLogEvent11", "noUnit", "stringVal", "") +
                                                item("eventLogTime03", "noUnit", "stringVal", "")));
    EXPECT_THAT(itemNames(parts[0]), ElementsAre("eventLogTime03"));
    EXPECT_THAT(itemNames(parts[1]), ElementsAre("eventLogEvent11"));
}

TEST(HartEventLog, FailsWhereItIsTold)
{
    auto device = fullDevice("vx4400h");
    device.failAlways("eventLogClass14", "communicationError");
    const auto parts = ask(device, request("eventLog", "read"));
    EXPECT_THAT(isFinal(parts), ElementsAre("0", "0", "0", "1"));
    EXPECT_EQ(itemNames(parts[1]).size(), 29U);
    EXPECT_THAT(outcome(parts[3]), ElementsAre("communicationError", "eventLogClass14"));

    device.failNext("communicationError");
    EXPECT_EQ(documents::responseAttribute(ask(device, continued(30)).at(0), "errorCode"),
              "communicationError");
}

TEST(HartEventLog, TellsTheOperationTime)
{
    auto       device = fullDevice("vx4400h");
    const auto total  = "<?xml version=\"1.0\"?><dtm xmlns=\"x-schema:QVXCommunicationSchema."
                        "xml\"><communicationRequest name=\"eventLogOperationTime\" "
                        "access=\"read\">\r\n<item name=\"eventLogTotalOperationTime\" "
                        "unit=\"h\"><floatVal/></item>\r\n</communicationRequest></dtm>";
    const auto parts  = ask(device, total);
    const auto answer = documents::findItem(parts.at(0), "eventLogTotalOperationTime");
    EXPECT_EQ(documents::attributeText(answer, "unit"), "h");
    EXPECT_EQ(documents::itemValue(answer, "floatVal"), "8611");
    device.advance(18);
    EXPECT_EQ(valueIn(ask(device, total), "eventLogTotalOperationTime"), "8611.005");
    EXPECT_NEAR(events(device).operationTime(), 8611.005, 1e-9);
}

TEST(FieldbusEventLog, GivesEventsWithClassesAndThenTimes)
{
    auto       device = fullDevice("vx4400f");
    const auto parts  = ask(device, request("eventLog", "read"));
    EXPECT_THAT(isFinal(parts), ElementsAre("0", "1"));
    EXPECT_EQ(itemNames(parts[0]).size(), 50U);
    EXPECT_EQ(itemNames(parts[1]).size(), 25U);
    EXPECT_EQ(pieces(parts, "eventLogEvent", 1, 25), expectedKeys(device, 0, 25));
    EXPECT_FALSE(documents::findItem(parts[0], "eventLogEvent00"));
    EXPECT_FALSE(documents::findItem(parts[0], "eventLogTime01"));
    EXPECT_EQ(valueIn(parts, "eventLogClass01"), kEventClassNotification);
    EXPECT_EQ(valueIn(parts, "eventLogTime01"), "3306.25");
}

TEST(FieldbusEventLog, EveryRequestForMoreGivesTheNextPage)
{
    auto device = fullDevice("vx4400f");
    ASSERT_EQ(ask(device, request("eventLog", "read")).size(), 2U);
    const auto second = expectedKeys(device, 25, 25);
    const auto third  = expectedKeys(device, 50, 25);
    events(device).log("vx4400eventMeanwhile");

    const auto page = ask(device, kNextOfFieldbus);
    EXPECT_THAT(isFinal(page), ElementsAre("0", "1"));
    EXPECT_EQ(documents::responseAttribute(page[0], "name"), "eventLog");
    EXPECT_EQ(pieces(page, "eventLogNextEvent", 1, 25), second);
    EXPECT_NE(valueIn({page[0]}, "eventLogNextClass25"), "?");
    EXPECT_NE(valueIn({page[1]}, "eventLogNextTime25"), "?");

    const auto last = ask(device, kNextOfFieldbus);
    EXPECT_EQ(pieces(last, "eventLogNextEvent", 1, 25), third);
    EXPECT_THAT(third, testing::Contains(kEventNone));
    EXPECT_EQ(valueIn(last, "eventLogNextTime25"), "0.");

    const auto behind = ask(device, kNextOfFieldbus);
    EXPECT_THAT(isFinal(behind), ElementsAre("1"));
    EXPECT_THAT(itemNames(behind[0]), ElementsAre());

    EXPECT_EQ(valueIn(ask(device, request("eventLog", "read")), "eventLogEvent01"),
              "vx4400eventMeanwhile")
        << "the first page again, of the log as it is now";
    EXPECT_EQ(pieces(ask(device, kNextOfFieldbus), "eventLogNextEvent", 1, 25),
              expectedKeys(device, 25, 25));
}

TEST(FieldbusEventLog, ARequestForMoreComesFirstAndGetsTheFirstPage)
{
    auto       device = fullDevice("vx4400f");
    const auto page   = ask(device, kNextOfFieldbus);
    EXPECT_EQ(pieces(page, "eventLogNextEvent", 1, 25), expectedKeys(device, 0, 25));
}

TEST(FieldbusEventLog, ItsOperationTimeIsACounter)
{
    auto device = fullDevice("vx4400f");
    device.advance(3600);
    const auto parts = ask(device, request("counters", "read"));
    EXPECT_EQ(valueIn(parts, "totalOperationTime"), "3308");
}

TEST(EventLog, LogsConditionsThatComeAndGo)
{
    auto device = fullDevice("vx4400h");
    status(device).setPresent(device, "statusPilotStageFailure", true);
    EXPECT_EQ(newest(device),
              (DeviceEvent{"vx4400eventPilotStageFailure", kEventClassAlarm, 8611}));
    device.advance(120);
    status(device).setPresent(device, "statusPilotStageFailure", false);
    EXPECT_EQ(newest(device).key, "vx4400eventPilotStageFailureOff");
    EXPECT_EQ(newest(device).eventClass, kEventClassNotification);
    EXPECT_NEAR(newest(device).hours, 8611 + 120.0 / 3600, 1e-6);

    const auto classOf = [&](const char* condition) {
        status(device).setPresent(device, condition, true);
        return newest(device).eventClass;
    };
    EXPECT_EQ(classOf("statusMemoryFailure"), kEventClassError);
    EXPECT_EQ(classOf("statusLocalOperation"), kEventClassWarning);
    EXPECT_EQ(classOf("statusSensorDrift"), kEventClassNotification);
}

TEST(EventLog, LogsWhatTheModelMakesOfAFault)
{
    auto       device = fullDevice("vx4400h");
    const auto before = events(device).ring().next();
    model(device).setFault(Fault::coverOpen, true);
    device.advance(5);
    model(device).setFault(Fault::coverOpen, false);
    device.advance(5);
    EXPECT_EQ(events(device).ring().next(), before + 2);
    EXPECT_THAT(newestKeys(device, 2),
                ElementsAre("vx4400eventCoverOpenOff", "vx4400eventCoverOpen"));
}

TEST(EventLog, AMaskedConditionLeavesNoEvent)
{
    auto       device = fullDevice("vx4400h");
    const auto answer =
        ask(device, request("deviceStatusMasks", "write", maskItem("statusMask1", "00000000")));
    ASSERT_EQ(documents::responseAttribute(answer.at(0), "responseStatus"), "ok");
    const auto before = events(device).ring().next();
    model(device).setFault(Fault::coverOpen, true);
    device.advance(5);
    EXPECT_EQ(events(device).ring().next(), before);
}

TEST(EventLog, LogsChangesOfTheConfigurationOnce)
{
    auto       device = fullDevice("vx4400h");
    const auto write  = [&](const std::string& items) {
        ASSERT_EQ(documents::responseAttribute(ask(device, request("x", "write", items)).at(0),
                                                "responseStatus"),
                   "ok");
    };
    const auto before = events(device).ring().next();
    write(item("ratedTravel", "mm", "floatVal", "30") + item("filterTime", "s", "floatVal", "1"));
    EXPECT_EQ(events(device).ring().next(), before + 1);
    EXPECT_EQ(newest(device).key, "vx4400eventConfigurationChanged");
    // A download writes one request group after the other.
    write(item("filterTime", "s", "floatVal", "2"));
    EXPECT_THAT(newestKeys(device, 2),
                ElementsAre("vx4400eventConfigurationChanged", kEventObsolete));
    EXPECT_FALSE(ask(device, request("identification", "read")).empty());
    EXPECT_EQ(events(device).ring().next(), before + 2) << "reading changes nothing";
}

TEST(EventLog, ARefusedWriteIsNoChange)
{
    auto       device = fullDevice("vx4400h");
    const auto before = events(device).ring().next();
    EXPECT_THAT(
        outcome(ask(device, request("x", "write", item("valveType", "noUnit", "integerVal", "77")))
                    .at(0)),
        ElementsAre(kErrWrongValue, "valveType"));
    EXPECT_EQ(events(device).ring().next(), before);
}

TEST(EventLog, HistoryLiesBeforeNowAndWithinTheDevicesLife)
{
    const std::vector<PastEvent> history = {{"late", kEventClassAlarm, 1},
                                            {"before its time", kEventClassAlarm, 9000},
                                            {"early", kEventClassAlarm, 8000}};
    SimulatedDevice              device{documents::openText(sampleText("vx4400h.xml"))};
    device.add(std::make_unique<DeviceEvents>(history));
    EXPECT_THAT(keys(events(device).ring()), ElementsAre("early", "late"));
    EXPECT_NEAR(newest(device).hours, 8122.4, 1e-9);
}

TEST(EventLog, ADeviceWithoutTheParametersKeepsALogAllTheSame)
{
    SimulatedDevice device{documents::openText(
        "<dtm xmlns=\"x-schema:QVXDatafileSchema.xml\" "
        "xmlns:t=\"x-schema:QVXDeviceTypeInfoSchema.xml\"><persistentData><t:device>"
        "<t:internalInfo name=\"OTHER-H\"/></t:device></persistentData></dtm>")};
    device.add(std::make_unique<DeviceEvents>());
    device.advance(36);
    events(device).log("vx4400eventStatusReset");
    const auto parts = ask(device, request("eventLog", "read"));
    EXPECT_EQ(parts.size(), 3U);
    EXPECT_EQ(valueIn(parts, "eventLogTime00"), "0.01");
    EXPECT_EQ(valueIn(parts, "eventLogEvent01"), kEventNone);
}

TEST(EventHistory, IsReadInItsOrder)
{
    const auto history = readEventHistory(
        "<h><event hoursAgo='2.5' class='c' event='a'/><event hoursAgo='1' class='d' event='b'/>"
        "</h>");
    ASSERT_EQ(history.size(), 2U);
    EXPECT_EQ(history[0].key, "a");
    EXPECT_EQ(history[0].eventClass, "c");
    EXPECT_EQ(history[0].hoursAgo, 2.5);
    EXPECT_EQ(history[1].key, "b");
    for (const char* wrong : {"", "<h>", "<h><event class='c' event='a'/></h>",
                              "<h><event hoursAgo='soon' class='c' event='a'/></h>",
                              "<h><event hoursAgo='1' class='c'/></h>"}) {
        EXPECT_THROW((void)readEventHistory(wrong), platform::Failure) << wrong;
    }
}

TEST(EventHistory, TheSamplesHistoryFillsSomePagesOfBothDevices)
{
    const auto history = readEventHistory(sampleText("event_history.xml"));
    EXPECT_GT(history.size(), 60U);
    int resets = 0;
    for (const PastEvent& past : history) {
        resets += past.key == kEventExternalReset ? 1 : 0;
    }
    EXPECT_GE(resets, 2);
    for (const char* type : {"vx4400h", "vx4400f"}) {
        auto device = fullDevice(type);
        EXPECT_EQ(events(device).ring().size(), history.size()) << type;
    }
}

// --- Texts ------------------------------------------------------------------------------------

TEST(EventTexts, EveryEventOfTheDevicesHasOneInEveryLanguage)
{
    std::set<std::string> all = {kEventNone,         kEventObsolete,         kEventExternalReset,
                                 kEventClassNone,    kEventClassError,       kEventClassAlarm,
                                 kEventClassWarning, kEventClassNotification};
    for (const PastEvent& past : readEventHistory(sampleText("event_history.xml"))) {
        all.insert({past.key, past.eventClass});
    }
    for (const char* type : {"vx4400h", "vx4400f"}) {
        SimulatedDevice device = fullDevice(type);
        events(device).clear();
        for (const DeviceCondition& condition : status(device).conditions()) {
            device.tellCondition(condition.name, true);
            device.tellCondition(condition.name, false);
        }
        for (auto number = events(device).ring().oldest(); number < events(device).ring().next();
             ++number) {
            all.insert(events(device).ring().find(number)->key);
        }
    }
    // What the program itself logs.
    const QRegularExpression literal{QStringLiteral("\"(vx4400event[A-Za-z]+)\"")};
    for (const char* source : {"device_events.cpp", "device_actions.cpp", "address_service.cpp"}) {
        QFile file{QString::fromStdString(QUILL_SOURCE_DIR "/shell/") + source};
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << source;
        auto found = literal.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext()) {
            all.insert(found.next().captured(1).toStdString());
        }
    }
    EXPECT_GT(all.size(), 100U);
    CatalogueTranslator texts;
    for (const std::string& language : CatalogueTranslator::languages()) {
        ASSERT_TRUE(texts.setLanguage(language));
        for (const std::string& key : all) {
            EXPECT_FALSE(texts.Translate(key).starts_with("Err:")) << key << " in " << language;
        }
    }
}

} // namespace
} // namespace quill::shell
