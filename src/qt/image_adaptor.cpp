#include "qt/click_adaptor.h"
#include "qt/images.h"
#include "qt/kinds.h"
#include "qt/text.h"

namespace quill::qt {

namespace {

class ImageAdaptor : public ClickAdaptor<platform::Image> {
public:
    ImageAdaptor(Screen& screen, platform::Image& model, QLabel* label)
        : ClickAdaptor(screen, model, label)
    {
        label->setAlignment(Qt::AlignCenter);
    }

    void update() override
    {
        ClickAdaptor::update();
        showPicture();
    }

    void place(const QRect& rect) override
    {
        Adaptor::place(rect);
        showPicture();
    }

    [[nodiscard]] Fit     fit() const override { return {QSize(kUsualSize, kUsualSize)}; }
    [[nodiscard]] QString ownName() const override { return toQt(kind().ToolTipText); }

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
