#pragma once

#include "framework/view_base.h"
#include "shell/page.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quill::shell {

/// All pages of a device, one of which is shown. It is the view that the shell hands every call
/// to, and it turns pages by `SetSelectedView` with a page's tag.
class Book : public ViewBase {
public:
    explicit Book(const std::vector<PageDescription>& pages);
    ~Book() override;

    [[nodiscard]] const char* TypeName() const override { return "Book"; }

    [[nodiscard]] const std::vector<std::unique_ptr<Page>>& pages() const { return mPages; }
    /// The page of this tag, nothing if there is none.
    [[nodiscard]] Page* page(const std::string& tag) const;
    /// The page that is shown, nothing before the first one was.
    [[nodiscard]] Page* shownPage() const { return page(mShown); }
    /// The editor of a parameter on whatever page, nothing if there is none.
    [[nodiscard]] EditorBase* find(const std::string& parameter) const;

    /// Fits the shown page to a width in twips and takes its size.
    void layOut(std::int32_t width);

    /// A response that names parameters goes to the pages that have them, any other to the page
    /// that is shown: every page that takes an error tells the user.
    void SetErrorData(const IXMLDOMNode& node) override;
    void Localize(Translator& translator) override;
    void SetOfflineData(const IXMLDOMNode& node) override;
    void SetOnlineData(const IXMLDOMNode& node) override;
    void SetSelectedView(const std::string& name) override;
    void RequestFocus() override;

private:
    void takeSize();

    std::vector<std::unique_ptr<Page>> mPages;
    std::string                        mShown;
    std::int32_t                       mLaidOutFor = 0;
};

} // namespace quill::shell
