#pragma once

#include "platform/grid.h"
#include "support/grid_events.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quill::platform {

/// What a renderer is told, as words: "changed 2-3 col 1".
class Told {
public:
    explicit Told(Widget& widget)
        : mSubscription(widget.Changed.subscribe(
              [this](const WidgetChange& change) { lines.push_back(line(change)); }))
    {
    }
    std::vector<std::string> lines;

private:
    static std::string line(const WidgetChange& change)
    {
        using What              = WidgetChange::What;
        const std::string range = std::to_string(change.first) + "-" + std::to_string(change.last);
        switch (change.what) {
        case What::rowsChanged:
            return "changed " + range +
                   (change.column < 0 ? "" : " col " + std::to_string(change.column));
        case What::rowsInserted: return "inserted " + range;
        case What::rowsRemoved: return "removed " + range;
        case What::reset: return "reset";
        default: return "property";
        }
    }
    Subscription mSubscription;
};

/// A form with a grid of three columns and five rows: 1, 2 under 1, 3 under 1, 4, 5.
class AGrid : public ::testing::Test {
protected:
    AGrid()
    {
        for (const char* key : {"a", "b", "c"}) {
            grid.AddCol({.Key = key, .Text = key, .Width = 50});
        }
        grid.AddRow();
        grid.AddRow(1);
        grid.AddRow(1);
        grid.AddRow();
        grid.AddRow();
        for (int row = 1; row <= 5; ++row) {
            grid.setCellText(row, 1, "row " + std::to_string(row));
        }
    }

    [[nodiscard]] std::vector<int> parents() const
    {
        std::vector<int> all;
        for (int row = 1; row <= grid.RowCount(); ++row) {
            all.push_back(grid.RowParent(row));
        }
        return all;
    }

    [[nodiscard]] std::vector<std::string> texts() const
    {
        std::vector<std::string> all;
        for (int row = 1; row <= grid.RowCount(); ++row) {
            all.push_back(grid.cell(row, 1).Text);
        }
        return all;
    }

    Control form{{.Name = "form", .Width = 5000, .Height = 5000}};
    Grid    grid{form, {.Name = "scg", .Width = 4000, .Height = 3000}};
};

/// The same with somebody who listens to its user.
class AGridInUse : public AGrid {
    quill::test::GridEvents mEvents{grid};

protected:
    std::vector<std::string>& heard  = mEvents.heard;
    bool&                     barred = mEvents.barred;
};

} // namespace quill::platform
