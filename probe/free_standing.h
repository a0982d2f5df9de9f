#pragma once

#include "platform/widget.h"

#include <string>
#include <utility>

namespace quill::probe {

/// An object that is no widget, in one that nobody sees: so lines create, name and release it as
/// they do with a control.
template <class T>
class FreeStanding : public platform::Widget, public T {
public:
    FreeStanding(platform::Widget& container, const platform::Design& design, std::string type)
        : Widget(container, design), mType(std::move(type))
    {
        Visible = false;
    }
    [[nodiscard]] const char* TypeName() const override { return mType.c_str(); }

private:
    std::string mType;
};

} // namespace quill::probe
