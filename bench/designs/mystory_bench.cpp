// Opening "My Story" with 1,000 saved designs (pictures and videos mixed, each with its own preview file):
// the time to read the rows into the list, and the time from asking for the tab to the first frame that
// shows the first screen of cells with their pictures. Run under Xvfb: xvfb-run -a build/bin/mystory_bench
#include "applog.h"
#include "apppaths.h"
#include "assetimageprovider.h"
#include "designstore.h"
#include "imagecache.h"
#include "imagecacheprovider.h"
#include "mapper.h"
#include "mydesignsscreens.h"
#include "navigationcontroller.h"
#include "previewwriter.h"
#include "sampledocument.h"
#include "savedphotosvc.h"
#include "storyboard.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include <algorithm>
#include <cstdio>
#include <vector>

Q_IMPORT_QML_PLUGIN(Quillet_BrowsePlugin)
Q_IMPORT_QML_PLUGIN(Quillet_Designs_ScreensPlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)

namespace {

constexpr int designCount = 1000;
constexpr int runs = 5;

void fillStore()
{
    DesignStore store;
    for (int i = 0; i < designCount; ++i) {
        QImage preview(270, 480, QImage::Format_RGB32);
        preview.fill(QColor::fromHsv(i * 37 % 360, 160, 220));
        auto design = makeSampleDocument(8, i);
        design->sample_image = PreviewWriter::write(preview);
        design->is_Video = i % 3 == 0;
        if (design->is_Video)
            design->sample_video
                = QUrl::fromLocalFile(AppPaths::documents() + QStringLiteral("/%1.mov").arg(i)).toString();
        store.saveDesign(*Mapper::toJSONString(*design, true), std::nullopt, design->is_Video);
    }
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/** Every cell of the first screen shows its picture. */
bool firstScreenShown(QQuickItem *grid)
{
    const int cells = std::min(grid->property("count").toInt(), 8);
    for (int i = 1; i < cells; ++i) {
        QQuickItem *cell = nullptr;
        QMetaObject::invokeMethod(grid, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, cell), Q_ARG(int, i));
        if (!cell || !cell->property("pictureShown").toBool())
            return false;
    }
    return cells > 1;
}

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir home;
    qputenv("QUILLET_HOME", home.path().toUtf8());
    QGuiApplication app(argc, argv);
    std::FILE *quiet = std::fopen("/dev/null", "w");
    AppLog::setOutput(quiet); // the store prints every row it reads
    AppPaths::ensureCreated();
    fillStore();

    Storyboard storyboard;
    MyDesignsScreens::registerScreens(storyboard);
    NavigationController navigation;
    navigation.setRoot(new ViewController());
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.addImageProvider(QStringLiteral("cache"), new ImageCacheProvider());
    engine.addImageProvider(QStringLiteral("assets"), new AssetImageProvider());
    QQuickWindow window;
    window.resize(390, 844);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;

    std::vector<double> reads;
    std::vector<double> firstFrames;
    for (int run = 0; run < runs; ++run) {
        ImageCache::shared().clearMemory(); // each run decodes the previews again
        QElapsedTimer timer;
        timer.start();
        auto *list = qobject_cast<SavedPhotosVC *>(storyboard.instantiate(QStringLiteral("SavedPhotosVC")));
        navigation.push(list, false);
        reads.push_back(double(timer.nsecsElapsed()) / 1e6);
        QQmlComponent component(&engine, list->viewUrl());
        std::unique_ptr<QQuickItem> view(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
            { { QStringLiteral("vc"), QVariant::fromValue(static_cast<QObject *>(list)) } })));
        if (!view) {
            std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
            return 1;
        }
        view->setParentItem(window.contentItem());
        view->setSize(QSizeF(390, 844));
        QQuickItem *grid = view->findChild<QQuickItem *>(QStringLiteral("collectionView"));
        bool shown = false;
        const auto connection = QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&] {
            if (!shown && firstScreenShown(grid)) {
                shown = true;
                firstFrames.push_back(double(timer.nsecsElapsed()) / 1e6);
            }
        });
        if (!QTest::qWaitFor([&] { return shown; }, 30000))
            return 1;
        QObject::disconnect(connection);
        if (run == 0)
            std::printf(
                "rows: %d designs, %lld cells\n", designCount, static_cast<long long>(list->items()->rowCount()));
        view.reset();
        navigation.pop(false);
        QCoreApplication::processEvents();
    }
    std::printf("reading the list (SavedPhotosVC load): median %.1f ms over %d runs\n", median(reads), runs);
    std::printf("asking for the tab to the first screen of cells with pictures: median %.1f ms over %d runs\n",
        median(firstFrames), runs);
    return 0;
}
