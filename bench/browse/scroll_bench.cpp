// Scrolling a grid of 200 story cards at a steady speed, down and back up, in a phone-sized window:
// frame intervals as the window presents them, and the frames missed against a 60 Hz clock. The first
// pass fetches and decodes every picture as its card comes into view; the second finds them in the cache.
// Run under Xvfb: xvfb-run -a build/bin/browse_scroll_bench
#include "applog.h"
#include "assetimageprovider.h"
#include "browsepack.h"
#include "browsescreens.h"
#include "featuredtempvc.h"
#include "imagecacheprovider.h"
#include "navigationcontroller.h"
#include "serverclient.h"
#include "storyboard.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMutex>
#include <QNetworkAccessManager>
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

#include <sys/resource.h>
#include <time.h>

Q_IMPORT_QML_PLUGIN(Quillet_BrowsePlugin)
Q_IMPORT_QML_PLUGIN(Quillet_UiPlugin)

namespace {

constexpr int cardCount = 200;
constexpr double frameMs = 1000.0 / 60.0;
constexpr double pixelsPerSecond = 2400; // a brisk, steady scroll: about seven cards a second

/** Frame presentation times, taken on the render thread. */
class FrameClock
{
public:
    void start()
    {
        QMutexLocker lock(&m_mutex);
        m_timer.start();
        m_frames.clear();
    }
    void frame()
    {
        QMutexLocker lock(&m_mutex);
        if (m_timer.isValid())
            m_frames.push_back(double(m_timer.nsecsElapsed()) / 1e6);
    }
    [[nodiscard]] std::vector<double> take()
    {
        QMutexLocker lock(&m_mutex);
        m_timer.invalidate();
        return std::move(m_frames);
    }

private:
    QMutex m_mutex;
    QElapsedTimer m_timer;
    std::vector<double> m_frames;
};

/** CPU milliseconds of the calling thread, and of the whole process. */
double threadCpuMs()
{
    timespec t {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return double(t.tv_sec) * 1e3 + double(t.tv_nsec) / 1e6;
}
double processCpuMs()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    const auto ms = [](const timeval &v) { return double(v.tv_sec) * 1e3 + double(v.tv_usec) / 1e3; };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

void report(const char *pass, std::vector<double> frames, double seconds, double guiCpuMs, double processCpu)
{
    std::vector<double> intervals;
    for (size_t i = 1; i < frames.size(); ++i)
        intervals.push_back(frames[i] - frames[i - 1]);
    if (intervals.empty()) {
        std::printf("%s: no frames\n", pass);
        return;
    }
    long missed = 0;
    long late = 0;
    for (const double interval : intervals) {
        if (interval > 1.5 * frameMs) {
            ++late;
            missed += long(interval / frameMs + 0.5) - 1;
        }
    }
    std::sort(intervals.begin(), intervals.end());
    const auto at = [&intervals](double share) { return intervals[size_t(share * double(intervals.size() - 1))]; };
    std::printf("%s: %zu frames in %.2f s (%.1f fps); interval median %.1f ms, p95 %.1f ms, p99 %.1f ms, "
                "max %.1f ms; %ld late frames, %ld frames dropped at 60 Hz (%.1f %% of %ld)\n",
        pass, frames.size(), seconds, double(frames.size()) / seconds, at(0.5), at(0.95), at(0.99), intervals.back(),
        late, missed, 100.0 * double(missed) / (seconds * 60.0), long(seconds * 60.0));
    std::printf("    CPU per frame: GUI thread %.2f ms, whole process %.2f ms (all threads, server included)\n",
        guiCpuMs / double(frames.size()), processCpu / double(frames.size()));
}

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir home;
    qputenv("QUILLET_HOME", home.path().toUtf8());
    QGuiApplication app(argc, argv);
    std::FILE *quiet = std::fopen("/dev/null", "w");
    AppLog::setOutput(quiet);

    // Pictures the size of the sample pack's cards, one for every card.
    BrowsePack pack(cardCount, cardCount, QSize(540, 960));
    QNetworkAccessManager network;
    ServerClient client(&network, QUrl(pack.apiBase()));
    Storyboard storyboard;
    BrowseScreens::registerScreens(storyboard, &client, {});
    NavigationController navigation;
    navigation.setRoot(new ViewController());
    auto *grid = qobject_cast<FeaturedTempVC *>(storyboard.instantiate(QStringLiteral("FeaturedTempVC")));
    grid->cat_id = 301;
    navigation.push(grid, false);
    while (grid->items()->count() < cardCount) {
        if (!QTest::qWaitFor([grid] { return !grid->busy(); }, 30000))
            return 1;
        grid->footerRefresh();
    }
    if (!QTest::qWaitFor([grid] { return !grid->busy(); }, 30000))
        return 1;

    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.addImageProvider(QStringLiteral("cache"), new ImageCacheProvider());
    engine.addImageProvider(QStringLiteral("assets"), new AssetImageProvider());
    QQuickWindow window;
    window.resize(390, 844);
    QQmlComponent component(&engine, grid->viewUrl());
    std::unique_ptr<QQuickItem> view(qobject_cast<QQuickItem *>(
        component.createWithInitialProperties({ { QStringLiteral("vc"), QVariant::fromValue<QObject *>(grid) } })));
    if (!view) {
        std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        return 1;
    }
    view->setParentItem(window.contentItem());
    view->setSize(QSizeF(390, 844));
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;
    QQuickItem *gridView = view->findChild<QQuickItem *>(QStringLiteral("cardGrid"));
    QTest::qWait(1500); // the first screen's pictures

    FrameClock clock;
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window, [&clock] { clock.frame(); }, Qt::DirectConnection);
    const double end = gridView->property("contentHeight").toDouble() - window.height();
    std::printf("render loop: %s, graphics: %d; %d cards, %.0f px of content, %.0f px/s\n",
        qgetenv("QSG_RENDER_LOOP").isEmpty() ? "default" : qgetenv("QSG_RENDER_LOOP").constData(),
        int(window.rendererInterface()->graphicsApi()), cardCount, end, pixelsPerSecond);

    // Each frame moves the grid to where a steady scroll would be at that moment.
    for (const char *pass : { "pass 1 (pictures fetched, decoded off the GUI thread)", "pass 2 (pictures cached)" }) {
        for (const bool down : { true, false }) {
            QElapsedTimer timer;
            const double seconds = end / pixelsPerSecond;
            auto step = QObject::connect(&window, &QQuickWindow::afterAnimating, &window, [&] {
                const double travelled = std::min(end, pixelsPerSecond * double(timer.elapsed()) / 1000.0);
                gridView->setProperty("contentY", down ? travelled : end - travelled);
                window.update();
            });
            const double gui = threadCpuMs();
            const double process = processCpuMs();
            clock.start();
            timer.start();
            window.update();
            QTest::qWait(int(seconds * 1000));
            QObject::disconnect(step);
            std::vector<double> frames = clock.take();
            report(QByteArray(pass).append(down ? ", down" : ", up").constData(), std::move(frames), seconds,
                threadCpuMs() - gui, processCpuMs() - process);
        }
    }
    std::fclose(quiet);
    return 0;
}
