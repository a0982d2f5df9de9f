// How the user edits the cells of a grid.

#include "grid_fixture.h"

namespace quill::platform {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(AGridInUse, TypingAsksOnceAndACommitPutsTheTextIn)
{
    EXPECT_EQ(grid.typeCell(4, 2, "1"), UserDoor::done);
    EXPECT_EQ(grid.typeCell(4, 2, "12"), UserDoor::done);
    EXPECT_EQ(grid.EditRow(), 4);
    EXPECT_EQ(grid.EditCol(), 2);
    EXPECT_EQ(grid.EditText(), "12");
    EXPECT_EQ(grid.cell(4, 2).Text, "");
    EXPECT_EQ(grid.commitEdit(), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Text, "12");
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_THAT(heard, ElementsAre("cursor 4,2", "request 4,2", "typing 4,2", "typing 4,2",
                                   "changed 4,2", "committed 4,2"));
    EXPECT_EQ(grid.commitEdit(), UserDoor::refused) << "nothing is open";
}

TEST_F(AGridInUse, ACellThatIsOpenedShowsItsTextAndIsClosedAsItWas)
{
    EXPECT_EQ(grid.beginEdit(4, 1), UserDoor::done);
    EXPECT_EQ(grid.EditText(), "row 4");
    EXPECT_EQ(grid.beginEdit(4, 1), UserDoor::done) << "open already";
    EXPECT_EQ(grid.commitEdit(), UserDoor::done);
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
    EXPECT_THAT(heard, ElementsAre("cursor 4,1", "request 4,1"));
    heard.clear();
    EXPECT_EQ(grid.beginEdit(4, 1), UserDoor::done);
    EXPECT_EQ(grid.typeCell(4, 1, "row 4"), UserDoor::done);
    EXPECT_EQ(grid.commitEdit(), UserDoor::done);
    EXPECT_THAT(heard, ElementsAre("request 4,1", "typing 4,1", "changed 4,1", "committed 4,1"))
        << "typed, if only the same";
}

TEST_F(AGridInUse, ACancelledEditChangesNothing)
{
    grid.typeCell(4, 1, "x");
    const Told told(grid);
    grid.cancelEdit();
    EXPECT_THAT(told.lines, ElementsAre("changed 3-3 col 0"));
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_EQ(grid.EditText(), "");
    grid.cancelEdit();
    EXPECT_EQ(told.lines.size(), 1U);
    EXPECT_THAT(heard, ElementsAre("cursor 4,1", "request 4,1", "typing 4,1"));
}

TEST_F(AGridInUse, AHandlerCanKeepTheUserFromEditing)
{
    barred = true;
    EXPECT_EQ(grid.typeCell(4, 1, "x"), UserDoor::refused);
    EXPECT_EQ(grid.edit(4, 1, "x"), UserDoor::refused);
    EXPECT_EQ(grid.edit(4, 1, 5), UserDoor::refused);
    EXPECT_EQ(grid.beginEdit(4, 1), UserDoor::refused);
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
    EXPECT_THAT(heard, ElementsAre("cursor 4,1", "request 4,1", "request 4,1", "request 4,1",
                                   "request 4,1"));
}

TEST_F(AGridInUse, ACellOrAGridThatIsClosedIsNotEditedAndNobodyIsAsked)
{
    grid.setCellEditable(4, 1, false);
    EXPECT_EQ(grid.edit(4, 1, "x"), UserDoor::refused);
    EXPECT_EQ(grid.edit(4, 1, 1), UserDoor::refused);
    grid.Editable = false;
    EXPECT_EQ(grid.edit(5, 1, "x"), UserDoor::refused);
    EXPECT_EQ(grid.beginEdit(5, 1), UserDoor::refused);
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_EQ(grid.CurRow(), 0);
}

TEST_F(AGridInUse, ACellThatIsClosedWhileItIsOpenTakesNoMore)
{
    ASSERT_EQ(grid.typeCell(4, 1, "x"), UserDoor::done);
    grid.setCellEditable(4, 1, false);
    EXPECT_EQ(grid.typeCell(4, 1, "xy"), UserDoor::refused);
    EXPECT_EQ(grid.EditText(), "x");
    grid.setCellEditable(4, 1, true);
    grid.Enabled = false;
    EXPECT_EQ(grid.typeCell(4, 1, "xy"), UserDoor::refused);
    EXPECT_EQ(grid.commitEdit(), UserDoor::refused);
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
}

TEST_F(AGridInUse, AHandlerThatClosesTheCellWhenItIsEnteredIsHeeded)
{
    const auto closes = grid.CurCellChange.subscribe(
        [&](int row, int col) { grid.setCellEditable(row, col, false); });
    EXPECT_EQ(grid.edit(4, 1, "x"), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
}

TEST_F(AGridInUse, AnEditOfAnotherCellIsCommittedFirst)
{
    grid.typeCell(4, 1, "x");
    heard.clear();
    grid.typeCell(5, 1, "y");
    EXPECT_EQ(grid.cell(4, 1).Text, "x");
    EXPECT_THAT(heard, ElementsAre("changed 4,1", "committed 4,1", "cursor 5,1", "request 5,1",
                                   "typing 5,1"));
    heard.clear();
    EXPECT_EQ(grid.moveTo(1, 1), UserDoor::done);
    EXPECT_EQ(grid.cell(5, 1).Text, "y");
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_THAT(heard, ElementsAre("changed 5,1", "committed 5,1", "cursor 1,1"));
}

TEST_F(AGridInUse, AHandlerOfTheCommitMayPutTheOldTextBack)
{
    const auto back = grid.AfterCommitEdit.subscribe(
        [&](int row, int col) { grid.setCellText(row, col, "old"); });
    EXPECT_EQ(grid.edit(4, 1, "new"), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 1).Text, "old");
}

TEST_F(AGridInUse, ADropDownTakesTheTextsOfItsList)
{
    grid.AddCombo("units");
    grid.AddComboItem("units", {"bar", 7});
    grid.AddComboItem("units", {"psi", 9});
    grid.setCellList(4, 2, "units");
    EXPECT_EQ(grid.edit(4, 2, "psi"), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Text, "psi");
    EXPECT_EQ(grid.cell(4, 2).Value, 9);
    EXPECT_THAT(heard, ElementsAre("cursor 4,2", "request 4,2", "typing 4,2", "changed 4,2",
                                   "committed 4,2"));
    heard.clear();
    EXPECT_EQ(grid.edit(4, 2, "kg"), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 2).Text, "psi");
    EXPECT_EQ(grid.EditRow(), 0) << "dropped";
    EXPECT_THAT(heard, ElementsAre("request 4,2", "typing 4,2"));
    heard.clear();
    EXPECT_EQ(grid.edit(4, 2, 7), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Text, "bar");
    EXPECT_EQ(grid.cell(4, 2).Value, 7);
    EXPECT_THAT(heard, ElementsAre("request 4,2", "changed 4,2", "committed 4,2"));
    EXPECT_EQ(grid.edit(4, 2, 8), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 2).Value, 7);
}

