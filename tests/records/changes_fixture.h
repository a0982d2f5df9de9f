#pragma once

#include "framework/documents.h"
#include "records/CtrChanges.h"
#include "support/fake_editors.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>

namespace quill::test {

using namespace platform;

/// The dialog at a host of its own, with its texts, and editors that book at it.
class CtrChangesTest : public testing::Test {
protected:
    ToolkitScope                             toolkit;
    RecordingMessenger                       host;
    RecordingTranslator                      translator;
    Control                                  form;
    CtrChanges                               dialog;
    std::vector<std::unique_ptr<FakeEditor>> editors;

    void SetUp() override
    {
        translator.prefix = "t:";
        dialog.SetMessenger(&host);
        dialog.Localize(translator);
        host.clear();
    }

    FakeEditor& editorWithItem(const std::string& name, const std::string& value = "1")
    {
        editors.push_back(std::make_unique<FakeEditor>(form, EditorKind::text, "ctr_" + name));
        editors.back()->xmlItem = documents::itemDocument(name, "mm", "floatVal", value);
        return *editors.back();
    }
    void book(FakeEditor& editor, const std::string& group, const std::string& oldText = "0")
    {
        host.BookChange(editor, editor.Tag, editor.Tag, oldText, "1", "", "floatVal", group);
    }
    /// The requests that were sent, as "name: xml".
    std::vector<std::string> download()
    {
        host.clear();
        dialog.cmdDownload.click();
        return host.callsTo("SendCommunicationRequest");
    }
};

} // namespace quill::test
