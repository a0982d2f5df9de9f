#pragma once

#include "shell/device_function.h"
#include "shell/device_model.h"

#include <map>
#include <string>

namespace quill::shell {

/// Joins the model of the valve to the device's parameters: what is configured goes into the model,
/// what the sensors see goes into the live parameters, in the units and with the resolution that
/// the device has. Parameters that the device lacks are left out.
class DevicePhysics : public DeviceFunction {
public:
    void start(SimulatedDevice& device) override;
    void written(SimulatedDevice& device, const std::vector<std::string>& parameters) override;
    void advance(SimulatedDevice& device, double seconds) override;

    [[nodiscard]] DeviceModel&       model() { return mModel; }
    [[nodiscard]] const DeviceModel& model() const { return mModel; }

private:
    void configure(const SimulatedDevice& device);
    void publish(SimulatedDevice& device);
    /// Adds to a counter that the device keeps; a fraction waits until it makes a digit.
    void count(SimulatedDevice& device, const std::string& parameter, double more,
               double resolution);

    DeviceModel                   mModel;
    std::map<std::string, double> mFractions; ///< of counters
    int                           mCycles    = 0;
    double                        mTravelSum = 0;
};

/// The parameter's value in this unit; the fallback if the device has no such parameter, or no
/// number or no such quantity in it.
[[nodiscard]] double numberOf(const SimulatedDevice& device, const std::string& parameter,
                              const std::string& unit, double fallback);

} // namespace quill::shell
