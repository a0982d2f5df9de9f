#include "shell/style.h"

#include "qt/colors.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionGroupBox>

namespace quill::shell {

namespace {

struct Colors {
    QColor window, card, base, button, text, faint, line, accent, onAccent, link;
};

const Colors kLight = {QColor(0xf1f3f5), QColor(0xffffff), QColor(0xffffff), QColor(0xf8f9fa),
                       QColor(0x1c2329), QColor(0x7b858e), QColor(0xc9d0d6), QColor(0x0b6b82),
                       QColor(0xffffff), QColor(0x0b6b82)};
const Colors kDark  = {QColor(0x1d2125), QColor(0x25292e), QColor(0x16191c), QColor(0x2d3238),
                       QColor(0xe6e9ec), QColor(0x8b949c), QColor(0x424a52), QColor(0x2f9db8),
                       QColor(0x0c1113), QColor(0x63c3da)};

/// The row with the cursor, also where it is the chosen one.
void drawRowFocus(const QStyleOption& option, QPainter& painter)
{
    const auto*    focus   = qstyleoption_cast<const QStyleOptionFocusRect*>(&option);
    const QPalette palette = option.palette;
    const bool     chosen =
        focus != nullptr && focus->backgroundColor == palette.color(QPalette::Highlight);
    painter.save();
    painter.setPen(palette.color(chosen ? QPalette::HighlightedText : QPalette::Highlight));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(1, 1, -2, -2));
    painter.restore();
}

/// Around what has the focus, wide enough to be seen at a glance.
void drawFocusRing(const QStyleOption& option, QPainter& painter)
{
    constexpr qreal kWidth  = 2;
    constexpr qreal kHalf   = kWidth / 2;
    constexpr qreal kRadius = 2.5;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(QPalette::Active, QPalette::Highlight), kWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(kHalf, kHalf, -kHalf, -kHalf), kRadius,
                            kRadius);
    painter.restore();
}

/// The ring, if it has the focus and is not disabled.
void drawFocus(const QStyleOption& option, QPainter& painter)
{
    constexpr auto kBoth = QStyle::State_HasFocus | QStyle::State_Enabled;
    if ((option.state & kBoth) == kBoth) {
        drawFocusRing(option, painter);
    }
}

/// A frame that is all of a view is the ground that the view's widgets stand on, and not a card:
/// that is around the view, with the title.
bool fillsItsView(const QWidget* frame)
{
    const QWidget* const view = frame != nullptr ? frame->parentWidget() : nullptr;
    return view != nullptr && frame->geometry() == view->rect();
}

/// The ground of cards is none of the palette's usual roles.
constexpr auto kCardRole = QPalette::AlternateBase;

} // namespace

ColorScheme desktopScheme()
{
    // A palette that the shell has set says nothing about the desktop.
    static const ColorScheme scheme =
        qt::isDark(QApplication::palette()) ? ColorScheme::dark : ColorScheme::light;
    return scheme;
}

QPalette shellPalette(ColorScheme scheme)
{
    const Colors& colors = scheme == ColorScheme::dark ? kDark : kLight;
    QPalette      palette(colors.button, colors.window);
    palette.setColor(QPalette::WindowText, colors.text);
    palette.setColor(QPalette::Text, colors.text);
    palette.setColor(QPalette::ButtonText, colors.text);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(kCardRole, colors.card);
    palette.setColor(QPalette::ToolTipBase, colors.card);
    palette.setColor(QPalette::ToolTipText, colors.text);
    palette.setColor(QPalette::PlaceholderText, colors.faint);
    palette.setColor(QPalette::Mid, colors.line);
    palette.setColor(QPalette::Midlight, colors.line.lighter(108));
    palette.setColor(QPalette::Dark, colors.line.darker(115));
    palette.setColor(QPalette::Highlight, colors.accent);
    palette.setColor(QPalette::HighlightedText, colors.onAccent);
    palette.setColor(QPalette::Link, colors.link);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, colors.faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, colors.window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colors.line);
    return palette;
}

void applyStyle(ColorScheme scheme)
{
    (void)desktopScheme();
    if (qobject_cast<ShellStyle*>(QApplication::style()) == nullptr) {
        QApplication::setStyle(new ShellStyle);
    }
    const QPalette palette = shellPalette(scheme);
    QApplication::setPalette(palette);
    // What the window itself holds of boxes and buttons gets the edges that the views' have.
    QPalette edged(palette);
    edged.setColor(QPalette::Window, qt::outlineColor(palette));
    for (const char* kind :
         {"QComboBox", "QAbstractSpinBox", "QLineEdit", "QPushButton", "QRadioButton", "QSlider"}) {
        QApplication::setPalette(edged, kind);
    }
}

