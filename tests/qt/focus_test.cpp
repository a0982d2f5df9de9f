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

/// Boxes that are disabled together for a while, as by a transfer.
struct BarredPage : Page {
    std::array<platform::TextBox, 3> box{
        {{*this, {.Name = "box", .Index = 0, .Width = 900, .Height = 315}},
         {*this, {.Name = "box", .Index = 1, .Top = 400, .Width = 900, .Height = 315}},
         {*this, {.Name = "box", .Index = 2, .Top = 800, .Width = 900, .Height = 315}}}};
    platform::CommandButton cmdOther{*this, {.Name = "cmdOther", .Top = 2000, .Width = 900}};
    platform::CommandButton cmdMore{*this, {.Name = "cmdMore", .Top = 3000, .Width = 900}};
    std::vector<int>        visited;

    BarredPage()
    {
        for (platform::TextBox& text : box) {
            text.Text = "12.5";
            mVisits.push_back(text.GotFocus.subscribe([this, &text] {
                visited.push_back(text.Index);
                text.SelStart  = 0;
                text.SelLength = 4;
            }));
        }
    }
    void bar(bool barred)
    {
        for (platform::TextBox& text : box) {
            text.Enabled = !barred;
        }
        settle();
    }

private:
    std::vector<platform::Subscription> mVisits;
};

TEST(FocusOnScreen, ABoxThatWasBarredForAWhileGetsItBack)
{
    BarredPage  page;
    const Shown screen(page);
    screen.click(page.box[0]);
    for (int time = 0; time < 2; ++time) {
        page.bar(true);
        EXPECT_EQ(QApplication::focusWidget(), screen[page.cmdOther]);
        page.bar(false);
        EXPECT_EQ(QApplication::focusWidget(), screen[page.box[0]]);
        EXPECT_TRUE(page.box[0].HasFocus());
    }
    EXPECT_THAT(page.visited, ::testing::ElementsAre(0, 0, 0)) << "no other box was visited";
}

TEST(FocusOnScreen, ABoxThatWasBarredDoesNotTakeItFromWhereItWent)
{
    BarredPage  page;
    const Shown screen(page);
    screen.click(page.box[0]);
    page.bar(true);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // the user
    page.bar(false);
    EXPECT_EQ(QApplication::focusWidget(), screen[page.cmdMore]);

    screen.click(page.box[0]);
    page.bar(true);
    page.box[2].Enabled = true;
    page.box[2].SetFocus(); // the program
    page.bar(false);
    EXPECT_EQ(QApplication::focusWidget(), screen[page.box[2]]);
}

TEST(FocusOnScreen, OnlyTheBoxWithItShowsASelection)
{
    BarredPage  page;
    const Shown screen(page);
    const auto  selected = [&] {
        std::vector<int> result;
        for (const platform::TextBox& text : page.box) {
            if (screen.as<QLineEdit>(text)->hasSelectedText()) {
                result.push_back(text.Index);
            }
        }
        return result;
    };
    for (platform::TextBox* box : {&page.box[1], &page.box[0]}) {
        box->SetFocus();
        settle();
    }
    EXPECT_THAT(selected(), ::testing::ElementsAre(0));
    page.box[1].SelLength = 2;
    settle();
    EXPECT_THAT(selected(), ::testing::ElementsAre(0));
    page.bar(true);
    EXPECT_THAT(selected(), ::testing::IsEmpty());
    page.bar(false);
    EXPECT_THAT(selected(), ::testing::ElementsAre(0));
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
