// What the text editor makes of what is typed: separators, checks, states, and the datafile.

#include "text_editor_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class CtrTextEditTypedTest : public TextEditorTest {};

class CtrTextEditCommaTest : public TextEditorTest {
protected:
    CtrTextEditCommaTest() : TextEditorTest(",") {}
};

TEST_F(CtrTextEditCommaTest, FindsTheSeparatorOfTheLocale)
{
    EXPECT_EQ(editor.decimalSeparator(), ",");
}

TEST_F(CtrTextEditTypedTest, AnEditIsReportedThenRaisedThenWritten)
{
    load();
    std::string inFile;
    auto        watch = editor.Change.subscribe([&](const std::string&) {
        inFile = stored("value");
        EXPECT_THAT(states(), ElementsAre(state("edited")));
    });
    type("6");
    EXPECT_EQ(inFile, "5.0");
    EXPECT_EQ(stored("value"), "6");
}

TEST_F(CtrTextEditTypedTest, ATypedTextIsAnEditUntilTheOriginalIsBack)
{
    load();
    EXPECT_EQ(editor.Text(), "5.0");
    type("6");
    EXPECT_TRUE(editor.Modified());
    EXPECT_THAT(states(), ElementsAre(state("edited")));
    type("5.0");
    EXPECT_FALSE(editor.Modified());
    EXPECT_THAT(states(), ElementsAre(state("edited"), state("original")));
    EXPECT_THAT(changes, ElementsAre("6", "5.0"));
}

TEST_F(CtrTextEditTypedTest, ClearingModifiedMakesThePresentTextTheReference)
{
    load();
    type("6");
    editor.setModified(false);
    EXPECT_EQ(editor.originalText(), "6");
    type("5.0");
    EXPECT_TRUE(editor.Modified());
}

TEST_F(CtrTextEditTypedTest, ACommaInALocaleWithAPointTurnsIntoAPointAndPasses)
{
    load({{"type", "integerVal"}});
    std::vector<bool> correct;
    auto              watch = editor.lblError.Changed.subscribe(
        [&](const platform::WidgetChange&) { correct.push_back(editor.Correct()); });
    type("6,");
    EXPECT_EQ(editor.Text(), "6.");
    EXPECT_EQ(editor.txtBox.SelStart.get(), 2);
    EXPECT_TRUE(editor.Correct());
    EXPECT_THAT(correct, ElementsAre(false, true)); // wrong for a moment, then right
}

TEST_F(CtrTextEditCommaTest, APointInALocaleWithACommaTurnsIntoAComma)
{
    load();
    type("4.5");
    EXPECT_EQ(editor.Text(), "4,5");
    EXPECT_TRUE(editor.Correct());
    EXPECT_EQ(stored("value"), "4.5");
}

TEST_F(CtrTextEditCommaTest, WritingTextTurnsThePointIntoACommaAtOnce)
{
    load();
    editor.setText("7.5");
    EXPECT_EQ(editor.originalText(), "7,5");
    EXPECT_FALSE(editor.Modified());
    EXPECT_THAT(changes, ElementsAre("7,5"));
}

TEST_F(CtrTextEditCommaTest, OnlyFloatValGoesIntoTheDatafileWithAPoint)
{
    load({{"type", "floatVal"}});
    type("7,5");
    EXPECT_EQ(stored("value"), "7.5");
    load({{"type", "floatVal2"}});
    type("7,5");
    EXPECT_EQ(stored("value"), "7,5");
}

TEST_F(CtrTextEditTypedTest, ATextThatIsNoNumberIsWrongAndStays)
{
    load();
    type("abc");
    EXPECT_FALSE(editor.Correct());
    EXPECT_EQ(editor.Text(), "abc");
    EXPECT_EQ(editor.txtBox.ForeColor.get(), editorColors::kRed);
    EXPECT_EQ(stored("value"), "5.0"); // what was correct last
    EXPECT_THAT(states(), ElementsAre(state("edited"), state("editedError")));
}

