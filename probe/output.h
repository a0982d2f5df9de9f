#pragma once

#include "probe/json.h"

#include <functional>
#include <string>
#include <utility>

namespace quill::probe {

/// Takes the lines that go out, one after the other, without their line break.
using Sink = std::function<void(const std::string& line)>;

/// Where reports and replies go, in the order in which things happen.
class Output {
public:
    explicit Output(Sink sink) : mSink(std::move(sink)) {}

    void line(const Reply& reply) const { mSink(toLine(reply)); }

    /// A report of a call: `{kind: name, "args": [...]}`.
    void call(const char* kind, const std::string& name, Reply args) const
    {
        Reply report;
        report[kind]   = name;
        report["args"] = std::move(args);
        line(report);
    }

private:
    Sink mSink;
};

} // namespace quill::probe
