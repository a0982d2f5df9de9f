#include "shell/options.h"
#include "window_fixture.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTreeWidget>
#include <gmock/gmock.h>

namespace quill::shell::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Window : public WindowTest {
protected:
    bool close()
    {
        QCloseEvent event;
        QCoreApplication::sendEvent(window.get(), &event);
        return event.isAccepted();
    }
    void makeAnEdit()
    {
        window->showPage("configuration");
        userInput::type(shown(editor<CtrTextEdit>("ratedTravel").txtBox), "55");
    }
    void chooseLanguage(const char* name)
    {
        auto* box = window->findChild<QComboBox*>("language");
        box->setCurrentIndex(box->findData(name));
        emit box->activated(box->currentIndex());
        userInput::settle();
    }
    void chooseLevel(int level)
    {
        auto* box = window->findChild<QComboBox*>("userLevel");
        box->setCurrentIndex(box->findData(level));
        emit box->activated(box->currentIndex());
        userInput::settle();
    }
};

} // namespace

TEST_F(Window, ShowsTheFirstPageAndTurnsToTheOneThatIsChosenInTheTree)
{
    EXPECT_EQ(window->book().GetSelectedView(), "identification");
    auto* tree = window->findChild<QTreeWidget*>("pages");
    tree->setCurrentItem(tree->topLevelItem(1)->child(0));
    userInput::settle();
    EXPECT_EQ(window->book().GetSelectedView(), "tuning");
    EXPECT_TRUE(window->book().page("tuning")->Visible);
    EXPECT_FALSE(window->book().page("identification")->Visible);
}

TEST_F(Window, ArrowKeysWalkTheTreeAndEnterLeadsIntoThePage)
{
    auto* tree = window->findChild<QTreeWidget*>("pages");
    tree->setFocus();
    userInput::press(*tree, Qt::Key_Down);
    EXPECT_EQ(window->book().GetSelectedView(), "hartAddress");
    EXPECT_TRUE(tree->hasFocus());
    userInput::press(*tree, Qt::Key_Down);
    EXPECT_EQ(window->book().GetSelectedView(), "configuration");
    userInput::press(*tree, Qt::Key_Return);
    EXPECT_FALSE(tree->hasFocus());
    EXPECT_TRUE(window->view().isAncestorOf(QApplication::focusWidget()));
}

