// Where things stand on the view, and what the keyboard does.
#include "event_log_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using namespace platform;

constexpr int kKeyA = 65;
constexpr int kKeyC = 67;

class EventLogFormTest : public EventLogTest {
protected:
    [[nodiscard]] std::vector<std::int32_t> widths() const
    {
        std::vector<std::int32_t> found;
        for (const auto& header : view.lsvEventLog.ColumnHeaders()) {
            found.push_back(header.Width);
        }
        return found;
    }
    void expectOperationTimeInLine()
    {
        std::int32_t right = view.lblTitle[0].Left + view.lblTitle[0].Width;
        for (const auto& label : view.lblOperationTime) {
            EXPECT_GE(label.Left.get(), right);
            EXPECT_GE(label.Width.get(), toolkit.textWidth(label.Caption));
            right = label.Left + label.Width;
        }
    }
};

// --- Layout -----------------------------------------------------------------------------------

TEST_F(EventLogFormTest, NothingOverlapsAndNothingLeavesTheView)
{
    toolkit.characterWidth = 150;
    translator.texts       = {{"moreEvents", "Weitere Ereignisse lesen"},
                              {"totalOperationTime", "Gesamtbetriebszeit"},
                              {"dateEstimate", "*) Ohne Stillstandszeiten"}};
    for (const auto& [width, height] : {std::pair{9000, 6000}, std::pair{12000, 9000}}) {
        view.resize(width, height);
        view.Localize(translator);
        std::vector<Widget*> shown{&view.lsvEventLog,         &view.cmdNext,
                                   &view.ctrDateLabels,       &view.lblFootnote,
                                   &view.lblTitle[0],         &view.lblTitle[1],
                                   &view.lblOperationTime[0], &view.lblOperationTime[1],
                                   &view.lblOperationTime[2]};
        for (const Widget* a : shown) {
            EXPECT_GE(a->Left.get(), 0) << a->Name;
            EXPECT_LE(a->Left + a->Width, width) << a->Name;
            EXPECT_LE(a->Top + a->Height, height) << a->Name;
            for (const Widget* b : shown) {
                const bool apart = a == b || a->Left + a->Width <= b->Left ||
                                   b->Left + b->Width <= a->Left || a->Top + a->Height <= b->Top ||
                                   b->Top + b->Height <= a->Top;
                EXPECT_TRUE(apart) << a->Name << " " << b->Name;
            }
        }
        for (const auto* label : {&view.lblTitle[0], &view.lblTitle[1], &view.lblFootnote}) {
            EXPECT_GE(label->Width.get(), toolkit.textWidth(label->Caption)) << label->Tag.get();
        }
        EXPECT_GE(view.cmdNext.Width.get(), toolkit.textWidth(view.cmdNext.Caption));
        EXPECT_EQ(view.frmViews.Width.get(), width);
    }
}

TEST_F(EventLogFormTest, ColumnsShareTheWidthOfTheList)
{
    view.resize(10360, 6000);
    ASSERT_EQ(view.lsvEventLog.Width.get(), 10000);
    EXPECT_THAT(widths(), ElementsAre(1500, 4600, 1200, 2700, 0, 0));
    view.HideClasses(true);
    EXPECT_TRUE(view.classesHidden());
    EXPECT_THAT(widths(), ElementsAre(0, 6100, 1200, 2700, 0, 0));
    view.resize(10361, 6000);
    EXPECT_THAT(widths(), ElementsAre(0, 6101, 1200, 2700, 0, 0));
    view.HideClasses(false);
    EXPECT_EQ(view.lsvEventLog.ColumnHeaders()[0].Width, 1500);
}

TEST_F(EventLogFormTest, AnotherLanguageLeavesTheColumnsAsWideAsTheyAre)
{
    readHart();
    view.lsvEventLog.setColumnWidth(4, 2500);
    view.lsvEventLog.select({2});
    receiveMore({{0, "more", "class", "1"}});
    const auto before = widths();
    ASSERT_EQ(before[1], view.lsvEventLog.Width - before[0] - before[2] - 2500 - 260);
    view.Localize(translator);
    EXPECT_EQ(widths(), before);
}

TEST_F(EventLogFormTest, AFreshViewIsLaidOutBeforeItIsResized)
{
    CtrEventLog fresh;
    EXPECT_EQ(fresh.Width.get(), 9000);
    EXPECT_EQ(fresh.frmViews.Width.get(), 9000);
    EXPECT_EQ(fresh.lsvEventLog.ColumnHeaders()[0].Width, fresh.lsvEventLog.Width * 15 / 100);
}

