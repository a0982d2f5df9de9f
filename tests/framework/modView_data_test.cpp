// How a page hands on values: those of an import, of the datafile and of the device.

#include "modView_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using namespace platform;

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

} // namespace
} // namespace quill::test
