#pragma once

#include "framework/host_contract.h"

#include <deque>
#include <string>

namespace quill::shell {

/// Whether a device may be driving a test current, as far as its host can tell: out of what a
/// calibration sends and of what comes back. A calibration that was stepped back to its beginning
/// does not know any more that it has switched one on, and one that was left does not hear that
/// the device refused to switch it off.
class TestCurrentWatch {
public:
    /// A request is on its way. Failure for a text that is none.
    void sent(const std::string& requestXml);
    /// An answer has come, a good one or an error. Answers come in the order of their requests.
    void answered(const IXMLDOMNode& response);
    /// No answers will come any more. What was not answered may have been done all the same.
    void forgetRequests();

    /// Whether a test current flows, or will when the device has answered everything.
    [[nodiscard]] bool mayFlow() const;

    /// The request that lets the output follow the valve again, and its name.
    static constexpr const char*     kName = "mACalibration";
    [[nodiscard]] static std::string endRequest();

private:
    enum class Effect { none, on, off };

    std::deque<Effect> mPending; ///< of the requests that are not answered yet
    bool               mFlows = false;
};

} // namespace quill::shell
