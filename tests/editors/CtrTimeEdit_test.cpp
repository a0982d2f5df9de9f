// The boxes of the time editor and what the user does with them.

#include "time_editor_fixture.h"

namespace quill {
namespace {

using namespace test;
using platform::UserDoor;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class TimeEdit : public TimeEditTest {};

TEST_F(TimeEdit, StartsEmptyWithoutSigns)
{
    EXPECT_THAT(boxes(), ElementsAre("", "", "", ""));
    EXPECT_EQ(edit.lblUnit[0].Caption, "d");
    EXPECT_EQ(edit.lblUnit[1].Caption, "h");
    EXPECT_EQ(edit.lblUnit[2].Caption, "min");
    EXPECT_EQ(edit.lblUnit[3].Caption, "s");
    EXPECT_EQ(edit.txtBox[2].Name, "txtBox");
    EXPECT_EQ(edit.txtBox[2].Index, 2);
    EXPECT_EQ(edit.lblUnit[2].Index, 2);
    EXPECT_FALSE(edit.lblError.Visible);
    EXPECT_FALSE(edit.lblModified.Visible);
    EXPECT_EQ(edit.lblError.ForeColor, 255U);
    EXPECT_EQ(edit.lblModified.ForeColor, 0xff0000U);
    EXPECT_EQ(edit.Text(), "");
    EXPECT_TRUE(edit.Enabled());
    EXPECT_FALSE(edit.Locked());
    EXPECT_EQ(edit.SignBackColor(), 0U);
    EXPECT_EQ(edit.changeState(), "original");
    EXPECT_EQ(edit.syncState(), "notRead");
    EXPECT_EQ(edit.kind(), EditorKind::time);
    EXPECT_STREQ(edit.TypeName(), "CtrTimeEdit");
}

TEST_F(TimeEdit, StandsSideBySideWithTheSignsBehind)
{
    const auto check = [this] {
        std::int32_t right = 0;
        for (std::size_t i = 0; i < edit.txtBox.size(); ++i) {
            EXPECT_GE(edit.txtBox[i].Left, right);
            right = edit.txtBox[i].Left + edit.txtBox[i].Width;
            EXPECT_GE(edit.lblUnit[i].Left, right);
            right = edit.lblUnit[i].Left + edit.lblUnit[i].Width;
            EXPECT_EQ(edit.txtBox[i].Width, edit.txtBox[0].Width);
        }
        EXPECT_GE(edit.lblModified.Left, right);
        EXPECT_GE(edit.lblError.Left, edit.lblModified.Left + edit.lblModified.Width);
        EXPECT_LE(edit.lblError.Left + edit.lblError.Width, edit.Width);
    };
    check();
    EXPECT_GE(edit.txtBox[0].Width, 500); // five digits
    EXPECT_EQ(edit.lblUnit[2].Width, 300);
    edit.resize(6000, 400);
    check();
    EXPECT_EQ(edit.txtBox[0].Height, 400);
    edit.resize(10, 400);
    EXPECT_EQ(edit.txtBox[0].Width, 0);
    const CtrTimeEdit narrow{frame, {.Name = "narrow", .Width = 2000}};
    EXPECT_EQ(narrow.Width, 2000);
}

// --- What the user does -----------------------------------------------------------------------

TEST_F(TimeEdit, AnEditGoesIntoTheDatafile)
{
    loadQuietly();
    EXPECT_EQ(type(1, "2"), UserDoor::done);
    EXPECT_EQ(edit.Text(), "121.5");
    EXPECT_TRUE(edit.Modified());
    EXPECT_TRUE(edit.Correct());
    EXPECT_EQ(edit.originalText(), "1.5");
    EXPECT_THAT(changes, ElementsAre("121.5"));
    EXPECT_THAT(states(), ElementsAre(state("edited")));
    EXPECT_EQ(attribute("value"), "121.5");
    EXPECT_EQ(attribute("unit"), "min");
    EXPECT_EQ(attribute("synchronised"), "0");
    for (const platform::TextBox& box : edit.txtBox) {
        EXPECT_EQ(box.ForeColor, editorColors::kBlue);
    }
}

TEST_F(TimeEdit, TheWayBackIsNoEdit)
{
    loadQuietly();
    type(3, "3");
    type(3, "30");
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(states(), ElementsAre(state("edited"), state("original")));
    EXPECT_EQ(attribute("value"), "1.5");
    EXPECT_EQ(edit.txtBox[1].ForeColor, platform::kWindowText);
}

TEST_F(TimeEdit, AnotherSplitOfTheSameDurationIsNoEdit)
{
    loadQuietly();
    type(2, "0");
    type(3, "90");
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "0", "90"));
    EXPECT_EQ(edit.Text(), "1.5");
}

TEST_F(TimeEdit, EmptyBoxesDoNotCount)
{
    loadQuietly();
    type(0, "");
    type(1, "");
    type(2, "2");
    type(3, "");
    EXPECT_EQ(edit.Text(), "2.0");
    EXPECT_TRUE(edit.Correct());
    EXPECT_EQ(attribute("value"), "2.0");
}

