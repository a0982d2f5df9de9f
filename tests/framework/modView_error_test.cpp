// What a page makes of a response that tells an error.

#include "modView_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using namespace platform;

TEST_F(ModView, TheChildWhoseTagOccursInTheNameTakesTheResponseAlone)
{
    FakeDataUser other{page, {.Tag = "other"}};
    FakeDataUser log{page, {.Tag = "eventLog"}};
    FakeDataUser behind{page, {.Tag = "event"}};
    page.SetErrorData(response(R"(name="eventLogContinued" errorCode="communicationError")"));
    EXPECT_EQ(other.errors, 0);
    EXPECT_EQ(log.errors, 1);
    EXPECT_EQ(behind.errors, 0);
    EXPECT_THAT(host.actions(), IsEmpty()) << "no message by the parent";
}

TEST_F(ModView, TheChildEndsTheRoutineAlsoIfItFails)
{
    FakeSubView log{page, {.Tag = "eventLog"}};
    log.failing = "SetErrorData";
    page.SetErrorData(response(R"(name="eventLog" errorCode="x")"));
    EXPECT_THAT(host.actions(), ElementsAre("ReportError(modView setErrorData: , 5, Invalid "
                                            "procedure call or argument)"));
}

TEST_F(ModView, SubViewsAreCalledWhateverTheirTagAndTheParentGoesOn)
{
    FakeSubView  sub{page, {.Tag = "status"}};
    FakeSubView  untagged{page};
    FakeDataUser untaggedUser{page};
    page.SetErrorData(response(R"(name="g" errorCode="x")"));
    EXPECT_THAT(sub.calls, ElementsAre("SetErrorData"));
    EXPECT_THAT(untagged.calls, ElementsAre("SetErrorData"));
    EXPECT_EQ(untaggedUser.errors, 0) << "an empty tag occurs in no name";
    EXPECT_THAT(host.actions(), ElementsAre("ShowMessage(t:error, t:x\r\n)"));
}

TEST_F(ModView, MissingItemsReachTheTextEditorsAlone)
{
    FakeEditor       text{page, EditorKind::text, "ctr_a"};
    FakeEditor       twin{page, EditorKind::text, "ctr_a"};
    FakeEditor       other{page, EditorKind::text, "ctr_b"};
    FakeMappedEditor combo{page, EditorKind::combo, "ctr_a"};
    page.SetErrorData(response(R"(name="g" errorCode="missingItems")",
                               item("testStatus", "noUnit", "integerVal", "1") +
                                   item("a", "noUnit", "integerVal", "1")));
    EXPECT_THAT(text.calls, ElementsAre("handleError missingItems"));
    EXPECT_THAT(twin.calls, ElementsAre("handleError missingItems"));
    EXPECT_THAT(other.calls, IsEmpty());
    EXPECT_THAT(combo.calls, IsEmpty());
    EXPECT_THAT(host.actions(), ElementsAre("ShowMessage(t:error, t:missingItems\r\n\"a\"\r\n)"));
}

TEST_F(ModView, MissingItemsWithoutItemsShowsTheTextAlone)
{
    page.SetErrorData(response(R"(name="g" errorCode="missingItems")"));
    EXPECT_THAT(host.actions(), ElementsAre("ShowMessage(t:error, t:missingItems\r\n)"));
}

TEST_F(ModView, CommunicationErrorsReachTextComboDateAndOption)
{
    for (const char* code :
         {"communicationError", "errCommunicationError", "hartCmdErrSuspiciousCalibration",
          "hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed"}) {
        TestPage form;
        form.SetMessenger(&host);
        host.clear();
        FakeEditor       text{form, EditorKind::text, "ctr_a"};
        FakeMappedEditor combo{form, EditorKind::combo, "ctr_a"};
        FakeEditor       date{form, EditorKind::date, "ctr_a"};
        FakeMappedEditor option{form, EditorKind::option, "ctr_a"};
        FakeMappedEditor check{form, EditorKind::check, "ctr_a"};
        FakeEditor       time{form, EditorKind::time, "ctr_a"};
        form.SetErrorData(response(std::string("name=\"g\" errorCode=\"") + code + "\"",
                                   item("a", "noUnit", "integerVal", "1")));
        const std::string call = std::string("handleError ") + code;
        EXPECT_THAT(text.calls, ElementsAre(call));
        EXPECT_THAT(combo.calls, ElementsAre(call));
        EXPECT_THAT(date.calls, ElementsAre(call));
        EXPECT_THAT(option.calls, ElementsAre(call));
        EXPECT_THAT(check.calls, IsEmpty());
        EXPECT_THAT(time.calls, IsEmpty());
        EXPECT_TRUE(host.wasCalled("ShowMessage"));
    }
}

