#pragma once

#include "qt/view.h"
#include "records/CtrChanges.h"
#include "shell/control_dialog.h"
#include "shell/shell_messenger.h"

#include <QTimer>

namespace quill::shell {

/// The dialog of pending changes in a window.
class ChangesDialog : public ControlDialog {
    Q_OBJECT

public:
    ChangesDialog(ShellMessenger& messenger, QWidget* parent);
    ~ChangesDialog() override;

    [[nodiscard]] CtrChanges& control() { return mControl; }
    [[nodiscard]] qt::View&   view() { return *mView; }

    /// Shows the changes that are pending now.
    void ask();
    void localize();

protected:
    [[nodiscard]] platform::CommandButton& mainButton() override { return mControl.cmdDownload; }
    [[nodiscard]] platform::CommandButton& leaveButton() override { return mControl.cmdClose; }
    void                                   arrange() override;

private:
    /// Makes the columns wide enough for what is listed, and the dialog for the columns.
    void fitColumns();

    ShellMessenger&        mMessenger;
    CtrChanges             mControl;
    qt::View*              mView;
    QTimer                 mRowsTimer;
    platform::Subscription mOnRows;
};

} // namespace quill::shell
