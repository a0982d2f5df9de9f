#pragma once

#include "shell/tour_guide.h"

namespace quill::shell {

/// Stations of the tour that are about the device's status. Each leaves the host online, with the
/// HART sample and no fault.
void watchTheStatus(TourGuide& guide);
void switchClassifications(TourGuide& guide);
void configureOnline(TourGuide& guide);
void configureOffline(TourGuide& guide);
void showTheOtherSample(TourGuide& guide);
void showStatusInAllLanguages(TourGuide& guide);

} // namespace quill::shell
