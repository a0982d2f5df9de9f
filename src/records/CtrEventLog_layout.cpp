// Where things stand, and what the keyboard does in the list.
#include "records/CtrEventLog.h"

#include "framework/caption_width.h"
#include "framework/documents.h"
#include "framework/steps.h"
#include "framework/values.h"
#include "platform/toolkit.h"

#include <algorithm>

namespace quill {

namespace {

// Below this size the texts would be cut off in the longer languages.
constexpr std::int32_t kSmallestWidth  = 6000;
constexpr std::int32_t kSmallestHeight = 3000;
constexpr std::int32_t kMargin         = 180;
constexpr std::int32_t kGap            = 120;
constexpr std::int32_t kLine           = 330;
constexpr std::int32_t kNextWidth      = 1500;

// Columns of the list, from 1.
enum ColumnNumber : int { kClassColumn = 1, kEventColumn, kTimeColumn, kDateColumn };

/// Width of a label that shows its caption whole.
std::int32_t labelWidth(std::int32_t text)
{
    return text == 0 ? 0 : text + kGap;
}

} // namespace

void CtrEventLog::arrange()
{
    placeWidgets();
    fitColumns();
}

void CtrEventLog::placeWidgets()
{
    const std::int32_t width  = std::max(Width.get(), kSmallestWidth);
    const std::int32_t height = std::max(Height.get(), kSmallestHeight);
    std::int32_t       top    = kMargin;

    lblTitle[0].Top = top;
    for (platform::Label& label : lblOperationTime) {
        label.Top = top;
    }
    ResizeTotalOperationTime();
    top += kLine;

    lblTitle[1].Left    = kMargin;
    lblTitle[1].Top     = top;
    lblTitle[1].Width   = std::max(labelWidth(captionWidth(lblTitle[1].Caption)), 1200);
    ctrDateLabels.Left  = lblTitle[1].Left + lblTitle[1].Width + kGap;
    ctrDateLabels.Top   = top;
    ctrDateLabels.Width = std::max(width - kMargin - ctrDateLabels.Left, 0);
    top += kLine;

    cmdNext.Width      = buttonWidth(cmdNext.Caption, kNextWidth);
    cmdNext.Left       = width - kMargin - cmdNext.Width;
    cmdNext.Top        = height - kMargin - cmdNext.Height;
    lblFootnote.Left   = kMargin;
    lblFootnote.Top    = cmdNext.Top + (cmdNext.Height - lblFootnote.Height) / 2;
    lblFootnote.Width  = std::max(cmdNext.Left - kGap - kMargin, 0);
    lsvEventLog.Left   = kMargin;
    lsvEventLog.Top    = top;
    lsvEventLog.Width  = width - 2 * kMargin;
    lsvEventLog.Height = cmdNext.Top - kGap - top;

    for (CtrFocusTransfer* stop : {&CtrFocusTransfer1, &CtrFocusTransfer2}) {
        stop->Left = width - kMargin;
        stop->Top  = height - kMargin;
    }
}

void CtrEventLog::fitColumns()
{
    const std::int32_t width      = lsvEventLog.Width;
    const std::int32_t eventClass = mblnHideClasses ? 0 : values::percentOf(width, 15);
    const std::int32_t time       = values::percentOf(width, 12);
    const std::int32_t date       = values::percentOf(width, 27);
    const std::int32_t widths[] = {eventClass, width - eventClass - time - date, time, date, 0, 0};
    const auto         columns  = std::min(std::size(widths), lsvEventLog.ColumnHeaders().size());
    for (std::size_t column = 0; column < columns; ++column) {
        lsvEventLog.setColumnWidth(static_cast<int>(column) + 1, widths[column]);
    }
}

/// A list that has grown past its height has a bar at its side: the event column makes room for it.
void CtrEventLog::ResizeEvents()
{
    constexpr std::int32_t kSlack     = 100;
    constexpr std::int32_t kScrollBar = 260;
    constexpr std::int32_t kLeast     = 501;
    // The first failure ends the procedure.
    const Steps step{GetMessenger(), "CtrEventLog ResizeEvents"};
    step([&] {
        if (lsvEventLog.SelectedItem() <= 1) {
            return;
        }
        const auto width = [&](int column) -> std::int64_t {
            return lsvEventLog.ColumnHeaders().at(static_cast<std::size_t>(column) - 1).Width;
        };
        const std::int64_t others = width(kClassColumn) + width(kTimeColumn) + width(kDateColumn);
        const std::int64_t left   = lsvEventLog.Width - others - kScrollBar;
        if (others + width(kEventColumn) > lsvEventLog.Width - kSlack && left >= kLeast) {
            lsvEventLog.setColumnWidth(kEventColumn, static_cast<std::int32_t>(left));
        }
    });
}

void CtrEventLog::ResizeTotalOperationTime()
{
    // The first failure ends the procedure.
    const Steps step{GetMessenger(), "CtrEventLog ResizeTotalOperationTime"};
    step([&] {
        std::int32_t left = kMargin;
        for (platform::Label* label :
             {&lblTitle[0], &lblOperationTime[0], &lblOperationTime[1], &lblOperationTime[2]}) {
            label->Left  = left;
            label->Width = labelWidth(platform::Toolkit::current().textWidth(label->Caption));
            left += label->Width + kGap;
        }
    });
}

void CtrEventLog::showUnit(const Steps& step, const IXMLDOMNode& node)
{
    lblOperationTime[1].Caption = step.text([&] { return documents::attributeText(node, "unit"); });
    ResizeTotalOperationTime();
}

void CtrEventLog::showFirstRow(const Steps& step)
{
    if (lsvEventLog.Count() > 0) {
        step([&] { lsvEventLog.EnsureVisible(1); });
    }
}

// --- The keyboard -----------------------------------------------------------------------------

void CtrEventLog::lsvEventLog_KeyUp(const platform::KeyPress& key)
{
    constexpr int kKeyA      = 65;
    constexpr int kKeyC      = 67;
    const bool    isWithCtrl = (key.shift & platform::kControlKey) != 0;
    // The first failure ends the procedure.
    const Steps step{GetMessenger(), "CtrEventLog lsvEventLog_KeyUp"};
    step([&] {
        if (key.code == platform::kKeyPageDown) {
            if (cmdNext.Enabled &&
                lsvEventLog.SelectedItem() + mPaging.miEventsPerRead > lsvEventLog.Count()) {
                cmdNext_Click();
            }
        } else if (key.code == kKeyA && isWithCtrl) {
            selectAllRows();
        } else if (key.code == kKeyC && isWithCtrl) {
            copySelectedRows();
        }
    });
}

/// The current row stays the current one.
void CtrEventLog::selectAllRows()
{
    const int        current = std::max(lsvEventLog.SelectedItem(), 1);
    std::vector<int> rows{current};
    for (int row = 1; row <= lsvEventLog.Count(); ++row) {
        if (row != current) {
            rows.push_back(row);
        }
    }
    if (lsvEventLog.Count() > 0) {
        lsvEventLog.select(rows);
    }
}

void CtrEventLog::copySelectedRows()
{
    std::string text;
    for (const platform::ListItem& item : lsvEventLog.ListItems()) {
        if (item.Selected) {
            text += eventLog::clipboardLine(item);
        }
    }
    platform::Toolkit::current().setClipboard(text);
}

} // namespace quill
