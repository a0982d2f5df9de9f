#pragma once

#include "../support/toolkit_scope.h"
#include "editor_page.h"
#include "framework/documents.h"
#include "platform/failure.h"
#include "shell/shell_messenger.h"

#include <QCoreApplication>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace quill::shell {

/// A user who answers by script.
class ScriptedUser : public UserDialogs {
public:
    std::vector<std::string> messages;
    bool                     says = false;

    void showMessage(const QString& title, const QString& text) override
    {
        messages.push_back((title + ": " + text).toStdString());
    }
    bool askQuestion(const QString& title, const QString& text) override
    {
        showMessage(title, text);
        return says;
    }
};

/// A datafile of a device that the program knows nothing of.
inline constexpr const char* otherDatafile =
    R"(<dtm xmlns="x-schema:QVXDatafileSchema.xml" xmlns:typeInfo="x-schema:QVXDeviceTypeInfoSchema.xml">
<persistentData><typeInfo:device><typeInfo:internalInfo name="OTHER"/></typeInfo:device>
<parameters><parameter name="tag" type="stringVal" value="X" access="readWrite" synchronised="1"/>
</parameters></persistentData></dtm>)";

/// The shell without its window: a page of real editors over the sample datafile and its device.
class Shell : public testing::Test {
protected:
    Shell()
    {
        messenger.setDialogs(&user);
        messenger.openSample();
        page.addText("tag").ForceHartPackedAscii(true);
        page.addText("descriptor");
        page.addText("supplyPressure");
        page.addText("supplyLowPressure");
        page.addText("proportionalGain");
        page.addText("openingTime");
        page.addText("curveOutput_2");
        page.addCombo("characteristic");
        page.addCombo("alarmHighAction_2");
        page.addDate("installationDate");
        page.SetMessenger(&messenger);
        messenger.deliverDatafile(page);
        // The lists of the combo boxes have come with the datafile.
        messenger.localize(page);
        QObject::connect(&messenger, &ShellMessenger::onlineDataArrived,
                         [this](const IXMLDOMNode& response) { page.SetOnlineData(response); });
        QObject::connect(&messenger, &ShellMessenger::errorDataArrived,
                         [this](const IXMLDOMNode& response) { page.SetErrorData(response); });
        QObject::connect(&messenger, &ShellMessenger::datafileChanged,
                         [this] { messenger.deliverDatafile(page); });
        QObject::connect(&messenger, &ShellMessenger::languageChanged,
                         [this] { messenger.localize(page); });
        QObject::connect(&messenger, &ShellMessenger::errorReported,
                         [this](const QString& where, int number, const QString& description) {
                             // Frames and labels are no data users, which each response finds out.
                             if (number != platform::kNotSupportedByObject) {
                                 errors.push_back((where + ": " + description).toStdString());
                             }
                         });
    }
    ~Shell() override { page.PrepareToRelease(); }

    template <class Editor>
    Editor& editor(const std::string& name)
    {
        for (platform::Widget* widget : page.GetControls()) {
            if (auto* found = dynamic_cast<Editor*>(widget); found && found->Tag == "ctr_" + name) {
                return *found;
            }
        }
        throw std::runtime_error("no editor of " + name);
    }
    CtrTextEdit& text(const std::string& name) { return editor<CtrTextEdit>(name); }

    void waitForDevice()
    {
        while (messenger.isWaiting()) {
            QCoreApplication::processEvents();
        }
    }
    std::string saved(const std::string& name)
    {
        const auto content = messenger.store().content(name);
        return content.value + "|" + content.unit + "|" + content.synchronised;
    }

    test::ToolkitScope       toolkit;
    ScriptedUser             user;
    ShellMessenger           messenger;
    test::EditorPage         page;
    std::vector<std::string> errors;
};

} // namespace quill::shell
