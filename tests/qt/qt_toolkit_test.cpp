#include "qt/qt_toolkit.h"

#include "platform/failure.h"
#include "platform/menu.h"
#include "tests/qt/screen_test_support.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>

#include <gmock/gmock.h>

namespace quill::qt::test {

namespace {

TEST(LocaleForms, AreNumbersWithFourDigitsOfTheYearAndSeconds)
{
    const auto german = localeForms(QLocale("de_DE"));
    EXPECT_EQ(german.decimal, ",");
    EXPECT_EQ(german.shortDate, "dd.MM.yyyy");
    EXPECT_EQ(german.longTime, "HH:mm:ss");
    const auto american = localeForms(QLocale("en_US"));
    EXPECT_EQ(american.decimal, ".");
    EXPECT_EQ(american.shortDate, "M/d/yyyy");
    EXPECT_EQ(american.longTime, "h:mm:ss AP");
    const auto finnish = localeForms(QLocale("fi_FI"));
    EXPECT_EQ(finnish.shortDate, "d.M.yyyy");
    EXPECT_EQ(finnish.longTime, "H.mm.ss");
    // Months in letters give way to the ISO form.
    EXPECT_EQ(localeForms(QLocale::c()).shortDate, "yyyy-MM-dd");
}

TEST(QtToolkitTest, MeasuresTextInTwips)
{
    QtToolkit  toolkit;
    const auto one = toolkit.textWidth("m");
    EXPECT_EQ(one % 15, 0);
    EXPECT_GT(one, 0);
    EXPECT_GT(toolkit.textWidth("mmmm"), 3 * one);
    EXPECT_EQ(toolkit.textWidth(""), 0);
}

TEST(QtToolkitTest, SharesTheClipboard)
{
    QtToolkit toolkit;
    toolkit.setClipboard("grün");
    EXPECT_EQ(QApplication::clipboard()->text(), QString::fromUtf8("grün"));
    QApplication::clipboard()->setText("x");
    EXPECT_EQ(toolkit.clipboard(), "x");
}

TEST(QtToolkitTest, ShowsTheHourglass)
{
    {
        QtToolkit toolkit;
        toolkit.setMousePointer(platform::kArrowAndHourglass);
        toolkit.setMousePointer(platform::kArrowAndHourglass);
        EXPECT_EQ(toolkit.mousePointer(), 13);
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
        toolkit.setMousePointer(platform::kDefaultPointer);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        toolkit.setMousePointer(platform::kArrowAndHourglass);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(QtToolkitTest, ChangesTheFolderInEitherSpelling)
{
    QtToolkit           toolkit;
    const auto          before = toolkit.currentFolder();
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir("inner");
    toolkit.setCurrentFolder(folder.path().toStdString() + "\\inner");
    EXPECT_EQ(QDir::current().dirName(), "inner");
    EXPECT_THROW(toolkit.setCurrentFolder("/no such folder"), platform::Failure);
    toolkit.setCurrentFolder(before);
}

TEST(QtToolkitTest, AsksForAFile)
{
    const QTemporaryDir folder;
    QtToolkit           toolkit;
    QString             title;
    bool                saves = false;
    const auto          press = [&](bool accept) {
        QTimer::singleShot(0, qApp, [&, accept] {
            auto* const dialog = dynamic_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            title = dialog->windowTitle();
            saves = dialog->acceptMode() == QFileDialog::AcceptSave;
            if (accept) {
                static_cast<QDialog*>(dialog)->accept();
            } else {
                dialog->reject();
            }
        });
    };
    platform::FileDialog wanted;
    wanted.purpose  = platform::FileDialog::Purpose::save;
    wanted.title    = "Export";
    wanted.folder   = folder.path().toStdString();
    wanted.fileName = "result";
    wanted.filters  = {{"Test files", "*.tst"}};
    press(true);
    const auto chosen = toolkit.askForFile(wanted);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(QFileInfo(QString::fromStdString(*chosen)).fileName(), "result.tst");
    EXPECT_EQ(title, "Export");
    EXPECT_TRUE(saves);
    press(false);
    EXPECT_FALSE(toolkit.askForFile(wanted));
}

TEST(QtToolkitTest, AMenuAnswersByItsClick)
{
    QtToolkit      toolkit;
    platform::Menu menu;
    menu.setItems({{"First", true}, {"Second", true}, {"Third", false}});
    std::vector<int> chosen;
    const auto       click = menu.Click.subscribe([&](int index) { chosen.push_back(index); });
    const auto       press = [](std::vector<Qt::Key> keys) {
        QTimer::singleShot(0, qApp, [keys] {
            QWidget* const popup = QApplication::activePopupWidget();
            ASSERT_NE(popup, nullptr);
            for (const auto key : keys) {
                QTest::keyClick(popup, key);
            }
        });
    };
    press({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
    toolkit.popUpMenu(menu);
    press({Qt::Key_Escape});
    toolkit.popUpMenu(menu);
    EXPECT_THAT(chosen, ::testing::ElementsAre(1));
}

TEST(QtToolkitTest, AMenuMayDieWhileItIsOpen)
{
    QtToolkit toolkit;
    auto      menu = std::make_unique<platform::Menu>();
    menu->setItems({{"First", true}});
    QTimer::singleShot(0, qApp, [&] { menu.reset(); });
    toolkit.popUpMenu(*menu);
    EXPECT_EQ(menu, nullptr);
}

TEST(QtToolkitTest, LetsWaitingEventsRun)
{
    QtToolkit toolkit;
    bool      ran = false;
    QMetaObject::invokeMethod(
        qApp, [&] { ran = true; }, Qt::QueuedConnection);
    toolkit.doEvents();
    EXPECT_TRUE(ran);
}

TEST(QtToolkitTest, KnowsWhichKeysAreDown)
{
    QtToolkit toolkit;
    QLineEdit edit;
    QTest::keyPress(&edit, Qt::Key_Shift);
    QTest::keyPress(&edit, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(toolkit.keyDown(platform::kKeyTab));
    EXPECT_TRUE(toolkit.keyDown(platform::kKeyShift));
    QTest::keyRelease(&edit, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_FALSE(toolkit.keyDown(platform::kKeyTab));
    QTest::keyRelease(&edit, Qt::Key_Shift);
    EXPECT_FALSE(toolkit.keyDown(platform::kKeyShift));
}

TEST(QtToolkitTest, WritesDebugLines)
{
    static QString line;
    const auto     before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { line = text; });
    QtToolkit toolkit;
    toolkit.debugOutput("a \"quoted\" line");
    qInstallMessageHandler(before);
    EXPECT_EQ(line, "a \"quoted\" line");
}

} // namespace

} // namespace quill::qt::test
