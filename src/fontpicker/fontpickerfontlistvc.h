#pragma once

#include "fontpickercatalogs.h"
#include "fontpickerpage.h"

#include <QList>
#include <QVariantList>

#include <memory>

class AlertModel;

/** FREE or PAID: the font catalogs of one selector, each fetched whole with a tap. */
class FontpickerFontListVC : public FontpickerPage
{
    Q_OBJECT
    /** One map per catalog: name, thumbnail (an image://cache address), downloaded. */
    Q_PROPERTY(QVariantList itemsArray READ itemsArray NOTIFY itemsChanged)
    Q_PROPERTY(bool loading READ isLoading NOTIFY itemsChanged)
    /** The words over an empty list, else empty. */
    Q_PROPERTY(QString message READ message NOTIFY itemsChanged)
public:
    explicit FontpickerFontListVC(qint64 isFree = 1, QObject *parent = nullptr);

    [[nodiscard]] qint64 isFree() const { return m_isFree; }
    [[nodiscard]] QVariantList itemsArray() const;
    [[nodiscard]] bool isLoading() const { return m_loading; }
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] const QList<std::shared_ptr<FontpickerCatalogs>> &catalogs() const { return m_catalogs; }

    /** Shows the cached answer, then asks the server; again when the network resumes while the list is empty. */
    void viewDidLoad() override;
    /** A tap on a catalog: refused when present, else fetched with the progress alert and its result. */
    Q_INVOKABLE void didSelectItem(int index);

Q_SIGNALS:
    void itemsChanged();

private:
    void load();
    void show(const QJsonObject &answer);

    qint64 m_isFree;
    QList<std::shared_ptr<FontpickerCatalogs>> m_catalogs;
    bool m_loading = false;
    QString m_message;
};
