// What the text editor holds, its visible signs, its focus, and its life.

#include "text_editor_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CtrTextEditTest : public TextEditorTest {};

constexpr platform::Color kRed = 255, kBlue = 0xff0000, kGrey = 0xe0e0e0, kWhite = 0xffffff,
                          kDefault = 0x80000008;

TEST_F(CtrTextEditTest, StartsWithoutSignsAndInItsInitialState)
{
    EXPECT_FALSE(editor.lblError.Visible);
    EXPECT_FALSE(editor.lblModified.Visible);
    EXPECT_EQ(editor.lblError.Caption.get(), "!");
    EXPECT_EQ(editor.lblModified.Caption.get(), "*");
    EXPECT_EQ(editor.lblError.ForeColor.get(), kRed);
    EXPECT_EQ(editor.lblModified.ForeColor.get(), kBlue);
    EXPECT_EQ(editor.messageUnit(), "noUnit");
    EXPECT_EQ(editor.numberFormat(), "######0");
    EXPECT_EQ(editor.changeState(), "original");
    EXPECT_EQ(editor.syncState(), "notRead");
    EXPECT_EQ(editor.decimalSeparator(), ".");
    EXPECT_EQ(editor.decimalCount(), 0);
    EXPECT_TRUE(editor.allowEmpty());
    EXPECT_FALSE(editor.IsInitialized());
    EXPECT_TRUE(editor.Correct());
    EXPECT_FALSE(editor.Modified());
}

TEST_F(CtrTextEditTest, ModifiedIsTheVisibilityOfItsSignAndCorrectTheAbsenceOfTheOther)
{
    editor.lblModified.Visible = true;
    EXPECT_TRUE(editor.Modified());
    editor.lblError.Visible = true;
    EXPECT_FALSE(editor.Correct());
}

TEST_F(CtrTextEditTest, GoesThroughItsColoursWithCorrectAndModified)
{
    editor.setModified(true);
    EXPECT_EQ(editor.txtBox.ForeColor.get(), kBlue);
    editor.setCorrect(false);
    EXPECT_EQ(editor.txtBox.ForeColor.get(), kRed);
    editor.setCorrect(true);
    EXPECT_EQ(editor.txtBox.ForeColor.get(), kBlue);
    editor.setModified(false);
    EXPECT_EQ(editor.txtBox.ForeColor.get(), kDefault);
    editor.setCorrect(false);
    editor.setModified(false);
    EXPECT_EQ(editor.txtBox.ForeColor.get(), kRed);
}

TEST_F(CtrTextEditTest, BecomingCorrectWhileUnmodifiedMakesThePresentTextTheReference)
{
    load();
    type("6");
    editor.lblModified.Visible = false;
    editor.setCorrect(true);
    EXPECT_EQ(editor.originalText(), "6");
}

TEST_F(CtrTextEditTest, EnabledPaintsTheBox)
{
    editor.setEnabled(false);
    EXPECT_FALSE(editor.txtBox.Enabled);
    EXPECT_EQ(editor.txtBox.BackColor.get(), kGrey);
    editor.lblModified.Visible = true;
    editor.setEnabled(true);
    EXPECT_EQ(editor.txtBox.BackColor.get(), kWhite);
    EXPECT_EQ(editor.txtBox.ForeColor.get(), kBlue);
    editor.lblError.Visible = true;
    editor.setEnabled(true);
    EXPECT_EQ(editor.txtBox.ForeColor.get(), kRed);
    editor.lblError.Visible    = false;
    editor.lblModified.Visible = false;
    editor.setEnabled(true);
    EXPECT_EQ(editor.txtBox.ForeColor.get(), kDefault);
}

TEST_F(CtrTextEditTest, EnabledIsIgnoredWhileSilentAndLockedAtTheSameTime)
{
    editor.setSilent(true);
    editor.setEnabled(false);
    EXPECT_FALSE(editor.Enabled());
    editor.setEnabled(true);
    editor.setLocked(true);
    editor.setEnabled(false);
    EXPECT_TRUE(editor.Enabled());
}

TEST_F(CtrTextEditTest, EnabledWorksWhileLockedAndNotSilent)
{
    editor.setLocked(true);
    editor.setEnabled(false);
    EXPECT_FALSE(editor.Enabled());
}

TEST_F(CtrTextEditTest, ReadingTheBackgroundOfTheSignsGivesZero)
{
    editor.setSignBackColor(0x123456);
    EXPECT_EQ(editor.SignBackColor(), 0U);
    EXPECT_EQ(editor.BackColor.get(), 0x123456U);
}

TEST_F(CtrTextEditTest, LosingTheFocusFormatsANumberAgain)
{
    load();
    editor.txtBox.focus();
    type("6");
    editor.txtBox.blur();
    EXPECT_EQ(editor.Text(), "6.0");
    editor.txtBox.focus();
    type("abc");
    editor.txtBox.blur();
    EXPECT_EQ(editor.Text(), "abc");
}

TEST_F(CtrTextEditTest, LosingTheFocusLeavesAWrongNumberAsItWasTyped)
{
    load();
    editor.txtBox.focus();
    type("200");
    editor.txtBox.blur();
    EXPECT_EQ(editor.Text(), "200");
}

TEST_F(CtrTextEditTest, LosingTheFocusLeavesATextThatLooksLikeANumber)
{
    load({{"type", "stringVal"}, {"value", ""}, {"maxVal", "32"}});
    editor.txtBox.focus();
    type("007");
    editor.txtBox.blur();
    EXPECT_EQ(editor.Text(), "007");
}

