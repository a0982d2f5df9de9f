#include "qt/kinds.h"
#include "qt/list_rows.h"
#include "qt/text.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <algorithm>

namespace quill::qt {

namespace {

/// Tells when the user's event is over: only then the selection and the current row agree.
class Tree : public QTreeView {
public:
    using QTreeView::QTreeView;
    std::function<void()> picked;

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        QTreeView::mousePressEvent(event);
        picked();
    }
    void mouseMoveEvent(QMouseEvent* event) override
    {
        QTreeView::mouseMoveEvent(event);
        picked();
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        QTreeView::mouseReleaseEvent(event);
        picked();
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        QTreeView::keyPressEvent(event);
        picked();
    }
};

/// Rows with some air, for the eye and for the finger.
class RoomyRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex&          index) const override
    {
        constexpr QSize kAir(0, 6);
        return QStyledItemDelegate::sizeHint(option, index) + kAir;
    }
};

class ListAdaptor : public KindAdaptor<platform::ListView, QTreeView> {
public:
    ListAdaptor(Screen& screen, platform::ListView& model, Tree* tree)
        : KindAdaptor(screen, model, tree),
          mRows(new ListRows(
              [this] { return list(); },
              [this](int row, bool checked) { byUser([&] { kind().check(row, checked); }); }, tree))
    {
        tree->picked = [this] { tellSelection(); };
        tree->setModel(mRows);
        tree->setItemDelegate(new RoomyRows(tree));
        auto* const corner = new QWidget(tree);
        corner->setAutoFillBackground(true);
        corner->setBackgroundRole(QPalette::Base);
        tree->setCornerWidget(corner);
        tree->setRootIsDecorated(false);
        tree->setUniformRowHeights(true);
        tree->setAllColumnsShowFocus(true);
        tree->setSelectionBehavior(QAbstractItemView::SelectRows);
        tree->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
        tree->setTabKeyNavigation(false);
        tree->header()->setSectionsMovable(false);
        tree->header()->setStretchLastSection(true);
        tree->header()->setMinimumSectionSize(0);
        // Assistive programs select without a mouse or a key.
        connect(tree->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
            if (!mShowing) {
                QMetaObject::invokeMethod(
                    this, [this] { tellSelection(); }, Qt::QueuedConnection);
            }
        });
        connect(tree->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int row) {
            if (!mShowing && list() != nullptr && row < list()->Count()) {
                mFirstShown = row + 1;
                kind().setFirstVisible(row + 1);
            }
        });
        connect(tree->header(), &QHeaderView::sectionResized, this,
                [this](int column, int, int width) { tellWidth(column, width); });
    }

    void update() override
    {
        mShowing = true;
        Adaptor::update();
        showColors(QPalette::Text, QPalette::Base);
        if (mCheckBoxes != kind().CheckBoxes) {
            mCheckBoxes = kind().CheckBoxes;
            mRows->note({platform::WidgetChange::What::rowsChanged, nullptr, 0,
                         std::max(0, kind().Count() - 1)});
        }
        mRows->tell();
        showColumns();
        showSelection();
        showFirst();
        mShowing = false;
    }

    [[nodiscard]] Fit fit() const override { return {shown()->sizeHint()}; }

protected:
    void note(const platform::WidgetChange& change) override { mRows->note(change); }

    bool otherEvent(QEvent& event) override
    {
        if (event.type() == QEvent::FocusIn) {
            QMetaObject::invokeMethod(
                this, [this] { refresh(); }, Qt::QueuedConnection);
        }
        return false;
    }

    bool unclaimedKey(const QKeyEvent& event) override
    {
        // The space bar checks the current row, on whatever column the cursor is.
        const QModelIndex current = shown()->currentIndex();
        if (event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier ||
            !kind().CheckBoxes || !current.isValid()) {
            return false;
        }
        const int row = current.row() + 1;
        byUser([&] { kind().check(row, !kind().Item(row).Checked); });
        return true;
    }

