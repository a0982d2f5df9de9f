#include "changes_fixture.h"

namespace quill::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const char* const kItemA = R"(<item name="a" unit="mm"><floatVal>1</floatVal></item>)";
const char* const kItemB = R"(<item name="b" unit="mm"><floatVal>1</floatVal></item>)";
const char* const kItemC = R"(<item name="c" unit="mm"><floatVal>1</floatVal></item>)";

std::string request(const std::string& group, const std::string& items,
                    const std::string& access = "writeOffline")
{
    return "SendCommunicationRequest(<communicationRequest name=\"" + group + "\" access=\"" +
           access + "\"" + (items.empty() ? "/>" : ">" + items + "</communicationRequest>") + ", " +
           group + ")";
}

TEST_F(CtrChangesTest, ShowingAsksForTheModifiedValues)
{
    dialog.chkChanges.Value = 1;
    dialog.show();
    EXPECT_THAT(host.actions(), ElementsAre("NotifyDialog(50)", "RequestChanges(2)"));
    EXPECT_EQ(dialog.chkChanges.Value.get(), 0);
    EXPECT_TRUE(dialog.lstChanges.HasFocus());
}

TEST_F(CtrChangesTest, ABookingComesUpAsARow)
{
    book(editorWithItem("a"), "g");
    ASSERT_EQ(dialog.lstChanges.Count(), 1);
    EXPECT_EQ(dialog.lstChanges.Item(1).Text, "ctr_a");
    EXPECT_THAT(dialog.lstChanges.Item(1).SubItems, ElementsAre("0", "1"));
    EXPECT_EQ(dialog.changes().rows[0]->requestGroup, "g");
}

TEST_F(CtrChangesTest, TheCheckBoxAsksForAllValuesAndThenForTheModifiedOnes)
{
    auto& a = editorWithItem("a");
    auto& b = editorWithItem("b");
    book(a, "g");
    const auto answer = host.ViewGetChanges.subscribe([&](std::int16_t scope) {
        if (scope == kAllEditors) {
            book(a, "g", "");
            book(b, "g", "");
        } else {
            book(a, "g", "0");
        }
    });
    host.clear();
    dialog.chkChanges.click();
    EXPECT_THAT(host.callsTo("RequestChanges"),
                ElementsAre("RequestChanges(1)", "RequestChanges(2)"));
    ASSERT_EQ(dialog.lstChanges.Count(), 2);
    EXPECT_TRUE(dialog.lstChanges.Item(1).Checked) << "the modified one";
    EXPECT_FALSE(dialog.lstChanges.Item(2).Checked);
    host.clear();
    dialog.chkChanges.click();
    EXPECT_THAT(host.callsTo("RequestChanges"), ElementsAre("RequestChanges(2)"));
    EXPECT_EQ(dialog.lstChanges.Count(), 1);
}

TEST_F(CtrChangesTest, UncheckingARowTakesItOutOfTheDownload)
{
    book(editorWithItem("a"), "g");
    book(editorWithItem("b"), "g");
    dialog.lstChanges.check(1, false);
    EXPECT_FALSE(dialog.changes().rows[0]->selected);
    EXPECT_THAT(download(), ElementsAre(request("g", kItemB)));
}

TEST_F(CtrChangesTest, CheckingARowWithoutAnOldValueTakesItIn)
{
    book(editorWithItem("a"), "g", "");
    EXPECT_FALSE(dialog.lstChanges.Item(1).Checked);
    dialog.lstChanges.check(1, true);
    EXPECT_THAT(download(), ElementsAre(request("g", kItemA)));
}

TEST_F(CtrChangesTest, ARowWithoutAnOldValueStartsOutside)
{
    book(editorWithItem("a"), "g", "");
    EXPECT_THAT(download(), IsEmpty());
}

TEST_F(CtrChangesTest, UnselectUnchecksEveryRow)
{
    book(editorWithItem("a"), "g");
    book(editorWithItem("b"), "h");
    dialog.cmdClear.click();
    EXPECT_FALSE(dialog.lstChanges.Item(1).Checked);
    EXPECT_FALSE(dialog.lstChanges.Item(2).Checked);
    EXPECT_FALSE(dialog.changes().rows[0]->selected);
    EXPECT_FALSE(dialog.changes().rows[1]->selected);
}

