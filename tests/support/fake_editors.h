#pragma once

#include "framework/editor_contract.h"
#include "platform/failure.h"
#include "platform/widget.h"

#include <map>
#include <string>
#include <vector>

namespace quill::test {

/// Writes down what the dispatch does with an editor, and refuses what it is told to refuse.
class FakeEditorBase {
public:
    std::vector<std::string> calls;
    /// These calls throw failure 5 after they were written down.
    std::string failing;
    std::string contextTag;

protected:
    void heard(const std::string& call, const std::string& argument = {})
    {
        calls.push_back(argument.empty() ? call : call + " " + argument);
        if (!failing.empty() && call == failing) {
            throw platform::failure(platform::kInvalidCall);
        }
    }
    /// The `name` of a node, "nothing" for none.
    static std::string nameOf(const IXMLDOMNode& node)
    {
        return node ? node.selectSingleNode("./@name").get_text() : "nothing";
    }
};

/// An editor of any kind that keeps no value of its own.
class FakeEditor : public platform::Control,
                   public IQornComponent,
                   public ILocalizable,
                   public BoundEditor,
                   public FakeEditorBase {
public:
    FakeEditor(platform::Widget& container, EditorKind kind, const std::string& tag)
        : Control(container, {.Name = "editor", .Tag = tag}), mKind(kind)
    {
    }

    Messenger* messenger = nullptr;

    [[nodiscard]] EditorKind  kind() const override { return mKind; }
    [[nodiscard]] std::string ContextTag() const override { return contextTag; }
    void                      setContextTag(const std::string& tag) override
    {
        heard("setContextTag", tag);
        contextTag = tag;
    }
    bool setImportData(const IXMLDOMNode& parameter) override
    {
        heard("setImportData", nameOf(parameter));
        return static_cast<bool>(parameter);
    }
    bool setOfflineData(const IXMLDOMNode& parameter) override
    {
        heard("setOfflineData", nameOf(parameter));
        return static_cast<bool>(parameter);
    }
    bool setOnlineData(const IXMLDOMNode& item) override
    {
        heard("setOnlineData", nameOf(item));
        return static_cast<bool>(item);
    }
    bool setLocalData(const IXMLDOMNode& item) override
    {
        heard("setLocalData", nameOf(item));
        return static_cast<bool>(item);
    }
    void            handleError(const std::string& code) override { heard("handleError", code); }
    IXMLDOMDocument GetXmlItem(bool) override
    {
        heard("GetXmlItem");
        return xmlItem;
    }
    void SetMessenger(Messenger* given) override
    {
        heard("SetMessenger");
        messenger = given;
    }
    void Localize(Translator&) override { heard("Localize"); }

    /// What `GetXmlItem` answers.
    IXMLDOMDocument xmlItem;

private:
    EditorKind mKind;
};

/// One with a value list.
class FakeMappedEditor : public FakeEditor, public MappedEditor {
public:
    using FakeEditor::FakeEditor;
    void SetMappings(const IXMLDOMNode& mappedParam) override
    {
        heard("SetMappings", nameOf(mappedParam));
    }
};

class FakeDateLabel : public platform::Control, public DateLabel {
public:
    FakeDateLabel(platform::Widget& container, const std::string& tag)
        : Control(container, {.Name = "dateLabel", .Tag = tag})
    {
    }
    std::string text = "before";

    [[nodiscard]] const char* TypeName() const override { return "CtrDateLabel"; }
    [[nodiscard]] std::string Caption() const override { return text; }
    void                      setCaption(const std::string& caption) override { text = caption; }
};

} // namespace quill::test
