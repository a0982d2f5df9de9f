#include "shell/log_pane.h"

#include "platform/failure.h"
#include "qt/rows_tree.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QTime>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>

namespace quill::shell {

namespace {

constexpr int kMostLines = 2000;
constexpr int kKindRole  = Qt::UserRole;

enum Column { kTime, kKind, kText, kColumns };

constexpr std::array kKindTexts = {"shell_logState", "shell_logMessage", "shell_logError",
                                   "shell_logDetail"};

} // namespace

LogPane::LogPane(ShellMessenger& messenger, QWidget* parent)
    : QDockWidget(parent), mMessenger(messenger), mLines(new QTreeWidget), mDetails(new QCheckBox),
      mClear(new QPushButton)
{
    setObjectName("log");
    mLines->setColumnCount(kColumns);
    mLines->setRootIsDecorated(false);
    mLines->setUniformRowHeights(true);
    mLines->setAllColumnsShowFocus(true);
    mLines->setTabKeyNavigation(false);
    mLines->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mLines->installEventFilter(this);
    mLines->header()->setStretchLastSection(true);
    mLines->setFrameShape(QFrame::NoFrame);
    mLines->setItemDelegate(new qt::RoomyRows(mLines));
    mLines->setIconSize(QSize(0, 0)); // there are none to make room for

    auto* content = new QWidget;
    auto* column  = new QVBoxLayout(content);
    auto* bar     = new QHBoxLayout;
    bar->addWidget(mDetails);
    bar->addStretch();
    bar->addWidget(mClear);
    bar->setContentsMargins(8, 4, 8, 4);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(bar);
    column->addWidget(mLines);
    setWidget(content);

    connect(mClear, &QPushButton::clicked, this, &LogPane::clear);
    connect(mDetails, &QCheckBox::toggled, this, &LogPane::showDetails);
    connect(&messenger, &ShellMessenger::parameterStateChanged, this,
            [this](const QString& parameter, const QString& state) {
                const QString label = QString::fromStdString(
                    mMessenger.texts().TranslateTag("ctr_" + parameter.toStdString()));
                const QString word =
                    mMessenger.texts().text(("shell_state_" + state).toUtf8().constData());
                add(Kind::state, label + ": " + word);
            });
    connect(&messenger, &ShellMessenger::messageShown, this,
            [this](const QString& title, const QString& text) {
                add(Kind::message, title + ": " + text.simplified());
            });
    connect(&messenger, &ShellMessenger::errorReported, this,
            [this](const QString& where, int number, const QString& description) {
                // Every label that a response is offered to says so; that is no news to anybody.
                const bool known = number == platform::kNotSupportedByObject;
                add(known ? Kind::detail : Kind::error,
                    QString("%1 (%2) %3").arg(where.trimmed()).arg(number).arg(description));
            });
    connect(&messenger, &ShellMessenger::logWritten, this,
            [this](QChar category, const QString& text) {
                add(Kind::detail, QString("%1 %2").arg(category).arg(text.simplified()));
            });
    localize();
}

bool LogPane::eventFilter(QObject* watched, QEvent* event)
{
    // Without a row at hand the keyboard would be nowhere to be seen.
    if (watched == mLines && event->type() == QEvent::FocusIn && mLines->currentItem() == nullptr) {
        QTreeWidgetItem* last = nullptr;
        for (int row = mLines->topLevelItemCount(); row > 0 && last == nullptr; --row) {
            QTreeWidgetItem* const item = mLines->topLevelItem(row - 1);
            last                        = item->isHidden() ? nullptr : item;
        }
        if (last != nullptr) {
            mLines->setCurrentItem(last, kTime, QItemSelectionModel::NoUpdate);
        }
    }
    return QDockWidget::eventFilter(watched, event);
}

void LogPane::beLastInTabOrder()
{
    QWidget* last = window()->previousInFocusChain();
    for (QWidget* widget : {static_cast<QWidget*>(mDetails), static_cast<QWidget*>(mClear),
                            static_cast<QWidget*>(mLines)}) {
        setTabOrder(last, widget);
        last = widget;
    }
}

void LogPane::add(Kind kind, const QString& text)
{
    const bool follow =
        mLines->verticalScrollBar()->value() == mLines->verticalScrollBar()->maximum();
    auto* const item = new QTreeWidgetItem(
        {QTime::currentTime().toString("HH:mm:ss.zzz"),
         mMessenger.texts().text(kKindTexts[static_cast<std::size_t>(kind)]), text});
    item->setData(kKind, kKindRole, static_cast<int>(kind));
    item->setToolTip(kText, text);
    if (kind == Kind::error) {
        QFont bold = font();
        bold.setBold(true);
        item->setFont(kKind, bold);
    }
    mLines->addTopLevelItem(item);
    item->setHidden(kind == Kind::detail && !mDetails->isChecked());
    if (mLines->topLevelItemCount() > kMostLines) {
        dropOldest();
    }
    if (follow) {
        mLines->scrollToBottom();
    }
}

void LogPane::dropOldest()
{
    // Details come by the hundred; what was told to the user outlives them.
    for (int row = 0; row < mLines->topLevelItemCount(); ++row) {
        if (mLines->topLevelItem(row)->data(kKind, kKindRole).toInt() ==
            static_cast<int>(Kind::detail)) {
            delete mLines->takeTopLevelItem(row);
            return;
        }
    }
    delete mLines->takeTopLevelItem(0);
}

QStringList LogPane::lines() const
{
    QStringList result;
    for (int row = 0; row < mLines->topLevelItemCount(); ++row) {
        result << mLines->topLevelItem(row)->text(kText);
    }
    return result;
}

void LogPane::clear()
{
    mLines->clear();
}

void LogPane::showDetails(bool shown)
{
    for (int row = 0; row < mLines->topLevelItemCount(); ++row) {
        auto* const item = mLines->topLevelItem(row);
        if (item->data(kKind, kKindRole).toInt() == static_cast<int>(Kind::detail)) {
            item->setHidden(!shown);
        }
    }
    mLines->scrollToBottom();
}

void LogPane::localize()
{
    const auto& texts = mMessenger.texts();
    setWindowTitle(texts.text("shell_log"));
    mClear->setText(texts.text("shell_logClear"));
    mDetails->setText(texts.text("shell_logShowDetails"));
    mLines->setAccessibleName(texts.text("shell_log"));
    mLines->setHeaderLabels({texts.text("shell_logTime"), texts.text("shell_logCategory"),
                             texts.text("shell_logText")});
    int widest = mLines->fontMetrics().horizontalAdvance(texts.text("shell_logCategory"));
    for (const char* kind : kKindTexts) {
        widest = qMax(widest, mLines->fontMetrics().horizontalAdvance(texts.text(kind)));
    }
    for (int row = 0; row < mLines->topLevelItemCount(); ++row) {
        auto* const item = mLines->topLevelItem(row);
        item->setText(kKind, texts.text(kKindTexts[item->data(kKind, kKindRole).toUInt()]));
    }
    constexpr int kPadding = 28;
    mLines->setColumnWidth(kTime,
                           mLines->fontMetrics().horizontalAdvance("00:00:00.000") + kPadding);
    mLines->setColumnWidth(kKind, widest + kPadding);
}

} // namespace quill::shell
