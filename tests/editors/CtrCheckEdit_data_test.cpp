// How the check editor takes values from documents and gives its own back.

#include "check_editor_fixture.h"

namespace quill {
namespace {

using namespace test;
using platform::UserDoor;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class CheckEditData : public CheckEditTest {};

// --- Values from the datafile -----------------------------------------------------------------

TEST_F(CheckEditData, InStepReportsOnlyWhatTheDeviceHasGiven)
{
    load("5", "1");
    EXPECT_THAT(rows(), ElementsAre("x", "x", "o"));
    EXPECT_EQ(edit.originalValue(), "5");
    EXPECT_FALSE(edit.hasSynced());
    EXPECT_THAT(messenger.calls, IsEmpty());

    edit.setOnlineData(online("4"));
    messenger.clear();
    load("5", "1");
    EXPECT_THAT(messenger.actions(), ElementsAre(state("sync")));
}

TEST_F(CheckEditData, InStepTakesAnEditBack)
{
    loadQuietly("5");
    click(1);
    messenger.clear();
    load("4", "1");
    EXPECT_THAT(rows(), ElementsAre("o", "x", "o"));
    EXPECT_THAT(messenger.actions(), ElementsAre(state("original"), state("original")));
}

TEST_F(CheckEditData, ACommunicationErrorAtLoadShowsTheChecksAlone)
{
    load("5", "2");
    EXPECT_THAT(rows(), ElementsAre("x", "x", "o"));
    EXPECT_EQ(edit.syncState(), "notRead");
    EXPECT_EQ(edit.originalValue(), "");
    EXPECT_THAT(messenger.calls, IsEmpty());
    // No row has a flag yet.
    edit.ShowChecks("5", CtrCheckEdit::kCompare);
    EXPECT_THAT(rows(), ElementsAre("*x", "*x", "o"));
}

TEST_F(CheckEditData, OutOfStepComesUpModifiedUnlessEmpty)
{
    load("5", "0");
    EXPECT_THAT(rows(), ElementsAre("*x", "*x", "*o"));
    EXPECT_THAT(messenger.actions(),
                ElementsAre(state("edited"), state("edited"), state("edited"), state("edited")));
    EXPECT_EQ(attribute("value"), "5");

    CtrCheckEdit other{frame, {.Name = "other", .Tag = "ctr_alarms"}};
    other.SetMessenger(&messenger);
    give("", "0");
    messenger.clear();
    other.SetMappings(mappedParam());
    other.setOfflineData(parameter());
    EXPECT_FALSE(other.Modified());
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CheckEditData, AValueThatIsNoByteCostsTheRowsAlone)
{
    load("many", "0");
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(rows(), ElementsAre("o", "o", "o"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(CtrCheckEdit ShowChecks, 13,")));
    EXPECT_EQ(edit.valueType(), "bitEnumVal");
    EXPECT_TRUE(edit.scgCheck.Editable);
}

TEST_F(CheckEditData, AnotherListLeavesNothingOfTheOldValueToBeSent)
{
    loadQuietly("133", "1");
    load("", "0", R"(<data:mapping value="1" name="low"/>)");
    EXPECT_THAT(rows(), ElementsAre("o"));
    EXPECT_FALSE(edit.GetXmlItem(false)) << "nothing is shown";
    EXPECT_EQ(edit.originalValue(), "");
    click(1);
    EXPECT_THAT(edit.GetXmlItem(false).get_xml(), HasSubstr("<bitEnumVal>1</bitEnumVal>"));
}

TEST_F(CheckEditData, StaysBoundToItsFirstParameter)
{
    load("5");
    const auto first = datafile;
    load("1");
    click(3);
    EXPECT_EQ(attribute("value"), "1");
    EXPECT_EQ(documents::attributeText(documents::findParameter(first, "alarms"), "value"), "133");
}

TEST_F(CheckEditData, DoesNothingForAnEmptyNode)
{
    loadQuietly();
    expectThatEmptyNodesDoNothing();
    EXPECT_THAT(rows(), ElementsAre("x", "x", "o"));
}

class CheckEditWithout : public CheckEditTest, public testing::WithParamInterface<const char*> {};

TEST_P(CheckEditWithout, AnAttributeGoesOn)
{
    give("5", "1");
    edit.SetMappings(mappedParam());
    parameter().get_attributes().removeNamedItem(GetParam());
    EXPECT_TRUE(edit.setOfflineData(parameter()));
    const std::string missing = GetParam();
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Check ctr_alarms setOfflineData, 91,")));
    EXPECT_EQ(rows()[0], missing == "value" ? "o" : missing == "synchronised" ? "*x" : "x");
    EXPECT_EQ(edit.scgCheck.Editable, missing != "access");
}

INSTANTIATE_TEST_SUITE_P(Attributes, CheckEditWithout,
                         testing::Values("type", "value", "synchronised", "access"));

TEST_F(CheckEditData, IsReadOnlyWhereTheAccessSaysNoWrite)
{
    load("5", "0", kBits, "bitEnumVal", "read");
    EXPECT_FALSE(edit.scgCheck.Editable);
    EXPECT_EQ(edit.scgCheck.BackColor, editorColors::kGrey);
    EXPECT_EQ(edit.scgCheck.cell(2, 2).BackColor, editorColors::kGrey);
    EXPECT_TRUE(edit.Silent());
    click(1);
    EXPECT_EQ(edit.scgCheck.edit(1, 2, 0), UserDoor::refused);
    EXPECT_THAT(rows(), ElementsAre("*x", "*x", "*o"));
    EXPECT_EQ(attribute("value"), "5");
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
    edit.setEnabled(false); // has no say while silent and locked
    EXPECT_TRUE(edit.Enabled());

    load("5", "1", kBits, "bitEnumVal", "reAdWrIteOffline");
    EXPECT_TRUE(edit.scgCheck.Editable);
    EXPECT_EQ(edit.scgCheck.BackColor, editorColors::kWhite);
    EXPECT_EQ(click(1), UserDoor::done);
    EXPECT_THAT(rows(), ElementsAre("*o", "x", "o"));
}

// --- Values from the device and from an import ------------------------------------------------

TEST_F(CheckEditData, TakesAValueFromTheDevice)
{
    loadQuietly("5", "0");
    EXPECT_TRUE(edit.setOnlineData(online("132")));
    EXPECT_THAT(rows(), ElementsAre("o", "x", "x"));
    EXPECT_EQ(edit.originalValue(), "132");
    EXPECT_TRUE(edit.hasSynced());
    EXPECT_THAT(messenger.actions(),
                ElementsAre(state("original"), state("original"), state("original"),
                            state("original"), state("sync")));
    EXPECT_EQ(attribute("value"), "5");
}

TEST_F(CheckEditData, WhatIsSentIsWhatIsShownWhateverTheDatafileHolds)
{
    loadQuietly("0");
    edit.setOnlineData(online("5"));
    click(3);
    EXPECT_EQ(attribute("value"), "128");
    EXPECT_THAT(edit.GetXmlItem(false).get_xml(), HasSubstr("<bitEnumVal>133</bitEnumVal>"));
}

TEST_F(CheckEditData, ReportsAnItemWithoutItsValue)
{
    loadQuietly("5", "0");
    EXPECT_TRUE(edit.setOnlineData(online("132", "stringVal")));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Check ctr_alarms setOnlineData, 91,")));
    EXPECT_THAT(rows(), ElementsAre("*x", "*x", "*o"));
    EXPECT_EQ(edit.syncState(), "sync");
}

TEST_F(CheckEditData, EveryFurtherValueIsReportedAsInStep)
{
    loadQuietly("5");
    edit.setOnlineData(online("5"));
    edit.setOnlineData(online("5"));
    EXPECT_THAT(messenger.actions(), ElementsAre(state("sync"), state("sync")));
}

TEST_F(CheckEditData, IgnoresErrors)
{
    loadQuietly("5");
    for (const char* code : {"communicationError", "missingItems", ""}) {
        edit.handleError(code);
    }
    EXPECT_THAT(messenger.calls, IsEmpty());
    EXPECT_EQ(edit.syncState(), "notRead");
}

TEST_F(CheckEditData, TakesAnImportAsAnUnsavedEdit)
{
    loadQuietly("5");
    const auto loaded = datafile;
    give("129", "1");
    EXPECT_TRUE(edit.setImportData(parameter()));
    EXPECT_THAT(rows(), ElementsAre("*x", "*o", "*x"));
    EXPECT_EQ(edit.originalValue(), "5");
    EXPECT_THAT(messenger.actions(),
                ElementsAre(state("edited"), state("edited"), state("edited"), state("edited")));
    EXPECT_EQ(documents::attributeText(documents::findParameter(loaded, "alarms"), "value"), "5");
    EXPECT_THAT(edit.GetXmlItem(false).get_xml(), HasSubstr("<bitEnumVal>129</bitEnumVal>"));
}

TEST_F(CheckEditData, AnImportWithoutAValueIsReportedAndChangesNothing)
{
    loadQuietly("5");
    give("129", "1");
    parameter().get_attributes().removeNamedItem("value");
    EXPECT_TRUE(edit.setImportData(parameter()));
    EXPECT_THAT(rows(), ElementsAre("x", "x", "o"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Check ctr_alarms setImportData, 91,")));
}

// --- Items and bookings -----------------------------------------------------------------------

TEST_F(CheckEditData, TheItemCarriesTheByte)
{
    load("05");
    EXPECT_EQ(edit.GetXmlItem(false).get_xml(),
              R"(<item name="alarms" unit="noUnit"><bitEnumVal>5</bitEnumVal></item>)");
    edit.Tag = "";
    EXPECT_FALSE(edit.GetXmlItem(true).get_documentElement());
}

TEST_F(CheckEditData, GivesNoItemWithoutAValueUnlessForced)
{
    load("");
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_THAT(edit.GetXmlItem(true).get_xml(), HasSubstr("<bitEnumVal/>"));
}

TEST_F(CheckEditData, BooksTheTranslatedNamesOfTheCheckedRows)
{
    load("5");
    edit.setContextTag("group");
    click(1);
    click(3);
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.callsTo("BookChange"),
                ElementsAre("BookChange(ctr_alarms, T-ctr_alarms, T-low, T-high, T-high, "
                            "T-travel, , bitEnumVal, group)"));
    ASSERT_EQ(messenger.bookings.size(), 1U);
    EXPECT_EQ(messenger.bookings[0].editor, &edit);
    EXPECT_EQ(messenger.bookings[0].oldText, "T-low, T-high");
    EXPECT_EQ(messenger.bookings[0].newText, "T-high, T-travel");
    EXPECT_EQ(messenger.bookings[0].extra, "");
}

TEST_F(CheckEditData, BooksNoneWhereNoRowIsChecked)
{
    load("1", "0");
    messenger.RequestChanges(kModifiedEditors);
    ASSERT_EQ(messenger.bookings.size(), 1U);
    EXPECT_EQ(messenger.bookings[0].oldText, "T-none");
    EXPECT_EQ(messenger.bookings[0].newText, "T-low");
    translator.texts["none"] = "Err:none";
    translator.texts["low"]  = "Err:low";
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_EQ(messenger.bookings[1].oldText, "none");
    EXPECT_EQ(messenger.bookings[1].newText, "low");
}

TEST_F(CheckEditData, BooksByScopeAndNotWhileSilent)
{
    load("5");
    expectBookingsByScopeAndNotWhileSilent();
}

TEST_F(CheckEditData, BooksByNameWithoutATranslator)
{
    load("5", "0");
    edit.Localize(translator);
    messenger.translator = nullptr;
    messenger.RequestChanges(kModifiedEditors);
    ASSERT_EQ(messenger.bookings.size(), 1U);
    EXPECT_EQ(messenger.bookings[0].label, "T-ctr_alarms");
    EXPECT_EQ(messenger.bookings[0].newText, "low, high");
    EXPECT_THAT(
        messenger.errors(),
        ElementsAre(HasSubstr("ReportError(Check ctr_alarms mMessenger_ViewGetChanges, 91,")));
}

TEST_F(CheckEditData, IsServedByAPage)
{
    TestPage     page{{.Name = "page", .Tag = "page"}};
    CtrCheckEdit check{page, {.Name = "alarms", .Tag = "ctr_limitAlarms"}};
    page.SetMessenger(&messenger);
    page.Localize(translator);
    const auto file = test::datafile(
        R"(<data:parameter name="limitAlarms" type="bitEnumVal" value="5" access="readWrite" )"
        R"(synchronised="1"/>)",
        "<data:mappedParam name=\"alarms\">" + std::string(kBits) + "</data:mappedParam>",
        R"(<data:requestGroup name="group"><data:includedParam name="limitAlarms"/>)"
        R"(</data:requestGroup>)");
    page.SetOfflineData(file);
    EXPECT_EQ(check.scgCheck.cell(2, 2).Text, "T-high");
    EXPECT_EQ(check.scgCheck.cell(2, 2).Value, 1);
    EXPECT_EQ(check.ContextTag(), "group");
    page.SetOnlineData(
        test::okResponse("group", test::item("limitAlarms", "noUnit", "bitEnumVal", "1")));
    EXPECT_EQ(check.scgCheck.cell(2, 2).Value, 0);
    page.SetImportData(file);
    EXPECT_EQ(check.scgCheck.cell(2, 2).Value, 1);
    EXPECT_TRUE(check.Modified());
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

} // namespace
} // namespace quill
