#include "assetpictures.h"

#include "svgicon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

const QColor ink(0x1F, 0x1A, 0x1C);
const QColor muted(0x85, 0x7A, 0x7E);
const QColor accent(0xE0, 0x58, 0x63);
const QColor soft(0xEF, 0xEA, 0xEC);
const QColor line(0xEB, 0xE4, 0xE6);

QImage blank(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage placeholder(const QSize &size, const char *glyph)
{
    QImage image = blank(size);
    image.fill(soft);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal side = 0.3 * std::min(size.width(), size.height());
    const QRectF icon((size.width() - side) / 2, (size.height() - side) / 2, side, side);
    SvgIcon::paint(p, QLatin1String(glyph), icon, QColor(0xC9, 0xBF, 0xC3));
    return image;
}

QImage checks(const QSize &size, const QColor &light, const QColor &dark)
{
    QImage image = blank(size);
    image.fill(light);
    QPainter p(&image);
    const int cell = std::max(2, size.width() / 30);
    for (int y = 0; y * cell < size.height(); ++y) {
        for (int x = y % 2; x * cell < size.width(); x += 2)
            p.fillRect(x * cell, y * cell, cell, cell, dark);
    }
    return image;
}

QFont font(const char *family, qreal pixelSize, QFont::Weight weight = QFont::Normal)
{
    QFont f { QString::fromLatin1(family) };
    f.setPixelSize(std::max(1, qRound(pixelSize)));
    f.setWeight(weight);
    return f;
}

// The how-to pictures are laid out on 360 by 450 units and scaled to the size asked for.
constexpr qreal unitsWide = 360;
constexpr qreal unitsHigh = 450;
const QRectF phone(80, 64, 200, 270);
const QRectF screen = phone.adjusted(6, 6, -6, -6);

// Where a finger taps: a soft halo and a ring, white over the accent.
void drawTap(QPainter &p, const QPointF &at, const QColor &ring)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xE0, 0x58, 0x63, 60));
    p.drawEllipse(at, 15, 15);
    p.setPen(QPen(ring, 2));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(at, 9, 9);
}

// The page frame shared by both pictures: ground, title, the phone with the "Fonts" bar and its tabs,
// and the three numbered steps below it.
void drawPage(QPainter &p, const QString &title, int selectedTab, const QStringList &steps)
{
    QLinearGradient ground(0, 0, 0, unitsHigh);
    ground.setColorAt(0, QColor(0xFF, 0xF7, 0xF8));
    ground.setColorAt(1, QColor(0xFB, 0xE3, 0xE5));
    p.fillRect(QRectF(0, 0, unitsWide, unitsHigh), ground);

    p.setPen(ink);
    p.setFont(font("Rubik", 19, QFont::Medium));
    p.drawText(QRectF(0, 18, unitsWide, 34), Qt::AlignCenter, title);

    p.setPen(Qt::NoPen);
    for (int i = 1; i <= 4; ++i) {
        p.setBrush(QColor(0x63, 0x15, 0x33, 10));
        p.drawRoundedRect(phone.translated(0, i * 1.5).adjusted(-i, -i, i, i), 20 + i, 20 + i);
    }
    p.setBrush(ink);
    p.drawRoundedRect(phone, 20, 20);
    QPainterPath screenShape;
    screenShape.addRoundedRect(screen, 15, 15);
    p.setClipPath(screenShape);
    p.fillRect(screen, Qt::white);
    const QRectF bar(screen.left(), screen.top(), screen.width(), 34);
    p.fillRect(bar, accent);
    SvgIcon::paint(p, QStringLiteral("chevron-left"), QRectF(bar.left() + 6, bar.top() + 9, 16, 16), Qt::white);
    p.setPen(Qt::white);
    p.setFont(font("Rubik", 11, QFont::Medium));
    p.drawText(bar, Qt::AlignCenter, QStringLiteral("Fonts"));
    p.setFont(font("Montserrat", 7.5, QFont::Medium));
    p.drawText(bar.adjusted(0, 0, -8, 0), Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("How to ?"));

    const QStringList tabs { QStringLiteral("DOWNLOADED"), QStringLiteral("FREE"), QStringLiteral("PAID"),
        QStringLiteral("CUSTOM") };
    const qreal tabWidth = screen.width() / tabs.size();
    p.setFont(font("Rubik", 5.6, QFont::Medium));
    for (int i = 0; i < tabs.size(); ++i) {
        const QRectF tab(screen.left() + i * tabWidth, bar.bottom(), tabWidth, 22);
        p.setPen(i == selectedTab ? accent : muted);
        p.drawText(tab, Qt::AlignCenter, tabs.at(i));
        if (i == selectedTab)
            p.fillRect(QRectF(tab.left() + 6, tab.bottom() - 2, tab.width() - 12, 2), accent);
    }
    p.fillRect(QRectF(screen.left(), bar.bottom() + 22, screen.width(), 1), line);
    p.setClipping(false);

    for (int i = 0; i < steps.size(); ++i) {
        const QPointF dot(44, 362 + i * 30);
        p.setPen(Qt::NoPen);
        p.setBrush(accent);
        p.drawEllipse(dot, 10, 10);
        p.setPen(Qt::white);
        p.setFont(font("Rubik", 11, QFont::Medium));
        p.drawText(QRectF(dot.x() - 10, dot.y() - 10, 20, 20), Qt::AlignCenter, QString::number(i + 1));
        p.setPen(ink);
        p.setFont(font("Montserrat", 12, QFont::Medium));
        p.drawText(QRectF(62, dot.y() - 12, unitsWide - 80, 24), Qt::AlignLeft | Qt::AlignVCenter, steps.at(i));
    }
}

