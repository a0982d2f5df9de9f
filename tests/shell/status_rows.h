#pragma once

#include "status/StatusTreeView.h"

#include <gtest/gtest.h>

#include <string>

namespace quill::shell::test {

/// The row of a condition by its name, not by what it is called in a language.
inline int rowOf(const StatusTreeView& view, const std::string& name)
{
    for (int row = 1; row <= view.scgStatusKey.RowCount(); ++row) {
        if (view.scgStatusKey.cell(row, 1).Text == name) {
            return row;
        }
    }
    ADD_FAILURE() << "no row of " << name;
    return 1;
}

/// The key of the image before a condition.
inline std::string iconOf(const StatusTreeView& view, const std::string& name)
{
    return view.scgStatus.CellIcon(rowOf(view, name), 1);
}

} // namespace quill::shell::test
