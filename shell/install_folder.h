#pragma once

#include <string>

namespace quill::shell {

/// Puts the documents that come with the program below an install folder, where the controls look
/// for them: the modules of a VX4400F as "Documents/VX4400F.xml". A document that is there as it
/// should be is left alone. `folder` ends with a separator. Failures as of `replaceFile`.
void installDocuments(const std::string& folder);

/// What the host keeps under the name "FDT" before a module has been chosen.
[[nodiscard]] std::string defaultFdtDocument();

} // namespace quill::shell
