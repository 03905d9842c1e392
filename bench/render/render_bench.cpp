// Time to draw a 1080 x 1920 design with 10 text and 10 sticker layers, as SAVE draws it, at factor 1
// (Original) and 2 (HD).
#include "canvasrenderer.h"
#include "resizableimageview.h"
#include "resizableview.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

QImage stickerPicture(int seed)
{
    QImage image(400, 400, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(QColor::fromHsv(seed * 36 % 360, 200, 230));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QRectF(20, 20, 360, 360));
    return image;
}

// The canvas as a phone shows it: 360 x 640 points for a 1080 x 1920 design.
std::unique_ptr<View> design()
{
    auto canvas = std::make_unique<View>(QRectF(0, 0, 360, 640));
    canvas->setBackgroundColor(QColor(0xF8, 0xC2, 0x21));
    const QStringList fonts { "BebasNeueRegular", "DancingScript", "LobsterTwo-BoldItalic" };
    for (int i = 0; i < 10; ++i) {
        auto *sticker = new ResizableImageView(QRectF(20 + 30 * i, 30 + 55 * i, 90, 90));
        sticker->contentImageView->tintedImage = stickerPicture(i);
        sticker->setStickerColor(i % 2 ? QColor(0xE8, 0x43, 0x42) : QColor(Qt::white));
        sticker->rotate(0.2 * i);
        sticker->hideControls();
        canvas->addSubview(sticker);

        auto *text = new ResizableView(QRectF(10, 20 + 60 * i, 100, 100));
        canvas->addSubview(text);
        text->textView->foregroundColor = QColor(0x22, 0x0D, 0x2A);
        text->textView->applyForegroundColor();
        text->textView->setText(QStringLiteral("Summer sale %1\nup to 50% off").arg(i + 1));
        text->textView->fontName = fonts.at(i % fonts.size());
        text->textView->fontSize = 28;
        text->textView->applyFontName();
        if (i % 2 == 0) {
            text->textView->textShadowColor = QColor(0, 0, 0, 160);
            text->textView->applyShadowColor();
            text->textView->textShadowBlur = 4;
            text->textView->applyShadowBlur();
            text->textView->textShadowOffset = QSizeF(2, 2);
            text->textView->applyShadowOffset();
        }
        text->maxWidth = 360;
        text->resizeToFitText();
        text->rotate(-0.1 * i);
        text->hideControls();
    }
    return canvas;
}

void renderDesign(benchmark::State &state)
{
    const int factor = int(state.range(0));
    const std::unique_ptr<View> canvas = design();
    const QSize target(1080 * factor, 1920 * factor);
    for (auto _ : state) {
        QImage picture = CanvasRenderer::renderImage(*canvas, target);
        benchmark::DoNotOptimize(picture.constBits());
    }
    state.SetLabel(QStringLiteral("%1x%2").arg(target.width()).arg(target.height()).toStdString());
}
BENCHMARK(renderDesign)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

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
