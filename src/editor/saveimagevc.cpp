#include "saveimagevc.h"

#include "alertmodel.h"
#include "applog.h"
#include "apppaths.h"
#include "fullscreenvc.h"
#include "navigationcontroller.h"
#include "printinteractioncontroller.h"
#include "reviewprompt.h"
#include "sharesheet.h"
#include "storyboard.h"
#include "userdefaults.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <QtConcurrent>

SaveImageVC::SaveImageVC(QObject *parent)
    : ViewController(parent)
{
    connect(&m_albumSave, &QFutureWatcherBase::finished, this, [this] {
        const AlbumResult result = m_albumSave.result();
        if (result.file.isEmpty())
            AppLog::print(QStringLiteral("Could not save the picture to the album: ") + result.error);
        m_albumFile = result.file;
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
    switch (m_album.requestAuthorization()) {
    case PhotoAlbum::AuthorizationStatus::Authorized:
        break;
    case PhotoAlbum::AuthorizationStatus::Denied:
        AppLog::print(QStringLiteral("Not allowed"));
        showPermissionAlert();
        Q_EMIT albumSaveFinished();
        return;
    case PhotoAlbum::AuthorizationStatus::NotDetermined:
        AppLog::print(QStringLiteral("Not determined yet"));
        Q_EMIT albumSaveFinished();
        return;
    }
    m_albumSave.setFuture(QtConcurrent::run([album = m_album, data = editedImageData]() mutable {
        AlbumResult result;
        if (album.exists() || album.create(&result.error))
            result.file = album.addAsset(data, QStringLiteral(".png"), &result.error);
        return result;
    }));
}

void SaveImageVC::showPermissionAlert()
{
    NavigationController *navigation = navigationController();
    if (!navigation)
        return;
    auto *alert
        = new AlertModel(tr("Allow Permission"), tr("\"Quillet\" needs Photos permission to save card to your device"));
    // The desktop's settings for the album are the folder's own: the file manager opens where it should be.
    alert->addAction(tr("Settings"), AlertModel::Style::Default,
        [location = PhotoAlbum::picturesLocation()] { QDesktopServices::openUrl(QUrl::fromLocalFile(location)); });
    alert->addAction(tr("Cancel"), AlertModel::Style::Cancel);
    navigation->presentAlert(alert);
}

void SaveImageVC::backPressed()
{
    if (NavigationController *navigation = navigationController())
        navigation->pop();
}

void SaveImageVC::homeClicked()
{
    if (NavigationController *navigation = navigationController())
        navigation->popToRoot();
}

QString SaveImageVC::shareFile() const
{
    if (!m_albumFile.isEmpty() && QFileInfo::exists(m_albumFile))
        return m_albumFile;
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

void SaveImageVC::fbClicked()
{
    shareClicked();
}

void SaveImageVC::whatsappClicked()
{
    shareClicked();
}

void SaveImageVC::instaClicked()
{
    shareClicked();
}

void SaveImageVC::printClicked()
{
    PrintInteractionController::presentFor(editedImage, navigationController(), m_storyboard);
}

void SaveImageVC::deleteClicked()
{
    NavigationController *navigation = navigationController();
    if (!navigation)
        return;
    auto *alert = new AlertModel(tr("Confirm"), tr("Are you sure you want to delete this image?"));
    alert->addAction(tr("Cancel"), AlertModel::Style::Cancel);
    alert->addAction(tr("DELETE"), AlertModel::Style::Destructive, [screen = QPointer(this)] {
        if (!screen)
            return;
        QString error;
        if (!screen->m_album.deleteLastImageAsset(&error))
            AppLog::print(QStringLiteral("Could not delete the picture: ") + error);
        screen->m_albumFile.clear();
        if (NavigationController *stack = screen->navigationController())
            stack->pop();
    });
    navigation->presentAlert(alert);
}

void SaveImageVC::btnRateClicked()
{
    UserDefaults::standard().setBoolean(DefaultsKey::isRatted, true);
    ReviewPrompt::openReviewPage();
}

void SaveImageVC::btnFullScreenClicked()
{
    NavigationController *navigation = navigationController();
    auto *screen = m_storyboard
        ? qobject_cast<FullScreenVC *>(m_storyboard->instantiate(QStringLiteral("FullScreenVC")))
        : nullptr;
    if (!navigation || !screen) {
        delete screen;
        return;
    }
    screen->imageToDisplay = editedImage;
    navigation->push(screen);
}
