#include "qt/kinds.h"
#include "qt/text.h"

#include <QLabel>
#include <QMouseEvent>

namespace quill::qt {

namespace {

class LabelAdaptor : public KindAdaptor<platform::Label, QLabel> {
public:
    LabelAdaptor(Screen& screen, platform::Label& label, QLabel* shownLabel)
        : KindAdaptor(screen, label, shownLabel)
    {
        shownLabel->setTextFormat(Qt::PlainText);
        shownLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }

    void update() override
    {
        Adaptor::update();
        shown()->setAutoFillBackground(kind().BackColor != platform::kButtonFace);
        shown()->setCursor(kind().Click.empty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
        showColors(QPalette::WindowText, QPalette::Window);
        showText();
    }

    void place(const QRect& rect) override
    {
        Adaptor::place(rect);
        showText();
        showToolTip();
    }

    [[nodiscard]] Fit fit() const override
    {
        constexpr int      kUsualHeight = 255;
        const QFontMetrics metrics(shown()->font());
        const QSize        text  = metrics.size(0, toQt(kind().Caption));
        const QRect        place = designRect(kind());
        if (wraps()) {
            const QRect wrapped = metrics.boundingRect(QRect(0, 0, place.width(), 1 << 16),
                                                       Qt::TextWordWrap, toQt(kind().Caption));
            return {wrapped.size(), kUsualHeight, true, true};
        }
        return {text, kUsualHeight, true, true};
    }

    [[nodiscard]] bool    takesFocus() const override { return false; }
    [[nodiscard]] QString ownName() const override { return toQt(kind().Caption); }

protected:
    [[nodiscard]] bool movesThings(const platform::WidgetChange& change) const override
    {
        return change.property == &kind().Caption || Adaptor::movesThings(change);
    }

    [[nodiscard]] QString extraToolTip() const override
    {
        return mCut ? toQt(kind().Caption) : QString{};
    }

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
    /// A label that was laid out for several lines breaks its text into them.
    [[nodiscard]] bool wraps() const
    {
        const QFontMetrics metrics(shown()->font());
        const QRect        place = designRect(kind());
        return place.height() >= 2 * metrics.height() - 4 && place.width() > 0 &&
               metrics.size(0, toQt(kind().Caption)).width() > place.width();
    }

    void showText()
    {
        const QString full = toQt(kind().Caption);
        const bool    wrap = wraps();
        QString       text = full;
        if (!wrap && !full.contains(u'\n')) {
            text = shown()->fontMetrics().elidedText(full, Qt::ElideRight, shown()->width());
        }
        mCut = text != full;
        shown()->setWordWrap(wrap);
        shown()->setText(text);
    }

    bool mCut = false;
};

} // namespace

Adaptor* makeLabel(Screen& screen, platform::Label& model, QWidget* parent)
{
    return new LabelAdaptor(screen, model, new QLabel(parent));
}

} // namespace quill::qt
