#pragma once

#include <QString>
#include <QStringList>

namespace quill::shell {

/// What the user asked for on the command line.
struct Options {
    enum class Wish { run, printHelp, refuse };
    Wish    wish = Wish::run;
    QString text; ///< the help, or what is wrong with how to use the program

    QString     datafile;             ///< empty for the sample
    std::string language = "English"; ///< as the controls know it
    bool        offline  = false;     ///< do not connect at the start
    QString     tourFolder;           ///< empty for no tour
};

/// Reads the arguments, the program's name first.
[[nodiscard]] Options readOptions(const QStringList& arguments);

} // namespace quill::shell
