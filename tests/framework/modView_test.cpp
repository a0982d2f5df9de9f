#include "framework/modView.h"

#include "framework/shared_value_list.h"
#include "platform/widgets.h"
#include "support/fake_editors.h"
#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/test_documents.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using namespace platform;

const char* const k438 = "438, Object doesn't support this property or method)";

/// A sub-view that writes down what it is handed.
class FakeSubView : public TestPage {
public:
    using TestPage::TestPage;
    std::vector<std::string> calls;
    std::string              failing;
    std::string              answersView;
    std::string              shown;
    Messenger*               given = nullptr;

    void Localize(Translator&) override { heard("Localize"); }
    void SetMessenger(Messenger* messenger) override
    {
        heard("SetMessenger");
        given = messenger;
    }
    Messenger* GetMessenger() override { return given; }
    void       SetErrorData(const IXMLDOMNode&) override { heard("SetErrorData"); }
    void       SetImportData(const IXMLDOMNode&) override { heard("SetImportData"); }
    void       SetOfflineData(const IXMLDOMNode&) override { heard("SetOfflineData"); }
    void       SetOnlineData(const IXMLDOMNode&) override { heard("SetOnlineData"); }
    void       SetSelectedView(const std::string& name) override
    {
        heard("SetSelectedView " + name);
        if (name == answersView) {
            shown = name;
        }
    }
    std::string GetSelectedView() override { return shown; }

private:
    void heard(const std::string& call)
    {
        calls.push_back(call);
        if (!failing.empty() && call.starts_with(failing)) {
            throw failure(kInvalidCall);
        }
    }
};

/// A child that takes data but is no view.
class FakeDataUser : public Control, public IQornDataUser {
public:
    using Control::Control;
    int  errors = 0;
    void SetErrorData(const IXMLDOMNode&) override { ++errors; }
    void SetImportData(const IXMLDOMNode&) override {}
    void SetOfflineData(const IXMLDOMNode&) override {}
    void SetOnlineData(const IXMLDOMNode&) override {}
};

class ModView : public testing::Test {
protected:
    ToolkitScope        toolkit;
    RecordingMessenger  host;
    RecordingTranslator translator;
    TestPage            page;

    void SetUp() override
    {
        translator.prefix = "t:";
        host.translator   = &translator;
        page.SetMessenger(&host);
        host.clear();
    }
};

// --- Localize --------------------------------------------------------------------------------

