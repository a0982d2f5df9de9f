// The road of a value from the datafile to the device and back, and what the shell offers besides.

#include "shell_messenger_fixture.h"

#include "records/CtrChanges.h"
#include "temporary_folder.h"

#include <QSignalSpy>

namespace quill::shell {
namespace {

using testing::Contains;
using testing::ElementsAre;

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

} // namespace
} // namespace quill::shell
