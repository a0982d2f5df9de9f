#include "shell/control_dialog.h"

#include <QKeyEvent>
#include <QPushButton>

namespace quill::shell {

void ControlDialog::follow(platform::Control& control)
{
    mOnHide = control.Hide.subscribe([this] { hide(); });
}

void ControlDialog::markMainButton(const qt::View& view)
{
    if (auto* const button = qobject_cast<QPushButton*>(view.shown(mainButton()))) {
        button->setDefault(true);
    }
}

void ControlDialog::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    // On a button Enter means that button, elsewhere the one that the dialog is for.
    if (auto* button = qobject_cast<QPushButton*>(focusWidget())) {
        button->click();
    } else {
        mainButton().click();
    }
}

void ControlDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    arrange();
}

} // namespace quill::shell
