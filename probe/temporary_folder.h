#pragma once

#include <string>

namespace quill::probe {

/// A folder of its own below the machine's temporary one, made when it is first asked for and
/// removed with all it holds at the end.
class TemporaryFolder {
public:
    TemporaryFolder() = default;
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&)            = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// With a separator at the end. A folder that cannot be made is failure 75.
    [[nodiscard]] const std::string& path();

private:
    std::string mPath;
};

} // namespace quill::probe
