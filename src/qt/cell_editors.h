#pragma once

#include "platform/grid.h"
#include "qt/rows_tree.h"

#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPointer>

#include <functional>

namespace quill::qt {

/// What the user does in the box over a cell.
struct CellEditorEvents {
    std::function<void(const QString& text)>    typed;
    std::function<void(int entry)>              chosen; ///< place in the drop-down list, from 0
    std::function<void()>                       commit;
    std::function<void()>                       cancel;
    std::function<void(Qt::FocusReason reason)> left;
};

/// Draws the cells of a grid and puts a box over the one that is edited: a line for a text, a list
/// for a cell with a drop-down list. It decides nothing: what the user does there is told, and
/// whoever hears it closes the box.
class CellEditors : public RoomyRows {
public:
    /// `grid` answers the model, nothing after its end.
    CellEditors(RowsTree& tree, std::function<const platform::Grid*()> grid,
                CellEditorEvents events);

    /// Opens the box over a cell, whose text is selected; a list drops down.
    void open(const QModelIndex& cell);
    /// Takes the box away; the focus that was in it goes back to the tree.
    void               close();
    [[nodiscard]] bool isOpen() const { return !mBox.isNull(); }
    /// The cell under the box, wherever it has moved; an invalid one when it has gone.
    [[nodiscard]] QModelIndex cell() const { return mCell; }
    /// The line, nothing for another box or none.
    [[nodiscard]] QLineEdit* line() const { return qobject_cast<QLineEdit*>(mBox); }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void     setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void     setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}
    void     updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const override;
    bool     editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&,
                         const QModelIndex&) override;
    bool     eventFilter(QObject* watched, QEvent* event) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    [[nodiscard]] bool keyPressed(const QKeyEvent& event);

    RowsTree&                              mTree;
    std::function<const platform::Grid*()> mGrid;
    CellEditorEvents                       mEvents;
    mutable QPointer<QWidget>              mBox;
    QPersistentModelIndex                  mCell;
};

} // namespace quill::qt
