// Code points, the wall clock, and the toolkit without a screen.

#include "platform/date_time.h"
#include "platform/failure.h"
#include "platform/headless_toolkit.h"
#include "platform/utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::platform {
namespace {

using testing::ElementsAre;

TEST(Utf8Test, CountsAndCutsByCodePoint)
{
    EXPECT_EQ(utf8::length("käyttö €😀"), 9);
    EXPECT_EQ(utf8::substring("käyttö", 1, 2), "äy");
    EXPECT_EQ(utf8::substring("käyttö", 4), "tö");
    EXPECT_EQ(utf8::substring("käyttö", 6), "");
    EXPECT_EQ(utf8::substring("käyttö", 0, 0), "");
    EXPECT_EQ(utf8::substring("käyttö", 0, 1), "k") << "what stands behind has another length";
    EXPECT_EQ(utf8::substring("valve", -1, 2), "v") << "from before the beginning";
    EXPECT_EQ(utf8::substring("valve", 3, 9), "ve");
    EXPECT_EQ(utf8::substring("valve", 9, 1), "");
    EXPECT_THAT(utf8::characters("aä😀"), ElementsAre("a", "ä", "😀"));
    EXPECT_EQ(utf8::codePoint("€"), 0x20ACU);
    EXPECT_EQ(utf8::fromCodePoint(0x1F600), "😀");
}

TEST(Utf8Test, BytesThatAreNoTextCountOneEachAndAreKept)
{
    const std::string broken = "a\xC3(\xFF";
    EXPECT_FALSE(utf8::isValid(broken));
    EXPECT_EQ(utf8::length(broken), 4);
    EXPECT_EQ(utf8::toUpper(broken), "A\xC3(\xFF");
    EXPECT_FALSE(utf8::isValid("\xC0\x80"));     // too long a form
    EXPECT_FALSE(utf8::isValid("\xED\xA0\x80")); // half a surrogate pair
    EXPECT_TRUE(utf8::isValid("käytössä"));
}

TEST(Utf8Test, MapsTheLettersOfTheLanguagesInUse)
{
    EXPECT_EQ(utf8::toUpper("käytössä éñšž λ ж_1"), "KÄYTÖSSÄ ÉÑŠŽ Λ Ж_1");
    EXPECT_EQ(utf8::toLower("KÄYTÖSSÄ ÉÑŠŽ Λ Ж_1"), "käytössä éñšž λ ж_1");
    EXPECT_EQ(utf8::toUpper("×÷ß"), "×÷ß");
}

TEST(DateTimeTest, ReadsIsoForms)
{
    EXPECT_EQ(fromIso("2024-02-29"), (DateTime{2024, 2, 29}));
    EXPECT_EQ(fromIso("2024-02-29T23:59:58"), (DateTime{2024, 2, 29, 23, 59, 58}));
    EXPECT_EQ(fromIso("07:08", DateTime{2024, 5, 6}), (DateTime{2024, 5, 6, 7, 8, 0}));
    for (const char* bad : {"", "2023-02-29", "2024-13-01", "2024-05-06 ", "24:00", "7:8", "x",
                            "2024-05-06 07:08:09Z", "31.12.2024"}) {
        EXPECT_FALSE(fromIso(bad)) << bad;
    }
}

TEST(DateTimeTest, CountsSecondsAcrossDays)
{
    const DateTime end{2024, 2, 28, 23, 59, 59};
    EXPECT_EQ(toIso(addSeconds(end, 1)), "2024-02-29 00:00:00");
    EXPECT_EQ(toIso(addSeconds(end, -86400)), "2024-02-27 23:59:59");
    EXPECT_EQ(secondsBetween(end, addSeconds(end, 100000)), 100000);
}

TEST(HeadlessToolkitTest, TheClockStandsStillUntilItIsMoved)
{
    HeadlessToolkit toolkit;
    EXPECT_EQ(toIso(toolkit.now()), "2024-05-06 07:08:09");
    toolkit.advance(0.6);
    EXPECT_EQ(toolkit.now().second, 9);
    toolkit.advance(0.6);
    EXPECT_EQ(toolkit.now().second, 10);
    for (int i = 0; i < 10; ++i) {
        toolkit.doEvents();
    }
    EXPECT_EQ(toolkit.now().second, 11);
}

TEST(HeadlessToolkitTest, IsTheCurrentOneUntilAnotherIsSetAndAfterThatOneHasGone)
{
    Toolkit& usual = Toolkit::current();
    {
        HeadlessToolkit mine;
        Toolkit::setCurrent(&mine);
        EXPECT_EQ(&Toolkit::current(), &mine);
    }
    EXPECT_EQ(&Toolkit::current(), &usual);
}

TEST(FailureTest, CarriesTheNumberAndTheTextThatSupportKnows)
{
    EXPECT_EQ(failure(kObjectNotSet).number(), 91);
    EXPECT_EQ(failure(kNotSupportedByObject).description(),
              "Object doesn't support this property or method");
    EXPECT_EQ(failure(12345).description(), "Application-defined error");
}

} // namespace
} // namespace quill::platform
