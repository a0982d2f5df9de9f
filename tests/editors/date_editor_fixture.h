#pragma once

#include "editors/CtrDateEdit.h"
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

/// `PickerFormat::time`
constexpr std::int32_t kTime = 2;

/// One date editor on a page, with a datafile and a host.
class DateEditTest : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    platform::Control   form;
    platform::Frame     frame{form, {.Name = "frame", .Tag = "page"}};
    CtrDateEdit         edit{frame, {.Name = "date", .Tag = "ctr_date"}};

    IXMLDOMDocument          datafile;
    IXMLDOMDocument          response;
    std::vector<std::string> changes;
    platform::Subscription   onChange =
        edit.Change.subscribe([this](const std::string& text) { changes.push_back(text); });

    void SetUp() override { edit.SetMessenger(&messenger); }

    void give(const std::string& value, const std::string& synchronised,
              const std::string& lower = "", const std::string& upper = "")
    {
        datafile =
            test::datafile("<data:parameter name=\"date\" type=\"dateVal\" value=\"" + value +
                           "\" minVal=\"" + lower + "\" maxVal=\"" + upper +
                           "\" access=\"readWrite\" synchronised=\"" + synchronised + "\"/>");
    }
    [[nodiscard]] IXMLDOMNode parameter() const
    {
        return documents::findParameter(datafile, "date");
    }
    [[nodiscard]] std::string attribute(const char* name) const
    {
        return documents::attributeText(parameter(), name);
    }
    void load(const std::string& value = "31.1.2020", const std::string& synchronised = "1",
              const std::string& lower = "", const std::string& upper = "")
    {
        give(value, synchronised, lower, upper);
        edit.setOfflineData(parameter());
    }
    void loadQuietly(const std::string& value = "31.1.2020", const std::string& synchronised = "1")
    {
        load(value, synchronised);
        forget();
    }
    void forget()
    {
        messenger.clear();
        changes.clear();
    }
    [[nodiscard]] IXMLDOMNode online(const std::string& value, const std::string& type = "dateVal")
    {
        response = test::okResponse("group", test::item("date", "noUnit", type, value));
        return documents::findItem(response, "date");
    }
};

} // namespace quill::test
