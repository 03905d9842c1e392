#pragma once

#include "contentserver.h"

#include <QSize>
#include <QString>
#include <QTemporaryDir>

/**
 * The content server on a loopback port with a pack made for the catalog screens, pictures included:
 *
 * - 47, image stories: 13 catalogs. 301 "Travel" holds `storyCards` cards (json_id 5001 on, tagged
 *   "travel"); 302 to 312 hold two cards each; the last catalog has no `catalog_id` and one card.
 *   The server sends gradient_id 9 on the first catalog, which the client is not to take.
 * - 48, video stories: catalog 401 with three video cards (6001 to 6003), the first one landscape.
 * - 56, highlight covers: catalog 501 with 50 cards (7001 on, tagged "fitness").
 *
 * Every card has a picture; template documents exist for 5001 and 7001.
 */
class BrowsePack
{
public:
    /**
     * `storyCards` in catalog 301; the cards share `pictures` distinct pictures of `pictureSize` (as many as
     * there are cards gives every card its own).
     */
    explicit BrowsePack(int storyCards = 45, int pictures = 6, QSize pictureSize = QSize(270, 480));
    ~BrowsePack();
    BrowsePack(const BrowsePack &) = delete;
    BrowsePack &operator=(const BrowsePack &) = delete;

    [[nodiscard]] ContentServer &server() { return m_server; }
    [[nodiscard]] bool isRunning() const { return m_server.isRunning(); }
    /** "http://127.0.0.1:<port>/" */
    [[nodiscard]] QString baseUrl() const { return QString::fromStdString(m_server.baseUrl()); }
    [[nodiscard]] QString apiBase() const { return QString::fromStdString(m_server.apiBase()); }

    /** How many `getTemplateWithCatalogs` calls asked for this catalog and page. */
    [[nodiscard]] int templateCalls(long long subCategory, long long catalogId, long long page) const;

private:
    QTemporaryDir m_pack;
    ContentServer m_server;
};
