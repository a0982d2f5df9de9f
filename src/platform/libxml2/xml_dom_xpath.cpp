// Selecting nodes by XPath.
#include "platform/failure.h"
#include "platform/libxml2/document_state.h"
#include "platform/libxml2/error_trap.h"

#include <algorithm>

#include <map>
#include <new>

#include <libxml/xpath.h>

namespace quill::platform {

namespace {

using detail::DocumentState;
using detail::ErrorTrap;
using detail::isAttribute;
using detail::reach;
using detail::refuse;

/// Expressions are written by controls and at most carry a name; nothing sensible is longer.
constexpr std::size_t kMaxExpressionBytes = 64U * 1024U;
/// Compiled expressions that are kept. Those with a name in them come and go, the short ones such
/// as "./@name" are back after one compilation.
constexpr std::size_t kMaxCompiled = 256;

struct ContextDeleter {
    void operator()(xmlXPathContext* context) const noexcept { xmlXPathFreeContext(context); }
};
struct CompiledDeleter {
    void operator()(xmlXPathCompExpr* compiled) const noexcept { xmlXPathFreeCompExpr(compiled); }
};
struct ResultDeleter {
    void operator()(xmlXPathObject* result) const noexcept { xmlXPathFreeObject(result); }
};

/// Lends a tree outside the document a document node of its own for one evaluation, so that "/"
/// and "//" mean the tree in which the node stands. A lone attribute is lent an element too:
/// libxml2 takes for granted that it has one.
class TreeRoot {
public:
    TreeRoot(DocumentState& state, xmlNode* from)
    {
        xmlNode* top = detail::topOf(from);
        if (top == state.root()) {
            mTreeDocument = state.doc;
            return;
        }
        mTop           = top;
        mTreeDocument  = &mDocument;
        mDocument.type = XML_DOCUMENT_NODE;
        mDocument.doc  = &mDocument;
        if (isAttribute(top)) {
            mElement.type       = XML_ELEMENT_NODE;
            mElement.name       = detail::xml("");
            mElement.doc        = &mDocument;
            mElement.properties = detail::asAttribute(top);
            top->parent         = &mElement;
            top                 = &mElement;
        }
        mDocument.children = mDocument.last = top;
        top->parent                         = documentNode();
    }
    ~TreeRoot()
    {
        if (mTop != nullptr) {
            mTop->parent = nullptr;
        }
    }
    TreeRoot(const TreeRoot&)            = delete;
    TreeRoot& operator=(const TreeRoot&) = delete;

    [[nodiscard]] xmlDoc* document() const noexcept { return mTreeDocument; }
    /// Whether a node is only lent, and no answer.
    [[nodiscard]] bool isLent(const xmlNode* node) noexcept
    {
        return node == documentNode() || node == &mElement;
    }

private:
    xmlNode* documentNode() noexcept { return reinterpret_cast<xmlNode*>(&mDocument); }

    xmlDoc   mDocument{};
    xmlNode  mElement{};
    xmlDoc*  mTreeDocument = nullptr;
    xmlNode* mTop          = nullptr;
};

/// Most operations of one evaluation, well below a second's work: an expression that walks the
/// document over and over for each of its nodes fails instead of keeping the screen waiting.
constexpr unsigned long kMaxOperations = 100'000'000;

/// Steps of one expression that search the whole tree. The engine keeps what it finds more than
/// once until the end, so that each further one multiplies the work by the depth of the document.
constexpr int kMaxSearches = 3;

int countSearches(std::string_view expression)
{
    constexpr std::string_view kSearches[] = {"//", "descendant", "ancestor", "following",
                                              "preceding"};
    int                        count       = 0;
    for (std::size_t at = 0; at < expression.size(); ++at) {
        const char c = expression[at];
        if (c == '"' || c == '\'') {
            at = std::min(expression.find(c, at + 1), expression.size());
            continue;
        }
        for (const auto& search : kSearches) {
            count += expression.substr(at).starts_with(search) ? 1 : 0;
        }
    }
    return count;
}

/// One XPath context serves all documents of the thread; making one costs more than most
/// evaluations.
class Selector {
public:
    Selector() : mContext(xmlXPathNewContext(nullptr))
    {
        if (mContext == nullptr) {
            throw std::bad_alloc();
        }
        xmlXPathContextSetCache(mContext.get(), 1, -1, 0);
        mContext->opLimit = kMaxOperations;
    }

