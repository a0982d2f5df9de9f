#pragma once

#include "platform/property.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What a `Grid` is made of.
namespace quill::platform {

struct GridColumn {
    std::string  Key     = {};
    std::string  Text    = {}; ///< of the header
    std::int32_t Width   = 0;  ///< pixels at 96 dpi
    bool         Visible = true;
};

enum class GridCellKind : std::uint8_t { text, check };

struct GridCell {
    std::string                 Text;
    std::optional<std::int32_t> Value; ///< of a check cell 0 or 1, of a drop-down its entry's
    Color                       BackColor = kWindowBackground;
    std::int16_t                icon      = -1; ///< place in the image list, -1 for none
    std::int16_t                list      = -1; ///< place among the drop-down lists, -1 for none
    GridCellKind                kind      = GridCellKind::text;
    bool                        Editable  = true;
};

/// An entry of a drop-down list.
struct GridEntry {
    std::string  Text;
    std::int32_t Value = 0;
};

/// The user is about to edit a cell; a handler that sets `cancel` keeps him from it.
struct GridEditRequest {
    int  row    = 0;
    int  col    = 0;
    bool cancel = false;
};

/// The drop-down lists of a grid by key. Places, by which the cells know them, last until `clear`.
class GridLists {
public:
    using Entries = std::vector<GridEntry>;

    void                      clear() { mLists.clear(); }
    [[nodiscard]] std::size_t size() const noexcept { return mLists.size(); }
    /// The place of a key, `size()` for none.
    [[nodiscard]] std::size_t find(const std::string& key) const;
    /// Makes an empty list; failure 5 if there is one of this key.
    void add(const std::string& key);
    /// Failure 5 for an unknown key.
    [[nodiscard]] std::size_t        place(const std::string& key) const;
    [[nodiscard]] const std::string& key(std::size_t place) const { return mLists[place].first; }
    [[nodiscard]] Entries&           at(std::size_t place) { return mLists[place].second; }
    [[nodiscard]] const Entries&     at(std::size_t place) const { return mLists[place].second; }

private:
    std::vector<std::pair<std::string, Entries>> mLists;
};

} // namespace quill::platform
