#pragma once

#include "editors/CtrComboEdit.h"
#include "framework/address_service.h"
#include "framework/modView.h"
#include "framework/page_view.h"
#include "platform/buttons.h"
#include "platform/label.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace quill {

/// The view in which the user sets a HART device's polling address: multidrop on or off, and which
/// address. It goes to the device at once through the host's `AddressService`, as no parameter
/// download could reach the device under its new address.
///
/// The datafile's value list of `multidrop` must hold an entry with the name "disabled".
class CtrHartAddress : public PageView {
public:
    explicit CtrHartAddress(const platform::Design& design = {});
    CtrHartAddress(platform::Widget& container, const platform::Design& design = {});

    // In the order of the Tab key.
    platform::Frame         frmViews{*this, {.Name = "frmViews", .Index = 0, .Tag = "hartAddress"}};
    CtrComboEdit            cceMultidrop{frmViews,
                              {.Name   = "cceMultidrop",
                                          .Tag    = "ctr_multidrop",
                                          .Left   = 2400,
                                          .Top    = 750,
                                          .Width  = 3500,
                                          .Height = 330}};
    CtrComboEdit            cceAddress{frmViews,
                            {.Name   = "cceAddress",
                                        .Tag    = "ctr_address",
                                        .Left   = 2400,
                                        .Top    = 1155,
                                        .Width  = 3500,
                                        .Height = 330}};
    platform::CommandButton cmdSet{frmViews,
                                   {.Name    = "cmdSet",
                                    .Tag     = "ok",
                                    .Caption = "OK",
                                    .Left    = 6100,
                                    .Top     = 720,
                                    .Width   = 1200,
                                    .Height  = 336}};
    platform::Label         lblTitle{frmViews,
                             {.Name    = "lblTitle",
                                      .Tag     = "hartAddress",
                                      .Caption = "HART address",
                                      .Left    = 600,
                                      .Top     = 300,
                                      .Width   = 6700,
                                      .Height  = 300}};
    std::array<platform::Label, 2> lblAssemblyRelated{{{frmViews,
                                                        {.Name    = "lblAssemblyRelated",
                                                         .Index   = 0,
                                                         .Tag     = "address",
                                                         .Caption = "Address",
                                                         .Left    = 600,
                                                         .Top     = 1200,
                                                         .Width   = 1700,
                                                         .Height  = 270}},
                                                       {frmViews,
                                                        {.Name    = "lblAssemblyRelated",
                                                         .Index   = 1,
                                                         .Tag     = "multidrop",
                                                         .Caption = "Multidrop",
                                                         .Left    = 600,
                                                         .Top     = 795,
                                                         .Width   = 1700,
                                                         .Height  = 270}}}};

    [[nodiscard]] const char* TypeName() const override { return "CtrHartAddress"; }

    // IQornComponent
    void SetMessenger(Messenger* messenger) override;
    // ILocalizable: fetches the address from the device besides.
    void Localize(Translator& translator) override;
    // IQornDataUser
    void SetErrorData(const IXMLDOMNode& node) override;
    void SetImportData(const IXMLDOMNode& node) override;
    void SetOfflineData(const IXMLDOMNode& node) override;
    void SetOnlineData(const IXMLDOMNode& node) override;
    // IQornView
    /// The form lists the button in front of the boxes.
    platform::WidgetList GetControls() override;
    void                 RequestFocus() override;

    /// Shows the address that the device has now; nothing changes if it cannot be read.
    void UpdateHartAddress();

private:
    void UserControl_Initialize();
    void cceMultidrop_Change(const std::string& text);
    void cmdSet_Click();
    void mMessenger_ViewSetCommunicationMode(std::int32_t mode);

    [[nodiscard]] AddressService* service(const Steps& step);
    /// The address that the device has now, nothing if it cannot be read.
    [[nodiscard]] std::optional<std::int16_t> readAddress(const Steps& step);
    /// Gives the address editor the addresses 1 to 15, or 0 alone.
    void offerAddresses(const Steps& step, bool isMultidrop);

    platform::Subscription mOnMode;
    platform::Subscription mOnClick     = cmdSet.Click.subscribe([this] { cmdSet_Click(); });
    platform::Subscription mOnMultidrop = cceMultidrop.Change.subscribe(
        [this](const std::string& text) { cceMultidrop_Change(text); });
    platform::Subscription mOnFirstLost = cceMultidrop.LostFocus.subscribe(
        [this] { modView::TransferFocusOnTab(*this, modView::FocusPosition::first); });
    platform::Subscription mOnLastLost = cmdSet.LostFocus.subscribe(
        [this] { modView::TransferFocusOnTab(*this, modView::FocusPosition::last); });
};

} // namespace quill
