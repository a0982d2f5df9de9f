#pragma once

#include <Qt>

class QKeyEvent;

namespace quill::qt {

/// The code that the models know a key by (see `platform::KeyCode`), 0 for a key that they do not
/// know.
[[nodiscard]] int keyCode(int qtKey);
/// A sum of `platform::ShiftState`.
[[nodiscard]] int shiftState(Qt::KeyboardModifiers modifiers);
/// Whether the key writes a character into a text box.
[[nodiscard]] bool writesText(const QKeyEvent& event);

} // namespace quill::qt
