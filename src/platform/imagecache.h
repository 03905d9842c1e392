#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>

class QNetworkAccessManager;

/**
 * Pictures by address, as the template screens preload them and the editor then finds them: a memory
 * cache (least recently used, bounded by pixels) over a disk cache below the base path, filled from the
 * network. Addresses are kept under one spelling (`RemoteAddress::key`), and only http and https go to
 * the network. Disk reads, decoding (WebP included) and disk writes run on the thread pool; completions
 * come back on the GUI thread. Loads of one address are not merged: each asks the network on a miss.
 * GUI thread only.
 */
class ImageCache : public QObject
{
    Q_OBJECT
public:
    /** The picture, or a null image with the reason. */
    using Completion = std::function<void(const QImage &image, const QString &error)>;

    explicit ImageCache(QObject *parent = nullptr);

    /** The process's cache, the one the preparation fills and the editor reads. */
    static ImageCache &shared();

    /**
     * Memory, then disk, then the network. The completion runs later on the GUI thread, also for a memory
     * hit; it is dropped when `context` has gone (a null context never goes).
     */
    void loadImage(const QUrl &url, QObject *context, Completion completion);

    /** The picture of an address from memory or disk, or a null image; reads the disk on the caller's thread. */
    [[nodiscard]] QImage imageFromCache(const QUrl &url);
    [[nodiscard]] bool isInMemory(const QUrl &url) const;
    void clearMemory() { m_memory.clear(); }

    /** How many loads went to the network since the start. */
    [[nodiscard]] int networkLoads() const { return m_networkLoads; }

    /** The disk file of an address (it may not exist). */
    [[nodiscard]] static QString diskPath(const QUrl &url);

private:
    void remember(const QString &address, const QImage &image);
    void download(const QUrl &url, const std::function<void(const QImage &, const QString &)> &done);

    QCache<QString, QImage> m_memory;
    QNetworkAccessManager *m_network;
    int m_networkLoads = 0;
};
