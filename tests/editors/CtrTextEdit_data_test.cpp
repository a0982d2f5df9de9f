// How the text editor takes values from documents, in which units it shows them, how its states
// move, and how it gives its value back.

#include "text_editor_fixture.h"

namespace quill::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class TextEditDataTest : public TextEditorTest {
protected:
    using TextEditorTest::TextEditorTest;
    void useConverter(const std::string& display = "psi")
    {
        messenger.converter              = &converter;
        converter.displayUnits["travel"] = display;
    }
    void loadQuietly(const Attributes& given)
    {
        document = datafile(parameterXml(given));
        messenger.clear();
        changes.clear();
        editor.setOfflineData(parameter());
    }
};

class TextEditDataCommaTest : public TextEditDataTest {
protected:
    TextEditDataCommaTest() : TextEditDataTest(",") {}
    CtrTextEdit commaEditor{page, {.Name = "comma", .Tag = "ctr_travel"}};
};

// --- setOfflineData ---------------------------------------------------------------------------

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

// --- setOnlineData ----------------------------------------------------------------------------

TEST_F(TextEditDataTest, AnOnlineValueReplacesAnEditAndIsInStep)
{
    load({{"synchronised", "0"}});
    editor.setOnlineData(itemNode("bar", "4"));
    EXPECT_EQ(editor.Text(), "4.0");
    EXPECT_FALSE(editor.Modified());
    EXPECT_THAT(states(), ElementsAre(state("original"), state("sync")));
    EXPECT_EQ(changes.back(), "4.0");
    EXPECT_FALSE(editor.allowEmpty());
}

TEST_F(TextEditDataTest, AValueInStepIsReportedAgainAndAgain)
{
    load();
    editor.setOnlineData(itemNode("bar", "4"));
    editor.setOnlineData(itemNode("bar", "4"));
    EXPECT_THAT(states(), ElementsAre(state("sync"), state("sync")));
}

TEST_F(TextEditDataTest, AValueAfterAnErrorIsInStepAgain)
{
    load();
    editor.handleError("communicationError");
    editor.setOnlineData(itemNode("bar", "4"));
    editor.setOnlineData(itemNode("bar", "4"));
    EXPECT_THAT(states(), ElementsAre(state("syncError"), state("reSync"), state("reSync")));
}

TEST_F(TextEditDataTest, TheUnitOfTheMessageWinsAndIsLogged)
{
    useConverter("kPa");
    load();
    editor.setOnlineData(itemNode("psi", "14.5038"));
    EXPECT_EQ(editor.Unit(), "psi"); // no way from psi to kPa here: shown as it came
    EXPECT_EQ(editor.Text(), "14.5");
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                Contains("WriteLog(84, ctr_travel viestin yksikkö psi <> bar Datafilessä!\r\n"
                         "Käytän VIESTIN yksikköä psi)"));
    EXPECT_EQ(editor.messageUnit(), "bar");
}

TEST_F(TextEditDataTest, AMessageInAnotherUnitIsConvertedToTheVisibleOne)
{
    messenger.converter = &converter;
    load();
    editor.setOnlineData(itemNode("psi", "29.0076"));
    EXPECT_EQ(editor.Unit(), "bar");
    EXPECT_EQ(editor.Text(), "2.0");
}

TEST_F(TextEditDataTest, AMessageWithoutUnitIsInTheDatafilesUnitAndLogged)
{
    for (const char* unit : {"noUnit", ""}) {
        load();
        editor.setOnlineData(itemNode(unit, "3"));
        EXPECT_EQ(editor.Text(), "3.0");
        EXPECT_EQ(editor.Unit(), "bar");
        EXPECT_THAT(messenger.callsTo("WriteLog"),
                    ElementsAre(std::string("WriteLog(84, ctr_travel viestin yksikkö ") + unit +
                                " <> bar Datafilessä!\r\nKäytän Datafilen yksikköä bar)"));
    }
}

