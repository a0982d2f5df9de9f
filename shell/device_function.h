#pragma once

#include "shell/device_messages.h"

#include <optional>
#include <string>
#include <vector>

namespace quill::shell {

class SimulatedDevice;

/// One thing that a device can do besides keeping its parameters: its physics, its diagnosis, its
/// event log. A function belongs to one device, which hands itself over with every call: a device
/// may be moved, so a function keeps no reference to it.
class DeviceFunction {
public:
    virtual ~DeviceFunction() = default;

    /// The function now belongs to this device, whose parameters have their values.
    virtual void start(SimulatedDevice&) {}

    /// The answer to a request as response texts (see `messageTexts`); nothing if the request is
    /// none of this function's. Functions are asked in the order in which they were added, before
    /// the device serves its parameters. The items of a request that lists none are those of the
    /// request group of its name, if there is one.
    virtual std::optional<std::vector<std::string>> answer(SimulatedDevice&, const DeviceRequest&)
    {
        return std::nullopt;
    }

    /// An error code if this value must not be written though the parameter's own type and limits
    /// allow it, else empty.
    virtual std::string refuses(const SimulatedDevice&, const DeviceRequestItem&) { return {}; }

    /// Parameters have been written by a request; they have their new values, which go into the
    /// answer as this call leaves them.
    virtual void written(SimulatedDevice&, const std::vector<std::string>& /*parameters*/) {}

    /// Seconds of the device's own time have passed.
    virtual void advance(SimulatedDevice&, double /*seconds*/) {}

    /// A condition of the device's diagnosis has come or gone (see `tellCondition`).
    virtual void conditionChanged(SimulatedDevice&, const std::string& /*condition*/,
                                  bool /*active*/)
    {
    }
};

} // namespace quill::shell
