#include "shell/device_actions.h"

#include "actions/CtrMACalibration.h"
#include "actions/CtrReset.h"
#include "device_host.h"
#include "device_requests.h"
#include "shell/device_events.h"
#include "support/toolkit_scope.h"

namespace quill::shell {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

std::string valueOf(const SimulatedDevice& device, const std::string& parameter)
{
    return device.find(parameter)->value;
}

std::vector<std::string> eventsSince(const SimulatedDevice& device, std::int64_t number)
{
    const EventRing&         ring = device.function<DeviceEvents>()->ring();
    std::vector<std::string> all;
    for (; number < ring.next(); ++number) {
        all.push_back(ring.find(number)->key);
    }
    return all;
}

std::int64_t nextEvent(const SimulatedDevice& device)
{
    return device.function<DeviceEvents>()->ring().next();
}

// --- The current output -----------------------------------------------------------------------

class CurrentOutputTest : public testing::Test {
protected:
    std::vector<std::string> write(const std::string& parameter, const std::string& value,
                                   const std::string& unit = "mA")
    {
        return outcome(
            ask(device, request("mACalibration", "write", item(parameter, unit, "floatVal", value)))
                .at(0));
    }
    double meter() { return measuredLoopCurrent(device); }
    /// What the user reads and types.
    std::string reading() { return std::to_string(meter()); }

