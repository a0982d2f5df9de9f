#pragma once

#include "platform/headless_toolkit.h"

namespace quill::test {

/// A headless toolkit that is the current one as long as the scope lives.
class ToolkitScope : public platform::HeadlessToolkit {
public:
    explicit ToolkitScope(const std::string& decimal = ".")
    {
        localeSettings.decimal = decimal;
        setCurrent(this);
    }
    ~ToolkitScope() override { setCurrent(nullptr); }
    ToolkitScope(const ToolkitScope&)            = delete;
    ToolkitScope& operator=(const ToolkitScope&) = delete;
};

} // namespace quill::test
