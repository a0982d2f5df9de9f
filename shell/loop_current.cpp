#include "shell/loop_current.h"

#include <algorithm>
#include <cmath>

namespace quill::shell {

LoopCurrent::LoopCurrent(double zeroError, double gainError)
    : mZeroError(zeroError), mGainError(gainError)
{
}

double LoopCurrent::measured() const
{
    return std::max(0.0, wanted() * (1 + mGainError) + mZeroError);
}

TrimProblem LoopCurrent::check(double shown) const
{
    if (!mTest) {
        return TrimProblem::noFixedCurrent;
    }
    // Not "less": what is no number is no measured current either.
    if (!(shown >= *mTest - kMostDeviation)) {
        return TrimProblem::tooSmall;
    }
    return shown > *mTest + kMostDeviation ? TrimProblem::tooLarge : TrimProblem::none;
}

TrimProblem LoopCurrent::trimZero(double shown)
{
    const TrimProblem problem = check(shown);
    if (problem == TrimProblem::none) {
        mZeroError -= shown - *mTest;
        mZeroPoint = *mTest;
    }
    return problem;
}

TrimProblem LoopCurrent::trimGain(double shown)
{
    const TrimProblem problem = check(shown);
    if (problem != TrimProblem::none) {
        return problem;
    }
    const double span = *mTest - mZeroPoint;
    if (std::abs(span) < kLeastSpan) {
        return TrimProblem::noFixedCurrent;
    }
    const double change = (shown - *mTest) / span;
    mGainError -= change;
    mZeroError += change * mZeroPoint;
    return problem;
}

} // namespace quill::shell
