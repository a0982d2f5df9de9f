#include "qt/svg_icon.h"

#include "qt/text.h"

#include <QFile>
#include <QIconEngine>
#include <QPaintEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <memory>

// A resource in a static library is linked only where somebody names it, outside any namespace.
static void bringResource()
{
    Q_INIT_RESOURCE(quill_icons);
}

namespace quill::qt {

namespace {

/// The largest square in the middle of a rectangle: the pictures are squares.
QRectF squareIn(const QRectF& rect)
{
    const qreal side = std::min(rect.width(), rect.height());
    QRectF      square(0, 0, side, side);
    square.moveCenter(rect.center());
    return square;
}

/// Grey and faint, as the pictures of a disabled widget.
QPixmap disabled(const QPixmap& pixmap)
{
    constexpr qreal kFaint = 0.5;
    QImage          image  = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line, [](QRgb color) {
            const int grey = qGray(color);
            return qRgba(grey, grey, grey, static_cast<int>(qAlpha(color) * kFaint));
        });
    }
    return QPixmap::fromImage(image);
}

class SvgIcon : public QIconEngine {
public:
    explicit SvgIcon(const QString& file)
        : mFile(file), mRenderer(std::make_shared<QSvgRenderer>(file))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        // What is printed stays a drawing; on a screen the same few pictures come up by the
        // hundred.
        if (painter->paintEngine()->type() != QPaintEngine::Raster) {
            mRenderer->render(painter, squareIn(rect));
            return;
        }
        const qreal ratio = painter->device()->devicePixelRatio();
        QPixmap     drawn = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        drawn.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), drawn);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        const bool    faint = mode == QIcon::Disabled;
        const QString key   = QStringLiteral("%1 %2 %3 %4")
                                .arg(mFile)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(static_cast<int>(faint));
        QPixmap drawn;
        if (QPixmapCache::find(key, &drawn)) {
            return drawn;
        }
        drawn = QPixmap(size);
        drawn.fill(Qt::transparent);
        if (!drawn.isNull()) {
            QPainter painter(&drawn);
            mRenderer->render(&painter, squareIn(QRectF(QPointF(0, 0), size)));
        }
        if (faint) {
            drawn = disabled(drawn);
        }
        QPixmapCache::insert(key, drawn);
        return drawn;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new SvgIcon(*this); }
    [[nodiscard]] QString      key() const override { return QStringLiteral("quill"); }
    bool                       isNull() override { return !mRenderer->isValid(); }

private:
    QString                       mFile;
    std::shared_ptr<QSvgRenderer> mRenderer;
};

} // namespace

QIcon builtInIcon(const std::string& key)
{
    bringResource();
    const QString file = QStringLiteral(":/quill/icons/%1.svg").arg(toQt(key));
    return QFile::exists(file) ? QIcon(new SvgIcon(file)) : QIcon{};
}

} // namespace quill::qt
