#include "framework/name_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace quill {
namespace {

using testing::ElementsAre;

std::vector<std::uint32_t> placesOf(const NameTable& table, std::string_view name)
{
    std::vector<std::uint32_t> places;
    for (auto at = table.find(name); at != NameTable::kNone; at = table.next(at)) {
        places.push_back(at);
    }
    return places;
}

TEST(TextList, TextsStandWhereTheyWereAdded)
{
    TextList texts{"a", "", "bc"};
    texts.add(std::string(1, '\0'));
    EXPECT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[0], "a");
    EXPECT_EQ(texts[1], "");
    EXPECT_EQ(texts[2], "bc");
    EXPECT_EQ(texts[3], std::string(1, '\0'));
}

TEST(NameTable, ANameIsFoundWhereItStands)
{
    NameTable table;
    EXPECT_EQ(table.find("a"), NameTable::kNone);
    table.add("a");
    table.add("");
    EXPECT_EQ(table.find("a"), 0U);
    EXPECT_EQ(table.find(""), 1U);
    EXPECT_EQ(table.find("A"), NameTable::kNone);
    EXPECT_EQ(table.size(), 2U);
}

TEST(NameTable, ANameThatComesAgainIsFoundInEveryPlaceInOrder)
{
    NameTable table;
    for (const char* name : {"a", "b", "a", "c", "a"}) {
        table.add(name);
    }
    EXPECT_THAT(placesOf(table, "a"), ElementsAre(0U, 2U, 4U));
    EXPECT_THAT(placesOf(table, "b"), ElementsAre(1U));
}

TEST(NameTable, AnyNumberOfNamesIsFoundAsASearchFromTheFrontWould)
{
    std::mt19937                                      random{11};
    NameTable                                         table;
    std::map<std::string, std::vector<std::uint32_t>> expected;
    for (std::uint32_t place = 0; place < 5000; ++place) {
        const std::string name = "name" + std::to_string(random() % 3000);
        table.add(name);
        expected[name].push_back(place);
        const std::string other = "name" + std::to_string(random() % 3000);
        const auto        found = expected.find(other);
        ASSERT_EQ(table.find(other), found == expected.end() ? NameTable::kNone : found->second[0]);
    }
    for (const auto& [name, places] : expected) {
        ASSERT_EQ(placesOf(table, name), places) << name;
    }
}

TEST(NameTable, OneNameOverAndOverCostsNoMoreThanOthers)
{
    NameTable table;
    for (int time = 0; time < 200000; ++time) {
        table.add("same");
    }
    EXPECT_EQ(placesOf(table, "same").size(), 200000U);
}

} // namespace
} // namespace quill
