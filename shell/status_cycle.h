#pragma once

#include "shell/shell_messenger.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <string>
#include <vector>

namespace quill::shell {

/// Asks the device for its status again and again while the host is online. It rests while a
/// transfer runs and while a view is being configured, as an answer would come in between; it asks
/// at once when that is over.
class StatusCycle : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds kUsual{2000};

    /// The messenger must outlive the cycle. Rests until there is a request.
    explicit StatusCycle(ShellMessenger& messenger, QObject* parent = nullptr);

    /// Name of the request, empty to rest; and what is to be read once before it whenever the host
    /// has gone online: the other ones among `all`.
    void setRequests(const std::string& name, const std::vector<std::string>& all = {});
    /// Time between two readings; zero to rest. `kUsual` at the start.
    void                                    setInterval(std::chrono::milliseconds interval);
    [[nodiscard]] std::chrono::milliseconds interval() const { return mInterval; }
    /// Whether a view is being configured.
    [[nodiscard]] bool isConfiguring() const { return mConfiguring; }
    /// Does not wait for the next turn.
    void readSoon();

private:
    void               follow(int phase);
    void               read();
    [[nodiscard]] bool mayRead() const;

    ShellMessenger&           mMessenger;
    std::string               mRequest;
    std::vector<std::string>  mOnce;
    bool                      mReadOnce    = false;
    std::chrono::milliseconds mInterval    = kUsual;
    bool                      mConfiguring = false;
    QTimer                    mTimer;
};

} // namespace quill::shell
