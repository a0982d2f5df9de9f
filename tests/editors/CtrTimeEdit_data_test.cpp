// How the time editor takes values from documents and gives its own back.

#include "time_editor_fixture.h"

namespace quill {
namespace {

using namespace test;
using platform::UserDoor;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class TimeEditData : public TimeEditTest {};

// --- Values from the datafile -----------------------------------------------------------------

TEST_F(TimeEditData, InStep)
{
    load();
    EXPECT_EQ(edit.Text(), "1.5");
    EXPECT_FALSE(edit.Modified());
    EXPECT_TRUE(edit.hasSynced());
    EXPECT_THAT(changes, ElementsAre("1.5"));
    EXPECT_THAT(messenger.actions(), ElementsAre(state("sync")));
    EXPECT_EQ(attribute("value"), "1.5");
    EXPECT_EQ(attribute("synchronised"), "1");
}

TEST_F(TimeEditData, WithACommunicationErrorAtLoad)
{
    load({{"synchronised", "2"}});
    EXPECT_EQ(edit.Text(), "1.5");
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(messenger.actions(), ElementsAre(state("syncError")));
}

TEST_F(TimeEditData, OutOfStepComesUpModifiedWithoutAnOriginal)
{
    load({{"synchronised", "0"}});
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.originalText(), "");
    EXPECT_THAT(messenger.actions(), ElementsAre(state("edited")));
    forget();
    type(2, "2");
    type(2, "1");
    EXPECT_TRUE(edit.Modified());
}

TEST_F(TimeEditData, OutOfStepAndEmptyIsNotModified)
{
    load({{"synchronised", "0"}, {"value", ""}});
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(boxes(), ElementsAre("", "", "", ""));
    EXPECT_THAT(messenger.actions(), IsEmpty());
}

TEST_F(TimeEditData, TakesItsLimitsAndItsForm)
{
    load({{"minVal", "0.5"}, {"maxVal", "10"}, {"decimals", "2"}});
    EXPECT_EQ(edit.limitMin(), 0.5);
    EXPECT_EQ(edit.limitMax(), 10);
    EXPECT_EQ(edit.decimalCount(), 2);
    EXPECT_EQ(edit.numberFormat(), "######0.00");
    EXPECT_EQ(edit.Text(), "1.50");

    load({{"minVal", ""}, {"maxVal", ""}, {"decimals", ""}});
    EXPECT_EQ(edit.limitMin(), numberRules::kLowerSentinel);
    EXPECT_EQ(edit.limitMax(), numberRules::kUpperSentinel);
    EXPECT_EQ(edit.numberFormat(), "######0.000");
    EXPECT_EQ(edit.decimalCount(), 3);

    load({{"decimals", "0"}});
    EXPECT_EQ(edit.numberFormat(), "######0");
    EXPECT_EQ(edit.Text(), "2");
}

TEST_F(TimeEditData, AnIntegerHasItsOwnLimitsAndNoDecimals)
{
    load({{"type", "intVal"},
          {"minVal", ""},
          {"maxVal", ""},
          {"value", "90"},
          {"unit", "s"},
          {"decimals", "-"}});
    EXPECT_EQ(edit.limitMin(), -2147483647);
    EXPECT_EQ(edit.limitMax(), 2147483647);
    EXPECT_EQ(edit.numberFormat(), "######0");
    EXPECT_EQ(edit.Text(), "90");
    EXPECT_THAT(messenger.errors(), IsEmpty());
    type(2, "2");
    EXPECT_EQ(attribute("value"), "150");
}

TEST_F(TimeEditData, ReportsLimitsAndDecimalsThatAreNone)
{
    load({{"minVal", "low"}, {"maxVal", "high"}, {"decimals", "some"}});
    EXPECT_EQ(messenger.errors().size(), 3U);
    EXPECT_THAT(messenger.errors(),
                Contains(HasSubstr("ReportError(TimeEdit ctr_delay setOfflineData, 13,")).Times(3));
    EXPECT_EQ(edit.Text(), "2");
}

TEST_F(TimeEditData, StaysBoundToItsFirstParameter)
{
    load();
    const auto first = datafile;
    load({{"value", "3"}});
    type(3, "30");
    EXPECT_EQ(attribute("value"), "3");
    EXPECT_EQ(documents::attributeText(documents::findParameter(first, "delay"), "value"), "3.5");
}

TEST_F(TimeEditData, AnEditIsFoundByTheNextLoad)
{
    load();
    type(2, "5");
    forget();
    edit.setOfflineData(parameter());
    EXPECT_EQ(edit.Text(), "5.5");
    EXPECT_TRUE(edit.Modified());
}

TEST_F(TimeEditData, DoesNothingForAnEmptyNode)
{
    loadQuietly();
    expectThatEmptyNodesDoNothing();
    EXPECT_EQ(edit.Text(), "1.5");
}

class TimeEditWithout : public TimeEditTest, public testing::WithParamInterface<const char*> {};

TEST_P(TimeEditWithout, AnAttributeGoesOn)
{
    const std::string missing = GetParam();
    give({{missing, "-"}});
    EXPECT_TRUE(edit.setOfflineData(parameter()));
    // What a parameter says of its access is not needed.
    EXPECT_EQ(messenger.errors().size(), missing == "access" ? 0U : 1U);
    EXPECT_EQ(edit.Text(), missing == "value" || missing == "unit" ? ""
                           : missing == "decimals"                 ? "1.500"
                           : missing == "type"                     ? "2"
                                                                   : "1.5");
    EXPECT_EQ(edit.Modified(), missing == "synchronised");
    EXPECT_FALSE(edit.Locked());
    EXPECT_EQ(changes.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Attributes, TimeEditWithout,
                         testing::Values("type", "minVal", "maxVal", "decimals", "unit", "value",
                                         "synchronised", "access"));

TEST_F(TimeEditData, IsReadOnlyWhereTheAccessSaysNoWrite)
{
    for (const char* access : {"read", "", "none"}) {
        CtrTimeEdit other{frame, {.Name = "other", .Tag = "ctr_delay"}};
        other.SetMessenger(&messenger);
        give({{"access", access}, {"synchronised", "0"}});
        other.setOfflineData(parameter());
        EXPECT_TRUE(other.Locked()) << access;
        EXPECT_TRUE(other.Silent());
        EXPECT_EQ(other.accessText(), access);
        for (platform::TextBox& box : other.txtBox) {
            EXPECT_EQ(box.BackColor, editorColors::kGrey);
            EXPECT_EQ(box.type("1"), UserDoor::refused);
        }
        EXPECT_EQ(other.Text(), "1.5");
        other.setEnabled(false); // has no say while silent and locked
        EXPECT_TRUE(other.Enabled());
        messenger.RequestChanges(kModifiedEditors);
        EXPECT_THAT(messenger.bookings, IsEmpty());
    }
    load({{"access", "reAdWrIte"}});
    EXPECT_FALSE(edit.Locked());
    EXPECT_EQ(edit.txtBox[3].BackColor, editorColors::kWhite);
}

// --- Values from the device and from an import ------------------------------------------------

TEST_F(TimeEditData, TakesAValueFromTheDevice)
{
    loadQuietly({{"synchronised", "0"}});
    EXPECT_TRUE(edit.setOnlineData(online("2.5")));
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "2", "30"));
    EXPECT_EQ(edit.originalText(), "2.5");
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(changes, ElementsAre("2.5"));
    EXPECT_THAT(messenger.actions(), ElementsAre(state("original"), state("sync")));
    EXPECT_THAT(messenger.callsTo("WriteLog"), IsEmpty());
    EXPECT_EQ(attribute("value"), "1.5");
}

