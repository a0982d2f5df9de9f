#include "editors/CtrCheckEdit.h"
#include "editors/CtrComboEdit.h"
#include "editors/CtrDateEdit.h"
#include "editors/CtrDateLabel.h"
#include "editors/CtrFocusTransfer.h"
#include "editors/CtrOptionEdit.h"
#include "editors/CtrTBLaunchedPanel.h"
#include "editors/CtrTextEdit.h"
#include "editors/CtrTimeEdit.h"
#include "probe/binding.h"

namespace quill::probe {

namespace {

void registerEditorBases(std::vector<ClassEntry>& classes)
{
    using T = TypedEditor;
    Class<T>{"TypedEditor"}
        .method("dblAComparedToB", &T::dblAComparedToB)
        .state("originalText", &T::originalText)
        .state("decimalCount", &T::decimalCount)
        .state("limitMax", &T::limitMax)
        .state("limitMin", &T::limitMin)
        .state("messageUnit", &T::messageUnit)
        .state("numberFormat", &T::numberFormat)
        .state("allowEmpty", &T::allowEmpty)
        .state("accessText", &T::accessText)
        .into(classes);
    Class<ListEditor>{"ListEditor"}
        .state("mappings", &ListEditor::mappings)
        .state("originalText", &ListEditor::originalText)
        .event("Change", &ListEditor::Change)
        .into(classes);
    Class<EditorBase>{"EditorBase"}
        .property("Correct", &EditorBase::Correct, &EditorBase::setCorrect)
        .property("SignBackColor", &EditorBase::SignBackColor, &EditorBase::setSignBackColor)
        .into(classes);
    using E = EditorCore;
    Class<E>{"EditorCore"}
        .property("Enabled", &E::Enabled, &E::setEnabled)
        .property("Modified", &E::Modified, &E::setModified)
        .property("Silent", &E::Silent, &E::setSilent)
        .method("SetModifiedForward", &E::SetModifiedForward)
        .method("IsInitialized", &E::IsInitialized)
        .state("dataNode", &E::dataNode)
        .state("contextTag", &E::ContextTag)
        .state("labelText", &E::labelText)
        .state("valueType", &E::valueType)
        .state("hasSynced", &E::hasSynced)
        .state("silent", &E::Silent)
        .state("changeState", &E::changeState)
        .state("syncState", &E::syncState)
        .into(classes);
}

void registerTextEdit(std::vector<ClassEntry>& classes)
{
    using C = CtrTextEdit;
    Class<C>{"CtrTextEdit"}
        .creatable()
        .property("Locked", &C::Locked, &C::setLocked)
        .property("Text", &C::Text, &C::setText)
        .property("Unit", &C::Unit, &C::setUnit)
        .method("EditText", &C::EditText)
        .method("getXmlItem", &C::getXmlItem)
        .method("setMessenger", &C::setMessenger)
        .method("ForceHartPackedAscii", &C::ForceHartPackedAscii)
        .method("Uninitialize", &C::Uninitialize)
        .method("setPairLimit", &C::setPairLimit)
        .method("setParameterPair", &C::setParameterPair)
        .method("unsetParameterPair", &C::unsetParameterPair, {.defaults = {""}, .outs = {}})
        .method("downloadable", &C::downloadable)
        .method("FormatForCommunication", &C::FormatForCommunication)
        .method("setVisibleUnit", &C::setVisibleUnit)
        .state("decimalSeparator", &C::decimalSeparator)
        .state("packedAscii", &C::packedAscii)
        .state("pairMinPartner", &C::pairMinPartner)
        .state("pairMaxPartner", &C::pairMaxPartner)
        .state("pairDifferenceMin", &C::pairDifferenceMin)
        .state("pairDifferenceMax", &C::pairDifferenceMax)
        .state("pairUpperLimit", &C::pairUpperLimit)
        .state("pairLowerLimit", &C::pairLowerLimit)
        .event("Change", &C::Change)
        .into(classes);
}

void registerComboEdit(std::vector<ClassEntry>& classes)
{
    using C = CtrComboEdit;
    Class<C>{"CtrComboEdit"}
        .creatable()
        .property("Locked", &C::Locked, &C::setLocked)
        .property("SilentAlltoghether", &C::SilentAlltoghether, &C::setSilentAlltoghether)
        .property("Text", &C::Text, &C::setText)
        .method("RefreshItemList", &C::RefreshItemList)
        .method("SetItemVisibility", &C::SetItemVisibility)
        .method("SetItemVisibilityAll", &C::SetItemVisibilityAll)
        .method("HasMappings", &C::HasMappings)
        .method("ShowInfo", &C::ShowInfo, {.defaults = {""}, .outs = {}})
        .method("getSelectedValue", &C::getSelectedValue)
        .method("downloadable", &C::downloadable)
        .method("GetIndex", &C::GetIndex)
        .method("GetComboText", &C::GetComboText)
        .state("selectedIndex", &C::selectedIndex)
        .state("infoTag", &C::infoTag)
        .event("Modified", &C::ModifiedEvent)
        .into(classes);
}

void registerOptionEdit(std::vector<ClassEntry>& classes)
{
    using C = CtrOptionEdit;
    Class<C>{"CtrOptionEdit"}
        .creatable()
        .property("Locked", &C::Locked, &C::setLocked)
        .property("Selected", &C::Selected, &C::setSelected)
        .property("Text", &C::Text, &C::setText)
        .method("addOption", &C::addOption)
        .method("mapText", &C::mapText)
        .state("selectedValue", &C::selectedValue)
        .into(classes);
}

void registerCheckEdit(std::vector<ClassEntry>& classes)
{
    using C = CtrCheckEdit;
    Class<C>{"CtrCheckEdit"}
        .creatable()
        .method("ShowChecks", &C::ShowChecks)
        .method("StoreBitForExport", &C::StoreBitForExport)
        .state("originalValue", &C::originalValue)
        .into(classes);
}

void registerTimeEdit(std::vector<ClassEntry>& classes)
{
    using C = CtrTimeEdit;
    Class<C>{"CtrTimeEdit"}
        .creatable()
        .property("Locked", &C::Locked, &C::setLocked)
        .property("Text", &C::Text, &C::setText)
        .method("EditText", &C::EditText)
        .method("FormatForCommunication", &C::FormatForCommunication)
        .event("Change", &C::Change)
        .into(classes);
}

void registerDateEdit(std::vector<ClassEntry>& classes)
{
    using C = CtrDateEdit;
    Class<C>{"CtrDateEdit"}
        .creatable()
        .property("Text", &C::Text, &C::setText)
        .method("SetPickerFormat", &C::SetPickerFormat)
        .state("timeMode", &C::timeMode)
        .state("originalDate", &C::originalDate)
        .event("Change", &C::Change)
        .into(classes);
    Class<CtrDateLabel>{"CtrDateLabel"}.creatable().into(classes);
}

void registerVisuals(std::vector<ClassEntry>& classes)
{
    Class<CtrFocusTransfer>{"CtrFocusTransfer"}
        .creatable()
        .method("setDesignMode", &CtrFocusTransfer::setDesignMode)
        .into(classes);
    Class<CtrTBLaunchedPanel>{"CtrTBLaunchedPanel"}
        .creatable()
        .method("DrawColorSlide", &CtrTBLaunchedPanel::DrawColorSlide)
        .method("DrawCustomFrame", &CtrTBLaunchedPanel::DrawCustomFrame)
        .into(classes);
}

} // namespace

void registerEditors(std::vector<ClassEntry>& classes)
{
    registerTextEdit(classes);
    registerComboEdit(classes);
    registerOptionEdit(classes);
    registerCheckEdit(classes);
    registerTimeEdit(classes);
    registerDateEdit(classes);
    registerVisuals(classes);
    // What all editors share; a class that tells a member itself comes first.
    registerEditorBases(classes);
}

} // namespace quill::probe
