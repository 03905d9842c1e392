#include "photoalbum.h"

#include <QDateTime>
#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace {

const QStringList imageSuffixes { QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("jpeg"),
    QStringLiteral("gif"), QStringLiteral("webp"), QStringLiteral("heic") };
const QStringList movieSuffixes { QStringLiteral("mov"), QStringLiteral("mp4"), QStringLiteral("m4v") };

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
    QSaveFile file(newAssetPath(suffix));
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit()) {
        *error = QStringLiteral("cannot write %1: %2").arg(file.fileName(), file.errorString());
        return {};
    }
    return file.fileName();
}

QString PhotoAlbum::newAssetPath(const QString &suffix) const
{
    const QDir album(m_folder);
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddHHmmss"));
    QString name = stamp + suffix;
    for (int n = 1; album.exists(name); ++n)
        name = stamp + QLatin1Char('_') + QString::number(n) + suffix;
    return album.filePath(name);
}

QString PhotoAlbum::addAssetFromFile(const QString &file, QString *error)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1: %2").arg(file, source.errorString());
        return {};
    }
    const QString suffix = QLatin1Char('.') + QFileInfo(file).suffix();
    QSaveFile copy(newAssetPath(suffix));
    if (!copy.open(QIODevice::WriteOnly)) {
        *error = QStringLiteral("cannot write %1: %2").arg(copy.fileName(), copy.errorString());
        return {};
    }
    // In pieces: a movie need not fit in memory.
    constexpr qint64 pieceSize = qint64(1) << 20;
    while (!source.atEnd()) {
        const QByteArray piece = source.read(pieceSize);
        if (piece.isEmpty() || copy.write(piece) != piece.size()) {
            *error = QStringLiteral("cannot copy %1 into %2").arg(file, copy.fileName());
            copy.cancelWriting();
            return {};
        }
    }
    if (!copy.commit()) {
        *error = QStringLiteral("cannot write %1: %2").arg(copy.fileName(), copy.errorString());
        return {};
    }
    return copy.fileName();
}

QFileInfoList PhotoAlbum::imageAssets() const
{
    return assets(false);
}

QFileInfoList PhotoAlbum::assets(bool withMovies) const
{
    QFileInfoList pictures;
    const QFileInfoList files = QDir(m_folder).entryInfoList(QDir::Files);
    std::copy_if(files.cbegin(), files.cend(), std::back_inserter(pictures), [withMovies](const QFileInfo &file) {
        const QString suffix = file.suffix().toLower();
        return imageSuffixes.contains(suffix) || (withMovies && movieSuffixes.contains(suffix));
    });
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
    return deleteLast(false, error);
}

bool PhotoAlbum::deleteLastAsset(QString *error)
{
    return deleteLast(true, error);
}

bool PhotoAlbum::deleteLast(bool withMovies, QString *error)
{
    const QFileInfoList pictures = assets(withMovies);
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
