#pragma once

#include "shell/main_window.h"
#include "shell/view_page.h"
#include "shell/window_dialogs.h"

#include <QPixmap>
#include <QString>
#include <QStringList>

#include <memory>
#include <string>
#include <vector>

namespace quill::shell {

/// Leads through the shell's window: has hands on its widgets, takes pictures, checks what it sees
/// and keeps the account.
class TourGuide {
public:
    /// Works in `folder`, which is made. The datafile that is opened is a copy in a place of its
    /// own; `datafile` is where it comes from, empty for the sample.
    TourGuide(const QString& folder, const QString& datafile);
    ~TourGuide();

    /// Everything that came from the device since the last `forget`, and what controls reported.
    struct Heard {
        QStringList responses; ///< "write signal ok", "read pressure missingItems", in order
        QStringList states;    ///< "ratedTravel edited", in order
    };
    [[nodiscard]] MainWindow&      window() { return *mWindow; }
    [[nodiscard]] ScriptedDialogs& dialogs() { return mDialogs; }
    [[nodiscard]] const Heard&     heard() const { return mHeard; }
    void                           forget() { mHeard = {}; }

    /// Closes the window and opens another one with the same file.
    void startAnew();

    /// The editor of a parameter, of this kind; a `Failure` if the pages have none.
    template <class Editor>
    Editor& editor(const std::string& parameter)
    {
        auto* const found = dynamic_cast<Editor*>(mWindow->book().find(parameter));
        if (found == nullptr) {
            throw platform::Failure(platform::kInvalidCall, "no editor for " + parameter);
        }
        return *found;
    }
    /// The view that fills a page; a `Failure` if it is of another kind, or there is none.
    template <class View>
    View& view(const char* page)
    {
        const auto* const filled = dynamic_cast<const ViewPage*>(mWindow->book().page(page));
        auto* const found = filled != nullptr ? dynamic_cast<View*>(&filled->view()) : nullptr;
        if (found == nullptr) {
            throw platform::Failure(platform::kInvalidCall, std::string("no view on page ") + page);
        }
        return *found;
    }
    /// The Qt widget of a widget on the pages.
    [[nodiscard]] QWidget& shown(const platform::Widget& widget);
    /// A mouse click on a command of the tool bar.
    void clickCommand(const char* name);
    /// Waits until the device has nothing more to say.
    void waitForDevice();

    /// An attribute of a parameter in the working document.
    [[nodiscard]] std::string inDocument(const std::string& parameter, const char* attribute);
    /// The same in the file on disk.
    [[nodiscard]] std::string onDisk(const std::string& parameter, const char* attribute) const;

    /// A line of the account that says what is done next.
    void tell(const QString& what);
    /// A line of the account that says whether something is as it should be.
    void check(bool holds, const QString& what);
    /// The picture "<number>-<name>.png" of the window, with a dialog in front of it if there is
    /// one; `scale` 2 is a screen of 192 dpi.
    void picture(const QString& name, qreal scale = 1, QWidget* dialog = nullptr);

    /// Writes "account.txt". True if every check held.
    bool finish();

private:
    void openWindow();

    QString                     mFolder;
    QString                     mWork;
    QString                     mDatafile;
    ScriptedDialogs             mDialogs;
    std::unique_ptr<MainWindow> mWindow;
    Heard                       mHeard;
    QStringList                 mAccount;
    int                         mPictures = 0;
    int                         mChecks   = 0;
    int                         mFailures = 0;
};

} // namespace quill::shell
