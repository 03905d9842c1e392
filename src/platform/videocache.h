#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

class QNetworkAccessManager;
class UserDefaults;

/**
 * "VideoCache": a video by its remote address, as a file in Documents. The key is the full address, the
 * value the file's name; entries never expire, and a found entry is trusted without looking for its
 * file. The address is kept under one spelling (`RemoteAddress::key`), fetches of one address that overlap
 * share one download, so no address ever has two files; only http and https go to the network. The index
 * is a key-value store of its own below the base path. The file write runs off the GUI thread;
 * completions come back on it. GUI thread only.
 */
class VideoCache : public QObject
{
    Q_OBJECT
public:
    /** The local file, or nothing with the reason. */
    using Completion = std::function<void(const std::optional<QString> &file, const QString &error)>;

    explicit VideoCache(QObject *parent = nullptr);
    ~VideoCache() override;

    /** The process's cache. */
    static VideoCache &shared();

    /** The file of a cached address (Documents + "/" + the stored name), or nothing; no network. */
    [[nodiscard]] std::optional<QString> cachedFile(const QUrl &url);

    /**
     * The cached file at once (later on the GUI thread), else a download named by the present time in
     * milliseconds with ".mov". Dropped when `context` has gone.
     */
    void fetch(const QUrl &url, QObject *context, Completion completion);
    /**
     * A movie the user picked or trimmed, copied into Documents like a download and kept under its file
     * address; the copy outlives the temporary folder. Only this entry point reads local files, so that a
     * document naming one cannot have it copied.
     */
    void storeFile(const QString &path, QObject *context, Completion completion);

private:
    UserDefaults &index();
    void request(const QUrl &url, bool isPickedFile, QObject *context, Completion completion);
    void download(const QUrl &url, const QString &address);
    /** Runs `write` off the GUI thread; the name it gives back is indexed under `address`. */
    void store(const QString &address, std::function<QString()> write);
    void finish(const QString &address, const std::optional<QString> &file, const QString &error);

    QNetworkAccessManager *m_network;
    std::unique_ptr<UserDefaults> m_index;
    QString m_indexPath;
    /** The completions waiting for each address being downloaded. */
    QHash<QString, QList<Completion>> m_waiting;
};