TEST_F(CtrChangesTest, UnselectWithoutRowsDoesNothing)
{
    dialog.cmdClear.click();
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(CtrChangesTest, ClosingEmptiesHidesAndHandsTheFocusBack)
{
    book(editorWithItem("a"), "g");
    host.clear();
    dialog.cmdClose.click();
    EXPECT_THAT(host.calls, ElementsAre("NotifyDialog(51)", "TransferFocus()"));
    EXPECT_FALSE(dialog.Visible);
    EXPECT_EQ(dialog.lstChanges.Count(), 0);
    ASSERT_THAT(dialog.changes().rows, SizeIs(1));
    EXPECT_EQ(dialog.changes().rows[0], nullptr);
}

TEST_F(CtrChangesTest, EscapeClosesFromAnyWidget)
{
    bool       reachedForm = false;
    CtrChanges placed{form, {.Name = "changes"}};
    const auto outside = form.KeyDown.subscribe([&](KeyPress&) { reachedForm = true; });
    placed.SetMessenger(&host);
    placed.lstChanges.press(kKeyReturn);
    EXPECT_TRUE(placed.Visible);
    EXPECT_TRUE(reachedForm);
    reachedForm = false;
    placed.lstChanges.press(kKeyEscape);
    EXPECT_FALSE(placed.Visible);
    EXPECT_FALSE(reachedForm);
    EXPECT_THAT(host.actions(), ElementsAre("NotifyDialog(51)", "TransferFocus()"));
}

TEST_F(CtrChangesTest, NothingSurvivesAHidingByTheHost)
{
    book(editorWithItem("a"), "g");
    dialog.Visible = false;
    EXPECT_EQ(dialog.lstChanges.Count(), 0);
    EXPECT_EQ(dialog.changes().rows[0], nullptr);
}

TEST_F(CtrChangesTest, ADownloadSendsOneRequestPerGroupInTheOrderOfTheirFirstRows)
{
    book(editorWithItem("a"), "second");
    book(editorWithItem("b"), "first");
    book(editorWithItem("c"), "second");
    EXPECT_THAT(download(), ElementsAre(request("second", std::string(kItemA) + kItemC),
                                        request("first", kItemB)));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(CtrChangesTest, ADownloadIsFramedByItsPhasesAndEndsTheDialog)
{
    book(editorWithItem("a"), "g");
    std::vector<std::int32_t> pointers;
    host.onCall = [&](const std::string&) { pointers.push_back(toolkit.pointer); };
    download();
    EXPECT_THAT(host.calls,
                ElementsAre("SetDownloadPhase(2)", request("g", kItemA), "NotifyDialog(51)",
                            "TransferFocus()", "SetDownloadPhase(3)"));
    EXPECT_THAT(pointers, ElementsAre(0, 13, 0, 0, 0));
    EXPECT_FALSE(dialog.Visible);
    EXPECT_EQ(dialog.lstChanges.Count(), 0);
    ASSERT_THAT(dialog.changes().rows, SizeIs(1));
    EXPECT_EQ(dialog.changes().rows[0], nullptr);
}

TEST_F(CtrChangesTest, WithNoRowSelectedTheDialogClosesAllTheSame)
{
    download();
    EXPECT_THAT(host.calls, ElementsAre("SetDownloadPhase(2)", "NotifyDialog(51)",
                                        "TransferFocus()", "SetDownloadPhase(3)"));
    EXPECT_FALSE(dialog.Visible);
}

TEST_F(CtrChangesTest, EveryItemOfAnEditorIsMoved)
{
    auto& editor   = editorWithItem("a");
    editor.xmlItem = IXMLDOMDocument::create();
    editor.xmlItem.loadXML("<items><item name=\"x\"/><item name=\"y\"/></items>");
    book(editor, "g");
    EXPECT_THAT(download(), ElementsAre(request("g", R"(<item name="x"/><item name="y"/>)")));
}

TEST_F(CtrChangesTest, EditorsAreForcedToGiveTheirItem)
{
    class Forced : public FakeEditor {
    public:
        using FakeEditor::FakeEditor;
        bool            forced = false;
        IXMLDOMDocument GetXmlItem(bool force) override
        {
            forced = force;
            return xmlItem;
        }
    };
    Forced editor{form, EditorKind::text, "ctr_a"};
    book(editor, "g");
    download();
    EXPECT_TRUE(editor.forced);
}

TEST_F(CtrChangesTest, AnEditorWithoutAnItemLeavesAnEmptyRequest)
{
    auto& editor   = editorWithItem("a");
    editor.xmlItem = IXMLDOMDocument::create();
    editor.xmlItem.loadXML("<none/>");
    book(editor, "g");
    EXPECT_THAT(download(), ElementsAre(request("g", "")));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(CtrChangesTest, AnEditorThatFailsOrGivesNothingLeavesAnEmptyRequest)
{
    auto& failing   = editorWithItem("a");
    auto& nothing   = editorWithItem("b");
    failing.failing = "GetXmlItem";
    nothing.xmlItem = {};
    book(failing, "g");
    book(nothing, "h");
    book(editorWithItem("c"), "h");
    EXPECT_THAT(download(), ElementsAre(request("g", ""), request("h", kItemC)));
    EXPECT_THAT(host.errors(), ElementsAre(HasSubstr("CtrChanges: cmdDownload_Click, 5, "),
                                           HasSubstr("CtrChanges: cmdDownload_Click, 91, ")));
    EXPECT_THAT(host.callsTo("SetDownloadPhase"), SizeIs(2));
}

TEST_F(CtrChangesTest, AnEditorThatDiedLeavesAnEmptyRequest)
{
    book(editorWithItem("a"), "g");
    editors.clear();
    EXPECT_THAT(download(), ElementsAre(request("g", "")));
    EXPECT_THAT(host.errors(), ElementsAre(HasSubstr("CtrChanges: cmdDownload_Click, 91, ")));
}

TEST_F(CtrChangesTest, AGroupNameWithAQuoteIsReportedAndLosesNothing)
{
    book(editorWithItem("a"), "odd\"group");
    book(editorWithItem("b"), "g");
    EXPECT_THAT(
        download(),
        ElementsAre("SendCommunicationRequest(<communicationRequest name=\"odd&quot;group\" "
                    "access=\"writeOffline\">" +
                        std::string(kItemA) + "</communicationRequest>, odd\"group)",
                    request("g", kItemB)));
    EXPECT_THAT(host.errors(), ElementsAre(HasSubstr("CtrChanges: cmdDownload_Click, 5, ")));
}

TEST_F(CtrChangesTest, AHostThatRefusesARequestGetsTheOthersAndTheEnd)
{
    book(editorWithItem("a"), "g");
    book(editorWithItem("b"), "h");
    host.failOn("SendCommunicationRequest");
    host.failOn("SetDownloadPhase");
    host.failOn("NotifyDialog");
    EXPECT_THAT(download(), SizeIs(2));
    EXPECT_TRUE(host.wasCalled("TransferFocus"));
    EXPECT_THAT(host.callsTo("SetDownloadPhase"), SizeIs(2));
    EXPECT_FALSE(dialog.Visible);
    EXPECT_EQ(toolkit.pointer, 0);
    EXPECT_THAT(host.errors(), SizeIs(5));
}

TEST_F(CtrChangesTest, AToolkitThatRefusesThePointerStopsNothing)
{
    toolkit.beforeOperation = [](const char*) { throw failure(kInvalidCall); };
    book(editorWithItem("a"), "g");
    EXPECT_THAT(download(), ElementsAre(request("g", kItemA)));
    EXPECT_FALSE(dialog.Visible);
}

TEST_F(CtrChangesTest, AccessAndButtonFollowTheMode)
{
    host.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_EQ(dialog.access(), "write");
    EXPECT_EQ(dialog.cmdDownload.Tag.get(), "download");
    EXPECT_EQ(dialog.cmdDownload.Caption.get(), "t:download");
    for (const std::int32_t other : {12, 20, 0}) {
        host.ViewSetCommunicationMode.raise(other);
        EXPECT_EQ(dialog.access(), "write");
    }
    host.ViewSetCommunicationMode.raise(kOffline);
    EXPECT_EQ(dialog.access(), "writeOffline");
    EXPECT_EQ(dialog.cmdDownload.Tag.get(), "accept");
    EXPECT_EQ(dialog.cmdDownload.Caption.get(), "t:accept");
}

TEST_F(CtrChangesTest, AModeThatChangesWhileTheDialogIsOpenCounts)
{
    book(editorWithItem("a"), "g");
    host.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_THAT(download(), ElementsAre(request("g", kItemA, "write")));
}

TEST_F(CtrChangesTest, AModeBeforeTheTextsAreThereChangesTheAccessAndReportsTheCaption)
{
    CtrChanges fresh;
    fresh.SetMessenger(&host);
    host.clear();
    host.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_EQ(fresh.access(), "write");
    EXPECT_EQ(fresh.cmdDownload.Tag.get(), "download");
    EXPECT_EQ(fresh.cmdDownload.Caption.get(), "Accept");
    EXPECT_THAT(host.errors(), ElementsAre("ReportError(CtrChanges: ViewSetCommunicationMode, 5, "
                                           "Invalid procedure call or argument)"));
}

TEST_F(CtrChangesTest, ADetachedDialogHearsNothing)
{
    dialog.SetMessenger(nullptr);
    book(editorWithItem("a"), "g");
    host.ViewSetCommunicationMode.raise(kOnline);
    EXPECT_EQ(dialog.lstChanges.Count(), 0);
    EXPECT_EQ(dialog.access(), "writeOffline");
}

TEST_F(CtrChangesTest, WithoutAMessengerTheDialogStillCloses)
{
    CtrChanges alone;
    alone.cmdDownload.click();
    EXPECT_FALSE(alone.Visible);
    EXPECT_THAT(toolkit.debugLines, testing::Each(HasSubstr("CtrChanges: cmdDownload_Click")));
    EXPECT_EQ(toolkit.pointer, 0);
}

TEST_F(CtrChangesTest, AHostMayDestroyTheDialogWhileItIsToldThatItGoes)
{
    for (const bool isDownload : {false, true}) {
        auto passing = std::make_unique<CtrChanges>();
        passing->SetMessenger(&host);
        host.clear();
        host.onCall = [&](const std::string& call) {
            if (call == "NotifyDialog(51)") {
                passing.reset();
            }
        };
        (isDownload ? passing->cmdDownload : passing->cmdClose).click();
        host.onCall = nullptr;
        EXPECT_TRUE(host.wasCalled("TransferFocus"));
        EXPECT_EQ(host.wasCalled("SetDownloadPhase"), isDownload);
    }
}

TEST_F(CtrChangesTest, ABookingDuringTheDownloadIsDropped)
{
    class Booking : public FakeEditor {
    public:
        using FakeEditor::FakeEditor;
        std::function<void()> onItem;
        IXMLDOMDocument       GetXmlItem(bool) override
        {
            onItem();
            return xmlItem;
        }
    };
    Booking editor{form, EditorKind::text, "ctr_a"};
    editor.xmlItem = documents::itemDocument("a", "mm", "floatVal", "1");
    editor.onItem  = [&] { book(editor, "other"); };
    book(editor, "g");
    EXPECT_THAT(download(), ElementsAre(request("g", kItemA)));
    EXPECT_EQ(dialog.lstChanges.Count(), 0);
}

TEST_F(CtrChangesTest, TwoThousandRowsOfFiftyGroupsGoOutInFiftyRequests)
{
    for (int i = 0; i < 2000; ++i) {
        book(editorWithItem("p" + std::to_string(i)), "group " + std::to_string(i % 50));
    }
    EXPECT_THAT(download(), SizeIs(50));
    EXPECT_THAT(host.errors(), IsEmpty());
}

} // namespace
} // namespace quill::test
