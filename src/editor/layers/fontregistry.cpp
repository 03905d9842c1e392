#include "fontregistry.h"

#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QStandardPaths>

namespace {

// The platform's own faces that designs name, and the faces that stand in for them here.
const QHash<QString, QString> &standIns()
{
    static const QHash<QString, QString> names {
        { QStringLiteral("Helvetica"), QStringLiteral("LiberationSans") },
        { QStringLiteral("Helvetica-Bold"), QStringLiteral("LiberationSans-Bold") },
        { QStringLiteral("Helvetica-Oblique"), QStringLiteral("LiberationSans-Italic") },
        { QStringLiteral("Helvetica-BoldOblique"), QStringLiteral("LiberationSans-BoldItalic") },
        { QStringLiteral("SFUIText-Regular"), QStringLiteral("LiberationSans") },
        { QStringLiteral("SFUIText-Light"), QStringLiteral("LiberationSans") },
        { QStringLiteral("SFUIText-Medium"), QStringLiteral("LiberationSans") },
        { QStringLiteral("SFUIText-Semibold"), QStringLiteral("LiberationSans-Bold") },
        { QStringLiteral("SFUIText-Bold"), QStringLiteral("LiberationSans-Bold") },
    };
    return names;
}

QList<FontNameTable> readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // Mapped, not read: the tables are small, the files may not be.
    uchar *mapped = file.map(0, file.size());
    if (!mapped)
        return FontNameTable::read(file.readAll());
    const QByteArray data = QByteArray::fromRawData(reinterpret_cast<const char *>(mapped), file.size());
    QList<FontNameTable> faces = FontNameTable::read(data);
    file.unmap(mapped);
    return faces;
}

} // namespace

FontRegistry &FontRegistry::shared()
{
    static FontRegistry registry;
    return registry;
}

FontRegistry::FontRegistry()
{
    QDirIterator shipped(QStringLiteral(":/Quillet/Editor/Layers/fonts"),
        { QStringLiteral("*.otf"), QStringLiteral("*.ttf") }, QDir::Files);
    while (shipped.hasNext())
        registerFontFile(shipped.next());
}

QStringList FontRegistry::registerFontFile(const QString &path)
{
    const int id = QFontDatabase::addApplicationFont(path);
    if (id < 0)
        return {};
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    QStringList names;
    for (const FontNameTable &face : readFile(path)) {
        const QString family = families.contains(face.family) || families.isEmpty() ? face.family : families.first();
        add(face, family, true);
        names.append(face.postScriptName);
    }
    return names;
}

void FontRegistry::add(const FontNameTable &face, const QString &qtFamily, bool application)
{
    const Entry entry { face, qtFamily };
    // Fonts registered by the application win over system faces of the same name.
    for (const QString &name : { face.postScriptName, face.fullName }) {
        if (!name.isEmpty() && (application || !m_byName.contains(name)))
            m_byName.insert(name, entry);
    }
    if (application)
        m_applicationFaces.append(face);
}

void FontRegistry::scanSystemFonts()
{
    m_systemScanned = true;
    QStringList roots = QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
    roots << QStringLiteral("/usr/share/fonts") << QStringLiteral("/usr/local/share/fonts");
    const QStringList patterns { QStringLiteral("*.ttf"), QStringLiteral("*.otf"), QStringLiteral("*.ttc"),
        QStringLiteral("*.TTF"), QStringLiteral("*.OTF") };
    for (const QString &root : std::as_const(roots)) {
        QDirIterator it(root, patterns, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            for (const FontNameTable &face : readFile(it.next()))
                add(face, face.family, false);
        }
    }
}

const FontRegistry::Entry *FontRegistry::find(const QString &name)
{
    if (name.isEmpty())
        return nullptr;
    for (int attempt = 0; attempt < 2; ++attempt) {
        auto it = m_byName.constFind(name);
        if (it == m_byName.constEnd())
            it = m_byName.constFind(standIns().value(name));
        if (it != m_byName.constEnd())
            return &*it;
        if (m_systemScanned)
            break;
        scanSystemFonts();
    }
    return nullptr;
}

bool FontRegistry::contains(const QString &name)
{
    return find(name) != nullptr;
}

std::optional<QFont> FontRegistry::font(const QString &name, qreal size)
{
    const Entry *entry = find(name);
    if (!entry)
        return std::nullopt;
    const FontNameTable *face = &entry->face;
    QFont font(entry->qtFamily);
    font.setStyleName(face->subfamily);
    font.setWeight(QFont::Weight(qBound(1, face->weight, 1000)));
    font.setItalic(face->italic);
    if (size > 0)
        font.setPointSizeF(size);
    return font;
}
