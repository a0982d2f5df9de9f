#include "status/CtrStatus.h"

#include "framework/documents.h"
#include "framework/modView.h"
#include "framework/named_callbacks.h"
#include "framework/values.h"
#include "platform/toolkit.h"
#include "status/row_tables.h"
#include "status/status_masks.h"

#include <string_view>

namespace quill {

CtrStatus::CtrStatus(const platform::Design& design) : StatusTreeView("CtrStatus", design)
{
    UserControl_Initialize();
}

CtrStatus::CtrStatus(platform::Widget& container, const platform::Design& design)
    : StatusTreeView("CtrStatus", container, design)
{
    UserControl_Initialize();
}

void CtrStatus::UserControl_Initialize()
{
    for (const char* key :
         {"deviceUnderTest", "deviceInfo", "deviceDiagnosisPassiv", "deviceFailure",
          "deviceMaintenanceRequired", "deviceOffSpecification", "deviceOk", "notMonitored",
          "unknown", "ok", "warning", "alarm", "failsafe", "info", "inactive"}) {
        imlStatusIcons.Add(key);
    }
    setUpGrids();
    paintFrames();
    Resize.raise();
}

// --- The host ---------------------------------------------------------------------------------

void CtrStatus::SetMessenger(Messenger* messenger)
{
    mOnMode.drop();
    mOnValue.drop();
    if (messenger != nullptr) {
        mOnMode = messenger->ViewSetCommunicationMode.subscribe(
            [this](std::int32_t mode) { mMessenger_ViewSetCommunicationMode(mode); });
        mOnValue = messenger->ViewReceiveValue.subscribe(
            [this](const std::string& name, const std::string& value) {
                mMessenger_ViewReceiveValue(name, value);
            });
    }
    StatusTreeView::SetMessenger(messenger);
    if (messenger == nullptr) {
        return;
    }
    const Steps step = steps("IQornComponent_SetMessenger");
    LoadStatusTree(step.value(IXMLDOMDocument{}, [&] { return host().GetDeviceTypeInfo(); }));
    step([&] {
        if (host().HasConfigurationChangedSign()) {
            mblnConfigurationSign = true;
        }
    });
}

void CtrStatus::PrepareToRelease()
{
    mobjStatusClass = nullptr;
    mobjNAMUR.reset();
    mobjSeverity.reset();
    StatusTreeView::PrepareToRelease();
}

void CtrStatus::mMessenger_ViewSetCommunicationMode(std::int32_t mode)
{
    if (mode != kOffline) {
        return;
    }
    const Steps       step  = steps("mMessenger_ViewSetCommunicationMode");
    const std::string image = step.text([&] { return statusClass().ImageUnknown(); });
    showIconOfAll(step, image);
    setCombinedStatus(image);
}

void CtrStatus::combinedStatusChanged()
{
    if (miClassification == kClassSeverity && Owner() != nullptr &&
        Owner()->TypeName() == std::string_view{"VwOnlineDiag"}) {
        callPage(*this, "QuillStatusChanged", {mstrCombinedStatus});
    }
}

// --- The tree ---------------------------------------------------------------------------------

void CtrStatus::UpdateStatusTree(const IXMLDOMDocument& guiInitXml, Translator& translator)
{
    LoadStatusTree(guiInitXml);
    translateRows(steps("Localize"), translator);
}

void CtrStatus::translateRows(const Steps& step, Translator& translator)
{
    readClassification(step);
    StatusTreeView::translateRows(step, translator);
}

void CtrStatus::readClassification(const Steps& step)
{
    if (!mblnFixedClassification) {
        step([&] { miClassification = host().GetStatusClassification(); });
    }
}

void CtrStatus::useClass(std::int16_t classification)
{
    if (classification == kClassSeverity) {
        mobjStatusClass = mobjSeverity.get();
    } else {
        mobjStatusClass = mobjNAMUR.get();
    }
}

void CtrStatus::LoadStatusTree(const IXMLDOMDocument& document)
{
    const Steps step{[](int number, const std::string& description) {
        platform::Toolkit::current().debugOutput("CtrStatus LoadStatusTree " +
                                                 std::to_string(number) + ": " + description);
    }};
    log(step, kLogDecision, "CtrStatus entering LoadStatusTree");
    step([&] { miClassification = host().GetStatusClassification(); });
    mobjNAMUR    = std::make_unique<StatusNAMUR>();
    mobjSeverity = std::make_unique<StatusSeverity>();
    useClass(miClassification);

    const auto tree = treeIn(step, document);
    // A host without a definition has neither classification and ends, as one without both, with
    // NAMUR.
    const std::string xml = step.text([&] { return tree.get_xml(); });
    if (!values::contains(xml, "classNAMUR")) {
        fixClassification(step, kClassSeverity, "Severity");
    }
    if (!values::contains(xml, "class=")) {
        fixClassification(step, kClassNAMUR, "NAMUR");
    }
    setUpGrids();
    maiMaskByte.clear();
    maiMaskBit.clear();
    maiEnabled.clear();
    const std::string image = step.text([&] { return statusClass().ImageNotRead(); });
    loadRows(step, tree, {image, image});
    log(step, kLogDecision, "CtrStatus leaving LoadStatusTree");
}

void CtrStatus::fixClassification(const Steps& step, std::int16_t only, const std::string& word)
{
    mblnFixedClassification = true;
    log(step, kLogDecision, "LoadStatusTree using fixed classificaiton");
    step([&] { host().SetFixedStatusClassification(only); });
    if (miClassification != only) {
        log(step, kLogDecision, "LoadStatusTree exceptionally using " + word + " classification");
        useClass(only);
        miClassification = only;
    }
}

void CtrStatus::growTables(const Steps& step, int first, int last)
{
    for (auto* table : {&maiMaskByte, &maiMaskBit, &maiEnabled}) {
        const std::int16_t fresh = table == &maiEnabled ? 1 : statusMasks::kNone;
        step([&] { growTo(*table, last); });
        for (int index = first; index <= last; ++index) {
            step([&] { entryAt(*table, index) = fresh; });
        }
    }
}

void CtrStatus::cutTables(const Steps& step, int last)
{
    for (auto* table : {&maiMaskByte, &maiMaskBit, &maiEnabled}) {
        step([&] { cutTo(*table, last); });
    }
}

// Both are filled at all times, so that another classification needs no other tree.
void CtrStatus::readClasses(const Steps& step, const IXMLDOMNode& status)
{
    IQornStatusClass* const other = mobjStatusClass == mobjNAMUR.get()
                                        ? static_cast<IQornStatusClass*>(mobjSeverity.get())
                                        : mobjNAMUR.get();
    step([&] { (void)statusClass().ReadClass(status); });
    step([&] { (void)existing(other).ReadClass(status); });
}

void CtrStatus::readMask(const Steps& step, int row, const IXMLDOMNode& status)
{
    const auto position = statusMasks::readPosition(step, status);
    step([&] { entryAt(maiMaskByte, row - 1) = position.byte; });
    step([&] { entryAt(maiMaskBit, row - 1) = position.bit; });
}

// --- Responses --------------------------------------------------------------------------------

void CtrStatus::SetImportData(const IXMLDOMNode& node)
{
    steps("IQornDataUser_setImportData")([&] { modView::setImportData(*this, node); });
}

void CtrStatus::SetOnlineData(const IXMLDOMNode& node)
{
    const Steps step = passSteps();
    readClassification(step);
    if (miClassification == kClassSeverity || miClassification == kClassNAMUR) {
        useClass(miClassification);
    }
    Pass pass = beginPass(step);
    for (int index = 0; index <= miLastRow; ++index) {
        showRow(pass, node, index);
    }
    endPass(pass);
    modView::forwardSyncChanges(Tag, true, mstrSyncState, GetMessenger());
    if (mblnConfigurationSign) {
        forwardConfigurationSign(step, node);
    }
}

void CtrStatus::showRow(Pass& pass, const IXMLDOMNode& response, int index)
{
    const Steps&      step = pass.step;
    const std::string key  = step.text([&] { return keyAt(index); });
    const auto item = step.value(IXMLDOMNode{}, [&] { return documents::findItem(response, key); });
    if (!item) {
        passOver(pass, index);
        return;
    }
    const auto value = step.text([&] { return documents::itemValue(item, "integerVal"); });
    auto       image = step.text([&] { return statusClass().GetClass(key); });
    auto       state = ConditionState::active;
    if (step.value(false, [&] { return entryAt(maiEnabled, index) == 0; })) {
        image = step.text([&] { return statusClass().ImageDisabled(); });
        state = ConditionState::switchedOff;
    } else if (value == "0") {
        image = step.text([&] { return statusClass().ImageOk(); });
        state = ConditionState::notActive;
    } else if (image.empty() && miClassification == kClassNAMUR) {
        image = step.text([&] { return existing(mobjSeverity.get()).GetClass(key); });
        log(step, kLogStatusMask,
            "TEMPORARY EXCEPTION: Status has  no NAMUR image, using severity image");
    }
    step([&] { imageAt(index) = image; });
    if (!image.empty()) {
        showIcon(step, index, image, state);
    }
    mergeIntoBranch(pass, index);
}

void CtrStatus::forwardConfigurationSign(const Steps& step, const IXMLDOMNode& response)
{
    const auto sign = step.value(IXMLDOMNode{}, [&] {
        return response.selectSingleNode(
            "comm:dtm/comm:communicationResponse/"
            "comm:item[@name = \"statusHARTConfigurationChanged\"]/comm:integerVal");
    });
    if (sign) {
        step([&] { host().SetConfigurationChanged(sign.get_text()); });
    }
    const auto name = step.text([&] { return documents::responseAttribute(response, "name"); });
    if (name == "deviceStatusClearConfigurationChanged") {
        step([&] { host().SetConfigurationChanged("0"); });
    }
}

} // namespace quill
