#pragma once

#include "shell/file_operations.h"

#include <functional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <vector>

namespace quill::shell {

/// The system's operations, with something happening before each.
class WatchedOperations : public FileOperations {
public:
    std::vector<std::string>                names;
    std::function<void(const std::string&)> before = [](const std::string&) {};

    int create(const std::string& path, const std::string& model) override
    {
        tell("create");
        return system().create(path, model);
    }
    void write(int handle, std::string_view bytes) override
    {
        tell("write half");
        system().write(handle, bytes.substr(0, bytes.size() / 2));
        tell("write the rest");
        system().write(handle, bytes.substr(bytes.size() / 2));
    }
    void sync(int handle) override
    {
        struct stat of {};
        ::fstat(handle, &of);
        tell(S_ISDIR(of.st_mode) ? "sync folder" : "sync file");
        system().sync(handle);
    }
    void close(int handle) noexcept override { system().close(handle); }
    void rename(const std::string& from, const std::string& to) override
    {
        tell("rename");
        system().rename(from, to);
    }
    void remove(const std::string& path) noexcept override { system().remove(path); }
    int  openFolder(const std::string& path) override
    {
        tell("open folder");
        return system().openFolder(path);
    }

private:
    void tell(const std::string& name)
    {
        names.push_back(name);
        before(name);
    }
};

} // namespace quill::shell
