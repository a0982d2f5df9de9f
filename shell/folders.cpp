#include "shell/folders.h"

#include <QStandardPaths>

namespace quill::shell {

namespace {

std::string place(QStandardPaths::StandardLocation location)
{
    return (QStandardPaths::writableLocation(location) + '/').toStdString();
}

} // namespace

Folders Folders::ofUser()
{
    return {place(QStandardPaths::AppConfigLocation), place(QStandardPaths::AppLocalDataLocation)};
}

Folders Folders::in(std::string folder)
{
    if (!folder.empty() && folder.back() != '/') {
        folder += '/';
    }
    return {folder, folder};
}

} // namespace quill::shell
