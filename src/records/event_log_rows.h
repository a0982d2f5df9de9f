#pragma once

#include "platform/list_view.h"

#include <array>
#include <string>

/// The rows of the event log's list.
namespace quill::eventLog {

/// Request group and parameter name of the log.
inline constexpr const char* kGroup = "eventLog";

/// Keys of events and classes that mean something to the view.
inline constexpr const char* kExternalReset = "vx4400eventExternalReset";
inline constexpr const char* kNoEvent       = "vx4400eventNone";
inline constexpr const char* kNoClass       = "vx4400eventClassNone";
inline constexpr const char* kObsolete      = "eventObsolete";

/// Stands in the event column of the row that is drawn behind an external reset.
inline constexpr const char* kSeparator = "-------------------------------------------";

/// The names of an event's pieces in the datafile and on the first page, and on those behind it.
struct PieceName {
    const char* first;
    const char* next;
};
inline constexpr std::array<PieceName, 3> kPieces{{{"eventLogEvent", "eventLogNextEvent"},
                                                   {"eventLogClass", "eventLogNextClass"},
                                                   {"eventLogTime", "eventLogNextTime"}}};

/// Columns behind the class, which is the text of the row itself.
enum Column : int { kEvent = 0, kTime, kDate, kIndex, kRow, kSubItems };

/// What the three pieces of an event say on screen: the first two translated, the time as it came.
struct Texts {
    std::string event      = {};
    std::string eventClass = {};
    std::string time       = {};

    [[nodiscard]] bool isEmpty() const
    {
        return event.empty() && eventClass.empty() && time.empty();
    }
};

/// The text of a column; empty for a row that is shorter.
[[nodiscard]] std::string column(const platform::ListItem& item, Column which);
void                      setColumn(platform::ListItem& item, Column which, std::string text);
/// The row column: the row's number, and the one it was meant for where they differ.
[[nodiscard]] std::string rowText(int number, int meant);
/// The index in names of parameters and items: at least two digits.
[[nodiscard]] std::string suffix(int index);
/// Class, event, time and date, as they go to the clipboard.
[[nodiscard]] std::string clipboardLine(const platform::ListItem& item);

} // namespace quill::eventLog