TEST_F(EventLogFormTest, AfterAReadTheEventColumnMakesRoomForTheScrollBar)
{
    readHart();
    const auto eventWidth = [&] { return view.lsvEventLog.ColumnHeaders()[1].Width; };
    const auto whole      = eventWidth();
    receiveMore({{0, "more", "class", "1"}});
    EXPECT_EQ(eventWidth(), whole) << "no row is selected";
    view.lsvEventLog.select({1});
    receiveMore({{0, "more", "class", "1"}});
    EXPECT_EQ(eventWidth(), whole) << "the first row";
    view.lsvEventLog.select({2});
    receiveMore({{0, "more", "class", "1"}});
    EXPECT_EQ(eventWidth(), whole - 260);
    receiveMore({{0, "more", "class", "1"}});
    EXPECT_EQ(eventWidth(), whole - 260) << "there is room already";
}

TEST_F(EventLogFormTest, AnEventColumnThatWouldBecomeTooNarrowStays)
{
    readHart();
    view.lsvEventLog.select({2});
    const auto left = [&](int last) {
        const auto others = view.lsvEventLog.Width - last - 260;
        view.lsvEventLog.setColumnWidth(1, others);
        view.lsvEventLog.setColumnWidth(3, 0);
        view.lsvEventLog.setColumnWidth(4, 0);
        view.lsvEventLog.setColumnWidth(2, 700);
        receiveMore({{0, "more", "class", "1"}});
        return view.lsvEventLog.ColumnHeaders()[1].Width;
    };
    EXPECT_EQ(left(500), 700);
    EXPECT_EQ(left(501), 501);
}

TEST_F(EventLogFormTest, TheOperationTimeStandsSideBySideBehindItsTitle)
{
    view.UseFieldbus();
    view.lblOperationTime[1].Caption = "h";
    host.ViewReceiveValue.raise("ctr_totalOperationTime", "123456.78");
    expectOperationTimeInLine();
    host.ViewReceiveValue.raise("ctr_totalOperationTime", "1");
    host.ViewReceiveValue.raise("date_counters", "2024-05-06 07:08:09");
    ASSERT_EQ(view.lblOperationTime[0].Caption.get(), "1.00");
    expectOperationTimeInLine();
}

TEST_F(EventLogFormTest, AnOperationTimeFromDeviceOrDatafileStandsInLineToo)
{
    view.UseHART();
    view.SetOnlineData(okResponse("eventLogOperationTime",
                                  item("eventLogTotalOperationTime", "h", "floatVal", "123456")));
    ASSERT_EQ(view.lblOperationTime[0].Caption.get(), "123456.00");
    expectOperationTimeInLine();
    view.SetOfflineData(log("XH", parameter("eventLogTotalOperationTime", "12345678", "hours"),
                            R"(<data:requestGroup name="g" lastUpdate="06.05.2024 07:08:09">)"
                            R"(<data:includedParam name="eventLogTotalOperationTime"/>)"
                            "</data:requestGroup>"));
    ASSERT_EQ(view.lblOperationTime[0].Caption.get(), "12345678.00");
    expectOperationTimeInLine();
}

TEST_F(EventLogFormTest, AUnitWithoutAValueIsSeenWhole)
{
    view.UseHART();
    view.SetOnlineData(okResponse("eventLogOperationTime",
                                  item("eventLogTotalOperationTime", "hours", "floatVal", "")));
    ASSERT_EQ(view.lblOperationTime[1].Caption.get(), "hours");
    expectOperationTimeInLine();
    view.SetOfflineData(log("XH", parameter("totalOperationTime", "00", "operating hours")));
    ASSERT_EQ(view.lblOperationTime[1].Caption.get(), "operating hours");
    expectOperationTimeInLine();
}

TEST_F(EventLogFormTest, AToolkitThatCannotMeasureIsReportedAndStopsNothing)
{
    toolkit.beforeOperation = [](const char* operation) {
        if (std::string(operation) == "textWidth") {
            throw failure(kInvalidCall);
        }
    };
    view.UseFieldbus();
    host.ViewReceiveValue.raise("ctr_totalOperationTime", "12");
    EXPECT_EQ(view.lblOperationTime[0].Caption.get(), "12");
    EXPECT_THAT(host.errors(),
                ElementsAre(StartsWith("ReportError(CtrEventLog ResizeTotalOperationTime, 5, ")));
}

// --- The keyboard -----------------------------------------------------------------------------

