#include "shell/device_model.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace quill::shell {

namespace {

constexpr double kDt  = DeviceModel::kStep;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// The actuator: what the spring asks for, and how fast the stem follows.
constexpr double kSpringPreload = 1.0;  // bar at 0 %
constexpr double kSpringRate    = 0.02; // bar for 1 %
constexpr double kMobility      = 600;  // % per second and bar

// Friction of a new valve, bar, and how much more holds a stem at rest. Tight packing grips.
constexpr double kFriction       = 0.05;
constexpr double kGrip           = 1.1;
constexpr double kTightGrip      = 1.2;
constexpr double kTightFrom      = 3; // times the friction of a new valve
constexpr double kRaisedFriction = 5;
constexpr double kWornFriction   = 0.2;
constexpr double kSeized         = 100; // bar

constexpr double kRegulated     = 5.6;
constexpr double kUnregulated   = 8.2;
constexpr double kRipple        = 0.015;
constexpr double kSupplyTime    = 1.5; // s
constexpr double kLeakRate      = 0.05;
constexpr double kMeanPressure  = 2; // of a stroke, bar
constexpr double kLiveZero      = 3.8;
constexpr double kLostSignal    = 3.5;
constexpr double kSignalRate    = 4;  // mA per second
constexpr double kProportional  = 10; // % of difference that a gain of 1 answers with full drive
constexpr double kMostIntegral  = 0.3;
constexpr double kHeatTime      = 30; // s
constexpr double kDay           = 86400;
constexpr double kSlipTime      = 0.6; // s; a longer movement is one that was asked for
constexpr double kSlipWay       = 0.8; // %
constexpr double kSlipMemory    = 120;
constexpr double kHalfMinute    = 30;
constexpr double kDeviationTime = 5;
constexpr double kHoldingTime   = 10;

/// Goes the part of the way to the target that one step is of the time constant.
void approach(double& value, double target, double timeConstant)
{
    value += (target - value) * std::min(1.0, timeConstant > 0 ? kDt / timeConstant : 1.0);
}

} // namespace

const std::vector<Fault>& allFaults()
{
    static const std::vector<Fault> all = [] {
        std::vector<Fault> faults;
        for (int i = 0; i <= static_cast<int>(Fault::simulation); ++i) {
            faults.push_back(static_cast<Fault>(i));
        }
        return faults;
    }();
    return all;
}

const std::string& faultName(Fault fault)
{
    static const std::array<std::string, 16> names{
        "faultSupplyFailure",     "faultSupplyTooHigh", "faultFriction",
        "faultWornPacking",       "faultStuck",         "faultLeak",
        "faultTravelSensor",      "faultSupplySensor",  "faultActuatorSensor",
        "faultTemperatureSensor", "faultOverheating",   "faultFrost",
        "faultCoverOpen",         "faultSignalLost",    "faultSignalOscillating",
        "faultSimulation"};
    return names.at(static_cast<std::size_t>(fault));
}

DeviceModel::DeviceModel(double supply, double chamber, double temperature, std::uint32_t seed)
    : mRandom(seed)
{
    mState.supply          = supply;
    mState.chamber         = chamber;
    mState.temperature     = temperature;
    mState.friction        = kFriction;
    mState.travel          = std::clamp((chamber - kSpringPreload) / kSpringRate, 0.0, 100.0);
    mState.setpoint        = mState.travel;
    mTravelTurns.extreme   = mState.travel;
    mSetpointTurns.extreme = mState.setpoint;
}

double DeviceModel::springPressure(double travel)
{
    return kSpringPreload + kSpringRate * travel;
}

void DeviceModel::setFault(Fault fault, bool present)
{
    if (present) {
        mFaults.insert(fault);
    } else {
        mFaults.erase(fault);
    }
}

void DeviceModel::restart()
{
    mIntegral             = 0;
    mState.drive          = 0;
    mState.setpoint       = mState.travel;
    mState.deviation      = 0;
    mState.friction       = kFriction;
    mState.holdingDrive   = 0;
    mState.slips          = 0;
    mState.setpointSwings = 0;
    mTravelTurns          = {mTravelTurns.leastWay, mState.travel};
    mSetpointTurns        = {mSetpointTurns.leastWay, mState.setpoint};
    mFixedOutput.reset();
}

