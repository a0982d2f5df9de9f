#include "editors/CtrFocusTransfer.h"
#include "platform/toolkit.h"
#include "tests/qt/screen_test_support.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <gmock/gmock.h>

#include <optional>

namespace quill::qt::test {

namespace {

struct Inner : platform::Control {
    using Control::Control;
    platform::TextBox txtBox{*this, {.Name = "txtBox", .Width = 900, .Height = 315}};
};

struct FocusPage : Page {
    platform::TextBox txtFirst{*this, {.Name = "txtFirst", .Width = 900, .Height = 315}};
    platform::Frame   frame{*this, {.Name = "frame", .Top = 600, .Width = 5000, .Height = 900}};
    platform::CommandButton cmdSkipped{*this, {.Name = "cmdSkipped", .Left = 6000, .Width = 900}};
    platform::CommandButton cmdInside{frame, {.Name = "cmdInside", .Width = 900}};
    Inner            inner{*this, {.Name = "inner", .Top = 2000, .Width = 900, .Height = 315}};
    CtrFocusTransfer stop{*this, {.Name = "CtrFocusTransfer1", .Top = 3000}};

    FocusPage() { cmdSkipped.TabStop = false; }
};

std::string focusedName()
{
    const auto* const focused = platform::Widget::focused();
    return focused != nullptr ? focused->Name : std::string{};
}

TEST(FocusOnScreen, TabFollowsTheFormOrderIntoFramesAndChildControls)
{
    FocusPage   page;
    const Shown screen(page);
    screen.click(page.txtFirst);
    std::vector<std::string> names{focusedName()};
    for (int step = 0; step < 4; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settle();
        names.push_back(focusedName());
    }
    EXPECT_THAT(names, ::testing::ElementsAre("txtFirst", "cmdInside", "txtBox",
                                              "CtrFocusTransfer1", "txtFirst"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    settle();
    EXPECT_EQ(focusedName(), "CtrFocusTransfer1");
}

TEST(FocusOnScreen, ADyingFrameLeavesTheOrderWhole)
{
    FocusPage   page;
    const Shown screen(page);
    auto        late = std::make_unique<platform::TextBox>(
        page, platform::Design{.Name = "late", .Top = 4000, .Width = 900, .Height = 315});
    settle();
    ASSERT_NE(screen[*late], nullptr);
    screen.click(page.stop);
    page.stop.SetFocus();
    settle();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    settle();
    EXPECT_EQ(focusedName(), "late");
}

TEST(FocusOnScreen, MovingOnIsOneLossAndOneGain)
{
    FocusPage                page;
    std::vector<std::string> heard;
    const auto               lost =
        page.txtFirst.LostFocus.subscribe([&] { heard.emplace_back("lost " + focusedName()); });
    const auto got =
        page.inner.GotFocus.subscribe([&] { heard.emplace_back("got " + focusedName()); });
    const Shown screen(page);
    screen.click(page.txtFirst);
    screen.click(page.inner.txtBox);
    EXPECT_THAT(heard, ::testing::ElementsAre("lost txtBox", "got txtBox"));
}

TEST(FocusOnScreen, TheProgramMovesIt)
{
    FocusPage   page;
    const Shown screen(page);
    page.cmdInside.SetFocus();
    settle();
    EXPECT_TRUE(screen[page.cmdInside]->hasFocus());
    // The focus of a child control is on the first widget in it.
    page.inner.SetFocus();
    settle();
    EXPECT_TRUE(screen[page.inner.txtBox]->hasFocus());
    EXPECT_TRUE(page.inner.txtBox.HasFocus());
}

TEST(FocusOnScreen, AHandlerMayMoveItOnWhileItArrives)
{
    FocusPage   page;
    const auto  on = page.stop.GotFocus.subscribe([&] { page.txtFirst.SetFocus(); });
    const Shown screen(page);
    page.inner.txtBox.SetFocus();
    settle();
    screen.key(page.inner.txtBox, Qt::Key_Tab);
    EXPECT_TRUE(page.txtFirst.HasFocus());
    EXPECT_TRUE(screen[page.txtFirst]->hasFocus());
}

TEST(FocusOnScreen, LosingTheWindowIsNoLossButLeavingTheFormIs)
{
    FocusPage   page;
    int         losses = 0;
    const auto  lost   = page.txtFirst.LostFocus.subscribe([&] { ++losses; });
    QWidget     window;
    auto* const view    = new View(page, &window);
    auto* const foreign = new QLineEdit(&window);
    window.show();
    QApplication::setActiveWindow(&window);
    settle();
    view->shown(page.txtFirst)->setFocus();
    settle();
    ASSERT_TRUE(page.txtFirst.HasFocus());

    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    settle();
    EXPECT_TRUE(page.txtFirst.HasFocus());
    EXPECT_EQ(losses, 0);

    QApplication::setActiveWindow(&window);
    settle();
    foreign->setFocus();
    settle();
    EXPECT_FALSE(page.txtFirst.HasFocus());
    EXPECT_EQ(losses, 1);
}

TEST(FocusOnScreen, TheToolkitKnowsTheTabKeyWhileTheFocusMoves)
{
    FocusPage           page;
    std::optional<bool> tab;
    std::optional<bool> shift;
    const auto          got = page.stop.GotFocus.subscribe([&] {
        tab   = platform::Toolkit::current().keyDown(platform::kKeyTab);
        shift = platform::Toolkit::current().keyDown(platform::kKeyShift);
    });
    const Shown         screen(page);
    page.inner.txtBox.SetFocus();
    settle();
    screen.key(page.inner.txtBox, Qt::Key_Tab);
    EXPECT_EQ(tab, true);
    EXPECT_EQ(shift, false);
    page.txtFirst.SetFocus();
    settle();
    screen.key(page.txtFirst, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(shift, true);
    EXPECT_FALSE(platform::Toolkit::current().keyDown(platform::kKeyTab));
}

} // namespace

} // namespace quill::qt::test
