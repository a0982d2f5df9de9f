// How the text editor takes values from documents, and how its states move.

#include "text_editor_fixture.h"

namespace quill::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

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

} // namespace
} // namespace quill::test
