#include "platform/libxml2/document_state.h"

#include "platform/failure.h"

#include <new>

#include <libxml/dict.h>
#include <libxml/valid.h>

namespace quill::platform::detail {

void refuseEmpty()
{
    throw failure(kObjectNotSet);
}

void refuse(const std::string& why)
{
    throw Failure(kInvalidCall, why);
}

NodeRef::NodeRef(std::shared_ptr<DocumentState> owner, xmlNode* held)
    : document(std::move(owner)), node(held)
{
    document->hold(node);
    node->_private = this;
}

NodeRef::~NodeRef()
{
    node->_private = nullptr;
    document->release(node);
}

namespace {

struct DictDeleter {
    void operator()(xmlDict* dict) const noexcept { xmlDictFree(dict); }
};

/// The dictionary of names for the next document. Documents share one, so that the same few names
/// are not kept once per node and a node moves from document to document as it is. One that hostile
/// documents have filled up is left to those that use it.
xmlDict* namesForNewDocument()
{
    constexpr int                                kMostNames = 20000;
    static std::unique_ptr<xmlDict, DictDeleter> names;
    if (names == nullptr || xmlDictSize(names.get()) > kMostNames) {
        names.reset(xmlDictCreate());
        if (names == nullptr) {
            throw std::bad_alloc();
        }
    }
    return names.get();
}

} // namespace

DocumentState::DocumentState() : doc(xmlNewDoc(nullptr))
{
    if (doc == nullptr) {
        throw std::bad_alloc();
    }
    doc->dict = namesForNewDocument();
    xmlDictReference(doc->dict);
}

DocumentState::~DocumentState()
{
    // Every handle keeps the state alive, so no tree outside the document is left by now.
    xmlFreeDoc(doc);
}

std::shared_ptr<NodeRef> DocumentState::handle(xmlNode* node)
{
    if (node == nullptr) {
        return nullptr;
    }
    if (node->_private != nullptr) {
        return static_cast<NodeRef*>(node->_private)->shared_from_this();
    }
    return std::make_shared<NodeRef>(shared_from_this(), node);
}

xmlNs* DocumentState::intern(const xmlChar* prefix, const xmlChar* href)
{
    if (href == nullptr || *href == 0) {
        return nullptr;
    }
    // A prefix cannot contain a blank, so the pair is told apart by the first one.
    std::string key{view(prefix)};
    key += ' ';
    key += view(href);
    auto& slot = mNamespaces[std::move(key)];
    if (slot == nullptr) {
        slot.reset(xmlNewNs(nullptr, href, nullptr));
        if (slot == nullptr) {
            throw std::bad_alloc();
        }
        // xmlNewNs refuses the prefix "xml", which is a namespace like any other here.
        if (prefix != nullptr && *prefix != 0) {
            slot->prefix = xmlStrdup(prefix);
        }
    }
    return slot.get();
}

namespace {

NodeRef* refOf(const xmlNode* node)
{
    return static_cast<NodeRef*>(node->_private);
}

std::size_t countHeld(xmlNode* tree)
{
    std::size_t held = 0;
    for (xmlNode* node = tree; node != nullptr; node = nextInTree(node, tree)) {
        held += node->_private != nullptr ? 1U : 0U;
    }
    return held;
}

} // namespace

void DocumentState::hold(xmlNode* node)
{
    if (xmlNode* top = topOf(node); top != root()) {
        ++mOrphans[top];
    }
}

void DocumentState::release(xmlNode* node)
{
    if (xmlNode* top = topOf(node); top != root()) {
        subtract(top, 1);
    }
}

void DocumentState::subtract(xmlNode* tree, std::size_t held)
{
    const auto place = mOrphans.find(tree);
    if (place == mOrphans.end()) {
        return;
    }
    place->second -= held;
    if (place->second == 0) {
        mOrphans.erase(place);
        xmlFreeNode(tree);
    }
}

void DocumentState::lift(xmlNode* node)
{
    xmlNode* top = topOf(node);
    if (top == node) {
        mOrphans.erase(node);
        return;
    }
    noteAttributeChange(node);
    xmlUnlinkNode(node);
    if (top != root()) {
        subtract(top, countHeld(node));
    }
}

void DocumentState::place(xmlNode* node)
{
    noteAttributeChange(node);
    if (xmlNode* top = topOf(node); top != root()) {
        if (const std::size_t held = countHeld(node); held != 0) {
            mOrphans[top] += held;
        }
    }
}

void DocumentState::keepOrFree(xmlNode* node)
{
    if (const std::size_t held = countHeld(node); held != 0) {
        mOrphans[node] = held;
    } else {
        xmlFreeNode(node);
    }
}

void DocumentState::adopt(xmlNode* tree)
{
    // What the other document's dictionary holds would go with it.
    xmlDict* const names = tree->doc->dict != doc->dict ? tree->doc->dict : nullptr;
    // Namespaces of one document mostly recur from node to node.
    std::unordered_map<const xmlNs*, xmlNs*> known;
    const auto                               translate = [&](xmlNs* ns) -> xmlNs* {
        if (ns == nullptr) {
            return nullptr;
        }
        const auto [entry, isNew] = known.try_emplace(ns, nullptr);
        if (isNew) {
            entry->second = intern(ns->prefix, ns->href);
        }
        return entry->second;
    };
    for (xmlNode* node = tree; node != nullptr; node = nextInTree(node, tree)) {
        if (isAttribute(node)) {
            xmlAttr* attribute = asAttribute(node);
            if (attribute->atype == XML_ATTRIBUTE_ID) {
                // The other document's table of identifiers must not outlive the attribute.
                xmlRemoveID(attribute->doc, attribute);
                attribute->atype = static_cast<xmlAttributeType>(0);
            }
            attribute->ns = translate(attribute->ns);
        } else if (isElement(node)) {
            node->ns = translate(node->ns);
        }
        if (names != nullptr) {
            if (xmlDictOwns(names, node->name) == 1) {
                node->name = xmlDictLookup(doc->dict, node->name, -1);
            }
            if (!isElement(node) && !isAttribute(node) && node->content != nullptr &&
                xmlDictOwns(names, node->content) == 1) {
                node->content = xmlStrdup(node->content);
            }
        }
        node->doc = doc;
        if (NodeRef* ref = refOf(node); ref != nullptr) {
            ref->document = shared_from_this();
        }
    }
}

void DocumentState::dropChildren(xmlNode* parent)
{
    while (xmlNode* child = parent->children) {
        lift(child);
        keepOrFree(child);
    }
}

void DocumentState::replaceContent(xmlDoc* fresh)
{
    dropChildren(root());
    while (xmlNode* child = fresh->children) {
        xmlUnlinkNode(child);
        adopt(child);
        linkChild(root(), child);
    }
    ++version;
}

void noteAttributeChange(const xmlNode* node) noexcept
{
    const xmlNode* attribute = isAttribute(node) ? node : node->parent;
    if (attribute == nullptr || !isAttribute(attribute) || attribute->parent == nullptr) {
        return;
    }
    if (NodeRef* element = refOf(attribute->parent); element != nullptr) {
        ++element->attributesVersion;
    }
}

xmlNode* nextInTree(xmlNode* node, const xmlNode* tree)
{
    if (isElement(node) && node->properties != nullptr) {
        return reinterpret_cast<xmlNode*>(node->properties);
    }
    if (node->children != nullptr) {
        return node->children;
    }
    while (node != tree) {
        if (node->next != nullptr) {
            return node->next;
        }
        xmlNode* parent = node->parent;
        if (isAttribute(node) && parent->children != nullptr) {
            return parent->children;
        }
        node = parent;
    }
    return nullptr;
}

xmlNode* topOf(xmlNode* node)
{
    while (node->parent != nullptr) {
        node = node->parent;
    }
    return node;
}

void linkChild(xmlNode* parent, xmlNode* child, xmlNode* behind)
{
    xmlNode* const before = behind != nullptr ? behind->prev : parent->last;

    child->parent = parent;
    child->prev   = before;
    child->next   = behind;

    (before != nullptr ? before->next : parent->children) = child;
    (behind != nullptr ? behind->prev : parent->last)     = child;
}

void linkAttribute(xmlNode* element, xmlAttr* attribute, xmlAttr* behind)
{
    xmlAttr* before = behind != nullptr ? behind->prev : element->properties;
    while (behind == nullptr && before != nullptr && before->next != nullptr) {
        before = before->next;
    }
    attribute->parent = element;
    attribute->prev   = before;
    attribute->next   = behind;

    (before != nullptr ? before->next : element->properties) = attribute;
    if (behind != nullptr) {
        behind->prev = attribute;
    }
}

xmlNs* namespaceOf(const xmlNode* node)
{
    if (isElement(node)) {
        return node->ns;
    }
    return isAttribute(node) ? reinterpret_cast<const xmlAttr*>(node)->ns : nullptr;
}

bool hasChildElement(const xmlNode* parent)
{
    for (const xmlNode* child = parent->children; child != nullptr; child = child->next) {
        if (isElement(child)) {
            return true;
        }
    }
    return false;
}

std::string qualifiedName(const xmlNode* node)
{
    std::string name;
    if (const xmlNs* ns = namespaceOf(node); ns != nullptr && ns->prefix != nullptr) {
        name = view(ns->prefix);
        name += ':';
    }
    return name += view(node->name);
}

std::string textOf(xmlNode* node)
{
    const auto holdsText = [](const xmlNode* part) {
        return part->type == XML_TEXT_NODE || part->type == XML_CDATA_SECTION_NODE;
    };
    if (node->type == XML_COMMENT_NODE || node->type == XML_PI_NODE || holdsText(node)) {
        return std::string{view(node->content)};
    }
    std::string text;
    for (xmlNode* part = node->children; part != nullptr;) {
        if (holdsText(part)) {
            text += view(part->content);
        }
        // Not nextInTree: the texts of attributes are no part of an element's text.
        if (part->children != nullptr) {
            part = part->children;
            continue;
        }
        while (part != node && part->next == nullptr) {
            part = part->parent;
        }
        part = part == node ? nullptr : part->next;
    }
    return text;
}

} // namespace quill::platform::detail
