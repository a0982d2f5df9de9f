#include "shell/main_window.h"

#include "qt/geometry.h"
#include "shell/icons.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLibraryInfo>
#include <QMenu>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QTreeWidget>

namespace quill::shell {

namespace {

constexpr QSize kLeastSize(1000, 680);
constexpr QSize kFirstSize(1340, 900);

} // namespace

MainWindow::MainWindow(WindowDialogs* dialogs)
    : mOwnDialogs(*this, mMessenger.texts()),
      mDialogs(dialogs != nullptr ? *dialogs : static_cast<WindowDialogs&>(mOwnDialogs)),
      mMessages(mDialogs), mPages(builtInPages())
{
    setMinimumSize(kLeastSize);
    resize(kFirstSize);
    mMessenger.setDialogs(&mMessages);
    buildActions();
    buildMenus();
    buildToolBar();
    buildCentre();
    buildStatusLine();
    mChangesDialog = std::make_unique<ChangesDialog>(mMessenger, this);
    connectMessenger();
    localize();
}

MainWindow::~MainWindow()
{
    mMessenger.disconnect(this);
    mMessenger.setDialogs(nullptr);
    mChangesDialog.reset();
    releaseBook();
}

QAction* MainWindow::command(const char* name) const
{
    return findChild<QAction*>(QLatin1String(name));
}

// --- Pages ------------------------------------------------------------------------------------

void MainWindow::makeBook()
{
    const std::string shown = mBook ? mBook->GetSelectedView() : std::string{};
    releaseBook();
    mBook = std::make_unique<Book>(mPages);
    mBook->SetMessenger(&mMessenger);
    mMessenger.localize(*mBook);
    mMessenger.deliverDatafile(*mBook);
    // The value lists have come with the datafile, by their names.
    mMessenger.localize(*mBook);
    mView = new qt::View(*mBook);
    mScroll->setWidget(mView);
    mLog->beLastInTabOrder();
    showPage(shown.empty() ? mPages.front().tag : shown);
    nameEditors();
    fitBook();
    showState();
}

void MainWindow::releaseBook()
{
    if (mBook) {
        mBook->PrepareToRelease();
    }
    delete mScroll->takeWidget();
    mView = nullptr;
    mBook.reset();
}

void MainWindow::fitBook()
{
    if (!mBook) {
        return;
    }
    // Room for the bar is always kept, or its coming and going would change what it depends on.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    mBook->layOut(qt::toTwips(mScroll->width() - bar));
    mView->flush();
}

void MainWindow::showPage(const std::string& tag)
{
    if (turnTo(tag)) {
        mBook->RequestFocus();
    }
}

bool MainWindow::turnTo(const std::string& tag)
{
    if (!mBook || mBook->page(tag) == nullptr || !mBook->LeaveSelectedView()) {
        return false;
    }
    mBook->SetSelectedView(tag);
    mView->flush();
    mScroll->verticalScrollBar()->setValue(0);
    for (QTreeWidgetItemIterator item(mTree); *item != nullptr; ++item) {
        if ((*item)->data(0, Qt::UserRole).toString().toStdString() == tag) {
            const QSignalBlocker quiet(mTree);
            mTree->setCurrentItem(*item);
            mTitle->setText((*item)->text(0));
        }
    }
    return true;
}

bool MainWindow::readPage()
{
    if (!mBook || mBook->shownPage() == nullptr || !mMessenger.isOnline()) {
        return false;
    }
    const auto& texts = mMessenger.texts();
    if (mBook->shownPage()->hasEdits() &&
        !mDialogs.askQuestion(asTitle(texts.text("shell_readPage")),
                              texts.text("shell_readQuestion"))) {
        return false;
    }
    bool asked = false;
    for (const auto& group : mBook->shownPage()->groups()) {
        asked = mMessenger.readGroup(group) || asked;
    }
    return asked;
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == mScroll && event->type() == QEvent::Resize) {
        fitBook();
    }
    return QMainWindow::eventFilter(watched, event);
}

// --- Texts ------------------------------------------------------------------------------------

void MainWindow::setLanguage(const std::string& language)
{
    mMessenger.setLanguage(language);
}

QString MainWindow::asTitle(QString command)
{
    return command.remove(u'&').remove(u'…');
}

void MainWindow::localizeQt()
{
    QCoreApplication::removeTranslator(&mQtTexts);
    if (mQtTexts.load("qtbase_" + mMessenger.texts().languageCode(),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&mQtTexts);
    }
}

