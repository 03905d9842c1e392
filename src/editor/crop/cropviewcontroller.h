#pragma once

#include "cropbox.h"
#include "viewcontroller.h"

#include <QImage>
#include <QRectF>
#include <QStringList>

#include <optional>

class CropTarget;
class NavigationController;
class Storyboard;

/**
 * The image crop screen: the picture under a crop box with handles, a picker of aspect ratios, quarter
 * turns either way, reset, Done and Cancel. The screen shows a smaller copy of the picture; Done cuts the
 * full picture off the GUI thread and gives it to `delegate`.
 */
class CropViewController : public ViewController
{
    Q_OBJECT
    /** The picture to cut; a large one is scaled for the screen off the GUI thread. */
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(bool hasImage READ hasImage NOTIFY imageChanged)
    /** The picture as turned, at the size the screen draws it from. */
    Q_PROPERTY(QImage preview READ preview NOTIFY previewChanged)
    /** The screen's copy of the picture is being made, or the picture is being cut. */
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY busyChanged)
    /** Where the turned picture lies in the crop area, in points. */
    Q_PROPERTY(QRectF imageRect READ imageRect NOTIFY layoutChanged)
    /** The crop box in the crop area, in points. */
    Q_PROPERTY(QRectF cropBoxRect READ cropBoxRect NOTIFY layoutChanged)
    /** A handle or the picture is held: the box doesn't settle into place meanwhile. */
    Q_PROPERTY(bool isInteracting READ isInteracting NOTIFY interactingChanged)
    /** Something differs from the picture as it was given. */
    Q_PROPERTY(bool canReset READ canReset NOTIFY layoutChanged)
    /** The picker's rows: "Free", "Original", "Square", then the landscape and portrait ratios. */
    Q_PROPERTY(QStringList aspectRatioTitles READ aspectRatioTitles CONSTANT)
    /** The row of the ratio the box keeps; 0 ("Free") when it keeps none. */
    Q_PROPERTY(int aspectRatioIndex READ aspectRatioIndex NOTIFY layoutChanged)
public:
    /** The handles, as `CropBox::Handle` numbers them. */
    enum Handle { TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft, Left };
    Q_ENUM(Handle)

    /** Points between the crop area's edges and the largest box. */
    static constexpr qreal padding = 14.0;
    /** The longest side of the screen's copy of the picture. */
    static constexpr int previewSide = 2048;

    explicit CropViewController(QObject *parent = nullptr);

    /**
     * Presents the crop screen of `storyboard` over `navigation` with `image`; `delegate` gets the cut
     * picture or the cancel. Null when the storyboard has no crop screen.
     */
    static CropViewController *present(
        const Storyboard &storyboard, NavigationController &navigation, const QImage &image, CropTarget *delegate);

    /** Gets the cut picture or the cancel; the screen that presented this one. */
    CropTarget *delegate = nullptr;

    void setImage(const QImage &image);
    [[nodiscard]] QImage image() const { return m_image; }
    [[nodiscard]] const CropBox &cropBox() const { return m_box; }

    [[nodiscard]] bool hasImage() const { return !m_image.isNull(); }
    [[nodiscard]] QImage preview() const { return m_preview; }
    [[nodiscard]] bool isBusy() const { return m_preparing || m_cropping; }
    [[nodiscard]] QRectF imageRect() const;
    [[nodiscard]] QRectF cropBoxRect() const;
    [[nodiscard]] bool isInteracting() const { return m_held || m_imageGesture; }
    [[nodiscard]] bool canReset() const { return !m_box.isReset(); }
    [[nodiscard]] QStringList aspectRatioTitles() const;
    [[nodiscard]] int aspectRatioIndex() const { return m_ratioIndex; }

    /** The size of the crop area, which the box is fitted into. */
    Q_INVOKABLE void setViewSize(qreal width, qreal height);

    /** A handle is taken hold of; the picture stays where it is until it is let go. */
    Q_INVOKABLE void beginHandleDrag(int handle);
    /** The held handle has moved by this many points since it was taken hold of. */
    Q_INVOKABLE void moveHandle(qreal dx, qreal dy);
    /** The handle is let go: the box settles, fitted into the area again. */
    Q_INVOKABLE void endHandleDrag();

    /** The picture is taken hold of, by one finger or two. */
    Q_INVOKABLE void beginImageGesture();
    /** Since it was taken hold of, the picture has moved by (dx, dy) and grown by `scale` about (cx, cy). */
    Q_INVOKABLE void moveImage(qreal dx, qreal dy, qreal scale, qreal cx, qreal cy);
    Q_INVOKABLE void endImageGesture();
    /** One zoom step about (cx, cy), as a wheel gives it. */
    Q_INVOKABLE void zoomImage(qreal scale, qreal cx, qreal cy);

    Q_INVOKABLE void rotateClockwise();
    Q_INVOKABLE void rotateCounterclockwise();
    Q_INVOKABLE void reset();
    Q_INVOKABLE void selectAspectRatio(int index);

    /** Cuts the full picture off the GUI thread, then hands it to the delegate. */
    Q_INVOKABLE void done();
    /** Tells the delegate; without one the screen dismisses itself. */
    Q_INVOKABLE void cancel();
    /** Takes this screen off its navigation stack. */
    void dismiss();

Q_SIGNALS:
    void imageChanged();
    void previewChanged();
    void busyChanged();
    void layoutChanged();
    void interactingChanged();

private:
    struct Ratio
    {
        const char *title;
        qreal width;
        qreal height;
    };
    static const Ratio ratios[];

    [[nodiscard]] QRectF area() const;
    /** There is a picture and room to show it. */
    [[nodiscard]] bool isLaidOut() const;
    [[nodiscard]] CropBox::Placement placement() const;
    /** A quarter turn either way; a kept ratio turns with the picture. */
    void turn(bool clockwise);
    void showPreview();
    void setBusy(bool &flag, bool value);

    QImage m_image;
    /** The screen's copy of the picture, unturned. */
    QImage m_scaled;
    QImage m_preview;
    CropBox m_box;
    QSizeF m_viewSize;
    int m_ratioIndex = 0;
    bool m_preparing = false;
    bool m_cropping = false;
    /** The picture's place while a handle is held. */
    std::optional<CropBox::Placement> m_held;
    CropBox::Handle m_handle = CropBox::Handle::TopLeft;
    bool m_imageGesture = false;
    /** The crop and the picture's place when the handle or the picture was taken hold of. */
    QRectF m_startCrop;
    CropBox::Placement m_startPlacement;
    /** Drops a scaled copy of a picture that has since been replaced. */
    quint64 m_generation = 0;
};
