#include "editors/number_rules.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace quill {
namespace {

using namespace numberRules;

TEST(NumberRules, EqualWithinTheTolerance)
{
    EXPECT_EQ(compare(10.8, 10, 0), 0);
    EXPECT_EQ(compare(9.2, 10, 0), 0);
    EXPECT_NEAR(compare(11, 10, 0), 1, 1e-12);
    EXPECT_NEAR(compare(10.8, 10, 1), 0.8, 1e-12);
    EXPECT_EQ(compare(10.0008, 10, 1), 0);
    EXPECT_NEAR(compare(10.001, 10, 1), 0.001, 1e-12);
    EXPECT_EQ(compare(10.8, 10, -3), 0);
}

TEST(NumberRules, NoLimitIsBeyondEverything)
{
    EXPECT_EQ(compare(kUpperSentinel, 1, 0), 50);
    EXPECT_EQ(compare(1, kLowerSentinel, 0), 50);
    EXPECT_EQ(compare(kLowerSentinel, 1, 0), -50);
    EXPECT_EQ(compare(1, kUpperSentinel, 0), -50);
    EXPECT_TRUE(isInside(std::numeric_limits<double>::max(), {}, 0));
    // The sentinels are no ordinary largest doubles.
    EXPECT_LT(kUpperSentinel, std::numeric_limits<double>::max());
    EXPECT_GT(kLowerSentinel, std::numeric_limits<double>::lowest());
}

TEST(NumberRules, InsideIncludesTheLimits)
{
    EXPECT_TRUE(isInside(1, {1, 2}, 1));
    EXPECT_TRUE(isInside(2, {1, 2}, 1));
    EXPECT_FALSE(isInside(0.9, {1, 2}, 1));
    EXPECT_FALSE(isInside(2.1, {1, 2}, 1));
}

TEST(NumberRules, FormatsNumbersOnly)
{
    const test::ToolkitScope toolkit(",");
    EXPECT_EQ(formatted("1,25", "######0.0"), "1,3");
    EXPECT_EQ(formatted("1.25", "######0.0"), "1.25");
    EXPECT_EQ(formatted("NaN", "######0.0"), "NaN");
    EXPECT_EQ(formatted("", "######0.0"), "");
}

} // namespace
} // namespace quill
