#include "shell/main_window.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QEventLoop>
#include <QStatusBar>
#include <QTimer>

namespace quill::shell {

namespace {

/// For a device that does not answer any more.
constexpr std::chrono::milliseconds kMostPatience{3000};

} // namespace

bool MainWindow::mayLeavePage()
{
    const std::size_t before = mMessenger.outstanding();
    if (mBook && !mBook->LeaveSelectedView()) {
        return false;
    }
    if (mBook) {
        mBook->letGo();
    }
    if (mMessenger.outstanding() > before) {
        // A device that was left with a test current would keep it.
        QEventLoop loop;
        connect(&mMessenger.link(), &DeviceLink::busyChanged, &loop, &QEventLoop::quit);
        QTimer::singleShot(kMostPatience, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    return true;
}

void MainWindow::goOnlineOrOffline()
{
    if (!mMessenger.isOnline() || mayLeavePage()) {
        mMessenger.setOnline(!mMessenger.isOnline());
    }
}

void MainWindow::chooseUserLevel(std::int16_t level)
{
    const bool givesUp =
        level < kMaintenanceLevel && mMessenger.GetUserLevel() >= kMaintenanceLevel;
    if (givesUp && !mayLeavePage()) {
        mLevel->setCurrentIndex(mLevel->findData(static_cast<int>(mMessenger.GetUserLevel())));
        return;
    }
    mMessenger.setUserLevel(level);
}

bool MainWindow::mayLoseChanges()
{
    if (!mMessenger.store().isOpen() || !mMessenger.store().hasUnsavedChanges()) {
        return true;
    }
    const auto& texts = mMessenger.texts();
    switch (mDialogs.askToSave(texts.text("shell_closeTitle"),
                               texts.text("shell_saveQuestion").arg(datafileName()))) {
    case SaveChoice::save: return save();
    case SaveChoice::discard: return true;
    case SaveChoice::cancel: break;
    }
    return false;
}

void MainWindow::tell(const QString& text)
{
    constexpr int kMilliseconds = 4000;
    mLog->add(LogPane::Kind::message, text);
    statusBar()->showMessage(text, kMilliseconds);
}

void MainWindow::tellFailure(const platform::Failure& failure)
{
    mMessenger.ShowMessage("error", failure.description());
}

bool MainWindow::openDatafile(const QString& path)
{
    if (!mayLeavePage() || !mayLoseChanges()) {
        return false;
    }
    try {
        mMessenger.openDatafile(path.toStdString());
    } catch (const platform::Failure& failure) {
        tellFailure(failure);
        return false;
    }
    mLog->add(LogPane::Kind::message, mMessenger.texts().text("shell_opened").arg(path));
    return true;
}

void MainWindow::openSample(const Sample& sample)
{
    if (mayLeavePage() && mayLoseChanges()) {
        mMessenger.openSample(sample);
    }
}

bool MainWindow::save()
{
    return saveAs(QString::fromStdString(mMessenger.store().path()));
}

bool MainWindow::saveAs(const QString& path)
{
    const auto& texts  = mMessenger.texts();
    QString     target = path;
    if (target.isEmpty()) {
        const auto asked = mDialogs.askForFile(true, asTitle(texts.text("shell_saveAs")),
                                               texts.text("shell_datafiles") + " (*.xml)");
        if (!asked) {
            return false;
        }
        target = *asked;
    }
    try {
        mMessenger.store().save(target.toStdString());
    } catch (const platform::Failure& failure) {
        tellFailure(failure);
        return false;
    }
    mLog->add(LogPane::Kind::message, texts.text("shell_saved").arg(target));
    showState();
    return true;
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (mayLeavePage() && mayLoseChanges()) {
        event->accept();
    } else {
        event->ignore();
    }
}

} // namespace quill::shell
