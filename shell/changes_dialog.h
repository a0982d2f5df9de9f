#pragma once

#include "qt/view.h"
#include "records/CtrChanges.h"
#include "shell/shell_messenger.h"

#include <QDialog>
#include <QTimer>

namespace quill::shell {

/// The dialog of pending changes in a window. The control decides when it closes: it hides itself,
/// and the window goes with it.
class ChangesDialog : public QDialog {
    Q_OBJECT

public:
    ChangesDialog(ShellMessenger& messenger, QWidget* parent);
    ~ChangesDialog() override;

    [[nodiscard]] CtrChanges& control() { return mControl; }
    [[nodiscard]] qt::View&   view() { return *mView; }

    /// Shows the changes that are pending now.
    void ask();
    void localize();

    /// Escape and the window's own close button: nothing is sent.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();
    /// Makes the columns wide enough for what is listed, and the dialog for the columns.
    void fitColumns();

    ShellMessenger&        mMessenger;
    CtrChanges             mControl;
    qt::View*              mView;
    QTimer                 mRowsTimer;
    platform::Subscription mOnHide;
    platform::Subscription mOnRows;
};

} // namespace quill::shell
