#include "framework/steps.h"

#include "support/recording_messenger.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(StepsTest, AStepThatFailsIsReportedAndTheNextOneRuns)
{
    RecordingMessenger host;
    const Steps        step{&host, "CtrReset: "};
    bool               ran = false;
    EXPECT_FALSE(step([] { throw platform::failure(platform::kObjectNotSet); }));
    EXPECT_TRUE(step([&] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_THAT(host.calls, ElementsAre("ReportError(CtrReset: , 91, Object variable or With block "
                                        "variable not set)"));
}

TEST(StepsTest, AFailureKeepsItsNumberAndText)
{
    RecordingMessenger host;
    Steps{&host, "here"}([] { throw platform::Failure(1234, "what went wrong"); });
    EXPECT_THAT(host.errors(), ElementsAre("ReportError(here, 1234, what went wrong)"));
}

TEST(StepsTest, AnyOtherExceptionIsNumberFiveWithItsText)
{
    RecordingMessenger host;
    Steps{&host, "here"}([] { throw std::runtime_error("torn"); });
    EXPECT_THAT(host.errors(), ElementsAre("ReportError(here, 5, torn)"));
}

TEST(StepsTest, SomethingThatIsNoExceptionIsReportedToo)
{
    RecordingMessenger host;
    EXPECT_FALSE(Steps(&host, "here")([] { throw 7; }));
    EXPECT_THAT(host.errors(), ElementsAre(HasSubstr("ReportError(here, 5, ")));
}

TEST(StepsTest, ThePlaceOfAnEditorIsPutTogether)
{
    RecordingMessenger host;
    const std::string  tag = "ctr_speed";
    Steps{&host, "TextEdit", tag,
          "mMessenger_ViewGetChanges"}([] { throw platform::Failure(5, "x"); });
    EXPECT_THAT(host.errors(),
                ElementsAre("ReportError(TextEdit ctr_speed mMessenger_ViewGetChanges, 5, x)"));
}

TEST(StepsTest, WithoutAMessengerTheDebugOutputTakesTheReport)
{
    ToolkitScope toolkit;
    Steps{nullptr, "here"}([] { throw platform::Failure(13, "x"); });
    EXPECT_THAT(toolkit.debugLines, ElementsAre("Quill GUI here error 13: x"));
}

TEST(StepsTest, AValueIsThatOfTheStepOrTheFallback)
{
    RecordingMessenger host;
    const Steps        step{&host, "here"};
    EXPECT_EQ(step.value(1, [] { return 2; }), 2);
    EXPECT_EQ(step.value(1, []() -> int { throw platform::failure(platform::kOverflow); }), 1);
    EXPECT_EQ(step.text([] { return std::string("read"); }), "read");
    EXPECT_EQ(step.text([]() -> std::string { throw platform::failure(91); }), "");
    EXPECT_EQ(host.errors().size(), 2U);
}

TEST(StepsTest, NothingEscapesFromAReportThatFails)
{
    RecordingMessenger host;
    host.failOn("ReportError");
    const Steps step{&host, "here"};
    EXPECT_NO_THROW(step([] { throw platform::failure(5); }));
    const Steps outlet{[](int, const std::string&) { throw std::runtime_error("full"); }};
    EXPECT_NO_THROW(outlet([] { throw platform::failure(5); }));
}

TEST(StepsTest, AnOutletTakesTheReport)
{
    std::string heard;
    const Steps step{[&](int number, const std::string& description) {
        heard = std::to_string(number) + " " + description;
    }};
    step([] { throw platform::Failure(75, "locked"); });
    EXPECT_EQ(heard, "75 locked");
}

TEST(StepsTest, SilentStepsSayNothing)
{
    ToolkitScope toolkit;
    EXPECT_FALSE(silentSteps()([] { throw platform::failure(5); }));
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST(StepsTest, AMessengerThatIsMissingIsAnObjectNotSet)
{
    RecordingMessenger host;
    EXPECT_EQ(&existing(&host), &host);
    try {
        (void)existing<Messenger>(nullptr);
        FAIL() << "no failure";
    } catch (const platform::Failure& failure) {
        EXPECT_EQ(failure.number(), platform::kObjectNotSet);
    }
}

} // namespace
} // namespace quill::test
