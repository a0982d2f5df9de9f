#pragma once

#include "platform/grid_parts.h"
#include "platform/widget.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quill::platform {

class ImageList;

/// Rows and columns of cells. Rows may form a tree: a row can be the child of an earlier one, whose
/// children then follow it. Rows and columns count from 1; a number outside is a failure 9. What a
/// renderer needs is told by ranges, so 5,000 rows cost one change and one cell costs one cell.
class Grid : public Widget {
public:
    using Column      = GridColumn;
    using Cell        = GridCell;
    using CellKind    = GridCellKind;
    using Entry       = GridEntry;
    using EditRequest = GridEditRequest;

    explicit Grid(const Design& design = {});
    Grid(Widget& container, const Design& design = {});

    Property<bool> HeaderVisible{*this, true};
    /// Whether the user can edit at all; each cell has its own word besides.
    Property<bool> Editable{*this, true};
    /// The selection is of whole rows.
    Property<bool> RowMode{*this};
    Property<bool> MultiSelect{*this};
    /// While false, changes are held back; turning it true tells them all at once.
    Property<bool> Redraw{*this, true};

    /// The user has clicked on a cell: row and column.
    Event<int, int> Click;
    Event<int, int> RightClick;
    /// The mouse has come over a cell.
    Event<int, int> Hover;
    /// The user has moved the cursor to another cell. A cursor that the program moves is no event.
    Event<int, int>     CurCellChange;
    Event<EditRequest&> RequestEdit;
    /// The user is typing into a cell; what he typed so far is `EditText`.
    Event<int, int> TextEditChange;
    /// The user has changed what a cell holds; then `AfterCommitEdit`.
    Event<int, int> TextChange;
    Event<int, int> AfterCommitEdit;

    [[nodiscard]] const char* TypeName() const override { return "Grid"; }
    void                      visit(PropertyVisitor& visitor) override;
    void                      propertyChanged(const void* property) override;

    // --- Structure ---------------------------------------------------------------------------

    /// Takes away rows, columns and drop-down lists; the image list stays.
    void Clear();
    /// Answers the number of the new column. Rows that are there get an empty cell.
    int                         AddCol(Column column);
    void                        setColumnWidth(int col, std::int32_t width);
    void                        setColumnVisible(int col, bool visible);
    void                        setColumnText(int col, const std::string& text);
    [[nodiscard]] const Column& column(int col) const;
    [[nodiscard]] int           ColCount() const noexcept;

    /// Adds a row behind the last descendant of `parent`, or at the end for 0, and answers its
    /// number.
    int AddRow(int parent = 0);
    /// Adds rows without a parent at the end, or cuts the last ones off. Less than 0 is a
    /// failure 5.
    void              setRowCount(int count);
    [[nodiscard]] int RowCount() const noexcept;
    /// The row's parent, 0 on the top level.
    [[nodiscard]] int  RowParent(int row) const;
    [[nodiscard]] bool RowHasChildren(int row) const;
    [[nodiscard]] bool RowVisible(int row) const;
    void               setRowVisible(int row, bool visible);
    /// Whether the children of a row are to be seen; they are until somebody folds them in.
    [[nodiscard]] bool RowExpanded(int row) const;
    void               setRowExpanded(int row, bool expanded);
    /// What a person who cannot see the icons is told about a row.
    [[nodiscard]] const std::string& RowDescription(int row) const;
    void                             setRowDescription(int row, std::string text);

    // --- Cells -------------------------------------------------------------------------------

    [[nodiscard]] const Cell& cell(int row, int col) const;
    void                      setCellText(int row, int col, const std::string& text);
    void                      setCellValue(int row, int col, std::optional<std::int32_t> value);
    void                      setCellBackColor(int row, int col, Color color);
    void                      setCellEditable(int row, int col, bool editable);
    void                      setCellKind(int row, int col, CellKind kind);

    /// Where icons come from. The list must outlive its use; nothing takes it away.
    void                           setImageList(const ImageList* images);
    [[nodiscard]] const ImageList* imageList() const noexcept { return mImages; }
    /// The icon by its key; an empty key takes it away. A key that the image list does not have,
    /// and any key while there is no list, is a failure 5, and the old icon stays.
    void                      setCellIcon(int row, int col, const std::string& key);
    [[nodiscard]] std::string CellIcon(int row, int col) const;

