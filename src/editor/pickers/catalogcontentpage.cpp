#include "catalogcontentpage.h"

#include "categoryimagesresponse.h"
#include "contentcategorypager.h"
#include "imagecache.h"
#include "mapper.h"
#include "serverclient.h"

#include <QUrl>

CatalogContentPage::CatalogContentPage(QObject *parent)
    : CatalogScreen(parent)
{
    // The empty state depends on the loading state as well.
    connect(this, &CatalogScreen::loadingStateChanged, this, &CatalogContentPage::itemsChanged);
}

QStringList CatalogContentPage::thumbnails() const
{
    QStringList sources;
    for (const auto &item : itemsArray) {
        const QString address = item->thumbnail_img.value_or(item->compressed_img.value_or(pictureAddress(*item)));
        sources.append(address.isEmpty() ? QString() : QStringLiteral("image://cache/") + address);
    }
    return sources;
}

QString CatalogContentPage::pictureAddress(const Json &item)
{
    return item.original_img.value_or(item.compressed_img.value_or(item.thumbnail_img.value_or(QString())));
}

void CatalogContentPage::viewWillAppear()
{
    if (m_started)
        return;
    m_started = true;
    startLoad();
}

void CatalogContentPage::startLoad()
{
    const qint64 catalog = catalog_id;
    load(services().client ? services().client->cachedImagesByCatalogId(catalog) : std::nullopt,
        [catalog](ServerClient &client, QObject *context, ApiCompletion completion) {
            client.getImagesByCatalogId(catalog, context, std::move(completion));
        });
}

bool CatalogContentPage::show(const QJsonObject &answer)
{
    const auto response = Mapper::map<CategoryImagesResponse>(answer);
    itemsArray.clear();
    for (const auto &item : response->image_list.value_or(QList<std::shared_ptr<Json>>())) {
        if (item)
            itemsArray.append(item);
    }
    is_next_page = response->is_next_page.value_or(false);
    Q_EMIT itemsChanged();
    return !itemsArray.isEmpty();
}

ContentCategoryPager *CatalogContentPage::pager() const
{
    return qobject_cast<ContentCategoryPager *>(parent());
}

void CatalogContentPage::didSelectItem(int index)
{
    if (m_preparing || index < 0 || index >= itemsArray.size())
        return;
    openItem(itemsArray.at(index));
}

void CatalogContentPage::handBack(ContentCategoryPager &pager, const QImage &picture, const Json &item)
{
    Q_UNUSED(pager)
    Q_UNUSED(picture)
    Q_UNUSED(item)
}

void CatalogContentPage::openItem(const std::shared_ptr<Json> &item)
{
    const QString address = pictureAddress(*item);
    if (address.isEmpty())
        return;
    setPreparing(true);
    ImageCache::shared().loadImage(QUrl(address), this, [this, item](const QImage &picture, const QString &) {
        setPreparing(false);
        ContentCategoryPager *owner = pager();
        if (picture.isNull()) {
            showMessage(QStringLiteral("The picture could not be loaded. Please check your connection and try again."));
            return;
        }
        if (owner)
            handBack(*owner, picture, *item);
    });
}

void CatalogContentPage::setPreparing(bool preparing)
{
    if (preparing == m_preparing)
        return;
    m_preparing = preparing;
    Q_EMIT isPreparingChanged();
}
