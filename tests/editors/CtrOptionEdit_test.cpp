// What the user does with the option editor, and its life.

#include "option_editor_fixture.h"

#include <memory>

namespace quill {
namespace {

using namespace test;
using platform::UserDoor;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class OptionEdit : public OptionEditTest {};

TEST_F(OptionEdit, StartsWithoutSignsAndWithoutOptions)
{
    EXPECT_FALSE(edit.Modified());
    EXPECT_TRUE(edit.Correct());
    EXPECT_FALSE(edit.mappings());
    EXPECT_EQ(edit.OptionCount(), 0U);
    EXPECT_FALSE(edit.IsInitialized());
    EXPECT_EQ(edit.Selected(), "");
    EXPECT_EQ(edit.Text(), "");
    EXPECT_EQ(edit.changeState(), "original");
    EXPECT_EQ(edit.syncState(), "notRead");
    EXPECT_EQ(edit.SignBackColor(), 0U);
    EXPECT_EQ(edit.kind(), EditorKind::option);
    EXPECT_STREQ(edit.TypeName(), "CtrOptionEdit");
}

// --- What the user does -----------------------------------------------------------------------

TEST_F(OptionEdit, AChoiceIsAnEditThatGoesIntoTheDatafile)
{
    loadQuietly("1");
    EXPECT_EQ(edit.Option(2).click(), UserDoor::done);
    EXPECT_TRUE(edit.Modified());
    EXPECT_THAT(marked(), ElementsAre(2U));
    EXPECT_EQ(edit.Selected(), "7");
    EXPECT_EQ(edit.originalText(), "1");
    EXPECT_THAT(changes, ElementsAre("auto"));
    EXPECT_THAT(messenger.calls, ElementsAre("WriteLog(70, CtrOptionEdit Selected originally 1)",
                                             "WriteLog(70, CtrOptionEdit Selected changing to 7)",
                                             "WriteLog(70, and to auto)", state("edited")));
    EXPECT_EQ(attribute("value"), "7");
    EXPECT_EQ(attribute("synchronised"), "0");
}

TEST_F(OptionEdit, TheWayBackIsNoEdit)
{
    loadQuietly("1");
    edit.Option(2).click();
    edit.Option(1).click();
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(changes, ElementsAre("auto", "on"));
    EXPECT_THAT(messenger.actions(), ElementsAre(state("edited"), state("original")));
    EXPECT_EQ(attribute("value"), "1");
}

TEST_F(OptionEdit, TheChosenOptionChosenAgainIsNoChange)
{
    loadQuietly("1");
    edit.Option(1).click();
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_THAT(messenger.actions(), IsEmpty());
}

TEST_F(OptionEdit, EntriesOfOneValueAreStillTwo)
{
    loadQuietly("1", "1",
                R"(<data:mapping value="1" name="a"/><data:mapping value="1" name="b"/>)");
    EXPECT_THAT(marked(), ElementsAre(0U));
    edit.Option(1).click();
    EXPECT_THAT(marked(), ElementsAre(1U));
    EXPECT_THAT(changes, ElementsAre("b"));
    EXPECT_TRUE(edit.Modified());
}

TEST_F(OptionEdit, AnEditIsFoundByTheNextLoad)
{
    loadQuietly("1");
    edit.Option(2).click();
    edit.SetMappings(mappedParam());
    edit.setOfflineData(parameter());
    EXPECT_EQ(edit.Selected(), "7");
    EXPECT_TRUE(edit.Modified());
    // and the original is still the one of the first load
    edit.Option(1).click();
    EXPECT_FALSE(edit.Modified());
}

TEST_F(OptionEdit, TheOriginalFollowsItsEntryIntoAnotherList)
{
    loadQuietly("1");
    edit.SetMappings(
        test::datafile("", R"(<data:mappedParam name="mode"><data:mapping value="7" name="auto"/>)"
                           R"(<data:mapping value="1" name="on"/></data:mappedParam>)")
            .selectSingleNode("//data:mappedParam"));
    EXPECT_EQ(edit.Selected(), "");
    edit.Option(0).click();
    EXPECT_TRUE(edit.Modified());
    edit.Option(1).click();
    EXPECT_FALSE(edit.Modified());
}

TEST_F(OptionEdit, TheOriginalIsFoundAgainBehindAListThatLacksIt)
{
    loadQuietly("1");
    const IXMLDOMNode list = mappedParam();
    edit.SetMappings(
        test::datafile("", R"(<data:mappedParam name="mode"><data:mapping value="7" name="auto"/>)"
                           R"(</data:mappedParam>)")
            .selectSingleNode("//data:mappedParam"));
    edit.SetMappings(list);
    EXPECT_EQ(edit.originalText(), "1");
    edit.setSelected("1");
    EXPECT_FALSE(edit.Modified());
}

TEST_F(OptionEdit, AnUnboundEditorWritesNothing)
{
    give("1", "1");
    edit.SetMappings(mappedParam());
    edit.Option(2).click();
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(attribute("value"), "1");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(OptionEdit, ArrowKeysMoveTheChoiceAndWrap)
{
    load("1");
    edit.focus();
    EXPECT_TRUE(edit.Option(1).HasFocus());
    const auto press = [&](int key) {
        const auto focused = platform::Widget::focused();
        focused->press(key);
        return marked();
    };
    EXPECT_THAT(press(platform::kKeyDown), ElementsAre(2U));
    EXPECT_TRUE(edit.Option(2).HasFocus());
    EXPECT_THAT(press(platform::kKeyRight), ElementsAre(0U));
    EXPECT_THAT(press(platform::kKeyUp), ElementsAre(2U));
    EXPECT_THAT(press(platform::kKeyLeft), ElementsAre(1U));
    EXPECT_THAT(changes, ElementsAre("on", "auto", "off", "auto", "on"));
    EXPECT_EQ(attribute("value"), "1");
}

TEST_F(OptionEdit, OtherKeysAreLeftToTheForm)
{
    load("1");
    edit.focus();
    std::vector<int>       climbed;
    platform::Subscription onKey =
        frame.KeyDown.subscribe([&](platform::KeyPress& key) { climbed.push_back(key.code); });
    edit.Option(1).press(platform::kKeyTab);
    edit.Option(1).press(platform::kKeyReturn);
    edit.Option(1).press(platform::kKeyDown, platform::kControlKey);
    edit.Option(1).press(platform::kKeyDown);
    EXPECT_THAT(climbed, ElementsAre(platform::kKeyTab, platform::kKeyReturn, platform::kKeyDown));
    EXPECT_THAT(marked(), ElementsAre(2U));
}

TEST_F(OptionEdit, TheGroupIsOneStopOfTheTabKey)
{
    const auto stops = [&] {
        std::vector<std::size_t> places;
        for (std::size_t place = 0; place < edit.OptionCount(); ++place) {
            if (edit.Option(place).TabStop) {
                places.push_back(place);
            }
        }
        return places;
    };
    load("9");
    EXPECT_THAT(stops(), ElementsAre(0U));
    edit.Option(2).click();
    EXPECT_THAT(stops(), ElementsAre(2U));
}

TEST_F(OptionEdit, ALockedEditorRefusesTheUser)
{
    loadQuietly("1");
    edit.setLocked(true);
    EXPECT_TRUE(edit.Locked());
    EXPECT_EQ(edit.Option(2).click(), UserDoor::refused);
    EXPECT_EQ(edit.Option(1).press(platform::kKeyDown), UserDoor::refused);
    EXPECT_EQ(edit.Selected(), "1");
    EXPECT_TRUE(edit.Enabled());
    edit.setLocked(false);
    EXPECT_EQ(edit.Option(2).click(), UserDoor::done);
}

TEST_F(OptionEdit, ADisabledEditorRefusesTheUser)
{
    loadQuietly("1");
    edit.setEnabled(false);
    EXPECT_FALSE(edit.Enabled());
    EXPECT_EQ(edit.frmOptions.BackColor, editorColors::kGrey);
    EXPECT_EQ(edit.Option(2).click(), UserDoor::refused);
    edit.setEnabled(true);
    EXPECT_EQ(edit.frmOptions.BackColor, editorColors::kWhite);
    EXPECT_EQ(edit.Option(2).click(), UserDoor::done);
}

TEST_F(OptionEdit, StaysUsableInEveryCommunicationMode)
{
    loadQuietly("1");
    messenger.ViewSetCommunicationMode.raise(kEditingBarred);
    EXPECT_TRUE(edit.Enabled());
    EXPECT_EQ(edit.Option(2).click(), UserDoor::done);
    edit.setEnabled(false);
    messenger.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_FALSE(edit.Enabled());
}

TEST_F(OptionEdit, TheChosenOptionShowsTheColourOfTheValue)
{
    loadQuietly("1");
    edit.Option(2).click();
    EXPECT_EQ(edit.Option(2).ForeColor, editorColors::kBlue);
    EXPECT_EQ(edit.Option(1).ForeColor, platform::kWindowText);
    edit.setCorrect(false);
    EXPECT_EQ(edit.Option(2).ForeColor, editorColors::kRed);
    edit.setCorrect(true);
    edit.setModified(false);
    EXPECT_EQ(edit.Option(2).ForeColor, platform::kWindowText);
    EXPECT_FALSE(edit.lblModified.Visible);
}

TEST_F(OptionEdit, ModifiedTakenBackMakesTheChoiceTheOriginal)
{
    loadQuietly("1");
    edit.Option(2).click();
    edit.SetModifiedForward(false);
    EXPECT_EQ(edit.originalText(), "7");
    EXPECT_EQ(edit.changeState(), "original");
    edit.Option(1).click();
    EXPECT_TRUE(edit.Modified());
}

TEST_F(OptionEdit, AHandlerMayLoadAnotherListOrEndTheEditor)
{
    loadQuietly("1");
    const auto shorter =
        test::datafile("", R"(<data:mappedParam name="mode"><data:mapping value="0" name="off"/>)"
                           R"(</data:mappedParam>)");
    platform::Subscription reload = edit.Change.subscribe([&](const std::string&) {
        edit.SetMappings(shorter.selectSingleNode("//data:mappedParam"));
    });
    edit.Option(2).click();
    EXPECT_EQ(edit.OptionCount(), 1U);
    EXPECT_EQ(attribute("value"), "7");

    auto other = std::make_unique<CtrOptionEdit>(frame, platform::Design{.Tag = "ctr_mode"});
    other->SetMappings(mappedParam());
    platform::Subscription end =
        other->Change.subscribe([&](const std::string&) { other.reset(); });
    other->Option(1).click();
    EXPECT_EQ(other, nullptr);
}

TEST_F(OptionEdit, AHostThatThrowsStopsNothing)
{
    loadQuietly("1");
    messenger.failOn("WriteLog", 13);
    messenger.failOn("SetParameterState", 5);
    edit.Option(2).click();
    EXPECT_TRUE(edit.Modified());
    EXPECT_THAT(changes, ElementsAre("auto"));
    EXPECT_EQ(attribute("value"), "7");
    EXPECT_THAT(messenger.errors(),
                Contains(HasSubstr("ReportError(Options ctr_mode optValue_Click, 13,")).Times(3));
    EXPECT_THAT(messenger.errors(),
                Contains(HasSubstr("ReportError(Options ctr_mode forwardChanges, 5,")));
    messenger.failOn("ReportError");
    edit.Option(0).click();
    EXPECT_EQ(attribute("value"), "0");
}

TEST_F(OptionEdit, WorksWithoutAMessenger)
{
    CtrOptionEdit alone;
    give("1", "1");
    alone.SetMappings(mappedParam());
    alone.setOfflineData(parameter());
    alone.Option(2).click();
    EXPECT_EQ(alone.Selected(), "7");
    EXPECT_EQ(attribute("value"), "7");
    EXPECT_EQ(alone.changeState(), "original");
    EXPECT_THAT(toolkit.debugLines, Contains(HasSubstr("Options  optValue_Click error 91")));
}

} // namespace
} // namespace quill
