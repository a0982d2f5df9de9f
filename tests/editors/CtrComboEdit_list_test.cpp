// The list of the combo editor: its entries, how they are shown, hidden and found.

#include "combo_editor_fixture.h"

namespace quill {
namespace {

using namespace test;
using platform::UserDoor;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ComboEditList : public ComboEditTest {};

// --- The list ---------------------------------------------------------------------------------

TEST_F(ComboEditList, ListsTheNamesOfItsEntriesAsTheyStand)
{
    give("", "1");
    edit.SetMappings(mappedParam());
    EXPECT_TRUE(edit.HasMappings());
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("off", "on", "auto"));
    EXPECT_EQ(edit.cboBox.ListIndex(), -1);
    EXPECT_EQ(entryAttribute(0, "comboIndex"), "0");
    EXPECT_EQ(entryAttribute(2, "comboIndex"), "2");
    EXPECT_EQ(entryAttribute(2, "visible"), "true");
}

TEST_F(ComboEditList, LeavesTheListInTheDatafileAlone)
{
    give("", "1");
    const std::string before = mappedParam().get_xml();
    edit.SetMappings(mappedParam());
    edit.SetItemVisibilityAll(false);
    EXPECT_EQ(mappedParam().get_xml(), before);
}

TEST_F(ComboEditList, TakesNoCommentForAnEntry)
{
    give("", "1", R"(<!-- first --><data:mapping value="0" name="off"/><!-- last -->)");
    edit.SetMappings(mappedParam());
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("off"));
    EXPECT_EQ(edit.GetIndex("0"), 0);
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(ComboEditList, TakesAListThatWasComposedWithoutANamespace)
{
    const auto document = documents::openText(
        R"(<mappedParam name="foo"><mapping value="3" name="three"/></mappedParam>)");
    edit.SetMappings(document.get_documentElement());
    EXPECT_EQ(edit.GetIndex("3"), 0);
}

TEST_F(ComboEditList, KeepsItsListWhenGivenNone)
{
    load("7");
    edit.SetMappings(nullptr);
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("off", "on", "auto"));
    EXPECT_EQ(edit.Text(), "auto");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(ComboEditList, ReplacesItsListByANewOneWithNothingChosen)
{
    load("7");
    give("", "1", R"(<data:mapping value="4" name="four"/>)");
    edit.SetMappings(mappedParam());
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("four"));
    EXPECT_EQ(edit.cboBox.ListIndex(), -1);
}

TEST_F(ComboEditList, ReportsAnEntryWithoutNameAndKeepsItsPlace)
{
    give("", "1", R"(<data:mapping value="0"/><data:mapping value="1" name="on"/>)");
    edit.SetMappings(mappedParam());
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("", "on"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Combo ctr_mode SetMappings, 91,")));
}

TEST_F(ComboEditList, TranslatesItsEntriesAndKeepsTheChosenRow)
{
    load("7");
    edit.Localize(translator);
    EXPECT_EQ(edit.labelText(), "T-ctr_mode");
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("T-off", "T-on", "T-auto"));
    EXPECT_EQ(edit.Text(), "T-auto");
}

TEST_F(ComboEditList, LocalizesItsLabelWithoutAList)
{
    edit.Localize(translator);
    EXPECT_EQ(edit.labelText(), "T-ctr_mode");
    EXPECT_THAT(edit.cboBox.List(), IsEmpty());
}

TEST_F(ComboEditList, ShowsAnEntryThatCannotBeTranslatedByItsName)
{
    load("7");
    forget();
    translator.failingKey = "on";
    edit.Localize(translator);
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("T-off", "on", "T-auto"));
    EXPECT_EQ(edit.Text(), "T-auto");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Combo ctr_mode Localize, 5,")));
}

