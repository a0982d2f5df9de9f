// Writing nodes as XML.
#include "platform/libxml2/document_state.h"

#include <algorithm>
#include <deque>

namespace quill::platform::detail {

namespace {

struct Binding {
    std::string_view prefix;
    std::string_view href;
};

void escape(std::string& out, std::string_view text, bool inAttribute)
{
    for (const char c : text) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        // A reader turns these into other characters unless they are written as numbers.
        case '\r': out += "&#13;"; break;
        case '"': out += inAttribute ? "&quot;" : "\""; break;
        case '\n': out += inAttribute ? "&#10;" : "\n"; break;
        case '\t': out += inAttribute ? "&#9;" : "\t"; break;
        default: out += c;
        }
    }
}

void writeCData(std::string& out, std::string_view text)
{
    out += "<![CDATA[";
    for (std::size_t end = 0; (end = text.find("]]>")) != std::string_view::npos;) {
        out += text.substr(0, end + 2);
        out += "]]><![CDATA[";
        text.remove_prefix(end + 2);
    }
    out += text;
    out += "]]>";
}

/// Writes one tree. Namespaces are declared where they are declared in the tree and, beyond that,
/// where a name needs one that is not in force: a node that moved or was cut out reads back with
/// the same names.
class Writer {
public:
    /// `onRoot` are bindings to declare on the outermost element.
    explicit Writer(std::vector<Binding> onRoot) : mOnRoot(std::move(onRoot)) {}

    void write(xmlNode* tree)
    {
        // A loop and not a recursion: how deep a tree may be is not ours to say.
        for (xmlNode* node = tree;;) {
            open(node);
            if (!isAttribute(node) && node->children != nullptr) {
                node = node->children;
                continue;
            }
            while (node != tree && node->next == nullptr) {
                node = node->parent;
                close(node);
            }
            if (node == tree) {
                return;
            }
            node = node->next;
        }
    }

    [[nodiscard]] const std::string& text() const noexcept { return mOut; }
    /// Prefixed bindings that had to be declared below the root.
    [[nodiscard]] const std::vector<Binding>& missing() const noexcept { return mMissing; }

private:
    void open(xmlNode* node)
    {
        switch (node->type) {
        case XML_ELEMENT_NODE: openElement(node); break;
        case XML_ATTRIBUTE_NODE: writeAttribute(mOut, qualifiedName(node), node); break;
        case XML_TEXT_NODE: escape(mOut, view(node->content), false); break;
        case XML_CDATA_SECTION_NODE: writeCData(mOut, view(node->content)); break;
        case XML_COMMENT_NODE: ((mOut += "<!--") += view(node->content)) += "-->"; break;
        case XML_PI_NODE:
            (mOut += "<?") += view(node->name);
            if (const std::string_view content = view(node->content); !content.empty()) {
                (mOut += ' ') += content;
            }
            mOut += "?>";
            break;
        default: break;
        }
    }

    void openElement(const xmlNode* element)
    {
        const Binding own = bindingOf(element->ns);
        mMarks.push_back(mScope.size());
        mUsed.assign(1, own);
        (mOut += '<') += qualifiedName(element);
        for (const xmlNs* ns = element->nsDef; ns != nullptr; ns = ns->next) {
            // What the element's own name needs beats what it happens to declare.
            const Binding written{view(ns->prefix), view(ns->href)};
            if (written.prefix != own.prefix || written.href == own.href) {
                declareUnlessInForce(written);
            }
        }
        if (hrefOf(own.prefix) != own.href) {
            declareMissing(own);
        }
        if (mMarks.size() == 1) {
            for (const Binding& binding : mOnRoot) {
                if (hrefOf(binding.prefix).empty()) {
                    declareUnlessInForce(binding);
                }
            }
        }
        std::string attributes;
        for (xmlAttr* attribute = element->properties; attribute != nullptr;
             attribute          = attribute->next) {
            auto*       node = reinterpret_cast<xmlNode*>(attribute);
            std::string name{view(attribute->name)};
            if (const std::string_view prefix = attributePrefix(attribute->ns); !prefix.empty()) {
                name.insert(0, std::string{prefix} + ':');
            }
            attributes += ' ';
            writeAttribute(attributes, name, node);
        }
        mOut += attributes;
        if (element->children != nullptr) {
            mOut += '>';
        } else {
            mOut += "/>";
            leaveScope();
        }
    }

