#pragma once

#include "shell/shell_messenger.h"

#include <QDockWidget>

#include <functional>
#include <vector>

class QCheckBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QSlider;
class QTreeWidget;
class QTreeWidgetItem;

namespace quill::shell {

class DeviceModel;
class DeviceStatus;

/// What the user can do to the simulated device: break it, mend it, lead its signal, and switch the
/// conditions that do not follow from the rest.
class SimulationPane : public QDockWidget {
    Q_OBJECT

public:
    /// The messenger must outlive the pane.
    explicit SimulationPane(ShellMessenger& messenger, QWidget* parent = nullptr);

    /// Another device is there: what it has, and how it stands.
    void rebuild();
    /// Shows how the device stands now.
    void refresh();
    void localize();

    /// The row of a fault or condition by its name, for its check box; nothing if there is none.
    [[nodiscard]] QTreeWidgetItem* row(const std::string& name) const;
    [[nodiscard]] QTreeWidget&     tree() { return *mTree; }

private:
    /// Something that can be on or off.
    struct Switch {
        std::string               name;
        QTreeWidgetItem*          item;
        std::function<bool()>     isOn;
        std::function<void(bool)> set;
    };
    struct Reading {
        const char*                                title;
        QLabel*                                    name;
        QLabel*                                    value;
        std::function<QString(const DeviceModel&)> text;
    };

    [[nodiscard]] DeviceModel*  model() const;
    [[nodiscard]] DeviceStatus* status() const;
    void                        buildReadings(QFormLayout& form);
    void                        buildControls(QFormLayout& form);
    QTreeWidgetItem*            addBranch(const std::string& name);
    void                        addSwitch(QTreeWidgetItem& branch, Switch entry);
    void                        fillTree();
    void                        toggle(QTreeWidgetItem* item);
    void                        drive();
    void                        mendAll();

    ShellMessenger&                                       mMessenger;
    QTreeWidget*                                          mTree;
    QPushButton*                                          mMend;
    QPushButton*                                          mRestart;
    QLabel*                                               mFrictionName;
    QSlider*                                              mFriction;
    QCheckBox*                                            mFixed;
    QDoubleSpinBox*                                       mCurrent;
    std::vector<Reading>                                  mReadings;
    std::vector<Switch>                                   mSwitches;
    std::vector<std::pair<std::string, QTreeWidgetItem*>> mBranches;
};

} // namespace quill::shell
