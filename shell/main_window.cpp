#include "shell/main_window.h"

#include "platform/grid.h"
#include "platform/list_view.h"
#include "qt/geometry.h"
#include "shell/icons.h"
#include "shell/status_sign.h"
#include "shell/view_page.h"

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
#include <QToolButton>
#include <QTreeWidget>

#include <map>

namespace quill::shell {

namespace {

constexpr QSize kLeastSize(1000, 680);
constexpr QSize kFirstSize(1340, 900);

} // namespace

MainWindow::MainWindow(WindowDialogs* dialogs, const Folders& folders)
    : mOwnDialogs(*this, mMessenger.texts()),
      mDialogs(dialogs != nullptr ? *dialogs : static_cast<WindowDialogs&>(mOwnDialogs)),
      mMessages(mDialogs), mAllPages(builtInPages())
{
    setMinimumSize(kLeastSize);
    resize(kFirstSize);
    mMessenger.setDialogs(&mMessages);
    buildActions();
    buildMenus();
    buildToolBar();
    buildCentre();
    buildStatusLine();
    mChangesDialog  = std::make_unique<ChangesDialog>(mMessenger, this);
    mSettingsDialog = std::make_unique<SettingsDialog>(mMessenger, this);
    connectMessenger();
    localize();
    buildSettings(folders);
}

MainWindow::~MainWindow()
{
    mMessenger.disconnect(this);
    mMessenger.setDialogs(nullptr);
    mChangesDialog.reset();
    mSettingsDialog.reset();
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
    mPages = pagesFor(mAllPages, mMessenger.deviceType(), mMessenger.store().document());
    fillTree();
    mBook = std::make_unique<Book>(mPages);
    mBook->SetMessenger(&mMessenger);
    mMessenger.localize(*mBook);
    mMessenger.deliverDatafile(*mBook);
    // The value lists have come with the datafile, by their names.
    mMessenger.localize(*mBook);
    // Views learn from the event whether there is a device; these have missed the last one.
    if (mMessenger.isOnline()) {
        mMessenger.ViewSetCommunicationMode.raise(mMessenger.GetCommunicationMode());
    }
    mView = new qt::View(*mBook);
    mScroll->setWidget(mView);
    mLog->beLastInTabOrder();
    if (mBook->page(shown) != nullptr) {
        showPage(shown);
    } else if (!mPages.empty()) {
        showPage(mPages.front().tag);
    }
    nameEditors();
    fitBook();
    const Page* const status = statusPage();
    mCycle.setRequests(status != nullptr ? status->description().cycle : std::string{},
                       status != nullptr ? status->groups() : std::vector<std::string>{});
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
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    mBook->layOut({.width  = qt::toTwips(mScroll->width()),
                   .height = qt::toTwips(mScroll->height()),
                   .bar    = qt::toTwips(bar)});
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
    if (!mBook || mBook->page(tag) == nullptr) {
        return false;
    }
    // Who chooses the page that he is on does not leave it.
    if (mBook->GetSelectedView() != tag) {
        if (!mBook->LeaveSelectedView()) {
            markInTree(mBook->GetSelectedView());
            return false;
        }
        mBook->SetSelectedView(tag);
    }
    mView->flush();
    mScroll->verticalScrollBar()->setValue(0);
    mScroll->horizontalScrollBar()->setValue(0);
    markInTree(tag);
    showStateSoon();
    return true;
}

void MainWindow::markInTree(const std::string& tag)
{
    for (QTreeWidgetItemIterator item(mTree); *item != nullptr; ++item) {
        if ((*item)->data(0, Qt::UserRole).toString().toStdString() == tag) {
            const QSignalBlocker quiet(mTree);
            mTree->setCurrentItem(*item);
            mTitle->setText((*item)->text(0));
        }
    }
}

void MainWindow::fillTree()
{
    const QSignalBlocker quiet(mTree);
    mTree->clear();
    std::map<std::string, QTreeWidgetItem*> items;
    for (const auto& page : mPages) {
        const auto  parent = items.find(page.parent);
        auto* const item   = parent != items.end() ? new QTreeWidgetItem(parent->second)
                                                   : new QTreeWidgetItem(mTree);
        item->setData(0, Qt::UserRole, QString::fromStdString(page.tag));
        item->setSizeHint(0, QSize(0, 30));
        item->setText(0, mMessenger.texts().text(page.title.c_str()));
        items[page.tag] = item;
    }
    mTree->expandAll();
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
    mSimulation->localize();
    mChangesDialog->localize();
    mSettingsDialog->localize();
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
            // All of a page say the same, and only he who sees them knows what they read.
            if (const auto* const button = page->readButton(section.group)) {
                mView->setAccessibleLabel(*button, texts.text("shell_readSection") + ", " +
                                                       texts.text(section.title.c_str()));
            }
        }
        const auto* const filled = dynamic_cast<const ViewPage*>(page.get());
        for (platform::Widget* widget :
             filled != nullptr ? filled->view().Widgets() : platform::WidgetList{}) {
            // What fills the view is called as the page is.
            if (dynamic_cast<platform::Grid*>(widget) ||
                dynamic_cast<platform::ListView*>(widget)) {
                mView->setAccessibleLabel(*widget, texts.text(page->description().title.c_str()));
            }
        }
    }
}

// --- State ------------------------------------------------------------------------------------

QString MainWindow::datafileName()
{
    const auto& path = mMessenger.store().path();
    return path.empty() ? mMessenger.texts().text("shell_sampleName").arg(deviceName())
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
    const Page* const page = mBook ? mBook->shownPage() : nullptr;
    // What comes in while a view is configured would take the user's work away.
    const bool mayRead = open && online && !busy && !mCycle.isConfiguring();
    command("readPage")->setEnabled(mayRead && page != nullptr && !page->groups().empty());
    command("readAll")->setEnabled(mayRead);
    command("restartDevice")->setEnabled(open);
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
    showStatus();
    const QString title =
        texts.text(open && store.hasUnsavedChanges() ? "shell_titleModified" : "shell_title")
            .arg(open ? datafileName() : QString{});
    const QString status = mStatus->word();
    setWindowTitle(status.isEmpty() ? title : status + " – " + title);
    setWindowIcon(status.isEmpty() ? icon(Symbol::valve) : mStatus->icon());
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
