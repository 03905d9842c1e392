#pragma once

#include "view.h"

/** A view with a layer border, as the layers' selection outline. */
class BorderedView : public View
{
    Q_OBJECT
public:
    explicit BorderedView(const QRectF &frame, QObject *parent = nullptr);

    QColor borderColor = Qt::white;
    qreal borderWidth = 1.0;

    /** Draws the border inside the bounds, as a Core Animation layer border lies. */
    void paintContent(QPainter &painter) const override;
};
