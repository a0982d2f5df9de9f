// How the shell reads the device's status and masks, and what it tells of them.

#include "shell_messenger_fixture.h"

#include "temporary_folder.h"

#include <QSignalSpy>

namespace quill::shell {
namespace {

using testing::Contains;
using testing::ElementsAre;

TEST_F(Shell, KnowsTheConditionsOfTheSamplesAndOfNoOtherType)
{
    for (const Sample& sample : samples()) {
        messenger.openSample(sample);
        EXPECT_EQ(messenger.deviceType(), sample.type);
        EXPECT_TRUE(messenger.GetDeviceTypeInfo().selectSingleNode("//deviceStatus"))
            << sample.type;
    }
    TemporaryFolder folder;
    messenger.openDatafile(folder.write("other.xml", otherDatafile));
    EXPECT_EQ(messenger.deviceType(), "OTHER");
    EXPECT_FALSE(messenger.GetDeviceTypeInfo());
    EXPECT_FALSE(messenger.HasConfigurationChangedSign());
}

TEST_F(Shell, TheStatusIsReadBesideTheTransfersAndBarsNoEditing)
{
    messenger.setOnline(true);
    QSignalSpy modes{&messenger, &ShellMessenger::communicationModeChanged};
    QSignalSpy answers{&messenger, &ShellMessenger::onlineDataArrived};
    EXPECT_TRUE(messenger.ExecuteNamedRequest("deviceStatus", "", 0, 0));
    EXPECT_TRUE(messenger.isWaiting());
    EXPECT_FALSE(messenger.link().isBusy());
    EXPECT_TRUE(text("descriptor").txtBox.Enabled);
    waitForDevice();
    EXPECT_GT(answers.size(), 0);
    EXPECT_TRUE(modes.isEmpty());
    EXPECT_FALSE(messenger.store().hasUnsavedChanges()) << "the datafile has nothing of it";
}

TEST_F(Shell, MasksThatAreReadGoIntoTheDatafile)
{
    messenger.setOnline(true);
    std::vector<std::string> told;
    const auto               subscription = messenger.ViewReceiveValue.subscribe(
        [&](const std::string& name, const std::string& value) {
            told.push_back(name + "=" + value);
        });
    messenger.device().set("statusMask2", "0F000000");
    messenger.readGroup("deviceStatusMasks");
    waitForDevice();
    EXPECT_EQ(saved("statusMask2"), "0F000000|noUnit|1");
    EXPECT_THAT(told, Contains("statusMask2=0F000000"));
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(Shell, AcceptedMasksGoIntoTheDatafileOutOfStep)
{
    std::vector<std::string> told;
    const auto               subscription = messenger.ViewReceiveValue.subscribe(
        [&](const std::string& name, const std::string& value) {
            told.push_back(name + "=" + value);
        });
    QSignalSpy changed{&messenger, &ShellMessenger::datafileChanged};
    messenger.SendCommunicationRequest(
        "<communicationRequest name='deviceStatusMasks' access='writeOffline'>"
        "<item name='statusMask1' unit='noUnit'><stringVal>00000000</stringVal></item>"
        "</communicationRequest>",
        "deviceStatusMasks");
    EXPECT_EQ(saved("statusMask1"), "00000000|noUnit|0");
    EXPECT_THAT(told, ElementsAre("statusMask1=00000000"));
    EXPECT_EQ(changed.size(), 1);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Shell, AnAnswerThatIsNotForTheDatafileStaysOutOfIt)
{
    messenger.setOnline(true);
    messenger.device().set("characteristic", "3");
    QSignalSpy answers{&messenger, &ShellMessenger::onlineDataArrived};
    EXPECT_TRUE(messenger.ExecuteCommunicationRequest(
        "<communicationRequest name='signal' access='read' datasetSave='0'>"
        "<item name='filterTime'/></communicationRequest>",
        "reading", 1, 1));
    messenger.device().set("filterTime", "9");
    waitForDevice();
    EXPECT_EQ(answers.size(), 1);
    EXPECT_EQ(saved("filterTime"), "0.250|s|1");
    messenger.readGroup("signal");
    waitForDevice();
    EXPECT_EQ(saved("filterTime"), "9|s|1") << "the next request is another matter";
}

TEST_F(Shell, ACombinedStatusIsToldOnceAndGoesWithItsDevice)
{
    QSignalSpy changes{&messenger, &ShellMessenger::combinedStatusChanged};
    messenger.SetCombinedStatus(1, "alarm");
    messenger.SetCombinedStatus(1, "alarm");
    EXPECT_EQ(messenger.combinedStatus(), "alarm");
    EXPECT_EQ(changes.size(), 1);
    messenger.openSample();
    EXPECT_EQ(messenger.combinedStatus(), "");
}

TEST_F(Shell, TheSignOfAChangedConfigurationComesAndGoesWithItsItem)
{
    EXPECT_TRUE(messenger.HasConfigurationChangedSign());
    QSignalSpy changes{&messenger, &ShellMessenger::configurationChangedChanged};
    messenger.SetConfigurationChanged("0");
    EXPECT_TRUE(changes.isEmpty());
    messenger.SetConfigurationChanged("1");
    EXPECT_TRUE(messenger.isConfigurationChanged());
    messenger.SetConfigurationChanged("1");
    EXPECT_EQ(changes.size(), 1);
    messenger.SetConfigurationChanged("0");
    EXPECT_FALSE(messenger.isConfigurationChanged());
    messenger.openSample(samples().back());
    EXPECT_FALSE(messenger.HasConfigurationChangedSign()) << "no such condition on a fieldbus";
}

TEST_F(Shell, ClearingTheSignIsForWhoMayChangeTheDevice)
{
    EXPECT_FALSE(messenger.clearConfigurationChanged()) << "offline";
    messenger.setOnline(true);
    messenger.setUserLevel(2);
    EXPECT_FALSE(messenger.clearConfigurationChanged());
    EXPECT_EQ(user.messages.size(), 2U);
    messenger.setUserLevel(kMaintenanceLevel);
    QSignalSpy answers{&messenger, &ShellMessenger::onlineDataArrived};
    EXPECT_TRUE(messenger.clearConfigurationChanged());
    waitForDevice();
    ASSERT_EQ(answers.size(), 1);
    EXPECT_EQ(documents::responseAttribute(answers[0][0].value<IXMLDOMNode>(), "name"),
              "deviceStatusClearConfigurationChanged");
}

TEST_F(Shell, TheUsersClassificationComesBackWithADeviceThatLeavesIt)
{
    QSignalSpy changes{&messenger, &ShellMessenger::classificationChanged};
    messenger.SetStatusClassification(kClassNAMUR);
    messenger.SetStatusClassification(kClassNAMUR);
    EXPECT_EQ(changes.size(), 1);
    messenger.SetFixedStatusClassification(kClassSeverity);
    EXPECT_EQ(messenger.GetStatusClassification(), kClassSeverity);
    messenger.openSample();
    EXPECT_FALSE(messenger.IsStatusClassificationFixed());
    EXPECT_EQ(messenger.GetStatusClassification(), kClassNAMUR);
}

TEST_F(Shell, MasksThatTheDeviceRefusedAreReadAgainWhenTheConfigurationEnds)
{
    messenger.setOnline(true);
    const auto node = documents::findParameter(messenger.store().document(), "statusMask1");
    documents::writeAttribute(node, "value", "11110000");
    documents::writeAttribute(node, "synchronised", "0");
    messenger.device().failNext("hartCmdErrAccessRestricted", {"statusMask1"});
    messenger.SendCommunicationRequest(
        "<communicationRequest name='deviceStatusMasks' access='write'>"
        "<item name='statusMask1' unit='noUnit'><stringVal>11110000</stringVal></item>"
        "</communicationRequest>",
        "deviceStatusMasks");
    waitForDevice();
    EXPECT_EQ(saved("statusMask1"), "11110000|noUnit|0") << "the user may try again";
    messenger.NotifyDialog(kConfigurationEnds);
    QCoreApplication::processEvents();
    EXPECT_TRUE(messenger.isWaiting());
    waitForDevice();
    EXPECT_EQ(saved("statusMask1"), "3F3F0000|noUnit|1") << "what the device has";
    messenger.NotifyDialog(kConfigurationEnds);
    QCoreApplication::processEvents();
    EXPECT_FALSE(messenger.isWaiting()) << "nothing is left over";
}

} // namespace
} // namespace quill::shell
