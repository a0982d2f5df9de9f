#pragma once

#include "qt/rows_tree.h"

#include <QPersistentModelIndex>

#include <functional>

namespace quill::qt {

/// The tree of a grid, which tells what the mouse does with its cells.
class GridTree : public RowsTree {
public:
    explicit GridTree(QWidget* parent);

    /// The left button went down and up on a cell, without Shift or Ctrl: those select.
    std::function<void(const QModelIndex&)> clicked;
    std::function<void(const QModelIndex&)> doubleClicked;
    /// The right button did, or the key for menus was pressed.
    std::function<void(const QModelIndex&)> rightClicked;
    /// The mouse has come over a cell.
    std::function<void(const QModelIndex&)> hovered;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    /// Whether a point is on what folds the children of a row.
    [[nodiscard]] bool isOnHandle(const QPoint& point) const;

    QPersistentModelIndex mPressed;
    QPersistentModelIndex mHovered;
};

} // namespace quill::qt
