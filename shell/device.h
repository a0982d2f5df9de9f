#pragma once

#include "framework/host_contract.h"

#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quill::shell {

/// One parameter in the memory of the device.
struct DeviceParameter {
    std::string           type; ///< "floatVal" and the like: name of the value element
    std::string           value;
    std::string           unit; ///< the device's own; it may differ from the datafile's
    std::optional<double> minimum;
    std::optional<double> maximum; ///< of a text the greatest length
    bool                  writable = false;
    std::set<std::string> choices; ///< the values it takes; empty for any
};

/// A field device without a wire: it keeps its own parameters, answers one request after the other
/// and can be told to fail. It knows nothing of the host; all it shares are the documents.
class SimulatedDevice {
public:
    SimulatedDevice() = default;
    /// A device of the type that the datafile describes. `memory` is a message with one item per
    /// parameter whose value or unit differs from the datafile's; it may be empty, and items that
    /// the device has no parameter for are left out.
    explicit SimulatedDevice(const IXMLDOMNode& datafile, const std::string& memory = {});

    /// The answer to a `communicationRequest` (alone or in its `dtm`) as one or more
    /// `communicationResponse` texts; the last one is final.
    ///
    /// "read" gives all items of the request group, or those that the request lists. "write"
    /// converts each value into the device's unit, moves it to the nearest limit if it lies
    /// outside, and answers with what it took. Items that cannot be served come in an error
    /// response of their own, behind the response with the others.
    [[nodiscard]] std::vector<std::string> answer(const std::string& requestXml);

    /// The next request fails with this code as a whole. `items` are named in the response; an
    /// empty list names all that the request means. Calls queue up.
    void failNext(const std::string& errorCode, std::vector<std::string> items = {});
    /// From now on this parameter fails with the code; an empty code ends that.
    void failAlways(const std::string& parameter, const std::string& errorCode);

    /// The parameter, nothing if the device has none of this name.
    [[nodiscard]] const DeviceParameter* find(const std::string& parameter) const;
    /// Changes a value behind the host's back, as a knob on the device would. Failure 5 for a
    /// parameter that it does not have.
    void set(const std::string& parameter, const std::string& value);

private:
    struct RequestItem {
        std::string name;
        std::string unit;
        std::string value;
    };
    struct Request;
    struct Refusals;
    struct PreparedFailure {
        std::string              errorCode;
        std::vector<std::string> items;
    };

    void addParameters(const IXMLDOMNode& datafile);
    void addGroups(const IXMLDOMNode& datafile);
    void loadMemory(const std::string& memory);
    /// The parameter, after the value was taken if the request writes; nothing if it is refused.
    const DeviceParameter* serve(const RequestItem& item, bool isWrite, Refusals& refusals);
    /// False for a value that the device does not take.
    static bool write(DeviceParameter& parameter, const RequestItem& item);

    std::map<std::string, DeviceParameter>          mParameters;
    std::map<std::string, std::vector<std::string>> mGroups;
    std::map<std::string, std::string>              mFailing;
    std::deque<PreparedFailure>                     mPrepared;
};

} // namespace quill::shell