ShellStyle::ShellStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void ShellStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
        control == CC_SpinBox && spin != nullptr) {
        // Fusion leaves a pixel free above and below, which other boxes do not.
        QStyleOptionSpinBox full(*spin);
        full.rect.adjust(0, -1, 0, 1);
        QProxyStyle::drawComplexControl(control, &full, painter, widget);
        drawFocus(*option, *painter);
        return;
    }
    if (control == CC_ComboBox || control == CC_Slider) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        drawFocus(*option, *painter);
        return;
    }
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || group == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    constexpr qreal kRadius   = 6;
    constexpr int   kPadding  = 16;
    constexpr int   kTitleTop = 5;
    constexpr int   kTitle    = 24;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(group->palette.color(kCardRole));
    if (fillsItsView(widget)) {
        painter->setPen(Qt::NoPen);
        painter->drawRect(group->rect);
        painter->restore();
        return;
    }
    painter->setPen(group->palette.color(QPalette::Mid));
    painter->drawRoundedRect(QRectF(group->rect).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    QFont font = painter->font();
    font.setBold(true);
    painter->setFont(font);
    painter->setPen(group->palette.color(QPalette::WindowText));
    painter->drawText(group->rect.adjusted(kPadding, kTitleTop, -kPadding, 0)
                          .intersected(QRect(0, 0, group->rect.width(), kTitleTop + kTitle)),
                      Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, group->text);
    painter->restore();
}

void ShellStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const
{
    if (element == PE_IndicatorBranch && (option->state & State_Selected) != 0) {
        // The arrow stands on the ground of the chosen row, as its text does.
        QStyleOption chosen(*option);
        const QColor text = option->palette.color(QPalette::HighlightedText);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            chosen.palette.setColor(role, text);
        }
        QProxyStyle::drawPrimitive(element, &chosen, painter, widget);
        return;
    }
    // Trees draw the focus of a whole row without telling themselves.
    if (element == PE_FrameFocusRect &&
        (widget == nullptr || qobject_cast<const QAbstractItemView*>(widget) != nullptr)) {
        drawRowFocus(*option, *painter);
        return;
    }
    if (element == PE_FrameFocusRect) {
        drawFocusRing(*option, *painter);
        return;
    }
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_FrameLineEdit || element == PE_PanelButtonCommand) {
            drawFocus(*option, *painter);
        }
        return;
    }
    constexpr qreal kRadius = 2.5;
    const bool      enabled = (option->state & State_Enabled) != 0;
    const bool      focused = (option->state & State_HasFocus) != 0;
    const QPalette& palette = option->palette;
    const auto      group   = enabled ? QPalette::Active : QPalette::Disabled;
    const QRectF    box     = QRectF(option->rect).adjusted(1.5, 1.5, -1.5, -1.5);
    const bool      filled  = (option->state & (State_On | State_NoChange)) != 0;
    const QColor    accent  = palette.color(group, QPalette::Highlight);
    const QColor    edge    = palette.color(QPalette::Active, QPalette::PlaceholderText);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    // On a chosen row the mark needs an edge that is not the ground.
    const bool   onAccent = (option->state & State_Selected) != 0;
    const QColor around   = onAccent            ? palette.color(group, QPalette::HighlightedText)
                            : filled || focused ? accent
                                                : edge;
    painter->setPen(QPen(around, 1));
    painter->setBrush(filled ? accent : palette.color(group, QPalette::Base));
    painter->drawRoundedRect(box, kRadius, kRadius);
    if (filled) {
        painter->setPen(QPen(palette.color(QPalette::Active, QPalette::HighlightedText), 1.8,
                             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const auto at = [&](qreal x, qreal y) {
            return QPointF(box.left() + box.width() * x, box.top() + box.height() * y);
        };
        painter->drawPolyline(QPolygonF{at(0.22, 0.52), at(0.43, 0.73), at(0.78, 0.28)});
    }
    painter->restore();
}

QIcon ShellStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                               const QWidget* widget) const
{
    const char* const sign = which == SP_MessageBoxInformation ? "i"
                             : which == SP_MessageBoxQuestion  ? "?"
                             : which == SP_MessageBoxWarning   ? "!"
                                                               : nullptr;
    if (sign == nullptr) {
        return QProxyStyle::standardIcon(which, option, widget);
    }
    constexpr int kSide  = 40;
    constexpr int kScale = 2; // sharp on screens of both resolutions
    QPixmap       picture(kSide * kScale, kSide * kScale);
    picture.setDevicePixelRatio(kScale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QApplication::palette().color(QPalette::Highlight));
    const QRect circle(2, 2, kSide - 4, kSide - 4);
    painter.drawEllipse(circle);
    QFont font = QApplication::font();
    font.setPixelSize(kSide / 2);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QApplication::palette().color(QPalette::HighlightedText));
    painter.drawText(circle, Qt::AlignCenter, QString::fromLatin1(sign));
    return picture;
}

int ShellStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const
{
    switch (metric) {
    case PM_ToolBarItemSpacing: return 4;
    case PM_ToolBarItemMargin: return 4;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight: return 16;
    case PM_SmallIconSize: return 18;
    case PM_ToolBarIconSize: return 20;
    case PM_HeaderMargin: return 4; // titles stand above what is in the rows
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ShellStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const
{
    // On a dark ground the light copy below a disabled text blurs it.
    return hint == SH_EtchDisabledText ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace quill::shell
