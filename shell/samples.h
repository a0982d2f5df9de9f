#pragma once

#include <string>
#include <vector>

namespace quill::shell {

/// A device that comes with the program.
struct Sample {
    const char* type;     ///< as its datafile names it
    const char* title;    ///< translation key
    const char* datafile; ///< name of the file; see `sampleFile`
    const char* typeInfo; ///< the conditions of its status
};

/// The first one is opened at the start.
[[nodiscard]] const std::vector<Sample>& samples();
/// The sample of this type of device, nothing for a type that there is none of.
[[nodiscard]] const Sample* findSample(const std::string& type);
/// What a file that is part of the program holds. Failure 53 if there is none of this name.
[[nodiscard]] std::string sampleFile(const std::string& name);

} // namespace quill::shell
