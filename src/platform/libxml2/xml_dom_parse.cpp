// Reading documents. A text comes from a device, a host or a file and is not to be trusted: what
// could cost more time or memory than its length explains is refused.
#include "platform/failure.h"
#include "platform/libxml2/document_state.h"
#include "platform/libxml2/error_trap.h"
#include "platform/utf8.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <limits>

#include <libxml/encoding.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>

namespace quill::platform {

namespace {

using detail::ErrorTrap;
using detail::refuse;

constexpr int kMaxDepth = 256;
/// The parser compares every attribute of an element, and every namespace in force, with every
/// other; real documents have a dozen.
constexpr std::size_t kMaxAttributes = 1000;
constexpr int         kMaxNamespaces = 256;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

[[noreturn]] void refuseDocument(const std::string& why, int line)
{
    refuse("The XML document is refused" +
           (line > 0 ? " at line " + std::to_string(line) : std::string{}) + ": " + why);
}

/// Refuses elements with too many attributes before the parser sees them. It need not understand
/// the text: quotes within a tag are counted, all else is the parser's business.
void refuseCrowdedTags(std::string_view text)
{
    const auto skipTo = [&](std::size_t from, std::string_view end) {
        const std::size_t found = text.find(end, from);
        return found == std::string_view::npos ? text.size() : found + end.size();
    };
    for (std::size_t at = text.find('<'); at < text.size(); at = text.find('<', at)) {
        const std::string_view rest = text.substr(at);
        if (rest.starts_with("<!--")) {
            at = skipTo(at + 4, "-->");
        } else if (rest.starts_with("<![CDATA[")) {
            at = skipTo(at + 9, "]]>");
        } else if (rest.starts_with("<?")) {
            at = skipTo(at + 2, "?>");
        } else {
            std::size_t count = 0;
            for (++at; at < text.size() && text[at] != '>';) {
                const std::size_t quote = text.find_first_of("\"'>", at);
                if (quote == std::string_view::npos || text[quote] == '>') {
                    at = std::min(quote, text.size());
                    continue;
                }
                if (++count > kMaxAttributes) {
                    refuseDocument("an element has more than " + std::to_string(kMaxAttributes) +
                                       " attributes",
                                   1 + static_cast<int>(std::count(
                                           text.begin(),
                                           text.begin() + static_cast<std::ptrdiff_t>(at), '\n')));
                }
                at = skipTo(quote + 1, text.substr(quote, 1));
            }
        }
    }
}

/// One run of the parser. Its call-backs stop it at what is never read; libxml2 builds the tree.
class Reader {
public:
    /// The document that is read uses these names.
    explicit Reader(xmlDict* names) : mParser(xmlNewParserCtxt())
    {
        if (mParser == nullptr) {
            throw std::bad_alloc();
        }
        xmlDictFree(mParser->dict);
        mParser->dict = names;
        xmlDictReference(names);
        mStartElement                    = mParser->sax->startElementNs;
        mParser->_private                = this;
        mParser->sax->startElementNs     = &Reader::startElement;
        mParser->sax->internalSubset     = &Reader::documentType;
        mParser->sax->externalSubset     = nullptr;
        mParser->sax->entityDecl         = nullptr;
        mParser->sax->getEntity          = &Reader::noEntity;
        mParser->sax->resolveEntity      = nullptr;
        mParser->sax->getParameterEntity = nullptr;
    }
    ~Reader()
    {
        xmlFreeDoc(mParser->myDoc);
        xmlFreeParserCtxt(mParser);
    }
    Reader(const Reader&)            = delete;
    Reader& operator=(const Reader&) = delete;

    /// The document stays the reader's.
    xmlDoc* read(std::string_view text)
    {
        const ErrorTrap trap;
        mParser->myDoc =
            xmlCtxtReadMemory(mParser, text.data(), static_cast<int>(text.size()), nullptr, "UTF-8",
                              XML_PARSE_NONET | XML_PARSE_COMPACT | XML_PARSE_IGNORE_ENC);
        if (!mRefusal.empty()) {
            refuseDocument(mRefusal, mLine);
        }
        if (trap.caught()) {
            refuseDocument(trap.message(), trap.line());
        }
        if (mParser->myDoc == nullptr) {
            refuseDocument("it is not well-formed", 0);
        }
        return mParser->myDoc;
    }

private:
    static Reader& of(void* context)
    {
        return *static_cast<Reader*>(static_cast<xmlParserCtxt*>(context)->_private);
    }

