#include "shell/xml_patch.h"

#include "platform/utf8.h"

#include <algorithm>
#include <cstdint>

namespace quill::shell {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool skip(std::string_view xml, std::size_t& at, std::string_view begin, std::string_view end)
{
    if (!xml.substr(at).starts_with(begin)) {
        return false;
    }
    const auto found = xml.find(end, at + begin.size());
    at               = found == std::string_view::npos ? xml.size() : found + end.size();
    return true;
}

std::string_view withoutPrefix(std::string_view name)
{
    const auto colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

/// Reads the attributes from behind the name on; `at` ends at "/" or ">".
ElementPlace readAttributes(std::string_view xml, std::size_t& at)
{
    ElementPlace element{{}, at};
    for (;;) {
        at = std::min(xml.find_first_not_of(kBlanks, at), xml.size());
        if (at == xml.size() || xml[at] == '/' || xml[at] == '>') {
            return element;
        }
        const auto nameEnd = std::min(xml.find_first_of(" \t\r\n=", at), xml.size());
        const auto quote   = std::min(xml.find_first_of("\"'", nameEnd), xml.size() - 1);
        const auto close   = std::min(xml.find(xml[quote], quote + 1), xml.size() - 1);
        element.attributes.push_back({std::string{xml.substr(at, nameEnd - at)}, quote + 1, close});
        at = element.end = close + 1;
    }
}

} // namespace

std::vector<ElementPlace> findElements(std::string_view                     xml,
                                       const std::vector<std::string_view>& path)
{
    std::vector<ElementPlace> found;
    std::size_t               depth   = 0; // of open elements
    std::size_t               matched = 0; // how many of them, from the root on, follow the path
    std::size_t               at      = 0;
    while ((at = xml.find('<', at)) != std::string_view::npos) {
        if (skip(xml, at, "<!--", "-->") || skip(xml, at, "<![CDATA[", "]]>") ||
            skip(xml, at, "<?", "?>")) {
            continue;
        }
        if (xml.substr(at).starts_with("</")) {
            --depth;
            matched = std::min(matched, depth);
            ++at;
            continue;
        }
        const auto nameEnd = std::min(xml.find_first_of(" \t\r\n/>", at + 1), xml.size());
        const auto name    = withoutPrefix(xml.substr(at + 1, nameEnd - at - 1));
        const bool onPath  = matched == depth && depth < path.size() && path[depth] == name;
        at                 = nameEnd;
        auto element       = readAttributes(xml, at);
        if (onPath && depth + 1 == path.size()) {
            found.push_back(std::move(element));
        }
        if (at < xml.size() && xml[at] == '>') {
            matched += onPath ? 1 : 0;
            ++depth;
        }
    }
    return found;
}

std::string XmlPatch::escaped(std::string_view value) const
{
    std::string text;
    for (const std::string& character : platform::utf8::characters(value)) {
        const auto code = static_cast<std::uint32_t>(platform::utf8::codePoint(character));
        if (code == '&') {
            text += "&amp;";
        } else if (code == '<') {
            text += "&lt;";
        } else if (code == '"' || code == '\'' || code < 0x20 || (code > 0x7e && mAsciiOnly)) {
            text += "&#" + std::to_string(code) + ";";
        } else {
            text += character;
        }
    }
    return text;
}

void XmlPatch::set(const ElementPlace& element, std::string_view attribute, std::string_view value)
{
    const auto place = std::ranges::find(element.attributes, attribute, &AttributePlace::name);
    if (place != element.attributes.end()) {
        mChanges.push_back({place->begin, place->end, escaped(value)});
    } else {
        mChanges.push_back({element.end, element.end,
                            " " + std::string{attribute} + "=\"" + escaped(value) + "\""});
    }
}

std::string XmlPatch::text() const
{
    auto changes = mChanges;
    std::ranges::stable_sort(changes, {}, &Change::begin);
    std::string text;
    std::size_t at = 0;
    for (const Change& change : changes) {
        text.append(mText, at, change.begin - at);
        text += change.by;
        at = change.end;
    }
    return text.append(mText, at);
}

} // namespace quill::shell
