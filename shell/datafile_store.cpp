#include "shell/datafile_store.h"

#include "framework/documents.h"
#include "framework/values.h"
#include "platform/failure.h"
#include "platform/toolkit.h"
#include "shell/units.h"
#include "shell/xml_patch.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

namespace quill::shell {

namespace {

using platform::Failure;

constexpr const char* kInStep    = "1";
constexpr const char* kNotRead   = "2";
constexpr const char* kNotInStep = "0";

constexpr const char* kParameterPath =
    "./data:dtm/data:persistentData/data:parameters/data:parameter";

// Places in the text are paired with nodes, so both go by names without prefixes.
const std::vector<std::string_view> kParameterElements{"dtm", "persistentData", "parameters",
                                                       "parameter"};
const std::vector<std::string_view> kGroupElements{"dtm", "requestGroups", "requestGroup"};

/// The nodes at such a path, whatever their namespaces.
IXMLDOMNodeList nodesAt(const IXMLDOMDocument& document, const std::vector<std::string_view>& path)
{
    std::string expression = ".";
    for (const std::string_view name : path) {
        expression += "/*[local-name()='" + std::string{name} + "']";
    }
    return document.selectNodes(expression);
}

bool isOfDatafile(const IXMLDOMNode& element)
{
    return element.get_namespaceURI() == documents::kDatafileSchema;
}

std::string attribute(const IXMLDOMNode& element, std::string_view name)
{
    const IXMLDOMNode node = platform::attributeNode(element, name);
    return node ? node.get_text() : std::string{};
}

ParameterContent read(const IXMLDOMNode& parameter)
{
    return {attribute(parameter, "value"), attribute(parameter, "unit"),
            attribute(parameter, "synchronised")};
}

void write(const IXMLDOMNode& parameter, const ParameterContent& content)
{
    const std::pair<const char*, const std::string&> attributes[]{
        {"value", content.value}, {"unit", content.unit}, {"synchronised", content.synchronised}};
    for (const auto& [name, text] : attributes) {
        if (attribute(parameter, name) != text) {
            documents::writeAttribute(parameter, name, text);
        }
    }
}

bool isPlain(const std::string& unit)
{
    return unit.empty() || unit == documents::kNoUnit;
}

/// An editor writes "noUnit" where the datafile has an empty unit or none.
bool isSameUnit(const std::string& a, const std::string& b)
{
    return a == b || (isPlain(a) && isPlain(b));
}

bool isSameValue(const ParameterContent& a, const ParameterContent& b)
{
    return a.value == b.value && isSameUnit(a.unit, b.unit);
}

/// The form of `lastUpdate`.
std::string datafileTime(const platform::DateTime& time)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%02d.%02d.%04d %02d:%02d:%02d", time.day, time.month,
                  time.year, time.hour, time.minute, time.second);
    return text.data();
}

/// Items below a message, with or without a namespace.
std::vector<IXMLDOMNode> items(const IXMLDOMNode& message)
{
    std::vector<IXMLDOMNode> found;
    for (const IXMLDOMNode& item : message.selectNodes("//*[local-name()='item' and @name]")) {
        found.push_back(item);
    }
    return found;
}

/// Text of the element in an item, whatever its type; nothing for an item without one.
IXMLDOMNode valueElement(const IXMLDOMNode& item)
{
    for (const IXMLDOMNode& child : item.get_childNodes()) {
        if (child.get_nodeType() == platform::NodeType::element) {
            return child;
        }
    }
    return {};
}

IXMLDOMDocument parse(const std::string& text)
{
    try {
        return documents::openText(text);
    } catch (const Failure& failure) {
        throw Failure(failure.number(), "shell_errNoDatafile#" + failure.description());
    }
}

} // namespace

bool DatafileStore::Parameter::isEdited() const
{
    const ParameterContent now = read(node);
    if (edit == Edit::error || isSameValue(now, settled) || (echo && isSameValue(now, *echo))) {
        return false;
    }
    // An editor whose parameter is not in step compares with nothing: it calls "original" what the
    // user has emptied.
    const bool comparesWithNothing = settled.synchronised != kInStep &&
                                     settled.synchronised != kNotRead && !settled.value.empty();
    return edit != Edit::none || comparesWithNothing;
}

