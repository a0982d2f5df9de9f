#include "qt/rows_tree.h"

#include "qt/colors.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace quill::qt {

QSize RoomyRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    constexpr int kAir  = 6;
    QSize         size  = QStyledItemDelegate::sizeHint(option, index);
    const int     least = std::max(option.fontMetrics.height(), option.decorationSize.height());
    // A row without a text is as high as one with.
    size.setHeight(std::max(size.height(), least) + kAir);
    return size;
}

bool RoomyRows::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                          const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() == QEvent::ToolTip && index.isValid() &&
        index.data(Qt::ToolTipRole).toString().isEmpty() &&
        sizeHint(option, index).width() > option.rect.width()) {
        QToolTip::showText(event->globalPos(), index.data(Qt::DisplayRole).toString(), view,
                           option.rect);
        return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

void RoomyRows::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // The tree draws the cursor itself.
    option->state &= ~QStyle::State_HasFocus;
}

RowsTree::RowsTree(QWidget* parent) : QTreeView(parent), mCorner(new QWidget(this))
{
    mCorner->setAutoFillBackground(true);
    mCorner->setBackgroundRole(QPalette::Base);
    mCorner->hide();
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(0);
}

void RowsTree::setCellCursor(bool onCell)
{
    if (mCellCursor != onCell) {
        mCellCursor = onCell;
        viewport()->update();
    }
    setSelectionBehavior(onCell ? QAbstractItemView::SelectItems : QAbstractItemView::SelectRows);
}

void RowsTree::setLines(bool shown)
{
    if (mLines != shown) {
        mLines = shown;
        viewport()->update();
    }
}

QString RowsTree::selectedText() const
{
    QStringList lines;
    int         first = 0;
    while (first < model()->rowCount() && isRowHidden(first, {})) {
        ++first;
    }
    for (QModelIndex row = model()->index(first, 0); row.isValid(); row = indexBelow(row)) {
        QStringList cells;
        for (int column = 0; column < model()->columnCount(); ++column) {
            const QModelIndex cell = row.siblingAtColumn(column);
            if (!isColumnHidden(column) && selectionModel()->isSelected(cell)) {
                cells << cell.data().toString();
            }
        }
        if (!cells.isEmpty()) {
            lines << cells.join(u'\t');
        }
    }
    return lines.join(u'\n');
}

void RowsTree::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    // A bar leaves room for the corner even where there is no other bar.
    const bool both =
        verticalScrollBar()->isVisibleTo(this) && horizontalScrollBar()->isVisibleTo(this);
    setCornerWidget(both ? mCorner : nullptr);
}

void RowsTree::mousePressEvent(QMouseEvent* event)
{
    QTreeView::mousePressEvent(event);
    picked();
}

void RowsTree::mouseMoveEvent(QMouseEvent* event)
{
    QTreeView::mouseMoveEvent(event);
    if (event->buttons() != Qt::NoButton) {
        picked();
    }
}

void RowsTree::mouseReleaseEvent(QMouseEvent* event)
{
    QTreeView::mouseReleaseEvent(event);
    picked();
}

void RowsTree::keyPressEvent(QKeyEvent* event)
{
    QTreeView::keyPressEvent(event);
    picked();
}

void RowsTree::focusInEvent(QFocusEvent* event)
{
    QTreeView::focusInEvent(event);
    updateRow(currentIndex());
}

void RowsTree::focusOutEvent(QFocusEvent* event)
{
    QTreeView::focusOutEvent(event);
    updateRow(currentIndex());
}

void RowsTree::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTreeView::currentChanged(current, previous);
    updateRow(previous);
    updateRow(current);
}

void RowsTree::updateRow(const QModelIndex& index)
{
    if (!index.isValid()) {
        return;
    }
    QRect row = visualRect(index);
    row.setLeft(0);
    row.setRight(viewport()->width());
    viewport()->update(row);
}

void RowsTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const
{
    QTreeView::drawRow(painter, option, index);
    if (mLines) {
        drawLines(*painter, option.rect);
    }
    const QModelIndex current = currentIndex();
    if (hasFocus() && current.row() == index.row() && current.parent() == index.parent()) {
        drawCursor(*painter, option.rect);
    }
}

void RowsTree::drawLines(QPainter& painter, const QRect& row) const
{
    painter.save();
    painter.setPen(lineColor(palette()));
    painter.drawLine(row.bottomLeft(), row.bottomRight());
    int last = -1;
    for (int place = 0; place < header()->count(); ++place) {
        const int column = header()->logicalIndex(place);
        if (header()->isSectionHidden(column)) {
            continue;
        }
        if (last >= 0) {
            painter.drawLine(last, row.top(), last, row.bottom());
        }
        last = columnViewportPosition(column) + columnWidth(column) - 1;
    }
    painter.restore();
}

void RowsTree::drawCursor(QPainter& painter, const QRect& row) const
{
    constexpr int     kWidth   = 2;
    const QModelIndex current  = currentIndex();
    const bool        selected = selectionModel()->isSelected(current);
    QRect             frame    = mCellCursor ? visualRect(current) : row;
    if (mCellCursor && current.column() == treePosition()) {
        frame.setLeft(columnViewportPosition(current.column()));
    }
    // Half of the pen lies outside of the line that it follows. On what is selected the frame has
    // some of that ground around it, so that it is seen as a frame.
    const int inside = kWidth / 2 + (selected ? 1 : 0);
    frame.adjust(inside, inside, -inside, -inside);
    painter.save();
    const auto text = selected ? QPalette::HighlightedText : QPalette::Text;
    painter.setPen(
        QPen(palette().color(text), kWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
    painter.restore();
}

} // namespace quill::qt
