#include "status/status_masks.h"

#include "framework/documents.h"
#include "support/failure_of.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace quill::statusMasks {
namespace {

using test::failureOf;
using testing::ElementsAre;

/// Where a condition with these attributes stands, and the numbers of the failures on the way.
struct Reading {
    explicit Reading(const std::string& attributes)
    {
        const Steps step{[this](int number, const std::string&) { failures.push_back(number); }};
        position = readPosition(
            step, documents::openText("<status " + attributes + "/>").get_documentElement());
    }

    test::ToolkitScope toolkit;
    Position           position;
    std::vector<int>   failures;
};

TEST(StatusMasks, AConditionTellsItsByteAndItsBit)
{
    const Reading read{R"(maskByte="11" maskBit="7")"};
    EXPECT_EQ(read.position.byte, 11);
    EXPECT_EQ(read.position.bit, 7);
    EXPECT_THAT(read.failures, ElementsAre());
}

TEST(StatusMasks, WhatIsMissingOrNoNumberIsNone)
{
    EXPECT_EQ(Reading{R"(maskBit="1")"}.position.byte, kNone);
    EXPECT_EQ(Reading{R"(maskByte="1")"}.position.bit, kNone);
    EXPECT_EQ(Reading{R"(maskByte="" maskBit="x")"}.position.byte, kNone);
    EXPECT_EQ(Reading{R"(maskByte="" maskBit="x")"}.position.bit, kNone);
}

TEST(StatusMasks, ANumberThatIsTooLargeFailsAloneAndIsNone)
{
    const Reading read{R"(maskByte="40000" maskBit="2")"};
    EXPECT_EQ(read.position.byte, kNone);
    EXPECT_EQ(read.position.bit, 2);
    EXPECT_THAT(read.failures, ElementsAre(platform::kOverflow));
}

TEST(StatusMasks, TheDigitAtTheEndOfANameIsThePart)
{
    const test::ToolkitScope toolkit;
    EXPECT_EQ(partInName("statusMask3"), 3);
    EXPECT_EQ(partInName("statusMask10"), 0);
    EXPECT_EQ(partInName("statusMask"), std::nullopt);
    EXPECT_EQ(partInName("1x"), std::nullopt);
    EXPECT_EQ(partInName("statusMask1 "), std::nullopt);
    EXPECT_EQ(partInName(""), std::nullopt);
}

TEST(StatusMasks, HalfTheDigitsAreBytesATieGoesToTheEvenNumber)
{
    EXPECT_EQ(bytesInPart(8), 4);
    EXPECT_EQ(bytesInPart(2), 1);
    EXPECT_EQ(bytesInPart(0), 0);
    EXPECT_EQ(bytesInPart(1), 0);
    EXPECT_EQ(bytesInPart(3), 2);
    EXPECT_EQ(bytesInPart(5), 2);
    EXPECT_EQ(bytesInPart(7), 4);
    EXPECT_EQ(bytesInPart(9), 4);
    EXPECT_EQ(bytesInPart(11), 6);
}

TEST(StatusMasks, PartsCountFromOneAndBytesWithinThemFromZero)
{
    const int bytes = 4;
    EXPECT_EQ(partOf(0, bytes), 1);
    EXPECT_EQ(byteInPart(0, bytes), 0);
    EXPECT_EQ(partOf(3, bytes), 1);
    EXPECT_EQ(byteInPart(3, bytes), 3);
    EXPECT_EQ(partOf(4, bytes), 2);
    EXPECT_EQ(byteInPart(4, bytes), 0);
    EXPECT_EQ(partOf(11, bytes), 3);
    EXPECT_EQ(byteInPart(11, bytes), 3);
}

TEST(StatusMasks, DivisionCutsTowardsZeroForBytesThatAreNone)
{
    EXPECT_EQ(partOf(-1, 4), 1);
    EXPECT_EQ(byteInPart(-1, 4), -1);
    EXPECT_EQ(partOf(-5, 4), 0);
}

TEST(StatusMasks, APartWithoutBytesCannotBeDividedBy)
{
    EXPECT_EQ(failureOf([] { std::ignore = partOf(3, 0); }), platform::kDivisionByZero);
    EXPECT_EQ(failureOf([] { std::ignore = byteInPart(3, 0); }), platform::kDivisionByZero);
}

TEST(StatusMasks, BitsHaveTheValuesOfPowersOfTwo)
{
    const std::vector<int> expected{1, 2, 4, 8, 16, 32, 64, 128};
    for (int bit = 0; bit < 8; ++bit) {
        EXPECT_EQ(bitValue(bit), expected[static_cast<std::size_t>(bit)]);
    }
    EXPECT_EQ(failureOf([] { std::ignore = bitValue(-1); }), platform::kSubscriptOutOfRange);
    EXPECT_EQ(failureOf([] { std::ignore = bitValue(8); }), platform::kSubscriptOutOfRange);
}

TEST(StatusMasks, AByteIsTwoUpperCaseDigits)
{
    EXPECT_EQ(digitsOf(0), "00");
    EXPECT_EQ(digitsOf(0x0a), "0A");
    EXPECT_EQ(digitsOf(0xff), "FF");
    EXPECT_EQ(digitsOf(0x5c), "5C");
}

TEST(StatusMasks, ReadsTheByteOfAPlaceInEitherLetterCase)
{
    EXPECT_EQ(getByte("00a1Ff", 0), 0);
    EXPECT_EQ(getByte("00a1Ff", 1), 0xa1);
    EXPECT_EQ(getByte("00a1Ff", 2), 0xff);
}

TEST(StatusMasks, BehindTheEndAllIsSwitchedOn)
{
    EXPECT_EQ(getByte("0000", 2), 255);
    EXPECT_EQ(getByte("", 0), 255);
    EXPECT_EQ(getByte("0000", INT_MAX), 255);
    EXPECT_EQ(getByte("0000", INT_MAX / 2), 255);
}

TEST(StatusMasks, OneDigitAloneCounts)
{
    EXPECT_EQ(getByte("00A", 1), 10);
    EXPECT_EQ(getByte("7", 0), 7);
}

TEST(StatusMasks, WhatIsNotHexadecimalIsATypeMismatch)
{
    for (const char* mask : {"G0", "0G", " 1", "1 ", "-1", "+1", "0x", "ää", "\xff\xff"}) {
        EXPECT_EQ(failureOf([&] { std::ignore = getByte(mask, 0); }), platform::kTypeMismatch)
            << mask;
    }
}

TEST(StatusMasks, ReadInAStepWhatCannotBeReadIsZeroAndAPlaceThatCannotBeIsNone)
{
    std::vector<int> failures;
    const Steps      step{[&](int number, const std::string&) { failures.push_back(number); }};
    EXPECT_EQ(readByte(step, "7F", 0), 0x7f);
    EXPECT_EQ(readByte(step, "7F", 1), 0xff);
    EXPECT_THAT(failures, ElementsAre());
    EXPECT_EQ(readByte(step, "GG", 0), 0);
    EXPECT_EQ(readByte(step, "7F", -1), std::nullopt);
    EXPECT_THAT(failures, ElementsAre(platform::kTypeMismatch, platform::kInvalidCall));
}

TEST(StatusMasks, PlacesCountCharactersAndNotBytesOfTheEncoding)
{
    EXPECT_EQ(getByte("ää7F", 1), 0x7f);
}

TEST(StatusMasks, APlaceBelowZeroIsAnInvalidCall)
{
    EXPECT_EQ(failureOf([] { std::ignore = getByte("00", -1); }), platform::kInvalidCall);
}

} // namespace
} // namespace quill::statusMasks
