// What the date editor reads as a date, what the user does with it, and its life.

#include "date_editor_fixture.h"

#include "framework/values.h"

#include <memory>

namespace quill {
namespace {

using namespace test;
using platform::DateTime;
using platform::UserDoor;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DateEdit : public DateEditTest {};

TEST_F(DateEdit, StartsEmptyAndWithoutSigns)
{
    EXPECT_FALSE(edit.Modified());
    EXPECT_TRUE(edit.Correct());
    EXPECT_FALSE(edit.timeMode());
    EXPECT_EQ(edit.Text(), "");
    EXPECT_FALSE(edit.IsInitialized());
    EXPECT_FALSE(edit.originalDate());
    EXPECT_EQ(edit.changeState(), "original");
    EXPECT_EQ(edit.syncState(), "notRead");
}

// --- Text -------------------------------------------------------------------------------------

TEST_F(DateEdit, ReadsDayMonthYearWhateverIsShownBefore)
{
    // A picker that were set piece by piece would meet the 31st of February, April, ... between.
    for (int month = 1; month <= 12; ++month) {
        edit.datePicker.setValue({2023, month, 28});
        edit.setText("31.1.2020");
        EXPECT_EQ(edit.datePicker.Value(), (DateTime{2020, 1, 31})) << month;
    }
    edit.setText("29.2.2024");
    EXPECT_EQ(edit.datePicker.Value(), (DateTime{2024, 2, 29}));
    edit.setText(" 5.4.2019 ");
    EXPECT_EQ(edit.datePicker.Value(), (DateTime{2019, 4, 5}));
    edit.setText("05.04.2018");
    EXPECT_EQ(edit.datePicker.Value(), (DateTime{2018, 4, 5}));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

class DateEditIn : public DateEditTest, public testing::WithParamInterface<const char*> {};

TEST_P(DateEditIn, ReadsDatesOfItsLocaleAndOfTheDevice)
{
    toolkit.localeSettings.shortDate = GetParam();
    edit.setText("5.4.2019");
    EXPECT_EQ(edit.datePicker.Value(), (DateTime{2019, 4, 5}));
    edit.setText("2021-12-24");
    EXPECT_EQ(edit.datePicker.Value(), (DateTime{2021, 12, 24}));
    edit.setText(values::formatDate({2022, 10, 9}, "ddddd"));
    EXPECT_EQ(edit.datePicker.Value(), (DateTime{2022, 10, 9}));
    EXPECT_EQ(edit.Text(), "9.10.2022");
}

INSTANTIATE_TEST_SUITE_P(Locales, DateEditIn,
                         testing::Values("yyyy-MM-dd", "M/d/yyyy", "dd/MM/yyyy", "d.M.yyyy"));

class DateEditWithText : public DateEditTest, public testing::WithParamInterface<const char*> {};

TEST_P(DateEditWithText, ThatIsNoDateReportsAndStays)
{
    edit.setText("31.1.2020");
    edit.setText(GetParam());
    EXPECT_EQ(edit.Text(), "31.1.2020");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(CtrDateEdit ctr_date Text, 13,")));
}

INSTANTIATE_TEST_SUITE_P(Texts, DateEditWithText,
                         testing::Values("NaN", "31.2.2020", "1.13.2020", "1.1", "1..2020",
                                         "1.1.2020.", "1.1.2020 10:00", ".1.2020", "1.1.",
                                         "-1.1.2020", "1.1.99999", "99999999999.1.2020", "a.b.c",
                                         "..", ".", " ", "0.0.0"));

TEST_F(DateEdit, EmptyTextLeavesThePickerAndEmptiesTheEditor)
{
    edit.setText("31.1.2020");
    edit.setText("");
    EXPECT_EQ(edit.Text(), "");
    EXPECT_EQ(edit.datePicker.Value(), (DateTime{2020, 1, 31}));
    EXPECT_THAT(messenger.errors(), IsEmpty());
    edit.setText("31.1.2020"); // the very date that is shown
    EXPECT_EQ(edit.Text(), "31.1.2020");
}

TEST_F(DateEdit, GivesWhatTheProgramShowsInThePicker)
{
    edit.datePicker.setValue({2021, 2, 3});
    EXPECT_EQ(edit.Text(), "3.2.2021");
}

TEST_F(DateEdit, TakesThreeFormats)
{
    for (const std::int32_t format : {0, 1, 2}) {
        edit.SetPickerFormat(format);
        EXPECT_EQ(edit.datePicker.Format, format);
        EXPECT_EQ(edit.timeMode(), format == kTime);
    }
    for (const std::int32_t format : {-1, 3, 100}) {
        edit.SetPickerFormat(format);
        EXPECT_EQ(edit.datePicker.Format, kTime);
        EXPECT_TRUE(edit.timeMode());
    }
    edit.SetPickerFormat(1);
    EXPECT_FALSE(edit.timeMode());
}

TEST_F(DateEdit, ATimeWithDotsAppearsWithColons)
{
    edit.SetPickerFormat(kTime);
    edit.setText("8.05.30");
    EXPECT_EQ(edit.Text(), "8:05:30");
    edit.setText("23:59:01");
    EXPECT_EQ(edit.Text(), "23:59:01");
    EXPECT_THAT(messenger.errors(), IsEmpty());
    edit.setText("24.00.00");
    EXPECT_EQ(edit.Text(), "23:59:01");
    EXPECT_THAT(messenger.errors(), ElementsAre(HasSubstr("CtrDateEdit ctr_date Text, 13,")));
}

// --- What the user does -----------------------------------------------------------------------

TEST_F(DateEdit, APickedDateIsAnEditThatGoesIntoTheDatafile)
{
    loadQuietly();
    EXPECT_EQ(edit.datePicker.pick("2020-02-01"), UserDoor::done);
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(attribute("value"), "1.2.2020");
    EXPECT_EQ(attribute("synchronised"), "0");
    EXPECT_THAT(changes, ElementsAre("1.2.2020"));
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, edited)"));
}

TEST_F(DateEdit, TheWayBackIsNoEdit)
{
    loadQuietly();
    edit.datePicker.pick("2020-02-01");
    edit.datePicker.pick("2020-01-31");
    EXPECT_FALSE(edit.Modified());
    EXPECT_EQ(attribute("value"), "31.1.2020");
    EXPECT_EQ(attribute("synchronised"), "0");
    EXPECT_THAT(messenger.actions(), ElementsAre("SetParameterState(page, edited)",
                                                 "SetParameterState(page, original)"));
}

TEST_F(DateEdit, WhatTheProgramShowsIsNoEdit)
{
    loadQuietly();
    edit.setText("1.2.2020");
    EXPECT_FALSE(edit.Modified());
    EXPECT_EQ(attribute("value"), "31.1.2020");
    EXPECT_EQ(attribute("synchronised"), "1");
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(DateEdit, ModifiedTakenBackMakesTheDateTheOriginal)
{
    loadQuietly();
    edit.datePicker.pick("2020-02-01");
    edit.setModified(false);
    EXPECT_EQ(edit.originalDate(), (DateTime{2020, 2, 1}));
    edit.datePicker.pick("2020-01-31");
    EXPECT_TRUE(edit.Modified());
}

TEST_F(DateEdit, AnUnboundEditorWritesNothing)
{
    edit.datePicker.pick("2020-02-01");
    EXPECT_TRUE(edit.Modified());
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(DateEdit, TheDateThatAnEmptyEditorShowsCanBePickedByAWayRound)
{
    edit.datePicker.pick("2000-02-01");
    edit.datePicker.pick("2000-01-01");
    EXPECT_EQ(edit.Text(), "1.1.2000");
    EXPECT_TRUE(edit.Modified());
}

TEST_F(DateEdit, IsBarredInMode20Only)
{
    load();
    messenger.ViewSetCommunicationMode.raise(20);
    EXPECT_FALSE(edit.Enabled());
    EXPECT_EQ(edit.datePicker.pick("2020-02-01"), UserDoor::refused);
    messenger.ViewSetCommunicationMode.raise(11);
    EXPECT_TRUE(edit.Enabled());
}

// --- Life and faults --------------------------------------------------------------------------

TEST_F(DateEdit, PutsTheSignsBesideThePicker)
{
    edit.resize(3000, 300);
    EXPECT_GE(edit.lblModified.Left, edit.datePicker.Left + edit.datePicker.Width);
    EXPECT_GE(edit.lblError.Left, edit.lblModified.Left + edit.lblModified.Width);
    EXPECT_LE(edit.lblError.Left + edit.lblError.Width, 3000);
    EXPECT_EQ(edit.datePicker.Height, 300);
}

TEST_F(DateEdit, ADetachedOrDeadEditorDoesNotReact)
{
    load();
    edit.setModified(true);
    edit.SetMessenger(nullptr);
    auto other = std::make_unique<CtrDateEdit>(frame, platform::Design{.Tag = "ctr_other"});
    other->SetMessenger(&messenger);
    other->setModified(true);
    other.reset();
    forget();
    messenger.ViewSetCommunicationMode.raise(20);
    messenger.ViewGetChanges.raise(kModifiedEditors);
    EXPECT_TRUE(edit.Enabled());
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(DateEdit, AHandlerThatFailsStopsNothing)
{
    onChange = edit.Change.subscribe([](const std::string&) { throw platform::failure(9); });
    load("31.1.2020", "0");
    edit.datePicker.pick("2020-02-01");
    EXPECT_EQ(attribute("value"), "1.2.2020");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("CtrDateEdit ctr_date setOfflineData, 9,"),
                            HasSubstr("CtrDateEdit ctr_date datePicker_Change, 9,")));
}

class DateEditWithAFailingHost : public DateEditTest,
                                 public testing::WithParamInterface<const char*> {};

TEST_P(DateEditWithAFailingHost, GoesOn)
{
    messenger.failOn(GetParam());
    EXPECT_NO_THROW({
        load("31.1.2020", "2");
        edit.setText("no date");
        edit.setOnlineData(online("5.4.2019"));
        edit.datePicker.pick("2020-02-01");
        messenger.RequestChanges(kModifiedEditors);
        edit.handleError("communicationError");
        edit.setImportData(parameter());
    });
    EXPECT_TRUE(messenger.wasCalled(GetParam()));
    EXPECT_EQ(attribute("value"), "1.2.2020");
    EXPECT_EQ(edit.Text(), "1.2.2020");
    EXPECT_EQ(edit.syncState(), "syncError");
}

INSTANTIATE_TEST_SUITE_P(Operations, DateEditWithAFailingHost,
                         testing::Values("SetParameterState", "BookChange", "ReportError"));

} // namespace
} // namespace quill
