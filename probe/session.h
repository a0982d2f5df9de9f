#pragma once

#include "probe/host.h"
#include "probe/output.h"
#include "probe/registry.h"
#include "probe/scene.h"

#include <string_view>

namespace quill::probe {

/// One run of the probe: takes lines, does what they say, and hands the reports and the reply of
/// each to the sink. There is one session at a time, as there is one user-interface thread; it puts
/// its own toolkit in the place of the current one.
class Session {
public:
    explicit Session(Sink sink);
    ~Session();
    Session(const Session&)            = delete;
    Session& operator=(const Session&) = delete;

    /// Does one line. A blank line is none and gets no reply. Nothing escapes: whatever goes wrong
    /// is told in the reply. Answers whether the reply was ok.
    bool line(std::string_view text);
    /// Whether every line so far was answered with ok.
    [[nodiscard]] bool allOk() const { return mAllOk; }

private:
    /// Does a line; what it returns goes into the reply.
    [[nodiscard]] CallResult perform(const Json& line);

    CallResult host(const Json& line);
    CallResult document(const Json& line);
    CallResult xml(const Json& line);
    CallResult edit(const Json& line);
    CallResult page(const Json& line);
    CallResult create(const Json& line);
    CallResult call(const Json& line);
    CallResult set(const Json& line);
    CallResult get(const Json& line);
    CallResult userDoor(const Json& line);
    CallResult raise(const Json& line);
    CallResult dumpControl(const Json& line);
    CallResult release(const Json& line);
    CallResult advance(const Json& line);

    Output mOutput;
    Host   mHost;
    Scene  mScene;
    bool   mAllOk = true;
};

} // namespace quill::probe
