#pragma once

#include "status/CtrStatus.h"
#include "status/CtrStatusF.h"
#include "tests/support/recording_messenger.h"
#include "tests/support/recording_translator.h"
#include "tests/support/test_documents.h"
#include "tests/support/test_page.h"
#include "tests/support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quill::test {

/// One condition of a definition, with its attributes as text.
inline std::string condition(const std::string& name, const std::string& attributes = {})
{
    return "<status name=\"" + name + "\" " + attributes + "/>";
}

inline std::string severity(const std::string& word)
{
    return "class=\"" + word + "\" ";
}

inline std::string namur(const std::string& word)
{
    return "classNAMUR=\"" + word + "\" ";
}

inline std::string maskAt(int byte, int bit)
{
    return "maskByte=\"" + std::to_string(byte) + "\" maskBit=\"" + std::to_string(bit) + "\" ";
}

inline std::string branch(const std::string& name, const std::string& conditions)
{
    return "<group name=\"" + name + "\">" + conditions + "</group>";
}

/// Device type information with this status tree.
inline IXMLDOMDocument definition(const std::string& branches)
{
    return documents::openText("<device><deviceStatus>" + branches + "</deviceStatus></device>");
}

inline std::string statusItem(const std::string& name, const std::string& value)
{
    return item(name, "noUnit", "integerVal", value);
}

/// A response that brings the values of conditions.
inline IXMLDOMDocument statusResponse(const std::string& items,
                                      const std::string& name = "deviceStatus")
{
    return okResponse(name, items);
}

inline IXMLDOMDocument errorResponse(const std::string& name, const std::string& items = {},
                                     const std::string& status = "error")
{
    return response("name=\"" + name + "\" responseStatus=\"" + status + "\" errorCode=\"x\"",
                    items);
}

inline std::string maskParameter(const std::string& name, const std::string& value)
{
    return "<data:parameter name=\"" + name + "\" type=\"hexVal\" unit=\"noUnit\" value=\"" +
           value + "\" synchronised=\"1\"/>";
}

inline std::vector<std::string> iconsOf(const StatusTreeView& view)
{
    std::vector<std::string> icons;
    for (int row = 1; row <= view.scgStatus.RowCount(); ++row) {
        icons.push_back(view.scgStatus.CellIcon(row, 1));
    }
    return icons;
}

inline std::vector<std::string> textsOf(const platform::Grid& grid)
{
    std::vector<std::string> texts;
    for (int row = 1; row <= grid.RowCount(); ++row) {
        texts.push_back(grid.cell(row, 1).Text);
    }
    return texts;
}

inline std::vector<std::string> descriptionsOf(const StatusTreeView& view)
{
    std::vector<std::string> texts;
    for (int row = 1; row <= view.scgStatus.RowCount(); ++row) {
        texts.push_back(view.scgStatus.RowDescription(row));
    }
    return texts;
}

/// Counts what a renderer would have to paint.
class PaintCounter {
public:
    explicit PaintCounter(platform::Grid& grid)
        : mOnChange(grid.Changed.subscribe([this](const platform::WidgetChange& change) {
              if (change.what == platform::WidgetChange::What::rowsChanged) {
                  for (int row = change.first; row <= change.last; ++row) {
                      rows.insert(row + 1);
                  }
              } else {
                  ++others;
              }
          }))
    {
    }
    std::set<int> rows;
    int           others = 0;

private:
    platform::Subscription mOnChange;
};

/// A status view on a page, with a host.
template <class View>
class StatusViewTest : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    TestPage            page;
    View                view{page, {.Name = "status", .Tag = "deviceStatus"}};

    void load(const std::string& branches)
    {
        messenger.deviceTypeInfo = definition(branches);
        view.SetMessenger(&messenger);
        messenger.clear();
    }
    void online(const std::string& items, const std::string& name = "deviceStatus")
    {
        view.SetOnlineData(statusResponse(items, name));
    }
    [[nodiscard]] std::vector<std::string> icons() const { return iconsOf(view); }
    [[nodiscard]] std::vector<std::string> descriptions() const { return descriptionsOf(view); }
};

} // namespace quill::test
