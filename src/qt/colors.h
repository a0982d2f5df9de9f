#pragma once

#include "platform/property.h"

#include <QPalette>

namespace quill::qt {

/// The colour on screen for a colour of a model. A system colour is the palette's. A ground is
/// shown as it is on a light palette; on a dark one it keeps its meaning, not its value: white
/// becomes the palette's `Base`, greys a darker `Base`, a tinted ground the same tint in dark. A
/// text keeps its hue and is made as light or as dark as it must be to be read on its ground.
///
/// `role` is the role that the colour is for: `Base`, `Window` or `Button` for a ground, `Text`,
/// `WindowText` or `ButtonText` for what is written on it. `ground` is the ground of a text as it
/// is on screen; without one it is the palette's that belongs to the role.
[[nodiscard]] QColor shownColor(platform::Color color, QPalette::ColorRole role,
                                const QPalette& palette, const QColor& ground = {});

/// A colour made as light or as dark as it must be to be told from `ground` as well as a text.
[[nodiscard]] QColor readableColor(const QColor& color, const QColor& ground);

/// The palette's ground of what is selected, far enough from the text on it.
[[nodiscard]] QColor selectionColor(const QPalette& palette);

/// The quiet lines between the rows and columns of a list, on the palette's `Base`.
[[nodiscard]] QColor lineColor(const QPalette& palette);

/// Text of a box that is disabled for now: fainter than `text`, but a value that is to be read.
[[nodiscard]] QColor faintColor(const QColor& text, const QColor& ground);

/// A colour for the role `Window` of a single widget: out of it the stock style makes outlines that
/// are told from the ground inside and outside.
[[nodiscard]] QColor outlineColor(const QPalette& palette);

/// A palette whose texts are lighter than their grounds.
[[nodiscard]] bool isDark(const QPalette& palette);

/// Contrast between two colours, 1 (none) to 21 (black on white), as the accessibility guidelines
/// for the web define it.
[[nodiscard]] double contrast(const QColor& a, const QColor& b);

/// Least contrast of a text that is not the palette's own.
constexpr double kReadableContrast = 4.5;
/// Least contrast of the edge of something that the user acts on.
constexpr double kEdgeContrast = 3;

} // namespace quill::qt
