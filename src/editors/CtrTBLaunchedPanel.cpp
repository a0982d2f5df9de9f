#include "editors/CtrTBLaunchedPanel.h"

#include "platform/buttons.h"

#include <algorithm>
#include <cmath>

namespace quill {

namespace {

constexpr std::int16_t kStartShade = 232;
constexpr std::int16_t kEndShade   = 248;
constexpr std::int16_t kDarkShade  = 140;
constexpr std::int16_t kLightShade = 255;

} // namespace

std::int16_t slideShade(std::int32_t row, std::int32_t rows, std::int16_t start, std::int16_t end)
{
    if (row <= 0) {
        return start;
    }
    if (row >= rows - 1) {
        return end;
    }
    const double part = static_cast<double>(row) / (rows - 1);
    return static_cast<std::int16_t>(std::lround(start + part * (end - start)));
}

platform::Color shadeColor(std::int32_t shade)
{
    const auto grey = static_cast<platform::Color>(std::clamp(shade, 0, 255));
    return grey << 16U | grey << 8U | grey;
}

CtrTBLaunchedPanel::CtrTBLaunchedPanel(const platform::Design& design) : Control(design)
{
    start();
}

CtrTBLaunchedPanel::CtrTBLaunchedPanel(platform::Widget& container, const platform::Design& design)
    : Control(container, design)
{
    start();
}

CtrTBLaunchedPanel::~CtrTBLaunchedPanel()
{
    mOnOwnerShow.drop();
}

void CtrTBLaunchedPanel::start()
{
    paint();
    mOnResize = Resize.subscribe([this] { paint(); });
    mOnShow   = Show.subscribe([this] { shown(); });
    if (Owner() != nullptr) {
        // A panel comes up with its dialog, too.
        mOnOwnerShow = Owner()->Show.subscribe([this] {
            if (Visible) {
                shown();
            }
        });
    }
}

void CtrTBLaunchedPanel::visit(platform::PropertyVisitor& visitor)
{
    Control::visit(visitor);
    visitor.visit("StartShade", StartShade);
    visitor.visit("EndShade", EndShade);
    visitor.visit("DarkShade", DarkShade);
    visitor.visit("LightShade", LightShade);
}

void CtrTBLaunchedPanel::DrawColorSlide(std::int16_t startShade, std::int16_t endShade)
{
    StartShade = startShade;
    EndShade   = endShade;
}

void CtrTBLaunchedPanel::DrawCustomFrame(std::int16_t dark, std::int16_t light)
{
    DarkShade  = dark;
    LightShade = light;
}

void CtrTBLaunchedPanel::paint()
{
    DrawColorSlide(kStartShade, kEndShade);
    DrawCustomFrame(kDarkShade, kLightShade);
}

void CtrTBLaunchedPanel::shown()
{
    paint();
    if (Owner() == nullptr || imlPanel.Keys().empty()) {
        return;
    }
    const std::string picture = imlPanel.first();
    for (platform::Widget* widget : Owner()->Widgets()) {
        if (auto* button = dynamic_cast<platform::CommandButton*>(widget)) {
            button->Picture         = picture;
            button->DisabledPicture = picture;
            button->DownPicture     = picture;
        }
    }
}

} // namespace quill
