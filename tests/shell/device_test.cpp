#include "shell/device.h"

#include "framework/documents.h"
#include "platform/failure.h"
#include "shell/device_link.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::shell {
namespace {

using documents::attributeText;
using documents::findItem;
using documents::itemValue;
using documents::responseAttribute;
using testing::ElementsAre;

std::string resource(const char* name)
{
    QFile file{QStringLiteral(QUILL_SOURCE_DIR "/shell/data/") + name};
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
}

SimulatedDevice sampleDevice()
{
    return SimulatedDevice{documents::openText(resource("vx4400h.xml")),
                           resource("vx4400h_device.xml")};
}

std::string request(const std::string& name, const std::string& access,
                    const std::string& items = {})
{
    return "<communicationRequest name=\"" + name + "\" access=\"" + access + "\">" + items +
           "</communicationRequest>";
}

std::string item(const std::string& name, const std::string& unit, const std::string& type,
                 const std::string& value)
{
    return "<item name=\"" + name + "\" unit=\"" + unit + "\"><" + type + ">" + value + "</" +
           type + "></item>";
}

/// The answer of a device that answers in one part.
IXMLDOMDocument answer(SimulatedDevice& device, const std::string& request)
{
    const auto parts = device.answer(request);
    EXPECT_EQ(parts.size(), 1U);
    return documents::openText(parts.at(0));
}

std::vector<std::string> itemNames(const IXMLDOMNode& response)
{
    std::vector<std::string> names;
    for (const IXMLDOMNode& name : response.selectNodes("//comm:item/@name")) {
        names.push_back(name.get_text());
    }
    return names;
}

/// Code of an error response with the names of its items.
std::vector<std::string> failure(const IXMLDOMNode& response)
{
    EXPECT_EQ(responseAttribute(response, "responseStatus"), "error");
    auto all = itemNames(response);
    all.insert(all.begin(), responseAttribute(response, "errorCode"));
    return all;
}

TEST(SimulatedDevice, ReadsAWholeRequestGroupWithItsClones)
{
    auto       device   = sampleDevice();
    const auto response = answer(device, request("diagnostics", "read"));
    EXPECT_EQ(responseAttribute(response, "name"), "diagnostics");
    EXPECT_EQ(responseAttribute(response, "access"), "read");
    EXPECT_EQ(responseAttribute(response, "responseStatus"), "ok");
    EXPECT_EQ(responseAttribute(response, "errorCode"), "");
    EXPECT_EQ(responseAttribute(response, "isFinal"), "1");
    EXPECT_THAT(itemNames(response),
                ElementsAre("supplyPressure", "actuatorPressure", "deviceTemperature",
                            "maximumTemperature", "minimumTemperature", "operatingTime",
                            "cycleCounter"));
    EXPECT_EQ(itemValue(findItem(response, "operatingTime"), "integerVal"), "8611");
}

TEST(SimulatedDevice, AnswersInItsOwnUnits)
{
    auto       device   = sampleDevice();
    const auto response = answer(device, request("pressure", "read"));
    EXPECT_EQ(attributeText(findItem(response, "supplyPressure"), "unit"), "psi");
    EXPECT_EQ(itemValue(findItem(response, "supplyPressure"), "floatVal"), "81.35");
}

TEST(SimulatedDevice, AnEmptyUnitGoesOutAsNoUnit)
{
    auto       device   = sampleDevice();
    const auto response = answer(device, request("tuning", "read"));
    EXPECT_EQ(attributeText(findItem(response, "proportionalGain"), "unit"), "noUnit");
}

TEST(SimulatedDevice, ReadsTheListedItemsOnly)
{
    auto       device = sampleDevice();
    const auto response =
        answer(device, request("pressure", "read",
                               "<item name=\"tag\" unit=\"noUnit\"><stringVal/></item>"));
    EXPECT_THAT(itemNames(response), ElementsAre("tag"));
}

TEST(SimulatedDevice, TakesARequestInTheMessagesNamespaceToo)
{
    auto device = sampleDevice();
    EXPECT_THAT(itemNames(answer(device, "<?xml version=\"1.0\"?><dtm xmlns=\"x-schema:"
                                         "QVXCommunicationSchema.xml\"><communicationRequest "
                                         "name=\"x\" access=\"read\"><item name=\"tag\" "
                                         "unit=\"noUnit\"><stringVal/></item>"
                                         "</communicationRequest></dtm>")),
                ElementsAre("tag"));
}

TEST(SimulatedDevice, KeepsWhatIsWritten)
{
    auto       device = sampleDevice();
    const auto response =
        answer(device, request("identification", "write",
                               item("tag", "noUnit", "stringVal", "FV-7 &lt;A>") +
                                   item("pollingAddress", "noUnit", "integerVal", "12")));
    EXPECT_EQ(responseAttribute(response, "access"), "write");
    EXPECT_EQ(itemValue(findItem(response, "tag"), "stringVal"), "FV-7 <A>");
    EXPECT_EQ(device.find("tag")->value, "FV-7 <A>");
    EXPECT_EQ(device.find("pollingAddress")->value, "12");
}

TEST(SimulatedDevice, ConvertsWhatIsWrittenInAnotherUnit)
{
    auto       device   = sampleDevice();
    const auto response = answer(
        device, request("pressure", "write", item("supplyLowPressure", "bar", "floatVal", "4")));
    const auto taken = findItem(response, "supplyLowPressure");
    EXPECT_EQ(attributeText(taken, "unit"), "psi");
    EXPECT_NEAR(std::stod(itemValue(taken, "floatVal")), 58.0151, 1e-3);
}

TEST(SimulatedDevice, AnswersWithTheNearestValueThatItTakes)
{
    auto device = sampleDevice();
    EXPECT_EQ(
        itemValue(findItem(answer(device, request("assembly", "write",
                                                  item("ratedTravel", "mm", "floatVal", "1000"))),
                           "ratedTravel"),
                  "floatVal"),
        "300");
    // The limits are in the device's unit: 8 bar.
    EXPECT_NEAR(
        std::stod(itemValue(
            findItem(answer(device, request("pressure", "write",
                                            item("supplyHighPressure", "psi", "floatVal", "900"))),
                     "supplyHighPressure"),
            "floatVal")),
        116.03, 0.01);
    EXPECT_EQ(itemValue(findItem(answer(device,
                                        request("identification", "write",
                                                item("tag", "noUnit", "stringVal", "ABCDEFGHIJ"))),
                                 "tag"),
                        "stringVal"),
              "ABCDEFGH");
}

TEST(SimulatedDevice, RefusesWhatMakesNoSense)
{
    auto       device  = sampleDevice();
    const auto refused = [&](const std::string& name, const std::string& type,
                             const std::string& value) {
        return failure(answer(device, request("x", "write", item(name, "noUnit", type, value))));
    };
    const auto wrong = [](const char* name) {
        return ElementsAre("hartCmdErrInvalidSelection", name);
    };
    EXPECT_THAT(refused("pollingAddress", "integerVal", "twelve"), wrong("pollingAddress"));
    EXPECT_THAT(refused("pollingAddress", "integerVal", ""), wrong("pollingAddress"));
    EXPECT_THAT(refused("valveType", "integerVal", "9"), wrong("valveType"));
    EXPECT_THAT(refused("alarmHighAction_2", "integerVal", "77"), wrong("alarmHighAction_2"));
    EXPECT_THAT(refused("installationDate", "dateVal", "31.2.2024"), wrong("installationDate"));
    EXPECT_THAT(refused("dailyTestTime", "dateVal", "25:00:00"), wrong("dailyTestTime"));
    EXPECT_THAT(refused("serialNumber", "integerVal", "1"),
                ElementsAre("hartCmdErrAccessRestricted", "serialNumber"));
    EXPECT_EQ(device.find("pollingAddress")->value, "0");
    EXPECT_EQ(device.find("serialNumber")->value, "104417");
}

TEST(SimulatedDevice, TakesValuesOfSharedListsAndBitsOfMasks)
{
    auto device = sampleDevice();
    EXPECT_EQ(
        responseAttribute(
            answer(device, request("alarms", "write",
                                   item("alarmHighAction_2", "noUnit", "integerVal", "3") +
                                       item("alarmMask", "noUnit", "integerVal", "7") +
                                       item("gearFactor", "noUnit", "floatVal", "2.0") +
                                       item("dailyTestTime", "noUnit", "stringVal", "5:05:00"))),
            "responseStatus"),
        "ok");
    EXPECT_EQ(device.find("alarmMask")->value, "7");
}

TEST(SimulatedDevice, ServesTheOthersWhenSomeItemsFail)
{
    auto       device = sampleDevice();
    const auto parts =
        device.answer(request("x", "read", "<item name='tag'/><item name='a'/><item name='b'/>"));
    ASSERT_EQ(parts.size(), 2U);
    const auto served = documents::openText(parts[0]);
    EXPECT_EQ(responseAttribute(served, "responseStatus"), "ok");
    EXPECT_EQ(responseAttribute(served, "isFinal"), "0");
    EXPECT_THAT(itemNames(served), ElementsAre("tag"));
    const auto missing = documents::openText(parts[1]);
    EXPECT_EQ(responseAttribute(missing, "isFinal"), "1");
    EXPECT_THAT(failure(missing), ElementsAre("missingItems", "a", "b"));
}

TEST(SimulatedDevice, FailsAsItIsTold)
{
    auto device = sampleDevice();
    device.failNext("communicationError");
    device.failNext("missingItems", {"tag"});
    EXPECT_THAT(failure(answer(device, request("output", "read"))),
                ElementsAre("communicationError", "tag", "signalLowCurrent", "signalHighCurrent",
                            "secondaryOutput", "outputFailureCurrent", "writeProtectionMode"));
    EXPECT_THAT(failure(answer(device, request("output", "read"))),
                ElementsAre("missingItems", "tag"));
    EXPECT_EQ(responseAttribute(answer(device, request("output", "read")), "responseStatus"), "ok");
}

TEST(SimulatedDevice, AFailedWriteChangesNothing)
{
    auto device = sampleDevice();
    device.failNext("communicationError");
    failure(answer(device, request("x", "write", item("tag", "noUnit", "stringVal", "NEW"))));
    EXPECT_EQ(device.find("tag")->value, "PV-4101");
}

TEST(SimulatedDevice, AParameterCanFailForGood)
{
    auto device = sampleDevice();
    device.failAlways("tag", "missingItems");
    for (int i = 0; i < 2; ++i) {
        const auto parts = device.answer(request("identification", "read"));
        ASSERT_EQ(parts.size(), 2U);
        EXPECT_THAT(failure(documents::openText(parts[1])), ElementsAre("missingItems", "tag"));
    }
    device.failAlways("tag", "");
    EXPECT_EQ(device.answer(request("identification", "read")).size(), 1U);
}

TEST(SimulatedDevice, DoesNotKnowEveryCommand)
{
    auto device = sampleDevice();
    EXPECT_THAT(failure(answer(device, request("noSuchGroup", "read"))),
                ElementsAre("commandIsNotImplemented"));
    EXPECT_THAT(failure(answer(device, request("pressure", "dance")))[0],
                "commandIsNotImplemented");
}

TEST(SimulatedDevice, SurvivesAnythingThatIsNoRequest)
{
    auto device = sampleDevice();
    for (const char* text : {"", "<", "<dtm/>", "<communicationRequest/>", "no xml at all",
                             "<communicationRequest name='x' access='read'><item/>"
                             "</communicationRequest>"}) {
        EXPECT_THAT(failure(answer(device, text)), ElementsAre("communicationError")) << text;
    }
}

TEST(SimulatedDevice, ItsMemoryHoldsParametersOfItsTypeOnly)
{
    const auto device = sampleDevice();
    const auto memory = documents::openText(resource("vx4400h_device.xml"));
    for (const IXMLDOMNode& entry : memory.selectNodes("//comm:item")) {
        const DeviceParameter* parameter = device.find(attributeText(entry, "name"));
        ASSERT_TRUE(parameter) << attributeText(entry, "name");
        EXPECT_EQ(parameter->value, itemValue(entry, parameter->type));
    }
}

TEST(SimulatedDevice, HasAKnob)
{
    auto device = sampleDevice();
    device.set("supplyPressure", "12.5");
    EXPECT_EQ(itemValue(findItem(answer(device, request("pressure", "read")), "supplyPressure"),
                        "floatVal"),
              "12.5");
    EXPECT_THROW(device.set("flux", "1"), platform::Failure);
}

/// Names of the responses that have arrived.
std::vector<std::string> arrived(const QSignalSpy& spy)
{
    std::vector<std::string> names;
    for (const auto& arguments : spy) {
        names.push_back(responseAttribute(
            documents::openText(arguments.at(0).toString().toStdString()), "name"));
    }
    return names;
}

TEST(DeviceLink, AnswersInOrderAndNeverFromWithinTheCall)
{
    auto       device = sampleDevice();
    DeviceLink link{device};
    QSignalSpy responses{&link, &DeviceLink::responseArrived};
    QSignalSpy busy{&link, &DeviceLink::busyChanged};
    link.send(request("tuning", "read"));
    link.send(request("burst", "read"));
    link.send(request("output", "read"));
    EXPECT_TRUE(responses.isEmpty());
    EXPECT_TRUE(link.isBusy());
    while (link.isBusy()) {
        QCoreApplication::processEvents();
    }
    EXPECT_THAT(arrived(responses), ElementsAre("tuning", "burst", "output"));
    ASSERT_EQ(busy.size(), 2);
    EXPECT_TRUE(busy[0][0].toBool());
    EXPECT_FALSE(busy[1][0].toBool());
}

TEST(DeviceLink, WaitsBeforeEachResponse)
{
    auto       device = sampleDevice();
    DeviceLink link{device};
    QSignalSpy responses{&link, &DeviceLink::responseArrived};
    link.setDelay(std::chrono::milliseconds{40});
    QElapsedTimer clock;
    clock.start();
    link.send(request("tuning", "read"));
    link.send(request("burst", "read"));
    while (link.isBusy()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    EXPECT_GE(clock.elapsed(), 75);
    EXPECT_EQ(responses.size(), 2);
}

TEST(DeviceLink, ARequestSeesWhatTheOneBeforeHasWritten)
{
    auto       device = sampleDevice();
    DeviceLink link{device};
    QSignalSpy responses{&link, &DeviceLink::responseArrived};
    link.send(request("x", "write", item("tag", "noUnit", "stringVal", "A1")));
    link.send(request("identification", "read"));
    while (link.isBusy()) {
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(
        itemValue(findItem(documents::openText(responses[1][0].toString().toStdString()), "tag"),
                  "stringVal"),
        "A1");
}

TEST(DeviceLink, AReceiverMaySendTheNextRequest)
{
    auto       device = sampleDevice();
    DeviceLink link{device};
    QSignalSpy responses{&link, &DeviceLink::responseArrived};
    bool       again = true;
    QObject::connect(&link, &DeviceLink::responseArrived, &link, [&] {
        if (std::exchange(again, false)) {
            link.send(request("burst", "read"));
        }
    });
    link.send(request("tuning", "read"));
    while (link.isBusy()) {
        QCoreApplication::processEvents();
    }
    EXPECT_THAT(arrived(responses), ElementsAre("tuning", "burst"));
}

TEST(DeviceLink, NothingArrivesAfterItWasCancelled)
{
    auto       device = sampleDevice();
    DeviceLink link{device};
    QSignalSpy responses{&link, &DeviceLink::responseArrived};
    QObject::connect(&link, &DeviceLink::responseArrived, &link, [&] { link.cancel(); });
    link.send(request("tuning", "read"));
    link.send(request("burst", "read"));
    while (link.isBusy()) {
        QCoreApplication::processEvents();
    }
    for (int i = 0; i < 10; ++i) {
        QCoreApplication::processEvents();
    }
    EXPECT_THAT(arrived(responses), ElementsAre("tuning"));
}

} // namespace
} // namespace quill::shell
