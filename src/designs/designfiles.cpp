#include "designfiles.h"

#include "alertmodel.h"
#include "apppaths.h"
#include "remoteaddress.h"

#include <QFileInfo>

namespace DesignFiles {

namespace {

QString extension(const QString &path)
{
    return QFileInfo(path).suffix();
}

} // namespace

bool isGif(const Json &design)
{
    return extension(QUrl(design.sample_video.value_or(QString())).path()) == QLatin1String("gif");
}

QString videoFile(const Json &design)
{
    const QUrl url(design.sample_video.value_or(QString()));
    if (!url.isValid() || url.fileName().isEmpty())
        return {};
    return AppPaths::documents() + QLatin1Char('/') + url.fileName();
}

QUrl previewAddress(const Json &design)
{
    const QUrl url(design.sample_image.value_or(QString()));
    return RemoteAddress::isRemote(url) ? url : QUrl();
}

QString previewFile(const Json &design)
{
    const QString name = design.sample_image.value_or(QString());
    if (name.isEmpty() || !previewAddress(design).isEmpty())
        return {};
    return AppPaths::documents() + QLatin1Char('/') + name;
}

QString previewSource(const Json &design)
{
    const QUrl address = previewAddress(design);
    if (!address.isEmpty())
        return QStringLiteral("image://cache/") + address.toString();
    const QString file = previewFile(design);
    return file.isEmpty() ? QString() : QStringLiteral("image://cache/") + QUrl::fromLocalFile(file).toString();
}

bool hasPreview(const Json &design)
{
    return design.is_editsaved || !design.thumbnail_img.value_or(QString()).isEmpty()
        || extension(design.sample_image.value_or(QString())) == QLatin1String("webp");
}

AlertModel *previewUnavailableAlert(const QString &action)
{
    auto *alert = new AlertModel(action + QStringLiteral(" Unavailable!"),
        QStringLiteral("Design preview was not generated so you can't ") + action.toLower()
            + QStringLiteral(" it.\nPlease save again to generate a new preview."));
    alert->addAction(QStringLiteral("OK"));
    return alert;
}

} // namespace DesignFiles
