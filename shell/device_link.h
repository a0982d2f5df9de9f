#pragma once

#include "shell/device.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <deque>

namespace quill::shell {

/// The wire to the device: requests wait in a queue, and each response arrives after the delay, in
/// order. Nothing arrives from within `send`, also without a delay.
class DeviceLink : public QObject {
    Q_OBJECT

public:
    /// The device must outlive the link.
    explicit DeviceLink(SimulatedDevice& device, QObject* parent = nullptr);

    void send(const std::string& requestXml);
    /// Forgets what is outstanding; nothing of it arrives any more.
    void cancel();
    /// Time from one response to the next; starts at zero.
    void                                    setDelay(std::chrono::milliseconds delay);
    [[nodiscard]] std::chrono::milliseconds delay() const { return mDelay; }
    /// Whether a response is outstanding.
    [[nodiscard]] bool isBusy() const { return mBusy; }

signals:
    void responseArrived(const QString& xml);
    void busyChanged(bool busy);

private:
    void step();

    SimulatedDevice&          mDevice;
    std::deque<std::string>   mRequests;
    std::deque<std::string>   mResponses;
    QTimer                    mTimer;
    std::chrono::milliseconds mDelay{0};
    bool                      mBusy = false;
};

} // namespace quill::shell
