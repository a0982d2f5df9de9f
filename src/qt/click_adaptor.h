#pragma once

#include "qt/adaptor.h"

#include <QLabel>
#include <QMouseEvent>

namespace quill::qt {

/// What labels and images have in common: the user clicks on them, but they never take the focus.
template <class Model>
class ClickAdaptor : public KindAdaptor<Model, QLabel> {
public:
    using KindAdaptor<Model, QLabel>::KindAdaptor;

    void update() override
    {
        Adaptor::update();
        this->shown()->setCursor(this->kind().Click.empty() ? Qt::ArrowCursor
                                                            : Qt::PointingHandCursor);
        this->showColors(QPalette::WindowText, QPalette::Window);
    }

    [[nodiscard]] bool takesFocus() const override { return false; }

protected:
    bool otherEvent(QEvent& event) override
    {
        if (event.type() == QEvent::MouseButtonRelease) {
            const auto& mouse = static_cast<QMouseEvent&>(event);
            if (mouse.button() == Qt::LeftButton && this->shown()->rect().contains(mouse.pos())) {
                this->byUser([this] { this->kind().click(); });
            }
        } else if (event.type() == QEvent::MouseButtonPress) {
            // Whoever takes the press gets the release too.
            event.accept();
            return true;
        }
        return false;
    }
};

} // namespace quill::qt
