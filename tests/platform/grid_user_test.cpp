// What the user does with a grid: the cursor, clicks, selection and folding.

#include "grid_fixture.h"

namespace quill::platform {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// --- User's door: clicks and the cursor ----------------------------------------------------------

TEST_F(AGridInUse, AClickBringsTheFocusTheCursorAndTheSelection)
{
    EXPECT_EQ(grid.clickCell(2, 1), UserDoor::done);
    EXPECT_TRUE(grid.HasFocus());
    EXPECT_EQ(grid.CurRow(), 2);
    EXPECT_EQ(grid.CurCol(), 1);
    EXPECT_THAT(grid.SelectedRows(), ElementsAre(2));
    EXPECT_EQ(grid.clickCell(2, 1), UserDoor::done);
    EXPECT_THAT(heard, ElementsAre("cursor 2,1", "click 2,1", "click 2,1"));
    grid.blur();
}

TEST_F(AGridInUse, RightClicksAndTheMouseLeaveTheCursorAlone)
{
    EXPECT_EQ(grid.rightClickCell(3, 2), UserDoor::done);
    EXPECT_EQ(grid.hoverCell(4, 1), UserDoor::done);
    EXPECT_THAT(heard, ElementsAre("right 3,2", "hover 4,1"));
    EXPECT_EQ(grid.CurRow(), 0);
    EXPECT_FALSE(grid.HasFocus());
}

TEST_F(AGridInUse, WhatIsNotToBeSeenRefuses)
{
    grid.setRowVisible(4, false);
    grid.setColumnVisible(3, false);
    grid.setRowExpanded(1, false);
    const std::vector<std::pair<int, int>> hidden = {{0, 1},  {6, 1}, {1, 0}, {1, 4},
                                                     {-1, 1}, {4, 1}, {1, 3}, {2, 1}};
    for (const auto& [row, col] : hidden) {
        EXPECT_EQ(grid.clickCell(row, col), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.rightClickCell(row, col), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.hoverCell(row, col), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.moveTo(row, col), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.beginEdit(row, col), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.typeCell(row, col, "x"), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.edit(row, col, "x"), UserDoor::refused) << row << "," << col;
        EXPECT_EQ(grid.edit(row, col, 1), UserDoor::refused) << row << "," << col;
    }
    EXPECT_EQ(grid.select({1, 4}), UserDoor::refused);
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_EQ(grid.CurRow(), 0);
    EXPECT_FALSE(grid.HasFocus());

    grid.setRowExpanded(1, true);
    grid.setRowVisible(1, false);
    EXPECT_EQ(grid.clickCell(2, 1), UserDoor::refused) << "under a hidden row";
}

TEST_F(AGridInUse, ADisabledGridOrOneInAHiddenFormRefuses)
{
    const auto everythingRefuses = [&] {
        EXPECT_EQ(grid.clickCell(1, 1), UserDoor::refused);
        EXPECT_EQ(grid.rightClickCell(1, 1), UserDoor::refused);
        EXPECT_EQ(grid.hoverCell(1, 1), UserDoor::refused);
        EXPECT_EQ(grid.moveTo(1, 1), UserDoor::refused);
        EXPECT_EQ(grid.select({1}), UserDoor::refused);
        EXPECT_EQ(grid.select({}), UserDoor::refused);
        EXPECT_EQ(grid.expand(1, false), UserDoor::refused);
        EXPECT_EQ(grid.beginEdit(1, 1), UserDoor::refused);
        EXPECT_EQ(grid.typeCell(1, 1, "x"), UserDoor::refused);
        EXPECT_EQ(grid.edit(1, 1, "x"), UserDoor::refused);
        EXPECT_EQ(grid.edit(1, 1, 1), UserDoor::refused);
        EXPECT_EQ(grid.commitEdit(), UserDoor::refused);
    };
    grid.Enabled = false;
    everythingRefuses();
    grid.Enabled = true;
    form.Visible = false;
    everythingRefuses();
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_TRUE(grid.RowExpanded(1));
}

TEST_F(AGridInUse, SeveralRowsAreSelectedOnlyWhereTheGridAllowsIt)
{
    EXPECT_EQ(grid.select({2, 4}), UserDoor::refused);
    grid.MultiSelect = true;
    EXPECT_EQ(grid.select({4, 2}), UserDoor::done);
    EXPECT_THAT(grid.SelectedRows(), ElementsAre(2, 4));
    EXPECT_EQ(grid.CurRow(), 4) << "the first that was named";
    EXPECT_EQ(grid.CurCol(), 1);
    grid.setCurCell(4, 2);
    EXPECT_EQ(grid.select({5}), UserDoor::done);
    EXPECT_EQ(grid.CurCol(), 2) << "the column stays";
    EXPECT_EQ(grid.select({}), UserDoor::done);
    EXPECT_THAT(grid.SelectedRows(), IsEmpty());
    EXPECT_EQ(grid.CurRow(), 5);
    EXPECT_EQ(grid.select({1, 9}), UserDoor::refused);
    EXPECT_THAT(heard, ElementsAre("cursor 4,1", "cursor 5,2"));
}

TEST_F(AGridInUse, RowsAreSelectedAlsoWhereTheFirstColumnIsHidden)
{
    grid.setColumnVisible(1, false);
    EXPECT_EQ(grid.select({3}), UserDoor::done);
    EXPECT_EQ(grid.CurRow(), 3);
    EXPECT_EQ(grid.CurCol(), 2);
    for (int col = 2; col <= 3; ++col) {
        grid.setColumnVisible(col, false);
    }
    EXPECT_EQ(grid.select({4}), UserDoor::refused);
}

TEST_F(AGridInUse, AHandlerOfTheCursorMayTakeTheRowsAway)
{
    grid.MultiSelect = true;
    const auto gone  = grid.CurCellChange.subscribe([&](int, int) { grid.setRowCount(1); });
    EXPECT_EQ(grid.select({3, 4}), UserDoor::refused);
    EXPECT_THAT(grid.SelectedRows(), IsEmpty());
    grid.setRowCount(3);
    EXPECT_EQ(grid.clickCell(3, 1), UserDoor::done);
    EXPECT_EQ(grid.CurRow(), 0);
    grid.blur();
}

TEST_F(AGridInUse, ACommittedEditMayTakeTheNextRowAway)
{
    ASSERT_EQ(grid.typeCell(1, 1, "x"), UserDoor::done);
    const auto gone = grid.AfterCommitEdit.subscribe([&](int, int) { grid.setRowCount(2); });
    EXPECT_EQ(grid.moveTo(5, 1), UserDoor::refused);
    EXPECT_EQ(grid.CurRow(), 1);
}

// --- User's door: folding ------------------------------------------------------------------------

TEST_F(AGridInUse, TheUserFoldsWhatHasChildren)
{
    EXPECT_EQ(grid.expand(1, false), UserDoor::done);
    EXPECT_FALSE(grid.RowExpanded(1));
    EXPECT_EQ(grid.expand(1, true), UserDoor::done);
    EXPECT_TRUE(grid.RowExpanded(1));
    EXPECT_EQ(grid.expand(4, false), UserDoor::refused) << "no children";
    EXPECT_EQ(grid.expand(9, false), UserDoor::refused);
    EXPECT_EQ(grid.expand(0, false), UserDoor::refused);
    grid.setRowVisible(1, false);
    EXPECT_EQ(grid.expand(1, false), UserDoor::refused);
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(AGridInUse, ACursorThatIsFoldedInComesToTheRow)
{
    grid.AddRow(2);
    grid.setCurCell(3, 1);
    EXPECT_EQ(grid.expand(1, false), UserDoor::done);
    EXPECT_EQ(grid.CurRow(), 1);
    EXPECT_THAT(grid.SelectedRows(), ElementsAre(1));
    EXPECT_THAT(heard, ElementsAre("cursor 1,1"));
    grid.setCurCell(5, 1);
    EXPECT_EQ(grid.expand(1, true), UserDoor::done);
    EXPECT_EQ(grid.expand(1, false), UserDoor::done);
    EXPECT_EQ(grid.CurRow(), 5) << "outside the branch";
}

} // namespace
} // namespace quill::platform
