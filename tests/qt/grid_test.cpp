// A user's mouse and keys on a grid: clicks, the cursor, the selection, folding, check cells.
#include "platform/toolkit.h"
#include "tests/qt/grid_test_support.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>

namespace quill::qt::test {

namespace {

using platform::Grid;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(GridOnScreen, AClickMovesTheCursorOnceAndIsToldOnce)
{
    page.fill(3, 10);
    show();
    click(4, 2);
    EXPECT_TRUE(page.scg.HasFocus());
    EXPECT_EQ(page.scg.CurRow(), 4);
    EXPECT_EQ(page.scg.CurCol(), 2);
    EXPECT_THAT(page.scg.SelectedRows(), ElementsAre(4));
    click(4, 2);
    EXPECT_THAT(page.heard, ElementsAre("cursor 4,2", "click 4,2", "click 4,2"));
    EXPECT_EQ(tree()->currentIndex(), cell(4, 2));
    EXPECT_EQ(tree()->selectionModel()->selectedIndexes(), QModelIndexList{cell(4, 2)});
}

TEST_F(GridOnScreen, APressThatIsTakenElsewhereIsNoClick)
{
    page.fill(3, 10);
    show();
    QTest::mousePress(tree()->viewport(), Qt::LeftButton, {}, rect(2, 1).center());
    QTest::mouseRelease(tree()->viewport(), Qt::LeftButton, {}, rect(5, 1).center());
    settle();
    EXPECT_THAT(page.heard, ElementsAre("cursor 2,1"));
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {},
                      QPoint(10, rect(10, 1).bottom() + 10));
    EXPECT_THAT(page.heard, ElementsAre("cursor 2,1"));
}

TEST_F(GridOnScreen, TheRightButtonAsksAboutACellAndLeavesTheCursor)
{
    page.fill(3, 10);
    show();
    click(2, 1);
    page.heard.clear();
    click(4, 3, Qt::RightButton);
    EXPECT_THAT(page.heard, ElementsAre("right 4,3"));
    EXPECT_EQ(page.scg.CurRow(), 2);
    EXPECT_EQ(tree()->currentIndex(), cell(2, 1));
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(tree()->viewport(), &menuKey);
    EXPECT_THAT(page.heard, ElementsAre("right 4,3", "right 2,1"));
}

TEST_F(GridOnScreen, TheMouseOverACellIsToldOncePerCell)
{
    page.fill(3, 10);
    show();
    const auto over = [&](QPoint where) { QTest::mouseMove(tree()->viewport(), where); };
    over(rect(2, 1).center());
    settle();
    page.heard.clear();
    over(rect(3, 2).center());
    over(rect(3, 2).center() + QPoint(3, 0));
    over(rect(4, 2).center());
    settle();
    EXPECT_THAT(page.heard, ElementsAre("hover 3,2", "hover 4,2"));
    EXPECT_EQ(page.scg.CurRow(), 0);
}

TEST_F(GridOnScreen, TheArrowKeysMoveTheCursorFromCellToCell)
{
    page.fill(3, 10);
    show();
    click(4, 2);
    page.heard.clear();
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    key(Qt::Key_Up);
    key(Qt::Key_Left);
    EXPECT_THAT(page.heard, ElementsAre("cursor 5,2", "cursor 5,3", "cursor 4,3", "cursor 4,2"));
    EXPECT_THAT(page.scg.SelectedRows(), ElementsAre(4));
}

TEST_F(GridOnScreen, KeysGoToTheModelFirstAndComeUpAfterTheCursorHasMoved)
{
    page.fill(3, 10);
    show();
    click(4, 2);
    int        handled = 0;
    int        seen    = 0;
    const auto down    = page.scg.KeyDown.subscribe([&](platform::KeyPress& press) {
        EXPECT_EQ(page.scg.CurRow(), 4);
        press.handled = press.code == platform::kKeyDown && ++handled == 1;
    });
    const auto up =
        page.scg.KeyUp.subscribe([&](platform::KeyPress&) { seen = page.scg.CurRow(); });
    key(Qt::Key_Down);
    EXPECT_EQ(page.scg.CurRow(), 4) << "a handler has taken the key";
    EXPECT_EQ(seen, 0);
    key(Qt::Key_Down);
    EXPECT_EQ(page.scg.CurRow(), 5);
    EXPECT_EQ(seen, 5);
}

TEST_F(GridOnScreen, AHandlerOfTheFormTakesAKeyToo)
{
    page.fill(3, 10);
    show();
    click(4, 2);
    const auto down =
        page.KeyDown.subscribe([&](platform::KeyPress& press) { press.handled = true; });
    key(Qt::Key_Down);
    EXPECT_EQ(page.scg.CurRow(), 4);
}

TEST_F(GridOnScreen, TheProgramsCursorAndSelectionAreShownWithoutAnEvent)
{
    page.fill(3, 100);
    page.scg.MultiSelect = true;
    show();
    page.scg.setCurCell(90, 3);
    page.scg.setSelectedRows({88, 89, 90});
    settle();
    EXPECT_EQ(tree()->currentIndex(), cell(90, 3));
    EXPECT_TRUE(tree()->viewport()->rect().contains(rect(90, 3).center())) << "scrolled to";
    EXPECT_EQ(tree()->selectionModel()->selectedRows().size(), 3);
    page.scg.setSelectedRows({90});
    settle();
    EXPECT_EQ(tree()->selectionModel()->selectedIndexes(), QModelIndexList{cell(90, 3)});
    page.scg.setSelectedRows({});
    settle();
    EXPECT_FALSE(tree()->selectionModel()->hasSelection());
    EXPECT_THAT(page.heard, IsEmpty());
}

TEST_F(GridOnScreen, RowModeSelectsWholeRowsAndCtrlOneMore)
{
    page.fill(3, 10);
    page.scg.RowMode     = true;
    page.scg.MultiSelect = true;
    show();
    click(2, 1);
    EXPECT_TRUE(tree()->selectionModel()->isSelected(cell(2, 3)));
    click(5, 1, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_THAT(page.scg.SelectedRows(), ElementsAre(2, 5));
    EXPECT_EQ(page.scg.CurRow(), 5);
    click(8, 1, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_THAT(page.scg.SelectedRows(), ElementsAre(2, 5, 6, 7, 8));
    EXPECT_THAT(page.heard, ElementsAre("cursor 2,1", "click 2,1", "cursor 5,1", "cursor 8,1"))
        << "with a modifier a click only selects";
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(page.scg.SelectedRows().size(), 10U);
}

TEST_F(GridOnScreen, WithoutMultiSelectOneRowIsSelected)
{
    page.fill(3, 10);
    page.scg.RowMode = true;
    show();
    click(2, 1);
    click(5, 1, Qt::LeftButton, Qt::ShiftModifier);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(page.scg.SelectedRows(), ElementsAre(5));
}

TEST_F(GridOnScreen, WhatIsSelectedIsCopiedThroughTheToolkit)
{
    page.fill(3, 10);
    page.scg.RowMode     = true;
    page.scg.MultiSelect = true;
    page.scg.setColumnVisible(2, false);
    page.scg.setCellText(2, 2, "hidden");
    page.scg.setCellText(2, 3, "two");
    page.scg.setCellText(3, 3, "three");
    show();
    click(2, 1);
    click(3, 1, Qt::LeftButton, Qt::ShiftModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(platform::Toolkit::current().clipboard(), "row 2\ttwo\nrow 3\tthree");
    const auto up = page.scg.KeyUp.subscribe([&](const platform::KeyPress& press) {
        if (press.code == 'C' && press.shift == platform::kControlKey) {
            platform::Toolkit::current().setClipboard("the view's own");
        }
    });
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "the view's own");
}

TEST_F(GridOnScreen, ADisabledGridHearsNothing)
{
    page.fill(3, 10);
    page.scg.Enabled = false;
    show();
    click(2, 1);
    QTest::mouseMove(tree()->viewport(), rect(3, 2).center());
    settle();
    EXPECT_THAT(page.heard, IsEmpty());
    EXPECT_EQ(page.scg.CurRow(), 0);
}

TEST_F(GridOnScreen, ADraggedHeaderTellsItsWidth)
{
    page.fill(3, 10);
    show();
    QHeaderView* const header = tree()->header();
    const QPoint       edge(header->sectionViewportPosition(1) - 1, header->height() / 2);
    // What is asked about the buttons is what the window system has told.
    QTest::mousePress(tree()->window()->windowHandle(), Qt::LeftButton, {},
                      header->viewport()->mapTo(tree()->window(), edge));
    QTest::mouseMove(tree()->window()->windowHandle(),
                     header->viewport()->mapTo(tree()->window(), edge + QPoint(30, 0)));
    QTest::mouseRelease(tree()->window()->windowHandle(), Qt::LeftButton, {},
                        header->viewport()->mapTo(tree()->window(), edge + QPoint(30, 0)));
    settle();
    EXPECT_EQ(page.scg.column(1).Width, 150);
    EXPECT_EQ(tree()->columnWidth(0), 150);
}

// --- Folding -------------------------------------------------------------------------------------

/// Rows 1 and 5 have three children each.
class FoldedGridOnScreen : public GridOnScreen {
protected:
    FoldedGridOnScreen()
    {
        page.scg.RowMode = true;
        page.fill(2, 0);
        for (int branch = 0; branch < 2; ++branch) {
            const int parent = page.scg.AddRow();
            for (int child = 0; child < 3; ++child) {
                page.scg.AddRow(parent);
            }
        }
        for (int row = 1; row <= 8; ++row) {
            page.scg.setCellText(row, 1, "row " + std::to_string(row));
        }
        page.scg.setRowExpanded(5, false);
        show();
    }
    /// The handle that folds a row.
    [[nodiscard]] QPoint handle(int row) const
    {
        return rect(row, 1).center() -
               QPoint(rect(row, 1).width() / 2 + tree()->indentation() / 2, 0);
    }
    void clickHandle(int row) const
    {
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, handle(row));
        settle();
    }
};

TEST_F(FoldedGridOnScreen, ShowsTheFoldingOfTheModel)
{
    EXPECT_TRUE(tree()->isExpanded(cell(1, 1)));
    EXPECT_FALSE(tree()->isExpanded(cell(5, 1)));
    page.scg.setRowExpanded(1, false);
    page.scg.setRowExpanded(5, true);
    settle();
    EXPECT_FALSE(tree()->isExpanded(cell(1, 1)));
    EXPECT_TRUE(tree()->isExpanded(cell(5, 1)));
}

TEST_F(FoldedGridOnScreen, TheMouseFoldsWithoutAClick)
{
    clickHandle(1);
    EXPECT_FALSE(page.scg.RowExpanded(1));
    clickHandle(1);
    EXPECT_TRUE(page.scg.RowExpanded(1));
    EXPECT_THAT(page.heard, IsEmpty());
}

TEST_F(FoldedGridOnScreen, TheArrowKeysFold)
{
    click(1, 1);
    key(Qt::Key_Left);
    EXPECT_FALSE(page.scg.RowExpanded(1));
    key(Qt::Key_Right);
    EXPECT_TRUE(page.scg.RowExpanded(1));
    EXPECT_EQ(page.scg.CurRow(), 1);
}

TEST_F(FoldedGridOnScreen, ACursorThatIsFoldedInComesToTheRow)
{
    click(3, 1);
    page.heard.clear();
    clickHandle(1);
    EXPECT_EQ(page.scg.CurRow(), 1);
    EXPECT_EQ(tree()->currentIndex().row(), 0);
    EXPECT_FALSE(tree()->isExpanded(cell(1, 1)));
    EXPECT_THAT(page.heard, ElementsAre("cursor 1,1"));
}

TEST_F(FoldedGridOnScreen, AProgramsCursorInAFoldedBranchLeavesItFolded)
{
    page.scg.setCurCell(7, 1);
    settle();
    EXPECT_FALSE(tree()->isExpanded(cell(5, 1)));
    EXPECT_FALSE(page.scg.RowExpanded(5));
}

TEST_F(FoldedGridOnScreen, RowsAddedToAFoldedBranchStayFoldedIn)
{
    page.scg.AddRow(5);
    settle();
    EXPECT_FALSE(tree()->isExpanded(cell(5, 1)));
    page.scg.Redraw = false;
    page.scg.AddRow(1);
    page.scg.Redraw = true;
    settle();
    EXPECT_TRUE(tree()->isExpanded(cell(1, 1)));
    EXPECT_FALSE(tree()->isExpanded(cell(6, 1)));
}

TEST_F(FoldedGridOnScreen, TheCursorSurvivesNewRows)
{
    click(3, 1);
    page.heard.clear();
    page.scg.Redraw = false;
    page.scg.AddRow(1);
    page.scg.Redraw = true;
    settle();
    EXPECT_EQ(tree()->currentIndex(), cell(3, 1));
    EXPECT_TRUE(tree()->selectionModel()->isSelected(cell(3, 1)));
    EXPECT_THAT(page.heard, IsEmpty());
}

// --- Check cells ---------------------------------------------------------------------------------

class CheckGridOnScreen : public GridOnScreen {
protected:
    CheckGridOnScreen()
    {
        page.fill(3, 5);
        for (int row = 1; row <= 5; ++row) {
            page.scg.setCellKind(row, 2, Grid::CellKind::check);
        }
        show();
    }
    [[nodiscard]] bool shownAsChecked(int row) const
    {
        return cell(row, 2).data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    }
};

TEST_F(CheckGridOnScreen, AClickAnywhereInTheCellSwitchesIt)
{
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {},
                      rect(3, 2).topLeft() + QPoint(10, 10));
    settle();
    EXPECT_EQ(page.scg.cell(3, 2).Value, 1);
    EXPECT_TRUE(shownAsChecked(3));
    EXPECT_THAT(page.heard, ElementsAre("cursor 3,2", "request 3,2", "changed 3,2", "committed 3,2",
                                        "click 3,2"));
    click(3, 2);
    EXPECT_EQ(page.scg.cell(3, 2).Value, 0);
    EXPECT_FALSE(shownAsChecked(3));
}

TEST_F(CheckGridOnScreen, TheSpaceBarSwitchesTheCurrentCell)
{
    page.scg.setCurCell(3, 2);
    page.scg.focus();
    settle();
    key(Qt::Key_Space);
    EXPECT_EQ(page.scg.cell(3, 2).Value, 1);
    key(Qt::Key_Space);
    EXPECT_EQ(page.scg.cell(3, 2).Value, 0);
    key(Qt::Key_Left);
    page.heard.clear();
    key(Qt::Key_Space);
    EXPECT_THAT(page.heard, ElementsAre("click 3,1")) << "a cell without a mark is clicked";
}

TEST_F(CheckGridOnScreen, InRowModeTheSpaceBarMeansTheMarkOfTheRow)
{
    page.scg.RowMode = true;
    settle();
    click(4, 1);
    key(Qt::Key_Space);
    EXPECT_EQ(page.scg.cell(4, 2).Value, 1);
}

TEST_F(CheckGridOnScreen, WithTheFocusTheSpaceBarMeansTheFirstRowUntilAnotherIsTaken)
{
    page.scg.RowMode = true;
    tree()->setFocus(Qt::TabFocusReason);
    settle();
    EXPECT_EQ(page.scg.CurRow(), 0) << "the place of the keyboard is no cursor yet";
    key(Qt::Key_Space);
    EXPECT_EQ(page.scg.cell(1, 2).Value, 1);
    EXPECT_EQ(page.scg.CurRow(), 1);
}

TEST_F(CheckGridOnScreen, AMarkThatCannotBeChangedStays)
{
    page.scg.setCellEditable(3, 2, false);
    click(3, 2);
    EXPECT_EQ(page.scg.cell(3, 2).Value, std::nullopt);
    EXPECT_FALSE(shownAsChecked(3));
    EXPECT_FALSE(cell(3, 2).flags().testFlag(Qt::ItemIsUserCheckable));
    page.barred = true;
    click(4, 2);
    EXPECT_FALSE(shownAsChecked(4));
}

TEST_F(CheckGridOnScreen, MarksOfAGridThatIsClosedLookLikeIt)
{
    const auto picture = [&] { return tree()->viewport()->grab(rect(3, 2)).toImage(); };
    page.scg.setCellValue(3, 2, 1);
    settle();
    const QImage open = picture();
    PaintWatch   watch(*tree());
    page.scg.Editable = false;
    settle();
    EXPECT_TRUE(watch.painted.contains(rect(3, 2).center()));
    EXPECT_NE(picture(), open);
    click(3, 2);
    EXPECT_EQ(page.scg.cell(3, 2).Value, 1);
}

TEST_F(CheckGridOnScreen, AMarkThatAHandlerTakesBackIsNotShown)
{
    const auto back = page.scg.TextChange.subscribe(
        [&](int row, int col) { page.scg.setCellValue(row, col, 0); });
    click(3, 2);
    EXPECT_FALSE(shownAsChecked(3));
}

TEST_F(CheckGridOnScreen, AssistiveProgramsSwitchItToo)
{
    EXPECT_TRUE(tree()->model()->setData(cell(2, 2), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(page.scg.cell(2, 2).Value, 1);
    page.barred = true;
    EXPECT_FALSE(tree()->model()->setData(cell(2, 2), Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_FALSE(tree()->model()->setData(cell(2, 1), Qt::Checked, Qt::CheckStateRole));
    tree()->selectionModel()->setCurrentIndex(cell(4, 1), QItemSelectionModel::ClearAndSelect);
    settle();
    EXPECT_EQ(page.scg.CurRow(), 4);
}

// --- Lifetime ------------------------------------------------------------------------------------

TEST(GridsOnScreen, AGridThatAHandlerEmptiesOrDestroysIsLeftAlone)
{
    struct : Page {
        std::unique_ptr<Grid> scg = std::make_unique<Grid>(
            *this, platform::Design{.Name = "scg", .Width = 4500, .Height = 3000});
    } page;
    page.scg->AddCol({.Width = 100});
    page.scg->setRowCount(5);
    const Shown screen(page);
    auto* const tree  = screen.as<QTreeView>(*page.scg);
    const auto  where = tree->visualRect(tree->model()->index(2, 0)).center();
    {
        const auto empties =
            page.scg->CurCellChange.subscribe([&](int, int) { page.scg->Clear(); });
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, where);
        settle();
        EXPECT_EQ(tree->model()->rowCount(), 0);
        EXPECT_EQ(page.scg->CurRow(), 0);
    }
    page.scg->AddCol({.Width = 100});
    page.scg->setRowCount(5);
    settle();
    const auto destroys = page.scg->Click.subscribe([&](int, int) { page.scg.reset(); });
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, where);
    settle();
    EXPECT_EQ(page.scg, nullptr);
}

} // namespace

} // namespace quill::qt::test
