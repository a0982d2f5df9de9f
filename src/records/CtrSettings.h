#pragma once

#include "editors/CtrTBLaunchedPanel.h"
#include "framework/host_contract.h"
#include "framework/steps.h"
#include "platform/buttons.h"
#include "platform/combo_box.h"
#include "platform/grid.h"
#include "platform/label.h"

#include <string>
#include <vector>

namespace quill {

/// The dialog in which the user chooses the language, the display unit of each physical quantity
/// and the status classification. Nothing takes effect before OK or Apply: then the units go to the
/// host's `UnitConverter`, the classification to its Messenger, and the page that the dialog stands
/// on is called by name ("QuillTranslateTexts" with the language, "QuillInformUnitChanges").
///
/// The host shows it (`show()`, or `Visible`) and hears of its coming and going by `NotifyDialog`.
/// The quantities are read once, when it is shown for the first time. `Localize` puts the
/// classification back to the one in force: a host that localizes the dialog, too, does so after
/// "QuillTranslateTexts" has returned, or a classification chosen beside the language is lost.
class CtrSettings : public platform::Control, public IQornComponent, public ILocalizable {
public:
    explicit CtrSettings(const platform::Design& design = {});
    CtrSettings(platform::Widget& container, const platform::Design& design = {});

    platform::Label    lblTitle{*this,
                             {.Name    = "lblTitle",
                                 .Tag     = "settings",
                                 .Caption = "Settings",
                                 .Left    = 180,
                                 .Top     = 150,
                                 .Width   = 8640,
                                 .Height  = 300}};
    platform::Label    lblSelectLanguage{*this,
                                      {.Name    = "lblSelectLanguage",
                                          .Tag     = "languageSelection",
                                          .Caption = "Select language",
                                          .Left    = 180,
                                          .Top     = 615,
                                          .Width   = 4200,
                                          .Height  = 270}};
    platform::ComboBox cboSelectLanguage{*this,
                                         {.Name   = "cboSelectLanguage",
                                          .Tag    = "selectLanguage",
                                          .Left   = 180,
                                          .Top    = 900,
                                          .Width  = 4200,
                                          .Height = 330}};
    platform::Label    lblStatusClassification{*this,
                                            {.Name    = "lblStatusClassification",
                                                .Tag     = "statusClassificationSelection",
                                                .Caption = "Select status classification",
                                                .Left    = 4620,
                                                .Top     = 615,
                                                .Width   = 4200,
                                                .Height  = 270}};
    platform::ComboBox cboStatusClassification{*this,
                                               {.Name   = "cboStatusClassification",
                                                .Tag    = "selectStatusClassification",
                                                .Left   = 4620,
                                                .Top    = 900,
                                                .Width  = 4200,
                                                .Height = 330}};
    platform::Label    lblSelectUnits{*this,
                                   {.Name    = "lblSelectUnits",
                                       .Caption = "Select units",
                                       .Left    = 180,
                                       .Top     = 1425,
                                       .Width   = 8640,
                                       .Height  = 270}};
    platform::Grid     scgUnits{
        *this, {.Name = "scgUnits", .Left = 180, .Top = 1710, .Width = 8640, .Height = 2700}};
    platform::Grid          scgUnitsKey{*this, {.Name = "scgUnitsKey", .Visible = false}};
    platform::Label         lblChangeAll{*this,
                                 {.Name    = "lblChangeAll",
                                          .Tag     = "changeAllUnits",
                                          .Caption = "Change all parameters into",
                                          .Left    = 180,
                                          .Top     = 4635,
                                          .Width   = 4200,
                                          .Height  = 270}};
    platform::CommandButton cmdSI{*this,
                                  {.Name    = "cmdSI",
                                   .Tag     = "siUnits",
                                   .Caption = "SI",
                                   .Left    = 4620,
                                   .Top     = 4560,
                                   .Width   = 2025,
                                   .Height  = 420}};
    platform::CommandButton cmdUS{*this,
                                  {.Name    = "cmdUS",
                                   .Tag     = "usUnits",
                                   .Caption = "US",
                                   .Left    = 6795,
                                   .Top     = 4560,
                                   .Width   = 2025,
                                   .Height  = 420}};
    platform::CommandButton cmdOK{*this,
                                  {.Name    = "cmdOK",
                                   .Tag     = "ok",
                                   .Caption = "OK",
                                   .Left    = 2220,
                                   .Top     = 5340,
                                   .Width   = 2100,
                                   .Height  = 420}};
    platform::CommandButton cmdCancel{*this,
                                      {.Name    = "cmdCancel",
                                       .Tag     = "cancel",
                                       .Caption = "Cancel",
                                       .Left    = 4470,
                                       .Top     = 5340,
                                       .Width   = 2100,
                                       .Height  = 420}};
    platform::CommandButton cmdApply{*this,
                                     {.Name    = "cmdApply",
                                      .Tag     = "apply",
                                      .Caption = "Apply",
                                      .Left    = 6720,
                                      .Top     = 5340,
                                      .Width   = 2100,
                                      .Height  = 420}};
    CtrTBLaunchedPanel      ctrTBLaunchedPanel{
        *this, {.Name = "ctrTBLaunchedPanel", .Width = 9000, .Height = 6000}};

