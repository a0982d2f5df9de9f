#include "shell/device.h"

#include "framework/documents.h"
#include "framework/shared_value_list.h"
#include "framework/steps.h"
#include "framework/values.h"
#include "platform/date_time.h"
#include "platform/failure.h"
#include "platform/utf8.h"
#include "shell/units.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quill::shell {

namespace {

using documents::attributeText;
using platform::Failure;
using platform::NodeType;

constexpr const char* kMissing       = "missingItems";
constexpr const char* kUnknown       = "commandIsNotImplemented";
constexpr const char* kWrongValue    = "hartCmdErrInvalidSelection";
constexpr const char* kNotWritable   = "hartCmdErrAccessRestricted";
constexpr const char* kNotUnderstood = "communicationError";

std::string optionalAttribute(const IXMLDOMNode& element, std::string_view name)
{
    const IXMLDOMNode attribute = platform::attributeNode(element, name);
    return attribute ? attribute.get_text() : std::string{};
}

std::optional<double> number(const std::string& text)
{
    double      value  = 0;
    const char* end    = text.data() + text.size();
    const auto  result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc{} && result.ptr == end && std::isfinite(value)
               ? std::optional{value}
               : std::nullopt;
}

/// Elements below a node by their name without a prefix: a request may come in the messages'
/// namespace or in none.
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

/// Three whole numbers with the same separator between, as "d.m.yyyy" and "h:n:s" are written.
std::optional<std::array<int, 3>> triple(const std::string& text, char separator)
{
    std::array<int, 3> parts{};
    const char*        at  = text.data();
    const char*        end = at + text.size();
    for (int& part : parts) {
        const auto result = std::from_chars(at, end, part);
        if (result.ec != std::errc{}) {
            return std::nullopt;
        }
        at = result.ptr;
        if (&part != &parts.back() && (at == end || *at++ != separator)) {
            return std::nullopt;
        }
    }
    return at == end ? std::optional{parts} : std::nullopt;
}

bool isDateOrTime(const std::string& text)
{
    if (const auto date = triple(text, '.')) {
        return platform::isValid({(*date)[2], (*date)[1], (*date)[0], 0, 0, 0});
    }
    const auto time = triple(text, ':');
    return time && platform::isValid({2000, 1, 1, (*time)[0], (*time)[1], (*time)[2]});
}

/// A `communicationResponse` under construction.
class Response {
public:
    Response(const std::string& name, const std::string& access, const std::string& errorCode)
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

    IXMLDOMNode addItem(const std::string& name)
    {
        const IXMLDOMNode item = mResponse.appendChild(element("item"));
        documents::writeAttribute(item, "name", name);
        return item;
    }
    void addItem(const std::string& name, const DeviceParameter& parameter)
    {
        const IXMLDOMNode item = addItem(name);
        documents::writeAttribute(item, "unit",
                                  parameter.unit.empty() ? documents::kNoUnit : parameter.unit);
        item.appendChild(element(parameter.type)).put_text(parameter.value);
    }
    void makeFinal() { documents::writeAttribute(mResponse, "isFinal", "1"); }

    [[nodiscard]] bool        isEmpty() const { return !mResponse.get_firstChild(); }
    [[nodiscard]] std::string xml() const { return mDocument.get_xml(); }

private:
    [[nodiscard]] IXMLDOMNode element(const std::string& name) const
    {
        return mDocument.createNode(NodeType::element, name, documents::kCommunicationSchema);
    }

    IXMLDOMDocument mDocument;
    IXMLDOMNode     mResponse;
};

} // namespace

struct SimulatedDevice::Request {
    std::string              name;
    std::string              access;
    std::vector<RequestItem> items;

    explicit Request(const std::string& xml)
    {
        const IXMLDOMDocument document = documents::openText(xml);
        IXMLDOMNode           request  = document.get_documentElement();
        if (request.get_baseName() != "communicationRequest") {
            const auto inside = children(request, "communicationRequest");
            if (inside.empty()) {
                throw Failure(platform::kInvalidCall, "no communicationRequest");
            }
            request = inside.front();
        }
        name   = attributeText(request, "name");
        access = attributeText(request, "access");
        for (const IXMLDOMNode& item : children(request, "item")) {
            const auto values = children(item, "");
            items.push_back({attributeText(item, "name"), optionalAttribute(item, "unit"),
                             values.empty() ? std::string{} : values.front().get_text()});
        }
    }
};

