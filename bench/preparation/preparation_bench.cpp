// Tap to ready for a template of 25 pictures and 3 missing fonts behind 50 ms of latency, against the
// sum of the same requests made one at a time: the preparation's gain from asking for everything at once.
#include "applog.h"
#include "extendedpack.h"
#include "imagecache.h"
#include "navigationcontroller.h"
#include "preparationscreens.h"
#include "qffontpicker.h"
#include "serverclient.h"
#include "showimagesample.h"
#include "storyboard.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

constexpr long long benchJsonId = 9900;
constexpr int latencyMs = 50;

QStringList pictures()
{
    QStringList names;
    for (int i = 0; i < 10; ++i)
        names.append(QStringLiteral("abstract_%1.jpg").arg(i));
    for (int i = 0; i < 12; ++i)
        names.append(QStringLiteral("photo_%1.jpg").arg(i));
    names << QStringLiteral("tpl_1001.webp") << QStringLiteral("tpl_1002.webp") << QStringLiteral("tpl_1003.jpg");
    return names;
}

const QStringList fontFiles = { QStringLiteral("Quicksand-Bold.ttf"), QStringLiteral("Cabin-Regular.otf"),
    QStringLiteral("OpenSans-Bold.ttf") };

nlohmann::json benchTemplate()
{
    nlohmann::json json = { { "json_id", benchJsonId }, { "is_pip", false }, { "is_sample", false },
        { "is_offline", false }, { "width", 1080.0 }, { "height", 1920.0 }, { "sample_image", "tpl_1001.jpg" } };
    for (const QString &name : pictures())
        json["sticker_json"].push_back(
            { { "sticker_image", name.toStdString() }, { "width", 200 }, { "height", 200 } });
    int face = 0;
    for (const QString &file : fontFiles)
        json["text_json"].push_back({ { "text", "Bench" }, { "fontName", "BenchFace" + std::to_string(face++) },
            { "fontPath", "fonts/" + file.toStdString() } });
    return json;
}

ExtendedPack &pack()
{
    static ExtendedPack *served = [] {
        auto *extended = new ExtendedPack();
        extended->addTemplate(benchTemplate());
        if (!extended->start())
            std::fprintf(stderr, "content server did not start\n");
        extended->server().setLatency(std::chrono::milliseconds(latencyMs));
        return extended;
    }();
    return *served;
}

/** A fresh application home, so that no cache, font list or token carries over. */
struct FreshHome
{
    FreshHome() { qputenv("QUILLET_HOME", dir.path().toUtf8()); }
    QTemporaryDir dir;
};

void tapToReady(benchmark::State &state)
{
    ExtendedPack &served = pack();
    const QUrl apiBase(served.apiBase());
    for (auto _ : state) {
        state.PauseTiming();
        FreshHome home;
        ImageCache::shared().clearMemory();
        QNetworkAccessManager network;
        ServerClient client(&network, apiBase);
        QFFontpicker fontpicker(&network, FontpickerConnection { 37, {}, {}, apiBase, {}, {}, {} });
        fontpicker.start();
        Storyboard storyboard;
        PreparationScreens::registerScreens(storyboard, &client, &fontpicker);
        NavigationController navigation;
        navigation.setRoot(new ViewController());
        auto *screen = static_cast<ShowImageSample *>(storyboard.instantiate(QStringLiteral("ShowImageSample")));
        auto card = std::make_shared<Json>();
        card->json_id = benchJsonId;
        card->width = 1080;
        card->height = 1920;
        card->is_offline = false;
        card->sample_image = QStringLiteral("tpl_1001.jpg");
        screen->contentJson = card;
        QEventLoop loop;
        QObject::connect(screen, &TemplateSample::stateChanged, &loop, [&] {
            if (screen->state() != TemplateSample::State::Loading)
                loop.quit();
        });
        state.ResumeTiming();
        navigation.push(screen, false); // the tap
        if (screen->state() == TemplateSample::State::Loading)
            loop.exec();
        if (screen->state() != TemplateSample::State::Ready)
            state.SkipWithError("the template did not get ready");
    }
}

/** One request after the other: sign-in, template, each font, each picture; the sum of their times. */
void singleRequestsInTurn(benchmark::State &state)
{
    ExtendedPack &served = pack();
    QNetworkAccessManager network;
    auto timed = [&](QNetworkRequest request, const QByteArray *body) {
        QElapsedTimer timer;
        timer.start();
        QNetworkReply *reply = body ? network.post(request, *body) : network.get(request);
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        reply->deleteLater();
        return timer.nsecsElapsed();
    };
    for (auto _ : state) {
        qint64 sum = 0;
        QNetworkRequest api(QUrl(served.apiBase() + QStringLiteral("doLoginForGuest")));
        api.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
        const QByteArray empty("{}");
        sum += timed(api, &empty);
        api.setUrl(QUrl(served.apiBase() + QStringLiteral("getJsonData")));
        const QByteArray body = QByteArray("{\"json_id\":") + QByteArray::number(benchJsonId) + '}';
        sum += timed(api, &body);
        for (const QString &file : fontFiles)
            sum += timed(QNetworkRequest(QUrl(served.contentBase() + QStringLiteral("fonts/") + file)), nullptr);
        for (const QString &name : pictures())
            sum += timed(QNetworkRequest(QUrl(served.contentBase() + QStringLiteral("resource/") + name)), nullptr);
        state.SetIterationTime(double(sum) / 1e9);
    }
}

BENCHMARK(tapToReady)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(singleRequestsInTurn)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(3);

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QTemporaryDir home;
    qputenv("QUILLET_HOME", home.path().toUtf8());
    std::FILE *quiet = std::fopen("/dev/null", "w");
    AppLog::setOutput(quiet);
    AppLog::setOutput(quiet);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    AppLog::setOutput(stdout);
    AppLog::setOutput(stdout);
    std::fclose(quiet);
    return 0;
}
