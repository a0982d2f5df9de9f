#include "shell/device_signal.h"

#include <gtest/gtest.h>

namespace quill::shell {
namespace {

TEST(DeviceSignal, LiesBetweenTheTwoCurrents)
{
    EXPECT_DOUBLE_EQ(signalOfCurrent(4, 4, 20, false), 0);
    EXPECT_DOUBLE_EQ(signalOfCurrent(12, 4, 20, false), 50);
    EXPECT_DOUBLE_EQ(signalOfCurrent(20, 4, 20, false), 100);
    EXPECT_DOUBLE_EQ(signalOfCurrent(8, 4, 12, false), 50);
}

TEST(DeviceSignal, StopsAtItsEnds)
{
    EXPECT_DOUBLE_EQ(signalOfCurrent(3.6, 4, 20, false), 0);
    EXPECT_DOUBLE_EQ(signalOfCurrent(22, 4, 20, false), 100);
    EXPECT_DOUBLE_EQ(signalOfCurrent(22, 4, 20, true), 0);
}

TEST(DeviceSignal, MayCloseTheValve)
{
    EXPECT_DOUBLE_EQ(signalOfCurrent(8, 4, 20, true), 75);
}

TEST(DeviceSignal, MayFallWithTheCurrent)
{
    EXPECT_DOUBLE_EQ(signalOfCurrent(8, 20, 4, false), 75);
}

TEST(DeviceSignal, IsASwitchWithoutASpan)
{
    EXPECT_DOUBLE_EQ(signalOfCurrent(9.9, 10, 10, false), 0);
    EXPECT_DOUBLE_EQ(signalOfCurrent(10, 10, 10, false), 100);
}

TEST(DeviceSignal, EveryCharacteristicRisesFromEndToEnd)
{
    for (const auto characteristic : {Characteristic::linear, Characteristic::equalPercentage,
                                      Characteristic::quickOpening, Characteristic::userCurve}) {
        const CharacteristicCurve curve{{25, 10}, {75, 62.5}};
        EXPECT_NEAR(travelOfSignal(0, characteristic, curve), 0, 1e-9);
        EXPECT_NEAR(travelOfSignal(100, characteristic, curve), 100, 1e-9);
        double before = 0;
        for (int signal = 1; signal <= 100; ++signal) {
            const double travel = travelOfSignal(signal, characteristic, curve);
            EXPECT_GT(travel, before);
            before = travel;
        }
    }
}

TEST(DeviceSignal, EqualPercentageOpensLateAndQuickOpeningEarly)
{
    EXPECT_DOUBLE_EQ(travelOfSignal(50, Characteristic::linear), 50);
    EXPECT_NEAR(travelOfSignal(50, Characteristic::equalPercentage), 12.39, 0.01);
    EXPECT_NEAR(travelOfSignal(50, Characteristic::quickOpening), 87.61, 0.01);
}

TEST(DeviceSignal, ACurveHasStraightLinesBetweenItsPoints)
{
    const CharacteristicCurve curve{{25, 10}, {75, 60}};
    EXPECT_DOUBLE_EQ(travelOfSignal(12.5, Characteristic::userCurve, curve), 5);
    EXPECT_DOUBLE_EQ(travelOfSignal(25, Characteristic::userCurve, curve), 10);
    EXPECT_DOUBLE_EQ(travelOfSignal(50, Characteristic::userCurve, curve), 35);
    EXPECT_DOUBLE_EQ(travelOfSignal(87.5, Characteristic::userCurve, curve), 80);
    EXPECT_DOUBLE_EQ(travelOfSignal(40, Characteristic::userCurve), 40);
}

TEST(DeviceSignal, ACurveMayJump)
{
    const CharacteristicCurve curve{{50, 20}, {50, 80}, {100, 90}};
    EXPECT_DOUBLE_EQ(travelOfSignal(50, Characteristic::userCurve, curve), 20);
    EXPECT_DOUBLE_EQ(travelOfSignal(75, Characteristic::userCurve, curve), 85);
    EXPECT_DOUBLE_EQ(travelOfSignal(100, Characteristic::userCurve, curve), 90);
    EXPECT_DOUBLE_EQ(travelOfSignal(0, Characteristic::userCurve, {{0, 15}}), 15);
}

} // namespace
} // namespace quill::shell