private:
    [[nodiscard]] const platform::ListView* list() const
    {
        return model() != nullptr ? &kind() : nullptr;
    }

    void showColumns()
    {
        const auto& headers = kind().ColumnHeaders();
        mWidths.resize(headers.size(), -1);
        shown()->setHeaderHidden(headers.empty());
        for (int column = 0; column < static_cast<int>(headers.size()); ++column) {
            const auto place = static_cast<std::size_t>(column);
            const int  width = toPixels(headers[place].Width);
            shown()->setColumnHidden(column, width <= 0);
            // What is shown may differ: the last column takes what is left.
            if (mWidths[place] != width && width > 0) {
                shown()->setColumnWidth(column, width);
            }
            mWidths[place] = width;
        }
        shown()->header()->viewport()->update();
    }

    void showSelection()
    {
        shown()->setSelectionMode(kind().MultiSelect ? QAbstractItemView::ExtendedSelection
                                                     : QAbstractItemView::SingleSelection);
        if (selectedRows() != shownRows()) {
            QItemSelection selection;
            for (const int row : selectedRows()) {
                selection.select(mRows->index(row - 1, 0),
                                 mRows->index(row - 1, mRows->columnCount() - 1));
            }
            shown()->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        }
        // Without a selection the cursor stays where it is; a list with the focus always has one,
        // so that the space bar means a row.
        int current = kind().SelectedItem();
        if (current == 0) {
            current = shown()->currentIndex().row() + 1;
        }
        if (current == 0 && shown()->hasFocus() && mRows->rowCount() > 0) {
            current = 1;
        }
        if (current != shown()->currentIndex().row() + 1) {
            shown()->selectionModel()->setCurrentIndex(mRows->index(current - 1, 0),
                                                       QItemSelectionModel::NoUpdate);
        }
    }

    void showFirst()
    {
        const int first = kind().FirstVisible();
        if (first != mFirstShown && first > 0 && first <= mRows->rowCount()) {
            mFirstShown = first;
            shown()->scrollTo(mRows->index(first - 1, 0), QAbstractItemView::PositionAtTop);
        }
    }

    [[nodiscard]] std::vector<int> selectedRows() const
    {
        std::vector<int> rows;
        const auto&      items = kind().ListItems();
        for (std::size_t place = 0; place < items.size(); ++place) {
            if (items[place].Selected) {
                rows.push_back(static_cast<int>(place) + 1);
            }
        }
        return rows;
    }

    [[nodiscard]] std::vector<int> shownRows() const
    {
        std::vector<int> rows;
        for (const QModelIndex& index : shown()->selectionModel()->selectedRows()) {
            rows.push_back(index.row() + 1);
        }
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    void tellSelection()
    {
        if (mShowing || list() == nullptr) {
            return;
        }
        auto       rows    = shownRows();
        const int  current = shown()->currentIndex().row() + 1;
        const auto place   = std::find(rows.begin(), rows.end(), current);
        const bool inside  = place != rows.end();
        if (rows == selectedRows() && (!inside || current == kind().SelectedItem())) {
            return;
        }
        if (inside) {
            std::rotate(rows.begin(), place, place + 1);
        }
        byUser([&] { kind().select(rows); });
    }

    void tellWidth(int column, int width)
    {
        // Only a header that is dragged tells the user's wish.
        const bool dragged = QApplication::mouseButtons() != Qt::NoButton;
        if (!mShowing && dragged && list() != nullptr &&
            column < static_cast<int>(list()->ColumnHeaders().size())) {
            kind().setColumnWidth(column + 1, toTwips(width));
        }
    }

    ListRows* mRows;
    bool      mShowing    = false;
    bool      mCheckBoxes = false;
    int       mFirstShown = 0;
    /// Widths of the columns as they were shown last, in pixels.
    std::vector<int> mWidths;
};

} // namespace

Adaptor* makeListView(Screen& screen, platform::ListView& model, QWidget* parent)
{
    return new ListAdaptor(screen, model, new Tree(parent));
}

} // namespace quill::qt
