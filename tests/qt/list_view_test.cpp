#include "tests/qt/screen_test_support.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTreeView>

#include <gmock/gmock.h>

namespace quill::qt::test {

namespace {

using ::testing::ElementsAre;

struct ListPage : Page {
    platform::ListView lst{*this, {.Name = "lst", .Width = 6000, .Height = 3000}};

    ListPage()
    {
        lst.CheckBoxes = true;
        lst.setColumnHeaders({{"Name", "", 3000}, {"Hidden", "", 0}, {"Value", "", 1500}});
        std::vector<platform::ListItem> items;
        for (int row = 1; row <= 100; ++row) {
            platform::ListItem item;
            item.Text     = "row " + std::to_string(row);
            item.SubItems = {"", std::to_string(row * 10)};
            items.push_back(item);
        }
        lst.setItems(std::move(items));
    }
};

class ListOnScreen : public ::testing::Test {
protected:
    QTreeView* tree() { return screen.as<QTreeView>(page.lst); }
    QRect      rect(int row, int column)
    {
        return tree()->visualRect(tree()->model()->index(row - 1, column));
    }
    void clickRow(int row, int column = 2, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, modifiers,
                          rect(row, column).center());
    }

    ListPage page;
    Shown    screen{page};
};

TEST_F(ListOnScreen, ShowsRowsAndColumns)
{
    EXPECT_EQ(tree()->model()->rowCount(), 100);
    EXPECT_EQ(tree()->model()->index(4, 2).data().toString(), "50");
    EXPECT_EQ(tree()->model()->headerData(0, Qt::Horizontal).toString(), "Name");
    EXPECT_TRUE(tree()->isColumnHidden(1));
    EXPECT_EQ(tree()->columnWidth(0), 200);
}

TEST_F(ListOnScreen, WithTheFocusTheSpaceBarMeansTheFirstRowUntilAnotherIsTaken)
{
    tree()->setFocus(Qt::TabFocusReason);
    settle();
    EXPECT_EQ(tree()->currentIndex().row(), 0);
    EXPECT_EQ(page.lst.SelectedItem(), 0) << "the cursor chooses nothing";
    screen.key(page.lst, Qt::Key_Space);
    EXPECT_TRUE(page.lst.Item(1).Checked);
    page.lst.setItems(page.lst.ListItems());
    settle();
    EXPECT_EQ(tree()->currentIndex().row(), 0) << "new rows have a cursor too";
}

TEST_F(ListOnScreen, AMarkIsSetByTheMouse)
{
    std::vector<int> checked;
    const auto       check = page.lst.ItemCheck.subscribe([&](int row) { checked.push_back(row); });
    const QRect      cell  = rect(3, 0);
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {},
                      QPoint(cell.left() + 9, cell.center().y()));
    EXPECT_TRUE(page.lst.Item(3).Checked);
    EXPECT_THAT(checked, ElementsAre(3));
}

TEST_F(ListOnScreen, AMarkIsSetByTheSpaceBarOnWhateverColumn)
{
    clickRow(2);
    screen.key(page.lst, Qt::Key_Space);
    EXPECT_TRUE(page.lst.Item(2).Checked);
    screen.key(page.lst, Qt::Key_Space);
    EXPECT_FALSE(page.lst.Item(2).Checked);
}

TEST_F(ListOnScreen, AMarkThatAHandlerTakesBackIsNotShown)
{
    const auto check =
        page.lst.ItemCheck.subscribe([&](int row) { page.lst.setChecked(row, false); });
    clickRow(2);
    screen.key(page.lst, Qt::Key_Space);
    EXPECT_EQ(tree()->model()->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
}

TEST_F(ListOnScreen, AClickSelectsAndMakesTheRowCurrent)
{
    std::vector<int> clicked;
    const auto       click = page.lst.ItemClick.subscribe([&](int row) { clicked.push_back(row); });
    clickRow(4);
    EXPECT_EQ(page.lst.SelectedItem(), 4);
    EXPECT_TRUE(page.lst.Item(4).Selected);
    screen.key(page.lst, Qt::Key_Down);
    EXPECT_EQ(page.lst.SelectedItem(), 5);
    EXPECT_FALSE(page.lst.Item(4).Selected);
    EXPECT_THAT(clicked, ElementsAre(4, 5));
}

TEST_F(ListOnScreen, SeveralRowsAreSelectedWhereTheListAllowsIt)
{
    page.lst.MultiSelect = true;
    settle();
    clickRow(2);
    clickRow(5, 2, Qt::ControlModifier);
    settle();
    EXPECT_TRUE(page.lst.Item(2).Selected);
    EXPECT_TRUE(page.lst.Item(5).Selected);
    EXPECT_EQ(page.lst.SelectedItem(), 5);
}

TEST_F(ListOnScreen, TheProgramsSelectionIsShownAndIsNoClick)
{
    int        clicks = 0;
    const auto click  = page.lst.ItemClick.subscribe([&](int) { ++clicks; });
    page.lst.setSelectedItem(7);
    settle();
    EXPECT_EQ(tree()->currentIndex().row(), 6);
    EXPECT_TRUE(tree()->selectionModel()->isRowSelected(6, {}));
    page.lst.setSelectedItem(0);
    settle();
    EXPECT_FALSE(tree()->selectionModel()->hasSelection());
    EXPECT_EQ(clicks, 0);
}

TEST_F(ListOnScreen, OneRowCostsOneRowHoweverOftenItChanges)
{
    QSignalSpy changed(tree()->model(), &QAbstractItemModel::dataChanged);
    QSignalSpy reset(tree()->model(), &QAbstractItemModel::modelReset);
    QSignalSpy inserted(tree()->model(), &QAbstractItemModel::rowsInserted);
    for (int turn = 0; turn < 10; ++turn) {
        page.lst.edit(5, [&](platform::ListItem& item) { item.Text = std::to_string(turn); });
    }
    settle();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 4);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 4);

    for (int row = 0; row < 3; ++row) {
        page.lst.Add({});
    }
    settle();
    ASSERT_EQ(inserted.count(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 100);
    EXPECT_EQ(inserted[0][2].toInt(), 102);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(tree()->model()->rowCount(), 103);
}

TEST_F(ListOnScreen, ManyChangesInOneTurnEndInTheRightRows)
{
    page.lst.Add({});
    page.lst.edit(101, [](platform::ListItem& item) { item.Text = "last"; });
    page.lst.Clear();
    platform::ListItem only;
    only.Text = "only";
    page.lst.Add(only);
    // The view may paint before the change is told.
    EXPECT_FALSE(tree()->model()->index(50, 0).data().isValid());
    settle();
    EXPECT_EQ(tree()->model()->rowCount(), 1);
    EXPECT_EQ(tree()->model()->index(0, 0).data().toString(), "only");
}

TEST_F(ListOnScreen, TheFirstVisibleRowGoesBothWays)
{
    page.lst.setFirstVisible(40);
    settle();
    EXPECT_EQ(tree()->verticalScrollBar()->value(), 39);
    tree()->verticalScrollBar()->setValue(9);
    settle();
    EXPECT_EQ(page.lst.FirstVisible(), 10);
    EXPECT_EQ(tree()->verticalScrollBar()->value(), 9);
}

} // namespace

} // namespace quill::qt::test
