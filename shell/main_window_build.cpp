#include "shell/icons.h"
#include "shell/main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <map>

namespace quill::shell {

namespace {

/// Languages by the name that the controls know, each written in itself.
constexpr std::pair<const char*, const char*> kLanguages[] = {
    {"English", "English"}, {"German", "Deutsch"}, {"Finnish", "Suomi"}};

constexpr int kTreeWidth = 210;
constexpr int kMargin    = 16;
constexpr int kLogHeight = 190;

QWidget* spacer(int width = 0)
{
    auto* widget = new QWidget;
    if (width > 0) {
        widget->setFixedWidth(width);
    } else {
        widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }
    return widget;
}

} // namespace

QAction* MainWindow::addCommand(const char* name, const char* text, const char* tip)
{
    auto* action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    addAction(action);
    mCommands.push_back({action, text, tip});
    return action;
}

void MainWindow::buildActions()
{
    QAction* const open = addCommand("open", "shell_open", "shell_openTip");
    open->setIcon(icon(Symbol::open));
    open->setShortcut(QKeySequence::Open);
    connect(open, &QAction::triggered, this, [this] {
        const auto& texts = mMessenger.texts();
        const auto  filter =
            texts.text("shell_datafiles") + " (*.xml);;" + texts.text("shell_allFiles") + " (*)";
        if (const auto path =
                mDialogs.askForFile(false, asTitle(texts.text("shell_open")), filter)) {
            openDatafile(*path);
        }
    });
    QAction* const sample = addCommand("openSample", "shell_openSample", "shell_openSampleTip");
    connect(sample, &QAction::triggered, this, &MainWindow::openSample);
    QAction* const saving = addCommand("save", "shell_save", "shell_saveTip");
    saving->setIcon(icon(Symbol::save));
    saving->setShortcut(QKeySequence::Save);
    connect(saving, &QAction::triggered, this, &MainWindow::save);
    QAction* const savingAs = addCommand("saveAs", "shell_saveAs", "shell_saveTip");
    savingAs->setShortcut(QKeySequence::SaveAs);
    connect(savingAs, &QAction::triggered, this, [this] { saveAs({}); });
    QAction* const quit = addCommand("quit", "shell_quit", "shell_quit");
    quit->setShortcut(QKeySequence::Quit);
    quit->setMenuRole(QAction::QuitRole);
    connect(quit, &QAction::triggered, this, &QWidget::close);

    QAction* const online = addCommand("online", "shell_connect", "shell_connectTip");
    online->setShortcut(Qt::CTRL | Qt::Key_L);
    connect(online, &QAction::triggered, this,
            [this] { mMessenger.setOnline(!mMessenger.isOnline()); });
    QAction* const read = addCommand("readPage", "shell_readPage", "shell_readPageTip");
    read->setIcon(icon(Symbol::read));
    read->setShortcut(QKeySequence::Refresh);
    connect(read, &QAction::triggered, this, &MainWindow::readPage);
    QAction* const readAll = addCommand("readAll", "shell_readAll", "shell_readAllTip");
    connect(readAll, &QAction::triggered, this, [this] { mMessenger.readAll(); });
    QAction* const changes = addCommand("changes", "shell_changes", "shell_changesTip");
    changes->setIcon(icon(Symbol::changes));
    changes->setShortcut(Qt::CTRL | Qt::Key_D);
    connect(changes, &QAction::triggered, this, [this] { mChangesDialog->ask(); });

    QAction* const dark = addCommand("dark", "shell_dark", "shell_darkTip");
    dark->setCheckable(true);
    connect(dark, &QAction::triggered, this,
            [this](bool on) { setScheme(on ? ColorScheme::dark : ColorScheme::light); });

    QAction* const about = addCommand("about", "shell_about", "shell_about");
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, &MainWindow::showAbout);

    mUnits = new QActionGroup(this);
    for (const auto& system : HartUnitConverter::systems()) {
        QAction* const action = mUnits->addAction(QString{});
        action->setCheckable(true);
        action->setData(QString::fromStdString(system));
        action->setChecked(system == "metric");
        connect(action, &QAction::triggered, this, [this, system] { chooseUnits(system); });
    }
}

