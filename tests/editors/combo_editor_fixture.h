#pragma once

#include "editors/CtrComboEdit.h"
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

inline constexpr const char* kEntries = R"(<data:mapping value="0" name="off"/>)"
                                        R"(<data:mapping value="1" name="on"/>)"
                                        R"(<data:mapping value="7" name="auto"/>)";

/// One combo editor on a page, with a datafile and a host.
class ComboEditTest : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    platform::Control   form;
    platform::Frame     frame{form, {.Name = "frame", .Tag = "page"}};
    CtrComboEdit        edit{frame, {.Name = "mode", .Tag = "ctr_mode"}};

    IXMLDOMDocument          datafile;
    std::vector<std::string> changes;
    std::vector<bool>        modifications;
    platform::Subscription   onChange =
        edit.Change.subscribe([this](const std::string& name) { changes.push_back(name); });
    platform::Subscription onModified =
        edit.ModifiedEvent.subscribe([this](bool modified) { modifications.push_back(modified); });

    void SetUp() override
    {
        translator.prefix    = "T-";
        messenger.translator = &translator;
        edit.SetMessenger(&messenger);
    }

    void give(const std::string& attributes, const std::string& entries = kEntries)
    {
        datafile =
            test::datafile("<data:parameter name=\"mode\" " + attributes + "/>",
                           "<data:mappedParam name=\"mode\">" + entries + "</data:mappedParam>");
    }
    [[nodiscard]] IXMLDOMNode parameter() const
    {
        return documents::findParameter(datafile, "mode");
    }
    [[nodiscard]] IXMLDOMNode mappedParam() const
    {
        return documents::findMappedParam(datafile, "mode");
    }
    [[nodiscard]] std::string attribute(const char* name) const
    {
        return documents::attributeText(parameter(), name);
    }
    static std::string attributes(const std::string& value, const std::string& synchronised,
                                  const std::string& type   = "integerVal",
                                  const std::string& access = "readWrite")
    {
        return "type=\"" + type + "\" value=\"" + value + "\" access=\"" + access +
               "\" synchronised=\"" + synchronised + "\"";
    }
    /// What a page does at load.
    void load(const std::string& value = "1", const std::string& synchronised = "1",
              const std::string& entries = kEntries, const std::string& type = "integerVal",
              const std::string& access = "readWrite")
    {
        give(attributes(value, synchronised, type, access), entries);
        edit.SetMappings(mappedParam());
        edit.setOfflineData(parameter());
    }
    /// The same, and what was heard meanwhile is forgotten.
    void loadQuietly(const std::string& value = "1", const std::string& synchronised = "1",
                     const std::string& entries = kEntries, const std::string& type = "integerVal")
    {
        load(value, synchronised, entries, type);
        forget();
    }
    void forget()
    {
        messenger.clear();
        changes.clear();
        modifications.clear();
    }
    [[nodiscard]] IXMLDOMNode online(const std::string& value,
                                     const std::string& type = "integerVal")
    {
        mResponse = test::okResponse("group", test::item("mode", "noUnit", type, value));
        return documents::findItem(mResponse, "mode");
    }
    [[nodiscard]] std::string entryAttribute(long entry, const char* name) const
    {
        return documents::attributeText(edit.mappings()->get_item(entry), name);
    }

    IXMLDOMDocument mResponse;
};

} // namespace quill::test