    /// Makes an empty drop-down list; failure 5 if there is one of this key.
    void AddCombo(const std::string& key);
    /// Empties the list of this key, which is made if it is missing.
    void ClearCombo(const std::string& key);
    /// Failure 5 for an unknown key, here and below.
    void                                    AddComboItem(const std::string& key, Entry entry);
    [[nodiscard]] bool                      hasCombo(const std::string& key) const;
    [[nodiscard]] const std::vector<Entry>& Combo(const std::string& key) const;
    /// Attaches a list to a cell; an empty key takes it away.
    void                      setCellList(int row, int col, const std::string& key);
    [[nodiscard]] std::string CellList(int row, int col) const;

    // --- Selection ---------------------------------------------------------------------------

    /// The cursor, 0 for none.
    [[nodiscard]] int CurRow() const noexcept { return mCurRow; }
    [[nodiscard]] int CurCol() const noexcept { return mCurCol; }
    /// Program's door. 0 and 0 for none.
    void setCurCell(int row, int col);
    /// In ascending order.
    [[nodiscard]] const std::vector<int>& SelectedRows() const noexcept { return mSelected; }
    void                                  setSelectedRows(std::vector<int> rows);

    // --- User's door. A cell that is not there, or whose row or column is hidden, refuses. -------

    /// The cursor comes here, a check cell that can be edited changes, then `Click`. The focus
    /// comes along.
    UserDoor clickCell(int row, int col);
    UserDoor rightClickCell(int row, int col);
    UserDoor hoverCell(int row, int col);
    UserDoor moveTo(int row, int col);
    /// Exactly these rows; the cursor goes to the first and keeps its column.
    UserDoor select(const std::vector<int>& rows);
    /// Folds the children of a row in or out; a row without children refuses. A cursor that would
    /// be folded in comes to the row, unless its column is hidden.
    UserDoor expand(int row, bool expanded);

    /// Opens a cell for typing, with the text that it has: refused where it cannot be edited or
    /// where a `RequestEdit` handler says no. An edit of another cell is committed first.
    UserDoor beginEdit(int row, int col);
    /// Types into a cell, which is opened for it if need be.
    UserDoor typeCell(int row, int col, const std::string& text);
    /// What is typed becomes what the cell holds. A text that the cell's drop-down list does not
    /// have is dropped, and so is one for a check cell other than "0" and "1": refused. A cell in
    /// which nothing was typed is closed as it was.
    UserDoor commitEdit();
    void     cancelEdit();
    /// `typeCell` and `commitEdit`.
    UserDoor edit(int row, int col, const std::string& text);
    /// Chooses the entry of this value, or sets a check cell: refused for a value that neither has.
    /// Another cell takes the number as its text.
    UserDoor edit(int row, int col, std::int32_t value);
    /// The cell that is being edited and what was typed; no row for none.
    [[nodiscard]] int                EditRow() const noexcept { return mEditRow; }
    [[nodiscard]] int                EditCol() const noexcept { return mEditCol; }
    [[nodiscard]] const std::string& EditText() const noexcept { return mEditText; }

private:
    struct Row {
        std::string description;
        int         parent   = 0;
        int         children = 0;
        bool        visible  = true;
        bool        expanded = true;
    };

    [[nodiscard]] Row&       at(int row);
    [[nodiscard]] const Row& at(int row) const;
    [[nodiscard]] Cell&      at(int row, int col);
    [[nodiscard]] Column&    columnAt(int col);
    [[nodiscard]] bool       isReachable(int row, int col) const;
    [[nodiscard]] bool       canEdit(int row, int col) const;
    void                     commit(int row, int col, Cell fresh);
    void                     tell(const WidgetChange& change);
    /// Sets one thing in a cell or a row and tells it if it is another than before.
    template <class T>
    void setInCell(int row, int col, T Cell::*member, const T& value);
    template <class T>
    void setInRow(int row, T Row::*member, T value);
    void tellCell(int row, int col);

    std::vector<Column> mColumns;
    std::vector<Row>    mRows;
    std::vector<Cell>   mCells; ///< row by row, so that a walk over the rows is one over the memory
    GridLists           mLists;
    const ImageList*    mImages = nullptr;
    std::vector<int>    mSelected;
    std::string         mEditText;
    int                 mCurRow   = 0;
    int                 mCurCol   = 0;
    int                 mEditRow  = 0;
    int                 mEditCol  = 0;
    bool                mTyped    = false;
    bool                mHeldBack = false;
};

} // namespace quill::platform
