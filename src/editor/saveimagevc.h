#pragma once

#include "json.h"
#include "photoalbum.h"
#include "viewcontroller.h"

#include <QByteArray>
#include <QFutureWatcher>
#include <QImage>

#include <memory>

class Storyboard;

/**
 * The result of saving an image design: the picture, zoomable, which goes into the "Quillet" album as
 * soon as the screen is shown (after the authorisation), with full screen, share, print, delete of the
 * album's newest picture, rate, home and back. The editor stays below it.
 */
class SaveImageVC : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QImage editedImage MEMBER editedImage CONSTANT)
    /** The picture's file in the album once it is there; empty before and after a failure. */
    Q_PROPERTY(QString albumFile READ albumFile NOTIFY albumSaveFinished)
public:
    explicit SaveImageVC(QObject *parent = nullptr);
    ~SaveImageVC() override;

    QImage editedImage;
    /** The picture as PNG data, as the album receives it. */
    QByteArray editedImageData;
    std::weak_ptr<Json> contentJson;

    /** The screens this one opens ("FullScreenVC", "PrintInteractionController"). */
    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }
    /** The album the picture goes into; "Quillet" in the photo library unless set. */
    void setPhotoAlbum(const PhotoAlbum &album) { m_album = album; }
    [[nodiscard]] QString albumFile() const { return m_albumFile; }

    /** Saves into the album, once. */
    void viewDidLoad() override;

    Q_INVOKABLE void backPressed();
    Q_INVOKABLE void homeClicked();
    Q_INVOKABLE void fbClicked();
    Q_INVOKABLE void whatsappClicked();
    Q_INVOKABLE void instaClicked();
    Q_INVOKABLE void shareClicked();
    Q_INVOKABLE void printClicked();
    Q_INVOKABLE void deleteClicked();
    Q_INVOKABLE void btnRateClicked();
    Q_INVOKABLE void btnFullScreenClicked();

Q_SIGNALS:
    /** The album save ended: the picture is in the album, or it is in none. */
    void albumSaveFinished();

private:
    struct AlbumResult
    {
        QString file;
        QString error;
    };
    void saveToAlbum();
    void showPermissionAlert();
    /** The file the share sheet offers: the album's picture, else the design's preview in Documents. */
    [[nodiscard]] QString shareFile() const;

    const Storyboard *m_storyboard = nullptr;
    PhotoAlbum m_album { QStringLiteral("Quillet") };
    QString m_albumFile;
    QFutureWatcher<AlbumResult> m_albumSave;
};
