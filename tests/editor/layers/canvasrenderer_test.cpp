#include "canvasrenderer.h"
#include "resizableimageview.h"
#include "resizableview.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

// The box of pixels that are not transparent.
QRect inked(const QImage &image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 128)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

QImage solid(const QColor &color)
{
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

} // namespace

TEST(CanvasRenderer, LeavesSelectionChromeOutOfTheExport)
{
    View canvas(QRectF(0, 0, 200, 200));
    auto *sticker = new ResizableImageView(QRectF(50, 50, 60, 60));
    sticker->contentImageView->setImage(solid(Qt::blue));
    canvas.addSubview(sticker);
    sticker->showControls();

    const QImage exported = CanvasRenderer::renderImage(canvas, QSize(200, 200));
    EXPECT_EQ(qAlpha(exported.pixel(60, 60)), 0); // the close handle's place
    EXPECT_EQ(exported.pixelColor(100, 100), QColor(Qt::blue));
    EXPECT_EQ(qAlpha(exported.pixel(10, 10)), 0); // transparency where the design has none

    QImage screen(200, 200, QImage::Format_ARGB32_Premultiplied);
    screen.fill(Qt::transparent);
    QPainter painter(&screen);
    CanvasRenderer::render(painter, canvas, 1.0, CanvasRenderer::Chrome::Shown);
    painter.end();
    EXPECT_GT(qAlpha(screen.pixel(64, 64)), 0);
}

TEST(CanvasRenderer, DrawsTurnedLayersAboutTheirCentreWithAlpha)
{
    View canvas(QRectF(0, 0, 200, 200));
    auto *sticker = new ResizableImageView(QRectF(36, 76, 100, 20)); // picture 100 x 20 centred at (100, 100)
    sticker->contentImageView->setImage(solid(Qt::red));
    sticker->contentImageView->setContentMode(ImageView::ContentMode::ScaleToFill);
    sticker->contentImageView->setAlpha(0.5);
    canvas.addSubview(sticker);
    sticker->rotate(std::numbers::pi / 2);

    const QImage image = CanvasRenderer::renderImage(canvas, QSize(400, 400));
    EXPECT_NEAR(qAlpha(image.pixel(200, 110)), 128, 2);
    EXPECT_EQ(qAlpha(image.pixel(140, 200)), 0); // was inside before the turn
    EXPECT_NEAR(qAlpha(image.pixel(200, 290)), 128, 2);
}

TEST(CanvasRenderer, TextLaysOutTheSameAtEveryScale)
{
    View canvas(QRectF(0, 0, 300, 200));
    auto *text = new ResizableView(QRectF(10, 10, 100, 100));
    canvas.addSubview(text);
    text->textView->foregroundColor = QColor(Qt::black);
    text->textView->applyForegroundColor();
    text->textView->setText(QStringLiteral("Wrap these words at the edge"));
    text->textView->fontName = QStringLiteral("BebasNeue-Regular");
    text->textView->fontSize = 24;
    text->textView->applyFontName();
    text->maxWidth = 160;
    text->resizeToFitText();

    const QRect one = inked(CanvasRenderer::renderImage(canvas, QSize(300, 200)));
    const QRect two = inked(CanvasRenderer::renderImage(canvas, QSize(600, 400)));
    ASSERT_FALSE(one.isEmpty());
    EXPECT_NEAR(two.left(), 2 * one.left(), 3);
    EXPECT_NEAR(two.right(), 2 * one.right(), 3);
    EXPECT_NEAR(two.bottom(), 2 * one.bottom(), 3);
    // The ink stays inside the area that sizeThatFits gave the layer.
    const QRectF area = text->mainView->frame().translated(text->frame().topLeft());
    EXPECT_TRUE(area.adjusted(-1, -1, 1, 1).contains(QRectF(one)));
}

TEST(CanvasRenderer, StretchesToTheTargetWhenTheAspectDiffers)
{
    View canvas(QRectF(0, 0, 100, 200));
    canvas.setBackgroundColor(Qt::green);
    const QImage image = CanvasRenderer::renderImage(canvas, QSize(300, 300));
    EXPECT_EQ(image.size(), QSize(300, 300));
    EXPECT_EQ(image.pixelColor(290, 290), QColor(Qt::green));
    EXPECT_TRUE(CanvasRenderer::renderImage(canvas, QSize(0, 10)).isNull());
}
