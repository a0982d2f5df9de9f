#include "actions/CtrReset.h"

#include "platform/headless_toolkit.h"
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

std::string codeParameter(const std::string& name)
{
    return "<data:parameter name=\"" + name +
           R"(" type="integerVal" value="0" unit="noUnit" access="readWrite" synchronised="1"/>)";
}

std::string codeList(const std::string& name)
{
    return "<data:mappedParam name=\"" + name +
           R"("><data:mapping value="-2" name="resetNothing"/><data:mapping value="0" name="counters"/>)"
           R"(<data:mapping value="3" name="everything"/></data:mappedParam>)";
}

constexpr const char* kNames[] = {"resetStatus", "resetDiagnosticsCode", "resetParametersCode"};

class CtrResetTest : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingMessenger  messenger;
    RecordingTranslator translator;
    TestPage            page;
    CtrReset            view{page, {.Name = "reset", .Tag = "resetCodes"}};
    IXMLDOMDocument     datafile;

    void SetUp() override
    {
        messenger.translator = &translator;
        view.SetMessenger(&messenger);
    }
    void load(std::initializer_list<const char*> names = {kNames[0], kNames[1], kNames[2]})
    {
        std::string parameters;
        std::string lists;
        for (const char* name : names) {
            parameters += codeParameter(name);
            lists += codeList(name);
        }
        datafile = test::datafile(parameters, lists);
        view.SetOfflineData(datafile);
        messenger.clear();
    }
    void goOnline(std::int16_t level = kMaintenanceLevel)
    {
        messenger.communicationMode = kOnline;
        messenger.userLevel         = level;
        messenger.ViewSetCommunicationMode.raise(kOnline);
        messenger.clear();
    }
    [[nodiscard]] std::vector<std::string> requests() const
    {
        return messenger.callsTo("ExecuteCommunicationRequest");
    }
};

std::string writeRequest(const std::string& parameter, int code)
{
    return "ExecuteCommunicationRequest(<?xml version=\"1.0\"?><dtm "
           "xmlns=\"x-schema:QVXCommunicationSchema.xml\"><communicationRequest "
           "name=\"resetCodes\" access=\"write\">\r\n<item name=\"" +
           parameter + "\" unit=\"noUnit\">\r\n<integerVal>" + std::to_string(code) +
           "</integerVal>\r\n</item>\r\n</communicationRequest></dtm>, resetting, 1, 1)";
}

TEST_F(CtrResetTest, TheButtonIsDisabledUntilTheModeIsTold)
{
    EXPECT_FALSE(view.cmdReset.Enabled);
    goOnline();
    EXPECT_TRUE(view.cmdReset.Enabled);
}

TEST_F(CtrResetTest, TheButtonNeedsMaintenanceLevelAndTheOnlineMode)
{
    goOnline(2);
    EXPECT_FALSE(view.cmdReset.Enabled);
    goOnline();
    messenger.communicationMode = kOffline;
    messenger.ViewSetCommunicationMode.raise(kOnline); // the argument does not count
    EXPECT_FALSE(view.cmdReset.Enabled);
}

TEST_F(CtrResetTest, LevelAndModeAreBothAskedWhateverTheFirstAnswerIs)
{
    goOnline(2);
    messenger.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_THAT(messenger.calls, ElementsAre("GetUserLevel()", "GetCommunicationMode()"));
}

TEST_F(CtrResetTest, AHostThatCannotTellTheLevelLeavesTheButtonDisabled)
{
    goOnline();
    messenger.failOn("GetUserLevel");
    messenger.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_FALSE(view.cmdReset.Enabled);
    EXPECT_TRUE(messenger.wasCalled("GetCommunicationMode"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("CtrReset mMessenger_ViewSetCommunicationMode: ")));
}

TEST_F(CtrResetTest, ALoadBringsEveryRowToItsNoActionEntry)
{
    load();
    for (const CtrComboEdit& row : view.cceReset) {
        EXPECT_EQ(row.Text(), "resetNothing");
        EXPECT_FALSE(row.Modified());
        EXPECT_TRUE(row.Silent());
    }
}

