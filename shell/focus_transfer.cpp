#include "shell/focus_transfer.h"

#include "editors/CtrFocusTransfer.h"
#include "platform/keys.h"
#include "platform/toolkit.h"
#include "qt/adaptor.h"

#include <QApplication>

#include <utility>

namespace quill::shell {

FocusTransfer::FocusTransfer(ShellMessenger& messenger, QWidget& window,
                             std::function<void(bool)> move)
    : mWindow(window), mMove(std::move(move))
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { mSettled = now; });
    connect(&messenger, &ShellMessenger::dialogNotified, this,
            [this](int phase) { mDialogCloses = phase == kDialogGoes; });
    connect(&messenger, &ShellMessenger::focusTransferred, this, &FocusTransfer::transfer);
}

void FocusTransfer::transfer()
{
    if (std::exchange(mDialogCloses, false) || !mWindow.isActiveWindow()) {
        return;
    }
    QWidget* const     now     = QApplication::focusWidget();
    const qt::Adaptor* adaptor = qt::adaptorAt(now);
    const bool         isStop =
        adaptor != nullptr && dynamic_cast<const CtrFocusTransfer*>(adaptor->model()) != nullptr;
    if (!isStop && now != mSettled) {
        return;
    }
    auto&      toolkit = platform::Toolkit::current();
    const bool backwards =
        toolkit.keyDown(platform::kKeyTab) && toolkit.keyDown(platform::kKeyShift);
    mMove(!backwards);
}

} // namespace quill::shell
