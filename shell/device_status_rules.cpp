#include "shell/device_status_rules.h"

#include "shell/device.h"
#include "shell/device_physics.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quill::shell {

namespace {

constexpr double kNever       = std::numeric_limits<double>::infinity();
constexpr double kFullDrive   = 0.99;
constexpr double kLeakDrive   = 0.12; ///< that holds a valve which stands still
constexpr double kLeakMargin  = 0.5;  ///< bar from where the pressure can go no further
constexpr double kLiveZero    = 3.8;  ///< mA
constexpr double kFullSignal  = 20.5; ///< mA
constexpr double kManySlips   = 3;
constexpr double kManySwings  = 5;
constexpr double kDeviation   = 5;    ///< %
constexpr double kFrictionTop = 0.15; ///< bar
constexpr double kFrictionLow = 0.02; ///< bar

const DeviceModel* model(const SimulatedDevice& device)
{
    const auto* physics = device.function<DevicePhysics>();
    return physics ? &physics->model() : nullptr;
}

template <Fault fault>
bool hasFault(const SimulatedDevice& device)
{
    const DeviceModel* valve = model(device);
    return valve && valve->has(fault);
}

double limit(const SimulatedDevice& device, const char* parameter, const char* unit,
             double otherwise)
{
    return numberOf(device, parameter, unit, otherwise);
}

/// A sensor that has failed measures "not a number", which is neither above nor below a limit.
Measurements measured(const SimulatedDevice& device)
{
    const DeviceModel* valve = model(device);
    const double       none  = std::numeric_limits<double>::quiet_NaN();
    return valve ? valve->measure() : Measurements{none, none, none, none, none};
}

ModelState state(const SimulatedDevice& device)
{
    const DeviceModel* valve = model(device);
    return valve ? valve->state() : ModelState{.friction = kFrictionLow};
}

bool temperatureHigh(const SimulatedDevice& device)
{
    return measured(device).temperature > limit(device, "alarmHighTemperature", "degC", kNever);
}

bool temperatureLow(const SimulatedDevice& device)
{
    return measured(device).temperature < limit(device, "alarmLowTemperature", "degC", -kNever);
}

bool supplyLow(const SimulatedDevice& device)
{
    return measured(device).supply < limit(device, "supplyLowPressure", "bar", -kNever);
}

bool supplyHigh(const SimulatedDevice& device)
{
    return measured(device).supply > limit(device, "supplyHighPressure", "bar", kNever);
}

bool deviates(const SimulatedDevice& device)
{
    return std::abs(state(device).setpoint - measured(device).travel) >
           limit(device, "travelDeviationLimit", "%", kDeviation);
}

bool driveSaturated(const SimulatedDevice& device)
{
    // Without a travel the drive is at its limit on purpose.
    return std::abs(state(device).drive) >= kFullDrive && !hasFault<Fault::travelSensor>(device);
}

bool valveStuck(const SimulatedDevice& device)
{
    return driveSaturated(device) && deviates(device) && !supplyLow(device) &&
           state(device).velocity == 0;
}

bool leaks(const SimulatedDevice& device)
{
    const ModelState valve = state(device);
    return std::abs(valve.holdingDrive) > kLeakDrive && valve.chamber > kLeakMargin &&
           valve.chamber < valve.supply - kLeakMargin && !driveSaturated(device);
}

bool frictionHigh(const SimulatedDevice& device)
{
    return state(device).friction > limit(device, "frictionHighLimit", "bar", kFrictionTop);
}

bool frictionLow(const SimulatedDevice& device)
{
    return state(device).friction < limit(device, "frictionLowLimit", "bar", kFrictionLow);
}

bool stickSlip(const SimulatedDevice& device)
{
    return state(device).slips > kManySlips;
}

bool travelHigh(const SimulatedDevice& device)
{
    return measured(device).travel > limit(device, "alarmHighTravel", "%", kNever);
}

bool travelLow(const SimulatedDevice& device)
{
    return measured(device).travel < limit(device, "alarmLowTravel", "%", -kNever);
}

bool manyCycles(const SimulatedDevice& device)
{
    return limit(device, "cycleCounter", "", 0) > limit(device, "cycleCounterLimit", "", kNever);
}

bool longTravel(const SimulatedDevice& device)
{
    return limit(device, "travelSum", "m", 0) > limit(device, "travelSumLimit", "m", kNever);
}

bool signalLow(const SimulatedDevice& device)
{
    return state(device).inputCurrent < kLiveZero;
}

bool signalHigh(const SimulatedDevice& device)
{
    return state(device).inputCurrent > kFullSignal;
}

bool setpointSwings(const SimulatedDevice& device)
{
    return state(device).setpointSwings > kManySwings;
}

bool outputFixed(const SimulatedDevice& device)
{
    const DeviceModel* valve = model(device);
    return valve && valve->isOutputFixed();
}

bool writeProtected(const SimulatedDevice& device)
{
    return limit(device, "writeProtectionMode", "", 0) != 0;
}

constexpr ConditionRule kRules[] = {
    {"statusTemperatureHigh", temperatureHigh, 2},
    {"statusTemperatureLow", temperatureLow, 2},
    {"statusCoverOpen", hasFault<Fault::coverOpen>, 0},
    {"statusTravelSensorFailure", hasFault<Fault::travelSensor>, 0},
    {"statusSupplySensorFailure", hasFault<Fault::supplySensor>, 0},
    {"statusActuatorSensorFailure", hasFault<Fault::actuatorSensor>, 0},
    {"statusTemperatureSensorFailure", hasFault<Fault::temperatureSensor>, 0},
    {"statusSupplyPressureLow", supplyLow, 1},
    {"statusSupplyPressureHigh", supplyHigh, 1},
    {"statusDriveSaturated", driveSaturated, 5},
    {"statusPneumaticLeak", leaks, 10},
    {"statusTravelDeviation", deviates, 5},
    {"statusValveStuck", valveStuck, 8},
    {"statusFrictionHigh", frictionHigh, 2},
    {"statusFrictionLow", frictionLow, 2},
    {"statusStickSlip", stickSlip, 2},
    {"statusTravelHigh", travelHigh, 1},
    {"statusTravelLow", travelLow, 1},
    {"statusCycleCounterLimit", manyCycles, 0},
    {"statusTravelSumLimit", longTravel, 0},
    {"statusSignalLow", signalLow, 1},
    {"statusSignalHigh", signalHigh, 1},
    {"statusSetpointOscillating", setpointSwings, 2},
    {"statusSimulationActive", hasFault<Fault::simulation>, 0},
    {"statusLoopCurrentFixed", outputFixed, 0},
    {"statusWriteProtected", writeProtected, 0},
};

} // namespace

const ConditionRule* findRule(const std::string& condition)
{
    const auto* const found = std::ranges::find_if(
        kRules, [&](const ConditionRule& rule) { return condition == rule.condition; });
    return found == std::end(kRules) ? nullptr : found;
}

} // namespace quill::shell
