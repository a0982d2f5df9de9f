#include "qt/images.h"
#include "qt/kinds.h"
#include "qt/text.h"

#include <QLabel>
#include <QMouseEvent>

namespace quill::qt {

namespace {

class ImageAdaptor : public KindAdaptor<platform::Image, QLabel> {
public:
    ImageAdaptor(Screen& screen, platform::Image& model, QLabel* label)
        : KindAdaptor(screen, model, label)
    {
        label->setAlignment(Qt::AlignCenter);
    }

    void update() override
    {
        Adaptor::update();
        shown()->setAutoFillBackground(kind().BackColor != platform::kButtonFace);
        shown()->setCursor(kind().Click.empty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
        showColors(QPalette::WindowText, QPalette::Window);
        showPicture();
    }

    void place(const QRect& rect) override
    {
        Adaptor::place(rect);
        showPicture();
    }

    [[nodiscard]] Fit     fit() const override { return {QSize(kUsualSize, kUsualSize)}; }
    [[nodiscard]] bool    takesFocus() const override { return false; }
    [[nodiscard]] QString ownName() const override { return toQt(kind().ToolTipText); }

protected:
    bool otherEvent(QEvent& event) override
    {
        if (event.type() == QEvent::MouseButtonRelease) {
            const auto& mouse = static_cast<QMouseEvent&>(event);
            if (mouse.button() == Qt::LeftButton && shown()->rect().contains(mouse.pos())) {
                byUser([this] { kind().click(); });
            }
        } else if (event.type() == QEvent::MouseButtonPress) {
            // Whoever takes the press gets the release too.
            event.accept();
            return true;
        }
        return false;
    }

private:
    static constexpr int kUsualSize = 16;

    void showPicture()
    {
        const QIcon icon = Images::find(kind().Picture);
        if (icon.isNull()) {
            shown()->setPixmap({});
            return;
        }
        const QSize room = shown()->size().expandedTo(QSize(kUsualSize, kUsualSize));
        shown()->setPixmap(icon.pixmap(room, shown()->devicePixelRatioF(),
                                       kind().Enabled ? QIcon::Normal : QIcon::Disabled));
    }
};

} // namespace

Adaptor* makeImage(Screen& screen, platform::Image& model, QWidget* parent)
{
    return new ImageAdaptor(screen, model, new QLabel(parent));
}

} // namespace quill::qt
