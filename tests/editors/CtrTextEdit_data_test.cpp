// How the text editor takes its parameter from the datafile.

#include "text_editor_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(TextEditDataTest, NothingIsDoneForAnEmptyNode)
{
    EXPECT_FALSE(editor.setOfflineData(nullptr));
    EXPECT_FALSE(editor.setOnlineData(nullptr));
    EXPECT_FALSE(editor.setLocalData(nullptr));
    EXPECT_FALSE(editor.setImportData(nullptr));
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(TextEditDataTest, AParameterInStepComesUpUnmodified)
{
    loadQuietly({{"synchronised", "1"}});
    EXPECT_EQ(editor.Text(), "5.0");
    EXPECT_FALSE(editor.Modified());
    EXPECT_TRUE(editor.hasSynced());
    EXPECT_THAT(states(), ElementsAre(state("sync")));
    EXPECT_EQ(changes.back(), "5.0");
}

TEST_F(TextEditDataTest, AValueOutOfStepComesUpAsAnEditWithAnEmptyOriginal)
{
    loadQuietly({{"synchronised", "0"}});
    EXPECT_TRUE(editor.Modified());
    EXPECT_EQ(editor.originalText(), "");
    EXPECT_THAT(states(), ElementsAre(state("edited")));
    type("7");
    EXPECT_TRUE(editor.Modified());
}

TEST_F(TextEditDataTest, AnEmptyValueOutOfStepComesUpUnmodified)
{
    loadQuietly({{"synchronised", "0"}, {"value", ""}});
    EXPECT_FALSE(editor.Modified());
    EXPECT_THAT(states(), IsEmpty());
}

TEST_F(TextEditDataTest, ACommunicationErrorIsShownWithItsValue)
{
    loadQuietly({{"synchronised", "2"}});
    EXPECT_EQ(editor.Text(), "5.0");
    EXPECT_EQ(editor.syncState(), "syncError");
    EXPECT_FALSE(editor.hasSynced());
    EXPECT_THAT(states(), ElementsAre(state("syncError")));
}

TEST_F(TextEditDataTest, AtALoadInStepTheSynchronisationIsReportedFirst)
{
    load();
    editor.SetModifiedForward(true);
    documents::writeAttribute(parameter(), "synchronised", "1"); // which the load turned to "0"
    messenger.clear();
    editor.setOfflineData(parameter());
    EXPECT_THAT(states(), ElementsAre(state("sync"), state("original")));
}

TEST_F(TextEditDataTest, TheDatafileIsShownWithoutAMessengerToo)
{
    editor.SetMessenger(nullptr);
    load({{"synchronised", "0"}});
    EXPECT_EQ(editor.Text(), "5.0");
    EXPECT_EQ(editor.Unit(), "bar");
    EXPECT_TRUE(editor.Modified());
    EXPECT_EQ(editor.changeState(), "original");
    editor.setOnlineData(itemNode("bar", "4"));
    EXPECT_EQ(editor.Text(), "4.0");
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(TextEditDataTest, AGarbledLimitLeavesTheOldOne)
{
    load();
    editor.setOfflineData(documents::findParameter(
        datafile(parameterXml({{"minVal", "low"}, {"maxVal", "high"}})), "travel"));
    EXPECT_EQ(editor.limitMin(), 0);
    EXPECT_EQ(editor.limitMax(), 100);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("TextEdit ctr_travel setOfflineData, 13"),
                            HasSubstr("TextEdit ctr_travel setOfflineData, 13")));
}

TEST_F(TextEditDataTest, TheFirstNodeStaysBound)
{
    load();
    const auto other = datafile(parameterXml({{"value", "9"}}));
    editor.setOfflineData(documents::findParameter(other, "travel"));
    EXPECT_EQ(editor.Text(), "9.0");
    type("11");
    EXPECT_EQ(stored("value"), "11");
    EXPECT_EQ(documents::attributeText(documents::findParameter(other, "travel"), "value"), "9");
}

TEST_F(TextEditDataTest, AReloadOfTheSameDatafileFindsTheEdit)
{
    load();
    type("7");
    editor.setOfflineData(parameter());
    EXPECT_EQ(editor.Text(), "7.0");
    EXPECT_TRUE(editor.Modified());
}