TEST_F(Window, TheTabKeyLeadsFromTheTreeOverThePageToTheLog)
{
    auto* tree = window->findChild<QTreeWidget*>("pages");
    tree->setFocus();
    userInput::press(*tree, Qt::Key_Down);
    userInput::press(*tree, Qt::Key_Down);
    userInput::press(*tree, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &shown(editor<CtrComboEdit>("valveType").cboBox));
    constexpr int kMost = 100;
    int           steps = 0;
    while (!window->log().isAncestorOf(QApplication::focusWidget()) && ++steps < kMost) {
        EXPECT_TRUE(window->view().isAncestorOf(QApplication::focusWidget()));
        userInput::press(*QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_LT(steps, kMost);
}

TEST_F(Window, ChoosingTheShownPageAgainStaysOnIt)
{
    window->showPage("alarms");
    window->showPage("alarms");
    EXPECT_EQ(window->book().GetSelectedView(), "alarms");
    EXPECT_TRUE(window->book().page("alarms")->Visible);
}

TEST_F(Window, EveryEditorReportsUnderTheNameOfItsParameter)
{
    makeAnEdit();
    EXPECT_TRUE(states.contains("ratedTravel edited"));
    EXPECT_EQ(store().editCount(), 5U) << "four came up as edited, out of step in the datafile";
    EXPECT_TRUE(window->windowTitle().contains("not saved"));
}

TEST_F(Window, ALanguageSwitchChangesEveryTextAndNoValue)
{
    makeAnEdit();
    const auto value = inDocument("ratedTravel", "value");
    chooseLanguage("German");
    EXPECT_EQ(window->book().page("configuration")->labelOf("ratedTravel")->Caption.get(),
              "Nennhub");
    EXPECT_EQ(editor<CtrComboEdit>("characteristic").Text(), "Gleichprozentig");
    EXPECT_EQ(window->command("save")->iconText(), "Speichern");
    EXPECT_EQ(inDocument("ratedTravel", "value"), value);
    EXPECT_TRUE(editor("ratedTravel").Modified());
    EXPECT_FALSE(editor("characteristic").Modified());
    chooseLanguage("Finnish");
    EXPECT_EQ(window->book().page("configuration")->labelOf("ratedTravel")->Caption.get(),
              "Nimellisiskunpituus");
    EXPECT_EQ(store().editCount(), 5U);
}

TEST_F(Window, ReadingNeedsTheDevice)
{
    EXPECT_FALSE(window->command("readPage")->isEnabled());
    EXPECT_FALSE(window->book().page("configuration")->readButton("signal")->Enabled);
    goOnline();
    EXPECT_TRUE(window->command("readPage")->isEnabled());
    EXPECT_TRUE(window->book().page("configuration")->readButton("signal")->Enabled);
    goOnline();
    EXPECT_FALSE(messenger().isOnline()) << "the same command disconnects";
}

TEST_F(Window, ReadingAPageReadsItsRequestGroupsOnceEachAndAsksBeforeItOverwritesEdits)
{
    goOnline();
    makeAnEdit();
    EXPECT_FALSE(window->readPage()) << "declined";
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_TRUE(dialogs.boxes.front().text.startsWith("Reading replaces the edits"));
    dialogs.answers.push_back(true);
    EXPECT_TRUE(window->readPage());
    waitForDevice();
    EXPECT_EQ(responses, QStringList({"read assembly ok", "read signal ok", "read pressure ok",
                                      "read maintenance ok"}));
    EXPECT_FALSE(editor("ratedTravel").Modified());
}

TEST_F(Window, ReadingASectionAsksBeforeItOverwritesItsEditsOnly)
{
    goOnline();
    makeAnEdit();
    const Page& page = *window->book().page("configuration");
    userInput::click(shown(*page.readButton("signal")));
    waitForDevice();
    EXPECT_TRUE(dialogs.boxes.empty()) << "the edit is of another section";
    userInput::click(shown(*page.readButton("assembly")));
    waitForDevice();
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_TRUE(editor("ratedTravel").Modified()) << "declined";
    dialogs.answers.push_back(true);
    userInput::click(shown(*page.readButton("assembly")));
    waitForDevice();
    EXPECT_FALSE(editor("ratedTravel").Modified());
    EXPECT_EQ(responses, QStringList({"read signal ok", "read assembly ok"}));
}

TEST_F(Window, TellsWhatItIs)
{
    QCoreApplication::setApplicationVersion("1.2.3");
    window->command("about")->trigger();
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes.front().title, "About Quill");
    EXPECT_THAT(dialogs.boxes.front().text.toStdString(),
                testing::AllOf(HasSubstr("Version 1.2.3"), HasSubstr("Apache License 2.0")));
    QCoreApplication::setApplicationVersion({});
}

TEST_F(Window, AnObserverChangesNothingOnTheDevice)
{
    goOnline();
    EXPECT_TRUE(window->command("changes")->isEnabled());
    chooseLevel(2);
    EXPECT_EQ(messenger().GetUserLevel(), 2);
    EXPECT_FALSE(window->command("changes")->isEnabled());
    EXPECT_EQ(window->command("changes")->toolTip(),
              "Your user level does not allow changes on the device.");
    goOnline();
    EXPECT_TRUE(window->command("changes")->isEnabled()) << "offline nothing goes to the device";
}

TEST_F(Window, ClosesWithoutAQuestionWhenThereIsNothingToLose)
{
    EXPECT_TRUE(close());
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(Window, ClosingWithPendingChangesAsksAndStaysOnCancel)
{
    makeAnEdit();
    EXPECT_FALSE(close());
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes.front().text, "device.xml has changes that are not saved. Save them?");
}

TEST_F(Window, ClosingSavesOrDiscardsAsTheUserSays)
{
    makeAnEdit();
    dialogs.saveChoices = {SaveChoice::discard, SaveChoice::save};
    EXPECT_TRUE(close());
    EXPECT_EQ(onDisk("ratedTravel", "value"), "40");
    EXPECT_TRUE(close());
    EXPECT_EQ(onDisk("ratedTravel", "value"), "55");
}

TEST_F(Window, ClosingStaysWhenSavingFails)
{
    makeAnEdit();
    dialogs.saveChoices = {SaveChoice::save};
    QFile::remove(path());
    QDir().mkpath(path()); // a folder where the file was
    EXPECT_FALSE(close());
    EXPECT_EQ(dialogs.boxes.back().title, "Error");
    EXPECT_TRUE(store().hasUnsavedChanges());
}

TEST_F(Window, ARefusedFileIsToldAndTheOldOneStays)
{
    window->showPage("configuration");
    Book* const before = &window->book();
    for (const std::string& bad : {folder.path("missing.xml"), folder.write("bad.xml", "<dtm"),
                                   folder.write("other.xml", "<letter/>")}) {
        dialogs.boxes.clear();
        EXPECT_FALSE(window->openDatafile(QString::fromStdString(bad))) << bad;
        ASSERT_EQ(dialogs.boxes.size(), 1U) << bad;
        EXPECT_EQ(dialogs.boxes.front().title, "Error");
        EXPECT_FALSE(dialogs.boxes.front().text.startsWith("shell_"));
    }
    EXPECT_EQ(&window->book(), before) << "the pages were left alone";
    EXPECT_EQ(store().path(), path().toStdString());
    EXPECT_EQ(editor<CtrTextEdit>("ratedTravel").Text(), "40.0");
}

TEST_F(Window, OpeningAnotherFileStaysOnThePage)
{
    window->showPage("alarms");
    window->openSample();
    EXPECT_EQ(window->book().GetSelectedView(), "alarms");
    dialogs.files = {path()};
    window->command("open")->trigger();
    EXPECT_EQ(dialogs.boxes.back().title, "Open");
    EXPECT_EQ(store().path(), path().toStdString());
}

TEST_F(Window, EscapeClosesTheDialogOfChangesAndSendsNothing)
{
    goOnline();
    makeAnEdit();
    window->command("changes")->trigger();
    userInput::settle();
    auto& dialog = window->changesDialog();
    ASSERT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.control().cmdDownload.Caption.get(), "Download");
    userInput::press(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(responses.isEmpty());
    EXPECT_TRUE(editor("ratedTravel").Modified());
}

TEST_F(Window, EnterInTheDialogOfChangesDownloads)
{
    goOnline();
    makeAnEdit();
    window->command("changes")->trigger();
    auto& dialog = window->changesDialog();
    dialog.view().flush();
    QWidget& list = *dialog.view().shown(dialog.control().lstChanges);
    list.setFocus();
    userInput::press(list, Qt::Key_Return);
    waitForDevice();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(responses, QStringList{"write assembly ok"});
    EXPECT_EQ(std::stod(messenger().device().find("ratedTravel")->value), 55);
}

TEST_F(Window, OtherUnitsConvertWhatIsShownAndChangeNothing)
{
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->data().toString() == "US") {
            action->trigger();
        }
    }
    const auto& low = editor<CtrTextEdit>("supplyLowPressure");
    EXPECT_EQ(low.Unit(), "psi");
    EXPECT_NEAR(std::stod(low.Text()), 50.76, 0.01);
    EXPECT_FALSE(low.Modified());
    EXPECT_EQ(inDocument("supplyLowPressure", "value"), "3.50");
    EXPECT_FALSE(store().hasUnsavedChanges());
}

