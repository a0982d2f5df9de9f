#include "shell/changes_dialog.h"

#include "framework/caption_width.h"
#include "qt/geometry.h"

#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quill::shell {

ChangesDialog::ChangesDialog(ShellMessenger& messenger, QWidget* parent)
    : ControlDialog(parent), mMessenger(messenger)
{
    mControl.Visible = false;
    mControl.SetMessenger(&messenger);
    mView = new qt::View(mControl, this);
    mView->resize(mView->sizeHint());
    resize(mView->sizeHint());
    setMinimumSize(mView->sizeHint());
    follow(mControl);
    mRowsTimer.setSingleShot(true);
    connect(&mRowsTimer, &QTimer::timeout, this, &ChangesDialog::fitColumns);
    mOnRows = mControl.lstChanges.Changed.subscribe([this](const platform::WidgetChange& change) {
        if (change.what == platform::WidgetChange::What::rowsInserted ||
            change.what == platform::WidgetChange::What::rowsChanged) {
            mRowsTimer.start(0);
        }
    });
    localize();
}

ChangesDialog::~ChangesDialog()
{
    mControl.SetMessenger(nullptr);
}

void ChangesDialog::localize()
{
    mMessenger.localize(mControl);
    setWindowTitle(mMessenger.texts().text("changeConfirm"));
    arrange();
}

void ChangesDialog::ask()
{
    if (isVisible()) {
        return;
    }
    open();
    mControl.show();
    fitColumns();
    mView->flush();
    markMainButton(*mView);
}

void ChangesDialog::arrange()
{
    constexpr std::int32_t kMargin      = 240;
    constexpr std::int32_t kGap         = 150;
    constexpr std::int32_t kButton      = 420;
    constexpr std::int32_t kLeastButton = 1500;
    constexpr std::int32_t kPadding     = 480;
    const std::int32_t     width        = qt::toTwips(this->width());
    const std::int32_t     height       = qt::toTwips(this->height());
    mView->resize(size());

    std::int32_t left = width - kMargin;
    for (platform::CommandButton* button :
         {&mControl.cmdClose, &mControl.cmdClear, &mControl.cmdDownload}) {
        button->Width = std::max(kLeastButton, captionWidth(button->Caption) + kPadding);
        button->Left  = left - button->Width;
        button->Top   = height - kMargin - button->Height;
        left          = button->Left - kGap;
    }
    const std::int32_t bottom = height - kMargin - kButton - 2 * kGap;
    mControl.chkChanges.Left  = kMargin;
    mControl.chkChanges.Top   = bottom - mControl.chkChanges.Height;
    mControl.lblChanges.Left  = kMargin + mControl.chkChanges.Width + kGap / 2;
    mControl.lblChanges.Top   = mControl.chkChanges.Top.get();
    mControl.lblChanges.Width = width - kMargin - mControl.lblChanges.Left;
    mControl.lblTitle.Left    = kMargin;
    mControl.lblTitle.Width   = width - 2 * kMargin;
    auto& list                = mControl.lstChanges;
    list.Left                 = kMargin;
    list.Width                = width - 2 * kMargin;
    list.Height               = mControl.chkChanges.Top - kGap - list.Top;
    fitColumns();
}

void ChangesDialog::fitColumns()
{
    constexpr std::int32_t kCheckBox = 450;
    constexpr std::int32_t kPadding  = 270;
    constexpr std::int32_t kScroll   = 360; // the frame and a scroll bar

    auto&      list   = mControl.lstChanges;
    const auto needed = [](const std::string& text) { return captionWidth(text) + kPadding; };
    std::array<std::int32_t, 3> widths{};
    for (std::size_t column = 0; column < widths.size(); ++column) {
        widths.at(column) = needed(list.ColumnHeaders().at(column).Text);
    }
    for (const auto& item : list.ListItems()) {
        widths[0] = std::max(widths[0], needed(item.Text) + kCheckBox);
        widths[1] = std::max(widths[1], needed(item.SubItems.at(0)));
        widths[2] = std::max(widths[2], needed(item.SubItems.at(1)));
    }
    const std::int32_t missing = widths[0] + widths[1] + widths[2] + kScroll - list.Width;
    if (missing > 0) {
        const int most = parentWidget() != nullptr ? parentWidget()->width() : QWIDGETSIZE_MAX;
        const int wide = std::min(width() + qt::toPixels(missing) + 1, most);
        if (wide > width()) {
            resize(wide, height()); // which comes back here
            return;
        }
    }
    const std::int32_t spare = std::max(0, -missing) / 3;
    for (int column = 1; column <= 3; ++column) {
        list.setColumnWidth(column, widths.at(static_cast<std::size_t>(column - 1)) + spare);
    }
}

} // namespace quill::shell
