#include "tests/qt/screen_test_support.h"

#include <QLineEdit>
#include <QPushButton>

#include <gmock/gmock.h>

namespace quill::qt::test {

namespace {

struct LivingPage : Page {
    std::unique_ptr<platform::Frame> frame = std::make_unique<platform::Frame>(
        *this,
        platform::Design{.Name = "frame", .Caption = "Frame", .Width = 6000, .Height = 3000});
    std::unique_ptr<platform::CommandButton> cmd = std::make_unique<platform::CommandButton>(
        *frame, platform::Design{.Name = "cmd", .Top = 600, .Width = 900, .Height = 375});
    std::unique_ptr<platform::TextBox> txt = std::make_unique<platform::TextBox>(
        *frame, platform::Design{.Name = "txt", .Top = 1200, .Width = 900, .Height = 315});
};

TEST(LifetimeOnScreen, AWidgetThatDiesLeavesTheScreen)
{
    LivingPage  page;
    const Shown screen(page);
    screen.click(*page.cmd);
    const QPointer<QWidget> shown = screen[*page.cmd];
    page.cmd.reset();
    // A key may come before the next turn.
    QTest::keyClick(shown, Qt::Key_Space);
    settle();
    EXPECT_TRUE(shown.isNull());
}

TEST(LifetimeOnScreen, AWidgetMayDieInItsOwnHandler)
{
    LivingPage  page;
    const auto  clicked = page.cmd->Click.subscribe([&] { page.cmd.reset(); });
    const auto  typed   = page.txt->Change.subscribe([&] { page.frame.reset(); });
    const Shown screen(page);
    screen.click(*page.cmd);
    EXPECT_EQ(page.cmd, nullptr);
    QTest::keyClick(screen[*page.txt], Qt::Key_A);
    settle();
    // The box was in the frame and is on the form itself now.
    ASSERT_NE(screen[*page.txt], nullptr);
    EXPECT_TRUE(screen[*page.txt]->isVisible());
    EXPECT_EQ(screen[*page.txt]->parentWidget(), screen[page]);
}

TEST(LifetimeOnScreen, AWidgetThatComesLaterIsShown)
{
    LivingPage              page;
    const Shown             screen(page);
    platform::CommandButton late(page, {.Name = "late", .Left = 6300, .Width = 900, .Height = 375});
    settle();
    ASSERT_NE(screen[late], nullptr);
    EXPECT_TRUE(screen[late]->isVisible());
    int        clicks  = 0;
    const auto clicked = late.Click.subscribe([&] { ++clicks; });
    screen.click(late);
    EXPECT_EQ(clicks, 1);
}

TEST(LifetimeOnScreen, AViewGoesBlankWhenItsControlDies)
{
    auto                    page = std::make_unique<LivingPage>();
    const Shown             screen(*page);
    const QPointer<QWidget> shown = screen[*page->txt];
    shown->setFocus();
    page.reset();
    QTest::keyClick(shown, Qt::Key_A);
    settle();
    EXPECT_TRUE(shown.isNull());
    EXPECT_TRUE(screen.view->findChildren<QLineEdit*>().isEmpty());
    screen.view->resize(300, 300);
    screen.view->flush();
    settle();
}

TEST(LifetimeOnScreen, AControlOutlivesItsViewAndIsShownAnew)
{
    LivingPage page;
    {
        const Shown screen(page);
        screen.click(*page.txt);
    }
    page.txt->Text = "later";
    const Shown screen(page);
    EXPECT_EQ(screen.as<QLineEdit>(*page.txt)->text(), "later");
}

TEST(LifetimeOnScreen, TwoViewsShowOneControl)
{
    LivingPage  page;
    const Shown first(page);
    const View  second(page);
    QTest::keyClicks(first[*page.txt], "x");
    settle();
    EXPECT_EQ(dynamic_cast<QLineEdit*>(second.shown(*page.txt))->text(), "x");
}

TEST(LifetimeOnScreen, AnInvisibleControlIsABlankView)
{
    LivingPage  page;
    const Shown screen(page);
    page.hide();
    settle();
    EXPECT_FALSE(screen[*page.txt]->isVisible());
    page.show();
    settle();
    EXPECT_TRUE(screen[*page.txt]->isVisible());
}

} // namespace

} // namespace quill::qt::test