TEST_F(TimeEditData, AValueFromTheDeviceEndsAWrongEdit)
{
    loadQuietly();
    type(2, "x");
    forget();
    edit.setOnlineData(online("2.5"));
    EXPECT_TRUE(edit.Correct());
    EXPECT_FALSE(edit.Modified());
    EXPECT_EQ(edit.changeState(), "original");
    EXPECT_THAT(states(), ElementsAre(state("corrected"), state("original"), state("sync")));
}

TEST_F(TimeEditData, TheUnitOfTheMessageCounts)
{
    loadQuietly();
    edit.setOnlineData(online("1.505", "h"));
    EXPECT_THAT(boxes(), ElementsAre("0", "1", "30", "18"));
    EXPECT_EQ(edit.Text(), "90.3");
    EXPECT_EQ(edit.originalText(), "90.3");
    EXPECT_EQ(edit.messageUnit(), "min");
    EXPECT_THAT(messenger.callsTo("WriteLog"),
                ElementsAre("WriteLog(84, ctr_delay viestin yksikkö h <> min Datafilessä!\r\n"
                            "Käytän VIESTIN yksikköä h)"));
}

TEST_F(TimeEditData, AMessageWithoutAUnitHasThatOfTheDatafile)
{
    for (const char* unit : {"noUnit", ""}) {
        loadQuietly();
        edit.setOnlineData(online("2.5", unit));
        EXPECT_EQ(edit.Text(), "2.5");
        EXPECT_THAT(messenger.callsTo("WriteLog"),
                    ElementsAre("WriteLog(84, ctr_delay viestin yksikkö " + std::string(unit) +
                                " <> min Datafilessä!\r\nKäytän Datafilen yksikköä min)"));
    }
}

