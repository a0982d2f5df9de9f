#pragma once

#include "shell/tour_guide.h"

namespace quill::shell {

// The tour's way past options, event log, device actions and settings, in this order.
void editTheOptions(TourGuide& guide);
void readTheEventLog(TourGuide& guide);
void resetTheDevice(TourGuide& guide);
void changeTheAddress(TourGuide& guide);
void calibrateTheOutput(TourGuide& guide);
void walkAwayFromTheCalibration(TourGuide& guide);
void chooseAModule(TourGuide& guide);
void changeTheSettings(TourGuide& guide);
void showActionsInAllLanguages(TourGuide& guide);

} // namespace quill::shell