    void close(const xmlNode* node)
    {
        if (isElement(node)) {
            ((mOut += "</") += qualifiedName(node)) += '>';
            leaveScope();
        }
    }

    static void writeAttribute(std::string& out, const std::string& name, xmlNode* attribute)
    {
        (out += name) += "=\"";
        escape(out, textOf(attribute), true);
        out += '"';
    }

    static Binding bindingOf(const xmlNs* ns)
    {
        return ns != nullptr ? Binding{view(ns->prefix), view(ns->href)} : Binding{};
    }

    /// What a prefix stands for at this place, empty for nothing.
    [[nodiscard]] std::string_view hrefOf(std::string_view prefix) const
    {
        const auto found =
            std::find_if(mScope.rbegin(), mScope.rend(),
                         [&](const Binding& binding) { return binding.prefix == prefix; });
        if (found != mScope.rend()) {
            return found->href;
        }
        return prefix == "xml" ? view(XML_XML_NAMESPACE) : std::string_view{};
    }

    void declareUnlessInForce(const Binding& binding)
    {
        if (hrefOf(binding.prefix) != binding.href) {
            declare(binding);
        }
    }

    void declareMissing(const Binding& binding)
    {
        const bool isKnown =
            std::any_of(mMissing.begin(), mMissing.end(),
                        [&](const Binding& other) { return other.prefix == binding.prefix; });
        if (mMarks.size() > 1 && !binding.prefix.empty() && !isKnown) {
            mMissing.push_back(binding);
        }
        declare(binding);
    }

    void declare(const Binding& binding)
    {
        mOut += " xmlns";
        if (!binding.prefix.empty()) {
            (mOut += ':') += binding.prefix;
        }
        mOut += "=\"";
        escape(mOut, binding.href, true);
        mOut += '"';
        mScope.push_back(binding);
    }

    /// Whether a name of the open element already relies on another meaning of the prefix.
    [[nodiscard]] bool isTaken(const Binding& wanted) const
    {
        const auto clashes = [&](const Binding& binding) {
            return binding.prefix == wanted.prefix && binding.href != wanted.href;
        };
        return std::any_of(mUsed.begin(), mUsed.end(), clashes) ||
               std::any_of(mScope.begin() + static_cast<std::ptrdiff_t>(mMarks.back()),
                           mScope.end(), clashes);
    }

    /// The prefix to write in front of an attribute of the open element. The default namespace
    /// does not apply to attributes.
    std::string_view attributePrefix(const xmlNs* ns)
    {
        Binding wanted = bindingOf(ns);
        if (wanted.href.empty()) {
            return {};
        }
        if (wanted.prefix.empty() || (hrefOf(wanted.prefix) != wanted.href && isTaken(wanted))) {
            wanted.prefix = otherPrefix(wanted.href);
        }
        if (hrefOf(wanted.prefix) != wanted.href) {
            declareMissing(wanted);
        }
        mUsed.push_back(wanted);
        return wanted.prefix;
    }

    std::string_view otherPrefix(std::string_view href)
    {
        for (const Binding& binding : mScope) {
            if (!binding.prefix.empty() && binding.href == href && hrefOf(binding.prefix) == href) {
                return binding.prefix;
            }
        }
        for (;;) {
            mMade.push_back("ns" + std::to_string(mMade.size() + 1));
            if (hrefOf(mMade.back()).empty()) {
                return mMade.back();
            }
        }
    }

    void leaveScope()
    {
        mScope.resize(mMarks.back());
        mMarks.pop_back();
    }

    std::string              mOut;
    std::vector<Binding>     mOnRoot;
    std::vector<Binding>     mMissing;
    std::vector<Binding>     mScope; ///< declarations in force, innermost last
    std::vector<std::size_t> mMarks; ///< where the declarations of each open element begin
    std::vector<Binding>     mUsed;  ///< what the names of the element being opened rely on
    std::deque<std::string>  mMade;  ///< prefixes that had to be invented
};

} // namespace

std::string writeXml(xmlNode* node)
{
    Writer first{{}};
    first.write(node);
    if (first.missing().empty()) {
        return first.text();
    }
    // Once more, with those declared at the root, as a reader expects them. Prefixes that the first
    // run made up live in it.
    Writer second{first.missing()};
    second.write(node);
    return second.text();
}

} // namespace quill::platform::detail
