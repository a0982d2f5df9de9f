// Making nodes and moving them about.
#include "platform/failure.h"
#include "platform/libxml2/document_state.h"
#include "platform/utf8.h"

#include <algorithm>
#include <new>

namespace quill::platform {

namespace {

using detail::asAttribute;
using detail::DocumentState;
using detail::isAttribute;
using detail::isDocument;
using detail::isElement;
using detail::NodeRef;
using detail::reach;
using detail::refuse;
using detail::view;
using detail::xml;

template <class Node>
Node* made(Node* node)
{
    if (node == nullptr) {
        throw std::bad_alloc();
    }
    return node;
}

/// Text that no document can hold would only be refused by whoever reads the document later.
void requireText(std::string_view text)
{
    const bool hasControl = std::any_of(text.begin(), text.end(), [](char c) {
        return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r';
    });
    if (hasControl || !utf8::isValid(text) || text.find("\xEF\xBF\xBE") != std::string_view::npos ||
        text.find("\xEF\xBF\xBF") != std::string_view::npos) {
        refuse("The text has characters that an XML document cannot hold.");
    }
    if (text.size() > kMaxDocumentBytes) {
        refuse("The text is too long for an XML document.");
    }
}

/// Comments and processing instructions have ends of their own that nothing can escape.
void requireContent(const xmlNode* node, std::string_view text)
{
    requireText(text);
    if (node->type == XML_COMMENT_NODE &&
        (text.find("--") != std::string_view::npos || text.ends_with('-'))) {
        refuse("A comment cannot hold \"--\".");
    }
    if (node->type == XML_PI_NODE && text.find("?>") != std::string_view::npos) {
        refuse("A processing instruction cannot hold \"?>\".");
    }
}

struct SplitName {
    std::string prefix;
    std::string local;
};

SplitName splitName(std::string_view name)
{
    const std::string text{name};
    if (name.find('\0') != std::string_view::npos || !utf8::isValid(name) ||
        xmlValidateQName(xml(text.c_str()), 0) != 0) {
        refuse("\"" + text + "\" is not a name.");
    }
    const std::size_t colon = text.find(':');
    return colon == std::string::npos ? SplitName{"", text}
                                      : SplitName{text.substr(0, colon), text.substr(colon + 1)};
}

/// The namespace of a node to be made. A prefix without a schema name could not be read back, and
/// a declaration is no attribute.
xmlNs* namespaceFor(DocumentState& state, const SplitName& name, std::string_view namespaceURI)
{
    requireText(namespaceURI);
    const bool isXml = namespaceURI == view(XML_XML_NAMESPACE);
    if (name.prefix.empty()
            ? name.local == "xmlns" || isXml
            : namespaceURI.empty() || name.prefix == "xmlns" || (name.prefix == "xml") != isXml) {
        refuse("\"" + (name.prefix.empty() ? name.local : name.prefix + ':' + name.local) +
               "\" does not go with the namespace \"" + std::string{namespaceURI} + "\".");
    }
    return state.intern(name.prefix.empty() ? nullptr : xml(name.prefix.c_str()),
                        xml(std::string{namespaceURI}.c_str()));
}

xmlNode* makeText(xmlDoc* doc, std::string_view text)
{
    return made(xmlNewDocTextLen(doc, xml(text.data()), static_cast<int>(text.size())));
}

xmlNode* makeAttribute(xmlDoc* doc, const xmlChar* name, xmlNs* ns)
{
    xmlAttr* attribute = made(xmlNewDocProp(doc, name, nullptr));
    attribute->ns      = ns;
    return reinterpret_cast<xmlNode*>(attribute);
}

/// Makes a text all that is below a node. A text that nobody holds is written over.
void setOnlyText(DocumentState& state, xmlNode* parent, std::string_view text)
{
    xmlNode* only = parent->children;
    if (only != nullptr && only->next == nullptr && only->type == XML_TEXT_NODE &&
        only->_private == nullptr && !text.empty()) {
        xmlNodeSetContentLen(only, xml(text.data()), static_cast<int>(text.size()));
        return;
    }
    state.dropChildren(parent);
    if (!text.empty()) {
        detail::linkChild(parent, makeText(parent->doc, text));
    }
}

/// Whether a look-up by name may find something else when this node changes: an attribute that is a
/// key, or the text in one.
bool isKey(const xmlNode* node)
{
    const xmlNode* attribute = isAttribute(node) ? node : node->parent;
    if (attribute == nullptr || !isAttribute(attribute)) {
        return false;
    }
    const std::string_view name = view(attribute->name);
    return name == "name" || name == "clone";
}

/// A copy of one node without what is below it, for a document that shares the namespaces.
xmlNode* copyOne(DocumentState& state, const xmlNode* node)
{
    const auto* content = node->content;
    const auto  length  = static_cast<int>(
        isElement(node) || isAttribute(node) || isDocument(node) ? 0 : view(content).size());
    const auto ns = [&](const xmlNs* from) {
        return from != nullptr ? state.intern(from->prefix, from->href) : nullptr;
    };
    switch (node->type) {
    case XML_ELEMENT_NODE: {
        xmlNode* copy = made(xmlNewDocNode(state.doc, nullptr, node->name, nullptr));
        copy->ns      = ns(node->ns);
        if (node->nsDef != nullptr) {
            copy->nsDef = made(xmlCopyNamespaceList(node->nsDef));
        }
        return copy;
    }
    case XML_ATTRIBUTE_NODE:
        return makeAttribute(state.doc, node->name, ns(detail::namespaceOf(node)));
    case XML_TEXT_NODE: return made(xmlNewDocTextLen(state.doc, content, length));
    case XML_CDATA_SECTION_NODE: return made(xmlNewCDataBlock(state.doc, content, length));
    case XML_COMMENT_NODE: return made(xmlNewDocComment(state.doc, content));
    case XML_PI_NODE: return made(xmlNewDocPI(state.doc, node->name, content));
    default: refuse("A node of this kind cannot be copied.");
    }
}

/// Copies what is below `from` to below `to`: attributes always, child nodes if `deep`.
void copyBelow(DocumentState& state, xmlNode* from, xmlNode* to, bool deep)
{
    xmlNode* above = to;
    for (xmlNode* node = from;;) {
        // `above` is the copy of `node`, complete but for what is below it.
        if (isElement(node)) {
            for (xmlAttr* attribute = node->properties; attribute != nullptr;
                 attribute          = attribute->next) {
                auto*    original = reinterpret_cast<xmlNode*>(attribute);
                xmlNode* copy     = copyOne(state, original);
                detail::linkAttribute(above, asAttribute(copy));
                setOnlyText(state, copy, detail::textOf(original));
            }
        }
        if (deep && node->children != nullptr) {
            node = node->children;
        } else {
            while (node != from && node->next == nullptr) {
                node  = node->parent;
                above = above->parent;
            }
            if (node == from) {
                return;
            }
            node  = node->next;
            above = above->parent;
        }
        xmlNode* copy = copyOne(state, node);
        detail::linkChild(above, copy);
        above = copy;
    }
}

bool isInside(const xmlNode* node, const xmlNode* tree)
{
    while (node != nullptr && node != tree) {
        node = node->parent;
    }
    return node == tree;
}

/// Refuses what cannot stand below `parent` once `leaving` is gone.
void requireChild(const xmlNode* parent, const xmlNode* child, const xmlNode* leaving)
{
    if (!isElement(parent) && !isDocument(parent)) {
        refuse("A node of this kind has no children.");
    }
    if (isAttribute(child) || isDocument(child)) {
        refuse("A node of this kind cannot be a child.");
    }
    if (isInside(parent, child)) {
        refuse("A node cannot be put into itself.");
    }
    if (!isDocument(parent)) {
        return;
    }
    if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) {
        refuse("A document has no text of its own.");
    }
    const xmlNode* present = xmlDocGetRootElement(reinterpret_cast<const xmlDoc*>(parent));
    if (isElement(child) && present != nullptr && present != child && present != leaving) {
        refuse("A document has one element only.");
    }
}

/// Takes a node from where it is, so that it can be linked into a tree of `target`.
void fetch(DocumentState& target, xmlNode* node, DocumentState& source)
{
    const bool matters = isElement(node) || isKey(node);
    source.lift(node);
    if (matters) {
        ++source.version;
        ++target.version;
    }
    if (&source != &target) {
        target.adopt(node);
    }
}

/// Moves a node in front of `behind`, or to the end for none.
void moveIn(const NodeRef& parent, const NodeRef& moved, xmlNode* behind)
{
    // The handle goes over to the new document; this keeps the old one until all is done.
    const auto source = moved.document;
    fetch(*parent.document, moved.node, *source);
    detail::linkChild(parent.node, moved.node, behind);
    parent.document->place(moved.node);
}

void requireIsChild(const NodeRef& parent, const NodeRef& child, const char* otherwise)
{
    if (isAttribute(child.node) || child.node->parent != parent.node) {
        refuse(otherwise);
    }
}

} // namespace

