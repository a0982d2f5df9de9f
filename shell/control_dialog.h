#pragma once

#include "platform/buttons.h"
#include "platform/widget.h"
#include "qt/view.h"

#include <QDialog>

namespace quill::shell {

/// A dialog of the library in a window. The control decides when it closes: it hides itself, and
/// the window goes with it.
class ControlDialog : public QDialog {
public:
    /// Escape and the window's own close button: nothing takes effect.
    void reject() override { leaveButton().click(); }

protected:
    using QDialog::QDialog;

    /// The button that the dialog is for, and the one by which it is left.
    [[nodiscard]] virtual platform::CommandButton& mainButton()  = 0;
    [[nodiscard]] virtual platform::CommandButton& leaveButton() = 0;
    /// Lays the control out for the present size.
    virtual void arrange() = 0;
    /// From now on the window goes with this control.
    void follow(platform::Control& control);
    /// Shows which button the Enter key means.
    void markMainButton(const qt::View& view);

    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    platform::Subscription mOnHide;
};

} // namespace quill::shell
