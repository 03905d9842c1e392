// Time to draw a 20-layer design as SAVE draws it: a 1080 x 1920 template with a picture background,
// 10 stickers and 10 texts with shadows, opened in an editor on a phone-sized canvas and rendered at
// factor 1 (Original, 1080 x 1920) and 2 (HD, 2160 x 3840). Real time is the wall clock of one render,
// CPU time counts every thread of the process.
#include "editimageportraitmode.h"
#include "imagesaveflow.h"
#include "mapper.h"

#include <QGuiApplication>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

QImage stickerPicture(int seed)
{
    QImage image(400, 400, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(QColor::fromHsv(seed * 36 % 360, 200, 230));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QRectF(20, 20, 360, 360));
    return image;
}

// A photograph stand-in: a gradient with grain, so that it compresses and scales like one.
QImage backgroundPicture()
{
    QImage image(1080, 1920, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int grain = int(random.bounded(24));
            line[x] = qRgb(40 + x * 150 / 1080 + grain, 90 + y * 120 / 1920 + grain, 160 + grain);
        }
    }
    return image;
}

nlohmann::ordered_json designJson(const QTemporaryDir &home)
{
    using nlohmann::ordered_json;
    const QString resource = home.filePath(QStringLiteral("resource"));
    QDir().mkpath(resource);
    backgroundPicture().save(resource + QStringLiteral("/background.jpg"), "JPEG", 92);
    ordered_json stickers = ordered_json::array();
    ordered_json texts = ordered_json::array();
    const char *fonts[] = { "BebasNeueRegular", "DancingScript", "LobsterTwo-BoldItalic" };
    for (int i = 0; i < 10; ++i) {
        const QString name = QStringLiteral("sticker%1.png").arg(i);
        stickerPicture(i).save(resource + QLatin1Char('/') + name);
        stickers.push_back({ { "sticker_image", name.toStdString() }, { "xPos", 60 + 90 * i }, { "yPos", 90 + 165 * i },
            { "width", 270 }, { "height", 270 }, { "angle", 11 * i }, { "color", i % 2 ? "E84342" : "FFFFFF" } });
        texts.push_back({ { "text", QStringLiteral("Summer sale %1\nup to 50% off").arg(i + 1).toStdString() },
            { "fontName", fonts[i % 3] }, { "size", 84 }, { "color", "220D2A" }, { "xPos", 30 },
            { "yPos", 60 + 180 * i }, { "angle", -6 * i }, { "shadowColor", "000000" }, { "shadowRadius", 12 },
            { "shadowDistance", 6 }, { "opacity", 100 } });
    }
    return { { "width", 1080 }, { "height", 1920 }, { "is_pip", false }, { "is_sample", false },
        { "is_offline", false }, { "background_json", { { "background_image", "background.jpg" } } },
        { "sticker_json", stickers }, { "text_json", texts } };
}

void renderDesign(benchmark::State &state)
{
    QTemporaryDir home;
    qputenv("QUILLET_HOME", home.path().toUtf8());
    EditImagePortraitMode session;
    session.setCanvasArea(QRectF(0, 0, 360, 640));
    if (!session.loadTemplate(Mapper::map<Json>(designJson(home)))) {
        state.SkipWithError("the design did not open");
        return;
    }
    ImageSaveFlow flow(session);
    const bool isHD = state.range(0) == 2;
    QSize size;
    for (auto _ : state) {
        const QImage picture = flow.render(isHD);
        size = picture.size();
        benchmark::DoNotOptimize(picture.constBits());
    }
    state.SetLabel(QStringLiteral("%1x%2").arg(size.width()).arg(size.height()).toStdString());
}
BENCHMARK(renderDesign)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
