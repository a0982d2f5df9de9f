#include "shell/install_folder.h"

#include "platform/failure.h"
#include "shell/file_operations.h"
#include "shell/samples.h"

#include <array>
#include <filesystem>
#include <system_error>

namespace quill::shell {

namespace {

struct Document {
    const char* source; ///< see `sampleFile`
    const char* place;  ///< below the install folder; datafiles name it as their `parameterfile`
};
constexpr std::array<Document, 1> kDocuments = {{{"modules.xml", "Documents/VX4400F.xml"}}};

bool holds(const std::string& path, const std::string& bytes)
{
    try {
        return readFile(path) == bytes;
    } catch (const platform::Failure&) {
        return false;
    }
}

} // namespace

void installDocuments(const std::string& folder)
{
    for (const Document& document : kDocuments) {
        const std::string bytes = sampleFile(document.source);
        const std::string path  = folder + document.place;
        if (holds(path, bytes)) {
            continue;
        }
        std::error_code ignored; // `replaceFile` tells a folder that is still missing
        std::filesystem::create_directories(std::filesystem::path{path}.parent_path(), ignored);
        replaceFile(path, bytes);
    }
}

void InstallFolder::setFolder(const std::string& folder)
{
    mFolder     = folder;
    mIsPrepared = false;
}

std::string InstallFolder::path()
{
    if (mFolder.empty() && !mTemporary) {
        mTemporary.emplace();
    }
    return (mFolder.empty() ? mTemporary->path().toStdString() + '/' : mFolder) + "install/";
}

void InstallFolder::prepare()
{
    if (!mIsPrepared) {
        mIsPrepared = true;
        installDocuments(path());
    }
}

std::string defaultFdtDocument()
{
    return sampleFile("modules_fdt.xml");
}

} // namespace quill::shell
