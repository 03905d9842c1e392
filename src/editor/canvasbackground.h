#pragma once

#include "backgroundjson.h"

#include <QColor>
#include <QImage>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class EditorSession;

/**
 * The background of the canvas as the editor keeps it: the picture at its stages (as cropped, before
 * filters, with filters, as the document gave it), the colour, the gradient and the pattern. It shows
 * a document's background record and takes the pictures that come back to the editor; the background
 * menus, the filters and the frame build on it.
 */
class CanvasBackground
{
public:
    explicit CanvasBackground(EditorSession &session);

    /** The picture as cropped; the opener of a bare picture sets it. */
    QImage croppedImage;
    QImage croppedOriginalImage;
    QImage editedImage;
    QImage defaultBgImage;
    std::optional<QColor> defaultBgColor;
    QStringList bgGradientArray;
    QImage bgPatternImage;

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

private:
    /** Drops the background's present kind from the view and the fields. */
    void clearForNewKind();
    /** Writes the background record anew through `fill` and records it as one step. */
    void record(const std::function<void(BackgroundJson &record)> &fill);

    EditorSession &m_session;
};
