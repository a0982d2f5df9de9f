// Each reset that the page offers, from the user's choice to what he sees of it on other pages.
#include "person_fixture.h"

#include "shell/device_actions.h"
#include "shell/device_events.h"

#include <gmock/gmock.h>

namespace quill::shell::test {
namespace {

using testing::Contains;

class ResetEffects : public PersonTest, public testing::WithParamInterface<bool> {
protected:
    ResetEffects()
    {
        if (GetParam()) {
            openFieldbus();
        }
        model().setDemand(12);
        messenger().device().advance(30);
        goOnline();
    }

    CtrReset& reset() { return view<CtrReset>("reset"); }
    void      choose(std::size_t row, int code)
    {
        window->showPage("reset");
        CtrComboEdit& combo = reset().cceReset.at(row);
        for (int entry = 0; entry < combo.cboBox.ListCount(); ++entry) {
            ASSERT_EQ(combo.cboBox.choose(entry), platform::UserDoor::done);
            if (combo.getSelectedValue() == code) {
                return;
            }
        }
        FAIL() << "no code " << code;
    }
    /// Chooses, answers the question and waits.
    void perform(std::size_t row, int code, bool isAsked = true)
    {
        choose(row, code);
        dialogs.boxes.clear();
        dialogs.answers = {true};
        mouse(reset().cmdReset);
        EXPECT_EQ(dialogs.boxes.size(), isAsked ? 1U : 0U);
        EXPECT_FALSE(reset().cceReset.at(row).Modified()) << "done";
        for (CtrComboEdit& combo : reset().cceReset) {
            EXPECT_FALSE(combo.Modified());
            (void)combo.cboBox.choose(0);
        }
    }
    void readPage(const char* page)
    {
        window->showPage(page);
        dialogs.answers = {true}; // to read over what is out of step
        userInput::click(toolButton("readPage"));
        waitForDevice();
        userInput::settle();
    }
    std::string shownValue(const char* page, const char* parameter)
    {
        readPage(page);
        return editor<CtrTextEdit>(parameter).Text();
    }
    void write(const char* group, const char* parameter, const char* unit, const char* value)
    {
        messenger().SendCommunicationRequest(std::string("<communicationRequest name='") + group +
                                                 "' access='write'><item name='" + parameter +
                                                 "' unit='" + unit + "'><floatVal>" + value +
                                                 "</floatVal></item></communicationRequest>",
                                             group);
        waitForDevice();
        userInput::settle();
    }
    std::vector<std::string> listedEvents()
    {
        readPage("eventLog");
        std::vector<std::string> all;
        const auto&              list = view<CtrEventLog>("eventLog").lsvEventLog;
        for (int row = 1; row <= list.Count(); ++row) {
            all.push_back(list.Item(row).SubItems.at(0));
        }
        return all;
    }
    std::string text(const char* key) { return messenger().texts().text(key).toStdString(); }
};

INSTANTIATE_TEST_SUITE_P(Devices, ResetEffects, testing::Values(false, true),
                         [](const auto& fieldbus) { return fieldbus.param ? "F" : "H"; });

TEST_P(ResetEffects, OfTheStatusIsThatWhatIsOverHasGone)
{
    diagnosis().setPresent(messenger().device(), "statusMemoryFailure", true);
    readPage("status");
    ASSERT_EQ(iconOf(view<StatusTreeView>("status"), "statusMemoryFailure"), "failsafe");
    perform(0, 0, false);
    readPage("status");
    EXPECT_EQ(iconOf(view<StatusTreeView>("status"), "statusMemoryFailure"), "ok");
    EXPECT_THAT(listedEvents(), Contains(text("vx4400eventStatusReset")));
}

TEST_P(ResetEffects, OfTheCountersIsZero)
{
    ASSERT_NE(shownValue("diagnostics", "cycleCounter"), "0");
    perform(1, Resets::counters);
    EXPECT_EQ(shownValue("diagnostics", "cycleCounter"), "0");
    EXPECT_EQ(std::stod(shownValue("diagnostics", "travelSum")), 0);
    EXPECT_THAT(listedEvents(), Contains(text("vx4400eventCountersReset")));
}

TEST_P(ResetEffects, OfTheExtremesIsTheTemperatureOfNow)
{
    model().setFault(Fault::overheating, true);
    messenger().device().advance(120);
    model().setFault(Fault::overheating, false);
    messenger().device().advance(300);
    readPage("diagnostics");
    const auto now = [&] { return std::stod(editor<CtrTextEdit>("deviceTemperature").Text()); };
    ASSERT_GT(std::stod(editor<CtrTextEdit>("maximumTemperature").Text()), now() + 20);
    perform(1, Resets::extremes);
    readPage("diagnostics");
    EXPECT_NEAR(std::stod(editor<CtrTextEdit>("maximumTemperature").Text()), now(), 0.11);
    EXPECT_NEAR(std::stod(editor<CtrTextEdit>("minimumTemperature").Text()), now(), 0.11);
}

TEST_P(ResetEffects, OfTheEventLogIsAnEmptyLog)
{
    ASSERT_GT(listedEvents().size(), 20U);
    perform(1, Resets::eventLog);
    const auto events = listedEvents();
    EXPECT_LE(events.size(), 3U) << testing::PrintToString(events);
    EXPECT_EQ(events.front(), text("vx4400eventLogReset"));
    EXPECT_EQ(events.back(), text("vx4400eventNone"));
}

TEST_P(ResetEffects, OfAllDiagnosticsIsAllOfThat)
{
    perform(1, Resets::allDiagnostics);
    EXPECT_EQ(shownValue("diagnostics", "cycleCounter"), "0");
    EXPECT_EQ(editor<CtrTextEdit>("maximumTemperature").Text(),
              editor<CtrTextEdit>("deviceTemperature").Text());
    EXPECT_LE(listedEvents().size(), 5U);
}

TEST_P(ResetEffects, OfTheTuningAreItsDefaultsAndTheValveMovesByThem)
{
    write("tuning", "tuningSet", "noUnit", "3");
    write("tuning", "proportionalGain", "noUnit", "9");
    write("alarms", "alarmHighTravel", "%", "91");
    EXPECT_EQ(std::stod(shownValue("tuning", "proportionalGain")), 9);
    EXPECT_EQ(model().settings().gain, 9);
    perform(2, Resets::tuning);
    EXPECT_EQ(shownValue("tuning", "proportionalGain"), "2.40");
    EXPECT_EQ(model().settings().gain, 2.4) << "that of the standard set";
    EXPECT_EQ(std::stod(shownValue("alarms", "alarmHighTravel")), 91) << "and nothing else";
}

TEST_P(ResetEffects, OfTheAlarmsAreTheirDefaultsAndTheDiagnosisGoesByThem)
{
    write("alarms", "alarmHighTravel", "%", "1");
    messenger().device().advance(5);
    readPage("status");
    ASSERT_EQ(iconOf(view<StatusTreeView>("status"), "statusTravelHigh"), "info");
    perform(2, Resets::alarms);
    EXPECT_EQ(std::stod(shownValue("alarms", "alarmHighTravel")), 98);
    messenger().device().advance(5);
    readPage("status");
    EXPECT_EQ(iconOf(view<StatusTreeView>("status"), "statusTravelHigh"), "ok");
}

TEST_P(ResetEffects, OfEverythingAreTheSettingsOfTheFactory)
{
    const std::string before = shownValue("configuration", "filterTime");
    const std::string tag    = inDevice(GetParam() ? "paTag" : "tag");
    write("signal", "filterTime", "s", "9");
    EXPECT_EQ(std::stod(shownValue("configuration", "filterTime")), 9);
    perform(2, Resets::factorySettings);
    EXPECT_EQ(shownValue("configuration", "filterTime"), before);
    EXPECT_EQ(inDevice(GetParam() ? "paTag" : "tag"), tag) << "it is still the same device";
    EXPECT_THAT(listedEvents(), Contains(text("vx4400eventFactorySettings")));
}

TEST_P(ResetEffects, OfARestartIsAColdStartWithASeparatorInTheLog)
{
    diagnosis().setPresent(messenger().device(), "statusMemoryFailure", true);
    perform(2, Resets::restart);
    readPage("status");
    EXPECT_EQ(iconOf(view<StatusTreeView>("status"), "statusColdStart"), "info");
    EXPECT_EQ(iconOf(view<StatusTreeView>("status"), "statusMemoryFailure"), "ok");
    const auto events = listedEvents();
    ASSERT_GE(events.size(), 2U);
    const auto at = std::ranges::find(events, text("vx4400eventExternalReset"));
    ASSERT_NE(at, events.end());
    EXPECT_EQ(*(at + 1), std::string(43, '-'));
}

TEST_P(ResetEffects, OfANoIsNothing)
{
    const std::string counter = inDevice("cycleCounter");
    for (const int code : {0, 1, 2, 3}) {
        for (const std::size_t row : {1U, 2U}) {
            choose(row, code);
            dialogs.answers.clear();
            const auto before = messenger().device().function<DeviceEvents>()->ring().next();
            mouse(reset().cmdReset);
            EXPECT_EQ(messenger().device().function<DeviceEvents>()->ring().next(), before);
            (void)reset().cceReset.at(row).cboBox.choose(0);
        }
    }
    EXPECT_EQ(inDevice("cycleCounter"), counter);
}

} // namespace
} // namespace quill::shell::test
