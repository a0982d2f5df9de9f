#pragma once

#include <QStyledItemDelegate>
#include <QTreeView>

#include <functional>
#include <vector>

namespace quill::qt {

/// Rows with some air, for the eye and for the finger. A text that is wider than its cell is in
/// the cell's tool tip, unless the row has one of its own.
class RoomyRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex&          index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

/// What lists and grids are shown with: the stock tree, with a cursor that is clearly to be seen,
/// with quiet lines, and with a word when the user's event is over.
class RowsTree : public QTreeView {
public:
    explicit RowsTree(QWidget* parent);

    /// Called after a key or the mouse: only then the selection and the current row agree.
    std::function<void()> picked = [] {};

    /// The cursor is on a cell rather than on a whole row.
    void setCellCursor(bool onCell);
    /// Quiet lines between rows and between columns.
    void setLines(bool shown);
    /// The visible texts of what is selected: columns parted by tabs, rows by line breaks.
    [[nodiscard]] QString selectedText() const;
    /// The focus goes to the widget before or behind this one.
    void leave(bool forward) { focusNextPrevChild(forward); }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;

private:
    void drawLines(QPainter& painter, const QRect& row) const;
    void drawCursor(QPainter& painter, const QRect& row) const;
    void updateRow(const QModelIndex& index);

    QWidget* mCorner; ///< where two scroll bars meet
    bool     mCellCursor = false;
    bool     mLines      = false;
};

} // namespace quill::qt