/// What a request asked for in vain, by error code.
struct SimulatedDevice::Refusals {
    std::vector<std::pair<std::string, std::vector<std::string>>> byCode;

    void add(const std::string& code, const std::string& item)
    {
        const auto found = std::ranges::find(byCode, code, [](const auto& c) { return c.first; });
        if (found == byCode.end()) {
            byCode.push_back({code, {item}});
        } else {
            found->second.push_back(item);
        }
    }
};

SimulatedDevice::SimulatedDevice(const IXMLDOMNode& datafile, const std::string& memory)
{
    addParameters(datafile);
    addGroups(datafile);
    if (!memory.empty()) {
        loadMemory(memory);
    }
}

void SimulatedDevice::addParameters(const IXMLDOMNode& datafile)
{
    const Steps silent = silentSteps();
    for (const IXMLDOMNode& node :
         datafile.selectNodes("./data:dtm/data:persistentData/data:parameters/data:parameter")) {
        const std::string name = attributeText(node, "name");
        DeviceParameter   parameter;
        parameter.type     = attributeText(node, "type");
        parameter.value    = optionalAttribute(node, "value");
        parameter.unit     = optionalAttribute(node, "unit");
        parameter.minimum  = number(optionalAttribute(node, "minVal"));
        parameter.maximum  = number(optionalAttribute(node, "maxVal"));
        parameter.writable = values::containsNoCase(optionalAttribute(node, "access"), "write");
        // A parameter with limits is a number, also where a list names its bits.
        if (values::isNumericType(parameter.type) && !parameter.minimum && !parameter.maximum) {
            IXMLDOMNode list = documents::findMappedParam(datafile, name);
            if (!list) {
                list = modView::findSharedValueList(silent, nullptr, "ctr_" + name, datafile);
            }
            if (list) {
                for (const IXMLDOMNode& mapping : children(list, "mapping")) {
                    parameter.choices.insert(attributeText(mapping, "value"));
                }
            }
        }
        mParameters.try_emplace(name, std::move(parameter));
    }
}

void SimulatedDevice::addGroups(const IXMLDOMNode& datafile)
{
    for (const IXMLDOMNode& group :
         datafile.selectNodes("./data:dtm/data:requestGroups/data:requestGroup")) {
        auto& members = mGroups[attributeText(group, "name")];
        for (const IXMLDOMNode& listing : children(group, "includedParam")) {
            members.push_back(attributeText(listing, "name"));
        }
    }
}

void SimulatedDevice::loadMemory(const std::string& memory)
{
    const IXMLDOMDocument document = documents::openText(memory);
    for (const IXMLDOMNode& item : document.selectNodes("//comm:item")) {
        const auto found = mParameters.find(attributeText(item, "name"));
        if (found == mParameters.end()) {
            continue;
        }
        DeviceParameter&  parameter = found->second;
        const std::string unit      = attributeText(item, "unit");
        if (unit != documents::kNoUnit && unit != parameter.unit) {
            for (auto* limit : {&parameter.minimum, &parameter.maximum}) {
                if (*limit) {
                    *limit = convertUnit(**limit, parameter.unit, unit);
                }
            }
            parameter.unit = unit;
        }
        parameter.value = documents::itemValue(item, parameter.type);
    }
}

