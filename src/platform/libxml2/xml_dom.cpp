// What can be asked of a node.
#include "platform/xml_dom.h"

#include "platform/failure.h"
#include "platform/libxml2/document_state.h"

namespace quill::platform {

using detail::isAttribute;
using detail::isDocument;
using detail::isElement;
using detail::NodeRef;
using detail::reach;
using detail::view;

namespace {

/// Another node of the same document.
IXMLDOMNode sibling(const NodeRef& ref, xmlNode* node)
{
    return IXMLDOMNode{ref.document->handle(node)};
}

xmlNode* elementBehind(const IXMLDOMNode& node)
{
    xmlNode* element = reach(node.ref()).node;
    if (!isElement(element)) {
        detail::refuseEmpty();
    }
    return element;
}

/// The first node below an element or a document.
xmlNode* firstBelow(const IXMLDOMNode& parent)
{
    return isDocument(reach(parent.ref()).node) ? parent.ref()->node->children
                                                : elementBehind(parent)->children;
}

bool hasName(const xmlNode* node, std::string_view namespaceURI, std::string_view name)
{
    return isElement(node) && view(node->name) == name &&
           view(node->ns != nullptr ? node->ns->href : nullptr) == namespaceURI;
}

} // namespace

NodeType IXMLDOMNode::get_nodeType() const
{
    switch (reach(mRef).node->type) {
    case XML_ELEMENT_NODE: return NodeType::element;
    case XML_ATTRIBUTE_NODE: return NodeType::attribute;
    case XML_TEXT_NODE: return NodeType::text;
    case XML_CDATA_SECTION_NODE: return NodeType::cdata;
    case XML_COMMENT_NODE: return NodeType::comment;
    case XML_DOCUMENT_NODE: return NodeType::document;
    case XML_PI_NODE: return NodeType::processingInstruction;
    default: return NodeType::other;
    }
}

std::string IXMLDOMNode::get_nodeName() const
{
    switch (get_nodeType()) {
    case NodeType::text: return "#text";
    case NodeType::cdata: return "#cdata-section";
    case NodeType::comment: return "#comment";
    case NodeType::document: return "#document";
    default: return detail::qualifiedName(mRef->node);
    }
}

std::string IXMLDOMNode::get_baseName() const
{
    switch (get_nodeType()) {
    case NodeType::element:
    case NodeType::attribute:
    case NodeType::processingInstruction: return std::string{view(mRef->node->name)};
    default: return {};
    }
}

std::string IXMLDOMNode::get_namespaceURI() const
{
    const xmlNs* ns = detail::namespaceOf(reach(mRef).node);
    return ns != nullptr ? std::string{view(ns->href)} : std::string{};
}

std::string IXMLDOMNode::get_text() const
{
    return detail::textOf(reach(mRef).node);
}

std::string IXMLDOMNode::get_nodeValue() const
{
    xmlNode* node = reach(mRef).node;
    return isElement(node) || isDocument(node) ? std::string{} : detail::textOf(node);
}

std::string IXMLDOMNode::get_xml() const
{
    return detail::writeXml(reach(mRef).node);
}

IXMLDOMNamedNodeMap IXMLDOMNode::get_attributes() const
{
    elementBehind(*this);
    return IXMLDOMNamedNodeMap{*this};
}

IXMLDOMNodeList IXMLDOMNode::get_childNodes() const
{
    const NodeRef&           ref = reach(mRef);
    std::vector<IXMLDOMNode> nodes;
    for (xmlNode* child = ref.node->children; child != nullptr; child = child->next) {
        nodes.push_back(sibling(ref, child));
    }
    return IXMLDOMNodeList{std::move(nodes)};
}

IXMLDOMNode IXMLDOMNode::get_parentNode() const
{
    const NodeRef& ref = reach(mRef);
    return isAttribute(ref.node) ? IXMLDOMNode{} : sibling(ref, ref.node->parent);
}

IXMLDOMNode IXMLDOMNode::get_firstChild() const
{
    const NodeRef& ref = reach(mRef);
    return sibling(ref, ref.node->children);
}

IXMLDOMNode IXMLDOMNode::get_nextSibling() const
{
    const NodeRef& ref = reach(mRef);
    return isAttribute(ref.node) ? IXMLDOMNode{} : sibling(ref, ref.node->next);
}

IXMLDOMDocument IXMLDOMNode::get_ownerDocument() const
{
    auto& document = *reach(mRef).document;
    return IXMLDOMDocument{document.handle(document.root())};
}

NodeMark::NodeMark(const IXMLDOMNode& element) : mNode(elementBehind(element)) {}

IXMLDOMNode IXMLDOMNodeList::get_item(long index) const
{
    return index >= 0 && index < get_length() ? mNodes[static_cast<std::size_t>(index)]
                                              : IXMLDOMNode{};
}

IXMLDOMNode IXMLDOMNodeList::nextNode()
{
    return mNext < get_length() ? get_item(mNext++) : IXMLDOMNode{};
}

IXMLDOMNode IXMLDOMNamedNodeMap::getNamedItem(std::string_view name) const
{
    xmlNode* element = elementBehind(mElement);
    for (xmlAttr* attribute = element->properties; attribute != nullptr;
         attribute          = attribute->next) {
        auto* node = reinterpret_cast<xmlNode*>(attribute);
        if (attribute->ns == nullptr ? view(attribute->name) == name
                                     : detail::qualifiedName(node) == name) {
            return sibling(*mElement.ref(), node);
        }
    }
    return {};
}

long IXMLDOMNamedNodeMap::get_length() const
{
    long length = 0;
    for (const xmlAttr* attribute = elementBehind(mElement)->properties; attribute != nullptr;
         attribute                = attribute->next) {
        ++length;
    }
    return length;
}

IXMLDOMNode IXMLDOMNamedNodeMap::get_item(long index) const
{
    xmlAttr* attribute = elementBehind(mElement)->properties;
    if (index < 0) {
        return {};
    }
    for (; attribute != nullptr && index > 0; --index) {
        attribute = attribute->next;
    }
    return sibling(*mElement.ref(), reinterpret_cast<xmlNode*>(attribute));
}

IXMLDOMNode IXMLDOMDocument::get_documentElement() const
{
    const NodeRef& ref = reach(mRef);
    return sibling(ref, xmlDocGetRootElement(ref.document->doc));
}

std::size_t IXMLDOMDocument::structureVersion() const
{
    return reach(mRef).document->version;
}

std::shared_ptr<void>& IXMLDOMDocument::cache() const
{
    return reach(mRef).document->cache;
}

IXMLDOMNode IXMLDOMDocument::nodeAt(NodeMark mark) const
{
    return sibling(reach(mRef), static_cast<xmlNode*>(mark.mNode));
}

IXMLDOMNode attributeNode(const IXMLDOMNode& element, std::string_view name)
{
    for (xmlAttr* attribute = elementBehind(element)->properties; attribute != nullptr;
         attribute          = attribute->next) {
        if (attribute->ns == nullptr && view(attribute->name) == name) {
            return sibling(*element.ref(), reinterpret_cast<xmlNode*>(attribute));
        }
    }
    return {};
}

std::size_t attributesVersion(const IXMLDOMNode& element)
{
    return reach(element.ref()).attributesVersion;
}

bool isAttributeOf(const IXMLDOMNode& attribute, const IXMLDOMNode& element) noexcept
{
    return attribute && element && detail::isAttribute(attribute.ref()->node) &&
           attribute.ref()->node->parent == element.ref()->node;
}

IXMLDOMNode childElement(const IXMLDOMNode& element, std::string_view namespaceURI,
                         std::string_view name)
{
    for (xmlNode* child = firstBelow(element); child != nullptr; child = child->next) {
        if (hasName(child, namespaceURI, name)) {
            return sibling(*element.ref(), child);
        }
    }
    return {};
}

void visitChildElements(const IXMLDOMNode& element, std::string_view namespaceURI,
                        std::string_view name, const std::function<void(const IXMLDOMNode&)>& visit)
{
    for (xmlNode* child = firstBelow(element); child != nullptr; child = child->next) {
        if (hasName(child, namespaceURI, name)) {
            visit(sibling(*element.ref(), child));
        }
    }
}

} // namespace quill::platform
