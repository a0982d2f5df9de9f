#include "shell/device_events.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "shell/device.h"
#include "shell/device_physics.h"
#include "shell/device_status.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace quill::shell {

namespace {

using documents::attributeText;

constexpr std::size_t kHartEventsInMessage = 10;
constexpr std::size_t kHartMessages        = 3;
constexpr std::size_t kFieldbusEvents      = 25;
constexpr std::size_t kFieldbusFirstIndex  = 1;

constexpr double kSecondsPerHour = 3600;
/// Of the time of an event; views show four decimals.
constexpr double kTicksPerHour = 10000;

constexpr const char* kHartTime     = "eventLogTotalOperationTime";
constexpr const char* kFieldbusTime = "totalOperationTime";

constexpr const char* kConfigurationChanged = "vx4400eventConfigurationChanged";
constexpr const char* kStatusPrefix         = "status";
constexpr const char* kEventPrefix          = "vx4400event";

/// Conditions that say what another event says already.
constexpr std::array<std::string_view, 3> kOtherwiseLogged = {
    "statusColdStart", "statusHARTConfigurationChanged", "statusConfigurationChanged"};

/// Parameters that configure nothing, or whose writing is an event of its own.
constexpr std::array<std::string_view, 6> kNoConfiguration = {
    "reset", "eventLog", "loopTest", "loopCurrent", "pollingAddress", "multidrop"};

/// The class of the event with which a condition comes.
const char* classOf(const SimulatedDevice& device, const std::string& condition)
{
    const auto*            status   = device.function<DeviceStatus>();
    const DeviceCondition* found    = status ? status->find(condition) : nullptr;
    const std::string      severity = found ? found->severity : std::string{};
    return severity == "failsafe"  ? kEventClassError
           : severity == "alarm"   ? kEventClassAlarm
           : severity == "warning" ? kEventClassWarning
                                   : kEventClassNotification;
}

std::string timeText(double hours)
{
    return values::documentText(std::round(hours * kTicksPerHour) / kTicksPerHour);
}

/// A host knows the end of a log by this text.
std::string timeText(const DeviceEvent& event)
{
    return event.eventClass == kEventClassNone ? "0." : timeText(event.hours);
}

std::string suffix(std::size_t index)
{
    return (index < 10 ? "0" : "") + std::to_string(index);
}

std::optional<std::size_t> wholeNumber(const std::string& text)
{
    std::size_t number = 0;
    const char* end    = text.data() + text.size();
    const auto  result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc{} && result.ptr == end ? std::optional{number} : std::nullopt;
}

} // namespace

std::string eventOfCondition(const std::string& condition, bool active)
{
    const std::string name = condition.starts_with(kStatusPrefix)
                                 ? condition.substr(std::string_view{kStatusPrefix}.size())
                                 : condition;
    return kEventPrefix + name + (active ? "" : "Off");
}

std::vector<PastEvent> readEventHistory(const std::string& xml)
{
    std::vector<PastEvent> history;
    for (const IXMLDOMNode& event : documents::openText(xml).selectNodes("//event")) {
        history.push_back({attributeText(event, "event"), attributeText(event, "class"),
                           values::parseDocument(attributeText(event, "hoursAgo"))});
    }
    return history;
}

/// The parts of an answer: what the request has asked for of the items that are offered.
class DeviceEvents::Answer {
public:
    Answer(const SimulatedDevice& device, const DeviceRequest& request)
        : mDevice(device), mRequest(request)
    {
    }
    /// The items of the request do not list what it wants: it wants everything.
    void takeAll() { mTakesAll = true; }
    void beginPart() { mParts.emplace_back(mRequest); }
    void add(const std::string& name, const std::string& value)
    {
        if (!mTakesAll && !mRequest.items.empty() && !mRequest.find(name)) {
            return;
        }
        if (const std::string code = mDevice.failureOf(name); !code.empty()) {
            mRefusals.add(code, name);
            return;
        }
        mParts.back().addItem(name, {}, "stringVal", value);
    }
    std::vector<std::string> texts()
    {
        mRefusals.appendTo(mParts, mRequest);
        return messageTexts(std::move(mParts));
    }

private:
    const SimulatedDevice&      mDevice;
    const DeviceRequest&        mRequest;
    bool                        mTakesAll = false;
    std::vector<DeviceResponse> mParts;
    Refusals                    mRefusals;
};

DeviceEvents::DeviceEvents(std::vector<PastEvent> history, std::size_t capacity)
    : mHistory(std::move(history)), mRing(capacity)
{
}

void DeviceEvents::log(const std::string& key, const std::string& eventClass)
{
    mRing.add({key, eventClass, mHours});
}

