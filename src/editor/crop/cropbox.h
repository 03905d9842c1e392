#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>

#include <optional>

/**
 * The arithmetic of the crop screen, in pixels of the full picture: the quarter turns, the crop rectangle
 * in the picture as turned, the aspect ratio it keeps, and where picture and crop box lie on screen.
 * The screen shows a smaller copy of the picture; nothing here depends on it.
 */
class CropBox
{
public:
    /** The corners of the crop box and the middles of its edges, clockwise from the top left. */
    enum class Handle { TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft, Left };

    /** Where the turned picture lies on screen: a view point is `origin` + picture point × `scale`. */
    struct Placement
    {
        qreal scale = 1.0;
        QPointF origin;

        [[nodiscard]] QRectF toView(const QRectF &picture) const;
        [[nodiscard]] QPointF toPicture(const QPointF &view) const;
        [[nodiscard]] QRectF toPicture(const QRectF &view) const;
    };

    /** On screen, a handle can't make the box narrower than this many points. */
    static constexpr qreal minimumBoxSide = 42.0;
    /** A zoom can't make the crop narrower than this many pixels (or the picture, when it is smaller). */
    static constexpr qreal minimumPixels = 16.0;

    explicit CropBox(QSize imageSize = {});

    /** The full picture, before turning. */
    [[nodiscard]] QSize imageSize() const { return m_imageSize; }
    /** The picture as turned by `angle`. */
    [[nodiscard]] QSizeF turnedSize() const;
    /** Clockwise quarter turns in degrees: 0, 90, 180 or 270. */
    [[nodiscard]] int angle() const { return m_angle; }
    /** The crop in pixels of the turned picture. */
    [[nodiscard]] QRectF cropRect() const { return m_crop; }
    /** Width over height that the crop keeps; none for a free crop. */
    [[nodiscard]] std::optional<qreal> aspectRatio() const { return m_ratio; }
    /** Nothing has changed since the picture was given or reset. */
    [[nodiscard]] bool isReset() const;

    /** A quarter turn clockwise: the crop turns with the picture, and a kept ratio turns with it. */
    void rotateClockwise();
    /** A quarter turn the other way, likewise. */
    void rotateCounterclockwise();
    /**
     * Keeps `ratio` (width over height) from now on, none for a free crop. The crop takes that ratio at its
     * present area and centre, as large as the picture allows.
     */
    void setAspectRatio(std::optional<qreal> ratio);
    /** Unturned, the whole picture, free. */
    void reset();

    /** The crop box fitted into `area` and centred in it: the placement while no handle is held. */
    [[nodiscard]] Placement fitted(const QRectF &area) const;

    /**
     * A handle dragged by `translation` view points, from the crop `start`, while the picture stays at
     * `placement`. The box stays within the picture and within `area`, keeps its ratio when it has one, and
     * is no narrower than `minimumBoxSide` points.
     */
    void dragHandle(
        const QRectF &start, Handle handle, QPointF translation, const Placement &placement, const QRectF &area);

    /**
     * The picture moved by `translation` and scaled by `scale` about `centre` (view points) from the crop
     * `start` at `placement`, the box staying where it is on screen. The crop stays within the picture and
     * keeps its shape.
     */
    void moveImage(const QRectF &start, const Placement &placement, QPointF translation, qreal scale, QPointF centre);

    /** The crop in whole pixels of the turned picture. */
    [[nodiscard]] QRect pixelRect() const;

    /** `rect` of a picture of `imageSize` turned by `angle`, in pixels of the picture before turning. */
    [[nodiscard]] static QRect unturned(const QRect &rect, QSize imageSize, int angle);
    /** The picture turned by `angle` and cut to `rect` of the turned picture. Thread-safe. */
    [[nodiscard]] static QImage crop(const QImage &image, const QRect &rect, int angle);

private:
    [[nodiscard]] QRectF pictureBounds() const { return { QPointF(), turnedSize() }; }
    /** The narrowest side a zoom leaves the crop. */
    [[nodiscard]] qreal minimumSide() const;

    QSize m_imageSize;
    int m_angle = 0;
    QRectF m_crop;
    std::optional<qreal> m_ratio;
};
