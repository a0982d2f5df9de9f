#include "framework/named_callbacks.h"
#include "tests/status/status_tree_fixture.h"

// `CtrStatus` as a view: form, texts, focus, combined status, life.
namespace quill::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class CtrStatusView : public StatusViewTest<CtrStatus> {
protected:
    void SetUp() override
    {
        load(branch("group", condition("low", severity("alarm") + namur("deviceFailure")) +
                                 condition("high", severity("info") + namur("deviceInfo"))));
    }
};

// --- Form -------------------------------------------------------------------------------------

TEST_F(CtrStatusView, TheFrameFillsTheViewAndTheTreeLeavesAMargin)
{
    view.resize(10000, 6000);
    EXPECT_EQ(view.frmViews.Width, 10000);
    EXPECT_EQ(view.frmViews.Height, 6000);
    EXPECT_EQ(view.frmViews.BackColor, 0xffffffU);
    EXPECT_EQ(view.scgStatus.Left, 500);
    EXPECT_EQ(view.scgStatus.Top, 180);
    EXPECT_EQ(view.scgStatus.Width, 9500);
    EXPECT_EQ(view.scgStatus.Height, 5700);
}

TEST_F(CtrStatusView, TheFormIsLaidOutFromTheStart)
{
    const CtrStatus fresh{{.Width = 2000, .Height = 1000}};
    EXPECT_EQ(fresh.frmViews.Width, 2000);
    EXPECT_EQ(fresh.scgStatus.Left, 100);
    EXPECT_EQ(fresh.scgStatus.Height, 950);
}

TEST_F(CtrStatusView, ItsControlsComeInFormOrder)
{
    EXPECT_THAT(view.GetControls(), ElementsAre(&view.frmViews, &view.scgStatus, &view.scgStatusKey,
                                                &view.imlStatusIcons));
    EXPECT_EQ(view.GetMessenger(), &messenger);
}

TEST_F(CtrStatusView, ItsOnlyPageIsTheStatus)
{
    view.SetSelectedView("deviceStatus"); // the view's own tag: the first page
    EXPECT_EQ(view.GetSelectedView(), "deviceStatus");
    view.SetSelectedView("other");
    EXPECT_EQ(view.GetSelectedView(), "");
    EXPECT_TRUE(view.LeaveSelectedView());
}

TEST_F(CtrStatusView, TheFocusGoesToTheTree)
{
    view.RequestFocus();
    EXPECT_TRUE(view.scgStatus.HasFocus());
}

TEST_F(CtrStatusView, AHiddenTreeCannotTakeTheFocusAndThatIsReported)
{
    view.Visible = false;
    view.RequestFocus();
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatus IQornView_RequestFocus: , 5, ")));
}

TEST_F(CtrStatusView, ShowNodeHasNoEffect)
{
    const auto before = descriptions();
    view.ShowNode("group", false);
    EXPECT_TRUE(view.scgStatus.RowVisible(1));
    EXPECT_EQ(descriptions(), before);
    EXPECT_THAT(messenger.calls, IsEmpty());
}

// --- Texts ------------------------------------------------------------------------------------

TEST_F(CtrStatusView, LocalizeTranslatesRowsAndFrames)
{
    translator.texts = {{"low", "Zu tief"}, {"group", "Gruppe"}, {"deviceStatus", "Status"}};
    view.Localize(translator);
    EXPECT_THAT(textsOf(view.scgStatus), ElementsAre("Gruppe", "Zu tief", "high"));
    EXPECT_THAT(textsOf(view.scgStatusKey), ElementsAre("group", "low", "high"));
    EXPECT_EQ(view.frmViews.Caption, "Status");
    EXPECT_THAT(messenger.calls, ElementsAre("GetStatusClassification()"));
}

