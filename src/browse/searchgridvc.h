#pragma once

#include "cardgridvc.h"

/**
 * The results of one search, for stories or highlight covers: pages of `searchCardsBySubCategoryId`,
 * never cached, under the process's `searchMessage` ("Results", or the server's notice of related cards).
 */
class SearchGridVC : public CardGridVC
{
    Q_OBJECT
    Q_PROPERTY(QString searchMessage READ searchMessage NOTIFY searchMessageChanged)
public:
    /** The tag or text searched for. */
    QString searchTxt;

    [[nodiscard]] QString searchMessage() const { return m_searchMessage; }

    /** Takes the sub-category of its kind of cards, then the first page. */
    void viewDidLoad() override;

Q_SIGNALS:
    void searchMessageChanged();

protected:
    using CardGridVC::CardGridVC;

    [[nodiscard]] virtual qint64 searchSubCategory() const = 0;
    void send(qint64 pageNumber, ApiCompletion completion) override;
    [[nodiscard]] Page read(const QJsonObject &dictionary) const override;

private:
    void refreshMessage();

    QString m_searchMessage;
};
