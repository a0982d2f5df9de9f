#include "shell/shell_messenger.h"

#include "../support/toolkit_scope.h"
#include "editor_page.h"
#include "framework/documents.h"
#include "platform/failure.h"
#include "records/CtrChanges.h"
#include "temporary_folder.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill::shell {
namespace {

using testing::Contains;
using testing::ElementsAre;

/// A user who answers by script.
class ScriptedUser : public UserDialogs {
public:
    std::vector<std::string> messages;
    bool                     says = false;

    void showMessage(const QString& title, const QString& text) override
    {
        messages.push_back((title + ": " + text).toStdString());
    }
    bool askQuestion(const QString& title, const QString& text) override
    {
        showMessage(title, text);
        return says;
    }
};

/// A datafile of a device that the program knows nothing of.
constexpr const char* otherDatafile =
    R"(<dtm xmlns="x-schema:QVXDatafileSchema.xml" xmlns:typeInfo="x-schema:QVXDeviceTypeInfoSchema.xml">
<persistentData><typeInfo:device><typeInfo:internalInfo name="OTHER"/></typeInfo:device>
<parameters><parameter name="tag" type="stringVal" value="X" access="readWrite" synchronised="1"/>
</parameters></persistentData></dtm>)";

/// The shell without its window: a page of real editors over the sample datafile and its device.
class Shell : public testing::Test {
protected:
    Shell()
    {
        messenger.setDialogs(&user);
        messenger.openSample();
        page.addText("tag").ForceHartPackedAscii(true);
        page.addText("descriptor");
        page.addText("supplyPressure");
        page.addText("supplyLowPressure");
        page.addText("proportionalGain");
        page.addText("openingTime");
        page.addText("curveOutput_2");
        page.addCombo("characteristic");
        page.addCombo("alarmHighAction_2");
        page.addDate("installationDate");
        page.SetMessenger(&messenger);
        messenger.deliverDatafile(page);
        // The lists of the combo boxes have come with the datafile.
        messenger.localize(page);
        QObject::connect(&messenger, &ShellMessenger::onlineDataArrived,
                         [this](const IXMLDOMNode& response) { page.SetOnlineData(response); });
        QObject::connect(&messenger, &ShellMessenger::errorDataArrived,
                         [this](const IXMLDOMNode& response) { page.SetErrorData(response); });
        QObject::connect(&messenger, &ShellMessenger::datafileChanged,
                         [this] { messenger.deliverDatafile(page); });
        QObject::connect(&messenger, &ShellMessenger::languageChanged,
                         [this] { messenger.localize(page); });
        QObject::connect(&messenger, &ShellMessenger::errorReported,
                         [this](const QString& where, int number, const QString& description) {
                             // Frames and labels are no data users, which each response finds out.
                             if (number != platform::kNotSupportedByObject) {
                                 errors.push_back((where + ": " + description).toStdString());
                             }
                         });
    }
    ~Shell() override { page.PrepareToRelease(); }

    template <class Editor>
    Editor& editor(const std::string& name)
    {
        for (platform::Widget* widget : page.GetControls()) {
            if (auto* found = dynamic_cast<Editor*>(widget); found && found->Tag == "ctr_" + name) {
                return *found;
            }
        }
        throw std::runtime_error("no editor of " + name);
    }
    CtrTextEdit& text(const std::string& name) { return editor<CtrTextEdit>(name); }

    void waitForDevice()
    {
        while (messenger.isWaiting()) {
            QCoreApplication::processEvents();
        }
    }
    std::string saved(const std::string& name)
    {
        const auto content = messenger.store().content(name);
        return content.value + "|" + content.unit + "|" + content.synchronised;
    }

    test::ToolkitScope       toolkit;
    ScriptedUser             user;
    ShellMessenger           messenger;
    test::EditorPage         page;
    std::vector<std::string> errors;
};

TEST_F(Shell, ADatafileThatWasOnlyShownIsSavedUnchanged)
{
    TemporaryFolder folder;
    const auto      before = messenger.store().bytes();
    messenger.units().SetDisplayUnit("pressure", "psi");
    messenger.informUnitChanges();
    messenger.setLanguage("Finnish");
    messenger.deliverDatafile(page);
    EXPECT_EQ(text("supplyPressure").Unit(), "psi");
    messenger.store().save(folder.path("a.xml"));
    EXPECT_EQ(folder.read("a.xml"), before);
    EXPECT_THAT(errors, ElementsAre());
}

