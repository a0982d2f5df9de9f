#pragma once

#include "platform/grid.h"

#include <string>
#include <vector>

namespace quill::test {

/// Listens to what the user does with a grid, in words: "click 2,1".
class GridEvents {
public:
    explicit GridEvents(platform::Grid& grid)
    {
        hear(grid.Click, "click");
        hear(grid.RightClick, "right");
        hear(grid.Hover, "hover");
        hear(grid.CurCellChange, "cursor");
        hear(grid.TextEditChange, "typing");
        hear(grid.TextChange, "changed");
        hear(grid.AfterCommitEdit, "committed");
        mHeld.push_back(grid.RequestEdit.subscribe([this](platform::Grid::EditRequest& request) {
            say("request", request.row, request.col);
            request.cancel = barred;
        }));
    }
    GridEvents(const GridEvents&)            = delete;
    GridEvents& operator=(const GridEvents&) = delete;

    std::vector<std::string> heard;
    bool                     barred = false; ///< the user is kept from editing

private:
    void say(const std::string& what, int row, int col)
    {
        heard.push_back(what + " " + std::to_string(row) + "," + std::to_string(col));
    }
    void hear(platform::Event<int, int>& event, const char* what)
    {
        mHeld.push_back(event.subscribe([this, what](int row, int col) { say(what, row, col); }));
    }

    std::vector<platform::Subscription> mHeld;
};

} // namespace quill::test
