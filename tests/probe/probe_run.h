#pragma once

#include "probe/session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quill::probe::test {

/// A session whose answers a test looks at as JSON values. Lines are written with ' for ", so that
/// they read well in C++.
class Probe {
public:
    /// Does a line and answers its reply; the reports before it are in `reports`.
    Json operator()(std::string line)
    {
        for (char& c : line) {
            c = c == '\'' ? '"' : c;
        }
        return raw(line);
    }
    Json raw(const std::string& line)
    {
        mLines.clear();
        mSession.line(line);
        reports.clear();
        for (const auto& text : mLines) {
            reports.push_back(Json::parse(text));
        }
        if (reports.empty()) {
            return nullptr;
        }
        Json reply = reports.back();
        reports.pop_back();
        return reply;
    }
    /// The result of a line that must be done.
    Json result(const std::string& line)
    {
        const Json reply = (*this)(line);
        EXPECT_TRUE(reply.value("ok", false)) << line << "\n" << reply.dump();
        return reply.value("result", Json{});
    }
    /// The number of the failure of a line that must not be done.
    int failure(const std::string& line)
    {
        const Json reply = (*this)(line);
        EXPECT_FALSE(reply.value("ok", true)) << line;
        EXPECT_NE(reply["error"].value("description", ""), "") << line;
        return reply["error"].value("number", 0);
    }
    /// The arguments of every report of one operation of the Messenger.
    [[nodiscard]] std::vector<Json> calls(const std::string& operation) const
    {
        std::vector<Json> found;
        for (const Json& report : reports) {
            if (report.value("messenger", "") == operation) {
                found.push_back(report["args"]);
            }
        }
        return found;
    }
    [[nodiscard]] bool allOk() const { return mSession.allOk(); }
    /// The last reply as it went out.
    [[nodiscard]] std::string lastLine() const { return mLines.empty() ? "" : mLines.back(); }

    std::vector<Json> reports;

private:
    std::vector<std::string> mLines;
    Session                  mSession{[this](const std::string& line) { mLines.push_back(line); }};
};

/// A JSON value written with ' for ".
inline Json json(std::string text)
{
    for (char& c : text) {
        c = c == '\'' ? '"' : c;
    }
    return Json::parse(text);
}

} // namespace quill::probe::test