TEST_F(Shell, AnEditIsSavedOutOfStepAndItsRevocationLeavesNoTrace)
{
    const auto before = messenger.store().bytes();
    text("descriptor").txtBox.type("New descriptor");
    EXPECT_EQ(saved("descriptor"), "New descriptor|noUnit|0");
    text("descriptor").txtBox.type("FEEDWATER VALVE");
    EXPECT_EQ(messenger.store().bytes(), before);
    EXPECT_FALSE(messenger.store().hasUnsavedChanges());
}

TEST_F(Shell, AnEditInAnotherUnitIsSavedInTheDatafilesUnit)
{
    messenger.units().SetDisplayUnit("pressure", "psi");
    messenger.informUnitChanges();
    text("supplyLowPressure").txtBox.type("72.52");
    EXPECT_NEAR(std::stod(messenger.store().content("supplyLowPressure").value), 5.0001, 1e-3);
    EXPECT_EQ(messenger.store().content("supplyLowPressure").unit, "bar");
    const auto edited = saved("supplyLowPressure");
    messenger.units().SetDisplayUnit("pressure", "kPa");
    messenger.informUnitChanges();
    EXPECT_EQ(text("supplyLowPressure").Unit(), "kPa");
    EXPECT_EQ(saved("supplyLowPressure"), edited);
}

TEST_F(Shell, AnEditThatIsNotCorrectIsNotSaved)
{
    const auto before = messenger.store().bytes();
    text("proportionalGain").txtBox.type("5000");
    EXPECT_FALSE(text("proportionalGain").Correct());
    EXPECT_EQ(messenger.store().bytes(), before);
    EXPECT_TRUE(messenger.store().hasUnsavedChanges());
}

TEST_F(Shell, AParameterOutOfStepIsSavedOnceTheUserEditsIt)
{
    EXPECT_TRUE(text("openingTime").Modified());
    EXPECT_EQ(saved("openingTime"), "4.5|s|0");
    text("openingTime").txtBox.type("7");
    EXPECT_EQ(saved("openingTime"), "7|s|0");
}

TEST_F(Shell, AChoiceAndItsRevocation)
{
    const auto before = messenger.store().bytes();
    editor<CtrComboEdit>("characteristic").cboBox.choose(2);
    EXPECT_EQ(saved("characteristic"), "2|noUnit|0");
    editor<CtrComboEdit>("characteristic").cboBox.choose(1);
    EXPECT_EQ(messenger.store().bytes(), before);
}

TEST_F(Shell, FindsTheSharedValueListBehindASuffix)
{
    EXPECT_EQ(editor<CtrComboEdit>("alarmHighAction_2").Text(), "Hold position");
    messenger.setLanguage("German");
    EXPECT_EQ(editor<CtrComboEdit>("alarmHighAction_2").Text(), "Position halten");
}

TEST_F(Shell, WhatIsReadIsSavedInStep)
{
    messenger.setOnline(true);
    EXPECT_TRUE(messenger.readAll());
    waitForDevice();
    EXPECT_EQ(saved("characteristic"), "0|noUnit|1");
    EXPECT_EQ(saved("openingTime"), "5.2|s|1");
    EXPECT_EQ(saved("curveOutput_2"), "62.5|%|1");
    EXPECT_EQ(saved("proportionalGain"), "3.15||1");
    EXPECT_EQ(saved("installationDate"), "2.11.2022|noUnit|1");
    // No editor shows these.
    EXPECT_EQ(saved("cycleCounter"), "47988|noUnit|1");
    EXPECT_EQ(saved("ambientAbsolutePressure"), "1.008013|bar(a)|1");
    const auto pressure = messenger.store().content("supplyPressure");
    EXPECT_NEAR(std::stod(pressure.value), 5.6089, 1e-3);
    EXPECT_EQ(pressure.unit, "bar");
    EXPECT_EQ(pressure.synchronised, "1");
    EXPECT_EQ(text("supplyPressure").Text(), "5.61");
    EXPECT_EQ(text("supplyPressure").Unit(), "bar");
    EXPECT_EQ(messenger.store().editCount(), 0U);
    EXPECT_THAT(errors, ElementsAre());

    // All that is in step now comes out of a saved file in the same way.
    TemporaryFolder folder;
    messenger.store().save(folder.path("a.xml"));
    messenger.openDatafile(folder.path("a.xml"));
    for (const IXMLDOMNode& mark :
         messenger.store().document().selectNodes("//data:parameter/@synchronised")) {
        EXPECT_EQ(mark.get_text(), "1");
    }
    const auto group = documents::findLastUpdate(messenger.store().document(), "output").get_text();
    EXPECT_EQ(group, "06.05.2024 07:08:09");
}

