#include "saveresultvc.h"

#include "alertmodel.h"
#include "navigationcontroller.h"
#include "reviewprompt.h"
#include "userdefaults.h"

#include <QDesktopServices>
#include <QUrl>

SaveResultVC::AlbumResult SaveResultVC::addToAlbum(PhotoAlbum album, const AddAsset &add)
{
    AlbumResult result;
    if (album.exists() || album.create(&result.error))
        result.file = add(album, &result.error);
    return result;
}

void SaveResultVC::backPressed()
{
    if (NavigationController *navigation = navigationController())
        navigation->pop();
}

void SaveResultVC::homeClicked()
{
    if (NavigationController *navigation = navigationController())
        navigation->popToRoot();
}

void SaveResultVC::btnRateClicked()
{
    UserDefaults::standard().setBoolean(DefaultsKey::isRatted, true);
    ReviewPrompt::openReviewPage();
}

void SaveResultVC::setAlbumFile(const QString &file)
{
    m_albumFile = file;
}

void SaveResultVC::showPermissionAlert(
    const QString &title, const QString &message, const QString &settingsTitle, bool withCancel)
{
    NavigationController *navigation = navigationController();
    if (!navigation)
        return;
    auto *alert = new AlertModel(title, message);
    // The desktop's settings for the album are the folder's own: the file manager opens where it should be.
    alert->addAction(settingsTitle, AlertModel::Style::Default,
        [location = PhotoAlbum::picturesLocation()] { QDesktopServices::openUrl(QUrl::fromLocalFile(location)); });
    if (withCancel)
        alert->addAction(tr("Cancel"), AlertModel::Style::Cancel);
    navigation->presentAlert(alert);
}

void SaveResultVC::confirmDelete(const QString &message, const QString &cancelTitle, std::function<void()> remove)
{
    NavigationController *navigation = navigationController();
    if (!navigation)
        return;
    auto *alert = new AlertModel(tr("Confirm"), message);
    alert->addAction(cancelTitle, AlertModel::Style::Cancel);
    alert->addAction(tr("DELETE"), AlertModel::Style::Destructive, std::move(remove));
    navigation->presentAlert(alert);
}
