#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace quill::shell {

/// @name Keys of events and of their classes.
///@{
inline constexpr const char* kEventNone          = "vx4400eventNone"; ///< behind the last event
inline constexpr const char* kEventObsolete      = "eventObsolete";
inline constexpr const char* kEventExternalReset = "vx4400eventExternalReset";

inline constexpr const char* kEventClassNone         = "vx4400eventClassNone";
inline constexpr const char* kEventClassError        = "vx4400eventClassError";
inline constexpr const char* kEventClassAlarm        = "vx4400eventClassAlarm";
inline constexpr const char* kEventClassWarning      = "vx4400eventClassWarning";
inline constexpr const char* kEventClassNotification = "vx4400eventClassNotification";
///@}

/// One entry of a device's event log.
struct DeviceEvent {
    std::string key;        ///< of the event's text
    std::string eventClass; ///< key of the class
    double      hours = 0;  ///< operation time at which it happened

    friend bool operator==(const DeviceEvent&, const DeviceEvent&) = default;
};

/// The memory of a device for its events: a ring, in which the newest overwrites the oldest. Events
/// are numbered from 0 as they come, so that a reader knows them again.
class EventRing {
public:
    /// The number of events that it holds, at least 1.
    explicit EventRing(std::size_t capacity);

    /// An event that comes again within `kChatterHours` makes its earlier entry obsolete, lest a
    /// condition at its limit drives all others out of sight. A reset stays: dates hang on it.
    void add(DeviceEvent event);
    void clear();

    [[nodiscard]] std::size_t size() const { return mEvents.size(); }
    /// The number that the next event gets.
    [[nodiscard]] std::int64_t next() const { return mNext; }
    /// The number of the oldest event that is held; `next` if there is none.
    [[nodiscard]] std::int64_t oldest() const;
    /// The event of this number, null if it is not held any more or not yet.
    [[nodiscard]] const DeviceEvent* find(std::int64_t number) const;

    static constexpr double kChatterHours = 0.01;

private:
    std::size_t             mCapacity;
    std::deque<DeviceEvent> mEvents; ///< oldest first
    std::int64_t            mNext = 0;
};

/// Reads a ring from the newest event to the oldest, in pages. The pages fit together however many
/// events happen meanwhile: what came since the start is left out, and what was overwritten since
/// is behind the end.
///
/// Behind the last event stands one that says so, with time 0 and class "none". The rest of its
/// page is obsolete, so that a reader throws it away: a page always is full, and whoever keeps
/// pages keeps nothing of an older log.
class EventReader {
public:
    /// The first page begins with the newest event that there is now.
    void               start(const EventRing& ring);
    [[nodiscard]] bool isStarted() const { return mIsStarted; }
    /// Events from `first` on, counted from 0 at the newest.
    [[nodiscard]] std::vector<DeviceEvent> page(const EventRing& ring, std::size_t first,
                                                std::size_t count) const;
    /// The place behind the last event, where the one that marks the end stands.
    [[nodiscard]] std::size_t end(const EventRing& ring) const;

private:
    bool         mIsStarted = false;
    std::int64_t mNext      = 0; ///< of the ring at the start
};

} // namespace quill::shell
