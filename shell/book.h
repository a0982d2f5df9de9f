#pragma once

#include "framework/view_base.h"
#include "shell/page.h"

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
    [[nodiscard]] EditorCore* find(const std::string& parameter) const;

    /// Fits the shown page to its room and takes its size.
    void layOut(const PageSpace& space);

    /// For all pages (see `Page::takeUnits`).
    void takeUnits(const std::function<bool(const std::string& parameter)>& wanted);

    /// Lets all pages end what they have begun on the device (see `Page::letGo`).
    void letGo();

    /// An error goes to the pages that it is about: every page that takes one tells the user. One
    /// that is about none goes to the page that is shown, or to the first one if that is not for
    /// it.
    void SetErrorData(const IXMLDOMNode& node) override;
    void Localize(Translator& translator) override;
    void SetOfflineData(const IXMLDOMNode& node) override;
    void SetOnlineData(const IXMLDOMNode& node) override;
    void SetSelectedView(const std::string& name) override;
    /// Asks the page that is shown; the others have been left.
    bool LeaveSelectedView() override;
    void RequestFocus() override;

private:
    void takeSize();

    std::vector<std::unique_ptr<Page>> mPages;
    std::string                        mShown;
    PageSpace                          mLaidOutFor;
};

} // namespace quill::shell