TEST_F(TimeEditData, AUnitOfTheMessageThatTheHostDoesNotKnowLeavesTheBoxesEmpty)
{
    loadQuietly();
    edit.setOnlineData(online("2.5", "fortnight"));
    EXPECT_THAT(boxes(), ElementsAre("", "", "", ""));
    EXPECT_EQ(edit.originalText(), "");
    EXPECT_FALSE(edit.Modified());
    EXPECT_EQ(edit.syncState(), "sync");
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(TimeEditData, AValueThatCannotBeShownEmptiesTheBoxes)
{
    const auto fails = [this](const auto& set) {
        converter.failing = false;
        loadQuietly();
        EXPECT_THAT(boxes(), ElementsAre("0", "0", "1", "30"));
        converter.failing = true;
        set();
        EXPECT_THAT(boxes(), ElementsAre("", "", "", ""));
        EXPECT_EQ(edit.Text(), "");
    };
    fails([this] { edit.setOfflineData(parameter()); });
    fails([this] { edit.setOnlineData(online("2.5")); });
    fails([this] { edit.setOnlineData(online("2.5", "h")); });
    fails([this] { edit.setImportData(parameter()); });
}

TEST_F(TimeEditData, WhatIsNoNumberHasNoUnit)
{
    for (const char* text : {"NaN", "-Inf"}) {
        loadQuietly();
        edit.setOnlineData(online(text, "h"));
        EXPECT_EQ(edit.Text(), "0.0");
        EXPECT_THAT(messenger.callsTo("WriteLog"), IsEmpty());
    }
}

TEST_F(TimeEditData, ReportsAnItemWithoutItsValue)
{
    loadQuietly();
    EXPECT_TRUE(edit.setOnlineData(online("2.5", "min", "stringVal")));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(TimeEdit ctr_delay setOnlineData, 91,")));
    EXPECT_THAT(boxes(), ElementsAre("", "", "", ""));
    EXPECT_EQ(edit.syncState(), "sync");
}

TEST_F(TimeEditData, LocalDataIsOnlineData)
{
    loadQuietly();
    edit.setLocalData(online("2.5"));
    EXPECT_FALSE(edit.Modified());
    EXPECT_EQ(edit.Text(), "2.5");
}

TEST_F(TimeEditData, RecoversFromACommunicationError)
{
    loadQuietly();
    edit.handleError("communicationError");
    EXPECT_FALSE(edit.hasSynced());
    edit.setOnlineData(online("2.5"));
    edit.setOnlineData(online("2.5"));
    EXPECT_THAT(states(), ElementsAre(state("syncError"), state("reSync"), state("reSync")));
}

TEST_F(TimeEditData, AParameterThatTheDeviceLacksIsWrong)
{
    for (const char* code : {"missingItems", "commandIsNotImplemented"}) {
        CtrTimeEdit other{frame, {.Name = "other", .Tag = "ctr_delay"}};
        other.SetMessenger(&messenger);
        messenger.clear();
        other.handleError(code);
        EXPECT_TRUE(other.Modified());
        EXPECT_FALSE(other.Correct());
        EXPECT_THAT(states(), ElementsAre(state("edited"), state("editedError")));
    }
}

TEST_F(TimeEditData, ARefusalIsAnAnswer)
{
    for (const char* code :
         {"hartCmdErrSuspiciousCalibration", "hartCmdErrRecipeNotCalibratedOrPulpTypeNotAllowed"}) {
        loadQuietly();
        type(2, "5");
        forget();
        edit.handleError(code);
        EXPECT_FALSE(edit.Modified());
        EXPECT_EQ(edit.originalText(), "5.5");
        EXPECT_THAT(states(), ElementsAre(state("original"), state("sync")));
    }
    forget();
    edit.handleError("anything");
    EXPECT_THAT(messenger.actions(), IsEmpty());
}

TEST_F(TimeEditData, TakesAnImportAsAnUnsavedEdit)
{
    loadQuietly();
    const auto loaded = datafile;
    give({{"value", "4.5"}});
    EXPECT_TRUE(edit.setImportData(parameter()));
    EXPECT_THAT(boxes(), ElementsAre("0", "0", "4", "30"));
    EXPECT_TRUE(edit.Modified());
    EXPECT_EQ(edit.originalText(), "1.5");
    EXPECT_THAT(changes, ElementsAre("4.5"));
    EXPECT_THAT(messenger.actions(), ElementsAre(state("edited")));
    EXPECT_EQ(documents::attributeText(documents::findParameter(loaded, "delay"), "value"), "1.5");
    type(2, "1");
    EXPECT_FALSE(edit.Modified());
}

TEST_F(TimeEditData, AnImportIsSeenAsItIsSent)
{
    loadQuietly({{"unit", "h"}, {"decimals", "0"}});
    give({{"unit", "h"}, {"decimals", "0"}, {"value", "1.5"}});
    edit.setImportData(parameter());
    EXPECT_THAT(boxes(), ElementsAre("0", "2", "0", "0"));
    EXPECT_EQ(edit.Text(), "2");
}

// --- Items and bookings -----------------------------------------------------------------------

TEST_F(TimeEditData, TheItemCarriesOneNumberAndItsUnit)
{
    load();
    EXPECT_EQ(edit.GetXmlItem(false).get_xml(),
              R"(<item name="delay" unit="min"><floatVal>1.5</floatVal></item>)");
}

TEST_F(TimeEditData, GivesNoItemForNothingOrWhatIsWrong)
{
    EXPECT_FALSE(edit.GetXmlItem(false));
    load();
    edit.setCorrect(false);
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_THAT(edit.GetXmlItem(true).get_xml(), HasSubstr("<floatVal>1.5</floatVal>"));
    edit.setText("");
    EXPECT_THAT(edit.GetXmlItem(true).get_xml(), HasSubstr("<floatVal/>"));
    edit.Tag = "";
    EXPECT_FALSE(edit.GetXmlItem(true).get_documentElement());
}

TEST_F(TimeEditData, BooksOldAndNew)
{
    load();
    translator.texts["ctr_delay"] = "Start delay";
    edit.Localize(translator);
    edit.setContextTag("group");
    type(2, "5");
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.callsTo("BookChange"),
                ElementsAre("BookChange(ctr_delay, Start delay, 1.5, 5.5, , floatVal, group)"));
    ASSERT_EQ(messenger.bookings.size(), 1U);
    EXPECT_EQ(messenger.bookings[0].editor, &edit);
}

TEST_F(TimeEditData, BooksByScopeAndNotWhileSilentOrWrong)
{
    load();
    expectBookingsByScopeAndNotWhileSilent();
    type(2, "x");
    messenger.RequestChanges(kAllEditors);
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_EQ(messenger.bookings.size(), 1U);
}

TEST_F(TimeEditData, AHostThatTakesNoBookingIsReported)
{
    load({{"synchronised", "0"}});
    messenger.failOn("BookChange", 13);
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(TimeEdit ctr_delay mMessenger_ViewGetChanges, "
                                      "13,")));
}

