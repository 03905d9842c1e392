#pragma once

#include <QByteArray>
#include <QFileInfoList>
#include <QString>

/**
 * A photo album of the device. On the desktop the photo library is the user's Pictures location and an
 * album is a folder in it named by the album's title; a picture added is a file there. The library's
 * flow stays as the screens expect it: ask for authorisation, look the album up by its title, create
 * it when missing, add the asset. Authorisation is granted unless the folder cannot be written.
 *
 * The Pictures location is QUILLET_PICTURES when set, else "Pictures" below QUILLET_HOME when that is
 * set (so that tests and scripts never touch the user's own pictures), else the platform's.
 */
class PhotoAlbum
{
public:
    enum class AuthorizationStatus { NotDetermined, Authorized, Denied };

    /** The photo library's folder. */
    [[nodiscard]] static QString picturesLocation();
    /** The album of that title in the photo library. */
    explicit PhotoAlbum(const QString &title);
    /** An album kept in a folder of the caller's choice. */
    [[nodiscard]] static PhotoAlbum atFolder(const QString &folder);

    [[nodiscard]] QString folder() const { return m_folder; }
    [[nodiscard]] AuthorizationStatus authorizationStatus() const { return m_status; }
    /** Decides the status: granted when the album's folder, or the nearest folder above it, can be written. */
    AuthorizationStatus requestAuthorization();

    /** Whether the album exists (the fetch by title finds it). */
    [[nodiscard]] bool exists() const;
    /** Creates the album; true when it exists afterwards. */
    bool create(QString *error);
    /**
     * Adds a picture, given as its encoded file data, as a new asset; the file appears whole or not at
     * all. Returns the new file's path, or an empty text with `error` set.
     */
    QString addAsset(const QByteArray &data, const QString &suffix, QString *error);
    /**
     * Adds a movie or an animated picture as a copy of its file, unchanged and whole or not at all, with
     * the file's suffix. Returns the new file's path, or an empty text with `error` set.
     */
    QString addAssetFromFile(const QString &file, QString *error);
    /** The album's pictures, oldest first by creation date. */
    [[nodiscard]] QFileInfoList imageAssets() const;
    /** Deletes the newest picture; false with `error` set when there is none or it cannot go. */
    bool deleteLastImageAsset(QString *error);
    /** Deletes the newest picture or movie; false with `error` set when there is none or it cannot go. */
    bool deleteLastAsset(QString *error);

private:
    PhotoAlbum() = default;
    /** A free name for a new asset: the time stamp, numbered when taken. */
    [[nodiscard]] QString newAssetPath(const QString &suffix) const;
    [[nodiscard]] QFileInfoList assets(bool withMovies) const;
    bool deleteLast(bool withMovies, QString *error);
    QString m_folder;
    AuthorizationStatus m_status = AuthorizationStatus::NotDetermined;
};
