#pragma once

#include "editors/editor_core.h"
#include "framework/view_base.h"
#include "platform/buttons.h"
#include "platform/label.h"
#include "shell/page_description.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace quill::shell {

/// The room for a page, in twips.
struct PageSpace {
    std::int32_t width  = 0;
    std::int32_t height = 0;
    std::int32_t bar    = 0; ///< what a scroll bar takes of the width or the height
};

/// One page of the book. There are two kinds: a page of editors that the shell lays out, and a page
/// that holds one view of the library.
class Page : public ViewBase {
public:
    [[nodiscard]] const PageDescription& description() const { return mDescription; }

    /// The editor of a parameter, nothing if the page has none.
    [[nodiscard]] virtual EditorCore* find(const std::string&) const { return nullptr; }
    /// The label in front of an editor.
    [[nodiscard]] virtual platform::Label* labelOf(const std::string&) const { return nullptr; }
    /// The button that reads a request group, nothing for a group without one.
    [[nodiscard]] virtual platform::CommandButton* readButton(const std::string&) const
    {
        return nullptr;
    }
    /// What the device is asked for when the page is read: names of requests, in the order of the
    /// page. Known once the datafile was delivered.
    [[nodiscard]] virtual std::vector<std::string> groups() const = 0;
    /// Whether reading this group, or any for the empty name, would replace edits of the page.
    [[nodiscard]] virtual bool hasEdits(const std::string&) const { return false; }
    [[nodiscard]] bool         hasEdits() const { return hasEdits({}); }
    /// Whether an error response is about something that the page shows.
    [[nodiscard]] virtual bool isConcernedBy(const IXMLDOMNode& errorResponse) const = 0;
    /// Whether the page tells the user of an error that concerns no page.
    [[nodiscard]] virtual bool tellsAnyError() const { return true; }

    /// Lets the editors of these parameters, as far as those have a unit, take their values anew
    /// from the datafile. A change of units converts what is on the screen, and with it the
    /// decimals that are lost there. The page must be laid out again.
    virtual void takeUnits(const std::function<bool(const std::string& parameter)>&) {}

    /// Takes its place and the size that comes of it: at least what its contents need.
    virtual void layOut(const PageSpace& space) = 0;

    /// The connection to the device is about to go: whatever this page has begun there is ended,
    /// also if it was left before.
    virtual void letGo() {}

    /// A page is the one that it shows.
    void        SetSelectedView(const std::string&) override {}
    std::string GetSelectedView() override { return Tag; }

protected:
    Page(platform::Widget& container, const PageDescription& description)
        : ViewBase(container, {.Name = description.tag, .Tag = description.tag}),
          mDescription(description)
    {
    }

private:
    PageDescription mDescription;
};

} // namespace quill::shell
