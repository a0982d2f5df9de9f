// Units that change while the editor shows a value, and numbers at the edge of what converts.

#include "text_editor_fixture.h"

namespace quill::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// --- ViewSetUnits -----------------------------------------------------------------------------

TEST_F(TextEditDataTest, AnotherDisplayUnitConvertsValueLimitsAndUnit)
{
    useConverter("bar");
    load();
    converter.displayUnits["travel"] = "kPa";
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.Text(), "500.0");
    EXPECT_EQ(editor.Unit(), "kPa");
    EXPECT_EQ(editor.originalText(), "500.0");
    EXPECT_FALSE(editor.Modified());
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), "0..10000 kPa");
    converter.displayUnits["travel"] = "bar";
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.Text(), "5.0");
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), "0..100 bar");
}

TEST_F(TextEditDataTest, AnEditStaysAnEditWhenTheUnitChanges)
{
    useConverter("bar");
    load();
    type("7");
    messenger.clear();
    converter.displayUnits["travel"] = "kPa";
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.Text(), "700.0");
    EXPECT_TRUE(editor.Modified());
    EXPECT_EQ(editor.originalText(), "500.0");
    EXPECT_EQ(editor.changeState(), "edited");
    EXPECT_THAT(states(), ElementsAre(state("original"), state("edited")));
    type("500.0");
    EXPECT_FALSE(editor.Modified());
}

TEST_F(TextEditDataTest, AnEmptyOriginalStaysEmptyWhenTheUnitChanges)
{
    useConverter("bar");
    load({{"synchronised", "0"}});
    converter.displayUnits["travel"] = "kPa";
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.Text(), "500.0");
    EXPECT_TRUE(editor.Modified());
    EXPECT_EQ(editor.originalText(), "");
}

TEST_F(TextEditDataTest, TheUnitsAreLookedUpByTailsOfTheNameToo)
{
    messenger.converter = &converter;
    CtrTextEdit valve{page, {.Name = "valve", .Tag = "ctr_valveTravel"}};
    valve.SetMessenger(&messenger);
    document = datafile(parameterXml({{"name", "valveTravel"}}));
    valve.setOfflineData(documents::findParameter(document, "valveTravel"));
    converter.displayUnits["travel"] = "kPa";
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(valve.Unit(), "kPa");
    converter.displayUnits.clear(); // nothing known any more: the datafile's unit
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(valve.Unit(), "bar");
    EXPECT_EQ(valve.Text(), "5.0");
}

TEST_F(TextEditDataTest, TheToolTipFollowsTheUnitsInEveryForm)
{
    useConverter("bar");
    load({{"minVal", "0.5"}, {"maxVal", ""}});
    converter.displayUnits["travel"] = "kPa";
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), " > 50 kPa");
    load({{"minVal", ""}, {"maxVal", "7"}});
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), " < 700 kPa");
    converter.displayUnits["travel"] = "furlong";
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), " < 700 kPa");
}

TEST_F(TextEditDataTest, ATextThatIsNoNumberOnlyGetsTheNewUnit)
{
    useConverter("bar");
    load();
    type("abc");
    converter.displayUnits["travel"] = "kPa";
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.Text(), "abc");
    EXPECT_EQ(editor.Unit(), "kPa");
}

TEST_F(TextEditDataTest, AUnitWithNoWayChangesNothing)
{
    useConverter("bar");
    load();
    converter.displayUnits["travel"] = "furlong";
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.Text(), "5.0");
    EXPECT_EQ(editor.Unit(), "bar");
}

TEST_F(TextEditDataTest, ABurstParameterGivesUpAtItsFirstTail)
{
    messenger.converter             = &converter;
    converter.displayUnits["value"] = "kPa";
    CtrTextEdit burst{page, {.Name = "burst", .Tag = "ctr_travelBurstValue"}};
    burst.SetMessenger(&messenger);
    document = datafile(parameterXml({{"name", "travelBurstValue"}}));
    burst.setOfflineData(documents::findParameter(document, "travelBurstValue"));
    EXPECT_EQ(burst.Unit(), "kPa"); // the datafile's walk goes on to "value"
    burst.setVisibleUnit("bar");
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(burst.Unit(), "bar"); // this one ends at "burstValue"
    converter.displayUnits["burstValue"] = "psi";
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(burst.Unit(), "psi");
    converter.displayUnits.clear();
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(burst.Unit(), "psi"); // the end of the routine, not the datafile's unit
}