TEST_F(CtrTextEditTypedTest, TheChangeStateGoesThroughEveryRow)
{
    load();
    type("abc");
    type("7");
    type("x");
    type("5.0");
    EXPECT_THAT(states(), ElementsAre(state("edited"), state("editedError"), state("corrected"),
                                      state("editedError"), state("corrected"), state("original")));
}

TEST_F(CtrTextEditTypedTest, ACorrectedTextThatStaysModifiedIsReportedOnce)
{
    load();
    type("x");
    messenger.clear();
    type("7");
    type("8");
    EXPECT_THAT(states(), ElementsAre(state("corrected")));
}

TEST_F(CtrTextEditTypedTest, WithoutAMessengerNoStateMoves)
{
    load();
    editor.SetMessenger(nullptr);
    type("7");
    EXPECT_TRUE(editor.Modified());
    EXPECT_EQ(editor.changeState(), "original");
}

TEST_F(CtrTextEditTypedTest, AnIntegerFieldRefusesAFractionWithAMessageAndTakesTheFocusBack)
{
    translator.texts["ctr_travel"] = "Travel";
    editor.Localize(translator);
    load({{"type", "integerVal"}});
    type("6.5");
    EXPECT_FALSE(editor.Correct());
    EXPECT_THAT(messenger.callsTo("ShowMessage"),
                ElementsAre("ShowMessage(Inappropriate input, Travel not correct: 6.5 should be "
                            "integer)"));
    EXPECT_TRUE(editor.txtBox.HasFocus());
}

TEST_F(CtrTextEditTypedTest, AMessageThatFailsStillGivesTheFocusBack)
{
    load({{"type", "integerVal"}});
    messenger.failOn("ShowMessage");
    type("6.5");
    EXPECT_TRUE(editor.txtBox.HasFocus());
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("TextEdit ctr_travel txtBox_Change, 5")));
}

TEST_F(CtrTextEditTypedTest, AnIntegerIsTestedAsItStandsOnScreen)
{
    messenger.converter              = &converter;
    converter.displayUnits["travel"] = "kPa";
    load({{"type", "integerVal"}});
    type("250"); // 2.5 bar
    EXPECT_TRUE(editor.Correct());
    type("250.5");
    EXPECT_FALSE(editor.Correct());
}

TEST_F(CtrTextEditTypedTest, AFractionJustBeyondAnIntegerLimitIsCaughtByTheIntegerTest)
{
    load({{"type", "integerVal"}});
    type("100.5");
    EXPECT_FALSE(editor.Correct());
    EXPECT_TRUE(messenger.wasCalled("ShowMessage"));
}

TEST_F(CtrTextEditTypedTest, OutsideTheLimitsIsWrongWithoutAMessage)
{
    load({{"type", "integerVal"}});
    type("101.5");
    EXPECT_FALSE(editor.Correct());
    EXPECT_FALSE(messenger.wasCalled("ShowMessage"));
    type("-2");
    EXPECT_FALSE(editor.Correct());
}

TEST_F(CtrTextEditTypedTest, AValueEqualToALimitWithinTheTolerancePasses)
{
    load({{"decimals", "1"}}); // tolerance 0.9 * 0.1^3
    type("100.0008");
    EXPECT_TRUE(editor.Correct());
    type("100.001");
    EXPECT_FALSE(editor.Correct());
    type("-0.0008");
    EXPECT_TRUE(editor.Correct());
}

TEST_F(CtrTextEditTypedTest, AParameterWithoutUnitIsComparedAsItStands)
{
    messenger.converter = &converter;
    converter.add("bar", "noUnit", 1000);
    load({{"unit", ""}});
    editor.lblUnit.Caption = "bar";
    type("50");
    EXPECT_TRUE(editor.Correct());
}