TEST_F(CtrResetTest, ARowWithoutTheNoActionEntryComesUpUnselected)
{
    datafile = test::datafile(codeParameter(kNames[0]),
                              R"(<data:mappedParam name="resetStatus"><data:mapping value="1")"
                              R"( name="other"/></data:mappedParam>)");
    view.SetOfflineData(datafile);
    EXPECT_EQ(view.cceReset[0].getSelectedValue(), -1);
}

TEST_F(CtrResetTest, ARowWithoutAParameterGoesAndThoseBelowMoveUpWithEveryLoad)
{
    load({kNames[0], kNames[2]});
    EXPECT_TRUE(view.cceReset[0].Visible);
    EXPECT_FALSE(view.cceReset[1].Visible);
    EXPECT_FALSE(view.lblReset[1].Visible);
    EXPECT_EQ(view.cceReset[2].Top, 1150);
    EXPECT_EQ(view.lblReset[2].Top, 1205);
    view.SetOfflineData(datafile);
    EXPECT_EQ(view.cceReset[2].Top, 750);
    EXPECT_EQ(view.cceReset[0].Top, 750);
}

TEST_F(CtrResetTest, StatusIsResetWithoutAQuestionAndWithoutACode)
{
    load();
    goOnline();
    view.cceReset[0].cboBox.choose(2);
    view.cmdReset.click();
    EXPECT_THAT(requests(),
                ElementsAre("ExecuteCommunicationRequest(<?xml version=\"1.0\"?><dtm "
                            "xmlns=\"x-schema:QVXCommunicationSchema.xml\"><communicationRequest "
                            "name=\"resetStatus\" access=\"act\" datasetSave=\"0\">\r\n"
                            "</communicationRequest></dtm>, resetting, 1, 1)"));
    EXPECT_FALSE(messenger.wasCalled("AskQuestion"));
    EXPECT_TRUE(view.cceReset[0].Modified());
    EXPECT_FALSE(view.cceReset[1].Modified());
}

TEST_F(CtrResetTest, CodesAreWrittenInOrderAfterTheirQuestions)
{
    load();
    goOnline();
    for (CtrComboEdit& row : view.cceReset) {
        row.cboBox.choose(2);
    }
    messenger.clear();
    view.cmdReset.click();
    EXPECT_THAT(messenger.callsTo("AskQuestion"),
                ElementsAre("AskQuestion(resetDiagnostics, resetDiagnosticsQuestion)",
                            "AskQuestion(resetParameters, resetParametersQuestion)"));
    EXPECT_THAT(requests(), ElementsAre(HasSubstr("resetStatus\" access=\"act\""),
                                        writeRequest("resetDiagnosticsCode", 3),
                                        writeRequest("resetParametersCode", 3)));
}

TEST_F(CtrResetTest, ARefusedQuestionSkipsItsRowOnlyAndLeavesItsSign)
{
    load();
    goOnline();
    view.cceReset[1].cboBox.choose(1);
    view.cceReset[2].cboBox.choose(1);
    messenger.answer = 3;
    view.cmdReset.click();
    EXPECT_THAT(requests(), IsEmpty());
    EXPECT_TRUE(view.cceReset[1].Modified());
    EXPECT_TRUE(view.cceReset[2].Modified());
}

TEST_F(CtrResetTest, AValueOfZeroCountsAsPicked)
{
    load();
    goOnline();
    view.cceReset[2].cboBox.choose(1);
    view.cmdReset.click();
    EXPECT_THAT(requests(), ElementsAre(writeRequest("resetParametersCode", 0)));
}

TEST_F(CtrResetTest, AFailingQuestionSendsNothingAndTheNextRowIsServed)
{
    load();
    goOnline();
    view.cceReset[0].cboBox.choose(1);
    view.cceReset[1].cboBox.choose(1);
    messenger.clear();
    messenger.failOn("AskQuestion");
    view.cmdReset.click();
    EXPECT_EQ(requests().size(), 1U);
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("CtrStatistics cmdReset_Click: ")));
}

TEST_F(CtrResetTest, AFailingRequestDoesNotStopTheOthers)
{
    load();
    goOnline();
    for (CtrComboEdit& row : view.cceReset) {
        row.cboBox.choose(2);
    }
    messenger.failOn("ExecuteCommunicationRequest");
    messenger.clear();
    view.cmdReset.click();
    EXPECT_EQ(requests().size(), 3U);
    EXPECT_EQ(messenger.errors().size(), 3U);
}

