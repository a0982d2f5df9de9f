#include "shell/book.h"

#include "framework/steps.h"
#include "shell/editor_page.h"
#include "shell/view_page.h"

#include <algorithm>

namespace quill::shell {

namespace {

std::unique_ptr<Page> makePage(platform::Widget& container, const PageDescription& description)
{
    if (!description.view.empty()) {
        return std::make_unique<ViewPage>(container, description);
    }
    return std::make_unique<EditorPage>(container, description);
}

} // namespace

Book::Book(const std::vector<PageDescription>& pages) : ViewBase({.Name = "book"})
{
    for (const auto& description : pages) {
        mPages.push_back(makePage(*this, description));
        mPages.back()->Visible = false;
    }
}

Book::~Book() = default;

Page* Book::page(const std::string& tag) const
{
    const auto found = std::find_if(mPages.begin(), mPages.end(),
                                    [&](const auto& page) { return page->Tag == tag; });
    return found != mPages.end() ? found->get() : nullptr;
}

EditorCore* Book::find(const std::string& parameter) const
{
    for (const auto& page : mPages) {
        if (EditorCore* editor = page->find(parameter)) {
            return editor;
        }
    }
    return nullptr;
}

void Book::layOut(const PageSpace& space)
{
    mLaidOutFor = space;
    if (Page* page = shownPage()) {
        page->layOut(space);
        takeSize();
    }
}

void Book::takeSize()
{
    if (const Page* page = shownPage()) {
        Width  = page->Width.get();
        Height = page->Height.get();
    }
}

void Book::Localize(Translator& translator)
{
    ViewBase::Localize(translator);
    layOut(mLaidOutFor);
}

void Book::SetOfflineData(const IXMLDOMNode& node)
{
    ViewBase::SetOfflineData(node);
    layOut(mLaidOutFor);
}

void Book::SetOnlineData(const IXMLDOMNode& node)
{
    ViewBase::SetOnlineData(node);
    // Times of last read and units have other widths now.
    layOut(mLaidOutFor);
}

void Book::SetErrorData(const IXMLDOMNode& node)
{
    const Steps        step{GetMessenger(), "Book SetErrorData: "};
    std::vector<Page*> concerned;
    for (const auto& page : mPages) {
        if (step.value(false, [&] { return page->isConcernedBy(node); })) {
            concerned.push_back(page.get());
        }
    }
    if (concerned.empty()) {
        const auto tells = [](const auto& page) { return page->tellsAnyError(); };
        const auto first = std::ranges::find_if(mPages, tells);
        if (shownPage() != nullptr && shownPage()->tellsAnyError()) {
            concerned.push_back(shownPage());
        } else if (first != mPages.end()) {
            concerned.push_back(first->get());
        }
    }
    for (Page* page : concerned) {
        step([&] { page->SetErrorData(node); });
    }
}

void Book::SetSelectedView(const std::string& name)
{
    // The page that is shown already: `ShowViewPage` would turn to the first one.
    if (name == mShown || page(name) == nullptr) {
        return;
    }
    ViewBase::SetSelectedView(name);
    mShown = GetSelectedView();
    // Pages behind the front one take part in no tab order.
    for (const auto& page : mPages) {
        page->Visible = page->Tag == mShown;
    }
    layOut(mLaidOutFor);
}

bool Book::LeaveSelectedView()
{
    Page* const page = shownPage();
    const Steps step{GetMessenger(), "Book LeaveSelectedView: "};
    return page == nullptr || step.value(true, [&] { return page->LeaveSelectedView(); });
}

void Book::takeUnits(const std::function<bool(const std::string& parameter)>& wanted)
{
    for (const auto& page : mPages) {
        page->takeUnits(wanted);
    }
}

void Book::letGo()
{
    for (const auto& page : mPages) {
        page->letGo();
    }
}

void Book::RequestFocus()
{
    if (Page* page = shownPage()) {
        page->RequestFocus();
    }
}

} // namespace quill::shell
