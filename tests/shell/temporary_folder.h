#pragma once

#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace quill::shell {

/// A folder of its own for a test, gone at its end.
class TemporaryFolder {
public:
    [[nodiscard]] std::string path(const std::string& name = {}) const
    {
        return (mFolder.path() + '/').toStdString() + name;
    }
    std::string write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream{path(name), std::ios::binary} << bytes;
        return path(name);
    }
    [[nodiscard]] std::string read(const std::string& name) const
    {
        std::ifstream file{path(name), std::ios::binary};
        return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
    }
    /// Names of all that lies in it, in order.
    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator{path()}) {
            all.push_back(entry.path().filename().string());
        }
        std::sort(all.begin(), all.end());
        return all;
    }

private:
    QTemporaryDir mFolder;
};

} // namespace quill::shell
