#include "shell/book.h"

#include "framework/documents.h"
#include "framework/steps.h"

#include <algorithm>

namespace quill::shell {

Book::Book(const std::vector<PageDescription>& pages) : ViewBase({.Name = "book"})
{
    for (const auto& description : pages) {
        mPages.push_back(std::make_unique<Page>(*this, description));
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

EditorBase* Book::find(const std::string& parameter) const
{
    for (const auto& page : mPages) {
        if (EditorBase* editor = page->find(parameter)) {
            return editor;
        }
    }
    return nullptr;
}

void Book::layOut(std::int32_t width)
{
    mLaidOutFor = width;
    if (Page* page = shownPage()) {
        page->layOut(width);
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
    step([&] {
        const auto items = documents::errorItems(node);
        for (const auto& page : mPages) {
            for (long place = 0; place < items.get_length(); ++place) {
                if (page->find(documents::attributeText(items.get_item(place), "name"))) {
                    concerned.push_back(page.get());
                    break;
                }
            }
        }
    });
    if (concerned.empty() && shownPage() != nullptr) {
        concerned.push_back(shownPage());
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

void Book::RequestFocus()
{
    if (Page* page = shownPage()) {
        page->RequestFocus();
    }
}

} // namespace quill::shell
