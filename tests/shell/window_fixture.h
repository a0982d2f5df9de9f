#pragma once

#include "editors/CtrComboEdit.h"
#include "editors/CtrDateEdit.h"
#include "editors/CtrTextEdit.h"
#include "framework/documents.h"
#include "qt/qt_toolkit.h"
#include "shell/main_window.h"
#include "shell/user_input.h"
#include "temporary_folder.h"

#include <QAction>
#include <QToolBar>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quill::shell::test {

/// The shell's window with a datafile in a folder of its own, a device that answers at once, and
/// boxes that a script answers.
class WindowTest : public testing::Test {
protected:
    WindowTest()
    {
        mToolkit.setLocale({});
        platform::Toolkit::setCurrent(&mToolkit);
        applyStyle(ColorScheme::light);
        openWindow();
        window->openSample();
        EXPECT_TRUE(window->saveAs(path()));
        EXPECT_TRUE(window->openDatafile(path()));
        userInput::settle();
    }
    ~WindowTest() override
    {
        window.reset();
        platform::Toolkit::setCurrent(nullptr);
    }

    void openWindow()
    {
        window = std::make_unique<MainWindow>(&dialogs);
        // Nothing happens by itself: a test that wants the status reads it.
        window->statusCycle().setInterval(std::chrono::milliseconds{0});
        QObject::connect(&messenger(), &ShellMessenger::onlineDataArrived, window.get(),
                         [this](const IXMLDOMNode& response) { keep(response); });
        QObject::connect(&messenger(), &ShellMessenger::errorDataArrived, window.get(),
                         [this](const IXMLDOMNode& response) { keep(response); });
        QObject::connect(&messenger(), &ShellMessenger::parameterStateChanged, window.get(),
                         [this](const QString& parameter, const QString& state) {
                             states << parameter + ' ' + state;
                         });
        window->show();
        window->activateWindow();
        userInput::settle();
    }

    [[nodiscard]] QString path() const { return QString::fromStdString(folder.path("device.xml")); }
    [[nodiscard]] ShellMessenger& messenger() { return window->messenger(); }
    [[nodiscard]] DatafileStore&  store() { return messenger().store(); }

    template <class Editor = EditorBase>
    Editor& editor(const std::string& parameter)
    {
        return dynamic_cast<Editor&>(*window->book().find(parameter));
    }
    QWidget& shown(const platform::Widget& widget)
    {
        window->view().flush();
        return *window->view().shown(widget);
    }
    QWidget& toolButton(const char* command)
    {
        return *window->findChild<QToolBar*>("commands")->widgetForAction(window->command(command));
    }
    void goOnline()
    {
        window->command("online")->trigger();
        userInput::settle();
    }
    void waitForDevice()
    {
        ASSERT_TRUE(userInput::wait([this] { return !messenger().isWaiting(); }));
    }
    void read(const std::string& group)
    {
        ASSERT_TRUE(messenger().readGroup(group));
        waitForDevice();
    }

    [[nodiscard]] std::string inDocument(const std::string& parameter, const char* attribute)
    {
        return attributeIn(store().document(), parameter, attribute);
    }
    [[nodiscard]] std::string onDisk(const std::string& parameter, const char* attribute)
    {
        return attributeIn(documents::openFile(path().toStdString()), parameter, attribute);
    }

    TemporaryFolder             folder;
    ScriptedDialogs             dialogs;
    QStringList                 responses; ///< "write signal ok"
    QStringList                 states;    ///< "ratedTravel edited"
    std::unique_ptr<MainWindow> window;

private:
    static std::string attributeIn(const IXMLDOMDocument& document, const std::string& parameter,
                                   const char* attribute)
    {
        return documents::attributeText(documents::findParameter(document, parameter), attribute);
    }
    void keep(const IXMLDOMNode& response)
    {
        const std::string code = documents::responseAttribute(response, "errorCode");
        responses << QString::fromStdString(documents::responseAttribute(response, "access") + ' ' +
                                            documents::responseAttribute(response, "name") + ' ' +
                                            (code.empty() ? "ok" : code));
    }

    qt::QtToolkit mToolkit;
};

} // namespace quill::shell::test