TEST_F(TextEditDataTest, ASecondUnitIsTriedUnderTheWholeTag)
{
    messenger.converter                  = &converter;
    converter.displayUnits["ctr_travel"] = "m";
    converter.add("mm", "m", 0.001);
    load();
    editor.setOnlineData(itemNode("mm", "2500"));
    EXPECT_EQ(editor.Unit(), "m");
    EXPECT_EQ(editor.Text(), "2.5");
}

TEST_F(TextEditDataTest, NaNFromTheDeviceIsShownAndWrongUntilTheNextValue)
{
    messenger.converter = &converter;
    load();
    editor.setOnlineData(itemNode("psi", "NaN"));
    EXPECT_EQ(editor.Text(), "NaN");
    EXPECT_EQ(editor.Unit(), "bar");
    EXPECT_FALSE(editor.Correct());
    EXPECT_EQ(converter.conversions, 0);
    editor.setOnlineData(itemNode("bar", "3"));
    EXPECT_TRUE(editor.Correct());
}

TEST_F(TextEditDataTest, MinusInfFromTheDeviceKeepsTheUnit)
{
    messenger.converter = &converter;
    load();
    editor.setOnlineData(itemNode("furlong", "-Inf"));
    EXPECT_EQ(editor.Text(), "-Inf");
    EXPECT_EQ(editor.Unit(), "bar");
    EXPECT_FALSE(messenger.wasCalled("WriteLog"));
}

TEST_F(TextEditDataTest, AParameterWithoutUnitTakesNoneFromAMessage)
{
    messenger.converter = &converter;
    load({{"unit", ""}});
    editor.setOnlineData(itemNode("bar", "4"));
    EXPECT_EQ(editor.Text(), "4.0");
    EXPECT_EQ(editor.Unit(), "");
    EXPECT_FALSE(messenger.wasCalled("WriteLog"));
}

TEST_F(TextEditDataTest, AnItemWithoutItsValueIsReportedAndLeavesAnEmptyBox)
{
    load({{"unit", ""}});
    editor.setOnlineData(itemNode("noUnit", "3", "integerVal"));
    EXPECT_EQ(editor.Text(), "");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("TextEdit ctr_travel setOnlineData, 91")));
    EXPECT_THAT(states(), Contains(state("sync")));
}

TEST_F(TextEditDataTest, ASecondUnitWithNoWayEitherLeavesTheMessagesOwn)
{
    messenger.converter                  = &converter;
    converter.displayUnits["ctr_travel"] = "mbar"; // no way from "mm" to it
    load();
    editor.setOnlineData(itemNode("mm", "2.5"));
    EXPECT_EQ(editor.Unit(), "mm");
    EXPECT_EQ(editor.Text(), "2.5");
}

// --- setLocalData -----------------------------------------------------------------------------

TEST_F(TextEditDataTest, ALocalValueIsAnUnsavedEdit)
{
    load();
    editor.setLocalData(itemNode("bar", "4"));
    EXPECT_EQ(editor.Text(), "4");
    EXPECT_TRUE(editor.Modified());
    EXPECT_TRUE(editor.allowEmpty());
    EXPECT_EQ(editor.originalText(), "5.0");
    EXPECT_THAT(states(), ElementsAre(state("edited")));
}

TEST_F(TextEditDataTest, ALocalValueWithoutUnitIsTakenSilently)
{
    load();
    editor.setLocalData(itemNode("noUnit", "4"));
    EXPECT_THAT(messenger.callsTo("WriteLog"), IsEmpty());
    editor.setLocalData(itemNode("mbar", "4"));
    EXPECT_THAT(messenger.callsTo("WriteLog"), Not(IsEmpty()));
}

TEST_F(TextEditDataTest, ALocalValueIsConvertedToTheVisibleUnitAndDoesNotSync)
{
    useConverter("kPa");
    load({{"synchronised", "2"}});
    editor.setLocalData(itemNode("", "2.5"));
    EXPECT_EQ(editor.Text(), "250");
    EXPECT_FALSE(editor.hasSynced());
    EXPECT_EQ(editor.syncState(), "syncError");
}

// --- setImportData ----------------------------------------------------------------------------

