#include "qt/view.h"

#include "qt/screen.h"

#include <QEvent>
#include <QPointer>
#include <QResizeEvent>

namespace quill::qt {

class View::Private {
public:
    Private(platform::Control& control, View& view)
        : screen(control, view), wanted(designRect(control).size()),
          changed(control.Changed.subscribe([this, &control](const platform::WidgetChange& change) {
              if (change.property == &control.Width || change.property == &control.Height) {
                  followForm(control);
              }
          })),
          mView(view)
    {
    }

    /// The form has given itself another size.
    void followForm(const platform::Control& control)
    {
        if (!resizing) {
            wanted = designRect(control).size();
            mView.updateGeometry();
        }
    }

    Screen                 screen;
    QSize                  wanted;
    bool                   resizing = false;
    platform::Subscription changed;

private:
    View& mView;
};

View::View(platform::Control& control, QWidget* parent)
    : QWidget(parent), d(std::make_unique<Private>(control, *this))
{
    if (const QSize size = sizeHint(); !size.isEmpty()) {
        resize(size);
    }
    d->screen.root()->widget()->setGeometry(rect());
}

View::~View() = default;

QWidget* View::shown(const platform::Widget& widget) const
{
    const Adaptor* const adaptor = d->screen.find(widget);
    return adaptor != nullptr ? adaptor->widget() : nullptr;
}

void View::flush()
{
    d->screen.flush();
}

void View::setAccessibleLabel(const platform::Widget& widget, const QString& label)
{
    d->screen.setLabel(widget, label);
}

void View::setStateWords(const StateWords& words)
{
    d->screen.setWords(words);
}

QSize View::sizeHint() const
{
    if (!d) {
        return {};
    }
    const QSize contents = d->screen.contentsRect().size();
    return {d->wanted.width() > 0 ? d->wanted.width() : contents.width(),
            d->wanted.height() > 0 ? d->wanted.height() : contents.height()};
}

QSize View::minimumSizeHint() const
{
    return sizeHint();
}

void View::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Adaptor* const root = d->screen.root();
    if (root == nullptr) {
        return;
    }
    root->widget()->setGeometry(rect());
    auto& control = static_cast<platform::Control&>(*root->model());
    if (designRect(control).size() == size()) {
        return;
    }
    d->resizing = true;
    const QPointer<View> self(this);
    root->byUser([&] { control.resize(toTwips(width()), toTwips(height())); });
    if (self) {
        d->resizing = false;
    }
}

void View::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (d && (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
              event->type() == QEvent::StyleChange)) {
        d->screen.touchAll();
    }
}

} // namespace quill::qt
