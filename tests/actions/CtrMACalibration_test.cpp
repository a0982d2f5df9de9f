#include "actions/CtrMACalibration.h"

#include "framework/values.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/test_documents.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

double number(const std::string& text)
{
    return values::parseLocal(text);
}

std::string parameter(const std::string& name, const std::string& limits = {})
{
    return "<data:parameter name=\"" + name +
           R"(" type="floatVal" value="" unit="mA" access="readWrite" synchronised="1" decimals="3" )" +
           limits + "/>";
}

class CtrMACalibrationTest : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    TestPage            page;
    CtrMACalibration    view{page, {.Name = "calibration"}};
    IXMLDOMDocument     datafile = test::datafile(
            parameter("first") + parameter("loopTestValue", R"(minVal="3.5" maxVal="21")") +
                parameter("loopCurrentZero") + parameter("loopCurrentGain"),
            "",
            R"(<data:requestGroup name="mACalibration"><data:includedParam name="loopTestValue"/>)"
                R"(<data:includedParam name="loopCurrentZero"/><data:includedParam name="loopCurrentGain"/>)"
                R"(</data:requestGroup>)");

    void SetUp() override
    {
        translator.prefix    = "T-";
        messenger.translator = &translator;
        view.SetMessenger(&messenger);
    }
    void load()
    {
        view.SetOfflineData(datafile);
        messenger.clear();
    }
    void next(const std::string& value = {})
    {
        if (!value.empty()) {
            view.cteMACalibration[static_cast<std::size_t>(view.miCalibrationStep())].txtBox.type(
                value);
        }
        view.cmdNext.click();
    }
    void goTo(std::int32_t step)
    {
        const char* values[] = {"", "4.02", "", "19.9", ""};
        while (view.miCalibrationStep() < step) {
            next(values[view.miCalibrationStep()]);
        }
        messenger.clear();
    }
    [[nodiscard]] std::vector<std::string> sent() const
    {
        return messenger.callsTo("SendCommunicationRequest");
    }
    [[nodiscard]] std::vector<std::string> pictures() const
    {
        std::vector<std::string> keys;
        for (const platform::Image& image : view.imgMACalibration) {
            keys.push_back(image.Picture);
        }
        return keys;
    }
    [[nodiscard]] std::vector<bool> openRows() const
    {
        std::vector<bool> open;
        for (const CtrTextEdit& edit : view.cteMACalibration) {
            EXPECT_EQ(edit.Enabled(), edit.TabStop) << edit.Index;
            open.push_back(edit.Enabled());
        }
        return open;
    }
    [[nodiscard]] std::vector<std::string> parameterNames() const
    {
        std::vector<std::string> names;
        for (const IXMLDOMNode& node : datafile.selectNodes("//data:parameter")) {
            names.push_back(documents::attributeText(node, "name"));
        }
        return names;
    }
    void answerWithError()
    {
        view.SetErrorData(response(
            R"(name="mACalibration" responseStatus="error" errorCode="communicationError" isFinal="1")"));
    }
};

std::string request(const std::string& name, const std::string& value)
{
    return "SendCommunicationRequest(<communicationRequest name=\"mACalibration\" "
           "access=\"write\"><item name=\"" +
           name + "\" unit=\"mA\"><floatVal>" + value +
           "</floatVal></item></communicationRequest>, mACalibration)";
}

TEST_F(CtrMACalibrationTest, ComesUpAtTheFirstStep)
{
    EXPECT_EQ(view.miCalibrationStep(), 0);
    EXPECT_THAT(pictures(), ElementsAre("currentStep", "", "", "", ""));
    EXPECT_FALSE(view.cmdBack.Enabled);
    EXPECT_TRUE(view.cmdNext.Enabled);
    EXPECT_EQ(view.cmdBack.Caption.get(), "<   Back");
    EXPECT_EQ(view.cmdNext.Caption.get(), "Next   >");
    EXPECT_EQ(view.Tag.get(), "maCalibration");
    EXPECT_FALSE(view.cteMACalibration[4].Visible);
    EXPECT_THAT(view.imlCalibration.Keys(), ElementsAre("currentStep", "stepDone"));
    for (const CtrTextEdit& edit : view.cteMACalibration) {
        EXPECT_TRUE(edit.Silent());
    }
}