TEST_F(TextEditDataTest, AnEditorOfAnyWidthTakesALongerUnit)
{
    load();
    editor.Width = 2147483647;
    editor.setVisibleUnit("a unit that is longer");
    EXPECT_EQ(editor.Width.get(), 2147483647);
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(TextEditDataTest, NoUnitAndPercentDoNotFollowTheUnits)
{
    useConverter("kPa");
    load({{"unit", "%"}});
    messenger.clear();
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.Unit(), "%");
    EXPECT_THAT(messenger.calls, IsEmpty());
}

// --- Numbers that no double can hold ----------------------------------------------------------

TEST_F(TextEditDataTest, ANumberTooLargeKeepsItsUnitWhenTheUnitsChange)
{
    useConverter("bar");
    load();
    editor.txtBox.type("1e400");
    messenger.clear();
    converter.displayUnits["travel"] = "kPa";
    EXPECT_NO_THROW(messenger.ViewSetUnits.raise());
    EXPECT_EQ(editor.Text(), "1e400");
    EXPECT_EQ(editor.Unit(), "bar");
    EXPECT_THAT(messenger.calls, Contains(HasSubstr("ReportError")));
}

TEST_F(TextEditDataTest, ANumberTooLargeInADatafileStaysInItsUnit)
{
    useConverter("kPa");
    EXPECT_NO_THROW(load({{"value", "1e400"}}));
    EXPECT_EQ(editor.Text(), "1e400");
    EXPECT_EQ(editor.Unit(), "bar");
    EXPECT_FALSE(editor.Correct());
}

TEST_F(TextEditDataTest, ANumberTooLargeInAnImportStaysInItsUnit)
{
    useConverter("kPa");
    load();
    const auto import = datafile(parameterXml({{"value", "1e400"}}));
    EXPECT_NO_THROW(editor.setImportData(documents::findParameter(import, "travel")));
    EXPECT_EQ(editor.Text(), "1e400");
    EXPECT_EQ(editor.Unit(), "bar");
    EXPECT_FALSE(editor.Correct());
}

TEST_F(TextEditDataTest, ANumberTooLargeForAnUnconvertedOriginalLeavesTheOriginal)
{
    useConverter("kPa");
    load({{"value", "1E999"}});
    type("7");
    messenger.ViewSetUnits.raise();
    EXPECT_EQ(editor.Text(), "700.0");
    EXPECT_EQ(editor.originalText(), "1E999");
    EXPECT_TRUE(editor.Modified());
}

TEST_F(TextEditDataTest, ANumberBeyondSinglePrecisionIsNotConverted)
{
    useConverter("kPa");
    load({{"minVal", ""}, {"maxVal", "1E300"}});
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), " <= 1E+300 bar");
    type("1E39");
    EXPECT_TRUE(editor.Correct());
    EXPECT_EQ(stored("value"), "1E39"); // and its unit goes with it
    EXPECT_EQ(stored("unit"), "kPa");
    EXPECT_THAT(messenger.errors(),
                Contains("ReportError(TextEdit ctr_travel FormatForCommunication, 6, Overflow)"));
}

TEST_F(TextEditDataTest, AnyNumberOfDecimalsMakesATextOfBoundedLength)
{
    load({{"decimals", "32767"}});
    EXPECT_EQ(editor.decimalCount(), 32767);
    EXPECT_EQ(editor.Text(), "5." + std::string(340, '0'));
    load({{"decimals", "30"}, {"value", "0.5"}});
    EXPECT_EQ(editor.Text(), "0.5" + std::string(29, '0'));
}

} // namespace
} // namespace quill::test
