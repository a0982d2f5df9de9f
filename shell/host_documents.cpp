#include "shell/host_documents.h"

#include "framework/documents.h"
#include "platform/failure.h"
#include "shell/file_operations.h"
#include "shell/install_folder.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace quill::shell {

namespace {

constexpr const char* kFdt = "FDT";

/// A name becomes the name of a file, and must not lead anywhere else.
bool isPlain(const std::string& name)
{
    const auto isPlainCharacter = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    };
    return !name.empty() && std::ranges::all_of(name, isPlainCharacter);
}

bool isXml(const std::string& text)
{
    try {
        return static_cast<bool>(documents::openText(text).get_documentElement());
    } catch (const platform::Failure&) {
        return false;
    }
}

std::string firstText(const std::string& name)
{
    return name == kFdt ? defaultFdtDocument() : std::string{};
}

} // namespace

void HostDocuments::setFolder(const std::string& folder)
{
    mFolder = folder;
}

std::string HostDocuments::pathOf(const std::string& name) const
{
    return mFolder + name + ".xml";
}

std::string HostDocuments::get(const std::string& name) const
{
    if (const auto kept = mTexts.find(name); mFolder.empty() && kept != mTexts.end()) {
        return kept->second;
    }
    if (mFolder.empty() || !isPlain(name) || !std::filesystem::exists(pathOf(name))) {
        return firstText(name);
    }
    try {
        const std::string text = readFile(pathOf(name));
        return isXml(text) ? text : firstText(name);
    } catch (const platform::Failure&) {
        return firstText(name);
    }
}

void HostDocuments::set(const std::string& name, const std::string& xml)
{
    if (!isPlain(name)) {
        throw platform::failure(platform::kInvalidCall);
    }
    if (mFolder.empty()) {
        mTexts[name] = xml;
        return;
    }
    std::error_code ignored; // `replaceFile` tells a folder that is still missing
    std::filesystem::create_directories(mFolder, ignored);
    replaceFile(pathOf(name), xml);
}

} // namespace quill::shell
