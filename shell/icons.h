#pragma once

#include <QIcon>

namespace quill::shell {

/// Pictures of the shell's commands.
enum class Symbol { open, save, connect, disconnect, read, changes, valve, settings };

/// A line drawing in the colour of the application's texts, at whatever size and resolution it is
/// asked for; it follows a change of the palette by itself.
[[nodiscard]] QIcon icon(Symbol symbol);

} // namespace quill::shell
