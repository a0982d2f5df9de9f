#include "shell/folders.h"

namespace quill::shell {

std::string systemFolder(QStandardPaths::StandardLocation location)
{
    return (QStandardPaths::writableLocation(location) + '/').toStdString();
}

Folders Folders::ofUser()
{
    return {systemFolder(QStandardPaths::AppConfigLocation),
            systemFolder(QStandardPaths::AppLocalDataLocation)};
}

Folders Folders::in(std::string folder)
{
    if (!folder.empty() && folder.back() != '/') {
        folder += '/';
    }
    return {folder, folder};
}

} // namespace quill::shell
