#include "actions/CtrReset.h"

#include "actions/form.h"
#include "framework/documents.h"
#include "framework/modTools.h"
#include "framework/modView.h"
#include "framework/values.h"

namespace quill {

namespace {

constexpr std::int32_t kRowPitch   = 400;
constexpr std::int32_t kLabelWidth = 1300;

constexpr const char* kHead =
    "<?xml version=\"1.0\"?><dtm xmlns=\"x-schema:QVXCommunicationSchema.xml\">"
    "<communicationRequest name=\"";

} // namespace

CtrReset::CtrReset(const platform::Design& design) : PageView("CtrReset", design)
{
    UserControl_Initialize();
}

CtrReset::CtrReset(platform::Widget& container, const platform::Design& design)
    : PageView("CtrReset", container, design)
{
    UserControl_Initialize();
}

void CtrReset::UserControl_Initialize()
{
    paintFrames();
    lblTitle.Bold = true;
    for (CtrComboEdit& combo : cceReset) {
        combo.setSilent(true);
    }
    Resize.raise();
}

void CtrReset::SetMessenger(Messenger* messenger)
{
    mOnMode.drop();
    if (messenger != nullptr) {
        // Before the rows, so that the host is asked before a barred row gives up the focus.
        mOnMode = messenger->ViewSetCommunicationMode.subscribe(
            [this](std::int32_t) { mMessenger_ViewSetCommunicationMode(); });
    }
    PageView::SetMessenger(messenger);
}

void CtrReset::Localize(Translator& translator)
{
    const Steps step = steps("Localize");
    step([&] { modView::Localize(*this, translator); });
    fitRows({&lblReset[0], &lblReset[1], &lblReset[2]}, {&cceReset[0], &cceReset[1], &cceReset[2]},
            cmdReset, kLabelWidth);
}

void CtrReset::SetErrorData(const IXMLDOMNode& node)
{
    const Steps       step = steps("IQornDataUser_SetErrorData");
    const std::string name = step.text([&] { return documents::responseAttribute(node, "name"); });
    if (values::contains(Tag, name)) {
        step([&] { modView::setErrorData(*this, node); });
    }
}

void CtrReset::SetOfflineData(const IXMLDOMNode& node)
{
    const Steps step = steps("IQornDataUser_SetOfflineData");
    step([&] { modView::setOfflineData(*this, node); });
    for (std::size_t row = 0; row < cceReset.size(); ++row) {
        if (cceReset[row].HasMappings()) {
            step([&] { cceReset[row].setText("resetNothing"); });
            step([&] { cceReset[row].SetModifiedForward(false); });
        } else {
            removeRow(row);
        }
    }
}

void CtrReset::removeRow(std::size_t row)
{
    cceReset[row].Visible = false;
    lblReset[row].Visible = false;
    for (std::size_t later = row + 1; later < cceReset.size(); ++later) {
        cceReset[later].Top = cceReset[later].Top - kRowPitch;
        lblReset[later].Top = lblReset[later].Top - kRowPitch;
    }
}

void CtrReset::SetOnlineData(const IXMLDOMNode& node)
{
    const Steps step = steps("IQornDataUser_SetOnlineData");
    std::string name = step.text([&] {
        return documents::attributeText(node.selectSingleNode("//comm:communicationResponse"),
                                        "name");
    });
    step([&] {
        const auto item = node.selectSingleNode("//comm:communicationResponse/comm:item");
        if (item) {
            name = documents::attributeText(item, "name");
        }
    });
    for (CtrComboEdit& combo : cceReset) {
        if (modTools::RemoveCtrPrefix(combo.Tag) == name) {
            step([&] { combo.SetModifiedForward(false); });
            return;
        }
    }
}

void CtrReset::RequestFocus()
{
    const Steps step = steps("IQornView_RequestFocus");
    for (CtrComboEdit& combo : cceReset) {
        if (combo.Visible) {
            step([&] { combo.SetFocus(); });
            return;
        }
    }
}

void CtrReset::cmdReset_Click()
{
    // Support staff search for this text: it carries the name of the view that had the button once.
    const Steps step{GetMessenger(), "CtrStatistics cmdReset_Click: "};
    for (CtrComboEdit& combo : cceReset) {
        step([&] { combo.SetModifiedForward(combo.getSelectedValue() >= 0); });
    }
    resetStatus(step);
    resetByCode(step, 1, "resetDiagnostics", "resetDiagnosticsQuestion");
    resetByCode(step, 2, "resetParameters", "resetParametersQuestion");
}

void CtrReset::resetStatus(const Steps& step)
{
    if (cceReset[0].Modified()) {
        step([&] {
            send(std::string(kHead) + "resetStatus\" access=\"act\" datasetSave=\"0\">\r\n"
                                      "</communicationRequest></dtm>");
        });
    }
}

void CtrReset::resetByCode(const Steps& step, std::size_t row, const std::string& titleKey,
                           const std::string& questionKey)
{
    if (!cceReset[row].Modified()) {
        return;
    }
    const auto answer =
        step.value(std::int32_t{0}, [&] { return host().AskQuestion(titleKey, questionKey); });
    if (answer == kPositiveAnswer) {
        step([&] { send(writeRequest(row)); });
    }
}

std::string CtrReset::writeRequest(std::size_t row) const
{
    return kHead + Tag.get() + "\" access=\"write\">\r\n<item name=\"" +
           modTools::RemoveCtrPrefix(cceReset[row].Tag) + "\" unit=\"noUnit\">\r\n<integerVal>" +
           std::to_string(cceReset[row].getSelectedValue()) +
           "</integerVal>\r\n</item>\r\n</communicationRequest></dtm>";
}

void CtrReset::send(const std::string& request)
{
    (void)host().ExecuteCommunicationRequest(request, "resetting", 1, 1);
}

void CtrReset::mMessenger_ViewSetCommunicationMode()
{
    const Steps step  = steps("mMessenger_ViewSetCommunicationMode");
    const auto  level = step.value(std::int16_t{0}, [&] { return host().GetUserLevel(); });
    const auto  mode  = step.value(std::int32_t{0}, [&] { return host().GetCommunicationMode(); });
    cmdReset.Enabled  = level >= kMaintenanceLevel && mode == kOnline;
}

} // namespace quill
