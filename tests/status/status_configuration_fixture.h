#pragma once

#include "status/StatusConfiguration.h"

#include "tests/support/recording_messenger.h"
#include "tests/support/test_documents.h"
#include "tests/support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quill::test {

/// A mask model as the configurable view makes it: 12 bytes in 3 parts, a Messenger that records.
class StatusConfigurationTest : public testing::Test {
protected:
    StatusConfigurationTest()
    {
        masks.SetMaskProperties(255, 12, 3);
        masks.SetMessenger(&messenger);
    }

    /// A definition with these attributes, as it stands in the device type information.
    static IXMLDOMNode definition(const std::string& attributes)
    {
        return documents::openText("<status " + attributes + "/>").get_documentElement();
    }
    /// Adds a condition with a name, a byte and a bit.
    void addBit(int row, const std::string& name, int maskByte, int maskBit)
    {
        masks.AddBit(static_cast<std::int16_t>(row),
                     definition("name=\"" + name + "\" maskByte=\"" + std::to_string(maskByte) +
                                "\" maskBit=\"" + std::to_string(maskBit) + "\""));
    }
    /// Conditions for every bit of so many bytes: row and name ("s" and the row) count the bits.
    void addBits(int bytes)
    {
        for (int row = 0; row < bytes * 8; ++row) {
            addBit(row, nameOf(row), row / 8, row % 8);
        }
    }
    static std::string nameOf(int row) { return "s" + std::to_string(row); }

    static std::string parameter(const std::string& name, const std::string& value)
    {
        return "<data:parameter name=\"" + name + "\" type=\"hexVal\" value=\"" + value +
               "\" unit=\"noUnit\" synchronised=\"1\"/>";
    }
    /// Opens a datafile with these parameters and hands all of them over.
    void setOffline(const std::string& parameters)
    {
        file = test::datafile(parameters);
        masks.SetOfflineParameters(file.selectNodes("//data:parameter"));
    }
    /// The same for one mask in parts named "statusMask1" and so on.
    void setMasks(const std::vector<std::string>& parts)
    {
        std::string parameters;
        int         number = 0;
        for (const auto& part : parts) {
            parameters += parameter("statusMask" + std::to_string(++number), part);
        }
        setOffline(parameters);
    }
    void setOnline(const std::string& items)
    {
        masks.SetOnlineParameters(test::okResponse("masks", items).selectNodes("//comm:item"));
    }
    /// An attribute of a parameter in the datafile; "(none)" if it is missing.
    std::string inFile(const std::string& name, const std::string& attribute = "value")
    {
        const auto node =
            file.selectSingleNode("//data:parameter[@name=\"" + name + "\"]/@" + attribute);
        return node ? node.get_text() : "(none)";
    }
    /// Names of the rows that are switched on.
    std::vector<std::string> enabled(int rows)
    {
        std::vector<std::string> names;
        for (int row = 0; row < rows; ++row) {
            if (masks.IsEnabled(std::to_string(row))) {
                names.push_back(nameOf(row));
            }
        }
        return names;
    }
    [[nodiscard]] std::vector<std::string> logs() const { return messenger.callsTo("WriteLog"); }

    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    StatusConfiguration masks;
    IXMLDOMDocument     file;
};

} // namespace quill::test