void DeviceModel::advance(double seconds)
{
    mPending += std::max(0.0, seconds);
    // A step is due when nothing but rounding is missing.
    while (mPending >= kDt * (1 - 1e-6)) {
        mPending -= kDt;
        step();
    }
}

void DeviceModel::step()
{
    mState.time = static_cast<double>(++mSteps) * kDt;
    stepSignal();
    stepSupply();
    stepPositioner();
    stepChamber();
    stepStem();
    stepTemperature();
    observe();
}

void DeviceModel::stepSignal()
{
    if (mState.time >= mNextTarget) {
        mTarget     = 8 + 8 * random();
        mNextTarget = mState.time + 15 + 20 * random();
    }
    double wanted = mDemand.value_or(mTarget);
    if (has(Fault::signalOscillating)) {
        wanted = 12 + 4 * std::sin(2 * std::numbers::pi * mState.time / 5);
    }
    const double most = kSignalRate * kDt;
    mState.inputCurrent += std::clamp(wanted - mState.inputCurrent, -most, most);
    if (has(Fault::signalLost)) {
        mState.inputCurrent = kLostSignal;
    }
    // Below the live zero there is no signal, and the valve goes where it is safe.
    double asked = 0;
    if (mState.inputCurrent >= kLiveZero) {
        const double signal = signalOfCurrent(mState.inputCurrent, mSettings.signalLow,
                                              mSettings.signalHigh, mSettings.signalCloses);
        const double travel = travelOfSignal(signal, mSettings.characteristic, mSettings.curve);
        asked               = std::max(std::min(travel, mSettings.travelHigh), mSettings.travelLow);
    }
    approach(mState.setpoint, asked, mSettings.filterTime);
}

void DeviceModel::stepSupply()
{
    double wanted = kRegulated + kRipple * std::sin(2 * std::numbers::pi * mState.time / 7);
    if (has(Fault::supplyTooHigh)) {
        wanted = kUnregulated;
    }
    if (has(Fault::supplyFailure)) {
        wanted = 0;
    }
    approach(mState.supply, wanted, kSupplyTime);
}

void DeviceModel::stepPositioner()
{
    if (has(Fault::travelSensor)) {
        mState.drive = -1; // it cannot tell where the valve is, and lets the spring close it
        mIntegral    = 0;
        return;
    }
    const double difference = mState.setpoint - mState.travel;
    if (std::abs(difference) <= mSettings.deadband) {
        mState.drive = 0;
        mIntegral    = 0;
        return;
    }
    const double gain = mSettings.gain / kProportional;
    if (mSettings.integralTime > 0) {
        mIntegral = std::clamp(mIntegral + gain * difference * kDt / mSettings.integralTime,
                               -kMostIntegral, kMostIntegral);
    } else {
        mIntegral = 0;
    }
    mState.drive = std::clamp(
        gain * (difference - mSettings.derivativeTime * mState.velocity) + mIntegral, -1.0, 1.0);
}

void DeviceModel::stepChamber()
{
    // A stroke takes the configured time with the full drive from a normal supply.
    const double stroke = 100 * kSpringRate;
    const double filling =
        stroke / (kRegulated - kMeanPressure) / std::max(0.1, mSettings.openingTime);
    const double emptying = stroke / kMeanPressure / std::max(0.1, mSettings.closingTime);
    double       flow = mState.drive > 0 ? filling * mState.drive * (mState.supply - mState.chamber)
                                         : emptying * mState.drive * mState.chamber;
    if (has(Fault::leak)) {
        flow -= kLeakRate * mState.chamber;
    }
    // No check valve keeps the air when the supply is gone.
    if (mState.chamber > mState.supply) {
        flow -= emptying * (mState.chamber - mState.supply);
    }
    mState.chamber = std::max(0.0, mState.chamber + flow * kDt);
}

double DeviceModel::slidingFriction() const
{
    double factor = mFriction;
    if (has(Fault::friction)) {
        factor *= kRaisedFriction;
    }
    if (has(Fault::wornPacking)) {
        factor *= kWornFriction;
    }
    return has(Fault::stuck) ? kSeized : kFriction * factor;
}

