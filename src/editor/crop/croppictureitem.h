#pragma once

#include <QImage>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/**
 * Draws a picture held in memory stretched over the item, from one texture with mipmaps, so that the
 * crop screen can move and scale it every frame without painting it again.
 */
class CropPictureItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
public:
    explicit CropPictureItem(QQuickItem *parent = nullptr);

    [[nodiscard]] QImage image() const { return m_image; }
    void setImage(const QImage &image);

Q_SIGNALS:
    void imageChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    QImage m_image;
    bool m_newImage = false;
};
