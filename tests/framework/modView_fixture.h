#pragma once

#include "framework/modView.h"
#include "platform/failure.h"
#include "platform/widgets.h"
#include "support/fake_editors.h"
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

/// How the report of a plain widget ends that a dispatch meets.
inline constexpr const char* k438 = "438, Object doesn't support this property or method)";

/// A sub-view that writes down what it is handed.
class FakeSubView : public TestPage {
public:
    using TestPage::TestPage;
    std::vector<std::string> calls;
    std::string              failing;
    std::string              answersView;
    std::string              shown;
    Messenger*               given = nullptr;

    void Localize(Translator&) override { heard("Localize"); }
    void SetMessenger(Messenger* messenger) override
    {
        heard("SetMessenger");
        given = messenger;
    }
    Messenger* GetMessenger() override { return given; }
    void       SetErrorData(const IXMLDOMNode&) override { heard("SetErrorData"); }
    void       SetImportData(const IXMLDOMNode&) override { heard("SetImportData"); }
    void       SetOfflineData(const IXMLDOMNode&) override { heard("SetOfflineData"); }
    void       SetOnlineData(const IXMLDOMNode&) override { heard("SetOnlineData"); }
    void       SetSelectedView(const std::string& name) override
    {
        heard("SetSelectedView " + name);
        if (name == answersView) {
            shown = name;
        }
    }
    std::string GetSelectedView() override { return shown; }

private:
    void heard(const std::string& call)
    {
        calls.push_back(call);
        if (!failing.empty() && call.starts_with(failing)) {
            throw platform::failure(platform::kInvalidCall);
        }
    }
};

/// A child that takes data but is no view.
class FakeDataUser : public platform::Control, public IQornDataUser {
public:
    using Control::Control;
    int  errors = 0;
    void SetErrorData(const IXMLDOMNode&) override { ++errors; }
    void SetImportData(const IXMLDOMNode&) override {}
    void SetOfflineData(const IXMLDOMNode&) override {}
    void SetOnlineData(const IXMLDOMNode&) override {}
};

/// A page whose host listens and translates.
class ModView : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingMessenger  host;
    RecordingTranslator translator;
    TestPage            page;

    void SetUp() override
    {
        translator.prefix = "t:";
        host.translator   = &translator;
        page.SetMessenger(&host);
        host.clear();
    }
};

} // namespace quill::test
