#pragma once

#include "platform/failure.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace quill::test {

/// Writes down calls as one line each, `SetParameterState(ctr_speed, edited)`, and lets those fail
/// that a test wants to fail.
class CallLog {
public:
    /// What was heard, in order.
    std::vector<std::string> calls;

    /// Is called after a call was written down and before it is answered.
    std::function<void(const std::string& call)> onCall;

    /// From now on the operation throws this failure; it is still written down.
    void failOn(const std::string& operation, int number = platform::kInvalidCall)
    {
        mFailing[operation] = number;
    }
    void stopFailing() { mFailing.clear(); }

    /// The lines of one operation.
    [[nodiscard]] std::vector<std::string> callsTo(const std::string& operation) const
    {
        return chosen([&](const std::string& call) { return call.starts_with(operation + "("); });
    }
    [[nodiscard]] bool wasCalled(const std::string& operation) const
    {
        return !callsTo(operation).empty();
    }
    /// All lines but the log and the questions that change nothing (`Get...`, `Is...`, `Has...`).
    [[nodiscard]] std::vector<std::string> actions() const
    {
        return chosen([](const std::string& call) {
            return !call.starts_with("Get") && !call.starts_with("Is") &&
                   !call.starts_with("Has") && !call.starts_with("WriteLog(");
        });
    }
    /// The lines `ReportError(where, number, description)`.
    [[nodiscard]] std::vector<std::string> errors() const { return callsTo("ReportError"); }

protected:
    ~CallLog() = default;

    template <class... Args>
    void heard(const std::string& operation, const Args&... args)
    {
        std::ostringstream line;
        line << std::boolalpha << operation << '(';
        [[maybe_unused]] const char* separator = "";
        ((line << separator << args, separator = ", "), ...);
        line << ')';
        calls.push_back(line.str());
        if (onCall) {
            onCall(line.str());
        }
        if (const auto found = mFailing.find(operation); found != mFailing.end()) {
            throw platform::failure(found->second);
        }
    }
    /// The same for an operation with an answer, which the call may still change.
    template <class T, class... Args>
    [[nodiscard]] T answered(const T& answer, const std::string& operation, const Args&... args)
    {
        heard(operation, args...);
        return answer;
    }

private:
    template <class Predicate>
    [[nodiscard]] std::vector<std::string> chosen(Predicate isMeant) const
    {
        std::vector<std::string> found;
        std::copy_if(calls.begin(), calls.end(), std::back_inserter(found), isMeant);
        return found;
    }

    std::map<std::string, int> mFailing;
};

} // namespace quill::test
