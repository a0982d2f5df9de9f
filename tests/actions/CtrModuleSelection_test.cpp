#include "actions/CtrModuleSelection.h"

#include "support/recording_messenger.h"
#include "support/recording_translator.h"
#include "support/test_documents.h"
#include "support/test_page.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const std::string kHead(28, 'A');

std::string word(std::size_t number)
{
    char text[8];
    (void)std::snprintf(text, sizeof text, "%04zX", number);
    return text;
}

std::string configuration(const std::string& first, const std::string& second,
                          const std::string& tail)
{
    const std::string rest =
        kHead + word(first.size() / 2 + 2) + first + word(second.size() / 2 + 2) + second + tail;
    return word(rest.size() / 2 + 2) + rest;
}

std::string module(const std::string& name, const std::string& data)
{
    return "<p:Module configurationData=\"" + data + "\"><f:VersionInformation name=\"" + name +
           "\"/></p:Module>";
}

std::string moduleDocument(const std::string& content)
{
    return "<p:Root xmlns:p=\"x-schema:DTMParameterSchema.xml\" "
           "xmlns:f=\"x-schema:FDTDataTypesSchema.xml\">" +
           content + "</p:Root>";
}

std::string hostDocument(const std::string& busConfiguration,
                         const std::string& modules = module("M1", "11"))
{
    return moduleDocument("<p:MasterSlaveBus busMasterConfigurationPart=\"" + busConfiguration +
                          "\"/>" + modules);
}

class CtrModuleSelectionTest : public testing::Test {
protected:
    ToolkitScope          toolkit;
    RecordingMessenger    messenger;
    RecordingTranslator   translator;
    TestPage              page;
    CtrModuleSelection    view{page, {.Name = "modules", .Tag = "modules"}};
    std::filesystem::path folder;
    IXMLDOMDocument       datafile = documents::openText(
              std::string("<d:dtm xmlns:d=\"") + documents::kDatafileSchema + "\" xmlns:t=\"" +
              documents::kTypeInfoSchema +
              R"("><d:persistentData><t:device><t:internalInfo parameterfile="modules.xml"/></t:device>)"
                    R"(</d:persistentData></d:dtm>)");

    void SetUp() override
    {
        std::string name = (std::filesystem::temp_directory_path() / "quill-XXXXXX").string();
        folder           = ::mkdtemp(name.data());
        std::filesystem::create_directory(folder / "Documents");
        messenger.installPath = folder.string() + "/";
        write(moduleDocument(module("M1", "11") + module("M2", "223344556677") +
                             module("M2", "99") + module("Odd", "123")));
        messenger.hostDocuments["FDT"] = hostDocument(configuration("AABB", "CCDDEE", "778899"));
        view.SetMessenger(&messenger);
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    void write(const std::string& text)
    {
        std::ofstream(folder / "Documents" / "modules.xml") << text;
    }
    void load()
    {
        view.SetOfflineData(datafile);
        messenger.clear();
    }
    [[nodiscard]] std::string rebuilt()
    {
        auto document = IXMLDOMDocument::create();
        document.loadXML(messenger.hostDocuments["FDT"]);
        document.setSelectionNamespaces({{"param", documents::kParameterSchema}});
        return documents::attributeText(document.selectSingleNode("//param:MasterSlaveBus"),
                                        "busMasterConfigurationPart");
    }
    [[nodiscard]] std::vector<std::string> reports() const
    {
        return messenger.callsTo("ReportErrorObject");
    }
    void choose(const std::string& name)
    {
        view.ModuleSelection.setText(name);
        messenger.clear();
        view.cmdSetSelection.click();
    }
};

