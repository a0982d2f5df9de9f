#pragma once

#include "shell/event_ring.h"

#include <string>
#include <vector>

namespace quill::shell::test {

inline std::vector<std::string> keys(const std::vector<DeviceEvent>& events)
{
    std::vector<std::string> all;
    for (const DeviceEvent& one : events) {
        all.push_back(one.key);
    }
    return all;
}

/// Oldest first.
inline std::vector<std::string> keys(const EventRing& ring)
{
    std::vector<std::string> all;
    for (auto number = ring.oldest(); number < ring.next(); ++number) {
        all.push_back(ring.find(number)->key);
    }
    return all;
}

} // namespace quill::shell::test
