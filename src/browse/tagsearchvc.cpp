#include "tagsearchvc.h"

void TagSearchVC::viewDidLoad()
{
    filter();
}

void TagSearchVC::setSearchBarText(const QString &text)
{
    if (text == m_searchBarText)
        return;
    m_searchBarText = text;
    Q_EMIT searchBarTextChanged();
    filter();
}

void TagSearchVC::filter()
{
    const QString text = m_searchBarText.trimmed();
    filterTagArray.clear();
    for (const QString &tag : tags()) {
        if (text.isEmpty() || tag.contains(text, Qt::CaseInsensitive))
            filterTagArray.append(tag);
    }
    Q_EMIT rowsChanged();
}

QStringList TagSearchVC::rows() const
{
    return placeholderShown() ? QStringList { QStringLiteral("No Text") } : filterTagArray;
}

void TagSearchVC::chooseRow(int row)
{
    if (row >= 0 && row < filterTagArray.size())
        search(filterTagArray.at(row));
}

void TagSearchVC::confirmSearch()
{
    const QString text = m_searchBarText.trimmed();
    if (!text.isEmpty())
        search(text);
}