void IXMLDOMNode::put_text(std::string_view text) const
{
    const NodeRef& ref = reach(mRef);
    if (!isElement(ref.node)) {
        put_nodeValue(text);
        return;
    }
    requireText(text);
    if (detail::hasChildElement(ref.node)) {
        ++ref.document->version;
    }
    setOnlyText(*ref.document, ref.node, text);
}

void IXMLDOMNode::put_nodeValue(std::string_view value) const
{
    const NodeRef& ref = reach(mRef);
    if (isElement(ref.node) || isDocument(ref.node)) {
        refuse("A node of this kind has no value.");
    }
    requireContent(ref.node, value);
    if (isAttribute(ref.node) && detail::textOf(ref.node) == value) {
        return;
    }
    if (isKey(ref.node)) {
        ++ref.document->version;
    }
    detail::noteAttributeChange(ref.node);
    if (!isAttribute(ref.node)) {
        xmlNodeSetContentLen(ref.node, xml(value.data()), static_cast<int>(value.size()));
        return;
    }
    setOnlyText(*ref.document, ref.node, value);
}

IXMLDOMNode IXMLDOMNode::appendChild(const IXMLDOMNode& child) const
{
    NodeRef& parent = reach(mRef);
    NodeRef& moved  = reach(child.ref());
    requireChild(parent.node, moved.node, nullptr);
    moveIn(parent, moved, nullptr);
    return child;
}

