#include "framework/documents.h"

#include "framework/name_table.h"
#include "framework/prefix_table.h"
#include "platform/failure.h"
#include "platform/utf8.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

namespace quill::documents {

using platform::attributeNode;
using platform::NodeMark;
using platform::NodeType;

namespace {

const platform::SelectionNamespaces kPrefixes{{"data", kDatafileSchema},
                                              {"typeInfo", kTypeInfoSchema},
                                              {"comm", kCommunicationSchema},
                                              {"param", kParameterSchema},
                                              {"fdt", kFDTSchema}};

// --- The index --------------------------------------------------------------------------------

/// Where elements stand that are looked up by their `name`: the path to them is `root` and `rest`,
/// all of one namespace.
struct Place {
    std::size_t      slot; ///< the place's table in the index
    std::string_view root;
    std::string_view rest;
};

constexpr Place kParameters{0, "./data:dtm", "/data:persistentData/data:parameters/data:parameter"};
constexpr Place kMappedParams{1, "./data:dtm", "/data:mappedParams/data:mappedParam"};
constexpr Place kRequestGroups{2, "./data:dtm", "/data:requestGroups/data:requestGroup"};
constexpr Place kListings{3, "./data:dtm",
                          "/data:requestGroups/data:requestGroup/data:includedParam"};
constexpr Place kItems{4, "comm:dtm", "/comm:communicationResponse/comm:item"};

constexpr std::size_t kPlaces = 5;

/// The named elements of one place, in document order.
struct Table {
    NameTable             names;
    std::vector<NodeMark> elements;
};

/// The elements of one place in document order, and their names by how they begin. An element
/// without a name stands there with an empty one, as in `starts-with`.
struct ByPrefix {
    std::vector<NodeMark> elements;
    PrefixTable           names;
};

/// What a document carries in its cache. Each table is made when it is first asked for.
struct Index {
    explicit Index(std::size_t structureVersion) : version(structureVersion) {}

