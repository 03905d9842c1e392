#pragma once

#include "cardgridvc.h"

/**
 * The grid of one catalog, embedded in a catalog screen: pages of `getTemplateWithCatalogs`, each read
 * from the cache before the server is asked.
 */
class CatalogGridVC : public CardGridVC
{
    Q_OBJECT
public:
    /** The catalog; 0 asks for the sub-category's first one. */
    qint64 cat_id = 0;

protected:
    using CardGridVC::CardGridVC;

    void send(qint64 pageNumber, ApiCompletion completion) override;
    [[nodiscard]] std::optional<QJsonObject> cached(qint64 pageNumber) const override;
    [[nodiscard]] Page read(const QJsonObject &dictionary) const override;
};
