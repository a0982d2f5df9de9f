#pragma once

#include <QTemporaryDir>

#include <optional>
#include <string>

namespace quill::shell {

/// Puts the documents that come with the program below an install folder, where the controls look
/// for them: the modules of a VX4400F as "Documents/VX4400F.xml". A document that is there as it
/// should be is left alone. `folder` ends with a separator. Failures as of `replaceFile`.
void installDocuments(const std::string& folder);

/// The install folder of a program whose documents lie in a folder of the user.
class InstallFolder {
public:
    /// Where the install folder lies, with a separator at its end. Without one it is temporary and
    /// gone with this object.
    void setFolder(const std::string& folder);
    /// Its path, with a separator at its end.
    [[nodiscard]] std::string path();
    /// Puts the documents there that come with the program, at the first call only: a folder that
    /// cannot be written is told once. Failures as of `installDocuments`.
    void prepare();

private:
    std::string                  mFolder;
    std::optional<QTemporaryDir> mTemporary;
    bool                         mIsPrepared = false;
};

/// What the host keeps under the name "FDT" before a module has been chosen.
[[nodiscard]] std::string defaultFdtDocument();

} // namespace quill::shell
