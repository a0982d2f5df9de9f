#include "shell/device_model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace quill::shell {
namespace {

constexpr double kMilliamperes50 = 12; // of 4 to 20

/// A valve that has come to rest at half of its travel.
DeviceModel settled()
{
    DeviceModel valve;
    valve.setDemand(kMilliamperes50);
    valve.advance(20);
    return valve;
}

/// The mean difference between travel and set point while the demand rises and falls.
double meanDeviationWith(double friction)
{
    DeviceModel valve = settled();
    valve.setFriction(friction);
    double sum = 0;
    for (int i = 0; i < 600; ++i) {
        valve.setDemand(12 + 3 * std::sin(i * 0.1));
        valve.advance(0.2);
        sum += std::abs(valve.state().setpoint - valve.state().travel);
    }
    return sum / 600;
}

TEST(DeviceModel, TheValveFollowsItsSetPoint)
{
    DeviceModel valve = settled();
    for (const double current : {16.0, 5.0, 19.5, 8.0}) {
        valve.setDemand(current);
        valve.advance(15);
        EXPECT_NEAR(valve.state().setpoint, (current - 4) / 0.16, 0.01);
        EXPECT_NEAR(valve.state().travel, valve.state().setpoint, 0.5) << current;
        EXPECT_NEAR(valve.state().inputCurrent, current, 1e-9);
    }
}

TEST(DeviceModel, ComesToRestInTheDeadBand)
{
    DeviceModel valve = settled();
    valve.setDemand(15);
    valve.advance(20);
    const double travel = valve.state().travel;
    valve.advance(60);
    EXPECT_EQ(valve.state().travel, travel);
    EXPECT_EQ(valve.state().drive, 0);
    EXPECT_LE(std::abs(valve.state().setpoint - travel), valve.settings().deadband);
}

TEST(DeviceModel, AFullStrokeTakesTheConfiguredTime)
{
    for (const double seconds : {2.0, 6.0}) {
        DeviceModel   valve = settled();
        ModelSettings settings;
        settings.openingTime = seconds;
        settings.closingTime = seconds;
        settings.filterTime  = 0;
        valve.set(settings);
        valve.setDemand(4);
        valve.advance(30);
        ASSERT_LT(valve.state().travel, 1);
        valve.setDemand(20);
        double taken = 0;
        while (valve.state().travel < 99 && taken < 60) {
            valve.advance(0.1);
            taken += 0.1;
        }
        // The current itself needs its time, and the last percents are slow.
        EXPECT_GT(taken, seconds * 0.8);
        EXPECT_LT(taken, seconds * 1.5 + 4);
    }
}

TEST(DeviceModel, TheChamberBalancesTheSpring)
{
    EXPECT_DOUBLE_EQ(DeviceModel::springPressure(0), 1);
    EXPECT_DOUBLE_EQ(DeviceModel::springPressure(100), 3);
    const DeviceModel valve = settled();
    EXPECT_NEAR(valve.state().chamber, DeviceModel::springPressure(valve.state().travel), 0.1);
}

TEST(DeviceModel, StartsWhereItsPressuresPutIt)
{
    EXPECT_DOUBLE_EQ(DeviceModel(5.6, 1.5).state().travel, 25);
    EXPECT_DOUBLE_EQ(DeviceModel(5.6, 0).state().travel, 0);
    EXPECT_DOUBLE_EQ(DeviceModel(5.6, 5).state().travel, 100);
    EXPECT_DOUBLE_EQ(DeviceModel(4.2, 2, 17).state().supply, 4.2);
    EXPECT_DOUBLE_EQ(DeviceModel(4.2, 2, 17).state().temperature, 17);
}

TEST(DeviceModel, FrictionHoldsTheStemUntilItBreaksAway)
{
    DeviceModel valve = settled();
    valve.setFault(Fault::friction, true);
    valve.setDemand(12.5);
    const double from  = valve.state().travel;
    double       stood = 0;
    while (valve.state().travel == from && stood < 60) {
        valve.advance(DeviceModel::kStep);
        stood += DeviceModel::kStep;
    }
    // It has stood although it was told to move, and then it goes further than a step of the model.
    EXPECT_GT(stood, 0.5);
    EXPECT_LT(stood, 60);
    valve.advance(0.3);
    EXPECT_GT(valve.state().travel - from, 1);
}

TEST(DeviceModel, MuchFrictionMakesItJump)
{
    DeviceModel smooth = settled();
    DeviceModel sticky = settled();
    sticky.setFault(Fault::friction, true);
    for (int i = 0; i < 20; ++i) {
        for (DeviceModel* valve : {&smooth, &sticky}) {
            valve->setDemand(12 + 0.4 * (i % 5));
            valve->advance(5);
        }
    }
    EXPECT_LT(smooth.state().slips, 1);
    EXPECT_GT(sticky.state().slips, 4);
}

TEST(DeviceModel, DeviationGrowsWithFriction)
{
    double before = 0;
    for (const double friction : {0.2, 1.0, 3.0, 6.0, 12.0}) {
        const double deviation = meanDeviationWith(friction);
        EXPECT_GT(deviation, before) << friction;
        before = deviation;
    }
}

TEST(DeviceModel, EstimatesItsFrictionFromItsMovements)
{
    const auto estimate = [](Fault fault, bool present) {
        DeviceModel valve;
        valve.setFault(fault, present);
        valve.advance(120);
        return valve.state().friction;
    };
    EXPECT_NEAR(estimate(Fault::friction, false), 0.05, 0.01);
    EXPECT_NEAR(estimate(Fault::friction, true), 0.25, 0.03);
    EXPECT_NEAR(estimate(Fault::wornPacking, true), 0.01, 0.005);
}

TEST(DeviceModel, WithoutSupplyTheSpringClosesTheValve)
{
    DeviceModel valve = settled();
    valve.setFault(Fault::supplyFailure, true);
    valve.advance(20);
    EXPECT_LT(valve.state().supply, 0.01);
    EXPECT_EQ(valve.state().travel, 0);
    EXPECT_EQ(valve.state().drive, 1);
    valve.setFault(Fault::supplyFailure, false);
    valve.advance(20);
    EXPECT_NEAR(valve.state().travel, 50, 0.5);
}

TEST(DeviceModel, AWeakSupplyCannotOpenTheValve)
{
    // While the air runs out.
    DeviceModel valve = settled();
    valve.setFault(Fault::supplyFailure, true);
    valve.advance(1.5);
    EXPECT_GT(valve.state().supply, 1);
    EXPECT_LT(valve.state().chamber, 2.3);
    valve.setDemand(20);
    valve.advance(0.5);
    EXPECT_LT(valve.state().travel, 60);
}

TEST(DeviceModel, AStuckValveStaysAndItsDriveGoesToTheLimit)
{
    DeviceModel valve = settled();
    valve.setFault(Fault::stuck, true);
    valve.setDemand(18);
    valve.advance(30);
    EXPECT_NEAR(valve.state().travel, 50, 0.5);
    EXPECT_EQ(valve.state().drive, 1);
    EXPECT_NEAR(valve.state().chamber, valve.state().supply, 0.1);
    EXPECT_GT(valve.state().deviation, 30);
}

TEST(DeviceModel, ALeakMustBeFed)
{
    DeviceModel tight = settled();
    DeviceModel leaky = settled();
    leaky.setFault(Fault::leak, true);
    tight.advance(60);
    leaky.advance(60);
    EXPECT_NEAR(tight.state().holdingDrive, 0, 0.02);
    EXPECT_GT(leaky.state().holdingDrive, 0.12);
    EXPECT_NEAR(leaky.state().travel, 50, 1.5);
}

TEST(DeviceModel, WithoutASignalTheValveCloses)
{
    DeviceModel   valve = settled();
    ModelSettings reversed;
    reversed.signalCloses = true;
    valve.set(reversed);
    valve.setFault(Fault::signalLost, true);
    valve.advance(20);
    EXPECT_DOUBLE_EQ(valve.state().inputCurrent, 3.5);
    EXPECT_NEAR(valve.state().setpoint, 0, 1e-6);
    EXPECT_LT(valve.state().travel, 0.5);
}

TEST(DeviceModel, TheSetPointKeepsToTheTravelLimits)
{
    DeviceModel   valve = settled();
    ModelSettings settings;
    settings.travelLow  = 20;
    settings.travelHigh = 70;
    valve.set(settings);
    valve.setDemand(20);
    valve.advance(20);
    EXPECT_NEAR(valve.state().travel, 70, 0.5);
    valve.setDemand(4);
    valve.advance(20);
    EXPECT_NEAR(valve.state().travel, 20, 0.5);
}

TEST(DeviceModel, LimitsThatCrossEachOtherAreSurvived)
{
    DeviceModel   valve = settled();
    ModelSettings settings;
    settings.travelLow  = 70;
    settings.travelHigh = 20;
    valve.set(settings);
    valve.advance(20);
    EXPECT_NEAR(valve.state().setpoint, 70, 0.01);
}

TEST(DeviceModel, AFailedTravelSensorMakesItSafe)
{
    DeviceModel valve = settled();
    valve.setFault(Fault::travelSensor, true);
    valve.advance(20);
    EXPECT_TRUE(std::isnan(valve.measure().travel));
    EXPECT_EQ(valve.state().travel, 0);
    EXPECT_EQ(valve.measure().outputCurrent, valve.settings().outputFailureCurrent);
}

TEST(DeviceModel, AFailedSensorMeasuresNothing)
{
    DeviceModel valve = settled();
    EXPECT_FALSE(std::isnan(valve.measure().supply));
    valve.setFault(Fault::supplySensor, true);
    EXPECT_TRUE(std::isnan(valve.measure().supply));
    valve.setFault(Fault::actuatorSensor, true);
    EXPECT_TRUE(std::isnan(valve.measure().chamber));
    valve.setFault(Fault::temperatureSensor, true);
    EXPECT_TRUE(std::isnan(valve.measure().temperature));
    EXPECT_FALSE(std::isnan(valve.measure().travel));
}

TEST(DeviceModel, TheOutputFollowsTheTravelUnlessItIsFixed)
{
    DeviceModel valve = settled();
    EXPECT_NEAR(valve.measure().outputCurrent, 12, 0.1);
    valve.fixOutputCurrent(20);
    EXPECT_TRUE(valve.isOutputFixed());
    EXPECT_EQ(valve.measure().outputCurrent, 20);
    valve.fixOutputCurrent(std::nullopt);
    EXPECT_NEAR(valve.measure().outputCurrent, 12, 0.1);
}

TEST(DeviceModel, SimulationHidesWhatTheSensorsSee)
{
    DeviceModel valve = settled();
    valve.setDemand(18);
    valve.setFault(Fault::simulation, true);
    valve.setFault(Fault::supplySensor, true);
    valve.advance(20);
    EXPECT_EQ(valve.measure().travel, 50);
    EXPECT_EQ(valve.measure().supply, 5.5);
    EXPECT_NEAR(valve.state().travel, 87.5, 0.5);
}

TEST(DeviceModel, SurroundingsHeatAndCoolIt)
{
    DeviceModel valve = settled();
    valve.setFault(Fault::overheating, true);
    valve.advance(60);
    EXPECT_GT(valve.state().temperature, 80);
    valve.setFault(Fault::overheating, false);
    valve.setFault(Fault::frost, true);
    valve.advance(120);
    EXPECT_LT(valve.state().temperature, -30);
}

TEST(DeviceModel, CountsTurnsAndWays)
{
    DeviceModel valve  = settled();
    const auto  before = valve.state();
    for (int i = 0; i < 5; ++i) {
        valve.setDemand(16);
        valve.advance(10);
        valve.setDemand(12);
        valve.advance(10);
    }
    EXPECT_EQ(valve.state().cycles - before.cycles, 9);
    EXPECT_NEAR(valve.state().travelSum - before.travelSum, 10 * 25, 10);
}

TEST(DeviceModel, ATrembleIsNoTurn)
{
    DeviceModel   valve = settled();
    ModelSettings fine;
    fine.deadband = 0.1;
    valve.set(fine);
    const int    before = valve.state().cycles;
    const double way    = valve.state().travelSum;
    for (int i = 0; i < 20; ++i) {
        valve.setDemand(i % 2 == 0 ? 12.03 : 11.97);
        valve.advance(2);
    }
    EXPECT_GT(valve.state().travelSum, way + 1);
    EXPECT_EQ(valve.state().cycles, before);
}

TEST(DeviceModel, SwingsOfTheSetPointFade)
{
    DeviceModel valve = settled();
    valve.setFault(Fault::signalOscillating, true);
    valve.advance(60);
    EXPECT_GT(valve.state().setpointSwings, 5);
    valve.setFault(Fault::signalOscillating, false);
    valve.advance(120);
    EXPECT_LT(valve.state().setpointSwings, 1);
}

TEST(DeviceModel, AFasterControllerLeavesLessDeviation)
{
    const auto deviation = [](double gain) {
        DeviceModel   valve = settled();
        ModelSettings settings;
        settings.gain = gain;
        valve.set(settings);
        double most = 0;
        for (int i = 0; i < 300; ++i) {
            valve.setDemand(12 + 2 * std::sin(i * 0.05));
            valve.advance(0.2);
            most = std::max(most, std::abs(valve.state().setpoint - valve.state().travel));
        }
        return most;
    };
    EXPECT_GT(deviation(0.4), deviation(2.4) + 0.2);
}

TEST(DeviceModel, TimeCanBeCutIntoAnyPieces)
{
    DeviceModel whole;
    DeviceModel pieces;
    whole.setFault(Fault::friction, true);
    pieces.setFault(Fault::friction, true);
    whole.advance(40);
    for (int i = 0; i < 4000 * 3; ++i) {
        pieces.advance(0.01 / 3);
    }
    EXPECT_EQ(whole.state().travel, pieces.state().travel);
    EXPECT_EQ(whole.state().chamber, pieces.state().chamber);
    EXPECT_EQ(whole.state().cycles, pieces.state().cycles);
    pieces.advance(-5);
    EXPECT_EQ(whole.state().time, pieces.state().time);
}

TEST(DeviceModel, TheSameSeedAsksForTheSame)
{
    DeviceModel one{5.6, 2, 30, 7};
    DeviceModel same{5.6, 2, 30, 7};
    DeviceModel other{5.6, 2, 30, 8};
    bool        differs = false;
    for (int i = 0; i < 10; ++i) {
        for (DeviceModel* valve : {&one, &same, &other}) {
            valve->advance(30);
        }
        EXPECT_EQ(one.state().setpoint, same.state().setpoint);
        differs |= one.state().setpoint != other.state().setpoint;
    }
    EXPECT_TRUE(differs);
}

TEST(DeviceModel, ACopyGoesOnByItself)
{
    DeviceModel valve = settled();
    DeviceModel copy  = valve;
    copy.setDemand(20);
    copy.advance(10);
    EXPECT_NEAR(valve.state().travel, 50, 0.5);
    valve.setDemand(20);
    valve.advance(10);
    EXPECT_EQ(valve.state().travel, copy.state().travel);
}

TEST(DeviceModel, ARestartForgetsWhatItHasObserved)
{
    DeviceModel valve = settled();
    valve.setFault(Fault::friction, true);
    valve.setFault(Fault::signalOscillating, true);
    valve.fixOutputCurrent(4);
    valve.advance(90);
    const auto before = valve.state();
    valve.restart();
    EXPECT_EQ(valve.state().slips, 0);
    EXPECT_EQ(valve.state().setpointSwings, 0);
    EXPECT_LT(valve.state().friction, before.friction);
    EXPECT_EQ(valve.state().travel, before.travel);
    EXPECT_EQ(valve.state().travelSum, before.travelSum);
    EXPECT_TRUE(valve.has(Fault::friction));
    EXPECT_FALSE(valve.isOutputFixed());
}

TEST(DeviceModel, StaysWithinBoundsWhateverFails)
{
    for (const Fault fault : allFaults()) {
        DeviceModel valve;
        valve.advance(10);
        valve.setFault(fault, true);
        EXPECT_TRUE(valve.has(fault));
        for (int i = 0; i < 120; ++i) {
            valve.advance(1);
            const ModelState& state = valve.state();
            ASSERT_GE(state.travel, 0) << faultName(fault);
            ASSERT_LE(state.travel, 100) << faultName(fault);
            ASSERT_GE(state.chamber, 0) << faultName(fault);
            ASSERT_LE(state.chamber, 8.3) << faultName(fault);
            ASSERT_LE(std::abs(state.drive), 1) << faultName(fault);
        }
        valve.setFault(fault, false);
        EXPECT_FALSE(valve.has(fault));
        valve.setDemand(kMilliamperes50);
        valve.advance(60);
        EXPECT_NEAR(valve.state().travel, 50, 0.5) << faultName(fault);
    }
}

TEST(DeviceModel, EveryFaultHasANameOfItsOwn)
{
    std::set<std::string> names;
    for (const Fault fault : allFaults()) {
        EXPECT_TRUE(faultName(fault).starts_with("fault"));
        EXPECT_TRUE(names.insert(faultName(fault)).second);
    }
    EXPECT_EQ(names.size(), 16U);
}

} // namespace
} // namespace quill::shell
