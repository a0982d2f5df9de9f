#pragma once

#include "framework/named_callbacks.h"
#include "framework/view_base.h"
#include "probe/host.h"

#include <string>
#include <utility>
#include <vector>

namespace quill::probe {

/// A page of the probe's host: a view whose children arrive by `create` lines. Methods that they
/// call on it by name are reported, whatever the name.
class Page : public ViewBase, public NamedCallbacks {
public:
    Page(const Host& host, const platform::Design& design, std::string type)
        : ViewBase(design), mHost(host), mType(std::move(type))
    {
    }
    Page(const Host& host, platform::Widget& container, const platform::Design& design,
         std::string type)
        : ViewBase(container, design), mHost(host), mType(std::move(type))
    {
    }

    [[nodiscard]] const char* TypeName() const override { return mType.c_str(); }

    void callByName(const std::string& method, const std::vector<std::string>& args) override
    {
        mHost.calledBack(method, args);
    }

private:
    const Host& mHost;
    std::string mType;
};

} // namespace quill::probe
