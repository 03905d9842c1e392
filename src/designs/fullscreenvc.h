#pragma once

#include "viewcontroller.h"

#include <QImage>

/**
 * One finished picture over the whole screen, zoomed by pinch or double tap. `deviceOrientation` decides
 * the fit: "Portrait" fits the picture upright, "Landscape" turns it a quarter as a device held sideways
 * shows it. The opener sets the fields before pushing it.
 */
class FullScreenVC : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QImage imageToDisplay MEMBER imageToDisplay CONSTANT)
    Q_PROPERTY(QString deviceOrientation MEMBER deviceOrientation CONSTANT)
public:
    explicit FullScreenVC(QObject *parent = nullptr);

    QImage imageToDisplay;
    QString deviceOrientation = QStringLiteral("Portrait");

    /** The close button: back to the screen below. */
    Q_INVOKABLE void btnCloseClicked();
};
