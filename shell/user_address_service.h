#pragma once

#include "framework/address_service.h"

#include <functional>
#include <optional>
#include <string>

namespace quill::shell {

/// The address service as the user meets it: he is told why an address could not be set, which the
/// control that asks for it keeps to itself, and sees the one of the datafile while there is no
/// device.
class UserAddressService : public AddressService {
public:
    /// What the service asks of its host.
    struct Host {
        std::function<bool()>                        isOnline;
        std::function<std::optional<std::int16_t>()> storedAddress;
        /// Shows a message, by its key.
        std::function<void(const std::string&)> tell;
        /// The device has another address now.
        std::function<void(std::uint8_t)> written;
    };
    /// The service of the device must outlive this one.
    UserAddressService(AddressService& device, Host host) : mDevice(device), mHost(std::move(host))
    {
    }

    std::optional<std::int16_t> ReadAddress() override
    {
        return mHost.isOnline() ? mDevice.ReadAddress() : mHost.storedAddress();
    }
    bool WriteAddress(std::uint8_t first, std::uint8_t second, std::int32_t third,
                      std::uint8_t address) override
    {
        if (!mHost.isOnline()) {
            mHost.tell("shell_offlineNoRequest");
            return false;
        }
        if (!mDevice.WriteAddress(first, second, third, address)) {
            mHost.tell("shell_addressRefused");
            return false;
        }
        mHost.written(address);
        return true;
    }

private:
    AddressService& mDevice;
    Host            mHost;
};

} // namespace quill::shell
