#pragma once

#include "framework/documents.h"
#include "shell/device.h"
#include "shell/device_build.h"
#include "shell/device_physics.h"
#include "shell/device_status.h"

#include <QFile>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

/// What tests of the simulated device say to it, and how they take its answers apart.
namespace quill::shell::test {

inline std::string sampleText(const std::string& name)
{
    QFile file{QString::fromStdString(QUILL_SOURCE_DIR "/shell/data/" + name)};
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll().toStdString();
}

/// A sample device with all that it can do: "vx4400h" or "vx4400f".
inline SimulatedDevice fullDevice(const std::string& type)
{
    return buildDevice(documents::openText(sampleText(type + ".xml")));
}

inline IXMLDOMDocument typeInfo(const std::string& type)
{
    return documents::openText(sampleText(type + "_typeinfo.xml"));
}

inline DeviceModel& model(SimulatedDevice& device)
{
    return device.function<DevicePhysics>()->model();
}

inline DeviceStatus& status(SimulatedDevice& device)
{
    return *device.function<DeviceStatus>();
}

inline std::string request(const std::string& name, const std::string& access,
                           const std::string& items = {})
{
    return "<communicationRequest name=\"" + name + "\" access=\"" + access + "\">" + items +
           "</communicationRequest>";
}

inline std::string item(const std::string& name, const std::string& unit, const std::string& type,
                        const std::string& value)
{
    return "<item name=\"" + name + "\" unit=\"" + unit + "\"><" + type + ">" + value + "</" +
           type + "></item>";
}

inline std::string maskItem(const std::string& name, const std::string& value)
{
    return item(name, "noUnit", "stringVal", value);
}

/// The parts of an answer.
inline std::vector<IXMLDOMDocument> ask(SimulatedDevice& device, const std::string& request)
{
    std::vector<IXMLDOMDocument> parts;
    for (const std::string& text : device.answer(request)) {
        parts.push_back(documents::openText(text));
    }
    return parts;
}

inline std::vector<std::string> itemNames(const IXMLDOMNode& response)
{
    std::vector<std::string> names;
    for (const IXMLDOMNode& name : response.selectNodes("//comm:item/@name")) {
        names.push_back(name.get_text());
    }
    return names;
}

/// Error code of a response (empty for a good one) with the names of its items.
inline std::vector<std::string> outcome(const IXMLDOMNode& response)
{
    auto all = itemNames(response);
    all.insert(all.begin(), documents::responseAttribute(response, "errorCode"));
    return all;
}

/// The value of an item, wherever in the parts it stands; "?" if it stands nowhere.
inline std::string valueIn(const std::vector<IXMLDOMDocument>& parts, const std::string& name)
{
    for (const IXMLDOMDocument& part : parts) {
        if (const IXMLDOMNode found = documents::findItem(part, name)) {
            return found.get_text();
        }
    }
    return "?";
}

/// What the device says of one of its conditions.
inline std::string reported(SimulatedDevice& device, const std::string& condition)
{
    return valueIn(ask(device, request("deviceStatus", "read")), condition);
}

} // namespace quill::shell::test