TEST_F(Shell, AReadThatFailsMarksTheParameters)
{
    messenger.setOnline(true);
    messenger.device().failNext("communicationError");
    messenger.readGroup("pressure");
    waitForDevice();
    EXPECT_EQ(saved("supplyPressure"), "5.60|bar|2");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0],
                testing::StartsWith("Error: The device does not answer. Check the connection"));
    messenger.readGroup("pressure");
    waitForDevice();
    EXPECT_EQ(messenger.store().content("supplyPressure").synchronised, "1");
}

TEST_F(Shell, ADownloadGoesToTheDeviceAndComesBackInStep)
{
    CtrChanges changes{platform::Design{.Name = "changes"}};
    changes.SetMessenger(&messenger);
    messenger.setOnline(true);
    messenger.readAll();
    waitForDevice();
    text("descriptor").txtBox.type("OTHER VALVE");
    text("supplyLowPressure").txtBox.type("4");
    editor<CtrComboEdit>("characteristic").cboBox.choose(3);
    EXPECT_EQ(messenger.store().editCount(), 3U);
    changes.show();
    EXPECT_EQ(changes.lstChanges.Count(), 3);
    changes.cmdDownload.click();
    waitForDevice();
    EXPECT_EQ(messenger.device().find("descriptor")->value, "OTHER VALVE");
    EXPECT_EQ(messenger.device().find("characteristic")->value, "3");
    EXPECT_NEAR(std::stod(messenger.device().find("supplyLowPressure")->value), 58.015, 0.01);
    EXPECT_EQ(saved("descriptor"), "OTHER VALVE|noUnit|1");
    EXPECT_EQ(saved("characteristic"), "3|noUnit|1");
    EXPECT_EQ(messenger.store().editCount(), 0U);
    EXPECT_FALSE(text("descriptor").Modified());
    changes.SetMessenger(nullptr);
}

TEST_F(Shell, EditsAcceptedOfflineStayEditsAndAreInTheDatafile)
{
    CtrChanges changes{platform::Design{.Name = "changes"}};
    changes.SetMessenger(&messenger);
    QSignalSpy changed{&messenger, &ShellMessenger::datafileChanged};
    text("descriptor").txtBox.type("OTHER VALVE");
    editor<CtrComboEdit>("characteristic").cboBox.choose(3);
    changes.show();
    changes.cmdDownload.click();
    EXPECT_EQ(changed.size(), 1) << "two request groups, one change";
    EXPECT_EQ(saved("descriptor"), "OTHER VALVE|noUnit|0");
    EXPECT_EQ(saved("characteristic"), "3|noUnit|0");
    EXPECT_EQ(messenger.device().find("characteristic")->value, "0");
    EXPECT_TRUE(text("descriptor").Modified());
    EXPECT_EQ(text("descriptor").Text(), "OTHER VALVE");
    // And a further edit counts.
    text("descriptor").txtBox.type("FEEDWATER VALVE");
    EXPECT_EQ(saved("descriptor"), "FEEDWATER VALVE|noUnit|0");
    changes.SetMessenger(nullptr);
}

TEST_F(Shell, OfflineNothingGoesToTheDevice)
{
    EXPECT_FALSE(messenger.readAll());
    EXPECT_FALSE(messenger.ExecuteNamedRequest("pressure", "reading", 0, 0));
    messenger.SendCommunicationRequest("<communicationRequest name='x' access='write'/>", "x");
    EXPECT_FALSE(messenger.link().isBusy());
    EXPECT_EQ(user.messages.size(), 3U);
    EXPECT_THAT(user.messages, Contains("Error: This needs the device. Go online first."));
}

TEST_F(Shell, ALowUserLevelMayReadButNotWrite)
{
    messenger.setOnline(true);
    messenger.setUserLevel(2);
    EXPECT_EQ(messenger.GetUserLevel(), 2);
    EXPECT_FALSE(messenger.ExecuteCommunicationRequest(
        "<communicationRequest name='x' access='write'/>", "", 1, 1));
    EXPECT_THAT(user.messages,
                ElementsAre("Error: Your user level does not allow changes on the device."));
    EXPECT_TRUE(messenger.readGroup("burst"));
    waitForDevice();
}

