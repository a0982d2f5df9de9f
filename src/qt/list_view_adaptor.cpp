#include "qt/kinds.h"
#include "qt/list_rows.h"
#include "qt/rows_adaptor.h"

#include <QScrollBar>

#include <algorithm>

namespace quill::qt {

namespace {

class ListAdaptor : public RowsAdaptor<platform::ListView> {
public:
    ListAdaptor(Screen& screen, platform::ListView& model, RowsTree* tree)
        : RowsAdaptor(screen, model, tree),
          mRows(new ListRows(
              [this] { return list(); },
              [this](int row, bool checked) { byUser([&] { kind().check(row, checked); }); }, tree))
    {
        tree->setItemDelegate(new RoomyRows(tree));
        setRows(mRows);
        connect(tree->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int row) {
            if (!showing() && list() != nullptr && row < list()->Count()) {
                mFirstShown = row + 1;
                kind().setFirstVisible(row + 1);
            }
        });
    }

    void update() override
    {
        tellUntold();
        Adaptor::update();
        showColors(QPalette::Text, QPalette::Base);
        if (mCheckBoxes != kind().CheckBoxes) {
            mCheckBoxes = kind().CheckBoxes;
            mRows->note({platform::WidgetChange::What::rowsChanged, nullptr, 0,
                         std::max(0, kind().Count() - 1)});
        }
        show([this] {
            mRows->tell();
            showColumns();
            showSelection();
            showFirst();
        });
    }

protected:
    void note(const platform::WidgetChange& change) override { mRows->note(change); }

    bool unclaimedKey(const QKeyEvent& event) override
    {
        // The space bar checks the current row, on whatever column the cursor is.
        const QModelIndex current = shown()->currentIndex();
        if (event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier ||
            !kind().CheckBoxes || !current.isValid()) {
            return RowsAdaptor::unclaimedKey(event);
        }
        const int row = current.row() + 1;
        byUser([&] { kind().check(row, !kind().Item(row).Checked); });
        return true;
    }

    void tellSelection() override
    {
        if (showing() || list() == nullptr) {
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

    void tellWidth(int column, int pixels) override
    {
        if (column < static_cast<int>(kind().ColumnHeaders().size())) {
            kind().setColumnWidth(column + 1, toTwips(pixels));
        }
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
        if (const auto rows = selectedRows(); rows != shownRows()) {
            std::vector<QModelIndex> cells;
            cells.reserve(rows.size());
            for (const int row : rows) {
                cells.push_back(mRows->index(row - 1, 0));
            }
            selectRows(cells);
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
        // How many rows are to be seen is not known before.
        if (!shown()->isVisible()) {
            return;
        }
        const int count = mRows->rowCount();
        const int first = kind().FirstVisible();
        if (first != mFirstShown && first > 0 && first <= count) {
            mFirstShown = first;
            shown()->scrollTo(mRows->index(first - 1, 0), QAbstractItemView::PositionAtTop);
        }
        if (const int ensured = kind().EnsuredVisible(); ensured > 0 && ensured <= count) {
            shown()->scrollTo(mRows->index(ensured - 1, 0), QAbstractItemView::EnsureVisible);
            mFirstShown = shown()->verticalScrollBar()->value() + 1;
            kind().setFirstVisible(mFirstShown);
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
        for (const QItemSelectionRange& range : shown()->selectionModel()->selection()) {
            for (int row = range.top(); row <= range.bottom(); ++row) {
                rows.push_back(row + 1);
            }
        }
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    ListRows* mRows;
    bool      mCheckBoxes = false;
    int       mFirstShown = 0;
    /// Widths of the columns as they were shown last, in pixels.
    std::vector<int> mWidths;
};

} // namespace

Adaptor* makeListView(Screen& screen, platform::ListView& model, QWidget* parent)
{
    return new ListAdaptor(screen, model, new RowsTree(parent));
}

} // namespace quill::qt
