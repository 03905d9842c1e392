// Quillet: the application's entry point. Builds the long-lived services, registers the screens,
// starts the QML window and runs the launch order.
#include "animatedlaunchscreen.h"
#include "appdelegate.h"
#include "apppaths.h"
#include "homevc.h"
#include "navigationcontroller.h"
#include "storyboard.h"

#include <QCommandLineParser>
#include <QDirIterator>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Quillet_AppPlugin)

namespace {

void registerShippedFonts()
{
    QDirIterator fonts(QStringLiteral(":/Quillet/App/fonts"), {QStringLiteral("*.woff"), QStringLiteral("*.ttf")});
    while (fonts.hasNext())
        QFontDatabase::addApplicationFont(fonts.next());
}

void registerScreens(Storyboard &storyboard)
{
    const QString views = QStringLiteral("qrc:/Quillet/App/");
    storyboard.registerFactory(QStringLiteral("AnimatedLaunchScreen"),
                               QUrl(views + QStringLiteral("AnimatedLaunchScreenView.qml")), [&storyboard] {
                                   auto *screen = new AnimatedLaunchScreen();
                                   screen->setStoryboard(&storyboard);
                                   return screen;
                               });
    storyboard.registerScreen<HomeVC>(QStringLiteral("HomeVC"), QUrl(views + QStringLiteral("HomeVCView.qml")));
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Quillet"));
    QGuiApplication::setOrganizationName(QStringLiteral("Quillet"));
    if (qEnvironmentVariableIsEmpty("QT_QUICK_CONTROLS_STYLE"))
        QQuickStyle::setStyle(QStringLiteral("Material"));
    qputenv("QT_QUICK_CONTROLS_MATERIAL_ACCENT", "#E05863");
    qputenv("QT_QUICK_CONTROLS_MATERIAL_PRIMARY", "#E05863");

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Stories, video stories and highlight covers from templates."));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("server"), QStringLiteral("Content server address."), QStringLiteral("url")});
    parser.addOption({QStringLiteral("open"), QStringLiteral("Open a design file in the editor."), QStringLiteral("file")});
    parser.addOption({QStringLiteral("screenshot"), QStringLiteral("Save a picture of the window, then quit."),
                      QStringLiteral("png")});
    parser.addOption({QStringLiteral("screenshot-delay"), QStringLiteral("Milliseconds before the screenshot."),
                      QStringLiteral("ms"), QStringLiteral("1500")});
    parser.process(app);

    AppPaths::ensureCreated();
    registerShippedFonts();

    Storyboard storyboard;
    registerScreens(storyboard);
    NavigationController navigation;
    AppDelegate delegate(&navigation, &storyboard);

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.setInitialProperties({{QStringLiteral("navigation"), QVariant::fromValue(&navigation)}});
    engine.load(QUrl(QStringLiteral("qrc:/Quillet/App/Main.qml")));
    if (engine.rootObjects().isEmpty())
        return 1;
    delegate.didFinishLaunching();
    if (parser.isSet(QStringLiteral("screenshot"))) {
        auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
        QTimer::singleShot(parser.value(QStringLiteral("screenshot-delay")).toInt(), &app, [&parser, window] {
            const bool saved = window->grabWindow().save(parser.value(QStringLiteral("screenshot")));
            QCoreApplication::exit(saved ? 0 : 1);
        });
    }
    return QGuiApplication::exec();
}
