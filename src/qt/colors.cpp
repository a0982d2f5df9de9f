#include "qt/colors.h"

#include <algorithm>
#include <cmath>

namespace quill::qt {

namespace {

using Role = QPalette::ColorRole;

constexpr platform::Color kSystemColor = 0x80000000;

/// Roles by the number of the system colour.
Role systemRole(platform::Color color, Role otherwise)
{
    switch (color & 0xFFU) {
    case 0x04: // menu
    case 0x0F: // face of a button, which is the ground of forms too
        return Role::Window;
    case 0x05: return Role::Base;
    case 0x08: // text of a window: of the form or of a box, as the role says
        return otherwise == Role::WindowText || otherwise == Role::ButtonText ? otherwise
                                                                              : Role::Text;
    case 0x0D: return Role::Highlight;
    case 0x0E: return Role::HighlightedText;
    case 0x10: return Role::Dark;
    case 0x11: // greyed text
        return Role::PlaceholderText;
    case 0x12: return Role::ButtonText;
    case 0x14: return Role::Light;
    case 0x17: return Role::ToolTipText;
    case 0x18: return Role::ToolTipBase;
    default: return otherwise;
    }
}

bool isText(Role role)
{
    return role == Role::Text || role == Role::WindowText || role == Role::ButtonText;
}

QColor groundOf(Role text, const QPalette& palette)
{
    switch (text) {
    case Role::WindowText: return palette.color(QPalette::Active, Role::Window);
    case Role::ButtonText: return palette.color(QPalette::Active, Role::Button);
    default: return palette.color(QPalette::Active, Role::Base);
    }
}

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QColor mixed(const QColor& a, const QColor& b, double part)
{
    const auto mix = [part](float x, float y) {
        return static_cast<float>((1 - part) * x + part * y);
    };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                            mix(a.blueF(), b.blueF()));
}

QColor darkGround(const QColor& color, const QPalette& palette)
{
    const QColor base = palette.color(QPalette::Active, Role::Base);
    if (color.hslSaturationF() < 0.1F || color == Qt::white || color == Qt::black) {
        return mixed(base, Qt::black, std::min(1.0, 4 * (1.0 - color.lightnessF())));
    }
    return QColor::fromHslF(std::max(0.0F, color.hslHueF()), color.hslSaturationF() * 0.6F, 0.18F);
}

} // namespace

QColor readableColor(const QColor& color, const QColor& ground)
{
    // Away from the ground; white or black itself reaches 4.5:1 on any.
    const QColor away =
        contrast(Qt::white, ground) > contrast(Qt::black, ground) ? Qt::white : Qt::black;
    constexpr int kSteps = 50;
    for (int step = 0; step < kSteps; ++step) {
        const QColor candidate = mixed(color, away, static_cast<double>(step) / kSteps);
        if (contrast(candidate, ground) >= kReadableContrast) {
            return candidate;
        }
    }
    return away;
}

QColor selectionColor(const QPalette& palette)
{
    return readableColor(palette.color(QPalette::Active, Role::Highlight),
                         palette.color(QPalette::Active, Role::HighlightedText));
}

QColor lineColor(const QPalette& palette)
{
    return mixed(palette.color(QPalette::Active, Role::Base),
                 palette.color(QPalette::Active, Role::Text), 0.13);
}

QColor faintColor(const QColor& text, const QColor& ground)
{
    constexpr int kSteps = 20;
    for (int step = kSteps / 2; step > 0; --step) {
        const QColor candidate = mixed(text, ground, static_cast<double>(step) / kSteps);
        if (contrast(candidate, ground) >= kReadableContrast) {
            return candidate;
        }
    }
    return text;
}

QColor outlineColor(const QPalette& palette)
{
    // The style darkens the ground of the window by 1.4 for its outlines.
    constexpr int    kStyleDarkens = 140;
    constexpr double kFirst        = 0.45;
    constexpr int    kSteps        = 50;
    const QColor     window        = palette.color(QPalette::Active, Role::Window);
    const QColor     base          = palette.color(QPalette::Active, Role::Base);
    const QColor     text          = palette.color(QPalette::Active, Role::WindowText);
    QColor           line          = mixed(window, text, kFirst);
    for (int step = 1; step <= kSteps; ++step) {
        if (std::min(contrast(line, window), contrast(line, base)) >= kEdgeContrast) {
            break;
        }
        line = mixed(window, text, kFirst + (1 - kFirst) * step / kSteps);
    }
    return line.lighter(kStyleDarkens);
}

bool isDark(const QPalette& palette)
{
    return luminance(palette.color(QPalette::Active, Role::Text)) >
           luminance(palette.color(QPalette::Active, Role::Base));
}

double contrast(const QColor& a, const QColor& b)
{
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

QColor shownColor(platform::Color color, QPalette::ColorRole role, const QPalette& palette,
                  const QColor& ground)
{
    if ((color & kSystemColor) != 0) {
        return palette.color(QPalette::Active, systemRole(color, role));
    }
    const QColor given(static_cast<int>(color & 0xFFU), static_cast<int>((color >> 8) & 0xFFU),
                       static_cast<int>((color >> 16) & 0xFFU));
    if (isText(role)) {
        return readableColor(given, ground.isValid() ? ground : groundOf(role, palette));
    }
    return isDark(palette) ? darkGround(given, palette) : given;
}

} // namespace quill::qt
