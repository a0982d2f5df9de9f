#include "qt/click_adaptor.h"
#include "qt/kinds.h"
#include "qt/text.h"

namespace quill::qt {

namespace {

class LabelAdaptor : public ClickAdaptor<platform::Label> {
public:
    LabelAdaptor(Screen& screen, platform::Label& label, QLabel* shownLabel)
        : ClickAdaptor(screen, label, shownLabel)
    {
        shownLabel->setTextFormat(Qt::PlainText);
        shownLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }

    void update() override
    {
        ClickAdaptor::update();
        showWeight();
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

    [[nodiscard]] QString ownName() const override { return toQt(kind().Caption); }

protected:
    [[nodiscard]] bool movesThings(const platform::WidgetChange& change) const override
    {
        return change.property == &kind().Caption || change.property == &kind().Bold ||
               Adaptor::movesThings(change);
    }

    [[nodiscard]] QString extraToolTip() const override
    {
        return mCut ? toQt(kind().Caption) : QString{};
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

    void showWeight()
    {
        // All but the weight stays the form's.
        QFont own;
        if (kind().Bold) {
            own.setBold(true);
        }
        if (shown()->font().bold() != kind().Bold) {
            shown()->setFont(own);
        }
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
