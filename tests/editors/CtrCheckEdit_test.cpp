// The rows of the check editor and what the user does with them.

#include "check_editor_fixture.h"

#include "support/some_and_each.h"

namespace quill {
namespace {

using namespace test;
using platform::UserDoor;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class CheckEdit : public CheckEditTest {};

TEST_F(CheckEdit, StartsWithoutRowsAndWithoutSigns)
{
    EXPECT_FALSE(edit.Modified());
    EXPECT_TRUE(edit.Enabled());
    EXPECT_FALSE(edit.Silent());
    EXPECT_EQ(edit.scgCheck.RowCount(), 0);
    EXPECT_EQ(edit.scgCheck.ColCount(), 2);
    EXPECT_FALSE(edit.scgCheck.HeaderVisible);
    EXPECT_THAT(edit.imlCheck.Keys(), ElementsAre("modified", "error"));
    EXPECT_EQ(edit.scgCheck.imageList(), &edit.imlCheck);
    EXPECT_EQ(edit.changeState(), "original");
    EXPECT_EQ(edit.syncState(), "notRead");
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_EQ(edit.kind(), EditorKind::check);
    EXPECT_STREQ(edit.TypeName(), "CtrCheckEdit");
}

TEST(Byte, IsAWholeNumberFrom0To255)
{
    const ToolkitScope toolkit(",");
    EXPECT_EQ(byteOf("0"), 0);
    EXPECT_EQ(byteOf("255"), 255);
    EXPECT_EQ(byteOf(" 7 "), 7);
    EXPECT_EQ(byteOf("2.5"), 2); // a tie goes to the even one
    EXPECT_EQ(byteOf("3.5"), 4);
    EXPECT_EQ(byteOf("-0.4"), 0);
    const auto number = [](const std::string& text) {
        try {
            (void)byteOf(text);
        } catch (const platform::Failure& failure) {
            return failure.number();
        }
        return 0;
    };
    EXPECT_EQ(number("256"), platform::kOverflow);
    EXPECT_EQ(number("255.6"), platform::kOverflow);
    EXPECT_EQ(number("-1"), platform::kOverflow);
    EXPECT_EQ(number("1e40"), platform::kOverflow);
    EXPECT_EQ(number(""), platform::kTypeMismatch);
    EXPECT_EQ(number("2,5"), platform::kTypeMismatch);
    EXPECT_EQ(number("0x10"), platform::kTypeMismatch);
}

// --- The rows ---------------------------------------------------------------------------------

TEST_F(CheckEdit, HasARowForEachEntryInTheirOrder)
{
    give("5", "1");
    edit.SetMappings(mappedParam());
    EXPECT_THAT(texts(), ElementsAre("low", "high", "travel"));
    EXPECT_THAT(rows(), ElementsAre("o", "o", "o"));
    EXPECT_EQ(edit.scgCheck.cell(1, 2).kind, platform::Grid::CellKind::check);
    EXPECT_FALSE(edit.scgCheck.cell(1, 1).Editable);
    EXPECT_EQ(edit.scgCheck.edit(1, 1, "x"), UserDoor::refused);
}

TEST_F(CheckEdit, KeepsItsListWhereThereIsNone)
{
    load();
    edit.SetMappings(nullptr);
    EXPECT_THAT(rows(), ElementsAre("x", "x", "o"));
}

TEST_F(CheckEdit, TheSameListAgainKeepsTheRowsAnotherStartsAnew)
{
    load("5");
    click(1);
    edit.SetMappings(mappedParam());
    EXPECT_THAT(rows(), ElementsAre("*o", "x", "o"));
    give("5", "1", R"(<data:mapping value="2" name="low"/><data:mapping value="4" name="high"/>)");
    edit.SetMappings(mappedParam());
    EXPECT_THAT(rows(), ElementsAre("o", "o"));
    EXPECT_FALSE(edit.Modified());
}

TEST_F(CheckEdit, ShowsNamesUntilItIsLocalizedAndTheLanguageOfTheHostFromThenOn)
{
    load();
    edit.Localize(translator);
    EXPECT_THAT(texts(), ElementsAre("T-low", "T-high", "T-travel"));
    EXPECT_EQ(edit.labelText(), "T-ctr_alarms");
    load("1", "1", R"(<data:mapping value="1" name="warm"/>)");
    EXPECT_THAT(texts(), ElementsAre("T-warm"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CheckEdit, AnEntryWithoutATranslationKeepsItsName)
{
    load();
    translator.texts["low"] = "Err:low";
    translator.failingKey   = "high";
    edit.Localize(translator);
    EXPECT_THAT(texts(), ElementsAre("low", "high", "T-travel"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Check ctr_alarms Localize, 5,")));
}

TEST_F(CheckEdit, AnEntryWithoutNameOrMaskIsReportedAndNeverChecked)
{
    load("255", "1",
         R"(<data:mapping value="1"/><data:mapping name="high"/><data:mapping value="x" name="x"/>)"
         R"(<!-- none --><data:mapping value="128" name="travel"/>)");
    EXPECT_THAT(texts(), ElementsAre("", "high", "x", "travel"));
    EXPECT_THAT(rows(), ElementsAre("x", "o", "o", "x"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(CtrCheckEdit SetMappings, 91,"),
                            HasSubstr("ReportError(CtrCheckEdit SetMappings, 91,"),
                            HasSubstr("ReportError(CtrCheckEdit SetMappings, 13,")));
}

TEST_F(CheckEdit, GrowsForItsRows)
{
    CtrCheckEdit small{frame, {.Name = "small", .Tag = "ctr_alarms", .Width = 600, .Height = 200}};
    give("5", "1");
    small.SetMappings(mappedParam());
    EXPECT_GE(small.Height, 3 * 300);
    EXPECT_GT(small.Width, 600); // "travel" is six characters of 100 twips
    EXPECT_EQ(small.scgCheck.Height, small.Height);
    EXPECT_EQ(small.scgCheck.Width, small.Width);
    const auto columns =
        (small.scgCheck.column(1).Width + small.scgCheck.column(2).Width) * 15; // pixels
    EXPECT_LE(columns, small.Width);

    translator.texts["low"] = "much too low for good";
    small.Localize(translator);
    EXPECT_GT(small.scgCheck.column(2).Width * 15, 2100);

    CtrCheckEdit large{frame, {.Name = "large", .Width = 6000, .Height = 3000}};
    large.SetMappings(mappedParam());
    EXPECT_EQ(large.Width, 6000);
    EXPECT_EQ(large.Height, 3000);
}

// --- `ShowChecks` -----------------------------------------------------------------------------

TEST_F(CheckEdit, AnEmptyValueShowsNothingNew)
{
    loadQuietly("5");
    for (std::int16_t mode = 0; mode <= 3; ++mode) {
        edit.ShowChecks("", mode);
    }
    EXPECT_THAT(rows(), ElementsAre("x", "x", "o"));
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CheckEdit, AValueThatIsNoByteIsReportedAndTheRowsStay)
{
    loadQuietly("5");
    for (std::int16_t mode = 0; mode <= 3; ++mode) {
        edit.ShowChecks("many", mode);
        edit.ShowChecks("256", mode);
    }
    EXPECT_THAT(rows(), ElementsAre("x", "x", "o"));
    EXPECT_EQ(edit.originalValue(), "5");
    EXPECT_EQ(messenger.errors().size(), 8U);
    EXPECT_THAT(messenger.errors(),
                SomeAndEach(HasSubstr("ReportError(CtrCheckEdit ShowChecks, ")));
    EXPECT_THAT(messenger.errors(), Contains(HasSubstr("ShowChecks, 13,")).Times(4));
    EXPECT_THAT(messenger.errors(), Contains(HasSubstr("ShowChecks, 6,")).Times(4));
    EXPECT_THAT(messenger.actions().size(), 8U);
}

TEST_F(CheckEdit, Mode0MarksEveryRowOnce)
{
    loadQuietly("5");
    edit.ShowChecks("1", CtrCheckEdit::kOutOfStep);
    EXPECT_THAT(rows(), ElementsAre("*x", "*o", "*o"));
    EXPECT_THAT(messenger.calls, ElementsAre(state("edited"), state("edited"), state("edited")));
    messenger.clear();
    edit.ShowChecks("4", CtrCheckEdit::kOutOfStep);
    EXPECT_THAT(rows(), ElementsAre("*o", "*x", "*o"));
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CheckEdit, Mode1TakesTheSignsAwayAndSetsTheFlags)
{
    loadQuietly("5");
    edit.ShowChecks("4", CtrCheckEdit::kCompare);
    EXPECT_THAT(rows(), ElementsAre("*o", "x", "o"));
    messenger.clear();
    edit.ShowChecks("132", CtrCheckEdit::kInStep);
    EXPECT_THAT(rows(), ElementsAre("o", "x", "x"));
    EXPECT_THAT(messenger.calls, ElementsAre(state("original")));
    EXPECT_EQ(edit.originalValue(), "132");
    // compared with the new flags from now on
    edit.ShowChecks("132", CtrCheckEdit::kCompare);
    EXPECT_THAT(rows(), ElementsAre("o", "x", "x"));
}

TEST_F(CheckEdit, Mode3ComparesEachRowWithItsFlag)
{
    loadQuietly("5");
    edit.ShowChecks("129", CtrCheckEdit::kCompare);
    EXPECT_THAT(rows(), ElementsAre("x", "*o", "*x"));
    EXPECT_THAT(messenger.calls, ElementsAre(state("edited"), state("edited")));
    messenger.clear();
    edit.ShowChecks("133", CtrCheckEdit::kCompare);
    EXPECT_THAT(rows(), ElementsAre("x", "x", "*x"));
    EXPECT_THAT(messenger.calls, ElementsAre(state("original")));
}

TEST_F(CheckEdit, AnyOtherModeShowsTheChecksAlone)
{
    loadQuietly("5");
    edit.ShowChecks("4", CtrCheckEdit::kCompare);
    messenger.clear();
    for (const std::int16_t mode : std::vector<std::int16_t>{2, 4, -1}) {
        edit.ShowChecks("129", mode);
        EXPECT_THAT(rows(), ElementsAre("*x", "o", "x"));
    }
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CheckEdit, ARowIsCheckedIfAnyOfItsBitsIsSet)
{
    load("2", "1",
         R"(<data:mapping value="3" name="any"/><data:mapping value="256" name="none"/>)"
         R"(<data:mapping value="0" name="never"/>)");
    EXPECT_THAT(rows(), ElementsAre("x", "o", "o"));
}

TEST_F(CheckEdit, ARowWhoseReportFailsDoesNotStopTheNext)
{
    loadQuietly("5");
    messenger.failOn("SetParameterState", 13);
    edit.ShowChecks("1", CtrCheckEdit::kOutOfStep);
    EXPECT_THAT(rows(), ElementsAre("*x", "*o", "*o"));
    EXPECT_EQ(messenger.errors().size(), 3U);
    EXPECT_THAT(messenger.errors(),
                SomeAndEach(HasSubstr("ReportError(CtrCheckEdit ShowChecks, 13,")));
}

// --- What the user does -----------------------------------------------------------------------

TEST_F(CheckEdit, ACheckIsAnEditThatGoesIntoTheDatafile)
{
    loadQuietly("5");
    EXPECT_EQ(click(3), UserDoor::done);
    EXPECT_THAT(rows(), ElementsAre("x", "x", "*x"));
    EXPECT_TRUE(edit.Modified());
    // The row reports, and so does the editor.
    EXPECT_THAT(messenger.calls, ElementsAre(state("edited"), state("edited")));
    EXPECT_EQ(attribute("value"), "133");
    EXPECT_EQ(attribute("synchronised"), "0");
    messenger.clear();

    EXPECT_EQ(edit.scgCheck.edit(1, 2, 0), UserDoor::done);
    EXPECT_THAT(rows(), ElementsAre("*o", "x", "*x"));
    EXPECT_THAT(messenger.calls, ElementsAre(state("edited")));
    EXPECT_EQ(attribute("value"), "132");
}

TEST_F(CheckEdit, TheWayBackIsNoEdit)
{
    loadQuietly("5");
    click(1);
    click(1);
    EXPECT_THAT(rows(), ElementsAre("x", "x", "o"));
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(messenger.calls, ElementsAre(state("edited"), state("edited"), state("original"),
                                             state("original")));
    EXPECT_EQ(attribute("value"), "5");
    EXPECT_EQ(attribute("synchronised"), "0");
}

TEST_F(CheckEdit, BitsThatNoRowHasStayAsTheyAre)
{
    loadQuietly("74"); // 64 + 8 + 2
    click(1);
    EXPECT_EQ(attribute("value"), "75");
    EXPECT_EQ(edit.GetXmlItem(false).get_xml(),
              R"(<item name="alarms" unit="noUnit"><bitEnumVal>75</bitEnumVal></item>)");
}

TEST_F(CheckEdit, ACheckOfARowOfSeveralBitsSetsThemAll)
{
    loadQuietly("128", "1", R"(<data:mapping value="7" name="all"/>)");
    click(1);
    EXPECT_EQ(attribute("value"), "135");
    click(1);
    EXPECT_EQ(attribute("value"), "128");
}

TEST_F(CheckEdit, OutsideTheGridNothingHappens)
{
    loadQuietly("5");
    for (const auto& [row, col] : {std::pair{0, 2}, {1, 0}, {-1, 2}, {4, 2}, {1, 3}, {99, 99}}) {
        edit.scgCheck.TextChange.raise(row, col);
    }
    EXPECT_THAT(messenger.calls, IsEmpty());
    EXPECT_EQ(attribute("synchronised"), "1");
}

TEST_F(CheckEdit, TheFirstCheckOfAParameterThatWasNeverReadIsStored)
{
    loadQuietly("", "1");
    EXPECT_FALSE(edit.GetXmlItem(false));
    click(2);
    EXPECT_THAT(rows(), ElementsAre("o", "*x", "o"));
    EXPECT_EQ(attribute("value"), "4");
    EXPECT_THAT(edit.GetXmlItem(false).get_xml(), HasSubstr("<bitEnumVal>4</bitEnumVal>"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CheckEdit, ADatafileValueThatIsNoByteIsReportedAndReplacedByWhatIsShown)
{
    loadQuietly("5");
    for (const char* wrong : {"many", "256"}) {
        parameter().get_attributes().getNamedItem("value").put_value(wrong);
        messenger.clear();
        click(3);
        EXPECT_THAT(messenger.errors(),
                    ElementsAre(HasSubstr("ReportError(CtrCheckEdit StoreBitForExport:, ")));
    }
    EXPECT_EQ(attribute("value"), "5");
}

TEST_F(CheckEdit, AMissingValueIsReportedAndAdded)
{
    loadQuietly("5");
    parameter().get_attributes().removeNamedItem("value");
    click(3);
    EXPECT_EQ(attribute("value"), "133");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(CtrCheckEdit StoreBitForExport:, 91,")));
}

TEST_F(CheckEdit, StoresOneRowWhenTold)
{
    loadQuietly("5");
    parameter().get_attributes().getNamedItem("value").put_value("128");
    edit.StoreBitForExport(0);
    EXPECT_EQ(attribute("value"), "129");
    edit.StoreBitForExport(2);
    EXPECT_EQ(attribute("value"), "1");
    EXPECT_THAT(messenger.calls, IsEmpty());
    for (const std::int32_t row : {-1, 3, INT32_MAX, INT32_MIN}) {
        edit.StoreBitForExport(row);
    }
    EXPECT_EQ(attribute("value"), "1");
    EXPECT_EQ(messenger.errors().size(), 4U);
    EXPECT_THAT(messenger.errors(),
                SomeAndEach(HasSubstr("ReportError(CtrCheckEdit StoreBitForExport:, 9,")));
}

TEST_F(CheckEdit, AnUnboundEditorWritesNothing)
{
    give("5", "1");
    edit.SetMappings(mappedParam());
    click(2);
    edit.StoreBitForExport(9);
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(attribute("value"), "5");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CheckEdit, AnEditIsFoundByTheNextLoad)
{
    loadQuietly("5");
    click(3);
    messenger.clear();
    edit.SetMappings(mappedParam());
    edit.setOfflineData(parameter());
    EXPECT_THAT(rows(), ElementsAre("*x", "*x", "*x"));
    EXPECT_THAT(messenger.actions(), ElementsAre(state("edited"), state("edited")));
}

TEST_F(CheckEdit, IsBarredInMode20Only)
{
    load();
    messenger.ViewSetCommunicationMode.raise(kEditingBarred);
    EXPECT_FALSE(edit.scgCheck.Enabled);
    EXPECT_FALSE(edit.Enabled());
    EXPECT_EQ(click(1), UserDoor::refused);
    for (const std::int32_t mode : {kOffline, kOnline, kCommunication}) {
        messenger.ViewSetCommunicationMode.raise(kEditingBarred);
        messenger.ViewSetCommunicationMode.raise(mode);
        EXPECT_TRUE(edit.Enabled());
    }
    EXPECT_EQ(click(1), UserDoor::done);
}

TEST_F(CheckEdit, ADisabledEditorIsGreyAndRefusesTheUser)
{
    load();
    edit.setEnabled(false);
    EXPECT_EQ(click(1), UserDoor::refused);
    EXPECT_EQ(edit.scgCheck.BackColor, editorColors::kGrey);
    EXPECT_EQ(edit.scgCheck.cell(1, 2).BackColor, editorColors::kGrey);
    edit.setEnabled(true);
    EXPECT_EQ(edit.scgCheck.cell(1, 2).BackColor, platform::kWindowBackground);
    EXPECT_EQ(click(1), UserDoor::done);
}

TEST_F(CheckEdit, TheFocusComesWithACursor)
{
    load();
    EXPECT_EQ(edit.focus(), UserDoor::done);
    EXPECT_TRUE(edit.scgCheck.HasFocus());
    EXPECT_EQ(edit.scgCheck.CurRow(), 1);
    EXPECT_EQ(edit.scgCheck.CurCol(), 2);
    edit.scgCheck.moveTo(3, 2);
    edit.scgCheck.blur();
    edit.scgCheck.focus();
    EXPECT_EQ(edit.scgCheck.CurRow(), 3);

    CtrCheckEdit empty{frame, {.Name = "empty"}};
    empty.SetMessenger(&messenger);
    empty.focus();
    EXPECT_EQ(empty.scgCheck.CurRow(), 0);
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CheckEdit, ASignIsToldInWordsToo)
{
    load("5");
    click(1);
    EXPECT_EQ(edit.scgCheck.RowDescription(1), "modified");
    EXPECT_EQ(edit.scgCheck.RowDescription(2), "");
    edit.Localize(translator);
    EXPECT_EQ(edit.scgCheck.RowDescription(1), "T-modified");
    EXPECT_EQ(edit.scgCheck.RowDescription(2), "");
    click(1);
    EXPECT_EQ(edit.scgCheck.RowDescription(1), "");
}

TEST_F(CheckEdit, ModifiedSetsAndTakesAllSigns)
{
    loadQuietly("5");
    click(3);
    messenger.clear();
    edit.setModified(false);
    EXPECT_THAT(rows(), ElementsAre("x", "x", "x"));
    EXPECT_EQ(edit.originalValue(), "133");
    EXPECT_THAT(messenger.calls, IsEmpty());
    click(3); // against the new flags
    EXPECT_THAT(rows(), ElementsAre("x", "x", "*o"));
    edit.setModified(true);
    EXPECT_THAT(rows(), ElementsAre("*x", "*x", "*o"));
    messenger.clear();
    edit.SetModifiedForward(false);
    EXPECT_THAT(messenger.calls, ElementsAre(state("original")));
}

TEST_F(CheckEdit, AHostThatThrowsStopsNothing)
{
    loadQuietly("5");
    messenger.failOn("SetParameterState", 5);
    messenger.failOn("ReportError");
    EXPECT_EQ(click(3), UserDoor::done);
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(attribute("value"), "133");
    messenger.stopFailing();
    EXPECT_EQ(click(3), UserDoor::done);
    EXPECT_FALSE(edit.Modified());
}

TEST_F(CheckEdit, AReportOfTheUsersRowHasItsPlace)
{
    loadQuietly("5");
    messenger.failOn("SetParameterState", 13);
    click(3);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(CtrCheckEdit TextChange, 13,"),
                            HasSubstr("ReportError(Check ctr_alarms forwardChanges, 13,")));
}

TEST_F(CheckEdit, WorksWithoutAMessenger)
{
    CtrCheckEdit alone;
    give("5", "1");
    alone.SetMappings(mappedParam());
    alone.setOfflineData(parameter());
    EXPECT_EQ(alone.scgCheck.clickCell(3, 2), UserDoor::done);
    EXPECT_TRUE(alone.Modified());
    EXPECT_EQ(attribute("value"), "133");
    EXPECT_EQ(alone.changeState(), "original");
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

} // namespace
} // namespace quill
