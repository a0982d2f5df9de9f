#pragma once

#include "editors/CtrTimeEdit.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/simple_converter.h"
#include "support/test_documents.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace quill::test {

/// One time editor on a page, with a datafile and a host that converts "s", "min" and "h".
class TimeEditTest : public testing::Test {
protected:
    explicit TimeEditTest(const std::string& decimal = ".") : toolkit(decimal)
    {
        converter.add("s", "min", 1.0 / 60);
        converter.add("s", "h", 1.0 / 3600);
        converter.add("min", "h", 1.0 / 60);
        messenger.converter = &converter;
        edit.SetMessenger(&messenger);
        forget();
    }

    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    SimpleConverter     converter;
    platform::Control   form;
    platform::Frame     frame{form, {.Name = "frame", .Tag = "page"}};
    CtrTimeEdit         edit{frame, {.Name = "delay", .Tag = "ctr_delay"}};

    IXMLDOMDocument          datafile;
    IXMLDOMDocument          response;
    std::vector<std::string> changes;
    platform::Subscription   onChange =
        edit.Change.subscribe([this](const std::string& text) { changes.push_back(text); });

    /// Attributes of a parameter; those of 1.5 minutes in one decimal where a test says nothing.
    using Attributes = std::map<std::string, std::string>;
    void give(Attributes given = {})
    {
        const Attributes usual = {
            {"name", "delay"},  {"type", "floatVal"},    {"value", "1.5"},
            {"unit", "min"},    {"decimals", "1"},       {"minVal", "0"},
            {"maxVal", "3000"}, {"access", "readWrite"}, {"synchronised", "1"}};
        given.insert(usual.begin(), usual.end());
        std::string xml = "<data:parameter";
        for (const auto& [name, value] : given) {
            if (value != "-") { // "-" leaves an attribute out
                xml += " " + name + "=\"" + value + "\"";
            }
        }
        datafile = test::datafile(xml + "/>");
    }
    void load(const Attributes& given = {})
    {
        give(given);
        edit.setOfflineData(parameter());
    }
    /// The same, and what was heard meanwhile is forgotten.
    void loadQuietly(const Attributes& given = {})
    {
        load(given);
        forget();
    }
    void forget()
    {
        messenger.clear();
        changes.clear();
    }
    [[nodiscard]] IXMLDOMNode parameter() const
    {
        return documents::findParameter(datafile, "delay");
    }
    [[nodiscard]] std::string attribute(const char* name) const
    {
        return documents::attributeText(parameter(), name);
    }
    [[nodiscard]] IXMLDOMNode online(const std::string& value, const std::string& unit = "min",
                                     const std::string& type = "floatVal")
    {
        response = test::okResponse("group", test::item("delay", unit, type, value));
        return documents::findItem(response, "delay");
    }
    [[nodiscard]] std::vector<std::string> boxes() const
    {
        std::vector<std::string> texts;
        for (const platform::TextBox& box : edit.txtBox) {
            texts.push_back(box.Text);
        }
        return texts;
    }
    platform::UserDoor type(std::size_t box, const std::string& text)
    {
        return edit.txtBox[box].type(text);
    }
    [[nodiscard]] std::vector<std::string> states() const
    {
        return messenger.callsTo("SetParameterState");
    }
    static std::string state(const std::string& name)
    {
        return "SetParameterState(page, " + name + ")";
    }
};

class TimeEditTestWithComma : public TimeEditTest {
protected:
    TimeEditTestWithComma() : TimeEditTest(",") {}
};

} // namespace quill::test
