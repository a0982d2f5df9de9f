#include "probe/session.h"

#include "framework/documents.h"
#include "probe/convert.h"
#include "probe/doors.h"
#include "probe/host_events.h"
#include "probe/properties.h"
#include "probe/toolkit_properties.h"

#include <cmath>
#include <exception>
#include <filesystem>
#include <map>

namespace quill::probe {

namespace {

constexpr const char* kToolkit = "toolkit";
/// Farthest that one line moves the clock: about thirty years.
constexpr double kMaxSeconds = 1e9;

CallResult resultOf(Reply value)
{
    CallResult answer;
    answer.result = std::move(value);
    return answer;
}

/// `"args"` or `"index"` as a list: one value stands for a list of one.
Json listField(const Json& line, const char* key)
{
    const Json* value = find(line, key);
    if (value == nullptr) {
        return Json::array();
    }
    return value->is_array() ? *value : Json::array({*value});
}

Json arguments(const Json& line)
{
    const Json* args = find(line, "args");
    return args == nullptr ? Json::array() : asArray(*args);
}

Placement placementOf(const Json& line)
{
    Placement placement;
    placement.name   = textField(line, "name");
    placement.tag    = textOr(line, "tag", "");
    placement.on     = textOr(line, "on", "");
    placement.frame  = textOr(line, "frame", "");
    placement.attach = boolOr(line, "messenger", true);
    if (const Json* index = find(line, "index")) {
        placement.index = static_cast<int>(asInteger(*index, 0, 32767));
    }
    return placement;
}

IXMLDOMDocument openFile(const std::string& path)
{
    // A pipe or a device would keep the probe waiting.
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        throw platform::failure(platform::kFileNotFound);
    }
    if (!std::filesystem::is_regular_file(path, error)) {
        throw platform::failure(platform::kPathAccess);
    }
    return documents::openFile(path);
}

void removeNode(const IXMLDOMNode& node)
{
    const auto parent = node.selectSingleNode("..");
    if (node.get_nodeType() == platform::NodeType::attribute) {
        (void)parent.get_attributes().removeNamedItem(node.get_nodeName());
    } else {
        (void)parent.removeChild(node);
    }
}

void writeText(const IXMLDOMNode& node, const std::string& value)
{
    if (node.get_nodeType() == platform::NodeType::element) {
        node.put_text(value);
    } else {
        node.put_nodeValue(value);
    }
}

Reply errorReply(int number, const std::string& description)
{
    Reply reply;
    reply["ok"]                   = false;
    reply["error"]["number"]      = number;
    reply["error"]["description"] = description;
    return reply;
}

Reply okReply(CallResult answer)
{
    Reply reply;
    reply["ok"] = true;
    if (answer.result) {
        reply["result"] = std::move(*answer.result);
    }
    if (!answer.out.empty()) {
        reply["out"] = std::move(answer.out);
    }
    return reply;
}

} // namespace

Session::Session(Sink sink)
    : mOutput(std::move(sink)),
      mHost(mOutput, [this](const platform::Widget& widget) { return mScene.nameOf(widget); }),
      mScene(mHost, mOutput)
{
    platform::Toolkit::setCurrent(&mHost.toolkit());
}

Session::~Session() = default;

bool Session::line(std::string_view text)
{
    Reply reply;
    bool  isOk = false;
    try {
        reply = okReply(perform(parseLine(text)));
        isOk  = true;
    } catch (const platform::Failure& failure) {
        reply = errorReply(failure.number(), failure.description());
    } catch (const std::exception& error) {
        reply = errorReply(platform::kInvalidCall, error.what());
    }
    mAllOk = mAllOk && isOk;
    mOutput.line(reply);
    return isOk;
}

CallResult Session::perform(const Json& line)
{
    using Operation = CallResult (Session::*)(const Json&);
    static const std::map<std::string, Operation> operations{
        {"host", &Session::host},       {"document", &Session::document},
        {"xml", &Session::xml},         {"edit", &Session::edit},
        {"page", &Session::page},       {"create", &Session::create},
        {"call", &Session::call},       {"set", &Session::set},
        {"get", &Session::get},         {"do", &Session::userDoor},
        {"raise", &Session::raise},     {"dump", &Session::dumpControl},
        {"release", &Session::release}, {"advance", &Session::advance},
    };
    const std::string name  = textField(line, "op");
    const auto        found = operations.find(name);
    if (found == operations.end()) {
        throw invalid("there is no operation \"" + name + "\"");
    }
    return (this->*found->second)(line);
}