    [[nodiscard]] const char* TypeName() const override { return "CtrSettings"; }

    /// Selects the language in force; one that is not supported leaves the box without a selection.
    void SetCurrentLanguage(const std::string& lang);
    /// The languages that the user can choose, in this order. Nothing is selected afterwards.
    void SetSupportedLanguages(const std::vector<std::string>& langs);

    // IQornComponent
    void SetMessenger(Messenger* messenger) override;
    // ILocalizable
    void Localize(Translator& translator) override;

    /// Whether choices wait for OK or Apply.
    [[nodiscard]] bool               isModified() const noexcept { return mblnModified; }
    [[nodiscard]] const std::string& language() const noexcept { return mstrLanguage; }
    /// Those that the user can choose.
    [[nodiscard]] const std::vector<std::string>& languages() const noexcept
    {
        return mastrLanguages;
    }
    /// The quantities are in the grid.
    [[nodiscard]] bool areUnitsLoaded() const noexcept { return mblnUnitsLoaded; }
    /// The row of the unit that was opened for a choice last, 0 for none.
    [[nodiscard]] int unitRow() const noexcept { return miUnitRow; }

private:
    void UserControl_Initialize();
    void UserControl_Show();
    void UserControl_KeyDown(platform::KeyPress& key);
    void scgUnits_CellSelectionChange(int row, int col);
    void cmdApply_Click();
    void apply();
    void cmdOK_Click();
    void cmdCancel_Click();

    void arrange();
    void setModified(bool modified);
    void setUpGrids();
    void SetUnitConverter();
    void showBaseUnits(const std::string& system);
    void showCurrentUnits();
    void Translate();
    void ConvertUnits();
    void ClassifyStatuses();
    /// The dialog goes, and the host gets the focus back.
    void leave(const char* procedure);

    void localizeWidget(const Steps& step, platform::Widget& widget, Translator& translator);
    void localizeUnits(const Steps& step, Translator& translator);
    void fillClassifications(const Steps& step, Translator& translator);
    void selectLanguage(const std::string& language);
    void showUnit(int row, const std::string& unit);

    [[nodiscard]] Steps          steps(const char* procedure) const;
    [[nodiscard]] Messenger&     host() const;
    [[nodiscard]] UnitConverter* converter(const Steps& step) const;
    /// The quantity of a row.
    [[nodiscard]] std::string keyOf(int row) const;
    [[nodiscard]] std::string getText(const IXMLDOMNode& node, const char* xpath) const;

    Messenger*               mMessenger = nullptr;
    std::vector<std::string> mastrLanguages;
    std::string              mstrLanguage;
    bool                     mblnModified    = false;
    bool                     mblnUnitsLoaded = false;
    int                      miUnitRow       = 0;

    platform::Subscription mOnShow   = Show.subscribe([this] { UserControl_Show(); });
    platform::Subscription mOnResize = Resize.subscribe([this] { arrange(); });
    platform::Subscription mOnKey =
        KeyDown.subscribe([this](platform::KeyPress& key) { UserControl_KeyDown(key); });
    platform::Subscription mOnLanguage =
        cboSelectLanguage.Click.subscribe([this] { setModified(true); });
    platform::Subscription mOnClassification =
        cboStatusClassification.Click.subscribe([this] { setModified(true); });
    platform::Subscription mOnCell = scgUnits.CurCellChange.subscribe(
        [this](int row, int col) { scgUnits_CellSelectionChange(row, col); });
    platform::Subscription mOnEdit = scgUnits.RequestEdit.subscribe(
        [](platform::Grid::EditRequest& request) { request.cancel |= request.col == 1; });
    platform::Subscription mOnCommit =
        scgUnits.AfterCommitEdit.subscribe([this](int, int) { setModified(true); });
    platform::Subscription mOnSI     = cmdSI.Click.subscribe([this] {
        showBaseUnits("SI");
        setModified(true);
    });
    platform::Subscription mOnUS     = cmdUS.Click.subscribe([this] {
        showBaseUnits("US");
        setModified(true);
    });
    platform::Subscription mOnOK     = cmdOK.Click.subscribe([this] { cmdOK_Click(); });
    platform::Subscription mOnCancel = cmdCancel.Click.subscribe([this] { cmdCancel_Click(); });
    platform::Subscription mOnApply  = cmdApply.Click.subscribe([this] { cmdApply_Click(); });
};

} // namespace quill
