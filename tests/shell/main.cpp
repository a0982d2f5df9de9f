#include <QApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    // Also while the build asks the program for its tests, where no screen is.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    const QApplication application{argc, argv};
    return RUN_ALL_TESTS();
}
