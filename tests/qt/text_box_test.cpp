#include "tests/qt/screen_test_support.h"

#include <QLineEdit>

#include <gmock/gmock.h>

namespace quill::qt::test {

namespace {

struct TextPage : Page {
    platform::TextBox txtFirst{*this,
                               {.Name    = "txtFirst",
                                .Caption = "one",
                                .Left    = 300,
                                .Top     = 300,
                                .Width   = 1500,
                                .Height  = 315}};
    platform::TextBox txtSecond{*this,
                                {.Name    = "txtSecond",
                                 .Caption = "two",
                                 .Left    = 300,
                                 .Top     = 900,
                                 .Width   = 1500,
                                 .Height  = 315}};
};

TEST(TextBoxOnScreen, TypedTextArrivesInTheModelWithTheCursorWhereItIs)
{
    TextPage    page;
    const Shown screen(page);
    auto* const edit = screen.as<QLineEdit>(page.txtFirst);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->text(), "one");

    edit->setFocus();
    edit->setCursorPosition(1);
    QTest::keyClicks(edit, "xy");

    EXPECT_EQ(page.txtFirst.Text.get(), "oxyne");
    EXPECT_EQ(page.txtFirst.SelStart.get(), 3);
    EXPECT_EQ(edit->cursorPosition(), 3);
    EXPECT_TRUE(edit->isUndoAvailable());
}

TEST(TextBoxOnScreen, ATextThatTheProgramCorrectsIsShownAtOnce)
{
    TextPage    page;
    const auto  upper = page.txtFirst.Change.subscribe([&] {
        const auto cursor  = page.txtFirst.SelStart.get();
        page.txtFirst.Text = QString::fromStdString(page.txtFirst.Text).toUpper().toStdString();
        page.txtFirst.SelStart = cursor;
    });
    const Shown screen(page);
    auto* const edit = screen.as<QLineEdit>(page.txtFirst);
    edit->setFocus();
    edit->setCursorPosition(2);
    QTest::keyClick(edit, Qt::Key_Q);

    EXPECT_EQ(page.txtFirst.Text.get(), "ONQE");
    EXPECT_EQ(edit->text(), "ONQE");
    EXPECT_EQ(edit->cursorPosition(), 3);
}

TEST(TextBoxOnScreen, CharactersOutsideTheBasicPlaneCountAsOne)
{
    TextPage    page;
    const Shown screen(page);
    auto* const edit   = screen.as<QLineEdit>(page.txtFirst);
    page.txtFirst.Text = "\xF0\x9F\x98\x80z";
    screen.view->flush();
    edit->setFocus();
    edit->setCursorPosition(2);
    QTest::keyClick(edit, Qt::Key_A);

    EXPECT_EQ(page.txtFirst.Text.get(), "\xF0\x9F\x98\x80"
                                        "az");
    EXPECT_EQ(page.txtFirst.SelStart.get(), 2);
    EXPECT_EQ(edit->cursorPosition(), 3);
}

TEST(TextBoxOnScreen, TypingEndsAtTheGreatestLengthButTheProgramIsNotCut)
{
    TextPage page;
    page.txtFirst.MaxLength = 4;
    const Shown screen(page);
    auto* const edit = screen.as<QLineEdit>(page.txtFirst);
    edit->setFocus();
    edit->setCursorPosition(0);
    QTest::keyClicks(edit, "abc");
    EXPECT_EQ(page.txtFirst.Text.get(), "aone");

    page.txtFirst.Text = "longer than four";
    screen.view->flush();
    EXPECT_EQ(edit->text(), "longer than four");
}

TEST(TextBoxOnScreen, ALockedBoxKeepsItsText)
{
    TextPage page;
    page.txtFirst.Locked = true;
    const Shown screen(page);
    auto* const edit = screen.as<QLineEdit>(page.txtFirst);
    edit->setFocus();
    QTest::keyClicks(edit, "x");
    EXPECT_EQ(page.txtFirst.Text.get(), "one");
    EXPECT_EQ(edit->text(), "one");
}

TEST(TextBoxOnScreen, TheSelectionMadeOnGettingTheFocusOutlastsTheClick)
{
    TextPage    page;
    const auto  selects = page.txtSecond.GotFocus.subscribe([&] {
        page.txtSecond.SelStart  = 0;
        page.txtSecond.SelLength = 3;
    });
    const Shown screen(page);
    auto* const edit = screen.as<QLineEdit>(page.txtSecond);
    screen.click(page.txtSecond);
    EXPECT_TRUE(page.txtSecond.HasFocus());
    EXPECT_EQ(edit->selectedText(), "two");

    // A second click places the cursor, and the model hears of it.
    screen.click(page.txtSecond);
    EXPECT_FALSE(edit->hasSelectedText());
    EXPECT_EQ(page.txtSecond.SelLength.get(), 0);
}

TEST(TextBoxOnScreen, ASelectionMayReachBehindTheEnd)
{
    TextPage    page;
    const Shown screen(page);
    auto* const edit = screen.as<QLineEdit>(page.txtSecond);
    edit->setFocus();
    page.txtSecond.SelStart  = 1;
    page.txtSecond.SelLength = 2147483647;
    settle();
    EXPECT_EQ(edit->selectedText(), "wo");
}

TEST(TextBoxOnScreen, AKeyThatAHandlerTakesGoesNoFurther)
{
    TextPage         page;
    std::vector<int> keys;
    bool             take = true;
    const auto       down = page.txtFirst.KeyDown.subscribe([&](platform::KeyPress& key) {
        keys.push_back(key.code);
        key.handled = take;
    });
    const Shown      screen(page);
    auto* const      edit = screen.as<QLineEdit>(page.txtFirst);
    edit->setFocus();
    edit->setCursorPosition(2);
    screen.key(page.txtFirst, Qt::Key_Home);
    EXPECT_EQ(edit->cursorPosition(), 2);
    take = false;
    screen.key(page.txtFirst, Qt::Key_Home);
    EXPECT_EQ(edit->cursorPosition(), 0);
    screen.key(page.txtFirst, Qt::Key_Return);
    EXPECT_THAT(keys, ::testing::ElementsAre(36, 36, 13));
}

TEST(TextBoxOnScreen, AKeyClimbsTheFormOnce)
{
    TextPage    page;
    int         presses = 0;
    const auto  down    = page.KeyDown.subscribe([&](const platform::KeyPress&) { ++presses; });
    const Shown screen(page);
    screen.as<QLineEdit>(page.txtFirst)->setFocus();
    // Unused by a line edit, so Qt hands it on to the widgets around it.
    screen.key(page.txtFirst, Qt::Key_PageDown);
    EXPECT_EQ(presses, 1);
}

TEST(TextBoxOnScreen, AnExceptionOfAHandlerDoesNotReachTheEventLoop)
{
    TextPage    page;
    const auto  throws = page.txtFirst.Change.subscribe([] { throw std::runtime_error("no"); });
    const Shown screen(page);
    auto* const edit = screen.as<QLineEdit>(page.txtFirst);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_A);
    EXPECT_EQ(page.txtFirst.Text.get(), "a");
}

} // namespace

} // namespace quill::qt::test