TEST_F(CtrTextEditTest, TypingTheOriginalInAnotherFormIsNoEditOnceTheFocusHasGone)
{
    load();
    editor.txtBox.focus();
    type("5");
    EXPECT_TRUE(editor.Modified());
    editor.txtBox.blur();
    EXPECT_FALSE(editor.Modified());
}

TEST_F(CtrTextEditTest, GettingTheFocusSelectsTheWholeText)
{
    load();
    editor.focus();
    EXPECT_TRUE(editor.txtBox.HasFocus());
    EXPECT_EQ(editor.txtBox.SelStart.get(), 0);
    EXPECT_EQ(editor.txtBox.SelLength.get(), 3);
}

TEST_F(CtrTextEditTest, TheSelectionStartsInFrontWhereverTheCursorStood)
{
    load({{"type", "stringVal"}, {"value", "a"}, {"maxVal", "32"}});
    editor.txtBox.focus();
    type("abc");
    editor.txtBox.blur();
    EXPECT_EQ(editor.txtBox.SelStart.get(), 3);
    editor.txtBox.focus();
    EXPECT_EQ(editor.txtBox.SelStart.get(), 0);
}

TEST_F(CtrTextEditTest, EnterIsSwallowedAndHandsTheFocusToTheHost)
{
    load();
    int  reached = 0;
    auto watch   = page.KeyDown.subscribe([&](platform::KeyPress&) { ++reached; });
    editor.txtBox.press(platform::kKeyReturn);
    EXPECT_EQ(reached, 0);
    EXPECT_TRUE(messenger.wasCalled("TransferFocus"));
    editor.txtBox.press(platform::kKeyEscape);
    EXPECT_EQ(reached, 1);
}

TEST_F(CtrTextEditTest, EditingBarredDisablesTheBoxAndAnyOtherModeEnablesIt)
{
    messenger.ViewSetCommunicationMode.raise(kEditingBarred);
    EXPECT_FALSE(editor.txtBox.Enabled);
    EXPECT_EQ(editor.txtBox.type("1"), platform::UserDoor::refused);
    messenger.ViewSetCommunicationMode.raise(kCommunication);
    EXPECT_TRUE(editor.txtBox.Enabled);
}

TEST_F(CtrTextEditTest, WritingTextSetsTheOriginalInScreenForm)
{
    load();
    editor.setText("7");
    EXPECT_EQ(editor.originalText(), "7.0");
    EXPECT_EQ(editor.Text(), "7.0");
    EXPECT_FALSE(editor.Modified());
    EXPECT_THAT(changes, ElementsAre("7.0"));
}

TEST_F(CtrTextEditTest, EditTextCountsAsTyped)
{
    load();
    editor.EditText("8");
    EXPECT_EQ(editor.Text(), "8");
    EXPECT_TRUE(editor.Modified());
}

TEST_F(CtrTextEditTest, TheBoxKeepsItsSizeWhenTheUnitGrows)
{
    const auto box   = editor.txtBox.Width.get();
    const auto width = editor.Width.get();
    editor.setUnit("mmH2O");
    EXPECT_EQ(editor.Width.get(), width + 5 * toolkit.characterWidth);
    EXPECT_EQ(editor.txtBox.Width.get(), box);
    editor.setUnit("noUnit");
    EXPECT_EQ(editor.Unit(), "");
    EXPECT_EQ(editor.Width.get(), width);
    EXPECT_EQ(editor.txtBox.Width.get(), box);
}

TEST_F(CtrTextEditTest, TheBoxTakesWhatSignsAndUnitLeave)
{
    editor.setUnit("bar");
    editor.resize(5000, 400);
    EXPECT_EQ(editor.txtBox.Width.get(),
              5000 - editor.lblModified.Width - editor.lblError.Width - 300 - 100);
    EXPECT_GE(editor.lblUnit.Left.get(), editor.txtBox.Width.get());
    EXPECT_GE(editor.lblModified.Left.get(), editor.lblUnit.Left + editor.lblUnit.Width);
    editor.resize(10, 10);
    EXPECT_EQ(editor.txtBox.Width.get(), 0);
}

TEST_F(CtrTextEditTest, UninitializeCutsTheBondAndEmptiesTheBox)
{
    load();
    EXPECT_TRUE(editor.IsInitialized());
    editor.Uninitialize();
    EXPECT_FALSE(editor.IsInitialized());
    EXPECT_EQ(editor.Text(), "");
    type("9");
    EXPECT_EQ(stored("value"), "5.0");
}

TEST_F(CtrTextEditTest, DownloadableIsCorrectAndNotEmpty)
{
    load();
    EXPECT_TRUE(editor.downloadable());
    type("");
    EXPECT_FALSE(editor.downloadable());
    type("x");
    EXPECT_FALSE(editor.downloadable());
}

TEST_F(CtrTextEditTest, SetModifiedForwardReportsTheState)
{
    load();
    editor.SetModifiedForward(true);
    EXPECT_THAT(states(), ElementsAre(state("edited")));
}

TEST_F(CtrTextEditTest, AHandlerThatFailsCostsNeitherTheStateNorTheDatafile)
{
    load();
    auto bad = editor.Change.subscribe(
        [](const std::string&) { throw platform::failure(platform::kOverflow); });
    type("7");
    EXPECT_EQ(stored("value"), "7");
    EXPECT_THAT(messenger.errors(),
                ElementsAre("ReportError(TextEdit ctr_travel txtBox_Change, 6, Overflow)"));
}

TEST_F(CtrTextEditTest, ALateEventReachesNobodyOnceTheMessengerIsDropped)
{
    load();
    editor.setMessenger(nullptr);
    messenger.ViewSetCommunicationMode.raise(kEditingBarred);
    EXPECT_TRUE(editor.txtBox.Enabled);
    messenger.RequestChanges(kAllEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
}

} // namespace
} // namespace quill::test
