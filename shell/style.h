#pragma once

#include <QIcon>
#include <QPalette>
#include <QProxyStyle>

namespace quill::shell {

enum class ColorScheme { light, dark };

/// The scheme that the desktop asks for, as far as its palette tells.
[[nodiscard]] ColorScheme desktopScheme();
/// The shell's colours: quiet greys and one accent.
[[nodiscard]] QPalette shellPalette(ColorScheme scheme);
/// Gives the application the shell's style and colours.
void applyStyle(ColorScheme scheme);

/// Fusion with group boxes as cards, a bold title on a plain ground with a fine edge, with check
/// boxes and signs of its own that show on a dark ground too, and with a ring around whatever has
/// the focus.
class ShellStyle : public QProxyStyle {
    Q_OBJECT

public:
    ShellStyle();

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                                     const QWidget* widget) const override;
    [[nodiscard]] int   pixelMetric(PixelMetric metric, const QStyleOption* option,
                                    const QWidget* widget) const override;
    int                 styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                  QStyleHintReturn* data) const override;
};

} // namespace quill::shell
