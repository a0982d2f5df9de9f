#include "shell/device_actions.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "shell/device.h"
#include "shell/device_events.h"
#include "shell/device_physics.h"
#include "shell/device_status.h"
#include "shell/units.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quill::shell {

namespace {

using documents::attributeText;

constexpr const char* kTestValue = "loopTestValue";
constexpr const char* kZero      = "loopCurrentZero";
constexpr const char* kGain      = "loopCurrentGain";
constexpr const char* kMilliamp  = "mA";

constexpr double kMultidropCurrent = 4;
constexpr double kLeastTestCurrent = 3.6;
constexpr double kMostTestCurrent  = 22.5;

constexpr const char* kResetStatus      = "resetStatus";
constexpr const char* kResetDiagnostics = "resetDiagnosticsCode";
constexpr const char* kResetParameters  = "resetParametersCode";

/// Groups of what a device is and where it stands, not of how it is set.
constexpr std::array<std::string_view, 6> kNoSettings = {
    "identification", "maintenance", "hartAddress", "mACalibration", "reset", "eventLog"};

constexpr const char* kErrLoopMode = "hartCmdErrIncorrectLoopCurrentMode";
constexpr const char* kErrTooLarge = "hartCmdErrPassedParameterTooLarge";
constexpr const char* kErrTooSmall = "hartCmdErrPassedParameterTooSmall";

bool contains(const std::vector<std::string>& parameters, const char* name)
{
    return std::ranges::find(parameters, name) != parameters.end();
}

bool isMultidrop(const SimulatedDevice& device)
{
    return numberOf(device, "multidrop", "", 0) != 0;
}

/// What an item says, in mA; nothing for what is no current.
std::optional<double> currentOf(const DeviceRequestItem& item)
{
    const auto value   = numberIn(item.value);
    const bool isPlain = item.unit.empty() || item.unit == documents::kNoUnit;
    return isPlain || !value ? value : convertUnit(*value, item.unit, kMilliamp);
}

std::string errorOf(TrimProblem problem)
{
    switch (problem) {
    case TrimProblem::noFixedCurrent: return kErrLoopMode;
    case TrimProblem::tooSmall: return kErrTooSmall;
    case TrimProblem::tooLarge: return kErrTooLarge;
    case TrimProblem::none: break;
    }
    return {};
}

void logEvent(SimulatedDevice& device, const char* key)
{
    if (auto* events = device.function<DeviceEvents>()) {
        events->log(key);
    }
}

int codeIn(const SimulatedDevice& device, const char* parameter)
{
    return static_cast<int>(numberOf(device, parameter, "", Resets::kNothing));
}

void setIfThere(SimulatedDevice& device, const char* parameter, const std::string& value)
{
    if (device.find(parameter)) {
        device.set(parameter, value);
    }
}

} // namespace

// --- The current output -----------------------------------------------------------------------

CurrentOutput::CurrentOutput(double zeroError, double gainError) : mLoop(zeroError, gainError) {}

double measuredLoopCurrent(const SimulatedDevice& device)
{
    const auto* output = device.function<CurrentOutput>();
    return output ? output->loop().measured() : 0;
}

void CurrentOutput::start(SimulatedDevice& device)
{
    drive(device);
}

void CurrentOutput::advance(SimulatedDevice& device, double)
{
    drive(device);
}

void CurrentOutput::release(SimulatedDevice& device)
{
    mLoop.setTest(std::nullopt);
    drive(device);
}

void CurrentOutput::drive(SimulatedDevice& device)
{
    auto* physics = device.function<DevicePhysics>();
    if (isMultidrop(device)) {
        mLoop.setTest(std::nullopt);
        mLoop.follow(kMultidropCurrent);
    }
    if (!physics) {
        return;
    }
    if (isMultidrop(device)) {
        physics->model().fixOutputCurrent(kMultidropCurrent);
        return;
    }
    physics->model().fixOutputCurrent(mLoop.test());
    mLoop.follow(physics->model().measure().outputCurrent);
}

std::string CurrentOutput::refuses(const SimulatedDevice& device, const DeviceRequestItem& item)
{
    const bool isTest = item.name == kTestValue;
    if (!isTest && item.name != kZero && item.name != kGain) {
        return {};
    }
    const auto current = currentOf(item);
    if (!current) {
        return kErrWrongValue;
    }
    if (isMultidrop(device)) {
        return kErrLoopMode;
    }
    if (isTest) {
        const bool isOff = *current == 0;
        return !isOff && *current < kLeastTestCurrent ? kErrTooSmall
               : *current > kMostTestCurrent          ? kErrTooLarge
                                                      : "";
    }
    LoopCurrent tried = mLoop;
    return errorOf(item.name == kZero ? tried.trimZero(*current) : tried.trimGain(*current));
}