    static void startElement(void* context, const xmlChar* name, const xmlChar* prefix,
                             const xmlChar* href, int namespaceCount, const xmlChar** namespaces,
                             int attributeCount, int defaulted, const xmlChar** attributes)
    {
        Reader& reader = of(context);
        if (reader.mParser->nodeNr >= kMaxDepth) {
            reader.stop("elements are nested deeper than " + std::to_string(kMaxDepth));
            return;
        }
        // The parser keeps prefix and name of each in two places.
        if (reader.mParser->nsNr > 2 * kMaxNamespaces) {
            reader.stop("more than " + std::to_string(kMaxNamespaces) +
                        " namespaces are declared at one place");
            return;
        }
        reader.mStartElement(context, name, prefix, href, namespaceCount, namespaces,
                             attributeCount, defaulted, attributes);
    }

    static void documentType(void* context, const xmlChar* /*name*/, const xmlChar* /*publicId*/,
                             const xmlChar* /*systemId*/)
    {
        of(context).stop("a document type declaration is not allowed");
    }

    static xmlEntity* noEntity(void* /*context*/, const xmlChar* name)
    {
        return xmlGetPredefinedEntity(name);
    }

    void stop(const std::string& why)
    {
        if (mRefusal.empty()) {
            mRefusal = why;
            mLine    = xmlSAX2GetLineNumber(mParser);
        }
        xmlStopParser(mParser);
    }