TEST_F(TextEditDataTest, TextHasAMaximalLengthAndNoLimits)
{
    load({{"type", "stringVal"}, {"value", "VX 12"}, {"maxVal", "8"}, {"unit", "bar"}});
    EXPECT_EQ(editor.txtBox.MaxLength.get(), 8);
    EXPECT_EQ(editor.txtBox.Alignment.get(), 0);
    EXPECT_EQ(editor.messageUnit(), "noUnit");
    type("123456789");
    EXPECT_EQ(editor.Text(), "12345678");
}

TEST_F(TextEditDataTest, NumbersAreAlignedToTheRight)
{
    load();
    EXPECT_EQ(editor.txtBox.Alignment.get(), 1);
}

TEST_F(TextEditDataTest, EmptyLimitsAreTheSentinelsOfTheType)
{
    load({{"type", "integerVal"}, {"minVal", ""}, {"maxVal", ""}});
    EXPECT_EQ(editor.limitMin(), -2147483647.0);
    EXPECT_EQ(editor.limitMax(), 2147483647.0);
    load({{"minVal", ""}, {"maxVal", ""}});
    EXPECT_EQ(editor.limitMin(), CtrTextEdit::kLowerSentinel);
    EXPECT_EQ(editor.limitMax(), CtrTextEdit::kUpperSentinel);
}

TEST_F(TextEditDataTest, DecimalsMakeTheFormat)
{
    load({{"decimals", "2"}});
    EXPECT_EQ(editor.numberFormat(), "######0.00");
    load({{"decimals", "0"}});
    EXPECT_EQ(editor.numberFormat(), "######0");
    load({{"decimals", ""}});
    EXPECT_EQ(editor.numberFormat(), "######0.000");
    EXPECT_EQ(editor.decimalCount(), 3);
    load({{"decimals", "-"}}); // missing: reported, and read as empty
    EXPECT_EQ(editor.decimalCount(), 3);
}

TEST_F(TextEditDataTest, AnEmptyUnitIsNoUnit)
{
    load({{"unit", ""}});
    EXPECT_EQ(editor.messageUnit(), "noUnit");
    EXPECT_EQ(editor.Unit(), "");
    load({{"unit", "noUnit"}});
    EXPECT_EQ(editor.Unit(), "");
}

TEST_F(TextEditDataTest, TheVisibleUnitIsSetWithoutAConverterToo)
{
    load();
    EXPECT_EQ(editor.Unit(), "bar");
    EXPECT_EQ(editor.Text(), "5.0");
}

TEST_F(TextEditDataTest, TheToolTipTellsTheLimitsInEveryForm)
{
    load({{"minVal", "0.5"}, {"maxVal", ""}});
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), " >= 0.5 bar");
    load({{"minVal", ""}, {"maxVal", "7"}});
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), " <= 7 bar");
    load({{"minVal", "0.5"}, {"maxVal", "7"}});
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), "0.5..7 bar");
    load({{"minVal", "0.5"}, {"maxVal", "7"}, {"unit", "noUnit"}});
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), "0.5..7 ");
    load({{"type", "integerVal"}, {"minVal", "-2147483647"}, {"maxVal", "2147483647"}});
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), "0.5..7 "); // no limits: the tip stays
}

TEST_F(TextEditDataTest, TheToolTipFollowsTheDisplayUnitInEveryForm)
{
    useConverter("kPa");
    load({{"minVal", "0.5"}, {"maxVal", ""}});
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), " > 50 kPa");
    load({{"minVal", ""}, {"maxVal", "7"}});
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), " < 700 kPa");
    load({{"minVal", "0.5"}, {"maxVal", "7"}});
    EXPECT_EQ(editor.txtBox.ToolTipText.get(), "50..700 kPa");
}

TEST_F(TextEditDataTest, ValuesAreShownInTheDisplayUnitAndKeptInTheirOwn)
{
    useConverter("kPa");
    load();
    EXPECT_EQ(editor.Text(), "500.0");
    EXPECT_EQ(editor.Unit(), "kPa");
    EXPECT_EQ(editor.messageUnit(), "bar");
    type("250");
    EXPECT_EQ(stored("value"), "2.5");
    EXPECT_EQ(stored("unit"), "bar");
    type("20000"); // 200 bar: the limits are in the unit of the datafile
    EXPECT_FALSE(editor.Correct());
}

