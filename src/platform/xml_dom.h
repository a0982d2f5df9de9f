#pragma once

#include "platform/xml_node.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quill::platform {

/// Prefixes for XPath as pairs of prefix and schema name.
using SelectionNamespaces = std::vector<std::pair<std::string, std::string>>;

class IXMLDOMDocument : public IXMLDOMNode {
public:
    /// Refers to no document; `create` makes one.
    IXMLDOMDocument() noexcept = default;
    explicit IXMLDOMDocument(std::shared_ptr<detail::NodeRef> ref) noexcept
        : IXMLDOMNode(std::move(ref))
    {
    }

    /// An empty document.
    [[nodiscard]] static IXMLDOMDocument create();

    /// Reads a text in place of what the document holds. The text is UTF-8 whatever its declaration
    /// says. No network, no external entity, no document type declaration, at most 256 elements
    /// deep and `kMaxDocumentBytes` long, at most 1000 attributes to an element and 256 namespaces
    /// in force at one place; white space between elements is dropped. A text that is refused is a
    /// failure 5 that tells why and where, and the document is as before. Nodes of the old content
    /// stay valid while they are held.
    void loadXML(std::string_view text) const;
    /// The same for a file, which may be in any encoding that its declaration names. Failures 53
    /// and 75 for a file that is missing or cannot be read.
    void load(const std::string& path) const;

    /// "SelectionNamespaces": the prefixes that expressions may use.
    void setSelectionNamespaces(const SelectionNamespaces& namespaces) const;

    [[nodiscard]] IXMLDOMNode get_documentElement() const;
    /// An element in no namespace. A name that is none is a failure 5.
    [[nodiscard]] IXMLDOMNode createElement(std::string_view name) const;
    [[nodiscard]] IXMLDOMNode createAttribute(std::string_view name) const;
    /// An element, attribute, text, CDATA section or comment, the last three without a name.
    /// `namespaceURI` may be empty; a prefix in the name needs one (else failure 5).
    [[nodiscard]] IXMLDOMNode createNode(NodeType type, std::string_view name,
                                         std::string_view namespaceURI) const;

    /// Grows whenever elements come or go, an attribute `name` or `clone` changes, or the prefixes
    /// do; the ground of every cached look-up.
    [[nodiscard]] std::size_t structureVersion() const;
    /// A place where somebody may keep what he worked out of this document; dies with it. Nodes in
    /// there are kept as marks, not as handles.
    [[nodiscard]] std::shared_ptr<void>& cache() const;
    /// The element that was marked, nothing for a mark that was never set.
    [[nodiscard]] IXMLDOMNode nodeAt(NodeMark mark) const;
};

/// Longest text that is read: 64 MB.
constexpr std::size_t kMaxDocumentBytes = 64U * 1024U * 1024U;

/// Walks without XPath, for the hot paths. Failure 91 if `element` is no element; to go down, a
/// document will do as well.
/// The attribute of no namespace with this name, or nothing: what `./@name` selects.
[[nodiscard]] IXMLDOMNode attributeNode(const IXMLDOMNode& element, std::string_view name);
/// A number that changes whenever an attribute of this element comes, goes, or is written: whoever
/// has written one sees by it that nobody else has since. Counts while somebody holds the element.
[[nodiscard]] std::size_t attributesVersion(const IXMLDOMNode& element);
/// Whether the attribute belongs to this element at present. False for empty nodes.
[[nodiscard]] bool isAttributeOf(const IXMLDOMNode& attribute, const IXMLDOMNode& element) noexcept;
/// The first child element of this namespace and name, or nothing.
[[nodiscard]] IXMLDOMNode childElement(const IXMLDOMNode& element, std::string_view namespaceURI,
                                       std::string_view name);
/// Visits the children of `element` that are elements of this namespace and name, in order. `visit`
/// must not move them.
void visitChildElements(const IXMLDOMNode& element, std::string_view namespaceURI,
                        std::string_view                               name,
                        const std::function<void(const IXMLDOMNode&)>& visit);

} // namespace quill::platform
