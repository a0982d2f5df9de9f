// The road of one value through the real window: datafile, device, user, dialog, device, datafile.
#include "shell/tour.h"
#include "window_fixture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPushButton>
#include <gmock/gmock.h>

namespace quill::shell::test {

namespace {

using testing::ElementsAre;

// The text and the date belong to one request group, the combo to another.
constexpr const char* kText  = "strokeTestInterval";
constexpr const char* kCombo = "characteristic";
constexpr const char* kDate  = "maintenanceDate";

class RoadOfOneValue : public WindowTest {
protected:
    RoadOfOneValue() { window->showPage("configuration"); }

    void goOnlineAndRead()
    {
        goOnline();
        for (const char* group : {"signal", "pressure", "maintenance"}) {
            read(group);
        }
    }

    void edit()
    {
        userInput::type(shown(editor<CtrTextEdit>(kText).txtBox), "1000");
        auto& list = shown(editor<CtrComboEdit>(kCombo).cboBox);
        list.setFocus();
        userInput::press(list, Qt::Key_Down);
        auto& picker = shown(editor<CtrDateEdit>(kDate).datePicker);
        picker.setFocus();
        userInput::press(picker, Qt::Key_Up);
    }

    void download()
    {
        userInput::click(toolButton("changes"));
        auto& dialog = window->changesDialog();
        ASSERT_TRUE(dialog.isVisible());
        dialog.view().flush();
        userInput::click(*dialog.view().shown(dialog.control().cmdDownload));
        ASSERT_FALSE(dialog.isVisible());
        waitForDevice();
    }
};

} // namespace

TEST_F(RoadOfOneValue, TheDatafileIsShownWithUnitsAndLimits)
{
    const auto& text = editor<CtrTextEdit>(kText);
    EXPECT_EQ(text.Text(), "720.00");
    EXPECT_EQ(text.Unit(), "h");
    EXPECT_EQ(text.txtBox.ToolTipText.get(), "1..8760 h");
    EXPECT_EQ(editor<CtrComboEdit>(kCombo).Text(), "Equal percentage");
    EXPECT_EQ(editor<CtrDateEdit>(kDate).Text(), "5.4.2024");
    const auto& time = editor<CtrDateEdit>("dailyTestTime");
    EXPECT_TRUE(time.timeMode());
    EXPECT_EQ(time.Text(), "6:30:00");
    EXPECT_FALSE(store().hasUnsavedChanges()) << "showing a datafile is no edit";
}

TEST_F(RoadOfOneValue, AReadBringsValuesInAnotherUnitAndTheEditorsConvertAndReport)
{
    goOnline();
    states.clear();
    read("pressure");
    const auto& low = editor<CtrTextEdit>("supplyLowPressure");
    EXPECT_EQ(messenger().device().find("supplyLowPressure")->unit, "psi");
    EXPECT_EQ(low.Unit(), "bar");
    EXPECT_EQ(low.Text(), "3.45");
    EXPECT_TRUE(states.contains("supplyLowPressure sync"));
    EXPECT_EQ(inDocument("supplyLowPressure", "unit"), "bar");
    EXPECT_NEAR(std::stod(inDocument("supplyLowPressure", "value")), 3.44738, 1e-4);
    read("maintenance");
    EXPECT_EQ(editor<CtrTextEdit>(kText).Text(), "672.00") << "28 d";
    EXPECT_EQ(editor<CtrDateEdit>(kDate).Text(), "15.9.2026");
    EXPECT_EQ(inDocument(kDate, "synchronised"), "1");
}

TEST_F(RoadOfOneValue, ABadValueIsRedAndSparesTheDatafileAGoodOneIsBlueAndGoesThere)
{
    goOnlineAndRead();
    states.clear();
    auto& text = editor<CtrTextEdit>(kText);
    auto& box  = shown(text.txtBox);
    userInput::type(box, "99999");
    EXPECT_FALSE(text.Correct());
    EXPECT_TRUE(text.lblError.Visible);
    EXPECT_EQ(text.txtBox.ForeColor, editorColors::kRed);
    EXPECT_NE(inDocument(kText, "value"), "99999");
    EXPECT_EQ(states.last(), QString(kText) + " editedError");

    userInput::type(box, "1000");
    EXPECT_TRUE(text.Correct());
    EXPECT_TRUE(text.lblModified.Visible);
    EXPECT_EQ(text.txtBox.ForeColor, editorColors::kBlue);
    EXPECT_EQ(inDocument(kText, "value"), "1000");
    EXPECT_EQ(inDocument(kText, "synchronised"), "0");
    EXPECT_EQ(states.last(), QString(kText) + " corrected");
    EXPECT_TRUE(store().hasUnsavedChanges());
}

TEST_F(RoadOfOneValue, TheDialogListsOldAndNewValueOfATextAComboAndADate)
{
    goOnlineAndRead();
    edit();
    userInput::click(toolButton("changes"));
    const auto&              list = window->changesDialog().control().lstChanges;
    std::vector<std::string> rows;
    for (const auto& item : list.ListItems()) {
        if (item.Checked) {
            rows.push_back(item.Text + ": " + item.SubItems.at(0) + " -> " + item.SubItems.at(1));
        }
    }
    EXPECT_THAT(rows, ElementsAre("Characteristic: Linear -> Equal percentage",
                                  "Next maintenance: 15.9.2026 -> 15.9.2027",
                                  "Interval of the stroke test: 672.00 -> 1000.00"));
}

TEST_F(RoadOfOneValue, DownloadSendsOneRequestPerGroupInTheOrderOfTheListAndTheSignsGo)
{
    goOnlineAndRead();
    edit();
    responses.clear();
    download();
    EXPECT_EQ(responses, QStringList({"write signal ok", "write maintenance ok"}));
    const auto& device = messenger().device();
    EXPECT_EQ(device.find(kCombo)->value, "1");
    EXPECT_EQ(device.find(kDate)->value, "15.9.2027");
    EXPECT_NEAR(std::stod(device.find(kText)->value), 1000.0 / 24, 1e-3) << "in the device's unit";
    for (const char* parameter : {kText, kCombo, kDate}) {
        EXPECT_FALSE(editor(parameter).Modified()) << parameter;
        EXPECT_TRUE(editor(parameter).Correct()) << parameter;
        EXPECT_EQ(inDocument(parameter, "synchronised"), "1") << parameter;
    }
}

TEST_F(RoadOfOneValue, TheFileKeepsTheValuesAfterSaveAndLoad)
{
    goOnlineAndRead();
    edit();
    download();
    ASSERT_TRUE(window->save());
    EXPECT_FALSE(store().hasUnsavedChanges());
    EXPECT_NEAR(std::stod(onDisk(kText, "value")), 1000, 1e-2);
    EXPECT_EQ(onDisk(kText, "unit"), "h");
    EXPECT_EQ(onDisk(kCombo, "value"), "1");
    EXPECT_EQ(onDisk(kDate, "value"), "15.9.2027");

    window.reset();
    openWindow();
    ASSERT_TRUE(window->openDatafile(path()));
    EXPECT_EQ(editor<CtrTextEdit>(kText).Text(), "1000.00");
    EXPECT_EQ(editor<CtrComboEdit>(kCombo).Text(), "Equal percentage");
    EXPECT_EQ(editor<CtrDateEdit>(kDate).Text(), "15.9.2027");
    for (const char* parameter : {kText, kCombo, kDate}) {
        EXPECT_FALSE(editor(parameter).Modified()) << parameter;
    }
}

TEST_F(RoadOfOneValue, MissingItemsShowInTheEditorsTheyNameAndInOneMessage)
{
    goOnlineAndRead();
    dialogs.boxes.clear();
    messenger().device().failNext("missingItems", {"supplyLowPressure", "supplyHighPressure"});
    read("pressure");
    for (const char* parameter : {"supplyLowPressure", "supplyHighPressure"}) {
        EXPECT_TRUE(editor(parameter).lblError.Visible) << parameter;
        EXPECT_TRUE(editor(parameter).lblModified.Visible) << parameter;
    }
    EXPECT_TRUE(editor("supplyPressure").Correct());
    EXPECT_TRUE(editor(kText).Correct());
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes.front().title, "Error");
    EXPECT_TRUE(dialogs.boxes.front().text.endsWith(
        "\r\n\"supplyLowPressure\"\r\n\"supplyHighPressure\"\r\n"));
}

