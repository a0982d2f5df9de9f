#include "shell/simulation_clock.h"
#include "shell/simulation_pane.h"
#include "status_window_fixture.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QSlider>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace quill::shell::test {

namespace {

class Simulation : public StatusWindowTest {
protected:
    Simulation()
    {
        window->command("simulation")->trigger();
        userInput::settle();
    }
    SimulationPane& pane() { return window->simulation(); }
    void            clickBox(const char* name)
    {
        userInput::clickRow(pane().tree(), pane().tree().indexFromItem(pane().row(name)));
    }
    template <class Widget>
    Widget& part(const char* name)
    {
        return *pane().findChild<Widget*>(name);
    }
};

} // namespace

TEST_F(Simulation, ComesAndGoesByItsCommand)
{
    EXPECT_TRUE(pane().isVisible());
    EXPECT_EQ(pane().windowTitle(), "Simulation");
    window->command("simulation")->trigger();
    EXPECT_FALSE(pane().isVisible());
}

TEST_F(Simulation, AClickOnItsBoxBreaksThingsAndMendsThem)
{
    clickBox("faultSupplyFailure");
    EXPECT_TRUE(model().has(Fault::supplyFailure));
    EXPECT_EQ(pane().row("faultSupplyFailure")->checkState(0), Qt::Checked);
    clickBox("faultSupplyFailure");
    EXPECT_FALSE(model().has(Fault::supplyFailure));
}

TEST_F(Simulation, TheSpaceBarDoesSoToo)
{
    pane().tree().setCurrentItem(pane().row("faultCoverOpen"));
    pane().tree().setFocus();
    userInput::press(pane().tree(), Qt::Key_Space);
    EXPECT_TRUE(model().has(Fault::coverOpen));
}

TEST_F(Simulation, HasEveryFaultAndEveryConditionThatDoesNotFollowFromOne)
{
    for (const Fault fault : allFaults()) {
        EXPECT_NE(pane().row(faultName(fault)), nullptr) << faultName(fault);
    }
    for (const DeviceCondition& condition : diagnosis().conditions()) {
        EXPECT_EQ(pane().row(condition.name) != nullptr, !condition.isMeasured) << condition.name;
    }
}

TEST_F(Simulation, AConditionComesWithItsBox)
{
    clickBox("statusCavitation");
    EXPECT_TRUE(diagnosis().find("statusCavitation")->isPresent);
    clickBox("statusCavitation");
    EXPECT_FALSE(diagnosis().find("statusCavitation")->isPresent);
}

TEST_F(Simulation, FrictionAndSignalCanBeLed)
{
    part<QSlider>("friction").setFocus();
    userInput::press(part<QSlider>("friction"), Qt::Key_End);
    auto& signal = part<QDoubleSpinBox>("signal");
    EXPECT_FALSE(signal.isEnabled());
    userInput::click(part<QCheckBox>("fixedSignal"));
    EXPECT_TRUE(signal.isEnabled());
    signal.setValue(20);
    messenger().device().advance(120);
    EXPECT_NEAR(model().state().inputCurrent, 20, 0.5);
    EXPECT_GT(model().state().friction, 0.1) << "ten times that of a new valve";
}

TEST_F(Simulation, PutsEverythingRightAtOnce)
{
    clickBox("faultStuck");
    clickBox("statusCavitation");
    part<QSlider>("friction").setValue(80);
    userInput::click(part<QCheckBox>("fixedSignal"));
    userInput::click(part<QPushButton>("mend"));
    EXPECT_FALSE(model().has(Fault::stuck));
    EXPECT_FALSE(diagnosis().find("statusCavitation")->isPresent);
    EXPECT_EQ(part<QSlider>("friction").value(), part<QSlider>("friction").minimum());
    EXPECT_FALSE(part<QCheckBox>("fixedSignal").isChecked());
    EXPECT_EQ(pane().row("faultStuck")->checkState(0), Qt::Unchecked);
}

TEST_F(Simulation, FollowsWhatOthersDoToTheDevice)
{
    model().setFault(Fault::leak, true);
    pane().refresh();
    EXPECT_EQ(pane().row("faultLeak")->checkState(0), Qt::Checked);
}

TEST_F(Simulation, IsThatOfTheDeviceInHand)
{
    clickBox("faultStuck");
    window->command("openVX4400F")->trigger();
    userInput::settle();
    EXPECT_EQ(pane().row("faultStuck")->checkState(0), Qt::Unchecked);
    EXPECT_NE(pane().row("statusBusTimeout"), nullptr) << "which a HART device does not have";
    clickBox("statusBusTimeout");
    EXPECT_TRUE(diagnosis().find("statusBusTimeout")->isPresent);
}

TEST_F(Simulation, KnowsNothingToDoToAStranger)
{
    const std::string other =
        folder.write("other.xml",
                     R"(<dtm xmlns="x-schema:QVXDatafileSchema.xml"><persistentData><parameters>
           <parameter name="tag" type="stringVal" value="X" access="readWrite" synchronised="1"/>
           </parameters></persistentData></dtm>)");
    ASSERT_TRUE(window->openDatafile(QString::fromStdString(other)));
    EXPECT_EQ(pane().tree().topLevelItemCount(), 0);
    EXPECT_FALSE(part<QPushButton>("mend").isEnabled());
    EXPECT_FALSE(part<QSlider>("friction").isEnabled());
    EXPECT_FALSE(window->command("status")->isEnabled());
    pane().refresh();
}

TEST_F(Simulation, SpeaksTheUsersLanguage)
{
    window->setLanguage("Finnish");
    EXPECT_EQ(pane().windowTitle(), "Simulointi");
    EXPECT_EQ(pane().row("faultCoverOpen")->text(0), "Kansi avattu");
    EXPECT_EQ(pane().row("statusCavitation")->parent()->text(0),
              messenger().texts().text("statusGroupProcess"));
}

TEST_F(Simulation, TimePassesOnlyWhileTheClockRuns)
{
    const double before = model().state().time;
    EXPECT_FALSE(window->simulationClock().isRunning());
    window->simulationClock().start();
    EXPECT_TRUE(userInput::wait([&] { return model().state().time > before + 0.3; }));
    window->simulationClock().stop();
    const double after = model().state().time;
    userInput::settle();
    EXPECT_EQ(model().state().time, after);
}

} // namespace quill::shell::test