TEST_F(AGridInUse, ADropDownMayGetItsListWhenTheCursorComes)
{
    const auto list = grid.CurCellChange.subscribe([&](int row, int col) {
        grid.ClearCombo("late");
        grid.AddComboItem("late", {"one", 1});
        grid.setCellList(row, col, "late");
    });
    EXPECT_EQ(grid.edit(4, 2, "two"), UserDoor::refused);
    EXPECT_EQ(grid.edit(4, 2, "one"), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Value, 1);
}

TEST_F(AGridInUse, ACheckCellIsSwitchedByAClickAndTakesNothingElse)
{
    grid.setCellKind(4, 2, Grid::CellKind::check);
    EXPECT_EQ(grid.clickCell(4, 2), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Value, 1);
    EXPECT_THAT(heard, ElementsAre("cursor 4,2", "request 4,2", "changed 4,2", "committed 4,2",
                                   "click 4,2"));
    EXPECT_EQ(grid.clickCell(4, 2), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Value, 0);
    EXPECT_EQ(grid.edit(4, 2, 1), UserDoor::done);
    EXPECT_EQ(grid.edit(4, 2, 2), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 2).Value, 1);
    EXPECT_EQ(grid.edit(4, 2, "0"), UserDoor::done);
    EXPECT_EQ(grid.edit(4, 2, "yes"), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 2).Value, 0);
    EXPECT_EQ(grid.EditRow(), 0);
    grid.blur();
}

TEST_F(AGridInUse, ACheckCellThatIsClosedIsClickedButNotSwitched)
{
    grid.setCellKind(4, 2, Grid::CellKind::check);
    grid.setCellEditable(4, 2, false);
    EXPECT_EQ(grid.clickCell(4, 2), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Value, std::nullopt);
    EXPECT_THAT(heard, ElementsAre("cursor 4,2", "click 4,2"));
    grid.blur();
}

TEST_F(AGridInUse, ANumberForAPlainCellIsItsText)
{
    EXPECT_EQ(grid.edit(4, 2, -12), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Text, "-12");
    EXPECT_EQ(grid.cell(4, 2).Value, std::nullopt);
}

TEST_F(AGridInUse, ANumberInTheMiddleOfTypingTakesTheCellOver)
{
    grid.typeCell(4, 2, "ha");
    EXPECT_EQ(grid.edit(4, 2, 3), UserDoor::done);
    EXPECT_EQ(grid.cell(4, 2).Text, "3");
    EXPECT_EQ(grid.EditRow(), 0);
    EXPECT_THAT(heard, ElementsAre("cursor 4,2", "request 4,2", "typing 4,2", "changed 4,2",
                                   "committed 4,2"));
}

TEST_F(AGridInUse, ARowThatIsHiddenWhileItIsEditedKeepsItsText)
{
    grid.typeCell(4, 1, "x");
    grid.setRowVisible(4, false);
    EXPECT_EQ(grid.commitEdit(), UserDoor::refused);
    EXPECT_EQ(grid.cell(4, 1).Text, "row 4");
    EXPECT_EQ(grid.EditRow(), 0);
}

} // namespace
} // namespace quill::platform
