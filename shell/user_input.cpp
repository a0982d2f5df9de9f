#include "shell/user_input.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace quill::shell::userInput {

namespace {

constexpr qint64 kPatience = 10'000; ///< ms

void send(QWidget& widget, QEvent::Type type, const QPointF& place, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void key(QWidget& widget, int code, Qt::KeyboardModifiers modifiers, const QString& text)
{
    QKeyEvent down(QEvent::KeyPress, code, modifiers, text);
    QKeyEvent up(QEvent::KeyRelease, code, modifiers, text);
    QCoreApplication::sendEvent(&widget, &down);
    QCoreApplication::sendEvent(&widget, &up);
}

} // namespace

void click(QWidget& widget)
{
    widget.window()->activateWindow();
    settle();
    const QPointF place = widget.rect().center();
    if (widget.isEnabled() && (widget.focusPolicy() & Qt::ClickFocus) != 0) {
        widget.setFocus(Qt::MouseFocusReason);
    }
    send(widget, QEvent::MouseButtonPress, place, Qt::LeftButton);
    send(widget, QEvent::MouseButtonRelease, place, Qt::NoButton);
    settle();
}

void type(QWidget& widget, const QString& text)
{
    click(widget);
    key(widget, Qt::Key_A, Qt::ControlModifier, {});
    for (const QChar character : text) {
        key(widget, character.toUpper().unicode(), Qt::NoModifier, QString(character));
    }
    settle();
}

void press(QWidget& widget, int code, Qt::KeyboardModifiers modifiers)
{
    key(widget, code, modifiers, {});
    settle();
}

bool wait(const std::function<bool()>& condition)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > kPatience) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    settle();
    return true;
}

void settle()
{
    // Deferred work may make more of it; nobody makes three rounds.
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

} // namespace quill::shell::userInput
