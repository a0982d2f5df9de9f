// What a grid on screen shows, and what a change of it costs.
#include "qt/colors.h"
#include "qt/images.h"
#include "tests/qt/grid_test_support.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>

namespace quill::qt::test {

namespace {

using platform::Grid;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// How often the rows of a grid were laid out or told anew.
struct Costs {
    explicit Costs(const QAbstractItemModel& rows)
        : reset(&rows, &QAbstractItemModel::modelReset),
          inserted(&rows, &QAbstractItemModel::rowsInserted),
          removed(&rows, &QAbstractItemModel::rowsRemoved),
          changed(&rows, &QAbstractItemModel::dataChanged),
          layout(&rows, &QAbstractItemModel::layoutChanged)
    {
    }
    [[nodiscard]] std::vector<qsizetype> counts() const
    {
        return {reset.count(), inserted.count(), removed.count(), changed.count(), layout.count()};
    }
    QSignalSpy reset, inserted, removed, changed, layout;
};

// --- Costs ---------------------------------------------------------------------------------------

TEST_F(GridOnScreen, FiveThousandRowsOfEightColumnsCostOneReset)
{
    page.fill(8, 3);
    show();
    const Costs costs(rows());
    page.scg.Clear();
    page.fill(8, 5000);
    for (int row = 1; row <= 5000; ++row) {
        for (int col = 2; col <= 8; ++col) {
            page.scg.setCellText(row, col, std::to_string(row * col));
        }
    }
    settle();
    EXPECT_THAT(costs.counts(), ElementsAre(1, 0, 0, 0, 0));
    EXPECT_EQ(rows().rowCount(), 5000);
    EXPECT_EQ(cell(5000, 8).data().toString(), "40000");
}

TEST_F(GridOnScreen, RowsBehindTheOthersCostOneInsertionAndTheirCellsNothing)
{
    page.fill(8, 3);
    show();
    const Costs costs(rows());
    page.scg.setRowCount(5000);
    for (int row = 4; row <= 5000; ++row) {
        for (int col = 1; col <= 8; ++col) {
            page.scg.setCellText(row, col, "x");
        }
    }
    settle();
    ASSERT_THAT(costs.counts(), ElementsAre(0, 1, 0, 1, 0));
    EXPECT_EQ(costs.inserted[0][1].toInt(), 3);
    EXPECT_EQ(costs.inserted[0][2].toInt(), 4999);
}

TEST_F(GridOnScreen, AllCellsAnewAreOneRange)
{
    page.fill(8, 5000);
    show();
    const Costs costs(rows());
    for (int row = 1; row <= 5000; ++row) {
        for (int col = 1; col <= 8; ++col) {
            page.scg.setCellText(row, col, "x");
        }
    }
    settle();
    ASSERT_THAT(costs.counts(), ElementsAre(0, 0, 0, 1, 0));
    EXPECT_EQ(costs.changed[0][0].toModelIndex(), cell(1, 1));
    EXPECT_EQ(costs.changed[0][1].toModelIndex(), cell(5000, 8));
}

TEST_F(GridOnScreen, AChangedCellRepaintsItselfAlone)
{
    page.fill(8, 5000);
    show();
    const Costs costs(rows());
    PaintWatch  watch(*tree());
    page.scg.setCellText(3, 2, "new");
    page.scg.setCellBackColor(3, 2, 0x0000ff);
    settle();
    ASSERT_THAT(costs.counts(), ElementsAre(0, 0, 0, 1, 0));
    EXPECT_EQ(costs.changed[0][0].toModelIndex(), cell(3, 2));
    EXPECT_EQ(costs.changed[0][1].toModelIndex(), cell(3, 2));
    EXPECT_EQ(watch.painted.boundingRect(), rect(3, 2));
}

TEST_F(GridOnScreen, ACellOutOfSightRepaintsNothing)
{
    page.fill(8, 5000);
    show();
    PaintWatch watch(*tree());
    page.scg.setCellText(4000, 2, "new");
    settle();
    EXPECT_TRUE(watch.painted.isEmpty());
}

/// A tree of 2,000 rows: branches with 19 children.
class TreeOnScreen : public GridOnScreen {
protected:
    TreeOnScreen()
    {
        page.scg.RowMode       = true;
        page.scg.HeaderVisible = false;
        images.Add("ok");
        images.Add("alarm");
        grow();
        show();
    }
    void grow()
    {
        page.scg.AddCol({.Key = "status", .Width = 400});
        page.scg.setImageList(&images);
        for (int branch = 0; branch < 100; ++branch) {
            const int parent = page.scg.AddRow();
            page.scg.setCellText(parent, 1, "branch " + std::to_string(branch));
            for (int child = 0; child < 19; ++child) {
                const int row = page.scg.AddRow(parent);
                page.scg.setCellText(row, 1, "status " + std::to_string(row));
                page.scg.setCellIcon(row, 1, "ok");
            }
        }
    }
    [[nodiscard]] int shownRows() const
    {
        int         count = 0;
        QModelIndex row   = tree()->model()->index(0, 0);
        for (; row.isValid(); row = tree()->indexBelow(row)) {
            ++count;
        }
        return count;
    }
    platform::ImageList images;
};

TEST_F(TreeOnScreen, ShowsItsRowsUnderTheirParentsAndUnfolded)
{
    EXPECT_EQ(rows().rowCount(), 100);
    EXPECT_EQ(rows().rowCount(rows().index(4, 0)), 19);
    EXPECT_EQ(cell(22, 1).data().toString(), "status 22");
    EXPECT_EQ(cell(22, 1).parent().data().toString(), "branch 1");
    EXPECT_EQ(shownRows(), 2000);
    EXPECT_TRUE(tree()->rootIsDecorated());
    EXPECT_FALSE(cell(22, 1).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_TRUE(cell(1, 1).data(Qt::DecorationRole).isNull());
}

TEST_F(TreeOnScreen, APassThatChangesTenIconsRepaintsTenRows)
{
    PaintWatch  watch(*tree());
    const Costs costs(rows());
    QRegion     expected;
    for (int row = 2; row <= 2000; ++row) {
        if (page.scg.RowParent(row) != 0) {
            page.scg.setCellIcon(row, 1, "ok");
        }
    }
    for (int row = 2; row <= 11; ++row) {
        page.scg.setCellIcon(row, 1, "alarm");
        expected += rect(row, 1);
    }
    settle();
    EXPECT_EQ(costs.counts(), (std::vector<qsizetype>{0, 0, 0, 1, 0}));
    EXPECT_EQ((watch.painted - expected).boundingRect(), QRect());
    EXPECT_FALSE(watch.painted.isEmpty());
}

TEST_F(TreeOnScreen, TenIconsHereAndThereRepaintTheirRowsAlone)
{
    PaintWatch watch(*tree());
    QRegion    expected;
    for (const int row : {2, 5, 7, 9}) {
        page.scg.setCellIcon(row, 1, "alarm");
        expected += rect(row, 1);
    }
    for (const int row : {100, 500, 900, 1200, 1500, 1999}) {
        page.scg.setCellIcon(row, 1, "alarm");
    }
    settle();
    EXPECT_EQ(watch.painted, expected);
}

TEST_F(TreeOnScreen, ATreeThatGrowsAnewCostsOneReset)
{
    const Costs costs(rows());
    page.scg.Clear();
    grow();
    page.scg.AddRow(1);
    settle();
    EXPECT_THAT(costs.counts(), ElementsAre(1, 0, 0, 0, 0));
    EXPECT_EQ(shownRows(), 2001);
}

// --- Rows that come and go -----------------------------------------------------------------------

TEST_F(TreeOnScreen, RowsComeInTheMiddleOfATree)
{
    const Costs                 costs(rows());
    const QPersistentModelIndex after = cell(21, 1);
    const int                   first = page.scg.AddRow(1);
    page.scg.setCellText(first, 1, "first");
    const int deep = page.scg.AddRow(2);
    page.scg.setCellText(deep, 1, "deep");
    const int late = page.scg.AddRow(1);
    page.scg.setCellText(late, 1, "late");
    page.scg.setCellText(24, 1, "second branch");
    EXPECT_EQ(deep, 3);
    EXPECT_EQ(late, 23);
    settle();
    EXPECT_EQ(costs.reset.count(), 0);
    const QModelIndex branch = rows().index(0, 0);
    EXPECT_EQ(rows().rowCount(branch), 21);
    EXPECT_EQ(rows().index(19, 0, branch).data().toString(), "first");
    EXPECT_EQ(rows().index(20, 0, branch).data().toString(), "late");
    EXPECT_EQ(rows().index(0, 0, rows().index(0, 0, branch)).data().toString(), "deep");
    EXPECT_TRUE(tree()->isExpanded(rows().index(0, 0, branch))) << "its first child";
    EXPECT_EQ(after.data().toString(), "second branch");
    for (int row = 1; row <= page.scg.RowCount(); ++row) {
        ASSERT_EQ(cell(row, 1).data().toString().toStdString(), page.scg.cell(row, 1).Text) << row;
    }
}

TEST_F(TreeOnScreen, RowsAreCutOffAcrossBranches)
{
    const Costs costs(rows());
    page.scg.setRowCount(45);
    page.scg.setRowCount(30);
    settle();
    EXPECT_EQ(costs.reset.count(), 0);
    EXPECT_EQ(rows().rowCount(), 2);
    EXPECT_EQ(rows().rowCount(rows().index(1, 0)), 9);
    EXPECT_EQ(shownRows(), 30);
    page.scg.setRowCount(0);
    settle();
    EXPECT_EQ(rows().rowCount(), 0);
    page.scg.setRowCount(2);
    settle();
    EXPECT_EQ(rows().rowCount(), 2);
    EXPECT_FALSE(tree()->rootIsDecorated());
}

TEST_F(GridOnScreen, ManyChangesInOneTurnEndInTheRightRows)
{
    page.fill(2, 10);
    show();
    page.scg.setRowCount(20);
    page.scg.setCellText(15, 1, "gone");
    page.scg.setRowCount(5);
    const int child = page.scg.AddRow(2);
    page.scg.setCellText(child, 1, "child");
    page.scg.AddRow(1);
    page.scg.setCellText(2, 1, "other");
    page.scg.setRowCount(6);
    page.scg.setRowVisible(5, false);
    // The view may paint before the change is told.
    EXPECT_FALSE(rows().index(9, 0).data().isValid());
    settle();
    EXPECT_EQ(rows().rowCount(), 4);
    for (int row = 1; row <= page.scg.RowCount(); ++row) {
        EXPECT_EQ(cell(row, 1).data().toString().toStdString(), page.scg.cell(row, 1).Text) << row;
    }
    EXPECT_EQ(cell(4, 1).data().toString(), "child");
    EXPECT_EQ(cell(4, 1).parent().data().toString(), "row 2");
    EXPECT_TRUE(tree()->isRowHidden(2, {}));
}

TEST_F(GridOnScreen, HeldBackChangesAreShownAtOnceAndKeepThePlace)
{
    page.fill(3, 200);
    show();
    tree()->verticalScrollBar()->setValue(50);
    const Costs costs(rows());
    page.scg.Redraw = false;
    page.scg.setCellText(55, 2, "new");
    page.scg.setRowVisible(60, false);
    settle();
    EXPECT_THAT(costs.counts(), ElementsAre(0, 0, 0, 0, 0));
    EXPECT_FALSE(tree()->isRowHidden(59, {}));
    page.scg.Redraw = true;
    settle();
    EXPECT_THAT(costs.counts(), ElementsAre(0, 0, 0, 1, 0));
    EXPECT_TRUE(tree()->isRowHidden(59, {}));
    EXPECT_EQ(tree()->verticalScrollBar()->value(), 50);

    page.scg.Redraw = false;
    page.scg.setRowCount(10);
    settle();
    page.scg.Redraw = true;
    settle();
    EXPECT_EQ(rows().rowCount(), 10);
    EXPECT_EQ(costs.reset.count(), 1);
}

// --- Looks ---------------------------------------------------------------------------------------

TEST_F(GridOnScreen, ColumnsHaveTitlesWidthsAndMayBeHidden)
{
    page.fill(4, 5);
    page.scg.setColumnVisible(2, false);
    show();
    EXPECT_EQ(rows().headerData(0, Qt::Horizontal).toString(), "a");
    EXPECT_FALSE(tree()->isHeaderHidden());
    EXPECT_EQ(tree()->columnWidth(0), 120);
    EXPECT_TRUE(tree()->isColumnHidden(1));
    EXPECT_EQ(tree()->columnViewportPosition(3) + tree()->columnWidth(3),
              tree()->viewport()->width())
        << "the last one takes what is left";

    page.scg.setColumnText(1, "title");
    page.scg.setColumnWidth(1, 77);
    page.scg.setColumnVisible(2, true);
    page.scg.setColumnVisible(4, false);
    page.scg.HeaderVisible = false;
    settle();
    EXPECT_EQ(rows().headerData(0, Qt::Horizontal).toString(), "title");
    EXPECT_EQ(tree()->columnWidth(0), 77);
    EXPECT_FALSE(tree()->isColumnHidden(1));
    EXPECT_TRUE(tree()->isHeaderHidden());
    EXPECT_EQ(tree()->columnViewportPosition(2) + tree()->columnWidth(2),
              tree()->viewport()->width());
}

TEST_F(GridOnScreen, TheTreeStandsInTheFirstColumnThatIsShown)
{
    page.fill(3, 2);
    page.scg.setColumnVisible(1, false);
    page.scg.setCellText(page.scg.AddRow(1), 2, "child");
    show();
    EXPECT_EQ(tree()->treePosition(), 1);
    EXPECT_GT(rect(2, 2).left(), rect(1, 2).left());
}

TEST_F(GridOnScreen, HiddenRowsComeBack)
{
    page.fill(2, 5);
    page.scg.setRowVisible(2, false);
    show();
    EXPECT_TRUE(tree()->isRowHidden(1, {}));
    page.scg.setRowVisible(2, true);
    page.scg.setRowVisible(4, false);
    settle();
    EXPECT_FALSE(tree()->isRowHidden(1, {}));
    EXPECT_TRUE(tree()->isRowHidden(3, {}));
    page.scg.Clear();
    page.fill(2, 5);
    settle();
    EXPECT_FALSE(tree()->isRowHidden(3, {})) << "other rows";
}

TEST_F(GridOnScreen, RowsAreRoomyWithAndWithoutATextInTheFirst)
{
    page.fill(2, 5);
    page.scg.setCellText(1, 1, "");
    show();
    const int font = tree()->fontMetrics().height();
    EXPECT_GE(rect(2, 1).height(), font + 6);
    EXPECT_EQ(rect(1, 1).height(), rect(2, 1).height());
}

TEST_F(GridOnScreen, GroundsKeepTheirTextsReadable)
{
    page.fill(2, 6);
    const std::vector<platform::Color> grounds = {0x000000, 0xffffff, 0x808080,
                                                  0x800000, 0xF5F5F5, 0x00ffff};
    for (std::size_t i = 0; i < grounds.size(); ++i) {
        page.scg.setCellBackColor(static_cast<int>(i) + 1, 1, grounds[i]);
    }
    show();
    const QPalette light = QApplication::palette();
    QPalette       dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    dark.setColor(QPalette::Text, QColor(235, 235, 235));
    for (const QPalette& palette : {light, dark}) {
        screen->view->setPalette(palette);
        settle();
        for (int row = 1; row <= 6; ++row) {
            const auto ground = cell(row, 1).data(Qt::BackgroundRole).value<QColor>();
            const auto own    = cell(row, 1).data(Qt::ForegroundRole);
            const auto text =
                own.isValid() ? own.value<QColor>() : tree()->palette().color(QPalette::Text);
            EXPECT_GE(contrast(text, ground), kReadableContrast) << row;
        }
        EXPECT_FALSE(cell(1, 2).data(Qt::BackgroundRole).isValid()) << "the palette's";
        const QPalette shown = tree()->palette();
        EXPECT_GE(
            contrast(shown.color(QPalette::Highlight), shown.color(QPalette::HighlightedText)),
            kReadableContrast);
    }
}

TEST_F(GridOnScreen, AProgramsPictureIsShownAndAKeyWithoutOneIsNone)
{
    QPixmap red(16, 16);
    red.fill(Qt::red);
    Images::put("restoreThat", red);
    platform::ImageList images;
    images.Add("restoreThat");
    images.Add("nobodyHasThis");
    page.fill(2, 3);
    page.scg.setImageList(&images);
    page.scg.setCellIcon(1, 2, "restoreThat");
    page.scg.setCellIcon(2, 2, "nobodyHasThis");
    show();
    EXPECT_EQ(
        cell(1, 2).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage().pixelColor(8, 8),
        QColor(Qt::red));
    EXPECT_FALSE(cell(2, 2).data(Qt::DecorationRole).isValid());
    page.scg.setImageList(nullptr);
}

TEST_F(GridOnScreen, AReaderIsToldTheDescriptionOrElseTheText)
{
    page.fill(2, 2);
    page.scg.setCellText(1, 2, "value");
    page.scg.setRowDescription(1, "row 1: failure");
    show();
    EXPECT_EQ(cell(1, 1).data(Qt::AccessibleTextRole).toString(), "row 1: failure");
    EXPECT_EQ(cell(1, 2).data(Qt::AccessibleTextRole).toString(), "value");
    EXPECT_EQ(cell(1, 2).data(Qt::AccessibleDescriptionRole).toString(), "row 1: failure");
    EXPECT_EQ(cell(2, 1).data(Qt::AccessibleTextRole).toString(), "row 2");
    EXPECT_EQ(cell(2, 1).data(Qt::AccessibleDescriptionRole).toString(), "row 2");
    page.scg.setColumnVisible(1, false);
    settle();
    EXPECT_EQ(cell(1, 2).data(Qt::AccessibleTextRole).toString(), "row 1: failure");
}

TEST_F(GridOnScreen, ATextWiderThanItsCellIsInTheToolTip)
{
    page.fill(3, 3);
    const QString wide = QStringLiteral("a text that needs much more room than its cell has");
    page.scg.setCellText(1, 2, wide.toStdString());
    page.scg.ToolTipText = "of the grid";
    show();
    const auto tip = [&](int row, int col) {
        QToolTip::hideText();
        settle();
        const QPoint where = rect(row, col).center();
        QHelpEvent   help(QEvent::ToolTip, where, tree()->viewport()->mapToGlobal(where));
        QApplication::sendEvent(tree()->viewport(), &help);
        return QToolTip::text();
    };
    EXPECT_EQ(tip(1, 2), wide);
    EXPECT_EQ(tip(1, 1), "of the grid");
    page.scg.setColumnWidth(2, 600);
    settle();
    EXPECT_EQ(tip(1, 2), "of the grid");
    QToolTip::hideText();
}

TEST_F(GridOnScreen, TheCursorIsClearlyToBeSeen)
{
    page.fill(3, 5);
    show();
    const auto picture = [&] { return tree()->viewport()->grab().toImage(); };
    page.scg.setCurCell(2, 2);
    page.txt.focus();
    settle();
    const QImage without = picture();
    page.scg.focus();
    settle();
    ASSERT_TRUE(tree()->hasFocus());
    const QImage with  = picture();
    const QRect  frame = rect(2, 2);
    for (const QPoint& edge :
         {QPoint(frame.center().x(), frame.top()), QPoint(frame.center().x(), frame.top() + 1),
          QPoint(frame.left(), frame.center().y())}) {
        EXPECT_GE(contrast(with.pixelColor(edge), without.pixelColor(edge)), 3.0)
            << edge.x() << "," << edge.y();
    }
    page.scg.RowMode = true;
    settle();
    const QRect row = rect(2, 3);
    EXPECT_GE(contrast(picture().pixelColor(row.center().x(), row.top()),
                       without.pixelColor(row.center().x(), row.top())),
              3.0)
        << "around the whole row";
}

} // namespace

} // namespace quill::qt::test