TEST_F(TextEditDataTest, TheDisplayUnitIsAlsoFoundByATailOfTheName)
{
    messenger.converter                  = &converter;
    converter.displayUnits["travelUnit"] = "kPa";
    document                             = datafile(parameterXml({{"name", "valveTravelUnit"}}));
    editor.setOfflineData(documents::findParameter(document, "valveTravelUnit"));
    EXPECT_EQ(editor.Unit(), "kPa");
}

TEST_F(TextEditDataTest, WithoutADisplayUnitTheDatafilesUnitIsShown)
{
    messenger.converter = &converter;
    load();
    EXPECT_EQ(editor.Unit(), "bar");
}

TEST_F(TextEditDataTest, PercentAndNoUnitAreNeverConverted)
{
    useConverter();
    load({{"unit", "%"}});
    EXPECT_EQ(editor.Unit(), "%");
    load({{"unit", ""}});
    EXPECT_EQ(editor.Text(), "5.0");
    EXPECT_EQ(converter.conversions, 0);
}

TEST_F(TextEditDataTest, NaNAndMinusInfAreShownAsTheyStand)
{
    useConverter();
    for (const char* text : {"NaN", "-Inf"}) {
        load({{"value", text}});
        EXPECT_EQ(editor.Text(), text);
        EXPECT_EQ(editor.Unit(), "bar");
        EXPECT_FALSE(editor.Correct());
    }
}

TEST_F(TextEditDataTest, AnUnconvertibleUnitFallsBackToTheDatafilesWithALogLine)
{
    useConverter("furlong");
    loadQuietly({});
    EXPECT_EQ(editor.Unit(), "bar");
    EXPECT_EQ(editor.Text(), "5.0");
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre("WriteLog(68,  TextEdit setOfflineData: using Datafile units, because "
                            "unable to convert ctr_travel 5 bar to furlong)"));
}

TEST_F(TextEditDataTest, AParameterThatCannotBeWrittenIsGreyLockedAndSilent)
{
    for (const char* access : {"read", "", "none"}) {
        load({{"access", access}});
        EXPECT_TRUE(editor.Locked());
        EXPECT_TRUE(editor.Silent());
        EXPECT_EQ(editor.txtBox.BackColor.get(), 0xe0e0e0U);
        editor.setModified(true);
        messenger.RequestChanges(kModifiedEditors);
        EXPECT_THAT(messenger.bookings, IsEmpty());
    }
}

TEST_F(TextEditDataTest, AParameterThatBecomesWritableIsUnlockedAndStaysSilent)
{
    load({{"access", "read"}});
    load();
    EXPECT_FALSE(editor.Locked());
    EXPECT_EQ(editor.txtBox.BackColor.get(), 0xffffffU);
    EXPECT_TRUE(editor.Silent());
}

TEST_F(TextEditDataTest, EverySetterRaisesChangeAtItsEndAlsoForTheSameText)
{
    load();
    documents::writeAttribute(parameter(), "synchronised", "1");
    const auto imported = datafile(parameterXml({}));
    editor.setOfflineData(parameter());
    EXPECT_THAT(changes, ElementsAre("5.0"));
    editor.setOnlineData(itemNode("bar", "5"));
    EXPECT_THAT(changes, ElementsAre("5.0", "5.0"));
    editor.setLocalData(itemNode("bar", "5.0"));
    EXPECT_THAT(changes, ElementsAre("5.0", "5.0", "5.0"));
    editor.setImportData(documents::findParameter(imported, "travel"));
    EXPECT_THAT(changes, ElementsAre("5.0", "5.0", "5.0", "5.0"));
}

TEST_F(TextEditDataTest, TheSameTextFromElsewhereIsAnEditAndFromTheDeviceIsNone)
{
    load();
    editor.setLocalData(itemNode("bar", "5.0"));
    EXPECT_TRUE(editor.Modified());
    editor.setOnlineData(itemNode("bar", "5"));
    EXPECT_FALSE(editor.Modified());
    const auto imported = datafile(parameterXml({}));
    editor.setImportData(documents::findParameter(imported, "travel"));
    EXPECT_TRUE(editor.Modified());
    EXPECT_THAT(states(),
                ElementsAre(state("edited"), state("original"), state("sync"), state("edited")));
}

TEST_F(TextEditDataTest, WriteInAnyLetterCaseUnlocks)
{
    load({{"access", "WRITE only"}});
    EXPECT_FALSE(editor.Locked());
    EXPECT_EQ(editor.txtBox.BackColor.get(), 0xffffffU);
}

} // namespace
} // namespace quill::test
