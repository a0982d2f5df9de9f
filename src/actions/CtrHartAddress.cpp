#include "actions/CtrHartAddress.h"

#include "actions/form.h"
#include "framework/values.h"
#include "platform/xml_dom.h"

namespace quill {

namespace {

constexpr int          kLastAddress = 15;
constexpr std::int32_t kLabelWidth  = 1700;

/// A value list as a datafile would bring it, with the addresses as names and values.
std::string valueList(bool isMultidrop)
{
    const auto mapping = [](int address) {
        const std::string number = std::to_string(address);
        return "<mapping value=\"" + number + "\" name=\"" + number + "\"/>";
    };
    std::string list = "<mappedParam name=\"foo\">";
    if (isMultidrop) {
        for (int address = 1; address <= kLastAddress; ++address) {
            list += mapping(address);
        }
    } else {
        list += mapping(0);
    }
    return list + "</mappedParam>";
}

} // namespace

CtrHartAddress::CtrHartAddress(const platform::Design& design) : PageView("CtrHartAddress", design)
{
    UserControl_Initialize();
}

CtrHartAddress::CtrHartAddress(platform::Widget& container, const platform::Design& design)
    : PageView("CtrHartAddress", container, design)
{
    UserControl_Initialize();
}

void CtrHartAddress::UserControl_Initialize()
{
    paintFrames();
    lblTitle.Bold = true;
    Resize.raise();
}

void CtrHartAddress::SetMessenger(Messenger* messenger)
{
    mOnMode.drop();
    PageView::SetMessenger(messenger);
    if (messenger == nullptr) {
        return;
    }
    mOnMode = messenger->ViewSetCommunicationMode.subscribe(
        [this](std::int32_t mode) { mMessenger_ViewSetCommunicationMode(mode); });
    cmdSet.Enabled = steps("IQornComponent_SetMessenger").value(false, [&] {
        return messenger->GetUserLevel() >= kMaintenanceLevel;
    });
}

void CtrHartAddress::Localize(Translator& translator)
{
    const Steps step = steps("Localize");
    step([&] { modView::Localize(*this, translator); });
    step([&] { UpdateHartAddress(); });
    fitRows({&lblAssemblyRelated[0], &lblAssemblyRelated[1]}, {&cceMultidrop, &cceAddress}, cmdSet,
            kLabelWidth);
}

void CtrHartAddress::SetErrorData(const IXMLDOMNode& node)
{
    steps("IQornDataUser_SetErrorData")([&] { modView::setErrorData(*this, node); });
}

void CtrHartAddress::SetImportData(const IXMLDOMNode& node)
{
    steps("IQornDataUser_setImportData")([&] { modView::setImportData(*this, node); });
}

void CtrHartAddress::SetOfflineData(const IXMLDOMNode& node)
{
    steps("IQornDataUser_SetOfflineData")([&] { modView::setOfflineData(*this, node); });
}

void CtrHartAddress::SetOnlineData(const IXMLDOMNode& node)
{
    steps("IQornDataUser_SetOnlineData")([&] { modView::setOnlineData(*this, node); });
}

platform::WidgetList CtrHartAddress::GetControls()
{
    return listedBefore(PageView::GetControls(), cmdSet, cceMultidrop);
}

void CtrHartAddress::RequestFocus()
{
    steps("IQornView_RequestFocus")([&] { cceMultidrop.SetFocus(); });
}

AddressService* CtrHartAddress::service(const Steps& step)
{
    return step.value<AddressService*>(nullptr, [&] { return host().GetAddressService(); });
}

std::optional<std::int16_t> CtrHartAddress::readAddress(const Steps& step)
{
    AddressService* const addresses = service(step);
    return step.value(std::optional<std::int16_t>{},
                      [&] { return existing(addresses).ReadAddress(); });
}

void CtrHartAddress::offerAddresses(const Steps& step, bool isMultidrop)
{
    step([&] {
        const auto document = IXMLDOMDocument::create();
        document.loadXML(valueList(isMultidrop));
        cceAddress.SetMappings(document.selectSingleNode("//mappedParam[@name = \"foo\"]"));
    });
}

void CtrHartAddress::UpdateHartAddress()
{
    const Steps step    = steps("UpdateHartAddress");
    const auto  address = readAddress(step);
    if (!address) {
        return;
    }
    step([&] { cceMultidrop.setText(*address != 0 ? "1" : "0"); });
    offerAddresses(step, *address != 0);
    step([&] { cceAddress.setText(std::to_string(*address)); });
    step([&] { cceMultidrop.SetModifiedForward(false); });
    step([&] { cceAddress.SetModifiedForward(false); });
}

void CtrHartAddress::cceMultidrop_Change(const std::string& text)
{
    const Steps step        = steps("cceMultidrop_Change");
    const auto  address     = readAddress(step).value_or(0);
    const bool  isMultidrop = text != "disabled";
    offerAddresses(step, isMultidrop);
    if (isMultidrop && address != 0) {
        step([&] { cceAddress.setText(std::to_string(address)); });
        return;
    }
    // The address that is proposed is not the one that the device has.
    step([&] { cceAddress.setText(isMultidrop ? "1" : "0"); });
    if (isMultidrop || address > 0) {
        step([&] { cceAddress.SetModifiedForward(true); });
    }
}

void CtrHartAddress::cmdSet_Click()
{
    const Steps  step    = steps("cmdSet_Click");
    std::uint8_t address = 0;
    const bool   isRead  = step([&] {
        const std::int16_t number = values::toInt16(values::parseLocal(cceAddress.Text()));
        if (number < 0 || number > 255) {
            throw platform::failure(platform::kOverflow);
        }
        address = static_cast<std::uint8_t>(number);
    });
    if (!isRead) {
        // Without a number there is nothing to send: 0 would switch multidrop off behind the user.
        return;
    }
    AddressService* const addresses = service(step);
    if (!step.value(false, [&] { return existing(addresses).WriteAddress(0, 0, 0, address); })) {
        return;
    }
    step([&] { cceMultidrop.SetModifiedForward(false); });
    step([&] { cceAddress.SetModifiedForward(false); });
    step([&] { host().SetParameterState(Tag, "sync"); });
}

void CtrHartAddress::mMessenger_ViewSetCommunicationMode(std::int32_t mode)
{
    if (mode == kEditingBarred) {
        cmdSet.Enabled = false;
    }
}

} // namespace quill