TEST_F(CtrStatusView, ARowThatFailsToTranslateKeepsItsText)
{
    translator.prefix     = "x:";
    translator.failingKey = "low";
    view.Localize(translator);
    EXPECT_THAT(textsOf(view.scgStatus), ElementsAre("x:group", "low", "x:high"));
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatus Localize: , 5, ")));
}

TEST_F(CtrStatusView, ARowWithoutATranslationShowsItsKey)
{
    view.Localize(translator);
    translator.texts = {{"low", "Err: low"}, {"deviceStatus", "Err: deviceStatus"}};
    view.Localize(translator);
    EXPECT_EQ(view.scgStatus.cell(2, 1).Text, "low");
    EXPECT_EQ(view.frmViews.Caption, "deviceStatus");
}

TEST_F(CtrStatusView, AnotherLanguageReplacesTheTexts)
{
    translator.prefix = "a:";
    view.Localize(translator);
    translator.prefix = "b:";
    view.Localize(translator);
    EXPECT_THAT(textsOf(view.scgStatus), ElementsAre("b:group", "b:low", "b:high"));
}

// --- Words for those who do not see the icons -------------------------------------------------

TEST_F(CtrStatusView, RowsTellInWordsWhatTheirIconsSay)
{
    translator.texts = {{"alarm", "Alarm"},
                        {"ok", "All well"},
                        {"low", "Level low"},
                        {"statusActive", "active"},
                        {"statusNotActive", "not active"}};
    view.Localize(translator);
    online(statusItem("low", "1") + statusItem("high", "0"));
    EXPECT_THAT(descriptions(), ElementsAre("group, Alarm", "Level low, Alarm, active",
                                            "high, All well, not active"));
}

TEST_F(CtrStatusView, RowsThatWereNeverReadSaySo)
{
    EXPECT_THAT(descriptions(),
                ElementsAre("group, notMonitored", "low, notMonitored, statusNotRead",
                            "high, notMonitored, statusNotRead"));
    translator.texts = {{"notMonitored", "not read"}, {"statusNotRead", "not read"}};
    view.Localize(translator);
    EXPECT_EQ(view.scgStatus.RowDescription(2), "low, not read");
}

TEST_F(CtrStatusView, WordsWithoutATranslationAreTheKeysAndNobodyHearsOfIt)
{
    translator.texts = {{"statusActive", "Err: statusActive"}, {"alarm", ""}};
    view.Localize(translator);
    translator.failingKey = "statusNotActive";
    view.Localize(translator);
    online(statusItem("low", "1") + statusItem("high", "0"));
    EXPECT_THAT(descriptions(), ElementsAre("group, alarm", "low, alarm, statusActive",
                                            "high, ok, statusNotActive"));
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrStatusView, AnotherLanguageIsSpokenAtOnce)
{
    online(statusItem("low", "1") + statusItem("high", "0"));
    translator.prefix = "de:";
    view.Localize(translator);
    EXPECT_THAT(descriptions(),
                ElementsAre("de:group, de:alarm", "de:low, de:alarm, de:statusActive",
                            "de:high, de:ok, de:statusNotActive"));
}

TEST_F(CtrStatusView, TheSameIconIsToldApartByItsState)
{
    messenger.classification = kClassNAMUR;
    load(branch("g", condition("low", severity("alarm") + namur("deviceFailure") + maskAt(0, 0))));
    EXPECT_EQ(view.scgStatus.RowDescription(2), "low, deviceDiagnosisPassiv, statusNotRead");
    view.SetOfflineData(datafile(maskParameter("statusMaskOnOff", "00")));
    online(statusItem("low", "1"));
    EXPECT_EQ(view.scgStatus.RowDescription(2), "low, deviceDiagnosisPassiv, statusSwitchedOff");
    view.SetErrorData(errorResponse("deviceStatus"));
    EXPECT_EQ(view.scgStatus.RowDescription(2), "low, deviceDiagnosisPassiv, statusUnknown");
    EXPECT_EQ(view.scgStatus.CellIcon(2, 1), "deviceDiagnosisPassiv");
}

