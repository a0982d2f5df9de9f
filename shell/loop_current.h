#pragma once

#include <optional>

namespace quill::shell {

/// What keeps a current output from being trimmed.
enum class TrimProblem {
    none,
    noFixedCurrent, ///< no test current flows, or the two of a trim lie too close together
    tooSmall,       ///< the measured current is so far below the test current that it is a mistake
    tooLarge,       ///< or above it
};

/// The current output of a device: what it means to drive, and what really flows. Currents in mA.
///
/// The stage that makes the current has an error that the device cannot see: where a current c is
/// wanted, c * (1 + gain error) + zero error flows. A trim tells the device what a meter shows
/// while it drives a test current, and the device takes the difference back from then on.
class LoopCurrent {
public:
    /// A stage with these errors, not yet trimmed; the gain's is a fraction.
    LoopCurrent(double zeroError, double gainError);

    /// Drives this test current, until it is told another one or nothing, which lets the output
    /// follow again.
    void                                setTest(std::optional<double> current) { mTest = current; }
    [[nodiscard]] std::optional<double> test() const { return mTest; }
    /// What the output follows when no test current is set.
    void follow(double current) { mFollowed = current; }

    /// What the device means to drive.
    [[nodiscard]] double wanted() const { return mTest.value_or(mFollowed); }
    /// What a meter in the loop shows.
    [[nodiscard]] double measured() const;

    /// Takes what a meter shows at the present test current: all currents move by the difference.
    [[nodiscard]] TrimProblem trimZero(double shown);
    /// The same at another test current: the current of the zero trim (4 mA if there was none)
    /// stays as it is, and the others move in proportion to their distance from it. The two lie at
    /// least `kLeastSpan` apart.
    [[nodiscard]] TrimProblem trimGain(double shown);

    static constexpr double kLeastSpan     = 8;
    static constexpr double kMostDeviation = 2; ///< between test current and meter

private:
    [[nodiscard]] TrimProblem check(double shown) const;

    double                mZeroError;
    double                mGainError;
    double                mZeroPoint = 4; ///< test current of the zero trim
    std::optional<double> mTest;
    double                mFollowed = 4;
};

} // namespace quill::shell
