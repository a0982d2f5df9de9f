#pragma once

#include "framework/view_base.h"

namespace quill::test {

/// A page as a host builds one. Children are put on it from outside or as members of a derived
/// page.
class TestPage : public ViewBase {
public:
    using ViewBase::ViewBase;

    /// What is taken for the sub-pages, where a test names them.
    platform::WidgetList pages;

protected:
    [[nodiscard]] platform::WidgetList subPages() const override
    {
        return pages.empty() ? ViewBase::subPages() : pages;
    }
};

} // namespace quill::test
