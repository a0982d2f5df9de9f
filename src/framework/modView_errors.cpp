#include "framework/documents.h"
#include "framework/modView.h"
#include "framework/modView_walk.h"
#include "framework/values.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quill::modView {

using namespace walk;

namespace {

/// What an error code asks for, beside the message.
enum class Response {
    message,         ///< the message alone
    textEditors,     ///< the text editors that the items name
    valueEditors,    ///< text, combo, date and option editors
    graphNotReached, ///< a line in the log, no message
};

Response responseTo(const std::string& code)
{
    const auto isOneOf = [&](std::initializer_list<std::string_view> codes) {
        return std::find(codes.begin(), codes.end(), code) != codes.end();
    };
    if (isOneOf({"missingItems", "commandIsNotImplemented"})) {
        return Response::textEditors;
    }
    if (isOneOf({"communicationError", "errCommunicationError", "hartCmdErrSuspiciousCalibration",
                 "hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed"})) {
        return Response::valueEditors;
    }
    if (isOneOf({"hartCmdErrNoDataAvailable", "errTestDataNoDataError"})) {
        return Response::graphNotReached;
    }
    return Response::message;
}

bool isMeant(EditorKind kind, Response response)
{
    if (response == Response::textEditors) {
        return kind == EditorKind::text;
    }
    return kind == EditorKind::text || kind == EditorKind::combo || kind == EditorKind::date ||
           kind == EditorKind::option;
}

/// Hands the response to the child it belongs to and to the sub-views on the way there. Answers
/// whether such a child was found.
bool handToChildren(const Steps& step, const platform::WidgetList& controls,
                    const std::string& responseName, const IXMLDOMNode& response)
{
    for (platform::Widget* widget : controls) {
        auto* user = dynamic_cast<IQornDataUser*>(widget);
        if (user == nullptr) {
            continue;
        }
        const std::string tag       = widget->Tag;
        const bool        belongs   = !tag.empty() && values::contains(responseName, tag);
        const bool        isSubView = dynamic_cast<IQornView*>(widget) != nullptr;
        if (belongs || isSubView) {
            step([&] { user->SetErrorData(response); });
        }
        if (belongs) {
            return true;
        }
    }
    return false;
}

void tellEditors(const Steps& step, const platform::WidgetList& controls, Response response,
                 const std::vector<std::string>& itemNames, const std::string& code)
{
    // By tag, so that many items on a page of many editors cost no more than their sum.
    std::unordered_map<std::string, std::vector<BoundEditor*>> editors;
    for (platform::Widget* widget : controls) {
        auto* editor = boundEditor(*widget);
        if (editor != nullptr && isMeant(editor->kind(), response)) {
            editors[widget->Tag].push_back(editor);
        }
    }
    for (const auto& name : itemNames) {
        const auto named = editors.find(kEditorPrefix + name);
        if (named == editors.end()) {
            continue;
        }
        for (BoundEditor* editor : named->second) {
            step([&] { editor->handleError(code); });
        }
    }
}

void showResponseError(const Steps& step, Messenger* messenger, const std::string& code,
                       const std::vector<std::string>& itemNames)
{
    auto* const translator =
        step.value<Translator*>(nullptr, [&] { return existing(messenger).GetTranslator(); });
    const auto translate = [&](const std::string& key) {
        return step.text([&] { return existing(translator).Translate(key); });
    };
    std::string text = translate(code);
    if (text.empty() && itemNames.empty()) {
        return;
    }
    text += "\r\n";
    for (const auto& name : itemNames) {
        text += "\"" + name + "\"\r\n";
    }
    const std::string title = translate("error");
    step([&] { existing(messenger).ShowMessage(title, text); });
}

std::string errorCodeOf(const Steps& step, const IXMLDOMNode& response)
{
    return step.text([&] {
        const auto carrier = response.selectSingleNode("//comm:communicationResponse[@errorCode]");
        return carrier ? documents::attributeText(carrier, "errorCode") : std::string{};
    });
}

std::vector<std::string> itemNamesOf(const Steps& step, const IXMLDOMNode& response)
{
    const auto items =
        step.value(IXMLDOMNodeList{}, [&] { return documents::errorItems(response); });
    std::vector<std::string> names;
    for (const auto& item : items) {
        names.push_back(step.text([&] { return documents::attributeText(item, "name"); }));
    }
    return names;
}

} // namespace

void setErrorData(IQornView& view, const IXMLDOMNode& response)
{
    Messenger*        messenger = messengerOf(view);
    const Steps       step{messenger, "modView setErrorData: "};
    const std::string responseName =
        step.text([&] { return documents::responseAttribute(response, "name"); });
    const auto controls = controlsOf(step, view);
    if (handToChildren(step, controls, responseName, response)) {
        return;
    }
    const std::string code      = errorCodeOf(step, response);
    const auto        itemNames = itemNamesOf(step, response);
    const Response    asked     = responseTo(code);
    if (asked == Response::graphNotReached) {
        step([&] {
            existing(messenger).WriteLog(
                kLogLostError, "Error: Graph error not reaching its graph " + responseName);
        });
        return;
    }
    if (asked != Response::message) {
        tellEditors(step, controls, asked, itemNames, code);
    }
    showResponseError(step, messenger, code, itemNames);
}

} // namespace quill::modView
