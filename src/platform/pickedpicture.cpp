#include "pickedpicture.h"

#include "alertmodel.h"
#include "imagedecoder.h"

#include <QFutureWatcher>
#include <QtConcurrent/QtConcurrentRun>

namespace PickedPicture {

void decode(QObject *context, const QUrl &file, std::function<void(const QImage &picture)> done)
{
    // The watcher belongs to the context, so that a screen closed meanwhile takes its answer with it.
    auto *watcher = new QFutureWatcher<QImage>(context);
    QObject::connect(watcher, &QFutureWatcherBase::finished, context, [watcher, done = std::move(done)] {
        const QImage picture = watcher->result();
        watcher->deleteLater();
        done(picture);
    });
    watcher->setFuture(QtConcurrent::run(
        [path = file.isLocalFile() ? file.toLocalFile() : file.toString()] { return ImageDecoder::decodeFile(path); }));
}

AlertModel *notAPictureAlert()
{
    return (new AlertModel(QString(), QStringLiteral("This file is not a picture that can be opened.")))
        ->addAction(QStringLiteral("OK"));
}

} // namespace PickedPicture
