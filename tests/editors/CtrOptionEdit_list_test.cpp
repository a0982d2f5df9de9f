// The options of the option editor, and which of them a value means.

#include "option_editor_fixture.h"

#include "support/some_and_each.h"

namespace quill {
namespace {

using namespace test;
using platform::UserDoor;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class OptionEditList : public OptionEditTest {};

// --- The options ------------------------------------------------------------------------------

TEST_F(OptionEditList, HasAnOptionForEachEntryInTheirOrder)
{
    load();
    ASSERT_EQ(edit.OptionCount(), 3U);
    EXPECT_THAT(captions(), ElementsAre("off", "on", "auto"));
    EXPECT_EQ(edit.Option(2).Tag, "auto");
    EXPECT_EQ(edit.Option(2).Name, "optValue");
    EXPECT_EQ(edit.Option(2).Index, 2);
    EXPECT_THAT(edit.Widgets(), Contains(&edit.Option(2)));
}

TEST_F(OptionEditList, KeepsItsListWhereThereIsNone)
{
    load();
    edit.SetMappings(nullptr);
    EXPECT_EQ(edit.OptionCount(), 3U);
    EXPECT_EQ(edit.Selected(), "1");
}

TEST_F(OptionEditList, TheListIsACopyOfItsOwn)
{
    load();
    EXPECT_THAT(localizations(), ElementsAre("off", "on", "auto"));
    EXPECT_FALSE(platform::attributeNode(mappedParam().get_firstChild(), "localization"));
    mappedParam().get_firstChild().get_attributes().getNamedItem("value").put_value("5");
    EXPECT_EQ(edit.mapText("0"), "off");
}

TEST_F(OptionEditList, ShowsNamesUntilItIsLocalizedAndTheLanguageOfTheHostFromThenOn)
{
    load();
    edit.Localize(translator);
    EXPECT_THAT(captions(), ElementsAre("T-off", "T-on", "T-auto"));
    EXPECT_THAT(localizations(), ElementsAre("T-off", "T-on", "T-auto"));
    EXPECT_EQ(edit.labelText(), "T-ctr_mode");
    EXPECT_EQ(edit.Text(), "T-on");
    // The page comes up again: localized first, its list later.
    load("0", "1", R"(<data:mapping value="0" name="slow"/><data:mapping value="1" name="fast"/>)");
    EXPECT_THAT(captions(), ElementsAre("T-slow", "T-fast"));
    EXPECT_THAT(localizations(), ElementsAre("T-slow", "T-fast"));
}

TEST_F(OptionEditList, AnEntryWithoutATranslationKeepsItsName)
{
    load();
    translator.texts["on"] = "Err:on";
    translator.failingKey  = "auto";
    edit.Localize(translator);
    EXPECT_THAT(captions(), ElementsAre("T-off", "on", "auto"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Options ctr_mode Localize, 5,")));
}

TEST_F(OptionEditList, ALostTranslatorLeavesTheNames)
{
    edit.Localize(translator);
    messenger.translator = nullptr;
    load();
    EXPECT_THAT(captions(), ElementsAre("off", "on", "auto"));
    EXPECT_THAT(messenger.errors(), SizeIs(3)) << "one for each entry";
    EXPECT_THAT(messenger.errors(),
                SomeAndEach(HasSubstr("ReportError(Options ctr_mode SetMappings, 91,")));
}

TEST_F(OptionEditList, AnEntryWithoutNameOrValueIsReportedAndShown)
{
    load("1", "1",
         R"(<data:mapping value="0"/><data:mapping name="on"/><!-- none --> )"
         R"(<data:mapping value="1" name="auto"/>)");
    EXPECT_THAT(captions(), ElementsAre("", "on", "auto"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Options ctr_mode SetMappings, 91,"),
                            HasSubstr("ReportError(Options ctr_mode SetMappings, 91,")));
    EXPECT_THAT(marked(), ElementsAre(2U));
}

TEST_F(OptionEditList, AnotherListTakesOptionsAwayAndTheSameOneKeepsThem)
{
    load();
    const auto* first = &edit.Option(0);
    load("0", "1", R"(<data:mapping value="0" name="slow"/>)");
    ASSERT_EQ(edit.OptionCount(), 1U);
    EXPECT_EQ(&edit.Option(0), first);
    EXPECT_THAT(captions(), ElementsAre("slow"));
    EXPECT_THAT(marked(), ElementsAre(0U));
}

TEST_F(OptionEditList, OptionsCanBeAddedByTag)
{
    edit.addOption("manual");
    edit.addOption("on");
    EXPECT_THAT(captions(), ElementsAre("manual", "on"));
    load();
    // The entry takes over the option that was meant for it.
    EXPECT_THAT(captions(), ElementsAre("off", "on", "auto", "manual"));
    EXPECT_EQ(edit.Option(3).Tag, "manual");
    edit.addOption("auto");
    EXPECT_EQ(edit.OptionCount(), 4U);
    EXPECT_EQ(edit.Selected(), "1");
    edit.Localize(translator);
    edit.addOption("remote");
    EXPECT_THAT(captions(), ElementsAre("T-off", "T-on", "T-auto", "T-manual", "T-remote"));
}

TEST_F(OptionEditList, AnAddedOptionWithoutAnEntryHasNoValueToSend)
{
    edit.addOption("manual");
    loadQuietly();
    EXPECT_EQ(edit.Option(3).click(), UserDoor::done);
    EXPECT_THAT(marked(), ElementsAre(3U));
    EXPECT_EQ(edit.Selected(), "");
    EXPECT_EQ(edit.Text(), "manual");
    EXPECT_TRUE(edit.Modified());
    EXPECT_THAT(changes, ElementsAre("manual"));
    EXPECT_FALSE(edit.GetXmlItem(false));
    EXPECT_EQ(attribute("value"), "1");
}

// --- Layout -----------------------------------------------------------------------------------

TEST_F(OptionEditList, StandsInAColumnAndGrowsForIt)
{
    CtrOptionEdit small{frame, {.Name = "small", .Tag = "ctr_mode", .Width = 600, .Height = 200}};
    give("1", "1");
    small.SetMappings(mappedParam());
    EXPECT_EQ(small.Option(0).Top, 0);
    EXPECT_EQ(small.Option(1).Top, small.Option(0).Height);
    EXPECT_EQ(small.Option(2).Top, 2 * small.Option(0).Height);
    EXPECT_GE(small.Height, 3 * small.Option(0).Height);
    EXPECT_GE(small.frmOptions.Height, 3 * small.Option(0).Height);
    // Four characters of 100 twips, and the mark.
    EXPECT_GT(small.Option(0).Width, 400);
    EXPECT_LE(small.frmOptions.Left + small.frmOptions.Width, small.lblModified.Left);
    EXPECT_LE(small.lblError.Left + small.lblError.Width, small.Width);

    translator.texts["off"]   = "switched off for good";
    const std::int32_t before = small.Width;
    small.Localize(translator);
    EXPECT_GT(small.Width, before);
    EXPECT_GT(small.Option(0).Width, 2100);
}

TEST_F(OptionEditList, KeepsTheSizeThatIsLargeEnough)
{
    CtrOptionEdit large{frame, {.Name = "large", .Tag = "ctr_mode", .Width = 6000, .Height = 3000}};
    give("1", "1");
    large.SetMappings(mappedParam());
    EXPECT_EQ(large.Width, 6000);
    EXPECT_EQ(large.Height, 3000);
    large.resize(5000, 100);
    EXPECT_EQ(large.Width, 5000);
    EXPECT_EQ(large.Height, 3 * large.Option(0).Height);
}

TEST_F(OptionEditList, AToolkitThatRefusesCostsTheWidthsOnly)
{
    toolkit.beforeOperation = [](const char* operation) {
        if (std::string(operation) == "textWidth") {
            throw platform::failure(platform::kInvalidCall);
        }
    };
    load();
    EXPECT_EQ(edit.OptionCount(), 3U);
    EXPECT_THAT(marked(), ElementsAre(1U));
}

// --- `Selected`, `Text` and `mapText` ---------------------------------------------------------

TEST_F(OptionEditList, SelectedByValueIsAnEdit)
{
    loadQuietly("1");
    edit.setSelected("7");
    EXPECT_EQ(edit.Selected(), "7");
    EXPECT_THAT(marked(), ElementsAre(2U));
    EXPECT_TRUE(edit.Modified());
    EXPECT_THAT(messenger.calls, ElementsAre("WriteLog(70, CtrOptionEdit Selected originally 1)",
                                             "WriteLog(70, CtrOptionEdit Selected changing to 7)",
                                             "WriteLog(70, and to auto)", state("edited")));
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_EQ(attribute("value"), "1");
    forget();
    edit.setSelected("1");
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(messenger.actions(), ElementsAre(state("original")));
}

TEST_F(OptionEditList, SelectedByNameNeedsNoMapping)
{
    loadQuietly("1");
    edit.setSelected("auto");
    EXPECT_EQ(edit.Selected(), "7");
    EXPECT_TRUE(edit.Modified());
    EXPECT_THAT(messenger.calls,
                ElementsAre("WriteLog(70, CtrOptionEdit Selected originally 1)", state("edited")));
}

TEST_F(OptionEditList, SelectedWithAnUnknownValueChoosesNone)
{
    loadQuietly("1");
    edit.setSelected("9");
    EXPECT_EQ(edit.Selected(), "");
    EXPECT_THAT(marked(), IsEmpty());
    EXPECT_TRUE(edit.Modified());
    EXPECT_FALSE(edit.GetXmlItem(false));
    forget();
    edit.setSelected("1");
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(messenger.calls, Contains("WriteLog(70, CtrOptionEdit Selected originally )"));
}

TEST_F(OptionEditList, NothingSelectedIsAnEditOnlyWhereThereWasAnOriginal)
{
    loadQuietly("9");
    edit.setSelected("");
    EXPECT_FALSE(edit.Modified());
    edit.setSelected("9");
    EXPECT_TRUE(edit.Modified());
    loadQuietly("1");
    edit.setSelected("");
    EXPECT_TRUE(edit.Modified());
}

TEST_F(OptionEditList, TextIsTheShownText)
{
    loadQuietly("1");
    edit.Localize(translator);
    EXPECT_EQ(edit.Text(), "T-on");
    forget();
    edit.setText("7");
    EXPECT_EQ(edit.Text(), "T-auto");
    edit.setText("auto");
    edit.setText("nowhere");
    EXPECT_EQ(edit.Text(), "");
    EXPECT_THAT(changes, ElementsAre("auto", ""));
    EXPECT_FALSE(edit.Modified());
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(OptionEditList, MapTextSearchesForTheValue)
{
    load("1");
    EXPECT_EQ(edit.mapText("7"), "auto");
    EXPECT_EQ(edit.mapText("auto"), "");
    EXPECT_EQ(edit.mapText("9"), "");
    EXPECT_EQ(edit.mapText("1.0"), ""); // no float
}

TEST_F(OptionEditList, MapTextRoundsAFloat)
{
    load("1.0", "1", kModes, "floatVal");
    EXPECT_EQ(edit.Selected(), "1");
    EXPECT_EQ(edit.mapText("6.8"), "auto");
    EXPECT_EQ(edit.mapText("0.5"), "off"); // a tie goes to the even one
    EXPECT_EQ(edit.mapText("NaN"), "");
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_EQ(edit.mapText("3e9"), "");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(HasSubstr("ReportError(Options ctr_mode mapText, 6,")));
}

class OptionEditWithComma : public OptionEditTest {
protected:
    OptionEditWithComma() : OptionEditTest(",") {}
};

TEST_F(OptionEditWithComma, MapTextReadsBothSeparators)
{
    load("7.0", "1", kModes, "floatVal");
    EXPECT_EQ(edit.Selected(), "7");
    EXPECT_EQ(edit.mapText("1,0"), "on");
    EXPECT_EQ(edit.mapText("1.0"), "on");
}

} // namespace
} // namespace quill
