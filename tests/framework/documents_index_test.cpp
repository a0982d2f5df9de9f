#include "framework/documents.h"

#include "platform/failure.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

// The look-ups of `documents` against the expressions that they stand for.
namespace quill {
namespace {

using documents::IXMLDOMDocument;
using documents::IXMLDOMNode;
using platform::NodeType;

constexpr const char* kParameterPath =
    "./data:dtm/data:persistentData/data:parameters/data:parameter";
constexpr const char* kMappedParamPath  = "./data:dtm/data:mappedParams/data:mappedParam";
constexpr const char* kRequestGroupPath = "./data:dtm/data:requestGroups/data:requestGroup";
constexpr const char* kListingPath =
    "./data:dtm/data:requestGroups/data:requestGroup/data:includedParam";
constexpr const char* kItemPath = "comm:dtm/comm:communicationResponse/comm:item";

std::string named(const char* path, const std::string& name)
{
    return std::string{path} + "[@name=\"" + name + "\"]";
}

/// Random documents whose elements carry the right names at right and wrong places.
class RandomDocument {
public:
    explicit RandomDocument(unsigned seed) : mRandom(seed) {}

    std::size_t below(std::size_t end) { return mRandom() % end; }

    std::string name()
    {
        static const std::vector<std::string> names{"a", "b", "c", "", "a b", "\xC3\xA4", "a'b"};
        return names[below(names.size())];
    }

    static const std::set<std::string>& names()
    {
        static const std::set<std::string> all{"a", "b", "c", "", "a b", "\xC3\xA4", "a'b", "none"};
        return all;
    }

    std::string element(int depth, const std::vector<std::string>& tags)
    {
        // Mostly the tag that belongs at this depth, so that many paths lead all the way down.
        const std::string tag =
            below(10) < 8 ? tags[below(tags.size())] : "data:" + mAny[below(mAny.size())];
        std::string text = "<" + tag;
        if (below(10) < 8) {
            text += " name=\"" + name() + "\"";
        }
        if (below(10) == 0) {
            text += " data:name=\"a\"";
        }
        if (below(2) == 0) {
            text += std::string{" clone=\""} + (below(2) == 0 ? "0" : "1") + "\"";
        }
        if (below(3) == 0) {
            text += " lastUpdate=\"" + std::to_string(below(1000)) + "\"";
        }
        text += ">";
        if (below(10) == 0) {
            text += "<!-- between -->";
        }
        if (depth < 4) {
            for (auto children = below(5); children > 0; --children) {
                text += element(depth + 1, inside(tag));
            }
        }
        return text + "</" + tag + ">";
    }

    IXMLDOMDocument datafile()
    {
        std::string content;
        for (auto parts = 2 + below(6); parts > 0; --parts) {
            content += element(1, inside("data:dtm"));
        }
        const std::string root = below(20) == 0 ? "data:other" : "data:dtm";
        return documents::openText("<" + root + " xmlns:data=\"" + documents::kDatafileSchema +
                                   "\" xmlns:o=\"urn:other\">" + content + "</" + root + ">");
    }

    IXMLDOMDocument response()
    {
        std::string content;
        for (auto parts = 1 + below(4); parts > 0; --parts) {
            content += element(1, {"comm:communicationResponse", "comm:item"});
        }
        return documents::openText(std::string{"<comm:dtm xmlns:comm=\""} +
                                   documents::kCommunicationSchema + "\" xmlns:data=\"" +
                                   documents::kDatafileSchema + "\" xmlns:o=\"urn:other\">" +
                                   content + "</comm:dtm>");
    }