TEST_F(CtrModuleSelectionTest, ListsTheModulesOfTheParameterDocument)
{
    view.SetOfflineData(datafile);
    EXPECT_THAT(view.ModuleSelection.List(), ElementsAre("M1", "M2", "M2", "Odd"));
    EXPECT_EQ(view.ModuleSelection.Text(), "M1");
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(CtrModuleSelectionTest, ASecondLoadListsThemOnce)
{
    load();
    load();
    EXPECT_EQ(view.ModuleSelection.ListCount(), 4);
}

TEST_F(CtrModuleSelectionTest, TheLastModuleOfTheHostsDocumentStandsSelected)
{
    messenger.hostDocuments["FDT"] = hostDocument("", module("M1", "11") + module("Odd", "1"));
    load();
    EXPECT_EQ(view.ModuleSelection.Text(), "Odd");
}

TEST_F(CtrModuleSelectionTest, AModuleThatIsNotInTheListIsShownAllTheSame)
{
    messenger.hostDocuments["FDT"] = hostDocument("", module("Foreign", "11"));
    load();
    EXPECT_EQ(view.ModuleSelection.Text(), "Foreign");
}

TEST_F(CtrModuleSelectionTest, AMissingParameterDocumentLeavesTheListEmptyAndShowsTheHostsModule)
{
    std::filesystem::remove(folder / "Documents" / "modules.xml");
    view.SetOfflineData(datafile);
    EXPECT_EQ(view.ModuleSelection.ListCount(), 0);
    EXPECT_EQ(view.ModuleSelection.Text(), "M1");
    EXPECT_THAT(reports(), ElementsAre(HasSubstr("CtrModuleSelection SetOfflineData: , 53")));
}

TEST_F(CtrModuleSelectionTest, AfterALoadThatFailsNoModuleOfTheFileBeforeCanBeApplied)
{
    load();
    write("<broken");
    load();
    choose("M2");
    EXPECT_FALSE(messenger.wasCalled("SetHostDocument"));
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(CtrModuleSelectionTest, AHostWithoutADocumentEndsTheLoad)
{
    load();
    messenger.hostDocuments.clear();
    view.SetOfflineData(datafile);
    EXPECT_EQ(view.ModuleSelection.ListCount(), 4);
    EXPECT_EQ(view.ModuleSelection.Text(), "");
    EXPECT_EQ(view.ModuleSelection.ToolTipText.get(), "") << "not the module of the load before";
}

TEST_F(CtrModuleSelectionTest, AHostThatCannotTellItsFolderLeavesNoModulesOfAnEarlierOne)
{
    load();
    messenger.failOn("GetInstallPath");
    view.SetOfflineData(datafile);
    EXPECT_EQ(view.ModuleSelection.ListCount(), 0);
    EXPECT_THAT(reports(), ElementsAre(HasSubstr("CtrModuleSelection SetOfflineData: , 5"),
                                       HasSubstr("CtrModuleSelection SetOfflineData: , 53")));
}

TEST_F(CtrModuleSelectionTest, AModuleWithoutANameIsReportedAndListedWithout)
{
    write(moduleDocument(module("M1", "11") +
                         "<p:Module configurationData=\"22\"><f:VersionInformation/></p:Module>" +
                         module("M2", "33")));
    view.SetOfflineData(datafile);
    EXPECT_THAT(view.ModuleSelection.List(), ElementsAre("M1", "", "M2"));
    EXPECT_THAT(reports(), ElementsAre(HasSubstr("CtrModuleSelection SetOfflineData: , 91")));
}

TEST_F(CtrModuleSelectionTest, TheChosenModuleGoesIntoTheHostsDocument)
{
    load();
    choose("M2");
    EXPECT_EQ(rebuilt(), configuration("AABB", "223344556677", "778899"));
    EXPECT_THAT(rebuilt(), HasSubstr("AABB0008223344556677778899"));
    EXPECT_THAT(messenger.hostDocuments["FDT"], HasSubstr("configurationData=\"223344556677\""));
    EXPECT_THAT(messenger.hostDocuments["FDT"], testing::Not(HasSubstr("\"M1\"")));
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(CtrModuleSelectionTest, TheChosenModuleCanBeChosenAgainAndReadBack)
{
    load();
    choose("M2");
    choose("M1");
    EXPECT_EQ(rebuilt(), configuration("AABB", "11", "778899"));
    view.SetOfflineData(datafile);
    EXPECT_EQ(view.ModuleSelection.Text(), "M1");
}

TEST_F(CtrModuleSelectionTest, AnEmptyFirstBlockIsKept)
{
    messenger.hostDocuments["FDT"] = hostDocument(configuration("", "CCDD", "77"));
    load();
    choose("M2");
    EXPECT_EQ(rebuilt(), configuration("", "223344556677", "77"));
}

TEST_F(CtrModuleSelectionTest, HalfAByteIsRoundedToTheEvenNumber)
{
    load();
    choose("Odd");
    EXPECT_THAT(rebuilt(), HasSubstr("AABB0004123778899"));
}

TEST_F(CtrModuleSelectionTest, AnUnknownTextWritesNothing)
{
    load();
    for (const char* text : {"nobody", "", "a\"b"}) {
        choose(text);
        EXPECT_FALSE(messenger.wasCalled("SetHostDocument")) << text;
    }
    EXPECT_THAT(reports(), ElementsAre(HasSubstr("CtrModuleSelection cmdSetSelectoinClick: ")));
}

TEST_F(CtrModuleSelectionTest, ABrokenConfigurationIsReportedAlsoWhereNoModuleIsFound)
{
    messenger.hostDocuments["FDT"] = hostDocument("0012" + kHead + "G000");
    load();
    choose("nobody");
    EXPECT_THAT(reports(), ElementsAre(HasSubstr(", 13"), HasSubstr(", 13")));
    EXPECT_FALSE(messenger.wasCalled("SetHostDocument"));
}

TEST_F(CtrModuleSelectionTest, AHostDocumentThatIsNoXmlIsLeftAlone)
{
    load();
    messenger.hostDocuments["FDT"] = "<broken";
    choose("M2");
    EXPECT_FALSE(messenger.wasCalled("SetHostDocument"));
    EXPECT_EQ(messenger.hostDocuments["FDT"], "<broken");
}

TEST_F(CtrModuleSelectionTest, WithoutABusTheModuleIsReplacedAllTheSame)
{
    messenger.hostDocuments["FDT"] = moduleDocument(module("M1", "11"));
    load();
    choose("M2");
    EXPECT_THAT(messenger.hostDocuments["FDT"], HasSubstr("223344556677"));
}

TEST_F(CtrModuleSelectionTest, AMissingModuleIsReportedAndTheBusIsRebuilt)
{
    messenger.hostDocuments["FDT"] = hostDocument(configuration("AA", "CC", ""), "");
    load();
    choose("M2");
    EXPECT_EQ(rebuilt(), configuration("AA", "223344556677", ""));
    EXPECT_THAT(reports(), ElementsAre(HasSubstr(", 91")));
}

TEST_F(CtrModuleSelectionTest, ALengthThatDoesNotParseCountsAsZeroWithAReport)
{
    for (const char* broken : {"G000", "0x", ""}) {
        messenger.hostDocuments["FDT"] = hostDocument("0012" + kHead + broken);
        load();
        choose("M2");
        EXPECT_THAT(reports(), ElementsAre(HasSubstr(", 13"), HasSubstr(", 13"))) << broken;
        // Nothing of the text is lost but the part that could not be found.
        EXPECT_THAT(rebuilt(), HasSubstr(kHead)) << broken;
        EXPECT_THAT(rebuilt(), HasSubstr("0008223344556677")) << broken;
    }
}

TEST_F(CtrModuleSelectionTest, ALengthBehindTheEndLosesNothingOfTheConfiguration)
{
    for (const char* length : {"8000", "FFFF"}) {
        const std::string rest         = kHead + length + "AABB0005CCDDEE7788";
        messenger.hostDocuments["FDT"] = hostDocument("0012" + rest);
        load();
        choose("M1");
        EXPECT_THAT(rebuilt(), EndsWith(rest + "000311")) << length;
        EXPECT_THAT(reports(), ElementsAre(HasSubstr(", 13"))) << length;
    }
}

TEST_F(CtrModuleSelectionTest, PlacesAndLengthsCountCharactersNotBytes)
{
    const auto withUmlaut = [](std::string text) { return text.replace(5, 1, "\u00e4"); };
    write(moduleDocument(module("Umlaut", "22\u00e433")));
    messenger.hostDocuments["FDT"] =
        hostDocument(withUmlaut(configuration("AABB", "CCDDEE", "778899")));
    load();
    choose("Umlaut");
    EXPECT_EQ(rebuilt(),
              "001C" + withUmlaut("xxxx" + kHead).substr(4) + "0004AABB000422\u00e433778899");
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(CtrModuleSelectionTest, AModuleThatIsTooLongIsAnOverflow)
{
    write(moduleDocument(module("Huge", std::string(70000, '0'))));
    load();
    choose("Huge");
    EXPECT_THAT(reports(), ElementsAre(HasSubstr(", 6"), HasSubstr(", 6")));
}

TEST_F(CtrModuleSelectionTest, RandomBlocksKeepHeadFirstBlockAndTail)
{
    std::mt19937                               random(7);
    std::uniform_int_distribution<std::size_t> length(0, 60);
    std::uniform_int_distribution<int>         digit(0, 15);
    const auto                                 block = [&] {
        std::string text;
        for (std::size_t place = 2 * length(random); place > 0; --place) {
            text += "0123456789ABCDEF"[digit(random)];
        }
        return text;
    };
    for (int run = 0; run < 200; ++run) {
        const std::string first = block();
        const std::string tail  = block();
        const std::string fresh = block();
        write(moduleDocument(module("R", fresh)));
        messenger.hostDocuments["FDT"] = hostDocument(configuration(first, block(), tail));
        load();
        choose("R");
        ASSERT_EQ(rebuilt(), configuration(first, fresh, tail));
        ASSERT_THAT(reports(), IsEmpty());
    }
}

TEST_F(CtrModuleSelectionTest, TheToolTipShowsALongName)
{
    load();
    view.ModuleSelection.choose(3);
    EXPECT_EQ(view.ModuleSelection.ToolTipText.get(), "Odd");
}

TEST_F(CtrModuleSelectionTest, TheToolTipIsThereFromTheLoadOnAndFollowsWhatIsTyped)
{
    load();
    EXPECT_EQ(view.ModuleSelection.ToolTipText.get(), "M1");
    view.ModuleSelection.type("M");
    EXPECT_EQ(view.ModuleSelection.ToolTipText.get(), "M");
}

TEST_F(CtrModuleSelectionTest, AChangeOfItsSizeLeavesTheFrameAlone)
{
    const std::int32_t width  = view.frmModuleSelection.Width;
    const std::int32_t height = view.frmModuleSelection.Height;
    view.resize(12000, 1000);
    EXPECT_EQ(view.frmModuleSelection.Width, width);
    EXPECT_EQ(view.frmModuleSelection.Height, height);
    EXPECT_EQ(view.BackColor, view.frmModuleSelection.BackColor.get());
}

TEST_F(CtrModuleSelectionTest, WithoutAMessengerFailuresGoToTheDebugOutput)
{
    view.PrepareToRelease();
    view.cmdSetSelection.click();
    EXPECT_THAT(toolkit.debugLines,
                ElementsAre(HasSubstr("CtrModuleSelection cmdSetSelectoinClick:  error 91")));
}

TEST_F(CtrModuleSelectionTest, ALongCaptionTakesItsRoomFromTheBox)
{
    translator.texts["apply"] = std::string(30, 'x');
    view.Localize(translator);
    const auto endOf = [](const platform::Widget& widget) { return widget.Left + widget.Width; };
    EXPECT_GE(view.cmdSetSelection.Width, 3000);
    EXPECT_LE(endOf(view.cmdSetSelection), view.frmModuleSelection.Width);
    EXPECT_LT(endOf(view.ModuleSelection), view.cmdSetSelection.Left);
    translator.texts["apply"] = "x";
    view.Localize(translator);
    EXPECT_EQ(view.cmdSetSelection.Left, 6200);
    EXPECT_EQ(view.ModuleSelection.Width, 5400);
}

TEST_F(CtrModuleSelectionTest, ResponsesDoNotConcernIt)
{
    load();
    view.SetOnlineData(okResponse("anything"));
    view.SetErrorData(response(R"(name="modules" errorCode="communicationError")"));
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrModuleSelectionTest, RemembersTheMode)
{
    messenger.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_EQ(view.communicationMode(), kOnline);
}

TEST_F(CtrModuleSelectionTest, TabLeadsOutOfTheViewAtItsTwoEnds)
{
    load();
    toolkit.keysDown = {platform::kKeyTab, platform::kKeyShift};
    view.ModuleSelection.focus();
    view.ModuleSelection.blur();
    EXPECT_EQ(messenger.callsTo("TransferFocus").size(), 1U);
    toolkit.keysDown = {platform::kKeyTab};
    view.cmdSetSelection.focus();
    view.cmdSetSelection.blur();
    EXPECT_EQ(messenger.callsTo("TransferFocus").size(), 2U);
}

} // namespace
} // namespace quill::test