TEST_F(EventLogFormTest, PageDownNearTheEndReadsMore)
{
    readHart(20);
    receiveMore({{0, "a", "", ""},
                 {1, "b", "", ""},
                 {2, "c", "", ""},
                 {3, "d", "", ""},
                 {4, "e", "", ""},
                 {5, "f", "", ""},
                 {6, "g", "", ""},
                 {7, "h", "", ""},
                 {8, "i", "", ""},
                 {9, "j", "", ""},
                 {10, "k", "", ""},
                 {11, "l", "", ""},
                 {12, "m", "", ""},
                 {13, "n", "", ""},
                 {14, "o", "", ""}});
    ASSERT_EQ(view.lsvEventLog.Count(), 35);
    host.clear();
    view.lsvEventLog.select({5});
    view.lsvEventLog.press(kKeyPageDown);
    EXPECT_FALSE(host.wasCalled("ExecuteCommunicationRequest")) << "5 + 30 is not above 35";
    view.lsvEventLog.select({6});
    view.lsvEventLog.press(kKeyPageDown);
    EXPECT_TRUE(host.wasCalled("ExecuteCommunicationRequest"));
}

TEST_F(EventLogFormTest, PageDownWithADisabledButtonOrAnotherKeyReadsNothing)
{
    readHart();
    view.lsvEventLog.select({3});
    view.lsvEventLog.press(kKeyDown);
    view.cmdNext.Enabled = false;
    view.lsvEventLog.press(kKeyPageDown);
    EXPECT_FALSE(host.wasCalled("ExecuteCommunicationRequest"));
}

TEST_F(EventLogFormTest, PageDownWithoutACurrentRowCountsFromTheTop)
{
    readHart();
    view.lsvEventLog.press(kKeyPageDown);
    EXPECT_TRUE(host.wasCalled("ExecuteCommunicationRequest"));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(EventLogFormTest, ControlASelectsEveryRowAndKeepsTheCurrentOne)
{
    view.lsvEventLog.press(kKeyA, kControlKey);
    readHart();
    view.lsvEventLog.select({2});
    view.lsvEventLog.press(kKeyA);
    EXPECT_FALSE(view.lsvEventLog.Item(1).Selected);
    view.lsvEventLog.press(kKeyA, kControlKey);
    for (int number = 1; number <= 3; ++number) {
        EXPECT_TRUE(view.lsvEventLog.Item(number).Selected);
    }
    EXPECT_EQ(view.lsvEventLog.SelectedItem(), 2);
}

TEST_F(EventLogFormTest, ColumnsThatSomebodyHasMadeVeryWideAreLeftAlone)
{
    for (const int column : {1, 2, 3, 4}) {
        view.lsvEventLog.setColumnWidth(column, 2147483647);
    }
    readHart();
    view.lsvEventLog.select({2});
    receive({{3, "e3", "c3", "1"}});
    EXPECT_EQ(view.lsvEventLog.ColumnHeaders()[1].Width, 2147483647);
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(EventLogFormTest, ControlCCopiesTheSelectedRows)
{
    view.UseHART();
    receive({{0, "e0", "c0", "10"}, {1, "e1", "c1", "8.5"}, {2, "e2", "c2", ""}});
    view.AddStamps("10", "2024-05-06 07:08:09");
    toolkit.clipboardText = "before";
    view.lsvEventLog.select({3, 1});
    view.lsvEventLog.press(kKeyC);
    EXPECT_EQ(toolkit.clipboardText, "before");
    view.lsvEventLog.press(kKeyC, kControlKey);
    EXPECT_EQ(toolkit.clipboardText, "t:c0\tt:e0\t10.0000\t2024-05-06 07:08:09\r\n"
                                     "t:c2\tt:e2\t\t\r\n");
}

TEST_F(EventLogFormTest, ControlCWithoutASelectionClearsTheClipboard)
{
    readHart();
    toolkit.clipboardText = "before";
    view.lsvEventLog.press(kKeyC, kControlKey);
    EXPECT_EQ(toolkit.clipboardText, "");
}

TEST_F(EventLogFormTest, AToolkitThatRefusesTheClipboardIsReported)
{
    readHart();
    toolkit.beforeOperation = [](const char* operation) {
        if (std::string(operation) == "setClipboard") {
            throw failure(kPathAccess);
        }
    };
    view.lsvEventLog.press(kKeyC, kControlKey);
    EXPECT_THAT(host.errors(),
                ElementsAre(StartsWith("ReportError(CtrEventLog lsvEventLog_KeyUp, 75, ")));
}

} // namespace
} // namespace quill::test
