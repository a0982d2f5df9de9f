// How a page hands on texts and the Messenger, and how it is shown and walked.

#include "modView_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using namespace platform;

// --- Localize --------------------------------------------------------------------------------

TEST_F(ModView, LocalizeTakesCaptionsByTag)
{
    Label         label{page, {.Tag = "ctr_speed"}};
    CommandButton button{page, {.Tag = "set"}};
    CheckBox      check{page, {.Tag = "all"}};
    OptionButton  option{page, {.Tag = "one"}};
    page.Localize(translator);
    EXPECT_EQ(label.Caption.get(), "t:ctr_speed");
    EXPECT_EQ(button.Caption.get(), "t:set");
    EXPECT_EQ(check.Caption.get(), "t:all");
    EXPECT_EQ(option.Caption.get(), "t:one");
    EXPECT_THAT(translator.calls, ElementsAre("TranslateTag(ctr_speed)", "TranslateTag(set)",
                                              "TranslateTag(all)", "TranslateTag(one)"));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(ModView, LocalizeLeavesWidgetsWithAnEmptyTagAlone)
{
    Label         label{page, {.Caption = "as laid out"}};
    CommandButton button{page, {.Caption = "as laid out"}};
    TextBox       text{page, {.Caption = "as laid out"}};
    page.Localize(translator);
    EXPECT_EQ(label.Caption.get(), "as laid out");
    EXPECT_EQ(button.Caption.get(), "as laid out");
    EXPECT_EQ(text.Text.get(), "as laid out");
    EXPECT_THAT(translator.calls, IsEmpty());
}

TEST_F(ModView, LocalizeTranslatesATextBoxThatIsNotBound)
{
    TextBox help{page, {.Tag = "help"}};
    TextBox bound{page, {.Tag = "ctr_tag", .Caption = "FIC-1"}};
    page.Localize(translator);
    EXPECT_EQ(help.Text.get(), "t:help");
    EXPECT_EQ(bound.Text.get(), "FIC-1");
    EXPECT_THAT(translator.calls, ElementsAre("Translate(help)"));
}

TEST_F(ModView, LocalizeTranslatesColumnsWithATag)
{
    ListView list{page};
    list.setColumnHeaders({{"A", "a", 0}, {"B", "", 0}, {"C", "c", 0}});
    page.Localize(translator);
    EXPECT_EQ(list.ColumnHeaders()[0].Text, "t:a");
    EXPECT_EQ(list.ColumnHeaders()[1].Text, "B");
    EXPECT_EQ(list.ColumnHeaders()[2].Text, "t:c");
}

TEST_F(ModView, OneColumnThatFailsCostsOneColumn)
{
    ListView list{page};
    list.setColumnHeaders({{"A", "a", 0}, {"C", "c", 0}});
    translator.failingKey = "a";
    page.Localize(translator);
    EXPECT_EQ(list.ColumnHeaders()[0].Text, "A");
    EXPECT_EQ(list.ColumnHeaders()[1].Text, "t:c");
    EXPECT_THAT(host.errors(), SizeIs(1));
}

TEST_F(ModView, LocalizeReachesSubViewsAndEditors)
{
    FakeSubView sub{page};
    FakeEditor  editor{page, EditorKind::text, ""};
    page.Localize(translator);
    EXPECT_THAT(sub.calls, ElementsAre("Localize"));
    EXPECT_THAT(editor.calls, ElementsAre("Localize"));
}

TEST_F(ModView, LocalizeLeavesExcludedKindsAlone)
{
    Frame         frame{page, {.Tag = "x"}};
    ImageList     images{page, {.Tag = "x"}};
    Menu          menu{page, {.Tag = "x"}};
    PictureBox    picture{page, {.Tag = "x"}};
    FakeDateLabel date{page, "date_x"};
    page.Localize(translator);
    EXPECT_THAT(host.errors(), IsEmpty());
    EXPECT_THAT(translator.calls, IsEmpty());
}

TEST_F(ModView, LocalizeReportsAPlainWidgetThatIsNotExcludedAndGoesOn)
{
    ComboBox   combo{page};
    DatePicker picker{page};
    Label      label{page, {.Tag = "behind"}};
    page.Localize(translator);
    EXPECT_THAT(host.errors(), ElementsAre(std::string("ReportError(modView Localize: , ") + k438,
                                           std::string("ReportError(modView Localize: , ") + k438));
    EXPECT_EQ(label.Caption.get(), "t:behind");
}

TEST_F(ModView, ALabelThatFailsCostsOneLabel)
{
    Label first{page, {.Tag = "bad", .Caption = "old"}};
    Label second{page, {.Tag = "good"}};
    translator.failingKey = "bad";
    page.Localize(translator);
    EXPECT_EQ(first.Caption.get(), "old");
    EXPECT_EQ(second.Caption.get(), "t:good");
    EXPECT_THAT(
        host.errors(),
        ElementsAre("ReportError(modView Localize: , 5, Invalid procedure call or argument)"));
}

// --- setMessenger ----------------------------------------------------------------------------

TEST_F(ModView, SetMessengerReachesChildrenAndDropsTheirFailures)
{
    FakeSubView bad{page};
    ComboBox    plain{page};
    FakeEditor  editor{page, EditorKind::text, ""};
    bad.failing = "SetMessenger";
    page.SetMessenger(&host);
    EXPECT_EQ(editor.messenger, &host);
    EXPECT_THAT(bad.calls, ElementsAre("SetMessenger"));
    EXPECT_THAT(host.errors(), IsEmpty());
    page.SetMessenger(nullptr);
    EXPECT_EQ(editor.messenger, nullptr);
}

/// A view that cannot say what is on it.
class FailingPage : public TestPage {
public:
    bool controlsFail  = false;
    bool messengerFail = false;

    WidgetList GetControls() override
    {
        if (controlsFail) {
            throw failure(kObjectNotSet);
        }
        return TestPage::GetControls();
    }
    Messenger* GetMessenger() override
    {
        if (messengerFail) {
            throw failure(kObjectNotSet);
        }
        return TestPage::GetMessenger();
    }
};

TEST_F(ModView, AFailureOutsideTheChildrenIsReportedBySetMessenger)
{
    FailingPage failing;
    failing.controlsFail = true;
    failing.SetMessenger(&host);
    EXPECT_THAT(host.errors(),
                ElementsAre("ReportError(modView setMessenger: , 91, Object variable "
                            "or With block variable not set)"));
}

TEST_F(ModView, AViewWhoseMessengerFailsReportsToTheDebugOutput)
{
    FailingPage failing;
    ComboBox    plain{failing};
    Label       label{failing, {.Tag = "behind"}};
    failing.messengerFail = true;
    failing.Localize(translator);
    EXPECT_EQ(label.Caption.get(), "t:behind");
    EXPECT_THAT(toolkit.debugLines, ElementsAre(HasSubstr("modView Localize: ")));
}

TEST_F(ModView, AViewWithoutAMessengerServesItsChildrenAllTheSame)
{
    TestPage         silent;
    ComboBox         plain{silent};
    FakeMappedEditor combo{silent, EditorKind::combo, "ctr_alarmAction"};
    silent.SetOnlineData(okResponse("group", item("alarmAction", "noUnit", "integerVal", "1")));
    silent.SetOfflineData(datafile(R"(<data:parameter name="alarmAction"/>)"));
    EXPECT_THAT(combo.calls, ElementsAre("setOnlineData alarmAction", "SetMappings nothing",
                                         "setContextTag", "setOfflineData alarmAction"));
    EXPECT_THAT(toolkit.debugLines, SizeIs(1)) << "the plain combo box, from setOnlineData";
}

TEST_F(ModView, AMessengerThatThrowsWhileItTakesAReportStopsNothing)
{
    ComboBox plain{page};
    Label    label{page, {.Tag = "behind"}};
    host.failOn("ReportError");
    page.Localize(translator);
    EXPECT_EQ(label.Caption.get(), "t:behind");
}

// --- Pages and states -------------------------------------------------------------------------

TEST_F(ModView, PagesNest)
{
    TestPage inner{page, {.Name = "inner"}};
    Label    label{inner, {.Tag = "deep"}};
    page.Localize(translator);
    EXPECT_EQ(label.Caption.get(), "t:deep");
    page.PrepareToRelease();
    EXPECT_EQ(inner.GetMessenger(), nullptr);
}

TEST_F(ModView, ForwardSyncChangesMovesTheStateAndReportsChanges)
{
    struct Case {
        bool        ok;
        const char* before;
        const char* after;
        bool        reported;
    };
    const Case cases[] = {
        {false, "notRead", "syncError", true},
        {false, "sync", "syncError", true},
        {false, "", "syncError", true},
        {false, "syncError", "syncError", false},
        {true, "notRead", "sync", true},
        {true, "syncError", "reSync", true},
        {true, "sync", "sync", false},
        {true, "reSync", "reSync", false},
        {true, "", "", false},
    };
    for (const auto& test : cases) {
        host.clear();
        std::string state = test.before;
        modView::forwardSyncChanges("eventLog", test.ok, state, &host);
        EXPECT_EQ(state, test.after);
        if (test.reported) {
            EXPECT_THAT(host.calls, ElementsAre(std::string("SetParameterState(eventLog, ") +
                                                test.after + ")"));
        } else {
            EXPECT_THAT(host.calls, IsEmpty()) << test.before;
        }
    }
}

TEST_F(ModView, ForwardSyncChangesMovesTheStateAlsoIfTheReportFails)
{
    std::string state = "notRead";
    host.failOn("SetParameterState");
    modView::forwardSyncChanges("eventLog", true, state, &host);
    EXPECT_EQ(state, "sync");
    EXPECT_THAT(host.errors(), ElementsAre("ReportError(modView forwardSyncChanges, 5, Invalid "
                                           "procedure call or argument)"));
    state = "notRead";
    modView::forwardSyncChanges("eventLog", true, state, nullptr);
    EXPECT_EQ(state, "sync");
}

TEST_F(ModView, ShowViewPageBringsTheFrameOfThatTagToTheFront)
{
    Frame            a{page, {.Tag = "a"}};
    Frame            b{page, {.Tag = "b"}};
    const WidgetList pages{&a, &b};
    a.ZOrder();
    EXPECT_EQ(modView::ShowViewPage("b", "a", pages), "b");
    EXPECT_EQ(b.ZPosition.get(), 0);
    EXPECT_GT(a.ZPosition.get(), 0);
    EXPECT_EQ(modView::ShowViewPage("nowhere", "b", pages), "");
    EXPECT_EQ(b.ZPosition.get(), 0);
}

TEST_F(ModView, ShowViewPageShowsTheFirstPageIfTheNameIsTheCurrentOne)
{
    Frame            a{page, {.Tag = "a"}};
    Frame            b{page, {.Tag = "b"}};
    const WidgetList pages{&a, &b};
    b.ZOrder();
    EXPECT_EQ(modView::ShowViewPage("b", "b", pages), "a");
    EXPECT_EQ(a.ZPosition.get(), 0);
    EXPECT_EQ(modView::ShowViewPage("b", "b", {}), "");
}

TEST_F(ModView, ShowViewPageAsksSubViewsInOrderAndStops)
{
    FakeSubView first{page, {.Tag = "x"}};
    FakeSubView second{page};
    FakeSubView third{page};
    second.answersView = third.answersView = "x";
    second.failing                         = "SetSelectedView y";
    const WidgetList pages{&first, &second, &third};
    EXPECT_EQ(modView::ShowViewPage("x", "", pages), "x");
    EXPECT_THAT(first.calls, ElementsAre("SetSelectedView x")) << "asked, not taken by its tag";
    EXPECT_THAT(second.calls, ElementsAre("SetSelectedView x"));
    EXPECT_THAT(third.calls, IsEmpty());
    EXPECT_EQ(second.ZPosition.get(), 0);

    third.answersView = "y";
    EXPECT_EQ(modView::ShowViewPage("y", "x", pages), "y") << "one page that fails costs one page";
    EXPECT_EQ(third.ZPosition.get(), 0);
}

TEST_F(ModView, ShowFramePageLooksAtTheTagOnly)
{
    FakeSubView      a{page, {.Tag = "a"}};
    Frame            b{page, {.Tag = "b"}};
    const WidgetList pages{&a, &b};
    EXPECT_EQ(modView::ShowFramePage("b", "", pages), "b");
    EXPECT_EQ(modView::ShowFramePage("a", "b", pages), "a");
    EXPECT_EQ(modView::ShowFramePage("c", "b", pages), "");
    EXPECT_EQ(modView::ShowFramePage("b", "b", pages), "a");
    EXPECT_THAT(a.calls, IsEmpty());
}

TEST_F(ModView, TransferFocusOnTabHandsOnWhereTabLeadsOut)
{
    using modView::FocusPosition;
    struct Case {
        FocusPosition position;
        bool          tab;
        bool          shift;
        bool          handsOn;
    };
    const Case cases[] = {
        {FocusPosition::first, true, false, false}, {FocusPosition::first, true, true, true},
        {FocusPosition::last, true, false, true},   {FocusPosition::last, true, true, false},
        {FocusPosition::only, true, false, true},   {FocusPosition::only, true, true, true},
        {FocusPosition::only, false, false, false}, {FocusPosition::first, false, true, false},
    };
    for (const auto& test : cases) {
        host.clear();
        toolkit.keysDown.clear();
        if (test.tab) {
            toolkit.keysDown.insert(kKeyTab);
        }
        if (test.shift) {
            toolkit.keysDown.insert(kKeyShift);
        }
        modView::TransferFocusOnTab(page, test.position);
        EXPECT_EQ(host.wasCalled("TransferFocus"), test.handsOn)
            << static_cast<int>(test.position) << test.tab << test.shift;
    }
}

TEST_F(ModView, AControlThatComesDuringTheWalkDoesNotDisturbIt)
{
    class Growing : public TestPage {
    public:
        using TestPage::TestPage;
        std::vector<std::unique_ptr<Label>> labels;

        void Localize(Translator&) override
        {
            for (int i = 0; i < 100; ++i) {
                labels.push_back(std::make_unique<Label>(*Owner(), Design{.Tag = "late"}));
            }
        }
    };
    Growing growing{page};
    Label   behind{page, {.Tag = "behind"}};
    page.Localize(translator);
    EXPECT_EQ(behind.Caption.get(), "t:behind");
    EXPECT_EQ(growing.labels.front()->Caption.get(), "");
}

} // namespace
} // namespace quill::test
