#pragma once

#include <QString>
#include <QStringList>

#include <chrono>

namespace quill::shell {

/// What the user asked for on the command line.
struct Options {
    enum class Wish { run, printHelp, refuse };
    Wish    wish = Wish::run;
    QString text; ///< the help, or what is wrong with how to use the program

    QString     datafile;        ///< empty for the sample
    std::string language;        ///< as the controls know it; empty for the one chosen last
    bool        offline = false; ///< do not connect at the start
    QString     folder;          ///< for settings and documents; empty for those of the system
    /// Between two readings of the device's status; zero for none.
    std::chrono::milliseconds statusCycle{2000};
    QString                   tourFolder; ///< empty for no tour
};

/// Reads the arguments, the program's name first.
[[nodiscard]] Options readOptions(const QStringList& arguments);

} // namespace quill::shell