std::vector<std::string> SimulatedDevice::answer(const std::string& requestXml)
{
    std::optional<Request> request;
    try {
        request.emplace(requestXml);
    } catch (const Failure&) {
        // A device that understands nothing says nothing, and the host's driver reports that.
        Response response{"", "", kNotUnderstood};
        response.makeFinal();
        return {response.xml()};
    }
    const auto group = mGroups.find(request->name);
    if (request->items.empty() && group != mGroups.end()) {
        for (const std::string& member : group->second) {
            request->items.push_back({member, {}, {}});
        }
    }

    std::vector<Response> responses;
    if (!mPrepared.empty()) {
        const PreparedFailure failure = std::move(mPrepared.front());
        mPrepared.pop_front();
        Response& response =
            responses.emplace_back(request->name, request->access, failure.errorCode);
        for (const std::string& item : failure.items) {
            response.addItem(item);
        }
        if (failure.items.empty()) {
            for (const auto& item : request->items) {
                response.addItem(item.name);
            }
        }
    } else if ((request->items.empty() && group == mGroups.end()) ||
               (request->access != "read" && request->access != "write")) {
        responses.emplace_back(request->name, request->access, kUnknown);
    } else {
        Refusals refusals;
        Response served{request->name, request->access, ""};
        for (const RequestItem& item : request->items) {
            if (const DeviceParameter* parameter =
                    serve(item, request->access == "write", refusals)) {
                served.addItem(item.name, *parameter);
            }
        }
        if (!served.isEmpty() || refusals.byCode.empty()) {
            responses.push_back(std::move(served));
        }
        for (const auto& [code, items] : refusals.byCode) {
            Response& response = responses.emplace_back(request->name, request->access, code);
            for (const std::string& item : items) {
                response.addItem(item);
            }
        }
    }
    responses.back().makeFinal();

    std::vector<std::string> texts;
    for (const Response& response : responses) {
        texts.push_back(response.xml());
    }
    return texts;
}

const DeviceParameter* SimulatedDevice::serve(const RequestItem& item, bool isWrite,
                                              Refusals& refusals)
{
    if (const auto failing = mFailing.find(item.name); failing != mFailing.end()) {
        refusals.add(failing->second, item.name);
        return nullptr;
    }
    const auto found = mParameters.find(item.name);
    if (found == mParameters.end()) {
        refusals.add(kMissing, item.name);
        return nullptr;
    }
    if (isWrite && !found->second.writable) {
        refusals.add(kNotWritable, item.name);
        return nullptr;
    }
    if (isWrite && !write(found->second, item)) {
        refusals.add(kWrongValue, item.name);
        return nullptr;
    }
    return &found->second;
}

bool SimulatedDevice::write(DeviceParameter& parameter, const RequestItem& item)
{
    if (!values::isNumericType(parameter.type)) {
        if (parameter.type == "dateVal" && !isDateOrTime(item.value)) {
            return false;
        }
        auto characters = platform::utf8::characters(item.value);
        if (parameter.maximum && static_cast<double>(characters.size()) > *parameter.maximum) {
            characters.resize(static_cast<std::size_t>(std::max(0.0, *parameter.maximum)));
        }
        parameter.value.clear();
        for (const std::string& character : characters) {
            parameter.value += character;
        }
        return true;
    }

    const auto given = number(item.value);
    if (!given) {
        return false;
    }
    double     taken  = *given;
    const bool noUnit = item.unit.empty() || item.unit == documents::kNoUnit;
    if (!noUnit && item.unit != parameter.unit) {
        const auto converted = convertUnit(taken, item.unit, parameter.unit);
        if (!converted) {
            return false;
        }
        taken = *converted;
    }
    if (values::isIntegerType(parameter.type)) {
        taken = std::nearbyint(taken);
    }
    if (!parameter.choices.empty() &&
        std::ranges::none_of(parameter.choices,
                             [&](const std::string& choice) { return number(choice) == taken; })) {
        return false;
    }
    taken = std::max(taken, parameter.minimum.value_or(taken));
    taken = std::min(taken, parameter.maximum.value_or(taken));
    // A value that is taken as it came keeps its digits.
    parameter.value =
        taken == *given ? item.value : values::documentText(static_cast<float>(taken));
    return true;
}

void SimulatedDevice::failNext(const std::string& errorCode, std::vector<std::string> items)
{
    mPrepared.push_back({errorCode, std::move(items)});
}

void SimulatedDevice::failAlways(const std::string& parameter, const std::string& errorCode)
{
    if (errorCode.empty()) {
        mFailing.erase(parameter);
    } else {
        mFailing[parameter] = errorCode;
    }
}

const DeviceParameter* SimulatedDevice::find(const std::string& parameter) const
{
    const auto found = mParameters.find(parameter);
    return found == mParameters.end() ? nullptr : &found->second;
}

void SimulatedDevice::set(const std::string& parameter, const std::string& value)
{
    const auto found = mParameters.find(parameter);
    if (found == mParameters.end()) {
        throw Failure(platform::kInvalidCall, "the device has no parameter " + parameter);
    }
    found->second.value = value;
}

} // namespace quill::shell
