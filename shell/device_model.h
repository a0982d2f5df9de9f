#pragma once

#include "shell/device_signal.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quill::shell {

/// What can be wrong with the valve, its supply and its surroundings.
enum class Fault {
    supplyFailure,
    supplyTooHigh,
    friction,
    wornPacking,
    stuck,
    leak,
    travelSensor,
    supplySensor,
    actuatorSensor,
    temperatureSensor,
    overheating,
    frost,
    coverOpen,
    signalLost,
    signalOscillating,
    simulation,
};

/// All faults, in the order of their declaration.
[[nodiscard]] const std::vector<Fault>& allFaults();
/// Name and translation key of a fault: "faultSupplyFailure" and the like.
[[nodiscard]] const std::string& faultName(Fault fault);

/// How the device is configured, in the model's units: percent of travel, bar, mA, seconds.
struct ModelSettings {
    double              signalLow      = 4;
    double              signalHigh     = 20;
    bool                signalCloses   = false;
    Characteristic      characteristic = Characteristic::linear;
    CharacteristicCurve curve;
    double              travelLow            = 0;
    double              travelHigh           = 100;
    double              filterTime           = 0.25;
    double              gain                 = 2.4;
    double              integralTime         = 0.8; ///< 0 for none
    double              derivativeTime       = 0.05;
    double              deadband             = 0.3;
    double              openingTime          = 4.5; ///< of a full stroke
    double              closingTime          = 4.5;
    double              outputFailureCurrent = 3.6;
};

/// Where everything stands. Pressures in bar (gauge), travels in percent, currents in mA,
/// temperatures in degC.
struct ModelState {
    double time           = 0; ///< seconds since the model was made
    double inputCurrent   = 12;
    double setpoint       = 50;
    double supply         = 5.6;
    double chamber        = 2;
    double travel         = 50;
    double velocity       = 0; ///< percent of travel per second
    double drive          = 0; ///< of the pilot stage: -1 exhausts fully, 1 fills fully
    double temperature    = 30;
    double deviation      = 0; ///< mean of the difference between set point and travel
    double friction       = 0; ///< as the device estimates it from its last movements, bar
    double holdingDrive   = 0; ///< mean of the drive while the valve stands
    double slips          = 0; ///< jumps out of standstill in the last minutes, older ones fading
    double setpointSwings = 0; ///< turns of the set point in the last half minute, fading as well
    double travelSum      = 0; ///< percent of travel since the model was made
    int    cycles         = 0; ///< turns of the valve since the model was made
};

/// What the device's sensors say of it; "not a number" where a sensor has failed.
struct Measurements {
    double travel        = 0;
    double supply        = 0;
    double chamber       = 0;
    double temperature   = 0;
    double outputCurrent = 0;
};

/// A control valve with a spring-return actuator and its positioner.
///
/// The positioner compares the set point with the measured travel and fills or exhausts the
/// actuator's chamber. The stem moves when the pressure in the chamber differs from the spring's by
/// more than the friction; at rest the friction is greater than in motion, so that a valve with
/// much friction stands still, and then jumps. Without supply the spring closes the valve.
///
/// Time runs in fixed small steps, and nothing in it is left to chance: the same calls give the
/// same states, however time is cut into pieces. A copy goes on from the same point on its own.
class DeviceModel {
public:
    /// One step, in seconds.
    static constexpr double kStep = 0.01;

    /// A valve in balance that stands where the chamber's pressure puts it.
    explicit DeviceModel(double supply = 5.6, double chamber = 2, double temperature = 30,
                         std::uint32_t seed = 4417);

    /// Lets time pass; what is left over of a step is kept for the next call. A day takes some
    /// seconds of computing.
    void advance(double seconds);

    void set(const ModelSettings& settings) { mSettings = settings; }
    /// The input current asked for, mA; nothing lets the process ask for what it likes.
    void setDemand(std::optional<double> current) { mDemand = current; }
    /// Friction as a multiple of that of a new valve, 1 to begin with.
    void setFriction(double factor) { mFriction = factor; }
    /// Drives the output with a fixed current, mA; nothing lets it follow the travel.
    void fixOutputCurrent(std::optional<double> current) { mFixedOutput = current; }

    /// The positioner starts anew, and with it all that it has observed; valve and air stay as they
    /// are. The output follows the travel again.
    void restart();

    void               setFault(Fault fault, bool present);
    [[nodiscard]] bool has(Fault fault) const { return mFaults.contains(fault); }

    [[nodiscard]] const ModelState&    state() const { return mState; }
    [[nodiscard]] const ModelSettings& settings() const { return mSettings; }
    [[nodiscard]] Measurements         measure() const;
    [[nodiscard]] bool                 isOutputFixed() const { return mFixedOutput.has_value(); }
    /// The pressure with which the spring balances the chamber at a travel, bar.
    [[nodiscard]] static double springPressure(double travel);

private:
    /// A turn is one that goes further than the least way.
    struct TurnDetector {
        double leastWay;
        double extreme = 0;
        int    sense   = 0;

        bool turned(double value);
    };

    void                 step();
    void                 stepSignal();
    void                 stepSupply();
    void                 stepPositioner();
    void                 stepChamber();
    void                 stepStem();
    void                 stepTemperature();
    void                 observe();
    [[nodiscard]] double slidingFriction() const;
    [[nodiscard]] double staticFriction() const;
    /// 0 to 1, another one each time.
    double random();

    ModelSettings         mSettings;
    ModelState            mState;
    std::set<Fault>       mFaults;
    std::optional<double> mDemand;
    std::optional<double> mFixedOutput;
    double                mFriction   = 1;
    double                mIntegral   = 0;
    double                mTarget     = 12;
    double                mNextTarget = 0;
    double                mSlipStart  = 0; ///< travel where the last movement began
    double                mSlipTime   = 0; ///< and its time
    double                mPending    = 0;
    std::int64_t          mSteps      = 0;
    std::uint32_t         mRandom;
    TurnDetector          mTravelTurns{1};
    TurnDetector          mSetpointTurns{2};
};

} // namespace quill::shell