    SimulatedDevice device = fullDevice("vx4400h");
};

TEST_F(CurrentOutputTest, FollowsTheValveWithTheErrorsOfItsStage)
{
    device.advance(10);
    const double wanted = model(device).measure().outputCurrent;
    EXPECT_GT(wanted, 4);
    EXPECT_NEAR(meter(), wanted * 1.006 + 0.08, 1e-9);
}

TEST_F(CurrentOutputTest, DrivesATestCurrentUntilZeroEndsIt)
{
    EXPECT_THAT(write("loopTestValue", "4"), ElementsAre("", "loopTestValue"));
    EXPECT_NEAR(meter(), 4 * 1.006 + 0.08, 1e-9);
    device.advance(5);
    EXPECT_NEAR(meter(), 4 * 1.006 + 0.08, 1e-9);
    EXPECT_EQ(reported(device, "statusLoopCurrentFixed"), "1");

    EXPECT_THAT(write("loopTestValue", "20"), ElementsAre("", "loopTestValue"));
    EXPECT_NEAR(meter(), 20 * 1.006 + 0.08, 1e-9);
    EXPECT_THAT(write("loopTestValue", "0.0"), ElementsAre("", "loopTestValue"));
    device.advance(5);
    EXPECT_EQ(device.function<CurrentOutput>()->loop().test(), std::nullopt);
    EXPECT_EQ(reported(device, "statusLoopCurrentFixed"), "0");
    EXPECT_NEAR(meter(), model(device).measure().outputCurrent * 1.006 + 0.08, 1e-9);
}

TEST_F(CurrentOutputTest, CalibratedItDrivesWhatItMeansTo)
{
    const auto before = nextEvent(device);
    EXPECT_THAT(write("loopTestValue", "4"), ElementsAre("", "loopTestValue"));
    EXPECT_THAT(write("loopCurrentZero", reading()), ElementsAre("", "loopCurrentZero"));
    EXPECT_NEAR(meter(), 4, 1e-5);
    EXPECT_THAT(write("loopTestValue", "20"), ElementsAre("", "loopTestValue"));
    EXPECT_NEAR(meter(), 20.096, 1e-5);
    EXPECT_THAT(write("loopCurrentGain", reading()), ElementsAre("", "loopCurrentGain"));
    EXPECT_NEAR(meter(), 20, 1e-5);
    EXPECT_THAT(write("loopTestValue", "12"), ElementsAre("", "loopTestValue"));
    EXPECT_NEAR(meter(), 12, 1e-5);
    EXPECT_THAT(eventsSince(device, before), Contains("vx4400eventCurrentCalibrated"));

    restartDevice(device);
    device.advance(1);
    EXPECT_NEAR(meter(), model(device).measure().outputCurrent, 1e-5) << "it is kept";
}

TEST_F(CurrentOutputTest, TakesAnotherUnit)
{
    EXPECT_THAT(write("loopTestValue", "0.02", "A"), ElementsAre("", "loopTestValue"));
    EXPECT_EQ(device.function<CurrentOutput>()->loop().test(), 20);
    EXPECT_THAT(write("loopCurrentZero", "0.0201", "A"), ElementsAre("", "loopCurrentZero"));
    EXPECT_NEAR(meter(), 20 * 1.006 + 0.08 - 0.1, 1e-5);
}

TEST_F(CurrentOutputTest, RefusesWhatMakesNoSense)
{
    const auto refused = [](const char* code, const char* item) { return ElementsAre(code, item); };
    EXPECT_THAT(write("loopCurrentZero", "4"),
                refused("hartCmdErrIncorrectLoopCurrentMode", "loopCurrentZero"));
    EXPECT_THAT(write("loopTestValue", "2"),
                refused("hartCmdErrPassedParameterTooSmall", "loopTestValue"));
    EXPECT_THAT(write("loopTestValue", "-4"),
                refused("hartCmdErrPassedParameterTooSmall", "loopTestValue"));
    EXPECT_THAT(write("loopTestValue", "22.6"),
                refused("hartCmdErrPassedParameterTooLarge", "loopTestValue"));
    EXPECT_THAT(write("loopTestValue", "four"), refused(kErrWrongValue, "loopTestValue"));
    EXPECT_THAT(write("loopTestValue", "4", "bar"), refused(kErrWrongValue, "loopTestValue"));
    EXPECT_EQ(device.function<CurrentOutput>()->loop().test(), std::nullopt);
    EXPECT_EQ(valueOf(device, "loopTestValue"), "0");

    EXPECT_THAT(write("loopTestValue", "4"), ElementsAre("", "loopTestValue"));
    const double before = meter();
    EXPECT_THAT(write("loopCurrentZero", "1.9"),
                refused("hartCmdErrPassedParameterTooSmall", "loopCurrentZero"));
    EXPECT_THAT(write("loopCurrentZero", "6.1"),
                refused("hartCmdErrPassedParameterTooLarge", "loopCurrentZero"));
    EXPECT_THAT(write("loopCurrentZero", ""), refused(kErrWrongValue, "loopCurrentZero"));
    EXPECT_THAT(write("loopCurrentGain", "4.1"),
                refused("hartCmdErrIncorrectLoopCurrentMode", "loopCurrentGain"));
    EXPECT_EQ(meter(), before);
    EXPECT_EQ(valueOf(device, "loopCurrentZero"), "");
}

TEST_F(CurrentOutputTest, InMultidropModeItStandsAtFour)
{
    EXPECT_THAT(write("loopTestValue", "20"), ElementsAre("", "loopTestValue"));
    ASSERT_FALSE(ask(device, request("hartAddress", "write",
                                     item("pollingAddress", "noUnit", "integerVal", "3")))
                     .empty());
    EXPECT_NEAR(meter(), 4 * 1.006 + 0.08, 1e-9);
    EXPECT_THAT(write("loopTestValue", "20"),
                ElementsAre("hartCmdErrIncorrectLoopCurrentMode", "loopTestValue"));
    device.advance(5);
    EXPECT_NEAR(meter(), 4 * 1.006 + 0.08, 1e-9);
    ASSERT_FALSE(ask(device, request("hartAddress", "write",
                                     item("pollingAddress", "noUnit", "integerVal", "0")))
                     .empty());
    device.advance(5);
    EXPECT_NEAR(meter(), model(device).measure().outputCurrent * 1.006 + 0.08, 1e-9);
}

TEST_F(CurrentOutputTest, ARestartEndsTheTestCurrent)
{
    EXPECT_THAT(write("loopTestValue", "20"), ElementsAre("", "loopTestValue"));
    restartDevice(device);
    EXPECT_EQ(device.function<CurrentOutput>()->loop().test(), std::nullopt);
    EXPECT_EQ(valueOf(device, "loopTestValue"), "0");
}

TEST_F(CurrentOutputTest, AFieldbusDeviceHasNoLoop)
{
    EXPECT_EQ(measuredLoopCurrent(fullDevice("vx4400f")), 0);
}

TEST_F(CurrentOutputTest, TheWizardLeadsThroughTheCalibration)
{
    const quill::test::ToolkitScope toolkit;
    DeviceHost                      host{device};
    CtrMACalibration                wizard{{.Name = "wizard", .Tag = "maCalibration"}};
    wizard.SetMessenger(&host);
    wizard.Localize(host.texts);
    wizard.SetOfflineData(documents::openText(sampleText("vx4400h.xml")));
    const auto next = [&] {
        wizard.cmdNext.click();
        host.deliver(wizard);
    };

    next();
    EXPECT_NEAR(meter(), 4.104, 1e-6);
    wizard.cteMACalibration[1].txtBox.type("4.104");
    next();
    next();
    EXPECT_NEAR(meter(), 20.096, 1e-6);
    wizard.cteMACalibration[3].txtBox.type("20.096");
    next();
    EXPECT_EQ(wizard.miCalibrationStep(), 4);
    EXPECT_NEAR(meter(), 20, 1e-5);
    next();
    EXPECT_EQ(wizard.miCalibrationStep(), 5);
    EXPECT_EQ(device.function<CurrentOutput>()->loop().test(), std::nullopt);
    EXPECT_THAT(host.callsTo("ReportError"), Not(Contains(HasSubstr("Calibration"))));
    EXPECT_THAT(host.callsTo("ShowMessage"), SizeIs(0));
}

TEST_F(CurrentOutputTest, ARefusalTakesTheWizardOneStepBack)
{
    const quill::test::ToolkitScope toolkit;
    DeviceHost                      host{device};
    CtrMACalibration                wizard{{.Name = "wizard", .Tag = "maCalibration"}};
    wizard.SetMessenger(&host);
    wizard.SetOfflineData(documents::openText(sampleText("vx4400h.xml")));
    wizard.cmdNext.click();
    host.deliver(wizard);
    wizard.cteMACalibration[1].txtBox.type("9");
    wizard.cmdNext.click();
    EXPECT_EQ(wizard.miCalibrationStep(), 2);
    host.deliver(wizard);
    EXPECT_EQ(wizard.miCalibrationStep(), 1);
    EXPECT_THAT(host.callsTo("ShowMessage"), SizeIs(1));
}

// --- Resets -----------------------------------------------------------------------------------

class ResetsTest : public testing::Test {
protected:
    std::vector<IXMLDOMDocument> reset(const std::string& parameter, int code)
    {
        return ask(device, request("reset", "write",
                                   item(parameter, "noUnit", "integerVal", std::to_string(code))));
    }
    void write(const std::string& parameter, const std::string& unit, const std::string& type,
               const std::string& value)
    {
        EXPECT_THAT(
            outcome(ask(device, request("x", "write", item(parameter, unit, type, value))).at(0)),
            ElementsAre("", parameter));
    }

