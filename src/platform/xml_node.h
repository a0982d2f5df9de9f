#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The document object model that the controls see. Names of operations are the DOM's own.
///
/// A node is a small value: a reference to a node of a shared document, or nothing. Copies refer
/// to the same node. A document lives as long as somebody holds a node of it; a node that was
/// removed or replaced stays valid as long as somebody holds it, as the root of a tree of its own.
/// Every operation on an empty node raises failure 91. Text is UTF-8.
namespace quill::platform {

class IXMLDOMDocument;
class IXMLDOMNodeList;
class IXMLDOMNamedNodeMap;

namespace detail {
struct NodeRef;
struct DocumentState;
} // namespace detail

enum class NodeType {
    element               = 1,
    attribute             = 2,
    text                  = 3,
    cdata                 = 4,
    comment               = 8,
    document              = 9,
    processingInstruction = 7,
    other                 = 0
};

class IXMLDOMNode {
public:
    IXMLDOMNode() noexcept = default;
    IXMLDOMNode(std::nullptr_t) noexcept {} // NOLINT(google-explicit-constructor)
    explicit IXMLDOMNode(std::shared_ptr<detail::NodeRef> ref) noexcept : mRef(std::move(ref)) {}

    /// Whether there is a node.
    explicit operator bool() const noexcept { return mRef != nullptr; }
    /// Whether both refer to the same node, or both to none.
    friend bool operator==(const IXMLDOMNode& a, const IXMLDOMNode& b) noexcept
    {
        return a.mRef == b.mRef;
    }

    [[nodiscard]] NodeType get_nodeType() const;
    /// Qualified name, such as "comm:item"; "#document", "#text", "#comment" for those.
    [[nodiscard]] std::string get_nodeName() const;
    /// Name without its prefix.
    [[nodiscard]] std::string get_baseName() const;
    [[nodiscard]] std::string get_namespaceURI() const;

    /// The first node in document order that the XPath expression selects from here, or nothing.
    /// Prefixes are those of the document's "SelectionNamespaces". A malformed expression, an
    /// unknown prefix and an expression that selects no nodes but a value are a failure 5. So is
    /// one that searches the whole tree in more than three steps. In a tree without a document
    /// around it, "/" and "//" mean that tree.
    [[nodiscard]] IXMLDOMNode     selectSingleNode(std::string_view expression) const;
    [[nodiscard]] IXMLDOMNodeList selectNodes(std::string_view expression) const;

    /// The text of the node and all below it, never trimmed.
    [[nodiscard]] std::string get_text() const;
    /// Replaces all that is below the node by a text. A text with characters that XML cannot hold
    /// (control characters, bytes that are no UTF-8) is a failure 5, here and in `put_nodeValue`.
    void put_text(std::string_view text) const;
    /// Value of an attribute, a text or a comment; empty for other kinds.
    [[nodiscard]] std::string get_nodeValue() const;
    /// A kind that has no value is a failure 5.
    void put_nodeValue(std::string_view value) const;
    void put_value(std::string_view value) const { put_nodeValue(value); }
    /// The node as XML, with the namespaces it needs; no declaration in front, no line break
    /// behind.
    [[nodiscard]] std::string get_xml() const;

    /// The attributes of an element; failure 91 for any other kind.
    [[nodiscard]] IXMLDOMNamedNodeMap get_attributes() const;
    [[nodiscard]] IXMLDOMNodeList     get_childNodes() const;
    [[nodiscard]] IXMLDOMNode         get_parentNode() const;
    [[nodiscard]] IXMLDOMNode         get_firstChild() const;
    [[nodiscard]] IXMLDOMNode         get_nextSibling() const;
    /// A document is its own.
    [[nodiscard]] IXMLDOMDocument get_ownerDocument() const;

    /// Puts `child` behind the last child and answers it. A child that stands elsewhere, also in
    /// another document, moves. A node cannot go into itself or its own descendant, a document
    /// takes one element only: failure 5.
    IXMLDOMNode appendChild(const IXMLDOMNode& child) const;
    /// Puts `child` in front of `before`, which must be a child of this node (else failure 5), and
    /// answers it. What `appendChild` tells of moving and of what cannot be holds here too.
    IXMLDOMNode insertBefore(const IXMLDOMNode& child, const IXMLDOMNode& before) const;
    /// Puts `fresh` into the place of `old`, which must be a child of this node (else failure 5),
    /// and answers `old`.
    IXMLDOMNode replaceChild(const IXMLDOMNode& fresh, const IXMLDOMNode& old) const;
    /// Takes `child` out and answers it.
    IXMLDOMNode removeChild(const IXMLDOMNode& child) const;
    /// A copy that belongs to the same document and has no parent. A copied document is a document
    /// of its own.
    [[nodiscard]] IXMLDOMNode cloneNode(bool deep) const;

    /// For the DOM itself.
    [[nodiscard]] const std::shared_ptr<detail::NodeRef>& ref() const noexcept { return mRef; }

protected:
    std::shared_ptr<detail::NodeRef> mRef;
};

/// A node remembered without being held, for tables that stand in a document's `cache`: a handle in
/// there would keep its own document alive for ever. Good as long as `structureVersion` is what it
/// was when the mark was made. Elements only.
class NodeMark {
public:
    NodeMark() noexcept = default;
    /// Failure 91 for an empty node or one that is no element.
    explicit NodeMark(const IXMLDOMNode& element);

private:
    friend class IXMLDOMDocument;
    void* mNode = nullptr;
};

/// A list of nodes, fixed when it was made, with a cursor for `nextNode`.
class IXMLDOMNodeList {
public:
    IXMLDOMNodeList() = default;
    explicit IXMLDOMNodeList(std::vector<IXMLDOMNode> nodes) : mNodes(std::move(nodes)) {}

    [[nodiscard]] long get_length() const noexcept { return static_cast<long>(mNodes.size()); }
    /// The node at a 0-based place, nothing outside.
    [[nodiscard]] IXMLDOMNode get_item(long index) const;
    /// The next node, nothing behind the last.
    IXMLDOMNode nextNode();
    void        reset() noexcept { mNext = 0; }

    [[nodiscard]] auto begin() const noexcept { return mNodes.begin(); }
    [[nodiscard]] auto end() const noexcept { return mNodes.end(); }

private:
    std::vector<IXMLDOMNode> mNodes;
    long                     mNext = 0;
};

/// The attributes of one element.
class IXMLDOMNamedNodeMap {
public:
    explicit IXMLDOMNamedNodeMap(IXMLDOMNode element) : mElement(std::move(element)) {}

    /// The attribute of this name, or nothing.
    [[nodiscard]] IXMLDOMNode getNamedItem(std::string_view name) const;
    /// Adds an attribute, in the place of one of the same name, and answers it. One that belongs to
    /// another element is a failure 5.
    IXMLDOMNode setNamedItem(const IXMLDOMNode& attribute) const;
    /// Takes an attribute away and answers it, nothing if there was none.
    IXMLDOMNode        removeNamedItem(std::string_view name) const;
    [[nodiscard]] long get_length() const;
    /// The attribute at a 0-based place, nothing outside.
    [[nodiscard]] IXMLDOMNode get_item(long index) const;

private:
    IXMLDOMNode mElement;
};

} // namespace quill::platform