TEST_F(ComboEditList, HidesEntriesWithTheNextRefresh)
{
    load("0");
    edit.SetItemVisibility("on", false);
    EXPECT_EQ(edit.cboBox.ListCount(), 3);
    edit.RefreshItemList();
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("T-off", "T-auto"));
    EXPECT_EQ(edit.cboBox.ListIndex(), 0);
    EXPECT_EQ(entryAttribute(1, "visible"), "false");
    EXPECT_EQ(entryAttribute(1, "comboIndex"), "-2");
    EXPECT_EQ(entryAttribute(2, "comboIndex"), "1");

    edit.SetItemVisibility("on", true);
    edit.RefreshItemList();
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("T-off", "T-on", "T-auto"));
}

TEST_F(ComboEditList, HidesEntriesWithTheNextLocalizeToo)
{
    load("0");
    edit.SetItemVisibility("on", false);
    edit.Localize(translator);
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("T-off", "T-auto"));
    EXPECT_EQ(entryAttribute(1, "comboIndex"), "-2");
}

TEST_F(ComboEditList, HidesAndShowsAllEntries)
{
    load("0");
    edit.SetItemVisibilityAll(false);
    edit.RefreshItemList();
    EXPECT_THAT(edit.cboBox.List(), IsEmpty());
    edit.SetItemVisibilityAll(true);
    edit.RefreshItemList();
    EXPECT_EQ(edit.cboBox.ListCount(), 3);
}

TEST_F(ComboEditList, ReportsAChosenRowThatIsGone)
{
    load("7");
    forget();
    edit.SetItemVisibility("on", false);
    edit.RefreshItemList();
    EXPECT_EQ(edit.cboBox.ListIndex(), -1);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Combo ctr_mode RefreshItemList, 5,")));
}

TEST_F(ComboEditList, RefreshesByNameWithoutATranslator)
{
    load("7");
    edit.Localize(translator);
    forget();
    messenger.translator = nullptr;
    edit.RefreshItemList();
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("off", "on", "auto"));
    EXPECT_EQ(edit.Text(), "auto");
    EXPECT_THAT(messenger.errors(),
                Contains(HasSubstr("ReportError(Combo ctr_mode RefreshItemList, 91,")).Times(3))
        << "one step per entry";

    forget();
    messenger.failOn("GetTranslator");
    edit.RefreshItemList();
    EXPECT_THAT(edit.cboBox.List(), ElementsAre("off", "on", "auto"));
    ASSERT_EQ(messenger.errors().size(), 4U);
    EXPECT_THAT(messenger.errors().front(), HasSubstr("RefreshItemList, 5,"));
}

