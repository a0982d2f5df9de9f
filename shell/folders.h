#pragma once

#include <QStandardPaths>

#include <string>

namespace quill::shell {

/// A folder that the system has for this program and this user, with a separator at its end.
[[nodiscard]] std::string systemFolder(QStandardPaths::StandardLocation location);

/// Where the program keeps what it wants to find again: folders with a separator at their ends.
/// Nothing is kept in a folder without a name.
struct Folders {
    std::string settings;  ///< the user's choices
    std::string documents; ///< what comes with the program, and what controls leave with it

    /// Those that the system has for this program and this user.
    [[nodiscard]] static Folders ofUser();
    /// Everything in one folder.
    [[nodiscard]] static Folders in(std::string folder);
};

} // namespace quill::shell
