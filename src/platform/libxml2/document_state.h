#pragma once

#include "platform/xml_dom.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <libxml/tree.h>

/// What stands behind the handles of xml_dom.h. One `DocumentState` owns a libxml2 document and
/// every tree that was cut out of it while somebody still held a node inside.
namespace quill::platform::detail {

/// The one control block of a libxml2 node, found again through the node's `_private`. Handles
/// share it, so two handles of one node are equal. It keeps the document alive.
struct NodeRef : std::enable_shared_from_this<NodeRef> {
    NodeRef(std::shared_ptr<DocumentState> owner, xmlNode* held);
    ~NodeRef();
    NodeRef(const NodeRef&)            = delete;
    NodeRef& operator=(const NodeRef&) = delete;

    std::shared_ptr<DocumentState> document;
    xmlNode*                       node;
    std::size_t                    attributesVersion = 0;
};

struct NamespaceDeleter {
    void operator()(xmlNs* ns) const noexcept { xmlFreeNs(ns); }
};

struct DocumentState : std::enable_shared_from_this<DocumentState> {
    DocumentState();
    ~DocumentState();
    DocumentState(const DocumentState&)            = delete;
    DocumentState& operator=(const DocumentState&) = delete;

    [[nodiscard]] xmlNode*                 root() const { return reinterpret_cast<xmlNode*>(doc); }
    [[nodiscard]] std::shared_ptr<NodeRef> handle(xmlNode* node);

    /// The namespace object that all nodes of this document use for this pair. It is the
    /// document's and not an element's, so that no node depends on where it stands. Nothing for
    /// no namespace.
    xmlNs* intern(const xmlChar* prefix, const xmlChar* href);

    /// Takes a node out of its place; it then belongs to nobody until `place` or `keepOrFree`.
    void lift(xmlNode* node);
    /// Tells that a lifted node was linked into a tree of this document.
    void place(xmlNode* node);
    /// Leaves a lifted node as a tree of its own as long as somebody holds a part of it.
    void keepOrFree(xmlNode* node);
    /// Makes a lifted tree of another document one of this; the handles follow.
    void adopt(xmlNode* tree);
    /// `lift` and `keepOrFree` for all that is below a node.
    void dropChildren(xmlNode* parent);
    /// Puts the content of a freshly read document in place of the present one.
    void replaceContent(xmlDoc* fresh);

    xmlDoc*               doc;
    std::size_t           version = 0;
    std::shared_ptr<void> cache;
    std::vector<xmlNs*>   selection; ///< the prefixes of XPath, interned

private:
    friend struct NodeRef;
    void hold(xmlNode* node);
    void release(xmlNode* node);
    void subtract(xmlNode* tree, std::size_t held);

    /// Roots of trees outside the document, with the number of nodes held in each; never zero.
    std::unordered_map<xmlNode*, std::size_t>                                 mOrphans;
    std::unordered_map<std::string, std::unique_ptr<xmlNs, NamespaceDeleter>> mNamespaces;
};

/// Failure 91.
[[noreturn]] void refuseEmpty();

/// The reference behind a handle, failure 91 for an empty one.
inline NodeRef& reach(const std::shared_ptr<NodeRef>& ref)
{
    if (ref == nullptr) {
        refuseEmpty();
    }
    return *ref;
}

/// A failure 5 that says what was wrong.
[[noreturn]] void refuse(const std::string& why);

/// The next node of a tree in document order, attributes and their texts included; nullptr after
/// the last. It needs no stack, however deep the tree is.
[[nodiscard]] xmlNode* nextInTree(xmlNode* node, const xmlNode* tree);
/// The topmost node above.
[[nodiscard]] xmlNode* topOf(xmlNode* node);
/// Links a lifted node in front of the child `behind`, or last; neighbouring texts are not merged.
void linkChild(xmlNode* parent, xmlNode* child, xmlNode* behind = nullptr);
/// Links a lifted attribute in front of `behind`, or last.
void linkAttribute(xmlNode* element, xmlAttr* attribute, xmlAttr* behind = nullptr);

[[nodiscard]] inline bool isElement(const xmlNode* node)
{
    return node->type == XML_ELEMENT_NODE;
}
[[nodiscard]] inline bool isAttribute(const xmlNode* node)
{
    return node->type == XML_ATTRIBUTE_NODE;
}
[[nodiscard]] inline bool isDocument(const xmlNode* node)
{
    return node->type == XML_DOCUMENT_NODE;
}
[[nodiscard]] inline xmlAttr* asAttribute(xmlNode* node)
{
    return reinterpret_cast<xmlAttr*>(node);
}
/// Where an element or an attribute keeps its namespace; the two lay it out differently.
[[nodiscard]] xmlNs* namespaceOf(const xmlNode* node);
[[nodiscard]] bool   hasChildElement(const xmlNode* parent);

[[nodiscard]] inline const xmlChar* xml(const char* text)
{
    return reinterpret_cast<const xmlChar*>(text);
}
[[nodiscard]] inline std::string_view view(const xmlChar* text)
{
    return text == nullptr ? std::string_view{} : reinterpret_cast<const char*>(text);
}
/// Tells the element that one of its attributes changes: `node` is the attribute or a text in it.
/// Does nothing for any other node.
void noteAttributeChange(const xmlNode* node) noexcept;
/// The name with its prefix, as it is written.
[[nodiscard]] std::string qualifiedName(const xmlNode* node);
/// The text of the node and all below it; comments and processing instructions below are left out.
[[nodiscard]] std::string textOf(xmlNode* node);
/// The node as XML.
[[nodiscard]] std::string writeXml(xmlNode* node);

} // namespace quill::platform::detail
