#pragma once

#include "platform/xml_dom.h"

#include <string>

namespace quill {

using platform::IXMLDOMNode;

/// One classification of a device's status conditions: the class of each condition by its name, and
/// which of two classes is the worse. A class is at the same time the key of its image. Texts are
/// compared exactly.
class IQornStatusClass {
public:
    virtual ~IQornStatusClass() = default;
    /// The class of a condition that was read and is not active.
    [[nodiscard]] virtual std::string ImageOk() const = 0;
    /// The class of a condition that is switched off.
    [[nodiscard]] virtual std::string ImageDisabled() const = 0;
    /// The class of a condition that was never read.
    [[nodiscard]] virtual std::string ImageNotRead() const = 0;
    /// The class of a condition of which nothing is known any more.
    [[nodiscard]] virtual std::string ImageUnknown() const = 0;
    /// The class of a condition, empty for one that is not known.
    [[nodiscard]] virtual std::string GetClass(const std::string& name) const = 0;
    /// Gives a condition another class. The classifications differ in whether one that was never
    /// read is added.
    virtual void SetClass(const std::string& name, const std::string& statusClass) = 0;
    /// The worse of two classes. One that the classification does not have counts as the lowest.
    [[nodiscard]] virtual std::string GetWorst(const std::string& a,
                                               const std::string& b) const = 0;
    /// Takes name and class from the definition of a condition, and answers the class. Failures go
    /// to the debug output.
    virtual std::string ReadClass(const platform::IXMLDOMNode& status) = 0;
};

} // namespace quill
