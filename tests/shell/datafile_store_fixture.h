#pragma once

#include "../support/toolkit_scope.h"
#include "framework/documents.h"
#include "shell/datafile_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace quill::shell {

/// A datafile as nobody's writer would write it, so that a save that rewrites shows.
inline const std::string kFile =
    "<?xml version=\"1.0\" encoding='utf-8' ?>\r\n"
    "<!-- by hand: <parameter name='gain' value='9'/> -->\n"
    "<d:dtm  xmlns:d='x-schema:QVXDatafileSchema.xml'>\n"
    "\t<d:persistentData><d:parameters>\n"
    "  <d:parameter value = \"5\"  name='gain' type='floatVal' unit='' decimals='2' minVal=''"
    " maxVal='' access='readWrite' synchronised='1'></d:parameter>\n"
    "  <d:parameter name='pressure' type='floatVal' value='2.50' unit='bar' decimals='2' minVal=''"
    " maxVal='' access='readWrite' synchronised='1'/>\n"
    "  <d:parameter name='text' type='stringVal' value='K&#228;se &amp; Brot' unit='noUnit'"
    " access='readWrite' synchronised='0' />\n"
    "  <d:parameter name='bare' type='stringVal' access='readWrite'/>\n"
    "  <d:parameter name='gain' type='floatVal' value='77' unit='' access='readWrite'"
    " synchronised='1'/>\n"
    "</d:parameters></d:persistentData>\n"
    "<d:requestGroups><d:requestGroup lastUpdate='01.02.2020 03:04:05' name='all'>"
    "<d:includedParam name='gain'/></d:requestGroup><d:requestGroup name='other'/>"
    "</d:requestGroups></d:dtm>\n\n";

inline std::string with(std::string text, const std::string& what, const std::string& by)
{
    const auto at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    EXPECT_EQ(text.find(what, at + 1), std::string::npos) << what << " stands twice";
    return text.replace(at, what.size(), by);
}

/// A store that has this file open.
class Store : public testing::Test {
protected:
    Store() { store.loadBytes(kFile); }

    /// What an editor does when its text changes.
    void editorWrites(const std::string& name, const std::string& value, const std::string& unit)
    {
        const auto node = documents::findParameter(store.document(), name);
        documents::writeAttribute(node, "value", value);
        documents::writeAttribute(node, "unit", unit);
        documents::writeAttribute(node, "synchronised", "0");
    }
    void userEdits(const std::string& name, const std::string& value,
                   const std::string& unit = "noUnit")
    {
        store.setParameterState(name, "edited");
        editorWrites(name, value, unit);
    }
    /// The value as the working document has it.
    std::string working(const std::string& name)
    {
        const auto node = documents::findParameter(store.document(), name);
        return documents::attributeText(node, "value") + "|" +
               documents::attributeText(node, "unit") + "|" +
               documents::attributeText(node, "synchronised");
    }
    std::string saved(const std::string& name)
    {
        const auto content = store.content(name);
        return content.value + "|" + content.unit + "|" + content.synchronised;
    }

    test::ToolkitScope toolkit;
    DatafileStore      store;
};

} // namespace quill::shell
