// Whatever way a user takes through the calibration: once he has left it, the output follows the
// valve.
#include "action_window_fixture.h"

#include <gmock/gmock.h>

#include <random>

namespace quill::shell::test {
namespace {

using testing::HasSubstr;
using testing::Values;

constexpr double kFirstZero = 0.08; ///< errors of the output stage before it is trimmed
constexpr double kFirstGain = 0.006;

class CalibrationWalk : public ActionWindowTest {
protected:
    CalibrationWalk()
    {
        messenger().device().function<DevicePhysics>()->model().setDemand(12);
        messenger().device().advance(30);
        goOnline();
        window->showPage("mACalibration");
        dialogs.saveChoices.push_back(SaveChoice::discard);
    }

    [[nodiscard]] CtrMACalibration&  wizard() { return view<CtrMACalibration>("mACalibration"); }
    [[nodiscard]] const LoopCurrent& loop()
    {
        return messenger().device().function<CurrentOutput>()->loop();
    }
    /// What flows where 4 and 20 mA are wanted.
    [[nodiscard]] std::pair<double, double> ends()
    {
        LoopCurrent tried = loop();
        tried.setTest(4);
        const double low = tried.measured();
        tried.setTest(20);
        return {low, tried.measured()};
    }
    testing::AssertionResult followsTheValve()
    {
        auto& device = messenger().device();
        device.advance(1);
        const auto&  valve = device.function<DevicePhysics>()->model();
        const double asked = std::stod(inDevice("loopTestValue"));
        if (loop().test() || asked != 0 || valve.isOutputFixed() ||
            std::abs(loop().wanted() - valve.measure().outputCurrent) > 1e-9) {
            return testing::AssertionFailure()
                   << "it drives " << loop().wanted() << " mA, test " << loop().test().value_or(0)
                   << ", asked for " << asked << ", step " << wizard().miCalibrationStep();
        }
        return testing::AssertionSuccess();
    }

    /// One letter each: Next with what the meter shows, the same with a device that refuses, the
    /// same without waiting for the answer, Back.
    void walk(const std::string& way)
    {
        for (const char step : way) {
            switch (step) {
            case 'N': next(); break;
            case 'E':
                messenger().device().failNext("communicationError");
                next();
                break;
            case 'n': clickNext(); break;
            case 'B': userInput::click(shown(wizard().cmdBack)); break;
            default: FAIL() << step;
            }
        }
    }
    void clickNext()
    {
        const auto at = wizard().miCalibrationStep();
        if (at == 1 || at == 3) {
            userInput::type(shown(wizard().cteMACalibration[static_cast<std::size_t>(at)].txtBox),
                            QString::number(measuredLoopCurrent(messenger().device()), 'f', 3));
        }
        userInput::click(shown(wizard().cmdNext));
    }
    void next()
    {
        clickNext();
        waitForDevice();
        userInput::settle();
    }