TEST_F(CtrResetTest, AnAnswerClearsTheSignOfTheRowThatItsItemNames)
{
    load();
    goOnline();
    for (CtrComboEdit& row : view.cceReset) {
        row.cboBox.choose(2);
    }
    view.cmdReset.click();
    messenger.clear();
    view.SetOnlineData(
        okResponse("resetCodes", item("resetParametersCode", "noUnit", "integerVal", "3") +
                                     item("resetDiagnosticsCode", "noUnit", "integerVal", "3")));
    EXPECT_TRUE(view.cceReset[0].Modified());
    EXPECT_TRUE(view.cceReset[1].Modified());
    EXPECT_FALSE(view.cceReset[2].Modified());
    EXPECT_EQ(view.cceReset[2].getSelectedValue(), 3);
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrResetTest, AnAnswerWithoutItemsIsMatchedByItsName)
{
    load();
    goOnline();
    view.cceReset[0].cboBox.choose(1);
    view.cmdReset.click();
    view.SetOnlineData(okResponse("ResetStatus"));
    EXPECT_TRUE(view.cceReset[0].Modified());
    view.SetOnlineData(okResponse("resetStatus"));
    EXPECT_FALSE(view.cceReset[0].Modified());
}

TEST_F(CtrResetTest, AnAnswerThatIsNoneIsReportedAndChangesNothing)
{
    load();
    goOnline();
    for (CtrComboEdit& row : view.cceReset) {
        row.cboBox.choose(1);
        ASSERT_TRUE(row.Modified());
    }
    view.SetOnlineData(documents::openText("<dtm/>"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("CtrReset IQornDataUser_SetOnlineData: ")));
    for (const CtrComboEdit& row : view.cceReset) {
        EXPECT_TRUE(row.Modified());
    }
}

TEST_F(CtrResetTest, AnErrorIsTakenIfItsNameLiesInTheViewsTag)
{
    load();
    const std::string items = item("resetParametersCode", "noUnit", "integerVal", "3");
    view.SetErrorData(response(
        R"(name="other" responseStatus="error" errorCode="communicationError" isFinal="1")",
        items));
    EXPECT_FALSE(messenger.wasCalled("ShowMessage"));
    view.SetErrorData(response(
        R"(name="setCod" responseStatus="error" errorCode="communicationError" isFinal="1")",
        items));
    EXPECT_TRUE(messenger.wasCalled("ShowMessage"));
    EXPECT_EQ(view.cceReset[2].syncState(), "syncError");
}

TEST_F(CtrResetTest, AnImportLeavesTheViewAlone)
{
    load();
    goOnline();
    view.cceReset[1].cboBox.choose(2);
    messenger.clear();
    view.SetImportData(datafile);
    EXPECT_EQ(view.cceReset[1].getSelectedValue(), 3);
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrResetTest, TheFocusGoesToTheFirstVisibleRow)
{
    load({kNames[1], kNames[2]});
    view.RequestFocus();
    EXPECT_TRUE(view.cceReset[1].HasFocus());
}

TEST_F(CtrResetTest, TabLeadsOutOfTheViewAtItsTwoEnds)
{
    load();
    goOnline();
    view.cceReset[0].cboBox.focus();
    toolkit.keysDown = {platform::kKeyTab, platform::kKeyShift};
    view.cceReset[0].cboBox.blur();
    EXPECT_EQ(messenger.callsTo("TransferFocus").size(), 1U);
    view.cmdReset.focus();
    view.cmdReset.blur(); // with Shift the focus goes back into the view
    EXPECT_EQ(messenger.callsTo("TransferFocus").size(), 1U);
    view.cmdReset.focus();
    toolkit.keysDown = {platform::kKeyTab};
    view.cmdReset.blur();
    EXPECT_EQ(messenger.callsTo("TransferFocus").size(), 2U);
}

