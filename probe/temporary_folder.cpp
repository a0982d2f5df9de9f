#include "probe/temporary_folder.h"

#include "platform/failure.h"

#include <filesystem>
#include <random>

namespace quill::probe {

namespace fs = std::filesystem;

TemporaryFolder::~TemporaryFolder()
{
    if (!mPath.empty()) {
        std::error_code ignored;
        fs::remove_all(mPath, ignored);
    }
}

const std::string& TemporaryFolder::path()
{
    constexpr int      kAttempts = 100;
    std::error_code    error;
    std::random_device random;
    for (int attempt = 0; mPath.empty() && attempt < kAttempts; ++attempt) {
        const fs::path folder =
            fs::temp_directory_path(error) / ("quill-probe-" + std::to_string(random()));
        if (fs::create_directory(folder, error)) {
            fs::permissions(folder, fs::perms::owner_all, error);
            mPath = folder.string() + static_cast<char>(fs::path::preferred_separator);
        }
    }
    if (mPath.empty()) {
        throw platform::failure(platform::kPathAccess);
    }
    return mPath;
}

} // namespace quill::probe
