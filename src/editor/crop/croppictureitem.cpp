#include "croppictureitem.h"

#include <QQuickWindow>
#include <QSGImageNode>

CropPictureItem::CropPictureItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void CropPictureItem::setImage(const QImage &image)
{
    if (image.cacheKey() == m_image.cacheKey())
        return;
    m_image = image;
    m_newImage = true;
    Q_EMIT imageChanged();
    update();
}

QSGNode *CropPictureItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData * /*data*/)
{
    auto *node = static_cast<QSGImageNode *>(old);
    if (m_image.isNull() || width() <= 0 || height() <= 0) {
        delete node;
        return nullptr;
    }
    // A new picture gets a new node, which takes the texture along when it goes.
    if (!node || m_newImage) {
        delete node;
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setTexture(window()->createTextureFromImage(m_image, QQuickWindow::TextureHasMipmaps));
        node->setFiltering(QSGTexture::Linear);
        node->setMipmapFiltering(QSGTexture::Linear);
        m_newImage = false;
    }
    node->setRect(boundingRect());
    return node;
}