void DatafileStore::Parameter::settle(const ParameterContent& content)
{
    settled = content;
    echo.reset();
    write(node, settled);
}

DatafileStore::DatafileStore(FileOperations& operations) : mOperations(operations) {}

DatafileStore::~DatafileStore() = default;

void DatafileStore::load(const std::string& path)
{
    open(readFile(path), path);
}

void DatafileStore::loadBytes(const std::string& bytes)
{
    open(bytes, {});
}

void DatafileStore::open(const std::string& bytes, const std::string& path)
{
    const TextEncoding    encoding{bytes};
    const std::string     text     = encoding.decode(bytes);
    const IXMLDOMDocument document = parse(text);
    if (!document.selectSingleNode("./data:dtm")) {
        throw Failure(platform::kInvalidCall,
                      "shell_errNoDatafile#" + (path.empty() ? "dtm" : path));
    }
    std::map<std::string, Parameter> parameters;
    for (const IXMLDOMNode& node : document.selectNodes(kParameterPath)) {
        Parameter parameter;
        parameter.node    = node;
        parameter.settled = read(node);
        parameters.try_emplace(attribute(node, "name"), std::move(parameter));
    }

    mPath       = path;
    mBytes      = bytes;
    mEncoding   = encoding;
    mDocument   = document;
    mParameters = std::move(parameters);
    mLoading    = 0;
    mResponse   = nullptr;
    mReported.clear();
}

DatafileStore::Parameter* DatafileStore::find(const std::string& name)
{
    const auto found = mParameters.find(name);
    return found == mParameters.end() ? nullptr : &found->second;
}

void DatafileStore::settle()
{
    for (auto& [name, parameter] : mParameters) {
        if (!parameter.isEdited()) {
            write(parameter.node, parameter.settled);
        }
    }
}

void DatafileStore::beginLoading()
{
    if (mLoading++ > 0) {
        return;
    }
    settle();
    for (auto& [name, parameter] : mParameters) {
        parameter.beforeLoading = read(parameter.node);
    }
}

void DatafileStore::endLoading()
{
    if (mLoading == 0 || --mLoading > 0) {
        return;
    }
    for (auto& [name, parameter] : mParameters) {
        const ParameterContent now = read(parameter.node);
        if (!isSameValue(now, parameter.beforeLoading) &&
            isSameValue(parameter.beforeLoading, parameter.settled)) {
            parameter.echo = now;
        }
        write(parameter.node, parameter.beforeLoading);
    }
}

void DatafileStore::beginResponse(const IXMLDOMNode& response, ReadBy who)
{
    mResponse = response;
    mReadBy   = who;
    mReported.clear();
}

void DatafileStore::endResponse()
{
    if (!mResponse) {
        return;
    }
    const std::string status = documents::responseAttribute(mResponse, "responseStatus");
    const std::string code   = documents::responseAttribute(mResponse, "errorCode");
    const auto        all    = items(mResponse);
    bool              named  = false; // a parameter
    // What no editor shows is read all the same.
    for (const IXMLDOMNode& item : all) {
        const std::string name      = attribute(item, "name");
        Parameter*        parameter = find(name);
        named                       = named || parameter != nullptr;
        if (!parameter || mReported.contains(name)) {
            continue;
        }
        if (status == "ok") {
            take(*parameter, item, kInStep);
        } else if (code == "communicationError") {
            setParameterState(name, "syncError");
        }
    }
    if (status == "ok" && named && mReadBy == ReadBy::user &&
        documents::responseAttribute(mResponse, "access") == "read") {
        const std::string name = documents::responseAttribute(mResponse, "name");
        if (const IXMLDOMNode group = documents::findRequestGroup(mDocument, name)) {
            documents::writeAttribute(group, "lastUpdate",
                                      datafileTime(platform::Toolkit::current().now()));
        }
    }
    mResponse = nullptr;
    settle();
}