TEST_F(ModView, AGraphErrorThatReachesNoGraphIsLoggedOnly)
{
    FakeEditor text{page, EditorKind::text, "ctr_a"};
    for (const char* code : {"hartCmdErrNoDataAvailable", "errTestDataNoDataError"}) {
        host.clear();
        page.SetErrorData(response(std::string("name=\"trend\" errorCode=\"") + code + "\"",
                                   item("a", "noUnit", "integerVal", "1")));
        EXPECT_THAT(host.callsTo("WriteLog"),
                    ElementsAre("WriteLog(67, Error: Graph error not reaching its graph trend)"));
        EXPECT_THAT(host.actions(), IsEmpty());
    }
    EXPECT_THAT(text.calls, IsEmpty());
}

TEST_F(ModView, AnyOtherCodeShowsTheMessageAndTellsNoEditor)
{
    FakeEditor text{page, EditorKind::text, "ctr_a"};
    page.SetErrorData(
        response(R"(name="g" errorCode="writeProtected")",
                 item("a", "noUnit", "integerVal", "1") + item("b", "noUnit", "integerVal", "1")));
    EXPECT_THAT(text.calls, IsEmpty());
    EXPECT_THAT(host.actions(),
                ElementsAre("ShowMessage(t:error, t:writeProtected\r\n\"a\"\r\n\"b\"\r\n)"));
}

TEST_F(ModView, WithoutATextAndWithoutItemsNothingIsShown)
{
    translator.prefix.clear();
    page.SetErrorData(response(R"(name="g")"));
    EXPECT_THAT(host.actions(), IsEmpty());
    page.SetErrorData(response(R"(name="g" errorCode="")"));
    EXPECT_THAT(host.actions(), IsEmpty());
    page.SetErrorData(response(R"(name="g")", item("a", "noUnit", "integerVal", "1")));
    EXPECT_THAT(host.actions(), ElementsAre("ShowMessage(error, \r\n\"a\"\r\n)"));
}

TEST_F(ModView, AMissingTranslatorStillShowsTheItems)
{
    host.translator = nullptr;
    page.SetErrorData(
        response(R"(name="g" errorCode="x")", item("a", "noUnit", "integerVal", "1")));
    EXPECT_THAT(host.callsTo("ShowMessage"), ElementsAre("ShowMessage(, \r\n\"a\"\r\n)"));
    EXPECT_THAT(host.errors(), SizeIs(2)) << "the text and the title";
}

TEST_F(ModView, AnErrorAsksForTheTranslatorOnce)
{
    page.SetErrorData(response(R"(name="g" errorCode="x")"));
    EXPECT_THAT(host.callsTo("GetTranslator"), SizeIs(1));
    host.clear();
    host.failOn("GetTranslator");
    page.SetErrorData(
        response(R"(name="g" errorCode="x")", item("a", "noUnit", "integerVal", "1")));
    EXPECT_THAT(host.errors(),
                ElementsAre(HasSubstr("setErrorData: , 5,"), HasSubstr("setErrorData: , 91,"),
                            HasSubstr("setErrorData: , 91,")));
    EXPECT_THAT(host.callsTo("ShowMessage"), ElementsAre("ShowMessage(, \r\n\"a\"\r\n)"));
}

TEST_F(ModView, AnEditorThatFailsToTakeAnErrorCostsItselfOnly)
{
    FakeEditor bad{page, EditorKind::text, "ctr_a"};
    FakeEditor good{page, EditorKind::text, "ctr_a"};
    bad.failing = "handleError";
    page.SetErrorData(
        response(R"(name="g" errorCode="missingItems")", item("a", "noUnit", "integerVal", "1")));
    EXPECT_THAT(good.calls, ElementsAre("handleError missingItems"));
    EXPECT_THAT(host.errors(), SizeIs(1));
    EXPECT_TRUE(host.wasCalled("ShowMessage"));
}

} // namespace
} // namespace quill::test
