#pragma once

#include "platform/label.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/test_documents.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quill::test {

/// One editor of the parameter `name` on a page whose `Tag` is "page", with a datafile and a host.
template <class Editor>
class EditorTest : public testing::Test {
    std::string mName;

protected:
    explicit EditorTest(const char* name, const std::string& decimal = ".")
        : mName(name), toolkit(decimal)
    {
        edit.SetMessenger(&messenger);
    }

    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    platform::Control   form;
    platform::Frame     frame{form, {.Name = "frame", .Tag = "page"}};
    Editor              edit{frame, {.Name = mName, .Tag = "ctr_" + mName}};

    IXMLDOMDocument datafile;
    IXMLDOMDocument response;
    /// What `Change` has told, by an editor that has it.
    std::vector<std::string> changes;
    platform::Subscription   onChange = listenTo(edit);

    [[nodiscard]] const std::string& name() const { return mName; }
    virtual void                     forget()
    {
        messenger.clear();
        changes.clear();
    }
    [[nodiscard]] IXMLDOMNode parameter() const
    {
        return documents::findParameter(datafile, mName);
    }
    [[nodiscard]] std::string attribute(const char* attribute) const
    {
        return documents::attributeText(parameter(), attribute);
    }
    /// The item of a response that holds only this parameter.
    [[nodiscard]] IXMLDOMNode itemOf(const std::string& value, const std::string& unit,
                                     const std::string& type)
    {
        response = test::okResponse("group", test::item(mName, unit, type, value));
        return documents::findItem(response, mName);
    }
    static std::string state(const std::string& state)
    {
        return "SetParameterState(page, " + state + ")";
    }

    // What holds for every editor that shows a value which is in step with the device.

    void expectThatEmptyNodesDoNothing()
    {
        EXPECT_FALSE(edit.setOfflineData(nullptr));
        EXPECT_FALSE(edit.setOnlineData(nullptr));
        EXPECT_FALSE(edit.setImportData(nullptr));
        EXPECT_THAT(changes, testing::IsEmpty());
        EXPECT_THAT(messenger.calls, testing::IsEmpty());
    }
    /// Leaves one booking behind, and a context.
    void expectBookingsByScopeAndNotWhileSilent()
    {
        messenger.RequestChanges(kModifiedEditors);
        messenger.RequestChanges(kAllEditors);
        EXPECT_THAT(messenger.bookings, testing::IsEmpty()); // neither modified nor of a group
        edit.setContextTag("group");
        messenger.RequestChanges(kAllEditors);
        EXPECT_EQ(messenger.bookings.size(), 1U);
        edit.setSilent(true);
        messenger.RequestChanges(kAllEditors);
        EXPECT_EQ(messenger.bookings.size(), 1U);
        edit.setSilent(false);
    }

private:
    platform::Subscription listenTo(Editor& editor)
    {
        if constexpr (requires { editor.Change; }) {
            return editor.Change.subscribe(
                [this](const std::string& change) { changes.push_back(change); });
        } else {
            return {};
        }
    }
};

/// The same for an editor whose values form a list, with a host that translates.
template <class Editor>
class ListEditorTest : public EditorTest<Editor> {
protected:
    /// What a test gives that says nothing.
    struct Usual {
        std::string value;
        std::string entries;
        std::string type;
    };
    ListEditorTest(const char* name, Usual given, const std::string& decimal = ".")
        : EditorTest<Editor>(name, decimal), usual(std::move(given))
    {
        this->translator.prefix    = "T-";
        this->messenger.translator = &this->translator;
    }

    const Usual usual;

    using Or = std::optional<std::string>; ///< else what is usual

    void give(const std::string& value, const std::string& synchronised, const Or& entries = {},
              const Or& type = {}, const std::string& access = "readWrite")
    {
        this->datafile =
            test::datafile("<data:parameter name=\"" + this->name() + "\" type=\"" +
                               type.value_or(usual.type) + "\" value=\"" + value + "\" access=\"" +
                               access + "\" synchronised=\"" + synchronised + "\"/>",
                           "<data:mappedParam name=\"" + this->name() + "\">" +
                               entries.value_or(usual.entries) + "</data:mappedParam>");
    }
    [[nodiscard]] IXMLDOMNode mappedParam() const
    {
        return documents::findMappedParam(this->datafile, this->name());
    }
    /// What a page does at load.
    void load(const Or& value = {}, const std::string& synchronised = "1", const Or& entries = {},
              const Or& type = {}, const std::string& access = "readWrite")
    {
        give(value.value_or(usual.value), synchronised, entries, type, access);
        this->edit.SetMappings(mappedParam());
        this->edit.setOfflineData(this->parameter());
    }
    /// The same, and what was heard meanwhile is forgotten.
    void loadQuietly(const Or& value = {}, const std::string& synchronised = "1",
                     const Or& entries = {}, const Or& type = {})
    {
        load(value, synchronised, entries, type);
        this->forget();
    }
    [[nodiscard]] IXMLDOMNode online(const std::string& value, const Or& type = {})
    {
        return this->itemOf(value, "noUnit", type.value_or(usual.type));
    }
};

/// Three values of a device's mode.
inline constexpr const char* kModes = R"(<data:mapping value="0" name="off"/>)"
                                      R"(<data:mapping value="1" name="on"/>)"
                                      R"(<data:mapping value="7" name="auto"/>)";

} // namespace quill::test
