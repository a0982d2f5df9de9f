#pragma once

#include "shell/device_function.h"
#include "shell/event_ring.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quill::shell {

/// An event from before the simulation began.
struct PastEvent {
    std::string key;
    std::string eventClass;
    double      hoursAgo = 0; ///< of operation time
};
/// The "event" elements of a text with their attributes `event`, `class` and `hoursAgo`, in their
/// order. Failure for a text that is no document, and for an event that lacks an attribute or whose
/// time is no number.
[[nodiscard]] std::vector<PastEvent> readEventHistory(const std::string& xml);

/// The event log of a device, and the operation time that its entries carry.
///
/// A HART device is asked for the group "eventLog", which gives the newest 30 events from index 00
/// on, and goes on with "eventLogContinued" at the `eventLogIndex` that the request tells; every
/// read comes in three messages of ten events. A continued read leaves the classes out unless the
/// request names `eventLogClass`.
///
/// A fieldbus device answers the group with 25 events from index 01 on, and each request for items
/// "eventLogNext..." with the 25 behind those of the last one; events and classes come in one
/// message, times in another.
class DeviceEvents : public DeviceFunction {
public:
    /// The history may be in any order; what would lie before the device's first hour is left out.
    explicit DeviceEvents(std::vector<PastEvent> history = {}, std::size_t capacity = 120);

    /// Something happened now.
    void log(const std::string& key, const std::string& eventClass = kEventClassNotification);
    void clear() { mRing.clear(); }

    /// Hours for which the device has had power in all its life.
    [[nodiscard]] double           operationTime() const { return mHours; }
    [[nodiscard]] const EventRing& ring() const { return mRing; }

    void                                    start(SimulatedDevice& device) override;
    std::optional<std::vector<std::string>> answer(SimulatedDevice&     device,
                                                   const DeviceRequest& request) override;
    void written(SimulatedDevice& device, const std::vector<std::string>& parameters) override;
    void advance(SimulatedDevice& device, double seconds) override;
    void conditionChanged(SimulatedDevice& device, const std::string& condition,
                          bool active) override;

private:
    class Answer;

    std::vector<std::string> answerHart(const SimulatedDevice& device, const DeviceRequest& request,
                                        std::size_t first, bool withClasses) const;
    std::vector<std::string> answerHartContinued(const SimulatedDevice& device,
                                                 const DeviceRequest&   request);
    std::vector<std::string> answerFieldbus(const SimulatedDevice& device,
                                            const DeviceRequest&   request);
    void                     showOperationTime(SimulatedDevice& device) const;

    std::vector<PastEvent> mHistory;
    EventRing              mRing;
    EventReader            mReader;
    std::size_t            mNextPage = 0; ///< where a fieldbus device goes on
    double                 mHours    = 0;
};

/// The keys of the events that a condition's coming and going make: "statusValveStuck" gives
/// "vx4400eventValveStuck" and "vx4400eventValveStuckOff".
[[nodiscard]] std::string eventOfCondition(const std::string& condition, bool active);

} // namespace quill::shell