    /// Changes something through the document model.
    void edit(const IXMLDOMDocument& document)
    {
        const auto all  = document.selectNodes("/*/descendant::*");
        const auto root = document.get_documentElement();
        const auto pick = [&] {
            return all.get_length() == 0 ? root
                                         : all.get_item(static_cast<long>(
                                               below(static_cast<std::size_t>(all.get_length()))));
        };
        const IXMLDOMNode node = pick();
        const IXMLDOMNode key  = node.get_attributes().getNamedItem("name");
        switch (below(11)) {
        case 0: documents::writeAttribute(node, "name", name()); break;
        case 1: node.get_attributes().removeNamedItem("name"); break;
        case 2:
            if (key) {
                key.put_text(name());
            }
            break;
        case 3:
            if (key && key.get_firstChild()) {
                key.get_firstChild().put_nodeValue(name());
            }
            break;
        case 10:
            if (key && key.get_firstChild()) {
                key.removeChild(key.get_firstChild());
            }
            break;
        case 4: documents::writeAttribute(node, "clone", below(2) == 0 ? "0" : "1"); break;
        case 5: node.get_attributes().removeNamedItem("clone"); break;
        case 6:
            if (node != root) {
                node.get_parentNode().removeChild(node);
            }
            break;
        case 7:
            node.get_parentNode().get_nodeType() == NodeType::element
                ? (void)node.get_parentNode().appendChild(node.cloneNode(true))
                : node.put_text("");
            break;
        case 8:
            if (node != root) {
                const auto copy = pick().cloneNode(true);
                node.get_parentNode().replaceChild(copy, node);
            }
            break;
        default:
            if (below(10) == 0) {
                node.put_text("text");
            } else {
                documents::writeAttribute(node, "value", "1");
            }
        }
    }

private:
    static std::vector<std::string> inside(const std::string& tag)
    {
        if (tag == "data:dtm") {
            return {"data:persistentData", "data:mappedParams", "data:requestGroups"};
        }
        if (tag == "data:persistentData") {
            return {"data:parameters", "data:parameter"};
        }
        if (tag == "data:parameters") {
            return {"data:parameter", "o:parameter", "parameter"};
        }
        if (tag == "data:mappedParams") {
            return {"data:mappedParam"};
        }
        if (tag == "data:requestGroups") {
            return {"data:requestGroup"};
        }
        if (tag == "data:requestGroup") {
            return {"data:includedParam", "data:includedParam", "o:includedParam"};
        }
        if (tag == "comm:communicationResponse") {
            return {"comm:item", "comm:item", "item", "data:item"};
        }
        return {"data:parameter", "data:includedParam"};
    }

