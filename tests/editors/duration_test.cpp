#include "editors/duration.h"
#include "platform/failure.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>

namespace quill {
namespace {

using test::ToolkitScope;
using testing::ElementsAre;
using testing::Eq;
using testing::Optional;

TEST(Duration, IsSplitIntoDaysHoursMinutesAndSeconds)
{
    EXPECT_THAT(duration::split(0), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(duration::split(59), ElementsAre(0, 0, 0, 59));
    EXPECT_THAT(duration::split(60), ElementsAre(0, 0, 1, 0));
    EXPECT_THAT(duration::split(3599), ElementsAre(0, 0, 59, 59));
    EXPECT_THAT(duration::split(3600), ElementsAre(0, 1, 0, 0));
    EXPECT_THAT(duration::split(86399), ElementsAre(0, 23, 59, 59));
    EXPECT_THAT(duration::split(90061), ElementsAre(1, 1, 1, 1));
    EXPECT_THAT(duration::split(INT_MAX), ElementsAre(24855, 3, 14, 7));
}

TEST(Duration, OfLessThanNothingHasNegativeParts)
{
    EXPECT_THAT(duration::split(-90), ElementsAre(0, 0, -1, -30));
    EXPECT_THAT(duration::split(INT_MIN), ElementsAre(-24855, -3, -14, -8));
}

TEST(Duration, IsTheSumOfItsParts)
{
    const ToolkitScope toolkit;
    EXPECT_THAT(duration::total({"1", "1", "1", "1"}), Optional(90061));
    EXPECT_THAT(duration::total({"", "", "1", "30"}), Optional(90));
    EXPECT_THAT(duration::total({"", "25", "", ""}), Optional(90000));
    EXPECT_THAT(duration::total({"", "", "", "0"}), Optional(0));
    EXPECT_THAT(duration::total({"24855", "3", "14", "7"}), Optional(INT_MAX));
}

TEST(Duration, IsNoneWhereNoPartIsANumber)
{
    const ToolkitScope toolkit;
    EXPECT_THAT(duration::total({"", "", "", ""}), Eq(std::nullopt));
    EXPECT_THAT(duration::total({"x", " ", "1x", "NaN"}), Eq(std::nullopt));
    EXPECT_THAT(duration::total({"x", "", "1", ""}), Optional(60));
}

TEST(Duration, RoundsEachPartByItself)
{
    const ToolkitScope toolkit;
    EXPECT_THAT(duration::total({"", "", "0.5", "1.5"}), Optional(2));
    EXPECT_THAT(duration::total({"", "", "1.5", "2.5"}), Optional(122));
    EXPECT_THAT(duration::total({"", "", "-1", "30"}), Optional(-30));
}

TEST(Duration, ReadsItsPartsInTheLocalesForm)
{
    const ToolkitScope toolkit(",");
    EXPECT_THAT(duration::total({"", "", "", "1,6"}), Optional(2));
    EXPECT_THAT(duration::total({"", "", "", "1.6"}), Eq(std::nullopt));
}

TEST(Duration, FailsBeyond32Bits)
{
    const ToolkitScope toolkit;
    const auto         number = [](const std::array<std::string, duration::kParts>& texts) {
        try {
            (void)duration::total(texts);
        } catch (const platform::Failure& failure) {
            return failure.number();
        }
        return 0;
    };
    EXPECT_EQ(number({"24855", "3", "14", "8"}), platform::kOverflow);
    EXPECT_EQ(number({"24856", "", "", ""}), platform::kOverflow);
    EXPECT_EQ(number({"", "", "", "2147483648"}), platform::kOverflow);
    EXPECT_EQ(number({"", "", "", "1e400"}), platform::kOverflow);
    EXPECT_EQ(number({"-24856", "", "", ""}), platform::kOverflow);
}

TEST(Duration, IsEnteredWithDigitsAndBlanksOnly)
{
    const ToolkitScope toolkit;
    EXPECT_TRUE(duration::isPlain("0"));
    EXPECT_TRUE(duration::isPlain("0123456789"));
    EXPECT_TRUE(duration::isPlain(" 12 "));
    for (const char* wrong : {"", " ", "1 2", "-1", "+1", "1.5", "1,5", "1e2", "x", "1x", "ä"}) {
        EXPECT_FALSE(duration::isPlain(wrong)) << wrong;
    }
}

} // namespace
} // namespace quill