    std::vector<xmlNode*> select(DocumentState& state, xmlNode* from, std::string_view expression)
    {
        const ErrorTrap trap;
        if (countSearches(expression) > kMaxSearches) {
            refuse("The expression searches the whole document more than " +
                   std::to_string(kMaxSearches) + " times.");
        }
        xmlXPathCompExpr* compiled = compile(expression, trap);
        TreeRoot          tree{state, from};
        mContext->doc        = tree.document();
        mContext->node       = from;
        mContext->namespaces = state.selection.data();
        mContext->nsNr       = static_cast<int>(state.selection.size());
        mContext->depth      = 0;
        mContext->opCount    = 0;
        const std::unique_ptr<xmlXPathObject, ResultDeleter> result{
            xmlXPathCompiledEval(compiled, mContext.get())};
        mContext->doc        = nullptr;
        mContext->node       = nullptr;
        mContext->namespaces = nullptr;
        mContext->nsNr       = 0;
        if (result == nullptr) {
            fail(expression, trap);
        }
        if (result->type != XPATH_NODESET) {
            refuse("The expression \"" + std::string{expression} + "\" does not select nodes.");
        }
        std::vector<xmlNode*> nodes;
        if (result->nodesetval != nullptr) {
            const xmlNodeSet& set = *result->nodesetval;
            nodes.reserve(static_cast<std::size_t>(set.nodeNr));
            for (int i = 0; i < set.nodeNr; ++i) {
                xmlNode* node = set.nodeTab[i];
                // Namespaces are no nodes of this model, nor is what was lent to the tree.
                if (node->type != XML_NAMESPACE_DECL && !tree.isLent(node)) {
                    nodes.push_back(node);
                }
            }
        }
        return nodes;
    }

private:
    xmlXPathCompExpr* compile(std::string_view expression, const ErrorTrap& trap)
    {
        if (const auto known = mCompiled.find(expression); known != mCompiled.end()) {
            return known->second.get();
        }
        if (expression.size() > kMaxExpressionBytes ||
            expression.find('\0') != std::string_view::npos) {
            refuse("An expression is too long or not a text.");
        }
        std::string text{expression};
        mContext->depth = 0;
        std::unique_ptr<xmlXPathCompExpr, CompiledDeleter> compiled{
            xmlXPathCtxtCompile(mContext.get(), detail::xml(text.c_str()))};
        if (compiled == nullptr) {
            fail(expression, trap);
        }
        if (mCompiled.size() >= kMaxCompiled) {
            mCompiled.clear();
        }
        return mCompiled.emplace(std::move(text), std::move(compiled)).first->second.get();
    }

    [[noreturn]] static void fail(std::string_view expression, const ErrorTrap& trap)
    {
        refuse("The expression \"" + std::string{expression} +
               "\" cannot be evaluated: " + (trap.caught() ? trap.message() : "unknown error"));
    }

    std::unique_ptr<xmlXPathContext, ContextDeleter> mContext;
    std::map<std::string, std::unique_ptr<xmlXPathCompExpr, CompiledDeleter>, std::less<>>
        mCompiled;
};

std::vector<xmlNode*> select(const detail::NodeRef& ref, std::string_view expression)
{
    thread_local Selector selector;
    return selector.select(*ref.document, ref.node, expression);
}

} // namespace

IXMLDOMNode IXMLDOMNode::selectSingleNode(std::string_view expression) const
{
    const detail::NodeRef&      ref   = reach(mRef);
    const std::vector<xmlNode*> nodes = select(ref, expression);
    return nodes.empty() ? IXMLDOMNode{} : IXMLDOMNode{ref.document->handle(nodes.front())};
}

IXMLDOMNodeList IXMLDOMNode::selectNodes(std::string_view expression) const
{
    const detail::NodeRef&   ref = reach(mRef);
    std::vector<IXMLDOMNode> handles;
    for (xmlNode* node : select(ref, expression)) {
        handles.emplace_back(ref.document->handle(node));
    }
    return IXMLDOMNodeList{std::move(handles)};
}

void IXMLDOMDocument::setSelectionNamespaces(const SelectionNamespaces& namespaces) const
{
    DocumentState&      state = *reach(mRef).document;
    std::vector<xmlNs*> selection;
    for (const auto& [prefix, href] : namespaces) {
        if (prefix.empty() || href.empty()) {
            refuse("A selection prefix and its schema name must not be empty.");
        }
        selection.push_back(state.intern(detail::xml(prefix.c_str()), detail::xml(href.c_str())));
    }
    state.selection = std::move(selection);
    ++state.version; // the same path may lead elsewhere now
}

} // namespace quill::platform
