#pragma once

#include "platform/pictures.h"
#include "platform/widget.h"

#include <cstdint>

namespace quill {

/// The shade of one row of a grey gradient over `rows` rows of pixels, row 0 on top. The first row
/// has `start` and the last one `end`, exactly; rows outside have the shade of the nearer end.
[[nodiscard]] std::int16_t slideShade(std::int32_t row, std::int32_t rows, std::int16_t start,
                                      std::int16_t end);
/// The grey of a shade: 0 is black, 255 white; what lies beyond is cut off.
[[nodiscard]] platform::Color shadeColor(std::int32_t shade);

/// The backdrop of a dialog: a grey gradient with an edge around it. It also gives the dialog's
/// buttons their picture. The panel holds the shades; a renderer paints them.
class CtrTBLaunchedPanel : public platform::Control {
public:
    explicit CtrTBLaunchedPanel(const platform::Design& design = {});
    CtrTBLaunchedPanel(platform::Widget& container, const platform::Design& design = {});
    ~CtrTBLaunchedPanel() override;

    /// Its first image is the picture of the buttons on the same form.
    platform::ImageList imlPanel{*this, {.Name = "imlPanel"}};

    platform::Property<std::int32_t> StartShade{*this};
    platform::Property<std::int32_t> EndShade{*this};
    platform::Property<std::int32_t> DarkShade{*this};
    platform::Property<std::int32_t> LightShade{*this};

    [[nodiscard]] const char* TypeName() const override { return "CtrTBLaunchedPanel"; }
    void                      visit(platform::PropertyVisitor& visitor) override;

    /// A gradient from one shade to the other, until the panel is painted anew: when it is shown or
    /// changes its size, its own shades come back.
    void DrawColorSlide(std::int16_t startShade, std::int16_t endShade);
    /// An edge in two shades, until the panel is painted anew.
    void DrawCustomFrame(std::int16_t dark, std::int16_t light);

private:
    void start();
    void paint();
    void shown();

    platform::Subscription mOnResize;
    platform::Subscription mOnShow;
    platform::Subscription mOnOwnerShow;
};

} // namespace quill
