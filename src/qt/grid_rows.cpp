#include "qt/grid_rows.h"

#include "qt/colors.h"
#include "qt/images.h"
#include "qt/row_changes.h"
#include "qt/text.h"

#include <algorithm>
#include <utility>

namespace quill::qt {

using What = platform::WidgetChange::What;

GridRows::GridRows(std::function<const platform::Grid*()> grid,
                   std::function<void(int, int, bool)> check, QObject* parent)
    : QAbstractItemModel(parent), mGrid(std::move(grid)), mCheck(std::move(check))
{
}

// --- Changes -------------------------------------------------------------------------------------

void GridRows::note(const platform::WidgetChange& change)
{
    // A reset that waits shows everything anyway.
    if (mReset) {
        return;
    }
    switch (change.what) {
    case What::reset:
        mReset = true;
        mMoves.clear();
        break;
    case What::rowsInserted:
    case What::rowsRemoved: noteMove(change); break;
    case What::rowsChanged: stain(change); break;
    default: break;
    }
}

void GridRows::noteMove(const platform::WidgetChange& change)
{
    const platform::Grid* const grid = mGrid();
    Move                        move{change};
    const auto                  first = mStains.begin() + change.first;
    if (change.what == What::rowsInserted) {
        // Later changes may give the row another number, so its parent is asked for now.
        move.parent = grid != nullptr ? grid->RowParent(change.first + 1) : 0;
        const auto count =
            static_cast<std::size_t>(change.last) - static_cast<std::size_t>(change.first) + 1;
        mStains.insert(first, count, Stain{.touched = true});
        if (move.parent > 0) {
            mStains[static_cast<std::size_t>(move.parent) - 1].touched = true;
        }
    } else {
        mStains.erase(first, mStains.begin() + change.last + 1);
    }
    if (mMoves.empty() || mMoves.back().parent != move.parent ||
        !merge(mMoves.back().change, change)) {
        mMoves.push_back(move);
    }
}

void GridRows::stain(const platform::WidgetChange& change)
{
    const int last = std::min(change.last, static_cast<int>(mStains.size()) - 1);
    for (int row = change.first; row <= last; ++row) {
        Stain& stain = mStains[static_cast<std::size_t>(row)];
        if (change.column < 0) {
            stain = {0, mColumns - 1, true};
        } else if (stain.last < stain.first) {
            stain.first = stain.last = change.column;
        } else {
            stain.first = std::min(stain.first, change.column);
            stain.last  = std::max(stain.last, change.column);
        }
    }
}

void GridRows::tell()
{
    const platform::Grid* const grid = mGrid();
    if (grid == nullptr || !grid->Redraw) {
        return;
    }
    if (std::exchange(mReset, false)) {
        rebuild(*grid);
    }
    for (const Move& move : std::exchange(mMoves, {})) {
        if (move.change.what == What::rowsInserted) {
            insert(move);
        } else {
            remove(move.change);
        }
    }
    tellTitles(*grid);
    tellStains();
}

void GridRows::rebuild(const platform::Grid& grid)
{
    const int        columns = std::max(1, grid.ColCount());
    std::vector<int> wanted;
    for (int row = 1; row <= grid.RowCount(); ++row) {
        wanted.push_back(grid.RowParent(row));
    }
    Stain fresh{.touched = true};
    if (columns == mColumns && wanted == parents()) {
        // Changes that were held back rarely touch the shape: then the views keep their places.
        fresh.last = mColumns - 1;
    } else {
        beginResetModel();
        mColumns  = columns;
        mChildren = 0;
        mRoot.children.clear();
        mNodes.clear();
        for (const int parent : wanted) {
            append(parent == 0 ? mRoot : *mNodes[static_cast<std::size_t>(parent) - 1],
                   static_cast<int>(mNodes.size()), 1);
        }
        endResetModel();
    }
    mStains.assign(wanted.size(), fresh);
}

std::vector<int> GridRows::parents() const
{
    std::vector<int> all;
    for (const auto& node : mNodes) {
        all.push_back(node->parent->row);
    }
    return all;
}

/// Makes nodes behind the other children of a parent; `first` is the place of their first row.
void GridRows::append(Node& parent, int first, int count)
{
    std::vector<std::unique_ptr<Node>> fresh;
    for (int i = 0; i < count; ++i) {
        auto node    = std::make_unique<Node>();
        node->row    = first + i + 1;
        node->place  = static_cast<int>(parent.children.size());
        node->parent = &parent;
        parent.children.push_back(node.get());
        fresh.push_back(std::move(node));
    }
    mChildren += &parent == &mRoot ? 0 : count;
    const auto behind =
        mNodes.insert(mNodes.begin() + first, std::make_move_iterator(fresh.begin()),
                      std::make_move_iterator(fresh.end())) +
        count;
    for (auto node = behind; node != mNodes.end(); ++node) {
        (*node)->row += count;
    }
}

void GridRows::insert(const Move& move)
{
    Node& parent    = move.parent == 0 ? mRoot : *mNodes[static_cast<std::size_t>(move.parent) - 1];
    const int place = static_cast<int>(parent.children.size());
    const int count = move.change.last - move.change.first + 1;
    beginInsertRows(move.parent == 0 ? QModelIndex{} : indexOf(parent), place, place + count - 1);
    append(parent, move.change.first, count);
    endInsertRows();
}

void GridRows::remove(const platform::WidgetChange& change)
{
    // Rows are cut off at the end, children before their parent.
    while (static_cast<int>(mNodes.size()) > change.first) {
        Node& parent = *mNodes.back()->parent;
        auto  from   = mNodes.end() - 1;
        while (from - mNodes.begin() > change.first && (*(from - 1))->parent == &parent) {
            --from;
        }
        const int first = (*from)->place;
        beginRemoveRows(&parent == &mRoot ? QModelIndex{} : indexOf(parent), first,
                        mNodes.back()->place);
        const std::vector<std::unique_ptr<Node>> gone(std::make_move_iterator(from),
                                                      std::make_move_iterator(mNodes.end()));
        mNodes.erase(from, mNodes.end());
        parent.children.resize(static_cast<std::size_t>(first));
        mChildren -= &parent == &mRoot ? 0 : static_cast<int>(gone.size());
        endRemoveRows();
    }
}

void GridRows::tellTitles(const platform::Grid& grid)
{
    std::vector<std::string> titles;
    for (int col = 1; col <= grid.ColCount(); ++col) {
        titles.push_back(grid.column(col).Text);
    }
    if (titles != mTitles) {
        mTitles = std::move(titles);
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, mColumns - 1);
    }
}

