// Where the keyboard is: after a transfer, behind a dialog, and at the edges of a page.
#include "action_window_fixture.h"
#include "shell/log_pane.h"

#include <QApplication>
#include <QCheckBox>
#include <QTreeWidget>

namespace quill::shell::test {
namespace {

class FocusInTheWindow : public ActionWindowTest {
protected:
    QWidget& focused() { return *QApplication::focusWidget(); }
    void     tab(bool forward = true)
    {
        userInput::press(focused(), forward ? Qt::Key_Tab : Qt::Key_Backtab,
                         forward ? Qt::NoModifier : Qt::ShiftModifier);
    }
    void focus(const platform::Widget& widget)
    {
        shown(widget).setFocus(Qt::OtherFocusReason);
        userInput::settle();
        ASSERT_EQ(QApplication::focusWidget(), &shown(widget));
    }
    QWidget& firstOfTheLog() { return *window->log().findChild<QCheckBox*>(); }
    QWidget& pages() { return *window->findChild<QTreeWidget*>("pages"); }
};

TEST_F(FocusInTheWindow, TheTabKeyPassesOverNothingBehindAPage)
{
    goOnline();
    window->showPage("hartAddress");
    focus(view<CtrHartAddress>("hartAddress").cmdSet);
    tab();
    EXPECT_EQ(&focused(), &firstOfTheLog());
    window->showPage("reset");
    auto& reset = view<CtrReset>("reset");
    press(reset.cceReset[0].cboBox, Qt::Key_Down);
    focus(reset.cmdReset);
    tab();
    EXPECT_EQ(&focused(), &firstOfTheLog());
    window->showPage("mACalibration");
    focus(view<CtrMACalibration>("mACalibration").cmdNext);
    tab();
    EXPECT_EQ(&focused(), &firstOfTheLog());
}

TEST_F(FocusInTheWindow, ShiftTabLeavesAPageBackwards)
{
    goOnline();
    window->showPage("hartAddress");
    focus(view<CtrHartAddress>("hartAddress").cceMultidrop.cboBox);
    tab(false);
    EXPECT_EQ(&focused(), &pages());
    window->showPage("eventLog");
    focus(view<CtrEventLog>("eventLog").lsvEventLog);
    tab(false);
    EXPECT_EQ(&focused(), &pages());
}

TEST_F(FocusInTheWindow, ShiftTabComesIntoAPageAtItsEnd)
{
    goOnline();
    window->showPage("mACalibration");
    userInput::settle();
    firstOfTheLog().setFocus();
    tab(false);
    EXPECT_EQ(&focused(), &shown(view<CtrMACalibration>("mACalibration").cmdNext));
}

TEST_F(FocusInTheWindow, EnterInABoxLeadsToTheNextOne)
{
    window->showPage("configuration");
    focus(editor<CtrTextEdit>("travelLowLimit").txtBox);
    userInput::press(focused(), Qt::Key_Return);
    EXPECT_EQ(&focused(), &shown(editor<CtrTextEdit>("travelHighLimit").txtBox));
}

TEST_F(FocusInTheWindow, IsWhereItWasWhenADialogHasGone)
{
    window->showPage("configuration");
    for (const char* command : {"settings", "changes"}) {
        SCOPED_TRACE(command);
        focus(editor<CtrTextEdit>("ratedTravel").txtBox);
        window->command(command)->trigger();
        userInput::settle();
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        userInput::press(*dialog, Qt::Key_Escape);
        window->activateWindow();
        userInput::settle();
        EXPECT_EQ(QApplication::focusWidget(), &shown(editor<CtrTextEdit>("ratedTravel").txtBox));
    }
}

TEST_F(FocusInTheWindow, StaysWhereItIsWhileAPageIsRead)
{
    goOnline();
    for (const auto& page : window->book().pages()) {
        SCOPED_TRACE(page->Tag.get());
        window->showPage(page->Tag);
        userInput::settle();
        QWidget* const before = QApplication::focusWidget();
        if (page->groups().empty() || !window->view().isAncestorOf(before)) {
            continue;
        }
        dialogs.answers.push_back(true);
        window->readPage();
        waitForDevice();
        userInput::settle();
        EXPECT_EQ(QApplication::focusWidget(), before);
        dialogs.answers.clear();
    }
}

} // namespace
} // namespace quill::shell::test
