#include "picturesourcesheet.h"

#include "cameracapturevc.h"
#include "cropviewcontroller.h"
#include "navigationcontroller.h"
#include "pickedpicture.h"
#include "storyboard.h"

#include <QCameraDevice> // before QMediaDevices, whose header needs it complete
#include <QMediaDevices>
#include <QVariantMap>

namespace {

constexpr int galleryRow = 0;
constexpr int cameraRow = 1;

QVariantMap row(const QString &title, const QString &image, bool enabled, const QString &detail)
{
    return { { QStringLiteral("title"), title }, { QStringLiteral("image"), image },
        { QStringLiteral("enabled"), enabled }, { QStringLiteral("detail"), detail } };
}

} // namespace

PictureSourceSheet::PictureSourceSheet(QObject *parent)
    : ViewController(parent)
{ }

PictureSourceSheet *PictureSourceSheet::open(
    const Storyboard &storyboard, NavigationController &navigation, int imagePickerTag, bool hasImage)
{
    auto *sheet = qobject_cast<PictureSourceSheet *>(storyboard.instantiate(QStringLiteral("PictureSourceSheet")));
    if (!sheet)
        return nullptr;
    sheet->imagePickerTag = imagePickerTag;
    sheet->hasImage = hasImage;
    navigation.push(sheet);
    return sheet;
}

void PictureSourceSheet::lookForCameras()
{
    const bool found = !QMediaDevices::videoInputs().isEmpty();
    if (found == m_hasCamera)
        return;
    m_hasCamera = found;
    Q_EMIT rowsChanged();
}

QVariantList PictureSourceSheet::rows() const
{
    const bool camera = m_hasCamera;
    return { row(QStringLiteral("Gallery"), QStringLiteral("bg_album"), true, QString()),
        row(QStringLiteral("Camera"), QStringLiteral("bg_camera"), camera,
            camera ? QString() : QStringLiteral("No camera on this device")) };
}

void PictureSourceSheet::viewDidLoad()
{
    setTitle(hasImage ? QStringLiteral("Replace Image From") : QStringLiteral("Choose Image From"));
    const NavigationController *stack = navigationController();
    const QList<ViewController *> screens = stack ? stack->viewControllers() : QList<ViewController *>();
    const qsizetype below = screens.indexOf(this) - 1;
    m_opener = below >= 0 ? screens.at(below) : nullptr;
    if (auto *target = dynamic_cast<ImagePickerTarget *>(m_opener.data())) {
        target->keepBgOriginalFrame();
        target->setImagePickerTag(imagePickerTag);
    }
    m_devices = new QMediaDevices(this);
    connect(m_devices, &QMediaDevices::videoInputsChanged, this, &PictureSourceSheet::lookForCameras);
    lookForCameras();
}

void PictureSourceSheet::selectRow(int row)
{
    NavigationController *stack = navigationController();
    if (row == galleryRow) {
        Q_EMIT galleryRequested();
    } else if (row == cameraRow && m_hasCamera && stack && m_storyboard) {
        auto *camera = qobject_cast<CameraCaptureVC *>(m_storyboard->instantiate(QStringLiteral("CameraCaptureVC")));
        if (!camera)
            return;
        connect(camera, &CameraCaptureVC::pictureTaken, this, &PictureSourceSheet::pictureChosen);
        stack->push(camera);
    }
}

void PictureSourceSheet::pickedFile(const QUrl &file)
{
    if (m_preparing)
        return;
    m_preparing = true;
    Q_EMIT isPreparingChanged();
    PickedPicture::decode(this, file, [this](const QImage &picture) {
        m_preparing = false;
        Q_EMIT isPreparingChanged();
        if (!picture.isNull())
            pictureChosen(picture);
        else if (NavigationController *stack = navigationController())
            stack->presentAlert(PickedPicture::notAPictureAlert());
    });
}

void PictureSourceSheet::cancel()
{
    if (NavigationController *stack = navigationController(); stack && stack->topViewController() == this)
        stack->dismiss();
}

void PictureSourceSheet::pictureChosen(const QImage &picture)
{
    NavigationController *stack = navigationController();
    if (!stack || !m_storyboard || !m_opener)
        return;
    // The sheet and the camera go first, so that the crop screen's dismissal returns to the opener.
    ViewController *opener = m_opener;
    const Storyboard *storyboard = m_storyboard;
    stack->popTo(opener, false);
    CropViewController::present(*storyboard, *stack, picture, dynamic_cast<CropTarget *>(opener));
}