void MainWindow::localize()
{
    localizeQt();
    const auto& texts = mMessenger.texts();
    for (const auto& [action, text, tip] : mCommands) {
        action->setText(texts.text(text));
        // A tool button has no menu keys to show.
        action->setIconText(texts.text(text).remove(u'&'));
        action->setToolTip(texts.text(tip));
    }
    for (QMenu* menu : mMenus) {
        menu->setTitle(texts.text(menu->objectName().toUtf8().constData()));
    }
    for (QAction* action : mUnits->actions()) {
        action->setText(
            texts.text(("shell_units" + action->data().toString()).toUtf8().constData()));
    }
    mLanguageName->setText(texts.text("shell_language"));
    mLevelName->setText(texts.text("shell_userLevel"));
    for (int row = 0; row < mLevel->count(); ++row) {
        const QByteArray id = "shell_userLevel" + mLevel->itemData(row).toByteArray();
        mLevel->setItemText(row, texts.text(id.constData()));
    }
    mTree->setHeaderLabel(texts.text("shell_pages"));
    mTree->setAccessibleName(texts.text("shell_pages"));
    for (QTreeWidgetItemIterator item(mTree); *item != nullptr; ++item) {
        const std::string tag = (*item)->data(0, Qt::UserRole).toString().toStdString();
        for (const auto& page : mPages) {
            if (page.tag == tag) {
                (*item)->setText(0, texts.text(page.title.c_str()));
            }
        }
    }
    if (const QTreeWidgetItem* item = mTree->currentItem()) {
        mTitle->setText(item->text(0));
    }
    mLog->localize();
    mChangesDialog->localize();
    if (mBook) {
        mMessenger.localize(*mBook);
        nameEditors();
        fitBook();
    }
    {
        const QSignalBlocker quiet(mLanguage);
        mLanguage->setCurrentIndex(
            mLanguage->findData(QString::fromStdString(mMessenger.texts().GetLanguage())));
    }
    showState();
}

void MainWindow::nameEditors()
{
    const auto& texts = mMessenger.texts();
    mView->setStateWords({texts.text("shell_wordModified"), texts.text("shell_wordError")});
    for (const auto& page : mBook->pages()) {
        for (const auto& section : page->description().sections) {
            for (const auto& row : section.rows) {
                mView->setAccessibleLabel(
                    *page->find(row.parameter),
                    QString::fromStdString(page->labelOf(row.parameter)->Caption));
            }
        }
    }
}

// --- State ------------------------------------------------------------------------------------

QString MainWindow::datafileName()
{
    const auto& path = mMessenger.store().path();
    return path.empty() ? mMessenger.texts().text("shell_sampleName")
                        : QFileInfo(QString::fromStdString(path)).fileName();
}

QString MainWindow::deviceName()
{
    const auto name =
        mMessenger.store().document().selectSingleNode("//typeInfo:internalInfo/@name");
    return name ? QString::fromStdString(name.get_text()) : QString{};
}

void MainWindow::showStateSoon()
{
    mStateTimer.start(0);
}

void MainWindow::showState()
{
    mStateTimer.stop();
    auto&       store  = mMessenger.store();
    const auto& texts  = mMessenger.texts();
    const bool  online = mMessenger.isOnline();
    const bool  open   = store.isOpen();
    const bool  busy   = mMessenger.link().isBusy();
    const auto  edits  = static_cast<int>(open ? store.editCount() : 0);
    const bool  mayAct = !online || mMessenger.GetUserLevel() >= kMaintenanceLevel;

    command("online")->setEnabled(open);
    command("online")->setIcon(icon(online ? Symbol::disconnect : Symbol::connect));
    command("online")->setText(texts.text(online ? "shell_disconnect" : "shell_connect"));
    command("online")->setIconText(command("online")->text().remove(u'&'));
    command("readPage")->setEnabled(open && online && !busy);
    command("readAll")->setEnabled(open && online && !busy);
    command("save")->setEnabled(open);
    command("saveAs")->setEnabled(open);
    QAction* const changes = command("changes");
    const QString  name    = texts.text("shell_changes").remove(u'&');
    changes->setIconText(edits > 0 ? QString("%1 (%2)").arg(asTitle(name)).arg(edits) : name);
    changes->setEnabled(open && mayAct && !busy);
    changes->setToolTip(texts.text(mayAct ? "shell_changesTip" : "shell_userLevelTooLow"));

    mMode->setText("● " + texts.text(online ? "shell_online" : "shell_offline"));
    mMode->setForegroundRole(online ? QPalette::Link : QPalette::WindowText);
    mDevice->setText(open ? deviceName() : QString{});
    mFile->setText(open ? datafileName() : QString{});
    mFile->setToolTip(QString::fromStdString(store.path()));
    mEdits->setText(texts.text("shell_editCount").arg(edits));
    mBusy->setVisible(busy);
    mBusy->setToolTip(texts.text("shell_transferRuns"));
    setWindowTitle(
        texts.text(open && store.hasUnsavedChanges() ? "shell_titleModified" : "shell_title")
            .arg(open ? datafileName() : QString{}));
}

void MainWindow::chooseUnits(const std::string& system)
{
    auto& units = mMessenger.units();
    for (auto quantities = units.GetQuantities(); auto quantity = quantities.nextNode();) {
        const std::string name      = quantity.get_text();
        const auto        described = units.GetUnitSystemData(name);
        const auto unit = described ? units.GetUnitOfSystem(*described, system) : std::nullopt;
        if (unit) {
            units.SetDisplayUnit(name, *unit);
        }
    }
    mMessenger.informUnitChanges();
    fitBook();
}

void MainWindow::showAbout()
{
    const auto& texts = mMessenger.texts();
    mDialogs.showMessage(
        asTitle(texts.text("shell_about")),
        texts.text("shell_aboutText") + "\n\n" +
            texts.text("shell_aboutVersion").arg(QCoreApplication::applicationVersion()));
}

void MainWindow::setScheme(ColorScheme scheme)
{
    applyStyle(scheme);
    command("dark")->setChecked(scheme == ColorScheme::dark);
}

} // namespace quill::shell
