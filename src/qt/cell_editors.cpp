#include "qt/cell_editors.h"

#include "qt/adaptor.h"
#include "qt/combo.h"
#include "qt/grid_rows.h"
#include "qt/text.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>

#include <utility>

namespace quill::qt {

namespace {

/// A drop-down list over a cell: once its list is closed, it has done its duty.
class CellCombo : public Combo {
public:
    CellCombo(QWidget* parent, std::function<void(const QWidget*)> closed)
        : Combo(parent), mClosed(std::move(closed))
    {
    }

    void hidePopup() override
    {
        Combo::hidePopup();
        // What was chosen is told after the list has closed.
        QMetaObject::invokeMethod(
            this, [this] { mClosed(this); }, Qt::QueuedConnection);
    }

private:
    std::function<void(const QWidget*)> mClosed;
};

} // namespace

CellEditors::CellEditors(RowsTree& tree, std::function<const platform::Grid*()> grid,
                         CellEditorEvents events)
    : RoomyRows(&tree), mTree(tree), mGrid(std::move(grid)), mEvents(std::move(events))
{
}

void CellEditors::open(const QModelIndex& cell)
{
    if (isOpen() || !cell.isValid()) {
        return;
    }
    mCell = cell;
    mTree.edit(cell);
    if (auto* const combo = dynamic_cast<Combo*>(mBox.data())) {
        combo->showPopup();
    }
}

void CellEditors::close()
{
    // With its cell the tree has taken the box away by itself.
    if (QWidget* const box = std::exchange(mBox, nullptr); box != nullptr && mCell.isValid()) {
        Q_EMIT closeEditor(box);
    }
    mCell = QPersistentModelIndex();
}

QWidget* CellEditors::createEditor(QWidget*           parent, const QStyleOptionViewItem&,
                                   const QModelIndex& index) const
{
    const platform::Grid::Cell* const cell = GridRows::cellOf(mGrid(), index);
    if (cell == nullptr || index != mCell) {
        return nullptr;
    }
    if (cell->list >= 0) {
        auto* const combo = new CellCombo(parent, [this](const QWidget* box) {
            if (box == mBox) {
                mEvents.cancel();
            }
        });
        for (const auto& entry :
             mGrid()->Combo(mGrid()->CellList(GridRows::rowOf(index), index.column() + 1))) {
            combo->addItem(toQt(entry.Text));
        }
        connect(combo, &QComboBox::activated, this, [this](int entry) { mEvents.chosen(entry); });
        mBox = combo;
    } else {
        auto* const line = new QLineEdit(parent);
        connect(line, &QLineEdit::textEdited, this,
                [this](const QString& text) { mEvents.typed(text); });
        mBox = line;
    }
    mBox->setAutoFillBackground(true);
    // The name of the row, then of the column.
    QStringList names{
        index.siblingAtColumn(mTree.treePosition()).data(Qt::AccessibleTextRole).toString(),
        index.model()->headerData(index.column(), Qt::Horizontal).toString()};
    names.removeAll(QString{});
    mBox->setAccessibleName(names.join(QStringLiteral(", ")));
    return mBox;
}

void CellEditors::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto* const combo = qobject_cast<QComboBox*>(editor)) {
        combo->setCurrentIndex(combo->findText(text));
    } else if (auto* const line = qobject_cast<QLineEdit*>(editor);
               line != nullptr && line->text() != text) {
        line->setText(text);
    }
}

void CellEditors::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                       const QModelIndex&) const
{
    editor->setGeometry(option.rect);
}

bool CellEditors::editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&,
                              const QModelIndex&)
{
    // Clicks and keys on a cell are the grid's.
    return false;
}

void CellEditors::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    RoomyRows::initStyleOption(option, index);
    if ((option->features & QStyleOptionViewItem::HasCheckIndicator) != 0 &&
        (index.flags() & Qt::ItemIsUserCheckable) == 0) {
        option->state &= ~QStyle::State_Enabled;
        option->palette.setCurrentColorGroup(QPalette::Disabled);
    }
}

bool CellEditors::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != mBox) {
        return false;
    }
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // The key is the box's, not a shortcut of the window.
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            event->accept();
            return true;
        }
        return false;
    case QEvent::KeyPress: return keyPressed(static_cast<QKeyEvent&>(*event));
    case QEvent::FocusOut: {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        // An open list has the focus itself, without saying so.
        if (!comesBack(reason) && QApplication::activePopupWidget() == nullptr) {
            mEvents.left(reason);
        }
        return false;
    }
    default: return false;
    }
}

bool CellEditors::keyPressed(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Escape: mEvents.cancel(); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: mEvents.commit(); return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: {
        const QPointer<RowsTree> tree(&mTree);
        mEvents.commit();
        if (tree) {
            tree->leave(event.key() == Qt::Key_Tab);
        }
        return true;
    }
    default: return false;
    }
}

} // namespace quill::qt
