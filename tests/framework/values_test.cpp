#include "framework/values.h"

#include "support/failure_of.h"
#include "support/toolkit_scope.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace quill {
namespace {

using test::failureOf;
using test::ToolkitScope;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN      = std::numeric_limits<double>::quiet_NaN();

TEST(Values, ATypeIsNumericByItsFirstLetters)
{
    struct Case {
        const char* type;
        bool        isInteger, isFloat;
    };
    for (const Case& c :
         {Case{"integerVal", true, false}, Case{"int", true, false}, Case{"floatVal", false, true},
          Case{"float", false, true}, Case{"floaVal", false, false}, Case{"in", false, false},
          Case{"stringVal", false, false}, Case{"dateVal", false, false},
          Case{"IntegerVal", false, false}, Case{"", false, false}}) {
        SCOPED_TRACE(c.type);
        EXPECT_EQ(values::isIntegerType(c.type), c.isInteger);
        EXPECT_EQ(values::isFloatType(c.type), c.isFloat);
        EXPECT_EQ(values::isNumericType(c.type), c.isInteger || c.isFloat);
    }
}

TEST(Values, TheDecimalSeparatorIsTheLocales)
{
    for (const char* separator : {".", ",", "\xD9\xAB"}) {
        const ToolkitScope toolkit{separator};
        EXPECT_EQ(values::decimalSeparator(), separator);
    }
}

TEST(Values, ALocaleWithoutASeparatorUsesThePoint)
{
    const ToolkitScope toolkit{""};
    EXPECT_EQ(values::decimalSeparator(), ".");
    EXPECT_DOUBLE_EQ(values::parseLocal("1.5"), 1.5);
}

TEST(Values, TheNumericTestTakesTheLocalesNumbersOnly)
{
    // "@" stands for the separator of the locale, "~" for the other one.
    struct Case {
        const char* text;
        bool        isNumber;
        double      number;
    };
    const std::vector<Case> cases{
        {"0", true, 0},
        {"5", true, 5},
        {"-5", true, -5},
        {"+5", true, 5},
        {"007", true, 7},
        {"4@5", true, 4.5},
        {"5@", true, 5},
        {"@5", true, 0.5},
        {"-@5", true, -0.5},
        {"  4@5  ", true, 4.5},
        {"1e5", true, 1e5},
        {"1E5", true, 1e5},
        {"1@5e-3", true, 0.0015},
        {"1@e+2", true, 100},
        {"@5E2", true, 50},
        {"0e999999999999999999999", true, 0},
        {"1e-999999999999999999999", true, 0},
        {"1e-400", true, 0},
        {"0@1e-400", true, 0},
        {"2147483648", true, 2147483648.0},
        {"-1@79769313486231E+308", true, -1.79769313486231E+308},
        {"", false, 0},
        {" ", false, 0},
        {"@", false, 0},
        {"+", false, 0},
        {"-", false, 0},
        {"-@", false, 0},
        {"e5", false, 0},
        {"@e5", false, 0},
        {"1e", false, 0},
        {"1e+", false, 0},
        {"1e1@5", false, 0},
        {"1d5", false, 0},
        {"1 e5", false, 0},
        {"- 5", false, 0},
        {"--5", false, 0},
        {"5-", false, 0},
        {"5 5", false, 0},
        {"4~5", false, 0},
        {"5~", false, 0},
        {"4@5@6", false, 0},
        {"1~000@5", false, 0},
        {"1'000", false, 0},
        {"NaN", false, 0},
        {"-Inf", false, 0},
        {"inf", false, 0},
        {"0x10", false, 0},
        {"&H10", false, 0},
        {"5\n", false, 0},
        {"\xD9\xA5", false, 0},
    };
    for (const char* separator : {".", ","}) {
        const ToolkitScope toolkit{separator};
        const std::string  other = separator == std::string{"."} ? "," : ".";
        for (const Case& c : cases) {
            const std::string text =
                values::replaceAll(values::replaceAll(c.text, "@", separator), "~", other);
            SCOPED_TRACE("\"" + text + "\" with \"" + separator + "\"");
            EXPECT_EQ(values::isNumeric(text), c.isNumber);
            if (c.isNumber) {
                EXPECT_DOUBLE_EQ(values::parseLocal(text), c.number);
            } else {
                EXPECT_EQ(failureOf([&] { (void)values::parseLocal(text); }),
                          platform::kTypeMismatch);
            }
        }
    }
}

TEST(Values, ANumberThatIsTooLargeIsNumericAndOverflows)
{
    const ToolkitScope             toolkit;
    const std::string              zeros(400, '0');
    const std::vector<std::string> texts{"1e309",
                                         "-1e309",
                                         "1e999999999999999999999",
                                         "1" + zeros,
                                         "1" + zeros + ".5e-10",
                                         "0.0001e400",
                                         "0." + zeros + "1e800"};
    for (const std::string& text : texts) {
        SCOPED_TRACE(text);
        EXPECT_TRUE(values::isNumeric(text));
        EXPECT_EQ(failureOf([&] { (void)values::parseLocal(text); }), platform::kOverflow);
    }
    EXPECT_EQ(values::parseLocal("0." + zeros + "1"), 0);
    EXPECT_EQ(values::parseLocal("1" + zeros + "e-800"), 0);
    EXPECT_DOUBLE_EQ(values::parseLocal("1" + zeros + "e-400"), 1);
}

TEST(Values, DocumentsUseThePointWhateverTheLocale)
{
    const ToolkitScope toolkit{","};
    EXPECT_DOUBLE_EQ(values::parseDocument("4.5"), 4.5);
    EXPECT_EQ(failureOf([] { (void)values::parseDocument("4,5"); }), platform::kTypeMismatch);
    EXPECT_EQ(values::documentText(4.5), "4.5");
    EXPECT_EQ(values::documentText(4.5F), "4.5");
    EXPECT_EQ(values::numberText(4.5), "4,5");
    EXPECT_EQ(values::numberText(4.5F), "4,5");
}

TEST(Values, ADoubleShowsFifteenDigitsAtMost)
{
    struct Case {
        double      number;
        const char* text;
    };
    for (const char* separator : {".", ","}) {
        const ToolkitScope toolkit{separator};
        for (const Case& c : {Case{0, "0"},
                              Case{-0.0, "0"},
                              Case{0.5, "0.5"},
                              Case{-0.5, "-0.5"},
                              Case{5, "5"},
                              Case{100, "100"},
                              Case{-1234.5, "-1234.5"},
                              Case{0.1 + 0.2, "0.3"},
                              Case{1.0 / 3, "0.333333333333333"},
                              Case{2.0 / 3, "0.666666666666667"},
                              Case{123456789012345, "123456789012345"},
                              Case{999999999999999, "999999999999999"},
                              Case{1e14, "100000000000000"},
                              Case{1e15, "1E+15"},
                              Case{1234567890123456, "1.23456789012346E+15"},
                              Case{999999999999999.9, "1E+15"},
                              Case{1e20, "1E+20"},
                              Case{-2.5e100, "-2.5E+100"},
                              Case{1.79769313486231E+308, "1.79769313486231E+308"},
                              Case{0.0001, "0.0001"},
                              Case{0.00001, "0.00001"},
                              Case{0.00001234, "0.00001234"},
                              Case{0.000001, "1E-06"},
                              Case{1.5e-7, "1.5E-07"},
                              Case{-1.5e-7, "-1.5E-07"},
                              Case{5e-324, "4.94065645841247E-324"},
                              Case{kNaN, "NaN"},
                              Case{kInfinity, "Inf"},
                              Case{-kInfinity, "-Inf"}}) {
            EXPECT_EQ(values::numberText(c.number), values::replaceAll(c.text, ".", separator));
            EXPECT_EQ(values::documentText(c.number), c.text);
        }
    }
}

TEST(Values, ASingleShowsSevenDigitsAtMost)
{
    struct Case {
        float       number;
        const char* text;
    };
    const ToolkitScope toolkit;
    for (const Case& c :
         {Case{0.0F, "0"}, Case{-0.0F, "0"}, Case{0.1F, "0.1"}, Case{1.0F / 3, "0.3333333"},
          Case{14.5038F, "14.5038"}, Case{-99999.0F, "-99999"}, Case{1234567.0F, "1234567"},
          Case{9999999.0F, "9999999"}, Case{10000000.0F, "1E+07"},
          Case{12345678.0F, "1.234568E+07"}, Case{1.5e-7F, "1.5E-07"},
          Case{3.402823E+38F, "3.402823E+38"}, Case{std::numeric_limits<float>::quiet_NaN(), "NaN"},
          Case{-std::numeric_limits<float>::infinity(), "-Inf"}}) {
        EXPECT_EQ(values::numberText(c.number), c.text);
    }
}

TEST(Values, EveryShownNumberReadsBackAsTheSameText)
{
    for (const char* separator : {".", ","}) {
        const ToolkitScope toolkit{separator};
        for (double size = 1.23456789e-40; size < 1e40; size *= 7.77) {
            for (const double number : {size, -size}) {
                const std::string text = values::numberText(number);
                ASSERT_TRUE(values::isNumeric(text)) << text;
                ASSERT_EQ(values::numberText(values::parseLocal(text)), text);
                ASSERT_NEAR(values::parseLocal(text) / number, 1, 1e-14);
            }
        }
    }
}

TEST(Values, APatternShapesANumber)
{
    struct Case {
        double      number;
        const char* pattern;
        const char* text;
    };
    const std::vector<Case> cases{
        {0, "######0", "0"},
        {5, "######0", "5"},
        {-5, "######0", "-5"},
        {12345678901, "######0", "12345678901"},
        {0.5, "######0", "1"},
        {1.5, "######0", "2"},
        {2.5, "######0", "3"},
        {-2.5, "######0", "-3"},
        {-0.4, "######0", "0"},
        {0.4999999, "######0", "0"},
        {999.5, "######0", "1000"},
        {3.14159, "######0.000", "3.142"},
        {3, "######0.000", "3.000"},
        {-0.0004, "######0.000", "0.000"},
        {-0.0005, "######0.000", "-0.001"},
        {0.9996, "######0.000", "1.000"},
        {0.09996, "######0.000", "0.100"},
        {99.9996, "######0.000", "100.000"},
        {2.675, "######0.00", "2.68"}, // the text says 2.675, whatever the double holds
        {1.005, "######0.00", "1.01"},
        {-1.005, "######0.00", "-1.01"},
        {1e-10, "######0.00", "0.00"},
        {1e-300, "######0.00", "0.00"},
        {1.5e-10, "######0.0000000000", "0.0000000002"},
        {5, "######0.", "5."},
        {5, "######0.##", "5."},
        {5.1, "######0.##", "5.1"},
        {5.129, "######0.##", "5.13"},
        {5.1, "######0.0##", "5.1"},
        {5, "######0.0##", "5.0"},
        {5.001, "######0.#0#", "5.001"},
        {5, "######0.#0#", "5.00"},
        {12.5, "0.0000", "12.5000"},
        {7, "00", "07"},
        {123, "00", "123"},
        {-7, "00", "-07"},
        {7, "#0#", "07"},
        {0, "#", ""},
        {0.4, "#", ""},
        {-0.4, "#", ""},
        {0.5, "#", "1"},
        {7, "#", "7"},
        {0.5, "#.##", ".5"},
        {-0.5, "#.##", "-.5"},
        {0, "#.##", "."},
        {1e20, "0", "100000000000000000000"},
        {1e20, "0.0", "100000000000000000000.0"},
        {123456789012345678.0, "0", "123456789012346000"},
        {kNaN, "######0.00", "NaN"},
        {-kInfinity, "######0.00", "-Inf"},
    };
    for (const char* separator : {".", ","}) {
        const ToolkitScope toolkit{separator};
        for (const Case& c : cases) {
            SCOPED_TRACE(std::to_string(c.number) + " as " + c.pattern);
            EXPECT_EQ(values::formatNumber(c.number, c.pattern),
                      values::replaceAll(c.text, ".", separator));
        }
    }
}

TEST(Values, APatternOfOtherCharactersIsRefused)
{
    const ToolkitScope toolkit;
    for (const char* pattern : {"0,0", "0.0.0", "0 V", "x"}) {
        EXPECT_EQ(failureOf([&] { (void)values::formatNumber(1, pattern); }),
                  platform::kInvalidCall)
            << pattern;
    }
}

TEST(Values, WholeNumbersRoundToTheEvenOne)
{
    struct Case {
        double number, rounded;
    };
    for (const Case& c : {Case{0.5, 0}, Case{1.5, 2}, Case{2.5, 2}, Case{-0.5, 0}, Case{-1.5, -2},
                          Case{-2.5, -2}, Case{2.4999, 2}, Case{2.5001, 3}, Case{1e300, 1e300}}) {
        EXPECT_EQ(values::roundToEven(c.number), c.rounded);
    }
}

TEST(Values, APercentageOfALengthIsRoundedAndHoldsForAnyLength)
{
    EXPECT_EQ(values::percentOf(10000, 15), 1500);
    EXPECT_EQ(values::percentOf(50, 5), 2);
    EXPECT_EQ(values::percentOf(70, 5), 4);
    EXPECT_EQ(values::percentOf(0, 95), 0);
    EXPECT_EQ(values::percentOf(-200, 3), -6);
    EXPECT_EQ(values::percentOf(100000000, 95), 95000000);
    EXPECT_EQ(values::percentOf(2147483647, 100), 2147483647);
}

TEST(Values, LengthsTogetherEndWhereThirtyTwoBitsEnd)
{
    EXPECT_EQ(values::sum(3, -5), -2);
    EXPECT_EQ(values::sum(2147483647, 1), 2147483647);
    EXPECT_EQ(values::sum(std::numeric_limits<std::int32_t>::min(), -1),
              std::numeric_limits<std::int32_t>::min());
}

TEST(Values, AnIntegerOutsideItsRangeOverflows)
{
    EXPECT_EQ(values::toInt16(2.5), 2);
    EXPECT_EQ(values::toInt16(3.5), 4);
    EXPECT_EQ(values::toInt16(32767.4), 32767);
    EXPECT_EQ(values::toInt16(-32768.5), -32768);
    EXPECT_EQ(values::toInt32(2147483647.4), 2147483647);
    EXPECT_EQ(values::toInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    for (const double number : {32767.5, -32768.6, 1e10, kNaN, kInfinity, -kInfinity}) {
        EXPECT_EQ(failureOf([&] { (void)values::toInt16(number); }), platform::kOverflow) << number;
    }
    for (const double number : {2147483647.5, -2147483648.6, 1e300, kNaN, kInfinity}) {
        EXPECT_EQ(failureOf([&] { (void)values::toInt32(number); }), platform::kOverflow) << number;
    }
}

TEST(Values, ANumberTooLargeForSinglePrecisionOverflows)
{
    EXPECT_EQ(values::toSingle(0.1), 0.1F);
    EXPECT_EQ(values::toSingle(-3e38), -3e38F);
    EXPECT_EQ(values::toSingle(1e-60), 0.0F);
    EXPECT_EQ(values::toSingle(kInfinity), std::numeric_limits<float>::infinity());
    for (const double number : {1e39, -1e39, 1e308}) {
        EXPECT_EQ(failureOf([&] { (void)values::toSingle(number); }), platform::kOverflow)
            << number;
    }
}

TEST(Values, EveryOccurrenceIsReplacedOnce)
{
    EXPECT_EQ(values::replaceAll("1.2.3", ".", ","), "1,2,3");
    EXPECT_EQ(values::replaceAll("aaa", "aa", "a"), "aa");
    EXPECT_EQ(values::replaceAll("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(values::replaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(values::replaceAll("abc", "b", ""), "ac");
    EXPECT_EQ(values::replaceAll("abc", "abc", ""), "");
    EXPECT_EQ(values::replaceAll("", "a", "b"), "");
}

TEST(Values, APartIsFoundWithAndWithoutRegardToCase)
{
    EXPECT_TRUE(values::contains("readWrite", "Write"));
    EXPECT_FALSE(values::contains("readWrite", "write"));
    EXPECT_TRUE(values::containsNoCase("readWrite", "write"));
    EXPECT_TRUE(values::containsNoCase("READWRITE", "Write"));
    EXPECT_TRUE(
        values::containsNoCase("VENTTIILIN S\xC3\x84\xC3\x84T\xC3\x96", "s\xC3\xA4\xC3\xA4"));
    EXPECT_FALSE(values::containsNoCase("read", "write"));
    EXPECT_TRUE(values::contains("read", ""));
}

} // namespace
} // namespace quill