TEST_F(CtrMACalibrationTest, TheTestValueIsCopiedForEachStepInFrontOfTheOriginal)
{
    load();
    EXPECT_THAT(parameterNames(), ElementsAre("first", "loopTestValueStep0", "loopTestValueStep2",
                                              "loopTestValueStep4", "loopTestValue",
                                              "loopCurrentZero", "loopCurrentGain"));
}

TEST_F(CtrMACalibrationTest, OnlyTheCopyOfTheLastStepIsHeldAtZero)
{
    load();
    const auto attribute = [&](const char* name, const char* attributeName) {
        return documents::attributeText(documents::findParameter(datafile, name), attributeName);
    };
    EXPECT_EQ(attribute("loopTestValueStep4", "minVal"), "0.0");
    EXPECT_EQ(attribute("loopTestValueStep4", "maxVal"), "0.0");
    EXPECT_EQ(number(attribute("loopTestValueStep4", "value")), 0);
    EXPECT_EQ(attribute("loopTestValueStep4", "synchronised"), "0");
    EXPECT_EQ(attribute("loopTestValueStep4", "printable"), "0");
    EXPECT_EQ(attribute("loopTestValueStep2", "minVal"), "3.5");
    EXPECT_EQ(attribute("loopTestValueStep0", "maxVal"), "21");
    EXPECT_EQ(attribute("loopTestValue", "minVal"), "3.5");
}

TEST_F(CtrMACalibrationTest, ASecondLoadCopiesAgain)
{
    load();
    load();
    EXPECT_THAT(parameterNames(), SizeIs(10));
}

TEST_F(CtrMACalibrationTest, ALoadPresetsTheTestCurrentsAndOpensTheFirstRowOnly)
{
    load();
    EXPECT_EQ(number(view.cteMACalibration[0].Text()), 4);
    EXPECT_EQ(number(view.cteMACalibration[2].Text()), 20);
    EXPECT_FALSE(view.cteMACalibration[4].Modified());
    EXPECT_THAT(openRows(), ElementsAre(true, false, false, false, false));
}

TEST_F(CtrMACalibrationTest, WithoutTheTestValueTheRestOfTheLoadRuns)
{
    datafile = test::datafile(parameter("loopCurrentZero"));
    load();
    EXPECT_THAT(parameterNames(), ElementsAre("loopCurrentZero"));
    EXPECT_EQ(view.cteMACalibration[0].Text(), "4");
    EXPECT_EQ(view.cteMACalibration[2].Text(), "20");
    EXPECT_THAT(openRows(), ElementsAre(true, false, false, false, false));
}

TEST_F(CtrMACalibrationTest, AWholeRunWritesFiveValuesAndTheDeviceSeesItsOwnNames)
{
    load();
    next();
    EXPECT_THAT(sent(), ElementsAre(request("loopTestValue", "4.000")));
    EXPECT_TRUE(view.cmdBack.Enabled);
    EXPECT_THAT(pictures(), ElementsAre("stepDone", "currentStep", "", "", ""));
    EXPECT_THAT(openRows(), ElementsAre(false, true, false, false, false));
    EXPECT_TRUE(view.cteMACalibration[1].HasFocus());
    next("4.02");
    next();
    EXPECT_THAT(pictures(), ElementsAre("stepDone", "stepDone", "stepDone", "currentStep", ""));
    next("19.9");
    EXPECT_THAT(openRows(), ElementsAre(false, false, false, false, false));
    EXPECT_EQ(view.miCalibrationStep(), 4);
    next();
    EXPECT_THAT(sent(),
                ElementsAre(request("loopTestValue", "4.000"), request("loopCurrentZero", "4.020"),
                            request("loopTestValue", "20.000"),
                            request("loopCurrentGain", "19.900"),
                            HasSubstr("<item name=\"loopTestValue\" unit=\"mA\"><floatVal>0")));
    EXPECT_EQ(view.miCalibrationStep(), 5);
    EXPECT_THAT(pictures(),
                ElementsAre("stepDone", "stepDone", "stepDone", "stepDone", "stepDone"));
    EXPECT_FALSE(view.cmdBack.Enabled);
    EXPECT_EQ(view.cmdNext.Tag.get(), "recalibrate");
    EXPECT_EQ(view.cmdNext.Caption.get(), "T-recalibrate");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrMACalibrationTest, AfterTheEndNextStartsAnew)
{
    load();
    goTo(5);
    next();
    EXPECT_EQ(view.miCalibrationStep(), 0);
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(view.cmdNext.Tag.get(), "nextWithArrow");
    EXPECT_EQ(view.cmdNext.Caption.get(), "T-nextWithArrow");
    EXPECT_THAT(pictures(), ElementsAre("currentStep", "", "", "", ""));
    EXPECT_THAT(openRows(), ElementsAre(true, false, false, false, false));
    EXPECT_FALSE(view.cmdBack.Enabled);
}

