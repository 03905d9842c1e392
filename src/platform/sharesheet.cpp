#include "sharesheet.h"

#include "alertmodel.h"
#include "applog.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

namespace ShareSheet {

AlertModel *make(const QString &file, const QImage &picture)
{
    auto *sheet = new AlertModel(QString(), QFileInfo(file).fileName(), true);
    sheet->addAction(
        QObject::tr("Copy"), AlertModel::Style::Default, [file, picture] { copyToClipboard(file, picture); });
    sheet->addAction(QObject::tr("Show in Folder"), AlertModel::Style::Default, [file] { revealInFolder(file); });
    sheet->addAction(QObject::tr("Open"), AlertModel::Style::Default, [file] { openWithSystem(file); });
    sheet->addAction(QObject::tr("Cancel"), AlertModel::Style::Cancel);
    return sheet;
}

void copyToClipboard(const QString &file, const QImage &picture)
{
    auto *data = new QMimeData();
    data->setUrls({ QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()) });
    if (!picture.isNull())
        data->setImageData(picture);
    QGuiApplication::clipboard()->setMimeData(data);
}

bool revealInFolder(const QString &file)
{
    const bool opened = QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(file).absolutePath()));
    if (!opened)
        AppLog::print(QStringLiteral("No file manager could show ") + file);
    return opened;
}

bool openWithSystem(const QString &file)
{
    const bool opened = QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()));
    if (!opened)
        AppLog::print(QStringLiteral("No application could open ") + file);
    return opened;
}

} // namespace ShareSheet