QImage page(const QSize &size, void (*content)(QPainter &))
{
    QImage image = blank(size);
    QPainter p(&image);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    p.scale(size.width() / unitsWide, size.height() / unitsHigh);
    content(p);
    return image;
}

// The FREE tab: a grid of catalogs, one of them tapped.
void downloadContent(QPainter &p)
{
    drawPage(p, QStringLiteral("Get fonts from the catalogs"), 1,
        { QStringLiteral("Open FREE or PAID"), QStringLiteral("Tap a catalog to download its fonts"),
            QStringLiteral("Pick them in the editor's Font tool") });
    const char *faces[] = { "Rubik", "Montserrat", "DejaVu Serif", "Lobster Two", "Bebas Neue", "Dancing Script" };
    const qreal gap = 8;
    const qreal top = screen.top() + 34 + 22 + gap + 2;
    const QSizeF tile((screen.width() - 3 * gap) / 2, 56);
    for (int i = 0; i < 6; ++i) {
        const QRectF r(screen.left() + gap + (i % 2) * (tile.width() + gap), top + (i / 2) * (tile.height() + gap),
            tile.width(), tile.height());
        const bool tapped = i == 1;
        p.setPen(tapped ? QPen(accent, 1.5) : Qt::NoPen);
        p.setBrush(QColor(0xF7, 0xF5, 0xF6));
        p.drawRoundedRect(r, 8, 8);
        p.setPen(ink);
        p.setFont(font(faces[i], 22));
        p.drawText(r.adjusted(0, 0, 0, -6), Qt::AlignCenter, QStringLiteral("Aa"));
        SvgIcon::paint(
            p, QStringLiteral("download"), QRectF(r.right() - 15, r.bottom() - 15, 11, 11), tapped ? accent : muted);
        if (tapped)
            drawTap(p, r.center() + QPointF(14, 12), accent);
    }
}

// The CUSTOM tab: the "Add Fonts" button tapped and the file picker that it opens.
void customContent(QPainter &p)
{
    drawPage(p, QStringLiteral("Add a font of your own"), 3,
        { QStringLiteral("Open CUSTOM"), QStringLiteral("Tap Add Fonts, pick a .ttf or .otf file"),
            QStringLiteral("It joins the Text catalog of fonts") });
    const QRectF button(screen.center().x() - 52, screen.top() + 80, 104, 28);
    p.setPen(Qt::NoPen);
    p.setBrush(accent);
    p.drawRoundedRect(button, 14, 14);
    p.setPen(Qt::white);
    p.setFont(font("Rubik", 10, QFont::Medium));
    p.drawText(button, Qt::AlignCenter, QStringLiteral("Add Fonts"));
    drawTap(p, button.center() + QPointF(36, 8), Qt::white);

    const QRectF sheet(screen.left() + 12, screen.top() + 134, screen.width() - 24, 100);
    p.setPen(QPen(line, 1));
    p.setBrush(QColor(0xF7, 0xF5, 0xF6));
    p.drawRoundedRect(sheet, 10, 10);
    const QStringList files { QStringLiteral("MyBrand-Bold.ttf"), QStringLiteral("Handwriting.otf"),
        QStringLiteral("Poster.ttf") };
    for (int i = 0; i < files.size(); ++i) {
        const QRectF row(sheet.left() + 10, sheet.top() + 8 + i * 30, sheet.width() - 20, 26);
        const bool chosen = i == 0;
        if (chosen) {
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(0xFB, 0xE3, 0xE5));
            p.drawRoundedRect(row, 6, 6);
        }
        SvgIcon::paint(
            p, QStringLiteral("abc"), QRectF(row.left() + 4, row.top() + 5, 16, 16), chosen ? accent : muted);
        p.setPen(ink);
        p.setFont(font("Montserrat", 9, chosen ? QFont::DemiBold : QFont::Normal));
        p.drawText(row.adjusted(26, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, files.at(i));
    }
}

} // namespace

namespace AssetPictures {

QImage picturePlaceholder(int, const QSize &size)
{
    return placeholder(size, "photo");
}

QImage shapePlaceholder(int, const QSize &size)
{
    return placeholder(size, "shape");
}

QImage brightChecks(int, const QSize &size)
{
    return checks(size, Qt::white, QColor(0xE3, 0xE3, 0xE3));
}

QImage darkChecks(int, const QSize &size)
{
    return checks(size, QColor(0x4A, 0x4A, 0x4A), QColor(0x38, 0x38, 0x38));
}

QImage howToDownload(int, const QSize &size)
{
    return page(size, downloadContent);
}

QImage howToCustom(int, const QSize &size)
{
    return page(size, customContent);
}

} // namespace AssetPictures
