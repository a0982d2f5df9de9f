#include "shell/file_operations.h"

#include "platform/failure.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace quill::shell {

namespace {

namespace fs = std::filesystem;
using platform::Failure;

class SystemFileOperations : public FileOperations {
public:
    int create(const std::string& path, const std::string& model) override
    {
        const int   handle = check(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                                          S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH),
                                   path);
        struct stat of {};
        if (::stat(model.c_str(), &of) == 0) {
            // Rights that cannot be given are no reason to lose the user's work.
            [[maybe_unused]] const int ignored = ::fchmod(handle, of.st_mode & 07777U);
        }
        return handle;
    }

    void write(int handle, std::string_view bytes) override
    {
        while (!bytes.empty()) {
            const auto written = ::write(handle, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) {
                continue;
            }
            check(written < 0 ? -1 : 0, "write");
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void sync(int handle) override { check(::fsync(handle), "fsync"); }
    void close(int handle) noexcept override { ::close(handle); }
    void rename(const std::string& from, const std::string& to) override
    {
        check(::rename(from.c_str(), to.c_str()), to);
    }
    void remove(const std::string& path) noexcept override { ::unlink(path.c_str()); }
    int  openFolder(const std::string& path) override
    {
        return check(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), path);
    }

private:
    static int check(int result, const std::string& what)
    {
        if (result < 0) {
            throw std::system_error(errno, std::generic_category(), what);
        }
        return result;
    }
};

/// A handle that is closed in any case, at the latest at its end.
class Handle {
public:
    Handle(FileOperations& operations, int handle) : mOperations(operations), mHandle(handle) {}
    ~Handle() { close(); }
    Handle(const Handle&)            = delete;
    Handle& operator=(const Handle&) = delete;

    [[nodiscard]] int get() const { return mHandle; }
    void              close()
    {
        if (mHandle >= 0) {
            mOperations.close(mHandle);
            mHandle = -1;
        }
    }

private:
    FileOperations& mOperations;
    int             mHandle;
};

[[noreturn]] void fail(int number, const std::string& key, const std::string& parameter)
{
    throw Failure(number, key + "#" + parameter);
}

/// A name beside the file that nothing has.
std::string freeNameBeside(const fs::path& file)
{
    const std::string stem =
        "." + file.filename().string() + "." + std::to_string(::getpid()) + ".";
    for (int i = 0;; ++i) {
        const fs::path  candidate = file.parent_path() / (stem + std::to_string(i) + ".new");
        std::error_code error;
        if (!fs::exists(fs::symlink_status(candidate, error))) {
            return candidate.string();
        }
    }
}

} // namespace

FileOperations& FileOperations::system()
{
    static SystemFileOperations operations;
    return operations;
}

void replaceFile(const std::string& path, std::string_view bytes, FileOperations& operations)
{
    std::error_code error;
    const fs::path  target = fs::weakly_canonical(fs::absolute(path), error);
    const fs::path  folder = target.parent_path();
    if (error || !fs::is_directory(folder, error)) {
        fail(platform::kPathNotFound, "shell_errNoFolder", folder.empty() ? path : folder.string());
    }
    if (fs::is_directory(target, error)) {
        fail(platform::kPathAccess, "shell_errIsFolder", path);
    }

    const std::string fresh   = freeNameBeside(target);
    bool              created = false;
    try {
        Handle folderHandle{operations, operations.openFolder(folder.string())};
        Handle file{operations, operations.create(fresh, target.string())};
        created = true;
        operations.write(file.get(), bytes);
        // Before the new file takes the name, all of it must be on the disk.
        operations.sync(file.get());
        file.close();
        operations.rename(fresh, target.string());
        created = false;
        try {
            operations.sync(folderHandle.get());
        } catch (const std::system_error&) {
            // Not every file system can sync a folder. The new file is there and whole; at worst
            // the old one comes back after a loss of power.
        }
    } catch (const std::system_error& problem) {
        if (created) {
            operations.remove(fresh);
        }
        fail(platform::kPathAccess, "shell_errWrite", path + ": " + problem.code().message());
    }
}

std::string readFile(const std::string& path)
{
    std::error_code error;
    if (!fs::exists(path, error)) {
        fail(platform::kFileNotFound, "shell_errNoFile", path);
    }
    if (fs::is_directory(path, error)) {
        fail(platform::kPathAccess, "shell_errIsFolder", path);
    }
    std::ifstream file{path, std::ios::binary};
    std::string   bytes{std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
    if (!file.good() && !file.eof()) {
        fail(platform::kPathAccess, "shell_errUnreadable", path);
    }
    return bytes;
}

} // namespace quill::shell
