#pragma once

#include "editors/CtrCheckEdit.h"
#include "platform/label.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/test_documents.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quill::test {

inline constexpr const char* kBits = R"(<data:mapping value="1" name="low"/>)"
                                     R"(<data:mapping value="4" name="high"/>)"
                                     R"(<data:mapping value="128" name="travel"/>)";

/// One check editor on a page, with a datafile and a host.
class CheckEditTest : public testing::Test {
protected:
    explicit CheckEditTest(const std::string& decimal = ".") : toolkit(decimal) {}

    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    platform::Control   form;
    platform::Frame     frame{form, {.Name = "frame", .Tag = "page"}};
    CtrCheckEdit        edit{frame, {.Name = "alarms", .Tag = "ctr_alarms"}};

    IXMLDOMDocument datafile;
    IXMLDOMDocument response;

    void SetUp() override
    {
        translator.prefix    = "T-";
        messenger.translator = &translator;
        edit.SetMessenger(&messenger);
    }

    void give(const std::string& value, const std::string& synchronised,
              const std::string& entries = kBits, const std::string& access = "readWrite")
    {
        datafile = test::datafile(
            "<data:parameter name=\"alarms\" type=\"bitEnumVal\" value=\"" + value +
                "\" access=\"" + access + "\" synchronised=\"" + synchronised + "\"/>",
            "<data:mappedParam name=\"alarms\">" + entries + "</data:mappedParam>");
    }
    [[nodiscard]] IXMLDOMNode parameter() const
    {
        return documents::findParameter(datafile, "alarms");
    }
    [[nodiscard]] IXMLDOMNode mappedParam() const
    {
        return documents::findMappedParam(datafile, "alarms");
    }
    [[nodiscard]] std::string attribute(const char* name) const
    {
        return documents::attributeText(parameter(), name);
    }
    /// What a page does at load.
    void load(const std::string& value = "5", const std::string& synchronised = "1",
              const std::string& entries = kBits, const std::string& access = "readWrite")
    {
        give(value, synchronised, entries, access);
        edit.SetMappings(mappedParam());
        edit.setOfflineData(parameter());
    }
    /// The same, and what was heard meanwhile is forgotten.
    void loadQuietly(const std::string& value = "5", const std::string& synchronised = "1",
                     const std::string& entries = kBits)
    {
        load(value, synchronised, entries);
        messenger.clear();
    }
    [[nodiscard]] IXMLDOMNode online(const std::string& value,
                                     const std::string& type = "bitEnumVal")
    {
        response = test::okResponse("group", test::item("alarms", "noUnit", type, value));
        return documents::findItem(response, "alarms");
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

    static std::string state(const std::string& name)
    {
        return "SetParameterState(page, " + name + ")";
    }
};

} // namespace quill::test
