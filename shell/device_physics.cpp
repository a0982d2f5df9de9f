#include "shell/device_physics.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "shell/device.h"
#include "shell/units.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace quill::shell {

namespace {

constexpr double kSecondsPerHour      = 3600;
constexpr double kMillimetresPerMetre = 1000;

/// Controller settings that come with the choice of a tuning set; the last one leaves it to the
/// parameters.
struct Tuning {
    double gain;
    double integralTime;
    double derivativeTime;
};
constexpr Tuning kTunings[]   = {{1.2, 1.5, 0.02}, {2.4, 0.8, 0.05}, {4, 0.5, 0.08}};
constexpr int    kUserTuning  = 3;
constexpr int    kCurvePoints = 9;

/// As the device writes a number: rounded, in the shortest form.
std::string rounded(double value, double resolution)
{
    if (std::isnan(value)) {
        return "NaN";
    }
    const double whole = std::round(value / resolution) * resolution;
    return values::documentText(static_cast<float>(whole == 0 ? 0 : whole));
}

void show(SimulatedDevice& device, const std::string& parameter, double value,
          const std::string& unit, double resolution)
{
    const DeviceParameter* shown = device.find(parameter);
    if (!shown) {
        return;
    }
    if (unit.empty()) {
        device.set(parameter, rounded(value, resolution));
    } else if (const auto converted = convertUnit(value, unit, shown->unit)) {
        device.set(parameter, rounded(*converted, resolution));
    }
}

void widen(SimulatedDevice& device, const std::string& parameter, double value, bool upwards)
{
    const double known = numberOf(device, parameter, "degC", value);
    show(device, parameter, upwards ? std::max(known, value) : std::min(known, value), "degC", 0.1);
}

} // namespace

double numberOf(const SimulatedDevice& device, const std::string& parameter,
                const std::string& unit, double fallback)
{
    const DeviceParameter* found = device.find(parameter);
    const auto             value = found ? numberIn(found->value) : std::nullopt;
    if (!value || unit.empty()) {
        return value.value_or(fallback);
    }
    return convertUnit(*value, found->unit, unit).value_or(fallback);
}

void DevicePhysics::start(SimulatedDevice& device)
{
    const auto seed =
        static_cast<std::uint32_t>(std::max(1.0, numberOf(device, "serialNumber", "", 4417)));
    mModel = DeviceModel{numberOf(device, "supplyPressure", "bar", 5.6),
                         numberOf(device, "actuatorPressure", "bar", 2),
                         numberOf(device, "deviceTemperature", "degC", 30), seed};
    configure(device);
    publish(device);
}

void DevicePhysics::written(SimulatedDevice& device, const std::vector<std::string>&)
{
    configure(device);
}

void DevicePhysics::advance(SimulatedDevice& device, double seconds)
{
    mModel.advance(seconds);
    publish(device);
    count(device, "operatingTime", seconds / kSecondsPerHour, 1);
    const int cycles = mModel.state().cycles;
    count(device, "cycleCounter", cycles - mCycles, 1);
    mCycles               = cycles;
    const double sum      = mModel.state().travelSum;
    const double strokeMm = numberOf(device, "ratedTravel", "mm", 40);
    count(device, "travelSum", (sum - mTravelSum) / 100 * strokeMm / kMillimetresPerMetre, 0.1);
    mTravelSum = sum;
}

void DevicePhysics::configure(const SimulatedDevice& device)
{
    ModelSettings settings;
    const auto    whole = [&](const char* name, int fallback) {
        return static_cast<int>(numberOf(device, name, "", fallback));
    };
    settings.signalLow    = numberOf(device, "signalLowCurrent", "mA", settings.signalLow);
    settings.signalHigh   = numberOf(device, "signalHighCurrent", "mA", settings.signalHigh);
    settings.signalCloses = whole("signalDirection", 0) == 1;
    settings.characteristic =
        static_cast<Characteristic>(std::clamp(whole("characteristic", 0), 0, 3));
    for (int i = 1; i <= kCurvePoints; ++i) {
        const std::string number = '_' + std::to_string(i);
        const double      input  = numberOf(device, "curveInput" + number, "%", -1);
        const double      output = numberOf(device, "curveOutput" + number, "%", -1);
        if (input >= 0 && output >= 0) {
            settings.curve.emplace_back(input, output);
        }
    }
    std::ranges::sort(settings.curve);
    settings.travelLow   = numberOf(device, "travelLowLimit", "%", settings.travelLow);
    settings.travelHigh  = numberOf(device, "travelHighLimit", "%", settings.travelHigh);
    settings.filterTime  = numberOf(device, "filterTime", "s", settings.filterTime);
    settings.openingTime = numberOf(device, "openingTime", "s", settings.openingTime);
    settings.closingTime = numberOf(device, "closingTime", "s", settings.closingTime);
    settings.deadband    = numberOf(device, "travelDeadband", "%", settings.deadband);
    settings.outputFailureCurrent =
        numberOf(device, "outputFailureCurrent", "mA", settings.outputFailureCurrent);
    const int set = std::clamp(whole("tuningSet", 1), 0, kUserTuning);
    if (set == kUserTuning) {
        settings.gain           = numberOf(device, "proportionalGain", "", settings.gain);
        settings.integralTime   = numberOf(device, "integralTime", "s", settings.integralTime);
        settings.derivativeTime = numberOf(device, "derivativeTime", "s", settings.derivativeTime);
    } else {
        settings.gain           = kTunings[set].gain;
        settings.integralTime   = kTunings[set].integralTime;
        settings.derivativeTime = kTunings[set].derivativeTime;
    }
    mModel.set(settings);
}

void DevicePhysics::publish(SimulatedDevice& device)
{
    const Measurements measured = mModel.measure();
    const ModelState&  state    = mModel.state();
    show(device, "supplyPressure", measured.supply, "bar", 0.01);
    show(device, "actuatorPressure", measured.chamber, "bar", 0.01);
    show(device, "deviceTemperature", measured.temperature, "degC", 0.1);
    show(device, "inputCurrent", state.inputCurrent, "mA", 0.01);
    show(device, "travelSetpoint", state.setpoint, "%", 0.01);
    show(device, "travel", measured.travel, "%", 0.01);
    show(device, "travelDeviation", state.setpoint - measured.travel, "%", 0.01);
    show(device, "driveSignal", 100 * state.drive, "%", 0.1);
    show(device, "valveFriction", state.friction, "bar", 0.001);
    show(device, "outputCurrent", measured.outputCurrent, "mA", 0.01);
    if (!std::isnan(measured.temperature) && !mModel.has(Fault::simulation)) {
        widen(device, "maximumTemperature", measured.temperature, true);
        widen(device, "minimumTemperature", measured.temperature, false);
    }
}

void DevicePhysics::count(SimulatedDevice& device, const std::string& parameter, double more,
                          double resolution)
{
    const DeviceParameter* counter = device.find(parameter);
    if (!counter) {
        return;
    }
    double& fraction = mFractions[parameter];
    fraction += more;
    // What nobody has counted yet by rounding alone must not wait for another round.
    const double steps = std::floor(fraction / resolution + 1e-9);
    if (steps <= 0) {
        return;
    }
    fraction           = std::max(0.0, fraction - steps * resolution);
    const double value = numberIn(counter->value).value_or(0) + steps * resolution;
    device.set(parameter,
               resolution == 1 ? std::to_string(std::llround(value)) : rounded(value, resolution));
}

} // namespace quill::shell