    void leave(const std::string& how)
    {
        dialogs.answers     = {true, true};
        dialogs.saveChoices = {SaveChoice::discard, SaveChoice::discard};
        if (how == "page") {
            window->showPage("tuning");
            EXPECT_EQ(shownPage(), "tuning");
        } else if (how == "offline") {
            userInput::click(toolButton("online"));
            EXPECT_FALSE(messenger().isOnline());
        } else if (how == "close") {
            EXPECT_TRUE(window->close());
        } else if (how == "datafile") {
            EXPECT_TRUE(window->openDatafile(path()));
        } else if (how == "level") {
            chooseLevel(2);
            EXPECT_EQ(messenger().GetUserLevel(), 2);
        } else {
            FAIL() << how;
        }
        waitForDevice();
        userInput::settle();
    }
    void chooseLevel(int level)
    {
        auto& levels = *window->findChild<QComboBox*>("userLevel");
        levels.setCurrentIndex(levels.findData(level));
        emit levels.activated(levels.currentIndex());
    }
    /// To the beginning of the calibration, wherever the user has gone.
    void comeBack()
    {
        window->show();
        chooseLevel(kMaintenanceLevel);
        if (!messenger().isOnline()) {
            goOnline();
        }
        window->showPage("mACalibration");
        // From before its first step, or behind its last, Next leads to the first.
        if (wizard().miCalibrationStep() != 0) {
            walk("N");
        }
        ASSERT_EQ(wizard().miCalibrationStep(), 0);
    }
};

// --- Every way to every place, and from there away ---------------------------------------------

class Leaving : public CalibrationWalk, public testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(By, Leaving, Values("page", "offline", "close", "datafile", "level"),
                         [](const auto& how) { return std::string(how.param); });

TEST_P(Leaving, TheOutputFollowsTheValveWhereverTheUserWas)
{
    const std::vector<std::string> forwards       = {"N",     "NN",     "NNN",    "NNNN",
                                                     "NNNNN", "NNNNNN", "NNNNNNN"};
    const std::vector<std::string> backwards      = {"NB",     "NNB",   "NNBB",     "NNNB",
                                                     "NNNBBB", "NNNNB", "NNNNBBBB", "NNNNNNNB"};
    const std::vector<std::string> withErrors     = {"E",     "NE",     "NNE", "NNNE",
                                                     "NNNNE", "NNNNEE", "NBE", "EE"};
    const std::vector<std::string> withoutWaiting = {"n",  "nn",   "nnn",  "nnnn",
                                                     "nB", "nnBB", "nnnnn"};
    for (const auto& ways : {forwards, backwards, withErrors, withoutWaiting}) {
        for (const std::string& way : ways) {
            // A datafile takes its time; it is opened as a page is left otherwise.
            if (GetParam() == std::string("datafile") && way.size() > 3) {
                continue;
            }
            SCOPED_TRACE(way);
            walk(way);
            leave(GetParam());
            EXPECT_TRUE(followsTheValve());
            ASSERT_NO_FATAL_FAILURE(comeBack());
        }
    }
}

TEST_F(CalibrationWalk, WhoHasTrimmedNothingLeavesTheOutputAsItWas)
{
    const auto before = ends();
    for (const char* way : {"N", "NB", "NBN", "EE", "NE"}) {
        walk(way);
        leave("page");
        EXPECT_TRUE(followsTheValve()) << way;
        EXPECT_EQ(ends(), before) << way;
        comeBack();
    }
}

TEST_F(CalibrationWalk, WhoHasTrimmedTheLowEndKeepsThat)
{
    walk("NN");
    const auto trimmed = ends();
    EXPECT_NEAR(trimmed.first, 4, 0.001);
    EXPECT_NEAR(trimmed.second, 20 * (1 + kFirstGain) + kFirstZero - 0.104, 0.001);
    walk("NB");
    leave("offline");
    EXPECT_EQ(ends(), trimmed);
    EXPECT_TRUE(followsTheValve());
}

TEST_F(CalibrationWalk, WhoSteppedBackToTheBeginningIsNotAskedAndYetTheCurrentEnds)
{
    walk("NB");
    dialogs.boxes.clear();
    window->showPage("tuning");
    waitForDevice();
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_TRUE(followsTheValve());
    const auto before = responses.size();
    window->showPage("mACalibration");
    window->showPage("tuning");
    waitForDevice();
    EXPECT_EQ(responses.size(), before) << "nothing is sent where nothing flows";
}

TEST_F(CalibrationWalk, AnEndThatTheDeviceDidNotHearIsToldAndTriedAgain)
{
    for (const std::string way : {"NN", "NB"}) {
        walk(way);
        dialogs.boxes.clear();
        dialogs.answers = {true};
        messenger().device().failNext("communicationError");
        window->showPage("tuning");
        waitForDevice();
        userInput::settle();
        EXPECT_TRUE(loop().test().has_value());
        ASSERT_FALSE(dialogs.boxes.empty());
        EXPECT_THAT(dialogs.boxes.back().text.toStdString(), HasSubstr("does not answer"));
        userInput::click(toolButton("online"));
        EXPECT_FALSE(messenger().isOnline());
        EXPECT_TRUE(followsTheValve()) << "before the connection goes";
        comeBack();
    }
}

TEST_F(CalibrationWalk, ADeviceThatNeverTakesTheEndHoldsNobodyBack)
{
    walk("N");
    messenger().device().failAlways("loopTestValue", "communicationError");
    leave("page");
    leave("offline");
    leave("close");
    EXPECT_TRUE(loop().test().has_value());
}

TEST_F(CalibrationWalk, WhoDoesNotWantToLeaveKeepsHisLevel)
{
    walk("N");
    auto& levels    = *window->findChild<QComboBox*>("userLevel");
    dialogs.answers = {false};
    chooseLevel(1);
    EXPECT_EQ(messenger().GetUserLevel(), kMaintenanceLevel);
    EXPECT_EQ(levels.currentData().toInt(), kMaintenanceLevel);
    EXPECT_EQ(loop().test(), 4);
    EXPECT_EQ(wizard().miCalibrationStep(), 1);
}

TEST_F(CalibrationWalk, AStepThatIsRefusedIsRepeatedAndTheRunGoesOn)
{
    for (int refused = 0; refused < 5; ++refused) {
        SCOPED_TRACE(refused);
        walk(std::string(static_cast<std::size_t>(refused), 'N'));
        ASSERT_EQ(wizard().miCalibrationStep(), refused);
        dialogs.boxes.clear();
        walk("E");
        EXPECT_EQ(wizard().miCalibrationStep(), refused) << "one step back";
        EXPECT_EQ(dialogs.boxes.size(), 1U) << "and the user is told";
        walk(std::string(5 - static_cast<std::size_t>(refused), 'N'));
        ASSERT_EQ(wizard().miCalibrationStep(), 5);
        EXPECT_TRUE(followsTheValve());
        EXPECT_NEAR(ends().first, 4, 0.002);
        EXPECT_NEAR(ends().second, 20, 0.002);
        walk("N");
    }
}

TEST_F(CalibrationWalk, RandomWalksEndWithAnOutputThatFollows)
{
    std::mt19937 random{20240506}; // NOLINT(bugprone-random-generator-seed,cert-msc51-cpp)
    for (int round = 0; round < 20; ++round) {
        std::string way;
        for (auto steps = 1 + random() % 9; steps > 0; --steps) {
            way += "NNNNBBEn"[random() % 8];
        }
        SCOPED_TRACE(way);
        walk(way);
        leave(random() % 2 == 0 ? "page" : "offline");
        ASSERT_TRUE(followsTheValve());
        ASSERT_NO_FATAL_FAILURE(comeBack());
    }
}

} // namespace
} // namespace quill::shell::test
