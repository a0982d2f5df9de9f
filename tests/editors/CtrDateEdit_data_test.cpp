// How the date editor takes values from documents and gives its own back.

#include "date_editor_fixture.h"

#include "editors/CtrDateLabel.h"

namespace quill {
namespace {

using namespace test;
using platform::DateTime;
using platform::UserDoor;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DateEditData : public DateEditTest {};

// --- Values from the datafile -----------------------------------------------------------------

TEST_F(DateEditData, InStepReportsOnlyWhatTheDeviceHasGiven)
{
    load("31.1.2020", "1");
    EXPECT_EQ(edit.Text(), "31.1.2020");
    EXPECT_FALSE(edit.Modified());
    EXPECT_FALSE(edit.hasSynced());
    EXPECT_EQ(edit.originalDate(), (DateTime{2020, 1, 31}));
    EXPECT_THAT(changes, ElementsAre("31.1.2020"));
    EXPECT_THAT(messenger.actions(), IsEmpty());

    edit.setOnlineData(online("1.2.2020"));
    forget();
    load("1.2.2020", "1");
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, sync)"));
}

TEST_F(DateEditData, WithACommunicationErrorAtLoad)
{
    load("31.1.2020", "2");
    EXPECT_EQ(edit.Text(), "31.1.2020");
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, syncError)"));
}

TEST_F(DateEditData, OutOfStepComesUpModified)
{
    load("31.1.2020", "0");
    EXPECT_TRUE(edit.Modified());
    EXPECT_FALSE(edit.originalDate());
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, edited)"));
    EXPECT_EQ(attribute("value"), "31.1.2020");
}

TEST_F(DateEditData, AnEmptyValueIsNoFailure)
{
    load("", "1");
    EXPECT_EQ(edit.Text(), "");
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_EQ(edit.datePicker.pick("2020-01-31"), UserDoor::done);
    EXPECT_EQ(edit.Text(), "31.1.2020");
    EXPECT_TRUE(edit.Modified());
    EXPECT_TRUE(edit.GetXmlItem(false));
}

TEST_F(DateEditData, AValueThatIsNoDateReportsAndTheStateGoesOn)
{
    load("soon", "0");
    EXPECT_EQ(edit.Text(), "");
    EXPECT_TRUE(edit.Modified());
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(CtrDateEdit ctr_date setOfflineData, 13,")));
}

TEST_F(DateEditData, TakesItsLimits)
{
    load("31.1.2020", "1", "1.1.2020", "2020-12-31");
    EXPECT_EQ(edit.datePicker.MinDate(), (DateTime{2020, 1, 1}));
    EXPECT_EQ(edit.datePicker.MaxDate(), (DateTime{2020, 12, 31}));
    EXPECT_EQ(edit.datePicker.pick("2021-01-01"), UserDoor::refused);

    load("1.7.2030", "1", "1.1.2030", "31.12.2030"); // both above the former ones
    EXPECT_EQ(edit.datePicker.MinDate(), (DateTime{2030, 1, 1}));
    load("1.7.2010", "1", "1.1.2010", "31.12.2010"); // both below
    EXPECT_EQ(edit.datePicker.MaxDate(), (DateTime{2010, 12, 31}));
    EXPECT_EQ(edit.Text(), "1.7.2010");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(DateEditData, LimitsDoNotMakeAnEmptyEditorFull)
{
    load("", "1", "1.1.2020", "31.12.2020"); // moves what the picker shows
    EXPECT_EQ(edit.datePicker.Value(), (DateTime{2020, 1, 1}));
    EXPECT_EQ(edit.Text(), "");
}

TEST_F(DateEditData, LimitsDoNotMakeAnEditorFullThatGetsNoDate)
{
    load("soon", "1", "1.1.2020", "31.12.2020");
    EXPECT_EQ(edit.datePicker.Value(), (DateTime{2020, 1, 1}));
    EXPECT_EQ(edit.Text(), "");
}

TEST_F(DateEditData, ReportsLimitsThatAreNoneAndAValueOutside)
{
    load("31.1.2020", "1", "today", "");
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("setOfflineData, 13,")));
    EXPECT_EQ(edit.Text(), "31.1.2020");
    forget();
    load("1.1.2019", "1", "1.1.2020", "31.12.2020");
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("setOfflineData, 5,")));
    EXPECT_EQ(edit.Text(), "31.1.2020");
    forget();
    load("1.2.2020", "1", "1.1.2022", "1.1.2021");
    EXPECT_THAT(messenger.errors(), Contains(HasSubstr("setOfflineData, 5,")));
}

