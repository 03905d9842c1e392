#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>

/**
 * Pictures of the pack drawn with QPainter: stickers, shapes, icons, frames, masks, pattern tiles, scenes
 * that stand in for photographs, and promotion banners. Every drawing is a pure function of its arguments,
 * so the pack comes out the same on every build.
 */
class Artwork
{
public:
    static constexpr int kStickerKinds = 12;

    /** A decorative graphic sticker (star, heart, burst, leaves...), transparent around it. */
    static QImage sticker(int kind, const QColor &main, const QColor &accent, int size);
    /** A plain geometric shape in one colour. */
    static QImage shape(int kind, const QColor &colour, int size);
    /** A line icon in one colour. */
    static QImage icon(int kind, const QColor &colour, int size);
    /** A ring or border that frames a highlight cover; clear in the middle. */
    static QImage frame(int kind, const QColor &main, const QColor &accent, int size);
    /** A word set as a sticker: gradient letters with an outline. */
    static QImage textArt(const QString &text, const QFont &font, const QColor &from, const QColor &to, int width);
    /** An opaque silhouette (circle, arch, heart, blob, rounded square) for an outlined picture slot. */
    static QImage mask(int kind, int width, int height);
    /** An opaque tile with a hole in a shape: what the shape crop tool lays over a picture. */
    static QImage cropShape(int kind, int size);
    /** A seamless pattern tile. */
    static QImage pattern(int kind, const QColor &ground, const QColor &ink, int size);
    /** A scene that stands in for a photograph: landscape, sea, city, bokeh, flowers. */
    static QImage scene(int kind, int seed, int width, int height);
    /** A two-colour linear gradient. */
    static QImage gradient(const QColor &from, const QColor &to, int width, int height, qreal angleDegrees);
    /** A promotion banner with the application's name, or its logo. */
    static QImage banner(const QString &name, const QFont &font, const QColor &from, const QColor &to);
    static QImage logo(const QString &name, const QFont &font, const QColor &from, const QColor &to);
};
