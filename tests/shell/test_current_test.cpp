#include "shell/test_current.h"

#include "device_requests.h"
#include "platform/failure.h"
#include "shell/device_actions.h"

#include <gtest/gtest.h>

namespace quill::shell {
namespace {

using namespace test;

class TestCurrentWatchTest : public testing::Test {
protected:
    void send(const std::string& parameter, const std::string& value)
    {
        sendText(request("mACalibration", "write", item(parameter, "mA", "floatVal", value)));
    }
    void sendText(const std::string& text)
    {
        watch.sent(text);
        mWaiting.push_back(text);
    }
    /// The device gets what was sent first, and the watch its answer.
    void answer()
    {
        for (const auto& part : ask(device, mWaiting.front())) {
            watch.answered(part);
        }
        mWaiting.erase(mWaiting.begin());
    }
    void exchange(const std::string& parameter, const std::string& value)
    {
        send(parameter, value);
        answer();
    }
    [[nodiscard]] bool flows() const
    {
        return device.function<CurrentOutput>()->loop().test().has_value();
    }

    SimulatedDevice  device = fullDevice("vx4400h");
    TestCurrentWatch watch;

private:
    std::vector<std::string> mWaiting;
};

TEST_F(TestCurrentWatchTest, KnowsWhatTheDeviceDoes)
{
    EXPECT_FALSE(watch.mayFlow());
    exchange("loopTestValue", "4");
    EXPECT_TRUE(watch.mayFlow());
    exchange("loopCurrentZero", "4.1");
    EXPECT_TRUE(watch.mayFlow());
    exchange("loopTestValue", "20");
    EXPECT_TRUE(watch.mayFlow());
    exchange("loopTestValue", "0.0");
    EXPECT_FALSE(watch.mayFlow());
    EXPECT_FALSE(flows());
}

TEST_F(TestCurrentWatchTest, WhatIsUnderWayCountsAlready)
{
    send("loopTestValue", "4");
    EXPECT_TRUE(watch.mayFlow());
    send("loopTestValue", "0");
    EXPECT_FALSE(watch.mayFlow()) << "its end is on the way";
    answer();
    EXPECT_FALSE(watch.mayFlow());
    answer();
    EXPECT_FALSE(watch.mayFlow());
}

TEST_F(TestCurrentWatchTest, WhatTheDeviceRefusesChangesNothing)
{
    exchange("loopTestValue", "30");
    EXPECT_FALSE(watch.mayFlow());
    exchange("loopTestValue", "4");
    device.failNext("communicationError");
    exchange("loopTestValue", "0");
    EXPECT_TRUE(watch.mayFlow());
    EXPECT_TRUE(flows());
    device.failNext("communicationError");
    send("loopTestValue", "20");
    send("loopTestValue", "0");
    answer();
    answer();
    EXPECT_FALSE(watch.mayFlow());
}

TEST_F(TestCurrentWatchTest, WhatWasLostOnItsWayMayHaveBeenDone)
{
    send("loopTestValue", "4");
    watch.forgetRequests();
    EXPECT_TRUE(watch.mayFlow());
    send("loopTestValue", "0");
    watch.forgetRequests();
    EXPECT_TRUE(watch.mayFlow()) << "nobody knows";
    exchange("loopTestValue", "0");
    EXPECT_FALSE(watch.mayFlow());
}

TEST_F(TestCurrentWatchTest, OtherAnswersAreNotItsAffair)
{
    send("loopTestValue", "4");
    for (const auto& part : ask(device, request("alarms", "read"))) {
        watch.answered(part);
    }
    for (const auto& part : ask(device, request("mACalibration", "read"))) {
        watch.answered(part);
    }
    send("loopTestValue", "0");
    answer();
    EXPECT_FALSE(watch.mayFlow());
    answer();
    watch.answered(documents::openText("<dtm/>"));
    EXPECT_FALSE(watch.mayFlow());
    EXPECT_THROW(watch.sent("no request"), platform::Failure);
}

TEST_F(TestCurrentWatchTest, ItsRequestEndsTheCurrent)
{
    exchange("loopTestValue", "4");
    ASSERT_TRUE(flows());
    sendText(TestCurrentWatch::endRequest());
    answer();
    EXPECT_FALSE(flows());
    EXPECT_FALSE(watch.mayFlow());
}

} // namespace
} // namespace quill::shell
