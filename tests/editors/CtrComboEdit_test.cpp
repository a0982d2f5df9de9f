// What the user does with the combo editor, its help, and its life.

#include "combo_editor_fixture.h"

#include <memory>

namespace quill {
namespace {

using namespace test;
using platform::UserDoor;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ComboEdit : public ComboEditTest {};

TEST_F(ComboEdit, StartsWithoutSignsAndWithoutList)
{
    EXPECT_FALSE(edit.Modified());
    EXPECT_TRUE(edit.Correct());
    EXPECT_FALSE(edit.lblInfo.Visible);
    EXPECT_FALSE(edit.HasMappings());
    EXPECT_FALSE(edit.IsInitialized());
    EXPECT_EQ(edit.selectedIndex(), -1);
    EXPECT_EQ(edit.changeState(), "original");
    EXPECT_EQ(edit.syncState(), "notRead");
    EXPECT_FALSE(edit.downloadable());
}

// --- What the user does -----------------------------------------------------------------------

TEST_F(ComboEdit, AChoiceIsAnEditThatGoesIntoTheDatafile)
{
    loadQuietly("1");
    EXPECT_EQ(edit.cboBox.choose(2), UserDoor::done);
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.originalText(), "on");
    EXPECT_THAT(modifications, ElementsAre(true));
    EXPECT_THAT(changes, ElementsAre("auto"));
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, edited)"));
    EXPECT_EQ(attribute("value"), "7");
    EXPECT_EQ(attribute("synchronised"), "0");
}

TEST_F(ComboEdit, TheWayBackIsNoEdit)
{
    loadQuietly("1");
    edit.cboBox.choose(2);
    edit.cboBox.choose(1);
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(modifications, ElementsAre(true));
    EXPECT_THAT(changes, ElementsAre("auto", "on"));
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, edited)",
                                                 "SetParameterState(page, original)"));
    EXPECT_EQ(attribute("value"), "1");
}

