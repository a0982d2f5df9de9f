#include "platform/list_view.h"

#include "platform/failure.h"

#include <algorithm>
#include <utility>

namespace quill::platform {

ListView::ListView(const Design& design) : Widget(design)
{
    BackColor = kWindowBackground;
}

ListView::ListView(Widget& container, const Design& design) : Widget(container, design)
{
    BackColor = kWindowBackground;
}

void ListView::visit(PropertyVisitor& visitor)
{
    Widget::visit(visitor);
    visitor.visit("CheckBoxes", CheckBoxes);
    visitor.visit("MultiSelect", MultiSelect);
    visitor.visit(
        "SelectedItem", [this] { return PropertyValue{std::int32_t{mCurrent}}; },
        [this](const PropertyValue& value) { setSelectedItem(std::get<std::int32_t>(value)); });
    visitor.visit(
        "FirstVisible", [this] { return PropertyValue{std::int32_t{mFirstVisible}}; },
        [this](const PropertyValue& value) { setFirstVisible(std::get<std::int32_t>(value)); });
}

ListItem& ListView::at(int row)
{
    if (row < 1 || row > Count()) {
        throw failure(kSubscriptOutOfRange);
    }
    return mItems[static_cast<std::size_t>(row) - 1];
}

const ListItem& ListView::Item(int row) const
{
    return const_cast<ListView*>(this)->at(row);
}

int ListView::Count() const noexcept
{
    return static_cast<int>(mItems.size());
}

void ListView::setColumnHeaders(std::vector<ColumnHeader> headers)
{
    mHeaders = std::move(headers);
    notify({WidgetChange::What::reset});
}

void ListView::setColumnText(int column, const std::string& text)
{
    if (column < 1 || column > static_cast<int>(mHeaders.size())) {
        throw failure(kSubscriptOutOfRange);
    }
    mHeaders[static_cast<std::size_t>(column) - 1].Text = text;
    notify({});
}

void ListView::setColumnWidth(int column, std::int32_t twips)
{
    if (column < 1 || column > static_cast<int>(mHeaders.size())) {
        throw failure(kSubscriptOutOfRange);
    }
    mHeaders[static_cast<std::size_t>(column) - 1].Width = twips;
    notify({});
}

void ListView::Add(ListItem item)
{
    mItems.push_back(std::move(item));
    mFirstVisible = std::max(mFirstVisible, 1);
    notify({WidgetChange::What::rowsInserted, nullptr, Count() - 1, Count() - 1});
}

void ListView::Remove(int row)
{
    (void)at(row);
    mItems.erase(mItems.begin() + (row - 1));
    const auto moveUp = [&](int& other) { other -= other > row || other > Count() ? 1 : 0; };
    if (mCurrent == row) {
        mCurrent = 0;
    }
    moveUp(mCurrent);
    moveUp(mFirstVisible);
    moveUp(mEnsured);
    notify({WidgetChange::What::rowsRemoved, nullptr, row - 1, row - 1});
}

void ListView::Clear()
{
    setItems({});
}

void ListView::setItems(std::vector<ListItem> items)
{
    mItems        = std::move(items);
    mCurrent      = 0;
    mFirstVisible = mItems.empty() ? 0 : 1;
    mEnsured      = 0;
    notify({WidgetChange::What::reset});
}

void ListView::setChecked(int row, bool checked)
{
    if (at(row).Checked != checked) {
        edit(row, [&](ListItem& item) { item.Checked = checked; });
    }
}

void ListView::setSelectedItem(int row)
{
    if (row != 0) {
        (void)at(row);
    }
    for (auto& item : mItems) {
        item.Selected = false;
    }
    mCurrent = row;
    if (row != 0) {
        at(row).Selected = true;
    }
    notify({});
}

void ListView::setFirstVisible(int row)
{
    if (row != 0) {
        (void)at(row);
    }
    // Who shows the list has scrolled on for a row below the first visible one.
    const bool scrolled = std::exchange(mEnsured, 0) != 0;
    if (row != mFirstVisible || scrolled) {
        mFirstVisible = row;
        notify({});
    }
}

void ListView::EnsureVisible(int row)
{
    (void)at(row);
    mEnsured      = row;
    mFirstVisible = std::min(mFirstVisible, row);
    notify({});
}

UserDoor ListView::check(int row, bool checked)
{
    if (!acceptsUser() || !CheckBoxes || row < 1 || row > Count()) {
        return UserDoor::refused;
    }
    if (Item(row).Checked != checked) {
        setChecked(row, checked);
        ItemCheck.raise(row);
    }
    return UserDoor::done;
}

UserDoor ListView::select(const std::vector<int>& rows)
{
    if (!acceptsUser() || (rows.size() > 1 && !MultiSelect)) {
        return UserDoor::refused;
    }
    for (const int row : rows) {
        if (row < 1 || row > Count()) {
            return UserDoor::refused;
        }
    }
    setSelectedItem(rows.empty() ? 0 : rows.front());
    for (const int row : rows) {
        at(row).Selected = true;
    }
    notify({});
    ItemClick.raise(mCurrent);
    return UserDoor::done;
}

} // namespace quill::platform