TEST_F(RoadOfOneValue, ACommunicationErrorIsReportedAndTheNextAnswerBringsTheEditorsBack)
{
    goOnlineAndRead();
    dialogs.boxes.clear();
    states.clear();
    messenger().device().failNext("communicationError");
    read("signal");
    EXPECT_TRUE(states.contains("characteristic syncError")) << "a combo editor";
    EXPECT_TRUE(states.contains("filterTime syncError")) << "a text editor";
    EXPECT_FALSE(states.contains("supplyLowPressure syncError")) << "another group";
    EXPECT_EQ(inDocument("filterTime", "synchronised"), "2");
    EXPECT_TRUE(states.contains("curveInput_1 syncError")) << "an editor on another page";
    EXPECT_EQ(dialogs.boxes.size(), 1U) << "two pages are concerned, the user is told once";
    read("signal");
    EXPECT_TRUE(states.contains("characteristic reSync"));
    EXPECT_EQ(inDocument("filterTime", "synchronised"), "1");
}

TEST_F(RoadOfOneValue, OfflineTheChangesGoIntoTheDatafile)
{
    edit();
    download();
    EXPECT_TRUE(responses.isEmpty()) << "nothing goes to the device";
    ASSERT_TRUE(window->save());
    EXPECT_EQ(std::stod(onDisk(kText, "value")), 1000);
    EXPECT_EQ(onDisk(kText, "synchronised"), "0");
}

TEST_F(RoadOfOneValue, TheTourGoesWellAndLeavesPicturesAndAnAccount)
{
    window.reset();
    Options options;
    options.tourFolder = QString::fromStdString(folder.path("out"));
    EXPECT_EQ(takeTour(options), 0);
    const std::string account = folder.read("out/account.txt");
    EXPECT_NE(account.find("All went well"), std::string::npos) << account;
    const auto picture = [&](const QString& name) {
        const QDir files(options.tourFolder, "*-" + name + ".png");
        return QImage(files.count() == 1 ? files.filePath(files[0]) : QString{});
    };
    const QImage sharp = picture("configuration-192dpi");
    const QImage plain = picture("configuration-offline");
    EXPECT_GT(plain.width(), 0);
    EXPECT_EQ(sharp.width(), 2 * plain.width());
    openWindow(); // what the fixture lets go of
}

} // namespace quill::shell::test
