#include "shell/simulation_pane.h"

#include "qt/rows_tree.h"
#include "shell/device_actions.h"
#include "shell/device_physics.h"
#include "shell/device_status.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace quill::shell {

namespace {

constexpr int    kMargin       = 12;
constexpr int    kFrictionStep = 10; ///< of the slider to a multiple of the usual friction
constexpr int    kMostFriction = 10;
constexpr double kLowCurrent   = 3.5;
constexpr double kHighCurrent  = 22;
constexpr double kMiddle       = 12;
constexpr double kCurrentStep  = 0.5;

QString number(double value, int decimals, const char* unit)
{
    return QLocale().toString(value, 'f', decimals) + ' ' + QLatin1String(unit);
}

} // namespace

SimulationPane::SimulationPane(ShellMessenger& messenger, QWidget* parent)
    : QDockWidget(parent), mMessenger(messenger), mTree(new QTreeWidget), mMend(new QPushButton),
      mRestart(new QPushButton), mFrictionName(new QLabel), mFriction(new QSlider(Qt::Horizontal)),
      mFixed(new QCheckBox), mCurrent(new QDoubleSpinBox)
{
    setObjectName("simulation");
    mTree->setObjectName("simulationTree");
    mTree->header()->hide();
    mTree->header()->setStretchLastSection(false);
    mTree->setItemDelegate(new qt::RoomyRows(mTree));
    mTree->setIndentation(14);
    mTree->setUniformRowHeights(true);
    mTree->setAllColumnsShowFocus(true); // as its rows leave the cursor to it
    mTree->setFrameShape(QFrame::NoFrame);
    mTree->setTabKeyNavigation(false);
    mTree->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mMend->setObjectName("mend");
    mRestart->setObjectName("restart");

    auto* content = new QWidget;
    auto* column  = new QVBoxLayout(content);
    auto* form    = new QFormLayout;
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    buildReadings(*form);
    buildControls(*form);
    column->addLayout(form);
    column->addWidget(mTree, 1);
    column->addWidget(mMend);
    column->addWidget(mRestart);
    setWidget(content);

    connect(mTree, &QTreeWidget::itemChanged, this, &SimulationPane::toggle);
    connect(mMend, &QPushButton::clicked, this, &SimulationPane::mendAll);
    connect(mRestart, &QPushButton::clicked, this, [this] {
        restartDevice(mMessenger.device());
        refresh();
    });
    connect(&messenger, &ShellMessenger::datafileReplaced, this, &SimulationPane::rebuild);
    rebuild();
}

DeviceModel* SimulationPane::model() const
{
    auto* const physics = mMessenger.device().function<DevicePhysics>();
    return physics != nullptr ? &physics->model() : nullptr;
}

DeviceStatus* SimulationPane::status() const
{
    return mMessenger.device().function<DeviceStatus>();
}

void SimulationPane::buildReadings(QFormLayout& form)
{
    const auto add = [&](const char* title, std::function<QString(const DeviceModel&)> text) {
        auto* const name  = new QLabel;
        auto* const value = new QLabel;
        form.addRow(name, value);
        mReadings.push_back({title, name, value, std::move(text)});
    };
    add("travelSetpoint", [](const DeviceModel& m) { return number(m.state().setpoint, 1, "%"); });
    add("travel", [](const DeviceModel& m) { return number(m.state().travel, 1, "%"); });
    add("supplyPressure", [](const DeviceModel& m) { return number(m.state().supply, 2, "bar"); });
    add("actuatorPressure",
        [](const DeviceModel& m) { return number(m.state().chamber, 2, "bar"); });
    add("shell_simulationMeter", [this](const DeviceModel&) {
        const SimulatedDevice& device = mMessenger.device();
        return device.function<CurrentOutput>() != nullptr
                   ? number(measuredLoopCurrent(device), 3, "mA")
                   : QStringLiteral("–");
    });
    add("valveFriction", [](const DeviceModel& m) { return number(m.state().friction, 2, "bar"); });
}

void SimulationPane::buildControls(QFormLayout& form)
{
    mFriction->setObjectName("friction");
    mFriction->setRange(kFrictionStep, kMostFriction * kFrictionStep);
    mFriction->setPageStep(kFrictionStep);
    mFrictionName->setBuddy(mFriction);
    form.addRow(mFrictionName, mFriction);
    connect(mFriction, &QSlider::valueChanged, this, [this](int value) {
        if (DeviceModel* const valve = model()) {
            valve->setFriction(static_cast<double>(value) / kFrictionStep);
        }
    });
    mFixed->setObjectName("fixedSignal");
    mCurrent->setObjectName("signal");
    mCurrent->setRange(kLowCurrent, kHighCurrent);
    mCurrent->setSingleStep(kCurrentStep);
    mCurrent->setDecimals(1);
    mCurrent->setSuffix(QStringLiteral(" mA"));
    mCurrent->setValue(kMiddle);
    mCurrent->setEnabled(false);
    // A row's name stands at its top otherwise, above the middle of a higher box.
    mFixed->setMinimumHeight(mCurrent->sizeHint().height());
    form.addRow(mFixed, mCurrent);
    connect(mFixed, &QCheckBox::toggled, this, &SimulationPane::drive);
    connect(mCurrent, &QDoubleSpinBox::valueChanged, this, &SimulationPane::drive);
}

