#include "framework/values.h"

#include "support/toolkit_scope.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quill {
namespace {

using platform::DateTime;
using test::ToolkitScope;

struct DateCase {
    const char* text;
    const char* iso; ///< empty for a text that is no date
};

void expectDates(const std::vector<DateCase>& cases)
{
    for (const DateCase& c : cases) {
        SCOPED_TRACE(std::string{"\""} + c.text + "\"");
        const auto value = values::parseDate(c.text);
        EXPECT_EQ(value ? platform::toIso(*value) : "", c.iso);
        EXPECT_EQ(values::isDate(c.text), value.has_value());
    }
}

TEST(ValueDates, IsoDatesAreReadInEveryLocale)
{
    for (const char* shortDate : {"yyyy-MM-dd", "d.M.yyyy", "M/d/yyyy", ""}) {
        ToolkitScope toolkit;
        toolkit.localeSettings.shortDate = shortDate;
        SCOPED_TRACE(shortDate);
        expectDates({{"2024-05-06", "2024-05-06 00:00:00"},
                     {" 2024-05-06 07:08:09 ", "2024-05-06 07:08:09"},
                     {"2024-05-06T07:08:09", "2024-05-06 07:08:09"},
                     {"07:08", "1899-12-30 07:08:00"},
                     {"7:08:09", "1899-12-30 07:08:09"},
                     {"2024-02-29", "2024-02-29 00:00:00"},
                     {"2023-02-29", ""},
                     {"2024-13-01", ""},
                     {"2024-05-06 24:00:00", ""},
                     {"2024-05-06 07:08:09 x", ""},
                     {"00-0-0", ""},
                     {"", ""},
                     {"   ", ""},
                     {"NaN", ""},
                     {"12", ""},
                     {"12.5", ""},
                     {"today", ""}});
    }
}

TEST(ValueDates, TheLocalesOwnDatesAreRead)
{
    ToolkitScope toolkit{","};
    toolkit.localeSettings = {",", "dd.MM.yyyy", "H.mm.ss"};
    expectDates({{"05.04.2019", "2019-04-05 00:00:00"},
                 {"5.4.2019", "2019-04-05 00:00:00"},
                 {"5.4.2019 7.08.09", "2019-04-05 07:08:09"},
                 {"05.04.2019 07.08.09", "2019-04-05 07:08:09"},
                 {"7.08.09", "1899-12-30 07:08:09"},
                 {"7.8.9", ""},
                 {"5.4.19", ""},
                 {"5.4.2019  7.08.09", ""},
                 {"5.4.2019 ", "2019-04-05 00:00:00"},
                 {"31.4.2019", ""},
                 {"4/5/2019", ""},
                 {"005.4.2019", ""}});

    toolkit.localeSettings = {".", "M/d/yy", "h:mm:ss AP"};
    expectDates({{"4/5/19", "2019-04-05 00:00:00"},
                 {"4/5/29", "2029-04-05 00:00:00"},
                 {"4/5/30", "1930-04-05 00:00:00"},
                 {"4/5/19 12:00:01 AM", "2019-04-05 00:00:01"},
                 {"4/5/19 12:00:01 pm", "2019-04-05 12:00:01"},
                 {"11:59:59 PM", "1899-12-30 23:59:59"},
                 {"13:00:00 PM", ""},
                 {"0:00:00 AM", ""},
                 {"1:00:00 XM", ""},
                 {"1:00:00 P", ""},
                 {"5.4.2019", ""}});
}

TEST(ValueDates, APatternShapesADate)
{
    ToolkitScope   toolkit;
    const DateTime value{2019, 4, 5, 7, 8, 9};
    struct Case {
        const char* pattern;
        const char* text;
    };
    for (const Case& c :
         {Case{"d.m.yyyy", "5.4.2019"}, Case{"dd.mm.yy", "05.04.19"}, Case{"h:Nn:Ss", "7:08:09"},
          Case{"h:n:s", "7:8:9"}, Case{"yyyy-mm-dd Hh:Nn:Ss", "2019-04-05 07:08:09"},
          Case{"YYYY/MM/DD", "2019/04/05"}, Case{"ddddd", "2019-04-05"}, Case{"ttttt", "07:08:09"},
          Case{"ddddd ttttt", "2019-04-05 07:08:09"}, Case{"DDDDD TTTTT", "2019-04-05 07:08:09"},
          Case{"[d]", "[5]"}, Case{"", ""}}) {
        EXPECT_EQ(values::formatDate(value, c.pattern), c.text) << c.pattern;
    }
    toolkit.localeSettings = {",", "d.M.yyyy", "H.mm.ss"};
    EXPECT_EQ(values::formatDate(value, "ddddd ttttt"), "5.4.2019 7.08.09");
    toolkit.localeSettings = {".", "MM/dd/yy", "h:mm:ss AP"};
    EXPECT_EQ(values::formatDate(value, "ddddd ttttt"), "04/05/19 7:08:09 AM");
    EXPECT_EQ(values::formatDate({2019, 4, 5, 0, 0, 0}, "ddddd ttttt"), "04/05/19 12:00:00 AM");
    EXPECT_EQ(values::formatDate({2019, 4, 5, 12, 0, 0}, "ttttt"), "12:00:00 PM");
    EXPECT_EQ(values::formatDate({2019, 4, 5, 13, 0, 0}, "ttttt"), "1:00:00 PM");
}

TEST(ValueDates, MidnightIsShownLikeAnyOtherTime)
{
    const ToolkitScope toolkit;
    EXPECT_EQ(values::formatDate({2019, 4, 5, 0, 0, 0}, "ddddd ttttt"), "2019-04-05 00:00:00");
    EXPECT_EQ(values::formatDate({}, "ddddd ttttt"), "1899-12-30 00:00:00");
}

TEST(ValueDates, WhatTheLocaleShowsItAlsoReads)
{
    ToolkitScope   toolkit;
    const DateTime value{2019, 4, 5, 17, 8, 9};
    for (const platform::Locale& locale :
         {platform::Locale{}, platform::Locale{",", "d.M.yyyy", "H.mm.ss"},
          platform::Locale{",", "dd.MM.yyyy", "HH:mm:ss"},
          platform::Locale{".", "M/d/yyyy", "h:mm:ss AP"},
          platform::Locale{".", "dd/MM/yy", "hh:mm:ss"}}) {
        toolkit.localeSettings = locale;
        const std::string text = values::formatDate(value, "ddddd ttttt");
        const auto        read = values::parseDate(text);
        ASSERT_TRUE(read) << text;
        EXPECT_EQ(*read, value) << text;
    }
}

} // namespace
} // namespace quill
