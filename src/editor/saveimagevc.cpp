#include "saveimagevc.h"

#include "applog.h"
#include "apppaths.h"
#include "fullscreenvc.h"
#include "navigationcontroller.h"
#include "printinteractioncontroller.h"
#include "reviewprompt.h"
#include "sharesheet.h"
#include "storyboard.h"

#include <QDir>
#include <QFileInfo>
#include <QtConcurrent>

SaveImageVC::SaveImageVC(QObject *parent)
    : SaveResultVC(parent)
{
    connect(&m_albumSave, &QFutureWatcherBase::finished, this, [this] {
        const AlbumResult result = m_albumSave.result();
        if (result.file.isEmpty())
            AppLog::print(QStringLiteral("Could not save the picture to the album: ") + result.error);
        setAlbumFile(result.file);
        Q_EMIT albumSaveFinished();
        ReviewPrompt::requestReview(navigationController());
    });
}

SaveImageVC::~SaveImageVC()
{
    AppLog::print(QStringLiteral("SaveImageVC is being dismissed"));
}

void SaveImageVC::viewDidLoad()
{
    saveToAlbum();
}

void SaveImageVC::saveToAlbum()
{
    switch (photoAlbum().requestAuthorization()) {
    case PhotoAlbum::AuthorizationStatus::Authorized:
        break;
    case PhotoAlbum::AuthorizationStatus::Denied:
        AppLog::print(QStringLiteral("Not allowed"));
        showPermissionAlert(tr("Allow Permission"),
            tr("\"Quillet\" needs Photos permission to save card to your device"), tr("Settings"), true);
        Q_EMIT albumSaveFinished();
        return;
    case PhotoAlbum::AuthorizationStatus::NotDetermined:
        AppLog::print(QStringLiteral("Not determined yet"));
        Q_EMIT albumSaveFinished();
        return;
    }
    const AddAsset add = [data = editedImageData](PhotoAlbum &album, QString *error) {
        return album.addAsset(data, QStringLiteral(".png"), error);
    };
    m_albumSave.setFuture(QtConcurrent::run(addToAlbum, photoAlbum(), add));
}

QString SaveImageVC::shareFile() const
{
    if (!albumFile().isEmpty() && QFileInfo::exists(albumFile()))
        return albumFile();
    const std::shared_ptr<Json> json = contentJson.lock();
    if (json && json->sample_image && !json->sample_image->isEmpty()) {
        const QString preview = QDir(AppPaths::documents()).filePath(*json->sample_image);
        if (QFileInfo::exists(preview))
            return preview;
    }
    return {};
}

void SaveImageVC::shareClicked()
{
    NavigationController *navigation = navigationController();
    const QString file = shareFile();
    if (!navigation || file.isEmpty()) {
        AppLog::print(QStringLiteral("There is no picture file to share"));
        return;
    }
    navigation->presentAlert(ShareSheet::make(file, editedImage));
}

void SaveImageVC::printClicked()
{
    PrintInteractionController::presentFor(editedImage, navigationController(), storyboard());
}

void SaveImageVC::deleteClicked()
{
    confirmDelete(tr("Are you sure you want to delete this image?"), tr("Cancel"), [screen = QPointer(this)] {
        if (!screen)
            return;
        QString error;
        if (!screen->photoAlbum().deleteLastImageAsset(&error))
            AppLog::print(QStringLiteral("Could not delete the picture: ") + error);
        screen->setAlbumFile(QString());
        if (NavigationController *stack = screen->navigationController())
            stack->pop();
    });
}

void SaveImageVC::btnFullScreenClicked()
{
    NavigationController *navigation = navigationController();
    auto *screen = storyboard()
        ? qobject_cast<FullScreenVC *>(storyboard()->instantiate(QStringLiteral("FullScreenVC")))
        : nullptr;
    if (!navigation || !screen) {
        delete screen;
        return;
    }
    screen->imageToDisplay = editedImage;
    navigation->push(screen);
}
