// How the combo editor takes values from documents and gives its own back.

#include "combo_editor_fixture.h"

namespace quill {
namespace {

using namespace test;
using platform::UserDoor;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ComboEditData : public ComboEditTest {};

// --- Values from the datafile -----------------------------------------------------------------

TEST_F(ComboEditData, InStepWithTheDevice)
{
    load("1", "1");
    EXPECT_EQ(edit.Text(), "on");
    EXPECT_FALSE(edit.Modified());
    EXPECT_TRUE(edit.hasSynced());
    EXPECT_EQ(edit.originalText(), "on");
    EXPECT_EQ(edit.selectedIndex(), 1);
    EXPECT_THAT(changes, ElementsAre("on"));
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, sync)"));
    EXPECT_FALSE(edit.cboBox.Locked);
    EXPECT_EQ(edit.cboBox.BackColor, editorColors::kWhite);
    EXPECT_TRUE(edit.downloadable());
    EXPECT_EQ(attribute("synchronised"), "1");
}

TEST_F(ComboEditData, ReportsThatItIsInStepBeforeTheEditGoes)
{
    loadQuietly("1", "0");
    load("1", "1");
    EXPECT_THAT(messenger.actions(),
                ElementsAre("SetParameterState(page, sync)", "SetParameterState(page, original)"));
}

TEST_F(ComboEditData, WithACommunicationErrorAtLoad)
{
    load("1", "2");
    EXPECT_EQ(edit.Text(), "on");
    EXPECT_FALSE(edit.hasSynced());
    EXPECT_EQ(edit.syncState(), "syncError");
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, syncError)"));
}

TEST_F(ComboEditData, OutOfStepComesUpModified)
{
    load("1", "0");
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.originalText(), "");
    EXPECT_EQ(edit.changeState(), "edited");
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, edited)"));
}

TEST_F(ComboEditData, OutOfStepWithAValueThatNoEntryHoldsIsNotModified)
{
    load("9", "0");
    EXPECT_EQ(edit.cboBox.ListIndex(), -1);
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(changes, ElementsAre(""));
    EXPECT_THAT(messenger.actions(), IsEmpty());
    EXPECT_FALSE(edit.downloadable());
}

TEST_F(ComboEditData, AValueThatMapsToAHiddenEntryShowsNothing)
{
    loadQuietly("0");
    edit.SetItemVisibility("on", false);
    edit.RefreshItemList();
    parameter().get_attributes().getNamedItem("value").put_value("1");
    edit.setOfflineData(parameter());
    EXPECT_EQ(edit.cboBox.ListIndex(), -1);
    EXPECT_EQ(edit.selectedIndex(), -1);
    EXPECT_THAT(changes, ElementsAre(""));
    edit.setOnlineData(online("1"));
    EXPECT_EQ(edit.cboBox.ListIndex(), -1);
    edit.setImportData(parameter());
    EXPECT_EQ(edit.cboBox.ListIndex(), -1);
    edit.setText("on");
    EXPECT_EQ(edit.cboBox.ListIndex(), -1);
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(ComboEditData, IsReadOnlyUnlessTheAccessSaysWrite)
{
    load("1", "1", kModes, "integerVal", "read");
    EXPECT_TRUE(edit.Locked());
    EXPECT_TRUE(edit.Silent());
    EXPECT_EQ(edit.cboBox.BackColor, editorColors::kGrey);
    EXPECT_EQ(edit.cboBox.choose(0), UserDoor::refused);
    edit.setEnabled(false); // silent and locked: no effect
    EXPECT_TRUE(edit.Enabled());

    CtrComboEdit other{frame, {.Name = "other", .Tag = "ctr_mode"}};
    give("1", "1", kModes, "integerVal", "READWRITE");
    other.setOfflineData(parameter());
    EXPECT_FALSE(other.Locked());
    EXPECT_FALSE(other.Silent());
}

TEST_F(ComboEditData, StaysBoundToItsFirstParameter)
{
    load("1");
    const auto first = datafile;
    EXPECT_TRUE(edit.IsInitialized());
    give("0", "1");
    edit.setOfflineData(parameter());
    EXPECT_EQ(edit.Text(), "off");
    edit.cboBox.choose(2);
    EXPECT_EQ(attribute("value"), "0");
    EXPECT_EQ(documents::attributeText(documents::findParameter(first, "mode"), "value"), "7");
}

TEST_F(ComboEditData, DoesNothingForAnEmptyNode)
{
    loadQuietly("1");
    expectThatEmptyNodesDoNothing();
    EXPECT_EQ(edit.Text(), "on");
}

TEST_F(ComboEditData, WorksWithoutAMessenger)
{
    edit.SetMessenger(nullptr);
    load("1", "0");
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.changeState(), "original"); // nobody to tell
    edit.cboBox.choose(0);
    EXPECT_EQ(attribute("value"), "0");
}

