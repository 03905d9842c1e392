#pragma once

#include <QImage>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/**
 * An in-memory picture stretched over the item. The picture becomes a texture once, with mipmaps, so
 * that zooming, which only resizes the item, redraws nothing and a large picture shown small stays smooth.
 */
class PictureItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    /** The picture's size in pixels; empty without a picture. */
    Q_PROPERTY(QSize sourceSize READ sourceSize NOTIFY imageChanged)
public:
    explicit PictureItem(QQuickItem *parent = nullptr);

    [[nodiscard]] QImage image() const { return m_image; }
    void setImage(const QImage &image);
    [[nodiscard]] QSize sourceSize() const { return m_image.size(); }

Q_SIGNALS:
    void imageChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    QImage m_image;
    bool m_textureDirty = false;
};
