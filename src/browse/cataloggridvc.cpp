#include "cataloggridvc.h"

#include "mapper.h"
#include "serverclient.h"
#include "templatedataresponse.h"

void CatalogGridVC::send(qint64 pageNumber, ApiCompletion completion)
{
    m_client->getTemplateWithCatalogs(subCatId, cat_id, pageNumber, m_itemCount, this, std::move(completion));
}

std::optional<QJsonObject> CatalogGridVC::cached(qint64 pageNumber) const
{
    if (!m_client)
        return std::nullopt;
    return m_client->cachedTemplateWithCatalogs(subCatId, cat_id, pageNumber);
}

CardGridVC::Page CatalogGridVC::read(const QJsonObject &dictionary) const
{
    const auto answer = Mapper::map<TemplateDataResponse>(dictionary);
    return { answer->sample_cards.value_or(CardListModel::Cards()), answer->is_next_page.value_or(false) };
}
