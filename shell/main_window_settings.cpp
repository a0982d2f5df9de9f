#include "platform/failure.h"
#include "shell/main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>

#include <utility>

namespace quill::shell {

namespace {

constexpr const char* kFileName = "settings.json";

/// The display unit of every quantity.
std::map<std::string, std::string> displayUnits(HartUnitConverter& units)
{
    std::map<std::string, std::string> result;
    for (auto quantities = units.GetQuantities(); auto quantity = quantities.nextNode();) {
        const std::string name = quantity.get_text();
        result[name]           = units.GetDisplayUnit(name).value_or("");
    }
    return result;
}

} // namespace

void MainWindow::buildSettings(const Folders& folders)
{
    mMessenger.setFolder(folders.documents);
    if (!folders.settings.empty()) {
        mSettingsFile = std::make_unique<SettingsFile>(folders.settings + kFileName);
        takeSettings();
    }
    connect(&mMessenger, &ShellMessenger::languageChanged, this, &MainWindow::keepSettings);
    connect(&mMessenger, &ShellMessenger::classificationChanged, this, &MainWindow::keepSettings);
    connect(&mMessenger, &ShellMessenger::userLevelChanged, this, [this](int level) {
        mLevel->setCurrentIndex(mLevel->findData(level));
        keepSettings();
    });
    connect(&mMessenger, &ShellMessenger::unitsChanged, this, [this] {
        takeUnits();
        showUnitSystem();
        fitBook();
        keepSettings();
    });
    showUnitSystem();
}

void MainWindow::takeSettings()
{
    mSettings = mSettingsFile->load();
    for (const auto& [quantity, unit] : mSettings.units) {
        mMessenger.units().SetDisplayUnit(quantity, unit);
    }
    mMessenger.informUnitChanges();
    mMessenger.SetStatusClassification(mSettings.classification);
    mMessenger.setUserLevel(mSettings.userLevel);
    mLevel->setCurrentIndex(mLevel->findData(static_cast<int>(mSettings.userLevel)));
    mMessenger.setLanguage(mSettings.language);
    if (mSettings.scheme) {
        setScheme(*mSettings.scheme);
    }
    if (!mSettingsFile->problem().empty()) {
        mMessenger.ShowMessage("error", mSettingsFile->problem());
    }
}

void MainWindow::keepSettings()
{
    keep({.language       = mMessenger.texts().GetLanguage(),
          .units          = displayUnits(mMessenger.units()),
          .classification = mMessenger.chosenClassification(),
          .userLevel      = mMessenger.GetUserLevel(),
          .scheme         = mSettings.scheme});
}

void MainWindow::keep(const Settings& settings)
{
    if (settings == std::exchange(mSettings, settings) || !mSettingsFile) {
        return;
    }
    try {
        mSettingsFile->save(mSettings);
    } catch (const platform::Failure& failure) {
        tellFailure(failure);
    }
}

void MainWindow::showSettings()
{
    mSettingsDialog->ask();
}

void MainWindow::chooseScheme(ColorScheme scheme)
{
    setScheme(scheme);
    Settings chosen = mSettings;
    chosen.scheme   = scheme;
    keep(chosen);
}

void MainWindow::chooseUnits(const std::string& system)
{
    auto& units = mMessenger.units();
    for (auto quantities = units.GetQuantities(); auto quantity = quantities.nextNode();) {
        const std::string name      = quantity.get_text();
        const auto        described = units.GetUnitSystemData(name);
        const auto unit = described ? units.GetUnitOfSystem(*described, system) : std::nullopt;
        if (unit) {
            units.SetDisplayUnit(name, *unit);
        }
    }
    mMessenger.informUnitChanges();
}

void MainWindow::takeUnits()
{
    if (!mBook) {
        return;
    }
    auto& store = mMessenger.store();
    // A loading of its own: what is an edit shows in what the end of the one before has kept.
    const Loading loading{store};
    mBook->takeUnits([&](const std::string& parameter) { return !store.isEdited(parameter); });
}

void MainWindow::showUnitSystem()
{
    auto&      units  = mMessenger.units();
    const auto shown  = displayUnits(units);
    const auto isUsed = [&](const std::string& system) {
        for (const auto& [quantity, unit] : shown) {
            const auto described = units.GetUnitSystemData(quantity);
            const auto expected =
                described ? units.GetUnitOfSystem(*described, system) : std::nullopt;
            if (expected && *expected != unit) {
                return false;
            }
        }
        return true;
    };
    for (QAction* action : mUnits->actions()) {
        action->setChecked(isUsed(action->data().toString().toStdString()));
    }
}

} // namespace quill::shell
