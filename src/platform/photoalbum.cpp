#include "photoalbum.h"

#include <QDateTime>
#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace {

const QStringList imageSuffixes { QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("jpeg"),
    QStringLiteral("gif"), QStringLiteral("webp"), QStringLiteral("heic") };

QDateTime creationDate(const QFileInfo &file)
{
    const QDateTime born = file.birthTime();
    return born.isValid() ? born : file.metadataChangeTime();
}

} // namespace

QString PhotoAlbum::picturesLocation()
{
    if (const QString pictures = qEnvironmentVariable("QUILLET_PICTURES"); !pictures.isEmpty())
        return QDir::cleanPath(pictures);
    if (const QString home = qEnvironmentVariable("QUILLET_HOME"); !home.isEmpty())
        return QDir::cleanPath(home) + QStringLiteral("/Pictures");
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

PhotoAlbum::PhotoAlbum(const QString &title)
    : m_folder(picturesLocation() + QLatin1Char('/') + title)
{ }

PhotoAlbum PhotoAlbum::atFolder(const QString &folder)
{
    PhotoAlbum album;
    album.m_folder = QDir::cleanPath(QDir(folder).absolutePath());
    return album;
}

PhotoAlbum::AuthorizationStatus PhotoAlbum::requestAuthorization()
{
    // The album is made in the nearest folder that exists, so that folder decides.
    QFileInfo nearest(m_folder);
    while (!nearest.exists() && !nearest.isRoot())
        nearest = QFileInfo(nearest.absolutePath());
    m_status = nearest.isDir() && nearest.isWritable() ? AuthorizationStatus::Authorized : AuthorizationStatus::Denied;
    return m_status;
}

bool PhotoAlbum::exists() const
{
    return QFileInfo(m_folder).isDir();
}

bool PhotoAlbum::create(QString *error)
{
    if (QDir().mkpath(m_folder))
        return true;
    *error = QStringLiteral("cannot create the album folder %1").arg(m_folder);
    return false;
}

QString PhotoAlbum::addAsset(const QByteArray &data, const QString &suffix, QString *error)
{
    if (data.isEmpty()) {
        *error = QStringLiteral("the picture has no data");
        return {};
    }
    const QDir album(m_folder);
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddHHmmss"));
    QString name = stamp + suffix;
    for (int n = 1; album.exists(name); ++n)
        name = stamp + QLatin1Char('_') + QString::number(n) + suffix;
    QSaveFile file(album.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit()) {
        *error = QStringLiteral("cannot write %1: %2").arg(file.fileName(), file.errorString());
        return {};
    }
    return file.fileName();
}

QFileInfoList PhotoAlbum::imageAssets() const
{
    QFileInfoList pictures;
    const QFileInfoList files = QDir(m_folder).entryInfoList(QDir::Files);
    std::copy_if(files.cbegin(), files.cend(), std::back_inserter(pictures),
        [](const QFileInfo &file) { return imageSuffixes.contains(file.suffix().toLower()); });
    // Names are time stamps, so they order pictures made within one tick of the clock.
    std::stable_sort(pictures.begin(), pictures.end(), [](const QFileInfo &a, const QFileInfo &b) {
        const QDateTime first = creationDate(a);
        const QDateTime second = creationDate(b);
        return first != second ? first < second : a.fileName() < b.fileName();
    });
    return pictures;
}

bool PhotoAlbum::deleteLastImageAsset(QString *error)
{
    const QFileInfoList pictures = imageAssets();
    if (pictures.isEmpty()) {
        *error = QStringLiteral("the album %1 holds no picture").arg(m_folder);
        return false;
    }
    QFile last(pictures.last().filePath());
    if (!last.remove()) {
        *error = QStringLiteral("cannot delete %1: %2").arg(last.fileName(), last.errorString());
        return false;
    }
    return true;
}
