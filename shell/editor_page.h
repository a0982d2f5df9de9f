#pragma once

#include "editors/CtrDateLabel.h"
#include "shell/page.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quill::shell {

/// A page of editors, built from its description. Each editor stands in a frame of its own whose
/// `Tag` is the parameter's name: that is the name under which the editor reports its states.
class EditorPage : public Page {
public:
    EditorPage(platform::Widget& container, const PageDescription& description);
    ~EditorPage() override;

    [[nodiscard]] const char* TypeName() const override { return "EditorPage"; }

    [[nodiscard]] EditorCore*              find(const std::string& parameter) const override;
    [[nodiscard]] platform::Label*         labelOf(const std::string& parameter) const override;
    [[nodiscard]] platform::CommandButton* readButton(const std::string& group) const override;
    /// The request groups that the parameters of the page belong to.
    [[nodiscard]] std::vector<std::string> groups() const override;
    using Page::hasEdits;
    [[nodiscard]] bool hasEdits(const std::string& group) const override;
    /// A response that names a parameter of the page.
    [[nodiscard]] bool isConcernedBy(const IXMLDOMNode& errorResponse) const override;

    /// Lays the sections out side by side as far as the width allows; the height is what comes of
    /// it. Texts decide what a section needs, so this follows every change of them.
    void layOut(const PageSpace& space) override;

    void takeUnits(const std::function<bool(const std::string& parameter)>& wanted) override;

    void SetMessenger(Messenger* messenger) override;
    void Localize(Translator& translator) override;
    void SetOfflineData(const IXMLDOMNode& node) override;
    /// A response about nothing on the page is none of its business: the device tells its status
    /// all the time.
    void SetOnlineData(const IXMLDOMNode& node) override;
    void RequestFocus() override;

private:
    struct Row;
    struct Section;

    [[nodiscard]] bool         findsItem(const IXMLDOMNodeList& items) const;
    void                       addSection(const PageSection& section);
    void                       addRow(Section& section, const PageRow& row);
    void                       addReading(Section& section);
    [[nodiscard]] Row*         row(const std::string& parameter) const;
    [[nodiscard]] std::int32_t labelWidth() const;
    /// Places what lies in the section and answers the width that it needs.
    static std::int32_t fill(Section& section, std::int32_t labelWidth);
    static void         setMode(Section& section, std::int32_t mode);

    std::vector<std::unique_ptr<Section>> mSections;
    PageSpace                             mLaidOutFor;
    platform::Subscription                mOnMode;
};

} // namespace quill::shell