void GridRows::tellStains()
{
    const std::size_t count = std::min(mStains.size(), mNodes.size());
    for (std::size_t row = 0; row < count;) {
        const Stain stain = mStains[row];
        if (stain.touched) {
            mTouched.push_back(static_cast<int>(row) + 1);
        }
        mStains[row]            = {};
        const Node&       node  = *mNodes[row];
        const std::size_t first = row++;
        if (stain.last < stain.first) {
            continue;
        }
        // Neighbours that have changed alike are one range.
        for (; row < count; ++row) {
            Stain&      next  = mStains[row];
            const Node& below = *mNodes[row];
            if (next.first != stain.first || next.last != stain.last ||
                below.parent != node.parent ||
                below.place != node.place + static_cast<int>(row - first)) {
                break;
            }
            if (next.touched) {
                mTouched.push_back(static_cast<int>(row) + 1);
            }
            next = {};
        }
        Q_EMIT dataChanged(indexOf(node, stain.first), indexOf(*mNodes[row - 1], stain.last));
    }
}

std::vector<int> GridRows::takeTouched()
{
    return std::exchange(mTouched, {});
}

// --- Places --------------------------------------------------------------------------------------

GridRows::Node* GridRows::nodeOf(const QModelIndex& index) const
{
    return static_cast<Node*>(index.internalPointer());
}

QModelIndex GridRows::indexOf(const Node& node, int column) const
{
    return createIndex(node.place, column, &node);
}

QModelIndex GridRows::cell(int row, int col) const
{
    return row >= 1 && row <= static_cast<int>(mNodes.size()) && col >= 1 && col <= mColumns
               ? indexOf(*mNodes[static_cast<std::size_t>(row) - 1], col - 1)
               : QModelIndex{};
}

int GridRows::rowOf(const QModelIndex& index)
{
    return index.isValid() ? static_cast<const Node*>(index.internalPointer())->row : 0;
}

