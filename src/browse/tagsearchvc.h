#pragma once

#include "viewcontroller.h"

#include <QStringList>

/**
 * What the two tag searches share: a list of tags under "Popular Tags" that the search bar filters while
 * the user types, with the placeholder "No Text" when nothing is left; a chosen tag or a confirmed text
 * goes to `search`.
 */
class TagSearchVC : public ViewController
{
    Q_OBJECT
    /** What the search bar holds. */
    Q_PROPERTY(QString searchBarText READ searchBarText WRITE setSearchBarText NOTIFY searchBarTextChanged)
    /** The rows of the table: the tags left by the filter, or the one placeholder row. */
    Q_PROPERTY(QStringList rows READ rows NOTIFY rowsChanged)
    /** The table shows the placeholder "No Text", which cannot be chosen. */
    Q_PROPERTY(bool placeholderShown READ placeholderShown NOTIFY rowsChanged)
    Q_PROPERTY(QString tableTitle READ tableTitle CONSTANT)
public:
    /** The tags offered. */
    QStringList tagArray;
    /** The tags that the search bar leaves. */
    QStringList filterTagArray;

    [[nodiscard]] QString searchBarText() const { return m_searchBarText; }
    /** Filters the tags as the user types: those that hold the text, whatever the case. */
    void setSearchBarText(const QString &text);
    [[nodiscard]] QStringList rows() const;
    [[nodiscard]] bool placeholderShown() const { return filterTagArray.isEmpty(); }
    [[nodiscard]] QString tableTitle() const { return QStringLiteral("Popular Tags"); }

    /** Shows the tags unfiltered. */
    void viewDidLoad() override;
    /** A tag of the table. */
    Q_INVOKABLE void chooseRow(int row);
    /** The search bar's search button: the text as it stands. */
    Q_INVOKABLE void confirmSearch();

Q_SIGNALS:
    void searchBarTextChanged();
    void rowsChanged();

protected:
    using ViewController::ViewController;

    /** Goes on with a chosen tag or a confirmed, non-empty text. */
    virtual void search(const QString &text) = 0;
    /** The tags this screen offers. */
    [[nodiscard]] virtual QStringList tags() const { return tagArray; }

private:
    void filter();

    QString m_searchBarText;
};
