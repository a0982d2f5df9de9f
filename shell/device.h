#pragma once

#include "framework/host_contract.h"
#include "shell/device_function.h"
#include "shell/device_messages.h"

#include <deque>
#include <map>
#include <memory>
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
    ///
    /// Functions that were added come first: what one of them answers goes out as it is.
    [[nodiscard]] std::vector<std::string> answer(const std::string& requestXml);

    /// What became of the items of a request: those served, and the others by error code.
    struct Served {
        std::vector<std::string> items;
        Refusals                 refusals;
    };
    /// @name For functions that go along with how the device answers.
    ///@{
    /// Looks up the items of a reading request, and takes the values of a writing one. The
    /// functions hear of what was written.
    [[nodiscard]] Served serve(const DeviceRequest& request);
    /// The answer with the present values of what was served, cut into parts of so many items (0
    /// for one part), and one error response for each error code.
    [[nodiscard]] std::vector<std::string>
    compose(const DeviceRequest& request, const Served& served, std::size_t itemsInPart = 0) const;
    /// Both, or a refusal if the request is neither for a group nor for items, or is no reading or
    /// writing one.
    [[nodiscard]] std::vector<std::string> answerFromParameters(const DeviceRequest& request);
    ///@}

    /// Adds something that the device can do, and starts it.
    void add(std::unique_ptr<DeviceFunction> function);
    /// The first function of this class, null if the device has none.
    template <typename Function>
    [[nodiscard]] Function* function() const
    {
        for (const auto& candidate : mFunctions) {
            if (auto* found = dynamic_cast<Function*>(candidate.get())) {
                return found;
            }
        }
        return nullptr;
    }
    /// Lets time pass for all functions, in their order, in pieces of a second at most. Nothing
    /// happens for 0 or less.
    void advance(double seconds);
    /// Tells all functions that a condition has come or gone.
    void tellCondition(const std::string& condition, bool active);

    /// The next request fails with this code as a whole. `items` are named in the response; an
    /// empty list names all that the request means. Calls queue up.
    void failNext(const std::string& errorCode, std::vector<std::string> items = {});
    /// From now on this parameter fails with the code; an empty code ends that.
    void failAlways(const std::string& parameter, const std::string& errorCode);
    /// The code with which it fails, empty if it does not.
    [[nodiscard]] std::string failureOf(const std::string& parameter) const;

    /// The parameter, nothing if the device has none of this name.
    [[nodiscard]] const DeviceParameter* find(const std::string& parameter) const;
    /// Changes a value behind the host's back, as a knob on the device would. Failure 5 for a
    /// parameter that it does not have.
    void set(const std::string& parameter, const std::string& value);
    /// Writes one value as a request would. An error code if the device does not take it, else
    /// empty. The functions may refuse it, but do not hear of it.
    [[nodiscard]] std::string write(const DeviceRequestItem& item);

    /// Name of the device's type in its datafile; empty without one.
    [[nodiscard]] const std::string& typeName() const { return mTypeName; }
    /// Whether it speaks HART; any other is a fieldbus device. The type's name tells, as it tells
    /// the views.
    [[nodiscard]] bool isHart() const { return mTypeName.find('H') != std::string::npos; }

private:
    struct PreparedFailure {
        std::string              errorCode;
        std::vector<std::string> items;
    };

    void                                   addParameters(const IXMLDOMNode& datafile);
    void                                   addGroups(const IXMLDOMNode& datafile);
    void                                   loadMemory(const std::string& memory);
    [[nodiscard]] std::vector<std::string> answerPreparedFailure(const DeviceRequest& request);
    /// False for a value that the device does not take.
    static bool take(DeviceParameter& parameter, const DeviceRequestItem& item);

    std::string                                     mTypeName;
    std::map<std::string, DeviceParameter>          mParameters;
    std::map<std::string, std::vector<std::string>> mGroups;
    std::map<std::string, std::string>              mFailing;
    std::deque<PreparedFailure>                     mPrepared;
    std::vector<std::unique_ptr<DeviceFunction>>    mFunctions;
};

} // namespace quill::shell
