#pragma once

#include "editors/CtrComboEdit.h"
#include "framework/modView.h"
#include "framework/page_view.h"
#include "platform/buttons.h"
#include "platform/label.h"

#include <array>
#include <cstddef>
#include <string>

namespace quill {

/// A view with three rows and one button: the user picks what to reset, and one click turns the
/// picks into requests. What destroys something is confirmed first.
///
/// Rows that the device has no parameter for disappear. The host's `Tag` for the view is the name
/// of the request that writes the codes. The button works online for users of maintenance level.
class CtrReset : public PageView {
public:
    explicit CtrReset(const platform::Design& design = {});
    CtrReset(platform::Widget& container, const platform::Design& design = {});

    platform::Frame frmViews{*this, {.Name = "frmViews", .Index = 0, .Tag = "reset"}};
    platform::Label lblTitle{frmViews,
                             {.Name    = "lblTitle",
                              .Tag     = "resetView",
                              .Caption = "resetView",
                              .Left    = 600,
                              .Top     = 300,
                              .Width   = 6700,
                              .Height  = 300}};
    std::array<platform::Label, 3> lblReset{{{frmViews,
                                              {.Name    = "lblReset",
                                               .Index   = 0,
                                               .Tag     = "resetStatus",
                                               .Caption = "resetStatus",
                                               .Left    = 600,
                                               .Top     = 795,
                                               .Width   = 1300,
                                               .Height  = 270}},
                                             {frmViews,
                                              {.Name    = "lblReset",
                                               .Index   = 1,
                                               .Tag     = "diagnostics",
                                               .Caption = "diagnostics",
                                               .Left    = 600,
                                               .Top     = 1200,
                                               .Width   = 1300,
                                               .Height  = 270}},
                                             {frmViews,
                                              {.Name    = "lblReset",
                                               .Index   = 2,
                                               .Tag     = "resetParametersCode",
                                               .Caption = "resetParametersCode",
                                               .Left    = 600,
                                               .Top     = 1605,
                                               .Width   = 1300,
                                               .Height  = 270}}}};
    std::array<CtrComboEdit, 3>    cceReset{{{frmViews,
                                              {.Name   = "cceReset",
                                               .Index  = 0,
                                               .Tag    = "ctr_resetStatus",
                                               .Left   = 2000,
                                               .Top    = 750,
                                               .Width  = 3900,
                                               .Height = 330}},
                                             {frmViews,
                                              {.Name   = "cceReset",
                                               .Index  = 1,
                                               .Tag    = "ctr_resetDiagnosticsCode",
                                               .Left   = 2000,
                                               .Top    = 1155,
                                               .Width  = 3900,
                                               .Height = 330}},
                                             {frmViews,
                                              {.Name   = "cceReset",
                                               .Index  = 2,
                                               .Tag    = "ctr_resetParametersCode",
                                               .Left   = 2000,
                                               .Top    = 1550,
                                               .Width  = 3900,
                                               .Height = 330}}}};
    platform::CommandButton        cmdReset{frmViews,
                                     {.Name    = "cmdReset",
                                             .Tag     = "reset",
                                             .Caption = "reset",
                                             .Left    = 6100,
                                             .Top     = 720,
                                             .Width   = 1200,
                                             .Height  = 336,
                                             .Enabled = false}};

    [[nodiscard]] const char* TypeName() const override { return "CtrReset"; }

    // IQornComponent
    void SetMessenger(Messenger* messenger) override;
    // ILocalizable
    void Localize(Translator& translator) override;
    // IQornDataUser
    void SetErrorData(const IXMLDOMNode& node) override;
    /// An imported datafile says nothing about resets.
    void SetImportData(const IXMLDOMNode&) override {}
    void SetOfflineData(const IXMLDOMNode& node) override;
    void SetOnlineData(const IXMLDOMNode& node) override;
    // IQornView
    void RequestFocus() override;

protected:
    /// This view drops what it cannot report to a host.
    [[nodiscard]] Steps debugSteps(const char*) const override { return silentSteps(); }

private:
    void UserControl_Initialize();
    void cmdReset_Click();
    void mMessenger_ViewSetCommunicationMode();

    /// The row has no parameter: it goes, and those below move up.
    void        removeRow(std::size_t row);
    void        resetStatus(const Steps& step);
    void        resetByCode(const Steps& step, std::size_t row, const std::string& titleKey,
                            const std::string& questionKey);
    std::string writeRequest(std::size_t row) const;
    void        send(const std::string& request);

    platform::Subscription mOnMode;
    platform::Subscription mOnClick     = cmdReset.Click.subscribe([this] { cmdReset_Click(); });
    platform::Subscription mOnFirstLost = cceReset[0].LostFocus.subscribe(
        [this] { modView::TransferFocusOnTab(*this, modView::FocusPosition::first); });
    platform::Subscription mOnLastLost = cmdReset.LostFocus.subscribe(
        [this] { modView::TransferFocusOnTab(*this, modView::FocusPosition::last); });
};

} // namespace quill
