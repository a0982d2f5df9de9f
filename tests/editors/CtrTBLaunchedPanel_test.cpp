#include "editors/CtrTBLaunchedPanel.h"

#include "platform/buttons.h"
#include "platform/label.h"

#include <gmock/gmock.h>

#include <memory>

namespace quill {
namespace {

TEST(SlideShade, RunsFromEndToEnd)
{
    for (const std::int32_t rows : {2, 3, 17, 1000}) {
        EXPECT_EQ(slideShade(0, rows, 232, 248), 232);
        EXPECT_EQ(slideShade(rows - 1, rows, 232, 248), 248);
        EXPECT_EQ(slideShade(0, rows, 248, 232), 248);
        EXPECT_EQ(slideShade(rows - 1, rows, 248, 232), 232);
    }
}

TEST(SlideShade, IsLinear)
{
    EXPECT_EQ(slideShade(1, 5, 0, 100), 25);
    EXPECT_EQ(slideShade(2, 5, 0, 100), 50);
    EXPECT_EQ(slideShade(3, 5, 100, 0), 25);
    std::int16_t before = 232;
    for (std::int32_t row = 0; row < 300; ++row) {
        const std::int16_t shade = slideShade(row, 300, 232, 248);
        EXPECT_GE(shade, before);
        EXPECT_LE(shade - before, 1);
        before = shade;
    }
}

TEST(SlideShade, KeepsToItsEndsOutside)
{
    EXPECT_EQ(slideShade(-1, 10, 1, 2), 1);
    EXPECT_EQ(slideShade(10, 10, 1, 2), 2);
    EXPECT_EQ(slideShade(0, 0, 1, 2), 1);
    EXPECT_EQ(slideShade(0, 1, 1, 2), 1);
    EXPECT_EQ(slideShade(1, 3, -32768, 32767), -1);
}

TEST(ShadeColor, IsGreyAndCutOff)
{
    EXPECT_EQ(shadeColor(0), 0U);
    EXPECT_EQ(shadeColor(232), 0xe8e8e8U);
    EXPECT_EQ(shadeColor(255), 0xffffffU);
    EXPECT_EQ(shadeColor(300), 0xffffffU);
    EXPECT_EQ(shadeColor(-5), 0U);
}

/// A dialog with its backdrop and two buttons, one of them in a frame.
struct TBLaunchedPanel : testing::Test {
    platform::Control       dialog;
    CtrTBLaunchedPanel      panel{dialog, {.Name = "panel", .Width = 6000, .Height = 4000}};
    platform::CommandButton cmdOK{dialog, {.Name = "cmdOK"}};
    platform::Frame         frame{dialog, {.Name = "frame"}};
    platform::CommandButton cmdSet{frame, {.Name = "cmdSet"}};
    platform::CheckBox      chkAll{dialog, {.Name = "chkAll"}};

    void expectShades(int start, int end, int dark, int light) const
    {
        EXPECT_EQ(panel.StartShade, start);
        EXPECT_EQ(panel.EndShade, end);
        EXPECT_EQ(panel.DarkShade, dark);
        EXPECT_EQ(panel.LightShade, light);
    }
};

TEST_F(TBLaunchedPanel, IsPaintedOnCreation)
{
    expectShades(232, 248, 140, 255);
}

TEST_F(TBLaunchedPanel, ShowsOtherShadesUntilItIsPaintedAnew)
{
    int  told      = 0;
    auto onChanged = panel.Changed.subscribe([&](const platform::WidgetChange&) { ++told; });
    panel.DrawColorSlide(10, 20);
    panel.DrawCustomFrame(30, 40);
    expectShades(10, 20, 30, 40);
    EXPECT_EQ(told, 4);
    panel.resize(3000, 2000);
    expectShades(232, 248, 140, 255);
    panel.DrawColorSlide(10, 20);
    panel.show();
    expectShades(232, 248, 140, 255);
}

TEST_F(TBLaunchedPanel, GivesTheButtonsItsFirstImageWhenShown)
{
    panel.imlPanel.Add("bar");
    panel.imlPanel.Add("other");
    EXPECT_EQ(cmdOK.Picture, "");
    panel.show();
    for (const auto* button : {&cmdOK, &cmdSet}) {
        EXPECT_EQ(button->Picture, "bar");
        EXPECT_EQ(button->DisabledPicture, "bar");
        EXPECT_EQ(button->DownPicture, "bar");
    }
    EXPECT_EQ(chkAll.Picture, "");
}

TEST_F(TBLaunchedPanel, ComesUpWithItsDialogUnlessHidden)
{
    panel.imlPanel.Add("bar");
    panel.hide();
    dialog.show();
    EXPECT_EQ(cmdOK.Picture, "");
    panel.show();
    EXPECT_EQ(cmdOK.Picture, "bar");
    cmdOK.Picture = "own";
    dialog.show();
    EXPECT_EQ(cmdOK.Picture, "bar");
}

TEST_F(TBLaunchedPanel, LeavesTheButtonsAloneWithoutAnImage)
{
    cmdOK.Picture = "own";
    panel.show();
    EXPECT_EQ(cmdOK.Picture, "own");
}

TEST(TBLaunchedPanelAlone, HasNobodyToServe)
{
    CtrTBLaunchedPanel panel;
    panel.imlPanel.Add("bar");
    EXPECT_NO_THROW(panel.show());
    EXPECT_EQ(panel.StartShade, 232);
}

TEST(TBLaunchedPanelAlone, MayGoBeforeItsDialog)
{
    platform::Control dialog;
    auto              panel = std::make_unique<CtrTBLaunchedPanel>(dialog);
    panel.reset();
    EXPECT_NO_THROW(dialog.show());
}

} // namespace
} // namespace quill