TEST_F(ComboEditList, DoesNothingToAListThatIsNotThere)
{
    edit.RefreshItemList();
    edit.SetItemVisibility("on", false);
    edit.SetItemVisibilityAll(false);
    EXPECT_FALSE(edit.HasMappings());
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(ComboEditList, FindsAnEntryByValueAndByName)
{
    load();
    EXPECT_EQ(edit.GetIndex("7"), 2);
    EXPECT_EQ(edit.GetIndex("auto"), 2);
    EXPECT_EQ(edit.GetIndex("AUTO"), -1);
    EXPECT_EQ(edit.GetIndex("1.0"), -1);
    EXPECT_EQ(edit.GetComboText(2), "auto");
    EXPECT_EQ(edit.GetComboText(3), "");
    EXPECT_EQ(edit.GetComboText(-1), "");
}

TEST_F(ComboEditList, TakesTheFirstEntryThatFitsByEither)
{
    load("5", "1", R"(<data:mapping value="4" name="5"/><data:mapping value="5" name="4"/>)");
    EXPECT_EQ(edit.GetIndex("5"), 0);
    EXPECT_EQ(edit.GetIndex("4"), 0);
}

TEST_F(ComboEditList, LogsAMissingList)
{
    EXPECT_EQ(edit.GetIndex("1"), -1);
    EXPECT_EQ(edit.GetComboText(0), "");
    EXPECT_THAT(
        messenger.calls,
        ElementsAre(
            "WriteLog(66, Error: Combo ctr_mode GetIndex has no mappings. Check Datafile.)"));
}

TEST_F(ComboEditList, ANumberIsRoundedBeforeTheMissingListIsLogged)
{
    edit.setOfflineData(test::datafile(R"(<data:parameter name="mode" type="floatVal" value=""
        access="readWrite" synchronised="1"/>)")
                            .selectSingleNode("//data:parameter"));
    forget();
    EXPECT_EQ(edit.GetIndex("1E+20"), -1);
    EXPECT_THAT(messenger.actions(), ElementsAre(HasSubstr("Combo ctr_mode GetIndex, 6,")));
    ASSERT_EQ(messenger.calls.size(), 2U);
    EXPECT_THAT(messenger.calls[1], HasSubstr("WriteLog(66,"));
}

TEST_F(ComboEditList, SaysThatAnEntryIsHidden)
{
    load("0");
    edit.SetItemVisibility("on", false);
    edit.RefreshItemList();
    EXPECT_EQ(edit.GetIndex("1"), -2);
}

class ComboEditOfFloat : public ComboEditTest, public testing::WithParamInterface<const char*> {};

TEST_P(ComboEditOfFloat, FindsAWholeNumberHoweverItIsWritten)
{
    toolkit.localeSettings.decimal = GetParam();
    load("1.0", "1", kModes, "floatVal");
    EXPECT_EQ(edit.Text(), "on");
    EXPECT_EQ(edit.GetIndex("6.6"), 2);
    EXPECT_EQ(edit.GetIndex("0.5"), 0); // a tie goes to the even number
    EXPECT_EQ(edit.GetIndex("auto"), 2);
    EXPECT_EQ(edit.GetIndex("NaN"), -1);
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_EQ(edit.GetIndex("1E20"), -1);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Combo ctr_mode GetIndex, 6,")));
}

TEST_P(ComboEditOfFloat, FindsANameWithADot)
{
    toolkit.localeSettings.decimal = GetParam();
    load("1", "1", R"(<data:mapping value="1" name="Rev. A"/>)", "floatVal");
    EXPECT_EQ(edit.GetIndex("Rev. A"), 0);
}

INSTANTIATE_TEST_SUITE_P(Separators, ComboEditOfFloat, testing::Values(".", ","));

TEST_F(ComboEditList, GivesTheChosenValueAsANumber)
{
    load("7");
    EXPECT_EQ(edit.getSelectedValue(), 7);
    edit.cboBox.setListIndex(-1);
    EXPECT_EQ(edit.getSelectedValue(), -1);
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(ComboEditList, GivesMinusOneForAnEntryWithoutANumber)
{
    load("none", "1", R"(<data:mapping value="" name="none"/><data:mapping value="x" name="y"/>)",
         "stringVal");
    EXPECT_EQ(edit.getSelectedValue(), -1);
    EXPECT_THAT(messenger.errors(), IsEmpty());
    edit.cboBox.setListIndex(1);
    EXPECT_EQ(edit.getSelectedValue(), -1);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Combo ctr_mode getSelectedValue, 13,")));
}

TEST_F(ComboEditList, GivesMinusOneWithoutAList)
{
    EXPECT_EQ(edit.getSelectedValue(), -1);
}

TEST_F(ComboEditList, WrittenTextChoosesAnEntryAndMovesNothingElse)
{
    loadQuietly("1");
    edit.setText("auto");
    EXPECT_EQ(edit.Text(), "auto");
    EXPECT_THAT(changes, ElementsAre("auto"));
    EXPECT_FALSE(edit.Modified());
    EXPECT_EQ(edit.originalText(), "on");
    EXPECT_EQ(attribute("value"), "1");
    EXPECT_THAT(messenger.actions(), IsEmpty());

    edit.setText("7"); // the same entry by its value
    EXPECT_THAT(changes, ElementsAre("auto"));
    edit.setText("unheard of");
    EXPECT_EQ(edit.cboBox.ListIndex(), -1);
    EXPECT_THAT(changes, ElementsAre("auto", ""));
}

} // namespace
} // namespace quill
