#pragma once

#include "editors/CtrDateLabel.h"
#include "editors/editor_base.h"
#include "framework/view_base.h"
#include "platform/buttons.h"
#include "platform/label.h"
#include "shell/page_description.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quill::shell {

/// A page of editors, built from its description. Each editor stands in a frame of its own whose
/// `Tag` is the parameter's name: that is the name under which the editor reports its states.
class Page : public ViewBase {
public:
    Page(platform::Widget& container, const PageDescription& description);
    ~Page() override;

    [[nodiscard]] const char*            TypeName() const override { return "Page"; }
    [[nodiscard]] const PageDescription& description() const { return mDescription; }

    /// The editor of a parameter, nothing if the page has none.
    [[nodiscard]] EditorBase* find(const std::string& parameter) const;
    /// The label in front of an editor.
    [[nodiscard]] platform::Label* labelOf(const std::string& parameter) const;
    /// The button that reads a request group, nothing for a group without one.
    [[nodiscard]] platform::CommandButton* readButton(const std::string& group) const;
    /// The request groups that the parameters of the page belong to, in the order of the page.
    /// Known once the datafile was delivered.
    [[nodiscard]] std::vector<std::string> groups() const;
    /// Whether reading this group, or any for the empty name, would replace edits of the page.
    [[nodiscard]] bool hasEdits(const std::string& group = {}) const;

    /// Lays the sections out side by side as far as `width` (twips) allows, and takes the size that
    /// comes of it. Texts decide what a section needs, so this follows every change of them.
    void layOut(std::int32_t width);

    void SetMessenger(Messenger* messenger) override;
    void Localize(Translator& translator) override;
    void SetOfflineData(const IXMLDOMNode& node) override;
    /// A page has no sub-pages: it is the one that it shows.
    void        SetSelectedView(const std::string&) override {}
    std::string GetSelectedView() override { return Tag; }
    void        RequestFocus() override;

private:
    struct Row;
    struct Section;

    void                       addSection(const PageSection& section);
    void                       addRow(Section& section, const PageRow& row);
    void                       addReading(Section& section);
    [[nodiscard]] Row*         row(const std::string& parameter) const;
    [[nodiscard]] std::int32_t labelWidth() const;
    /// Places what lies in the section and answers the width that it needs.
    static std::int32_t fill(Section& section, std::int32_t labelWidth);
    static void         setMode(Section& section, std::int32_t mode);

    PageDescription                       mDescription;
    std::vector<std::unique_ptr<Section>> mSections;
    std::int32_t                          mLaidOutFor = 0;
    platform::Subscription                mOnMode;
};

} // namespace quill::shell
