#include "platform/grid.h"

#include "platform/failure.h"
#include "platform/pictures.h"

#include <algorithm>

namespace quill::platform {

using What = WidgetChange::What;

Grid::Grid(const Design& design) : Widget(design)
{
    start();
}

Grid::Grid(Widget& container, const Design& design) : Widget(container, design)
{
    start();
}

void Grid::start()
{
    BackColor = kWindowBackground;
}

void Grid::visit(PropertyVisitor& visitor)
{
    Widget::visit(visitor);
    visitor.visit("HeaderVisible", HeaderVisible);
    visitor.visit("Editable", Editable);
    visitor.visit("RowMode", RowMode);
    visitor.visit("MultiSelect", MultiSelect);
    visitor.visit("Redraw", Redraw);
    const auto readOnly = [&](const char* name, auto get) {
        visitor.visit(
            name, [get] { return PropertyValue{std::int32_t{get()}}; }, PropertyVisitor::Setter{});
    };
    visitor.visit(
        "RowCount", [this] { return PropertyValue{std::int32_t{RowCount()}}; },
        [this](const PropertyValue& value) { setRowCount(std::get<std::int32_t>(value)); });
    readOnly("ColCount", [this] { return ColCount(); });
    readOnly("CurRow", [this] { return CurRow(); });
    readOnly("CurCol", [this] { return CurCol(); });
}

void Grid::propertyChanged(const void* property)
{
    Widget::propertyChanged(property);
    if (property == &Redraw && Redraw && mHeldBack) {
        mHeldBack = false;
        notify({What::reset});
    }
}

void Grid::tell(const WidgetChange& change)
{
    if (Redraw) {
        notify(change);
    } else {
        mHeldBack = true;
    }
}

void Grid::tellCell(int row, int col)
{
    tell({What::rowsChanged, nullptr, row - 1, row - 1, col - 1});
}

void Grid::tellRow(int row)
{
    tell({What::rowsChanged, nullptr, row - 1, row - 1});
}

// --- Structure -----------------------------------------------------------------------------------

Grid::Row& Grid::at(int row)
{
    if (row < 1 || row > RowCount()) {
        throw failure(kSubscriptOutOfRange);
    }
    return mRows[static_cast<std::size_t>(row) - 1];
}

const Grid::Row& Grid::at(int row) const
{
    return const_cast<Grid*>(this)->at(row);
}

Grid::Column& Grid::columnAt(int col)
{
    if (col < 1 || col > ColCount()) {
        throw failure(kSubscriptOutOfRange);
    }
    return mColumns[static_cast<std::size_t>(col) - 1];
}

Grid::Cell& Grid::at(int row, int col)
{
    Row& found = at(row);
    (void)columnAt(col);
    return found.cells[static_cast<std::size_t>(col) - 1];
}

void Grid::Clear()
{
    mRows.clear();
    mColumns.clear();
    mLists.clear();
    mSelected.clear();
    mCurRow = mCurCol = 0;
    cancelEdit();
    tell({What::reset});
}

int Grid::AddCol(Column column)
{
    mColumns.push_back(std::move(column));
    for (Row& row : mRows) {
        row.cells.emplace_back();
    }
    tell({What::reset});
    return ColCount();
}

void Grid::setColumnWidth(int col, std::int32_t width)
{
    columnAt(col).Width = width;
    tell({});
}

void Grid::setColumnVisible(int col, bool visible)
{
    columnAt(col).Visible = visible;
    tell({});
}

void Grid::setColumnText(int col, const std::string& text)
{
    columnAt(col).Text = text;
    tell({});
}

const Grid::Column& Grid::column(int col) const
{
    return const_cast<Grid*>(this)->columnAt(col);
}

int Grid::ColCount() const noexcept
{
    return static_cast<int>(mColumns.size());
}

int Grid::RowCount() const noexcept
{
    return static_cast<int>(mRows.size());
}

int Grid::AddRow(int parent)
{
    int place = RowCount() + 1;
    if (parent != 0) {
        at(parent).children += 1;
        // Trees grow at their end, so the last row is nearly always one of the parent's.
        int last = RowCount();
        while (last > parent) {
            last = at(last).parent;
        }
        if (last != parent) {
            place = parent + 1;
            while (place <= RowCount() && at(place).parent >= parent) {
                ++place;
            }
        }
    }
    Row fresh;
    fresh.parent = parent;
    fresh.cells.resize(mColumns.size());
    if (place <= RowCount()) {
        const auto moveOn = [place](int& row) { row += row >= place ? 1 : 0; };
        for (Row& row : mRows) {
            moveOn(row.parent);
        }
        std::for_each(mSelected.begin(), mSelected.end(), moveOn);
        moveOn(mCurRow);
        moveOn(mEditRow);
    }
    mRows.insert(mRows.begin() + (place - 1), std::move(fresh));
    tell({What::rowsInserted, nullptr, place - 1, place - 1});
    return place;
}

void Grid::setRowCount(int count)
{
    if (count < 0) {
        throw failure(kInvalidCall);
    }
    const int before = RowCount();
    if (count == before) {
        return;
    }
    Row fresh;
    fresh.cells.resize(mColumns.size());
    for (int row = before; row > count; --row) {
        if (const int parent = at(row).parent; parent != 0) {
            at(parent).children -= 1;
        }
    }
    mRows.resize(static_cast<std::size_t>(count), fresh);
    if (count > before) {
        tell({What::rowsInserted, nullptr, before, count - 1});
        return;
    }
    std::erase_if(mSelected, [count](int row) { return row > count; });
    if (mCurRow > count) {
        mCurRow = mCurCol = 0;
    }
    if (mEditRow > count) {
        cancelEdit();
    }
    tell({What::rowsRemoved, nullptr, count, before - 1});
}

int Grid::RowParent(int row) const
{
    return at(row).parent;
}

bool Grid::RowHasChildren(int row) const
{
    return at(row).children > 0;
}

bool Grid::RowVisible(int row) const
{
    return at(row).visible;
}

void Grid::setRowVisible(int row, bool visible)
{
    if (at(row).visible != visible) {
        at(row).visible = visible;
        tellRow(row);
    }
}

bool Grid::RowExpanded(int row) const
{
    return at(row).expanded;
}

void Grid::setRowExpanded(int row, bool expanded)
{
    if (at(row).expanded != expanded) {
        at(row).expanded = expanded;
        tellRow(row);
    }
}

const std::string& Grid::RowDescription(int row) const
{
    return at(row).description;
}

void Grid::setRowDescription(int row, std::string text)
{
    if (at(row).description != text) {
        at(row).description = std::move(text);
        tellRow(row);
    }
}

// --- Cells ---------------------------------------------------------------------------------------

const Grid::Cell& Grid::cell(int row, int col) const
{
    return const_cast<Grid*>(this)->at(row, col);
}

void Grid::setCellText(int row, int col, const std::string& text)
{
    Cell& cell = at(row, col);
    if (cell.Text != text) {
        cell.Text = text;
        tellCell(row, col);
    }
}

void Grid::setCellValue(int row, int col, std::optional<std::int32_t> value)
{
    Cell& cell = at(row, col);
    if (cell.Value != value) {
        cell.Value = value;
        tellCell(row, col);
    }
}

void Grid::setCellBackColor(int row, int col, Color color)
{
    Cell& cell = at(row, col);
    if (cell.BackColor != color) {
        cell.BackColor = color;
        tellCell(row, col);
    }
}

void Grid::setCellEditable(int row, int col, bool editable)
{
    Cell& cell = at(row, col);
    if (cell.Editable != editable) {
        cell.Editable = editable;
        tellCell(row, col);
    }
}

void Grid::setCellKind(int row, int col, CellKind kind)
{
    Cell& cell = at(row, col);
    if (cell.kind != kind) {
        cell.kind = kind;
        tellCell(row, col);
    }
}

void Grid::setImageList(const ImageList* images)
{
    mImages = images;
    tell({What::rowsChanged, nullptr, 0, std::max(0, RowCount() - 1)});
}

void Grid::setCellIcon(int row, int col, const std::string& key)
{
    Cell&        cell = at(row, col);
    std::int16_t icon = -1;
    if (!key.empty()) {
        if (mImages == nullptr) {
            throw failure(kInvalidCall);
        }
        icon = static_cast<std::int16_t>(mImages->index(key));
    }
    if (cell.icon != icon) {
        cell.icon = icon;
        tellCell(row, col);
    }
}

std::string Grid::CellIcon(int row, int col) const
{
    const auto place = static_cast<std::size_t>(cell(row, col).icon);
    return mImages != nullptr && place < mImages->Keys().size() ? mImages->Keys()[place]
                                                                : std::string{};
}

std::size_t Grid::listPlace(const std::string& key) const
{
    const auto found =
        std::find_if(mLists.begin(), mLists.end(), [&](const auto& l) { return l.first == key; });
    return static_cast<std::size_t>(found - mLists.begin());
}

bool Grid::hasCombo(const std::string& key) const
{
    return listPlace(key) < mLists.size();
}

void Grid::AddCombo(const std::string& key)
{
    if (hasCombo(key)) {
        throw Failure(kInvalidCall, "there is a drop-down list of the key '" + key + "'");
    }
    mLists.emplace_back(key, std::vector<Entry>{});
}

void Grid::ClearCombo(const std::string& key)
{
    if (!hasCombo(key)) {
        AddCombo(key);
    }
    mLists[listPlace(key)].second.clear();
}

void Grid::AddComboItem(const std::string& key, Entry entry)
{
    const_cast<std::vector<Entry>&>(Combo(key)).push_back(std::move(entry));
}

const std::vector<Grid::Entry>& Grid::Combo(const std::string& key) const
{
    const std::size_t place = listPlace(key);
    if (place == mLists.size()) {
        throw Failure(kInvalidCall, "no drop-down list of the key '" + key + "'");
    }
    return mLists[place].second;
}

void Grid::setCellList(int row, int col, const std::string& key)
{
    Cell&        cell = at(row, col);
    std::int16_t list = -1;
    if (!key.empty()) {
        (void)Combo(key);
        list = static_cast<std::int16_t>(listPlace(key));
    }
    if (cell.list != list) {
        cell.list = list;
        tellCell(row, col);
    }
}

std::string Grid::CellList(int row, int col) const
{
    const Cell& found = cell(row, col);
    return found.list < 0 ? std::string{} : mLists[static_cast<std::size_t>(found.list)].first;
}

// --- Selection -----------------------------------------------------------------------------------

void Grid::setCurCell(int row, int col)
{
    if (row != 0 || col != 0) {
        (void)at(row, col);
    }
    if (row != mCurRow || col != mCurCol) {
        mCurRow = row;
        mCurCol = col;
        tell({});
    }
}

void Grid::setSelectedRows(std::vector<int> rows)
{
    for (const int row : rows) {
        (void)at(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (rows != mSelected) {
        mSelected = std::move(rows);
        tell({});
    }
}

} // namespace quill::platform
