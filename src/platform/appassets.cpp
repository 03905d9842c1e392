#include "appassets.h"

#include "assettable.h"
#include "svgicon.h"

#include <QCache>
#include <QFile>
#include <QMutex>
#include <QPainter>

namespace {

// A request with a side of 0 keeps the picture's proportions.
QSize targetSize(const QSize &natural, const QSize &requested)
{
    if (requested.width() > 0 && requested.height() > 0)
        return natural.scaled(requested, Qt::KeepAspectRatio);
    if (requested.width() > 0)
        return { requested.width(), qMax(1, requested.width() * natural.height() / natural.width()) };
    if (requested.height() > 0)
        return { qMax(1, requested.height() * natural.width() / natural.height()), requested.height() };
    return natural;
}

QImage shippedFile(const QString &name, const QSize &requested)
{
    static const char *const suffixes[] = { "", ".png", ".jpg", ".webp", ".svg" };
    for (const char *suffix : suffixes) {
        const QString path = QStringLiteral(":/assets/") + name + QLatin1String(suffix);
        if (!QFile::exists(path))
            continue;
        QImage picture(path);
        if (!picture.isNull() && requested.isValid() && !requested.isEmpty())
            picture = picture.scaled(
                targetSize(picture.size(), requested), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return picture;
    }
    return {};
}

// A glyph on a disc with a white ring, as the layers' handles show over any picture.
QImage badge(const AssetTable::Source &source, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal side = qMin(size.width(), size.height());
    const qreal ring = side * 0.054;
    const QRectF disc(QPointF((size.width() - side) / 2, (size.height() - side) / 2) + QPointF(ring, ring),
        QSizeF(side - 2 * ring, side - 2 * ring));
    p.setPen(QPen(Qt::white, ring));
    p.setBrush(source.disc);
    p.drawEllipse(disc);
    const qreal glyph = side * 0.52;
    SvgIcon::paint(
        p, source.glyph, QRectF(disc.center() - QPointF(glyph / 2, glyph / 2), QSizeF(glyph, glyph)), source.ink);
    return image;
}

QImage draw(const AssetTable::Source &source, const QSize &size, const QColor &colour)
{
    switch (source.kind) {
    case AssetTable::Source::Kind::Icon:
        return SvgIcon::render(source.glyph, qMin(size.width(), size.height()), colour.isValid() ? colour : source.ink);
    case AssetTable::Source::Kind::Badge:
        return badge(source, size);
    case AssetTable::Source::Kind::Picture:
        return source.painter(source.number, size);
    }
    return {};
}

} // namespace

namespace AppAssets {

QImage image(const QString &name, const QSize &size, const QColor &colour)
{
    if (name.isEmpty())
        return {};
    if (QImage file = shippedFile(name, size); !file.isNull())
        return file;
    const std::optional<AssetTable::Source> source = AssetTable::find(name);
    if (!source)
        return {};
    const QSize target = targetSize(source->naturalSize, size);
    if (target.isEmpty())
        return {};

    // Screens ask for the same few pictures again and again; drawing a pattern or a page costs milliseconds.
    static QMutex mutex;
    static QCache<QString, QImage> drawn(32 * 1024); // kilobytes
    const QString key = QStringLiteral("%1|%2x%3|%4")
                            .arg(name)
                            .arg(target.width())
                            .arg(target.height())
                            .arg(colour.isValid() ? colour.name(QColor::HexArgb) : QString());
    {
        const QMutexLocker lock(&mutex);
        if (const QImage *cached = drawn.object(key))
            return *cached;
    }
    const QImage picture = draw(*source, target, colour);
    const QMutexLocker lock(&mutex);
    drawn.insert(key, new QImage(picture), qMax(qsizetype(1), picture.sizeInBytes() / 1024));
    return picture;
}

QStringList names()
{
    return AssetTable::names();
}

} // namespace AppAssets