void MainWindow::buildMenus()
{
    const auto menu = [this](const char* title, const std::vector<const char*>& commands) {
        QMenu* const result = menuBar()->addMenu(QString{});
        result->setObjectName(QLatin1String(title));
        for (const char* name : commands) {
            if (*name == '-') {
                result->addSeparator();
            } else {
                result->addAction(command(name));
            }
        }
        mMenus.push_back(result);
        return result;
    };
    menu("shell_menuFile", {"open", "openSample", "-", "save", "saveAs", "-", "quit"});
    menu("shell_menuDevice", {"online", "-", "readPage", "readAll", "-", "changes"});
    QMenu* const look  = menu("shell_menuView", {"dark"});
    QMenu* const units = look->addMenu(QString{});
    units->setObjectName("shell_menuUnits");
    units->addActions(mUnits->actions());
    mMenus.push_back(units);
    menu("shell_menuHelp", {"about"});
}

void MainWindow::buildToolBar()
{
    QToolBar* const bar = addToolBar(QString{});
    bar->setObjectName("commands");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->toggleViewAction()->setVisible(false);
    for (const char* name : {"online", "readPage", "changes", "", "open", "save"}) {
        if (*name == '\0') {
            bar->addSeparator();
        } else {
            bar->addAction(command(name));
        }
    }
    bar->addWidget(spacer());

    mLanguageName = new QLabel;
    mLanguage     = new QComboBox;
    mLanguage->setObjectName("language");
    mLanguageName->setBuddy(mLanguage);
    for (const auto& [name, written] : kLanguages) {
        mLanguage->addItem(QString::fromUtf8(written), QLatin1String(name));
    }
    connect(mLanguage, &QComboBox::activated, this,
            [this](int row) { setLanguage(mLanguage->itemData(row).toString().toStdString()); });
    mLevelName = new QLabel;
    mLevel     = new QComboBox;
    mLevel->setObjectName("userLevel");
    mLevel->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    mLevelName->setBuddy(mLevel);
    for (int level = 1; level <= 4; ++level) {
        mLevel->addItem(QString{}, level);
    }
    mLevel->setCurrentIndex(mLevel->findData(static_cast<int>(mMessenger.GetUserLevel())));
    connect(mLevel, &QComboBox::activated, this, [this](int row) {
        mMessenger.setUserLevel(static_cast<std::int16_t>(mLevel->itemData(row).toInt()));
    });
    for (QWidget* widget :
         {static_cast<QWidget*>(mLanguageName), static_cast<QWidget*>(mLanguage), spacer(8),
          static_cast<QWidget*>(mLevelName), static_cast<QWidget*>(mLevel)}) {
        bar->addWidget(widget);
    }
}

