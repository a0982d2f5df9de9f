// Options, checks and durations on a page of the shell.
#include "editors/CtrCheckEdit.h"
#include "editors/CtrOptionEdit.h"
#include "editors/CtrTimeEdit.h"
#include "window_fixture.h"

#include <QTreeView>
#include <gmock/gmock.h>

namespace quill::shell::test {
namespace {

using testing::ElementsAre;

class OptionsPage : public WindowTest {
protected:
    OptionsPage()
    {
        window->showPage("options");
        userInput::settle();
    }
    /// Edits besides those with which the datafile comes up.
    [[nodiscard]] std::size_t edits() { return store().editCount() - mEditsAtStart; }
    CtrOptionEdit&            option() { return editor<CtrOptionEdit>("failsafeAction"); }
    CtrCheckEdit&             checks() { return editor<CtrCheckEdit>("alarmMask"); }
    CtrTimeEdit&              interval() { return editor<CtrTimeEdit>("serviceInterval"); }
    QTreeView&                grid() { return dynamic_cast<QTreeView&>(shown(checks().scgCheck)); }

    void toggle(int row)
    {
        grid().setFocus();
        grid().setCurrentIndex(grid().model()->index(row - 1, 1));
        userInput::press(grid(), Qt::Key_Space);
    }
    std::string inDevice(const char* parameter)
    {
        return messenger().device().find(parameter)->value;
    }
    void download()
    {
        window->command("changes")->trigger();
        auto& dialog = window->changesDialog();
        dialog.view().flush();
        userInput::click(*dialog.view().shown(dialog.control().cmdDownload));
        waitForDevice();
    }

private:
    std::size_t mEditsAtStart = store().editCount();
};

TEST_F(OptionsPage, ShowsWhatTheDatafileHas)
{
    EXPECT_EQ(option().Text(), "Move closed");
    EXPECT_EQ(interval().Text(), "4380.00");
    EXPECT_EQ(interval().txtBox[0].Text.get(), "182");
    EXPECT_EQ(interval().txtBox[1].Text.get(), "12");
    EXPECT_EQ(checks().originalValue(), "5");
    EXPECT_FALSE(option().Modified() || interval().Modified() || checks().Modified());
    EXPECT_EQ(edits(), 0U);
}

TEST_F(OptionsPage, GivesEachEditorTheRoomThatItAsksFor)
{
    for (const char* name : {"failsafeAction", "alarmMask"}) {
        const auto& control = editor<EditorCore>(name);
        EXPECT_GE(control.Container()->Height.get(), control.Height.get()) << name;
        EXPECT_GE(control.Container()->Width.get(), control.Width.get()) << name;
    }
    const auto* delay = editor<EditorCore>("failsafeDelay").Container();
    const auto* above = option().Container();
    EXPECT_GE(delay->Top.get(), above->Top + above->Height) << "nothing overlaps";
    for (std::size_t place = 0; place < option().OptionCount(); ++place) {
        const QWidget& button = shown(option().Option(place));
        EXPECT_LE(button.geometry().bottom(), button.parentWidget()->height());
    }
    EXPECT_EQ(grid().verticalScrollBar()->maximum(), 0) << "all checks are seen at once";
    EXPECT_EQ(grid().horizontalScrollBar()->maximum(), 0);
}

TEST_F(OptionsPage, ChangesAreBookedSentAndAnswered)
{
    goOnline();
    userInput::click(shown(option().Option(4)));
    userInput::type(shown(interval().txtBox[0]), "30");
    userInput::type(shown(interval().txtBox[1]), "6");
    toggle(2);
    EXPECT_TRUE(option().Modified() && interval().Modified() && checks().Modified());
    EXPECT_EQ(edits(), 3U);
    window->command("changes")->trigger();
    std::vector<std::string> before;
    std::vector<std::string> after;
    for (const auto& row : window->changesDialog().control().lstChanges.ListItems()) {
        before.push_back(row.SubItems.at(0));
        after.push_back(row.SubItems.at(1));
    }
    window->changesDialog().reject();
    EXPECT_THAT(before, testing::Contains("Move closed"));
    EXPECT_THAT(before, testing::Contains("Travel, Temperature"));
    EXPECT_THAT(after, testing::Contains("Hold position"));
    EXPECT_THAT(after, testing::Contains("Travel, Supply pressure, Temperature"));
    EXPECT_THAT(after, testing::Contains(testing::StartsWith("726")));

    download();
    EXPECT_EQ(inDevice("failsafeAction"), "4");
    EXPECT_EQ(inDevice("alarmMask"), "7");
    EXPECT_NEAR(std::stod(inDevice("serviceInterval")), 30.25, 1e-3) << "the device counts in days";
    EXPECT_FALSE(option().Modified() || interval().Modified() || checks().Modified());
    EXPECT_EQ(inDocument("alarmMask", "synchronised"), "1");
}

TEST_F(OptionsPage, OneCheckPutBackDoesNotForgetAnother)
{
    toggle(2);
    toggle(4);
    EXPECT_EQ(edits(), 1U);
    toggle(4);
    EXPECT_EQ(edits(), 1U) << "the second one still is another";
    toggle(2);
    EXPECT_EQ(edits(), 0U);
    EXPECT_FALSE(checks().Modified());
}

TEST_F(OptionsPage, EditsAreSaved)
{
    userInput::click(shown(option().Option(1)));
    toggle(5);
    ASSERT_TRUE(window->save());
    EXPECT_EQ(onDisk("failsafeAction", "value"), "1");
    EXPECT_EQ(onDisk("alarmMask", "value"), "21");
}

TEST_F(OptionsPage, TheKeyboardReachesEverything)
{
    window->showPage("options");
    QWidget& first = shown(option().Option(3));
    EXPECT_TRUE(first.hasFocus()) << "who turns to the page stands on the chosen option";
    userInput::press(first, Qt::Key_Up);
    EXPECT_EQ(option().Text(), "Move open");
    QWidget* at = QApplication::focusWidget();
    ASSERT_NE(at, nullptr);
    userInput::press(*at, Qt::Key_Tab);
    at = QApplication::focusWidget();
    EXPECT_EQ(at, &shown(editor<CtrTimeEdit>("failsafeDelay").txtBox[0]))
        << "Tab leaves the group: " << (at ? at->accessibleName().toStdString() : "nowhere");
}

TEST_F(OptionsPage, WhoMayNotWriteSendsNothing)
{
    goOnline();
    const std::string before = inDevice("failsafeAction");
    userInput::click(shown(option().Option(1)));
    toggle(2);
    messenger().setUserLevel(2);
    userInput::settle();
    EXPECT_FALSE(window->command("changes")->isEnabled());
    EXPECT_FALSE(toolButton("changes").isEnabled());
    window->command("changes")->trigger();
    EXPECT_FALSE(window->changesDialog().isVisible());
    EXPECT_EQ(inDevice("failsafeAction"), before);
    EXPECT_TRUE(option().Modified()) << "the edit waits for somebody who may";
}

} // namespace
} // namespace quill::shell::test
