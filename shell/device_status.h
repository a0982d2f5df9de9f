#pragma once

#include "shell/device_function.h"

#include <string>
#include <vector>

namespace quill::shell {

/// One condition of the device's diagnosis.
struct DeviceCondition {
    std::string name;               ///< its item in the device's status, and its translation key
    std::string branch;             ///< the group it stands in
    std::string severity;           ///< its class when the device leaves the factory
    int         maskByte   = -1;    ///< over all parts of the mask
    int         maskBit    = -1;    ///< in that byte
    bool        isMeasured = false; ///< follows the device itself; any other is switched by name
    bool        isPresent  = false; ///< the cause is there
    bool        isReported = false; ///< it is there and is not masked

    [[nodiscard]] bool hasMask() const { return maskByte >= 0 && maskBit >= 0; }
};

/// The device's diagnosis: which conditions are there, and which of them the masks let through.
///
/// A HART device has the masks `statusMask1` to `statusMask3`, with a bit for each condition that
/// is to be diagnosed. A fieldbus device has three sets instead, with `Info`, `Warning` and `Alarm`
/// behind the name, in one of which a condition must stand to be diagnosed; `statusMaskOnOff1` to
/// `statusMaskOnOff3` tell where one does. A condition that is masked is reported as absent.
///
/// Requests: "deviceStatus" gives the conditions in as many responses as the mask has parts,
/// "deviceStatusMasks" reads and writes the masks, one response for each set or HART mask, and
/// "deviceStatusClearConfigurationChanged" takes back the sign that a write of the configuration
/// leaves.
class DeviceStatus : public DeviceFunction {
public:
    static constexpr int kParts       = 3;
    static constexpr int kBytesInPart = 4;

    /// Conditions are what the device's type information lists below `deviceStatus`.
    explicit DeviceStatus(const IXMLDOMNode& typeInfo);

    void                                    start(SimulatedDevice& device) override;
    std::optional<std::vector<std::string>> answer(SimulatedDevice&     device,
                                                   const DeviceRequest& request) override;
    std::string refuses(const SimulatedDevice& device, const DeviceRequestItem& item) override;
    void written(SimulatedDevice& device, const std::vector<std::string>& parameters) override;
    void advance(SimulatedDevice& device, double seconds) override;

    /// In the order of the type information.
    [[nodiscard]] const std::vector<DeviceCondition>& conditions() const { return mConditions; }
    /// The condition of this name, null if there is none.
    [[nodiscard]] const DeviceCondition* find(const std::string& condition) const;
    /// Makes a condition come or go that does not follow the device itself. Failure 5 for any
    /// other name.
    void setPresent(SimulatedDevice& device, const std::string& condition, bool present);
    /// All conditions whose cause is gone disappear at once, and those that were switched with
    /// them.
    void clear(SimulatedDevice& device);
    /// The electronics start anew: as `clear`, and a cold start is reported until the next reading.
    void restart(SimulatedDevice& device);

private:
    std::vector<std::string> answerStatus(SimulatedDevice& device, const DeviceRequest& request);
    std::vector<std::string> answerMasks(SimulatedDevice& device, const DeviceRequest& request);
    std::vector<std::string> answerClearing(SimulatedDevice& device, const DeviceRequest& request);
    /// Raises or takes back the sign that the configuration has changed.
    void setConfigurationChanged(SimulatedDevice& device, bool changed);
    /// Takes the bits together that say whether a condition is diagnosed at all.
    void deriveOnOffMasks(SimulatedDevice& device) const;
    void evaluate(SimulatedDevice& device, double seconds);
    /// Tells the device which conditions are now reported and which no longer.
    void                           report(SimulatedDevice& device);
    [[nodiscard]] DeviceCondition* lookUp(const std::string& condition);

    std::vector<DeviceCondition> mConditions;
    std::vector<double>          mChanging; ///< seconds that a condition's cause differs
};

/// @name Masks: parts of two hexadecimal digits for each byte.
///@{
/// Whether the text is a part of a mask.
[[nodiscard]] bool isMaskPart(const std::string& text);
/// Whether a bit of a part is set; bytes that are not there count as full.
[[nodiscard]] bool isMaskBitSet(const std::string& part, int byte, int bit);
/// The bits that are set in one or the other, byte by byte, as far as the longer reaches.
[[nodiscard]] std::string uniteMasks(const std::string& one, const std::string& other);
///@}

} // namespace quill::shell