TEST_F(CtrTextEditTypedTest, ComparesWithATolerance)
{
    EXPECT_EQ(editor.dblAComparedToB(10.8, 10), 0); // no decimals: 0.9
    EXPECT_EQ(editor.dblAComparedToB(11, 10), 1);
    EXPECT_EQ(editor.dblAComparedToB(9, 10), -1);
    load({{"decimals", "2"}}); // 0.9 * 0.1^4
    EXPECT_EQ(editor.dblAComparedToB(1.00008, 1), 0);
    EXPECT_GT(editor.dblAComparedToB(1.0001, 1), 0);
}

TEST_F(CtrTextEditTypedTest, NoLimitIsBeyondEverything)
{
    const double upper = CtrTextEdit::kUpperSentinel;
    const double lower = CtrTextEdit::kLowerSentinel;
    EXPECT_EQ(editor.dblAComparedToB(upper, 1), 50);
    EXPECT_EQ(editor.dblAComparedToB(1, lower), 50);
    EXPECT_EQ(editor.dblAComparedToB(lower, 1), -50);
    EXPECT_EQ(editor.dblAComparedToB(1, upper), -50);
    EXPECT_EQ(editor.dblAComparedToB(upper, upper), 50); // the first test counts
    EXPECT_NE(editor.dblAComparedToB(2147483647.0, 0), 50);
    EXPECT_LT(upper, std::numeric_limits<double>::max());
}

TEST_F(CtrTextEditTypedTest, AnEmptyBoxIsCorrectAsLongAsEmptyIsAllowed)
{
    load();
    type("");
    EXPECT_TRUE(editor.Correct());
    editor.setOnlineData(itemNode("bar", "4"));
    type("");
    EXPECT_FALSE(editor.Correct());
}

TEST_F(CtrTextEditTypedTest, AnOnlineValueOfAReadOnlyParameterLeavesEmptyAllowed)
{
    load({{"access", "read"}});
    editor.setOnlineData(itemNode("bar", "4"));
    EXPECT_TRUE(editor.allowEmpty());
    load({{"access", "READWRITE"}}); // writable, yet not the word
    editor.setOnlineData(itemNode("bar", "4"));
    EXPECT_TRUE(editor.allowEmpty());
}

TEST_F(CtrTextEditTypedTest, AnOnlineTextLeavesEmptyAllowed)
{
    load({{"type", "stringVal"}, {"value", "a"}});
    editor.setOnlineData(itemNode("noUnit", "b", "stringVal"));
    type("");
    EXPECT_TRUE(editor.Correct());
}

TEST_F(CtrTextEditTypedTest, PackedAsciiRunsFromTheBlankToTheUnderscore)
{
    load({{"type", "stringVal"}, {"value", ""}, {"maxVal", "32"}});
    editor.ForceHartPackedAscii(true);
    type(" _`\t\x1f^");
    EXPECT_EQ(editor.Text(), " _???^");
}

TEST_F(CtrTextEditTypedTest, PackedAsciiTurnsToUpperCaseAndReplacesWhatHartDoesNotKnow)
{
    load({{"type", "stringVal"}, {"value", ""}, {"maxVal", "32"}});
    editor.ForceHartPackedAscii(true);
    editor.txtBox.type("valve ä{7", 3);
    EXPECT_EQ(editor.Text(), "VALVE ??7");
    EXPECT_EQ(editor.txtBox.SelStart.get(), 3);
    EXPECT_EQ(stored("value"), "VALVE ??7");
}

TEST_F(CtrTextEditTypedTest, AnyOtherTextIsTakenAsItIs)
{
    load({{"type", "stringVal"}, {"value", "a"}, {"maxVal", "32"}});
    type("Ventil ä");
    EXPECT_TRUE(editor.Correct());
    EXPECT_EQ(stored("value"), "Ventil ä");
}

TEST_F(CtrTextEditTypedTest, ACorrectTextGoesIntoTheDatafileAtOnce)
{
    load();
    type("7.5");
    EXPECT_EQ(stored("value"), "7.5");
    EXPECT_EQ(stored("unit"), "bar");
    EXPECT_EQ(stored("synchronised"), "0");
}

} // namespace
} // namespace quill::test