    xmlParserCtxt*         mParser;
    startElementNsSAX2Func mStartElement = nullptr;
    std::string            mRefusal;
    int                    mLine = 0;
};

/// With entities left alone, the parser leaves an ampersand in a schema name in its inner spelling.
/// Attributes are not concerned.
void spellOutAmpersands(xmlNs* declarations)
{
    constexpr std::string_view kInner = "&#38;";
    for (xmlNs* ns = declarations; ns != nullptr; ns = ns->next) {
        std::string href{detail::view(ns->href)};
        if (href.find(kInner) == std::string::npos) {
            continue;
        }
        for (std::size_t at = 0; (at = href.find(kInner, at)) != std::string::npos; ++at) {
            href.replace(at, kInner.size(), "&");
        }
        xmlFree(const_cast<xmlChar*>(ns->href));
        ns->href = xmlStrdup(detail::xml(href.c_str()));
    }
}

/// Brings a fresh tree into the shape of this model. White space that only sets elements apart is
/// dropped; where an element holds nothing else, white space is its value.
void settle(xmlDoc* doc)
{
    auto* top = reinterpret_cast<xmlNode*>(doc);
    for (xmlNode* node = top; node != nullptr; node = detail::nextInTree(node, top)) {
        if (!detail::isElement(node)) {
            continue;
        }
        spellOutAmpersands(node->nsDef);
        if (!detail::hasChildElement(node)) {
            continue;
        }
        for (xmlNode *child = node->children, *next = nullptr; child != nullptr; child = next) {
            next = child->next;
            if (child->type == XML_TEXT_NODE && xmlIsBlankNode(child) == 1) {
                xmlUnlinkNode(child);
                xmlFreeNode(child);
            }
        }
    }
}

void readInto(detail::DocumentState& state, std::string_view text)
{
    if (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    if (text.empty()) {
        refuseDocument("it is empty", 0);
    }
    if (text.size() > kMaxDocumentBytes) {
        refuseDocument("it is longer than " + std::to_string(kMaxDocumentBytes) + " bytes", 0);
    }
    if (!utf8::isValid(text)) {
        refuseDocument("it is not UTF-8", 0);
    }
    refuseCrowdedTags(text);
    Reader  reader{state.doc->dict};
    xmlDoc* fresh = reader.read(text);
    settle(fresh);
    state.replaceContent(fresh);
}

std::string readFile(const std::string& path)
{
    namespace fs = std::filesystem;
    std::error_code error;
    fs::path        place{path};
    if (!fs::exists(place, error) && path.find('\\') != std::string::npos) {
        // Paths are composed with "\\", also where that is no separator.
        std::string other = path;
        std::replace(other.begin(), other.end(), '\\', '/');
        place = other;
    }
    const fs::file_status status = fs::status(place, error);
    if (status.type() == fs::file_type::not_found) {
        throw failure(kFileNotFound);
    }
    if (!fs::is_regular_file(status)) {
        throw failure(kPathAccess);
    }
    std::ifstream file{place, std::ios::binary};
    if (!file) {
        throw failure(kPathAccess);
    }
    // One byte more than allowed is enough to see that a file is too long.
    const std::uintmax_t size  = fs::file_size(place, error);
    const std::size_t    limit = kMaxDocumentBytes + 1;
    std::string bytes(error || size > limit ? limit : static_cast<std::size_t>(size), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (file.bad()) {
        throw failure(kPathAccess);
    }
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

/// The encoding that the first bytes tell or the declaration names, empty for UTF-8.
std::string encodingOf(std::string_view bytes)
{
    using namespace std::string_view_literals;
    if (bytes.starts_with(kByteOrderMark)) {
        return {};
    }
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("<\0?\0"sv)) {
        return "UTF-16LE";
    }
    if (bytes.starts_with("\xFE\xFF") || bytes.starts_with("\0<\0?"sv)) {
        return "UTF-16BE";
    }
    if (!bytes.starts_with("<?xml")) {
        return {};
    }
    const std::string_view declaration = bytes.substr(0, bytes.find("?>"));
    constexpr auto         keyword     = "encoding"sv;
    const std::size_t      at          = declaration.find(keyword);
    if (at == std::string_view::npos) {
        return {};
    }
    const std::size_t open = declaration.find_first_of("\"'", at + keyword.size());
    if (open == std::string_view::npos) {
        return {};
    }
    const std::size_t close = declaration.find(declaration[open], open + 1);
    if (close == std::string_view::npos) {
        return {};
    }
    std::string name{declaration.substr(open + 1, close - open - 1)};
    return utf8::toUpper(name) == "UTF-8" ? std::string{} : name;
}

std::string toUtf8(std::string bytes)
{
    const std::string encoding = encodingOf(bytes);
    if (encoding.empty()) {
        return bytes;
    }
    if (bytes.size() > kMaxDocumentBytes) {
        return bytes; // refused for its length anyway
    }
    const ErrorTrap                                                                 trap;
    const std::unique_ptr<xmlCharEncodingHandler, int (*)(xmlCharEncodingHandler*)> handler{
        xmlFindCharEncodingHandler(encoding.c_str()), xmlCharEncCloseFunc};
    if (handler == nullptr) {
        refuseDocument("its encoding \"" + encoding + "\" is not known", 1);
    }
    struct BufferDeleter {
        void operator()(xmlBuffer* buffer) const noexcept { xmlBufferFree(buffer); }
    };
    const std::unique_ptr<xmlBuffer, BufferDeleter> in{xmlBufferCreate()};
    const std::unique_ptr<xmlBuffer, BufferDeleter> out{xmlBufferCreate()};
    if (in == nullptr || out == nullptr) {
        throw std::bad_alloc();
    }
    xmlBufferAdd(in.get(), detail::xml(bytes.data()), static_cast<int>(bytes.size()));
    // The converter stops at what it cannot read and leaves it in the buffer.
    if (xmlCharEncInFunc(handler.get(), out.get(), in.get()) < 0 ||
        xmlBufferLength(in.get()) != 0) {
        refuseDocument("it is not in its encoding \"" + encoding + "\"", 0);
    }
    return {reinterpret_cast<const char*>(xmlBufferContent(out.get())),
            static_cast<std::size_t>(xmlBufferLength(out.get()))};
}

} // namespace

IXMLDOMDocument IXMLDOMDocument::create()
{
    const auto state = std::make_shared<detail::DocumentState>();
    return IXMLDOMDocument{state->handle(state->root())};
}

void IXMLDOMDocument::loadXML(std::string_view text) const
{
    readInto(*detail::reach(mRef).document, text);
}

void IXMLDOMDocument::load(const std::string& path) const
{
    detail::DocumentState& state = *detail::reach(mRef).document;
    readInto(state, toUtf8(readFile(path)));
}

} // namespace quill::platform
