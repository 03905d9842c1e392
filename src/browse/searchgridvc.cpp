#include "searchgridvc.h"

#include "getsearchedjsonresponse.h"
#include "mapper.h"
#include "serverclient.h"

void SearchGridVC::viewDidLoad()
{
    subCatId = searchSubCategory();
    setTitle(searchTxt);
    refreshMessage();
    CardGridVC::viewDidLoad();
}

void SearchGridVC::send(qint64 pageNumber, ApiCompletion completion)
{
    m_client->searchCardsBySubCategoryId(subCatId, searchTxt, pageNumber, m_itemCount, this,
        [this, completion = std::move(completion)](
            const std::optional<QJsonObject> &dictionary, const std::optional<ApiError> &error, bool usable) {
            // A code 427 answer has put the server's notice in place of "Results".
            refreshMessage();
            completion(dictionary, error, usable);
        });
}

CardGridVC::Page SearchGridVC::read(const QJsonObject &dictionary) const
{
    const auto answer = Mapper::map<GetSearchedJsonResponse>(dictionary);
    return { answer->result.value_or(CardListModel::Cards()), answer->is_next_page.value_or(false) };
}

void SearchGridVC::refreshMessage()
{
    const QString message = ServerClient::searchMessage();
    if (message == m_searchMessage)
        return;
    m_searchMessage = message;
    Q_EMIT searchMessageChanged();
}
