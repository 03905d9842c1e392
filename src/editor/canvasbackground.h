#pragma once

#include "backgroundjson.h"

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class EditorSession;

/**
 * The background of the canvas as the editor keeps it: the picture at its stages (as cropped, before
 * filters, with filters, as the document gave it), the colour, the gradient and the pattern, and the
 * frame over all layers. It shows a document's background record and takes what comes back to the
 * editor; the background menus and the filters build on it.
 */
class CanvasBackground
{
public:
    /** How the shown picture lies on the pixels it was made from; a flip only changes this. */
    enum class Orientation { Up, UpMirrored, Down };

    explicit CanvasBackground(EditorSession &session);

    /** The picture as cropped; the opener of a bare picture sets it. */
    QImage croppedImage;
    QImage croppedOriginalImage;
    QImage editedImage;
    QImage defaultBgImage;
    std::optional<QColor> defaultBgColor;
    QStringList bgGradientArray;
    QImage bgPatternImage;
    /** The background view's frame at the document's load; a colour puts the view back to it. */
    std::optional<QRectF> bgOriginalFrame;

    [[nodiscard]] Orientation orientation() const { return m_orientation; }

    /**
     * Shows a background record on the canvas: colour, pattern, gradient, then picture, each when the
     * record has it. Taken by value: the caller may pass the document's own delta, which this clears.
     */
    void apply(std::shared_ptr<BackgroundJson> record);
    /** A picture the document puts behind the layers (a bare picture, a picture-in-picture slot). */
    void usePicture(const QImage &picture);
    /**
     * A picture handed back to the editor: the background becomes that picture alone, kept in a file
     * of the design and recorded as one step.
     */
    void takePicture(const QImage &picture);
    /** A colour handed back, or none for a transparent background: that alone, recorded as one step. */
    void takeColour(const std::optional<QColor> &colour);
    /** A pattern tile: the background becomes that tile repeated, recorded as one step. */
    void takePattern(const QImage &tile);
    /**
     * A frame over all layers: shown and kept in the document, but not a step of the history, which
     * leaves it in place.
     */
    void takeFrame(const QImage &picture);
    /**
     * Row 0 mirrors the picture or takes the mirror away; row 1 turns it half round or back. Each row
     * undoes the other, so they never add up. One step; nothing happens without a picture.
     */
    void flip(int row);
    /** A filter's result: the picture and its working copies, recorded as one step. */
    void takeFiltered(const QImage &picture);
    /** An adjustment in progress: the picture shown changes, the working copy it starts from does not. */
    void showAdjusted(const QImage &picture);

    /** Writes the picture shown into the record as the background alone, as one step; none shown, nothing. */
    void storeBackgroundImage();
    /** Writes the view's colour ("#rrggbb", or empty when clear) as the background alone, as one step. */
    void storeBackgroundColor();

private:
    /** Drops the background's present kind from the view and the fields. */
    void clearForNewKind();
    /** The view shows `picture` as made anew: it is its own unflipped source from now on. */
    void showPicture(const QImage &picture);
    /** Writes the background record anew through `fill` and records it as one step. */
    void record(const std::function<void(BackgroundJson &record)> &fill);

    EditorSession &m_session;
    QImage m_unflipped;
    Orientation m_orientation = Orientation::Up;
};
