#pragma once

#include <QFutureWatcher>
#include <QImage>
#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/**
 * The row of pictures under the trimmer's handles. The pictures are decoded off the GUI thread and
 * arrive one by one; a slot shows nothing until its picture is there.
 */
class Filmstrip : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the trimmer.")
    /** The number of slots. */
    Q_PROPERTY(int count READ count NOTIFY changed)
public:
    explicit Filmstrip(QObject *parent = nullptr);
    ~Filmstrip() override;

    /** Starts decoding `count` pictures `height` pixels high of the movie, in place of the earlier ones. */
    void load(const QString &path, int count, int height);
    [[nodiscard]] int count() const { return int(m_images.size()); }
    /** The picture of a slot; null until it is decoded. */
    [[nodiscard]] QImage image(int index) const { return m_images.value(index); }
    /** Whether every slot's picture has come, or decoding has given up on the rest. */
    [[nodiscard]] bool isFinished() const { return m_watcher.isFinished(); }

Q_SIGNALS:
    void changed();

private:
    QList<QImage> m_images;
    QFutureWatcher<QImage> m_watcher;
};
