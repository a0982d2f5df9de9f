#include "shell/device_messages.h"

#include "framework/documents.h"
#include "platform/failure.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace quill::shell {

namespace {

using documents::attributeText;
using platform::Failure;
using platform::NodeType;

/// Elements below a node by their name without a prefix; all for an empty name.
std::vector<IXMLDOMNode> children(const IXMLDOMNode& node, const std::string& name)
{
    std::vector<IXMLDOMNode> found;
    for (const IXMLDOMNode& child : node.get_childNodes()) {
        if (child.get_nodeType() == NodeType::element &&
            (name.empty() || child.get_baseName() == name)) {
            found.push_back(child);
        }
    }
    return found;
}

} // namespace

std::string optionalAttribute(const IXMLDOMNode& element, std::string_view name)
{
    const IXMLDOMNode attribute = platform::attributeNode(element, name);
    return attribute ? attribute.get_text() : std::string{};
}

std::optional<double> numberIn(const std::string& text)
{
    double      value  = 0;
    const char* end    = text.data() + text.size();
    const auto  result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc{} && result.ptr == end && std::isfinite(value)
               ? std::optional{value}
               : std::nullopt;
}

DeviceRequest DeviceRequest::parse(const std::string& xml)
{
    const IXMLDOMDocument document = documents::openText(xml);
    IXMLDOMNode           element  = document.get_documentElement();
    if (element.get_baseName() != "communicationRequest") {
        const auto inside = children(element, "communicationRequest");
        if (inside.empty()) {
            throw Failure(platform::kInvalidCall, "no communicationRequest");
        }
        element = inside.front();
    }
    DeviceRequest request;
    request.name   = attributeText(element, "name");
    request.access = attributeText(element, "access");
    for (const IXMLDOMNode& item : children(element, "item")) {
        const auto values = children(item, "");
        request.items.push_back({attributeText(item, "name"), optionalAttribute(item, "unit"),
                                 values.empty() ? std::string{} : values.front().get_text()});
    }
    return request;
}

const DeviceRequestItem* DeviceRequest::find(const std::string& item) const
{
    const auto found = std::ranges::find(items, item, &DeviceRequestItem::name);
    return found == items.end() ? nullptr : &*found;
}

DeviceResponse::DeviceResponse(const DeviceRequest& request, const std::string& errorCode)
    : DeviceResponse(request.name, request.access, errorCode)
{
}

DeviceResponse::DeviceResponse(const std::string& name, const std::string& access,
                               const std::string& errorCode)
    : mDocument(IXMLDOMDocument::create())
{
    const IXMLDOMNode root = mDocument.appendChild(element("dtm"));
    mResponse              = root.appendChild(element("communicationResponse"));
    documents::writeAttribute(mResponse, "name", name);
    documents::writeAttribute(mResponse, "access", access);
    documents::writeAttribute(mResponse, "responseStatus", errorCode.empty() ? "ok" : "error");
    documents::writeAttribute(mResponse, "errorCode", errorCode);
    documents::writeAttribute(mResponse, "isFinal", "0");
}

void DeviceResponse::addItem(const std::string& name, const std::string& unit,
                             const std::string& type, const std::string& value)
{
    const IXMLDOMNode item = appendItem(name);
    documents::writeAttribute(item, "unit", unit.empty() ? documents::kNoUnit : unit);
    item.appendChild(element(type)).put_text(value);
}

void DeviceResponse::addItem(const std::string& name)
{
    appendItem(name);
}

void DeviceResponse::makeFinal()
{
    documents::writeAttribute(mResponse, "isFinal", "1");
}

IXMLDOMNode DeviceResponse::appendItem(const std::string& name)
{
    const IXMLDOMNode item = mResponse.appendChild(element("item"));
    documents::writeAttribute(item, "name", name);
    return item;
}

IXMLDOMNode DeviceResponse::element(const std::string& name) const
{
    return mDocument.createNode(NodeType::element, name, documents::kCommunicationSchema);
}

std::vector<std::string> messageTexts(std::vector<DeviceResponse> parts)
{
    std::vector<std::string> texts;
    if (!parts.empty()) {
        parts.back().makeFinal();
    }
    std::ranges::transform(parts, std::back_inserter(texts), &DeviceResponse::xml);
    return texts;
}

std::vector<std::string> refusal(const DeviceRequest& request, const std::string& errorCode)
{
    DeviceResponse response{request, errorCode};
    for (const DeviceRequestItem& item : request.items) {
        response.addItem(item.name);
    }
    return messageTexts({std::move(response)});
}

void Refusals::add(const std::string& errorCode, const std::string& item)
{
    const auto found =
        std::ranges::find(mByCode, errorCode, [](const auto& entry) { return entry.first; });
    if (found == mByCode.end()) {
        mByCode.push_back({errorCode, {item}});
    } else {
        found->second.push_back(item);
    }
}

void Refusals::appendTo(std::vector<DeviceResponse>& parts, const DeviceRequest& request) const
{
    for (const auto& [code, items] : mByCode) {
        DeviceResponse& response = parts.emplace_back(request, code);
        for (const std::string& item : items) {
            response.addItem(item);
        }
    }
}

} // namespace quill::shell
