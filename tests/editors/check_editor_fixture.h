#pragma once

#include "editor_fixture.h"
#include "editors/CtrCheckEdit.h"

namespace quill::test {

inline constexpr const char* kBits = R"(<data:mapping value="1" name="low"/>)"
                                     R"(<data:mapping value="4" name="high"/>)"
                                     R"(<data:mapping value="128" name="travel"/>)";

/// One check editor on a page, with a datafile and a host.
class CheckEditTest : public ListEditorTest<CtrCheckEdit> {
protected:
    explicit CheckEditTest(const std::string& decimal = ".")
        : ListEditorTest("alarms", {"5", kBits, "bitEnumVal"}, decimal)
    {
    }

    /// The grid's rows, such as "*x" for one that is checked and changed, "o" for neither.
    [[nodiscard]] std::vector<std::string> rows() const
    {
        std::vector<std::string> shown;
        for (int row = 1; row <= edit.scgCheck.RowCount(); ++row) {
            const std::string icon = edit.scgCheck.CellIcon(row, 1);
            shown.push_back((icon.empty()         ? ""
                             : icon == "modified" ? "*"
                                                  : icon) +
                            std::string(edit.scgCheck.cell(row, 2).Value == 1 ? "x" : "o"));
        }
        return shown;
    }
    [[nodiscard]] std::vector<std::string> texts() const
    {
        std::vector<std::string> shown;
        for (int row = 1; row <= edit.scgCheck.RowCount(); ++row) {
            shown.push_back(edit.scgCheck.cell(row, 2).Text);
        }
        return shown;
    }
    /// The user clicks on a row's check box.
    platform::UserDoor click(int row) { return edit.scgCheck.clickCell(row, 2); }
};

} // namespace quill::test
