#pragma once

#include "tagsearchvc.h"

/**
 * The tag picker of the editor's pickers: the opener gives the tags, its `vcTag` and the name of its
 * catalog; the chosen tag or text is handed back to the opener as its `tag`, and the picker closes.
 */
class SearchVC : public TagSearchVC
{
    Q_OBJECT
public:
    explicit SearchVC(QObject *parent = nullptr);

    /** Which picker opened this one. */
    qint64 vcTag = 0;
    /** The tag chosen last. */
    QString tag;
    /** The opener's catalog, the title of this screen. */
    QString categoryName;

    void viewDidLoad() override;

Q_SIGNALS:
    /** A tag was chosen, just before the picker closes. */
    void tagChosen(const QString &tag);

protected:
    void search(const QString &text) override;
};
