#include "qt/list_rows.h"

#include "qt/row_changes.h"
#include "qt/text.h"

#include <algorithm>
#include <utility>

namespace quill::qt {

using What = platform::WidgetChange::What;

ListRows::ListRows(std::function<const platform::ListView*()> list,
                   std::function<void(int, bool)> check, QObject* parent)
    : QAbstractTableModel(parent), mList(std::move(list)), mCheck(std::move(check))
{
    mWaiting.push_back({What::reset});
}

void ListRows::note(const platform::WidgetChange& change)
{
    switch (change.what) {
    case What::reset: mWaiting.assign(1, change); break;
    case What::rowsChanged:
    case What::rowsInserted:
    case What::rowsRemoved:
        // A reset that waits shows everything anyway.
        if ((mWaiting.empty() || mWaiting.back().what != What::reset) &&
            (mWaiting.empty() || !merge(mWaiting.back(), change))) {
            mWaiting.push_back(change);
        }
        break;
    default: break;
    }
}

void ListRows::tell()
{
    for (const auto& change : std::exchange(mWaiting, {})) {
        tell(change);
    }
}

void ListRows::tell(const platform::WidgetChange& change)
{
    const platform::ListView* const list = mList();
    if (list == nullptr) {
        return;
    }
    const int count = change.last - change.first + 1;
    switch (change.what) {
    case What::rowsChanged:
        if (change.first < mRows) {
            Q_EMIT dataChanged(index(change.first, 0),
                               index(std::min(change.last, mRows - 1), mColumns - 1));
        }
        break;
    case What::rowsInserted:
        beginInsertRows({}, change.first, change.last);
        mRows += count;
        endInsertRows();
        break;
    case What::rowsRemoved:
        beginRemoveRows({}, change.first, change.last);
        mRows -= count;
        endRemoveRows();
        break;
    default:
        beginResetModel();
        mRows    = list->Count();
        mColumns = std::max(1, static_cast<int>(list->ColumnHeaders().size()));
        endResetModel();
        break;
    }
}

int ListRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : mRows;
}

int ListRows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : mColumns;
}

const platform::ListItem* ListRows::item(const QModelIndex& index) const
{
    // Between a change and the next turn there may be fewer rows than the views know of.
    const platform::ListView* const list = mList();
    const auto                      row  = static_cast<std::size_t>(index.row());
    return list != nullptr && index.isValid() && row < list->ListItems().size()
               ? &list->ListItems()[row]
               : nullptr;
}

QVariant ListRows::data(const QModelIndex& index, int role) const
{
    const platform::ListItem* const row = item(index);
    if (row == nullptr) {
        return {};
    }
    const auto column = static_cast<std::size_t>(index.column());
    const auto text   = [&] {
        if (column == 0) {
            return toQt(row->Text);
        }
        return column <= row->SubItems.size() ? toQt(row->SubItems[column - 1]) : QString{};
    };
    switch (role) {
    case Qt::DisplayRole: return text();
    case Qt::ToolTipRole: return toQt(row->ToolTipText);
    case Qt::CheckStateRole:
        if (column == 0 && mList()->CheckBoxes) {
            return row->Checked ? Qt::Checked : Qt::Unchecked;
        }
        return {};
    default: return {};
    }
}

QVariant ListRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    const platform::ListView* const list   = mList();
    const auto                      column = static_cast<std::size_t>(section);
    if (list == nullptr || orientation != Qt::Horizontal ||
        column >= list->ColumnHeaders().size()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return toQt(list->ColumnHeaders()[column].Text);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
    default: return {};
    }
}

Qt::ItemFlags ListRows::flags(const QModelIndex& index) const
{
    Qt::ItemFlags     flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    const auto* const list  = mList();
    if (index.column() == 0 && list != nullptr && list->CheckBoxes) {
        flags |= Qt::ItemIsUserCheckable;
    }
    return flags;
}

bool ListRows::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || item(index) == nullptr) {
        return false;
    }
    const bool wanted = value.value<Qt::CheckState>() == Qt::Checked;
    mCheck(index.row() + 1, wanted);
    const auto* const row = item(index);
    return row != nullptr && row->Checked == wanted;
}

} // namespace quill::qt
