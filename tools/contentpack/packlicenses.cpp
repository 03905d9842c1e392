// The pack's LICENSES file: where every picture, sound and font came from.
#include "packbuilder.h"

#include <QSaveFile>

void PackBuilder::writeLicenses() const
{
    QString text = QStringLiteral(
        "Sources of the Quillet sample content pack\n"
        "==========================================\n\n"
        "Pictures, stickers, shapes, icons, frames, masks, patterns, banners and template previews:\n"
        "  drawn by the pack generator (tools/contentpack) with QPainter; same terms as Quillet itself.\n\n"
        "Videos and the Abstract backgrounds: synthesised with FFmpeg's lavfi sources (gradients, life,\n"
        "  mandelbrot), encoded with libx264. Sounds: FFmpeg aevalsrc/anoisesrc, encoded with LAME.\n\n"
        "Fonts (copied unchanged from Debian packages; licence texts in /usr/share/doc/<package>/copyright):\n");
    static const std::pair<const char *, const char *> packages[] = { { "lobster", "fonts-lobster (SIL OFL 1.1)" },
        { "dancingscript", "fonts-dancingscript (SIL OFL 1.1)" }, { "bebas-neue", "fonts-bebas-neue (SIL OFL 1.1)" },
        { "league-spartan", "fonts-league-spartan (SIL OFL 1.1)" }, { "comfortaa", "fonts-comfortaa (SIL OFL 1.1)" },
        { "roboto", "fonts-roboto-slab (Apache 2.0)" }, { "lato", "fonts-lato (SIL OFL 1.1)" },
        { "open-sans", "fonts-open-sans (Apache 2.0)" }, { "quicksand", "fonts-quicksand (SIL OFL 1.1)" },
        { "cabin", "fonts-cabin (SIL OFL 1.1)" }, { "cantarell", "fonts-cantarell (SIL OFL 1.1)" } };
    for (const auto &font : m_fonts.all()) {
        QString package = QStringLiteral("?");
        for (const auto &[folder, name] : packages) {
            if (font.source.contains(QLatin1String(folder)))
                package = QString::fromLatin1(name);
        }
        text += QStringLiteral("  fonts/%1  (%2)  from %3, package %4\n")
                    .arg(font.fileName, font.postScript, font.source, package);
    }
    QSaveFile out(m_out.filePath(QStringLiteral("LICENSES")));
    if (out.open(QIODevice::WriteOnly)) {
        out.write(text.toUtf8());
        out.commit();
    }
}
