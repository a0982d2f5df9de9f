#pragma once

#include <cstdint>
#include <string>

namespace quill {

/// Where a view of the event log stands in the device's log, and how the device hands its log out.
/// Pure arithmetic: rows and widgets are the view's.
///
/// A device keeps its events in a small ring and hands them out in pages. A fieldbus device answers
/// a fixed request with the next page each time, in two parts: first some pieces of every event,
/// then the others. A HART device is told the index to go on from and sends one page in several
/// messages.
struct EventLogPaging {
    bool         mblnIsHART        = true;
    std::int16_t miEventsInMessage = 10; ///< events in one response message
    std::int16_t miMessagesInParts = 1;  ///< a read comes back in this many parts
    std::int16_t miMessagesPerRead = 3;  ///< messages in one read of more events
    std::int16_t miEventsPerRead   = 30; ///< highest event index of the first read
    /// Request for the total operation time; empty where it arrives by itself.
    std::string  mstrOperationTimeRequest;
    std::int16_t miTopEventIndex = 0; ///< index of the event in the first row

    bool         mblnReadOk              = true;  ///< no failed part in the read under way
    std::uint8_t miMessageCount          = 0;     ///< messages received in the read under way
    std::int32_t mlngMessagesRead        = 0;     ///< messages since the list was started
    std::int16_t miReadsDone             = 0;     ///< messages of the reads of more events
    bool         mblnIsNextAllowed       = false; ///< the device has more events
    bool         mblnIsMoreEventsClicked = false; ///< the read under way is one of more events
    std::int16_t miResetEvents           = 0;     ///< separators met in the current page
    std::int32_t mvarIndexBase           = 0;     ///< added to a page's indexes in the index column

    /// The two families of devices.
    void UseFieldbus();
    void UseHART();

    /// Row of event index 0 on the first page.
    [[nodiscard]] int firstIndexShift() const { return 1 - miTopEventIndex; }
    /// The same on a page of more events, given the rows that stand in the list. The rows of
    /// earlier messages of this read are taken off again, and so are the separators, which have no
    /// index.
    [[nodiscard]] int nextIndexShift(int rows) const;
    /// The row that an event belongs to, separators in front of it counted.
    [[nodiscard]] int rowOf(int index, int indexShift) const
    {
        return index + indexShift + miResetEvents;
    }
    /// Highest index that a message of a read can hold.
    [[nodiscard]] int lastIndex(bool newList) const;
    /// Whether the parts of a read fill the same rows, each a piece of every event.
    [[nodiscard]] bool partsFillTheSameRows() const
    {
        return miMessagesInParts > 1 && miMessagesPerRead == 1;
    }
    /// Number of the first event of the next page, as the log tells it.
    [[nodiscard]] int nextEvent() const;
    /// The request for the next page.
    [[nodiscard]] std::string moreEventsRequest(bool hideClasses) const;

    /// One more message in this read; failure 6 beyond 255.
    void countMessage();
    /// The first message of a new list.
    void startList();
    /// One more separator; failure 6 beyond 32767.
    void countResetEvent();
    /// A read of more events was accepted; failure 6 beyond 32767.
    void countRead();
    /// A read went well: the next page's indexes go on behind this one.
    void moveIndexBase(bool newList);
    /// The last message of a read, or an error in its place: ready for the next.
    void endRead();
    /// A read of more events broke off: the next one goes on behind what did arrive.
    void keepWhatArrived();
};

} // namespace quill
