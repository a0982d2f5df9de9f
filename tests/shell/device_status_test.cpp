#include "device_requests.h"

#include "platform/failure.h"
#include "shell/device_status_rules.h"

#include <algorithm>
#include <map>
#include <memory>

namespace quill::shell {
namespace {

using documents::responseAttribute;
using test::ask;
using test::fullDevice;
using test::item;
using test::itemNames;
using test::model;
using test::outcome;
using test::reported;
using test::request;
using test::status;
using testing::ElementsAre;

/// Hears which conditions come and go.
class Listener : public DeviceFunction {
public:
    std::vector<std::string> heard;

    void conditionChanged(SimulatedDevice&, const std::string& condition, bool active) override
    {
        heard.push_back(condition + (active ? " on" : " off"));
    }
};

class Status : public testing::Test {
protected:
    Status()
    {
        model(device).setDemand(12);
        device.advance(30);
        device.add(std::make_unique<Listener>());
        listener = device.function<Listener>();
    }

    SimulatedDevice device   = fullDevice("vx4400h");
    Listener*       listener = nullptr;
};

TEST_F(Status, ComesInThreeParts)
{
    const auto parts = ask(device, request("deviceStatus", "read"));
    ASSERT_EQ(parts.size(), 3U);
    std::vector<std::string> names;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        EXPECT_EQ(responseAttribute(parts[i], "name"), "deviceStatus");
        EXPECT_EQ(responseAttribute(parts[i], "access"), "read");
        EXPECT_EQ(responseAttribute(parts[i], "responseStatus"), "ok");
        EXPECT_EQ(responseAttribute(parts[i], "isFinal"), i == 2 ? "1" : "0");
        for (const std::string& name : itemNames(parts[i])) {
            names.push_back(name);
            const DeviceCondition* condition = status(device).find(name);
            ASSERT_TRUE(condition) << name;
            EXPECT_EQ(condition->hasMask() ? condition->maskByte / 4 : 0, static_cast<int>(i));
            const std::string value =
                documents::itemValue(documents::findItem(parts[i], name), "integerVal");
            EXPECT_EQ(value, condition->isReported ? "1" : "0");
        }
    }
    EXPECT_EQ(names.size(), status(device).conditions().size());
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
}

TEST_F(Status, AHealthyDeviceReportsNothing)
{
    for (const DeviceCondition& condition : status(device).conditions()) {
        EXPECT_FALSE(condition.isReported) << condition.name;
    }
}

TEST_F(Status, AHealthyDeviceReportsNothingAllDay)
{
    model(device).setDemand(std::nullopt);
    device.advance(3600);
    EXPECT_TRUE(listener->heard.empty()) << testing::PrintToString(listener->heard);
}

TEST_F(Status, GivesTheConditionsThatARequestLists)
{
    const auto parts =
        ask(device, request("deviceStatus", "read",
                            "<item name='statusFrictionHigh'/><item name='statusCavitation'/>"
                            "<item name='statusNothing'/>"));
    ASSERT_EQ(parts.size(), 3U);
    EXPECT_THAT(outcome(parts[0]), ElementsAre("", "statusFrictionHigh"));
    EXPECT_THAT(outcome(parts[1]), ElementsAre("", "statusCavitation"));
    EXPECT_THAT(outcome(parts[2]), ElementsAre("missingItems", "statusNothing"));
    EXPECT_EQ(responseAttribute(parts[2], "isFinal"), "1");
}

TEST_F(Status, AConditionThatCannotBeReadFails)
{
    device.failAlways("statusCavitation", "hartCmdErrNoDataAvailable");
    const auto parts = ask(device, request("deviceStatus", "read"));
    ASSERT_EQ(parts.size(), 4U);
    EXPECT_THAT(outcome(parts[3]), ElementsAre("hartCmdErrNoDataAvailable", "statusCavitation"));
    EXPECT_EQ(test::valueIn({parts[0], parts[1], parts[2]}, "statusCavitation"), "?");
}

TEST_F(Status, CannotBeWritten)
{
    EXPECT_EQ(responseAttribute(
                  ask(device, request("deviceStatus", "write",
                                      item("statusCavitation", "noUnit", "integerVal", "1")))[0],
                  "errorCode"),
              "missingItems");
}

/// A fault, and the condition by which the diagnosis tells of it.
struct Cause {
    Fault       fault;
    const char* condition;
};

class StatusCause : public Status, public testing::WithParamInterface<Cause> {};

TEST_P(StatusCause, MakesTheConditionComeAndGo)
{
    const auto [fault, condition] = GetParam();
    // What friction and slips are can only be seen when the valve moves.
    model(device).setDemand(std::nullopt);
    EXPECT_EQ(reported(device, condition), "0");
    model(device).setFault(fault, true);
    device.advance(300);
    EXPECT_EQ(reported(device, condition), "1");
    EXPECT_THAT(listener->heard, testing::Contains(std::string{condition} + " on"));
    model(device).setFault(fault, false);
    device.advance(600);
    EXPECT_EQ(reported(device, condition), "0");
    EXPECT_THAT(listener->heard, testing::Contains(std::string{condition} + " off"));
}

INSTANTIATE_TEST_SUITE_P(
    Device, StatusCause,
    testing::Values(
        Cause{Fault::supplyFailure, "statusSupplyPressureLow"},
        Cause{Fault::supplyFailure, "statusTravelDeviation"},
        Cause{Fault::supplyFailure, "statusDriveSaturated"},
        Cause{Fault::supplyFailure, "statusTravelLow"},
        Cause{Fault::supplyTooHigh, "statusSupplyPressureHigh"},
        Cause{Fault::friction, "statusFrictionHigh"}, Cause{Fault::friction, "statusStickSlip"},
        Cause{Fault::wornPacking, "statusFrictionLow"}, Cause{Fault::leak, "statusPneumaticLeak"},
        Cause{Fault::travelSensor, "statusTravelSensorFailure"},
        Cause{Fault::supplySensor, "statusSupplySensorFailure"},
        Cause{Fault::actuatorSensor, "statusActuatorSensorFailure"},
        Cause{Fault::temperatureSensor, "statusTemperatureSensorFailure"},
        Cause{Fault::overheating, "statusTemperatureHigh"},
        Cause{Fault::frost, "statusTemperatureLow"}, Cause{Fault::coverOpen, "statusCoverOpen"},
        Cause{Fault::signalLost, "statusSignalLow"},
        Cause{Fault::signalOscillating, "statusSetpointOscillating"},
        Cause{Fault::simulation, "statusSimulationActive"}),
    [](const auto& tested) {
        return faultName(tested.param.fault) + "_" + tested.param.condition;
    });

TEST_F(Status, AStuckValveIsFound)
{
    model(device).setFault(Fault::stuck, true);
    model(device).setDemand(18);
    device.advance(40);
    EXPECT_EQ(reported(device, "statusValveStuck"), "1");
    EXPECT_EQ(reported(device, "statusTravelDeviation"), "1");
    EXPECT_EQ(reported(device, "statusPneumaticLeak"), "0");
    model(device).setFault(Fault::stuck, false);
    device.advance(40);
    EXPECT_EQ(reported(device, "statusValveStuck"), "0");
}

TEST_F(Status, AValveWithoutAirIsNotStuck)
{
    model(device).setFault(Fault::supplyFailure, true);
    device.advance(60);
    EXPECT_EQ(reported(device, "statusTravelDeviation"), "1");
    EXPECT_EQ(reported(device, "statusValveStuck"), "0");
}

TEST_F(Status, AFailedSensorHidesWhatItCannotSee)
{
    model(device).setFault(Fault::supplyFailure, true);
    model(device).setFault(Fault::supplySensor, true);
    model(device).setFault(Fault::travelSensor, true);
    device.advance(60);
    EXPECT_EQ(reported(device, "statusSupplyPressureLow"), "0");
    EXPECT_EQ(reported(device, "statusTravelDeviation"), "0");
    EXPECT_EQ(reported(device, "statusDriveSaturated"), "0");
    EXPECT_EQ(reported(device, "statusTravelSensorFailure"), "1");
}

TEST_F(Status, ItsLimitsAreParametersInAnyUnit)
{
    (void)device.answer(request("x", "write", item("supplyLowPressure", "bar", "floatVal", "5.8")));
    device.advance(3);
    EXPECT_EQ(reported(device, "statusSupplyPressureLow"), "1");
    (void)device.answer(request("x", "write", item("supplyLowPressure", "bar", "floatVal", "5.5")));
    device.advance(3);
    EXPECT_EQ(reported(device, "statusSupplyPressureLow"), "0");
}

TEST_F(Status, ALimitMustBePassedForAWhile)
{
    device.set("supplyLowPressure", "100"); // psi
    device.advance(0.4);
    device.set("supplyLowPressure", "50");
    device.advance(0.4);
    device.set("supplyLowPressure", "100");
    device.advance(0.9);
    EXPECT_EQ(reported(device, "statusSupplyPressureLow"), "0");
    device.advance(0.2);
    EXPECT_EQ(reported(device, "statusSupplyPressureLow"), "1");
}

TEST_F(Status, CountersHaveLimits)
{
    (void)device.answer(
        request("x", "write", item("cycleCounterLimit", "noUnit", "integerVal", "47000")));
    device.advance(1);
    EXPECT_EQ(reported(device, "statusCycleCounterLimit"), "1");
    device.set("cycleCounter", "0");
    device.advance(1);
    EXPECT_EQ(reported(device, "statusCycleCounterLimit"), "0");
    (void)device.answer(request("x", "write", item("travelSumLimit", "m", "floatVal", "2000")));
    device.advance(1);
    EXPECT_EQ(reported(device, "statusTravelSumLimit"), "1");
}

TEST_F(Status, TravelAlarmsFollowTheTravel)
{
    model(device).setDemand(20);
    device.advance(30);
    EXPECT_EQ(reported(device, "statusTravelHigh"), "1");
    EXPECT_EQ(reported(device, "statusTravelLow"), "0");
    model(device).setDemand(4);
    device.advance(30);
    EXPECT_EQ(reported(device, "statusTravelHigh"), "0");
    EXPECT_EQ(reported(device, "statusTravelLow"), "1");
}

TEST_F(Status, TheInputSignalCanBeTooHigh)
{
    model(device).setDemand(21);
    device.advance(10);
    EXPECT_EQ(reported(device, "statusSignalHigh"), "1");
}

TEST_F(Status, AFixedOutputAndWriteProtectionAreReported)
{
    model(device).fixOutputCurrent(4);
    device.set("writeProtectionMode", "1");
    device.advance(0.1);
    EXPECT_EQ(reported(device, "statusLoopCurrentFixed"), "1");
    EXPECT_EQ(reported(device, "statusWriteProtected"), "1");
}

TEST_F(Status, ConditionsThatNothingMeasuresAreSwitched)
{
    status(device).setPresent(device, "statusMemoryFailure", true);
    EXPECT_EQ(reported(device, "statusMemoryFailure"), "1");
    device.advance(100);
    EXPECT_EQ(reported(device, "statusMemoryFailure"), "1");
    status(device).setPresent(device, "statusMemoryFailure", false);
    EXPECT_EQ(reported(device, "statusMemoryFailure"), "0");
    EXPECT_THAT(listener->heard, ElementsAre("statusMemoryFailure on", "statusMemoryFailure off"));
}

TEST_F(Status, WhatIsMeasuredCannotBeSwitched)
{
    EXPECT_THROW(status(device).setPresent(device, "statusFrictionHigh", true), platform::Failure);
    EXPECT_THROW(status(device).setPresent(device, "statusNothing", true), platform::Failure);
    EXPECT_THROW(status(device).setPresent(device, "", true), platform::Failure);
}

TEST_F(Status, EveryConditionIsEitherMeasuredOrSwitched)
{
    int measured = 0;
    for (const DeviceCondition& condition : status(device).conditions()) {
        measured += condition.isMeasured ? 1 : 0;
        EXPECT_EQ(condition.isMeasured, findRule(condition.name) != nullptr);
        if (!condition.isMeasured) {
            status(device).setPresent(device, condition.name, true);
        }
    }
    EXPECT_GE(measured, 25);
    long reportedNow = 0;
    for (const IXMLDOMDocument& part : ask(device, request("deviceStatus", "read"))) {
        reportedNow += part.selectNodes("//comm:item[comm:integerVal='1']").get_length();
    }
    // Two are masked in this device.
    EXPECT_EQ(reportedNow, static_cast<long>(status(device).conditions().size()) - measured - 2);
}

TEST_F(Status, AWriteOfTheConfigurationLeavesASign)
{
    constexpr const char* kSign = "statusHARTConfigurationChanged";
    EXPECT_EQ(reported(device, kSign), "0");
    (void)device.answer(request("x", "read", "<item name='tag'/>"));
    (void)device.answer(request("x", "write", item("tag", "noUnit", "integerVal", "")));
    (void)device.answer(request("x", "write", item("valveType", "noUnit", "integerVal", "9")));
    (void)device.answer(request("x", "write", item("serialNumber", "noUnit", "integerVal", "9")));
    EXPECT_EQ(reported(device, kSign), "1"); // the tag was taken
    const auto cleared = ask(device, request("deviceStatusClearConfigurationChanged", "act"));
    ASSERT_EQ(cleared.size(), 1U);
    EXPECT_EQ(responseAttribute(cleared[0], "name"), "deviceStatusClearConfigurationChanged");
    EXPECT_EQ(responseAttribute(cleared[0], "isFinal"), "1");
    EXPECT_THAT(outcome(cleared[0]), ElementsAre("", kSign));
    EXPECT_EQ(test::valueIn(cleared, kSign), "0");
    EXPECT_EQ(reported(device, kSign), "0");
    (void)device.answer(request("x", "write", item("valveType", "noUnit", "integerVal", "9")));
    (void)device.answer(request("x", "write", item("serialNumber", "noUnit", "integerVal", "9")));
    EXPECT_EQ(reported(device, kSign), "0"); // a refused write changes nothing
    EXPECT_THAT(listener->heard,
                ElementsAre(std::string{kSign} + " on", std::string{kSign} + " off"));
}

TEST_F(Status, ActionsConfigureNothing)
{
    (void)device.answer(
        request("mACalibration", "write", item("loopTestValue", "mA", "floatVal", "4")));
    (void)device.answer(
        request("reset", "write", item("resetDiagnosticsCode", "noUnit", "integerVal", "0")));
    EXPECT_EQ(reported(device, "statusHARTConfigurationChanged"), "0");
    (void)device.answer(
        request("reset", "write", item("resetParametersCode", "noUnit", "integerVal", "0")));
    EXPECT_EQ(reported(device, "statusHARTConfigurationChanged"), "1");
}

TEST_F(Status, WritingTheMasksIsConfigurationToo)
{
    (void)device.answer(
        request("deviceStatusMasks", "write", test::maskItem("statusMask1", "FFFFFFFF")));
    EXPECT_EQ(reported(device, "statusHARTConfigurationChanged"), "1");
}

TEST_F(Status, TheSignOfAFieldbusDeviceHasAnotherName)
{
    SimulatedDevice fieldbus = fullDevice("vx4400f");
    (void)fieldbus.answer(request("x", "write", item("paTag", "noUnit", "stringVal", "A")));
    EXPECT_EQ(reported(fieldbus, "statusConfigurationChanged"), "1");
    EXPECT_EQ(reported(fieldbus, "statusHARTConfigurationChanged"), "?");
    const auto cleared = ask(fieldbus, request("deviceStatusClearConfigurationChanged", "write"));
    EXPECT_THAT(outcome(cleared[0]), ElementsAre("", "statusConfigurationChanged"));
    EXPECT_EQ(reported(fieldbus, "statusConfigurationChanged"), "0");
}

TEST_F(Status, ARestartIsReportedOnce)
{
    status(device).setPresent(device, "statusMemoryFailure", true);
    status(device).restart(device);
    const auto parts = ask(device, request("deviceStatus", "read"));
    EXPECT_EQ(test::valueIn(parts, "statusColdStart"), "1");
    EXPECT_EQ(test::valueIn(parts, "statusMemoryFailure"), "0");
    EXPECT_EQ(reported(device, "statusColdStart"), "0");
}

TEST_F(Status, ClearingLeavesWhatIsStillThere)
{
    status(device).setPresent(device, "statusSeatWear", true);
    status(device).setPresent(device, "statusMemoryFailure", true);
    model(device).setFault(Fault::coverOpen, true);
    model(device).setFault(Fault::supplyFailure, true);
    device.advance(20);
    model(device).setFault(Fault::coverOpen, false);
    status(device).clear(device);
    EXPECT_EQ(reported(device, "statusMemoryFailure"), "0");
    EXPECT_EQ(reported(device, "statusCoverOpen"), "0");
    EXPECT_EQ(reported(device, "statusSupplyPressureLow"), "1");
}

TEST(StatusRules, BelongToConditionsOfTheSamples)
{
    std::set<std::string> known;
    for (const char* type : {"vx4400h", "vx4400f"}) {
        SimulatedDevice device = fullDevice(type);
        for (const DeviceCondition& condition : status(device).conditions()) {
            known.insert(condition.name);
        }
    }
    for (const char* name : {"statusTemperatureHigh", "statusWriteProtected"}) {
        ASSERT_TRUE(findRule(name));
        EXPECT_TRUE(known.contains(name));
    }
    EXPECT_EQ(findRule("statusMemoryFailure"), nullptr);
    EXPECT_EQ(findRule(""), nullptr);
}

TEST(StatusRules, ADeviceWithoutPhysicsMeasuresNothing)
{
    SimulatedDevice device{documents::openText(test::sampleText("vx4400h.xml"))};
    device.add(std::make_unique<DeviceStatus>(test::typeInfo("vx4400h")));
    device.advance(60);
    for (const DeviceCondition& condition : status(device).conditions()) {
        EXPECT_FALSE(condition.isReported) << condition.name;
    }
    device.set("writeProtectionMode", "1");
    device.advance(1);
    EXPECT_EQ(reported(device, "statusWriteProtected"), "1");
}

TEST(DeviceStatus, AnswersAlsoWithoutConditions)
{
    SimulatedDevice device{documents::openText(test::sampleText("vx4400h.xml"))};
    device.add(std::make_unique<DeviceStatus>(documents::openText("<x><deviceStatus/></x>")));
    const auto parts = ask(device, request("deviceStatus", "read"));
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_THAT(outcome(parts[0]), ElementsAre(""));
    EXPECT_EQ(responseAttribute(parts[0], "isFinal"), "1");
}

TEST(DeviceStatus, ANumberThatIsNoneMeansNoMask)
{
    SimulatedDevice device{documents::openText(test::sampleText("vx4400h.xml"))};
    device.add(std::make_unique<DeviceStatus>(
        documents::openText("<x><deviceStatus><b name='b'><!-- c --><s name='one' maskByte='x'"
                            " maskBit='1'/><s name='two' maskBit='1'/><s name='three'"
                            " maskByte='99' maskBit='1'/></b></deviceStatus></x>")));
    ASSERT_EQ(status(device).conditions().size(), 3U);
    EXPECT_FALSE(status(device).find("one")->hasMask());
    EXPECT_FALSE(status(device).find("two")->hasMask());
    EXPECT_EQ(status(device).find("one")->branch, "b");
    status(device).setPresent(device, "three", true); // behind the last part
    EXPECT_EQ(reported(device, "three"), "1");
}

TEST(DeviceStatus, NeedsADefinition)
{
    SimulatedDevice device{documents::openText(test::sampleText("vx4400h.xml"))};
    EXPECT_THROW(device.add(std::make_unique<DeviceStatus>(documents::openText("<x/>"))),
                 platform::Failure);
}

} // namespace
} // namespace quill::shell
