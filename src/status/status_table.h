#pragma once

#include "framework/name_table.h"

#include <string>
#include <vector>

namespace quill {

/// The classes of status conditions by name. A definition may list a condition twice; only the
/// first listing counts, and changes go there, so that no other is kept. The empty name is there
/// from the start, with an empty class.
class StatusTable {
public:
    StatusTable() { add({}, {}); }

    /// Adds a condition; one that is there already stays as it is.
    void add(const std::string& name, const std::string& statusClass);
    /// Changes the class of a condition that is there; false if it is not.
    bool change(const std::string& name, const std::string& statusClass);
    /// Empty for a condition that is not there.
    [[nodiscard]] std::string classOf(const std::string& name) const;

private:
    NameTable                mNames;
    std::vector<std::string> mClasses; ///< by the place of the name
};

} // namespace quill
