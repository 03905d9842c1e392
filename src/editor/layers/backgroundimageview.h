#pragma once

#include "imageview.h"

#include <QStringList>

#include <memory>

struct BackgroundJson;

/**
 * The canvas background under all layers: a picture, a plain colour, a top-to-bottom gradient or a
 * pattern tile. A picture lies over the colour; a pattern replaces the colour or gradient it stands with.
 */
class BackgroundImageView : public ImageView
{
    Q_OBJECT
public:
    explicit BackgroundImageView(const QRectF &frame = {}, QObject *parent = nullptr);

    std::shared_ptr<BackgroundJson> backgroundJson;

    [[nodiscard]] QImage patternColor() const { return m_pattern; }
    /** The tile repeated over the bounds, in place of the colour or gradient. */
    void setPatternColor(const QImage &tile);
    /**
     * The gradient colours, drawn top to bottom over the bounds of the moment they were set. A pattern
     * already shown stays over it: in a record the pattern loads last and wins.
     */
    void setGradient(const QList<QColor> &colors);
    /**
     * The feather: the picture shows only as far as this alpha mask (laid over the bounds) lets it; a null
     * mask shows it whole. The picture itself is unchanged.
     */
    void setFeatherMask(const QImage &mask);
    [[nodiscard]] QImage featherMask() const { return m_featherMask; }
    /** Back to clear: no picture, colour, gradient, pattern or feather. */
    void clearBackground();

    void paintContent(QPainter &painter) const override;

private:
    QImage m_pattern;
    QImage m_featherMask;
    QList<QColor> m_gradient;
    QRectF m_gradientRect;
};
