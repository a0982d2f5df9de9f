#include "shell/status_cycle.h"

#include "framework/documents.h"
#include "shell/user_input.h"
#include "support/toolkit_scope.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace quill::shell {
namespace {

using std::chrono::milliseconds;

class Cycle : public testing::Test {
protected:
    Cycle()
    {
        messenger.openSample();
        cycle.setInterval(milliseconds{20});
        cycle.setRequests("deviceStatus");
        QObject::connect(&messenger, &ShellMessenger::onlineDataArrived,
                         [this](const IXMLDOMNode& response) { count(response); });
        QObject::connect(&messenger, &ShellMessenger::errorDataArrived,
                         [this](const IXMLDOMNode& response) { count(response); });
    }

    void count(const IXMLDOMNode& response)
    {
        readings += documents::responseAttribute(response, "isFinal") == "1" ? 1 : 0;
    }
    bool waitForReadings(int more)
    {
        const int wanted = readings + more;
        return userInput::wait([&] { return readings >= wanted; });
    }
    /// How many readings come while some intervals pass.
    int readingsInAWhile()
    {
        const int     before = readings;
        QElapsedTimer clock;
        clock.start();
        userInput::wait([&] { return clock.elapsed() > 120; });
        return readings - before;
    }

    test::ToolkitScope toolkit;
    ShellMessenger     messenger;
    StatusCycle        cycle{messenger};
    int                readings = 0;
};

TEST_F(Cycle, ReadsAtOnceAndAgainAndAgainWhileOnline)
{
    EXPECT_EQ(readingsInAWhile(), 0) << "offline";
    messenger.setOnline(true);
    EXPECT_TRUE(waitForReadings(3));
    messenger.setOnline(false);
    EXPECT_EQ(readingsInAWhile(), 0);
}

TEST_F(Cycle, KeepsItsInterval)
{
    cycle.setInterval(milliseconds{100'000});
    messenger.setOnline(true);
    EXPECT_TRUE(waitForReadings(1));
    EXPECT_EQ(readingsInAWhile(), 0);
}

TEST_F(Cycle, RestsWithoutAnIntervalOrARequest)
{
    messenger.setOnline(true);
    cycle.setInterval(milliseconds{0});
    EXPECT_EQ(readingsInAWhile(), 0);
    cycle.setInterval(milliseconds{20});
    EXPECT_TRUE(waitForReadings(1));
    cycle.setRequests({});
    userInput::wait([&] { return !messenger.isWaiting(); });
    EXPECT_EQ(readingsInAWhile(), 0);
}

TEST_F(Cycle, RestsWhileATransferRunsAndReadsAtOnceWhenItIsOver)
{
    messenger.setOnline(true);
    EXPECT_TRUE(waitForReadings(1));
    userInput::wait([&] { return !messenger.isWaiting(); });
    messenger.link().setDelay(milliseconds{150});
    messenger.readGroup("tuning");
    const int before = readings;
    userInput::wait([&] { return !messenger.link().isBusy(); });
    EXPECT_EQ(readings, before + 1) << "the answer of the transfer itself";
    messenger.link().setDelay(milliseconds{0});
    EXPECT_TRUE(waitForReadings(1));
}

TEST_F(Cycle, RestsWhileAViewIsConfigured)
{
    messenger.setOnline(true);
    EXPECT_TRUE(waitForReadings(1));
    messenger.NotifyDialog(kConfigurationBegins);
    EXPECT_TRUE(cycle.isConfiguring());
    userInput::wait([&] { return !messenger.isWaiting(); });
    EXPECT_EQ(readingsInAWhile(), 0);
    messenger.NotifyDialog(kDialogComesUp);
    messenger.NotifyDialog(kDialogGoes);
    EXPECT_EQ(readingsInAWhile(), 0) << "another dialog ends no configuration";
    messenger.NotifyDialog(kConfigurationEnds);
    EXPECT_TRUE(waitForReadings(1));
}

TEST_F(Cycle, GoesOnAfterAReadingThatFailed)
{
    for (int i = 0; i < 3; ++i) {
        messenger.device().failNext("communicationError");
    }
    messenger.setOnline(true);
    EXPECT_TRUE(waitForReadings(5));
}

TEST_F(Cycle, DoesNotAskADeviceThatStillOwesAnAnswer)
{
    messenger.link().setDelay(milliseconds{60});
    messenger.setOnline(true);
    EXPECT_TRUE(waitForReadings(1));
    // Three parts in 180 ms, at a cycle of 20 ms: a queue would grow, and be answered in the end.
    EXPECT_LE(readingsInAWhile(), 1);
    EXPECT_LE(readingsInAWhile(), 1);
    cycle.setInterval(milliseconds{0});
    const int before = readings;
    EXPECT_TRUE(userInput::wait([&] { return !messenger.isWaiting(); }));
    EXPECT_LE(readings, before + 1);
    messenger.link().setDelay(milliseconds{0});
    cycle.setInterval(milliseconds{20});
    EXPECT_TRUE(waitForReadings(2));
}

TEST_F(Cycle, ReadsTheRestOnceWheneverTheHostHasGoneOnline)
{
    QStringList names;
    QObject::connect(
        &messenger, &ShellMessenger::onlineDataArrived, [&](const IXMLDOMNode& response) {
            if (documents::responseAttribute(response, "isFinal") == "1") {
                names << QString::fromStdString(documents::responseAttribute(response, "name"));
            }
        });
    cycle.setRequests("deviceStatus", {"deviceStatusMasks", "deviceStatus"});
    messenger.setOnline(true);
    EXPECT_TRUE(waitForReadings(4));
    EXPECT_EQ(names.mid(0, 4),
              QStringList({"deviceStatusMasks", "deviceStatus", "deviceStatus", "deviceStatus"}));
    messenger.setOnline(false);
    names.clear();
    messenger.setOnline(true);
    EXPECT_TRUE(waitForReadings(3));
    EXPECT_EQ(names.count("deviceStatusMasks"), 1);
}

TEST_F(Cycle, ReadsAtOnceInAnotherClassification)
{
    cycle.setInterval(milliseconds{100'000});
    messenger.setOnline(true);
    EXPECT_TRUE(waitForReadings(1));
    messenger.SetStatusClassification(kClassNAMUR);
    EXPECT_TRUE(waitForReadings(1));
}

} // namespace
} // namespace quill::shell