TEST_F(ComboEdit, TheChosenEntryChosenAgainIsNoChange)
{
    loadQuietly("1", "0");
    edit.cboBox.choose(1);
    EXPECT_TRUE(edit.Modified());
    EXPECT_THAT(modifications, ElementsAre(true));
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(ComboEdit, AFixedEntryEndsTheEditing)
{
    for (const char* fixed : {"Not In Use", "nOT iN uSE", "Sensor not in use!", "Nicht in Gebrauch",
                              "NICHT IN GEBRAUCH", "Ei käytössä", "EI KÄYTÖSSÄ"}) {
        CtrComboEdit other{frame, {.Name = "other", .Tag = "ctr_mode"}};
        give("1", "1");
        other.SetMappings(mappedParam());
        translator.texts["off"] = fixed;
        other.Localize(translator);
        other.setOfflineData(parameter());
        EXPECT_FALSE(other.Locked()) << fixed;
        other.cboBox.choose(0);
        EXPECT_TRUE(other.Locked()) << fixed;
        EXPECT_TRUE(other.Silent()) << fixed;
        EXPECT_EQ(other.cboBox.BackColor, editorColors::kGrey) << fixed;
        EXPECT_EQ(other.cboBox.choose(1), UserDoor::refused) << fixed;
        EXPECT_EQ(attribute("value"), "0") << fixed;
    }
}

TEST_F(ComboEdit, AnotherEntryPaintsTheBoxWhite)
{
    loadQuietly("1");
    edit.cboBox.BackColor = editorColors::kGrey;
    edit.cboBox.choose(0);
    EXPECT_EQ(edit.cboBox.BackColor, editorColors::kWhite);
    EXPECT_FALSE(edit.Silent());
}

TEST_F(ComboEdit, WritesATextValueAsItStands)
{
    loadQuietly("abc", "1",
                R"(<data:mapping value="abc" name="a"/><data:mapping value="x y" name="b"/>)",
                "stringVal");
    edit.cboBox.choose(1);
    EXPECT_EQ(attribute("value"), "x y");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(ComboEdit, AnUnboundEditorWritesNothing)
{
    give("1", "1");
    edit.SetMappings(mappedParam());
    edit.cboBox.choose(2);
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(attribute("value"), "1");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(ComboEdit, AnEditIsFoundByTheNextLoad)
{
    loadQuietly("1");
    edit.cboBox.choose(2);
    edit.setOfflineData(parameter());
    EXPECT_EQ(edit.Text(), "auto");
    EXPECT_TRUE(edit.Modified());
}

TEST_F(ComboEdit, ModifiedTakenBackMakesTheEntryTheOriginal)
{
    loadQuietly("1");
    edit.cboBox.choose(2);
    edit.SetModifiedForward(false);
    EXPECT_EQ(edit.originalText(), "auto");
    EXPECT_EQ(edit.changeState(), "original");
    edit.cboBox.choose(1);
    EXPECT_TRUE(edit.Modified());
}

TEST_F(ComboEdit, IsBarredInMode20Only)
{
    load("1");
    messenger.ViewSetCommunicationMode.raise(20);
    EXPECT_FALSE(edit.Enabled());
    EXPECT_EQ(edit.cboBox.choose(0), UserDoor::refused);
    for (const std::int32_t mode : {10, 11, 12, 0}) {
        messenger.ViewSetCommunicationMode.raise(20);
        messenger.ViewSetCommunicationMode.raise(mode);
        EXPECT_TRUE(edit.Enabled()) << mode;
    }
}

// --- Help -------------------------------------------------------------------------------------

TEST_F(ComboEdit, ShowsHelpForTheChosenEntry)
{
    load("7");
    edit.ShowInfo(true, "modeInfo");
    forget();
    EXPECT_EQ(edit.lblInfo.click(), UserDoor::done);
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre("WriteLog(73, CtrComboEdit info from modeInfo)",
                            "WriteLog(73, modeInfo_auto)"));
    EXPECT_THAT(messenger.callsTo("ShowMessage"),
                ElementsAre("ShowMessage(Info T-ctr_mode, T-modeInfo\r\nT-modeInfo_auto)"));
}

TEST_F(ComboEdit, LeavesOutWhatHasNoTranslation)
{
    load("7");
    edit.ShowInfo(true, "modeInfo");
    translator.texts["modeInfo"] = "Err:modeInfo";
    edit.lblInfo.click();
    EXPECT_THAT(messenger.callsTo("ShowMessage"),
                ElementsAre("ShowMessage(Info T-ctr_mode, T-modeInfo_auto)"));
    messenger.clear();
    translator.texts["modeInfo"]      = "Modes";
    translator.texts["modeInfo_auto"] = "Err:modeInfo_auto";
    edit.lblInfo.click();
    EXPECT_THAT(messenger.callsTo("ShowMessage"),
                ElementsAre("ShowMessage(Info T-ctr_mode, Modes)"));
    messenger.clear();
    translator.texts["modeInfo"] = "Err:modeInfo";
    edit.lblInfo.click();
    EXPECT_THAT(messenger.callsTo("ShowMessage"), IsEmpty());
    EXPECT_EQ(messenger.callsTo("WriteLog").size(), 2U);
}

TEST_F(ComboEdit, LeavesOutWhatCannotBeTranslated)
{
    load("7");
    edit.ShowInfo(true, "modeInfo");
    translator.failingKey = "modeInfo";
    edit.lblInfo.click();
    EXPECT_THAT(messenger.callsTo("ShowMessage"),
                ElementsAre("ShowMessage(Info T-ctr_mode, T-modeInfo_auto)"));
    messenger.clear();
    translator.failingKey = "modeInfo_auto";
    edit.lblInfo.click();
    EXPECT_THAT(messenger.callsTo("ShowMessage"),
                ElementsAre("ShowMessage(Info T-ctr_mode, T-modeInfo)"));
    EXPECT_EQ(messenger.errors().size(), 1U);
}

TEST_F(ComboEdit, ReportsHelpWithoutATranslator)
{
    load("7");
    edit.ShowInfo(true, "modeInfo");
    forget();
    messenger.translator = nullptr;
    edit.lblInfo.click();
    EXPECT_EQ(messenger.errors().size(), 3U);
    EXPECT_THAT(messenger.errors(),
                Contains(HasSubstr("ReportError(Combo ctr_mode lblInfo_Click, 91,")).Times(3));
    EXPECT_THAT(messenger.callsTo("ShowMessage"), IsEmpty());
}

TEST_F(ComboEdit, AsksForTheTranslatorOncePerHelp)
{
    load("7");
    edit.ShowInfo(true, "modeInfo");
    forget();
    edit.lblInfo.click();
    EXPECT_EQ(messenger.callsTo("GetTranslator").size(), 1U);

    forget();
    messenger.failOn("GetTranslator");
    edit.lblInfo.click();
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("lblInfo_Click, 5,"), HasSubstr("lblInfo_Click, 91,"),
                            HasSubstr("lblInfo_Click, 91,"), HasSubstr("lblInfo_Click, 91,")));
}

