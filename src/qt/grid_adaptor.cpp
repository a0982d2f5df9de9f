#include "qt/cell_editors.h"
#include "qt/grid_rows.h"
#include "qt/grid_tree.h"
#include "qt/keys.h"
#include "qt/kinds.h"
#include "qt/rows_adaptor.h"

#include <algorithm>
#include <functional>

namespace quill::qt {

namespace {

class GridAdaptor : public RowsAdaptor<platform::Grid> {
public:
    GridAdaptor(Screen& screen, platform::Grid& model, GridTree* tree)
        : RowsAdaptor(screen, model, tree),
          mRows(new GridRows([this] { return grid(); },
                             [this](int row, int col, bool checked) {
                                 byUser([&] { kind().edit(row, col, checked ? 1 : 0); });
                             },
                             tree)),
          mBoxes(new CellEditors(
              *tree, [this] { return grid(); }, boxEvents()))
    {
        tree->setItemDelegate(mBoxes);
        setRows(mRows);
        tree->clicked       = [this](const QModelIndex& cell) { click(cell); };
        tree->doubleClicked = [this](const QModelIndex& cell) {
            if (cell.flags().testFlag(Qt::ItemIsEditable)) {
                open(GridRows::rowOf(cell), cell.column() + 1);
            }
        };
        tree->rightClicked = [this](const QModelIndex& cell) {
            ask(&platform::Grid::rightClickCell, cell);
        };
        tree->hovered = [this](const QModelIndex& cell) { ask(&platform::Grid::hoverCell, cell); };
        connect(tree, &QTreeView::expanded, this,
                [this](const QModelIndex& row) { tellFolding(row, true); });
        connect(tree, &QTreeView::collapsed, this,
                [this](const QModelIndex& row) { tellFolding(row, false); });
    }

    void update() override
    {
        tellUntold();
        Adaptor::update();
        showColors(QPalette::Text, QPalette::Base);
        mRows->setPalette(shown()->palette());
        if (mEditable != kind().Editable) {
            // Marks that nobody can change look like it.
            mEditable = kind().Editable;
            shown()->viewport()->update();
        }
        show([this] {
            mRows->tell();
            if (kind().Redraw) {
                showColumns();
                showRowStates();
                showSelection();
            }
            showBox();
        });
    }

protected:
    void note(const platform::WidgetChange& change) override { mRows->note(change); }

    bool unclaimedKey(const QKeyEvent& event) override
    {
        const bool plain = event.modifiers() == Qt::NoModifier;
        const bool opens = event.key() == Qt::Key_F2 || event.key() == Qt::Key_Return ||
                           event.key() == Qt::Key_Enter;
        const QModelIndex current = shown()->currentIndex();
        if (!current.isValid() || mBoxes->isOpen()) {
            return RowsAdaptor::unclaimedKey(event);
        }
        if (event.key() == Qt::Key_Space && plain) {
            click(toClick(current));
            return true;
        }
        const QModelIndex cell = toEdit(current);
        if (!cell.isValid()) {
            return RowsAdaptor::unclaimedKey(event);
        }
        const int row = GridRows::rowOf(cell);
        const int col = cell.column() + 1;
        if (opens && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
            open(row, col);
            return true;
        }
        const bool drops = hasList(row, col);
        if (drops && event.key() == Qt::Key_Down && event.modifiers() == Qt::AltModifier) {
            open(row, col);
            return true;
        }
        if (!drops && writesText(event)) {
            open(row, col);
            // The text of the cell is selected, so what is typed takes its place.
            if (QLineEdit* const line = mBoxes->line()) {
                QKeyEvent typed(event.type(), event.key(), event.modifiers(), event.text());
                QCoreApplication::sendEvent(line, &typed);
            }
            return true;
        }
        return RowsAdaptor::unclaimedKey(event);
    }

    void tellSelection() override
    {
        if (showing() || grid() == nullptr) {
            return;
        }
        auto              rows    = shownRows();
        const QModelIndex current = shown()->currentIndex();
        const int         row     = GridRows::rowOf(current);
        const int         col     = current.column() + 1;
        const auto        place   = std::find(rows.begin(), rows.end(), row);
        const bool        inside  = place != rows.end();
        const bool        moved   = inside && (row != kind().CurRow() || col != kind().CurCol());
        if (rows == kind().SelectedRows() && !moved) {
            return;
        }
        const bool several = rows.size() != 1;
        if (inside) {
            std::rotate(rows.begin(), place, place + 1);
        }
        byUser([&] {
            if (inside && (moved || !several)) {
                kind().moveTo(row, col);
            }
            if (several || !inside) {
                kind().select(rows);
            }
        });
    }

    void tellWidth(int column, int pixels) override
    {
        if (column < kind().ColCount()) {
            kind().setColumnWidth(column + 1, pixels);
        }
    }

private:
    [[nodiscard]] const platform::Grid* grid() const
    {
        return model() != nullptr ? &kind() : nullptr;
    }

    // --- To the screen -----------------------------------------------------------------------

