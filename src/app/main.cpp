// Quillet: the application's entry point. Builds the long-lived services, registers the screens,
// starts the QML window and runs the launch order.
#include "animatedlaunchscreen.h"
#include "appdelegate.h"
#include "apphelpers.h"
#include "apppaths.h"
#include "appservices.h"
#include "assetimageprovider.h"
#include "browsescreens.h"
#include "cropscreens.h"
#include "designsscreens.h"
#include "editimageportraitmode.h"
#include "editorscreens.h"
#include "editvideoportraitmode.h"
#include "fontpickerscreens.h"
#include "homevc.h"
#include "imagecacheprovider.h"
#include "imagedecoder.h"
#include "mapper.h"
#include "mydesignsscreens.h"
#include "navigationcontroller.h"
#include "pickerscreens.h"
#include "preparationscreens.h"
#include "printinteractioncontroller.h"
#include "qffontpicker.h"
#include "storyboard.h"
#include "videopickerscreens.h"
#include "videoscreens.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDesktopServices>
#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>
#include <memory>

Q_IMPORT_QML_PLUGIN(Quillet_AppPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_BrowsePlugin)
Q_IMPORT_QML_PLUGIN(Quillet_DesignsPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_Designs_ScreensPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_EditorPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_Editor_LayersPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_Editor_PickersPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_Editor_CropPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_Editor_VideoPickersPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_FontpickerPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_PreparationPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_VideoPlugin)

namespace {

void registerShippedFonts()
{
    QDirIterator fonts(QStringLiteral(":/Quillet/App/fonts"), { QStringLiteral("*.woff"), QStringLiteral("*.ttf") });
    while (fonts.hasNext())
        QFontDatabase::addApplicationFont(fonts.next());
}

void registerScreens(Storyboard &storyboard, ServerClient *client)
{
    const QString views = QStringLiteral("qrc:/Quillet/App/");
    storyboard.registerFactory(QStringLiteral("AnimatedLaunchScreen"),
        QUrl(views + QStringLiteral("AnimatedLaunchScreenView.qml")), [&storyboard, client] {
            auto *screen = new AnimatedLaunchScreen();
            screen->setStoryboard(&storyboard);
            screen->setServerClient(client);
            return screen;
        });
    storyboard.registerFactory(QStringLiteral("HomeVC"), QUrl(views + QStringLiteral("HomeVCView.qml")), [&storyboard] {
        auto *home = new HomeVC();
        home->setStoryboard(&storyboard);
        return home;
    });
    storyboard.registerScreen<PrintInteractionController>(
        QStringLiteral("PrintInteractionController"), QUrl(views + QStringLiteral("PrintInteractionView.qml")));
    EditorScreens::registerScreens(storyboard);
    DesignsScreens::registerScreens(storyboard);
    MyDesignsScreens::registerScreens(storyboard);
}

// --save of a video design: "choice" presses SAVE, "video" or "gif" answers the choice; false for any other.
bool exportVideoDesign(EditVideoPortraitMode *editor, const QString &save)
{
    if (save != QLatin1String("choice") && save != QLatin1String("video") && save != QLatin1String("gif"))
        return false;
    // Once the window has laid the editor out and opened the design.
    QTimer::singleShot(500, editor, [editor, save] {
        if (save == QLatin1String("choice"))
            editor->savePressed();
        else
            editor->exportFlow().exportAs(save == QLatin1String("gif") ? ExportMediaType::GIF : ExportMediaType::Video);
    });
    return true;
}

// --open FILE: the design in its editor (the video editor for a video design) over the home screen,
// without the launch animation; with --save a picture design is then saved as the size choice's
// "Original" or "HD" would, a video design exported (see above).
bool openDesign(
    const QString &path, const QString &saveSize, const Storyboard &storyboard, NavigationController &navigation)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCritical().noquote() << "cannot read" << path << ":" << file.errorString();
        return false;
    }
    auto document = Mapper::map<Json>(QString::fromUtf8(file.readAll()));
    if (!document) {
        qCritical().noquote() << path << "is not a design (a JSON object)";
        return false;
    }
    const QString identifier
        = document->is_Video ? QStringLiteral("EditVideoPortraitMode") : QStringLiteral("EditImagePortraitMode");
    auto *editor = static_cast<EditorSession *>(storyboard.instantiate(identifier));
    auto *imageEditor = qobject_cast<EditImagePortraitMode *>(editor);
    navigation.setRoot(storyboard.instantiate(QStringLiteral("HomeVC")));
    editor->contentJson = document;
    navigation.push(editor, false);
    if (auto *videoEditor = qobject_cast<EditVideoPortraitMode *>(editor); videoEditor && !saveSize.isEmpty()) {
        if (!exportVideoDesign(videoEditor, saveSize)) {
            qCritical().noquote() << path << "is a video design; --save takes choice, video or gif";
            return false;
        }
    } else if (imageEditor && !saveSize.isEmpty()) {
        const bool isHD = saveSize.compare(QLatin1String("hd"), Qt::CaseInsensitive) == 0;
        // Once the window has laid the editor out and opened the design.
        QTimer::singleShot(500, imageEditor, [imageEditor, isHD] { imageEditor->saveFlow().save(isHD); });
    }
    return true;
}

