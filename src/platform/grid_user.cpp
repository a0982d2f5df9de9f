// The user's door of the grid: the cursor, clicks, folding and editing.
#include "platform/grid.h"

#include <algorithm>

namespace quill::platform {

namespace {

/// Whether a row is neither hidden nor folded in.
bool isSeen(const Grid& grid, int row)
{
    if (!grid.RowVisible(row)) {
        return false;
    }
    for (int above = grid.RowParent(row); above != 0; above = grid.RowParent(above)) {
        if (!grid.RowVisible(above) || !grid.RowExpanded(above)) {
            return false;
        }
    }
    return true;
}

/// Whether a row is `above` or one of its descendants.
bool isUnder(const Grid& grid, int row, int above)
{
    while (row > above) {
        row = grid.RowParent(row);
    }
    return row == above;
}

/// Gives a cell the entry that is meant; false where there is none.
template <class IsMeant>
bool choose(const GridLists::Entries& entries, GridCell& cell, IsMeant isMeant)
{
    const auto entry = std::find_if(entries.begin(), entries.end(), isMeant);
    if (entry == entries.end()) {
        return false;
    }
    cell.Text  = entry->Text;
    cell.Value = entry->Value;
    return true;
}

} // namespace

bool Grid::isReachable(int row, int col) const
{
    return acceptsUser() && row >= 1 && row <= RowCount() && col >= 1 && col <= ColCount() &&
           column(col).Visible && isSeen(*this, row);
}

UserDoor Grid::moveTo(int row, int col)
{
    if (!isReachable(row, col)) {
        return UserDoor::refused;
    }
    if (mEditRow != 0 && (mEditRow != row || mEditCol != col)) {
        (void)commitEdit();
        if (!isReachable(row, col)) {
            return UserDoor::refused;
        }
    }
    setSelectedRows({row});
    if (row != mCurRow || col != mCurCol) {
        setCurCell(row, col);
        CurCellChange.raise(row, col);
    }
    return UserDoor::done;
}

UserDoor Grid::clickCell(int row, int col)
{
    if (!isReachable(row, col) || focus() == UserDoor::refused ||
        moveTo(row, col) == UserDoor::refused) {
        return UserDoor::refused;
    }
    if (isReachable(row, col) && cell(row, col).kind == CellKind::check) {
        (void)edit(row, col, cell(row, col).Value.value_or(0) == 0 ? 1 : 0);
    }
    Click.raise(row, col);
    return UserDoor::done;
}

UserDoor Grid::rightClickCell(int row, int col)
{
    if (!isReachable(row, col)) {
        return UserDoor::refused;
    }
    RightClick.raise(row, col);
    return UserDoor::done;
}

UserDoor Grid::hoverCell(int row, int col)
{
    if (!isReachable(row, col)) {
        return UserDoor::refused;
    }
    Hover.raise(row, col);
    return UserDoor::done;
}

UserDoor Grid::select(const std::vector<int>& rows)
{
    if (!acceptsUser() || (rows.size() > 1 && !MultiSelect)) {
        return UserDoor::refused;
    }
    if (rows.empty()) {
        setSelectedRows({});
        return UserDoor::done;
    }
    int col = mCurCol;
    if (col == 0 || !column(col).Visible) {
        const auto seen = std::find_if(mColumns.begin(), mColumns.end(),
                                       [](const Column& c) { return c.Visible; });
        col             = static_cast<int>(seen - mColumns.begin()) + 1;
    }
    const auto canSelect = [&] {
        return std::all_of(rows.begin(), rows.end(),
                           [&](int row) { return isReachable(row, col); });
    };
    // Handlers that hear of the cursor may take rows away.
    if (!canSelect() || moveTo(rows.front(), col) == UserDoor::refused || !canSelect()) {
        return UserDoor::refused;
    }
    setSelectedRows(rows);
    return UserDoor::done;
}

UserDoor Grid::expand(int row, bool expanded)
{
    if (!acceptsUser() || row < 1 || row > RowCount() || !RowHasChildren(row) ||
        !isSeen(*this, row)) {
        return UserDoor::refused;
    }
    if (!expanded && mCurRow > row && isUnder(*this, mCurRow, row)) {
        (void)moveTo(row, mCurCol);
        if (row > RowCount()) {
            return UserDoor::refused;
        }
    }
    setRowExpanded(row, expanded);
    return UserDoor::done;
}

bool Grid::canEdit(int row, int col) const
{
    return isReachable(row, col) && Editable && cell(row, col).Editable;
}

UserDoor Grid::beginEdit(int row, int col)
{
    if (!canEdit(row, col)) {
        return UserDoor::refused;
    }
    if (mEditRow == row && mEditCol == col) {
        return UserDoor::done;
    }
    if (moveTo(row, col) == UserDoor::refused) {
        return UserDoor::refused;
    }
    EditRequest request{row, col};
    RequestEdit.raise(request);
    if (request.cancel || !canEdit(row, col)) {
        return UserDoor::refused;
    }
    mEditRow  = row;
    mEditCol  = col;
    mEditText = cell(row, col).Text;
    mTyped    = false;
    return UserDoor::done;
}

UserDoor Grid::typeCell(int row, int col, const std::string& text)
{
    if (beginEdit(row, col) == UserDoor::refused) {
        return UserDoor::refused;
    }
    mEditText = text;
    mTyped    = true;
    tellCell(row, col);
    TextEditChange.raise(row, col);
    return UserDoor::done;
}

void Grid::cancelEdit()
{
    const int row = mEditRow;
    const int col = mEditCol;
    mEditRow = mEditCol = 0;
    mEditText.clear();
    mTyped = false;
    if (row > 0 && row <= RowCount() && col <= ColCount()) {
        tellCell(row, col);
    }
}

void Grid::commit(int row, int col, Cell fresh)
{
    Cell& cell = at(row, col);
    cell       = std::move(fresh);
    tellCell(row, col);
    TextChange.raise(row, col);
    AfterCommitEdit.raise(row, col);
}

UserDoor Grid::commitEdit()
{
    if (mEditRow == 0) {
        return UserDoor::refused;
    }
    const int         row   = mEditRow;
    const int         col   = mEditCol;
    const std::string text  = mEditText;
    const bool        typed = mTyped;
    cancelEdit();
    if (!typed) {
        return UserDoor::done;
    }
    if (!isReachable(row, col)) {
        return UserDoor::refused;
    }
    Cell fresh = cell(row, col);
    if (fresh.kind == CellKind::check) {
        if (text != "0" && text != "1") {
            return UserDoor::refused;
        }
        fresh.Value = text == "1" ? 1 : 0;
    } else if (fresh.list >= 0) {
        const auto& entries = mLists.at(static_cast<std::size_t>(fresh.list));
        if (!choose(entries, fresh, [&](const Entry& e) { return e.Text == text; })) {
            return UserDoor::refused;
        }
    } else {
        fresh.Text = text;
    }
    commit(row, col, std::move(fresh));
    return UserDoor::done;
}

UserDoor Grid::edit(int row, int col, const std::string& text)
{
    return typeCell(row, col, text) == UserDoor::refused ? UserDoor::refused : commitEdit();
}

UserDoor Grid::edit(int row, int col, std::int32_t value)
{
    if (beginEdit(row, col) == UserDoor::refused) {
        return UserDoor::refused;
    }
    cancelEdit();
    Cell fresh = cell(row, col);
    if (fresh.kind == CellKind::check) {
        if (value != 0 && value != 1) {
            return UserDoor::refused;
        }
        fresh.Value = value;
    } else if (fresh.list >= 0) {
        const auto& entries = mLists.at(static_cast<std::size_t>(fresh.list));
        if (!choose(entries, fresh, [&](const Entry& e) { return e.Value == value; })) {
            return UserDoor::refused;
        }
    } else {
        fresh.Text = std::to_string(value);
    }
    commit(row, col, std::move(fresh));
    return UserDoor::done;
}

} // namespace quill::platform
