#include "cropscreens.h"

#include "cameracapturevc.h"
#include "cropviewcontroller.h"
#include "picturesourcesheet.h"
#include "storyboard.h"

namespace CropScreens {

void registerScreens(Storyboard &storyboard)
{
    const QString views = QStringLiteral("qrc:/Quillet/Editor/Crop/");
    storyboard.registerScreen<CropViewController>(
        QStringLiteral("CropViewController"), QUrl(views + QStringLiteral("CropViewControllerView.qml")));
    storyboard.registerScreen<CameraCaptureVC>(
        QStringLiteral("CameraCaptureVC"), QUrl(views + QStringLiteral("CameraCaptureVCView.qml")));
    storyboard.registerFactory(QStringLiteral("PictureSourceSheet"),
        QUrl(views + QStringLiteral("PictureSourceSheetView.qml")), [&storyboard] {
            auto *sheet = new PictureSourceSheet();
            sheet->setStoryboard(&storyboard);
            return sheet;
        });
}

} // namespace CropScreens