// --tab N: the home screen on its tab N, counted from 1 ("My Story" is 4), without the launch animation.
bool openTab(const QString &tab, const Storyboard &storyboard, NavigationController &navigation)
{
    bool isNumber = false;
    const int number = tab.toInt(&isNumber);
    auto *home = qobject_cast<HomeVC *>(storyboard.instantiate(QStringLiteral("HomeVC")));
    if (!isNumber || number < 1 || number > home->tabTitles().size()) {
        qCritical().noquote() << "no tab" << tab << "; the tabs are 1 to" << home->tabTitles().size();
        delete home;
        return false;
    }
    navigation.setRoot(home);
    home->setSelectedTab(number - 1);
    return true;
}

// --show IDENTIFIER: that screen over the home screen (or over the design of --open), as if pushed there;
// --video FILE becomes its videoPath (the trimmer's movie), --picture FILE its image (the crop screen's).
bool showScreen(const QString &identifier, const QString &video, const QString &picture, bool overDesign,
    const Storyboard &storyboard, NavigationController &navigation)
{
    ViewController *screen = storyboard.instantiate(identifier);
    if (!screen) {
        qCritical().noquote() << "no screen named" << identifier;
        return false;
    }
    if (!video.isEmpty() && !screen->setProperty("videoPath", video)) {
        qCritical().noquote() << identifier << "takes no video";
        delete screen;
        return false;
    }
    if (!picture.isEmpty() && !screen->setProperty("image", ImageDecoder::decodeFile(picture))) {
        qCritical().noquote() << identifier << "shows no picture";
        delete screen;
        return false;
    }
    if (!overDesign)
        navigation.setRoot(storyboard.instantiate(QStringLiteral("HomeVC")));
    navigation.push(screen, false);
    return true;
}

