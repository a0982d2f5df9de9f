#include "qt/row_changes.h"

#include <algorithm>

namespace quill::qt {

bool merge(platform::WidgetChange& last, const platform::WidgetChange& next)
{
    using What = platform::WidgetChange::What;
    if (last.what != next.what) {
        return false;
    }
    switch (next.what) {
    case What::rowsInserted:
        if (next.first != last.last + 1) {
            return false;
        }
        last.last = next.last;
        return true;
    case What::rowsRemoved:
        // The row above is taken away next, or the one that has moved up.
        if (next.last + 1 != last.first && next.first != last.first) {
            return false;
        }
        last.last += next.first == last.first ? next.last - next.first + 1 : 0;
        last.first = next.first;
        return true;
    case What::rowsChanged:
        if (next.first > last.last + 1 || next.last < last.first - 1) {
            return false;
        }
        last.first = std::min(last.first, next.first);
        last.last  = std::max(last.last, next.last);
        return true;
    default: return false;
    }
}

} // namespace quill::qt