TEST_F(TimeEditData, AHandlerThatThrowsIsReported)
{
    loadQuietly();
    platform::Subscription refuse = edit.Change.subscribe(
        [](const std::string&) { throw platform::failure(platform::kTypeMismatch); });
    type(2, "5");
    EXPECT_EQ(attribute("value"), "5.5");
    edit.setOnlineData(online("2.5"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(TimeEdit ctr_delay txtBox_Change, 13,"),
                            HasSubstr("ReportError(TimeEdit ctr_delay setOnlineData, 13,")));
}

TEST_F(TimeEditData, IsServedByAPage)
{
    TestPage    page{{.Name = "page", .Tag = "page"}};
    CtrTimeEdit time{page, {.Name = "delay", .Tag = "ctr_delay"}};
    page.SetMessenger(&messenger);
    page.Localize(translator);
    const auto file = test::datafile(
        R"(<data:parameter name="delay" type="floatVal" value="1.5" unit="min" decimals="1" )"
        R"(minVal="" maxVal="" access="readWrite" synchronised="1"/>)",
        "",
        R"(<data:requestGroup name="group"><data:includedParam name="delay"/></data:requestGroup>)");
    page.SetOfflineData(file);
    EXPECT_EQ(time.Text(), "1.5");
    EXPECT_EQ(time.ContextTag(), "group");
    // The captions of the units are no texts to be translated.
    EXPECT_EQ(time.lblUnit[0].Caption, "d");
    page.SetOnlineData(test::okResponse("group", test::item("delay", "min", "floatVal", "2.5")));
    EXPECT_EQ(time.Text(), "2.5");
    page.SetImportData(file);
    EXPECT_EQ(time.Text(), "1.5");
    EXPECT_TRUE(time.Modified());
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

} // namespace
} // namespace quill
