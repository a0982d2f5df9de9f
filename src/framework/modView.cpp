#include "framework/modView.h"

#include "framework/documents.h"
#include "framework/editor_contract.h"
#include "framework/modTools.h"
#include "framework/modView_walk.h"
#include "framework/shared_value_list.h"
#include "framework/steps.h"
#include "framework/values.h"
#include "platform/buttons.h"
#include "platform/label.h"
#include "platform/list_view.h"
#include "platform/text_box.h"
#include "platform/toolkit.h"

namespace quill::modView {

using namespace walk;

namespace {

/// The parameter that an editor is bound to, nothing with a report if the look-up fails.
IXMLDOMNode parameterOf(const Steps& step, const IXMLDOMNode& datafile, const std::string& name)
{
    return step.value(IXMLDOMNode{}, [&] { return documents::findParameter(datafile, name); });
}

void takeHomeGroup(const Steps& step, BoundEditor& editor, const IXMLDOMNode& datafile,
                   const std::string& name)
{
    step([&] { editor.setContextTag(modTools::GetHomeRequestGroup(datafile, name)); });
}

void localizeColumns(const Steps& step, platform::ListView& list, Translator& translator)
{
    int column = 0;
    for (const auto& header : std::vector(list.ColumnHeaders())) {
        ++column;
        if (!header.Tag.empty()) {
            step([&] { list.setColumnText(column, translator.Translate(header.Tag)); });
        }
    }
}

void offlineEditor(const Steps& step, Messenger* messenger, BoundEditor& editor,
                   const std::string& tag, const IXMLDOMNode& datafile)
{
    const std::string name = nameIn(tag);
    if (auto* mapped = dynamic_cast<MappedEditor*>(&editor)) {
        auto list =
            step.value(IXMLDOMNode{}, [&] { return documents::findMappedParam(datafile, name); });
        if (!list) {
            list = findSharedValueList(step, messenger, tag, datafile);
        }
        step([&] { mapped->SetMappings(list); });
    }
    const auto parameter = parameterOf(step, datafile, name);
    // A page may have told a text editor its group by hand; the other kinds follow the datafile.
    if (editor.kind() != EditorKind::text ||
        step.text([&] { return editor.ContextTag(); }).empty()) {
        takeHomeGroup(step, editor, datafile, name);
    }
    step([&] { editor.setOfflineData(parameter); });
}

void onlineEditor(const Steps& step, BoundEditor& editor, const std::string& name,
                  const IXMLDOMNode& response)
{
    const auto item =
        step.value(IXMLDOMNode{}, [&] { return documents::findItem(response, name); });
    // The other kinds take local data as online data.
    if (editor.kind() == EditorKind::text && step.text([&] {
            return documents::responseAttribute(response, "responseStatus");
        }) == "local") {
        step([&] { editor.setLocalData(item); });
    } else {
        step([&] { editor.setOnlineData(item); });
    }
}

} // namespace

void Localize(IQornView& view, Translator& translator)
{
    const Steps step{messengerOf(view), "modView Localize: "};
    for (platform::Widget* widget : controlsOf(step, view)) {
        const std::string tag = widget->Tag;
        if (auto* label = dynamic_cast<platform::Label*>(widget)) {
            if (!tag.empty()) {
                step([&] { label->Caption = translator.TranslateTag(tag); });
            }
        } else if (auto* button = dynamic_cast<platform::ButtonBase*>(widget)) {
            if (!tag.empty()) {
                step([&] { button->Caption = translator.TranslateTag(tag); });
            }
        } else if (auto* text = dynamic_cast<platform::TextBox*>(widget)) {
            if (!tag.empty() && !isBound(tag)) {
                step([&] { text->Text = translator.Translate(tag); });
            }
        } else if (auto* list = dynamic_cast<platform::ListView*>(widget)) {
            localizeColumns(step, *list, translator);
        } else if (!isExcludedFromLocalize(*widget)) {
            step([&] {
                if (auto* localizable = dynamic_cast<ILocalizable*>(objectOf(*widget))) {
                    localizable->Localize(translator);
                }
            });
        }
    }
}

void setMessenger(IQornView& view, Messenger* messenger)
{
    const Steps step{messengerOf(view), "modView setMessenger: "};
    const Steps unheard = silentSteps();
    for (platform::Widget* widget : controlsOf(step, view)) {
        if (isExcludedFromMessenger(*widget)) {
            continue;
        }
        unheard([&] {
            if (auto* component = dynamic_cast<IQornComponent*>(objectOf(*widget))) {
                component->SetMessenger(messenger);
            }
        });
    }
}

void setImportData(IQornView& view, const IXMLDOMNode& datafile)
{
    const Steps step{messengerOf(view), "modView setImportData: "};
    for (platform::Widget* widget : controlsOf(step, view)) {
        const std::string tag = widget->Tag;
        if (auto* editor = boundEditor(*widget)) {
            const auto parameter = parameterOf(step, datafile, nameIn(tag));
            step([&] { editor->setImportData(parameter); });
        } else if (auto* label = dynamic_cast<DateLabel*>(widget)) {
            const auto group = step.value(
                IXMLDOMNode{}, [&] { return documents::findRequestGroup(datafile, groupIn(tag)); });
            if (group) {
                step([&] {
                    if (const auto time = platform::attributeNode(group, "lastUpdate")) {
                        label->setCaption(time.get_text());
                    }
                });
            }
        } else if (!isExcludedFromData(*widget)) {
            step([&] {
                if (auto* user = dynamic_cast<IQornDataUser*>(objectOf(*widget))) {
                    user->SetImportData(datafile);
                }
            });
        }
    }
}

void setOfflineData(IQornView& view, const IXMLDOMNode& datafile)
{
    Messenger*  messenger = messengerOf(view);
    const Steps step{messenger, " modView setOfflineData"};
    const Steps unheard  = silentSteps();
    const auto  controls = controlsOf(step, view);
    for (std::size_t place = 0; place < controls.size(); ++place) {
        announceNext(controls, place);
        platform::Widget* widget = controls[place];
        const std::string tag    = widget->Tag;
        if (auto* editor = boundEditor(*widget)) {
            offlineEditor(step, messenger, *editor, tag, datafile);
        } else if (auto* label = dynamic_cast<DateLabel*>(widget)) {
            const auto time = step.value(
                IXMLDOMNode{}, [&] { return documents::findLastUpdate(datafile, groupIn(tag)); });
            if (time) {
                step([&] { label->setCaption(modTools::LocalizeDatafileDate(time.get_text())); });
            }
        } else if (!isExcludedFromData(*widget)) {
            unheard([&] {
                if (auto* user = dynamic_cast<IQornDataUser*>(objectOf(*widget))) {
                    user->SetOfflineData(datafile);
                }
            });
        }
    }
}

void setOnlineData(IQornView& view, const IXMLDOMNode& response)
{
    const Steps       step{messengerOf(view), "modView setOnlineData: "};
    const std::string responseName =
        step.text([&] { return documents::responseAttribute(response, "name"); });
    const auto controls = controlsOf(step, view);
    for (std::size_t place = 0; place < controls.size(); ++place) {
        announceNext(controls, place);
        platform::Widget* widget = controls[place];
        const std::string tag    = widget->Tag;
        auto*             text   = dynamic_cast<platform::TextBox*>(widget);
        if (text != nullptr && isBound(tag)) {
            const auto item = step.value(
                IXMLDOMNode{}, [&] { return documents::findItem(response, nameIn(tag)); });
            if (item) {
                step([&] {
                    if (const auto value = item.selectSingleNode("./comm:stringVal")) {
                        text->Text = value.get_text();
                    }
                });
            }
        } else if (auto* editor = boundEditor(*widget)) {
            onlineEditor(step, *editor, nameIn(tag), response);
        } else if (auto* label = dynamic_cast<DateLabel*>(widget)) {
            if (tag.starts_with(kDatePrefix) && groupIn(tag) == responseName) {
                step([&] {
                    label->setCaption(
                        values::formatDate(platform::Toolkit::current().now(), "ddddd ttttt"));
                });
            }
        } else {
            // No kind is excluded here: a plain widget has no object and is reported.
            step([&] {
                if (auto* user = dynamic_cast<IQornDataUser*>(objectOf(*widget))) {
                    user->SetOnlineData(response);
                }
            });
        }
    }
}

void forwardSyncChanges(const std::string& name, bool ok, std::string& state, Messenger* messenger)
{
    const auto next = [&]() -> const char* {
        if (!ok) {
            return state == "syncError" ? nullptr : "syncError";
        }
        if (state == "notRead") {
            return "sync";
        }
        return state == "syncError" ? "reSync" : nullptr;
    }();
    if (next == nullptr) {
        return;
    }
    state = next;
    const Steps step{messenger, "modView forwardSyncChanges"};
    step([&] { existing(messenger).SetParameterState(name, state); });
}

} // namespace quill::modView
