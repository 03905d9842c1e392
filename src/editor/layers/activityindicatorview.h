#pragma once

#include "view.h"

#include <QTimer>

/**
 * The gray spinning indicator a layer shows while its picture is on its way: twelve spokes, the bright
 * one going round. It is selection chrome, so an exported picture never shows it.
 */
class ActivityIndicatorView : public View
{
    Q_OBJECT
public:
    /** UIActivityIndicatorView's gray style is 20 points wide. */
    static constexpr qreal side = 20.0;

    /** Centred in `host` and kept centred when the host changes size; spins until it is deleted. */
    explicit ActivityIndicatorView(View *host);

    void paintContent(QPainter &painter) const override;

private:
    QTimer m_timer;
    int m_phase = 0;
};
