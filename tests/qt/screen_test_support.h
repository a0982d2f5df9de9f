#pragma once

#include "platform/widgets.h"
#include "qt/view.h"

#include <QApplication>
#include <QTest>

#include <memory>

namespace quill::qt::test {

/// Lets everything that waits for the event loop happen.
inline void settle()
{
    for (int turn = 0; turn < 5; ++turn) {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/// A view on screen, active, as a user would have it in front.
class Shown {
public:
    explicit Shown(platform::Control& control) : view(std::make_unique<View>(control))
    {
        view->show();
        QApplication::setActiveWindow(view.get());
        settle();
    }
    ~Shown()
    {
        if (auto* const focused = platform::Widget::focused()) {
            focused->blur();
        }
    }

    template <class Kind>
    [[nodiscard]] Kind* as(const platform::Widget& widget) const
    {
        return dynamic_cast<Kind*>(view->shown(widget));
    }
    [[nodiscard]] QWidget* operator[](const platform::Widget& widget) const
    {
        return view->shown(widget);
    }

    void click(const platform::Widget& widget) const
    {
        QTest::mouseClick(view->shown(widget), Qt::LeftButton);
        settle();
    }
    void key(const platform::Widget& widget, Qt::Key key,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(view->shown(widget), key, modifiers);
        settle();
    }

    std::unique_ptr<View> view;
};

/// A page of a usual size.
struct Page : platform::Control {
    Page() : Control({.Name = "page", .Width = 9000, .Height = 6000}) {}
};

} // namespace quill::qt::test
