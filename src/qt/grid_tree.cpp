#include "qt/grid_tree.h"

#include <QContextMenuEvent>
#include <QMouseEvent>

namespace quill::qt {

GridTree::GridTree(QWidget* parent) : RowsTree(parent)
{
    viewport()->setMouseTracking(true);
}

void GridTree::mousePressEvent(QMouseEvent* event)
{
    mPressed = isOnHandle(event->pos()) ? QModelIndex{} : indexAt(event->pos());
    // The right button asks about a cell; the cursor stays where it is.
    if (event->button() == Qt::LeftButton) {
        RowsTree::mousePressEvent(event);
    }
}

void GridTree::mouseReleaseEvent(QMouseEvent* event)
{
    const bool        left = event->button() == Qt::LeftButton;
    const QModelIndex cell = indexAt(event->pos());
    const bool        here = cell.isValid() && mPressed == cell;
    mPressed               = QModelIndex{};
    if (left) {
        RowsTree::mouseReleaseEvent(event);
    }
    if (!here) {
        return;
    }
    if (event->button() == Qt::RightButton) {
        rightClicked(cell);
    } else if (left && event->modifiers() == Qt::NoModifier) {
        // With Shift or Ctrl a click selects, and does nothing else.
        clicked(cell);
    }
}

void GridTree::mouseDoubleClickEvent(QMouseEvent* event)
{
    RowsTree::mouseDoubleClickEvent(event);
    picked();
    const QModelIndex cell = indexAt(event->pos());
    if (event->button() != Qt::LeftButton || !cell.isValid() || isOnHandle(event->pos())) {
        return;
    }
    mPressed = cell;
    doubleClicked(cell);
}

void GridTree::mouseMoveEvent(QMouseEvent* event)
{
    RowsTree::mouseMoveEvent(event);
    const QModelIndex cell = indexAt(event->pos());
    if (event->buttons() == Qt::NoButton && mHovered != cell) {
        mHovered = cell;
        if (cell.isValid()) {
            hovered(cell);
        }
    }
}

void GridTree::leaveEvent(QEvent* event)
{
    RowsTree::leaveEvent(event);
    mHovered = QModelIndex{};
}

void GridTree::contextMenuEvent(QContextMenuEvent* event)
{
    // The key for menus asks about the current cell; the mouse has asked by its button.
    if (event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid()) {
        rightClicked(currentIndex());
    }
}

bool GridTree::isOnHandle(const QPoint& point) const
{
    const QModelIndex cell = indexAt(point);
    return cell.isValid() && cell.column() == treePosition() && model()->hasChildren(cell) &&
           point.x() < visualRect(cell).left();
}

} // namespace quill::qt
