// Walking, selecting and writing.

#include "xml_dom_test_support.h"

namespace quill::platform {
namespace {

// --- Empty nodes ------------------------------------------------------------------------------

TEST(XmlDomEmptyNode, EveryOperationRaises91)
{
    const IXMLDOMNode     none;
    const IXMLDOMDocument noDocument;
    const IXMLDOMNode     node = opened("<a/>").get_documentElement();
    EXPECT_FALSE(none);
    EXPECT_EQ(none, IXMLDOMNode{nullptr});
    const std::function<void()> operations[] = {
        [&] { (void)none.get_nodeType(); },
        [&] { (void)none.get_nodeName(); },
        [&] { (void)none.get_baseName(); },
        [&] { (void)none.get_namespaceURI(); },
        [&] { (void)none.selectSingleNode("."); },
        [&] { (void)none.selectNodes("."); },
        [&] { (void)none.get_text(); },
        [&] { none.put_text(""); },
        [&] { (void)none.get_nodeValue(); },
        [&] { none.put_nodeValue(""); },
        [&] { none.put_value(""); },
        [&] { (void)none.get_xml(); },
        [&] { (void)none.get_attributes(); },
        [&] { (void)none.get_childNodes(); },
        [&] { (void)none.get_parentNode(); },
        [&] { (void)none.get_firstChild(); },
        [&] { (void)none.get_nextSibling(); },
        [&] { (void)none.get_ownerDocument(); },
        [&] { none.appendChild(node); },
        [&] { node.appendChild(none); },
        [&] { none.replaceChild(node, node); },
        [&] { node.replaceChild(none, node); },
        [&] { node.replaceChild(node, none); },
        [&] { none.removeChild(node); },
        [&] { node.removeChild(none); },
        [&] { (void)none.cloneNode(true); },
        [&] { noDocument.loadXML("<a/>"); },
        [&] { noDocument.load("a"); },
        [&] { noDocument.setSelectionNamespaces({}); },
        [&] { (void)noDocument.get_documentElement(); },
        [&] { (void)noDocument.createElement("a"); },
        [&] { (void)noDocument.createAttribute("a"); },
        [&] { (void)noDocument.structureVersion(); },
        [&] { (void)noDocument.cache(); },
        [&] { (void)attributeNode(none, "a"); },
        [&] { (void)childElement(none, "", "a"); },
        [&] { visitChildElements(none, "", "a", [](const IXMLDOMNode&) {}); },
        [&] { node.get_attributes().setNamedItem(none); },
        [&] { (void)node.get_ownerDocument().get_attributes(); },
        [&] { (void)NodeMark{none}; },
    };
    int at = 0;
    for (const auto& operation : operations) {
        EXPECT_EQ(numberOf(operation), kObjectNotSet) << "operation " << at;
        ++at;
    }
}

// --- Walking ----------------------------------------------------------------------------------

TEST(XmlDomWalking, HandlesOfOneNodeAreEqual)
{
    const auto document = opened("<a><b k='v'/><b/></a>");
    const auto a        = document.get_documentElement();
    const auto b        = a.get_firstChild();
    EXPECT_EQ(b, document.selectSingleNode("/a/b"));
    EXPECT_EQ(b.get_parentNode(), a);
    EXPECT_EQ(a.get_parentNode(), document);
    EXPECT_EQ(b.get_ownerDocument(), document);
    EXPECT_FALSE(document.get_parentNode());
    EXPECT_FALSE(b == b.get_nextSibling());
    EXPECT_FALSE(b.get_nextSibling().get_nextSibling());
    EXPECT_EQ(attributeNode(b, "k"), b.selectSingleNode("./@k"));
    EXPECT_FALSE(attributeNode(b, "k").get_parentNode()) << "an element does not contain it";
    EXPECT_FALSE(attributeNode(b, "k").get_nextSibling());
}

TEST(XmlDomWalking, AListHasACursorAndPlaces)
{
    auto list = opened("<a><b/><c/></a>").selectNodes("/a/*");
    EXPECT_EQ(list.get_length(), 2);
    EXPECT_EQ(list.nextNode().get_nodeName(), "b");
    EXPECT_EQ(list.nextNode().get_nodeName(), "c");
    EXPECT_FALSE(list.nextNode());
    EXPECT_FALSE(list.nextNode());
    list.reset();
    EXPECT_EQ(list.nextNode().get_nodeName(), "b");
    EXPECT_EQ(list.get_item(1).get_nodeName(), "c");
    EXPECT_FALSE(list.get_item(2));
    EXPECT_FALSE(list.get_item(-1));
}

TEST(XmlDomWalking, TheShortWalksHeedNamespaces)
{
    const auto document =
        opened("<d:a xmlns:d='u' d:k='other' k='own'><b/><d:b i='1'/><d:b i='2'/></d:a>");
    const auto a = document.get_documentElement();
    EXPECT_EQ(attributeNode(a, "k").get_text(), "own");
    EXPECT_FALSE(attributeNode(a, "i"));
    EXPECT_EQ(attributeNode(childElement(a, "u", "b"), "i").get_text(), "1");
    const auto visited = [&](std::string_view namespaceURI) {
        std::string found;
        visitChildElements(a, namespaceURI, "b",
                           [&](const IXMLDOMNode& child) { found += child.get_xml(); });
        return found;
    };
    EXPECT_EQ(visited("u"), "<d:b xmlns:d=\"u\" i=\"1\"/><d:b xmlns:d=\"u\" i=\"2\"/>");
    EXPECT_EQ(visited(""), "<b/>");
    EXPECT_FALSE(childElement(a, "u", "c"));
    EXPECT_EQ(childElement(document, "u", "a"), a) << "also from the document";
}

TEST(XmlDomWalking, TheAttributeMapKnowsQualifiedNames)
{
    const auto map =
        opened("<a xmlns:p='u' x='1' p:x='2'/>").get_documentElement().get_attributes();
    EXPECT_EQ(map.get_length(), 2);
    EXPECT_EQ(map.getNamedItem("x").get_text(), "1");
    EXPECT_EQ(map.getNamedItem("p:x").get_text(), "2");
    EXPECT_FALSE(map.getNamedItem("y"));
    EXPECT_EQ(map.get_item(1).get_nodeName(), "p:x");
    EXPECT_FALSE(map.get_item(2));
    EXPECT_FALSE(map.get_item(-1));
}

// --- XPath ------------------------------------------------------------------------------------

TEST(XmlDomXPath, RelativeExpressionsStartAtTheNode)
{
    const auto document = opened(
        "<dtm xmlns='x-schema:QVXDatafileSchema.xml'><p name='a'/><p name='b'><q/></p></dtm>");
    EXPECT_EQ(document.selectSingleNode("./data:dtm/data:p[@name=\"b\"]/@name").get_text(), "b");
    EXPECT_EQ(document.selectSingleNode("data:dtm/data:p[starts-with(@name,'a')]/@name").get_text(),
              "a");
    const auto b = document.selectSingleNode("//data:p[@name = \"b\"]");
    EXPECT_EQ(b.selectSingleNode("./@name").get_text(), "b");
    EXPECT_EQ(b.selectSingleNode("data:q").get_nodeName(), "q");
    EXPECT_FALSE(b.selectSingleNode("./data:p"));
    EXPECT_EQ(b.selectNodes("//data:p").get_length(), 2) << "absolute: the whole document";
    EXPECT_EQ(b.selectSingleNode("/"), document);
    EXPECT_EQ(b.selectSingleNode("./@name").selectSingleNode(".."), b);
    EXPECT_FALSE(document.selectSingleNode("//p")) << "no prefix, no namespace";
}

TEST(XmlDomXPath, NodesComeInDocumentOrder)
{
    const auto document = opened("<a><b/><c/><d/><e/></a>");
    auto       list     = document.selectNodes("//d | //b | //c");
    EXPECT_EQ(list.get_item(0).get_nodeName(), "b");
    EXPECT_EQ(list.get_item(2).get_nodeName(), "d");
    EXPECT_EQ(document.selectSingleNode("//d | //b").get_nodeName(), "b");
    EXPECT_EQ(document.selectSingleNode("//e/preceding-sibling::*").get_nodeName(), "b");
    EXPECT_EQ(document.selectSingleNode("//e/ancestor-or-self::*").get_nodeName(), "a");
}

TEST(XmlDomXPath, PrefixesBelongToTheDocument)
{
    const auto first  = opened("<p:a xmlns:p='one'/>");
    const auto second = opened("<p:a xmlns:p='two'/>");
    first.setSelectionNamespaces({{"x", "one"}});
    second.setSelectionNamespaces({{"x", "two"}});
    EXPECT_TRUE(first.selectSingleNode("x:a"));
    EXPECT_TRUE(second.selectSingleNode("x:a"));
    second.setSelectionNamespaces({{"x", "one"}});
    EXPECT_FALSE(second.selectSingleNode("x:a"));
    EXPECT_TRUE(first.selectSingleNode("x:a"));
}

TEST(XmlDomXPath, AnUnknownPrefixIsAFailureThatTellsWhy)
{
    const auto    document = opened("<a/>");
    const Failure failure  = failureOf([&] { (void)document.selectSingleNode("./foo:a"); });
    EXPECT_EQ(failure.number(), kInvalidCall);
    EXPECT_TRUE(contains(failure.description(), "./foo:a")) << failure.description();
    EXPECT_TRUE(contains(failure.description(), "prefix")) << failure.description();
    EXPECT_TRUE(document.selectSingleNode("/a")) << "the next expression is not harmed";
}

TEST(XmlDomXPath, AnExpressionThatSelectsNoNodesIsAFailure)
{
    const auto document = opened("<a/>");
    for (const char* expression : {"count(//a)", "'text'", "1=1", "", " ", "@name=\"a\"b\""}) {
        EXPECT_EQ(numberOf([&] { (void)document.selectNodes(expression); }), kInvalidCall)
            << expression;
    }
    EXPECT_EQ(numberOf([&] {
                  (void)document.selectNodes(std::string_view{"a\0b", 3});
              }),
              kInvalidCall);
}

TEST(XmlDomXPath, AnExpressionThatSearchesOverAndOverIsRefused)
{
    const auto document = opened("<r>" + repeated("<a>", 200) + repeated("</a>", 200) + "</r>");
    EXPECT_EQ(document.selectNodes("//a//a").get_length(), 199);
    EXPECT_EQ(document.selectNodes("//a[@k = '////////']").get_length(), 0);
    EXPECT_THROW((void)document.selectNodes("//*//*//*//*"), Failure);
    EXPECT_THROW((void)document.selectNodes("/descendant::*/ancestor::*//*//*"), Failure);
}

TEST(XmlDomXPath, HostileExpressionsDoNotCrash)
{
    const auto document = opened("<a k='v'><b/></a>");
    for (const std::size_t times : {100U, 1000U, 10'000U, 1'000'000U}) {
        for (const char* part : {"(", "a[", "/a", "a|", "not(", "1+", "-", "./", "*/..//", "["}) {
            try {
                (void)document.selectNodes(repeated(part, times) + "a");
            } catch (const Failure& failure) {
                EXPECT_EQ(failure.number(), kInvalidCall);
            }
        }
        try {
            (void)document.selectNodes(repeated("(", times) + "a" + repeated(")", times));
            (void)document.selectNodes(repeated("a[", times) + "a" + repeated("]", times));
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), kInvalidCall);
        }
    }
    EXPECT_TRUE(document.selectSingleNode("/a/b"));
}

TEST(XmlDomXPath, NamespacesAreNoNodes)
{
    EXPECT_EQ(opened("<a xmlns:p='u'/>").selectNodes("/a/namespace::* | /a").get_length(), 1);
}

TEST(XmlDomXPath, ManyDifferentExpressionsAreAnswered)
{
    const auto document = opened("<a><b name='n7'/></a>");
    for (int i = 0; i < 1000; ++i) {
        const auto found = document.selectSingleNode("//b[@name='n" + std::to_string(i) + "']");
        EXPECT_EQ(static_cast<bool>(found), i == 7);
    }
}

TEST(XmlDomXPath, ATreeOutsideTheDocumentIsSearchedByItself)
{
    const auto document = opened("<a><b><c/></b><c/></a>");
    const auto b        = document.selectSingleNode("/a/b");
    document.get_documentElement().removeChild(b);
    EXPECT_EQ(b.selectNodes("//c").get_length(), 1);
    EXPECT_EQ(b.get_firstChild().selectSingleNode("/b"), b);
    EXPECT_FALSE(b.selectSingleNode("/"));
    EXPECT_FALSE(b.selectSingleNode(".."));
    EXPECT_FALSE(b.get_parentNode());
    EXPECT_EQ(document.selectNodes("//c").get_length(), 1);
    const auto attribute = document.createAttribute("k");
    EXPECT_EQ(attribute.selectSingleNode("."), attribute);
    for (const char* axis : {"..", "following::*", "preceding::*", "ancestor::*",
                             "following-sibling::*", "/", "//*"}) {
        EXPECT_EQ(attribute.selectNodes(axis).get_length(), 0) << axis;
    }
}

// --- Writing ----------------------------------------------------------------------------------

TEST(XmlDomWriting, ADocumentIsWrittenAsItWasRead)
{
    for (const char* text :
         {"<a/>", "<a b=\"1\" c=\"2\">x<b>y</b>z</a>",
          "<!--c--><?p i?><a><!--d--><?q?></a><!--e-->", "<a><![CDATA[<&>]]></a>",
          "<dtm xmlns=\"u\" xmlns:p=\"v\"><p:a p:k=\"1\"/><b xmlns=\"\"/></dtm>",
          "<a xml:lang=\"de\">ä€😀</a>", "<p:a xmlns:p=\"u\" xmlns:q=\"unused\"/>",
          "<a>&amp;&lt;&gt;\"'&#13;\n</a>", "<a k=\"&amp;&lt;&gt;&quot;'&#9;&#10;&#13;\"/>",
          "<a><b xmlns:p=\"u\"><p:c/></b></a>"}) {
        EXPECT_EQ(opened(text).get_xml(), text);
    }
}

TEST(XmlDomWriting, NoDeclarationInFrontAndNoLineBreakBehind)
{
    EXPECT_EQ(opened("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>\n <b/>\n</a>\n").get_xml(),
              "<a><b/></a>");
}

TEST(XmlDomWriting, ANodeDeclaresTheNamespacesItNeedsOnItsRoot)
{
    const auto document = opened("<d:a xmlns:d='u' xmlns:e='v' xmlns:unused='w'><d:b><x><e:c "
                                 "e:k='1'/><e:c/></x></d:b></d:a>");
    const auto b        = document.get_documentElement().get_firstChild();
    EXPECT_EQ(b.get_xml(), "<d:b xmlns:d=\"u\" xmlns:e=\"v\"><x><e:c e:k=\"1\"/><e:c/></x></d:b>");
    EXPECT_EQ(reread(b), b.get_xml());
    const auto inner =
        opened("<dtm xmlns='u'><item/></dtm>").get_documentElement().get_firstChild();
    EXPECT_EQ(inner.get_xml(), "<item xmlns=\"u\"/>");
}

TEST(XmlDomWriting, AttributesTextsAndCommentsHaveXmlToo)
{
    const auto document = opened("<a k='&quot;1'>x&lt;y<!--c--></a>");
    EXPECT_EQ(document.selectSingleNode("/a/@k").get_xml(), "k=\"&quot;1\"");
    EXPECT_EQ(document.selectSingleNode("/a/text()").get_xml(), "x&lt;y");
    EXPECT_EQ(document.selectSingleNode("/a/comment()").get_xml(), "<!--c-->");
}

TEST(XmlDomWriting, AnElementInNoNamespaceKeepsItsNameUnderADefaultNamespace)
{
    const auto document = opened("<dtm xmlns='u'><x/></dtm>");
    document.get_documentElement()
        .appendChild(document.createElement("item"))
        .appendChild(document.createNode(NodeType::element, "inner", "u"));
    EXPECT_EQ(document.get_xml(),
              "<dtm xmlns=\"u\"><x/><item xmlns=\"\"><inner xmlns=\"u\"/></item></dtm>");
    EXPECT_TRUE(opened(document.get_xml()).selectSingleNode("//item"));
}

TEST(XmlDomWriting, PrefixesThatClashAreKeptApart)
{
    const auto document = opened("<p:a xmlns:p='one'/>");
    const auto a        = document.get_documentElement();
    a.appendChild(document.createNode(NodeType::element, "p:b", "two"))
        .appendChild(document.createNode(NodeType::element, "p:c", "one"));
    const auto other = document.createNode(NodeType::attribute, "p:k", "three");
    other.put_value("1");
    a.get_attributes().setNamedItem(other);
    const auto bare = document.createNode(NodeType::attribute, "k", "four");
    a.get_attributes().setNamedItem(bare);
    const auto again = opened(a.get_xml()).get_documentElement();
    EXPECT_EQ(again.get_namespaceURI(), "one");
    EXPECT_EQ(again.get_firstChild().get_namespaceURI(), "two");
    EXPECT_EQ(again.get_firstChild().get_firstChild().get_namespaceURI(), "one");
    EXPECT_EQ(again.get_attributes().get_item(0).get_namespaceURI(), "three");
    EXPECT_EQ(again.get_attributes().get_item(0).get_text(), "1");
    EXPECT_EQ(again.get_attributes().get_item(1).get_namespaceURI(), "four");
    EXPECT_EQ(again.get_attributes().get_item(1).get_baseName(), "k");
}

TEST(XmlDomWriting, ADeclarationYieldsToTheNameOfItsElement)
{
    const auto source = opened("<dtm xmlns='u'/>");
    const auto target = opened("<a><b xmlns='u'/></a>");
    const auto item   = target.createElement("item");
    target.get_documentElement().replaceChild(item, target.get_documentElement().get_firstChild());
    item.appendChild(source.get_documentElement());
    EXPECT_EQ(target.get_xml(), "<a><item><dtm xmlns=\"u\"/></item></a>");
}

TEST(XmlDomWriting, AnEndOfCDataInsideCDataIsSplit)
{
    const auto document = opened("<a/>");
    const auto cdata    = document.createNode(NodeType::cdata, "", "");
    cdata.put_nodeValue("x]]>y]]>");
    document.get_documentElement().appendChild(cdata);
    EXPECT_EQ(opened(document.get_xml()).get_text(), "x]]>y]]>");
}

} // namespace
} // namespace quill::platform
