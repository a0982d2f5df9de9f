#pragma once

#include "platform/grid.h"

#include <QAbstractItemModel>
#include <QPalette>

#include <functional>
#include <memory>
#include <vector>

namespace quill::qt {

/// The rows of a grid as Qt's views read them: a tree where rows have children, else a table.
/// Changes come in as they happen, wait, and are told to the views in `tell`: rows by ranges, cells
/// cell by cell. While the grid holds its changes back, nothing is told.
class GridRows : public QAbstractItemModel {
    Q_OBJECT

public:
    /// `grid` answers the model, nothing after its end. `check` is what the user has checked
    /// without a mouse or a key, with row and column from 1.
    GridRows(std::function<const platform::Grid*()> grid, std::function<void(int, int, bool)> check,
             QObject* parent);

    void note(const platform::WidgetChange& change);
    void tell();
    /// The colours that the views are shown in.
    void setPalette(const QPalette& palette) { mPalette = palette; }

    /// The place of a cell, both from 1; an invalid one for a cell that the views do not know.
    [[nodiscard]] QModelIndex cell(int row, int col) const;
    /// The grid's number of a row, 0 for none.
    [[nodiscard]] static int rowOf(const QModelIndex& index);
    /// The cell that the views know by this index. Nothing without a grid or a valid index, and for
    /// a cell that has gone: between a change and the next turn views know of more than there is.
    [[nodiscard]] static const platform::Grid::Cell* cellOf(const platform::Grid* grid,
                                                            const QModelIndex&    index);
    /// Whether any row has a parent.
    [[nodiscard]] bool isTree() const noexcept { return mChildren > 0; }
    /// The rows that are new or that were told as wholes since the last call: they may be hidden or
    /// folded in another way than before.
    [[nodiscard]] std::vector<int> takeTouched();

    [[nodiscard]] QModelIndex   index(int row, int column,
                                      const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex   parent(const QModelIndex& index) const override;
    [[nodiscard]] int           rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int           columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant      data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant      headerData(int section, Qt::Orientation orientation,
                                           int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    /// A row as the views know it: its number and its place among the children of its parent.
    struct Node {
        int                row    = 0;
        int                place  = 0;
        Node*              parent = nullptr;
        std::vector<Node*> children;
    };
    /// Rows that came or went, with the parent that they had at that moment.
    struct Move {
        platform::WidgetChange change;
        int                    parent = 0;
    };
    /// What has changed in a row since it was told last: cells from `first` to `last`, or its
    /// state.
    struct Stain {
        int  first   = 0;
        int  last    = -1;
        bool touched = false;
    };

    [[nodiscard]] Node*            nodeOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex      indexOf(const Node& node, int column = 0) const;
    [[nodiscard]] std::vector<int> parents() const;
    [[nodiscard]] QVariant text(const QModelIndex& index, const platform::Grid::Cell& cell) const;
    [[nodiscard]] QVariant color(const platform::Grid::Cell& cell, int role) const;
    [[nodiscard]] QVariant description(const QModelIndex& index, const platform::Grid::Cell& cell,
                                       int role) const;

    void noteMove(const platform::WidgetChange& change);
    void stain(const platform::WidgetChange& change);
    void rebuild(const platform::Grid& grid);
    void append(Node& parent, int first, int count);
    void insert(const Move& move);
    void remove(const platform::WidgetChange& change);
    void tellStains();
    void tellTitles(const platform::Grid& grid);

    std::function<const platform::Grid*()> mGrid;
    std::function<void(int, int, bool)>    mCheck;
    QPalette                               mPalette;
    Node                                   mRoot;
    std::vector<std::unique_ptr<Node>>     mNodes; ///< by row
    std::vector<std::string>               mTitles;
    int                                    mColumns  = 1;
    int                                    mChildren = 0; ///< rows that have a parent
    bool                                   mReset    = true;
    std::vector<Move>                      mMoves;
    std::vector<Stain>                     mStains; ///< by row as the grid counts them now
    std::vector<int>                       mTouched;
};

} // namespace quill::qt
