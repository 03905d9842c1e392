#include "appassets.h"

#include <QFile>

namespace AppAssets {

QImage image(const QString &name)
{
    if (name.isEmpty())
        return {};
    static const char *const suffixes[] = { "", ".png", ".jpg", ".webp", ".svg" };
    for (const char *suffix : suffixes) {
        const QString path = QStringLiteral(":/assets/") + name + QLatin1String(suffix);
        if (QFile::exists(path))
            return QImage(path);
    }
    return {};
}

} // namespace AppAssets
