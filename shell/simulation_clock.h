#pragma once

#include "shell/shell_messenger.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace quill::shell {

/// Lets the device's time pass as that of the user does. It stands still until it is started.
class SimulationClock : public QObject {
    Q_OBJECT

public:
    /// The messenger must outlive the clock.
    explicit SimulationClock(ShellMessenger& messenger, QObject* parent = nullptr);

    void               start();
    void               stop() { mTimer.stop(); }
    [[nodiscard]] bool isRunning() const { return mTimer.isActive(); }

signals:
    /// The device has lived on for a moment.
    void ticked();

private:
    void tick();

    ShellMessenger& mMessenger;
    QTimer          mTimer;
    QElapsedTimer   mSince;
};

} // namespace quill::shell