    std::size_t                               version;
    std::array<std::optional<Table>, kPlaces> tables;
    std::optional<ByPrefix>                   itemsByPrefix;
};

using Visit = std::function<void(const IXMLDOMNode&)>;

/// Visits what a path selects from here; all its steps are of the namespace of `parent`.
void visitBelow(const IXMLDOMNode& parent, std::string_view path, const Visit& visit)
{
    const auto             colon = path.find(':');
    const auto             end   = std::min(path.find('/', colon), path.size());
    const std::string_view name  = path.substr(colon + 1, end - colon - 1);
    const std::string_view rest  = path.substr(end);
    platform::visitChildElements(parent, parent.get_namespaceURI(), name,
                                 [&](const IXMLDOMNode& child) {
                                     if (rest.empty()) {
                                         visit(child);
                                     } else {
                                         visitBelow(child, rest, visit);
                                     }
                                 });
}

/// Visits the elements of a place in document order, each with its attribute `name`, if any.
template <class F>
void visitElements(const IXMLDOMDocument& document, const Place& place, F&& visit)
{
    // The root is selected by its expression, so that the document's own prefixes decide what the
    // namespace is and a missing one fails as it does in the whole expression.
    for (const IXMLDOMNode& root : document.selectNodes(place.root)) {
        visitBelow(root, place.rest, [&](const IXMLDOMNode& element) {
            visit(element, attributeNode(element, "name"));
        });
    }
}

Table makeTable(const IXMLDOMDocument& document, const Place& place)
{
    Table table;
    visitElements(document, place, [&](const IXMLDOMNode& element, const IXMLDOMNode& name) {
        if (name) {
            table.names.add(name.get_text());
            table.elements.emplace_back(element);
        }
    });
    return table;
}

ByPrefix makePrefixTable(const IXMLDOMDocument& document, const Place& place)
{
    std::vector<NodeMark> elements;
    TextList              names;
    visitElements(document, place, [&](const IXMLDOMNode& element, const IXMLDOMNode& name) {
        elements.emplace_back(element);
        names.add(name ? name.get_text() : std::string{});
    });
    return {std::move(elements), PrefixTable{std::move(names)}};
}

Index& indexOf(const IXMLDOMDocument& document)
{
    auto& cache = document.cache();
    auto* index = static_cast<Index*>(cache.get());
    if (index == nullptr || index->version != document.structureVersion()) {
        const auto fresh = std::make_shared<Index>(document.structureVersion());
        cache            = fresh;
        index            = fresh.get();
    }
    return *index;
}

const Table& tableOf(const IXMLDOMDocument& document, const Place& place)
{
    auto& table = indexOf(document).tables[place.slot];
    if (!table) {
        table = makeTable(document, place);
    }
    return *table;
}

/// Whether a name can stand between quotes in an expression. One that cannot is left to the
/// expression, which then fails or says something else.
bool isQuotable(std::string_view name, char quote = '"')
{
    return std::none_of(name.begin(), name.end(), [quote](char c) {
        return c == quote ||
               (static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r');
    });
}

/// The first `most` elements that the place's path with `[@name="NAME"]` selects.
std::vector<IXMLDOMNode> find(const IXMLDOMNode& from, const Place& place, const std::string& name,
                              std::size_t most = std::numeric_limits<std::size_t>::max())
{
    std::vector<IXMLDOMNode> found;
    if (from.get_nodeType() != NodeType::document || !isQuotable(name)) {
        std::string expression{place.root};
        expression.append(place.rest).append("[@name=\"").append(name).append("\"]");
        for (const IXMLDOMNode& node : from.selectNodes(expression)) {
            if (found.size() == most) {
                break;
            }
            found.push_back(node);
        }
        return found;
    }
    const IXMLDOMDocument document{from.ref()};
    const Table&          table = tableOf(document, place);
    for (auto at = table.names.find(name); at != NameTable::kNone && found.size() < most;
         at      = table.names.next(at)) {
        found.push_back(document.nodeAt(table.elements[at]));
    }
    return found;
}

/// The expression for the elements of a place whose name begins with a prefix.
std::string byPrefix(const Place& place, const std::string& prefix)
{
    std::string expression{place.root};
    return expression.append(place.rest)
        .append("[starts-with(@name,'")
        .append(prefix)
        .append("')]");
}

IXMLDOMNode findFirst(const IXMLDOMNode& from, const Place& place, const std::string& name)
{
    const auto found = find(from, place, name, 1);
    return found.empty() ? IXMLDOMNode{} : found.front();
}

/// Whether a text is surely a name without a prefix; a name beyond ASCII is left to the expression.
bool isPlainName(std::string_view text)
{
    const auto isLetter = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
    };
    const auto isInner = [&](char c) {
        return isLetter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
    };
    return !text.empty() && isLetter(text.front()) &&
           std::all_of(text.begin(), text.end(), isInner);
}

} // namespace

// --- Opening ----------------------------------------------------------------------------------

IXMLDOMDocument openText(std::string_view xml)
{
    const IXMLDOMDocument document = IXMLDOMDocument::create();
    document.loadXML(xml);
    document.setSelectionNamespaces(kPrefixes);
    return document;
}

IXMLDOMDocument openFile(const std::string& path)
{
    const IXMLDOMDocument document = IXMLDOMDocument::create();
    document.load(path);
    document.setSelectionNamespaces(kPrefixes);
    return document;
}

IXMLDOMDocument openEmptyRequest()
{
    const IXMLDOMDocument document = IXMLDOMDocument::create();
    document.loadXML(R"(<?xml version="1.0"?><dtm></dtm>)");
    return document;
}

// --- The datafile -----------------------------------------------------------------------------

IXMLDOMNode findParameter(const IXMLDOMNode& datafile, const std::string& name)
{
    return findFirst(datafile, kParameters, name);
}

IXMLDOMNodeList findParametersByPrefix(const IXMLDOMNode& datafile, const std::string& prefix)
{
    return datafile.selectNodes(byPrefix(kParameters, prefix));
}

IXMLDOMNode findMappedParam(const IXMLDOMNode& datafile, const std::string& name)
{
    return findFirst(datafile, kMappedParams, name);
}

IXMLDOMNode findRequestGroup(const IXMLDOMNode& datafile, const std::string& name)
{
    return findFirst(datafile, kRequestGroups, name);
}

IXMLDOMNode findLastUpdate(const IXMLDOMNode& datafile, const std::string& group)
{
    for (const IXMLDOMNode& node : find(datafile, kRequestGroups, group)) {
        if (const IXMLDOMNode lastUpdate = attributeNode(node, "lastUpdate")) {
            return lastUpdate;
        }
    }
    return {};
}

std::string homeRequestGroup(const IXMLDOMNode& datafile, const std::string& name)
{
    const auto listings = find(datafile, kListings, name);
    for (const IXMLDOMNode& listing : listings) {
        const IXMLDOMNode clone = attributeNode(listing, "clone");
        // An only listing is the real one, whatever it says.
        if (listings.size() == 1 || !clone || clone.get_text() == "0") {
            return attributeText(listing.get_parentNode(), "name");
        }
    }
    return {};
}

// --- Responses --------------------------------------------------------------------------------

IXMLDOMNode findItem(const IXMLDOMNode& response, const std::string& name)
{
    return findFirst(response, kItems, name);
}

IXMLDOMNode findItemByPrefix(const IXMLDOMNode& response, const std::string& prefix)
{
    // An expression compares characters, so half of one is left to it as well.
    if (response.get_nodeType() != NodeType::document || !isQuotable(prefix, '\'') ||
        !platform::utf8::isValid(prefix)) {
        return response.selectSingleNode(byPrefix(kItems, prefix));
    }
    const IXMLDOMDocument document{response.ref()};
    auto&                 items = indexOf(document).itemsByPrefix;
    if (!items) {
        items = makePrefixTable(document, kItems);
    }
    const auto place = items->names.first(prefix);
    return place ? document.nodeAt(items->elements[*place]) : IXMLDOMNode{};
}

IXMLDOMNodeList findItemsByPrefix(const IXMLDOMNode& response, const std::string& prefix)
{
    return response.selectNodes(byPrefix(kItems, prefix));
}

std::string responseAttribute(const IXMLDOMNode& response, const std::string& name)
{
    return response.selectSingleNode("comm:dtm/comm:communicationResponse/@" + name).get_text();
}

IXMLDOMNodeList errorItems(const IXMLDOMNode& response)
{
    return response.selectNodes("//comm:item[@name!=\"testStatus\"]");
}

// --- The node in hand -------------------------------------------------------------------------

std::string attributeText(const IXMLDOMNode& node, const std::string& name)
{
    return attributeNode(node, name).get_text();
}

std::string itemValue(const IXMLDOMNode& item, const std::string& type)
{
    const bool isElement = item.get_nodeType() == NodeType::element;
    return (isElement && isPlainName(type)
                ? platform::childElement(item, kCommunicationSchema, type)
                : item.selectSingleNode("./comm:" + type))
        .get_text();
}

/// Forgets what is known of the attributes if it is another parameter or somebody has changed one.
void ParameterWriter::look(const IXMLDOMNode& parameter)
{
    const std::size_t version = platform::attributesVersion(parameter);
    if (!(mParameter == parameter) || version != mVersion) {
        mParameter   = parameter;
        mVersion     = version;
        mIsUnitKnown = false;
        mIsMarked    = false;
    }
}

void ParameterWriter::writeValue(const IXMLDOMNode& parameter, const std::string& value)
{
    look(parameter);
    if (platform::isAttributeOf(mValue, parameter)) {
        mValue.put_value(value);
    } else {
        writeAttribute(parameter, "value", value);
        mValue = attributeNode(parameter, "value");
    }
    mVersion = platform::attributesVersion(parameter);
}

void ParameterWriter::writeUnit(const IXMLDOMNode& parameter, const std::string& unit)
{
    look(parameter);
    if (!mIsUnitKnown || mUnit != unit) {
        writeAttribute(parameter, "unit", unit);
        mUnit        = unit;
        mIsUnitKnown = true;
        mVersion     = platform::attributesVersion(parameter);
    }
}

void ParameterWriter::markOutOfStep(const IXMLDOMNode& parameter)
{
    look(parameter);
    if (!mIsMarked) {
        writeAttribute(parameter, "synchronised", "0");
        mIsMarked = true;
        mVersion  = platform::attributesVersion(parameter);
    }
}

void writeAttribute(const IXMLDOMNode& node, const std::string& name, const std::string& value)
{
    if (const IXMLDOMNode present = attributeNode(node, name)) {
        present.put_value(value);
        return;
    }
    const IXMLDOMNode added = node.get_ownerDocument().createAttribute(name);
    added.put_value(value);
    node.get_attributes().setNamedItem(added);
}

// --- Items ------------------------------------------------------------------------------------

IXMLDOMDocument itemDocument(const std::string& name, const std::string& unit,
                             const std::string& type, const std::string& value)
{
    const IXMLDOMDocument document = IXMLDOMDocument::create();
    const IXMLDOMNode     item     = document.appendChild(document.createElement("item"));
    writeAttribute(item, "name", name);
    item.appendChild(document.createElement(type)).put_text(value);
    writeAttribute(item, "unit", unit);
    return document;
}

} // namespace quill::documents
