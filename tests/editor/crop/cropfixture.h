#pragma once

#include "cropviewcontroller.h"
#include "imagepickertarget.h"
#include "navigationcontroller.h"
#include "viewcontroller.h"

#include <QImage>
#include <QStringList>
#include <QTest>

#include <optional>

/** A picture whose every pixel names its own place, so that a cut can be checked pixel by pixel. */
inline QImage codedPicture(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            line[x] = qRgb(x & 0xFF, y & 0xFF, ((x >> 8) << 4 | (y >> 8)) & 0xFF);
    }
    return image;
}

/** The crop screen's result as its presenter receives it. */
class CropRecorder : public CropTarget
{
public:
    void cropViewControllerDidCrop(CropViewController &, const QImage &cut, const QRect &cutRect, int cutAngle) override
    {
        image = cut;
        rect = cutRect;
        angle = cutAngle;
    }
    void cropViewControllerDidFinishCancelled(CropViewController &) override { ++cancels; }

    std::optional<QImage> image;
    QRect rect;
    int angle = -1;
    int cancels = 0;
};

/**
 * The editor as the picture sheet and the crop screen see it: it records each operation, with the screen
 * that was on top of its stack when the operation came.
 */
class FakeEditor : public ViewController, public ImagePickerTarget
{
public:
    [[nodiscard]] int imagePickerTag() const override { return tag; }
    void setImagePickerTag(int value) override { tag = value; }
    void keepBgOriginalFrame() override { record(QStringLiteral("keepBgOriginalFrame")); }
    void replaceSelectedLayerImage(const QImage &image) override { record(QStringLiteral("layer"), image); }
    void setBackgroundImage(const QImage &image) override { record(QStringLiteral("background"), image); }
    [[nodiscard]] bool hasSelectedSlot() const override { return slotSelected; }
    void addSticker(const QImage &image) override { record(QStringLiteral("sticker"), image); }
    void replaceSelectedSlotImage(const QImage &image) override { record(QStringLiteral("slot"), image); }

    int tag = 0;
    bool slotSelected = false;
    /** The operations in order, each with the screen on top when it came ("background on FakeEditor"). */
    QStringList calls;
    QImage picture;

private:
    void record(const QString &operation, const QImage &image = {})
    {
        const NavigationController *stack = navigationController();
        const ViewController *top = stack ? stack->topViewController() : nullptr;
        calls.append(
            operation + QStringLiteral(" on ") + (top == this ? QStringLiteral("editor") : QStringLiteral("other")));
        if (!image.isNull())
            picture = image;
    }
};

inline bool waitFor(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, 20000);
}
