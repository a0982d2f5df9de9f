// The page with the event log.
#include "action_window_fixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace quill::shell::test {
namespace {

class EventLogWindow : public ActionWindowTest, public testing::WithParamInterface<bool> {
protected:
    EventLogWindow()
    {
        if (GetParam()) {
            openFieldbus();
        }
        window->showPage("eventLog");
        userInput::settle();
    }
    CtrEventLog& log() { return view<CtrEventLog>("eventLog"); }
    void         readPage()
    {
        userInput::click(toolButton("readPage"));
        waitForDevice();
        userInput::settle();
    }
    void readAll()
    {
        readPage();
        for (int pages = 0; log().cmdNext.Enabled && pages < 20; ++pages) {
            click(log().cmdNext);
        }
    }
    int expectedRows()
    {
        const EventRing& ring = messenger().device().function<DeviceEvents>()->ring();
        int              rows = 1;
        for (auto number = ring.oldest(); number < ring.next(); ++number) {
            const std::string& key = ring.find(number)->key;
            rows += key == kEventObsolete ? 0 : 1;
            rows += key == kEventExternalReset ? 1 : 0;
        }
        return rows;
    }
};

INSTANTIATE_TEST_SUITE_P(Devices, EventLogWindow, testing::Values(false, true),
                         [](const auto& fieldbus) { return fieldbus.param ? "F" : "H"; });

TEST_P(EventLogWindow, ShowsTheStoredLogWhileOffline)
{
    EXPECT_GE(log().lsvEventLog.Count(), 25);
    EXPECT_FALSE(log().cmdNext.Enabled);
    EXPECT_FALSE(window->command("readPage")->isEnabled());
}

TEST_P(EventLogWindow, IsReadPageByPageToItsEnd)
{
    goOnline();
    readAll();
    EXPECT_FALSE(log().cmdNext.Enabled);
    EXPECT_EQ(log().lsvEventLog.Count(), expectedRows());
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_P(EventLogWindow, TellsTheTotalOperationTimeWithARead)
{
    goOnline();
    readPage();
    const double hours = messenger().device().function<DeviceEvents>()->operationTime();
    EXPECT_NEAR(QString::fromStdString(log().lblOperationTime[0].Caption).toDouble(), hours, 0.02);
    EXPECT_TRUE(log().times().mblnHasTimeReference);
    EXPECT_FALSE(eventLog::column(log().lsvEventLog.Item(1), eventLog::kDate).empty());
}

TEST_P(EventLogWindow, ContinuedReadsLeaveTheDatafileAlone)
{
    goOnline();
    readPage();
    const auto first = inDocument("eventLogEvent01", "value");
    const auto tenth = inDocument("eventLogTime10", "value");
    click(log().cmdNext);
    EXPECT_EQ(inDocument("eventLogEvent01", "value"), first);
    EXPECT_EQ(inDocument("eventLogTime10", "value"), tenth);
}

TEST_P(EventLogWindow, AnErrorInTheMiddleLosesNoEvents)
{
    goOnline();
    readPage();
    const int before = log().lsvEventLog.Count();
    messenger().device().failNext("communicationError");
    click(log().cmdNext);
    EXPECT_EQ(dialogs.boxes.size(), 1U) << "the user is told";
    EXPECT_EQ(log().lsvEventLog.Count(), before);
    EXPECT_TRUE(log().cmdNext.Enabled) << "and may try again";
}

TEST_P(EventLogWindow, ResponsesAboutOtherThingsDoNotReachIt)
{
    goOnline();
    readPage();
    const auto rows = log().lsvEventLog.Count();
    read("alarms");
    EXPECT_EQ(log().lsvEventLog.Count(), rows);
    EXPECT_EQ(log().paging().miMessageCount, 0);
}

TEST_P(EventLogWindow, PageDownAtTheEndReadsOn)
{
    goOnline();
    readPage();
    const int before = log().lsvEventLog.Count();
    auto&     list   = dynamic_cast<QTreeView&>(shown(log().lsvEventLog));
    list.setFocus();
    userInput::press(list, Qt::Key_End);
    userInput::press(list, Qt::Key_PageDown);
    waitForDevice();
    EXPECT_GT(log().lsvEventLog.Count(), before);
}

TEST_P(EventLogWindow, SpeaksTheLanguageThatIsSwitchedTo)
{
    goOnline();
    readPage();
    const auto isInEnglish = [this] {
        const auto& rows = log().lsvEventLog.ListItems();
        return std::ranges::any_of(rows,
                                   [](const auto& row) { return row.Text == "Notification"; });
    };
    EXPECT_TRUE(isInEnglish());
    window->setLanguage("Finnish");
    userInput::settle();
    EXPECT_FALSE(isInEnglish());
    EXPECT_GE(log().lsvEventLog.Count(), 20) << "what the datafile has";
    EXPECT_FALSE(eventLog::column(log().lsvEventLog.Item(1), eventLog::kDate).empty());
    EXPECT_TRUE(shown(log().lsvEventLog).isVisible());
    readPage();
    EXPECT_TRUE(log().cmdNext.Enabled);
    click(log().cmdNext);
    EXPECT_FALSE(isInEnglish());
    window->setLanguage("English");
    EXPECT_TRUE(isInEnglish());
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_P(EventLogWindow, ItsColumnsNeedNoBar)
{
    goOnline();
    readPage();
    auto& list = dynamic_cast<QTreeView&>(shown(log().lsvEventLog));
    EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(list.verticalScrollBar()->maximum(), 0);
}

} // namespace
} // namespace quill::shell::test