class ComboEditWithout : public ComboEditTest, public testing::WithParamInterface<const char*> {};

TEST_P(ComboEditWithout, AnAttributeGoesOnAndReports)
{
    give("1", "1");
    parameter().get_attributes().removeNamedItem(GetParam());
    edit.SetMappings(mappedParam());
    EXPECT_TRUE(edit.setOfflineData(parameter()));
    const std::string missing = GetParam();
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Combo ctr_mode setOfflineData, 91,")));
    EXPECT_EQ(edit.valueType(), missing == "type" ? "" : "integerVal");
    EXPECT_EQ(edit.cboBox.ListIndex(), missing == "value" ? -1 : 1);
    EXPECT_EQ(edit.Modified(), missing == "synchronised");
    EXPECT_EQ(edit.Locked(), missing == "access");
    EXPECT_EQ(changes.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Attributes, ComboEditWithout,
                         testing::Values("type", "value", "synchronised", "access"));

TEST_F(ComboEditData, IsServedByAPage)
{
    TestPage     page{{.Name = "page", .Tag = "page"}};
    CtrComboEdit combo{page, {.Name = "combo", .Tag = "ctr_mode"}};
    page.SetMessenger(&messenger);
    page.Localize(translator);
    give("7", "1");
    page.SetOfflineData(datafile);
    EXPECT_EQ(combo.Text(), "auto");
    (void)online("1");
    page.SetOnlineData(response);
    EXPECT_EQ(combo.Text(), "on");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(ComboEditData, APageHandsTheFocusToItsFirstEditorThatIsEnabled)
{
    TestPage     page{{.Name = "page", .Tag = "page"}};
    CtrComboEdit first{page, {.Name = "first", .Tag = "ctr_mode"}};
    CtrComboEdit second{page, {.Name = "second", .Tag = "ctr_mode"}};
    page.RequestFocus();
    EXPECT_TRUE(first.cboBox.HasFocus());
    first.setEnabled(false);
    EXPECT_FALSE(first.HasFocus());
    page.RequestFocus();
    EXPECT_TRUE(second.cboBox.HasFocus());
}

// --- Values from the device and from an import ------------------------------------------------

TEST_F(ComboEditData, TakesAValueFromTheDevice)
{
    loadQuietly("1", "0");
    EXPECT_TRUE(edit.setOnlineData(online("7")));
    EXPECT_EQ(edit.Text(), "auto");
    EXPECT_FALSE(edit.Modified());
    EXPECT_EQ(edit.originalText(), "auto");
    EXPECT_THAT(changes, ElementsAre("auto"));
    EXPECT_THAT(messenger.actions(),
                ElementsAre("SetParameterState(page, original)", "SetParameterState(page, sync)"));
    EXPECT_EQ(attribute("value"), "1"); // the host keeps the datafile
}

TEST_F(ComboEditData, ReportsTheStateOfEveryValueFromTheDevice)
{
    loadQuietly("1", "2");
    edit.setOnlineData(online("1"));
    edit.setOnlineData(online("1"));
    EXPECT_THAT(messenger.actions(),
                ElementsAre("SetParameterState(page, reSync)", "SetParameterState(page, reSync)"));
    EXPECT_THAT(changes, ElementsAre("on", "on"));
}

TEST_F(ComboEditData, ReportsAnItemWithoutItsValue)
{
    loadQuietly("1");
    edit.setOnlineData(online("1", "stringVal"));
    EXPECT_EQ(edit.cboBox.ListIndex(), -1);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Combo ctr_mode setOnlineData, 91,")));
    EXPECT_THAT(messenger.callsTo("SetParameterState"),
                ElementsAre("SetParameterState(page, sync)"));
}

TEST_F(ComboEditData, TakesAnImportAsAnUnsavedEdit)
{
    loadQuietly("1");
    parameter().get_attributes().getNamedItem("value").put_value("0");
    EXPECT_TRUE(edit.setImportData(parameter()));
    EXPECT_EQ(edit.Text(), "off");
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.originalText(), "on");
    EXPECT_THAT(changes, ElementsAre("off"));
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, edited)"));
}

TEST_F(ComboEditData, AChoiceAfterAnImportIsComparedWithTheRowBeforeIt)
{
    loadQuietly("1");
    parameter().get_attributes().getNamedItem("value").put_value("0");
    edit.setImportData(parameter());
    EXPECT_EQ(edit.selectedIndex(), 1);
    edit.cboBox.choose(1);
    EXPECT_THAT(changes, ElementsAre("off"));
    EXPECT_FALSE(edit.Modified());
    edit.cboBox.choose(0);
    EXPECT_THAT(changes, ElementsAre("off", "off"));
    EXPECT_EQ(edit.selectedIndex(), 0);
}

