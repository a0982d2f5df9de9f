#pragma once

#include "platform/failure.h"
#include "platform/widget.h"

#include <string>
#include <vector>

namespace quill {

/// Implemented by a host's page that wants to hear from the controls on it by the name of a method:
///
/// - "QuillStatusChanged" with the combined status, by a status view on a page of the type
///   "VwOnlineDiag"
/// - "QuillTranslateTexts" with the language, by the settings dialog
/// - "QuillInformUnitChanges" without arguments, by the settings dialog
class NamedCallbacks {
public:
    virtual ~NamedCallbacks() = default;
    /// A page that does not know the method throws failure 438.
    virtual void callByName(const std::string& method, const std::vector<std::string>& args) = 0;
};

/// Calls a method of the page that `control` stands on, by its name. A control that stands on
/// nothing is failure 91, a page that takes no such calls failure 438.
inline void callPage(const platform::Widget& control, const std::string& method,
                     const std::vector<std::string>& args = {})
{
    if (control.Owner() == nullptr) {
        throw platform::failure(platform::kObjectNotSet);
    }
    auto* const page = dynamic_cast<NamedCallbacks*>(control.Owner());
    if (page == nullptr) {
        throw platform::failure(platform::kNotSupportedByObject);
    }
    page->callByName(method, args);
}

} // namespace quill
