#include "qt/geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quill::qt {

namespace {

/// Least distance that a growing text keeps from its neighbours.
constexpr int kGap = 4;

bool onOneRow(const QRect& a, const QRect& b)
{
    return a.top() <= b.bottom() && b.top() <= a.bottom();
}

/// The far edge, in pixels, of what begins at `start`: two edges that meet in twips meet on screen.
int edge(std::int32_t start, std::int32_t length)
{
    return static_cast<int>(
        std::lround((static_cast<double>(start) + static_cast<double>(length)) / kTwipsPerPixel));
}

} // namespace

int toPixels(std::int32_t twips) noexcept
{
    return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
}

std::int32_t toTwips(int pixels) noexcept
{
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(std::int64_t{pixels} * kTwipsPerPixel,
                                                              Limits::min(), Limits::max()));
}

QRect designRect(const platform::Widget& widget)
{
    const int left = toPixels(widget.Left);
    const int top  = toPixels(widget.Top);
    return {left, top, std::max(0, edge(widget.Left, widget.Width) - left),
            std::max(0, edge(widget.Top, widget.Height) - top)};
}

QRect seat(const QRect& design, const Fit& fit)
{
    QRect place = design;
    if (place.width() <= 0) {
        place.setWidth(fit.natural.width());
    }
    if (place.height() <= 0) {
        place.setHeight(fit.usualHeight > 0 ? toPixels(fit.usualHeight) : fit.natural.height());
    }
    const int missing = fit.natural.height() - place.height();
    if (fit.needsHeight && missing > 0) {
        place.adjust(0, -(missing / 2), 0, missing - missing / 2);
    }
    return place;
}

QRect grown(const QRect& place, int width, const std::vector<QRect>& neighbours, const QRect& area)
{
    int missing = width - place.width();
    if (missing <= 0) {
        return place;
    }
    int right = area.isEmpty() ? missing : std::max(0, area.right() - kGap - place.right());
    int left  = area.isEmpty() ? 0 : std::max(0, place.left() - area.left() - kGap);
    for (const QRect& other : neighbours) {
        if (!onOneRow(place, other)) {
            continue;
        }
        if (other.left() > place.right()) {
            right = std::min(right, std::max(0, other.left() - kGap - 1 - place.right()));
        } else if (other.right() < place.left()) {
            left = std::min(left, std::max(0, place.left() - other.right() - 1 - kGap));
        }
    }
    QRect     result  = place;
    const int toRight = std::min(missing, right);
    result.setRight(result.right() + toRight);
    missing -= toRight;
    // Leaving the column of its left edge is worth it only for a text that is whole then.
    if (missing <= left) {
        result.setLeft(result.left() - missing);
    }
    return result;
}

} // namespace quill::qt