TEST_F(ComboEditData, MarksACommunicationError)
{
    loadQuietly("1");
    edit.handleError("communicationError");
    EXPECT_FALSE(edit.hasSynced());
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, syncError)"));
}

TEST_F(ComboEditData, TakesARefusalAsAnAnswer)
{
    for (const char* code :
         {"hartCmdErrSuspiciousCalibration", "hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed"}) {
        loadQuietly("1", "0");
        edit.handleError(code);
        EXPECT_FALSE(edit.Modified());
        EXPECT_TRUE(edit.hasSynced());
        EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, original)",
                                                     "SetParameterState(page, sync)"));
    }
}

TEST_F(ComboEditData, IgnoresOtherErrors)
{
    loadQuietly("1", "0");
    for (const char* code : {"missingItems", "commandIsNotImplemented", "errCommunicationError",
                             "hartCmdErrNoDataAvailable", ""}) {
        edit.handleError(code);
    }
    EXPECT_TRUE(edit.Modified());
    EXPECT_TRUE(edit.Correct());
    EXPECT_THAT(messenger.calls, IsEmpty());
}

// --- Items and bookings -----------------------------------------------------------------------

TEST_F(ComboEditData, TheItemCarriesTheValue)
{
    load("7");
    edit.Localize(translator);
    EXPECT_EQ(edit.GetXmlItem(false).get_xml(),
              R"(<item name="mode" unit="noUnit"><integerVal>7</integerVal></item>)");
}

TEST_F(ComboEditData, GivesNoItemForNothingOrWhatIsWrong)
{
    load("9");
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_EQ(edit.GetXmlItem(true).get_xml(),
              R"(<item name="mode" unit="noUnit"><integerVal/></item>)");
    edit.setText("7");
    edit.setCorrect(false);
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_FALSE(edit.downloadable());
    EXPECT_THAT(edit.GetXmlItem(true).get_xml(), HasSubstr("<integerVal>7</integerVal>"));
}

TEST_F(ComboEditData, GivesAnEmptyDocumentWithoutTypeOrTag)
{
    EXPECT_TRUE(edit.GetXmlItem(true));
    EXPECT_FALSE(edit.GetXmlItem(true).get_documentElement());
    load("7");
    edit.Tag = "";
    EXPECT_FALSE(edit.GetXmlItem(true).get_documentElement());
}

TEST_F(ComboEditData, BooksWithShownTextsAndTheValue)
{
    load("1");
    edit.Localize(translator);
    edit.setContextTag("group");
    edit.cboBox.choose(2);
    messenger.RequestChanges(kModifiedEditors);
    ASSERT_EQ(messenger.bookings.size(), 1U);
    EXPECT_EQ(messenger.bookings[0].editor, &edit);
    EXPECT_EQ(messenger.callsTo("BookChange").front(),
              "BookChange(ctr_mode, T-ctr_mode, T-on, T-auto, 7, integerVal, group)");
}

TEST_F(ComboEditData, BooksWithoutAnOldTextWhereTheOriginalIsHidden)
{
    load("1");
    edit.cboBox.choose(0);
    edit.SetItemVisibility("on", false);
    edit.RefreshItemList();
    messenger.RequestChanges(kModifiedEditors);
    ASSERT_EQ(messenger.bookings.size(), 1U);
    EXPECT_EQ(messenger.bookings[0].oldText, "");
    EXPECT_EQ(messenger.bookings[0].newText, "T-off");
}

TEST_F(ComboEditData, BooksByScope)
{
    load("1");
    messenger.RequestChanges(kModifiedEditors);
    messenger.RequestChanges(kAllEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty()); // neither modified nor of a group
    edit.setContextTag("group");
    messenger.RequestChanges(kAllEditors);
    EXPECT_EQ(messenger.bookings.size(), 1U);
    edit.setContextTag("");
    edit.setModified(true);
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_EQ(messenger.bookings.size(), 2U);
    messenger.RequestChanges(3);
    EXPECT_EQ(messenger.bookings.size(), 2U);
}

TEST_F(ComboEditData, BooksNothingWhileSilentOrWrong)
{
    load("1");
    edit.setModified(true);
    edit.setSilent(true);
    messenger.RequestChanges(kModifiedEditors);
    edit.setSilent(false);
    edit.setSilentAlltoghether(true);
    messenger.RequestChanges(kModifiedEditors);
    edit.setSilentAlltoghether(false);
    edit.setCorrect(false);
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
    edit.setCorrect(true);
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_EQ(messenger.bookings.size(), 1U);
}

} // namespace
} // namespace quill
