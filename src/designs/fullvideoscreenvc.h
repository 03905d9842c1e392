#pragma once

#include "viewcontroller.h"

#include <QUrl>

class NavigationController;
class Storyboard;

/**
 * A finished movie or GIF over the whole screen. With `videoURL` it is the movie player, presented and
 * playing once shown; with `gifURL` the animation runs in a view zoomed by pinch or double tap, turned
 * for "Landscape" as FullScreenVC turns a picture.
 */
class FullVideoScreenVC : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QUrl videoURL MEMBER videoURL CONSTANT)
    Q_PROPERTY(QUrl gifURL MEMBER gifURL CONSTANT)
    Q_PROPERTY(QString deviceOrientation MEMBER deviceOrientation CONSTANT)
public:
    explicit FullVideoScreenVC(QObject *parent = nullptr);

    QUrl videoURL;
    QUrl gifURL;
    QString deviceOrientation = QStringLiteral("Portrait");

    /**
     * Shows a design's movie or GIF: a file ending in ".gif" is pushed as a GIF, any other is presented
     * as a movie, and no file shows nothing. Returns the screen, or null.
     */
    static FullVideoScreenVC *show(NavigationController *navigation, const Storyboard *storyboard, const QUrl &file,
        const QString &deviceOrientation = QStringLiteral("Portrait"));

    /** The close button: the movie player is dismissed, the GIF screen popped. */
    Q_INVOKABLE void btnCloseClicked();
};
