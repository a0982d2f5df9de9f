#include "shell/loop_current.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quill::shell {
namespace {

constexpr double kZeroError = 0.12;
constexpr double kGainError = 0.015;

class LoopCurrentTest : public testing::Test {
protected:
    double at(double current)
    {
        loop.setTest(current);
        return loop.measured();
    }
    /// As a user with a good meter does it.
    void trim(double low, double high)
    {
        EXPECT_EQ(loop.trimZero(at(low)), TrimProblem::none);
        EXPECT_EQ(loop.trimGain(at(high)), TrimProblem::none);
    }

    LoopCurrent loop{kZeroError, kGainError};
};

TEST_F(LoopCurrentTest, TheErrorsOfTheStageShow)
{
    EXPECT_DOUBLE_EQ(at(4), 4 * (1 + kGainError) + kZeroError);
    EXPECT_DOUBLE_EQ(at(20), 20 * (1 + kGainError) + kZeroError);
    loop.setTest(std::nullopt);
    loop.follow(12);
    EXPECT_DOUBLE_EQ(loop.wanted(), 12);
    EXPECT_DOUBLE_EQ(loop.measured(), 12 * (1 + kGainError) + kZeroError);
}

TEST_F(LoopCurrentTest, ATestCurrentStandsWhateverTheOutputWouldFollow)
{
    loop.setTest(4);
    loop.follow(17);
    EXPECT_EQ(loop.wanted(), 4);
    loop.setTest(std::nullopt);
    EXPECT_EQ(loop.wanted(), 17);
}

TEST_F(LoopCurrentTest, TwoTrimsRemoveTheErrorEverywhere)
{
    trim(4, 20);
    for (const double current : {3.6, 4.0, 9.5, 20.0, 22.5}) {
        EXPECT_NEAR(at(current), current, 1e-9);
    }
}

TEST_F(LoopCurrentTest, AnyTwoCurrentsWillDo)
{
    trim(19, 6);
    EXPECT_NEAR(at(12), 12, 1e-9);
    trim(4, 20); // and once more changes nothing
    EXPECT_NEAR(at(12), 12, 1e-9);
}

TEST_F(LoopCurrentTest, AZeroTrimAloneIsRightWhereItWasMade)
{
    EXPECT_EQ(loop.trimZero(at(4)), TrimProblem::none);
    EXPECT_NEAR(at(4), 4, 1e-9);
    EXPECT_NEAR(at(20), 20 + 16 * kGainError, 1e-9);
}

TEST_F(LoopCurrentTest, AGainTrimAloneTurnsTheLineAboutFour)
{
    const double low = at(4);
    EXPECT_EQ(loop.trimGain(at(20)), TrimProblem::none);
    EXPECT_NEAR(at(4), low, 1e-9);
    EXPECT_NEAR(at(20), 20, 1e-9);
}

TEST_F(LoopCurrentTest, AWrongReadingIsTakenAsItIs)
{
    // The user read 4.5 where 4 flows: from then on too little flows.
    LoopCurrent good{0, 0};
    good.setTest(4);
    EXPECT_EQ(good.trimZero(4.5), TrimProblem::none);
    EXPECT_NEAR(good.measured(), 3.5, 1e-9);
}

TEST_F(LoopCurrentTest, WithoutATestCurrentThereIsNothingToTrim)
{
    EXPECT_EQ(loop.trimZero(4), TrimProblem::noFixedCurrent);
    EXPECT_EQ(loop.trimGain(20), TrimProblem::noFixedCurrent);
}

TEST_F(LoopCurrentTest, AReadingFarFromTheTestCurrentIsAMistake)
{
    const double before = at(4);
    EXPECT_EQ(loop.trimZero(1.99), TrimProblem::tooSmall);
    EXPECT_EQ(loop.trimZero(6.01), TrimProblem::tooLarge);
    EXPECT_EQ(loop.trimZero(std::numeric_limits<double>::quiet_NaN()), TrimProblem::tooSmall);
    EXPECT_EQ(loop.trimZero(std::numeric_limits<double>::infinity()), TrimProblem::tooLarge);
    EXPECT_EQ(loop.measured(), before) << "and changes nothing";
    loop.setTest(20);
    EXPECT_EQ(loop.trimGain(17.9), TrimProblem::tooSmall);
    EXPECT_EQ(loop.trimGain(22.1), TrimProblem::tooLarge);
}

TEST_F(LoopCurrentTest, TwoPointsThatLieCloseTogetherMakeNoLine)
{
    EXPECT_EQ(loop.trimZero(at(8)), TrimProblem::none);
    loop.setTest(15);
    EXPECT_EQ(loop.trimGain(15), TrimProblem::noFixedCurrent);
    EXPECT_EQ(loop.trimGain(at(17)), TrimProblem::none);
}

TEST_F(LoopCurrentTest, NoCurrentFlowsBackwards)
{
    LoopCurrent poor{-1, 0};
    poor.follow(0.2);
    EXPECT_EQ(poor.measured(), 0);
}

} // namespace
} // namespace quill::shell