TEST_F(Window, TheLogTellsStatesInTheLanguageOfTheUser)
{
    chooseLanguage("German");
    makeAnEdit();
    EXPECT_TRUE(window->log().lines().contains("Nennhub: geändert"));
    window->log().clear();
    EXPECT_TRUE(window->log().lines().isEmpty());
}

// --- The command line -------------------------------------------------------------------------

TEST(CommandLine, TakesTheOptions)
{
    const Options options =
        readOptions({"quill-shell", "--datafile", "a.xml", "--language", "fi", "--offline"});
    EXPECT_EQ(options.wish, Options::Wish::run);
    EXPECT_EQ(options.datafile, "a.xml");
    EXPECT_EQ(options.language, "Finnish");
    EXPECT_TRUE(options.offline);
    EXPECT_EQ(readOptions({"quill-shell", "--tour", "out"}).tourFolder, "out");
}

TEST(CommandLine, RefusesWhatItDoesNotKnowAndShowsTheHelp)
{
    for (const QStringList& arguments :
         {QStringList{"quill-shell", "--nonsense"}, QStringList{"quill-shell", "--language", "sv"},
          QStringList{"quill-shell", "file.xml"}, QStringList{"quill-shell", "--tour", ""}}) {
        const Options options = readOptions(arguments);
        EXPECT_EQ(options.wish, Options::Wish::refuse) << arguments.join(' ').toStdString();
        EXPECT_THAT(options.text.toStdString(), HasSubstr("--datafile"));
    }
    EXPECT_EQ(readOptions({"quill-shell", "--help"}).wish, Options::Wish::printHelp);
}

// --- Pages ------------------------------------------------------------------------------------

TEST(PageDescriptions, AreReadInTheirOrder)
{
    const auto pages = readPages(R"({"pages": [{"tag": "a", "title": "t", "sections": [
        {"title": "s", "group": "g", "rows": [{"text": "x"}, {"time": "y"}]}]}]})");
    ASSERT_EQ(pages.size(), 1U);
    ASSERT_EQ(pages[0].sections.size(), 1U);
    EXPECT_EQ(pages[0].sections[0].group, "g");
    EXPECT_EQ(pages[0].sections[0].rows[1].parameter, "y");
    EXPECT_EQ(pages[0].sections[0].rows[1].kind, PageRow::Kind::time);
}

TEST(PageDescriptions, AreRefusedWithTheReason)
{
    for (const char* bad :
         {"", "{", "{}", R"({"pages": [{"title": "no tag"}]})",
          R"({"pages": [{"tag": "a"}, {"tag": "a"}]})",
          R"({"pages": [{"tag": "a", "sections": [{"rows": [{"knob": "x"}]}]}]})"}) {
        EXPECT_THROW(static_cast<void>(readPages(bad)), platform::Failure) << bad;
    }
}

TEST_F(Window, EveryParameterOfTheBuiltInPagesIsInTheSampleAndHasALabel)
{
    for (const auto& page : window->book().pages()) {
        for (const auto& section : page->description().sections) {
            for (const auto& row : section.rows) {
                EXPECT_TRUE(editor<EditorCore>(row.parameter).IsInitialized()) << row.parameter;
                EXPECT_FALSE(page->labelOf(row.parameter)->Caption.get().starts_with("Err:"))
                    << row.parameter;
            }
        }
    }
}

} // namespace quill::shell::test