TEST_F(Shell, EditingIsBarredWhileATransferRuns)
{
    std::vector<int> modes;
    QObject::connect(&messenger, &ShellMessenger::communicationModeChanged,
                     [&](int mode) { modes.push_back(mode); });
    EXPECT_EQ(messenger.GetCommunicationMode(), kOffline);
    messenger.setOnline(true);
    messenger.readGroup("tuning");
    EXPECT_FALSE(text("descriptor").txtBox.Enabled);
    EXPECT_EQ(messenger.GetCommunicationMode(), kEditingBarred);
    waitForDevice();
    EXPECT_TRUE(text("descriptor").txtBox.Enabled);
    messenger.readGroup("tuning");
    messenger.setOnline(false);
    EXPECT_EQ(messenger.GetCommunicationMode(), kOffline);
    EXPECT_TRUE(text("descriptor").txtBox.Enabled);
    EXPECT_THAT(modes, ElementsAre(kOnline, kEditingBarred, kOnline, kEditingBarred, kOffline));
}

TEST_F(Shell, KeepsBookingsOfOneLabelApart)
{
    std::vector<std::string> labels;
    const auto               subscription = messenger.DialogSetChanges.subscribe(
        [&](IQornDataEditor*, const std::string&, const std::string& label, const std::string&,
            const std::string&, const std::string&, const std::string&,
            const std::string&) { labels.push_back(label); });
    CtrTextEdit editor;
    messenger.BookChange(editor, "ctr_a", "Limit", "", "1", "", "", "");
    messenger.BookChange(editor, "ctr_b", "Limit", "", "1", "", "", "");
    messenger.setLanguage("German");
    messenger.BookChange(editor, "ctr_b", "Limit", "", "1", "", "", "");
    EXPECT_THAT(labels, ElementsAre("Limit", "Limit (b)", "Limit"));
}

TEST_F(Shell, TranslatesWhatItShowsAndAsks)
{
    messenger.setLanguage("German");
    messenger.ShowMessage("error", "shell_saved#/x");
    user.says = true;
    EXPECT_EQ(messenger.AskQuestion("shell_closeTitle", "no key"), kPositiveAnswer);
    user.says = false;
    EXPECT_NE(messenger.AskQuestion("error", "no key"), kPositiveAnswer);
    EXPECT_THAT(user.messages,
                ElementsAre("Fehler: Gespeichert: /x", "Nicht gespeicherte Änderungen: no key",
                            "Fehler: no key"));
    messenger.setDialogs(nullptr);
    EXPECT_NE(messenger.AskQuestion("error", "no key"), kPositiveAnswer);
    messenger.ShowMessage("error", "x");
}

TEST_F(Shell, ReportsReachTheLog)
{
    QSignalSpy lines{&messenger, &ShellMessenger::logWritten};
    QSignalSpy failures{&messenger, &ShellMessenger::errorReported};
    messenger.WriteLog(kLogUnit, "a line");
    messenger.ReportError("here", 91, "gone");
    messenger.ReportErrorObject("there", 5, "wrong");
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines[0][0].toChar(), QChar{u'T'});
    EXPECT_EQ(lines[0][1].toString(), "a line");
    ASSERT_EQ(failures.size(), 2);
    EXPECT_EQ(failures[0][1].toInt(), 91);
}

TEST_F(Shell, TheDeviceKeepsItsMemoryWhenADatafileOfItsTypeIsOpened)
{
    TemporaryFolder folder;
    messenger.device().set("tag", "KEPT");
    messenger.store().save(folder.path("a.xml"));
    messenger.openDatafile(folder.path("a.xml"));
    EXPECT_EQ(messenger.device().find("tag")->value, "KEPT");
    EXPECT_THROW(messenger.openDatafile(folder.path("none.xml")), platform::Failure);
    EXPECT_EQ(messenger.store().path(), folder.path("a.xml"));
}

TEST_F(Shell, AClassificationThatIsFixedStays)
{
    messenger.SetStatusClassification(kClassNAMUR);
    EXPECT_EQ(messenger.GetStatusClassification(), kClassNAMUR);
    messenger.SetFixedStatusClassification(kClassSeverity);
    messenger.SetStatusClassification(kClassNAMUR);
    EXPECT_TRUE(messenger.IsStatusClassificationFixed());
    EXPECT_EQ(messenger.GetStatusClassification(), kClassSeverity);
}

TEST_F(Shell, KeepsDocumentsByName)
{
    EXPECT_EQ(messenger.GetHostDocument("other"), "");
    EXPECT_NE(messenger.GetHostDocument("FDT"), "") << "before anybody has chosen a module";
    EXPECT_TRUE(messenger.SetHostDocument("FDT", "<x/>"));
    EXPECT_EQ(messenger.GetHostDocument("FDT"), "<x/>");
}

// --- The device's status ----------------------------------------------------------------------

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
