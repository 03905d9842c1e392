#pragma once

#include "photoalbum.h"
#include "viewcontroller.h"

#include <functional>

class Storyboard;

/**
 * What the result screens of a finished design (a picture, a movie, a GIF) share: back and home, the
 * social buttons that open the share sheet, rate, the album the result goes into, and the alerts of
 * photo access and of deleting the album's newest asset.
 */
class SaveResultVC : public ViewController
{
    Q_OBJECT
    /** The result's file in the album once it is there; empty before and after a failure. */
    Q_PROPERTY(QString albumFile READ albumFile NOTIFY albumSaveFinished)
public:
    using ViewController::ViewController;

    /** The screens this one opens. */
    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }
    /** The album the result goes into; "Quillet" in the photo library unless set. */
    void setPhotoAlbum(const PhotoAlbum &album) { m_album = album; }
    [[nodiscard]] QString albumFile() const { return m_albumFile; }

    /** The result as an album asset: `add` puts it into `album`, made first when missing. Any thread. */
    struct AlbumResult
    {
        QString file;
        QString error;
    };
    using AddAsset = std::function<QString(PhotoAlbum &album, QString *error)>;
    [[nodiscard]] static AlbumResult addToAlbum(PhotoAlbum album, const AddAsset &add);

    Q_INVOKABLE void backPressed();
    Q_INVOKABLE void homeClicked();
    Q_INVOKABLE virtual void shareClicked() = 0;
    Q_INVOKABLE void fbClicked() { shareClicked(); }
    Q_INVOKABLE void whatsappClicked() { shareClicked(); }
    Q_INVOKABLE void instaClicked() { shareClicked(); }
    Q_INVOKABLE void btnRateClicked();

Q_SIGNALS:
    /** The album save ended: the result is in the album, or it is in none. */
    void albumSaveFinished();

protected:
    [[nodiscard]] const Storyboard *storyboard() const { return m_storyboard; }
    [[nodiscard]] PhotoAlbum &photoAlbum() { return m_album; }
    void setAlbumFile(const QString &file);
    /**
     * The alert of a denied photo access: its action opens the desktop's settings for the album, the
     * folder of the photo library; a "Cancel" follows when `withCancel`.
     */
    void showPermissionAlert(
        const QString &title, const QString &message, const QString &settingsTitle, bool withCancel);
    /** "Confirm" with `message`, the cancel action `cancelTitle` and "DELETE", which runs `remove`. */
    void confirmDelete(const QString &message, const QString &cancelTitle, std::function<void()> remove);

private:
    const Storyboard *m_storyboard = nullptr;
    PhotoAlbum m_album { QStringLiteral("Quillet") };
    QString m_albumFile;
};
