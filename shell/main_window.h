#pragma once

#include "platform/failure.h"
#include "qt/view.h"
#include "shell/book.h"
#include "shell/changes_dialog.h"
#include "shell/log_pane.h"
#include "shell/shell_messenger.h"
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
class QTreeWidget;

namespace quill::shell {

/// The shell's window: pages on the left, the chosen one beside them, the commands above, what the
/// controls report below. It puts no data on the screen itself; that is the pages' affair.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Somebody else can answer the boxes; the caller keeps him. Starts without a datafile.
    explicit MainWindow(WindowDialogs* dialogs = nullptr);
    ~MainWindow() override;

    [[nodiscard]] ShellMessenger& messenger() { return mMessenger; }
    [[nodiscard]] Book&           book() { return *mBook; }
    [[nodiscard]] qt::View&       view() { return *mView; }
    [[nodiscard]] ChangesDialog&  changesDialog() { return *mChangesDialog; }
    [[nodiscard]] LogPane&        log() { return *mLog; }
    /// A command by its name: "open", "openSample", "save", "saveAs", "quit", "online", "readPage",
    /// "readAll", "changes", "dark", "about".
    [[nodiscard]] QAction* command(const char* name) const;

    /// A datafile that is refused is told to the user, and the old one stays; false then.
    bool openDatafile(const QString& path);
    void openSample();
    /// False if the user thought better of it or it could not be written.
    bool save();
    bool saveAs(const QString& path);

    /// Turns to the page with this tag, if the present one may be left.
    void showPage(const std::string& tag);
    /// Asks first if edits would go; false if nothing was asked of the device.
    bool readPage();
    void setLanguage(const std::string& language);
    void setScheme(ColorScheme scheme);

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

    // main_window_files.cpp
    [[nodiscard]] bool mayLoseChanges();
    void               tellFailure(const platform::Failure& failure);

    /// False if the present page may not be left. The focus stays where it is.
    bool turnTo(const std::string& tag);
    void makeBook();
    void releaseBook();
    void fitBook();
    void localize();
    /// For what Qt says by itself: the box for files, the menu of a text box.
    void localizeQt();
    void showAbout();
    /// A command's text without its menu key and the dots.
    static QString asTitle(QString command);
    void           nameEditors();
    void           chooseUnits(const std::string& system);
    /// Brings commands, status line and title up to date once the present burst of reports is over.
    void                  showStateSoon();
    void                  showState();
    [[nodiscard]] QString datafileName();
    [[nodiscard]] QString deviceName();

    ShellMessenger                 mMessenger;
    MessageBoxes                   mOwnDialogs;
    WindowDialogs&                 mDialogs;
    OncePerResponse                mMessages;
    std::vector<PageDescription>   mPages;
    std::unique_ptr<Book>          mBook;
    qt::View*                      mView = nullptr;
    std::unique_ptr<ChangesDialog> mChangesDialog;

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
    QComboBox*          mLanguage     = nullptr;
    QComboBox*          mLevel        = nullptr;
    QLabel*             mLanguageName = nullptr;
    QLabel*             mLevelName    = nullptr;
    QActionGroup*       mUnits        = nullptr;
    std::vector<QMenu*> mMenus;
    QLabel*             mMode   = nullptr;
    QLabel*             mDevice = nullptr;
    QLabel*             mFile   = nullptr;
    QLabel*             mEdits  = nullptr;
    QProgressBar*       mBusy   = nullptr;
    QTimer              mStateTimer;
    QTranslator         mQtTexts;
};

} // namespace quill::shell
