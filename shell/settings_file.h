#pragma once

#include "shell/file_operations.h"
#include "shell/style.h"

#include <QJsonObject>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace quill::shell {

/// What the user has chosen for the program itself and wants to find again.
struct Settings {
    std::string                        language = "English"; ///< as the controls know it
    std::map<std::string, std::string> units;                ///< display unit by quantity
    std::int16_t                       classification = 0;   ///< a `StatusClassification`
    std::int16_t                       userLevel      = 3;
    /// Colours of the windows; nothing follows the desktop.
    std::optional<ColorScheme> scheme;

    friend bool operator==(const Settings&, const Settings&) = default;
};

/// The file with the settings. A save replaces it as a whole, so that a crash or a loss of power
/// leaves the old settings or the new ones. What a newer program wrote in it stays there.
class SettingsFile {
public:
    /// The operations must outlive the file.
    explicit SettingsFile(std::string path, FileOperations& operations = FileOperations::system());

    /// Reads the file; never fails. A file that is missing gives the usual settings, and one that
    /// is damaged too: `problem` then tells the user. A single entry that makes no sense (an
    /// unknown language, a unit that the quantity does not have) is left out by itself.
    [[nodiscard]] Settings load();
    /// What the last `load` met: a translation key with its parameter, empty if all was well.
    [[nodiscard]] const std::string& problem() const { return mProblem; }

    /// Writes the settings, with the folder if it is missing. A failure is one of `replaceFile`;
    /// the file is then as before.
    void save(const Settings& settings);

    [[nodiscard]] const std::string& path() const { return mPath; }

private:
    std::string     mPath;
    FileOperations& mOperations;
    QJsonObject     mContent; ///< the whole file as it was read or written last
    std::string     mProblem;
};

} // namespace quill::shell
