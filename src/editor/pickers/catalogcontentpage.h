#pragma once

#include "catalogscreen.h"
#include "json.h"

#include <QList>
#include <QStringList>

#include <memory>

class ContentCategoryPager;

/**
 * What the background and sticker catalog pages share: the pictures of one catalog in a grid, loaded
 * when the page first shows, with a loading, a failed and an empty state. A tapped picture is fetched
 * through the image cache and then handed to the editor.
 */
class CatalogContentPage : public CatalogScreen
{
    Q_OBJECT
    /** The grid's pictures, as image sources. */
    Q_PROPERTY(QStringList thumbnails READ thumbnails NOTIFY itemsChanged)
    /** Loaded, and the catalog has no pictures. */
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY itemsChanged)
    /** Height over width of the grid's cells. */
    Q_PROPERTY(qreal cellAspect READ cellAspect CONSTANT)
    /** A tapped picture is on its way. */
    Q_PROPERTY(bool isPreparing READ isPreparing NOTIFY isPreparingChanged)
public:
    qint64 catalog_id = 0;
    QList<std::shared_ptr<Json>> itemsArray;
    bool is_next_page = false;

    [[nodiscard]] QStringList thumbnails() const;
    [[nodiscard]] bool isEmpty() const { return loadingState() == LoadingState::Loaded && itemsArray.isEmpty(); }
    [[nodiscard]] bool isPreparing() const { return m_preparing; }
    [[nodiscard]] virtual qreal cellAspect() const = 0;

    /** The first time the page shows, its catalog loads. */
    void viewWillAppear() override;
    /** A tap on an item: openItem(). */
    Q_INVOKABLE void didSelectItem(int index);

    /** The address of an item's full picture. */
    [[nodiscard]] static QString pictureAddress(const Json &item);

Q_SIGNALS:
    void itemsChanged();
    void isPreparingChanged();

protected:
    explicit CatalogContentPage(QObject *parent = nullptr);

    void startLoad() override;
    bool show(const QJsonObject &answer) override;
    [[nodiscard]] ContentCategoryPager *pager() const;
    /** A tapped item: by default its full picture is fetched, then handed back. */
    virtual void openItem(const std::shared_ptr<Json> &item);
    /** Gives the fetched picture of `item` to the editor through the pager; pages that open items otherwise hand
     * nothing back. */
    virtual void handBack(ContentCategoryPager &pager, const QImage &picture, const Json &item);
    void setPreparing(bool preparing);

private:
    bool m_started = false;
    bool m_preparing = false;
};
