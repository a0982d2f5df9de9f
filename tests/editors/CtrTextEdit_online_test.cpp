// How the text editor takes values from the device and from an import, and what errors do to it.

#include "text_editor_fixture.h"

namespace quill::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

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
