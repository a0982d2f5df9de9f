#pragma once

#include "records/CtrEventLog.h"

#include "framework/documents.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/test_documents.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quill::test {

inline const std::string kDashes     = "-------------------------------------------";
inline const std::string kResetEvent = "vx4400eventExternalReset";

/// The pieces of one event, as a device or a datafile has them; an empty one is left out.
struct LogEvent {
    int         index      = 0;
    std::string event      = {};
    std::string eventClass = {};
    std::string time       = {};
};

/// Columns of a row: class, event, time, date, index, row.
using Row = std::vector<std::string>;

/// A view of the event log with a host whose texts are "t:" + key.
class EventLogTest : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingMessenger  host;
    RecordingTranslator translator;
    platform::Control   form;
    CtrEventLog         view{form, {.Name = "log", .Tag = "eventLog"}};

    void SetUp() override
    {
        translator.prefix = "t:";
        host.translator   = &translator;
        view.SetMessenger(&host);
        host.clear();
    }

    /// The items of a message; `next` names them as a page of more events does.
    static std::string items(const std::vector<LogEvent>& events, bool next = false)
    {
        std::string text;
        for (const LogEvent& event : events) {
            const auto add = [&](const char* piece, const std::string& value) {
                if (!value.empty()) {
                    text += item(std::string("eventLog") + (next ? "Next" : "") + piece +
                                     (event.index < 10 ? "0" : "") + std::to_string(event.index),
                                 "noUnit", "stringVal", value);
                }
            };
            add("Event", event.event);
            add("Class", event.eventClass);
            add("Time", event.time);
        }
        return text;
    }

    static documents::IXMLDOMDocument message(const std::string& itemText, bool isFinal = true,
                                              const std::string& name = "eventLog")
    {
        return response("name=\"" + name +
                            R"(" access="read" responseStatus="ok" errorCode="" isFinal=")" +
                            (isFinal ? "1" : "0") + "\"",
                        itemText);
    }
    void receive(const std::vector<LogEvent>& events, bool isFinal = true,
                 const std::string& name = "eventLog")
    {
        view.SetOnlineData(message(items(events, name != "eventLog"), isFinal, name));
    }
    /// One more page: the user asks for it and the device answers.
    void receiveMore(const std::vector<LogEvent>& events, bool isFinal = true)
    {
        view.cmdNext.click();
        const bool isHART = view.paging().mblnIsHART;
        view.SetOnlineData(
            message(items(events, true), isFinal, isHART ? "eventLogContinued" : "eventLog"));
    }
    void fail(bool isFinal, const std::string& name = "eventLog",
              const std::string& code = "communicationError")
    {
        view.SetErrorData(response("name=\"" + name + R"(" responseStatus="error" errorCode=")" +
                                   code + "\" isFinal=\"" + (isFinal ? "1" : "0") + "\""));
    }

    /// A HART device with a log of `count` events, read online.
    void readHart(int count = 3)
    {
        view.UseHART();
        std::vector<LogEvent> read;
        for (int index = 0; index < count; ++index) {
            read.push_back({index, "event" + std::to_string(index), "class", "10"});
        }
        receive(read);
        host.clear();
    }

    static std::string parameter(const std::string& name, const std::string& value,
                                 const std::string& unit = "noUnit")
    {
        return "<data:parameter name=\"" + name + R"(" type="stringVal" value=")" + value +
               "\" unit=\"" + unit + "\"/>";
    }
    /// Parameters of a stored log: every piece, an empty one with an empty value.
    static std::string parameters(const std::vector<LogEvent>& events)
    {
        std::string text;
        for (const LogEvent& event : events) {
            const std::string suffix = (event.index < 10 ? "0" : "") + std::to_string(event.index);
            text += parameter("eventLogEvent" + suffix, event.event) +
                    parameter("eventLogClass" + suffix, event.eventClass) +
                    parameter("eventLogTime" + suffix, event.time);
        }
        return text;
    }
    /// `device` is the device type's name; an empty one leaves the device out.
    static documents::IXMLDOMDocument
    log(const std::string& device, const std::string& parameterText,
        const std::string& groups =
            R"(<data:requestGroup name="eventLog" lastUpdate="05.04.2024 12:13:14"/>)")
    {
        return documents::openText(
            std::string("<data:dtm xmlns:data=\"") + documents::kDatafileSchema +
            "\" xmlns:typeInfo=\"" + documents::kTypeInfoSchema +
            "\"><data:persistentData><data:parameters>" + parameterText + "</data:parameters>" +
            (device.empty() ? std::string{}
                            : "<typeInfo:device><typeInfo:internalInfo name=\"" + device +
                                  "\"/></typeInfo:device>") +
            "</data:persistentData><data:requestGroups>" + groups +
            "</data:requestGroups></data:dtm>");
    }

    [[nodiscard]] Row row(int number) const
    {
        const auto& shown = view.lsvEventLog.Item(number);
        Row         texts{shown.Text};
        texts.insert(texts.end(), shown.SubItems.begin(), shown.SubItems.end());
        return texts;
    }
    [[nodiscard]] std::vector<std::string> column(eventLog::Column which) const
    {
        std::vector<std::string> texts;
        for (const auto& shown : view.lsvEventLog.ListItems()) {
            texts.push_back(eventLog::column(shown, which));
        }
        return texts;
    }
    [[nodiscard]] std::vector<std::string> events() const { return column(eventLog::kEvent); }
    [[nodiscard]] std::vector<std::string> times() const { return column(eventLog::kTime); }
    [[nodiscard]] std::vector<std::string> dates() const { return column(eventLog::kDate); }
    [[nodiscard]] std::vector<std::string> indexes() const { return column(eventLog::kIndex); }
    [[nodiscard]] std::vector<std::string> numbers() const { return column(eventLog::kRow); }

    /// The log lines that contain a text.
    [[nodiscard]] std::vector<std::string> logged(const std::string& part) const
    {
        std::vector<std::string> found;
        for (const auto& line : host.callsTo("WriteLog")) {
            if (line.find(part) != std::string::npos) {
                found.push_back(line);
            }
        }
        return found;
    }
    [[nodiscard]] std::string value(const documents::IXMLDOMDocument& datafile,
                                    const std::string&                name) const
    {
        return documents::attributeText(documents::findParameter(datafile, name), "value");
    }
};

/// The view of a HART device.
class HartLogTest : public EventLogTest {
protected:
    void SetUp() override
    {
        EventLogTest::SetUp();
        view.UseHART();
    }
};

/// The view of a fieldbus device.
class FieldbusLogTest : public EventLogTest {
protected:
    void SetUp() override
    {
        EventLogTest::SetUp();
        view.UseFieldbus();
    }
};

} // namespace quill::test