void SimulationPane::drive()
{
    mCurrent->setEnabled(mFixed->isChecked());
    if (DeviceModel* const valve = model()) {
        valve->setDemand(mFixed->isChecked() ? std::optional{mCurrent->value()} : std::nullopt);
    }
}

QTreeWidgetItem* SimulationPane::addBranch(const std::string& name)
{
    auto* const branch = new QTreeWidgetItem(mTree);
    branch->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    QFont bold = font();
    bold.setBold(true);
    branch->setFont(0, bold);
    branch->setExpanded(true);
    mBranches.emplace_back(name, branch);
    return branch;
}

void SimulationPane::addSwitch(QTreeWidgetItem& branch, Switch entry)
{
    entry.item = new QTreeWidgetItem(&branch);
    entry.item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    entry.item->setCheckState(0, Qt::Unchecked);
    mSwitches.push_back(std::move(entry));
}

void SimulationPane::fillTree()
{
    mTree->clear();
    mSwitches.clear();
    mBranches.clear();
    if (model() != nullptr) {
        QTreeWidgetItem* const faults = addBranch("shell_simulationFaults");
        for (const Fault fault : allFaults()) {
            addSwitch(*faults, {faultName(fault), nullptr,
                                [this, fault] { return model() && model()->has(fault); },
                                [this, fault](bool on) { model()->setFault(fault, on); }});
        }
    }
    if (DeviceStatus* const diagnosis = status()) {
        QTreeWidgetItem* branch = nullptr;
        for (const DeviceCondition& condition : diagnosis->conditions()) {
            if (condition.isMeasured) {
                continue; // the device finds out by itself
            }
            if (branch == nullptr || mBranches.back().first != condition.branch) {
                branch = addBranch(condition.branch);
            }
            const std::string name = condition.name;
            addSwitch(
                *branch,
                {name, nullptr,
                 [this, name] {
                     const auto* const found = status() ? status()->find(name) : nullptr;
                     return found != nullptr && found->isPresent;
                 },
                 [this, name](bool on) { status()->setPresent(mMessenger.device(), name, on); }});
        }
    }
}

void SimulationPane::rebuild()
{
    {
        const QSignalBlocker quiet(mTree);
        fillTree();
        // A place for the keyboard to come to.
        mTree->setCurrentItem(mTree->topLevelItem(0), 0, QItemSelectionModel::NoUpdate);
    }
    const bool valve = model() != nullptr;
    mFriction->setEnabled(valve);
    mFixed->setEnabled(valve);
    mMend->setEnabled(valve || status() != nullptr);
    mRestart->setEnabled(valve || status() != nullptr);
    drive();
    localize();
    refresh();
}

void SimulationPane::refresh()
{
    const DeviceModel* const valve = model();
    for (const Reading& reading : mReadings) {
        reading.value->setText(valve != nullptr ? reading.text(*valve) : QString{});
    }
    const QSignalBlocker quiet(mTree);
    for (const Switch& entry : mSwitches) {
        const Qt::CheckState state = entry.isOn() ? Qt::Checked : Qt::Unchecked;
        if (entry.item->checkState(0) != state) {
            entry.item->setCheckState(0, state);
        }
    }
}

void SimulationPane::toggle(QTreeWidgetItem* item)
{
    const auto found = std::ranges::find(mSwitches, item, &Switch::item);
    if (found != mSwitches.end()) {
        found->set(item->checkState(0) == Qt::Checked);
        refresh();
    }
}

void SimulationPane::mendAll()
{
    for (const Switch& entry : mSwitches) {
        if (entry.isOn()) {
            entry.set(false);
        }
    }
    mFriction->setValue(kFrictionStep);
    mFixed->setChecked(false);
    refresh();
}

QTreeWidgetItem* SimulationPane::row(const std::string& name) const
{
    const auto found = std::ranges::find(mSwitches, name, &Switch::name);
    return found != mSwitches.end() ? found->item : nullptr;
}

void SimulationPane::localize()
{
    const auto& texts = mMessenger.texts();
    setWindowTitle(texts.text("shell_simulation"));
    mMend->setText(texts.text("shell_simulationMend"));
    mRestart->setText(texts.text("shell_restartDevice").remove(u'&'));
    mRestart->setToolTip(texts.text("shell_restartDeviceTip"));
    mFrictionName->setText(texts.text("shell_simulationFriction"));
    mFixed->setText(texts.text("shell_simulationSignal"));
    mCurrent->setAccessibleName(texts.text("shell_simulationSignal"));
    mTree->setAccessibleName(texts.text("shell_simulation"));
    for (const Reading& reading : mReadings) {
        reading.name->setText(texts.text(reading.title));
    }
    const QSignalBlocker quiet(mTree);
    for (const Switch& entry : mSwitches) {
        entry.item->setText(0, texts.text(entry.name.c_str()));
    }
    for (const auto& [name, branch] : mBranches) {
        branch->setText(0, texts.text(name.c_str()));
    }
    // As wide as its texts.
    mTree->resizeColumnToContents(0);
    mTree->setMinimumWidth(mTree->columnWidth(0) + 2 * mTree->frameWidth() +
                           style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

} // namespace quill::shell
