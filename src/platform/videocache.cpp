#include "videocache.h"

#include "apppaths.h"
#include "remoteaddress.h"
#include "userdefaults.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFutureWatcher>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QSaveFile>
#include <QtConcurrent/QtConcurrentRun>

namespace {

constexpr int requestTimeoutMs = 35000;

// The file name of a new download; a second video in the same millisecond takes the next free number.
QString writeVideo(const QByteArray &bytes)
{
    const QDir documents(AppPaths::documents());
    documents.mkpath(QStringLiteral("."));
    qint64 stamp = QDateTime::currentMSecsSinceEpoch();
    while (documents.exists(QString::number(stamp) + QStringLiteral(".mov")))
        ++stamp;
    QString name = QString::number(stamp) + QStringLiteral(".mov");
    QSaveFile file(documents.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return {};
    return name;
}

} // namespace

VideoCache::VideoCache(QObject *parent)
    : QObject(parent)
    , m_network(new QNetworkAccessManager(this))
{
    m_network->setTransferTimeout(requestTimeoutMs);
}

VideoCache::~VideoCache() = default;

VideoCache &VideoCache::shared()
{
    static VideoCache *cache = new VideoCache(); // lives as long as the process
    return *cache;
}

UserDefaults &VideoCache::index()
{
    // Follows the base path, as the settings do, so that each test home has its own index.
    const QString path = AppPaths::database(QStringLiteral("VideoCache.sqlite"));
    if (!m_index || m_indexPath != path) {
        AppPaths::ensureCreated();
        m_index = std::make_unique<UserDefaults>(path);
        m_indexPath = path;
    }
    return *m_index;
}

std::optional<QString> VideoCache::cachedFile(const QUrl &url)
{
    const std::optional<QString> name = index().string(RemoteAddress::key(url));
    if (!name)
        return std::nullopt;
    return AppPaths::documents() + QLatin1Char('/') + *name;
}

void VideoCache::fetch(const QUrl &url, QObject *context, Completion completion)
{
    request(url, false, context, std::move(completion));
}

void VideoCache::storeFile(const QString &path, QObject *context, Completion completion)
{
    request(QUrl::fromLocalFile(path), true, context, std::move(completion));
}

void VideoCache::request(const QUrl &url, bool isPickedFile, QObject *context, Completion completion)
{
    const bool hasContext = context != nullptr;
    Completion guarded = [guard = QPointer<QObject>(context), hasContext, completion = std::move(completion)](
                             const std::optional<QString> &file, const QString &error) {
        if (hasContext && !guard)
            return;
        completion(file, error);
    };
    if (const std::optional<QString> file = cachedFile(url)) {
        QMetaObject::invokeMethod(
            this, [guarded, file] { guarded(file, QString()); }, Qt::QueuedConnection);
        return;
    }
    const QString address = RemoteAddress::key(url);
    const bool running = m_waiting.contains(address);
    m_waiting[address].append(std::move(guarded));
    if (running)
        return;
    if (isPickedFile) {
        store(address, [path = url.toLocalFile()] {
            QFile file(path);
            return file.open(QIODevice::ReadOnly) ? writeVideo(file.readAll()) : QString();
        });
        return;
    }
    if (!RemoteAddress::isRemote(url)) {
        QMetaObject::invokeMethod(
            this,
            [this, address, url] {
                finish(address, std::nullopt, QStringLiteral("not a web address: ") + url.toString());
            },
            Qt::QueuedConnection);
        return;
    }
    download(url, address);
}

void VideoCache::download(const QUrl &url, const QString &address)
{
    QNetworkReply *reply = m_network->get(QNetworkRequest(url));
    connect(reply, &QNetworkReply::finished, this, [this, reply, address] {
        reply->deleteLater();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (reply->error() != QNetworkReply::NoError || (status != 0 && status != 200)) {
            finish(address, std::nullopt, reply->errorString());
            return;
        }
        store(address, [bytes = reply->readAll()] { return writeVideo(bytes); });
    });
}

void VideoCache::store(const QString &address, std::function<QString()> write)
{
    auto *watcher = new QFutureWatcher<QString>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, address] {
        watcher->deleteLater();
        const QString name = watcher->result();
        if (name.isEmpty()) {
            finish(address, std::nullopt, QStringLiteral("could not write the video to Documents"));
            return;
        }
        index().setString(address, name);
        finish(address, AppPaths::documents() + QLatin1Char('/') + name, QString());
    });
    watcher->setFuture(QtConcurrent::run(std::move(write)));
}

void VideoCache::finish(const QString &address, const std::optional<QString> &file, const QString &error)
{
    const QList<Completion> waiting = m_waiting.take(address);
    for (const Completion &completion : waiting)
        completion(file, error);
}
