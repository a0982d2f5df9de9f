// How the option editor takes values from documents and gives its own back.

#include "option_editor_fixture.h"

namespace quill {
namespace {

using namespace test;
using platform::UserDoor;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class OptionEditData : public OptionEditTest {};

// --- Values from the datafile -----------------------------------------------------------------

TEST_F(OptionEditData, InStepReportsOnlyWhatTheDeviceHasGiven)
{
    load("1", "1");
    EXPECT_EQ(edit.Selected(), "1");
    EXPECT_FALSE(edit.Modified());
    EXPECT_FALSE(edit.hasSynced());
    EXPECT_EQ(edit.originalText(), "1");
    EXPECT_THAT(changes, ElementsAre("on"));
    EXPECT_THAT(messenger.calls, IsEmpty());

    edit.setOnlineData(online("7"));
    forget();
    load("7", "1");
    EXPECT_THAT(messenger.actions(), ElementsAre(state("sync")));
}

TEST_F(OptionEditData, InStepTakesAnEditBack)
{
    loadQuietly("1");
    edit.Option(2).click();
    forget();
    load("0", "1");
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(messenger.actions(), ElementsAre(state("original")));
    EXPECT_EQ(edit.originalText(), "0");
}

TEST_F(OptionEditData, WithACommunicationErrorAtLoad)
{
    load("1", "2");
    EXPECT_EQ(edit.Selected(), "1");
    EXPECT_FALSE(edit.Modified());
    EXPECT_FALSE(edit.hasSynced());
    EXPECT_THAT(messenger.actions(), ElementsAre(state("syncError")));
}

TEST_F(OptionEditData, OutOfStepComesUpModifiedUnlessEmpty)
{
    load("1", "0");
    EXPECT_TRUE(edit.Modified());
    EXPECT_THAT(messenger.actions(), ElementsAre(state("edited")));
    EXPECT_EQ(edit.originalText(), "");
    forget();
    load("", "0");
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(messenger.actions(), ElementsAre(state("original")));
    forget();
    load("9", "other");
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.Selected(), "");
    EXPECT_THAT(changes, ElementsAre(""));
    EXPECT_EQ(attribute("value"), "9");
}

TEST_F(OptionEditData, AValueMayBeGivenByName)
{
    load("auto", "1", kModes, "stringVal");
    EXPECT_EQ(edit.Selected(), "7");
    EXPECT_THAT(changes, ElementsAre("auto"));
}

TEST_F(OptionEditData, ANumberIsLookedUpByNameInItsWholeForm)
{
    load("1.0", "1", R"(<data:mapping value="5" name="1"/>)", "floatVal");
    EXPECT_EQ(edit.Selected(), "5");
}

TEST_F(OptionEditData, AValueBeforeAnyListShowsNothing)
{
    give("1", "1");
    edit.setOfflineData(parameter());
    EXPECT_EQ(edit.Selected(), "");
    EXPECT_THAT(changes, ElementsAre(""));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(OptionEditData, StaysBoundToItsFirstParameter)
{
    load("1");
    const auto first = datafile;
    load("0");
    edit.Option(2).click();
    EXPECT_EQ(attribute("value"), "0");
    EXPECT_EQ(documents::attributeText(documents::findParameter(first, "mode"), "value"), "7");
}

TEST_F(OptionEditData, DoesNothingForAnEmptyNode)
{
    loadQuietly();
    expectThatEmptyNodesDoNothing();
    EXPECT_EQ(edit.Selected(), "1");
}

class OptionEditWithout : public OptionEditTest, public testing::WithParamInterface<const char*> {};

TEST_P(OptionEditWithout, AnAttributeGoesOn)
{
    give("1", "1");
    edit.SetMappings(mappedParam());
    parameter().get_attributes().removeNamedItem(GetParam());
    EXPECT_TRUE(edit.setOfflineData(parameter()));
    const std::string missing = GetParam();
    // What a parameter says of its access is not needed.
    EXPECT_EQ(messenger.errors().size(), missing == "access" ? 0U : 1U);
    EXPECT_EQ(edit.Selected(), missing == "value" ? "" : "1");
    EXPECT_EQ(edit.Modified(), missing == "synchronised");
    EXPECT_FALSE(edit.Locked());
    EXPECT_EQ(changes.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Attributes, OptionEditWithout,
                         testing::Values("type", "value", "synchronised", "access"));

TEST_F(OptionEditData, IsReadOnlyWhereTheAccessSaysNoWrite)
{
    for (const char* access : {"read", "", "none"}) {
        CtrOptionEdit other{frame, {.Name = "other", .Tag = "ctr_mode"}};
        other.SetMessenger(&messenger);
        give("1", "0", kModes, "integerVal", access);
        other.SetMappings(mappedParam());
        other.setOfflineData(parameter());
        EXPECT_TRUE(other.Locked()) << access;
        EXPECT_TRUE(other.Silent());
        EXPECT_EQ(other.frmOptions.BackColor, editorColors::kGrey);
        EXPECT_EQ(other.Option(2).click(), UserDoor::refused);
        EXPECT_EQ(other.Selected(), "1");
        other.setEnabled(false); // has no say while silent and locked
        EXPECT_TRUE(other.Enabled());
        messenger.RequestChanges(kModifiedEditors);
        EXPECT_THAT(messenger.bookings, IsEmpty());
        // A list that comes later is locked as well.
        other.addOption("manual");
        EXPECT_EQ(other.Option(3).click(), UserDoor::refused);
    }
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(OptionEditData, IsWritableWhereTheAccessSaysSoInAnyCase)
{
    load("1", "1", kModes, "integerVal", "READ");
    load("1", "1", kModes, "integerVal", "reAdWrIteOffline");
    EXPECT_FALSE(edit.Locked());
    EXPECT_EQ(edit.frmOptions.BackColor, editorColors::kWhite);
    EXPECT_EQ(edit.Option(2).click(), UserDoor::done);
}

// --- Values from the device and from an import ------------------------------------------------

TEST_F(OptionEditData, TakesAValueFromTheDevice)
{
    loadQuietly("1", "0");
    EXPECT_TRUE(edit.setOnlineData(online("7")));
    EXPECT_EQ(edit.Selected(), "7");
    EXPECT_FALSE(edit.Modified());
    EXPECT_EQ(edit.originalText(), "7");
    EXPECT_THAT(changes, ElementsAre("auto"));
    EXPECT_THAT(messenger.actions(), ElementsAre(state("original"), state("sync")));
    EXPECT_EQ(attribute("value"), "1");
}

TEST_F(OptionEditData, AValueFromTheDeviceThatNoEntryHasShowsNothing)
{
    loadQuietly("1");
    edit.setOnlineData(online("9"));
    EXPECT_THAT(marked(), IsEmpty());
    EXPECT_THAT(changes, ElementsAre(""));
    EXPECT_FALSE(edit.Modified());
}

TEST_F(OptionEditData, ReportsAnItemWithoutItsValue)
{
    loadQuietly("1");
    EXPECT_TRUE(edit.setOnlineData(online("7", "stringVal")));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Options ctr_mode setOnlineData, 91,")));
    EXPECT_EQ(edit.Selected(), "");
    EXPECT_EQ(edit.syncState(), "sync");
}

TEST_F(OptionEditData, RecoversFromACommunicationError)
{
    loadQuietly("1");
    edit.handleError("communicationError");
    EXPECT_EQ(edit.syncState(), "syncError");
    edit.setOnlineData(online("7"));
    edit.setOnlineData(online("7"));
    EXPECT_THAT(messenger.actions(),
                ElementsAre(state("syncError"), state("reSync"), state("reSync")));
}

TEST_F(OptionEditData, IgnoresOtherErrors)
{
    loadQuietly("1", "0");
    for (const char* code : {"missingItems", "commandIsNotImplemented", "errCommunicationError",
                             "hartCmdErrSuspiciousCalibration",
                             "hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed", ""}) {
        edit.handleError(code);
    }
    EXPECT_TRUE(edit.Modified());
    EXPECT_TRUE(edit.Correct());
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(OptionEditData, TakesAnImportAsAnUnsavedEdit)
{
    loadQuietly("1");
    const auto loaded = datafile;
    give("7", "1");
    EXPECT_TRUE(edit.setImportData(parameter()));
    EXPECT_EQ(edit.Selected(), "7");
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.originalText(), "1");
    EXPECT_THAT(changes, ElementsAre("auto"));
    EXPECT_THAT(messenger.actions(), ElementsAre(state("edited")));
    EXPECT_EQ(documents::attributeText(documents::findParameter(loaded, "mode"), "value"), "1");
    edit.Option(1).click();
    EXPECT_FALSE(edit.Modified());
}

// --- Items and bookings -----------------------------------------------------------------------

TEST_F(OptionEditData, TheItemCarriesTheValueOfTheChosenEntry)
{
    load("1");
    edit.Localize(translator);
    edit.Option(2).click();
    EXPECT_EQ(edit.GetXmlItem(false).get_xml(),
              R"(<item name="mode" unit="noUnit"><integerVal>7</integerVal></item>)");
}

TEST_F(OptionEditData, GivesNoItemForNothingOrWhatIsWrong)
{
    EXPECT_FALSE(edit.GetXmlItem(false));
    load("9");
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_THAT(edit.GetXmlItem(true).get_xml(), HasSubstr("<integerVal/>"));
    load("1");
    edit.setCorrect(false);
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_THAT(edit.GetXmlItem(true).get_xml(), HasSubstr("<integerVal>1</integerVal>"));
    edit.Tag = "";
    EXPECT_FALSE(edit.GetXmlItem(true).get_documentElement());
}

TEST_F(OptionEditData, BooksTheShownTextsAndTheValue)
{
    load("1");
    edit.Localize(translator);
    edit.setContextTag("group");
    edit.Option(2).click();
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(
        messenger.callsTo("BookChange"),
        ElementsAre("BookChange(ctr_mode, T-ctr_mode, T-on, T-auto, 7, integerVal, group)"));
    ASSERT_EQ(messenger.bookings.size(), 1U);
    EXPECT_EQ(messenger.bookings[0].editor, &edit);
}

TEST_F(OptionEditData, BooksAnEditWithoutAnOriginal)
{
    load("1", "0");
    messenger.RequestChanges(kModifiedEditors);
    ASSERT_EQ(messenger.bookings.size(), 1U);
    EXPECT_EQ(messenger.bookings[0].oldText, "");
    EXPECT_EQ(messenger.bookings[0].newText, "on");
}

TEST_F(OptionEditData, BooksByScopeAndNotWhileSilentOrWrong)
{
    load("1");
    expectBookingsByScopeAndNotWhileSilent();
    edit.setCorrect(false);
    messenger.RequestChanges(kAllEditors);
    EXPECT_EQ(messenger.bookings.size(), 1U);
}

TEST_F(OptionEditData, AHostThatTakesNoBookingIsReportedUnderItsPlace)
{
    load("1", "0");
    messenger.failOn("BookChange", 13);
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr(
                    "ReportError(Options ctr_mode mobjChangeBooker_RequiredChanges, 13,")));
}

TEST_F(OptionEditData, AnEditorThatWasLetGoBooksNothing)
{
    load("1", "0");
    edit.SetMessenger(nullptr);
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
}

TEST_F(OptionEditData, IsServedByAPage)
{
    TestPage      page{{.Name = "page", .Tag = "page"}};
    CtrOptionEdit option{page, {.Name = "mode", .Tag = "ctr_valveMode_2"}};
    page.SetMessenger(&messenger);
    page.Localize(translator);
    // The list is shared by all parameters whose name ends in "Mode".
    const auto file = test::datafile(
        R"(<data:parameter name="valveMode_2" type="integerVal" value="1" access="readWrite" )"
        R"(synchronised="1"/>)",
        "<data:mappedParam name=\"mode\">" + std::string(kModes) + "</data:mappedParam>",
        R"(<data:requestGroup name="group"><data:includedParam name="valveMode_2"/>)"
        R"(</data:requestGroup>)");
    page.SetOfflineData(file);
    EXPECT_EQ(option.Selected(), "1");
    EXPECT_EQ(option.Text(), "T-on");
    EXPECT_EQ(option.ContextTag(), "group");

    page.SetOnlineData(
        test::okResponse("group", test::item("valveMode_2", "noUnit", "integerVal", "7")));
    EXPECT_EQ(option.Selected(), "7");
    page.SetErrorData(test::response(R"(name="group" errorCode="communicationError")",
                                     test::item("valveMode_2", "noUnit", "integerVal", "")));
    EXPECT_EQ(option.syncState(), "syncError");
    page.SetImportData(file);
    EXPECT_EQ(option.Selected(), "1");
    EXPECT_TRUE(option.Modified());
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

} // namespace
} // namespace quill
