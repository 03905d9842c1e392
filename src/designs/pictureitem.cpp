#include "pictureitem.h"

#include <QQuickWindow>
#include <QSGImageNode>

PictureItem::PictureItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void PictureItem::setImage(const QImage &image)
{
    if (image.cacheKey() == m_image.cacheKey())
        return;
    m_image = image;
    m_textureDirty = true;
    Q_EMIT imageChanged();
    update();
}

QSGNode *PictureItem::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data)
{
    Q_UNUSED(data);
    auto *node = static_cast<QSGImageNode *>(oldNode);
    if (m_image.isNull() || !window()) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        node->setMipmapFiltering(QSGTexture::Linear);
        m_textureDirty = true;
    }
    if (m_textureDirty) {
        node->setTexture(window()->createTextureFromImage(m_image));
        m_textureDirty = false;
    }
    node->setRect(boundingRect());
    return node;
}
