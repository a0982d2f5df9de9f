#pragma once

#include "framework/modView.h"
#include "framework/page_view.h"
#include "platform/buttons.h"
#include "platform/combo_box.h"
#include "platform/label.h"

#include <cstdint>
#include <string>

namespace quill {

/// The view in which the user picks the module that a fieldbus configuration describes. The choices
/// come from the device's parameter document in the install folder; the chosen one goes into the
/// document that the host keeps as "FDT": its `param:Module` element, and the bus master's
/// configuration, which is rebuilt around the module's bytes.
///
/// What goes wrong in the view itself is told by `ReportErrorObject`.
class CtrModuleSelection : public PageView {
public:
    explicit CtrModuleSelection(const platform::Design& design = {});
    CtrModuleSelection(platform::Widget& container, const platform::Design& design = {});

    platform::Frame frmModuleSelection{
        *this,
        {.Name = "frmModuleSelection", .Tag = "moduleSelection", .Width = 9000, .Height = 3000}};
    platform::ComboBox ModuleSelection{
        frmModuleSelection,
        {.Name = "ModuleSelection", .Left = 600, .Top = 735, .Width = 5400, .Height = 330}};
    platform::CommandButton cmdSetSelection{frmModuleSelection,
                                            {.Name    = "cmdSetSelection",
                                             .Tag     = "apply",
                                             .Caption = "Apply",
                                             .Left    = 6200,
                                             .Top     = 715,
                                             .Width   = 1500,
                                             .Height  = 370}};
    platform::Label         lblTitle{frmModuleSelection,
                             {.Name    = "lblTitle",
                                      .Tag     = "moduleSelection",
                                      .Caption = "Module selection",
                                      .Left    = 600,
                                      .Top     = 300,
                                      .Width   = 7100,
                                      .Height  = 300}};

    [[nodiscard]] const char* TypeName() const override { return "CtrModuleSelection"; }

    // IQornComponent
    void SetMessenger(Messenger* messenger) override;
    // ILocalizable
    void Localize(Translator& translator) override;
    // IQornDataUser. Responses do not concern the view: what it changes lies with the host.
    void SetErrorData(const IXMLDOMNode&) override {}
    void SetImportData(const IXMLDOMNode& node) override;
    /// Reads the choices anew and shows the module that the host's document has.
    void SetOfflineData(const IXMLDOMNode& node) override;
    void SetOnlineData(const IXMLDOMNode&) override {}
    // IQornView. The view takes no focus by itself.
    void RequestFocus() override {}

    /// The mode that the host told last.
    [[nodiscard]] std::int32_t communicationMode() const noexcept { return mMode; }

protected:
    [[nodiscard]] Steps steps(const char* procedure) override;
    /// The frame keeps its size.
    void UserControl_Resize() override {}

private:
    void UserControl_Initialize();
    void ModuleSelection_Click();
    void cmdSetSelection_Click();

    void fitButton();
    void findDocumentsFolder(const Steps& step);
    void listModules(const Steps& step, const IXMLDOMNode& datafile);
    /// The host's document; an empty one, with a report, if it cannot be read.
    [[nodiscard]] IXMLDOMDocument openHostDocument(const Steps& step);
    /// The element of the module with the name that stands in the box.
    [[nodiscard]] IXMLDOMNode chosenModule(const Steps& step) const;

    IXMLDOMDocument        mParameterDocument;
    std::string            mDocumentsFolder;
    std::int32_t           mMode = 0;
    platform::Subscription mOnMode;
    platform::Subscription mOnChoice =
        ModuleSelection.Click.subscribe([this] { ModuleSelection_Click(); });
    platform::Subscription mOnTyped =
        ModuleSelection.Change.subscribe([this] { ModuleSelection_Click(); });
    platform::Subscription mOnSet =
        cmdSetSelection.Click.subscribe([this] { cmdSetSelection_Click(); });
    platform::Subscription mOnFirstLost = ModuleSelection.LostFocus.subscribe(
        [this] { modView::TransferFocusOnTab(*this, modView::FocusPosition::first); });
    platform::Subscription mOnLastLost = cmdSetSelection.LostFocus.subscribe(
        [this] { modView::TransferFocusOnTab(*this, modView::FocusPosition::last); });
};

} // namespace quill
