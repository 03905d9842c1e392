#pragma once

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

    /** Turns the slot as loaded (radians) and remembers the angle. */
    void applyAngle(qreal radians);
    /** The frame as if it were not turned: the bounds' size about the centre. */
    [[nodiscard]] QRectF unrotatedFrame() const;
};
