#include "shell/device_link.h"

namespace quill::shell {

DeviceLink::DeviceLink(SimulatedDevice& device, QObject* parent) : QObject(parent), mDevice(device)
{
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &DeviceLink::step);
}

void DeviceLink::setDelay(std::chrono::milliseconds delay)
{
    mDelay = delay;
}

void DeviceLink::send(const std::string& requestXml)
{
    mRequests.push_back(requestXml);
    if (!mBusy) {
        mBusy = true;
        mTimer.start(mDelay);
        emit busyChanged(true);
    }
}

void DeviceLink::cancel()
{
    mTimer.stop();
    mRequests.clear();
    mResponses.clear();
    if (mBusy) {
        mBusy = false;
        emit busyChanged(false);
    }
}

void DeviceLink::step()
{
    // The device works on a request when its turn has come, so that a request sees what the ones
    // before it have written.
    if (mResponses.empty() && !mRequests.empty()) {
        const std::string request = mRequests.front();
        mRequests.pop_front();
        for (std::string& response : mDevice.answer(request)) {
            mResponses.push_back(std::move(response));
        }
    }
    const std::string response = mResponses.front();
    mResponses.pop_front();
    if (!mResponses.empty() || !mRequests.empty()) {
        mTimer.start(mDelay);
    }
    emit responseArrived(QString::fromStdString(response));
    // A receiver may have sent the next request meanwhile, or cancelled.
    if (mTimer.isActive() || !mBusy) {
        return;
    }
    if (!mRequests.empty()) {
        mTimer.start(mDelay);
    } else {
        mBusy = false;
        emit busyChanged(false);
    }
}

} // namespace quill::shell
