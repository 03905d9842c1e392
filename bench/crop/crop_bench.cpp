// The crop screen on a 12-megapixel photograph (4032 x 3024 JPEG): reading the file, the screen's copy of
// the picture made off the GUI thread, and the full-resolution cut at each quarter turn.
#include "cropbox.h"
#include "cropviewcontroller.h"
#include "imagedecoder.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

const QSize photoSize(4032, 3024);

/** A photograph-like JPEG, written once for the run. */
const QString &photoPath()
{
    static QTemporaryDir dir;
    static const QString path = [] {
        QImage image(photoSize, QImage::Format_RGB32);
        QPainter p(&image);
        QLinearGradient sky(0, 0, photoSize.width(), photoSize.height());
        sky.setColorAt(0, QColor(40, 90, 170));
        sky.setColorAt(1, QColor(240, 170, 120));
        p.fillRect(image.rect(), sky);
        for (int i = 0; i < 40; ++i)
            p.fillRect(QRect(i * 97, (i * 61) % 2800, 300, 200), QColor::fromHsv(i * 9, 160, 200));
        p.end();
        QString file = dir.filePath(QStringLiteral("photo.jpg"));
        image.save(file, "JPEG", 90);
        return file;
    }();
    return path;
}

const QImage &photo()
{
    static const QImage image = ImageDecoder::decodeFile(photoPath());
    return image;
}

void decodePhoto(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(ImageDecoder::decodeFile(photoPath()));
}
BENCHMARK(decodePhoto)->Unit(benchmark::kMillisecond)->UseRealTime();

/** From the picture given to the crop screen until its smaller copy is on screen. */
void showOnCropScreen(benchmark::State &state)
{
    for (auto _ : state) {
        CropViewController crop;
        QEventLoop loop;
        QObject::connect(&crop, &CropViewController::busyChanged, &loop, [&] {
            if (!crop.isBusy())
                loop.quit();
        });
        crop.setImage(photo());
        if (crop.isBusy())
            loop.exec();
        benchmark::DoNotOptimize(crop.preview());
    }
}
BENCHMARK(showOnCropScreen)->Unit(benchmark::kMillisecond)->UseRealTime();

/** A cut of nine tenths of each side, turned by 0, 90, 180 or 270 degrees. */
void cut(benchmark::State &state)
{
    const int angle = int(state.range(0));
    const QSize turned = angle % 180 == 0 ? photoSize : photoSize.transposed();
    const QRect rect(turned.width() / 20, turned.height() / 20, turned.width() * 9 / 10, turned.height() * 9 / 10);
    for (auto _ : state)
        benchmark::DoNotOptimize(CropBox::crop(photo(), rect, angle));
}
BENCHMARK(cut)->DenseRange(0, 270, 90)->Unit(benchmark::kMillisecond)->UseRealTime();

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
