// A user edits the cells of a grid: typing, drop-down lists, and how an edit ends.
#include "tests/qt/grid_test_support.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>

namespace quill::qt::test {

namespace {

using platform::Grid;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EditedGridOnScreen : public GridOnScreen {
protected:
    EditedGridOnScreen()
    {
        page.fill(3, 10);
        show();
    }
};

TEST_F(EditedGridOnScreen, TypingOpensTheCellAndReturnPutsTheTextIn)
{
    click(4, 1);
    page.heard.clear();
    type("12");
    ASSERT_NE(box<QLineEdit>(), nullptr);
    EXPECT_EQ(box<QLineEdit>()->text(), "12") << "in the place of the old text";
    EXPECT_EQ(page.scg.EditText(), "12");
    EXPECT_EQ(page.scg.cell(4, 1).Text, "row 4");
    key(Qt::Key_Return);
    EXPECT_EQ(box<QLineEdit>(), nullptr);
    EXPECT_EQ(page.scg.cell(4, 1).Text, "12");
    EXPECT_TRUE(tree()->hasFocus());
    EXPECT_TRUE(page.scg.HasFocus());
    EXPECT_THAT(page.heard, ElementsAre("request 4,1", "typing 4,1", "typing 4,1", "changed 4,1",
                                        "committed 4,1"));
}

TEST_F(EditedGridOnScreen, F2ReturnAndADoubleClickOpenTheCellWithItsText)
{
    click(4, 1);
    for (const Qt::Key opener : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
        key(opener);
        ASSERT_NE(box<QLineEdit>(), nullptr) << opener;
        EXPECT_EQ(box<QLineEdit>()->text(), "row 4");
        EXPECT_EQ(box<QLineEdit>()->selectedText(), "row 4");
        EXPECT_EQ(box<QLineEdit>()->geometry(), rect(4, 1));
        key(Qt::Key_Escape);
        EXPECT_EQ(box<QLineEdit>(), nullptr);
    }
    doubleClick(5, 1);
    ASSERT_NE(box<QLineEdit>(), nullptr);
    EXPECT_EQ(box<QLineEdit>()->text(), "row 5");
    EXPECT_EQ(page.scg.EditRow(), 5);
}

TEST_F(EditedGridOnScreen, ACellThatIsOnlyOpenedIsNotChanged)
{
    click(4, 1);
    page.heard.clear();
    key(Qt::Key_F2);
    key(Qt::Key_Return);
    EXPECT_THAT(page.heard, ElementsAre("request 4,1"));
    EXPECT_EQ(page.scg.EditRow(), 0);
}

TEST_F(EditedGridOnScreen, EscapeGivesTheEditUpAndGoesNoFurther)
{
    int        escapes = 0;
    const auto down    = page.KeyDown.subscribe(
        [&](const platform::KeyPress& press) { escapes += press.code == platform::kKeyEscape; });
    click(4, 1);
    type("x");
    key(Qt::Key_Escape);
    EXPECT_EQ(escapes, 0);
    EXPECT_EQ(box<QLineEdit>(), nullptr);
    EXPECT_EQ(page.scg.cell(4, 1).Text, "row 4");
    EXPECT_EQ(cell(4, 1).data().toString(), "row 4");
    EXPECT_EQ(page.scg.EditRow(), 0);
    EXPECT_TRUE(tree()->hasFocus());
    key(Qt::Key_Escape);
    EXPECT_EQ(escapes, 1) << "the next one is the form's";
}

TEST_F(EditedGridOnScreen, AnotherCellCommits)
{
    click(4, 1);
    type("x");
    click(6, 2);
    EXPECT_EQ(page.scg.cell(4, 1).Text, "x");
    EXPECT_EQ(page.scg.CurRow(), 6);
    EXPECT_EQ(box<QLineEdit>(), nullptr);
    type("y");
    key(Qt::Key_Down);
    EXPECT_EQ(page.scg.cell(6, 2).Text, "y");
    EXPECT_EQ(page.scg.CurRow(), 7);
    EXPECT_EQ(box<QLineEdit>(), nullptr);
}

TEST_F(EditedGridOnScreen, LeavingTheGridCommitsAndTakesTheFocusAlong)
{
    std::vector<std::string> focus;
    const auto lost = page.scg.LostFocus.subscribe([&] { focus.emplace_back("grid lost"); });
    const auto got  = page.txt.GotFocus.subscribe([&] { focus.emplace_back("text got"); });
    click(4, 1);
    type("x");
    EXPECT_THAT(focus, IsEmpty()) << "the box over the cell is the grid's";
    screen->click(page.txt);
    EXPECT_EQ(page.scg.cell(4, 1).Text, "x");
    EXPECT_THAT(focus, ElementsAre("grid lost", "text got"));
    EXPECT_TRUE((*screen)[page.txt]->hasFocus());
    EXPECT_EQ(box<QLineEdit>(), nullptr);
}

TEST_F(EditedGridOnScreen, TabCommitsAndGoesOnToTheNextWidget)
{
    click(4, 1);
    type("x");
    key(Qt::Key_Tab);
    EXPECT_EQ(page.scg.cell(4, 1).Text, "x");
    EXPECT_TRUE(page.txt.HasFocus());
    EXPECT_TRUE((*screen)[page.txt]->hasFocus());
}

TEST_F(EditedGridOnScreen, AnotherWindowLeavesTheEditOpen)
{
    click(4, 1);
    type("x");
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    settle();
    EXPECT_EQ(page.scg.EditText(), "x");
    QApplication::setActiveWindow(screen->view.get());
    settle();
    ASSERT_NE(box<QLineEdit>(), nullptr);
    key(Qt::Key_Return);
    EXPECT_EQ(page.scg.cell(4, 1).Text, "x");
}

TEST_F(EditedGridOnScreen, AFormThatIsAskedForTheFocusLeavesItInTheCell)
{
    click(4, 1);
    type("x");
    page.SetFocus();
    page.scg.SetFocus();
    settle();
    ASSERT_NE(box<QLineEdit>(), nullptr);
    EXPECT_TRUE(box<QLineEdit>()->hasFocus());
}

TEST_F(EditedGridOnScreen, WhatCannotBeEditedIsNotOpened)
{
    page.scg.setCellEditable(4, 1, false);
    click(4, 1);
    type("x");
    key(Qt::Key_F2);
    doubleClick(4, 1);
    EXPECT_EQ(box<QLineEdit>(), nullptr);
    page.barred = true;
    click(5, 1);
    type("x");
    key(Qt::Key_F2);
    EXPECT_EQ(box<QLineEdit>(), nullptr) << "a handler says no before the box opens";
    page.barred       = false;
    page.scg.Editable = false;
    key(Qt::Key_F2);
    EXPECT_EQ(box<QLineEdit>(), nullptr);
    EXPECT_EQ(page.scg.cell(5, 1).Text, "row 5");
    EXPECT_EQ(page.scg.EditRow(), 0);
}

TEST_F(EditedGridOnScreen, InRowModeAKeyOpensTheCellThatCanBeEdited)
{
    page.scg.RowMode = true;
    for (int row = 1; row <= 10; ++row) {
        page.scg.setCellEditable(row, 1, false);
    }
    settle();
    click(4, 1);
    key(Qt::Key_F2);
    EXPECT_EQ(page.scg.EditCol(), 2);
    ASSERT_NE(box<QLineEdit>(), nullptr);
    key(Qt::Key_Escape);
}

TEST_F(EditedGridOnScreen, TheProgramMayEndTheEditOrTakeTheRowAway)
{
    click(4, 1);
    type("x");
    page.scg.cancelEdit();
    settle();
    EXPECT_EQ(box<QLineEdit>(), nullptr);
    click(8, 1);
    type("x");
    page.scg.setRowCount(5);
    settle();
    EXPECT_EQ(box<QLineEdit>(), nullptr);
    EXPECT_EQ(page.scg.EditRow(), 0);
    click(4, 1);
    type("x");
    page.scg.Clear();
    page.fill(3, 10);
    settle();
    EXPECT_EQ(box<QLineEdit>(), nullptr);
    EXPECT_EQ(page.scg.EditRow(), 0);
    EXPECT_EQ(page.scg.cell(4, 1).Text, "row 4");
}

TEST_F(EditedGridOnScreen, AnEditOutlivesNewsOfOtherRows)
{
    click(4, 1);
    type("x");
    page.scg.setCellText(2, 2, "news");
    page.scg.AddRow(1);
    settle();
    page.scg.Redraw = false;
    page.scg.setCellText(3, 2, "more");
    page.scg.Redraw = true;
    settle();
    ASSERT_NE(box<QLineEdit>(), nullptr);
    EXPECT_TRUE(box<QLineEdit>()->hasFocus());
    type("y");
    key(Qt::Key_Return);
    EXPECT_EQ(page.scg.cell(5, 1).Text, "xy") << "the row has moved down by one";
}

TEST_F(EditedGridOnScreen, AHandlerMayPutTheOldTextBack)
{
    const auto back = page.scg.AfterCommitEdit.subscribe(
        [&](int row, int col) { page.scg.setCellText(row, col, "old"); });
    click(4, 1);
    type("x");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(4, 1).data().toString(), "old");
}

TEST_F(EditedGridOnScreen, WhatTheUsersDoorTypesElsewhereIsShown)
{
    page.scg.typeCell(4, 1, "typed");
    settle();
    EXPECT_EQ(cell(4, 1).data().toString(), "typed");
    page.scg.cancelEdit();
    settle();
    EXPECT_EQ(cell(4, 1).data().toString(), "row 4");
}

TEST_F(EditedGridOnScreen, TheDeleteKeyIsTheGridsUnlessACellIsOpen)
{
    int        deletes = 0;
    const auto up      = page.scg.KeyUp.subscribe(
        [&](const platform::KeyPress& press) { deletes += press.code == platform::kKeyDelete; });
    click(4, 1);
    key(Qt::Key_Delete);
    EXPECT_EQ(deletes, 1);
    key(Qt::Key_F2);
    key(Qt::Key_Delete);
    EXPECT_EQ(deletes, 1);
    EXPECT_EQ(page.scg.EditText(), "");
    key(Qt::Key_Return);
    EXPECT_EQ(page.scg.cell(4, 1).Text, "");
}

TEST_F(EditedGridOnScreen, TheBoxIsCalledAfterRowAndColumn)
{
    click(4, 2);
    key(Qt::Key_F2);
    ASSERT_NE(box<QLineEdit>(), nullptr);
    EXPECT_EQ(box<QLineEdit>()->accessibleName(), "row 4, b");
}

// --- Drop-down lists -----------------------------------------------------------------------------

/// Cells of column 2 get their list when the cursor comes.
class DropDownGridOnScreen : public EditedGridOnScreen {
protected:
    DropDownGridOnScreen()
    {
        mList = page.scg.CurCellChange.subscribe([this](int row, int col) {
            if (col == 2) {
                page.scg.ClearCombo("units");
                page.scg.AddComboItem("units", {"bar", 0});
                page.scg.AddComboItem("units", {"psi", 1});
                page.scg.AddComboItem("units", {"kPa of row " + std::to_string(row), 2});
                page.scg.setCellList(row, col, "units");
            }
        });
        page.scg.setCellText(4, 2, "psi");
        settle();
    }
    [[nodiscard]] bool isDown() const
    {
        return box<QComboBox>() != nullptr && box<QComboBox>()->view()->isVisible();
    }
    void listKey(Qt::Key key) const
    {
        QTest::keyClick(box<QComboBox>()->view(), key);
        settle();
    }
    void clickEntry(int entry) const
    {
        QAbstractItemView* const list = box<QComboBox>()->view();
        // A list that has just opened takes no release for a while.
        QTest::qWait(QApplication::doubleClickInterval());
        QTest::mouseMove(list->viewport(),
                         list->visualRect(list->model()->index(entry, 0)).center());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(entry, 0)).center());
        settle();
    }

