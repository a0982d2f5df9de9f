#include "actions/bus_configuration.h"

#include "platform/failure.h"

#include <gtest/gtest.h>

namespace quill::busConfiguration {
namespace {

TEST(BusConfiguration, AWordIsFourHexadecimalDigits)
{
    EXPECT_EQ(wordAt("00120ABC", 1), 0x12);
    EXPECT_EQ(wordAt("00120abc", 5), 0xABC);
}

TEST(BusConfiguration, WhatIsNoNumberIsNoWord)
{
    for (const char* text : {"", "00G0", " 012", "-001", "0x12", "12 4", "+001"}) {
        EXPECT_EQ(wordAt(text, 1), std::nullopt) << text;
    }
    EXPECT_EQ(wordAt("0012", 5), std::nullopt);
}

TEST(BusConfiguration, DigitsThatTheEndCutsOffDoNotCount)
{
    EXPECT_EQ(wordAt("001F", 3), 0x1F);
}

TEST(BusConfiguration, AWordHasNoSign)
{
    EXPECT_EQ(wordAt("8000", 1), 0x8000);
    EXPECT_EQ(wordAt("FFFF", 1), 0xFFFF);
}

TEST(BusConfiguration, WritesFourUpperCaseDigits)
{
    EXPECT_EQ(word(8), "0008");
    EXPECT_EQ(word(0x1ABC), "1ABC");
    EXPECT_EQ(word(32767), "7FFF");
}

TEST(BusConfiguration, HalfAByteIsRoundedToTheEvenNumber)
{
    EXPECT_EQ(word(4.5), "0004");
    EXPECT_EQ(word(5.5), "0006");
}

TEST(BusConfiguration, AWordThatIsTooLargeIsAnOverflow)
{
    try {
        (void)word(32768);
        FAIL();
    } catch (const platform::Failure& failure) {
        EXPECT_EQ(failure.number(), platform::kOverflow);
    }
}

TEST(BusConfiguration, PlacesCountCharacters)
{
    EXPECT_EQ(wordAt("\u00e40012", 2), 0x12);
    EXPECT_EQ(wordAt("00\u00e42", 1), std::nullopt);
    EXPECT_EQ(piece("\u00e4BCD", 2, 2), "BC");
    EXPECT_EQ(rest("\u00e4BCD", 3), "CD");
}

TEST(BusConfiguration, APieceEndsWhereTheTextEnds)
{
    EXPECT_EQ(piece("ABCDEF", 3, 2), "CD");
    EXPECT_EQ(piece("ABCDEF", 5, 9), "EF");
    EXPECT_EQ(piece("ABCDEF", 7, 1), "");
    EXPECT_EQ(rest("ABCDEF", 4), "DEF");
    EXPECT_THROW((void)piece("ABC", 0, 1), platform::Failure);
    EXPECT_THROW((void)piece("ABC", 1, -1), platform::Failure);
}

} // namespace
} // namespace quill::busConfiguration
