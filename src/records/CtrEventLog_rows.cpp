// The rows of the list: events that are filled in by parts, separators, and dates.
#include "records/CtrEventLog.h"

#include "framework/documents.h"
#include "framework/modTools.h"
#include "framework/values.h"
#include "platform/failure.h"

#include <algorithm>

namespace quill {

namespace {

/// Asks the memory for a row that comes soon: the texts of thousands of rows lie far apart, and
/// waiting for them is most of what a walk over them costs. `place` counts from 0.
void announceRow([[maybe_unused]] const std::vector<platform::ListItem>& items,
                 [[maybe_unused]] std::size_t                            place)
{
#if defined(__GNUC__)
    constexpr std::size_t kCellsAhead = 12;
    constexpr std::size_t kTextsAhead = 6;
    if (place + kCellsAhead < items.size()) {
        const auto& cells = items[place + kCellsAhead].SubItems;
        for (std::size_t cell = 0; cell < cells.size(); cell += 2) {
            __builtin_prefetch(cells.data() + cell); // two to a line of the cache
        }
        for (const std::string& text : items[place + kTextsAhead].SubItems) {
            __builtin_prefetch(text.data());
        }
    }
#endif
}

} // namespace

using platform::ListItem;

int CtrEventLog::addRow()
{
    lsvEventLog.Add({.SubItems = std::vector<std::string>(eventLog::kSubItems)});
    lsvEventLog.EnsureVisible(lsvEventLog.Count());
    return lsvEventLog.Count();
}

void CtrEventLog::AddEventLogEvent(int& row, const eventLog::Texts& texts, const std::string& index)
{
    // The first failure ends the procedure.
    const Steps step{GetMessenger(), "CtrEventLog AddEventLogEvent"};
    step([&] {
        int number = row > lsvEventLog.Count() ? addRow() : row;
        while (eventLog::column(lsvEventLog.Item(number), eventLog::kEvent) ==
               eventLog::kSeparator) {
            if (row < lsvEventLog.Count()) {
                number = ++row;
                mPaging.countResetEvent();
            } else {
                number = addRow();
            }
        }
        lsvEventLog.edit(number, [&](ListItem& item) {
            if (!texts.eventClass.empty()) {
                item.Text = texts.eventClass;
            }
            if (!texts.event.empty()) {
                eventLog::setColumn(item, eventLog::kEvent, texts.event);
                item.ToolTipText += texts.event;
                eventLog::setColumn(item, eventLog::kRow, eventLog::rowText(number, row));
            }
        });
        if (!texts.time.empty()) {
            const std::string time = eventLog::eventTimeText(texts.time);
            const std::string date = Stamp(texts.time, row);
            lsvEventLog.edit(number, [&](ListItem& item) {
                eventLog::setColumn(item, eventLog::kTime, time);
                eventLog::setColumn(item, eventLog::kDate, date);
                item.ToolTipText += " " + time;
            });
        }
        if (!index.empty()) {
            lsvEventLog.edit(number, [&](ListItem& item) {
                eventLog::setColumn(item, eventLog::kIndex, index);
            });
        }
    });
}

void CtrEventLog::RemoveObsoleteEvents()
{
    const std::string obsolete = translated(eventLog::kObsolete);
    if (obsolete != mObsoleteText) {
        mObsoleteText = obsolete; // another language
        mRowsChecked  = 0;
    }
    const int from = mRowsChecked + 1;
    // Without a word for it no event is obsolete, and least of all those that have no text.
    for (int row = lsvEventLog.Count(); row >= from && !obsolete.empty(); --row) {
        if (eventLog::column(lsvEventLog.Item(row), eventLog::kEvent) == obsolete) {
            lsvEventLog.Remove(row);
        }
    }
    for (int row = from; row <= lsvEventLog.Count(); ++row) {
        const std::string number = std::to_string(row);
        if (eventLog::column(lsvEventLog.Item(row), eventLog::kRow) != number) {
            lsvEventLog.edit(
                row, [&](ListItem& item) { eventLog::setColumn(item, eventLog::kRow, number); });
        }
    }
    mRowsChecked = lsvEventLog.Count();
}

/// A row that changes in whatever way, and those behind a row that comes or goes, are to be checked
/// again.
void CtrEventLog::rowsChanged(const platform::WidgetChange& change)
{
    using What = platform::WidgetChange::What;
    switch (change.what) {
    case What::rowsChanged:
    case What::rowsInserted:
    case What::rowsRemoved: mRowsChecked = std::min(mRowsChecked, change.first); break;
    case What::reset: mRowsChecked = 0; break;
    default: break;
    }
}

// --- Dates ------------------------------------------------------------------------------------

std::string CtrEventLog::Stamp(const std::string& time, int row)
{
    const Steps step{GetMessenger(), "CtrEventLog Stamp"};
    return step.text([&] { return mTimes.stamp(time, row); });
}

/// The operation time of a row. The datafile has it as the device gave it, the list only rounded;
/// rows behind those of the datafile have theirs in the list alone. `place` is the event index of
/// the row, to be moved past obsolete events, which are in the datafile but not in the list.
std::string CtrEventLog::stampSource(int row, int place, int& obsolete)
{
    for (; place < static_cast<int>(maEventNodes.size()); ++place) {
        const Pieces& nodes = maEventNodes.at(static_cast<std::size_t>(place));
        if (!nodes[2]) {
            continue;
        }
        if (documents::attributeText(nodes[0], "value") != eventLog::kObsolete) {
            return documents::attributeText(nodes[2], "value");
        }
        ++obsolete;
    }
    return eventLog::column(lsvEventLog.Item(row), eventLog::kTime);
}

void CtrEventLog::AddStamps(const std::string& operationTime, const std::string& date)
{
    // The first failure ends the procedure.
    const Steps step{GetMessenger(), "CtrEventLog AddStamps"};
    step([&] {
        const auto tell = [&](const std::string& text) { host().WriteLog(kLogDecision, text); };
        tell("AddStamps Operation Time " + operationTime + " at " + date);
        if (!eventLog::isKnown(operationTime) || !eventLog::isKnown(date)) {
            return;
        }
        const double total = modTools::ParseNumber(operationTime);
        const auto   day   = values::parseDate(date);
        if (!day) {
            throw platform::failure(platform::kTypeMismatch);
        }
        mTimes.setReference(total, *day);
        const int indexShift = mPaging.firstIndexShift();
        int       breaks     = 0;
        int       obsolete   = 0;
        for (int row = 1; row <= lsvEventLog.Count(); ++row) {
            announceRow(lsvEventLog.ListItems(), static_cast<std::size_t>(row) - 1);
            tell("i = " + std::to_string(row));
            tell("strTime from uitem = " +
                 eventLog::column(lsvEventLog.Item(row), eventLog::kTime));
            const std::string time =
                stampSource(row, row - indexShift - breaks + obsolete, obsolete);
            const std::string event = eventLog::column(lsvEventLog.Item(row), eventLog::kEvent);
            if (event != eventLog::kSeparator) {
                const std::string stamp = Stamp(time, row);
                tell("stamp = " + stamp);
                lsvEventLog.edit(row, [&](ListItem& item) {
                    eventLog::setColumn(item, eventLog::kDate, stamp);
                });
            }
            // While the text of a reset is not known, no event can be told to be one.
            if (!mstrExternalResetText.empty() && event == mstrExternalResetText) {
                ++breaks;
                mTimes.noteReset(row);
                lblFootnote.Visible = true;
            }
        }
    });
}

} // namespace quill
