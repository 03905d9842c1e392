#pragma once

#include <QImage>
#include <QRect>

class CropViewController;

/**
 * The screen that presented the crop screen. It is given the cut picture, or told that the user
 * cancelled, and dismisses the crop screen itself.
 */
class CropTarget
{
public:
    virtual ~CropTarget() = default;

    /**
     * The picture as cut. `rect` is the cut in pixels of the full picture turned by `angle`, in clockwise
     * degrees (0, 90, 180 or 270).
     */
    virtual void cropViewControllerDidCrop(
        CropViewController &cropViewController, const QImage &image, const QRect &rect, int angle)
        = 0;
    virtual void cropViewControllerDidFinishCancelled(CropViewController &cropViewController) = 0;
};