// --- Combined status --------------------------------------------------------------------------

/// A page that hears from its controls.
class NamedPage : public TestPage, public NamedCallbacks {
public:
    explicit NamedPage(const char* type) : mType(type) {}
    [[nodiscard]] const char* TypeName() const override { return mType; }
    void callByName(const std::string& method, const std::vector<std::string>& args) override
    {
        heard.push_back(method + "(" + (args.empty() ? "" : args.front()) + ")");
        if (refuses) {
            throw platform::failure(platform::kNotSupportedByObject);
        }
    }
    std::vector<std::string> heard;
    bool                     refuses = false;

private:
    const char* mType;
};

TEST_F(CtrStatusView, ACombinedStatusIsToldOnce)
{
    view.setCombinedStatus("alarm");
    view.setCombinedStatus("alarm");
    view.setCombinedStatus("ok");
    EXPECT_EQ(view.CombinedStatus(), "ok");
    EXPECT_THAT(messenger.calls,
                ElementsAre("SetCombinedStatus(1, alarm)", "SetCombinedStatus(1, ok)"));
}

TEST_F(CtrStatusView, AnEmptyCombinedStatusIsTheOneToStartWith)
{
    view.setCombinedStatus("");
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrStatusView, AnOnlineDiagnosisPageHearsOfTheStatusUnderSeverity)
{
    NamedPage diagnosis{"VwOnlineDiag"};
    CtrStatus status{diagnosis};
    status.SetMessenger(&messenger);
    status.setCombinedStatus("warning");
    status.setCombinedStatus("warning");
    EXPECT_THAT(diagnosis.heard, ElementsAre("QuillStatusChanged(warning)"));
}

TEST_F(CtrStatusView, ANAMURStatusNeverReachesThePage)
{
    NamedPage diagnosis{"VwOnlineDiag"};
    CtrStatus status{diagnosis};
    messenger.classification = kClassNAMUR;
    status.SetMessenger(&messenger);
    status.setCombinedStatus("deviceFailure");
    EXPECT_THAT(diagnosis.heard, IsEmpty());
    EXPECT_THAT(messenger.errors(), IsEmpty());
}

TEST_F(CtrStatusView, AnyOtherPageIsNotCalled)
{
    NamedPage other{"VwOther"};
    CtrStatus status{other};
    status.SetMessenger(&messenger);
    status.setCombinedStatus("alarm");
    EXPECT_THAT(other.heard, IsEmpty());
}

TEST_F(CtrStatusView, AStatusThatStandsAloneCallsNobody)
{
    CtrStatus alone;
    alone.SetMessenger(&messenger);
    messenger.clear();
    alone.setCombinedStatus("alarm");
    EXPECT_THAT(messenger.calls, ElementsAre("SetCombinedStatus(1, alarm)"));
}

TEST_F(CtrStatusView, APageThatRefusesIsReported)
{
    NamedPage diagnosis{"VwOnlineDiag"};
    diagnosis.refuses = true;
    CtrStatus status{diagnosis};
    status.SetMessenger(&messenger);
    messenger.clear();
    status.setCombinedStatus("alarm");
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatus CombinedStatus: , 438, ")));
    EXPECT_EQ(status.CombinedStatus(), "alarm");
}

TEST_F(CtrStatusView, AHostThatFailsStillLeavesThePageToHear)
{
    NamedPage diagnosis{"VwOnlineDiag"};
    CtrStatus status{diagnosis};
    status.SetMessenger(&messenger);
    messenger.failOn("SetCombinedStatus");
    status.setCombinedStatus("alarm");
    EXPECT_THAT(diagnosis.heard, ElementsAre("QuillStatusChanged(alarm)"));
    EXPECT_THAT(messenger.errors(),
                Contains(StartsWith("ReportError(CtrStatus CombinedStatus: , 5, ")));
}