// --self-test: every screen's view is made once with a fresh controller, offscreen; any QML warning fails it.
int selfTest(QQmlApplicationEngine &engine, const Storyboard &storyboard)
{
    static int warnings = 0;
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &message) {
        if (type != QtDebugMsg && type != QtInfoMsg) {
            ++warnings;
            std::fprintf(stderr, "%s\n", qPrintable(message));
        }
    });
    for (const QString &identifier : storyboard.identifiers()) {
        std::unique_ptr<ViewController> vc(storyboard.instantiate(identifier));
        QQmlComponent component(&engine, vc->viewUrl());
        std::unique_ptr<QObject> view(
            component.createWithInitialProperties({ { QStringLiteral("vc"), QVariant::fromValue(vc.get()) } }));
        if (!view) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(identifier), qPrintable(component.errorString()));
            ++warnings;
        }
        QCoreApplication::processEvents();
    }
    std::printf(
        "self-test: %lld screens, %d warnings\n", static_cast<long long>(storyboard.identifiers().size()), warnings);
    return warnings == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    // A widgets application, for the system tray that shows the export's notice.
    QApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Quillet"));
    QGuiApplication::setOrganizationName(QStringLiteral("Quillet"));
    if (qEnvironmentVariableIsEmpty("QT_QUICK_CONTROLS_STYLE"))
        QQuickStyle::setStyle(QStringLiteral("Material"));
    qputenv("QT_QUICK_CONTROLS_MATERIAL_ACCENT", "#E05863");
    qputenv("QT_QUICK_CONTROLS_MATERIAL_PRIMARY", "#E05863");

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Stories, video stories and highlight covers from templates."));
    parser.addHelpOption();
    parser.addOption({ QStringLiteral("server"), QStringLiteral("Content server address."), QStringLiteral("url") });
    parser.addOption(
        { QStringLiteral("open"), QStringLiteral("Open a design file in the editor."), QStringLiteral("file") });
    parser.addOption({ QStringLiteral("show"), QStringLiteral("Show the screen of that storyboard identifier."),
        QStringLiteral("identifier") });
    parser.addOption(
        { QStringLiteral("tab"), QStringLiteral("Open the home screen on this tab (1 to 4)."), QStringLiteral("n") });
    parser.addOption({ QStringLiteral("save"),
        QStringLiteral("With --open, save the design: original or hd; a video design: choice, video or gif."),
        QStringLiteral("size") });
    parser.addOption({ QStringLiteral("video"), QStringLiteral("The movie of the screen of --show (the trimmer's)."),
        QStringLiteral("file") });
    parser.addOption({ QStringLiteral("picture"), QStringLiteral("The picture of the screen that --show shows."),
        QStringLiteral("file") });
    parser.addOption({ QStringLiteral("screenshot"), QStringLiteral("Save a picture of the window, then quit."),
        QStringLiteral("png") });
    parser.addOption({ QStringLiteral("screenshot-delay"), QStringLiteral("Milliseconds before the screenshot."),
        QStringLiteral("ms"), QStringLiteral("1500") });
    parser.addOption(
        { QStringLiteral("self-test"), QStringLiteral("Make every screen once offscreen; fail on QML warnings.") });
    parser.addPositionalArgument(
        QStringLiteral("link"), QStringLiteral("A quillet:// address to open, such as quillet://open?search=travel."));
    parser.process(app);

    AppPaths::ensureCreated();
    registerShippedFonts();

    AppServices services(parser.value(QStringLiteral("server")));

    Storyboard storyboard;
    registerScreens(storyboard, services.client());
    FontpickerScreens::registerScreens(storyboard, services.fontpicker());
    PreparationScreens::registerScreens(storyboard, services.client(), services.fontpicker());
    QStringList bgColors;
    for (const auto &entry : AppHelpers::bgColors())
        bgColors.append(entry->color.value_or(QString()));
    PickerScreens::registerScreens(storyboard, services.client(), bgColors);
    VideoScreens::registerScreens(storyboard);
    VideoPickerScreens::registerScreens(storyboard, services.client());
    BrowseScreens::registerScreens(
        storyboard, services.client(), [](bool video) { return AppHelpers::customRatios(video); });
    CropScreens::registerScreens(storyboard);
    NavigationController navigation;
    AppDelegate delegate(&navigation, &storyboard);
    services.attach(delegate);

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.addImageProvider(QStringLiteral("cache"), new ImageCacheProvider());
    engine.addImageProvider(QStringLiteral("assets"), new AssetImageProvider());
    if (parser.isSet(QStringLiteral("self-test")))
        return selfTest(engine, storyboard);
    engine.setInitialProperties({ { QStringLiteral("navigation"), QVariant::fromValue(&navigation) } });
    engine.load(QUrl(QStringLiteral("qrc:/Quillet/App/Main.qml")));
    if (engine.rootObjects().isEmpty())
        return 1;
    delegate.didFinishLaunching();
    if (parser.isSet(QStringLiteral("open"))
        && !openDesign(
            parser.value(QStringLiteral("open")), parser.value(QStringLiteral("save")), storyboard, navigation))
        return 1;
    if (parser.isSet(QStringLiteral("tab")) && !openTab(parser.value(QStringLiteral("tab")), storyboard, navigation))
        return 1;
    if (parser.isSet(QStringLiteral("show"))
        && !showScreen(parser.value(QStringLiteral("show")), parser.value(QStringLiteral("video")),
            parser.value(QStringLiteral("picture")), parser.isSet(QStringLiteral("open")), storyboard, navigation))
        return 1;
    if (parser.isSet(QStringLiteral("screenshot"))) {
        auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
        QTimer::singleShot(parser.value(QStringLiteral("screenshot-delay")).toInt(), &app, [&parser, window] {
            const bool saved = window->grabWindow().save(parser.value(QStringLiteral("screenshot")));
            QCoreApplication::exit(saved ? 0 : 1);
        });
    }
    // Deep links: a quillet:// address on the command line, and those the platform hands over while running.
    QDesktopServices::setUrlHandler(QStringLiteral("quillet"), &delegate, "openUrl");
    if (const QStringList links = parser.positionalArguments(); !links.isEmpty())
        delegate.openUrl(QUrl(links.first()), QStringLiteral("command line"));
    const int status = QGuiApplication::exec();
    QDesktopServices::unsetUrlHandler(QStringLiteral("quillet"));
    return status;
}
