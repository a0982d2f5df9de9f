#include "platform/list_view.h"

#include "platform/failure.h"

#include <gmock/gmock.h>

namespace quill::platform {
namespace {

using ::testing::ElementsAre;

class AListOfRows : public ::testing::Test {
protected:
    AListOfRows()
    {
        std::vector<ListItem> items;
        for (int row = 1; row <= 10; ++row) {
            items.push_back({.Text = std::to_string(row)});
        }
        list.setItems(std::move(items));
    }

    [[nodiscard]] std::vector<std::string> texts() const
    {
        std::vector<std::string> all;
        for (const ListItem& item : list.ListItems()) {
            all.push_back(item.Text);
        }
        return all;
    }

    Control  form;
    ListView list{form};
};

TEST(ListViewRows, TheFirstRowThatIsAddedIsTheFirstToBeSeen)
{
    Control  form;
    ListView list{form};
    EXPECT_EQ(list.FirstVisible(), 0);
    list.Add({.Text = "a"});
    list.Add({.Text = "b"});
    EXPECT_EQ(list.FirstVisible(), 1);
    list.setFirstVisible(2);
    list.Add({.Text = "c"});
    EXPECT_EQ(list.FirstVisible(), 2);
    list.Clear();
    EXPECT_EQ(list.FirstVisible(), 0);
}

TEST_F(AListOfRows, ARemovedRowIsToldAndTheOthersMoveUp)
{
    std::vector<WidgetChange> told;
    const auto                changed =
        list.Changed.subscribe([&](const auto& change) { told.push_back(change); });
    list.Remove(3);
    EXPECT_THAT(texts(), ElementsAre("1", "2", "4", "5", "6", "7", "8", "9", "10"));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].what, WidgetChange::What::rowsRemoved);
    EXPECT_EQ(told[0].first, 2);
    EXPECT_EQ(told[0].last, 2);
    for (const int row : {0, 10, -1}) {
        try {
            list.Remove(row);
            ADD_FAILURE() << "row " << row;
        } catch (const Failure& failed) {
            EXPECT_EQ(failed.number(), kSubscriptOutOfRange);
        }
    }
    EXPECT_EQ(list.Count(), 9);
}

TEST_F(AListOfRows, TheCurrentRowStaysTheSameItemUntilItIsRemoved)
{
    list.setSelectedItem(5);
    list.Remove(7);
    EXPECT_EQ(list.SelectedItem(), 5);
    list.Remove(2);
    EXPECT_EQ(list.SelectedItem(), 4);
    EXPECT_EQ(list.Item(4).Text, "5");
    EXPECT_TRUE(list.Item(4).Selected);
    list.Remove(4);
    EXPECT_EQ(list.SelectedItem(), 0);
    EXPECT_FALSE(list.Item(4).Selected);
}

TEST_F(AListOfRows, WhatIsToBeSeenMovesUpAndNeverPointsBehindTheEnd)
{
    list.setFirstVisible(5);
    list.Remove(1);
    EXPECT_EQ(list.FirstVisible(), 4);
    list.Remove(4);
    EXPECT_EQ(list.FirstVisible(), 4) << "the next row takes its place";
    list.setFirstVisible(8);
    list.EnsureVisible(8);
    list.Remove(8);
    EXPECT_EQ(list.FirstVisible(), 7);
    EXPECT_EQ(list.EnsuredVisible(), 7);
    while (list.Count() > 0) {
        list.Remove(list.Count());
    }
    EXPECT_EQ(list.FirstVisible(), 0);
    EXPECT_EQ(list.EnsuredVisible(), 0);
}

TEST_F(AListOfRows, ARowThatIsToBeSeenScrollsUpButNotDown)
{
    list.setFirstVisible(4);
    list.EnsureVisible(2);
    EXPECT_EQ(list.FirstVisible(), 2);
    EXPECT_EQ(list.EnsuredVisible(), 2);
    list.EnsureVisible(9);
    EXPECT_EQ(list.FirstVisible(), 2) << "how far to scroll knows who shows the list";
    EXPECT_EQ(list.EnsuredVisible(), 9);
    EXPECT_THROW(list.EnsureVisible(11), Failure);
    EXPECT_THROW(list.EnsureVisible(0), Failure);
    EXPECT_EQ(list.EnsuredVisible(), 9);
    list.setItems(list.ListItems());
    EXPECT_EQ(list.EnsuredVisible(), 0);
    EXPECT_EQ(list.FirstVisible(), 1);
}

TEST_F(AListOfRows, ANewFirstRowIsToldAlsoWhereTheOldOneWasTheSame)
{
    list.EnsureVisible(9);
    int        told    = 0;
    const auto changed = list.Changed.subscribe([&](const auto&) { ++told; });
    list.setFirstVisible(1);
    EXPECT_EQ(told, 1) << "row 9 is in the way";
    EXPECT_EQ(list.EnsuredVisible(), 0);
    list.setFirstVisible(1);
    EXPECT_EQ(told, 1);
}

TEST_F(AListOfRows, AskingForTheSameRowAgainIsToldAgain)
{
    list.EnsureVisible(9);
    int        told    = 0;
    const auto changed = list.Changed.subscribe([&](const auto&) { ++told; });
    list.EnsureVisible(9);
    EXPECT_EQ(told, 1);
}

} // namespace
} // namespace quill::platform