CallResult Session::host(const Json& line)
{
    mHost.take(line);
    return {};
}

CallResult Session::document(const Json& line)
{
    const std::string id   = textField(line, "id");
    const Json*       text = find(line, "xml");
    mScene.setDocument(id, text != nullptr ? documents::openText(asText(*text))
                                           : openFile(textField(line, "file")));
    return {};
}

CallResult Session::xml(const Json& line)
{
    const IXMLDOMDocument& document = mScene.document(textField(line, "id"));
    if (find(line, "select") == nullptr) {
        return resultOf(writeNode(document));
    }
    return resultOf(write(mScene, document.selectNodes(textField(line, "select"))));
}

CallResult Session::edit(const Json& line)
{
    const IXMLDOMDocument& document = mScene.document(textField(line, "id"));
    const std::string      select   = textField(line, "select");
    const bool             removes  = boolOr(line, "remove", false);
    const std::string      value    = removes ? std::string{} : textField(line, "value");
    const auto             nodes    = document.selectNodes(select);
    if (nodes.get_length() == 0) {
        throw invalid("nothing in the document matches \"" + select + "\"");
    }
    for (const IXMLDOMNode& node : nodes) {
        if (removes) {
            removeNode(node);
        } else {
            writeText(node, value);
        }
    }
    return {};
}

CallResult Session::page(const Json& line)
{
    mScene.addPage(placementOf(line), textOr(line, "type", "Page"));
    return {};
}

CallResult Session::create(const Json& line)
{
    const std::string name = textField(line, "class");
    const ClassEntry* type = Registry::instance().findClass(name);
    if (type == nullptr) {
        throw invalid("there is no class \"" + name + "\"");
    }
    mScene.add(*type, placementOf(line));
    return {};
}

CallResult Session::call(const Json& line)
{
    const std::string on     = textField(line, "on");
    const std::string method = textField(line, "method");
    const Json        args   = arguments(line);
    platform::Widget* widget = mScene.find(on);
    const Member*     member = nullptr;
    if (widget != nullptr) {
        member = Registry::instance().findMethod(*widget, method);
    } else if (const ModuleEntry* module = Registry::instance().findModule(on)) {
        const auto found = module->routines.find(method);
        member           = found == module->routines.end() ? nullptr : &found->second;
    } else {
        throw invalid("there is no control or module \"" + on + "\"");
    }
    if (member == nullptr) {
        throw platform::Failure{platform::kNotSupportedByObject,
                                "\"" + on + "\" has no method \"" + method + "\""};
    }
    return (*member)(mScene, widget, args);
}

CallResult Session::set(const Json& line)
{
    const std::string on       = textField(line, "on");
    const std::string property = textField(line, "property");
    const Json&       value    = field(line, "value");
    if (mScene.find(on) == nullptr && on == kToolkit) {
        setToolkitProperty(mHost.toolkit(), property, value);
    } else {
        setProperty(mScene, mScene.widget(on), property, listField(line, "index"), value);
    }
    return {};
}

CallResult Session::get(const Json& line)
{
    const std::string on       = textField(line, "on");
    const std::string property = textField(line, "property");
    if (mScene.find(on) == nullptr && on == kToolkit) {
        return resultOf(getToolkitProperty(mHost.toolkit(), property));
    }
    return resultOf(getProperty(mScene, mScene.widget(on), property, listField(line, "index")));
}

CallResult Session::userDoor(const Json& line)
{
    const auto door = act(mScene.widget(textField(line, "on")), textField(line, "action"), line);
    return door == platform::UserDoor::refused ? resultOf("refused") : CallResult{};
}

CallResult Session::raise(const Json& line)
{
    raiseEvent(mScene, textField(line, "event"), arguments(line));
    return {};
}

CallResult Session::dumpControl(const Json& line)
{
    return resultOf(dump(mScene, mScene.widget(textField(line, "on"))));
}

CallResult Session::release(const Json& line)
{
    mScene.release(textField(line, "on"));
    return {};
}

CallResult Session::advance(const Json& line)
{
    const double seconds = asDouble(field(line, "seconds"));
    if (!(std::abs(seconds) <= kMaxSeconds)) {
        throw platform::failure(platform::kOverflow);
    }
    auto&      toolkit = mHost.toolkit();
    const auto before  = toolkit.clock;
    toolkit.advance(seconds);
    if (!platform::isValid(toolkit.clock)) {
        toolkit.clock = before;
        throw platform::failure(platform::kOverflow);
    }
    return {};
}

} // namespace quill::probe
