#pragma once

#include <utility>
#include <vector>

/// How an input current becomes the set point of the valve. Signals and travels are in percent.
namespace quill::shell {

enum class Characteristic { linear, equalPercentage, quickOpening, userCurve };

/// How far the current lies between the two that mean 0 and 100 %; outside it is the nearer of
/// them. Equal currents make a switch: below them 0 %.
[[nodiscard]] double signalOfCurrent(double current, double lowCurrent, double highCurrent,
                                     bool signalCloses);

/// Pairs of input and output, rising in the input, between (0, 0) and (100, 100).
using CharacteristicCurve = std::vector<std::pair<double, double>>;

/// The travel that a signal asks for. All characteristics take 0 to 0 and 100 to 100; a curve is
/// used for `userCurve` alone, with straight lines between its points.
[[nodiscard]] double travelOfSignal(double signal, Characteristic characteristic,
                                    const CharacteristicCurve& curve = {});

} // namespace quill::shell