TEST_F(TextEditDataTest, AnImportedValueIsAnUnsavedEditInTheVisibleUnit)
{
    useConverter("kPa");
    load();
    const auto imported = datafile(parameterXml({{"value", "2.5"}}));
    editor.setImportData(documents::findParameter(imported, "travel"));
    EXPECT_EQ(editor.Text(), "250.0");
    EXPECT_TRUE(editor.Modified());
    EXPECT_THAT(states(), ElementsAre(state("edited")));
    EXPECT_EQ(stored("value"), "2.5");
}

TEST_F(TextEditDataTest, AnImportThatCannotBeConvertedIsShownInTheParametersUnit)
{
    useConverter("kPa");
    load();
    editor.lblUnit.Caption = "furlong";
    const auto imported    = datafile(parameterXml({{"value", "2.5"}}));
    editor.setImportData(documents::findParameter(imported, "travel"));
    EXPECT_EQ(editor.Text(), "2.5");
    EXPECT_EQ(editor.Unit(), "bar");
}

TEST_F(TextEditDataTest, AnImportWithoutAConverterShowsTheParametersUnit)
{
    load();
    editor.lblUnit.Caption = "";
    const auto imported    = datafile(parameterXml({{"value", "2.54"}}));
    editor.setImportData(documents::findParameter(imported, "travel"));
    EXPECT_EQ(editor.Text(), "2.5");
    EXPECT_EQ(editor.Unit(), "bar");
}

TEST_F(TextEditDataTest, AnImportedPercentageIsShownAsItIs)
{
    useConverter("kPa");
    load({{"unit", "%"}});
    const auto imported = datafile(parameterXml({{"value", "2.54"}}));
    editor.setImportData(documents::findParameter(imported, "travel"));
    EXPECT_EQ(editor.Text(), "2.5");
    EXPECT_EQ(editor.Unit(), "%");
    EXPECT_EQ(converter.conversions, 0);
}

TEST_F(TextEditDataTest, AnImportIsNotConvertedToAPlainNumberNorFromAPercentage)
{
    messenger.converter = &converter;
    converter.add("bar", "noUnit", 2);
    converter.add("%", "bar", 2);
    const auto imported = datafile(parameterXml({{"value", "2.5"}}));
    load();
    editor.lblUnit.Caption = "";
    editor.setImportData(documents::findParameter(imported, "travel"));
    EXPECT_EQ(editor.Text(), "2.5");
    EXPECT_EQ(editor.Unit(), "bar");
    load({{"unit", "%"}});
    editor.lblUnit.Caption = "bar";
    editor.setImportData(documents::findParameter(imported, "travel"));
    EXPECT_EQ(editor.Text(), "2.5");
    EXPECT_EQ(editor.Unit(), "%");
}

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

// --- Giving values back -----------------------------------------------------------------------

TEST_F(TextEditDataTest, TheItemCarriesNameUnitAndValueInDocumentForm)
{
    useConverter("kPa");
    load();
    type("250");
    EXPECT_EQ(editor.GetXmlItem(false).get_xml(),
              R"(<item name="travel" unit="bar"><floatVal>2.5</floatVal></item>)");
}

TEST_F(TextEditDataTest, AnEmptyOrWrongTextGivesAnItemByForceOnly)
{
    load();
    type("");
    EXPECT_FALSE(editor.GetXmlItem(false));
    EXPECT_EQ(editor.GetXmlItem(true).get_xml(),
              R"(<item name="travel" unit="bar"><floatVal/></item>)");
    type("x");
    EXPECT_FALSE(editor.GetXmlItem(false));
    EXPECT_EQ(editor.GetXmlItem(true).get_xml(),
              R"(<item name="travel" unit="bar"><floatVal>x</floatVal></item>)");
}

TEST_F(TextEditDataTest, WithoutTypeOrTagTheItemDocumentIsEmpty)
{
    EXPECT_TRUE(editor.getXmlItem());
    EXPECT_FALSE(editor.getXmlItem().get_documentElement());
    load();
    editor.Tag = "";
    EXPECT_FALSE(editor.getXmlItem().get_documentElement());
}

