#pragma once

#include "shell/shell_messenger.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace quill::shell {

/// Moves the focus on where a control asks the host to: behind the Enter key in a text box, and at
/// the stops at the end of a view. What leaves a view by the Tab key asks too, but Qt is moving the
/// focus then, and a second step would pass over something. A dialog asks when it closes; the
/// window behind it finds the focus where it was.
class FocusTransfer : public QObject {
    Q_OBJECT

public:
    /// `move` brings the focus to the next widget of the window, or to the one before.
    FocusTransfer(ShellMessenger& messenger, QWidget& window, std::function<void(bool)> move);

private:
    void transfer();

    QWidget&                  mWindow;
    std::function<void(bool)> mMove;
    QPointer<QWidget>         mSettled; ///< what had the focus when it moved last
    bool                      mDialogCloses = false;
};

} // namespace quill::shell
