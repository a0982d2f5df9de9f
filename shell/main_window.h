#pragma once

#include "platform/failure.h"
#include "qt/view.h"
#include "shell/book.h"
#include "shell/changes_dialog.h"
#include "shell/focus_transfer.h"
#include "shell/folders.h"
#include "shell/log_pane.h"
#include "shell/settings_dialog.h"
#include "shell/settings_file.h"
#include "shell/shell_messenger.h"
#include "shell/simulation_clock.h"
#include "shell/simulation_pane.h"
#include "shell/status_cycle.h"
#include "shell/style.h"
#include "shell/window_dialogs.h"

#include <QMainWindow>
#include <QTimer>
#include <QTranslator>

#include <memory>
#include <vector>

class QActionGroup;
class QComboBox;
class QLabel;
class QProgressBar;
class QScrollArea;
class QToolButton;
class QTreeWidget;

namespace quill::shell {

class StatusSign;

/// The shell's window: pages on the left, the chosen one beside them, the commands above, what the
/// controls report below. It puts no data on the screen itself; that is the pages' affair.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Somebody else can answer the boxes; the caller keeps him. Starts without a datafile, with
    /// what the user has chosen before as far as there is a folder that says so.
    explicit MainWindow(WindowDialogs* dialogs = nullptr, const Folders& folders = {});
    ~MainWindow() override;

    [[nodiscard]] ShellMessenger& messenger() { return mMessenger; }
    [[nodiscard]] Book&           book() { return *mBook; }
    [[nodiscard]] qt::View&       view() { return *mView; }
    [[nodiscard]] ChangesDialog&  changesDialog() { return *mChangesDialog; }
    [[nodiscard]] SettingsDialog& settingsDialog() { return *mSettingsDialog; }
    [[nodiscard]] LogPane&        log() { return *mLog; }
    [[nodiscard]] StatusCycle&    statusCycle() { return mCycle; }
    [[nodiscard]] SimulationPane& simulation() { return *mSimulation; }
    /// The device's time; it stands still until it is started.
    [[nodiscard]] SimulationClock& simulationClock() { return mClock; }
    [[nodiscard]] StatusSign&      statusSign() { return *mStatus; }
    /// A command by its name: "open", "openVX4400H" and the like for the samples, "save", "saveAs",
    /// "quit", "online", "readPage", "readAll", "changes", "status", "clearConfigurationChanged",
    /// "classSeverity", "classNAMUR", "settings", "restartDevice", "dark", "about".
    [[nodiscard]] QAction* command(const char* name) const;

    /// A datafile that is refused is told to the user, and the old one stays; false then.
    bool openDatafile(const QString& path);
    void openSample(const Sample& sample = samples().front());
    /// False if the user thought better of it or it could not be written.
    bool save();
    bool saveAs(const QString& path);

    /// Turns to the page with this tag, if the present one may be left.
    void showPage(const std::string& tag);
    /// Asks first if edits would go; false if nothing was asked of the device.
    bool readPage();
    void setLanguage(const std::string& language);
    /// For the time being; the user's own choice is the command.
    void setScheme(ColorScheme scheme);
    /// The colours that the user has chosen, if he ever has.
    [[nodiscard]] std::optional<ColorScheme> chosenScheme() const { return mSettings.scheme; }

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // main_window_build.cpp
    void     buildActions();
    QAction* addCommand(const char* name, const char* text, const char* tip);
    void     buildMenus();
    void     buildToolBar();
    void     buildCentre();
    void     buildStatusLine();
    void     connectMessenger();

    // main_window_status.cpp
    void buildClassifications(QMenu& menu);
    void buildStatusSigns();
    void connectStatus();
    /// The page of the view that speaks for the device, nothing if the device has none.
    [[nodiscard]] const Page* statusPage() const;
    void                      showStatusPage();
    void                      showStatus();
    void                      takeError(const IXMLDOMNode& response);

    // main_window_settings.cpp
    void buildSettings(const Folders& folders);
    void takeSettings();
    void keepSettings();
    void keep(const Settings& settings);
    void showSettings();
    void chooseScheme(ColorScheme scheme);
    void chooseUnits(const std::string& system);
    /// What nobody has edited is shown as if it had come up in these units.
    void takeUnits();
    /// Marks the system that all display units are of, if there is one.
    void showUnitSystem();

    // main_window_files.cpp
    /// Whether the page may go: the user may be in the middle of something there. What it tells the
    /// device when it is left has arrived then.
    [[nodiscard]] bool mayLeavePage();
    void               goOnlineOrOffline();
    /// Who gives up the right to change the device ends first what needs it.
    void               chooseUserLevel(std::int16_t level);
    [[nodiscard]] bool mayLoseChanges();
    /// Says that something is done, where it is no matter for a box: below and in the log.
    void tell(const QString& text);
    void tellFailure(const platform::Failure& failure);

    /// False if the present page may not be left. The focus stays where it is.
    bool turnTo(const std::string& tag);
    /// Marks the page in the tree, without turning to it.
    void markInTree(const std::string& tag);
    void makeBook();
    void releaseBook();
    void fillTree();
    void fitBook();
    void localize();
    /// For what Qt says by itself: the box for files, the menu of a text box.
    void localizeQt();
    void showAbout();
    /// A command's text without its menu key and the dots.
    static QString asTitle(QString command);
    void           nameEditors();
    /// Brings commands, status line and title up to date once the present burst of reports is over.
    void                  showStateSoon();
    void                  showState();
    [[nodiscard]] QString datafileName();
    [[nodiscard]] QString deviceName();

    ShellMessenger                  mMessenger;
    StatusCycle                     mCycle{mMessenger};
    SimulationClock                 mClock{mMessenger};
    MessageBoxes                    mOwnDialogs;
    WindowDialogs&                  mDialogs;
    OncePerResponse                 mMessages;
    std::vector<PageDescription>    mAllPages;
    std::vector<PageDescription>    mPages; ///< of the device in hand
    std::unique_ptr<Book>           mBook;
    qt::View*                       mView = nullptr;
    std::unique_ptr<ChangesDialog>  mChangesDialog;
    std::unique_ptr<SettingsDialog> mSettingsDialog;
    std::unique_ptr<SettingsFile>   mSettingsFile; ///< nothing if nothing is kept
    Settings                        mSettings;     ///< as they were kept last

    struct Command {
        QAction*    action;
        const char* text;
        const char* tip;
    };
    std::vector<Command> mCommands;

    QScrollArea*        mScroll       = nullptr;
    QLabel*             mTitle        = nullptr;
    QTreeWidget*        mTree         = nullptr;
    LogPane*            mLog          = nullptr;
    SimulationPane*     mSimulation   = nullptr;
    QComboBox*          mLanguage     = nullptr;
    QComboBox*          mLevel        = nullptr;
    QLabel*             mLanguageName = nullptr;
    QLabel*             mLevelName    = nullptr;
    QActionGroup*       mUnits        = nullptr;
    std::vector<QMenu*> mMenus;
    QLabel*             mMode            = nullptr;
    QLabel*             mDevice          = nullptr;
    QLabel*             mFile            = nullptr;
    QLabel*             mEdits           = nullptr;
    QProgressBar*       mBusy            = nullptr;
    StatusSign*         mStatus          = nullptr;
    QLabel*             mChangedSign     = nullptr;
    QToolButton*        mClearChanged    = nullptr;
    QMenu*              mClassifications = nullptr;
    QMenu*              mViewMenu        = nullptr;
    QTimer              mStateTimer;
    QTranslator         mQtTexts;

    std::unique_ptr<FocusTransfer> mFocusTransfer;
};

} // namespace quill::shell
