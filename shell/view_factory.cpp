#include "shell/view_factory.h"

#include "actions/CtrHartAddress.h"
#include "actions/CtrMACalibration.h"
#include "actions/CtrModuleSelection.h"
#include "actions/CtrReset.h"
#include "platform/toolkit.h"
#include "records/CtrEventLog.h"
#include "status/CtrStatus.h"
#include "status/CtrStatusF.h"

#include <algorithm>
#include <array>

namespace quill::shell {

namespace {

template <class View>
std::unique_ptr<platform::Control> make(platform::Widget& container, const platform::Design& design)
{
    return std::make_unique<View>(container, design);
}

/// A view whose title only says what the card around it says.
template <class View>
std::unique_ptr<platform::Control> makeUntitled(platform::Widget&       container,
                                                const platform::Design& design)
{
    auto view              = std::make_unique<View>(container, design);
    view->lblTitle.Visible = false;
    return view;
}

platform::CommandButton* setButton(platform::Control& view)
{
    return &dynamic_cast<CtrHartAddress&>(view).cmdSet;
}

platform::CommandButton* nextButton(platform::Control& view)
{
    return &dynamic_cast<CtrMACalibration&>(view).cmdNext;
}

void fetchAddress(platform::Control& view)
{
    auto& address = dynamic_cast<CtrHartAddress&>(view);
    if (!address.cceMultidrop.Modified() && !address.cceAddress.Modified()) {
        address.UpdateHartAddress();
    }
}

/// The list's columns fill it as long as it has no bar at its side. A log has one nearly always,
/// and what is cut of the last column would need a second one below.
void fitEventColumn(platform::Control& view)
{
    constexpr std::int32_t kBar    = 360;
    constexpr int          kEvent  = 2; // column, from 1
    auto&                  list    = dynamic_cast<CtrEventLog&>(view).lsvEventLog;
    const auto&            columns = list.ColumnHeaders();
    std::int32_t           others  = 0;
    for (std::size_t column = 0; column < columns.size(); ++column) {
        others += column + 1 == kEvent ? 0 : columns[column].Width;
    }
    list.setColumnWidth(kEvent, std::max<std::int32_t>(list.Width - others - kBar, kBar));
}

/// The lists show every entry whole; the button stands behind them.
void fitLists(platform::Control& view)
{
    constexpr std::int32_t kBeside = 780; // arrow, edges and signs
    constexpr std::int32_t kLeast  = 3900;
    constexpr std::int32_t kGap    = 200;
    auto&                  reset   = dynamic_cast<CtrReset&>(view);
    std::int32_t           width   = kLeast;
    for (const CtrComboEdit& combo : reset.cceReset) {
        for (const std::string& entry : combo.cboBox.List()) {
            width = std::max(width, platform::Toolkit::current().textWidth(entry) + kBeside);
        }
    }
    for (CtrComboEdit& combo : reset.cceReset) {
        combo.Width = width;
    }
    reset.cmdReset.Left = reset.cceReset[0].Left + width + kGap;
}

constexpr std::array kViews = {
    ViewKind{"CtrStatus", make<CtrStatus>, 6000, 3000},
    ViewKind{"CtrStatusF", make<CtrStatusF>, 7500, 3000},
    ViewKind{.name        = "CtrEventLog",
             .make        = make<CtrEventLog>,
             .leastWidth  = 9600,
             .leastHeight = 4500,
             .arrange     = fitEventColumn},
    ViewKind{.name         = "CtrReset",
             .make         = makeUntitled<CtrReset>,
             .leastWidth   = 10200,
             .leastHeight  = 2400,
             .actsByItself = true,
             .arrange      = fitLists},
    ViewKind{.name         = "CtrHartAddress",
             .make         = makeUntitled<CtrHartAddress>,
             .leastWidth   = 9600,
             .leastHeight  = 2100,
             .actsByItself = true,
             .sendButton   = setButton,
             .refresh      = fetchAddress},
    ViewKind{.name         = "CtrMACalibration",
             .make         = makeUntitled<CtrMACalibration>,
             .leastWidth   = 9600,
             .leastHeight  = 4200,
             .actsByItself = true,
             .hearsModes   = false,
             .sendButton   = nextButton},
    ViewKind{.name        = "CtrModuleSelection",
             .make        = makeUntitled<CtrModuleSelection>,
             .leastWidth  = 9000,
             .leastHeight = 2100},
};

} // namespace

const ViewKind* findView(const std::string& name)
{
    const auto found =
        std::ranges::find_if(kViews, [&](const ViewKind& kind) { return name == kind.name; });
    return found != kViews.end() ? found : nullptr;
}

} // namespace quill::shell
