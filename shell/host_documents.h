#pragma once

#include <map>
#include <string>

namespace quill::shell {

/// The XML texts that the controls leave with the host under a name. Each is a file in a folder, so
/// that it is there again after a restart.
class HostDocuments {
public:
    /// Where they are kept, with a separator at its end; without one they last as long as this
    /// object. What was kept in another folder stays there.
    void setFolder(const std::string& folder);

    /// The text; the one that comes with the program if there is none yet, or if its file holds no
    /// XML; empty for a name that nobody knows.
    [[nodiscard]] std::string get(const std::string& name) const;
    /// Keeps a text. Failure 5 for a name that is more than letters and digits; else those of
    /// `replaceFile`, and the old text stays.
    void set(const std::string& name, const std::string& xml);

private:
    [[nodiscard]] std::string pathOf(const std::string& name) const;

    std::string                        mFolder;
    std::map<std::string, std::string> mTexts; ///< without a folder
};

} // namespace quill::shell
