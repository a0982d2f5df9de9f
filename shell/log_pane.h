#pragma once

#include "shell/shell_messenger.h"

#include <QDockWidget>

class QCheckBox;
class QPushButton;
class QTreeWidget;

namespace quill::shell {

/// What the controls report, newest at the bottom: states of parameters, errors, messages, and on
/// request the log lines meant for the developer.
class LogPane : public QDockWidget {
    Q_OBJECT

public:
    explicit LogPane(ShellMessenger& messenger, QWidget* parent = nullptr);

    enum class Kind { state, message, error, detail };
    void add(Kind kind, const QString& text);
    /// Texts of the lines that are there, hidden ones included.
    [[nodiscard]] QStringList lines() const;
    /// Behind all that the window has got so far.
    void beLastInTabOrder();
    void clear();
    void localize();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showDetails(bool shown);
    void dropOldest();

    ShellMessenger& mMessenger;
    QTreeWidget*    mLines;
    QCheckBox*      mDetails;
    QPushButton*    mClear;
};

} // namespace quill::shell
