#include "framework/prefix_table.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace quill {
namespace {

std::optional<std::size_t> firstOneByOne(const std::vector<std::string>& texts,
                                         const std::string&              prefix)
{
    for (std::size_t place = 0; place < texts.size(); ++place) {
        if (texts[place].starts_with(prefix)) {
            return place;
        }
    }
    return std::nullopt;
}

TEST(PrefixTable, TheFirstOfTheListCountsAndNotTheFirstOfTheAlphabet)
{
    const PrefixTable table{{"bc", "ab", "a", "abc"}};
    EXPECT_EQ(table.first("a"), 1U);
    EXPECT_EQ(table.first("ab"), 1U);
    EXPECT_EQ(table.first("abc"), 3U);
    EXPECT_EQ(table.first("b"), 0U);
    EXPECT_EQ(table.first("abcd"), std::nullopt);
    EXPECT_EQ(table.first("c"), std::nullopt);
}

TEST(PrefixTable, EveryTextBeginsWithAnEmptyPrefix)
{
    EXPECT_EQ(PrefixTable({"b", "a"}).first(""), 0U);
    EXPECT_EQ(PrefixTable({"", "a"}).first(""), 0U);
    EXPECT_EQ(PrefixTable({""}).first("a"), std::nullopt);
}

TEST(PrefixTable, AnEmptyListHasNothing)
{
    const PrefixTable table{{}};
    EXPECT_EQ(table.first(""), std::nullopt);
    EXPECT_EQ(table.first("a"), std::nullopt);
}

TEST(PrefixTable, OfEqualTextsTheFirstCounts)
{
    const PrefixTable table{{"x", "a", "a", "a"}};
    EXPECT_EQ(table.first("a"), 1U);
}

TEST(PrefixTable, BytesAboveASCIIAreInOrderToo)
{
    const PrefixTable table{{"\xC3\xBC"
                             "b",
                             "\xC3\xA4", "z"}};
    EXPECT_EQ(table.first("\xC3\xA4"), 1U);
    EXPECT_EQ(table.first("\xC3\xBC"), 0U);
    EXPECT_EQ(table.first("z"), 2U);
}

TEST(PrefixTable, WhatAllTextsHaveInCommonIsAPrefixToo)
{
    const PrefixTable table{{"status.low", "status.high"}};
    EXPECT_EQ(table.first("sta"), 0U);
    EXPECT_EQ(table.first("status."), 0U);
    EXPECT_EQ(table.first("status.h"), 1U);
    EXPECT_EQ(table.first("stx"), std::nullopt);
    EXPECT_EQ(table.first("status.x"), std::nullopt);
    EXPECT_EQ(PrefixTable({"same", "same"}).first("same"), 0U);
    EXPECT_EQ(PrefixTable({"same", "same"}).first("same."), std::nullopt);
}

TEST(PrefixTable, TextsThatDifferLateAreToldApart)
{
    const std::string long_(20, 'a');
    const PrefixTable table{{"x", long_ + "c", long_ + "b", long_, long_ + std::string(1, '\0')}};
    EXPECT_EQ(table.first(long_ + "b"), 2U);
    EXPECT_EQ(table.first(long_), 1U);
    EXPECT_EQ(table.first(long_ + std::string(1, '\0')), 4U);
    EXPECT_EQ(table.first(long_ + "bc"), std::nullopt);
}

TEST(PrefixTable, ItAnswersAsASearchFromTheFrontWould)
{
    std::mt19937 random{7};
    const auto   text = [&](unsigned longest) {
        std::string made;
        for (auto length = random() % (longest + 1); length > 0; --length) {
            made += static_cast<char>('a' + random() % 3);
        }
        return made;
    };
    std::size_t found = 0;
    for (int round = 0; round < 300; ++round) {
        std::vector<std::string> texts(random() % 40);
        for (std::string& each : texts) {
            each = (round % 2 == 0 ? "" : "common") + text(round % 3 == 0 ? 20 : 6);
        }
        TextList list;
        for (const std::string& each : texts) {
            list.add(each);
        }
        const PrefixTable table{list};
        for (int question = 0; question < 30; ++question) {
            const std::string prefix = (round % 2 == 0 ? "" : "common") + text(5);
            const auto        answer = firstOneByOne(texts, prefix);
            ASSERT_EQ(table.first(prefix), answer) << "round " << round << ", " << prefix;
            found += answer ? 1U : 0U;
        }
    }
    EXPECT_GT(found, 2000U);
}

} // namespace
} // namespace quill
