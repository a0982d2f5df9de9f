#include "shell/status_cycle.h"

namespace quill::shell {

StatusCycle::StatusCycle(ShellMessenger& messenger, QObject* parent)
    : QObject(parent), mMessenger(messenger)
{
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &StatusCycle::read);
    connect(&messenger, &ShellMessenger::communicationModeChanged, this, &StatusCycle::readSoon);
    connect(&messenger, &ShellMessenger::classificationChanged, this, &StatusCycle::readSoon);
    connect(&messenger, &ShellMessenger::dialogNotified, this, &StatusCycle::follow);
}

void StatusCycle::setRequests(const std::string& name, const std::vector<std::string>& all)
{
    mRequest     = name;
    mOnce        = all;
    mReadOnce    = false;
    mConfiguring = false; // the views of another datafile begin anew
    std::erase(mOnce, name);
    readSoon();
}

void StatusCycle::setInterval(std::chrono::milliseconds interval)
{
    mInterval = interval;
    readSoon();
}

void StatusCycle::readSoon()
{
    mReadOnce = mReadOnce && mMessenger.isOnline();
    if (mayRead()) {
        mTimer.start(0);
    } else {
        mTimer.stop();
    }
}

void StatusCycle::follow(int phase)
{
    if (phase == kConfigurationBegins || phase == kConfigurationEnds) {
        mConfiguring = phase == kConfigurationBegins;
        readSoon();
    }
}

bool StatusCycle::mayRead() const
{
    return mMessenger.isOnline() && !mMessenger.link().isBusy() && !mConfiguring &&
           !mRequest.empty() && mInterval.count() > 0;
}

void StatusCycle::read()
{
    if (!mayRead()) {
        return;
    }
    // A device that is slower than the cycle is not asked twice.
    if (!mMessenger.isWaiting()) {
        for (const auto& name : mReadOnce ? std::vector<std::string>{} : mOnce) {
            mMessenger.readGroup(name);
        }
        mReadOnce = true;
        mMessenger.readGroup(mRequest);
    }
    mTimer.start(mInterval);
}

} // namespace quill::shell
