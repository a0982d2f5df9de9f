#pragma once

#include "editors/CtrTextEdit.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/simple_converter.h"
#include "support/test_documents.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::test {

/// A text editor "ctr_travel" on a page whose `Tag` is "travel", with a host that listens.
class TextEditorTest : public testing::Test {
protected:
    explicit TextEditorTest(const std::string& decimal = ".") : toolkit(decimal)
    {
        editor.SetMessenger(&messenger);
        heard =
            editor.Change.subscribe([this](const std::string& text) { changes.push_back(text); });
        converter.add("bar", "psi", 14.5038);
        converter.add("bar", "kPa", 100);
    }

    /// A parameter that is a float between 0 and 100 where a test says nothing.
    static std::string parameterXml(const Attributes& given)
    {
        return test::parameterXml(given, {{"name", "travel"},
                                          {"type", "floatVal"},
                                          {"value", "5"},
                                          {"unit", "bar"},
                                          {"decimals", "1"},
                                          {"minVal", "0"},
                                          {"maxVal", "100"},
                                          {"access", "readWrite"},
                                          {"synchronised", "1"}});
    }
    /// Loads a datafile with this one parameter, to which the editor is bound anew.
    void load(const Attributes& given = {})
    {
        editor.Uninitialize();
        document = datafile(parameterXml(given));
        editor.setOfflineData(parameter());
        messenger.clear();
        changes.clear();
    }
    IXMLDOMNode parameter() { return documents::findParameter(document, "travel"); }
    std::string stored(const char* attribute)
    {
        return documents::attributeText(parameter(), attribute);
    }
    static IXMLDOMNode itemNode(const std::string& unit, const std::string& value,
                                const std::string& type = "floatVal")
    {
        return documents::findItem(okResponse("group", item("travel", unit, type, value)),
                                   "travel");
    }
    void                     type(const std::string& text) { editor.txtBox.type(text); }
    std::vector<std::string> states() { return messenger.callsTo("SetParameterState"); }
    static std::string       state(const std::string& name)
    {
        return "SetParameterState(travel, " + name + ")";
    }

    ToolkitScope             toolkit;
    RecordingMessenger       messenger;
    RecordingTranslator      translator;
    SimpleConverter          converter;
    TestPage                 page{{.Name = "page", .Tag = "travel"}};
    CtrTextEdit              editor{page, {.Name = "travel", .Tag = "ctr_travel"}};
    IXMLDOMDocument          document;
    std::vector<std::string> changes;
    platform::Subscription   heard;
};

/// The same with a converter at hand and loads that are listened to.
class TextEditDataTest : public TextEditorTest {
protected:
    using TextEditorTest::TextEditorTest;
    void useConverter(const std::string& display = "psi")
    {
        messenger.converter              = &converter;
        converter.displayUnits["travel"] = display;
    }
    void loadQuietly(const Attributes& given)
    {
        document = datafile(parameterXml(given));
        messenger.clear();
        changes.clear();
        editor.setOfflineData(parameter());
    }
};

} // namespace quill::test
