#include "shell/settings_file.h"

#include "framework/host_contract.h"
#include "platform/failure.h"
#include "shell/translator.h"
#include "shell/units.h"

#include <QJsonDocument>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace quill::shell {

namespace {

constexpr QLatin1String kLanguage{"language"};
constexpr QLatin1String kUnits{"units"};
constexpr QLatin1String kClassification{"statusClassification"};
constexpr QLatin1String kUserLevel{"userLevel"};
constexpr QLatin1String kScheme{"scheme"};
constexpr QLatin1String kLight{"light"};
constexpr QLatin1String kDark{"dark"};
constexpr QLatin1String kDesktop{"desktop"};

constexpr std::int16_t kLowestLevel  = 1;
constexpr std::int16_t kHighestLevel = 4;
/// Nobody has so many settings: a file that is longer is none of ours.
constexpr std::uintmax_t kMostBytes = 1U << 20U;

/// The settings in the file; nothing if it does not hold any.
std::optional<QJsonObject> read(const std::string& path)
{
    try {
        std::error_code error;
        if (std::filesystem::file_size(path, error) > kMostBytes || error) {
            return std::nullopt;
        }
        const QJsonDocument document =
            QJsonDocument::fromJson(QByteArray::fromStdString(readFile(path)));
        return document.isObject() ? std::optional{document.object()} : std::nullopt;
    } catch (const platform::Failure&) {
        return std::nullopt;
    }
}

/// A whole number of this range; `otherwise` for anything else.
std::int16_t numberIn(const QJsonValue& value, std::int16_t low, std::int16_t high,
                      std::int16_t otherwise)
{
    const double number = value.toDouble(otherwise);
    const bool   fits   = number >= low && number <= high;
    const auto   whole  = static_cast<std::int16_t>(fits ? number : otherwise);
    return fits && whole == number ? whole : otherwise;
}

std::map<std::string, std::string> unitsIn(const QJsonObject& entries)
{
    std::map<std::string, std::string> units;
    HartUnitConverter                  known;
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        const std::string quantity = entry.key().toStdString();
        const std::string unit     = entry.value().toString().toStdString();
        if (known.SetDisplayUnit(quantity, unit)) {
            units.emplace(quantity, unit);
        }
    }
    return units;
}

QLatin1String nameOf(const std::optional<ColorScheme>& scheme)
{
    if (!scheme) {
        return kDesktop;
    }
    return *scheme == ColorScheme::dark ? kDark : kLight;
}

} // namespace

SettingsFile::SettingsFile(std::string path, FileOperations& operations)
    : mPath(std::move(path)), mOperations(operations)
{
}

Settings SettingsFile::load()
{
    mProblem.clear();
    mContent = {};
    Settings        settings;
    std::error_code error;
    if (!std::filesystem::exists(mPath, error) && !error) {
        return settings;
    }
    if (const auto content = read(mPath)) {
        mContent = *content;
    } else {
        mProblem = "shell_settingsUnreadable#" + mPath;
        return settings;
    }

    const std::string language = mContent[kLanguage].toString().toStdString();
    if (const auto known = CatalogueTranslator::languages();
        std::ranges::find(known, language) != known.end()) {
        settings.language = language;
    }
    settings.units = unitsIn(mContent[kUnits].toObject());
    settings.classification =
        numberIn(mContent[kClassification], kClassSeverity, kClassNAMUR, settings.classification);
    settings.userLevel =
        numberIn(mContent[kUserLevel], kLowestLevel, kHighestLevel, settings.userLevel);
    if (const QString scheme = mContent[kScheme].toString(); scheme == kDark) {
        settings.scheme = ColorScheme::dark;
    } else if (scheme == kLight) {
        settings.scheme = ColorScheme::light;
    }
    return settings;
}

void SettingsFile::save(const Settings& settings)
{
    QJsonObject content = mContent;
    // A quantity of a newer program stays as well.
    QJsonObject units = content[kUnits].toObject();
    for (const auto& [quantity, unit] : settings.units) {
        units[QString::fromStdString(quantity)] = QString::fromStdString(unit);
    }
    content[kLanguage]       = QString::fromStdString(settings.language);
    content[kUnits]          = units;
    content[kClassification] = settings.classification;
    content[kUserLevel]      = settings.userLevel;
    content[kScheme]         = nameOf(settings.scheme);

    const std::filesystem::path folder = std::filesystem::path{mPath}.parent_path();
    if (!folder.empty()) {
        std::error_code ignored; // `replaceFile` tells a folder that is still missing
        std::filesystem::create_directories(folder, ignored);
    }
    replaceFile(mPath, QJsonDocument{content}.toJson().toStdString(), mOperations);
    mContent = content;
}

} // namespace quill::shell
