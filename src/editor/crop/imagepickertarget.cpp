#include "imagepickertarget.h"

#include "cropviewcontroller.h"

void ImagePickerTarget::cropViewControllerDidCrop(
    CropViewController &cropViewController, const QImage &image, const QRect & /*rect*/, int /*angle*/)
{
    cropViewController.dismiss();
    routeImage(image);
}

void ImagePickerTarget::cropViewControllerDidFinishCancelled(CropViewController &cropViewController)
{
    cropViewController.dismiss();
}

void ImagePickerTarget::routeImage(const QImage &image)
{
    switch (imagePickerTag()) {
    case selectedLayerTag:
        replaceSelectedLayerImage(image);
        break;
    case backgroundTag:
        setBackgroundImage(image);
        break;
    case stickerTag:
        if (hasSelectedSlot())
            replaceSelectedSlotImage(image);
        else
            addSticker(image);
        break;
    default:
        break;
    }
}
