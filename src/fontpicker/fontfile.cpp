#include "fontfile.h"

#include "fontnametable.h"
#include "fontregistry.h"

#include <QRawFont>

namespace {
constexpr qreal rawFontPixelSize = 12;
}

FontFile FontFile::create(const QByteArray &data)
{
    FontFile font;
    const QList<FontNameTable> faces = FontNameTable::read(data);
    // Names alone do not make a font: Qt has to load its outlines.
    if (faces.isEmpty() || !QRawFont(data, rawFontPixelSize).isValid())
        return font;
    font.created = true;
    font.postScriptName = faces.first().postScriptName;
    return font;
}

FontFile FontFile::registerFile(const QString &path, const QByteArray &data)
{
    FontFile font = create(data);
    if (!font.created)
        return font;
    FontRegistry &registry = FontRegistry::shared();
    if (!font.postScriptName.isEmpty() && registry.contains(font.postScriptName))
        return font;
    font.registered = !registry.registerFontFile(path).isEmpty();
    return font;
}
