#pragma once

#include "framework/view_base.h"

#include <string>
#include <utility>

namespace quill::probe {

/// A page of the probe's host: a view whose children arrive by `create` lines.
class Page : public ViewBase {
public:
    Page(const platform::Design& design, std::string type)
        : ViewBase(design), mType(std::move(type))
    {
    }
    Page(platform::Widget& container, const platform::Design& design, std::string type)
        : ViewBase(container, design), mType(std::move(type))
    {
    }

    [[nodiscard]] const char* TypeName() const override { return mType.c_str(); }

private:
    std::string mType;
};

} // namespace quill::probe
