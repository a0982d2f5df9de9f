#pragma once

#include <map>
#include <string>

namespace quill {

/// Keeps the labels of pending changes apart, for a host that turns `BookChange` into
/// `DialogSetChanges`: the dialog knows a row by its label, so two parameters with one label would
/// hide each other.
class ChangeLabels {
public:
    /// The label for a booking: as it stands, or, where it was booked before under another tag,
    /// followed by the parameter's name in brackets.
    [[nodiscard]] std::string unique(const std::string& tag, const std::string& label);

private:
    std::map<std::string, std::string> mTagOfLabel;
};

} // namespace quill