TEST_F(TextEditDataTest, AUnitThatCannotBeConvertedBecomesTheUnitOfTheMessage)
{
    useConverter("bar");
    load();
    editor.lblUnit.Caption = "furlong";
    messenger.clear();
    EXPECT_EQ(editor.FormatForCommunication("3"), "3");
    EXPECT_EQ(editor.messageUnit(), "furlong");
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre("WriteLog(84, CtrTextEdit ctr_travel unable to convert furlong to bar)",
                            "WriteLog(84, CtrTextEdit ctr_travel changing GUI unit into message  "
                            "furlong)"));
    EXPECT_THAT(editor.getXmlItem().get_xml(), HasSubstr("unit=\"furlong\""));
}

TEST_F(TextEditDataTest, AVisiblePercentageGoesOutUnconverted)
{
    useConverter("bar");
    load();
    editor.lblUnit.Caption = "% of range";
    EXPECT_EQ(editor.FormatForCommunication("3"), "3");
    EXPECT_EQ(editor.messageUnit(), "bar");
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(TextEditDataTest, InfIsReportedAndStays)
{
    useConverter("kPa");
    load();
    EXPECT_EQ(editor.FormatForCommunication("-Inf"), "-Inf");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("TextEdit ctr_travel FormatForCommunication, 13")));
    messenger.clear();
    EXPECT_EQ(editor.FormatForCommunication("NaN"), "NaN");
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_EQ(editor.FormatForCommunication(""), "");
    EXPECT_EQ(editor.messageUnit(), "bar");
}

TEST_F(TextEditDataTest, BooksItselfByScope)
{
    translator.texts["ctr_travel"] = "Travel";
    editor.Localize(translator);
    load();
    editor.setContextTag("limits");
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
    messenger.RequestChanges(kAllEditors);
    type("7");
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.callsTo("BookChange"),
                ElementsAre("BookChange(ctr_travel, Travel, 5.0, 5.0, , floatVal, limits)",
                            "BookChange(ctr_travel, Travel, 5.0, 7, , floatVal, limits)"));
    editor.setContextTag("");
    messenger.clear();
    messenger.RequestChanges(kAllEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
}

TEST_F(TextEditDataTest, AWrongOrSilentEditorBooksNothing)
{
    load();
    editor.setContextTag("limits");
    type("x");
    messenger.RequestChanges(kModifiedEditors);
    type("7");
    editor.setSilent(true);
    messenger.RequestChanges(kModifiedEditors);
    messenger.RequestChanges(kAllEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
}

// --- handleError ------------------------------------------------------------------------------

TEST_F(TextEditDataTest, AMissingItemIsAWrongEdit)
{
    for (const char* code : {"missingItems", "commandIsNotImplemented"}) {
        load();
        editor.handleError(code);
        EXPECT_TRUE(editor.Modified());
        EXPECT_FALSE(editor.Correct());
        EXPECT_EQ(editor.txtBox.ForeColor.get(), 255U);
        EXPECT_THAT(states(), ElementsAre(state("edited"), state("editedError")));
        editor.setOnlineData(itemNode("bar", "6"));
        editor.setOnlineData(itemNode("bar", "5"));
        EXPECT_EQ(editor.changeState(), "original");
    }
}

TEST_F(TextEditDataTest, ARefusalOfTheDeviceCountsAsInStep)
{
    for (const char* code :
         {"hartCmdErrSuspiciousCalibration", "hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed"}) {
        load();
        type("7");
        messenger.clear();
        editor.handleError(code);
        EXPECT_FALSE(editor.Modified());
        EXPECT_THAT(states(), ElementsAre(state("original"), state("sync")));
    }
}

TEST_F(TextEditDataTest, OtherErrorsDoNothing)
{
    load();
    editor.handleError("errCommunicationError");
    editor.handleError("");
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(TextEditDataTest, ACommunicationErrorEndsTheStepWithTheDevice)
{
    load();
    EXPECT_TRUE(editor.hasSynced());
    type("7");
    messenger.clear();
    editor.handleError("communicationError");
    EXPECT_FALSE(editor.hasSynced());
    EXPECT_TRUE(editor.Modified());
    EXPECT_THAT(states(), ElementsAre(state("syncError")));
    editor.handleError("communicationError");
    EXPECT_THAT(states(), ElementsAre(state("syncError"), state("syncError")));
}

TEST_F(TextEditDataTest, ALabelThatCannotBeTranslatedIsReportedAndTheOldOneStays)
{
    translator.texts["ctr_travel"] = "Travel";
    editor.Localize(translator);
    translator.failingKey = "ctr_travel";
    editor.Localize(translator);
    EXPECT_EQ(editor.labelText(), "Travel");
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("TextEdit ctr_travel Localize, 5")));
}

