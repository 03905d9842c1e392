#include "fontshelf.h"

#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QRawFont>
#include <QtEndian>

namespace {

struct Source
{
    const char *key;
    const char *path;
};

// Debian packages fonts-lobster, -dancingscript, -bebas-neue, -league-spartan, -comfortaa, -roboto-slab,
// -lato, -open-sans, -quicksand, -cabin, -cantarell (all SIL Open Font License or Apache 2.0).
constexpr Source kSources[] = {
    { "Lobster", "/usr/share/fonts/opentype/lobster/lobster.otf" },
    { "DancingScript", "/usr/share/fonts/opentype/dancingscript/DancingScript-Regular.otf" },
    { "DancingScriptBold", "/usr/share/fonts/opentype/dancingscript/DancingScript-Bold.otf" },
    { "Bebas", "/usr/share/fonts/opentype/bebas-neue/BebasNeue-Regular.otf" },
    { "BebasBold", "/usr/share/fonts/opentype/bebas-neue/BebasNeue-Bold.otf" },
    { "Spartan", "/usr/share/fonts/opentype/league-spartan/LeagueSpartan-Bold.otf" },
    { "SpartanBlack", "/usr/share/fonts/opentype/league-spartan/LeagueSpartan-Black.otf" },
    { "Comfortaa", "/usr/share/fonts/truetype/comfortaa/Comfortaa-Regular.ttf" },
    { "ComfortaaBold", "/usr/share/fonts/truetype/comfortaa/Comfortaa-Bold.ttf" },
    { "RobotoSlab", "/usr/share/fonts/opentype/roboto/slab/RobotoSlab-Regular.otf" },
    { "RobotoSlabBold", "/usr/share/fonts/opentype/roboto/slab/RobotoSlab-Bold.otf" },
    { "Lato", "/usr/share/fonts/truetype/lato/Lato-Regular.ttf" },
    { "LatoBlack", "/usr/share/fonts/truetype/lato/Lato-Black.ttf" },
    { "OpenSans", "/usr/share/fonts/truetype/open-sans/OpenSans-Regular.ttf" },
    { "OpenSansBold", "/usr/share/fonts/truetype/open-sans/OpenSans-Bold.ttf" },
    { "Quicksand", "/usr/share/fonts/truetype/quicksand/Quicksand-Regular.ttf" },
    { "QuicksandBold", "/usr/share/fonts/truetype/quicksand/Quicksand-Bold.ttf" },
    { "Cabin", "/usr/share/fonts/opentype/cabin/Cabin-Regular.otf" },
    { "Cantarell", "/usr/share/fonts/opentype/cantarell/Cantarell-Regular.otf" },
};

QString readNameRecord(const QByteArray &table, quint16 wantedId)
{
    if (table.size() < 6)
        return {};
    const auto *data = reinterpret_cast<const uchar *>(table.constData());
    const int count = qFromBigEndian<quint16>(data + 2);
    const int strings = qFromBigEndian<quint16>(data + 4);
    for (int i = 0; i < count; ++i) {
        const int at = 6 + i * 12;
        if (at + 12 > table.size())
            break;
        const quint16 platform = qFromBigEndian<quint16>(data + at);
        const quint16 nameId = qFromBigEndian<quint16>(data + at + 6);
        const int length = qFromBigEndian<quint16>(data + at + 8);
        const int offset = strings + qFromBigEndian<quint16>(data + at + 10);
        if (nameId != wantedId || offset + length > table.size())
            continue;
        if (platform == 1)
            return QString::fromLatin1(table.mid(offset, length));
        if (platform == 0 || platform == 3) {
            QString out;
            for (int c = 0; c + 1 < length; c += 2)
                out.append(QChar(qFromBigEndian<quint16>(data + offset + c)));
            return out;
        }
    }
    return {};
}

} // namespace

bool FontShelf::load(QString &error)
{
    for (const auto &source : kSources) {
        const QString path = QString::fromLatin1(source.path);
        const int id = QFontDatabase::addApplicationFont(path);
        if (id < 0) {
            error = QStringLiteral("font file missing (install the Debian font packages): %1").arg(path);
            return false;
        }
        const QRawFont raw(path, 12);
        PackFont font;
        font.key = QString::fromLatin1(source.key);
        font.source = path;
        font.fileName = QFileInfo(path).fileName();
        font.postScript = postScriptName(path);
        font.family = QFontDatabase::applicationFontFamilies(id).value(0, raw.familyName());
        font.style = raw.styleName();
        m_fonts.insert(font.key, font);
    }
    return true;
}

const PackFont &FontShelf::font(const QString &key) const
{
    const auto it = m_fonts.constFind(key);
    return it != m_fonts.constEnd() ? *it : m_fonts.first();
}

QFont FontShelf::qfontByPostScript(const QString &postScript, qreal pixelSize) const
{
    for (const auto &packFont : m_fonts) {
        if (packFont.postScript == postScript)
            return qfont(packFont.key, pixelSize);
    }
    QFont fallback;
    fallback.setPixelSize(qMax(1, qRound(pixelSize)));
    return fallback;
}

QFont FontShelf::qfont(const QString &key, qreal pixelSize) const
{
    const PackFont &packFont = font(key);
    QFont f(packFont.family);
    f.setStyleName(packFont.style);
    f.setPixelSize(qMax(1, qRound(pixelSize)));
    return f;
}

QString FontShelf::postScriptName(const QString &file)
{
    const QRawFont raw(file, 12);
    return readNameRecord(raw.fontTable("name"), 6);
}
