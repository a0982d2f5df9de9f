#pragma once

#include "platform/widget.h"

namespace quill::platform {

struct ColumnHeader {
    std::string  Text  = {};
    std::string  Tag   = {};
    std::int32_t Width = 0; ///< twips
};

struct ListItem {
    std::string              Text        = {};
    std::vector<std::string> SubItems    = {};
    std::string              Key         = {};
    std::string              Tag         = {};
    bool                     Checked     = false;
    bool                     Selected    = false;
    std::string              ToolTipText = {};
};

/// A list of rows with columns, check marks and a selection. Rows count from 1, as do columns; a
/// number outside is a failure 9.
class ListView : public Widget {
public:
    explicit ListView(const Design& design = {});
    ListView(Widget& container, const Design& design = {});

    Property<bool> CheckBoxes{*this};
    Property<bool> MultiSelect{*this};
    /// The user has checked or unchecked this row.
    Event<int> ItemCheck;
    /// The user has selected rows; the argument is the current one, 0 for none.
    Event<int> ItemClick;

    [[nodiscard]] const char* TypeName() const override { return "ListView"; }
    void                      visit(PropertyVisitor& visitor) override;

    [[nodiscard]] const std::vector<ColumnHeader>& ColumnHeaders() const noexcept
    {
        return mHeaders;
    }
    void setColumnHeaders(std::vector<ColumnHeader> headers);
    void setColumnText(int column, const std::string& text);
    void setColumnWidth(int column, std::int32_t twips);

    [[nodiscard]] const std::vector<ListItem>& ListItems() const noexcept { return mItems; }
    [[nodiscard]] int                          Count() const noexcept;
    [[nodiscard]] const ListItem&              Item(int row) const;
    /// Changes a row: `change` is given the row and may do with it what it likes.
    template <class F>
    void edit(int row, F&& change)
    {
        change(at(row));
        notify({WidgetChange::What::rowsChanged, nullptr, row - 1, row - 1});
    }
    void Add(ListItem item);
    /// Takes a row away; the rows behind it move up.
    void Remove(int row);
    void Clear();
    /// Replaces all rows at once: one change, whatever the number.
    void setItems(std::vector<ListItem> items);
    /// Program's door.
    void setChecked(int row, bool checked);

    /// The current row, 0 for none.
    [[nodiscard]] int SelectedItem() const noexcept { return mCurrent; }
    void              setSelectedItem(int row);
    /// The first row that is to be seen, 0 for none.
    [[nodiscard]] int FirstVisible() const noexcept { return mFirstVisible; }
    void              setFirstVisible(int row);
    /// Asks for this row to be seen. One above the first visible becomes that; for one below, a
    /// renderer scrolls as far as it must.
    void EnsureVisible(int row);
    /// The row that was asked for last, 0 for none; the first visible row holds where it is newer.
    [[nodiscard]] int EnsuredVisible() const noexcept { return mEnsured; }

    /// User's door.
    UserDoor check(int row, bool checked);
    /// User's door: exactly these rows, the first one is the current.
    UserDoor select(const std::vector<int>& rows);

private:
    [[nodiscard]] ListItem& at(int row);

    std::vector<ColumnHeader> mHeaders;
    std::vector<ListItem>     mItems;
    int                       mCurrent      = 0;
    int                       mFirstVisible = 0;
    int                       mEnsured      = 0;
};

} // namespace quill::platform
