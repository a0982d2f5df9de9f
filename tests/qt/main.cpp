#include "qt/qt_toolkit.h"

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // One look on every machine.
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    quill::qt::QtToolkit toolkit;
    toolkit.setLocale({});
    quill::platform::Toolkit::setCurrent(&toolkit);
    return RUN_ALL_TESTS();
}