IXMLDOMNode IXMLDOMNode::insertBefore(const IXMLDOMNode& child, const IXMLDOMNode& before) const
{
    NodeRef& parent = reach(mRef);
    NodeRef& moved  = reach(child.ref());
    NodeRef& behind = reach(before.ref());
    requireIsChild(parent, behind, "The node to insert in front of is not a child of this node.");
    requireChild(parent.node, moved.node, nullptr);
    if (moved.node != behind.node) {
        moveIn(parent, moved, behind.node);
    }
    return child;
}

IXMLDOMNode IXMLDOMNode::replaceChild(const IXMLDOMNode& fresh, const IXMLDOMNode& old) const
{
    NodeRef& parent  = reach(mRef);
    NodeRef& moved   = reach(fresh.ref());
    NodeRef& leaving = reach(old.ref());
    requireIsChild(parent, leaving, "The node to be replaced is not a child of this node.");
    requireChild(parent.node, moved.node, leaving.node);
    if (moved.node == leaving.node) {
        return old;
    }
    DocumentState& state  = *parent.document;
    const auto     source = moved.document;
    fetch(state, moved.node, *source);
    // Looked up only now: the new node may have been the one behind the old.
    xmlNode* const behind = leaving.node->next;
    fetch(state, leaving.node, state);
    detail::linkChild(parent.node, moved.node, behind);
    state.place(moved.node);
    state.keepOrFree(leaving.node);
    return old;
}

IXMLDOMNode IXMLDOMNode::removeChild(const IXMLDOMNode& child) const
{
    NodeRef& parent  = reach(mRef);
    NodeRef& leaving = reach(child.ref());
    requireIsChild(parent, leaving, "The node to be removed is not a child of this node.");
    fetch(*parent.document, leaving.node, *parent.document);
    parent.document->keepOrFree(leaving.node);
    return child;
}

