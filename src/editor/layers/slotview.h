#pragma once

#include "imagestickerjson.h"
#include "view.h"

/**
 * What the two kinds of picture slot share: a frame that the user never moves, and a turn, kept in
 * `zAngle`, that the record's frame does not include.
 */
class SlotView : public View
{
    Q_OBJECT
public:
    explicit SlotView(const QRectF &frame, QObject *parent = nullptr);

    qreal zAngle = 0;
    bool is_round = false;

    /** Marks the picture to be clipped to a circle of half its height. */
    void setRound(bool round);
    /** Turns the slot as loaded (radians) and remembers the angle. */
    void applyAngle(qreal radians);
    /** The frame as if it were not turned: the bounds' size about the centre. */
    [[nodiscard]] QRectF unrotatedFrame() const;

protected:
    /** Writes the record's frame (the unturned origin, the size less `margin`) and the tag as an absent index. */
    void writeFrame(ImageStickerJson &record, qreal margin, qint64 tag) const;
};
