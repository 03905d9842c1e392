#pragma once

#include "view.h"

#include <QList>

/** The red dashed outline that a layer shows while it stands at a snap angle. */
class DashedBorderView : public View
{
    Q_OBJECT
public:
    explicit DashedBorderView(const QRectF &frame, QObject *parent = nullptr);

    QColor strokeColor = Qt::red;
    QList<qreal> dashPattern { 2.5, 3.0 };
    qreal lineWidth = 0.75;

    void paintContent(QPainter &painter) const override;
};
