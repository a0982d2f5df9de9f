#include "shell/address_service.h"

#include "framework/documents.h"
#include "framework/steps.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "shell/device.h"
#include "shell/device_events.h"

#include <algorithm>
#include <utility>

namespace quill::shell {

namespace {

constexpr const char* kAddress   = "pollingAddress";
constexpr const char* kMultidrop = "multidrop";
constexpr const char* kType      = "integerVal";

} // namespace

void HartAddress::start(SimulatedDevice& device)
{
    written(device, {kAddress});
}

void HartAddress::written(SimulatedDevice& device, const std::vector<std::string>& parameters)
{
    const DeviceParameter* address   = device.find(kAddress);
    const DeviceParameter* multidrop = device.find(kMultidrop);
    const auto             has       = [&](const char* name) {
        return std::ranges::find(parameters, name) != parameters.end();
    };
    if (!address) {
        return;
    }
    if (multidrop) {
        // Who writes both means the address.
        if (has(kMultidrop) && !has(kAddress)) {
            const bool isOn = multidrop->value != "0";
            if (!isOn || address->value == "0") {
                device.set(kAddress, isOn ? "1" : "0");
            }
        }
        device.set(kMultidrop, address->value == "0" ? "0" : "1");
    }
    if (const std::string before = std::exchange(mAddress, address->value);
        !before.empty() && before != mAddress) {
        if (auto* events = device.function<DeviceEvents>()) {
            events->log("vx4400eventAddressChanged");
        }
    }
}

DeviceAddressService::DeviceAddressService(SimulatedDevice&      device,
                                           std::function<bool()> isReachable)
    : mDevice(device), mIsReachable(std::move(isReachable))
{
}

std::optional<std::int16_t> DeviceAddressService::ask(const std::string& access,
                                                      const std::string& value)
{
    if (mIsReachable && !mIsReachable()) {
        return std::nullopt;
    }
    const auto answers = mDevice.answer(
        "<communicationRequest name=\"hartAddress\" access=\"" + access + "\">" +
        documents::itemDocument(kAddress, documents::kNoUnit, kType, value).get_xml() +
        "</communicationRequest>");
    const IXMLDOMDocument response = documents::openText(answers.front());
    const IXMLDOMNode     item     = documents::findItem(response, kAddress);
    if (!item || documents::responseAttribute(response, "responseStatus") != "ok") {
        return std::nullopt;
    }
    return values::toInt16(values::parseDocument(documents::itemValue(item, kType)));
}

std::optional<std::int16_t> DeviceAddressService::ReadAddress()
{
    return ask("read", {});
}

bool DeviceAddressService::WriteAddress(std::uint8_t, std::uint8_t, std::int32_t,
                                        std::uint8_t address)
{
    // Beyond its limit a device takes the nearest address, which nobody has asked for.
    const DeviceParameter* parameter = mDevice.find(kAddress);
    if (parameter && parameter->maximum && address > *parameter->maximum) {
        return false;
    }
    return ask("write", std::to_string(address)) == address;
}

} // namespace quill::shell
