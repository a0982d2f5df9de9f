#include "platform/toolkit.h"
#include "tests/qt/screen_test_support.h"

#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>
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

TEST_F(ListOnScreen, RowsThatGoAreToldByRanges)
{
    QSignalSpy removed(tree()->model(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(tree()->model(), &QAbstractItemModel::modelReset);
    page.lst.setSelectedItem(60);
    for (int row = 40; row >= 31; --row) {
        page.lst.Remove(row);
    }
    for (int turn = 0; turn < 5; ++turn) {
        page.lst.Remove(11);
    }
    settle();
    EXPECT_EQ(reset.count(), 0);
    ASSERT_EQ(removed.count(), 2);
    EXPECT_EQ(removed[0][1].toInt(), 30);
    EXPECT_EQ(removed[0][2].toInt(), 39);
    EXPECT_EQ(removed[1][1].toInt(), 10);
    EXPECT_EQ(removed[1][2].toInt(), 14);
    EXPECT_EQ(tree()->model()->rowCount(), 85);
    for (int row = 1; row <= 85; ++row) {
        ASSERT_EQ(tree()->model()->index(row - 1, 0).data().toString().toStdString(),
                  page.lst.Item(row).Text);
    }
    EXPECT_EQ(page.lst.SelectedItem(), 45);
    EXPECT_TRUE(tree()->selectionModel()->isRowSelected(44, {}));
    EXPECT_EQ(tree()->currentIndex().row(), 44);
}

TEST_F(ListOnScreen, ARowThatIsToBeSeenIsScrolledToAsFarAsItMust)
{
    const auto isSeen = [&](int row) {
        return tree()->viewport()->rect().contains(rect(row, 0).center());
    };
    page.lst.EnsureVisible(3);
    settle();
    EXPECT_EQ(tree()->verticalScrollBar()->value(), 0);
    page.lst.EnsureVisible(50);
    settle();
    EXPECT_TRUE(isSeen(50));
    EXPECT_FALSE(isSeen(51));
    EXPECT_EQ(page.lst.FirstVisible(), tree()->verticalScrollBar()->value() + 1);
    tree()->verticalScrollBar()->setValue(0);
    settle();
    page.lst.EnsureVisible(50);
    settle();
    EXPECT_TRUE(isSeen(50)) << "the user had scrolled away";
    page.lst.setFirstVisible(1);
    settle();
    EXPECT_EQ(tree()->verticalScrollBar()->value(), 0);
    // Rows that are added one by one, each made visible, and then the first one.
    for (int row = 101; row <= 120; ++row) {
        page.lst.Add({});
        page.lst.EnsureVisible(row);
    }
    settle();
    EXPECT_TRUE(isSeen(120));
    page.lst.EnsureVisible(1);
    settle();
    EXPECT_EQ(tree()->verticalScrollBar()->value(), 0);
}

TEST_F(ListOnScreen, ARowThatIsAskedForOnAHiddenPageIsSeenWhenThePageIsShown)
{
    page.lst.Visible = false;
    settle();
    page.lst.EnsureVisible(60);
    settle();
    page.lst.Visible = true;
    settle();
    EXPECT_TRUE(tree()->viewport()->rect().contains(rect(60, 0).center()));
    EXPECT_FALSE(tree()->viewport()->rect().contains(rect(61, 0).center()));
}

TEST_F(ListOnScreen, AKeyComesUpAfterTheSelectionHasMoved)
{
    clickRow(1);
    std::vector<int> selected;
    const auto       up = page.lst.KeyUp.subscribe([&](const platform::KeyPress& press) {
        if (press.code == platform::kKeyPageDown) {
            selected.push_back(page.lst.SelectedItem());
        }
    });
    screen.key(page.lst, Qt::Key_PageDown);
    ASSERT_EQ(selected.size(), 1U);
    EXPECT_GT(selected[0], 5);
    EXPECT_EQ(selected[0], tree()->currentIndex().row() + 1);
    while (page.lst.SelectedItem() < 100) {
        screen.key(page.lst, Qt::Key_PageDown);
    }
    screen.key(page.lst, Qt::Key_PageDown);
    EXPECT_EQ(selected.back(), 100) << "also where nothing moves any more";
}

TEST_F(ListOnScreen, AKeyThatAHandlerTakesMovesNothingAndNeverComesUp)
{
    clickRow(1);
    const auto down =
        page.lst.KeyDown.subscribe([](platform::KeyPress& press) { press.handled = true; });
    int        ups = 0;
    const auto up  = page.KeyUp.subscribe([&](const platform::KeyPress&) { ++ups; });
    screen.key(page.lst, Qt::Key_PageDown);
    EXPECT_EQ(page.lst.SelectedItem(), 1);
    EXPECT_EQ(ups, 0);
}

TEST_F(ListOnScreen, AKeyThatTheListDoesNotUseGoesOnToTheFormOnce)
{
    int        downs = 0;
    int        ups   = 0;
    const auto down  = page.KeyDown.subscribe([&](const platform::KeyPress&) { ++downs; });
    const auto up    = page.KeyUp.subscribe([&](const platform::KeyPress&) { ++ups; });
    screen.key(page.lst, Qt::Key_Escape);
    EXPECT_EQ(downs, 1);
    EXPECT_EQ(ups, 1);
}

TEST_F(ListOnScreen, CtrlAAndCtrlCReachTheViewAfterTheListHasAnswered)
{
    page.lst.MultiSelect = true;
    settle();
    clickRow(2);
    std::vector<std::pair<int, std::size_t>> heard;
    const auto up = page.lst.KeyUp.subscribe([&](const platform::KeyPress& press) {
        EXPECT_EQ(press.shift, platform::kControlKey);
        std::size_t selected = 0;
        for (const auto& item : page.lst.ListItems()) {
            selected += item.Selected ? 1 : 0;
        }
        heard.emplace_back(press.code, selected);
        if (press.code == 'C') {
            platform::Toolkit::current().setClipboard("class\tevent");
        }
    });
    platform::Toolkit::current().setClipboard({});
    screen.key(page.lst, Qt::Key_A, Qt::ControlModifier);
    screen.key(page.lst, Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(heard, ElementsAre(std::pair<int, std::size_t>{'A', 100},
                                   std::pair<int, std::size_t>{'C', 100}));
    EXPECT_EQ(QApplication::clipboard()->text(), "class\tevent");
}

TEST_F(ListOnScreen, WhereNobodyHearsItCtrlCCopiesWhatIsSelected)
{
    clickRow(2);
    screen.key(page.lst, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(platform::Toolkit::current().clipboard(), "row 2\t20");
}

TEST_F(ListOnScreen, AViewMaySelectRowsByItself)
{
    const auto up        = page.lst.KeyUp.subscribe([&](const platform::KeyPress&) {
        for (int row = 1; row <= 100; ++row) {
            page.lst.edit(row, [](platform::ListItem& item) { item.Selected = true; });
        }
    });
    page.lst.MultiSelect = true;
    settle();
    clickRow(2);
    screen.key(page.lst, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(tree()->selectionModel()->selectedRows().size(), 100);
}

TEST_F(ListOnScreen, ABarAloneReachesToTheEndOfTheList)
{
    const QScrollBar& bar = *tree()->verticalScrollBar();
    ASSERT_TRUE(bar.isVisible());
    ASSERT_FALSE(tree()->horizontalScrollBar()->isVisible());
    const auto end = [&] { return bar.mapTo(tree(), QPoint(0, bar.height())).y(); };
    EXPECT_EQ(end(), tree()->height() - tree()->frameWidth());

    page.lst.setColumnWidth(1, 9000);
    settle();
    ASSERT_TRUE(tree()->horizontalScrollBar()->isVisible());
    EXPECT_EQ(end(),
              tree()->height() - tree()->frameWidth() - tree()->horizontalScrollBar()->height())
        << "two of them leave a corner";
    page.lst.setColumnWidth(1, 3000);
    settle();
    EXPECT_EQ(end(), tree()->height() - tree()->frameWidth());
}

TEST_F(ListOnScreen, ToolTipsAreTheRowsOwnOrTheTextThatIsCut)
{
    const std::string wide = "a text that needs much more room than its column of 200 pixels";
    page.lst.edit(1, [](platform::ListItem& item) { item.ToolTipText = "of the row"; });
    page.lst.edit(2, [&](platform::ListItem& item) { item.Text = wide; });
    settle();
    const auto tip = [&](int row, int column) {
        QToolTip::hideText();
        settle();
        const QPoint where = rect(row, column).center();
        QHelpEvent   help(QEvent::ToolTip, where, tree()->viewport()->mapToGlobal(where));
        QApplication::sendEvent(tree()->viewport(), &help);
        return help.isAccepted() ? QToolTip::text().toStdString() : std::string();
    };
    EXPECT_EQ(tip(1, 0), "of the row");
    EXPECT_EQ(tip(1, 2), "of the row");
    EXPECT_EQ(tip(2, 0), wide);
    EXPECT_EQ(tip(3, 0), "");
    QToolTip::hideText();
}

} // namespace

} // namespace quill::qt::test