    void showColumns()
    {
        const int columns = kind().ColCount();
        int       visible = 0;
        mWidths.resize(static_cast<std::size_t>(columns), -1);
        shown()->setHeaderHidden(!kind().HeaderVisible || columns == 0);
        for (int column = 0; column < columns; ++column) {
            const auto& told  = kind().column(column + 1);
            int&        width = mWidths[static_cast<std::size_t>(column)];
            shown()->setColumnHidden(column, !told.Visible);
            // What is shown may differ: the last column takes what is left. A column that was
            // given no width keeps the usual one.
            if (width != told.Width && told.Width > 0) {
                shown()->setColumnWidth(column, told.Width);
            }
            width = told.Width;
            if (told.Visible && ++visible == 1 && shown()->treePosition() != column) {
                shown()->setTreePosition(column);
            }
        }
        shown()->setLines(visible > 1);
        shown()->setRootIsDecorated(mRows->isTree());
    }

    void showRowStates()
    {
        for (const int row : mRows->takeTouched()) {
            const QModelIndex index = mRows->cell(row, 1);
            const bool        hides = !kind().RowVisible(row);
            if (shown()->isRowHidden(index.row(), index.parent()) != hides) {
                shown()->setRowHidden(index.row(), index.parent(), hides);
            }
            if (kind().RowHasChildren(row) &&
                shown()->isExpanded(index) != kind().RowExpanded(row)) {
                shown()->setExpanded(index, kind().RowExpanded(row));
            }
        }
    }

    void showSelection()
    {
        shown()->setSelectionMode(kind().MultiSelect ? QAbstractItemView::ExtendedSelection
                                                     : QAbstractItemView::SingleSelection);
        shown()->setCellCursor(!kind().RowMode);
        const QModelIndex cursor = mRows->cell(kind().CurRow(), kind().CurCol());
        const auto&       wanted = kind().SelectedRows();
        auto&             chosen = *shown()->selectionModel();
        const bool        isCell =
            !kind().RowMode && cursor.isValid() && wanted == std::vector<int>{kind().CurRow()};
        if (isCell) {
            if (chosen.selectedIndexes() != QModelIndexList{cursor}) {
                chosen.select(cursor, QItemSelectionModel::ClearAndSelect);
            }
        } else if (shownRows() != wanted) {
            std::vector<QModelIndex> cells;
            cells.reserve(wanted.size());
            for (const int row : wanted) {
                cells.push_back(mRows->cell(row, 1));
            }
            selectRows(cells);
        }
        showCursor(cursor);
    }

    void showCursor(const QModelIndex& cursor)
    {
        const bool moved   = mShownRow != kind().CurRow() || mShownCol != kind().CurCol();
        mShownRow          = kind().CurRow();
        mShownCol          = kind().CurCol();
        QModelIndex wanted = cursor;
        if (!wanted.isValid()) {
            // Without a cursor the place of the keyboard stays where it is; a grid with the focus
            // always has one, so that the space bar means a cell.
            wanted = shown()->currentIndex();
            if (!wanted.isValid() && shown()->hasFocus()) {
                wanted = shown()->indexAt(QPoint(shown()->indentation(), 1));
            }
        }
        if (wanted != shown()->currentIndex()) {
            // Rows that were told anew take the cursor along; that is no reason to scroll to it.
            shown()->setAutoScroll(moved && isUnfolded(wanted));
            shown()->selectionModel()->setCurrentIndex(wanted, QItemSelectionModel::NoUpdate);
            shown()->setAutoScroll(true);
        }
    }

    /// Whether a row is not folded in: scrolling to it would fold it out.
    [[nodiscard]] bool isUnfolded(const QModelIndex& index) const
    {
        for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
            if (!shown()->isExpanded(above)) {
                return false;
            }
        }
        return true;
    }

    /// The box over a cell goes when its edit is over or its cell has gone.
    void showBox()
    {
        if (!mBoxes->isOpen()) {
            return;
        }
        const QModelIndex cell = mBoxes->cell();
        if (!cell.isValid()) {
            kind().cancelEdit();
        }
        if (!cell.isValid() || kind().EditRow() != GridRows::rowOf(cell) ||
            kind().EditCol() != cell.column() + 1) {
            mBoxes->close();
        }
    }

    /// In ascending order.
    [[nodiscard]] std::vector<int> shownRows() const
    {
        std::vector<int> rows;
        for (const QItemSelectionRange& range : shown()->selectionModel()->selection()) {
            for (int place = range.top(); place <= range.bottom(); ++place) {
                rows.push_back(GridRows::rowOf(mRows->index(place, 0, range.parent())));
            }
        }
        std::sort(rows.begin(), rows.end());
        rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
        return rows;
    }

    // --- To the model ------------------------------------------------------------------------

    /// What the user does with a grid that is still there.
    template <class What>
    void act(What&& what)
    {
        if (grid() != nullptr) {
            byUser(what);
        }
    }

    void ask(platform::UserDoor (platform::Grid::*verb)(int, int), const QModelIndex& cell)
    {
        const int row = GridRows::rowOf(cell);
        const int col = cell.column() + 1;
        act([&] { (kind().*verb)(row, col); });
    }