// --- Faults -----------------------------------------------------------------------------------

TEST_F(TextEditDataTest, EachMissingAttributeIsReportedAndTheRestIsAsWithoutTheFault)
{
    for (const char* missing :
         {"type", "value", "minVal", "maxVal", "decimals", "unit", "synchronised", "access"}) {
        SCOPED_TRACE(missing);
        CtrTextEdit victim{page, {.Name = "victim", .Tag = "ctr_travel"}};
        CtrTextEdit bystander{page, {.Name = "bystander", .Tag = "ctr_other"}};
        victim.SetMessenger(&messenger);
        bystander.SetMessenger(&messenger);
        document = datafile(parameterXml({{missing, "-"}}) + parameterXml({{"name", "other"}}));
        messenger.clear();
        page.SetMessenger(&messenger);
        messenger.clear();
        page.SetOfflineData(document);
        EXPECT_THAT(messenger.errors(),
                    Contains(HasSubstr("TextEdit ctr_travel setOfflineData, 91")));
        EXPECT_EQ(bystander.Text(), "5.0");
        EXPECT_EQ(bystander.Unit(), "bar");
        EXPECT_FALSE(bystander.Modified());
        victim.txtBox.type("6");
        EXPECT_EQ(victim.Locked(), std::string(missing) == "access");
    }
}

TEST_F(TextEditDataTest, AMessengerThatThrowsCostsNoValueAndNoEdit)
{
    for (const char* operation :
         {"SetParameterState", "GetUnitConverter", "WriteLog", "ReportError"}) {
        SCOPED_TRACE(operation);
        messenger.stopFailing();
        messenger.failOn(operation);
        load();
        EXPECT_EQ(editor.Text(), "5.0");
        type("7");
        EXPECT_EQ(stored("value"), "7");
        editor.setOnlineData(itemNode("noUnit", "8"));
        EXPECT_EQ(editor.Text(), "8.0");
        EXPECT_FALSE(editor.Modified());
    }
}

TEST_F(TextEditDataTest, AConverterThatThrowsLeavesTheDatafilesUnit)
{
    useConverter("kPa");
    converter.failing = true;
    load();
    EXPECT_EQ(editor.Text(), "5.0");
    EXPECT_EQ(editor.Unit(), "bar");
}

TEST_F(TextEditDataCommaTest, NumbersAreShownWithTheLocalesSeparatorAndKeptWithAPoint)
{
    commaEditor.SetMessenger(&messenger);
    messenger.converter              = &converter;
    converter.displayUnits["travel"] = "kPa";
    document                         = datafile(parameterXml({{"value", "1.234"}}));
    commaEditor.setOfflineData(parameter());
    EXPECT_EQ(commaEditor.Text(), "123,4");
    commaEditor.setOnlineData(itemNode("kPa", "150.5"));
    EXPECT_EQ(commaEditor.Text(), "150,5");
    EXPECT_EQ(stored("value"), "1.505");
    commaEditor.setLocalData(itemNode("kPa", "99.5"));
    EXPECT_EQ(commaEditor.Text(), "99,5");
    EXPECT_TRUE(commaEditor.Correct());
    EXPECT_THAT(commaEditor.getXmlItem().get_xml(), HasSubstr("<floatVal>0.995</floatVal>"));
}

} // namespace
} // namespace quill::test