IXMLDOMNode IXMLDOMNode::cloneNode(bool deep) const
{
    const NodeRef& ref = reach(mRef);
    if (isDocument(ref.node)) {
        const auto             copy  = IXMLDOMDocument::create();
        detail::DocumentState& state = *copy.ref()->document;
        copyBelow(state, ref.node, state.root(), deep);
        for (const xmlNs* ns : ref.document->selection) {
            state.selection.push_back(state.intern(ns->prefix, ns->href));
        }
        return copy;
    }
    DocumentState& state = *ref.document;
    xmlNode*       copy  = copyOne(state, ref.node);
    IXMLDOMNode    handle{state.handle(copy)};
    if (isAttribute(copy)) {
        setOnlyText(state, copy, detail::textOf(ref.node));
    } else {
        copyBelow(state, ref.node, copy, deep);
    }
    return handle;
}

IXMLDOMNode IXMLDOMNamedNodeMap::setNamedItem(const IXMLDOMNode& attribute) const
{
    NodeRef& owner = reach(mElement.ref());
    NodeRef& added = reach(attribute.ref());
    if (!isAttribute(added.node)) {
        refuse("Only an attribute can be set.");
    }
    if (added.node->parent == owner.node) {
        return attribute;
    }
    if (added.node->parent != nullptr) {
        refuse("The attribute belongs to another element.");
    }
    DocumentState& state  = *owner.document;
    const auto     source = added.document;
    fetch(state, added.node, *source);
    xmlAttr* const fresh = asAttribute(added.node);
    xmlAttr*       old   = owner.node->properties;
    while (old != nullptr && (old->ns != fresh->ns || view(old->name) != view(fresh->name))) {
        old = old->next;
    }
    // In the place of the old one, so that a rewritten attribute does not wander to the end.
    xmlAttr* const behind = old != nullptr ? old->next : nullptr;
    if (old != nullptr) {
        state.lift(reinterpret_cast<xmlNode*>(old));
        state.keepOrFree(reinterpret_cast<xmlNode*>(old));
    }
    detail::linkAttribute(owner.node, fresh, behind);
    state.place(added.node);
    if (isKey(added.node)) {
        ++state.version;
    }
    return attribute;
}

IXMLDOMNode IXMLDOMNamedNodeMap::removeNamedItem(std::string_view name) const
{
    const IXMLDOMNode attribute = getNamedItem(name);
    if (attribute) {
        const NodeRef& leaving = *attribute.ref();
        leaving.document->lift(leaving.node);
        leaving.document->keepOrFree(leaving.node);
        if (isKey(leaving.node)) {
            ++leaving.document->version;
        }
    }
    return attribute;
}

IXMLDOMNode IXMLDOMDocument::createElement(std::string_view name) const
{
    return createNode(NodeType::element, name, "");
}

IXMLDOMNode IXMLDOMDocument::createAttribute(std::string_view name) const
{
    return createNode(NodeType::attribute, name, "");
}

IXMLDOMNode IXMLDOMDocument::createNode(NodeType type, std::string_view name,
                                        std::string_view namespaceURI) const
{
    DocumentState& state = *reach(mRef).document;
    xmlNode*       node  = nullptr;
    switch (type) {
    case NodeType::element: {
        const SplitName split = splitName(name);
        xmlNs* const    ns    = namespaceFor(state, split, namespaceURI);
        node     = made(xmlNewDocNode(state.doc, nullptr, xml(split.local.c_str()), nullptr));
        node->ns = ns;
        break;
    }
    case NodeType::attribute: {
        const SplitName split = splitName(name);
        xmlNs* const    ns    = namespaceFor(state, split, namespaceURI);
        node                  = makeAttribute(state.doc, xml(split.local.c_str()), ns);
        break;
    }
    case NodeType::text: node = makeText(state.doc, ""); break;
    case NodeType::cdata: node = made(xmlNewCDataBlock(state.doc, xml(""), 0)); break;
    case NodeType::comment: node = made(xmlNewDocComment(state.doc, xml(""))); break;
    default: refuse("A node of this kind cannot be made.");
    }
    return IXMLDOMNode{state.handle(node)};
}

} // namespace quill::platform
