#include "platform/grid.h"

#include "platform/failure.h"
#include "platform/pictures.h"

#include <algorithm>

namespace quill::platform {

using What = WidgetChange::What;

Grid::Grid(const Design& design) : Widget(design)
{
    BackColor = kWindowBackground;
}

Grid::Grid(Widget& container, const Design& design) : Widget(container, design)
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

template <class T>
void Grid::setInCell(int row, int col, T Cell::*member, const T& value)
{
    T& present = at(row, col).*member;
    if (present != value) {
        present = value;
        tellCell(row, col);
    }
}

template <class T>
void Grid::setInRow(int row, T Row::*member, T value)
{
    T& present = at(row).*member;
    if (present != value) {
        present = std::move(value);
        tell({What::rowsChanged, nullptr, row - 1, row - 1});
    }
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
    (void)at(row);
    (void)columnAt(col);
    return mCells[(static_cast<std::size_t>(row) - 1) * mColumns.size() +
                  static_cast<std::size_t>(col) - 1];
}

void Grid::Clear()
{
    mRows.clear();
    mCells.clear();
    mColumns.clear();
    mLists.clear();
    mSelected.clear();
    mCurRow = mCurCol = 0;
    cancelEdit();
    tell({What::reset});
}

int Grid::AddCol(Column column)
{
    std::vector<Cell> wider;
    wider.reserve(mCells.size() + mRows.size());
    auto next = mCells.begin();
    for (std::size_t row = 0; row < mRows.size(); ++row) {
        for (std::size_t col = 0; col < mColumns.size(); ++col) {
            wider.push_back(std::move(*next++));
        }
        wider.emplace_back();
    }
    mCells = std::move(wider);
    mColumns.push_back(std::move(column));
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
    if (place <= RowCount()) {
        const auto moveOn = [place](int& row) { row += row >= place ? 1 : 0; };
        for (Row& row : mRows) {
            moveOn(row.parent);
        }
        std::for_each(mSelected.begin(), mSelected.end(), moveOn);
        moveOn(mCurRow);
        moveOn(mEditRow);
    }
    // The cells first: a row without them could not be told from one that has them.
    mCells.insert(mCells.begin() + static_cast<std::ptrdiff_t>(place - 1) * ColCount(),
                  mColumns.size(), Cell{});
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
    mCells.reserve(static_cast<std::size_t>(count) * mColumns.size());
    for (int row = before; row > count; --row) {
        if (const int parent = at(row).parent; parent != 0) {
            at(parent).children -= 1;
        }
    }
    mRows.resize(static_cast<std::size_t>(count));
    mCells.resize(mRows.size() * mColumns.size());
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
    setInRow(row, &Row::visible, visible);
}

bool Grid::RowExpanded(int row) const
{
    return at(row).expanded;
}

void Grid::setRowExpanded(int row, bool expanded)
{
    setInRow(row, &Row::expanded, expanded);
}

const std::string& Grid::RowDescription(int row) const
{
    return at(row).description;
}

void Grid::setRowDescription(int row, std::string text)
{
    setInRow(row, &Row::description, std::move(text));
}

// --- Cells ---------------------------------------------------------------------------------------

const Grid::Cell& Grid::cell(int row, int col) const
{
    return const_cast<Grid*>(this)->at(row, col);
}

void Grid::setCellText(int row, int col, const std::string& text)
{
    setInCell(row, col, &Cell::Text, text);
}

void Grid::setCellValue(int row, int col, std::optional<std::int32_t> value)
{
    setInCell(row, col, &Cell::Value, value);
}

void Grid::setCellBackColor(int row, int col, Color color)
{
    setInCell(row, col, &Cell::BackColor, color);
}

void Grid::setCellEditable(int row, int col, bool editable)
{
    setInCell(row, col, &Cell::Editable, editable);
}

void Grid::setCellKind(int row, int col, CellKind kind)
{
    setInCell(row, col, &Cell::kind, kind);
}

void Grid::setImageList(const ImageList* images)
{
    mImages = images;
    if (RowCount() > 0) {
        tell({What::rowsChanged, nullptr, 0, RowCount() - 1});
    }
}

void Grid::setCellIcon(int row, int col, const std::string& key)
{
    (void)at(row, col);
    std::int16_t icon = -1;
    if (!key.empty()) {
        if (mImages == nullptr) {
            throw failure(kInvalidCall);
        }
        icon = static_cast<std::int16_t>(mImages->index(key));
    }
    setInCell(row, col, &Cell::icon, icon);
}

std::string Grid::CellIcon(int row, int col) const
{
    const auto place = static_cast<std::size_t>(cell(row, col).icon);
    return mImages != nullptr && place < mImages->Keys().size() ? mImages->Keys()[place]
                                                                : std::string{};
}

bool Grid::hasCombo(const std::string& key) const
{
    return mLists.find(key) < mLists.size();
}

void Grid::AddCombo(const std::string& key)
{
    mLists.add(key);
}

void Grid::ClearCombo(const std::string& key)
{
    if (!hasCombo(key)) {
        mLists.add(key);
    }
    mLists.at(mLists.place(key)).clear();
}

void Grid::AddComboItem(const std::string& key, Entry entry)
{
    mLists.at(mLists.place(key)).push_back(std::move(entry));
}

const std::vector<Grid::Entry>& Grid::Combo(const std::string& key) const
{
    return mLists.at(mLists.place(key));
}

void Grid::setCellList(int row, int col, const std::string& key)
{
    (void)at(row, col);
    const auto list = key.empty() ? std::int16_t{-1} : static_cast<std::int16_t>(mLists.place(key));
    setInCell(row, col, &Cell::list, list);
}

std::string Grid::CellList(int row, int col) const
{
    const Cell& found = cell(row, col);
    return found.list < 0 ? std::string{} : mLists.key(static_cast<std::size_t>(found.list));
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
