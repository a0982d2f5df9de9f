#include "shell/user_input.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRadioButton>
#include <QTreeView>
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
    constexpr int kMark = 8; // from the left edge to the middle of the mark
    widget.window()->activateWindow();
    settle();
    QPointF place = widget.rect().center();
    if (qobject_cast<QRadioButton*>(&widget) != nullptr) {
        place.setX(kMark); // it takes no clicks behind its text
    }
    if (widget.isEnabled() && (widget.focusPolicy() & Qt::ClickFocus) != 0) {
        widget.setFocus(Qt::MouseFocusReason);
    }
    send(widget, QEvent::MouseButtonPress, place, Qt::LeftButton);
    send(widget, QEvent::MouseButtonRelease, place, Qt::NoButton);
    settle();
}

void clickRow(QTreeView& tree, const QModelIndex& row)
{
    tree.window()->activateWindow();
    tree.scrollTo(row);
    settle();
    tree.setFocus(Qt::MouseFocusReason);
    const QRect    place = tree.visualRect(row);
    constexpr int  kIcon = 10; // from the left edge to the middle of what stands in front
    const QPointF  at(place.left() + kIcon, place.center().y());
    QWidget* const area = tree.viewport();
    send(*area, QEvent::MouseButtonPress, at, Qt::LeftButton);
    send(*area, QEvent::MouseButtonRelease, at, Qt::NoButton);
    settle();
}

QModelIndex rowNumber(const QTreeView& tree, int number)
{
    const QAbstractItemModel& rows = *tree.model();
    const auto find = [&](const QModelIndex& parent, const auto& self) -> QModelIndex {
        for (int place = 0; place < rows.rowCount(parent); ++place) {
            const QModelIndex row = rows.index(place, 0, parent);
            if (--number == 0) {
                return row;
            }
            if (const QModelIndex below = self(row, self); below.isValid()) {
                return below;
            }
        }
        return {};
    };
    return find({}, find);
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