TEST_F(ModView, LocalizeTakesCaptionsByTag)
{
    Label         label{page, {.Tag = "ctr_speed"}};
    CommandButton button{page, {.Tag = "set"}};
    CheckBox      check{page, {.Tag = "all"}};
    OptionButton  option{page, {.Tag = "one"}};
    page.Localize(translator);
    EXPECT_EQ(label.Caption.get(), "t:ctr_speed");
    EXPECT_EQ(button.Caption.get(), "t:set");
    EXPECT_EQ(check.Caption.get(), "t:all");
    EXPECT_EQ(option.Caption.get(), "t:one");
    EXPECT_THAT(translator.calls, ElementsAre("TranslateTag(ctr_speed)", "TranslateTag(set)",
                                              "TranslateTag(all)", "TranslateTag(one)"));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(ModView, LocalizeLeavesWidgetsWithAnEmptyTagAlone)
{
    Label         label{page, {.Caption = "as laid out"}};
    CommandButton button{page, {.Caption = "as laid out"}};
    TextBox       text{page, {.Caption = "as laid out"}};
    page.Localize(translator);
    EXPECT_EQ(label.Caption.get(), "as laid out");
    EXPECT_EQ(button.Caption.get(), "as laid out");
    EXPECT_EQ(text.Text.get(), "as laid out");
    EXPECT_THAT(translator.calls, IsEmpty());
}

TEST_F(ModView, LocalizeTranslatesATextBoxThatIsNotBound)
{
    TextBox help{page, {.Tag = "help"}};
    TextBox bound{page, {.Tag = "ctr_tag", .Caption = "FIC-1"}};
    page.Localize(translator);
    EXPECT_EQ(help.Text.get(), "t:help");
    EXPECT_EQ(bound.Text.get(), "FIC-1");
    EXPECT_THAT(translator.calls, ElementsAre("Translate(help)"));
}

TEST_F(ModView, LocalizeTranslatesColumnsWithATag)
{
    ListView list{page};
    list.setColumnHeaders({{"A", "a", 0}, {"B", "", 0}, {"C", "c", 0}});
    page.Localize(translator);
    EXPECT_EQ(list.ColumnHeaders()[0].Text, "t:a");
    EXPECT_EQ(list.ColumnHeaders()[1].Text, "B");
    EXPECT_EQ(list.ColumnHeaders()[2].Text, "t:c");
}

TEST_F(ModView, OneColumnThatFailsCostsOneColumn)
{
    ListView list{page};
    list.setColumnHeaders({{"A", "a", 0}, {"C", "c", 0}});
    translator.failingKey = "a";
    page.Localize(translator);
    EXPECT_EQ(list.ColumnHeaders()[0].Text, "A");
    EXPECT_EQ(list.ColumnHeaders()[1].Text, "t:c");
    EXPECT_THAT(host.errors(), SizeIs(1));
}

TEST_F(ModView, LocalizeReachesSubViewsAndEditors)
{
    FakeSubView sub{page};
    FakeEditor  editor{page, EditorKind::text, ""};
    page.Localize(translator);
    EXPECT_THAT(sub.calls, ElementsAre("Localize"));
    EXPECT_THAT(editor.calls, ElementsAre("Localize"));
}

TEST_F(ModView, LocalizeLeavesExcludedKindsAlone)
{
    Frame         frame{page, {.Tag = "x"}};
    ImageList     images{page, {.Tag = "x"}};
    Menu          menu{page, {.Tag = "x"}};
    PictureBox    picture{page, {.Tag = "x"}};
    FakeDateLabel date{page, "date_x"};
    page.Localize(translator);
    EXPECT_THAT(host.errors(), IsEmpty());
    EXPECT_THAT(translator.calls, IsEmpty());
}

TEST_F(ModView, LocalizeReportsAPlainWidgetThatIsNotExcludedAndGoesOn)
{
    ComboBox   combo{page};
    DatePicker picker{page};
    Label      label{page, {.Tag = "behind"}};
    page.Localize(translator);
    EXPECT_THAT(host.errors(), ElementsAre(std::string("ReportError(modView Localize: , ") + k438,
                                           std::string("ReportError(modView Localize: , ") + k438));
    EXPECT_EQ(label.Caption.get(), "t:behind");
}

TEST_F(ModView, ALabelThatFailsCostsOneLabel)
{
    Label first{page, {.Tag = "bad", .Caption = "old"}};
    Label second{page, {.Tag = "good"}};
    translator.failingKey = "bad";
    page.Localize(translator);
    EXPECT_EQ(first.Caption.get(), "old");
    EXPECT_EQ(second.Caption.get(), "t:good");
    EXPECT_THAT(
        host.errors(),
        ElementsAre("ReportError(modView Localize: , 5, Invalid procedure call or argument)"));
}

// --- setMessenger ----------------------------------------------------------------------------

TEST_F(ModView, SetMessengerReachesChildrenAndDropsTheirFailures)
{
    FakeSubView bad{page};
    ComboBox    plain{page};
    FakeEditor  editor{page, EditorKind::text, ""};
    bad.failing = "SetMessenger";
    page.SetMessenger(&host);
    EXPECT_EQ(editor.messenger, &host);
    EXPECT_THAT(bad.calls, ElementsAre("SetMessenger"));
    EXPECT_THAT(host.errors(), IsEmpty());
    page.SetMessenger(nullptr);
    EXPECT_EQ(editor.messenger, nullptr);
}

/// A view that cannot say what is on it.
class FailingPage : public TestPage {
public:
    bool controlsFail  = false;
    bool messengerFail = false;

    WidgetList GetControls() override
    {
        if (controlsFail) {
            throw failure(kObjectNotSet);
        }
        return TestPage::GetControls();
    }
    Messenger* GetMessenger() override
    {
        if (messengerFail) {
            throw failure(kObjectNotSet);
        }
        return TestPage::GetMessenger();
    }
};

TEST_F(ModView, AFailureOutsideTheChildrenIsReportedBySetMessenger)
{
    FailingPage failing;
    failing.controlsFail = true;
    failing.SetMessenger(&host);
    EXPECT_THAT(host.errors(),
                ElementsAre("ReportError(modView setMessenger: , 91, Object variable "
                            "or With block variable not set)"));
}

TEST_F(ModView, AViewWhoseMessengerFailsReportsToTheDebugOutput)
{
    FailingPage failing;
    ComboBox    plain{failing};
    Label       label{failing, {.Tag = "behind"}};
    failing.messengerFail = true;
    failing.Localize(translator);
    EXPECT_EQ(label.Caption.get(), "t:behind");
    EXPECT_THAT(toolkit.debugLines, ElementsAre(HasSubstr("modView Localize: ")));
}

TEST_F(ModView, AViewWithoutAMessengerServesItsChildrenAllTheSame)
{
    TestPage         silent;
    ComboBox         plain{silent};
    FakeMappedEditor combo{silent, EditorKind::combo, "ctr_alarmAction"};
    silent.SetOnlineData(okResponse("group", item("alarmAction", "noUnit", "integerVal", "1")));
    silent.SetOfflineData(datafile(R"(<data:parameter name="alarmAction"/>)"));
    EXPECT_THAT(combo.calls, ElementsAre("setOnlineData alarmAction", "SetMappings nothing",
                                         "setContextTag", "setOfflineData alarmAction"));
    EXPECT_THAT(toolkit.debugLines, SizeIs(1)) << "the plain combo box, from setOnlineData";
}

TEST_F(ModView, AMessengerThatThrowsWhileItTakesAReportStopsNothing)
{
    ComboBox plain{page};
    Label    label{page, {.Tag = "behind"}};
    host.failOn("ReportError");
    page.Localize(translator);
    EXPECT_EQ(label.Caption.get(), "t:behind");
}

// --- setImportData ---------------------------------------------------------------------------

TEST_F(ModView, ImportHandsEachEditorItsParameter)
{
    FakeEditor       text{page, EditorKind::text, "ctr_a"};
    FakeEditor       date{page, EditorKind::date, "ctr_b"};
    FakeMappedEditor combo{page, EditorKind::combo, "ctr_c"};
    FakeEditor       lacking{page, EditorKind::time, "ctr_lacking"};
    page.SetImportData(datafile(R"(<data:parameter name="a"/><data:parameter name="b"/>
                                   <data:parameter name="c"/>)"));
    EXPECT_THAT(text.calls, ElementsAre("setImportData a"));
    EXPECT_THAT(date.calls, ElementsAre("setImportData b"));
    EXPECT_THAT(combo.calls, ElementsAre("setImportData c")) << "neither mappings nor group";
    EXPECT_THAT(lacking.calls, ElementsAre("setImportData nothing"));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(ModView, ImportShowsTheTimeOfLastReadAsItStands)
{
    FakeDateLabel known{page, "date_g"};
    FakeDateLabel otherPrefix{page, "12345g"};
    FakeDateLabel unknown{page, "date_h"};
    FakeDateLabel never{page, "date_n"};
    page.SetImportData(datafile("", "",
                                R"(<data:requestGroup name="g" lastUpdate="01.02.2019 10:11:12"/>
                                   <data:requestGroup name="n"/>)"));
    EXPECT_EQ(known.text, "01.02.2019 10:11:12");
    EXPECT_EQ(otherPrefix.text, "01.02.2019 10:11:12");
    EXPECT_EQ(unknown.text, "before");
    EXPECT_EQ(never.text, "before");
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(ModView, ImportReachesSubViewsAndReportsPlainWidgets)
{
    FakeSubView sub{page};
    ComboBox    plain{page};
    TextBox     excluded{page};
    page.SetImportData(datafile(""));
    EXPECT_THAT(sub.calls, ElementsAre("SetImportData"));
    EXPECT_THAT(host.errors(),
                ElementsAre(std::string("ReportError(modView setImportData: , ") + k438));
}

TEST_F(ModView, AGridHasAnObjectThatIsNoneOfOurs)
{
    Grid grid{page};
    page.Localize(translator);
    page.SetMessenger(&host);
    page.SetImportData(datafile(""));
    page.SetOfflineData(datafile(""));
    page.SetOnlineData(okResponse("x"));
    EXPECT_THAT(host.errors(), IsEmpty());
}

// --- setOfflineData --------------------------------------------------------------------------

const char* const kGroups = R"(
    <data:requestGroup name="first"><data:includedParam name="a" clone="1"/></data:requestGroup>
    <data:requestGroup name="home"><data:includedParam name="a" clone="0"/>
        <data:includedParam name="b"/><data:includedParam name="c"/></data:requestGroup>)";

TEST_F(ModView, OfflineSetsTheHomeGroupAndTheParameter)
{
    FakeEditor text{page, EditorKind::text, "ctr_a"};
    FakeEditor date{page, EditorKind::date, "ctr_b"};
    page.SetOfflineData(
        datafile(R"(<data:parameter name="a"/><data:parameter name="b"/>)", "", kGroups));
    EXPECT_THAT(text.calls, ElementsAre("setContextTag home", "setOfflineData a"));
    EXPECT_THAT(date.calls, ElementsAre("setContextTag home", "setOfflineData b"));
}

TEST_F(ModView, OnlyATextEditorKeepsTheGroupThatThePageSetByHand)
{
    FakeEditor       text{page, EditorKind::text, "ctr_a"};
    FakeEditor       date{page, EditorKind::date, "ctr_b"};
    FakeMappedEditor combo{page, EditorKind::combo, "ctr_c"};
    text.contextTag = date.contextTag = combo.contextTag = "byHand";
    page.SetOfflineData(
        datafile(R"(<data:parameter name="a"/><data:parameter name="b"/>)", "", kGroups));
    EXPECT_EQ(text.contextTag, "byHand");
    EXPECT_EQ(date.contextTag, "home");
    EXPECT_EQ(combo.contextTag, "home");
}

TEST_F(ModView, OfflineGivesAMappedEditorItsOwnListFirst)
{
    FakeMappedEditor combo{page, EditorKind::combo, "ctr_alarmAction"};
    page.SetOfflineData(
        datafile(R"(<data:parameter name="alarmAction"/>)",
                 R"(<data:mappedParam name="action"/><data:mappedParam name="alarmAction"/>)"));
    EXPECT_THAT(combo.calls, ElementsAre("SetMappings alarmAction", "setContextTag",
                                         "setOfflineData alarmAction"));
    EXPECT_FALSE(host.wasCalled("WriteLog"));
}

TEST_F(ModView, OfflineFindsASharedListAndLogsTheSearch)
{
    FakeMappedEditor combo{page, EditorKind::option, "ctr_alarmHighAction_2"};
    page.SetOfflineData(datafile(R"(<data:parameter name="alarmHighAction_2"/>)",
                                 R"(<data:mappedParam name="highAction"/>)"));
    EXPECT_EQ(combo.calls.front(), "SetMappings highAction");
    EXPECT_THAT(host.callsTo("WriteLog"), ElementsAre("WriteLog(77, Parsing ctr_alarmHighAction_2)",
                                                      "WriteLog(77, highAction working)"));
}

TEST_F(ModView, OfflineHandsNothingToAMappedEditorWithoutAList)
{
    FakeMappedEditor combo{page, EditorKind::combo, "ctr_x"};
    page.SetOfflineData(datafile(R"(<data:parameter name="x"/>)"));
    EXPECT_THAT(combo.calls,
                ElementsAre("SetMappings nothing", "setContextTag", "setOfflineData x"));
    EXPECT_THAT(host.callsTo("WriteLog"),
                ElementsAre("WriteLog(77, Parsing ctr_x)", "WriteLog(77,  working)"));
}

TEST_F(ModView, AStepOfAnEditorThatFailsDoesNotStopTheNext)
{
    FakeMappedEditor combo{page, EditorKind::combo, "ctr_c"};
    FakeMappedEditor second{page, EditorKind::check, "ctr_c"};
    combo.failing  = "SetMappings";
    second.failing = "setContextTag";
    page.SetOfflineData(
        datafile(R"(<data:parameter name="c"/>)", R"(<data:mappedParam name="c"/>)", kGroups));
    EXPECT_THAT(combo.calls,
                ElementsAre("SetMappings c", "setContextTag home", "setOfflineData c"));
    EXPECT_THAT(second.calls,
                ElementsAre("SetMappings c", "setContextTag home", "setOfflineData c"));
    EXPECT_THAT(
        host.errors(),
        ElementsAre("ReportError( modView setOfflineData, 5, Invalid procedure call or argument)",
                    "ReportError( modView setOfflineData, 5, Invalid procedure call or argument)"));
}

TEST_F(ModView, OfflineShowsTheTimeOfLastReadInTheLocalesForm)
{
    FakeDateLabel label{page, "date_g"};
    page.SetOfflineData(
        datafile("", "", R"(<data:requestGroup name="g" lastUpdate="01.02.2019 10:11:12"/>)"));
    EXPECT_EQ(label.text, "2019-02-01 10:11:12");
}

TEST_F(ModView, OfflineDropsTheFailuresOfSubViewsAndPlainWidgets)
{
    FakeSubView bad{page};
    ComboBox    plain{page};
    FakeSubView good{page};
    bad.failing = "SetOfflineData";
    page.SetOfflineData(datafile(""));
    EXPECT_THAT(good.calls, ElementsAre("SetOfflineData"));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(ModView, AnEditorWithAnEmptyTagIsSkippedByAllData)
{
    FakeEditor text{page, EditorKind::text, ""};
    FakeEditor key{page, EditorKind::text, "speed"};
    page.SetOfflineData(datafile(R"(<data:parameter name=""/>)"));
    page.SetImportData(datafile(R"(<data:parameter name=""/>)"));
    page.SetOnlineData(okResponse("g", item("", "noUnit", "stringVal", "x")));
    page.SetErrorData(response(R"(name="g" errorCode="communicationError")",
                               item("", "noUnit", "stringVal", "x")));
    EXPECT_THAT(text.calls, IsEmpty());
    EXPECT_THAT(key.calls, IsEmpty());
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST(SharedValueList, TriesTheLastWordsOfTheName)
{
    struct Case {
        const char*              tag;
        std::vector<std::string> candidates;
    };
    const Case cases[] = {
        {"ctr_alarmHighAction", {"action", "highAction", "alarmHighAction"}},
        {"ctr_alarmHighAction_2", {"action", "highAction", "alarmHighAction"}},
        {"ctr_alarmAction_high", {"action", "alarmAction"}},
        {"ctr_a_b_c", {}},
        {"ctr_ab_cd_2", {"ab"}},
        {"ctr_action", {"action"}},
        {"ctr_Action", {"action"}},
        {"ctr_x", {}},
        {"ctr_", {}},
        {"ctr_sensor12", {"12", "sensor12"}},
        {"ctr_alarmA", {"alarmA"}},
        {"ctr_meldung\xC3\x96lstand", {"\xC3\xB6lstand", "meldung\xC3\x96lstand"}},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(modView::sharedListCandidates(test.tag), test.candidates) << test.tag;
    }
}

// --- setOnlineData ---------------------------------------------------------------------------

TEST_F(ModView, OnlineShowsAStringInABoundTextBox)
{
    TextBox bound{page, {.Tag = "ctr_tag", .Caption = "old"}};
    TextBox missing{page, {.Tag = "ctr_other", .Caption = "old"}};
    TextBox number{page, {.Tag = "ctr_number", .Caption = "old"}};
    page.SetOnlineData(okResponse("g", item("tag", "noUnit", "stringVal", " FIC-1 ") +
                                           item("number", "noUnit", "integerVal", "1")));
    EXPECT_EQ(bound.Text.get(), " FIC-1 ");
    EXPECT_EQ(missing.Text.get(), "old");
    EXPECT_EQ(number.Text.get(), "old");
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(ModView, OnlyTheTextEditorTellsLocalDataFromOnlineData)
{
    FakeEditor       text{page, EditorKind::text, "ctr_a"};
    FakeMappedEditor combo{page, EditorKind::combo, "ctr_a"};
    FakeEditor       time{page, EditorKind::time, "ctr_a"};
    const auto       value = item("a", "noUnit", "floatVal", "1");
    page.SetOnlineData(response(R"(name="g" responseStatus="local")", value));
    page.SetOnlineData(response(R"(name="g" responseStatus="ok")", value));
    EXPECT_THAT(text.calls, ElementsAre("setLocalData a", "setOnlineData a"));
    EXPECT_THAT(combo.calls, ElementsAre("setOnlineData a", "setOnlineData a"));
    EXPECT_THAT(time.calls, ElementsAre("setOnlineData a", "setOnlineData a"));
}

TEST_F(ModView, AMissingStatusIsReportedPerTextEditorAndTakenAsOnline)
{
    FakeEditor       text{page, EditorKind::text, "ctr_a"};
    FakeEditor       other{page, EditorKind::text, "ctr_b"};
    FakeMappedEditor combo{page, EditorKind::combo, "ctr_a"};
    page.SetOnlineData(response(R"(name="g")", item("a", "noUnit", "floatVal", "1")));
    EXPECT_THAT(text.calls, ElementsAre("setOnlineData a"));
    EXPECT_THAT(other.calls, ElementsAre("setOnlineData nothing"));
    EXPECT_THAT(combo.calls, ElementsAre("setOnlineData a"));
    EXPECT_THAT(host.errors(), SizeIs(2));
}

TEST_F(ModView, AResponseWithoutANameIsReportedAndServed)
{
    FakeEditor    text{page, EditorKind::text, "ctr_a"};
    FakeDateLabel label{page, "date_g"};
    page.SetOnlineData(response(R"(responseStatus="ok")", item("a", "noUnit", "floatVal", "1")));
    EXPECT_THAT(text.calls, ElementsAre("setOnlineData a"));
    EXPECT_EQ(label.text, "before");
    EXPECT_THAT(host.errors(), ElementsAre("ReportError(modView setOnlineData: , 91, Object "
                                           "variable or With block variable not set)"));
}

TEST_F(ModView, OnlineStampsTheDateLabelOfTheGroup)
{
    FakeDateLabel label{page, "date_g"};
    FakeDateLabel other{page, "date_gg"};
    FakeDateLabel otherPrefix{page, "datesg"};
    page.SetOnlineData(okResponse("g"));
    EXPECT_EQ(label.text, "2024-05-06 07:08:09");
    EXPECT_EQ(other.text, "before");
    EXPECT_EQ(otherPrefix.text, "before");
}

TEST_F(ModView, OnlineReportsEveryPlainWidgetAndGoesOn)
{
    Label       label{page};
    TextBox     unbound{page, {.Tag = "help"}};
    Frame       frame{page};
    FakeSubView sub{page};
    page.SetOnlineData(okResponse("g"));
    const std::string line = std::string("ReportError(modView setOnlineData: , ") + k438;
    EXPECT_THAT(host.errors(), ElementsAre(line, line, line));
    EXPECT_THAT(sub.calls, ElementsAre("SetOnlineData"));
}

// --- setErrorData ----------------------------------------------------------------------------

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

// --- The rest --------------------------------------------------------------------------------

TEST_F(ModView, PagesNest)
{
    TestPage inner{page, {.Name = "inner"}};
    Label    label{inner, {.Tag = "deep"}};
    page.Localize(translator);
    EXPECT_EQ(label.Caption.get(), "t:deep");
    page.PrepareToRelease();
    EXPECT_EQ(inner.GetMessenger(), nullptr);
}

TEST_F(ModView, ForwardSyncChangesMovesTheStateAndReportsChanges)
{
    struct Case {
        bool        ok;
        const char* before;
        const char* after;
        bool        reported;
    };
    const Case cases[] = {
        {false, "notRead", "syncError", true},
        {false, "sync", "syncError", true},
        {false, "", "syncError", true},
        {false, "syncError", "syncError", false},
        {true, "notRead", "sync", true},
        {true, "syncError", "reSync", true},
        {true, "sync", "sync", false},
        {true, "reSync", "reSync", false},
        {true, "", "", false},
    };
    for (const auto& test : cases) {
        host.clear();
        std::string state = test.before;
        modView::forwardSyncChanges("eventLog", test.ok, state, &host);
        EXPECT_EQ(state, test.after);
        if (test.reported) {
            EXPECT_THAT(host.calls, ElementsAre(std::string("SetParameterState(eventLog, ") +
                                                test.after + ")"));
        } else {
            EXPECT_THAT(host.calls, IsEmpty()) << test.before;
        }
    }
}

TEST_F(ModView, ForwardSyncChangesMovesTheStateAlsoIfTheReportFails)
{
    std::string state = "notRead";
    host.failOn("SetParameterState");
    modView::forwardSyncChanges("eventLog", true, state, &host);
    EXPECT_EQ(state, "sync");
    EXPECT_THAT(host.errors(), ElementsAre("ReportError(modView forwardSyncChanges, 5, Invalid "
                                           "procedure call or argument)"));
    state = "notRead";
    modView::forwardSyncChanges("eventLog", true, state, nullptr);
    EXPECT_EQ(state, "sync");
}

TEST_F(ModView, ShowViewPageBringsTheFrameOfThatTagToTheFront)
{
    Frame            a{page, {.Tag = "a"}};
    Frame            b{page, {.Tag = "b"}};
    const WidgetList pages{&a, &b};
    a.ZOrder();
    EXPECT_EQ(modView::ShowViewPage("b", "a", pages), "b");
    EXPECT_EQ(b.ZPosition.get(), 0);
    EXPECT_GT(a.ZPosition.get(), 0);
    EXPECT_EQ(modView::ShowViewPage("nowhere", "b", pages), "");
    EXPECT_EQ(b.ZPosition.get(), 0);
}

TEST_F(ModView, ShowViewPageShowsTheFirstPageIfTheNameIsTheCurrentOne)
{
    Frame            a{page, {.Tag = "a"}};
    Frame            b{page, {.Tag = "b"}};
    const WidgetList pages{&a, &b};
    b.ZOrder();
    EXPECT_EQ(modView::ShowViewPage("b", "b", pages), "a");
    EXPECT_EQ(a.ZPosition.get(), 0);
    EXPECT_EQ(modView::ShowViewPage("b", "b", {}), "");
}

TEST_F(ModView, ShowViewPageAsksSubViewsInOrderAndStops)
{
    FakeSubView first{page, {.Tag = "x"}};
    FakeSubView second{page};
    FakeSubView third{page};
    second.answersView = third.answersView = "x";
    second.failing                         = "SetSelectedView y";
    const WidgetList pages{&first, &second, &third};
    EXPECT_EQ(modView::ShowViewPage("x", "", pages), "x");
    EXPECT_THAT(first.calls, ElementsAre("SetSelectedView x")) << "asked, not taken by its tag";
    EXPECT_THAT(second.calls, ElementsAre("SetSelectedView x"));
    EXPECT_THAT(third.calls, IsEmpty());
    EXPECT_EQ(second.ZPosition.get(), 0);

    third.answersView = "y";
    EXPECT_EQ(modView::ShowViewPage("y", "x", pages), "y") << "one page that fails costs one page";
    EXPECT_EQ(third.ZPosition.get(), 0);
}

TEST_F(ModView, ShowFramePageLooksAtTheTagOnly)
{
    FakeSubView      a{page, {.Tag = "a"}};
    Frame            b{page, {.Tag = "b"}};
    const WidgetList pages{&a, &b};
    EXPECT_EQ(modView::ShowFramePage("b", "", pages), "b");
    EXPECT_EQ(modView::ShowFramePage("a", "b", pages), "a");
    EXPECT_EQ(modView::ShowFramePage("c", "b", pages), "");
    EXPECT_EQ(modView::ShowFramePage("b", "b", pages), "a");
    EXPECT_THAT(a.calls, IsEmpty());
}

TEST_F(ModView, TransferFocusOnTabHandsOnWhereTabLeadsOut)
{
    using modView::FocusPosition;
    struct Case {
        FocusPosition position;
        bool          tab;
        bool          shift;
        bool          handsOn;
    };
    const Case cases[] = {
        {FocusPosition::first, true, false, false}, {FocusPosition::first, true, true, true},
        {FocusPosition::last, true, false, true},   {FocusPosition::last, true, true, false},
        {FocusPosition::only, true, false, true},   {FocusPosition::only, true, true, true},
        {FocusPosition::only, false, false, false}, {FocusPosition::first, false, true, false},
    };
    for (const auto& test : cases) {
        host.clear();
        toolkit.keysDown.clear();
        if (test.tab) {
            toolkit.keysDown.insert(kKeyTab);
        }
        if (test.shift) {
            toolkit.keysDown.insert(kKeyShift);
        }
        modView::TransferFocusOnTab(page, test.position);
        EXPECT_EQ(host.wasCalled("TransferFocus"), test.handsOn)
            << static_cast<int>(test.position) << test.tab << test.shift;
    }
}

TEST_F(ModView, AControlThatComesDuringTheWalkDoesNotDisturbIt)
{
    class Growing : public TestPage {
    public:
        using TestPage::TestPage;
        std::vector<std::unique_ptr<Label>> labels;

        void Localize(Translator&) override
        {
            for (int i = 0; i < 100; ++i) {
                labels.push_back(std::make_unique<Label>(*Owner(), Design{.Tag = "late"}));
            }
        }
    };
    Growing growing{page};
    Label   behind{page, {.Tag = "behind"}};
    page.Localize(translator);
    EXPECT_EQ(behind.Caption.get(), "t:behind");
    EXPECT_EQ(growing.labels.front()->Caption.get(), "");
}

} // namespace
} // namespace quill::test
