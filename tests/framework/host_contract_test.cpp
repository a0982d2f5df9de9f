#include "framework/host_contract.h"

#include "framework/default_messenger.h"
#include "platform/label.h"
#include "support/fake_editors.h"
#include "support/recording_messenger.h"
#include "support/test_documents.h"
#include "support/test_page.h"

#include <gmock/gmock.h>

#include <memory>

namespace quill::test {
namespace {

using testing::ElementsAre;

/// Notes the rows that a host replays.
struct Replay {
    std::vector<std::string> labels;
    std::vector<std::string> lines;
    platform::Subscription   subscription;

    explicit Replay(Messenger& messenger)
        : subscription(messenger.DialogSetChanges.subscribe(
              [this](IQornDataEditor*, const std::string& tag, const std::string& label,
                     const std::string& extra, const std::string& oldText,
                     const std::string& newText, const std::string& type,
                     const std::string& contextTag) {
                  labels.push_back(label);
                  lines.push_back(tag + "|" + label + "|" + extra + "|" + oldText + "|" + newText +
                                  "|" + type + "|" + contextTag);
              }))
    {
    }
};

TEST(HostContract, ABookingIsReplayedInTheOrderOfTheEvent)
{
    DefaultMessenger  messenger;
    Replay            replay{messenger};
    platform::Control form;
    FakeEditor        editor{form, EditorKind::text, "ctr_a"};
    messenger.BookChange(editor, "tag", "label", "old", "new", "extra", "type", "group");
    EXPECT_THAT(replay.lines, ElementsAre("tag|label|extra|old|new|type|group"));
}

TEST(HostContract, TwoParametersWithOneLabelAreKeptApart)
{
    DefaultMessenger  messenger;
    Replay            replay{messenger};
    platform::Control form;
    FakeEditor        editor{form, EditorKind::text, "ctr_a"};
    for (const char* tag : {"ctr_first", "ctr_second", "ctr_first", "ctr_second"}) {
        messenger.BookChange(editor, tag, "Limit", "", "", "", "", "");
    }
    EXPECT_THAT(replay.labels, ElementsAre("Limit", "Limit (second)", "Limit", "Limit (second)"));
}

TEST(HostContract, ARequestForChangesReachesTheEditors)
{
    DefaultMessenger messenger;
    std::int16_t     heard = 0;
    const auto       subscription =
        messenger.ViewGetChanges.subscribe([&](std::int16_t scope) { heard = scope; });
    messenger.RequestChanges(kModifiedEditors);
    EXPECT_EQ(heard, 2);
}

TEST(HostContract, TheDefaultHostIsOfflineAndDeclinesQuestions)
{
    DefaultMessenger messenger;
    EXPECT_EQ(messenger.GetCommunicationMode(), 10);
    EXPECT_GE(messenger.GetUserLevel(), kMaintenanceLevel);
    EXPECT_NE(messenger.AskQuestion("", ""), kPositiveAnswer);
    EXPECT_EQ(messenger.GetUnitConverter(), nullptr);
    EXPECT_FALSE(messenger.GetDeviceTypeInfo());
}

TEST(HostContract, NumbersAreThoseOfTheHost)
{
    EXPECT_EQ(kOffline, 10);
    EXPECT_EQ(kOnline, 11);
    EXPECT_EQ(kCommunication, 12);
    EXPECT_EQ(kEditingBarred, 20);
    EXPECT_EQ(kAllEditors, 1);
    EXPECT_EQ(kModifiedEditors, 2);
    EXPECT_EQ(kBeforeDownload, 2);
    EXPECT_EQ(kAfterDownload, 3);
    EXPECT_EQ(kDialogComesUp, 50);
    EXPECT_EQ(kDialogGoes, 51);
    EXPECT_EQ(kPositiveAnswer, 4);
    EXPECT_EQ(kClassSeverity, 0);
    EXPECT_EQ(kClassNAMUR, 1);
    EXPECT_EQ(kLogConfiguration, 66);
    EXPECT_EQ(kLogLostError, 67);
    EXPECT_EQ(kLogDecision, 68);
    EXPECT_EQ(kLogContract, 69);
    EXPECT_EQ(kLogFlow, 70);
    EXPECT_EQ(kLogDetail, 71);
    EXPECT_EQ(kLogTrend, 72);
    EXPECT_EQ(kLogUserInformation, 73);
    EXPECT_EQ(kLogMapping, 77);
    EXPECT_EQ(kLogStatusMask, 83);
    EXPECT_EQ(kLogUnit, 84);
}

TEST(HostContract, TheLifetimeOfAnEditorEndsWithIt)
{
    platform::Control form;
    auto              editor = std::make_unique<FakeEditor>(form, EditorKind::text, "ctr_a");
    const auto        life   = editor->lifetime();
    EXPECT_FALSE(life.expired());
    editor.reset();
    EXPECT_TRUE(life.expired());
}

TEST(HostContract, AReleasedPageReachesNoHostAnyMore)
{
    RecordingMessenger host;
    TestPage           page;
    FakeEditor         editor{page, EditorKind::text, "ctr_a"};
    page.SetMessenger(&host);
    EXPECT_EQ(editor.messenger, &host);
    page.PrepareToRelease();
    EXPECT_EQ(page.GetMessenger(), nullptr);
    EXPECT_EQ(editor.messenger, nullptr);
    host.clear();
    platform::Label plain{page};
    page.SetOnlineData(okResponse("g"));
    EXPECT_TRUE(host.calls.empty());
}

TEST(HostContract, AMessengerMayGoWhileSomebodyIsStillSubscribed)
{
    auto host         = std::make_unique<DefaultMessenger>();
    auto subscription = host->ViewSetUnits.subscribe([] {});
    host.reset();
    subscription.drop();
    EXPECT_FALSE(subscription);
}

} // namespace
} // namespace quill::test
