#pragma once

#include <cstdint>
#include <optional>

namespace quill {

/// With which the bus address of a HART device is read and set, outside the parameters. Owned by
/// the host. An operation may throw: the control reports that and goes on.
class AddressService {
public:
    virtual ~AddressService() = default;
    /// The polling address that the device has now; nothing if it could not be read.
    virtual std::optional<std::int16_t> ReadAddress() = 0;
    /// Sets the polling address and answers whether the device took it. The meaning of the first
    /// three arguments lies with the host; the controls pass 0.
    virtual bool WriteAddress(std::uint8_t first, std::uint8_t second, std::int32_t third,
                              std::uint8_t address) = 0;
};

} // namespace quill
