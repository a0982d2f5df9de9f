#include "shell/device_signal.h"

#include <algorithm>
#include <cmath>

namespace quill::shell {

namespace {

/// Flow at full travel over flow at none, of an equal percentage trim.
constexpr double kRangeability = 50;

double onCurve(double signal, const CharacteristicCurve& curve)
{
    std::pair<double, double> from{0, 0};
    for (const auto& to : curve) {
        if (signal <= to.first) {
            const double width = to.first - from.first;
            return width > 0
                       ? from.second + (to.second - from.second) * (signal - from.first) / width
                       : to.second;
        }
        from = to;
    }
    const double width = 100 - from.first;
    return width > 0 ? from.second + (100 - from.second) * (signal - from.first) / width : 100;
}

} // namespace

double signalOfCurrent(double current, double lowCurrent, double highCurrent, bool signalCloses)
{
    double signal = current < lowCurrent ? 0 : 100;
    if (highCurrent != lowCurrent) {
        signal = std::clamp(100 * (current - lowCurrent) / (highCurrent - lowCurrent), 0.0, 100.0);
    }
    return signalCloses ? 100 - signal : signal;
}

double travelOfSignal(double signal, Characteristic characteristic,
                      const CharacteristicCurve& curve)
{
    const double part = std::clamp(signal / 100, 0.0, 1.0);
    switch (characteristic) {
    case Characteristic::equalPercentage:
        return 100 * (std::pow(kRangeability, part) - 1) / (kRangeability - 1);
    case Characteristic::quickOpening:
        return 100 * (1 - (std::pow(kRangeability, 1 - part) - 1) / (kRangeability - 1));
    case Characteristic::userCurve: return onCurve(100 * part, curve);
    case Characteristic::linear: break;
    }
    return 100 * part;
}

} // namespace quill::shell
