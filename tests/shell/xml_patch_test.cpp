#include "shell/xml_patch.h"

#include <gtest/gtest.h>

namespace quill::shell {
namespace {

std::string patched(const std::string& xml, const std::vector<std::string_view>& path,
                    std::size_t index, const char* attribute, const char* value,
                    bool asciiOnly = false)
{
    const auto places = findElements(xml, path);
    XmlPatch   patch{xml, asciiOnly};
    patch.set(places.at(index), attribute, value);
    return patch.text();
}

TEST(XmlPatch, ChangesOneValueAndLeavesTheRestAlone)
{
    EXPECT_EQ(patched("<?xml version='1.0'?>\r\n<a>\t<p  v = '1'\n w=\"2\" /></a>\n", {"a", "p"}, 0,
                      "v", "9"),
              "<?xml version='1.0'?>\r\n<a>\t<p  v = '9'\n w=\"2\" /></a>\n");
}

TEST(XmlPatch, FindsElementsAtTheirPathOnly)
{
    const std::string xml    = "<a><p v='0'/><b><p v='1'/><c><p v='2'/></c><p v='3'>x</p></b>"
                               "<!-- <b><p v='4'/></b> --><b><![CDATA[<p v='5'/>]]><x:p v='6'/></b>"
                               "<?php <b><p/></b> ?></a>";
    const auto        places = findElements(xml, {"a", "b", "p"});
    ASSERT_EQ(places.size(), 3U);
    EXPECT_EQ(xml[places[0].attributes[0].begin], '1');
    EXPECT_EQ(xml[places[1].attributes[0].begin], '3');
    EXPECT_EQ(xml[places[2].attributes[0].begin], '6');
}

TEST(XmlPatch, AnElementOfTheRightNameOnTheWrongPathIsNone)
{
    EXPECT_TRUE(findElements("<x><b><p v='1'/></b></x>", {"a", "b", "p"}).empty());
    EXPECT_TRUE(findElements("<a><c><b><p v='1'/></b></c></a>", {"a", "b", "p"}).empty());
}

TEST(XmlPatch, AGreaterSignInAValueEndsNothing)
{
    EXPECT_EQ(patched("<a><p w='>/>' v='1'/></a>", {"a", "p"}, 0, "v", "2"),
              "<a><p w='>/>' v='2'/></a>");
}

TEST(XmlPatch, AMissingAttributeComesBehindTheOthers)
{
    EXPECT_EQ(patched("<a><p v='1' /></a>", {"a", "p"}, 0, "u", "bar"),
              "<a><p v='1' u=\"bar\" /></a>");
    EXPECT_EQ(patched("<a><p></p></a>", {"a", "p"}, 0, "u", "bar"), "<a><p u=\"bar\"></p></a>");
}

TEST(XmlPatch, EscapesWhatAValueCannotHold)
{
    EXPECT_EQ(patched("<a><p v='1'/></a>", {"a", "p"}, 0, "v", "<&'\"\n\xc3\xa4"),
              "<a><p v='&lt;&amp;&#39;&#34;&#10;\xc3\xa4'/></a>");
    EXPECT_EQ(patched("<a><p v='1'/></a>", {"a", "p"}, 0, "v", "\xc3\xa4\xe2\x82\xac", true),
              "<a><p v='&#228;&#8364;'/></a>");
}

TEST(XmlPatch, TakesSeveralChangesInAnyOrder)
{
    const std::string xml    = "<a><p v='1' w='2'/><p v='3'/></a>";
    const auto        places = findElements(xml, {"a", "p"});
    XmlPatch          patch{xml, false};
    EXPECT_TRUE(patch.isEmpty());
    patch.set(places[1], "v", "three");
    patch.set(places[0], "w", "two");
    patch.set(places[0], "x", "new");
    EXPECT_FALSE(patch.isEmpty());
    EXPECT_EQ(patch.text(), "<a><p v='1' w='two' x=\"new\"/><p v='three'/></a>");
}

} // namespace
} // namespace quill::shell
