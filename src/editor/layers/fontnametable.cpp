#include "fontnametable.h"

#include <QList>
#include <QStringDecoder>

namespace {

// Big-endian reads that fail softly: a damaged file gives nothing, never a crash.
struct Reader
{
    const QByteArray &data;
    bool ok = true;

    quint32 u32(qsizetype at)
    {
        if (at < 0 || at + 4 > data.size()) {
            ok = false;
            return 0;
        }
        const auto *p = reinterpret_cast<const uchar *>(data.constData() + at);
        return quint32(p[0]) << 24 | quint32(p[1]) << 16 | quint32(p[2]) << 8 | p[3];
    }
    quint16 u16(qsizetype at)
    {
        if (at < 0 || at + 2 > data.size()) {
            ok = false;
            return 0;
        }
        const auto *p = reinterpret_cast<const uchar *>(data.constData() + at);
        return quint16(p[0] << 8 | p[1]);
    }
};

QString decodeName(const QByteArray &bytes, quint16 platform)
{
    if (platform == 0 || platform == 3) {
        QString out;
        for (qsizetype i = 0; i + 1 < bytes.size(); i += 2)
            out.append(QChar(ushort(uchar(bytes[i]) << 8 | uchar(bytes[i + 1]))));
        return out;
    }
    return QString::fromLatin1(bytes);
}

std::optional<FontNameTable> readFace(const QByteArray &data, quint32 offset)
{
    Reader r { data };
    const quint16 tableCount = r.u16(offset + 4);
    qsizetype nameTable = -1;
    qsizetype os2Table = -1;
    for (quint16 i = 0; i < tableCount && r.ok; ++i) {
        const qsizetype record = offset + 12 + 16 * i;
        const quint32 tag = r.u32(record);
        if (tag == 0x6E616D65) // 'name'
            nameTable = r.u32(record + 8);
        else if (tag == 0x4F532F32) // 'OS/2'
            os2Table = r.u32(record + 8);
    }
    if (!r.ok || nameTable < 0)
        return std::nullopt;

    // Prefer Windows English (3, 0x409), then any Unicode or Windows entry, then Macintosh Roman.
    QString names[18];
    int ranks[18] = {};
    const quint16 count = r.u16(nameTable + 2);
    const qsizetype strings = nameTable + r.u16(nameTable + 4);
    for (quint16 i = 0; i < count && r.ok; ++i) {
        const qsizetype record = nameTable + 6 + 12 * i;
        const quint16 platform = r.u16(record);
        const quint16 language = r.u16(record + 4);
        const quint16 nameId = r.u16(record + 6);
        const quint16 length = r.u16(record + 8);
        const qsizetype at = strings + r.u16(record + 10);
        if (!r.ok || nameId >= 18 || at + length > data.size())
            continue;
        const int rank = platform == 3 && language == 0x409 ? 3 : (platform == 3 || platform == 0) ? 2 : 1;
        if (rank <= ranks[nameId])
            continue;
        const QString name = decodeName(data.mid(at, length), platform);
        if (name.isEmpty())
            continue;
        names[nameId] = name;
        ranks[nameId] = rank;
    }
    if (!r.ok)
        return std::nullopt;
    FontNameTable face;
    face.postScriptName = names[6];
    face.fullName = names[4];
    face.family = names[16].isEmpty() ? names[1] : names[16];
    face.subfamily = names[17].isEmpty() ? names[2] : names[17];
    if (os2Table >= 0) {
        Reader os2 { data };
        const quint16 weight = os2.u16(os2Table + 4);
        const quint16 selection = os2.u16(os2Table + 62);
        if (os2.ok) {
            face.weight = weight;
            face.italic = selection & 1;
        }
    }
    if (face.postScriptName.isEmpty() && face.fullName.isEmpty())
        return std::nullopt;
    return face;
}

} // namespace

QList<FontNameTable> FontNameTable::read(const QByteArray &data)
{
    Reader r { data };
    QList<quint32> offsets;
    if (r.u32(0) == 0x74746366) { // 'ttcf'
        const quint32 count = r.u32(8);
        for (quint32 i = 0; i < count && i < 256 && r.ok; ++i)
            offsets.append(r.u32(12 + 4 * i));
    } else {
        offsets.append(0);
    }
    QList<FontNameTable> faces;
    for (const quint32 offset : offsets) {
        if (auto face = readFace(data, offset))
            faces.append(*face);
    }
    return r.ok ? faces : QList<FontNameTable> {};
}
