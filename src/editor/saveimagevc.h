#pragma once

#include "json.h"
#include "saveresultvc.h"

#include <QByteArray>
#include <QFutureWatcher>
#include <QImage>

#include <memory>

/**
 * The result of saving an image design: the picture, zoomable, which goes into the "Quillet" album as
 * soon as the screen is shown (after the authorisation), with full screen, share, print, delete of the
 * album's newest picture, rate, home and back. The editor stays below it.
 */
class SaveImageVC : public SaveResultVC
{
    Q_OBJECT
    Q_PROPERTY(QImage editedImage MEMBER editedImage CONSTANT)
public:
    explicit SaveImageVC(QObject *parent = nullptr);
    ~SaveImageVC() override;

    QImage editedImage;
    /** The picture as PNG data, as the album receives it. */
    QByteArray editedImageData;
    std::weak_ptr<Json> contentJson;

    /** Saves into the album, once. */
    void viewDidLoad() override;

    void shareClicked() override;
    Q_INVOKABLE void printClicked();
    Q_INVOKABLE void deleteClicked();
    Q_INVOKABLE void btnFullScreenClicked();

private:
    void saveToAlbum();
    /** The file the share sheet offers: the album's picture, else the design's preview in Documents. */
    [[nodiscard]] QString shareFile() const;

    QFutureWatcher<AlbumResult> m_albumSave;
};
