#pragma once

#include <string>
#include <string_view>

namespace quill::shell {

/// What replacing a file asks of the system, one call each, so that a test can let any of them
/// fail or end the program there. Every operation throws `std::system_error`.
class FileOperations {
public:
    virtual ~FileOperations() = default;
    /// Those of the system.
    [[nodiscard]] static FileOperations& system();

    /// Creates a file that does not exist, with the rights of `model` if that exists, and answers
    /// its handle.
    virtual int  create(const std::string& path, const std::string& model) = 0;
    virtual void write(int handle, std::string_view bytes)                 = 0;
    /// Brings the file, or the entries of the folder, onto the disk.
    virtual void sync(int handle)                                       = 0;
    virtual void close(int handle) noexcept                             = 0;
    virtual void rename(const std::string& from, const std::string& to) = 0;
    virtual void remove(const std::string& path) noexcept               = 0;
    virtual int  openFolder(const std::string& path)                    = 0;
};

/// Gives a file new content such that at any moment, also if the program is killed or the power
/// goes, either the old or the new content is there, whole: writes a file beside it, syncs that,
/// and puts it in its place. A link is followed.
///
/// A failure is a `Failure` whose description is a translation key and its parameter, such as
/// "shell_errNoFolder#/path"; the old file is untouched and nothing is left beside it.
void replaceFile(const std::string& path, std::string_view bytes,
                 FileOperations& operations = FileOperations::system());

/// The content of a file; failures as above.
[[nodiscard]] std::string readFile(const std::string& path);

} // namespace quill::shell
