#pragma once

#include "shell/device_function.h"
#include "shell/loop_current.h"

#include <map>
#include <string>
#include <vector>

namespace quill::shell {

/// The device's current output as a calibration uses it: `loopTestValue` drives a test current (0
/// lets the output follow the valve again), `loopCurrentZero` and `loopCurrentGain` take what a
/// meter shows meanwhile. In multidrop mode the output stands at 4 mA and cannot be tested.
class CurrentOutput : public DeviceFunction {
public:
    /// A stage with these errors (see `LoopCurrent`), in mA and as a fraction.
    explicit CurrentOutput(double zeroError = 0.08, double gainError = 0.006);

    [[nodiscard]] const LoopCurrent& loop() const { return mLoop; }
    /// Lets the output follow the valve again, as a restart does.
    void release(SimulatedDevice& device);

    void        start(SimulatedDevice& device) override;
    std::string refuses(const SimulatedDevice& device, const DeviceRequestItem& item) override;
    void written(SimulatedDevice& device, const std::vector<std::string>& parameters) override;
    void advance(SimulatedDevice& device, double seconds) override;

private:
    void drive(SimulatedDevice& device);

    LoopCurrent mLoop;
};

/// What a meter in the device's loop shows, mA; 0 for a device without a current output.
[[nodiscard]] double measuredLoopCurrent(const SimulatedDevice& device);

/// Resets. "resetStatus", as an act or written, clears the conditions that wait for it. What
/// `resetDiagnosticsCode` and `resetParametersCode` do stands in the value lists of the datafile;
/// both go back to the code for nothing when it is done.
///
/// This function belongs behind all others of its device: others that hold something to reset see
/// the code in `written`, before it is taken back here.
class Resets : public DeviceFunction {
public:
    enum Diagnostics { counters = 0, extremes = 1, eventLog = 2, allDiagnostics = 3 };
    enum Parameters { tuning = 0, alarms = 1, factorySettings = 2, restart = 3 };
    static constexpr int kNothing = -1;

    /// The device leaves the factory with the settings of this datafile.
    explicit Resets(const IXMLDOMNode& datafile);

    std::optional<std::vector<std::string>> answer(SimulatedDevice&     device,
                                                   const DeviceRequest& request) override;
    void written(SimulatedDevice& device, const std::vector<std::string>& parameters) override;

private:
    void resetDiagnostics(SimulatedDevice& device, int code) const;
    void resetParameters(SimulatedDevice& device, int code);
    /// Writes what the parameters of these request groups had in the beginning; of all groups for
    /// none.
    void restore(SimulatedDevice& device, const std::vector<std::string>& groups);

    std::map<std::string, std::vector<DeviceRequestItem>> mDefaults; ///< by request group
};

/// Clears the conditions that nothing keeps there any more but that nobody has seen to them yet.
void resetStatus(SimulatedDevice& device);
/// The power goes and comes back: the operation time stands still for that while, and whatever was
/// under way is over.
void restartDevice(SimulatedDevice& device);

} // namespace quill::shell
