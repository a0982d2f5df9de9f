#pragma once

#include "platform/list_view.h"

#include <QAbstractTableModel>

#include <functional>
#include <vector>

namespace quill::qt {

/// The rows of a list view as Qt's views read them. Changes come in as ranges, wait, and are told
/// to the views in `tell`, so that a thousand rows cost one repaint and one row costs one row.
class ListRows : public QAbstractTableModel {
    Q_OBJECT

public:
    /// `list` answers the model, nothing after its end. `check` is what the user has checked, with
    /// the row from 1.
    ListRows(std::function<const platform::ListView*()> list,
             std::function<void(int row, bool checked)> check, QObject* parent);

    void note(const platform::WidgetChange& change);
    void tell();

    [[nodiscard]] int           rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int           columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant      data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant      headerData(int section, Qt::Orientation orientation,
                                           int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    [[nodiscard]] const platform::ListItem* item(const QModelIndex& index) const;
    void                                    tell(const platform::WidgetChange& change);

    std::function<const platform::ListView*()> mList;
    std::function<void(int, bool)>             mCheck;
    std::vector<platform::WidgetChange>        mWaiting;
    int                                        mRows    = 0;
    int                                        mColumns = 1;
};

} // namespace quill::qt
