#include "shell/forwarding_messenger.h"

#include "editors/CtrTextEdit.h"
#include "support/recording_messenger.h"
#include "support/toolkit_scope.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::shell {
namespace {

using testing::ElementsAre;

/// Every operation of the contract, once.
void callAll(Messenger& host, IQornDataEditor& editor)
{
    host.GetAddressService();
    host.GetUnitConverter();
    host.GetHostDocument("FDT");
    host.SetHostDocument("FDT", "<x/>");
    host.SendCommunicationRequest("<r/>", "r");
    host.SetMonitoringActive(true);
    host.GetDatasetXml();
    host.ExecuteCommunicationRequest("<r/>", "reading", 1, 2);
    host.ExecuteNamedRequest("r", "reading", 3, 4);
    host.GetCommunicationMode();
    host.SetParameterState("p", "sync");
    host.GetDeviceTypeInfo();
    host.GetReportPrinter();
    host.GetInstallPath();
    host.GetStoreName();
    host.GetWorkPath();
    host.GetUserDataPath();
    host.GetUserLevel();
    host.IsErrorDialogEnabled();
    host.GetTranslator();
    host.RequestChanges(kModifiedEditors);
    host.BookChange(editor, "tag", "label", "old", "new", "extra", "type", "context");
    host.RestoreDataset("<d/>");
    host.GetDialogsAllowed();
    host.GetStatusClassification();
    host.SetFixedStatusClassification(1);
    host.SetStatusClassification(0);
    host.IsStatusClassificationFixed();
    host.HasConfigurationChangedSign();
    host.SetDownloadPhase(2);
    host.SetConfigurationChanged("1");
    host.TransferFocus();
    host.SetCombinedStatus(1, "alarm");
    host.NotifyDialog(52);
    host.WriteLog(kLogDetail, "line");
    host.RefreshData();
    host.AskQuestion("title", "question");
    host.ReportErrorObject("where", 5, "what");
    host.ReportError("where", 91, "what");
    host.ShowMessage("title", "message");
    host.ReportProblem("text", "a");
}

class Forwarding : public testing::Test {
protected:
    test::ToolkitScope       toolkit;
    test::RecordingMessenger host;
    ForwardingMessenger      between{host};
};

TEST_F(Forwarding, HandsOnEveryCallWithItsArguments)
{
    CtrTextEdit editor;
    callAll(host, editor);
    const auto straight = host.calls;
    EXPECT_GT(straight.size(), 40U) << "the recorder writes down every call";
    host.clear();
    callAll(between, editor);
    EXPECT_EQ(host.calls, straight);
}

TEST_F(Forwarding, AnswersWhatTheOtherAnswers)
{
    host.communicationMode = kOnline;
    host.userLevel         = 2;
    host.classification    = kClassNAMUR;
    host.datasetXml        = "<d/>";
    host.storeName         = "store";
    host.answer            = kPositiveAnswer;
    host.installPath       = "/install/";
    EXPECT_EQ(between.GetCommunicationMode(), kOnline);
    EXPECT_EQ(between.GetUserLevel(), 2);
    EXPECT_EQ(between.GetStatusClassification(), kClassNAMUR);
    EXPECT_EQ(between.GetDatasetXml(), "<d/>");
    EXPECT_EQ(between.GetStoreName(), "store");
    EXPECT_EQ(between.AskQuestion("a", "b"), kPositiveAnswer);
    EXPECT_EQ(between.GetInstallPath(), "/install/");
}

TEST_F(Forwarding, RaisesTheEventsOfTheOther)
{
    std::vector<std::string> heard;
    const auto               mode = between.ViewSetCommunicationMode.subscribe(
        [&](std::int32_t value) { heard.push_back("mode " + std::to_string(value)); });
    const auto changes = between.ViewGetChanges.subscribe(
        [&](std::int16_t scope) { heard.push_back("changes " + std::to_string(scope)); });
    const auto units = between.ViewSetUnits.subscribe([&] { heard.emplace_back("units"); });
    const auto value =
        between.ViewReceiveValue.subscribe([&](const std::string& name, const std::string& text) {
            heard.push_back(name + " = " + text);
        });
    const auto booked = between.DialogSetChanges.subscribe(
        [&](IQornDataEditor*, const std::string& tag, const std::string&, const std::string&,
            const std::string&, const std::string&, const std::string&,
            const std::string& context) { heard.push_back(tag + " " + context); });
    host.ViewSetCommunicationMode.raise(kOffline);
    host.ViewGetChanges.raise(kAllEditors);
    host.ViewSetUnits.raise();
    host.ViewReceiveValue.raise("statusMask1", "FF");
    host.DialogSetChanges.raise(nullptr, "tag", "", "", "", "", "", "group");
    EXPECT_THAT(heard,
                ElementsAre("mode 10", "changes 1", "units", "statusMask1 = FF", "tag group"));
}

} // namespace
} // namespace quill::shell