void DatafileStore::take(Parameter& parameter, const IXMLDOMNode& item, const std::string& mark)
{
    const IXMLDOMNode element = valueElement(item);
    if (!element) {
        return;
    }
    ParameterContent  content{element.get_text(), parameter.settled.unit, mark};
    const std::string unit = attribute(item, "unit");
    // The limits in the datafile are in the datafile's unit, so the value goes there too.
    if (!isPlain(unit) && !isPlain(content.unit) && unit != content.unit &&
        content.value != "NaN" && content.value != "-Inf" && !content.value.empty()) {
        const auto converted =
            convertUnit(values::parseDocument(content.value), unit, content.unit);
        if (converted) {
            content.value = values::documentText(static_cast<float>(*converted));
        } else {
            content.unit = unit;
        }
    }
    parameter.edit = Parameter::Edit::none;
    parameter.settle(content);
}

void DatafileStore::setParameterState(const std::string& name, const std::string& state)
{
    Parameter* parameter = find(name);
    if (!parameter) {
        return;
    }
    using Edit = Parameter::Edit;
    if (state == "edited" || state == "corrected") {
        parameter->edit = Edit::correct;
    } else if (state == "editedError") {
        parameter->edit = Edit::error;
    } else if (state == "original") {
        parameter->edit = Edit::none;
    } else if (mLoading > 0) {
        // An editor that loads a value only repeats the mark it has found.
        return;
    } else if (state == "syncError") {
        mReported.insert(name);
        parameter->settled.synchronised = kNotRead;
    } else if (state == "sync" || state == "reSync") {
        mReported.insert(name);
        const IXMLDOMNode item = mResponse ? documents::findItem(mResponse, name) : IXMLDOMNode{};
        if (item && valueElement(item)) {
            // A value that is "local" did not come from the device.
            if (documents::responseAttribute(mResponse, "responseStatus") == "ok") {
                take(*parameter, item, kInStep);
            }
        } else {
            // The device refused, and the editor takes what it shows as the device's.
            ParameterContent shown = read(parameter->node);
            shown.synchronised     = kInStep;
            if (isSameUnit(shown.unit, parameter->settled.unit)) {
                shown.unit = parameter->settled.unit;
            }
            parameter->edit = Edit::none;
            parameter->settle(shown);
        }
    }
}

void DatafileStore::keepSent(const IXMLDOMNode& request)
{
    for (const IXMLDOMNode& item : items(request)) {
        Parameter* parameter = find(attribute(item, "name"));
        if (parameter && parameter->edit == Parameter::Edit::none &&
            !isSameValue(read(parameter->node), parameter->settled)) {
            parameter->edit = Parameter::Edit::sent;
        }
    }
}

bool DatafileStore::hasSent() const
{
    return std::ranges::any_of(
        mParameters, [](const auto& entry) { return entry.second.edit == Parameter::Edit::sent; });
}

void DatafileStore::accept(const IXMLDOMNode& request)
{
    for (const IXMLDOMNode& item : items(request)) {
        if (Parameter* parameter = find(attribute(item, "name"))) {
            // The editor goes on calling the value edited: the device does not have it.
            const auto edit = parameter->edit;
            take(*parameter, item, kNotInStep);
            parameter->edit = edit;
        }
    }
}

ParameterContent DatafileStore::toSave(const Parameter& parameter) const
{
    if (!parameter.isEdited()) {
        return parameter.settled;
    }
    ParameterContent edit = read(parameter.node);
    if (isSameUnit(edit.unit, parameter.settled.unit)) {
        edit.unit = parameter.settled.unit;
    }
    edit.synchronised = kNotInStep;
    return edit;
}

bool DatafileStore::isEdited(const std::string& name) const
{
    const auto found = mParameters.find(name);
    return found != mParameters.end() &&
           (found->second.edit == Parameter::Edit::error || found->second.isEdited());
}

