#pragma once

#include "imagepickertarget.h"
#include "viewcontroller.h"

#include <QImage>
#include <QPointer>
#include <QUrl>
#include <QVariantList>

class NavigationController;
class QMediaDevices;
class Storyboard;

/**
 * The picture sheet the editor opens for a slot, a sticker or the background: "Replace Image From" when
 * there is a picture to replace, "Choose Image From" when there is none. Its rows lead to the gallery
 * (the file dialog, filtered to pictures) and to the camera, where the device has one. The picture chosen
 * goes to the crop screen, presented for the screen that opened the sheet, which gets the cut picture.
 */
class PictureSourceSheet : public ViewController
{
    Q_OBJECT
    /** The rows: maps with "title", "image" (the icon's name), "enabled" and "detail" (why it is not). */
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
    Q_PROPERTY(bool hasCamera READ hasCamera NOTIFY rowsChanged)
    /** A chosen file is being read. */
    Q_PROPERTY(bool isPreparing READ isPreparing NOTIFY isPreparingChanged)
public:
    explicit PictureSourceSheet(QObject *parent = nullptr);

    /**
     * Opens the sheet over the top screen of `navigation`, which takes `imagePickerTag` and the cut
     * picture as an `ImagePickerTarget`. `hasImage` titles it; null when the storyboard has no sheet.
     */
    static PictureSourceSheet *open(
        const Storyboard &storyboard, NavigationController &navigation, int imagePickerTag, bool hasImage);

    // Set by the opener before the sheet is pushed.
    /** What the picture is for, handed to the opener's `imagePickerTag`. */
    int imagePickerTag = ImagePickerTarget::selectedLayerTag;
    /** The slot, sticker or background has a picture that the new one replaces. */
    bool hasImage = false;

    /** Makes the crop screen; set when the storyboard makes the sheet. */
    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }

    [[nodiscard]] QVariantList rows() const;
    /** The device has a camera; known once the sheet is shown. */
    [[nodiscard]] bool hasCamera() const { return m_hasCamera; }
    [[nodiscard]] bool isPreparing() const { return m_preparing; }

    /**
     * Titles the sheet, and looks for cameras from now on; the opener below it keeps its background's
     * frame and takes the tag.
     */
    void viewDidLoad() override;

    /** Row 0 opens the gallery; row 1 the camera screen, when there is a camera. */
    Q_INVOKABLE void selectRow(int row);
    /** A file chosen in the gallery: read off the GUI thread, then cropped; a file that is no picture is refused. */
    Q_INVOKABLE void pickedFile(const QUrl &file);
    /** Closes the sheet; nothing is picked. */
    Q_INVOKABLE void cancel();
    /** The sheet and what it opened close, and the crop screen shows the picture for the opener. */
    void pictureChosen(const QImage &picture);

Q_SIGNALS:
    /** The view opens the gallery. */
    void galleryRequested();
    void rowsChanged();
    void isPreparingChanged();

private:
    void lookForCameras();

    const Storyboard *m_storyboard = nullptr;
    /** Tells when a camera comes or goes; made when the sheet is shown, as the media backend starts with it. */
    QMediaDevices *m_devices = nullptr;
    bool m_hasCamera = false;
    /** The screen under the sheet, which opened it. */
    QPointer<ViewController> m_opener;
    bool m_preparing = false;
};
