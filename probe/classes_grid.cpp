#include "platform/grid.h"
#include "platform/pictures.h"
#include "probe/binding.h"

namespace quill::probe {

using platform::Grid;
using platform::ImageList;

namespace {

/// Most cells that lines give a grid: a dump shows them all.
constexpr std::int64_t kMaxCells = 200'000;

void expectRoom(std::int64_t rows, std::int64_t columns)
{
    if (rows * std::max<std::int64_t>(columns, 1) > kMaxCells) {
        throw platform::failure(platform::kOverflow);
    }
}

// --- What a grid shows -------------------------------------------------------------------------

Reply cellOf(const Grid& grid, int row, int col)
{
    const Grid::Cell& cell = grid.cell(row, col);
    Reply             reply;
    reply["Text"]      = cell.Text;
    reply["Value"]     = cell.Value ? Reply(*cell.Value) : Reply{};
    reply["Icon"]      = grid.CellIcon(row, col);
    reply["BackColor"] = cell.BackColor;
    reply["Editable"]  = cell.Editable;
    reply["List"]      = grid.CellList(row, col);
    return reply;
}

Reply cells(const Grid& grid)
{
    Reply rows = Reply::array();
    for (int row = 1; row <= grid.RowCount(); ++row) {
        Reply list = Reply::array();
        for (int col = 1; col <= grid.ColCount(); ++col) {
            list.push_back(cellOf(grid, row, col));
        }
        rows.push_back(std::move(list));
    }
    return rows;
}

Reply rows(const Grid& grid)
{
    Reply list = Reply::array();
    for (int row = 1; row <= grid.RowCount(); ++row) {
        Reply reply;
        reply["Visible"]     = grid.RowVisible(row);
        reply["Parent"]      = grid.RowParent(row);
        reply["HasChildren"] = grid.RowHasChildren(row);
        list.push_back(std::move(reply));
    }
    return list;
}

Reply columnOf(const Grid& grid, int col)
{
    const Grid::Column& column = grid.column(col);
    Reply               reply;
    reply["Width"]   = column.Width;
    reply["Key"]     = column.Key;
    reply["Visible"] = column.Visible;
    return reply;
}

Reply columns(const Grid& grid)
{
    Reply list = Reply::array();
    for (int col = 1; col <= grid.ColCount(); ++col) {
        list.push_back(columnOf(grid, col));
        list.back()["Text"] = grid.column(col).Text;
    }
    return list;
}

Reply comboOf(const Grid& grid, const std::string& key)
{
    Reply list = Reply::array();
    for (const Grid::Entry& entry : grid.Combo(key)) {
        Reply reply;
        reply["Text"]  = entry.Text;
        reply["Value"] = entry.Value;
        list.push_back(std::move(reply));
    }
    return list;
}

// --- What a line can build ---------------------------------------------------------------------

int addColumn(Grid& grid, const Json& column)
{
    expectRoom(grid.RowCount(), grid.ColCount() + 1);
    const Json* width = find(asObject(column), "Width");
    return grid.AddCol({.Key     = textOr(column, "Key", ""),
                        .Text    = textOr(column, "Text", ""),
                        .Width   = width != nullptr ? asInt32(*width) : 0,
                        .Visible = boolOr(column, "Visible", true)});
}

int addRow(Grid& grid, int parent)
{
    expectRoom(grid.RowCount() + 1, grid.ColCount());
    return grid.AddRow(parent);
}

void setRowCount(Grid& grid, std::int32_t count)
{
    expectRoom(count, grid.ColCount());
    grid.setRowCount(count);
}

void setCellKind(Grid& grid, int row, int col, const std::string& kind)
{
    if (kind != "text" && kind != "check") {
        throw invalid("a cell is \"text\" or \"check\"");
    }
    grid.setCellKind(row, col, kind == "check" ? Grid::CellKind::check : Grid::CellKind::text);
}

void addComboItem(Grid& grid, const std::string& key, const std::string& text, std::int32_t value)
{
    grid.AddComboItem(key, {text, value});
}

void setImageList(Grid& grid, const ImageList* images)
{
    grid.setImageList(images);
}

} // namespace

void registerGrid(std::vector<ClassEntry>& classes)
{
    Class<Grid>{"Grid"}
        .creatable()
        .property("RowCount", &Grid::RowCount, setRowCount)
        .property("Cells", cells)
        .property("Rows", rows)
        .property("Columns", columns)
        .property("SelectedRows", &Grid::SelectedRows, &Grid::setSelectedRows)
        .property("EditRow", &Grid::EditRow)
        .property("EditCol", &Grid::EditCol)
        .property("EditText", &Grid::EditText)
        .state("Cell", cellOf)
        .state("Column", columnOf)
        .state("Combo", comboOf)
        .state("RowExpanded", &Grid::RowExpanded)
        .state("RowDescription", &Grid::RowDescription)
        .method("Clear", &Grid::Clear)
        .method("AddCol", addColumn)
        .method("AddRow", addRow, {.defaults = {0}, .outs = {}})
        .method("setColumnWidth", &Grid::setColumnWidth)
        .method("setColumnVisible", &Grid::setColumnVisible)
        .method("setColumnText", &Grid::setColumnText)
        .method("setRowVisible", &Grid::setRowVisible)
        .method("setRowExpanded", &Grid::setRowExpanded)
        .method("setCellText", &Grid::setCellText)
        .method("setCellValue", &Grid::setCellValue)
        .method("setCellBackColor", &Grid::setCellBackColor)
        .method("setCellEditable", &Grid::setCellEditable)
        .method("setCellKind", setCellKind)
        .method("setImageList", setImageList)
        .method("setCellIcon", &Grid::setCellIcon)
        .method("AddCombo", &Grid::AddCombo)
        .method("ClearCombo", &Grid::ClearCombo)
        .method("AddComboItem", addComboItem)
        .method("setCellList", &Grid::setCellList)
        .method("setCurCell", &Grid::setCurCell)
        .into(classes);
}

} // namespace quill::probe
