#pragma once

#include "editor_fixture.h"
#include "editors/CtrTimeEdit.h"
#include "support/simple_converter.h"

namespace quill::test {

/// One time editor on a page, with a datafile and a host that converts "s", "min" and "h".
class TimeEditTest : public EditorTest<CtrTimeEdit> {
protected:
    explicit TimeEditTest(const std::string& decimal = ".") : EditorTest("delay", decimal)
    {
        converter.add("s", "min", 1.0 / 60);
        converter.add("s", "h", 1.0 / 3600);
        converter.add("min", "h", 1.0 / 60);
        messenger.converter = &converter;
    }

    SimpleConverter converter;

    /// A parameter of 1.5 minutes in one decimal where a test says nothing.
    void give(const Attributes& given = {})
    {
        datafile = test::datafile(parameterXml(given, {{"name", "delay"},
                                                       {"type", "floatVal"},
                                                       {"value", "1.5"},
                                                       {"unit", "min"},
                                                       {"decimals", "1"},
                                                       {"minVal", "0"},
                                                       {"maxVal", "3000"},
                                                       {"access", "readWrite"},
                                                       {"synchronised", "1"}}));
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
    [[nodiscard]] IXMLDOMNode online(const std::string& value, const std::string& unit = "min",
                                     const std::string& type = "floatVal")
    {
        return itemOf(value, unit, type);
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
};

class TimeEditTestWithComma : public TimeEditTest {
protected:
    TimeEditTestWithComma() : TimeEditTest(",") {}
};

} // namespace quill::test
