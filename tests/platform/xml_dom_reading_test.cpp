// Reading documents and refusing those that are not to be trusted.

#include "xml_dom_test_support.h"

namespace quill::platform {
namespace {

// --- Reading ----------------------------------------------------------------------------------

TEST(XmlDomReading, AFreshDocumentIsEmpty)
{
    const auto document = IXMLDOMDocument::create();
    EXPECT_EQ(document.get_nodeType(), NodeType::document);
    EXPECT_EQ(document.get_nodeName(), "#document");
    EXPECT_FALSE(document.get_documentElement());
    EXPECT_FALSE(document.get_firstChild());
    EXPECT_EQ(document.get_xml(), "");
    EXPECT_EQ(document.get_text(), "");
}

TEST(XmlDomReading, EveryKindOfNodeTellsItsNameAndValue)
{
    const auto document = opened("<?xml version=\"1.0\"?><!--top--><a xmlns:comm='u' comm:k='v'>t"
                                 "<![CDATA[<c>]]><!--in--><?go on?><comm:b/></a>");
    const auto element  = document.get_documentElement();
    const auto children = element.get_childNodes();
    ASSERT_EQ(children.get_length(), 5);
    const struct {
        IXMLDOMNode node;
        NodeType    type;
        const char* name;
        const char* base;
        const char* value;
        const char* uri;
    } rows[] = {
        {document.get_firstChild(), NodeType::comment, "#comment", "", "top", ""},
        {element, NodeType::element, "a", "a", "", ""},
        {element.get_attributes().get_item(0), NodeType::attribute, "comm:k", "k", "v", "u"},
        {children.get_item(0), NodeType::text, "#text", "", "t", ""},
        {children.get_item(1), NodeType::cdata, "#cdata-section", "", "<c>", ""},
        {children.get_item(2), NodeType::comment, "#comment", "", "in", ""},
        {children.get_item(3), NodeType::processingInstruction, "go", "go", "on", ""},
        {children.get_item(4), NodeType::element, "comm:b", "b", "", "u"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.node.get_nodeType(), row.type) << row.name;
        EXPECT_EQ(row.node.get_nodeName(), row.name);
        EXPECT_EQ(row.node.get_baseName(), row.base) << row.name;
        EXPECT_EQ(row.node.get_nodeValue(), row.value) << row.name;
        EXPECT_EQ(row.node.get_namespaceURI(), row.uri) << row.name;
    }
    EXPECT_EQ(element.get_text(), "t<c>") << "comments and instructions are no text";
    EXPECT_EQ(document.get_text(), "t<c>");
}

TEST(XmlDomReading, WhiteSpaceBetweenElementsIsNoNode)
{
    const auto document = opened("<a>\r\n  <b> </b>\n <!-- c -->\n\t<b>\n</b> </a>\n");
    const auto children = document.get_documentElement().get_childNodes();
    ASSERT_EQ(children.get_length(), 3);
    EXPECT_EQ(children.get_item(0).get_text(), " ") << "it is the value of its element";
    EXPECT_EQ(children.get_item(1).get_nodeType(), NodeType::comment);
    EXPECT_EQ(children.get_item(2).get_text(), "\n");
}

TEST(XmlDomReading, WhiteSpaceInACDataSectionStays)
{
    const auto element = opened("<a> <![CDATA[ ]]> <b/></a>").get_documentElement();
    EXPECT_EQ(element.get_childNodes().get_length(), 2);
    EXPECT_EQ(element.get_text(), " ");
}

TEST(XmlDomReading, WhiteSpaceBesideACommentStaysWhereThereIsNoElement)
{
    EXPECT_EQ(opened("<a> <!--c--> </a>").get_text(), "  ");
}

TEST(XmlDomReading, TextIsNeverTrimmed)
{
    EXPECT_EQ(opened("<a>  x \n<b/> y </a>").get_text(), "  x \n y ");
}

TEST(XmlDomReading, PredefinedEntitiesAndCharacterNumbersAreReplaced)
{
    const auto element =
        opened("<a k='&amp;&lt;&#228;&quot;x'>&gt;&#x20AC;</a>").get_documentElement();
    EXPECT_EQ(attributeNode(element, "k").get_text(), "&<ä\"x");
    EXPECT_EQ(element.get_text(), ">€");
}

TEST(XmlDomReading, ATextIsUtf8WhateverItDeclares)
{
    for (const char* declared : {"UTF-16", "ISO-8859-1", "windows-1252", "no-such-thing"}) {
        const auto document =
            opened(std::string{"<?xml version='1.0' encoding='"} + declared + "'?><a>ä€</a>");
        EXPECT_EQ(document.get_text(), "ä€") << declared;
        EXPECT_EQ(document.get_xml(), "<a>ä€</a>") << declared;
    }
    EXPECT_EQ(opened("\xEF\xBB\xBF<a>ä</a>").get_text(), "ä") << "byte order mark";
}

TEST(XmlDomReading, AFileIsReadInTheEncodingItDeclares)
{
    EXPECT_EQ(openedFile("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE4</a>").get_text(), "ä");
    EXPECT_EQ(openedFile("<?xml version=\"1.0\" encoding=\"windows-1252\"?><a>\x80</a>").get_text(),
              "€");
    EXPECT_EQ(openedFile("<?xml version='1.0' encoding='utf-8'?><a>ä</a>").get_text(), "ä");
    EXPECT_EQ(openedFile("<a>ä</a>").get_text(), "ä");
    EXPECT_EQ(openedFile("\xEF\xBB\xBF<?xml version='1.0'?><a>ä</a>").get_text(), "ä");
}

TEST(XmlDomReading, AFileInUtf16IsKnownByItsByteOrderMark)
{
    const std::string text = "<?xml version='1.0' encoding='UTF-16'?><a>x</a>";
    std::string       little{"\xFF\xFE"};
    std::string       big{"\xFE\xFF"};
    for (const char c : text) {
        (little += c) += '\0';
        (big += '\0') += c;
    }
    EXPECT_EQ(openedFile(little).get_text(), "x");
    EXPECT_EQ(openedFile(big).get_text(), "x");
}

TEST(XmlDomReading, AFileThatIsNotInItsEncodingIsRefused)
{
    EXPECT_EQ(numberOf([] { openedFile("<a>\xE4</a>"); }), kInvalidCall);
    EXPECT_EQ(numberOf([] { openedFile("<?xml version='1.0' encoding='nonesuch'?><a/>"); }),
              kInvalidCall);
    EXPECT_EQ(numberOf([] { openedFile("<?xml version='1.0' encoding='US-ASCII'?><a>\xE4</a>"); }),
              kInvalidCall);
    EXPECT_EQ(numberOf([] { openedFile(""); }), kInvalidCall);
}

TEST(XmlDomReading, AMissingOrUnreadableFileHasItsOwnFailure)
{
    const TemporaryFile file{"<a/>"};
    const auto          document = opened("<before/>");
    EXPECT_EQ(numberOf([&] { document.load(file.path() + ".missing"); }), kFileNotFound);
    EXPECT_EQ(numberOf([&] { document.load(file.folder()); }), kPathAccess);
    EXPECT_EQ(document.get_xml(), "<before/>");
}

TEST(XmlDomReading, APathMayBeComposedWithBackslashes)
{
    const TemporaryFile file{"<a/>"};
    const auto          document = IXMLDOMDocument::create();
    document.load(file.folder() + "\\document.xml");
    EXPECT_EQ(document.get_xml(), "<a/>");
}

TEST(XmlDomReading, AnAmpersandInASchemaNameIsRead)
{
    const auto document = opened("<a xmlns='x?b=1&amp;c=&amp;#38;' xmlns:q='&#38;'><q:b/></a>");
    const auto a        = document.get_documentElement();
    EXPECT_EQ(a.get_namespaceURI(), "x?b=1&c=&#38;");
    EXPECT_EQ(a.get_firstChild().get_namespaceURI(), "&");
    EXPECT_EQ(reread(a), a.get_xml());
}

TEST(XmlDomReading, ASchemaNameNeedNotBeAWebAddress)
{
    EXPECT_EQ(
        opened("<a xmlns='x-schema:My Schema.xml'/>").get_documentElement().get_namespaceURI(),
        "x-schema:My Schema.xml");
}

// --- Refusing ---------------------------------------------------------------------------------

TEST(XmlDomRefusing, ATextThatIsNotWellFormedIsRefusedWithItsLine)
{
    const std::string why = refusalOf("<a>\n<b>\n</a>");
    EXPECT_TRUE(contains(why, "line 3")) << why;
    EXPECT_TRUE(contains(why, "mismatch")) << why;
    for (const char* text : {"", "  ", "x", "<a", "<a/><b/>", "<a>&nbsp;</a>", "<a b='1' b='2'/>",
                             "<p:a/>", "<a p:b=''/>", "<a>\x01</a>", "<a>&#0;</a>", "<!---->"}) {
        refusalOf(text);
    }
}

TEST(XmlDomRefusing, AFailureIsNeverPrinted)
{
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    refusalOf("<a>&nbsp;<b>");
    const auto document = opened("<a/>");
    for (const char* expression : {"foo:a", "//[", "nonesuch()", "p:nonesuch()", "$v", "1+"}) {
        EXPECT_EQ(numberOf([&] { (void)document.selectNodes(expression); }), kInvalidCall)
            << expression;
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(XmlDomRefusing, ADocumentTypeDeclarationIsRefused)
{
    for (const char* text :
         {"<!DOCTYPE a><a/>", "<!DOCTYPE a SYSTEM 'file:///etc/passwd'><a/>",
          "<!DOCTYPE a [<!ENTITY x SYSTEM 'file:///etc/passwd'>]><a>&x;</a>",
          "<!DOCTYPE a [<!ENTITY % p SYSTEM 'http://localhost:1/p'> %p;]><a/>"}) {
        const std::string why = refusalOf(text);
        EXPECT_TRUE(contains(why, "document type declaration")) << why;
    }
}

TEST(XmlDomRefusing, AnEntityBombIsRefusedBeforeItIsExpanded)
{
    std::string bomb = "<!DOCTYPE a [<!ENTITY x0 'xxxxxxxxxx'>";
    for (int i = 1; i < 30; ++i) {
        const std::string inner = "&x" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY x" + std::to_string(i) + " '" + repeated(inner, 10) + "'>";
    }
    bomb += "]><a>&x29;</a>";
    EXPECT_TRUE(contains(refusalOf(bomb), "document type declaration"));
}

TEST(XmlDomRefusing, ElementsMayBe256DeepAndNoDeeper)
{
    const auto nested = [](std::size_t depth) {
        return repeated("<a>", depth) + repeated("</a>", depth);
    };
    EXPECT_EQ(opened(nested(256)).selectNodes("//a").get_length(), 256);
    EXPECT_TRUE(contains(refusalOf(nested(257)), "deeper than 256"));
}

TEST(XmlDomRefusing, TenMegabytesOfNestedElementsAreRefusedAtOnce)
{
    const std::string text  = repeated("<a>", 10U * 1024U * 1024U / 3U);
    const auto        start = std::chrono::steady_clock::now();
    EXPECT_TRUE(contains(refusalOf(text), "deeper than 256"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds{5});
}

TEST(XmlDomRefusing, CrowdsOfAttributesAndNamespacesAreRefusedAtOnce)
{
    std::string attributes = "<!-- <a b='c' --><a";
    for (int i = 0; i < 200'000; ++i) {
        attributes += " a" + std::to_string(i) + "='>'";
    }
    std::string nested;
    for (int depth = 0; depth < 200; ++depth) {
        nested += "<a";
        for (int i = 0; i < 100; ++i) {
            nested += " xmlns:p" + std::to_string(depth) + "_" + std::to_string(i) + "='u'";
        }
        nested += '>';
    }
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(contains(refusalOf(attributes + "/>"), "more than 1000 attributes"));
    EXPECT_TRUE(contains(refusalOf(nested), "more than 256 namespaces"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds{5});
}

TEST(XmlDomRefusing, QuotesOutsideTagsDoNotCountAsAttributes)
{
    const std::string quotes = repeated("\"' ", 2000);
    const auto document = opened("<a><!--<x " + quotes + "--><![CDATA[<y " + quotes + "]]><?p <z " +
                                 quotes + "?><b k='>'>" + quotes + "</b></a>");
    EXPECT_EQ(document.selectSingleNode("/a/b").get_text(), quotes);
}

TEST(XmlDomRefusing, BytesThatAreNoUtf8AreRefused)
{
    EXPECT_TRUE(contains(refusalOf("<a>\xE4</a>"), "UTF-8"));
    EXPECT_TRUE(
        contains(refusalOf("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE4</a>"), "UTF-8"));
    refusalOf(std::string("<\0a\0/\0>\0", 8));
}

TEST(XmlDomRefusing, ATextLongerThanTheLimitIsRefused)
{
    const std::string why = refusalOf("<a>" + std::string(kMaxDocumentBytes, ' ') + "</a>");
    EXPECT_TRUE(contains(why, "longer than")) << why;
}

TEST(XmlDomRefusing, AnIdentifierAttributeIsAnAttributeLikeAnyOther)
{
    const auto  source = opened("<a><b xml:id='one'/></a>");
    const auto  target = opened("<a/>");
    IXMLDOMNode b      = source.selectSingleNode("/a/b");
    target.get_documentElement().appendChild(b);
    source.loadXML("<x xml:id='one'/>");
    EXPECT_EQ(target.get_xml(), "<a><b xml:id=\"one\"/></a>");
}

} // namespace
} // namespace quill::platform