void CurrentOutput::written(SimulatedDevice& device, const std::vector<std::string>& parameters)
{
    if (contains(parameters, kTestValue)) {
        const double current = numberOf(device, kTestValue, kMilliamp, 0);
        mLoop.setTest(current == 0 ? std::nullopt : std::optional{current});
    }
    for (const char* trimmed : {kZero, kGain}) {
        if (contains(parameters, trimmed)) {
            const double shown   = numberOf(device, trimmed, kMilliamp, 0);
            const auto   problem = trimmed == kZero ? mLoop.trimZero(shown) : mLoop.trimGain(shown);
            if (problem == TrimProblem::none) {
                logEvent(device, "vx4400eventCurrentCalibrated");
            }
        }
    }
    drive(device);
}

// --- Resets -----------------------------------------------------------------------------------

Resets::Resets(const IXMLDOMNode& datafile)
{
    // What lacks an attribute is no setting, and no reason to have no device.
    for (const IXMLDOMNode& parameter :
         datafile.selectNodes("./data:dtm/data:persistentData/data:parameters/data:parameter"
                              "[@name and @value!='' and @unit and @access]")) {
        const std::string name  = attributeText(parameter, "name");
        const std::string group = documents::homeRequestGroup(datafile, name);
        if (values::containsNoCase(attributeText(parameter, "access"), "write") &&
            std::ranges::find(kNoSettings, group) == kNoSettings.end()) {
            mDefaults[group].push_back(
                {name, attributeText(parameter, "unit"), attributeText(parameter, "value")});
        }
    }
}

void resetStatus(SimulatedDevice& device)
{
    if (auto* status = device.function<DeviceStatus>()) {
        status->clear(device);
    }
    logEvent(device, "vx4400eventStatusReset");
}

void restartDevice(SimulatedDevice& device)
{
    if (auto* physics = device.function<DevicePhysics>()) {
        physics->model().restart();
    }
    if (auto* output = device.function<CurrentOutput>()) {
        output->release(device);
        setIfThere(device, kTestValue, "0");
    }
    logEvent(device, kEventExternalReset);
    if (auto* status = device.function<DeviceStatus>()) {
        status->restart(device);
    }
}

std::optional<std::vector<std::string>> Resets::answer(SimulatedDevice&     device,
                                                       const DeviceRequest& request)
{
    if (request.name != kResetStatus || !request.isAct()) {
        return std::nullopt;
    }
    if (const std::string code = device.failureOf(kResetStatus); !code.empty()) {
        return refusal(request, code);
    }
    resetStatus(device);
    return messageTexts({DeviceResponse{request}});
}

void Resets::written(SimulatedDevice& device, const std::vector<std::string>& parameters)
{
    const auto take = [&](const char* parameter) {
        if (!contains(parameters, parameter)) {
            return kNothing;
        }
        const int code = codeIn(device, parameter);
        device.set(parameter, std::to_string(kNothing));
        return code;
    };
    if (take(kResetStatus) != kNothing) {
        resetStatus(device);
    }
    resetDiagnostics(device, take(kResetDiagnostics));
    resetParameters(device, take(kResetParameters));
}

void Resets::resetDiagnostics(SimulatedDevice& device, int code) const
{
    const bool all = code == allDiagnostics;
    if (all || code == eventLog) {
        if (auto* events = device.function<DeviceEvents>()) {
            events->clear();
        }
        logEvent(device, "vx4400eventLogReset");
    }
    if (all || code == counters) {
        for (const char* counter : {"cycleCounter", "travelSum"}) {
            setIfThere(device, counter, "0");
        }
        logEvent(device, "vx4400eventCountersReset");
    }
    const DeviceParameter* temperature = device.find("deviceTemperature");
    if (temperature && (all || code == extremes)) {
        for (const char* extreme : {"maximumTemperature", "minimumTemperature"}) {
            if (const DeviceParameter* kept = device.find(extreme)) {
                const double now = numberOf(device, "deviceTemperature", kept->unit,
                                            numberOf(device, extreme, "", 0));
                device.set(extreme, values::documentText(static_cast<float>(now)));
            }
        }
        logEvent(device, "vx4400eventExtremesReset");
    }
}

void Resets::resetParameters(SimulatedDevice& device, int code)
{
    switch (code) {
    case tuning:
        restore(device, {"tuning"});
        logEvent(device, "vx4400eventTuningReset");
        break;
    case alarms:
        restore(device, {"alarms"});
        logEvent(device, "vx4400eventAlarmsReset");
        break;
    case factorySettings:
        restore(device, {});
        logEvent(device, "vx4400eventFactorySettings");
        break;
    case restart: restartDevice(device); break;
    default: break;
    }
}

void Resets::restore(SimulatedDevice& device, const std::vector<std::string>& groups)
{
    DeviceRequest request{"reset", "write", {}};
    for (const auto& [group, items] : mDefaults) {
        if (groups.empty() || std::ranges::find(groups, group) != groups.end()) {
            request.items.insert(request.items.end(), items.begin(), items.end());
        }
    }
    // The other functions take part as if a host had written all of it.
    (void)device.serve(request);
}

} // namespace quill::shell
