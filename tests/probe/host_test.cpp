#include "framework/documents.h"
#include "platform/toolkit.h"
#include "probe/host.h"
#include "probe_run.h"
#include "support/failure_of.h"

#include <filesystem>

namespace quill::probe::test {

namespace {

using quill::test::failureOf;

/// A host on its own, spoken to as a control does.
class HostTest : public testing::Test {
protected:
    void take(std::string line) { host.take(json(std::move(line))); }
    Json report(std::size_t place = 0) const { return Json::parse(lines.at(place)); }

    std::vector<std::string> lines;
    Output                   output{[this](const std::string& line) { lines.push_back(line); }};
    Host host{output, [](const platform::Widget& widget) { return widget.Name; }};
};

} // namespace

TEST_F(HostTest, AnswersItsStartValues)
{
    EXPECT_EQ(host.GetCommunicationMode(), 10);
    EXPECT_EQ(host.GetUserLevel(), 3);
    EXPECT_EQ(host.GetStatusClassification(), 0);
    EXPECT_FALSE(host.IsStatusClassificationFixed());
    EXPECT_FALSE(host.HasConfigurationChangedSign());
    EXPECT_TRUE(host.GetDialogsAllowed());
    EXPECT_TRUE(host.IsErrorDialogEnabled());
    EXPECT_EQ(host.GetUnitConverter(), nullptr);
    EXPECT_EQ(host.GetAddressService(), nullptr);
    EXPECT_FALSE(host.GetDeviceTypeInfo());
    EXPECT_EQ(host.GetDatasetXml(), "");
    EXPECT_EQ(host.GetHostDocument("FDT"), "");
    EXPECT_EQ(host.AskQuestion("title", "question"), 0);
    EXPECT_EQ(host.GetTranslator()->GetLanguage(), "English");
    EXPECT_EQ(host.toolkit().now(), (platform::DateTime{2024, 5, 6, 7, 8, 9}));
}

TEST_F(HostTest, ReportsEveryOperationWithItsInputs)
{
    host.GetTranslator();
    host.SetCombinedStatus(1, "alarm");
    host.ReportErrorObject("place", 91, "nothing");
    host.ExecuteCommunicationRequest("<x/>", "reading", 1, 2);
    EXPECT_EQ(report(0), json("{'messenger':'GetTranslator','args':[]}"));
    EXPECT_EQ(report(1), json("{'messenger':'SetCombinedStatus','args':[1,'alarm']}"));
    EXPECT_EQ(report(2), json("{'messenger':'ReportErrorObject','args':['place',"
                              "{'number':91,'description':'nothing'}]}"));
    EXPECT_EQ(report(3), json("{'messenger':'ExecuteCommunicationRequest',"
                              "'args':['<x/>','reading',1,2]}"));
}

TEST_F(HostTest, AFreshFolderStandsForEachPath)
{
    const std::string install = host.GetInstallPath();
    EXPECT_TRUE(std::filesystem::is_directory(install));
    EXPECT_EQ(install.back(), '/');
    EXPECT_EQ(host.GetInstallPath(), install);
    EXPECT_NE(host.GetWorkPath(), install);
    EXPECT_NE(host.GetUserDataPath(), host.GetWorkPath());
    take("{'op':'host','workPath':'C:\\\\Work\\\\'}");
    EXPECT_EQ(host.GetWorkPath(), "C:\\Work\\");
}

TEST_F(HostTest, ALineReplacesWhatItGivesAndNothingElse)
{
    take("{'op':'host','userLevel':1,'answers':{'really':4}}");
    take("{'op':'host','answers':{'*':2},'hostDocuments':{'FDT':'<fdt/>'}}");
    EXPECT_EQ(host.GetUserLevel(), 1);
    EXPECT_EQ(host.AskQuestion("t", "really"), 2);
    EXPECT_EQ(host.GetHostDocument("FDT"), "<fdt/>");
    EXPECT_TRUE(host.SetHostDocument("FDT", "<new/>"));
    EXPECT_EQ(host.GetHostDocument("FDT"), "<new/>");
}

TEST_F(HostTest, ALineWithAWrongKeyChangesNothing)
{
    EXPECT_EQ(failureOf([&] { take("{'op':'host','userLevel':1,'textWidth':'wide'}"); }), 13);
    EXPECT_EQ(failureOf([&] { take("{'op':'host','userLevel':1,'colour':2}"); }), 5);
    EXPECT_EQ(failureOf([&] { take("{'op':'host','userLevel':100000}"); }), 6);
    EXPECT_EQ(failureOf([&] { take("{'op':'host','untranslated':'hide'}"); }), 5);
    EXPECT_EQ(failureOf([&] { take("{'op':'host','deviceTypeInfo':'<open>'}"); }), 5);
    EXPECT_EQ(host.GetUserLevel(), 3);
}

TEST_F(HostTest, AnswersByQuestionKeyWhateverItsParameter)
{
    take("{'op':'host','answers':{'overwrite':4,'*':6}}");
    EXPECT_EQ(host.AskQuestion("title", "overwrite#file.tst"), 4);
    EXPECT_EQ(host.AskQuestion("title", "leave"), 6);
}

TEST_F(HostTest, APreparedFailureComesAfterTheReport)
{
    take("{'op':'host','fails':{'GetUserLevel':70,'Translate':5,'doevents':9}}");
    EXPECT_EQ(failureOf([&] { host.GetUserLevel(); }), 70);
    EXPECT_EQ(report(), json("{'messenger':'GetUserLevel','args':[]}"));
    EXPECT_EQ(failureOf([&] { host.translator().Translate("key"); }), 5);
    EXPECT_EQ(failureOf([&] { host.toolkit().doEvents(); }), 9);
    take("{'op':'host','fails':{}}");
    EXPECT_EQ(host.GetUserLevel(), 3);
}

TEST_F(HostTest, AnOkCanBeTakenBack)
{
    EXPECT_TRUE(host.ExecuteNamedRequest("masks", "", 0, 0));
    take("{'op':'host','accepts':{'ExecuteNamedRequest':false,'SetHostDocument':false}}");
    EXPECT_FALSE(host.ExecuteNamedRequest("masks", "", 0, 0));
    EXPECT_FALSE(host.SetHostDocument("FDT", "<x/>"));
    EXPECT_EQ(host.GetHostDocument("FDT"), "");
    EXPECT_TRUE(host.RestoreDataset("<x/>"));
}

TEST_F(HostTest, TranslatesByKeyAndByTag)
{
    take("{'op':'host','translations':{'travel':'Weg','ctr_flow':'Fluss','limit':'Grenze'}}");
    auto& translator = *host.GetTranslator();
    EXPECT_EQ(translator.Translate("travel"), "Weg");
    EXPECT_EQ(translator.Translate("other"), "other");
    EXPECT_EQ(translator.TranslateTag("ctr_travel"), "Weg");
    EXPECT_EQ(translator.TranslateTag("ctr_flow"), "Fluss");
    EXPECT_EQ(translator.TranslateTag("ctr_none"), "ctr_none");
    EXPECT_EQ(translator.TranslateDelimited("limit#3", "#"), "Grenze 3");
    take("{'op':'host','untranslated':'err'}");
    EXPECT_EQ(translator.Translate("other"), "Err:other");
    EXPECT_EQ(translator.TranslateTag("ctr_none"), "Err:ctr_none");
}

TEST_F(HostTest, ConvertsInSinglePrecisionBothWays)
{
    take("{'op':'host','converter':{'conversions':["
         "{'from':'bar','to':'psi','factor':14.5038},"
         "{'from':'C','to':'F','factor':1.8,'offset':32}]}}");
    auto& units = *host.GetUnitConverter();
    EXPECT_EQ(units.ConvertValue(2, "bar", "psi"), 2 * 14.5038F);
    EXPECT_EQ(units.ConvertValue(14.5038F, "psi", "bar"), 1.0F);
    EXPECT_EQ(units.ConvertValue(100, "C", "F"), 212.0F);
    EXPECT_EQ(units.ConvertValue(212, "F", "C"), 100.0F);
    EXPECT_EQ(units.ConvertValue(3, "mm", "mm"), 3.0F);
    EXPECT_EQ(units.ConvertValue(3, "mm", "bar"), std::nullopt);
    take("{'op':'host','accepts':{'ConvertValue':false}}");
    EXPECT_EQ(units.ConvertValue(3, "mm", "mm"), std::nullopt);
}

TEST_F(HostTest, TellsQuantitiesUnitsAndSystems)
{
    take("{'op':'host','converter':{'displayUnits':{'pressure':'psi'},'quantities':['pressure'],"
         "'choices':{'pressure':['bar','psi',null]},'systems':{'SI':{'pressure':'Pa'}}}}");
    auto& units = *host.GetUnitConverter();
    EXPECT_EQ(units.GetDisplayUnit("pressure"), "psi");
    EXPECT_EQ(units.GetDisplayUnit("flow"), std::nullopt);
    const auto quantities = units.GetQuantities();
    ASSERT_EQ(quantities.get_length(), 1);
    EXPECT_EQ(quantities.get_item(0).get_text(), "pressure");
    const auto choices = units.GetUnitChoices("pressure");
    ASSERT_TRUE(choices);
    ASSERT_EQ(choices->get_length(), 3);
    EXPECT_EQ(documents::attributeText(choices->get_item(1), "name"), "psi");
    EXPECT_FALSE(choices->get_item(2).selectSingleNode("./@name"));
    EXPECT_EQ(units.GetUnitChoices("flow"), std::nullopt);
    const auto data = units.GetUnitSystemData("pressure");
    ASSERT_TRUE(data);
    EXPECT_EQ(units.GetUnitOfSystem(*data, "SI"), "Pa");
    EXPECT_EQ(units.GetUnitOfSystem(*data, "US"), std::nullopt);
    EXPECT_FALSE(units.GetUnitSystemData("flow"));
    lines.clear();
    EXPECT_TRUE(units.SetDisplayUnit("pressure", "bar"));
    EXPECT_EQ(report(), json("{'converter':'SetDisplayUnit','args':['pressure','bar']}"));
    EXPECT_EQ(units.GetDisplayUnit("pressure"), "bar");
}

TEST_F(HostTest, AConverterThatIsTakenAwayFailsForWhoeverKeptIt)
{
    take("{'op':'host','converter':{}}");
    auto* units = host.GetUnitConverter();
    ASSERT_NE(units, nullptr);
    take("{'op':'host','converter':null}");
    EXPECT_EQ(host.GetUnitConverter(), nullptr);
    EXPECT_EQ(failureOf([&] { (void)units->GetDisplayUnit("pressure"); }), 91);
}

TEST(ProbeToolkit, TheClockStandsStillButForAdvance)
{
    Probe run;
    run("{'op':'host','clock':'2024-12-31 23:59:59'}");
    run("{'op':'advance','seconds':0.5}");
    EXPECT_EQ(platform::toIso(platform::Toolkit::current().now()), "2024-12-31 23:59:59");
    run("{'op':'advance','seconds':0.5}");
    EXPECT_EQ(platform::toIso(platform::Toolkit::current().now()), "2025-01-01 00:00:00");
    run("{'op':'host','userLevel':1}");
    EXPECT_EQ(platform::toIso(platform::Toolkit::current().now()), "2025-01-01 00:00:00");
    EXPECT_EQ(run.failure("{'op':'advance','seconds':1e300}"), 6);
    EXPECT_EQ(run.failure("{'op':'advance','seconds':'long'}"), 13);
}

TEST(ProbeToolkit, LocaleTextWidthKeysAndDialogsAreTheHosts)
{
    Probe run;
    run("{'op':'host','locale':{'decimal':','},'textWidth':150,'keysDown':[9,16],"
        "'fileDialog':'/tmp/a.tst'}");
    auto& toolkit = platform::Toolkit::current();
    EXPECT_EQ(toolkit.locale().decimal, ",");
    EXPECT_EQ(toolkit.locale().shortDate, "yyyy-MM-dd");
    EXPECT_EQ(toolkit.textWidth("äb"), 300);
    EXPECT_TRUE(toolkit.keyDown(16));
    EXPECT_FALSE(toolkit.keyDown(17));
    EXPECT_EQ(toolkit.askForFile({}), "/tmp/a.tst");
}

TEST(ProbeToolkit, TheHalfOfTheDayIsWrittenInAnyUsualWay)
{
    for (const char* mark : {"AP", "AM/PM", "tt"}) {
        Probe run;
        run(std::string{"{'op':'host','locale':{'shortDate':'M/d/yyyy','longTime':'h:mm:ss "} +
            mark + "'}}");
        EXPECT_EQ(run.result("{'op':'call','on':'modTools','method':'LocalizeDatafileDate',"
                             "'args':['05.06.2021 15:02:03']}"),
                  "6/5/2021 3:02:03 PM")
            << mark;
    }
}

TEST(ProbeToolkit, WhatNobodySeesIsReadFromTheToolkit)
{
    Probe run;
    auto& toolkit = platform::Toolkit::current();
    toolkit.setClipboard("copied");
    toolkit.setMousePointer(13);
    toolkit.setCurrentFolder("/tmp");
    EXPECT_EQ(run.result("{'op':'get','on':'toolkit','property':'Clipboard'}"), "copied");
    EXPECT_EQ(run.result("{'op':'get','on':'toolkit','property':'MousePointer'}"), 13);
    EXPECT_EQ(run.result("{'op':'get','on':'toolkit','property':'CurrentFolder'}"), "/tmp");
    EXPECT_EQ(run.failure("{'op':'get','on':'toolkit','property':'Printer'}"), 438);
}

TEST(ProbeToolkit, DebugOutputIsReported)
{
    Probe run;
    run("{'op':'call','on':'modTools','method':'WriteDebugError','args':['T','w',5,'d']}");
    ASSERT_EQ(run.reports.size(), 1U);
    EXPECT_EQ(run.reports[0], json("{'debug':'T w error 5: d'}"));
}

} // namespace quill::probe::test
