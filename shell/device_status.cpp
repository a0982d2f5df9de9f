#include "shell/device_status.h"

#include "framework/documents.h"
#include "platform/failure.h"
#include "shell/device.h"
#include "shell/device_status_rules.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace quill::shell {

namespace {

using documents::attributeText;
using platform::NodeType;

constexpr const char* kMaskPrefix   = "statusMask";
constexpr const char* kSeverities[] = {"Info", "Warning", "Alarm"};
constexpr const char* kOnOff        = "OnOff";
constexpr const char* kColdStart    = "statusColdStart";
constexpr const char* kChanged[] = {"statusHARTConfigurationChanged", "statusConfigurationChanged"};

/// Parameters that make something happen, or follow what happens, and configure nothing.
constexpr const char* kNoConfiguration[] = {"reset", "eventLog", "loopTest", "loopCurrent"};

constexpr int kDigitsInPart = 2 * DeviceStatus::kBytesInPart;
constexpr int kHexadecimal  = 16;

std::string maskName(const std::string& kind, int part)
{
    return kMaskPrefix + kind + std::to_string(part);
}

bool isMaskName(const std::string& parameter)
{
    return parameter.starts_with(kMaskPrefix);
}

/// -1 for an attribute that is missing or no number.
int maskIndex(const IXMLDOMNode& element, const char* attribute)
{
    int               number = -1;
    const std::string text   = optionalAttribute(element, attribute);
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::vector<IXMLDOMNode> elements(const IXMLDOMNode& parent)
{
    std::vector<IXMLDOMNode> found;
    for (const IXMLDOMNode& child : parent.get_childNodes()) {
        if (child.get_nodeType() == NodeType::element) {
            found.push_back(child);
        }
    }
    return found;
}

std::string upperCase(std::string text)
{
    std::ranges::transform(text, text.begin(), [](char digit) {
        return digit >= 'a' && digit <= 'z' ? static_cast<char>(digit - 'a' + 'A') : digit;
    });
    return text;
}

int maskByte(const std::string& part, int index)
{
    const auto at   = 2 * static_cast<std::size_t>(index);
    int        byte = 0xFF;
    if (at + 1 < part.size()) {
        std::from_chars(part.data() + at, part.data() + at + 2, byte, kHexadecimal);
    }
    return byte;
}

std::string valueOf(const SimulatedDevice& device, const std::string& parameter)
{
    const DeviceParameter* found = device.find(parameter);
    return found ? found->value : std::string{};
}

/// Whether the masks let a condition through; where the device has none, they let all through.
bool isDiagnosed(const SimulatedDevice& device, const DeviceCondition& condition)
{
    if (!condition.hasMask()) {
        return true;
    }
    const int  part = condition.maskByte / DeviceStatus::kBytesInPart + 1;
    const int  byte = condition.maskByte % DeviceStatus::kBytesInPart;
    const auto isIn = [&](const std::string& mask) {
        return isMaskBitSet(valueOf(device, mask), byte, condition.maskBit);
    };
    if (device.isHart()) {
        return isIn(maskName("", part));
    }
    return std::ranges::any_of(kSeverities,
                               [&](const char* kind) { return isIn(maskName(kind, part)); });
}

} // namespace

bool isMaskPart(const std::string& text)
{
    return text.size() == static_cast<std::size_t>(kDigitsInPart) &&
           text.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
}

bool isMaskBitSet(const std::string& part, int byte, int bit)
{
    return (maskByte(part, byte) >> bit & 1) != 0;
}

std::string uniteMasks(const std::string& one, const std::string& other)
{
    constexpr const char* kDigits = "0123456789ABCDEF";
    std::string           united;
    for (int i = 0; 2 * i < static_cast<int>(std::max(one.size(), other.size())); ++i) {
        const int byte = maskByte(one, i) | maskByte(other, i);
        united += kDigits[byte / kHexadecimal];
        united += kDigits[byte % kHexadecimal];
    }
    return united;
}

DeviceStatus::DeviceStatus(const IXMLDOMNode& typeInfo)
{
    for (const IXMLDOMNode& branch : elements(typeInfo.selectSingleNode("//deviceStatus"))) {
        for (const IXMLDOMNode& status : elements(branch)) {
            DeviceCondition condition;
            condition.name       = attributeText(status, "name");
            condition.branch     = attributeText(branch, "name");
            condition.severity   = optionalAttribute(status, "class");
            condition.maskByte   = maskIndex(status, "maskByte");
            condition.maskBit    = maskIndex(status, "maskBit");
            condition.isMeasured = findRule(condition.name) != nullptr;
            mConditions.push_back(std::move(condition));
        }
    }
    mChanging.resize(mConditions.size());
}

void DeviceStatus::start(SimulatedDevice& device)
{
    deriveOnOffMasks(device);
    evaluate(device, 0);
    for (DeviceCondition& condition : mConditions) {
        condition.isReported = condition.isPresent && isDiagnosed(device, condition);
    }
}

std::optional<std::vector<std::string>> DeviceStatus::answer(SimulatedDevice&     device,
                                                             const DeviceRequest& request)
{
    if (request.name == "deviceStatus" && request.isRead()) {
        return answerStatus(device, request);
    }
    if (request.name == "deviceStatusMasks" && !request.items.empty() && !request.isAct()) {
        return answerMasks(device, request);
    }
    if (request.name == "deviceStatusClearConfigurationChanged") {
        return answerClearing(device, request);
    }
    return std::nullopt;
}

std::vector<std::string> DeviceStatus::answerStatus(SimulatedDevice&     device,
                                                    const DeviceRequest& request)
{
    std::vector<DeviceResponse> parts;
    parts.reserve(kParts);
    for (int part = 0; part < kParts; ++part) {
        parts.emplace_back(request);
    }
    Refusals   refusals;
    const auto add = [&](const DeviceCondition& condition) {
        if (const std::string code = device.failureOf(condition.name); !code.empty()) {
            refusals.add(code, condition.name);
            return;
        }
        // Conditions without a mask belong to the part that comes first.
        const auto part = condition.hasMask() ? condition.maskByte / kBytesInPart : 0;
        parts.at(static_cast<std::size_t>(std::min(part, kParts - 1)))
            .addItem(condition.name, {}, "integerVal", condition.isReported ? "1" : "0");
    };
    if (request.items.empty()) {
        std::ranges::for_each(mConditions, add);
    } else {
        for (const DeviceRequestItem& item : request.items) {
            if (const DeviceCondition* condition = find(item.name)) {
                add(*condition);
            } else {
                refusals.add(kErrMissingItems, item.name);
            }
        }
    }
    std::erase_if(parts, [](const DeviceResponse& part) { return part.isEmpty(); });
    refusals.appendTo(parts, request);
    if (parts.empty()) {
        parts.emplace_back(request); // a device without conditions says just that
    }
    if (DeviceCondition* coldStart = lookUp(kColdStart)) {
        coldStart->isPresent = false; // the host knows of it now
        report(device);
    }
    return messageTexts(std::move(parts));
}

std::vector<std::string> DeviceStatus::answerMasks(SimulatedDevice&     device,
                                                   const DeviceRequest& request)
{
    SimulatedDevice::Served served = device.serve(request);
    if (!device.isHart() && request.isWrite()) {
        for (int part = 1; part <= kParts; ++part) {
            const bool isTouched = std::ranges::any_of(kSeverities, [&](const char* kind) {
                return std::ranges::find(served.items, maskName(kind, part)) != served.items.end();
            });
            if (isTouched && device.find(maskName(kOnOff, part))) {
                served.items.push_back(maskName(kOnOff, part));
            }
        }
    }
    return device.compose(request, served, device.isHart() ? 1 : kParts);
}

std::vector<std::string> DeviceStatus::answerClearing(SimulatedDevice&     device,
                                                      const DeviceRequest& request)
{
    setConfigurationChanged(device, false);
    DeviceResponse response{request};
    for (const char* name : kChanged) {
        if (const DeviceCondition* condition = find(name)) {
            response.addItem(name, {}, "integerVal", condition->isReported ? "1" : "0");
        }
    }
    return messageTexts({std::move(response)});
}

std::string DeviceStatus::refuses(const SimulatedDevice&, const DeviceRequestItem& item)
{
    return isMaskName(item.name) && !isMaskPart(item.value) ? kErrWrongValue : "";
}

void DeviceStatus::written(SimulatedDevice& device, const std::vector<std::string>& parameters)
{
    bool isConfiguration = false;
    for (const std::string& parameter : parameters) {
        if (isMaskName(parameter)) {
            device.set(parameter, upperCase(valueOf(device, parameter)));
        }
        isConfiguration |= std::ranges::none_of(
            kNoConfiguration, [&](const char* prefix) { return parameter.starts_with(prefix); });
    }
    deriveOnOffMasks(device);
    if (isConfiguration) {
        setConfigurationChanged(device, true);
    }
    report(device);
}

void DeviceStatus::setConfigurationChanged(SimulatedDevice& device, bool changed)
{
    for (const char* name : kChanged) {
        if (DeviceCondition* condition = lookUp(name)) {
            condition->isPresent = changed;
        }
    }
    report(device);
}

void DeviceStatus::deriveOnOffMasks(SimulatedDevice& device) const
{
    for (int part = 1; part <= kParts; ++part) {
        const std::string onOff = maskName(kOnOff, part);
        if (!device.find(onOff)) {
            continue;
        }
        std::string united;
        for (const char* kind : kSeverities) {
            const std::string mask = valueOf(device, maskName(kind, part));
            united                 = united.empty() ? mask : uniteMasks(united, mask);
        }
        device.set(onOff, united);
    }
}

void DeviceStatus::advance(SimulatedDevice& device, double seconds)
{
    evaluate(device, seconds);
    report(device);
}

void DeviceStatus::evaluate(SimulatedDevice& device, double seconds)
{
    for (std::size_t i = 0; i < mConditions.size(); ++i) {
        const ConditionRule* rule = findRule(mConditions[i].name);
        if (!rule) {
            continue;
        }
        const bool holds = rule->holds(device);
        if (holds == mConditions[i].isPresent) {
            mChanging[i] = 0;
            continue;
        }
        mChanging[i] += seconds;
        if (mChanging[i] >= rule->delay) {
            mConditions[i].isPresent = holds;
            mChanging[i]             = 0;
        }
    }
}

void DeviceStatus::report(SimulatedDevice& device)
{
    for (DeviceCondition& condition : mConditions) {
        const bool reported = condition.isPresent && isDiagnosed(device, condition);
        if (std::exchange(condition.isReported, reported) != reported) {
            device.tellCondition(condition.name, reported);
        }
    }
}

const DeviceCondition* DeviceStatus::find(const std::string& condition) const
{
    const auto found = std::ranges::find(mConditions, condition, &DeviceCondition::name);
    return found == mConditions.end() ? nullptr : &*found;
}

DeviceCondition* DeviceStatus::lookUp(const std::string& condition)
{
    const auto found = std::ranges::find(mConditions, condition, &DeviceCondition::name);
    return found == mConditions.end() ? nullptr : &*found;
}

void DeviceStatus::setPresent(SimulatedDevice& device, const std::string& condition, bool present)
{
    DeviceCondition* found = lookUp(condition);
    if (!found || found->isMeasured) {
        throw platform::Failure(platform::kInvalidCall,
                                "no condition to be switched: " + condition);
    }
    found->isPresent = present;
    report(device);
}

void DeviceStatus::clear(SimulatedDevice& device)
{
    for (std::size_t i = 0; i < mConditions.size(); ++i) {
        const ConditionRule* rule = findRule(mConditions[i].name);
        mConditions[i].isPresent  = rule && mConditions[i].isPresent && rule->holds(device);
        mChanging[i]              = 0;
    }
    report(device);
}

void DeviceStatus::restart(SimulatedDevice& device)
{
    clear(device);
    if (DeviceCondition* coldStart = lookUp(kColdStart)) {
        coldStart->isPresent = true;
        report(device);
    }
}

} // namespace quill::shell
