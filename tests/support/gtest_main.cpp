// Shared main of the GoogleTest executables: an offscreen GUI application (pictures, fonts and
// networking need one), a fixed locale and time zone so that results do not depend on the machine.
#include <QGuiApplication>
#include <QLocale>
#include <QStandardPaths>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Where the build put the programs and where the sources are, for tests that run them or read data.
    if (qEnvironmentVariableIsEmpty("QUILLET_BIN_DIR"))
        qputenv("QUILLET_BIN_DIR", QUILLET_BUILD_BIN_DIR);
    if (qEnvironmentVariableIsEmpty("QUILLET_SOURCE_DIR"))
        qputenv("QUILLET_SOURCE_DIR", QUILLET_SOURCE_ROOT);
    qputenv("TZ", "UTC");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QStandardPaths::setTestModeEnabled(true);
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
