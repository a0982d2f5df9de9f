#include "framework/editor_contract.h"
#include "framework/host_contract.h"
#include "probe/binding.h"

namespace quill::probe {

// Whatever implements one of these has its members by that; a control registers its own only.
void registerInterfaces(std::vector<ClassEntry>& classes)
{
    Class<IQornComponent>{"IQornComponent"}
        .method("SetMessenger", &IQornComponent::SetMessenger)
        .into(classes);
    Class<ILocalizable>{"ILocalizable"}.method("Localize", &ILocalizable::Localize).into(classes);
    Class<IQornDataUser>{"IQornDataUser"}
        .method("SetErrorData", &IQornDataUser::SetErrorData)
        .method("SetImportData", &IQornDataUser::SetImportData)
        .method("SetOfflineData", &IQornDataUser::SetOfflineData)
        .method("SetOnlineData", &IQornDataUser::SetOnlineData)
        .into(classes);
    Class<IQornDataEditor>{"IQornDataEditor"}
        .method("GetXmlItem", &IQornDataEditor::GetXmlItem)
        .into(classes);
    Class<IQornView>{"IQornView"}
        .method("GetControls", &IQornView::GetControls)
        .method("GetMessenger", &IQornView::GetMessenger)
        .method("GetSelectedView", &IQornView::GetSelectedView)
        .method("SetSelectedView", &IQornView::SetSelectedView)
        .method("LeaveSelectedView", &IQornView::LeaveSelectedView)
        .method("RequestFocus", &IQornView::RequestFocus)
        .method("PrepareToRelease", &IQornView::PrepareToRelease)
        .into(classes);
    Class<BoundEditor>{"BoundEditor"}
        .property("ContextTag", &BoundEditor::ContextTag, &BoundEditor::setContextTag)
        .method("setImportData", &BoundEditor::setImportData)
        .method("setOfflineData", &BoundEditor::setOfflineData)
        .method("setOnlineData", &BoundEditor::setOnlineData)
        .method("setLocalData", &BoundEditor::setLocalData)
        .method("handleError", &BoundEditor::handleError)
        .into(classes);
    Class<MappedEditor>{"MappedEditor"}
        .method("SetMappings", &MappedEditor::SetMappings)
        .into(classes);
    Class<DateLabel>{"DateLabel"}
        .property("Caption", &DateLabel::Caption, &DateLabel::setCaption)
        .into(classes);
}

} // namespace quill::probe
