#pragma once

#include "editors/CtrOptionEdit.h"
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

inline constexpr const char* kOptions = R"(<data:mapping value="0" name="off"/>)"
                                        R"(<data:mapping value="1" name="on"/>)"
                                        R"(<data:mapping value="7" name="auto"/>)";

/// One option editor on a page, with a datafile and a host.
class OptionEditTest : public testing::Test {
protected:
    explicit OptionEditTest(const std::string& decimal = ".") : toolkit(decimal) {}

    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    platform::Control   form;
    platform::Frame     frame{form, {.Name = "frame", .Tag = "page"}};
    CtrOptionEdit       edit{frame, {.Name = "mode", .Tag = "ctr_mode"}};

    IXMLDOMDocument          datafile;
    IXMLDOMDocument          response;
    std::vector<std::string> changes;
    platform::Subscription   onChange =
        edit.Change.subscribe([this](const std::string& name) { changes.push_back(name); });

    void SetUp() override
    {
        translator.prefix    = "T-";
        messenger.translator = &translator;
        edit.SetMessenger(&messenger);
    }

    void give(const std::string& value, const std::string& synchronised,
              const std::string& entries = kOptions, const std::string& type = "integerVal",
              const std::string& access = "readWrite")
    {
        datafile = test::datafile(
            "<data:parameter name=\"mode\" type=\"" + type + "\" value=\"" + value +
                "\" access=\"" + access + "\" synchronised=\"" + synchronised + "\"/>",
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
    /// What a page does at load.
    void load(const std::string& value = "1", const std::string& synchronised = "1",
              const std::string& entries = kOptions, const std::string& type = "integerVal",
              const std::string& access = "readWrite")
    {
        give(value, synchronised, entries, type, access);
        edit.SetMappings(mappedParam());
        edit.setOfflineData(parameter());
    }
    /// The same, and what was heard meanwhile is forgotten.
    void loadQuietly(const std::string& value = "1", const std::string& synchronised = "1",
                     const std::string& entries = kOptions, const std::string& type = "integerVal")
    {
        load(value, synchronised, entries, type);
        forget();
    }
    void forget()
    {
        messenger.clear();
        changes.clear();
    }
    [[nodiscard]] IXMLDOMNode online(const std::string& value,
                                     const std::string& type = "integerVal")
    {
        response = test::okResponse("group", test::item("mode", "noUnit", type, value));
        return documents::findItem(response, "mode");
    }
    /// The places whose option has the mark.
    [[nodiscard]] std::vector<std::size_t> marked() const
    {
        std::vector<std::size_t> places;
        for (std::size_t place = 0; place < edit.OptionCount(); ++place) {
            if (edit.Option(place).Value) {
                places.push_back(place);
            }
        }
        return places;
    }
    [[nodiscard]] std::vector<std::string> captions() const
    {
        std::vector<std::string> texts;
        for (std::size_t place = 0; place < edit.OptionCount(); ++place) {
            texts.push_back(edit.Option(place).Caption);
        }
        return texts;
    }
    [[nodiscard]] std::vector<std::string> localizations() const
    {
        std::vector<std::string> texts;
        for (const IXMLDOMNode& entry : *edit.mappings()) {
            texts.push_back(documents::attributeText(entry, "localization"));
        }
        return texts;
    }
    static std::string state(const std::string& name)
    {
        return "SetParameterState(page, " + name + ")";
    }
};

} // namespace quill::test
