#include "shell/view_arrangement.h"

#include "actions/CtrHartAddress.h"
#include "actions/CtrMACalibration.h"
#include "actions/CtrModuleSelection.h"
#include "actions/CtrReset.h"
#include "framework/caption_width.h"
#include "records/CtrEventLog.h"
#include "shell/row_metrics.h"
#include "status/CtrStatus.h"
#include "status/CtrStatusF.h"

#include <algorithm>

namespace quill::shell {

namespace {

/// The row that begins at `top`: the label on its line, the box in its middle.
void placeRow(std::int32_t top, platform::Label& label, platform::Widget& box)
{
    label.Top    = top + (kRowHeight - kTextHeight) / 2;
    label.Height = kTextHeight;
    box.Top      = top + (kRowHeight - box.Height) / 2;
}

void placeButton(std::int32_t top, platform::CommandButton& button)
{
    button.Top    = top;
    button.Height = kRowHeight;
}

} // namespace

void fitStatusTree(platform::Control& view, const ViewKind::Blank&)
{
    auto& tree  = dynamic_cast<StatusTreeView&>(view).scgStatus;
    tree.Left   = 0;
    tree.Top    = 0;
    tree.Width  = view.Width.get();
    tree.Height = view.Height.get();
}

void fitStatusConfiguration(platform::Control& view, const ViewKind::Blank& blank)
{
    auto&              status = dynamic_cast<CtrStatusF&>(view);
    const std::int32_t gap =
        view.Width - status.cmdConfiguration.Left - status.cmdConfiguration.Width;
    fitStatusTree(view, blank);
    status.scgStatus.Width  = view.Width - gap;
    status.scgStatus.Height = std::max<std::int32_t>(
        0, std::min(status.cmdConfiguration.Top.get(), status.cmdDownload.Top.get()) - gap);
}

void fitEventLog(platform::Control& view, const ViewKind::Blank&)
{
    // A log has a bar at its side nearly always, and what is cut of the last column would need a
    // second one below.
    constexpr std::int32_t kBar     = 360;
    constexpr std::int32_t kPadding = 375;
    constexpr std::size_t  kEvent   = 1;
    auto&                  list     = dynamic_cast<CtrEventLog&>(view).lsvEventLog;
    std::int32_t           others   = 0;
    for (std::size_t column = 0; column < list.ColumnHeaders().size(); ++column) {
        const auto& header = list.ColumnHeaders()[column];
        // A column without a width is hidden.
        if (column != kEvent && header.Width > 0) {
            const std::int32_t width = std::max(header.Width, captionWidth(header.Text) + kPadding);
            list.setColumnWidth(static_cast<int>(column) + 1, width);
            others += width;
        }
    }
    list.setColumnWidth(kEvent + 1, std::max<std::int32_t>(list.Width - others - kBar, kBar));
}

void fitResets(platform::Control& view, const ViewKind::Blank& blank)
{
    constexpr std::int32_t kBeside = 780; // arrow, edges and signs
    constexpr std::int32_t kLeast  = 3900;
    constexpr std::int32_t kGap    = 200;
    auto&                  reset   = dynamic_cast<CtrReset&>(view);
    std::int32_t           width   = kLeast;
    for (const CtrComboEdit& combo : reset.cceReset) {
        for (const std::string& entry : combo.cboBox.List()) {
            width = std::max(width, captionWidth(entry) + kBeside);
        }
    }
    std::int32_t top = blank.top;
    for (std::size_t row = 0; row < reset.cceReset.size(); ++row) {
        reset.cceReset[row].Width = width;
        // A row that the device has nothing for leaves no gap.
        if (reset.cceReset[row].Visible) {
            placeRow(top, reset.lblReset[row], reset.cceReset[row]);
            top += kRowPitch;
        }
    }
    placeButton(blank.top, reset.cmdReset);
    reset.cmdReset.Left = reset.cceReset[0].Left + width + kGap;
}

void fitHartAddress(platform::Control& view, const ViewKind::Blank& blank)
{
    auto& address = dynamic_cast<CtrHartAddress&>(view);
    placeRow(blank.top, address.lblAssemblyRelated[1], address.cceMultidrop);
    placeRow(blank.top + kRowPitch, address.lblAssemblyRelated[0], address.cceAddress);
    placeButton(blank.top, address.cmdSet);
}

void fitCalibration(platform::Control& view, const ViewKind::Blank& blank)
{
    for (CtrDateLabel& date : dynamic_cast<CtrMACalibration&>(view).ctrDateLabels) {
        date.Width = captionWidth(date.Caption());
        date.Left  = view.Width - date.Width;
        date.Top   = blank.top - kTitleHeight + kTitleText;
    }
}

void fitModuleSelection(platform::Control& view, const ViewKind::Blank& blank)
{
    auto& modules               = dynamic_cast<CtrModuleSelection&>(view);
    modules.ModuleSelection.Top = blank.top + (kRowHeight - modules.ModuleSelection.Height) / 2;
    placeButton(blank.top, modules.cmdSetSelection);
}

} // namespace quill::shell