TEST_F(TimeEdit, BlanksPass)
{
    loadQuietly();
    type(2, " 5 ");
    EXPECT_TRUE(edit.Correct());
    EXPECT_EQ(edit.Text(), "5.5");
}

TEST_F(TimeEdit, ACharacterThatDoesNotPassIsWrong)
{
    for (const char* wrong : {"x", "5x", "-5", "+5", "5.5", "5,5", "5e1", " ", "5 5", "NaN"}) {
        load();
        forget();
        type(2, wrong);
        EXPECT_FALSE(edit.Correct()) << wrong;
        EXPECT_TRUE(edit.Modified()) << wrong;
        EXPECT_EQ(edit.txtBox[2].ForeColor, editorColors::kRed) << wrong;
        EXPECT_THAT(states(), ElementsAre(state("edited"), state("editedError"))) << wrong;
        EXPECT_EQ(attribute("value"), "1.5") << wrong;
        EXPECT_FALSE(edit.GetXmlItem(false)) << wrong;
    }
}

TEST_F(TimeEdit, OneWrongBoxAmongRightOnesIsWrong)
{
    loadQuietly();
    type(0, "x"); // the other boxes still say 1.5 minutes
    EXPECT_EQ(edit.Text(), "1.5");
    EXPECT_FALSE(edit.Correct());
    EXPECT_TRUE(edit.Modified());
    type(3, "45");
    EXPECT_FALSE(edit.Correct());
    EXPECT_EQ(attribute("value"), "1.5");
    type(0, "");
    EXPECT_TRUE(edit.Correct());
    EXPECT_THAT(states(), ElementsAre(state("edited"), state("editedError"), state("corrected")));
    type(3, "30");
    EXPECT_EQ(edit.changeState(), "original");
}

TEST_F(TimeEdit, LimitsAreThoseOfTheParametersUnit)
{
    loadQuietly({{"minVal", "1"}, {"maxVal", "120"}});
    EXPECT_EQ(edit.limitMin(), 1);
    EXPECT_EQ(edit.limitMax(), 120);
    type(1, "2"); // 121.5 min
    EXPECT_FALSE(edit.Correct());
    EXPECT_EQ(attribute("value"), "1.5");
    type(3, "0"); // 121
    type(2, "0"); // 120
    EXPECT_TRUE(edit.Correct());
    EXPECT_EQ(attribute("value"), "120.0");
    type(1, "0"); // 0
    EXPECT_FALSE(edit.Correct());
    type(3, "59");
    EXPECT_TRUE(edit.Correct()); // 0.98 is shown and sent as 1.0
    EXPECT_EQ(attribute("value"), "1.0");
    type(3, "54"); // 0.9
    EXPECT_FALSE(edit.Correct());
}

TEST_F(TimeEdit, LimitsHaveTheToleranceOfTheDecimals)
{
    load();
    EXPECT_EQ(edit.dblAComparedToB(1.0008, 1), 0);
    EXPECT_NEAR(edit.dblAComparedToB(1.5, 1), 0.5, 1e-12);
    EXPECT_EQ(edit.dblAComparedToB(numberRules::kUpperSentinel, 1), 50);
}

TEST_F(TimeEdit, AllBoxesEmptyIsCorrectUntilAReadWriteValueCame)
{
    loadQuietly();
    const auto clear = [this] {
        for (std::size_t box = 0; box < 4; ++box) {
            type(box, "");
        }
    };
    clear();
    EXPECT_TRUE(edit.Correct());
    EXPECT_EQ(attribute("value"), "");
    EXPECT_FALSE(edit.GetXmlItem(false));

    edit.setOnlineData(online("1.5"));
    EXPECT_FALSE(edit.allowEmpty());
    clear();
    EXPECT_FALSE(edit.Correct());

    CtrTimeEdit other{frame, {.Name = "other", .Tag = "ctr_delay"}};
    other.SetMessenger(&messenger);
    give({{"access", "writeOnline"}});
    other.setOfflineData(parameter());
    other.setOnlineData(online("1.5"));
    EXPECT_TRUE(other.allowEmpty());
}

