#include "device_requests.h"

#include <cmath>

namespace quill::shell {
namespace {

using test::fullDevice;
using test::item;
using test::model;
using test::request;

class Physics : public testing::Test {
protected:
    double number(const std::string& parameter) { return std::stod(device.find(parameter)->value); }

    SimulatedDevice device = fullDevice("vx4400h");
};

TEST_F(Physics, StartsFromTheDevicesMemory)
{
    EXPECT_EQ(device.find("supplyPressure")->value, "81.35");
    EXPECT_EQ(device.find("supplyPressure")->unit, "psi");
    EXPECT_NEAR(model(device).state().supply, 5.609, 0.001);
    EXPECT_NEAR(model(device).state().chamber, 2.248, 0.001);
    EXPECT_NEAR(model(device).state().temperature, 33, 0.01);
}

TEST_F(Physics, LiveParametersFollowTheModelInTheirUnits)
{
    model(device).setDemand(8);
    device.advance(30);
    EXPECT_NEAR(number("supplyPressure"), model(device).state().supply * 14.5038, 0.01);
    EXPECT_NEAR(number("actuatorPressure"), model(device).state().chamber * 14.5038, 0.01);
    EXPECT_NEAR(number("deviceTemperature"), model(device).state().temperature * 1.8 + 32, 0.06);
    EXPECT_NEAR(number("travel"), 25, 0.5);
    EXPECT_NEAR(number("travelSetpoint"), 25, 0.01);
    EXPECT_NEAR(number("travelDeviation"), 25 - model(device).state().travel, 0.02);
    EXPECT_NEAR(number("inputCurrent"), 8, 0.005);
    EXPECT_NEAR(number("outputCurrent"), 8, 0.1);
    EXPECT_NEAR(number("valveFriction"), 0.05, 0.01);
    model(device).setDemand(20);
    device.advance(1);
    EXPECT_EQ(number("driveSignal"), 100);
    const auto answer = test::ask(device, request("liveValues", "read"));
    EXPECT_EQ(test::valueIn(answer, "inputCurrent"), device.find("inputCurrent")->value);
}

TEST_F(Physics, AFailedSensorGivesNoNumber)
{
    model(device).setFault(Fault::travelSensor, true);
    model(device).setFault(Fault::supplySensor, true);
    model(device).setFault(Fault::temperatureSensor, true);
    const std::string hottest = device.find("maximumTemperature")->value;
    device.advance(5);
    EXPECT_EQ(device.find("travel")->value, "NaN");
    EXPECT_EQ(device.find("travelDeviation")->value, "NaN");
    EXPECT_EQ(device.find("supplyPressure")->value, "NaN");
    EXPECT_EQ(device.find("deviceTemperature")->value, "NaN");
    EXPECT_EQ(device.find("maximumTemperature")->value, hottest);
    model(device).setFault(Fault::supplySensor, false);
    device.advance(1);
    EXPECT_NEAR(number("supplyPressure"), 81, 1);
}

TEST_F(Physics, RemembersTheExtremesOfTheTemperature)
{
    const std::string coldest = device.find("minimumTemperature")->value;
    model(device).setFault(Fault::overheating, true);
    device.advance(200);
    EXPECT_NEAR(number("maximumTemperature"), 95 * 1.8 + 32, 1);
    EXPECT_EQ(device.find("minimumTemperature")->value, coldest);
    model(device).setFault(Fault::overheating, false);
    model(device).setFault(Fault::frost, true);
    device.advance(300);
    EXPECT_NEAR(number("maximumTemperature"), 95 * 1.8 + 32, 1);
    EXPECT_NEAR(number("minimumTemperature"), -38 * 1.8 + 32, 1);
}

TEST_F(Physics, SimulatedTemperaturesAreNoExtremes)
{
    device.set("maximumTemperature", "50");
    model(device).setFault(Fault::simulation, true);
    device.advance(2);
    EXPECT_EQ(device.find("maximumTemperature")->value, "50");
    EXPECT_EQ(device.find("deviceTemperature")->value, "77");
}

TEST_F(Physics, CountsHoursCyclesAndWay)
{
    const double hours  = number("operatingTime");
    const double cycles = number("cycleCounter");
    const double way    = number("travelSum");
    device.advance(3599);
    EXPECT_EQ(number("operatingTime"), hours);
    device.advance(1.5);
    EXPECT_EQ(number("operatingTime"), hours + 1);
    device.advance(3600);
    EXPECT_EQ(number("operatingTime"), hours + 2);
    EXPECT_EQ(number("cycleCounter"), cycles + model(device).state().cycles);
    EXPECT_NEAR(number("travelSum") - way, model(device).state().travelSum / 100 * 0.04, 0.15);
    EXPECT_GT(number("cycleCounter"), cycles);
    EXPECT_GT(number("travelSum"), way);
}

TEST_F(Physics, ACounterThatWasSetGoesOnFromThere)
{
    device.set("cycleCounter", "0");
    const int before = model(device).state().cycles;
    device.advance(600);
    EXPECT_EQ(number("cycleCounter"), model(device).state().cycles - before);
}

TEST_F(Physics, WhatIsWrittenChangesHowTheValveBehaves)
{
    model(device).setDemand(12);
    device.advance(20);
    EXPECT_NEAR(number("travel"), 50, 0.5);
    (void)device.answer(request("x", "write", item("characteristic", "noUnit", "integerVal", "1")));
    device.advance(20);
    EXPECT_NEAR(number("travel"), 12.4, 0.5);
    (void)device.answer(request("x", "write",
                                item("characteristic", "noUnit", "integerVal", "0") +
                                    item("signalDirection", "noUnit", "integerVal", "1") +
                                    item("signalHighCurrent", "mA", "floatVal", "14")));
    device.advance(20);
    EXPECT_NEAR(number("travel"), 20, 0.5);
    (void)device.answer(request("x", "write", item("travelLowLimit", "%", "floatVal", "35")));
    device.advance(20);
    EXPECT_NEAR(number("travel"), 35, 0.5);
}

TEST_F(Physics, ItsOwnCurveIsTheDevices)
{
    (void)device.answer(request("x", "write", item("characteristic", "noUnit", "integerVal", "3")));
    model(device).setDemand(8); // 25 %
    device.advance(20);
    EXPECT_NEAR(number("travel"), 10, 0.5);
    model(device).setDemand(16); // 75 %
    device.advance(20);
    EXPECT_NEAR(number("travel"), 62.5, 0.5);
}

TEST_F(Physics, TuningComesFromASetOrFromTheParameters)
{
    (void)device.answer(request("x", "write",
                                item("tuningSet", "noUnit", "integerVal", "3") +
                                    item("proportionalGain", "noUnit", "floatVal", "1.1") +
                                    item("integralTime", "min", "floatVal", "0.5")));
    EXPECT_DOUBLE_EQ(model(device).settings().gain, 1.1);
    EXPECT_DOUBLE_EQ(model(device).settings().integralTime, 30);
    (void)device.answer(request("x", "write", item("tuningSet", "noUnit", "integerVal", "0")));
    EXPECT_LT(model(device).settings().gain, 2.4);
    (void)device.answer(request("x", "write", item("tuningSet", "noUnit", "integerVal", "2")));
    EXPECT_GT(model(device).settings().gain, 2.4);
}

TEST_F(Physics, RunsTheFieldbusDeviceToo)
{
    SimulatedDevice fieldbus = fullDevice("vx4400f");
    EXPECT_EQ(fieldbus.find("supplyPressure")->value, "5.58");
    model(fieldbus).setDemand(16);
    fieldbus.advance(30);
    EXPECT_NEAR(std::stod(fieldbus.find("travel")->value), 36.3, 0.5); // equal percentage
    EXPECT_EQ(fieldbus.find("inputCurrent"), nullptr);
}

TEST(PhysicsNumbers, AreReadInTheUnitThatIsAskedFor)
{
    SimulatedDevice device = fullDevice("vx4400h");
    EXPECT_NEAR(numberOf(device, "supplyLowPressure", "bar", -1), 3.447, 0.001);
    EXPECT_DOUBLE_EQ(numberOf(device, "supplyLowPressure", "", -1), 50);
    EXPECT_DOUBLE_EQ(numberOf(device, "supplyLowPressure", "degC", -1), -1);
    EXPECT_DOUBLE_EQ(numberOf(device, "tag", "", -1), -1);
    EXPECT_DOUBLE_EQ(numberOf(device, "nothing", "bar", -1), -1);
    device.set("travel", "NaN");
    EXPECT_DOUBLE_EQ(numberOf(device, "travel", "%", -1), -1);
}

} // namespace
} // namespace quill::shell