    std::mt19937             mRandom;
    std::vector<std::string> mAny{"parameters", "parameter",     "mappedParam", "requestGroup",
                                  "dtm",        "includedParam", "item"};
};

/// The home group's rule, straight on the expression.
std::string homeGroupByExpression(const IXMLDOMDocument& datafile, const std::string& name)
{
    const auto listings = datafile.selectNodes(named(kListingPath, name));
    const auto group    = [](const IXMLDOMNode& listing) {
        const auto text = listing.get_parentNode().selectSingleNode("./@name");
        return text ? text.get_text() : "failure 91";
    };
    if (listings.get_length() == 1) {
        return group(listings.get_item(0));
    }
    for (const IXMLDOMNode& listing : listings) {
        const auto clone = listing.selectSingleNode("./@clone");
        if (!clone || clone.get_text() == "0") {
            return group(listing);
        }
    }
    return {};
}

std::string homeGroup(const IXMLDOMDocument& datafile, const std::string& name)
{
    try {
        return documents::homeRequestGroup(datafile, name);
    } catch (const platform::Failure& failure) {
        return "failure " + std::to_string(failure.number());
    }
}

TEST(DocumentsIndex, TheIndexOfADatafileAnswersWhatTheExpressionsSelect)
{
    std::size_t found = 0;
    for (unsigned seed = 0; seed < 60; ++seed) {
        RandomDocument        random{seed};
        const IXMLDOMDocument datafile = random.datafile();
        for (int edits = 0; edits < 30; ++edits) {
            for (const std::string& name : RandomDocument::names()) {
                SCOPED_TRACE("seed " + std::to_string(seed) + ", edit " + std::to_string(edits) +
                             ", name \"" + name + "\"");
                const auto expect = [&](const IXMLDOMNode& node, const std::string& expression) {
                    ASSERT_EQ(node, datafile.selectSingleNode(expression)) << expression;
                    found += node ? 1U : 0U;
                };
                expect(documents::findParameter(datafile, name), named(kParameterPath, name));
                expect(documents::findMappedParam(datafile, name), named(kMappedParamPath, name));
                expect(documents::findRequestGroup(datafile, name), named(kRequestGroupPath, name));
                expect(documents::findLastUpdate(datafile, name),
                       named(kRequestGroupPath, name) + "/@lastUpdate");
                ASSERT_EQ(homeGroup(datafile, name), homeGroupByExpression(datafile, name));
            }
            random.edit(datafile);
        }
    }
    EXPECT_GT(found, 3000U) << "the documents must hold something to find";
}

TEST(DocumentsIndex, TheIndexOfAResponseAnswersWhatTheExpressionSelects)
{
    std::size_t found = 0;
    for (unsigned seed = 0; seed < 60; ++seed) {
        RandomDocument        random{seed};
        const IXMLDOMDocument response = random.response();
        for (int edits = 0; edits < 20; ++edits) {
            for (const std::string& name : RandomDocument::names()) {
                const auto node = documents::findItem(response, name);
                ASSERT_EQ(node, response.selectSingleNode(named(kItemPath, name)))
                    << "seed " << seed << ", edit " << edits << ", name \"" << name << "\"";
                found += node ? 1U : 0U;
            }
            random.edit(response);
        }
    }
    EXPECT_GT(found, 500U) << "the documents must hold something to find";
}

// --- By the beginning of a name ---------------------------------------------------------------

std::string beginning(const char* path, const std::string& prefix)
{
    return std::string{path} + "[starts-with(@name,'" + prefix + "')]";
}

/// Names that begin with one another, at right and wrong places.
IXMLDOMDocument responseOfBeginnings(std::mt19937& random)
{
    static const std::vector<std::string> names{"a",  "ab",  "abc", "abd", "b",   "",
                                                "bc", "a b", "ä",   "äb",  "a\"b"};
    std::string                           content;
    for (auto responses = 1 + random() % 3; responses > 0; --responses) {
        content += "<comm:communicationResponse>";
        for (auto items = random() % 8; items > 0; --items) {
            static const std::vector<std::string> tags{"comm:item", "comm:item", "comm:item",
                                                       "item", "comm:other"};
            const std::string&                    tag  = tags[random() % tags.size()];
            std::string                           name = names[random() % names.size()];
            if (const auto quote = name.find('"'); quote != std::string::npos) {
                name.replace(quote, 1, "&quot;");
            }
            content += "<" + tag;
            content += random() % 6 == 0 ? "" : " name=\"" + name + "\"";
            content += random() % 6 == 0 ? "><comm:item name=\"ab\"/></" + tag + ">" : "/>";
        }
        content += "</comm:communicationResponse>";
    }
    return documents::openText(std::string{"<comm:dtm xmlns:comm=\""} +
                               documents::kCommunicationSchema + "\">" + content + "</comm:dtm>");
}

TEST(DocumentsIndex, TheFirstItemByItsBeginningIsWhatTheExpressionSelects)
{
    const std::vector<std::string> prefixes{"a", "ab", "abc", "abcd", "b",
                                            "",  "c",  "a ",  "ä",    "a\""};
    std::mt19937                   random{3};
    std::size_t                    found = 0;
    for (int round = 0; round < 300; ++round) {
        const auto response = responseOfBeginnings(random);
        for (int edits = 0; edits < 3; ++edits) {
            for (const std::string& prefix : prefixes) {
                const auto node = documents::findItemByPrefix(response, prefix);
                ASSERT_EQ(node, response.selectSingleNode(beginning(kItemPath, prefix)))
                    << "round " << round << ", \"" << prefix << "\"";
                found += node ? 1U : 0U;
            }
            const auto items = response.selectNodes("//comm:item");
            if (items.get_length() > 0) {
                const auto item = items.get_item(
                    static_cast<long>(random() % static_cast<std::size_t>(items.get_length())));
                if (random() % 2 == 0) {
                    documents::writeAttribute(item, "name", random() % 2 == 0 ? "abd" : "b");
                } else {
                    item.get_parentNode().removeChild(item);
                }
            }
        }
    }
    EXPECT_GT(found, 2000U) << "the documents must hold something to find";
}

TEST(DocumentsIndex, RandomResponsesAnswerByBeginningToo)
{
    for (unsigned seed = 0; seed < 60; ++seed) {
        RandomDocument        random{seed};
        const IXMLDOMDocument response = random.response();
        for (int edits = 0; edits < 20; ++edits) {
            for (const std::string prefix : {"a", "b", "", "a ", "none"}) {
                ASSERT_EQ(documents::findItemByPrefix(response, prefix),
                          response.selectSingleNode(beginning(kItemPath, prefix)))
                    << "seed " << seed << ", edit " << edits << ", \"" << prefix << "\"";
            }
            random.edit(response);
        }
    }
}

TEST(DocumentsIndex, APrefixThatBreaksItsExpressionFailsAsItDoesThere)
{
    std::mt19937 random{1};
    const auto   response = responseOfBeginnings(random);
    for (const std::string prefix : {"it's", "'", "\x01"}) {
        const auto number = [&](const auto& search) {
            try {
                (void)search();
                return 0;
            } catch (const platform::Failure& failure) {
                return failure.number();
            }
        };
        const int expected =
            number([&] { return response.selectSingleNode(beginning(kItemPath, prefix)); });
        EXPECT_EQ(number([&] { return documents::findItemByPrefix(response, prefix); }), expected);
    }
    EXPECT_THROW((void)documents::findItemByPrefix(response, "it's"), platform::Failure);
    EXPECT_THROW((void)documents::findItemByPrefix({}, "a"), platform::Failure);
}

TEST(DocumentsIndex, FromAnotherNodeTheBeginningIsSearchedFromThere)
{
    const auto response = documents::openText(
        std::string{"<comm:dtm xmlns:comm=\""} + documents::kCommunicationSchema +
        "\"><comm:dtm><comm:communicationResponse><comm:item name=\"abc\"/>"
        "</comm:communicationResponse></comm:dtm></comm:dtm>");
    EXPECT_FALSE(documents::findItemByPrefix(response, "a"));
    EXPECT_TRUE(documents::findItemByPrefix(response.get_documentElement(), "a"));
}

TEST(DocumentsIndex, AllParametersAndItemsOfABeginningComeInOrder)
{
    const auto datafile = documents::openText(
        std::string{"<data:dtm xmlns:data=\""} + documents::kDatafileSchema +
        "\"><data:persistentData><data:parameters><data:parameter name=\"mask2\"/>"
        "<data:parameter name=\"xmask\"/><data:parameter name=\"mask1\"/></data:parameters>"
        "<data:parameter name=\"mask3\"/></data:persistentData></data:dtm>");
    const auto parameters = documents::findParametersByPrefix(datafile, "mask");
    ASSERT_EQ(parameters.get_length(), 2);
    EXPECT_EQ(documents::attributeText(parameters.get_item(0), "name"), "mask2");
    EXPECT_EQ(documents::attributeText(parameters.get_item(1), "name"), "mask1");
    EXPECT_THROW((void)documents::findParametersByPrefix(datafile, "'"), platform::Failure);

    const auto response = documents::openText(
        std::string{"<comm:dtm xmlns:comm=\""} + documents::kCommunicationSchema +
        "\"><comm:communicationResponse><comm:item name=\"b\"/><comm:item name=\"ab\"/>"
        "<comm:item name=\"a\"/></comm:communicationResponse></comm:dtm>");
    const auto items = documents::findItemsByPrefix(response, "a");
    ASSERT_EQ(items.get_length(), 2);
    EXPECT_EQ(documents::attributeText(items.get_item(0), "name"), "ab");
}

} // namespace
} // namespace quill