TEST_F(CtrResetTest, TheViewHearsOfTheModeBeforeItsRows)
{
    load();
    view.cceReset[0].cboBox.focus();
    toolkit.keysDown = {platform::kKeyTab, platform::kKeyShift};
    messenger.clear();
    // The first row is disabled by this mode and gives up the focus.
    messenger.ViewSetCommunicationMode.raise(kEditingBarred);
    EXPECT_THAT(messenger.calls,
                ElementsAre("GetUserLevel()", "GetCommunicationMode()", "TransferFocus()"));
}

TEST_F(CtrResetTest, TheFrameFillsTheViewAndIsWhite)
{
    view.resize(8000, 5000);
    EXPECT_EQ(view.frmViews.Width, 8000);
    EXPECT_EQ(view.frmViews.Height, 5000);
    EXPECT_EQ(view.frmViews.BackColor, 0xffffffU);
}

TEST_F(CtrResetTest, AFailingLayoutIsReportedToTheHostAndDroppedWhereThereIsNone)
{
    const auto fails = view.frmViews.Changed.subscribe(
        [](const platform::WidgetChange&) { throw platform::failure(platform::kInvalidCall); });
    view.Width = 8000;
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("CtrReset UserControl_Resize: ")));
    view.SetMessenger(nullptr);
    messenger.clear();
    view.Width = 9000;
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST_F(CtrResetTest, LongLabelsTakeTheirRoomFromTheBoxes)
{
    EXPECT_EQ(view.cceReset[0].Left, 2000);
    translator.texts["diagnostics"] = std::string(20, 'x');
    view.Localize(translator);
    for (std::size_t row = 0; row < view.cceReset.size(); ++row) {
        EXPECT_EQ(view.lblReset[row].Width, 2000);
        EXPECT_EQ(view.cceReset[row].Left, 2700);
        EXPECT_EQ(view.cceReset[row].Left + view.cceReset[row].Width, 5900);
    }
    EXPECT_EQ(view.cmdReset.Left, 6100);
}

TEST_F(CtrResetTest, LabelsThatAreLongerStillMoveTheButton)
{
    translator.texts["diagnostics"] = std::string(40, 'x');
    translator.texts["reset"]       = std::string(15, 'x');
    view.Localize(translator);
    EXPECT_EQ(view.cceReset[1].Left, 4700);
    EXPECT_EQ(view.cceReset[1].Width, 2700);
    EXPECT_EQ(view.cmdReset.Left, 7600);
    EXPECT_GE(view.cmdReset.Width, 1500);
}

TEST_F(CtrResetTest, ShortTextsBringTheFormBack)
{
    translator.texts["diagnostics"] = std::string(40, 'x');
    view.Localize(translator);
    for (const char* key : {"diagnostics", "resetStatus", "resetParametersCode", "reset"}) {
        translator.texts[key] = "x";
    }
    view.Localize(translator);
    EXPECT_EQ(view.cceReset[1].Left, 2000);
    EXPECT_EQ(view.cceReset[1].Width, 3900);
    EXPECT_EQ(view.cmdReset.Left, 6100);
    EXPECT_EQ(view.cmdReset.Width, 1200);
}

TEST_F(CtrResetTest, AViewThatIsMadeWithASizeShowsItsFrameAtOnce)
{
    const CtrReset sized{page, {.Name = "sized", .Width = 8000, .Height = 5000}};
    EXPECT_EQ(sized.frmViews.Width, 8000);
    EXPECT_EQ(sized.frmViews.Height, 5000);
}

TEST_F(CtrResetTest, ItsOwnTagShowsTheFirstFrame)
{
    view.SetSelectedView("resetCodes");
    EXPECT_EQ(view.GetSelectedView(), "reset");
    view.SetSelectedView("elsewhere");
    EXPECT_EQ(view.GetSelectedView(), "");
    EXPECT_TRUE(view.LeaveSelectedView());
}

TEST_F(CtrResetTest, AfterTheReleaseNothingReachesTheHost)
{
    load();
    goOnline();
    view.PrepareToRelease();
    EXPECT_EQ(view.GetMessenger(), nullptr);
    messenger.clear();
    messenger.ViewSetCommunicationMode.raise(kOffline);
    view.cceReset[0].cboBox.choose(1);
    view.cmdReset.click();
    EXPECT_THAT(messenger.calls, IsEmpty());
}

} // namespace
} // namespace quill::test
