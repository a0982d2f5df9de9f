#pragma once

#include "platform/toolkit.h"
#include "qt/adaptor.h"
#include "qt/rows_tree.h"
#include "qt/text.h"

#include <QApplication>
#include <QHeaderView>
#include <QItemSelection>
#include <QKeyEvent>

#include <utility>
#include <vector>

namespace quill::qt {

/// What lists and grids have in common. The user's selection is told when his event is over, a
/// header that he drags tells its width, keys go to the model first, and what he copies goes
/// through the toolkit.
template <class Model>
class RowsAdaptor : public KindAdaptor<Model, RowsTree> {
public:
    RowsAdaptor(Screen& screen, Model& model, RowsTree* tree)
        : KindAdaptor<Model, RowsTree>(screen, model, tree)
    {
        tree->picked = [this] {
            mUntold = false;
            tellSelection();
        };
        QObject::connect(tree->header(), &QHeaderView::sectionResized, this,
                         [this](int column, int, int width) {
                             // Only a header that is dragged tells the user's wish.
                             if (!mShowing && this->model() != nullptr &&
                                 QApplication::mouseButtons() != Qt::NoButton) {
                                 tellWidth(column, width);
                             }
                         });
    }

    [[nodiscard]] Fit fit() const override { return {this->shown()->sizeHint()}; }

protected:
    /// To be called once, by the constructor.
    void setRows(QAbstractItemModel* rows)
    {
        this->shown()->setModel(rows);
        // Assistive programs select without a mouse or a key.
        QObject::connect(this->shown()->selectionModel(), &QItemSelectionModel::selectionChanged,
                         this, [this] {
                             if (!mShowing) {
                                 mUntold = true;
                                 QMetaObject::invokeMethod(
                                     this, [this] { tellUntold(); }, Qt::QueuedConnection);
                             }
                         });
    }

    /// Tells a selection that waits for its event to be over; what the model says is shown after
    /// it.
    void tellUntold()
    {
        if (std::exchange(mUntold, false)) {
            tellSelection();
        }
    }

    /// The user has selected something or moved the cursor: tells the model where it differs.
    virtual void tellSelection() = 0;
    /// The user has dragged a header.
    virtual void tellWidth(int column, int pixels) = 0;
    /// Whether the tree is being brought up to date, so that what it tells is not the user's wish.
    [[nodiscard]] bool showing() const noexcept { return mShowing; }
    template <class Update>
    void show(Update&& update)
    {
        mShowing = true;
        update();
        mShowing = false;
    }

    /// Selects whole rows, given by the index of one cell each in the order that they are shown.
    void selectRows(const std::vector<QModelIndex>& rows)
    {
        QItemSelection selection;
        const int      last = this->shown()->model()->columnCount() - 1;
        for (std::size_t from = 0; from < rows.size();) {
            std::size_t to = from;
            while (to + 1 < rows.size() && rows[to + 1].row() == rows[to].row() + 1 &&
                   rows[to + 1].parent() == rows[from].parent()) {
                ++to;
            }
            selection.append(
                QItemSelectionRange(rows[from].siblingAtColumn(0), rows[to].siblingAtColumn(last)));
            from = to + 1;
        }
        this->shown()->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }

    bool otherEvent(QEvent& event) override
    {
        // A cursor for the keyboard, and rows that were asked for while there was no screen.
        if (event.type() == QEvent::FocusIn || event.type() == QEvent::Show) {
            QMetaObject::invokeMethod(
                this, [this] { this->refresh(); }, Qt::QueuedConnection);
        }
        return false;
    }

    [[nodiscard]] bool answersBeforeKeyUp() const override { return true; }

    bool unclaimedKey(const QKeyEvent& event) override
    {
        if (!event.matches(QKeySequence::Copy)) {
            return false;
        }
        if (const QString text = this->shown()->selectedText(); !text.isEmpty()) {
            this->byUser([&] { platform::Toolkit::current().setClipboard(fromQt(text)); });
        }
        return true;
    }

private:
    bool mShowing = false;
    /// The user has selected something that the model has not been told.
    bool mUntold = false;
};

} // namespace quill::qt
