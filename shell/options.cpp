#include "shell/options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QHash>

#include <cmath>

namespace quill::shell {

Options readOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A host for the Quill controls with a simulated valve positioner."));
    const QCommandLineOption help{{"h", "help"}, "Shows this help."};
    const QCommandLineOption version{{"v", "version"}, "Shows the version."};
    const QCommandLineOption datafile{"datafile", "Opens this datafile instead of the sample.",
                                      "file"};
    const QCommandLineOption language{
        "language", "Language at the start: en, de or fi. Otherwise the one chosen last.", "code"};
    const QCommandLineOption settings{
        "settings", "Keeps settings and documents in this folder, not in those of the user.",
        "folder"};
    const QCommandLineOption offline{"offline", "Does not connect to the device at the start."};
    const QCommandLineOption cycle{"status-cycle",
                                   "Reads the device's status every so many seconds; 0 for never.",
                                   "seconds", "2"};
    const QCommandLineOption tour{
        "tour", "Takes the tour by itself: writes pictures and an account into this folder.",
        "folder"};
    parser.addOptions({help, version, datafile, language, settings, offline, cycle, tour});

    Options    options;
    const auto refuse = [&](const QString& why) {
        options.wish = Options::Wish::refuse;
        options.text = why + "\n\n" + parser.helpText();
        return options;
    };
    if (!parser.parse(arguments)) {
        return refuse(parser.errorText());
    }
    if (parser.isSet(help)) {
        options.wish = Options::Wish::printHelp;
        options.text = parser.helpText();
        return options;
    }
    if (parser.isSet(version)) {
        options.wish = Options::Wish::printHelp;
        options.text = QCoreApplication::applicationName() + ' ' +
                       QCoreApplication::applicationVersion() + '\n';
        return options;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return refuse("Unexpected argument: " + parser.positionalArguments().first());
    }
    static const QHash<QString, std::string> kLanguages{
        {"en", "English"}, {"de", "German"}, {"fi", "Finnish"}};
    const QString code = parser.value(language);
    if (parser.isSet(language) && !kLanguages.contains(code)) {
        return refuse("No such language: " + code);
    }
    constexpr double kMostSeconds = 3600;
    bool             isNumber     = false;
    const double     seconds      = parser.value(cycle).toDouble(&isNumber);
    if (!isNumber || seconds < 0 || seconds > kMostSeconds) {
        return refuse("No such number of seconds: " + parser.value(cycle));
    }
    options.statusCycle = std::chrono::milliseconds{std::llround(seconds * 1000)};
    if (parser.isSet(settings) && parser.value(settings).isEmpty()) {
        return refuse("The settings need a folder.");
    }
    if (parser.isSet(tour) && parser.value(tour).isEmpty()) {
        return refuse("The tour needs a folder.");
    }
    options.language   = kLanguages.value(code);
    options.folder     = parser.value(settings);
    options.datafile   = parser.value(datafile);
    options.offline    = parser.isSet(offline);
    options.tourFolder = parser.value(tour);
    return options;
}

} // namespace quill::shell
