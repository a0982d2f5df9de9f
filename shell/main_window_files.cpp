#include "shell/main_window.h"

#include <QCloseEvent>

namespace quill::shell {

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

void MainWindow::tellFailure(const platform::Failure& failure)
{
    mMessenger.ShowMessage("error", failure.description());
}

bool MainWindow::openDatafile(const QString& path)
{
    if (!mayLoseChanges()) {
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

void MainWindow::openSample()
{
    if (mayLoseChanges()) {
        mMessenger.openSample();
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
    if (mayLoseChanges()) {
        event->accept();
    } else {
        event->ignore();
    }
}

} // namespace quill::shell
