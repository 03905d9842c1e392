#include "fontfile.h"

#include "fontnametable.h"
#include "fontregistry.h"

FontFile FontFile::create(const QByteArray &data)
{
    FontFile font;
    const QList<FontNameTable> faces = FontNameTable::read(data);
    if (faces.isEmpty())
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