private:
    platform::Subscription mList;
};

TEST_F(DropDownGridOnScreen, AClickOpensTheListThatTheCellHasJustGot)
{
    click(4, 2);
    ASSERT_TRUE(isDown());
    EXPECT_EQ(box<QComboBox>()->count(), 3);
    EXPECT_EQ(box<QComboBox>()->itemText(2), "kPa of row 4");
    EXPECT_EQ(box<QComboBox>()->currentText(), "psi");
    EXPECT_THAT(page.heard, ElementsAre("cursor 4,2", "click 4,2", "request 4,2"));
    page.heard.clear();
    clickEntry(2);
    EXPECT_EQ(page.scg.cell(4, 2).Text, "kPa of row 4");
    EXPECT_EQ(page.scg.cell(4, 2).Value, 2);
    EXPECT_EQ(box<QComboBox>(), nullptr);
    EXPECT_TRUE(tree()->hasFocus());
    EXPECT_TRUE(page.scg.HasFocus());
    EXPECT_THAT(page.heard, ElementsAre("typing 4,2", "changed 4,2", "committed 4,2"));
}

TEST_F(DropDownGridOnScreen, KeysOpenTheListAndChoose)
{
    page.scg.moveTo(4, 2);
    page.scg.focus();
    settle();
    const std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> openers = {
        {Qt::Key_F2, {}},
        {Qt::Key_Return, {}},
        {Qt::Key_Down, Qt::AltModifier},
        {Qt::Key_Space, {}}};
    for (const auto& [opener, modifiers] : openers) {
        page.scg.setCellText(4, 2, "bar");
        key(opener, modifiers);
        ASSERT_TRUE(isDown()) << opener;
        listKey(Qt::Key_Down);
        listKey(Qt::Key_Return);
        EXPECT_EQ(page.scg.cell(4, 2).Text, "psi") << opener;
        EXPECT_EQ(box<QComboBox>(), nullptr) << opener;
        ASSERT_TRUE(tree()->hasFocus()) << opener;
    }
}