// --- Mode and life ----------------------------------------------------------------------------

TEST_F(CtrStatusView, OfflineNothingIsKnownAnyMore)
{
    online(statusItem("low", "1") + statusItem("high", "0"));
    messenger.clear();
    messenger.ViewSetCommunicationMode.raise(kOffline);
    EXPECT_THAT(icons(), Each("unknown"));
    EXPECT_THAT(view.images(), ElementsAre("alarm", "alarm", "ok")) << "the images stay";
    EXPECT_THAT(messenger.calls, ElementsAre("SetCombinedStatus(1, unknown)"));
    EXPECT_EQ(view.scgStatus.RowDescription(2), "low, unknown, statusUnknown");
}

TEST_F(CtrStatusView, OtherModesChangeNothing)
{
    online(statusItem("low", "1"));
    messenger.clear();
    const auto before = icons();
    for (const std::int32_t mode : {11, 12, 20, 0}) {
        messenger.ViewSetCommunicationMode.raise(mode);
    }
    EXPECT_EQ(icons(), before);
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrStatusView, ARowThatTheNextResponseLeavesOutKeepsTheIconOfOffline)
{
    online(statusItem("low", "1") + statusItem("high", "0"));
    messenger.ViewSetCommunicationMode.raise(kOffline);
    online(statusItem("high", "0"));
    EXPECT_THAT(icons(), ElementsAre("alarm", "unknown", "ok"));
}

TEST_F(CtrStatusView, AReleasedViewNeitherHearsNorSpeaks)
{
    view.PrepareToRelease();
    EXPECT_EQ(view.GetMessenger(), nullptr);
    const auto before = icons();
    messenger.ViewSetCommunicationMode.raise(kOffline);
    messenger.ViewReceiveValue.raise("statusMaskOnOff", "00");
    online(statusItem("low", "1"));
    view.SetErrorData(errorResponse("deviceStatus"));
    view.SetOfflineData(datafile(maskParameter("statusMaskOnOff", "00")));
    EXPECT_EQ(icons(), before);
    EXPECT_THAT(messenger.calls, IsEmpty());
}

TEST_F(CtrStatusView, ADetachedViewDoesNotReact)
{
    view.SetMessenger(nullptr);
    messenger.ViewSetCommunicationMode.raise(kOffline);
    EXPECT_THAT(icons(), Each("notMonitored"));
    EXPECT_THAT(messenger.calls, IsEmpty());
    EXPECT_EQ(view.scgStatus.RowCount(), 3) << "the tree stays";
}

TEST_F(CtrStatusView, AnImportHasNothingForThisView)
{
    view.SetImportData(datafile(maskParameter("statusMaskOnOff", "00")));
    EXPECT_THAT(messenger.calls, IsEmpty());
    EXPECT_THAT(view.masks(), IsEmpty());
}

TEST_F(CtrStatusView, ResizingWithoutAMessengerIsSilent)
{
    CtrStatus alone;
    alone.resize(3000, 2000);
    EXPECT_EQ(alone.scgStatus.Left, 150);
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

TEST_F(CtrStatusView, AFailingLayoutIsReportedToTheHostAndDroppedWhereThereIsNone)
{
    const auto fails = view.frmViews.Changed.subscribe(
        [](const platform::WidgetChange&) { throw platform::failure(platform::kInvalidCall); });
    view.SetMessenger(&messenger);
    view.Width = 8000;
    EXPECT_THAT(messenger.errors(),
                ElementsAre(StartsWith("ReportError(CtrStatus UserControl_Resize: , 5, ")));
    view.SetMessenger(nullptr);
    messenger.clear();
    view.Width = 9000;
    EXPECT_THAT(messenger.errors(), IsEmpty());
    EXPECT_THAT(toolkit.debugLines, IsEmpty());
}

} // namespace
} // namespace quill::test