TEST_F(DateEditData, TakesATimeWithLimits)
{
    edit.SetPickerFormat(kTime);
    load("10.20.30", "1", "08:00:00", "18.00.00");
    EXPECT_EQ(edit.Text(), "10:20:30");
    EXPECT_EQ(edit.datePicker.pick("18:00:01"), UserDoor::refused);
    EXPECT_EQ(edit.datePicker.pick("18:00:00"), UserDoor::done);
    EXPECT_EQ(attribute("value"), "18:00:00");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(DateEditData, StaysBoundToItsFirstParameter)
{
    load("31.1.2020");
    const auto first = datafile;
    load("1.2.2020");
    edit.datePicker.pick("2020-03-04");
    EXPECT_EQ(attribute("value"), "1.2.2020");
    EXPECT_EQ(documents::attributeText(documents::findParameter(first, "date"), "value"),
              "4.3.2020");
}

TEST_F(DateEditData, DoesNothingForAnEmptyNode)
{
    loadQuietly();
    expectThatEmptyNodesDoNothing();
    EXPECT_EQ(edit.Text(), "31.1.2020");
}

class DateEditWithout : public DateEditTest, public testing::WithParamInterface<const char*> {};

TEST_P(DateEditWithout, AnAttributeGoesOn)
{
    give("31.1.2020", "1", "1.1.2020", "31.12.2020");
    parameter().get_attributes().removeNamedItem(GetParam());
    EXPECT_TRUE(edit.setOfflineData(parameter()));
    const std::string missing = GetParam();
    // A date and its limits may be missing; what every parameter has may not.
    const bool isNeeded = missing == "type" || missing == "synchronised";
    EXPECT_EQ(messenger.errors().size(), isNeeded ? 1U : 0U);
    EXPECT_EQ(edit.Text(), missing == "value" ? "" : "31.1.2020");
    EXPECT_EQ(edit.Modified(), missing == "synchronised");
    EXPECT_EQ(edit.datePicker.MinDate().year, missing == "minVal" ? 1601 : 2020);
    EXPECT_EQ(edit.datePicker.MaxDate().year, missing == "maxVal" ? 9999 : 2020);
    EXPECT_EQ(changes.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Attributes, DateEditWithout,
                         testing::Values("type", "value", "minVal", "maxVal", "synchronised"));

TEST_F(DateEditData, IsReadOnlyWhereTheAccessSaysNoWrite)
{
    for (const char* access : {"read", "", "none"}) {
        CtrDateEdit other{frame, {.Name = "other", .Tag = "ctr_date"}};
        other.SetMessenger(&messenger);
        give("31.1.2020", "0");
        parameter().get_attributes().getNamedItem("access").put_value(access);
        other.setOfflineData(parameter());
        EXPECT_TRUE(other.datePicker.Locked) << access;
        EXPECT_EQ(other.datePicker.BackColor, editorColors::kGrey);
        EXPECT_TRUE(other.Silent());
        EXPECT_EQ(other.Text(), "31.1.2020");
        EXPECT_EQ(other.datePicker.pick("2020-02-01"), UserDoor::refused);
        EXPECT_EQ(attribute("value"), "31.1.2020");
        other.setEnabled(false);
        EXPECT_TRUE(other.Enabled());
        EXPECT_EQ(other.datePicker.BackColor, editorColors::kGrey);
        messenger.RequestChanges(kModifiedEditors);
        EXPECT_THAT(messenger.bookings, IsEmpty());
    }
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(DateEditData, IsWritableWhereTheAccessSaysSoInAnyCase)
{
    give("31.1.2020", "1");
    parameter().get_attributes().getNamedItem("access").put_value("READ");
    edit.setOfflineData(parameter());
    parameter().get_attributes().getNamedItem("access").put_value("reAdWrIte");
    edit.setOfflineData(parameter());
    EXPECT_FALSE(edit.datePicker.Locked);
    EXPECT_EQ(edit.datePicker.BackColor, editorColors::kWhite);
    // Nothing takes the silence back but the page itself.
    EXPECT_TRUE(edit.Silent());
    EXPECT_EQ(edit.datePicker.pick("2020-02-01"), UserDoor::done);
}

TEST_F(DateEditData, AMissingAccessChangesNothing)
{
    const auto color = edit.datePicker.BackColor.get();
    give("31.1.2020", "1");
    parameter().get_attributes().removeNamedItem("access");
    edit.setOfflineData(parameter());
    EXPECT_FALSE(edit.datePicker.Locked);
    EXPECT_FALSE(edit.Silent());
    EXPECT_EQ(edit.datePicker.BackColor, color);
    EXPECT_THAT(messenger.errors(), IsEmpty());

    edit.datePicker.Locked = true;
    edit.setOfflineData(parameter());
    EXPECT_TRUE(edit.datePicker.Locked);
}

TEST_F(DateEditData, IsServedByAPage)
{
    TestPage     page{{.Name = "page", .Tag = "page"}};
    CtrDateEdit  date{page, {.Name = "date", .Tag = "ctr_date"}};
    CtrDateLabel label{page, {.Name = "label", .Tag = "date_group"}};
    page.SetMessenger(&messenger);
    page.Localize(translator);
    datafile = test::datafile(
        R"(<data:parameter name="date" type="dateVal" value="31.1.2020" minVal="" maxVal="" )"
        R"(access="readWrite" synchronised="1"/>)",
        "",
        R"(<data:requestGroup name="group" lastUpdate="09.03.2024 08:07:06">)"
        R"(<data:includedParam name="date"/></data:requestGroup>)");
    page.SetOfflineData(datafile);
    EXPECT_EQ(date.Text(), "31.1.2020");
    EXPECT_EQ(date.ContextTag(), "group");
    EXPECT_EQ(label.Caption(), "2024-03-09 08:07:06");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

// --- Values from the device and from an import ------------------------------------------------

TEST_F(DateEditData, TakesAValueFromTheDevice)
{
    loadQuietly("31.1.2020", "0");
    EXPECT_TRUE(edit.setOnlineData(online("5.4.2019")));
    EXPECT_EQ(edit.Text(), "5.4.2019");
    EXPECT_FALSE(edit.Modified());
    EXPECT_EQ(edit.originalDate(), (DateTime{2019, 4, 5}));
    EXPECT_THAT(changes, ElementsAre("5.4.2019"));
    EXPECT_THAT(messenger.actions(),
                ElementsAre("SetParameterState(page, original)", "SetParameterState(page, sync)"));
}

TEST_F(DateEditData, TakesAnItemWithoutItsValueForAnEmptyOne)
{
    loadQuietly();
    edit.setOnlineData(online("5.4.2019", "stringVal"));
    EXPECT_EQ(edit.Text(), "");
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, sync)"));
}

TEST_F(DateEditData, ReportsAnItemWhileItsTypeIsNotKnown)
{
    edit.setOnlineData(online("5.4.2019"));
    EXPECT_EQ(edit.Text(), "");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(CtrDateEdit ctr_date setOnlineData, 5,")));
}

TEST_F(DateEditData, RecoversFromACommunicationError)
{
    loadQuietly();
    edit.handleError("communicationError");
    edit.setOnlineData(online("5.4.2019"));
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, syncError)",
                                                 "SetParameterState(page, reSync)"));
}

TEST_F(DateEditData, IgnoresOtherErrors)
{
    loadQuietly("31.1.2020", "0");
    for (const char* code : {"missingItems", "commandIsNotImplemented", "errCommunicationError",
                             "hartCmdErrSuspiciousCalibration", ""}) {
        edit.handleError(code);
    }
    EXPECT_TRUE(edit.Modified());
    EXPECT_TRUE(edit.Correct());
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(DateEditData, TakesAnImportAsAnUnsavedEdit)
{
    loadQuietly();
    give("24.12.2021", "1");
    EXPECT_TRUE(edit.setImportData(parameter()));
    EXPECT_EQ(edit.Text(), "24.12.2021");
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.originalDate(), (DateTime{2020, 1, 31}));
    EXPECT_THAT(changes, ElementsAre("24.12.2021"));
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, edited)"));
}