    void tellFolding(const QModelIndex& index, bool expanded)
    {
        const int row = GridRows::rowOf(index);
        if (showing() || grid() == nullptr) {
            return;
        }
        // Looked at again even where the grid refuses: then the row goes back.
        mRows->note({platform::WidgetChange::What::rowsChanged, nullptr, row - 1, row - 1});
        byUser([&] { kind().expand(row, expanded); });
    }

    void click(const QModelIndex& cell)
    {
        if (grid() == nullptr) {
            return;
        }
        const int row  = GridRows::rowOf(cell);
        const int col  = cell.column() + 1;
        bool      done = false;
        byUser([&] { done = kind().clickCell(row, col) == platform::UserDoor::done; });
        // A handler may have given the cell its list just now, or may have gone elsewhere.
        if (done && grid() != nullptr && kind().HasFocus() && kind().CurRow() == row &&
            kind().CurCol() == col && hasList(row, col)) {
            open(row, col);
        }
    }

    /// The cell that the space bar clicks on: the current one or, where the cursor is on the whole
    /// row, the row's mark.
    [[nodiscard]] QModelIndex toClick(const QModelIndex& current) const
    {
        if (kind().RowMode) {
            for (int column = 0; column < kind().ColCount(); ++column) {
                const QModelIndex cell = current.siblingAtColumn(column);
                if (!shown()->isColumnHidden(column) && cell.data(Qt::CheckStateRole).isValid()) {
                    return cell;
                }
            }
        }
        return shown()->isColumnHidden(current.column())
                   ? current.siblingAtColumn(shown()->treePosition())
                   : current;
    }

    /// Whether the user can edit a cell by choosing from a list.
    [[nodiscard]] bool hasList(int row, int col) const
    {
        return row >= 1 && row <= kind().RowCount() && col >= 1 && col <= kind().ColCount() &&
               kind().cell(row, col).kind == platform::Grid::CellKind::text &&
               !kind().CellList(row, col).empty() &&
               !kind().Combo(kind().CellList(row, col)).empty();
    }

    /// The cell that a key opens: the current one, or, with a cursor that is on the whole row, the
    /// first one that can be edited.
    [[nodiscard]] QModelIndex toEdit(const QModelIndex& current) const
    {
        if (current.flags().testFlag(Qt::ItemIsEditable) || !kind().RowMode) {
            return current.flags().testFlag(Qt::ItemIsEditable) ? current : QModelIndex{};
        }
        for (int column = 0; column < kind().ColCount(); ++column) {
            const QModelIndex cell = current.siblingAtColumn(column);
            if (!shown()->isColumnHidden(column) && cell.flags().testFlag(Qt::ItemIsEditable)) {
                return cell;
            }
        }
        return {};
    }

    void open(int row, int col)
    {
        bool done = false;
        byUser([&] { done = kind().beginEdit(row, col) == platform::UserDoor::done; });
        if (!done || grid() == nullptr || kind().EditRow() != row || kind().EditCol() != col) {
            return;
        }
        mBoxes->open(mRows->cell(row, col));
        if (!mBoxes->isOpen()) {
            byUser([&] { kind().cancelEdit(); });
        }
    }

    [[nodiscard]] CellEditorEvents boxEvents()
    {
        CellEditorEvents events;
        events.commit = [this] { act([this] { kind().commitEdit(); }); };
        events.cancel = [this] { act([this] { kind().cancelEdit(); }); };
        events.typed  = [this](const QString& text) {
            act([&] { kind().typeCell(kind().EditRow(), kind().EditCol(), fromQt(text)); });
        };
        events.chosen = [this](int entry) { act([&] { choose(entry); }); };
        events.left   = [this](Qt::FocusReason reason) {
            if (grid() != nullptr) {
                byUser([&] { kind().commitEdit(); });
                focusLeft(reason);
            }
        };
        return events;
    }

    /// An entry is known by its text, or by its value where another one before it reads the same.
    void choose(int entry)
    {
        const int   row     = kind().EditRow();
        const int   col     = kind().EditCol();
        const auto& entries = kind().Combo(kind().CellList(row, col));
        const auto  chosen  = entries[static_cast<std::size_t>(entry)];
        const auto  first   = std::find_if(entries.begin(), entries.end(),
                                           [&](const auto& e) { return e.Text == chosen.Text; });
        if (first - entries.begin() == entry) {
            kind().edit(row, col, chosen.Text);
        } else {
            kind().edit(row, col, chosen.Value);
        }
    }

    GridRows*    mRows;
    CellEditors* mBoxes;
    bool         mEditable = true;
    /// The cursor as it was shown last.
    int mShownRow = 0;
    int mShownCol = 0;
    /// Widths of the columns as they were told last.
    std::vector<int> mWidths;
};

} // namespace

Adaptor* makeGrid(Screen& screen, platform::Grid& model, QWidget* parent)
{
    return new GridAdaptor(screen, model, new GridTree(parent));
}

} // namespace quill::qt
