#pragma once

#include "editors/editor_base.h"

#include <optional>
#include <string>

namespace quill {

/// The editor of one parameter whose values form a list, a private copy of a `data:mappedParam`, of
/// whose entries one is chosen.
class ListEditor : public EditorBase, public MappedEditor {
public:
    /// The chosen entry by its `name`, empty for none: after every value of a document, after
    /// another entry by `Text`, and after the user has chosen another entry.
    platform::Event<const std::string&> Change;

    // MappedEditor
    void SetMappings(const IXMLDOMNode& mappedParam) override;
    // BoundEditor
    bool setImportData(const IXMLDOMNode& parameter) override;
    bool setOnlineData(const IXMLDOMNode& item) override;

    /// The entries, with what the editor has added to them, if there is a list.
    [[nodiscard]] const std::optional<IXMLDOMNodeList>& mappings() const { return mMappings; }
    /// The entry that choices are compared with, as the editor knows it.
    [[nodiscard]] const std::string& originalText() const { return mOriginalText; }

protected:
    using EditorBase::EditorBase;

    /// Offers the entries of a list that has just come.
    virtual void offerEntries(const Steps& step) = 0;
    /// Shows a value that came from outside and tells it.
    virtual void showValue(const Steps& step, const std::string& value) = 0;
    /// The same for a value that counts as an edit.
    virtual void showEdit(const Steps& step, const std::string& value) { showValue(step, value); }

    std::optional<IXMLDOMNodeList> mMappings;
    std::string                    mOriginalText;
};

} // namespace quill