    SimulatedDevice device = fullDevice("vx4400h");
};

TEST_F(ResetsTest, TheStatusForgetsWhatIsOver)
{
    status(device).setPresent(device, "statusPilotStageFailure", true);
    model(device).setFault(Fault::coverOpen, true);
    device.advance(1);
    const auto before = nextEvent(device);
    const auto parts  = ask(device, "<?xml version=\"1.0\"?><dtm xmlns=\"x-schema:"
                                     "QVXCommunicationSchema.xml\"><communicationRequest "
                                     "name=\"resetStatus\" access=\"act\" datasetSave=\"0\">\r\n"
                                     "</communicationRequest></dtm>");
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_THAT(outcome(parts[0]), ElementsAre(""));
    EXPECT_EQ(documents::responseAttribute(parts[0], "name"), "resetStatus");
    EXPECT_EQ(documents::responseAttribute(parts[0], "access"), "act");
    EXPECT_EQ(documents::responseAttribute(parts[0], "isFinal"), "1");
    EXPECT_EQ(reported(device, "statusPilotStageFailure"), "0");
    EXPECT_EQ(reported(device, "statusCoverOpen"), "1") << "the cover is still open";
    EXPECT_THAT(eventsSince(device, before),
                ElementsAre("vx4400eventPilotStageFailureOff", "vx4400eventStatusReset"));
}

TEST_F(ResetsTest, TheStatusCanBeResetByItsCodeToo)
{
    status(device).setPresent(device, "statusPilotStageFailure", true);
    const auto parts = reset("resetStatus", 0);
    EXPECT_EQ(valueIn(parts, "resetStatus"), "-1");
    EXPECT_EQ(reported(device, "statusPilotStageFailure"), "0");
}

TEST_F(ResetsTest, AnActThatFailsChangesNothing)
{
    status(device).setPresent(device, "statusPilotStageFailure", true);
    device.failAlways("resetStatus", "hartCmdErrAccessRestricted");
    EXPECT_THAT(outcome(ask(device, request("resetStatus", "act")).at(0)),
                ElementsAre("hartCmdErrAccessRestricted"));
    EXPECT_EQ(reported(device, "statusPilotStageFailure"), "1");
}

TEST_F(ResetsTest, CountersGoToZero)
{
    ASSERT_NE(valueOf(device, "cycleCounter"), "0");
    const std::string hours  = valueOf(device, "operatingTime");
    const auto        before = nextEvent(device);
    const auto        parts  = reset("resetDiagnosticsCode", Resets::counters);
    EXPECT_THAT(outcome(parts.at(0)), ElementsAre("", "resetDiagnosticsCode"));
    EXPECT_EQ(valueIn(parts, "resetDiagnosticsCode"), "-1") << "it is done";
    EXPECT_EQ(valueOf(device, "cycleCounter"), "0");
    EXPECT_EQ(valueOf(device, "travelSum"), "0");
    EXPECT_EQ(valueOf(device, "operatingTime"), hours) << "a device does not grow younger";
    EXPECT_THAT(eventsSince(device, before), ElementsAre("vx4400eventCountersReset"));
}

TEST_F(ResetsTest, ExtremesBecomeWhatIsNow)
{
    // The device keeps them in degF; one in another unit is converted.
    ASSERT_NE(valueOf(device, "maximumTemperature"), valueOf(device, "deviceTemperature"));
    const auto before = nextEvent(device);
    (void)reset("resetDiagnosticsCode", Resets::extremes);
    EXPECT_EQ(valueOf(device, "maximumTemperature"), valueOf(device, "deviceTemperature"));
    EXPECT_EQ(valueOf(device, "minimumTemperature"), valueOf(device, "deviceTemperature"));
    EXPECT_THAT(eventsSince(device, before), ElementsAre("vx4400eventExtremesReset"));
}

TEST_F(ResetsTest, ASensorThatHasFailedLeavesTheExtremes)
{
    const std::string most = valueOf(device, "maximumTemperature");
    device.set("deviceTemperature", "NaN");
    (void)reset("resetDiagnosticsCode", Resets::extremes);
    EXPECT_NEAR(std::stod(valueOf(device, "maximumTemperature")), std::stod(most), 1e-3);
}

TEST_F(ResetsTest, TheEventLogBeginsAnewWithItsOwnClearing)
{
    (void)reset("resetDiagnosticsCode", Resets::eventLog);
    EXPECT_EQ(device.function<DeviceEvents>()->ring().size(), 1U);
    EXPECT_EQ(valueIn(ask(device, request("eventLog", "read")), "eventLogEvent00"),
              "vx4400eventLogReset");
}

TEST_F(ResetsTest, AllDiagnosticsAreAllOfThem)
{
    (void)reset("resetDiagnosticsCode", Resets::allDiagnostics);
    EXPECT_EQ(valueOf(device, "cycleCounter"), "0");
    EXPECT_EQ(valueOf(device, "maximumTemperature"), valueOf(device, "deviceTemperature"));
    EXPECT_THAT(
        eventsSince(device, device.function<DeviceEvents>()->ring().oldest()),
        ElementsAre("vx4400eventLogReset", "vx4400eventCountersReset", "vx4400eventExtremesReset"));
}

TEST_F(ResetsTest, TuningGoesBackToItsDefaultsAndNothingElse)
{
    write("tuningSet", "noUnit", "integerVal", "3");
    write("proportionalGain", "noUnit", "floatVal", "9");
    write("alarmHighTravel", "%", "floatVal", "91");
    const double before = model(device).settings().gain;
    EXPECT_EQ(before, 9);
    const auto number = nextEvent(device);
    (void)reset("resetParametersCode", Resets::tuning);
    EXPECT_EQ(valueOf(device, "proportionalGain"), "2.4");
    EXPECT_EQ(valueOf(device, "tuningSet"), "1");
    EXPECT_EQ(valueOf(device, "alarmHighTravel"), "91");
    EXPECT_EQ(model(device).settings().gain, 2.4) << "the valve is controlled by it";
    EXPECT_THAT(eventsSince(device, number), Contains("vx4400eventTuningReset"));
}

TEST_F(ResetsTest, AlarmSettingsGoBackInTheDevicesUnits)
{
    write("alarmHighTemperature", "degC", "floatVal", "50");
    write("alarmHighTravel", "%", "floatVal", "91");
    (void)reset("resetParametersCode", Resets::alarms);
    EXPECT_EQ(valueOf(device, "alarmHighTravel"), "98");
    EXPECT_EQ(device.find("alarmHighTemperature")->unit, "degF");
    EXPECT_NEAR(std::stod(valueOf(device, "alarmHighTemperature")), 158, 1e-3);
}

TEST_F(ResetsTest, FactorySettingsLeaveTheDeviceWhoItIs)
{
    write("tag", "noUnit", "stringVal", "FV-9");
    write("pollingAddress", "noUnit", "integerVal", "5");
    write("filterTime", "s", "floatVal", "9");
    write("supplyLowPressure", "bar", "floatVal", "2");
    (void)reset("resetParametersCode", Resets::factorySettings);
    EXPECT_EQ(valueOf(device, "filterTime"), "0.250");
    EXPECT_NEAR(std::stod(valueOf(device, "supplyLowPressure")), 50.76, 0.01);
    EXPECT_EQ(valueOf(device, "tag"), "FV-9");
    EXPECT_EQ(valueOf(device, "pollingAddress"), "5");
    EXPECT_EQ(reported(device, "statusHARTConfigurationChanged"), "1");
}

TEST_F(ResetsTest, ARestartIsAnExternalReset)
{
    ASSERT_EQ(reported(device, "statusColdStart"), "0");
    const auto before = nextEvent(device);
    const auto parts  = reset("resetParametersCode", Resets::restart);
    EXPECT_EQ(valueIn(parts, "resetParametersCode"), "-1");
    EXPECT_THAT(eventsSince(device, before), ElementsAre(kEventExternalReset));
    EXPECT_EQ(reported(device, "statusColdStart"), "1");
    EXPECT_EQ(reported(device, "statusColdStart"), "0") << "it has been seen";
}

TEST_F(ResetsTest, NothingResetsNothing)
{
    const auto before = nextEvent(device);
    EXPECT_THAT(outcome(reset("resetDiagnosticsCode", -1).at(0)),
                ElementsAre("", "resetDiagnosticsCode"));
    EXPECT_THAT(outcome(reset("resetParametersCode", 77).at(0)),
                ElementsAre(kErrWrongValue, "resetParametersCode"));
    EXPECT_EQ(nextEvent(device), before);
}

TEST_F(ResetsTest, AParameterThatLacksAnAttributeIsNoSetting)
{
    const auto datafile = documents::openText(sampleText("vx4400h.xml"));
    for (const char* attribute : {"value", "unit", "access"}) {
        documents::findParameter(datafile, "filterTime")
            .get_attributes()
            .removeNamedItem(attribute);
        EXPECT_NO_THROW(device = buildDevice(datafile)) << attribute;
    }
    write("integralTime", "s", "floatVal", "9");
    (void)reset("resetParametersCode", Resets::factorySettings);
    EXPECT_EQ(valueOf(device, "integralTime"), "0.8");
}

TEST_F(ResetsTest, AFieldbusDeviceCanBeResetToo)
{
    device = fullDevice("vx4400f");
    (void)reset("resetDiagnosticsCode", Resets::allDiagnostics);
    EXPECT_EQ(valueOf(device, "cycleCounter"), "0");
    (void)reset("resetParametersCode", Resets::restart);
    (void)reset("resetParametersCode", Resets::factorySettings);
    EXPECT_EQ(reported(device, "statusConfigurationChanged"), "1");
}

TEST_F(ResetsTest, TheViewResetsWhatTheUserPicks)
{
    const quill::test::ToolkitScope toolkit;
    DeviceHost                      host{device};
    CtrReset                        view{{.Name = "reset", .Tag = "reset"}};
    view.SetMessenger(&host);
    view.Localize(host.texts);
    view.SetOfflineData(documents::openText(sampleText("vx4400h.xml")));
    host.ViewSetCommunicationMode.raise(kOnline);
    for (const CtrComboEdit& row : view.cceReset) {
        EXPECT_EQ(row.Text(), "resetNothing");
    }
    view.cmdReset.click();
    EXPECT_THAT(host.sent, SizeIs(0)) << "nothing has been picked";

    status(device).setPresent(device, "statusPilotStageFailure", true);
    view.cceReset[0].cboBox.choose(1);
    view.cceReset[1].cboBox.choose(1);
    view.cceReset[2].cboBox.choose(4);
    const auto before = nextEvent(device);
    view.cmdReset.click();
    EXPECT_THAT(host.sent, SizeIs(3));
    EXPECT_TRUE(view.cceReset[1].Modified());
    host.deliver(view);
    for (const CtrComboEdit& row : view.cceReset) {
        EXPECT_FALSE(row.Modified());
    }
    EXPECT_THAT(eventsSince(device, before),
                ElementsAre("vx4400eventPilotStageFailureOff", "vx4400eventStatusReset",
                            "vx4400eventCountersReset", kEventExternalReset));
    EXPECT_THAT(host.callsTo("ReportError"), SizeIs(0));
}

} // namespace
} // namespace quill::shell
