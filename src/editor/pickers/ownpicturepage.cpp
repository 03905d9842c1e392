#include "ownpicturepage.h"

#include "alertmodel.h"
#include "contentcategorypager.h"
#include "imagedecoder.h"
#include "navigationcontroller.h"

#include <QFutureWatcher>
#include <QVariantMap>
#include <QtConcurrent/QtConcurrentRun>

OwnPicturePage::OwnPicturePage(QList<std::pair<QString, QString>> rows, QObject *parent)
    : ViewController(parent)
    , m_rows(std::move(rows))
{ }

QVariantList OwnPicturePage::rows() const
{
    QVariantList list;
    for (const auto &[title, image] : m_rows)
        list.append(QVariantMap { { QStringLiteral("title"), title }, { QStringLiteral("image"), image } });
    return list;
}

ContentCategoryPager *OwnPicturePage::pager() const
{
    return qobject_cast<ContentCategoryPager *>(parent());
}

NavigationController *OwnPicturePage::navigation() const
{
    if (NavigationController *own = navigationController())
        return own;
    return pager() ? pager()->navigationController() : nullptr;
}

void OwnPicturePage::pickedFile(const QUrl &file)
{
    if (m_preparing)
        return;
    m_preparing = true;
    Q_EMIT isPreparingChanged();
    auto *watcher = new QFutureWatcher<QImage>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher] {
        const QImage picture = watcher->result();
        watcher->deleteLater();
        m_preparing = false;
        Q_EMIT isPreparingChanged();
        if (picture.isNull()) {
            if (NavigationController *stack = navigation())
                stack->presentAlert(
                    (new AlertModel(QString(), QStringLiteral("This file is not a picture that can be opened.")))
                        ->addAction(QStringLiteral("OK")));
            return;
        }
        if (ContentCategoryPager *owner = pager())
            handBack(*owner, picture);
    });
    watcher->setFuture(QtConcurrent::run(
        [path = file.isLocalFile() ? file.toLocalFile() : file.toString()] { return ImageDecoder::decodeFile(path); }));
}
