#pragma once

#include "framework/modView.h"
#include "platform/buttons.h"
#include "status/StatusConfiguration.h"
#include "status/StatusNAMUR.h"
#include "status/StatusTreeView.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quill {

/// The view of a device whose status conditions can be switched on and off, in the classification
/// by NAMUR. While it is configured, the icons of the conditions are check marks that the user
/// toggles; the download writes the masks, to the device or, offline, into the datafile.
///
/// A response "deviceStatus" brings the conditions' values, "deviceStatusMasks" the masks. After
/// each datafile the view asks for the masks behind every complete status until it has them. A
/// condition that has gone keeps its mark until the device tells otherwise.
///
/// The host hears of the configuration by `NotifyDialog`.
class CtrStatusF : public StatusTreeView {
public:
    explicit CtrStatusF(const platform::Design& design = {});
    CtrStatusF(platform::Widget& container, const platform::Design& design = {});

    // In the order of the keyboard: tree, download, configuration.
    platform::CommandButton cmdDownload{
        frmViews, {.Name = "cmdDownload", .Caption = "Download", .Visible = false}};
    platform::CommandButton cmdConfiguration{
        frmViews,
        {.Name = "cmdConfiguration", .Tag = "statusMasks", .Caption = "Status Configuration"}};

    [[nodiscard]] const char* TypeName() const override { return "CtrStatusF"; }

    // IQornComponent
    /// Adds the rows of the host's device type information.
    void SetMessenger(Messenger* messenger) override;
    // ILocalizable
    void Localize(Translator& translator) override;
    // IQornDataUser
    void SetErrorData(const IXMLDOMNode& node) override;
    /// As the datafile; in the configuration that follows all conditions count as changed.
    void SetImportData(const IXMLDOMNode& node) override;
    /// Takes the datafile's status masks.
    void SetOfflineData(const IXMLDOMNode& node) override;
    void SetOnlineData(const IXMLDOMNode& node) override;
    // IQornView
    /// Ends a configuration that is under way.
    bool LeaveSelectedView() override;
    /// Lets go of the masks and their nodes as well.
    void PrepareToRelease() override;

    /// While idle, the view takes no data and no change of the communication mode.
    void Sleep(bool isIdle);
    /// The icons are check marks: `cmdDownload` is visible.
    [[nodiscard]] bool IsConfiguring() const { return cmdDownload.Visible; }
    [[nodiscard]] bool isSleeping() const noexcept { return mblnSleeping; }
    /// The device's masks have not come yet since the datafile came.
    [[nodiscard]] bool areMasksUnread() const noexcept { return mblnMasksUnread; }
    /// The masks come from an import.
    [[nodiscard]] bool isImported() const noexcept { return mblnImported; }

protected:
    [[nodiscard]] IQornStatusClass& statusClass() override
    {
        return existing(mobjStatusClass.get());
    }
    [[nodiscard]] bool isIconInUse(int index) override;
    void               arrange() override;
    void               readClasses(const Steps& step, const IXMLDOMNode& status) override;
    void               readMask(const Steps& step, int row, const IXMLDOMNode& status) override;

private:
    /// The name of the request that reads or writes the masks.
    static constexpr const char* kMasksRequest = "deviceStatusMasks";

    void UserControl_Initialize();
    void cmdConfiguration_Click();
    void cmdConfiguration_LostFocus();
    void cmdDownload_Click();
    void scgStatus_Click(int row, int col);
    void mMessenger_ViewSetCommunicationMode(std::int32_t mode);

    void LoadStatusTree(const IXMLDOMDocument& document);
    void showCaptions();

    void showStatus(const Steps& step, const IXMLDOMNode& response);
    void showRow(Pass& pass, const IXMLDOMNode& response, int index, std::string& lastClass);
    void restoreIcon(const Steps& step, int index);
    void SetOnlineMask(const IXMLDOMNode& response);

    void LeaveConfiguration();
    void showCheckMarks(const Steps& step, const char* suffix);
    void setCheckMark(int index, const std::string& key);
    /// Takes the mark of a row into the masks.
    void takeCheckMark(const Steps& step, int index, bool offline);
    void sendMasks(const Steps& step, bool offline);

    [[nodiscard]] StatusConfiguration& configuration() { return existing(mobjConfiguration.get()); }
    /// The key of the check mark that tells whether a condition is switched on.
    [[nodiscard]] std::string checkMarkOf(const std::string& key);
    [[nodiscard]] std::string iconAt(int index) const { return scgStatus.CellIcon(index + 1, 1); }
    [[nodiscard]] bool        isOffline(const Steps& step);

    std::unique_ptr<StatusNAMUR>         mobjStatusClass = std::make_unique<StatusNAMUR>();
    std::unique_ptr<StatusConfiguration> mobjConfiguration =
        std::make_unique<StatusConfiguration>();
    bool mblnSleeping    = false;
    bool mblnMasksUnread = true; ///< since the datafile came
    bool mblnImported    = false;
    /// The icons were taken away and the images not; the next status brings them back.
    bool mblnIconsGone = false;
    /// A download goes into the datafile.
    bool mblnAccepts = false;

    std::string mstrTextAccept        = "Accept";
    std::string mstrTextDownload      = cmdDownload.Caption;
    std::string mstrTextConfiguration = cmdConfiguration.Caption;
    std::string mstrTextCancel        = "Cancel";

    platform::Subscription mOnMode;
    platform::Subscription mOnDownload =
        cmdDownload.Click.subscribe([this] { cmdDownload_Click(); });
    platform::Subscription mOnConfiguration =
        cmdConfiguration.Click.subscribe([this] { cmdConfiguration_Click(); });
    platform::Subscription mOnLostFocus =
        cmdConfiguration.LostFocus.subscribe([this] { cmdConfiguration_LostFocus(); });
    platform::Subscription mOnCell =
        scgStatus.Click.subscribe([this](int row, int col) { scgStatus_Click(row, col); });
};

} // namespace quill