TEST_F(DropDownGridOnScreen, EscapeClosesTheListAndChangesNothing)
{
    int        escapes = 0;
    const auto down    = page.KeyDown.subscribe(
        [&](const platform::KeyPress& press) { escapes += press.code == platform::kKeyEscape; });
    click(4, 2);
    ASSERT_TRUE(isDown());
    page.heard.clear();
    listKey(Qt::Key_Down);
    listKey(Qt::Key_Escape);
    EXPECT_EQ(box<QComboBox>(), nullptr);
    EXPECT_EQ(page.scg.cell(4, 2).Text, "psi");
    EXPECT_EQ(page.scg.EditRow(), 0);
    EXPECT_EQ(escapes, 0);
    EXPECT_THAT(page.heard, IsEmpty());
    EXPECT_TRUE(tree()->hasFocus());
}

TEST_F(DropDownGridOnScreen, ALetterDoesNotOverwriteTheCell)
{
    page.scg.moveTo(4, 2);
    page.scg.focus();
    settle();
    type("x");
    EXPECT_EQ(page.scg.EditRow(), 0);
    EXPECT_EQ(box<QLineEdit>(), nullptr);
}

TEST_F(DropDownGridOnScreen, AListThatCannotBeUsedStaysClosed)
{
    page.barred = true;
    click(4, 2);
    EXPECT_FALSE(isDown());
    EXPECT_THAT(page.heard, ElementsAre("cursor 4,2", "click 4,2", "request 4,2"));
    page.barred = false;
    page.scg.setCellEditable(5, 2, false);
    click(5, 2);
    EXPECT_FALSE(isDown());
    click(6, 1);
    EXPECT_EQ(box<QComboBox>(), nullptr);
}

TEST_F(DropDownGridOnScreen, AnEmptyListStaysClosed)
{
    page.scg.ClearCombo("none");
    page.scg.setCellList(5, 3, "none");
    click(5, 3);
    EXPECT_EQ(box<QComboBox>(), nullptr);
    EXPECT_EQ(page.scg.EditRow(), 0);
}

TEST_F(DropDownGridOnScreen, EntriesOfOneTextAreToldApartByTheirValues)
{
    page.scg.ClearCombo("twins");
    page.scg.AddComboItem("twins", {"same", 7});
    page.scg.AddComboItem("twins", {"same", 8});
    page.scg.setCellList(5, 3, "twins");
    click(5, 3);
    ASSERT_TRUE(isDown());
    clickEntry(1);
    EXPECT_EQ(page.scg.cell(5, 3).Value, 8);
    click(5, 3);
    ASSERT_TRUE(isDown());
    clickEntry(0);
    EXPECT_EQ(page.scg.cell(5, 3).Value, 7);
}

} // namespace

} // namespace quill::qt::test
