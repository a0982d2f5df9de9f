#include "platform/failure.h"
#include "qt/qt_toolkit.h"
#include "shell/main_window.h"
#include "shell/options.h"
#include "shell/tour.h"

#include <QApplication>

#include <cstdio>

namespace {

using namespace quill;

/// Nobody could see a window: neither a display nor a choice of another platform.
bool isBlind()
{
#ifdef Q_OS_LINUX
    return qEnvironmentVariableIsEmpty("DISPLAY") &&
           qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return false;
#endif
}

int runWindow(const shell::Options& options)
{
    constexpr std::chrono::milliseconds kDelay{150};

    shell::MainWindow window(nullptr, options.folder.isEmpty()
                                          ? shell::Folders::ofUser()
                                          : shell::Folders::in(options.folder.toStdString()));
    if (!options.language.empty()) {
        window.setLanguage(options.language);
    }
    window.messenger().link().setDelay(kDelay);
    if (!window.chosenScheme()) {
        window.setScheme(shell::desktopScheme());
    }
    window.show();
    if (options.datafile.isEmpty() || !window.openDatafile(options.datafile)) {
        window.openSample();
    }
    window.statusCycle().setInterval(options.statusCycle);
    window.simulationClock().start();
    window.messenger().setOnline(!options.offline);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const bool blind = isBlind();
    if (blind) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quill-shell"));
    QApplication::setApplicationVersion(QStringLiteral(QUILL_VERSION));

    shell::Options options = shell::readOptions(QApplication::arguments());
    switch (options.wish) {
    case shell::Options::Wish::printHelp:
        std::fputs(qUtf8Printable(options.text), stdout);
        return 0;
    case shell::Options::Wish::refuse: std::fputs(qUtf8Printable(options.text), stderr); return 2;
    case shell::Options::Wish::run: break;
    }
    if (blind && options.tourFolder.isEmpty()) {
        options.tourFolder = QStringLiteral("out");
    }

    qt::QtToolkit toolkit;
    platform::Toolkit::setCurrent(&toolkit);
    int result = 1;
    try {
        shell::applyStyle(shell::ColorScheme::light);
        result = options.tourFolder.isEmpty() ? runWindow(options) : shell::takeTour(options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "quill-shell: %s\n", error.what());
    }
    platform::Toolkit::setCurrent(nullptr);
    return result;
}