ParameterContent DatafileStore::content(const std::string& name) const
{
    const auto found = mParameters.find(name);
    if (found == mParameters.end()) {
        throw Failure(platform::kInvalidCall, "no parameter " + name);
    }
    return toSave(found->second);
}

std::string DatafileStore::patchedText() const
{
    const std::string                                     text   = mEncoding.decode(mBytes);
    const IXMLDOMDocument                                 onDisk = parse(text);
    XmlPatch                                              patch{text, !mEncoding.isUnicode()};
    std::vector<std::pair<std::string, ParameterContent>> changed;

    const auto parameters  = nodesAt(onDisk, kParameterElements);
    const auto places      = findElements(text, kParameterElements);
    const auto groups      = nodesAt(onDisk, kGroupElements);
    const auto groupPlaces = findElements(text, kGroupElements);
    if (places.size() != static_cast<std::size_t>(parameters.get_length()) ||
        groupPlaces.size() != static_cast<std::size_t>(groups.get_length())) {
        throw Failure(platform::kInvalidCall, "shell_errPatch#dtm");
    }
    std::set<std::string> seen;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const IXMLDOMNode node  = parameters.get_item(static_cast<long>(i));
        const std::string name  = attribute(node, "name");
        const auto        found = mParameters.find(name);
        // Of equal names the first is the one that everybody means.
        if (!isOfDatafile(node) || found == mParameters.end() || !seen.insert(name).second) {
            continue;
        }
        const ParameterContent was = read(node);
        const ParameterContent now = toSave(found->second);
        const auto set = [&](const char* what, const std::string& a, const std::string& b) {
            if (a != b) {
                patch.set(places[i], what, b);
                changed.emplace_back(name, now);
            }
        };
        set("value", was.value, now.value);
        set("unit", was.unit, now.unit);
        set("synchronised", was.synchronised, now.synchronised);
    }
    for (std::size_t i = 0; i < groupPlaces.size(); ++i) {
        const IXMLDOMNode node = groups.get_item(static_cast<long>(i));
        const IXMLDOMNode here = documents::findRequestGroup(mDocument, attribute(node, "name"));
        if (here && isOfDatafile(node) &&
            attribute(here, "lastUpdate") != attribute(node, "lastUpdate")) {
            patch.set(groupPlaces[i], "lastUpdate", attribute(here, "lastUpdate"));
        }
    }
    if (patch.isEmpty()) {
        return text;
    }

    // A file that nobody could read again, or that says something else, is never written.
    std::string patched = patch.text();
    std::string place   = "dtm";
    try {
        const IXMLDOMDocument again = documents::openText(patched);
        for (const auto& [name, content] : changed) {
            place                    = name;
            const ParameterContent r = read(documents::findParameter(again, name));
            if (!isSameValue(r, content) || r.synchronised != content.synchronised) {
                throw Failure(platform::kInvalidCall, name);
            }
        }
    } catch (const Failure&) {
        if (place == "dtm" && !changed.empty()) {
            place = changed.front().first;
        }
        throw Failure(platform::kInvalidCall, "shell_errPatch#" + place);
    }
    return patched;
}

std::string DatafileStore::bytes() const
{
    return isOpen() ? mEncoding.encode(patchedText()) : std::string{};
}

bool DatafileStore::hasUnsavedChanges() const
{
    const bool wrong = std::ranges::any_of(
        mParameters, [](const auto& entry) { return entry.second.edit == Parameter::Edit::error; });
    try {
        return wrong || bytes() != mBytes;
    } catch (const Failure&) {
        return true;
    }
}

std::size_t DatafileStore::editCount() const
{
    return static_cast<std::size_t>(std::ranges::count_if(mParameters, [](const auto& entry) {
        return entry.second.edit == Parameter::Edit::correct ||
               entry.second.edit == Parameter::Edit::error;
    }));
}

void DatafileStore::save(const std::string& path)
{
    if (path.empty()) {
        throw Failure(platform::kPathNotFound, "shell_errNoName");
    }
    const std::string now = bytes();
    replaceFile(path, now, mOperations);
    mPath  = path;
    mBytes = now;
}

} // namespace quill::shell
