#pragma once

#include "platform/widget.h"

#include <QRect>
#include <QSize>

#include <vector>

namespace quill::qt {

constexpr int kTwipsPerPixel = 15;

/// Device-independent pixels of a length in twips, to the nearest; a screen of another density is
/// Qt's affair.
[[nodiscard]] int          toPixels(std::int32_t twips) noexcept;
[[nodiscard]] std::int32_t toTwips(int pixels) noexcept;
/// Where a widget was laid out in its container. Edges are rounded, not lengths, so that what
/// touches in the design touches on screen.
[[nodiscard]] QRect designRect(const platform::Widget& widget);

/// How a kind of widget is fitted to its place in the design.
struct Fit {
    /// What its contents need.
    QSize natural;
    /// Height that a design without a height means, in twips.
    std::int32_t usualHeight = 0;
    /// A widget with a text of its own: it may become wider than designed, so that no translation
    /// is cut.
    bool grows = false;
    /// At least the natural height.
    bool needsHeight = false;
};

/// The place of a widget on the row of its design: a missing width is the natural one; a height
/// below the natural one grows evenly to both sides, so that labels, boxes and units of one row
/// stay on one line whatever the style and the font need.
[[nodiscard]] QRect seat(const QRect& design, const Fit& fit);

/// The place of a widget that wants to be `width` wide: it takes the free room to its right, then
/// the room to its left if that is enough, and never touches a neighbour or leaves `area`, which
/// may be empty for no bounds. What overlaps already is no neighbour.
[[nodiscard]] QRect grown(const QRect& place, int width, const std::vector<QRect>& neighbours,
                          const QRect& area);

} // namespace quill::qt
