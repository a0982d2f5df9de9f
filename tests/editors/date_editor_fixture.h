#pragma once

#include "editor_fixture.h"
#include "editors/CtrDateEdit.h"

namespace quill::test {

/// `PickerFormat::time`
constexpr std::int32_t kTime = 2;

/// One date editor on a page, with a datafile and a host.
class DateEditTest : public EditorTest<CtrDateEdit> {
protected:
    DateEditTest() : EditorTest("date") {}

    void give(const std::string& value, const std::string& synchronised,
              const std::string& lower = "", const std::string& upper = "")
    {
        datafile =
            test::datafile("<data:parameter name=\"date\" type=\"dateVal\" value=\"" + value +
                           "\" minVal=\"" + lower + "\" maxVal=\"" + upper +
                           "\" access=\"readWrite\" synchronised=\"" + synchronised + "\"/>");
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
    [[nodiscard]] IXMLDOMNode online(const std::string& value, const std::string& type = "dateVal")
    {
        return itemOf(value, "noUnit", type);
    }
};

} // namespace quill::test