TEST_F(ComboEdit, MakesRoomForTheInfoSign)
{
    edit.resize(3000, 315);
    const std::int32_t before = edit.cboBox.Width;
    edit.ShowInfo(true, "modeInfo");
    EXPECT_TRUE(edit.lblInfo.Visible);
    EXPECT_LT(edit.cboBox.Width, before);
    EXPECT_GE(edit.lblInfo.Left, edit.cboBox.Left + edit.cboBox.Width);
    EXPECT_GE(edit.lblModified.Left, edit.lblInfo.Left + edit.lblInfo.Width);
    EXPECT_GE(edit.lblError.Left, edit.lblModified.Left + edit.lblModified.Width);
    EXPECT_LE(edit.lblError.Left + edit.lblError.Width, 3000);
    edit.ShowInfo(false);
    EXPECT_FALSE(edit.lblInfo.Visible);
    EXPECT_EQ(edit.cboBox.Width, before);
    EXPECT_EQ(edit.infoTag(), "modeInfo");
    EXPECT_EQ(edit.lblInfo.click(), UserDoor::refused);
}

// --- Life and faults --------------------------------------------------------------------------

TEST_F(ComboEdit, ADetachedEditorDoesNotReact)
{
    load("1");
    edit.setModified(true);
    edit.SetMessenger(nullptr);
    forget();
    messenger.ViewSetCommunicationMode.raise(20);
    messenger.ViewGetChanges.raise(kModifiedEditors);
    EXPECT_TRUE(edit.Enabled());
    EXPECT_THAT(messenger.calls, IsEmpty());
    EXPECT_THAT(toolkit.debugLines, IsEmpty()) << "a reaction would fail without a Messenger";
}

TEST_F(ComboEdit, ADeadEditorDoesNotReact)
{
    auto other = std::make_unique<CtrComboEdit>(frame, platform::Design{.Tag = "ctr_other"});
    other->SetMessenger(&messenger);
    other->setModified(true);
    other.reset();
    messenger.ViewSetCommunicationMode.raise(20);
    messenger.ViewGetChanges.raise(kModifiedEditors);
    EXPECT_THAT(messenger.bookings, IsEmpty());
}

TEST_F(ComboEdit, AHandlerThatFailsStopsNothing)
{
    onChange   = edit.Change.subscribe([](const std::string&) { throw platform::failure(9); });
    onModified = edit.ModifiedEvent.subscribe([](bool) { throw platform::failure(9); });
    load("1", "0");
    EXPECT_TRUE(edit.Modified());
    edit.cboBox.choose(2);
    EXPECT_EQ(attribute("value"), "7");
    EXPECT_EQ(messenger.errors().size(), 3U);
    EXPECT_THAT(messenger.errors(), Contains(HasSubstr("Combo ctr_mode cboBox_Click, 9,")));
}

class ComboEditWithAFailingHost : public ComboEditTest,
                                  public testing::WithParamInterface<const char*> {};

TEST_P(ComboEditWithAFailingHost, GoesOn)
{
    messenger.failOn(GetParam());
    EXPECT_NO_THROW({
        edit.Localize(translator);
        EXPECT_EQ(edit.GetIndex("1"), -1);
        load("1", "2");
        edit.setOnlineData(online("0"));
        edit.RefreshItemList();
        edit.ShowInfo(true, "modeInfo");
        edit.lblInfo.click();
        edit.cboBox.choose(2);
        messenger.RequestChanges(kModifiedEditors);
        edit.handleError("communicationError");
        edit.setImportData(parameter());
    });
    EXPECT_TRUE(messenger.wasCalled(GetParam()));
    EXPECT_EQ(attribute("value"), "7");
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.syncState(), "syncError");
}

INSTANTIATE_TEST_SUITE_P(Operations, ComboEditWithAFailingHost,
                         testing::Values("SetParameterState", "BookChange", "WriteLog",
                                         "ShowMessage", "GetTranslator"));

TEST_F(ComboEdit, GoesOnWhereNotEvenTheReportArrives)
{
    messenger.failOn("ReportError");
    messenger.failOn("SetParameterState");
    EXPECT_NO_THROW(load("1", "0"));
    EXPECT_TRUE(edit.Modified());
    EXPECT_TRUE(messenger.wasCalled("ReportError"));
}

} // namespace
} // namespace quill