double DeviceModel::staticFriction() const
{
    const double sliding = slidingFriction();
    return sliding * (sliding >= kTightFrom * kFriction ? kTightGrip : kGrip);
}

void DeviceModel::stepStem()
{
    const double force  = mState.chamber - springPressure(mState.travel);
    const bool   stood  = mState.velocity == 0;
    const double resist = stood ? staticFriction() : slidingFriction();
    if (std::abs(force) <= resist) {
        mState.velocity = 0;
    } else {
        mState.velocity = (force - std::copysign(slidingFriction(), force)) * kMobility;
    }
    const double before = mState.travel;
    mState.travel       = std::clamp(before + mState.velocity * kDt, 0.0, 100.0);
    if (mState.travel == before) {
        mState.velocity = 0; // held by friction, or by a stop
    }
    mState.travelSum += std::abs(mState.travel - before);

    const bool stands = mState.velocity == 0;
    if (stood && !stands) {
        mSlipStart = before;
        mSlipTime  = mState.time;
    } else if (!stood && stands && mState.time - mSlipTime < kSlipTime &&
               std::abs(mState.travel - mSlipStart) > kSlipWay) {
        mState.slips += 1;
    }
}

void DeviceModel::stepTemperature()
{
    double surroundings = 30 + 4 * std::sin(2 * std::numbers::pi * mState.time / kDay);
    if (has(Fault::overheating)) {
        surroundings = 95;
    }
    if (has(Fault::frost)) {
        surroundings = -38;
    }
    approach(mState.temperature, surroundings, kHeatTime);
}

void DeviceModel::observe()
{
    approach(mState.deviation, std::abs(mState.setpoint - mState.travel), kDeviationTime);
    if (mState.velocity == 0) {
        approach(mState.holdingDrive, mState.drive, kHoldingTime);
    } else if (std::abs(mState.velocity) > 1) {
        const double force = mState.chamber - springPressure(mState.travel);
        approach(mState.friction, std::abs(force) - std::abs(mState.velocity) / kMobility, 1);
    }
    approach(mState.slips, 0, kSlipMemory);
    approach(mState.setpointSwings, 0, kHalfMinute);
    if (mTravelTurns.turned(mState.travel)) {
        ++mState.cycles;
    }
    if (mSetpointTurns.turned(mState.setpoint)) {
        mState.setpointSwings += 1;
    }
}

bool DeviceModel::TurnDetector::turned(double value)
{
    const double way = value - extreme;
    if (way * sense >= 0) {
        if (sense == 0 && std::abs(way) > leastWay) {
            sense = way > 0 ? 1 : -1;
        }
        if (sense != 0) {
            extreme = value;
        }
        return false;
    }
    if (std::abs(way) <= leastWay) {
        return false;
    }
    sense   = -sense;
    extreme = value;
    return true;
}

Measurements DeviceModel::measure() const
{
    if (has(Fault::simulation)) {
        return {50, 5.5, 2, 25, mFixedOutput.value_or(12)};
    }
    Measurements measured{mState.travel, mState.supply, mState.chamber, mState.temperature, 0};
    measured.outputCurrent = mFixedOutput.value_or(
        has(Fault::travelSensor) ? mSettings.outputFailureCurrent : 4 + 0.16 * mState.travel);
    if (has(Fault::travelSensor)) {
        measured.travel = kNaN;
    }
    if (has(Fault::supplySensor)) {
        measured.supply = kNaN;
    }
    if (has(Fault::actuatorSensor)) {
        measured.chamber = kNaN;
    }
    if (has(Fault::temperatureSensor)) {
        measured.temperature = kNaN;
    }
    return measured;
}

double DeviceModel::random()
{
    // A generator of our own: the library's distributions differ from one to the other.
    mRandom ^= mRandom << 13U;
    mRandom ^= mRandom >> 17U;
    mRandom ^= mRandom << 5U;
    return static_cast<double>(mRandom) /
           static_cast<double>(std::numeric_limits<std::uint32_t>::max());
}

} // namespace quill::shell
