// Shared main of the GoogleTest executables: an offscreen GUI application (pictures, fonts and
// networking need one), a fixed locale and time zone so that results do not depend on the machine.
#include <QGuiApplication>
#include <QLocale>
#include <QStandardPaths>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QStandardPaths::setTestModeEnabled(true);
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
