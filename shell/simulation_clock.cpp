#include "shell/simulation_clock.h"

#include <algorithm>

namespace quill::shell {

namespace {

constexpr int    kTick     = 200;  ///< ms
constexpr qint64 kMostTime = 1000; ///< ms; a machine that slept does not catch up
constexpr double kSecond   = 1000;

} // namespace

SimulationClock::SimulationClock(ShellMessenger& messenger, QObject* parent)
    : QObject(parent), mMessenger(messenger)
{
    connect(&mTimer, &QTimer::timeout, this, &SimulationClock::tick);
}

void SimulationClock::start()
{
    mSince.start();
    mTimer.start(kTick);
}

void SimulationClock::tick()
{
    const qint64 passed = std::min(mSince.restart(), kMostTime);
    mMessenger.device().advance(static_cast<double>(passed) / kSecond);
    emit ticked();
}

} // namespace quill::shell
