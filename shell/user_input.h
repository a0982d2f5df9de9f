#pragma once

#include <QString>
#include <Qt>

#include <functional>

class QModelIndex;
class QTreeView;
class QWidget;

namespace quill::shell::userInput {

/// What a person does with mouse and keyboard, as the events that Qt would make of it. The events
/// that follow are handled before each returns.

/// A click in the middle of the widget.
void click(QWidget& widget);
/// A click on the row of a tree or a list, where its icon or check box is. The row is scrolled to.
void clickRow(QTreeView& tree, const QModelIndex& row);
/// The row with this number, from 1, as a grid counts them: each one before its children.
[[nodiscard]] QModelIndex rowNumber(const QTreeView& tree, int number);
/// Clicks into the widget, replaces the text in it and presses no further key.
void type(QWidget& widget, const QString& text);
void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Lets events run until the condition holds; false if it takes longer than a few seconds.
bool wait(const std::function<bool()>& condition);
/// Lets all events that wait run.
void settle();

} // namespace quill::shell::userInput