void MainWindow::buildCentre()
{
    mTree = new QTreeWidget;
    mTree->setObjectName("pages");
    mTree->setFrameShape(QFrame::NoFrame);
    mTree->setIndentation(14);
    mTree->setAllColumnsShowFocus(true);
    mTree->header()->hide();
    std::map<std::string, QTreeWidgetItem*> items;
    for (const auto& page : mPages) {
        const auto  parent = items.find(page.parent);
        auto* const item   = parent != items.end() ? new QTreeWidgetItem(parent->second)
                                                   : new QTreeWidgetItem(mTree);
        item->setData(0, Qt::UserRole, QString::fromStdString(page.tag));
        item->setSizeHint(0, QSize(0, 30));
        items[page.tag] = item;
    }
    mTree->expandAll();
    connect(mTree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item == nullptr) {
            return;
        }
        const std::string tag = item->data(0, Qt::UserRole).toString().toStdString();
        // Who walks the tree by keys walks on, and enters the page when he says so.
        if (mTree->hasFocus() && QApplication::mouseButtons() == Qt::NoButton) {
            turnTo(tag);
        } else {
            showPage(tag);
        }
    });
    connect(mTree, &QTreeWidget::itemActivated, this, [this] {
        if (mBook) {
            mBook->RequestFocus();
        }
    });

    mTitle     = new QLabel;
    QFont font = mTitle->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    mTitle->setFont(font);
    mTitle->setContentsMargins(kMargin, kMargin, kMargin, 0);
    mScroll = new QScrollArea;
    mScroll->setFrameShape(QFrame::NoFrame);
    mScroll->setFocusPolicy(Qt::NoFocus); // it could not show it
    mScroll->setWidgetResizable(true);
    mScroll->installEventFilter(this);
    auto* page   = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(mTitle);
    column->addWidget(mScroll, 1);

    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(1);
    splitter->addWidget(mTree);
    splitter->addWidget(page);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kTreeWidth, width() - kTreeWidth});
    setCentralWidget(splitter);

    mLog = new LogPane(mMessenger, this);
    addDockWidget(Qt::BottomDockWidgetArea, mLog);
    resizeDocks({mLog}, {kLogHeight}, Qt::Vertical);
    QAction* const shown = mLog->toggleViewAction();
    shown->setShortcut(Qt::CTRL | Qt::Key_G);
    shown->setIcon(icon(Symbol::log));
    mMenus.at(2)->insertAction(command("dark"), shown);
    setWindowIcon(icon(Symbol::valve));
}

void MainWindow::buildStatusLine()
{
    mMode   = new QLabel;
    mDevice = new QLabel;
    mFile   = new QLabel;
    mEdits  = new QLabel;
    mBusy   = new QProgressBar;
    mBusy->setRange(0, 0);
    mBusy->setTextVisible(false);
    mBusy->setFixedSize(90, 10);
    QFont bold = mMode->font();
    bold.setBold(true);
    mMode->setFont(bold);
    for (QLabel* label : {mMode, mDevice, mFile}) {
        label->setContentsMargins(8, 2, 8, 2);
        statusBar()->addWidget(label);
    }
    statusBar()->addPermanentWidget(mBusy);
    statusBar()->addPermanentWidget(mEdits);
    mEdits->setContentsMargins(8, 2, 8, 2);
    statusBar()->setSizeGripEnabled(false);
}

void MainWindow::connectMessenger()
{
    mStateTimer.setSingleShot(true);
    connect(&mStateTimer, &QTimer::timeout, this, &MainWindow::showState);
    connect(&mMessenger, &ShellMessenger::datafileReplaced, this, &MainWindow::makeBook);
    connect(&mMessenger, &ShellMessenger::datafileChanged, this, [this] {
        mMessenger.deliverDatafile(*mBook);
        mMessenger.localize(*mBook);
        showStateSoon();
    });
    connect(&mMessenger, &ShellMessenger::onlineDataArrived, this,
            [this](const IXMLDOMNode& response) {
                if (mBook) {
                    mBook->SetOnlineData(response);
                    showStateSoon();
                }
            });
    connect(&mMessenger, &ShellMessenger::errorDataArrived, this,
            [this](const IXMLDOMNode& response) {
                if (mBook) {
                    mMessages.begin();
                    mBook->SetErrorData(response);
                    mMessages.end();
                    showStateSoon();
                }
            });
    connect(&mMessenger, &ShellMessenger::languageChanged, this, &MainWindow::localize);
    for (auto signal : {&ShellMessenger::communicationModeChanged,
                        &ShellMessenger::userLevelChanged, &ShellMessenger::downloadPhaseChanged}) {
        connect(&mMessenger, signal, this, &MainWindow::showStateSoon);
    }
    connect(&mMessenger, &ShellMessenger::parameterStateChanged, this, &MainWindow::showStateSoon);
    connect(&mMessenger.link(), &DeviceLink::busyChanged, this, &MainWindow::showStateSoon);
    connect(&mMessenger, &ShellMessenger::focusTransferred, this, [this] {
        if (isActiveWindow()) {
            focusNextChild();
        }
    });
}

} // namespace quill::shell