// --- Items and bookings -----------------------------------------------------------------------

TEST_F(DateEditData, TheItemCarriesAText)
{
    load("2020-01-31");
    EXPECT_EQ(edit.GetXmlItem(false).get_xml(),
              R"(<item name="date" unit="noUnit"><stringVal>31.1.2020</stringVal></item>)");
    edit.SetPickerFormat(kTime);
    edit.setText("07:08:09");
    EXPECT_EQ(edit.GetXmlItem(false).get_xml(),
              R"(<item name="date" unit="noUnit"><stringVal>7:08:09</stringVal></item>)");
}

TEST_F(DateEditData, GivesNoItemForNothingOrWhatIsWrong)
{
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_THAT(edit.GetXmlItem(true).get_xml(), HasSubstr("<stringVal>1.1.2000</stringVal>"));
    edit.setText("31.1.2020");
    edit.setCorrect(false);
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_THAT(edit.GetXmlItem(true).get_xml(), HasSubstr("<stringVal>31.1.2020</stringVal>"));
    edit.Tag = "";
    EXPECT_FALSE(edit.GetXmlItem(true).get_documentElement());
}

TEST_F(DateEditData, BooksOldAndNewAlsoWhenWrong)
{
    load();
    translator.texts["ctr_date"] = "Date of manufacture";
    edit.Localize(translator);
    edit.setContextTag("group");
    edit.datePicker.pick("2020-02-01");
    edit.setCorrect(false);
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.callsTo("BookChange"),
                ElementsAre("BookChange(ctr_date, Date of manufacture, 31.1.2020, 1.2.2020, , "
                            "dateVal, group)"));
    ASSERT_EQ(messenger.bookings.size(), 1U);
    EXPECT_EQ(messenger.bookings[0].editor, &edit);
}

TEST_F(DateEditData, BooksByScopeAndNotWhileSilent)
{
    load();
    expectBookingsByScopeAndNotWhileSilent();
}

TEST_F(DateEditData, BooksATimeAsATime)
{
    edit.SetPickerFormat(kTime);
    load("10:20:30");
    edit.datePicker.pick("11:00:00");
    messenger.RequestChanges(kModifiedEditors);
    ASSERT_EQ(messenger.bookings.size(), 1U);
    EXPECT_EQ(messenger.bookings[0].oldText, "10:20:30");
    EXPECT_EQ(messenger.bookings[0].newText, "11:00:00");
}

} // namespace
} // namespace quill
