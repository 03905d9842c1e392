#pragma once

#include "mediatime.h"
#include "placement.h"

#include <QImage>
#include <QSizeF>
#include <QTransform>

/** How the source picture is drawn: its transform from time zero, and invisible from `hiddenFrom` on. */
struct LayerInstruction
{
    QTransform transform;
    MediaTime hiddenFrom;
};

/** The one instruction of a merge: a time range and its layer instruction. */
struct Instruction
{
    MediaTime start;
    MediaTime duration;
    LayerInstruction layerInstruction;
};

/**
 * The overlay over the video: its picture laid at its placement on a transparent area of `size`. The
 * laid picture is made on first use and then kept; one thread at a time uses a layer.
 */
class Layer
{
public:
    Layer(QImage overlay, QSize size, Placement placement);

    [[nodiscard]] QSize size() const { return m_size; }
    /** The overlay at its frame on the whole area, premultiplied ARGB32; clipped to the area. */
    [[nodiscard]] const QImage &videoAndParent() const;

private:
    QImage m_overlay;
    QSize m_size;
    Placement m_placement;
    mutable QImage m_laid;
};

/** What the exporter draws: render size, instruction, frame duration and the overlay layer. */
struct VideoComposition
{
    QSizeF renderSize;
    Instruction instruction;
    MediaTime frameDuration;
    Layer layer;

    /** The picture size written: the render size rounded to even numbers, as 4:2:0 pictures need. */
    [[nodiscard]] static QSize frameSize(QSizeF renderSize);
};
