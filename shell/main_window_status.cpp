#include "framework/documents.h"
#include "shell/icons.h"
#include "shell/main_window.h"
#include "shell/status_sign.h"
#include "shell/view_page.h"

#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

namespace quill::shell {

void MainWindow::buildClassifications(QMenu& menu)
{
    mClassifications = menu.addMenu(QString{});
    mClassifications->setObjectName("shell_menuClassification");
    mMenus.push_back(mClassifications);
    auto* const group = new QActionGroup(this);
    const auto  add   = [&](const char* name, const char* text, std::int16_t classification) {
        QAction* const action = addCommand(name, text, "shell_classificationTip");
        action->setCheckable(true);
        action->setData(classification);
        group->addAction(action);
        mClassifications->addAction(action);
        connect(action, &QAction::triggered, this,
                   [this, classification] { mMessenger.SetStatusClassification(classification); });
    };
    add("classSeverity", "shell_classificationSeverity", kClassSeverity);
    add("classNAMUR", "shell_classificationNamur", kClassNAMUR);
}

void MainWindow::buildStatusSigns()
{
    mChangedSign  = new QLabel;
    mClearChanged = new QToolButton;
    mClearChanged->setObjectName("clearChanged");
    connect(mClearChanged, &QToolButton::clicked, command("clearConfigurationChanged"),
            &QAction::trigger);
    mChangedSign->setContentsMargins(8, 2, 0, 2);
    for (QWidget* widget :
         {static_cast<QWidget*>(mChangedSign), static_cast<QWidget*>(mClearChanged)}) {
        statusBar()->addWidget(widget);
        widget->hide();
    }
}

void MainWindow::connectStatus()
{
    for (auto signal :
         {&ShellMessenger::combinedStatusChanged, &ShellMessenger::configurationChangedChanged,
          &ShellMessenger::classificationChanged}) {
        connect(&mMessenger, signal, this, &MainWindow::showStateSoon);
    }
}

const Page* MainWindow::statusPage() const
{
    if (!mBook) {
        return nullptr;
    }
    for (const auto& page : mBook->pages()) {
        const auto& description = page->description();
        if (!description.view.empty() && description.speaks && !description.cycle.empty()) {
            return page.get();
        }
    }
    return nullptr;
}

void MainWindow::showStatusPage()
{
    if (const Page* const page = statusPage()) {
        showPage(page->Tag);
    }
}

void MainWindow::showStatus()
{
    const bool hasStatus = statusPage() != nullptr;
    mStatus->showStatus(hasStatus ? mMessenger.combinedStatus() : std::string{},
                        mMessenger.texts());
    command("status")->setEnabled(hasStatus);

    mClassifications->menuAction()->setVisible(hasStatus &&
                                               !mMessenger.IsStatusClassificationFixed());
    const bool isNamur = mMessenger.GetStatusClassification() == kClassNAMUR;
    command(isNamur ? "classNAMUR" : "classSeverity")->setChecked(true);

    const bool changed  = mMessenger.isConfigurationChanged();
    const bool mayClear = changed && mMessenger.isOnline() && !mMessenger.link().isBusy() &&
                          mMessenger.GetUserLevel() >= kMaintenanceLevel;
    QAction* const clear = command("clearConfigurationChanged");
    clear->setVisible(mMessenger.HasConfigurationChangedSign());
    clear->setEnabled(mayClear);
    mChangedSign->setVisible(changed);
    mClearChanged->setVisible(changed);
    mClearChanged->setEnabled(mayClear);
    mClearChanged->setText(mMessenger.texts().text("shell_acknowledge"));
    mClearChanged->setAccessibleName(asTitle(clear->text()));
    mClearChanged->setToolTip(clear->toolTip());
    mChangedSign->setText("⚑ " + mMessenger.texts().text("shell_configurationChanged"));
}

void MainWindow::takeError(const IXMLDOMNode& response)
{
    mMessages.begin();
    mBook->SetErrorData(response);
    // A view that takes an error for its own shows what it does not know any more, and tells
    // nobody. What the user wanted done and was not done he is told all the same.
    if (!mMessages.hasTold() && documents::responseAttribute(response, "access") != "read") {
        mMessenger.ShowMessage("error", documents::responseAttribute(response, "errorCode"));
    }
    mMessages.end();
    showStateSoon();
}

} // namespace quill::shell
