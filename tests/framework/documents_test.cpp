#include "framework/documents.h"

#include "support/failure_of.h"
#include "support/test_documents.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

namespace quill {
namespace {

using documents::IXMLDOMDocument;
using documents::IXMLDOMNode;
using platform::NodeType;
using test::failureOf;

constexpr const char* kListingPath =
    "./data:dtm/data:requestGroups/data:requestGroup/data:includedParam";

std::string named(const char* path, const std::string& name)
{
    return std::string{path} + "[@name=\"" + name + "\"]";
}

std::string mark(const IXMLDOMNode& node)
{
    return node ? documents::attributeText(node, "mark") : "nothing";
}

// --- Opening ----------------------------------------------------------------------------------

TEST(Documents, AnOpenedTextKnowsAllPrefixes)
{
    const auto document = documents::openText("<dtm/>");
    for (const char* prefix : {"data", "typeInfo", "comm", "param", "fdt"}) {
        EXPECT_NO_THROW((void)document.selectNodes(std::string{"//"} + prefix + ":x")) << prefix;
    }
}

TEST(Documents, ARefusedTextIsAFailureWithItsReason)
{
    for (const char* text : {"", "no xml", "<dtm>", "<a/><b/>", "<!DOCTYPE dtm><dtm/>"}) {
        try {
            (void)documents::openText(text);
            ADD_FAILURE() << text;
        } catch (const platform::Failure& failure) {
            EXPECT_EQ(failure.number(), platform::kInvalidCall);
            EXPECT_FALSE(failure.description().empty());
        }
    }
}

TEST(Documents, AFileIsOpenedByAPathWithEitherSeparator)
{
    namespace fs      = std::filesystem;
    const auto folder = fs::temp_directory_path() / "quill-documents-test";
    fs::create_directories(folder);
    std::ofstream{folder / "file.xml"} << "<data:dtm xmlns:data=\"" << documents::kDatafileSchema
                                       << "\"/>";
    for (const char* separator : {"/", "\\"}) {
        const auto document = documents::openFile(folder.string() + separator + "file.xml");
        EXPECT_TRUE(document.selectSingleNode("data:dtm"));
    }
    EXPECT_EQ(failureOf([&] { (void)documents::openFile((folder / "none.xml").string()); }),
              platform::kFileNotFound);
    fs::remove_all(folder);
}

TEST(Documents, AnEmptyRequestHasItsRootOnly)
{
    const auto request = documents::openEmptyRequest();
    EXPECT_EQ(request.get_documentElement().get_xml(), "<dtm/>");
    EXPECT_TRUE(request.selectSingleNode("//dtm"));
}

// --- Looking up by name -----------------------------------------------------------------------

TEST(Documents, APartOfTheDatafileIsFoundByItsName)
{
    const auto datafile =
        test::datafile(R"(<data:parameter name="p" mark="1"/><data:parameter name="q" mark="2"/>)",
                       R"(<data:mappedParam name="p" mark="3"/>)",
                       R"(<data:requestGroup name="p" mark="4" lastUpdate="now">
                           <data:includedParam name="q"/></data:requestGroup>)");
    EXPECT_EQ(mark(documents::findParameter(datafile, "p")), "1");
    EXPECT_EQ(mark(documents::findParameter(datafile, "q")), "2");
    EXPECT_EQ(mark(documents::findMappedParam(datafile, "p")), "3");
    EXPECT_EQ(mark(documents::findRequestGroup(datafile, "p")), "4");
    EXPECT_EQ(documents::findLastUpdate(datafile, "p").get_text(), "now");
    EXPECT_EQ(documents::homeRequestGroup(datafile, "q"), "p");
    for (const char* name : {"", "P", "p ", "x", "'"}) {
        EXPECT_FALSE(documents::findParameter(datafile, name)) << name;
        EXPECT_FALSE(documents::findLastUpdate(datafile, name)) << name;
    }
}

TEST(Documents, TheFirstOfEqualNamesIsFound)
{
    const auto datafile = test::datafile(
        R"(<data:parameter name="b" mark="1"/><data:parameter name="a" mark="2"/>
           <data:parameter name="b" mark="3"/><data:parameter name="a" mark="4"/>)");
    EXPECT_EQ(mark(documents::findParameter(datafile, "a")), "2");
    EXPECT_EQ(mark(documents::findParameter(datafile, "b")), "1");
}

TEST(Documents, TheLastUpdateIsThatOfTheFirstGroupThatHasOne)
{
    const auto datafile =
        test::datafile("", "",
                       R"(<data:requestGroup name="g"/><data:requestGroup name="g" lastUpdate="2"/>
                          <data:requestGroup name="g" lastUpdate="3"/>)");
    EXPECT_EQ(documents::findLastUpdate(datafile, "g").get_text(), "2");
}

TEST(Documents, ANameThatCannotBeQuotedFailsAsItsExpressionDoes)
{
    const auto datafile = test::datafile(R"(<data:parameter name="a&quot;b"/>)");
    const auto response = test::okResponse("r");
    EXPECT_EQ(failureOf([&] { (void)documents::findParameter(datafile, "a\"b"); }),
              platform::kInvalidCall);
    EXPECT_EQ(failureOf([&] { (void)documents::homeRequestGroup(datafile, "a\"b"); }),
              platform::kInvalidCall);
    EXPECT_EQ(failureOf([&] { (void)documents::findItem(response, "\x01"); }),
              platform::kInvalidCall);
    EXPECT_EQ(failureOf([&] { (void)documents::findItem(response, std::string("a\0b", 3)); }),
              platform::kInvalidCall);
}

TEST(Documents, ALookUpInNothingFails)
{
    EXPECT_EQ(failureOf([] { (void)documents::findParameter({}, "p"); }), platform::kObjectNotSet);
    EXPECT_EQ(failureOf([] { (void)documents::findItem({}, "p"); }), platform::kObjectNotSet);
    EXPECT_EQ(failureOf([] { (void)documents::homeRequestGroup({}, "p"); }),
              platform::kObjectNotSet);
}

TEST(Documents, ALookUpFromAnElementAnswersWhatTheExpressionSelectsThere)
{
    const auto datafile = test::datafile(R"(<data:parameter name="p"/>)");
    EXPECT_FALSE(documents::findParameter(datafile.get_documentElement(), "p"));

    const auto nested = documents::openText(
        std::string{"<outer xmlns:data=\""} + documents::kDatafileSchema +
        R"("><data:dtm><data:persistentData><data:parameters><data:parameter name="p" mark="1"/>)" +
        "</data:parameters></data:persistentData></data:dtm></outer>");
    EXPECT_EQ(mark(documents::findParameter(nested.get_documentElement(), "p")), "1");
    EXPECT_FALSE(documents::findParameter(nested, "p"));
}

TEST(Documents, ThePrefixesOfTheDocumentDecideWhatIsFound)
{
    const auto document = IXMLDOMDocument::create();
    document.loadXML(R"(<dtm xmlns="urn:other"><persistentData><parameters><parameter name="p"/>)"
                     "</parameters></persistentData></dtm>");
    EXPECT_EQ(failureOf([&] { (void)documents::findParameter(document, "p"); }),
              platform::kInvalidCall);
    document.setSelectionNamespaces({{"data", documents::kDatafileSchema}});
    EXPECT_FALSE(documents::findParameter(document, "p"));
    document.setSelectionNamespaces({{"data", "urn:other"}});
    EXPECT_TRUE(documents::findParameter(document, "p"));
}

TEST(Documents, AnIndexStandsUntilTheStructureChanges)
{
    const auto datafile = test::datafile(R"(<data:parameter name="p" value="1"/>)");
    const auto p        = documents::findParameter(datafile, "p");
    const auto index    = datafile.cache();
    ASSERT_TRUE(index);
    documents::writeAttribute(p, "value", "2");
    documents::writeAttribute(p, "synchronised", "0");
    EXPECT_EQ(documents::findParameter(datafile, "p"), p);
    EXPECT_EQ(datafile.cache(), index) << "an edit of a value must not cost a walk";

    documents::writeAttribute(p, "name", "q");
    EXPECT_FALSE(documents::findParameter(datafile, "p"));
    EXPECT_EQ(documents::findParameter(datafile, "q"), p);
    EXPECT_NE(datafile.cache(), index);
}

TEST(Documents, AnIndexDiesWithItsDocument)
{
    std::weak_ptr<void> index;
    IXMLDOMNode         p;
    {
        const auto datafile = test::datafile(R"(<data:parameter name="p"/>)");
        p                   = documents::findParameter(datafile, "p");
        index               = datafile.cache();
    }
    EXPECT_FALSE(index.expired()) << "a node in hand keeps its document";
    p = {};
    EXPECT_TRUE(index.expired());
}

TEST(Documents, ARemovedParameterIsFoundNoMoreButStaysUsable)
{
    const auto datafile = test::datafile(R"(<data:parameter name="p" mark="1"/>)");
    const auto p        = documents::findParameter(datafile, "p");
    p.get_parentNode().removeChild(p);
    EXPECT_FALSE(documents::findParameter(datafile, "p"));
    EXPECT_EQ(mark(p), "1");
}

TEST(Documents, ADocumentThatIsReadAnewIsIndexedAnew)
{
    const auto datafile = test::datafile(R"(<data:parameter name="p" mark="1"/>)");
    EXPECT_EQ(mark(documents::findParameter(datafile, "p")), "1");
    const std::string other = test::datafile(R"(<data:parameter name="p" mark="2"/>)").get_xml();
    datafile.loadXML(other);
    EXPECT_EQ(mark(documents::findParameter(datafile, "p")), "2");
}

// --- The home request group -------------------------------------------------------------------

TEST(Documents, TheHomeGroupIsThatOfTheOnlyOrTheFirstRealListing)
{
    // The clone of the listing in each of the groups "0", "1", ...; "-" for none, " " for a group
    // that does not list the parameter.
    struct Case {
        std::vector<std::string> clones;
        const char*              home;
    };
    for (const Case& c :
         {Case{{}, ""}, Case{{" ", " "}, ""}, Case{{"-"}, "0"}, Case{{"0"}, "0"}, Case{{"1"}, "0"},
          Case{{" ", "1"}, "1"}, Case{{"1", "1"}, ""}, Case{{"1", "-"}, "1"}, Case{{"1", "0"}, "1"},
          Case{{"1", "0", "-"}, "1"}, Case{{"1", "-", "0"}, "1"},
          Case{{"", "00", "false", "0"}, "3"}, Case{{"-", "-"}, "0"}}) {
        std::string groups;
        for (std::size_t i = 0; i < c.clones.size(); ++i) {
            const std::string& clone = c.clones[i];
            groups += "<data:requestGroup name=\"" + std::to_string(i) + "\">";
            groups += R"(<data:includedParam name="other"/>)";
            if (clone != " ") {
                groups += R"(<data:includedParam name="p")" +
                          (clone == "-" ? "" : " clone=\"" + clone + "\"") + "/>";
            }
            groups += "</data:requestGroup>";
        }
        EXPECT_EQ(documents::homeRequestGroup(test::datafile("", "", groups), "p"), c.home)
            << groups;
    }
}

TEST(Documents, TwoListingsInOneGroupAreTwoListings)
{
    const auto datafile =
        test::datafile("", "",
                       R"(<data:requestGroup name="g"><data:includedParam name="p" clone="1"/>
            <data:includedParam name="p" clone="1"/></data:requestGroup>)");
    EXPECT_EQ(documents::homeRequestGroup(datafile, "p"), "");
}

TEST(Documents, AChangedCloneChangesTheHomeGroup)
{
    const auto datafile =
        test::datafile("", "",
                       R"(<data:requestGroup name="one"><data:includedParam name="p" clone="1"/>
            </data:requestGroup><data:requestGroup name="two"><data:includedParam name="p"/>
            </data:requestGroup>)");
    EXPECT_EQ(documents::homeRequestGroup(datafile, "p"), "two");
    documents::writeAttribute(datafile.selectSingleNode(named(kListingPath, "p")), "clone", "0");
    EXPECT_EQ(documents::homeRequestGroup(datafile, "p"), "one");
}

TEST(Documents, AHomeGroupWithoutANameFails)
{
    const auto datafile = test::datafile(
        "", "", R"(<data:requestGroup><data:includedParam name="p"/></data:requestGroup>)");
    EXPECT_EQ(failureOf([&] { (void)documents::homeRequestGroup(datafile, "p"); }),
              platform::kObjectNotSet);
}

// --- Responses --------------------------------------------------------------------------------

TEST(Documents, TheHeaderOfAResponseIsRead)
{
    const auto response = test::okResponse("group", test::item("a", "bar", "floatVal", "1.5"));
    EXPECT_EQ(documents::responseAttribute(response, "name"), "group");
    EXPECT_EQ(documents::responseAttribute(response, "responseStatus"), "ok");
    EXPECT_EQ(documents::responseAttribute(response, "errorCode"), "");
    EXPECT_EQ(failureOf([&] { (void)documents::responseAttribute(response, "missing"); }),
              platform::kObjectNotSet);
    EXPECT_EQ(failureOf([] { (void)documents::responseAttribute({}, "name"); }),
              platform::kObjectNotSet);
}

TEST(Documents, TheHeaderIsThatOfTheFirstResponseThatHasTheAttribute)
{
    const auto response = documents::openText(
        std::string{"<dtm xmlns=\""} + documents::kCommunicationSchema +
        R"("><communicationResponse name="1"/><communicationResponse name="2" isFinal="1"/></dtm>)");
    EXPECT_EQ(documents::responseAttribute(response, "name"), "1");
    EXPECT_EQ(documents::responseAttribute(response, "isFinal"), "1");
}

TEST(Documents, TheErrorItemsLeaveOutTheTestStatus)
{
    const auto response = test::okResponse(
        "group", test::item("a", "", "stringVal", "") + test::item("testStatus", "", "x", "") +
                     "<comm:item/>" + test::item("b", "", "stringVal", ""));
    const auto items = documents::errorItems(response);
    ASSERT_EQ(items.get_length(), 2);
    EXPECT_EQ(documents::attributeText(items.get_item(0), "name"), "a");
    EXPECT_EQ(documents::attributeText(items.get_item(1), "name"), "b");
}

// --- The node in hand -------------------------------------------------------------------------

TEST(Documents, AnAttributeIsReadAsItStands)
{
    const auto datafile =
        test::datafile(R"(<data:parameter name="p" value=" 1 " unit="" data:decimals="2"/>)");
    const auto p = documents::findParameter(datafile, "p");
    EXPECT_EQ(documents::attributeText(p, "value"), " 1 ");
    EXPECT_EQ(documents::attributeText(p, "unit"), "");
    for (const char* missing : {"decimals", "Value", ""}) {
        EXPECT_EQ(failureOf([&] { (void)documents::attributeText(p, missing); }),
                  platform::kObjectNotSet)
            << missing;
    }
    EXPECT_EQ(failureOf([] { (void)documents::attributeText({}, "value"); }),
              platform::kObjectNotSet);
    EXPECT_EQ(failureOf([&] { (void)documents::attributeText(datafile, "value"); }),
              platform::kObjectNotSet);
}

TEST(Documents, TheValueOfAnItemIsTheElementOfItsType)
{
    const auto response = test::okResponse(
        "r", "<comm:item name=\"a\"><floatVal>0</floatVal><comm:stringVal>x</comm:stringVal>"
             "<comm:floatVal> 1.5 </comm:floatVal><comm:floatVal>2</comm:floatVal>"
             "<comm:dateVal/></comm:item>");
    const auto item = documents::findItem(response, "a");
    EXPECT_EQ(documents::itemValue(item, "floatVal"), " 1.5 ");
    EXPECT_EQ(documents::itemValue(item, "stringVal"), "x");
    EXPECT_EQ(documents::itemValue(item, "dateVal"), "");
    EXPECT_EQ(failureOf([&] { (void)documents::itemValue(item, "integerVal"); }),
              platform::kObjectNotSet);
    EXPECT_EQ(failureOf([] { (void)documents::itemValue({}, "floatVal"); }),
              platform::kObjectNotSet);
    EXPECT_EQ(failureOf([&] { (void)documents::itemValue(response, "floatVal"); }),
              platform::kObjectNotSet);
}

TEST(Documents, ATypeThatIsNoNameFailsAsItsExpressionDoes)
{
    const auto response = test::okResponse("r", test::item("a", "", "floatVal", "1"));
    const auto item     = documents::findItem(response, "a");
    for (const char* type : {"", "1x", "a b", "x:y", "text()", "-"}) {
        EXPECT_EQ(failureOf([&] { (void)documents::itemValue(item, type); }),
                  platform::kInvalidCall)
            << type;
    }
    EXPECT_EQ(documents::itemValue(item, "*"), "1");
}

TEST(Documents, AnAttributeIsWrittenInItsPlaceOrAdded)
{
    const auto document = documents::openText(R"(<p a="1" b="2" c="3"/>)");
    const auto p        = document.get_documentElement();
    documents::writeAttribute(p, "b", "<&\"");
    documents::writeAttribute(p, "d", "");
    EXPECT_EQ(p.get_xml(), R"(<p a="1" b="&lt;&amp;&quot;" c="3" d=""/>)");
    EXPECT_EQ(failureOf([] { documents::writeAttribute({}, "a", "1"); }), platform::kObjectNotSet);
    EXPECT_EQ(failureOf([&] { documents::writeAttribute(p, "no name", "1"); }),
              platform::kInvalidCall);
}

// --- Items ------------------------------------------------------------------------------------

TEST(Documents, AnItemIsASmallDocument)
{
    const auto document = documents::itemDocument("travel", "%", "floatVal", "4.5");
    EXPECT_EQ(document.get_nodeType(), NodeType::document);
    EXPECT_EQ(document.selectSingleNode("//item").get_xml(),
              R"(<item name="travel" unit="%"><floatVal>4.5</floatVal></item>)");
    EXPECT_EQ(
        documents::itemDocument("a", "noUnit", "stringVal", "").get_documentElement().get_xml(),
        R"(<item name="a" unit="noUnit"><stringVal/></item>)");
    EXPECT_EQ(documents::itemDocument("a", "", "stringVal", "<x> & y")
                  .selectSingleNode("//stringVal")
                  .get_text(),
              "<x> & y");
}

TEST(Documents, AnItemOfATypeThatIsNoNameFails)
{
    for (const char* type : {"", "1x", "a b", "x:y"}) {
        EXPECT_EQ(failureOf([&] { (void)documents::itemDocument("a", "", type, ""); }),
                  platform::kInvalidCall)
            << type;
    }
}

} // namespace
} // namespace quill