QModelIndex GridRows::index(int row, int column, const QModelIndex& parent) const
{
    const Node& holder = parent.isValid() ? *nodeOf(parent) : mRoot;
    return parent.column() <= 0 && row >= 0 && row < static_cast<int>(holder.children.size()) &&
                   column >= 0 && column < mColumns
               ? indexOf(*holder.children[static_cast<std::size_t>(row)], column)
               : QModelIndex{};
}

QModelIndex GridRows::parent(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return {};
    }
    const Node* const holder = nodeOf(index)->parent;
    return holder == &mRoot ? QModelIndex{} : indexOf(*holder);
}

int GridRows::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0) {
        return 0;
    }
    const Node& holder = parent.isValid() ? *nodeOf(parent) : mRoot;
    return static_cast<int>(holder.children.size());
}

int GridRows::columnCount(const QModelIndex&) const
{
    return mColumns;
}

// --- Contents ------------------------------------------------------------------------------------

const platform::Grid::Cell* GridRows::cellOf(const platform::Grid* grid, const QModelIndex& index)
{
    return grid != nullptr && index.isValid() && rowOf(index) <= grid->RowCount() &&
                   index.column() < grid->ColCount()
               ? &grid->cell(rowOf(index), index.column() + 1)
               : nullptr;
}

QVariant GridRows::text(const QModelIndex& index, const platform::Grid::Cell& cell) const
{
    const platform::Grid& grid = *mGrid();
    const bool edited = rowOf(index) == grid.EditRow() && index.column() + 1 == grid.EditCol();
    return toQt(edited ? grid.EditText() : cell.Text);
}

QVariant GridRows::color(const platform::Grid::Cell& cell, int role) const
{
    if (cell.BackColor == platform::kWindowBackground) {
        return {};
    }
    const QColor ground = shownColor(cell.BackColor, QPalette::Base, mPalette);
    if (role == Qt::BackgroundRole) {
        return ground;
    }
    const QColor text = mPalette.color(QPalette::Active, QPalette::Text);
    return contrast(text, ground) >= kReadableContrast ? QVariant{} : readableColor(text, ground);
}

QVariant GridRows::description(const QModelIndex& index, const platform::Grid::Cell& cell,
                               int role) const
{
    const platform::Grid& grid = *mGrid();
    const std::string&    told = grid.RowDescription(rowOf(index));
    if (told.empty()) {
        return text(index, cell);
    }
    // A reader goes along the row, and the row is described once, at its beginning.
    int first = 1;
    while (first < grid.ColCount() && !grid.column(first).Visible) {
        ++first;
    }
    return role == Qt::AccessibleDescriptionRole || index.column() + 1 == first ? toQt(told)
                                                                                : text(index, cell);
}

QVariant GridRows::data(const QModelIndex& index, int role) const
{
    const platform::Grid::Cell* const cell = cellOf(mGrid(), index);
    if (cell == nullptr) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return text(index, *cell);
    case Qt::DecorationRole: {
        const std::string key  = mGrid()->CellIcon(rowOf(index), index.column() + 1);
        const QIcon       icon = key.empty() ? QIcon{} : Images::find(key);
        return icon.isNull() ? QVariant{} : icon;
    }
    case Qt::CheckStateRole:
        if (cell->kind == platform::Grid::CellKind::check) {
            return cell->Value.value_or(0) != 0 ? Qt::Checked : Qt::Unchecked;
        }
        return {};
    case Qt::BackgroundRole:
    case Qt::ForegroundRole: return color(*cell, role);
    case Qt::AccessibleTextRole:
    case Qt::AccessibleDescriptionRole: return description(index, *cell, role);
    default: return {};
    }
}

QVariant GridRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    const platform::Grid* const grid = mGrid();
    if (grid == nullptr || orientation != Qt::Horizontal || section >= grid->ColCount()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return toQt(grid->column(section + 1).Text);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
    default: return {};
    }
}

Qt::ItemFlags GridRows::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (const platform::Grid::Cell* const cell = cellOf(mGrid(), index)) {
        const bool check = cell->kind == platform::Grid::CellKind::check;
        if (mGrid()->Editable && cell->Editable) {
            flags |= check ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
        }
    }
    return flags;
}

bool GridRows::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || cellOf(mGrid(), index) == nullptr) {
        return false;
    }
    const auto wanted = value.value<Qt::CheckState>();
    mCheck(rowOf(index), index.column() + 1, wanted == Qt::Checked);
    return index.data(Qt::CheckStateRole).value<Qt::CheckState>() == wanted;
}

} // namespace quill::qt
