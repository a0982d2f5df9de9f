#pragma once

#include "editors/CtrTBLaunchedPanel.h"
#include "framework/ListTools.h"
#include "framework/host_contract.h"
#include "framework/steps.h"
#include "platform/buttons.h"
#include "platform/label.h"
#include "platform/list_view.h"
#include "platform/pictures.h"

#include <map>
#include <string>

namespace quill {

/// The dialog in which the user confirms the edited parameters before they go to the device or,
/// offline, into the datafile.
///
/// The host shows it (`show()`, or `Visible`); it asks for the pending changes by `RequestChanges`,
/// lists what comes back as `DialogSetChanges`, and turns the rows that stay checked into one
/// request per request group, sent by `SendCommunicationRequest` in the order in which the groups
/// were first met. It hides itself, and nothing survives the hiding. The host hears of its coming
/// and going by `NotifyDialog` and gets the keyboard focus back by `TransferFocus`.
class CtrChanges : public platform::Control, public IQornComponent, public ILocalizable {
public:
    explicit CtrChanges(const platform::Design& design = {});
    CtrChanges(platform::Widget& container, const platform::Design& design = {});

    platform::Label    lblTitle{*this,
                             {.Name    = "lblTitle",
                                 .Tag     = "changeConfirm",
                                 .Caption = "Confirm changes",
                                 .Left    = 180,
                                 .Top     = 150,
                                 .Width   = 8640,
                                 .Height  = 300}};
    platform::ListView lstChanges{
        *this, {.Name = "lstChanges", .Left = 180, .Top = 540, .Width = 8640, .Height = 4080}};
    // The headings of the list: its columns take their texts from these labels.
    platform::Label    lblParameter{*this,
                                 {.Name    = "lblParameter",
                                     .Tag     = "parameter",
                                     .Caption = "Parameter",
                                     .Left    = 180,
                                     .Top     = 540,
                                     .Width   = 3900,
                                     .Height  = 270,
                                     .Visible = false}};
    platform::Label    lblOld{*this,
                           {.Name    = "lblOld",
                               .Tag     = "valueOld",
                               .Caption = "Old value",
                               .Left    = 4080,
                               .Top     = 540,
                               .Width   = 2250,
                               .Height  = 270,
                               .Visible = false}};
    platform::Label    lblNew{*this,
                           {.Name    = "lblNew",
                               .Tag     = "valueNew",
                               .Caption = "New value",
                               .Left    = 6330,
                               .Top     = 540,
                               .Width   = 2250,
                               .Height  = 270,
                               .Visible = false}};
    platform::CheckBox chkChanges{
        *this, {.Name = "chkChanges", .Left = 180, .Top = 4770, .Width = 270, .Height = 270}};
    platform::Label         lblChanges{*this,
                               {.Name    = "lblChanges",
                                        .Tag     = "showAllParameters",
                                        .Caption = "Show also non-modified values",
                                        .Left    = 510,
                                        .Top     = 4770,
                                        .Width   = 8310,
                                        .Height  = 270}};
    platform::CommandButton cmdDownload{*this,
                                        {.Name    = "cmdDownload",
                                         .Tag     = "accept",
                                         .Caption = "Accept",
                                         .Left    = 2220,
                                         .Top     = 5340,
                                         .Width   = 2100,
                                         .Height  = 420}};
    platform::CommandButton cmdClear{*this,
                                     {.Name    = "cmdClear",
                                      .Tag     = "unSelect",
                                      .Caption = "Unselect",
                                      .Left    = 4470,
                                      .Top     = 5340,
                                      .Width   = 2100,
                                      .Height  = 420}};
    platform::CommandButton cmdClose{*this,
                                     {.Name    = "cmdClose",
                                      .Tag     = "close",
                                      .Caption = "Close",
                                      .Left    = 6720,
                                      .Top     = 5340,
                                      .Width   = 2100,
                                      .Height  = 420}};
    CtrTBLaunchedPanel      ctrTBLaunchedPanel{
        *this, {.Name = "ctrTBLaunchedPanel", .Width = 9000, .Height = 6000}};
    platform::ImageList imlChanges{*this, {.Name = "imlChanges"}};

    [[nodiscard]] const char* TypeName() const override { return "CtrChanges"; }

    // IQornComponent
    void SetMessenger(Messenger* messenger) override;
    // ILocalizable
    void Localize(Translator& translator) override;

    /// The rows behind the list.
    [[nodiscard]] const ListContainers& changes() const { return maChanges; }
    /// The `access` of the requests: "write" or "writeOffline".
    [[nodiscard]] const std::string& access() const { return mstrAccess; }
    /// The translated texts of "download" and "accept".
    [[nodiscard]] const std::map<std::string, std::string>& captions() const
    {
        return mobjCaptions;
    }

private:
    void Initialize();
    void arrange();
    void UserControl_Show();
    void UserControl_KeyDown(platform::KeyPress& key);
    void chkChanges_Click();
    void lstChanges_ItemCheck(int row);
    void cmdClear_Click();
    void cmdClose_Click();
    void cmdDownload_Click();
    void mMessenger_ViewSetCommunicationMode(std::int32_t mode);
    void mMessenger_DialogSetChanges(const ListTools::ChangeArguments& change);

    void empty();
    void showCommand(const Steps& step, const std::string& key);
    /// Puts the items of one row into the request of its group, which is made if it is missing.
    void addToRequests(const Steps& step, const IXMLDOMDocument& work, const ListContainer& row);
    void sendRequests(const Steps& step, const IXMLDOMDocument& work);

    Messenger*                         mMessenger = nullptr;
    ListContainers                     maChanges;
    std::map<std::string, std::string> mobjCaptions;
    std::string                        mstrAccess = "writeOffline";

    platform::Subscription mOnMode;
    platform::Subscription mOnSetChanges;
    platform::Subscription mOnShow   = Show.subscribe([this] { UserControl_Show(); });
    platform::Subscription mOnHide   = Hide.subscribe([this] { empty(); });
    platform::Subscription mOnResize = Resize.subscribe([this] { arrange(); });
    platform::Subscription mOnKey =
        KeyDown.subscribe([this](platform::KeyPress& key) { UserControl_KeyDown(key); });
    platform::Subscription mOnAll = chkChanges.Click.subscribe([this] { chkChanges_Click(); });
    platform::Subscription mOnCheck =
        lstChanges.ItemCheck.subscribe([this](int row) { lstChanges_ItemCheck(row); });
    platform::Subscription mOnClear = cmdClear.Click.subscribe([this] { cmdClear_Click(); });
    platform::Subscription mOnClose = cmdClose.Click.subscribe([this] { cmdClose_Click(); });
    platform::Subscription mOnDownload =
        cmdDownload.Click.subscribe([this] { cmdDownload_Click(); });
};

} // namespace quill