TEST_F(TimeEdit, AnUnboundEditorWritesNothing)
{
    edit.setText("90");
    type(2, "5");
    EXPECT_TRUE(edit.Modified());
    EXPECT_THAT(changes, ElementsAre("")); // no unit yet
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(TimeEdit, EnterHandsTheFocusOn)
{
    load();
    forget();
    std::vector<int>       climbed;
    platform::Subscription onKey =
        frame.KeyDown.subscribe([&](platform::KeyPress& key) { climbed.push_back(key.code); });
    for (platform::TextBox& box : edit.txtBox) {
        box.press(platform::kKeyReturn);
        box.press(platform::kKeyTab);
    }
    EXPECT_THAT(climbed, ElementsAre(9, 9, 9, 9));
    EXPECT_THAT(messenger.calls, ElementsAre("TransferFocus()", "TransferFocus()",
                                             "TransferFocus()", "TransferFocus()"));
}

TEST_F(TimeEdit, TheFocusSelectsTheWholeText)
{
    load();
    edit.focus();
    EXPECT_TRUE(edit.txtBox[0].HasFocus());
    edit.txtBox[3].focus();
    EXPECT_EQ(edit.txtBox[3].SelStart, 0);
    EXPECT_EQ(edit.txtBox[3].SelLength, 2);
}

TEST_F(TimeEdit, IsBarredInMode20Only)
{
    load();
    messenger.ViewSetCommunicationMode.raise(kEditingBarred);
    for (std::size_t box = 0; box < 4; ++box) {
        EXPECT_FALSE(edit.txtBox[box].Enabled);
        EXPECT_EQ(type(box, "5"), UserDoor::refused);
    }
    EXPECT_FALSE(edit.Enabled());
    messenger.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_EQ(type(3, "5"), UserDoor::done);
}

TEST_F(TimeEdit, EnabledPaintsAllBoxes)
{
    load();
    edit.setEnabled(false);
    for (const platform::TextBox& box : edit.txtBox) {
        EXPECT_FALSE(box.Enabled);
        EXPECT_EQ(box.BackColor, editorColors::kGrey);
    }
    edit.setEnabled(true);
    for (const platform::TextBox& box : edit.txtBox) {
        EXPECT_TRUE(box.Enabled);
        EXPECT_EQ(box.BackColor, editorColors::kWhite);
    }
}

TEST_F(TimeEdit, ALockedEditorRefusesTheUser)
{
    load();
    edit.setLocked(true);
    EXPECT_TRUE(edit.Locked());
    for (std::size_t box = 0; box < 4; ++box) {
        EXPECT_EQ(type(box, "5"), UserDoor::refused);
    }
    edit.setLocked(false);
    EXPECT_EQ(type(0, "1"), UserDoor::done);
}

TEST_F(TimeEdit, ModifiedTakenBackMakesTheDurationTheOriginal)
{
    loadQuietly();
    type(2, "5");
    edit.SetModifiedForward(false);
    EXPECT_EQ(edit.originalText(), "5.5");
    type(2, "1");
    EXPECT_TRUE(edit.Modified());
    type(2, "5");
    EXPECT_FALSE(edit.Modified());
}

TEST_F(TimeEdit, AHostThatThrowsStopsNothing)
{
    loadQuietly();
    messenger.failOn("SetParameterState", 13);
    type(2, "5");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(TimeEdit ctr_delay forwardChanges, 13,")));
    EXPECT_EQ(attribute("value"), "5.5");
    messenger.failOn("ReportError");
    messenger.failOn("TransferFocus");
    edit.txtBox[0].press(platform::kKeyReturn);
    type(2, "6");
    EXPECT_EQ(attribute("value"), "6.5");
    messenger.failOn("GetUnitConverter");
    type(2, "7");
    EXPECT_FALSE(edit.Correct());
    EXPECT_EQ(attribute("value"), "6.5");
}

/// One that can be told not to know the locale any more.
class ForgetfulToolkit : public ToolkitScope {
public:
    bool                    forgets = false;
    const platform::Locale& locale() override
    {
        if (forgets) {
            throw platform::failure(platform::kInvalidCall);
        }
        return ToolkitScope::locale();
    }
};

TEST_F(TimeEdit, AToolkitThatRefusesIsReported)
{
    loadQuietly();
    ForgetfulToolkit forgetful;
    forgetful.forgets = true;
    EXPECT_NO_THROW(type(2, "5"));
    EXPECT_FALSE(edit.Correct());
    EXPECT_THAT(messenger.errors(),
                Contains(HasSubstr("ReportError(TimeEdit ctr_delay txtBox_Change, 5,")));
    EXPECT_EQ(edit.FormatForCommunication("3"), "3");
    EXPECT_NO_THROW(edit.setText("3"));
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "5", "30"));
    EXPECT_EQ(edit.Text(), "");
    forgetful.forgets = false;
    edit.setText("3");
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "3", "0"));
}

TEST_F(TimeEdit, WorksWithoutAMessenger)
{
    CtrTimeEdit alone;
    give({{"unit", "s"}, {"value", "90"}});
    alone.setOfflineData(parameter());
    EXPECT_EQ(alone.Text(), "90.0");
    alone.txtBox[3].type("31");
    EXPECT_EQ(attribute("value"), "91.0");
    EXPECT_EQ(alone.changeState(), "original");
    alone.txtBox[3].press(platform::kKeyReturn);
    EXPECT_THAT(toolkit.debugLines, Contains(HasSubstr("TimeEdit  txtBox_KeyPress error 91")));
}

} // namespace
} // namespace quill
