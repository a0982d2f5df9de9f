#pragma once

#include "framework/address_service.h"
#include "shell/device_function.h"

#include <functional>
#include <string>
#include <vector>

namespace quill::shell {

class SimulatedDevice;

/// Keeps `pollingAddress` and `multidrop` of a HART device in step: address 0 means that the device
/// is alone on its wires, any other that it shares them. Whoever switches multidrop on without an
/// address gets address 1.
class HartAddress : public DeviceFunction {
public:
    void start(SimulatedDevice& device) override;
    void written(SimulatedDevice& device, const std::vector<std::string>& parameters) override;

private:
    std::string mAddress; ///< that the device answers at
};

/// Reads and sets the polling address of a device through its own messages, so that what fails
/// there fails here.
class DeviceAddressService : public AddressService {
public:
    /// The device must outlive the service. `isReachable` tells whether there is a connection to it
    /// at present; nothing means always.
    explicit DeviceAddressService(SimulatedDevice&      device,
                                  std::function<bool()> isReachable = nullptr);

    /// Nothing without a connection, and if the device refuses or has no polling address.
    std::optional<std::int16_t> ReadAddress() override;
    /// False without a connection, and if the device does not take exactly this address.
    bool WriteAddress(std::uint8_t first, std::uint8_t second, std::int32_t third,
                      std::uint8_t address) override;

private:
    [[nodiscard]] std::optional<std::int16_t> ask(const std::string& access,
                                                  const std::string& value);

    SimulatedDevice&      mDevice;
    std::function<bool()> mIsReachable;
};

} // namespace quill::shell
