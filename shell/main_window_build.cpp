#include "shell/device_actions.h"
#include "shell/icons.h"
#include "shell/languages.h"
#include "shell/main_window.h"
#include "shell/status_sign.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
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
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace quill::shell {

namespace {

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
    for (const Sample& sample : samples()) {
        QAction* const opening = addCommand((std::string("open") + sample.type).c_str(),
                                            sample.title, "shell_openSampleTip");
        connect(opening, &QAction::triggered, this, [this, &sample] { openSample(sample); });
    }
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
    connect(online, &QAction::triggered, this, &MainWindow::goOnlineOrOffline);
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

    QAction* const status = addCommand("status", "shell_showStatus", "shell_showStatusTip");
    status->setShortcut(Qt::CTRL | Qt::Key_T);
    connect(status, &QAction::triggered, this, &MainWindow::showStatusPage);
    QAction* const clear =
        addCommand("clearConfigurationChanged", "shell_clearChanged", "shell_clearChangedTip");
    connect(clear, &QAction::triggered, this, [this] { mMessenger.clearConfigurationChanged(); });

    QAction* const restart =
        addCommand("restartDevice", "shell_restartDevice", "shell_restartDeviceTip");
    connect(restart, &QAction::triggered, this, [this] {
        restartDevice(mMessenger.device());
        mSimulation->refresh();
    });

    QAction* const dark = addCommand("dark", "shell_dark", "shell_darkTip");
    dark->setCheckable(true);
    connect(dark, &QAction::triggered, this,
            [this](bool on) { chooseScheme(on ? ColorScheme::dark : ColorScheme::light); });
    QAction* const settings = addCommand("settings", "shell_settings", "shell_settingsTip");
    settings->setIcon(icon(Symbol::settings));
    settings->setShortcut(Qt::CTRL | Qt::Key_Comma);
    settings->setMenuRole(QAction::PreferencesRole);
    connect(settings, &QAction::triggered, this, &MainWindow::showSettings);

    QAction* const about = addCommand("about", "shell_about", "shell_about");
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, &MainWindow::showAbout);

    mUnits = new QActionGroup(this);
    mUnits->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const auto& system : HartUnitConverter::systems()) {
        QAction* const action = mUnits->addAction(QString{});
        action->setCheckable(true);
        action->setData(QString::fromStdString(system));
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
    QMenu* const file    = menu("shell_menuFile", {"open", "-", "save", "saveAs", "-", "quit"});
    auto* const  bundled = new QMenu(this);
    bundled->setObjectName("shell_openSample");
    for (const Sample& sample : samples()) {
        bundled->addAction(command((std::string("open") + sample.type).c_str()));
    }
    file->insertMenu(file->actions().at(1), bundled);
    mMenus.push_back(bundled);
    menu("shell_menuDevice", {"online", "-", "readPage", "readAll", "-", "changes", "-", "status",
                              "clearConfigurationChanged", "-", "restartDevice"});
    mViewMenu = menu("shell_menuView", {"dark"});
    buildClassifications(*mViewMenu);
    QMenu* const units = mViewMenu->addMenu(QString{});
    units->setObjectName("shell_menuUnits");
    units->addActions(mUnits->actions());
    mMenus.push_back(units);
    mViewMenu->addSeparator();
    mViewMenu->addAction(command("settings"));
    menu("shell_menuHelp", {"about"});
}

void MainWindow::buildToolBar()
{
    QToolBar* const bar = addToolBar(QString{});
    bar->setObjectName("commands");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->toggleViewAction()->setVisible(false);
    for (const char* name : {"online", "readPage", "changes", "", "open", "save", "settings"}) {
        if (*name == '\0') {
            bar->addSeparator();
        } else {
            bar->addAction(command(name));
        }
    }
    // Known by its sign; in the longer languages there is no room for more words.
    if (auto* const button =
            qobject_cast<QToolButton*>(bar->widgetForAction(command("settings")))) {
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
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
        chooseUserLevel(static_cast<std::int16_t>(mLevel->itemData(row).toInt()));
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
    auto* head = new QHBoxLayout;
    head->setContentsMargins(kMargin, kMargin, kMargin, 0);
    head->addWidget(mTitle, 1);
    mScroll = new QScrollArea;
    mScroll->setFrameShape(QFrame::NoFrame);
    mScroll->setFocusPolicy(Qt::NoFocus); // it could not show it
    mScroll->setWidgetResizable(true);
    mScroll->installEventFilter(this);
    auto* page   = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(head);
    column->addWidget(mScroll, 1);
    mStatus = new StatusSign;
    connect(mStatus, &QToolButton::clicked, this, &MainWindow::showStatusPage);
    // The title keeps its place whether there is a status or not.
    head->addSpacing(kMargin);
    head->addWidget(mStatus);
    head->addStrut(mStatus->sizeHint().height());

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
    QAction* const dark = command("dark");
    mViewMenu->insertAction(dark, shown);

    mSimulation = new SimulationPane(mMessenger, this);
    addDockWidget(Qt::RightDockWidgetArea, mSimulation);
    mSimulation->hide();
    QAction* const simulated = mSimulation->toggleViewAction();
    simulated->setObjectName("simulation");
    addAction(simulated);
    simulated->setShortcut(Qt::CTRL | Qt::Key_M);
    mViewMenu->insertAction(dark, simulated);
    mViewMenu->insertSeparator(dark);
    connect(&mClock, &SimulationClock::ticked, mSimulation, [this] {
        if (mSimulation->isVisible()) {
            mSimulation->refresh();
        }
    });
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
    buildStatusSigns();
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
                    takeError(response);
                }
            });
    connectStatus();
    connect(&mMessenger, &ShellMessenger::hostDocumentKept, this,
            [this] { tell(mMessenger.texts().text("shell_documentKept")); });
    connect(&mMessenger, &ShellMessenger::addressChanged, this, [this](int address) {
        tell(mMessenger.texts().text("shell_addressChanged").arg(address));
    });
    connect(&mMessenger, &ShellMessenger::languageChanged, this, &MainWindow::localize);
    for (auto signal :
         {&ShellMessenger::communicationModeChanged, &ShellMessenger::userLevelChanged,
          &ShellMessenger::downloadPhaseChanged, &ShellMessenger::dialogNotified}) {
        connect(&mMessenger, signal, this, &MainWindow::showStateSoon);
    }
    connect(&mMessenger, &ShellMessenger::parameterStateChanged, this, &MainWindow::showStateSoon);
    connect(&mMessenger.link(), &DeviceLink::busyChanged, this, &MainWindow::showStateSoon);
    mFocusTransfer = std::make_unique<FocusTransfer>(
        mMessenger, *this, [this](bool forward) { focusNextPrevChild(forward); });
}

} // namespace quill::shell
