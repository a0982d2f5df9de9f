#include "shell/window_dialogs.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace quill::shell {

namespace {

template <class T>
std::optional<T> next(std::deque<T>& prepared)
{
    if (prepared.empty()) {
        return std::nullopt;
    }
    std::optional<T> answer(std::move(prepared.front()));
    prepared.pop_front();
    return answer;
}

} // namespace

void MessageBoxes::showMessage(const QString& title, const QString& text)
{
    // A message does not wait for its answer: it may come from the middle of a response, and the
    // next response must not arrive inside of that.
    const auto sign =
        title == mTexts.text("error") ? QMessageBox::Warning : QMessageBox::Information;
    auto* box = new QMessageBox(sign, title, text, QMessageBox::NoButton, &mWindow);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->addButton(mTexts.text("ok"), QMessageBox::AcceptRole);
    box->open();
}

bool MessageBoxes::askQuestion(const QString& title, const QString& text)
{
    QMessageBox        box(QMessageBox::Question, title, text, QMessageBox::NoButton, &mWindow);
    QPushButton*       yes = box.addButton(mTexts.text("yes"), QMessageBox::YesRole);
    QPushButton* const no  = box.addButton(mTexts.text("no"), QMessageBox::NoRole);
    // Whoever asks here is about to throw something away: edits, what the device has collected, or
    // the state of a calibration. Enter must not do that by itself.
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

SaveChoice MessageBoxes::askToSave(const QString& title, const QString& text)
{
    QMessageBox        box(QMessageBox::Warning, title, text, QMessageBox::NoButton, &mWindow);
    QPushButton* const save =
        box.addButton(mTexts.text("shell_answerSave"), QMessageBox::AcceptRole);
    QPushButton* const discard =
        box.addButton(mTexts.text("shell_answerDiscard"), QMessageBox::DestructiveRole);
    QPushButton* const cancel = box.addButton(mTexts.text("cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(save);
    box.setEscapeButton(cancel);
    box.exec();
    return box.clickedButton() == save      ? SaveChoice::save
           : box.clickedButton() == discard ? SaveChoice::discard
                                            : SaveChoice::cancel;
}

std::optional<QString> MessageBoxes::askForFile(bool save, const QString& title,
                                                const QString& filter)
{
    const QString path = save ? QFileDialog::getSaveFileName(&mWindow, title, {}, filter)
                              : QFileDialog::getOpenFileName(&mWindow, title, {}, filter);
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

bool ScriptedDialogs::askQuestion(const QString& title, const QString& text)
{
    boxes.push_back({title, text});
    return next(answers).value_or(false);
}

SaveChoice ScriptedDialogs::askToSave(const QString& title, const QString& text)
{
    boxes.push_back({title, text});
    return next(saveChoices).value_or(SaveChoice::cancel);
}

std::optional<QString> ScriptedDialogs::askForFile(bool, const QString& title,
                                                   const QString& filter)
{
    boxes.push_back({title, filter});
    return next(files);
}

} // namespace quill::shell
