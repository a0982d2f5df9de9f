#include "editors/list_editor.h"

#include "editors/value_list.h"

namespace quill {

void ListEditor::SetMappings(const IXMLDOMNode& mappedParam)
{
    if (!mappedParam) {
        return;
    }
    const Steps step = steps("SetMappings");
    if (step([&] { mMappings = valueList::entriesOf(mappedParam.cloneNode(true)); })) {
        offerEntries(step);
    }
}

bool ListEditor::setOnlineData(const IXMLDOMNode& item)
{
    if (!item) {
        return false;
    }
    const Steps step = steps("setOnlineData");
    showValue(step, step.text([&] { return documents::itemValue(item, mValueType); }));
    SetModifiedForward(false);
    takeAsSynced();
    return true;
}

bool ListEditor::setImportData(const IXMLDOMNode& parameter)
{
    if (!parameter) {
        return false;
    }
    const Steps step = steps("setImportData");
    showEdit(step, read(step, parameter, "value"));
    SetModifiedForward(true);
    return true;
}

} // namespace quill