void DeviceEvents::start(SimulatedDevice& device)
{
    mHours = std::max(numberOf(device, device.isHart() ? kHartTime : kFieldbusTime, "h", 0),
                      numberOf(device, "operatingTime", "h", 0));
    std::ranges::sort(mHistory, std::greater{}, &PastEvent::hoursAgo);
    for (const PastEvent& past : mHistory) {
        if (past.hoursAgo <= mHours) {
            mRing.add({past.key, past.eventClass, mHours - past.hoursAgo});
        }
    }
    mHistory.clear();
    showOperationTime(device);
}

void DeviceEvents::advance(SimulatedDevice& device, double seconds)
{
    mHours += seconds / kSecondsPerHour;
    showOperationTime(device);
}

void DeviceEvents::showOperationTime(SimulatedDevice& device) const
{
    const char* const parameter = device.isHart() ? kHartTime : kFieldbusTime;
    if (device.find(parameter)) {
        device.set(parameter, timeText(mHours));
    }
}

void DeviceEvents::conditionChanged(SimulatedDevice& device, const std::string& condition,
                                    bool active)
{
    if (std::ranges::find(kOtherwiseLogged, condition) == kOtherwiseLogged.end()) {
        log(eventOfCondition(condition, active),
            active ? classOf(device, condition) : kEventClassNotification);
    }
}

void DeviceEvents::written(SimulatedDevice&, const std::vector<std::string>& parameters)
{
    const auto configures = [](const std::string& parameter) {
        return std::ranges::none_of(kNoConfiguration, [&](std::string_view beginning) {
            return parameter.starts_with(beginning);
        });
    };
    if (std::ranges::any_of(parameters, configures)) {
        log(kConfigurationChanged);
    }
}

std::optional<std::vector<std::string>> DeviceEvents::answer(SimulatedDevice&     device,
                                                             const DeviceRequest& request)
{
    if (device.isHart() && request.name == "eventLogContinued" && request.isWrite()) {
        return answerHartContinued(device, request);
    }
    if (request.name != "eventLog" || !request.isRead()) {
        return std::nullopt;
    }
    if (!device.isHart()) {
        return answerFieldbus(device, request);
    }
    mReader.start(mRing);
    return answerHart(device, request, 0, true);
}

std::vector<std::string> DeviceEvents::answerHart(const SimulatedDevice& device,
                                                  const DeviceRequest& request, std::size_t first,
                                                  bool withClasses) const
{
    Answer answer{device, request};
    if (request.isWrite()) {
        answer.takeAll();
    }
    const auto events = mReader.page(mRing, first, kHartMessages * kHartEventsInMessage);
    for (std::size_t i = 0; i < events.size(); ++i) {
        if (i % kHartEventsInMessage == 0) {
            answer.beginPart();
        }
        answer.add("eventLogEvent" + suffix(i), events[i].key);
        if (withClasses) {
            answer.add("eventLogClass" + suffix(i), events[i].eventClass);
        }
        answer.add("eventLogTime" + suffix(i), timeText(events[i]));
    }
    return answer.texts();
}

std::vector<std::string> DeviceEvents::answerHartContinued(const SimulatedDevice& device,
                                                           const DeviceRequest&   request)
{
    const DeviceRequestItem* index = request.find("eventLogIndex");
    if (!index) {
        return refusal(request, kErrMissingItems);
    }
    const auto first = wholeNumber(index->value);
    if (!first) {
        return refusal(request, kErrWrongValue);
    }
    // Who goes on without having begun wants the log as it is now.
    if (!mReader.isStarted()) {
        mReader.start(mRing);
    }
    return answerHart(device, request, *first, request.find("eventLogClass") != nullptr);
}

std::vector<std::string> DeviceEvents::answerFieldbus(const SimulatedDevice& device,
                                                      const DeviceRequest&   request)
{
    Answer     answer{device, request};
    const bool goesOn = std::ranges::any_of(request.items, [](const DeviceRequestItem& item) {
        return item.name.starts_with("eventLogNext");
    });
    if (goesOn) {
        answer.takeAll();
    }
    if (!goesOn || !mReader.isStarted()) {
        mReader.start(mRing);
        mNextPage = 0;
    }
    answer.beginPart();
    // The end has been read: there is nothing more to say.
    if (mNextPage > mReader.end(mRing)) {
        return answer.texts();
    }
    const std::string beginning = goesOn ? "eventLogNext" : "eventLog";
    const auto        events    = mReader.page(mRing, mNextPage, kFieldbusEvents);
    mNextPage += kFieldbusEvents;
    for (std::size_t i = 0; i < events.size(); ++i) {
        answer.add(beginning + "Event" + suffix(i + kFieldbusFirstIndex), events[i].key);
        answer.add(beginning + "Class" + suffix(i + kFieldbusFirstIndex), events[i].eventClass);
    }
    answer.beginPart();
    for (std::size_t i = 0; i < events.size(); ++i) {
        answer.add(beginning + "Time" + suffix(i + kFieldbusFirstIndex), timeText(events[i]));
    }
    return answer.texts();
}

} // namespace quill::shell
