#include "shell/icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QTextStream>

#include <array>

namespace quill::shell {

namespace {

constexpr qreal kSize = 24; ///< side of the square that the drawings are made for

/// Drawings in the order of `Symbol`: "M x y" moves, "L x y" draws a line, "Z" closes.
constexpr std::array kDrawings = {
    "M 3 19 L 3 5 L 9 5 L 11 8 L 20 8 L 20 11 M 3 19 L 6.5 11 L 22 11 L 18.5 19 Z",
    "M 4 4 L 16.5 4 L 20 7.5 L 20 20 L 4 20 Z M 8 4 L 8 9 L 15 9 L 15 4 M 7.5 20 L 7.5 13.5 "
    "L 16.5 13.5 L 16.5 20",
    "M 8 3 L 8 8 M 16 3 L 16 8 M 5.5 8 L 18.5 8 L 18.5 12 L 15.5 15.5 L 8.5 15.5 L 5.5 12 Z "
    "M 12 15.5 L 12 21",
    "M 8 3 L 8 8 M 16 3 L 16 8 M 5.5 8 L 18.5 8 L 18.5 12 L 15.5 15.5 L 8.5 15.5 L 5.5 12 Z "
    "M 12 15.5 L 12 21 M 3 21 L 21 3",
    "M 12 3 L 12 15 M 7 10 L 12 15 L 17 10 M 4 15 L 4 20 L 20 20 L 20 15",
    "M 4 6 L 13 6 M 4 11 L 11 11 M 4 16 L 8 16 M 11 20 L 11.8 16.4 L 18.6 9.6 L 21.4 12.4 "
    "L 14.6 19.2 Z",
    "M 3 11 L 3 21 L 12 16 Z M 21 11 L 21 21 L 12 16 Z M 12 16 L 12 9 M 7 9 L 7 6 L 9 3.5 L 15 3.5 "
    "L 17 6 L 17 9 Z",
    "M 4 6 L 20 6 M 4 12 L 20 12 M 4 18 L 20 18 M 8 3.5 L 8 8.5 M 15.5 9.5 L 15.5 14.5 M 10 15.5 "
    "L 10 20.5",
};

QPainterPath path(const char* drawing)
{
    QPainterPath result;
    QByteArray   text(drawing);
    QTextStream  in(text);
    for (QString command; in >> command, !command.isEmpty();) {
        if (command == u"Z") {
            result.closeSubpath();
            continue;
        }
        qreal x = 0;
        qreal y = 0;
        in >> x >> y;
        if (command == u"M") {
            result.moveTo(x, y);
        } else {
            result.lineTo(x, y);
        }
    }
    return result;
}

class LineIcon : public QIconEngine {
public:
    explicit LineIcon(Symbol symbol) : mSymbol(symbol) {}

    [[nodiscard]] QIconEngine* clone() const override { return new LineIcon(mSymbol); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QGuiApplication::palette();
        const auto     group   = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto     role =
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kSize, rect.height() / kSize);
        painter->setPen(
            QPen(palette.color(group, role), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(path(kDrawings[static_cast<std::size_t>(mSymbol)]));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return result;
    }

private:
    Symbol mSymbol;
};

} // namespace

QIcon icon(Symbol symbol)
{
    return QIcon(new LineIcon(symbol));
}

} // namespace quill::shell
