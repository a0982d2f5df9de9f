// Changing documents, and what becomes of nodes meanwhile.

#include "xml_dom_test_support.h"

namespace quill::platform {
namespace {

// --- Changing ---------------------------------------------------------------------------------

TEST(XmlDomChanging, TextOfAnElementReplacesAllBelow)
{
    const auto document = opened("<a k='v'>x<b/>y<!--c--></a>");
    const auto a        = document.get_documentElement();
    a.put_text("1 < 2 & 3");
    EXPECT_EQ(a.get_text(), "1 < 2 & 3");
    EXPECT_EQ(a.get_xml(), "<a k=\"v\">1 &lt; 2 &amp; 3</a>");
    a.put_text("&amp;");
    EXPECT_EQ(a.get_text(), "&amp;") << "a text is no markup";
    a.put_text("");
    EXPECT_EQ(a.get_xml(), "<a k=\"v\"/>");
}

TEST(XmlDomChanging, ValuesOfAttributesTextsAndComments)
{
    const auto document = opened("<a k='v'>x<!--c--></a>");
    const auto k        = document.selectSingleNode("/a/@k");
    k.put_value("&lt;ä");
    EXPECT_EQ(k.get_text(), "&lt;ä");
    document.selectSingleNode("/a/text()").put_nodeValue("y&");
    document.selectSingleNode("/a/comment()").put_text("d");
    EXPECT_EQ(document.get_xml(), "<a k=\"&amp;lt;ä\">y&amp;<!--d--></a>");
    k.put_value("");
    EXPECT_EQ(k.get_text(), "");
    EXPECT_TRUE(document.selectSingleNode("/a[@k='']"));
}

TEST(XmlDomChanging, WhatADocumentCannotHoldIsRefused)
{
    const auto document = opened("<a k='v'>x<!--c--><?p i?></a>");
    const auto a        = document.get_documentElement();
    const auto k        = attributeNode(a, "k");
    for (const std::string& text : {std::string{"\x01"}, std::string{"\xE4"}, std::string(1, '\0'),
                                    std::string{"\xEF\xBF\xBF"}}) {
        EXPECT_EQ(numberOf([&] { a.put_text(text); }), kInvalidCall);
        EXPECT_EQ(numberOf([&] { k.put_value(text); }), kInvalidCall);
    }
    EXPECT_EQ(numberOf([&] { a.put_nodeValue("x"); }), kInvalidCall);
    EXPECT_EQ(numberOf([&] { document.put_text("x"); }), kInvalidCall);
    EXPECT_EQ(numberOf([&] { document.selectSingleNode("//comment()").put_nodeValue("a--b"); }),
              kInvalidCall);
    EXPECT_EQ(numberOf([&] { document.selectSingleNode("//comment()").put_nodeValue("a-"); }),
              kInvalidCall);
    EXPECT_EQ(numberOf([&] {
                  document.selectSingleNode("//processing-instruction()").put_nodeValue("?>");
              }),
              kInvalidCall);
    EXPECT_EQ(document.get_xml(), "<a k=\"v\">x<!--c--><?p i?></a>");
}

TEST(XmlDomChanging, NamesAreChecked)
{
    const auto document = opened("<a/>");
    for (const char* name :
         {"", " ", "1a", "a b", "<a>", "a:b", ":a", "a:", "a:b:c", "xmlns", "\xE4"}) {
        EXPECT_EQ(numberOf([&] { (void)document.createElement(name); }), kInvalidCall) << name;
        EXPECT_EQ(numberOf([&] { (void)document.createAttribute(name); }), kInvalidCall) << name;
    }
    EXPECT_EQ(numberOf([&] {
                  (void)document.createElement(std::string_view{"a\0b", 3});
              }),
              kInvalidCall);
    EXPECT_EQ(numberOf([&] { (void)document.createNode(NodeType::document, "a", ""); }),
              kInvalidCall);
    EXPECT_EQ(document.createElement("größe").get_nodeName(), "größe");
}

TEST(XmlDomChanging, AMadeNodeHasItsNamespaceAndCanBeSelectedWithIt)
{
    const auto document = opened("<dtm/>");
    const auto item     = document.createNode(NodeType::element, "comm:item", kComm);
    EXPECT_EQ(item.get_ownerDocument(), document);
    EXPECT_FALSE(item.get_parentNode());
    document.get_documentElement().appendChild(item);
    EXPECT_EQ(document.selectSingleNode("/dtm/comm:item"), item);
    EXPECT_EQ(document.get_xml(),
              std::string{"<dtm xmlns:comm=\""} + kComm + "\"><comm:item/></dtm>");
}

TEST(XmlDomChanging, NeighbouringTextsStayTwoNodes)
{
    const auto document = opened("<a>x</a>");
    const auto a        = document.get_documentElement();
    const auto first    = a.get_firstChild();
    const auto second   = document.createNode(NodeType::text, "", "");
    second.put_nodeValue("y");
    a.appendChild(second);
    EXPECT_EQ(a.get_childNodes().get_length(), 2);
    EXPECT_EQ(first.get_text(), "x");
    EXPECT_EQ(first.get_nextSibling(), second);
    EXPECT_EQ(a.get_xml(), "<a>xy</a>");
}

TEST(XmlDomChanging, ChildrenMoveToTheEnd)
{
    const auto document = opened("<a><b/><c/><d/></a>");
    const auto a        = document.get_documentElement();
    EXPECT_EQ(a.appendChild(a.get_firstChild()).get_nodeName(), "b");
    EXPECT_EQ(document.get_xml(), "<a><c/><d/><b/></a>");
    a.appendChild(document.selectSingleNode("//b"));
    EXPECT_EQ(document.get_xml(), "<a><c/><d/><b/></a>");
}

TEST(XmlDomChanging, AReplacementStandsInTheSamePlace)
{
    const auto document = opened("<a><b/><c/><d/></a>");
    const auto a        = document.get_documentElement();
    const auto c        = document.selectSingleNode("//c");
    EXPECT_EQ(a.replaceChild(document.createElement("x"), c), c);
    EXPECT_EQ(document.get_xml(), "<a><b/><x/><d/></a>");
    a.replaceChild(document.selectSingleNode("//d"), document.selectSingleNode("//x"));
    EXPECT_EQ(document.get_xml(), "<a><b/><d/></a>") << "the next sibling takes the place";
    a.replaceChild(c, document.selectSingleNode("//d"));
    EXPECT_EQ(document.get_xml(), "<a><b/><c/></a>");
    a.replaceChild(document.selectSingleNode("//b"), c);
    EXPECT_EQ(document.get_xml(), "<a><b/></a>") << "the previous sibling takes the place";
    const auto b = a.get_firstChild();
    EXPECT_EQ(a.replaceChild(b, b), b);
    EXPECT_EQ(document.get_xml(), "<a><b/></a>");
}

TEST(XmlDomChanging, ATreeStaysATree)
{
    const auto                  document  = opened("<a k='v'><b><c/></b>t</a>");
    const auto                  a         = document.get_documentElement();
    const auto                  b         = a.get_firstChild();
    const auto                  c         = b.get_firstChild();
    const auto                  text      = b.get_nextSibling();
    const auto                  k         = attributeNode(a, "k");
    const std::function<void()> refused[] = {
        [&] { b.appendChild(b); },
        [&] { c.appendChild(a); },
        [&] { c.appendChild(document); },
        [&] { b.replaceChild(a, c); },
        [&] { a.replaceChild(b, c); },
        [&] { a.removeChild(c); },
        [&] { a.removeChild(k); },
        [&] { a.appendChild(k); },
        [&] { text.appendChild(b); },
        [&] { k.appendChild(text); },
        [&] { document.appendChild(text); },
        [&] { document.appendChild(b); },
        [&] { document.appendChild(document.createElement("x")); },
        [&] { a.get_attributes().setNamedItem(b); },
        [&] { b.get_attributes().setNamedItem(k); },
    };
    int at = 0;
    for (const auto& step : refused) {
        EXPECT_EQ(numberOf(step), kInvalidCall) << "step " << at;
        ++at;
    }
    EXPECT_EQ(document.get_xml(), "<a k=\"v\"><b><c/></b>t</a>");
}

TEST(XmlDomChanging, ADocumentTakesOneElement)
{
    const auto document = IXMLDOMDocument::create();
    const auto first    = document.appendChild(document.createElement("a"));
    const auto second   = document.createElement("b");
    document.appendChild(document.createNode(NodeType::comment, "", ""));
    document.replaceChild(second, first);
    EXPECT_EQ(document.get_xml(), "<b/><!---->");
    document.appendChild(second);
    EXPECT_EQ(document.get_xml(), "<!----><b/>");
    document.removeChild(second);
    document.appendChild(first);
    EXPECT_EQ(document.get_documentElement(), first);
}

TEST(XmlDomChanging, AnAttributeTakesThePlaceOfItsNamesake)
{
    const auto document = opened("<a i='1' j='2' k='3'/>");
    const auto map      = document.get_documentElement().get_attributes();
    const auto old      = map.getNamedItem("j");
    const auto fresh    = document.createAttribute("j");
    fresh.put_value("x");
    EXPECT_EQ(map.setNamedItem(fresh), fresh);
    EXPECT_EQ(document.get_xml(), "<a i=\"1\" j=\"x\" k=\"3\"/>");
    EXPECT_EQ(old.get_text(), "2");
    map.setNamedItem(fresh);
    map.setNamedItem(document.createAttribute("l"));
    EXPECT_EQ(document.get_xml(), "<a i=\"1\" j=\"x\" k=\"3\" l=\"\"/>");
    const auto first = document.createAttribute("i");
    map.setNamedItem(first);
    EXPECT_EQ(document.get_xml(), "<a i=\"\" j=\"x\" k=\"3\" l=\"\"/>");
    EXPECT_EQ(map.removeNamedItem("i"), first);
    EXPECT_FALSE(map.removeNamedItem("i"));
    EXPECT_EQ(map.removeNamedItem("l").get_nodeName(), "l");
    EXPECT_EQ(document.get_xml(), "<a j=\"x\" k=\"3\"/>");
    map.setNamedItem(old);
    EXPECT_EQ(document.get_xml(), "<a j=\"2\" k=\"3\"/>");
}

TEST(XmlDomChanging, ACopyIsIndependent)
{
    const auto document = opened(
        "<d:a xmlns:d='u'><d:b k='&amp;1'>x<![CDATA[y]]><!--c--><?p i?><c><e/></c>z</d:b></d:a>");
    const auto b    = document.get_documentElement().get_firstChild();
    const auto deep = b.cloneNode(true);
    EXPECT_EQ(deep.get_xml(), b.get_xml());
    EXPECT_EQ(deep.get_ownerDocument(), document);
    EXPECT_FALSE(deep.get_parentNode());
    attributeNode(deep, "k").put_value("2");
    EXPECT_EQ(attributeNode(b, "k").get_text(), "&1");
    EXPECT_EQ(b.cloneNode(false).get_xml(), "<d:b xmlns:d=\"u\" k=\"&amp;1\"/>");
    EXPECT_EQ(attributeNode(b, "k").cloneNode(false).get_text(), "&1");
    EXPECT_EQ(b.get_firstChild().cloneNode(true).get_text(), "x");
}

TEST(XmlDomChanging, ACopiedDocumentIsADocumentWithItsOwnPrefixes)
{
    IXMLDOMNode copy;
    {
        const auto document =
            opened("<!--c--><p:dtm xmlns:p='x-schema:QVXDatafileSchema.xml'><p:b/></p:dtm>");
        copy = document.cloneNode(true);
        EXPECT_EQ(copy.get_xml(), document.get_xml());
        EXPECT_FALSE(copy == document);
        EXPECT_EQ(document.cloneNode(false).get_xml(), "");
    }
    EXPECT_EQ(copy.get_nodeType(), NodeType::document);
    EXPECT_EQ(copy.selectSingleNode("./data:dtm/data:b").get_ownerDocument(), copy);
}

TEST(XmlDomChanging, ANodeMovesBetweenDocumentsThatKeepTheirNamesApart)
{
    auto        source = opened("<source><moved key='v'>ab<inner/></moved></source>");
    std::string crowd  = "<crowd>";
    for (int i = 0; i < 20'001; ++i) {
        crowd += "<n" + std::to_string(i) + "/>";
    }
    // So many names are left to their documents: the next one begins a dictionary of its own.
    auto       crowded = opened(crowd + "</crowd>");
    const auto target  = opened("<target/>");
    const auto moved   = source.selectSingleNode("/source/moved");
    target.get_documentElement().appendChild(moved);
    source  = {};
    crowded = {};
    EXPECT_EQ(target.get_xml(), "<target><moved key=\"v\">ab<inner/></moved></target>");
    EXPECT_EQ(moved.get_text(), "ab");
    moved.get_attributes().getNamedItem("key").put_value("w");
    EXPECT_EQ(target.selectSingleNode("/target/moved/@key").get_text(), "w");
}

// --- Lifetimes --------------------------------------------------------------------------------

TEST(XmlDomLifetime, ANodeKeepsItsDocument)
{
    const auto b = opened("<a><b/></a>").selectSingleNode("/a/b");
    EXPECT_EQ(b.get_parentNode().get_nodeName(), "a");
    EXPECT_EQ(b.get_ownerDocument().get_xml(), "<a><b/></a>");
}

TEST(XmlDomLifetime, NodesOfReplacedContentStay)
{
    const auto document = opened("<d:a xmlns:d='u'><d:b k='v'>x</d:b></d:a>");
    const auto b        = document.get_documentElement().get_firstChild();
    const auto k        = attributeNode(b, "k");
    document.loadXML("<new/>");
    EXPECT_EQ(b.get_xml(), "<d:b xmlns:d=\"u\" k=\"v\">x</d:b>");
    EXPECT_EQ(b.get_parentNode().get_nodeName(), "d:a");
    EXPECT_EQ(k.get_text(), "v");
    EXPECT_EQ(document.get_xml(), "<new/>");
    document.get_documentElement().appendChild(b);
    EXPECT_EQ(document.get_xml(), "<new xmlns:d=\"u\"><d:b k=\"v\">x</d:b></new>");
}

TEST(XmlDomLifetime, AHeldTextOutlivesItsReplacement)
{
    const auto document = opened("<a k='v'>old</a>");
    const auto a        = document.get_documentElement();
    const auto text     = a.get_firstChild();
    a.put_text("new");
    EXPECT_EQ(text.get_text(), "old");
    EXPECT_FALSE(text.get_parentNode());
    EXPECT_EQ(a.get_text(), "new");
    const auto value = attributeNode(a, "k").get_firstChild();
    attributeNode(a, "k").put_value("w");
    EXPECT_EQ(value.get_text(), "v");
    EXPECT_EQ(attributeNode(a, "k").get_text(), "w");
}

TEST(XmlDomLifetime, ARemovedTreeLivesAsLongAsAnyOfItsNodesIsHeld)
{
    IXMLDOMNode inner;
    {
        const auto document = opened("<a><b><c k='v'/></b></a>");
        inner               = document.selectSingleNode("//@k");
        const auto a        = document.get_documentElement();
        a.removeChild(a.get_firstChild());
    }
    EXPECT_EQ(inner.get_text(), "v");
    EXPECT_EQ(inner.selectSingleNode("../../c"), inner.selectSingleNode(".."));
    const auto c = inner.selectSingleNode("..");
    c.get_parentNode().removeChild(c); // the rest of the tree goes
    EXPECT_FALSE(c.get_parentNode());
    EXPECT_EQ(c.get_xml(), "<c k=\"v\"/>");
}

TEST(XmlDomLifetime, AnElementMovesBetweenDocumentsWithItsHandles)
{
    IXMLDOMNode c;
    IXMLDOMNode k;
    auto        target = opened("<x/>");
    {
        const auto source = opened("<d:a xmlns:d='u'><d:b><d:c d:k='v'/></d:b></d:a>");
        c                 = source.get_documentElement().get_firstChild().get_firstChild();
        k                 = c.get_attributes().get_item(0);
        target.get_documentElement().appendChild(source.get_documentElement().get_firstChild());
        EXPECT_EQ(source.get_xml(), "<d:a xmlns:d=\"u\"/>");
    }
    EXPECT_EQ(c.get_ownerDocument(), target);
    EXPECT_EQ(k.get_ownerDocument(), target);
    EXPECT_EQ(c.get_parentNode().get_parentNode(), target.get_documentElement());
    target = IXMLDOMDocument{};
    EXPECT_EQ(c.get_ownerDocument().get_xml(), "<x xmlns:d=\"u\"><d:b><d:c d:k=\"v\"/></d:b></x>");
    EXPECT_EQ(k.get_namespaceURI(), "u");
}

TEST(XmlDomLifetime, TheSourceSurvivesTheTargetOfAMove)
{
    const auto source = opened("<a><b/><b/></a>");
    const auto moved  = source.get_documentElement().get_firstChild();
    {
        const auto target = opened("<x><y/></x>");
        const auto x      = target.get_documentElement();
        x.replaceChild(moved, x.get_firstChild());
        EXPECT_EQ(moved.get_ownerDocument(), target);
        source.get_documentElement().appendChild(moved);
    }
    EXPECT_EQ(moved.get_ownerDocument(), source);
    EXPECT_EQ(source.get_xml(), "<a><b/><b/></a>");
}

TEST(XmlDomLifetime, AnAttributeMovesBetweenDocuments)
{
    IXMLDOMNode element;
    {
        const auto other     = opened("<o/>");
        const auto attribute = other.createNode(NodeType::attribute, "p:k", "u");
        attribute.put_value("v");
        element = opened("<a/>").get_documentElement();
        element.get_attributes().setNamedItem(attribute);
        EXPECT_EQ(attribute.get_ownerDocument(), element.get_ownerDocument());
    }
    EXPECT_EQ(element.get_xml(), "<a xmlns:p=\"u\" p:k=\"v\"/>");
}

TEST(XmlDomLifetime, MillionsOfKeystrokesTakeNoMemory)
{
    const auto document  = opened("<a k='0'><t>0</t></a>");
    const auto t         = document.selectSingleNode("/a/t");
    const auto a         = document.get_documentElement();
    const auto keystroke = [&](int i) {
        const std::string text = "a text of some length, number " + std::to_string(i);
        const IXMLDOMNode held = t.get_firstChild();
        t.put_text(text);
        attributeNode(a, "k").put_value(text);
        const auto fresh = document.createAttribute("k");
        fresh.put_value(text);
        const auto old = attributeNode(a, "k");
        a.get_attributes().setNamedItem(fresh);
        const auto element = a.appendChild(document.createElement("n"));
        a.replaceChild(element.cloneNode(true), element);
        a.removeChild(a.get_firstChild().get_nextSibling());
    };
    for (int i = 0; i < 1000; ++i) {
        keystroke(i);
    }
    const std::size_t before = residentPages();
    for (int i = 0; i < 100'000; ++i) {
        keystroke(i);
    }
#if !defined(__SANITIZE_ADDRESS__) // keeps what is freed for a while
    EXPECT_LT(residentPages(), before + 256) << "pages";
#else
    EXPECT_GT(before, 0U);
#endif
    EXPECT_EQ(t.get_text(), "a text of some length, number 99999");
    EXPECT_EQ(a.get_childNodes().get_length(), 1);
}

TEST(XmlDomLifetime, DeepTreesBuiltByTheProgramAreNoDanger)
{
    const auto  document = opened("<a/>");
    IXMLDOMNode node     = document.get_documentElement();
    for (int i = 0; i < 5000; ++i) {
        node = node.appendChild(document.createElement("a"));
    }
    EXPECT_EQ(document.get_xml().size(), 5000U * 7U + 4U);
    EXPECT_EQ(document.get_documentElement().cloneNode(true).get_xml(), document.get_xml());
    EXPECT_EQ(document.selectNodes("//a").get_length(), 5001);
    const auto other = opened("<b/>");
    other.get_documentElement().appendChild(document.get_documentElement());
    EXPECT_EQ(node.get_ownerDocument(), other);
}

// --- The ground of cached look-ups ------------------------------------------------------------

TEST(XmlDomStructure, TheVersionGrowsWithElementsAndKeysOnly)
{
    const auto document = opened("<a name='n' clone='0' k='v'><b>x</b><t>y</t></a>");
    const auto a        = document.get_documentElement();
    const auto b        = a.get_firstChild();
    const auto grows    = [&](const std::function<void()>& step) {
        const auto before = document.structureVersion();
        step();
        return document.structureVersion() > before;
    };
    EXPECT_FALSE(grows([&] { b.put_text("z"); }));
    EXPECT_FALSE(grows([&] { b.get_firstChild().put_nodeValue("w"); }));
    EXPECT_FALSE(grows([&] { attributeNode(a, "k").put_value("w"); }));
    EXPECT_FALSE(grows([&] { a.get_attributes().setNamedItem(document.createAttribute("l")); }));
    EXPECT_FALSE(grows([&] { a.get_attributes().removeNamedItem("l"); }));
    EXPECT_FALSE(grows([&] { a.get_attributes().removeNamedItem("missing"); }));
    EXPECT_FALSE(grows([&] { (void)a.cloneNode(true); }));
    EXPECT_FALSE(grows([&] { b.appendChild(document.createNode(NodeType::text, "", "")); }));

    EXPECT_TRUE(grows([&] { attributeNode(a, "name").put_value("m"); }));
    EXPECT_TRUE(grows([&] { attributeNode(a, "clone").put_text("1"); }));
    EXPECT_TRUE(grows([&] { a.get_attributes().setNamedItem(document.createAttribute("name")); }));
    EXPECT_TRUE(grows([&] { a.get_attributes().removeNamedItem("clone"); }));
    EXPECT_TRUE(grows([&] { a.appendChild(document.createElement("c")); }));
    EXPECT_TRUE(grows([&] { a.replaceChild(document.createElement("d"), b); }));
    EXPECT_TRUE(grows([&] { a.removeChild(a.get_firstChild()); }));
    EXPECT_TRUE(grows([&] { a.put_text("no elements left"); }));
    EXPECT_TRUE(grows([&] { document.loadXML("<a><b/></a>"); }));

    const auto other   = opened("<o/>");
    const auto version = other.structureVersion();
    EXPECT_TRUE(
        grows([&] { other.get_documentElement().appendChild(document.selectSingleNode("/a/b")); }));
    EXPECT_GT(other.structureVersion(), version);
}

TEST(XmlDomStructure, TheCacheDiesWithItsDocument)
{
    std::weak_ptr<void> watched;
    {
        const auto document = opened("<a><b/></a>");
        EXPECT_EQ(document.cache(), nullptr);
        document.cache() = std::make_shared<NodeMark>(document.selectSingleNode("/a/b"));
        watched          = document.cache();
        EXPECT_EQ(document.get_documentElement().get_ownerDocument().cache(), document.cache());
        EXPECT_EQ(document.nodeAt(*std::static_pointer_cast<NodeMark>(document.cache())),
                  document.selectSingleNode("/a/b"));
        EXPECT_FALSE(document.nodeAt({}));
    }
    EXPECT_TRUE(watched.expired());
}

} // namespace
} // namespace quill::platform