TEST_F(CtrMACalibrationTest, AnEditedPresetIsWrittenAsItStands)
{
    load();
    next("5.5");
    EXPECT_THAT(sent(), ElementsAre(request("loopTestValue", "5.5")));
}

TEST_F(CtrMACalibrationTest, AValueThatCannotGoBlocksNextWithoutAWord)
{
    load();
    goTo(1);
    next();
    EXPECT_EQ(view.miCalibrationStep(), 1);
    next("x");
    EXPECT_EQ(view.miCalibrationStep(), 1);
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_FALSE(messenger.wasCalled("ShowMessage"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

class BackFrom : public CtrMACalibrationTest, public testing::WithParamInterface<int> {};

TEST_P(BackFrom, OpensTheRowBefore)
{
    load();
    goTo(GetParam());
    view.cmdBack.click();
    const int step = GetParam() - 1;
    EXPECT_EQ(view.miCalibrationStep(), step);
    EXPECT_EQ(view.cmdBack.Enabled, step != 0);
    EXPECT_EQ(pictures()[static_cast<std::size_t>(step)], "currentStep");
    EXPECT_TRUE(openRows()[static_cast<std::size_t>(step)]);
    EXPECT_EQ(pictures().back(), "");
    EXPECT_THAT(sent(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EveryStep, BackFrom, testing::Values(1, 2, 3, 4));

class ErrorAt : public CtrMACalibrationTest, public testing::WithParamInterface<int> {};

TEST_P(ErrorAt, TakesOneStepBack)
{
    load();
    goTo(GetParam());
    answerWithError();
    EXPECT_EQ(view.miCalibrationStep(), GetParam() - 1);
    EXPECT_EQ(pictures()[static_cast<std::size_t>(GetParam() - 1)], "currentStep");
    EXPECT_TRUE(messenger.wasCalled("ShowMessage"));
}

INSTANTIATE_TEST_SUITE_P(EveryStep, ErrorAt, testing::Values(1, 2, 3, 4, 5));

TEST_F(CtrMACalibrationTest, AnErrorAfterTheEndLeavesTheButtonsAndNextSwitchesOffAgain)
{
    load();
    goTo(5);
    answerWithError();
    EXPECT_FALSE(view.cmdBack.Enabled);
    EXPECT_EQ(view.cmdNext.Tag.get(), "recalibrate");
    next();
    EXPECT_THAT(sent(), SizeIs(1));
    EXPECT_EQ(view.miCalibrationStep(), 5);
}

TEST_F(CtrMACalibrationTest, AnErrorAtTheFirstStepIsReportedForEachStatementThatFails)
{
    load();
    answerWithError();
    EXPECT_EQ(view.miCalibrationStep(), -1);
    const auto report = HasSubstr("VwAdvanced cmdMACalibration_Click: , 9");
    // Enabled, TabStop, the focus, the picture.
    EXPECT_THAT(messenger.errors(), ElementsAre(report, report, report, report));
}

TEST_F(CtrMACalibrationTest, FromBeforeTheFirstStepNextLeadsToItAndNothingIsSent)
{
    load();
    answerWithError();
    next();
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_EQ(view.miCalibrationStep(), 0);
    EXPECT_THAT(pictures(), ElementsAre("currentStep", "", "", "", ""));
    EXPECT_THAT(openRows(), ElementsAre(true, false, false, false, false));
    next();
    EXPECT_EQ(view.miCalibrationStep(), 1);
    EXPECT_THAT(sent(), SizeIs(1));
}

TEST_F(CtrMACalibrationTest, AnAnswerReachesTheEditorOfTheStepThatAsked)
{
    load();
    goTo(3);
    view.SetOnlineData(
        okResponse("mACalibration", item("loopTestValue", "mA", "floatVal", "20.5")));
    EXPECT_EQ(number(view.cteMACalibration[2].Text()), 20.5);
    EXPECT_EQ(number(view.cteMACalibration[0].Text()), 4);
    EXPECT_FALSE(view.cteMACalibration[2].Modified());
}

TEST_F(CtrMACalibrationTest, ALateAnswerGoesWhereTheWizardIsThen)
{
    load();
    goTo(1);
    goTo(2);
    view.SetOnlineData(okResponse("mACalibration", item("loopTestValue", "mA", "floatVal", "4.5")));
    EXPECT_EQ(number(view.cteMACalibration[0].Text()), 4); // no editor of a step 1
}

TEST_F(CtrMACalibrationTest, ALoadDuringARunKeepsTheStepAndClosesTheRows)
{
    load();
    goTo(3);
    view.SetOfflineData(datafile);
    EXPECT_EQ(view.miCalibrationStep(), 3);
    EXPECT_FALSE(view.cteMACalibration[3].Enabled());
}

TEST_F(CtrMACalibrationTest, BeforeAndAfterTheRunItIsLeftWithoutAQuestion)
{
    load();
    EXPECT_TRUE(view.LeaveSelectedView());
    goTo(5);
    EXPECT_TRUE(view.LeaveSelectedView());
    EXPECT_FALSE(messenger.wasCalled("AskQuestion"));
}

class LeavingAt : public CtrMACalibrationTest, public testing::WithParamInterface<int> {};

TEST_P(LeavingAt, WithAYesTheFixedCurrentIsSwitchedOffAndTheWizardStartsAnew)
{
    load();
    goTo(GetParam());
    EXPECT_TRUE(view.LeaveSelectedView());
    EXPECT_THAT(messenger.callsTo("AskQuestion"),
                ElementsAre("AskQuestion(mACalibration, calibrationExitWarning)"));
    EXPECT_THAT(sent(),
                ElementsAre(HasSubstr("<item name=\"loopTestValue\" unit=\"mA\"><floatVal>0")));
    EXPECT_EQ(view.miCalibrationStep(), 0);
    EXPECT_EQ(view.cmdNext.Tag.get(), "nextWithArrow");
}

TEST_P(LeavingAt, WithANoTheUserStays)
{
    load();
    goTo(GetParam());
    messenger.answer = 0;
    EXPECT_FALSE(view.LeaveSelectedView());
    EXPECT_EQ(view.miCalibrationStep(), GetParam());
    EXPECT_THAT(sent(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EveryStep, LeavingAt, testing::Values(1, 2, 3, 4));

TEST_F(CtrMACalibrationTest, AQuestionThatFailsKeepsTheUserHere)
{
    load();
    goTo(2);
    messenger.failOn("AskQuestion");
    EXPECT_FALSE(view.LeaveSelectedView());
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("CtrMACalibration IQornView_LeaveSelectedView: ")));
}

TEST_F(CtrMACalibrationTest, ARequestThatFailsIsReportedAndTheStepGoesOn)
{
    load();
    messenger.failOn("SendCommunicationRequest");
    next();
    EXPECT_EQ(view.miCalibrationStep(), 1);
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("VwAdvanced cmdMACalibration_Click: ")));
}

TEST_F(CtrMACalibrationTest, TheDateStandsInTheUpperRightCorner)
{
    view.resize(9000, 6000);
    EXPECT_EQ(view.ctrDateLabels[0].Left, 9000 - view.ctrDateLabels[0].Width);
    EXPECT_EQ(view.ctrDateLabels[0].Top, 20);
    EXPECT_EQ(view.frmViews.Width, 9000);
}

TEST_F(CtrMACalibrationTest, AFailingLayoutIsReportedToTheHostAndDroppedWhereThereIsNone)
{
    const auto fails = view.frmViews.Changed.subscribe(
        [](const platform::WidgetChange&) { throw platform::failure(platform::kInvalidCall); });
    view.Width = 8000;
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("CtrMACalibration UserControl_Resize: ")));
    view.SetMessenger(nullptr);
    messenger.clear();
    view.Width = 9000;
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST_F(CtrMACalibrationTest, TheFocusComesToTheFirstEditor)
{
    load();
    view.RequestFocus();
    EXPECT_TRUE(view.cteMACalibration[0].HasFocus());
}

TEST_F(CtrMACalibrationTest, AViewThatIsMadeWithASizeIsLaidOutAtOnce)
{
    const CtrMACalibration sized{page, {.Name = "sized", .Width = 9000, .Height = 6000}};
    EXPECT_EQ(sized.frmViews.Width, 9000);
    EXPECT_EQ(sized.ctrDateLabels[0].Left, 6600);
}

TEST_F(CtrMACalibrationTest, TheFormListsBackInFrontOfNextAndTheTabKeyComesFirstToNext)
{
    const auto lastFive = [](const platform::WidgetList& widgets) {
        std::vector<std::string> names;
        for (auto widget = widgets.end() - 5; widget != widgets.end(); ++widget) {
            names.push_back((*widget)->Name + (dynamic_cast<platform::CommandButton*>(*widget)
                                                   ? std::to_string((*widget)->Index)
                                                   : ""));
        }
        return names;
    };
    EXPECT_THAT(lastFive(view.GetControls()),
                ElementsAre("cmdMACalibration0", "cmdMACalibration1", "CtrFocusTransfer2",
                            "CtrFocusTransfer1", "imlCalibration"));
    EXPECT_THAT(lastFive(view.Widgets()),
                ElementsAre("cmdMACalibration1", "CtrFocusTransfer2", "cmdMACalibration0",
                            "CtrFocusTransfer1", "imlCalibration"));
}

TEST_F(CtrMACalibrationTest, ArrowKeysGoBetweenTheButtonsWithoutLeavingTheView)
{
    load();
    goTo(1);
    for (const int key : {platform::kKeyLeft, platform::kKeyUp}) {
        view.cmdNext.focus();
        view.cmdNext.press(key);
        EXPECT_TRUE(view.cmdBack.HasFocus()) << key;
    }
    for (const int key : {platform::kKeyRight, platform::kKeyDown}) {
        view.cmdBack.focus();
        view.cmdBack.press(key);
        EXPECT_TRUE(view.cmdNext.HasFocus()) << key;
    }
    EXPECT_FALSE(messenger.wasCalled("TransferFocus"));
    view.cmdBack.click();
    view.cmdNext.focus();
    view.cmdNext.press(platform::kKeyLeft); // Back is disabled now
    EXPECT_TRUE(view.cmdNext.HasFocus());
}

TEST_F(CtrMACalibrationTest, AStepWithoutAParameterStillSendsItsRequest)
{
    datafile = test::datafile(parameter("loopCurrentZero"));
    load();
    next();
    EXPECT_THAT(sent(), ElementsAre("SendCommunicationRequest(<communicationRequest "
                                    "name=\"mACalibration\" access=\"write\">"
                                    "</communicationRequest>, mACalibration)"));
    EXPECT_EQ(view.miCalibrationStep(), 1);
}

TEST_F(CtrMACalibrationTest, LongTextsMoveTheEditorsAndTheButtons)
{
    const std::int32_t left                       = view.cteMACalibration[0].Left;
    translator.texts["fixedOutputCurrentTurnOff"] = std::string(60, 'x');
    view.Localize(translator);
    EXPECT_GT(view.cteMACalibration[0].Left, left);
    EXPECT_GE(view.cmdNext.Width, 1500);
}

} // namespace
} // namespace quill::test
