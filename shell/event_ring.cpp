#include "shell/event_ring.h"

#include <algorithm>
#include <utility>

namespace quill::shell {

EventRing::EventRing(std::size_t capacity) : mCapacity(std::max<std::size_t>(capacity, 1)) {}

void EventRing::add(DeviceEvent event)
{
    if (event.key != kEventExternalReset) {
        // Events come in the order of their time: nothing behind the first old one is new.
        for (auto earlier = mEvents.rbegin();
             earlier != mEvents.rend() && event.hours - earlier->hours <= kChatterHours;
             ++earlier) {
            if (earlier->key == event.key) {
                earlier->key = kEventObsolete;
            }
        }
    }
    if (mEvents.size() == mCapacity) {
        mEvents.pop_front();
    }
    mEvents.push_back(std::move(event));
    ++mNext;
}

void EventRing::clear()
{
    mEvents.clear();
}

std::int64_t EventRing::oldest() const
{
    return mNext - static_cast<std::int64_t>(mEvents.size());
}

const DeviceEvent* EventRing::find(std::int64_t number) const
{
    return number < oldest() || number >= mNext
               ? nullptr
               : &mEvents[static_cast<std::size_t>(number - oldest())];
}

void EventReader::start(const EventRing& ring)
{
    mIsStarted = true;
    mNext      = ring.next();
}

std::size_t EventReader::end(const EventRing& ring) const
{
    return static_cast<std::size_t>(std::max<std::int64_t>(mNext - ring.oldest(), 0));
}

std::vector<DeviceEvent> EventReader::page(const EventRing& ring, std::size_t first,
                                           std::size_t count) const
{
    const std::size_t        last = end(ring);
    std::vector<DeviceEvent> events;
    first = std::min(first, last + 1); // all places behind the end are alike
    for (std::size_t place = first; place < first + count; ++place) {
        if (place < last) {
            events.push_back(*ring.find(mNext - 1 - static_cast<std::int64_t>(place)));
        } else {
            events.push_back({place == last ? kEventNone : kEventObsolete, kEventClassNone, 0});
        }
    }
    return events;
}

} // namespace quill::shell
