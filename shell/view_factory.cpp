#include "shell/view_factory.h"

#include "actions/CtrHartAddress.h"
#include "actions/CtrMACalibration.h"
#include "actions/CtrModuleSelection.h"
#include "actions/CtrReset.h"
#include "records/CtrEventLog.h"
#include "shell/view_arrangement.h"
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

constexpr std::array kViews = {
    ViewKind{.name        = "CtrStatus",
             .make        = make<CtrStatus>,
             .leastWidth  = 6000,
             .leastHeight = 3000,
             .arrange     = fitStatusTree},
    ViewKind{.name        = "CtrStatusF",
             .make        = make<CtrStatusF>,
             .leastWidth  = 7500,
             .leastHeight = 3000,
             .blank       = {0, 0, 150, 150},
             .arrange     = fitStatusConfiguration},
    ViewKind{.name        = "CtrEventLog",
             .make        = make<CtrEventLog>,
             .leastWidth  = 9600,
             .leastHeight = 3900,
             .blank       = {180, 180, 180, 180},
             .keepsTexts  = true,
             .arrange     = fitEventLog},
    ViewKind{.name         = "CtrReset",
             .make         = makeUntitled<CtrReset>,
             .leastWidth   = 10200,
             .leastHeight  = 2100,
             .blank        = {.left = 600, .top = 750},
             .fills        = false,
             .actsByItself = true,
             .arrange      = fitResets},
    ViewKind{.name         = "CtrHartAddress",
             .make         = makeUntitled<CtrHartAddress>,
             .leastWidth   = 9600,
             .leastHeight  = 1620,
             .blank        = {.left = 600, .top = 750},
             .fills        = false,
             .actsByItself = true,
             .sendButton   = setButton,
             .refresh      = fetchAddress,
             .arrange      = fitHartAddress},
    ViewKind{.name          = "CtrMACalibration",
             .make          = makeUntitled<CtrMACalibration>,
             .leastWidth    = 9600,
             .leastHeight   = 3690,
             .blank         = {.left = 360, .top = 870},
             .fills         = false,
             .actsByItself  = true,
             .hearsModes    = false,
             .drivesCurrent = true,
             .sendButton    = nextButton,
             .arrange       = fitCalibration},
    ViewKind{.name        = "CtrModuleSelection",
             .make        = makeUntitled<CtrModuleSelection>,
             .leastWidth  = 9000,
             .leastHeight = 1095,
             .blank       = {.left = 600, .top = 705},
             .fills       = false,
             .arrange     = fitModuleSelection},
};

} // namespace

const ViewKind* findView(const std::string& name)
{
    const auto found =
        std::ranges::find_if(kViews, [&](const ViewKind& kind) { return name == kind.name; });
    return found != kViews.end() ? found : nullptr;
}

} // namespace quill::shell
