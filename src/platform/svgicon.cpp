#include "svgicon.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace {

QString pathOf(const QString &glyph)
{
    return QStringLiteral(":/Quillet/Icons/") + glyph + QStringLiteral(".svg");
}

} // namespace

namespace SvgIcon {

bool exists(const QString &glyph)
{
    return !glyph.isEmpty() && QFile::exists(pathOf(glyph));
}

void paint(QPainter &painter, const QString &glyph, const QRectF &area, const QColor &colour)
{
    QFile file(pathOf(glyph));
    if (glyph.isEmpty() || !file.open(QIODevice::ReadOnly))
        return;
    QByteArray svg = file.readAll();
    svg.replace("currentColor", colour.name(QColor::HexRgb).toLatin1());
    QSvgRenderer renderer(svg);
    if (!renderer.isValid())
        return;
    painter.save();
    painter.setOpacity(painter.opacity() * colour.alphaF());
    renderer.render(&painter, area);
    painter.restore();
}

QImage render(const QString &glyph, int side, const QColor &colour)
{
    if (!exists(glyph) || side <= 0)
        return {};
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter, glyph, QRectF(0, 0, side, side), colour);
    return image;
}

} // namespace SvgIcon
