#include "framework/ListTools.h"

#include "support/fake_editors.h"

#include <gmock/gmock.h>

namespace quill::test {
namespace {

using ListTools::AddChange;
using ListTools::ChangeArguments;
using ListTools::Reset;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ListToolsTest : public testing::Test {
protected:
    platform::Control  form;
    platform::ListView list{form};
    ListContainers     changes;
    FakeEditor         editor{form, EditorKind::text, "ctr_a"};

    void add(const std::string& label, const std::string& oldText = "1",
             const std::string& newText = "2")
    {
        AddChange(changes, list,
                  {&editor, "ctr_tag", label, "extra", oldText, newText, "floatVal", "group"});
    }
};

TEST_F(ListToolsTest, AnEmptyArrayHasOneEmptyElement)
{
    ASSERT_THAT(changes.rows, SizeIs(1));
    EXPECT_EQ(changes.rows[0], nullptr);
}

TEST_F(ListToolsTest, EveryArgumentArrivesInItsField)
{
    AddChange(changes, list,
              {&editor, "second", "third", "fourth", "fifth", "sixth", "seventh", "eighth"});
    ASSERT_THAT(changes.rows, SizeIs(1));
    const ListContainer& row = *changes.rows[0];
    EXPECT_EQ(row.editor.get(), &editor);
    EXPECT_EQ(row.tag, "second");
    EXPECT_EQ(row.key, "third");
    EXPECT_EQ(row.extra, "fourth");
    EXPECT_EQ(row.oldText, "fifth");
    EXPECT_EQ(row.newText, "sixth");
    EXPECT_EQ(row.type, "seventh");
    EXPECT_EQ(row.requestGroup, "eighth");
    EXPECT_TRUE(row.exists);
    EXPECT_TRUE(row.selected);
}

TEST_F(ListToolsTest, TheListShowsKeyOldAndNewText)
{
    add("Speed", "1", "2");
    add("Limit", "3", "4");
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Item(1).Text, "Speed");
    EXPECT_EQ(list.Item(1).Key, "Item_0");
    EXPECT_EQ(list.Item(1).Tag, "0");
    EXPECT_TRUE(list.Item(1).Checked);
    EXPECT_THAT(list.Item(1).SubItems, ElementsAre("1", "2"));
    EXPECT_EQ(list.Item(2).Text, "Limit");
    EXPECT_EQ(list.Item(2).Key, "Item_1");
    EXPECT_EQ(list.Item(2).Tag, "1");
}

TEST_F(ListToolsTest, ARowWithoutAnOldTextStartsUnselectedAndShowsNoValues)
{
    add("Speed", "", "2");
    EXPECT_FALSE(changes.rows[0]->selected);
    EXPECT_EQ(changes.rows[0]->newText, "2");
    EXPECT_FALSE(list.Item(1).Checked);
    EXPECT_THAT(list.Item(1).SubItems, ElementsAre("", ""));
}

TEST_F(ListToolsTest, AKnownKeyKeepsItsRowAndTakesTheNewBooking)
{
    add("Speed", "", "1");
    add("Limit");
    add("Speed", "1", "5");
    ASSERT_THAT(changes.rows, SizeIs(2));
    EXPECT_EQ(changes.rows[0]->newText, "5");
    EXPECT_TRUE(changes.rows[0]->selected);
    ASSERT_EQ(list.Count(), 2);
    EXPECT_THAT(list.Item(1).SubItems, ElementsAre("1", "5"));
    EXPECT_TRUE(list.Item(1).Checked);
    EXPECT_EQ(list.Item(2).Text, "Limit");
}

TEST_F(ListToolsTest, OtherRowsKeepWhatTheUserUnchecked)
{
    list.CheckBoxes = true;
    add("Speed");
    add("Limit");
    changes.rows[0]->selected = false;
    list.setChecked(1, false);
    add("Limit", "1", "9");
    EXPECT_FALSE(list.Item(1).Checked);
    EXPECT_FALSE(changes.rows[0]->selected);
}

TEST_F(ListToolsTest, ResetForgetsRowsAndNumbers)
{
    add("Speed");
    add("Limit");
    Reset(changes, list);
    ASSERT_THAT(changes.rows, SizeIs(1));
    EXPECT_EQ(changes.rows[0], nullptr);
    EXPECT_EQ(list.Count(), 0);
    add("Limit");
    ASSERT_THAT(changes.rows, SizeIs(1));
    EXPECT_EQ(list.Item(1).Tag, "0");
}

TEST_F(ListToolsTest, TheLastRowIsNumber32000)
{
    for (int i = 0; i <= ListTools::kLastRow; ++i) {
        add("key " + std::to_string(i));
    }
    EXPECT_THAT(changes.rows, SizeIs(32001));
    add("one too many");
    EXPECT_THAT(changes.rows, SizeIs(32001));
    EXPECT_EQ(list.Count(), 32001);
    add("key 32000", "1", "still taken");
    EXPECT_EQ(changes.rows[32000]->newText, "still taken");
}

TEST_F(ListToolsTest, ABookingChangesItsOwnLineOnly)
{
    for (int i = 0; i < 1000; ++i) {
        add("key " + std::to_string(i));
    }
    std::vector<std::pair<int, int>> touched;
    bool                             rebuilt = false;
    const auto subscription = list.Changed.subscribe([&](const platform::WidgetChange& change) {
        rebuilt |= change.what == platform::WidgetChange::What::reset;
        touched.emplace_back(change.first, change.last);
    });
    add("key 500", "3", "4");
    add("key new");
    EXPECT_THAT(touched, ElementsAre(std::pair{500, 500}, std::pair{1000, 1000}));
    EXPECT_FALSE(rebuilt);
}

TEST_F(ListToolsTest, AnEditorThatDiesLeavesItsRowWithoutAnEditor)
{
    {
        FakeEditor passing{form, EditorKind::text, "ctr_b"};
        AddChange(changes, list, {&passing, "ctr_b", "B", "", "1", "2", "floatVal", "g"});
        EXPECT_EQ(changes.rows[0]->editor.get(), &passing);
    }
    ASSERT_NE(changes.rows[0], nullptr);
    EXPECT_EQ(changes.rows[0]->editor.get(), nullptr);
    EXPECT_EQ(changes.rows[0]->requestGroup, "g");
}

TEST_F(ListToolsTest, ABookingWithoutAnEditorIsARowAllTheSame)
{
    AddChange(changes, list, {nullptr, "t", "B", "", "1", "2", "floatVal", "g"});
    EXPECT_EQ(changes.rows[0]->editor.get(), nullptr);
    EXPECT_EQ(list.Count(), 1);
}

TEST_F(ListToolsTest, TwoDialogsCountForThemselves)
{
    platform::ListView otherList{form};
    ListContainers     other;
    add("Speed");
    add("Limit");
    AddChange(other, otherList, {&editor, "t", "Limit", "", "1", "2", "floatVal", "g"});
    EXPECT_THAT(other.rows, SizeIs(1));
    Reset(other, otherList);
    add("Limit", "1", "7");
    EXPECT_THAT(changes.rows, SizeIs(2));
    EXPECT_EQ(changes.rows[1]->newText, "7");
}

} // namespace
} // namespace quill::test
