#pragma once

#include "catalog.h"
#include "catalogscreen.h"

#include <QList>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

class CatalogContentPage;
class PickerTarget;

/**
 * What the background and sticker pagers share: the catalogs of one sub-category as tabs, the "Pick your
 * own" page first and then one page per catalog, and the hand-back of a picked result to the editor under
 * the pager, to which it then pops back.
 */
class ContentCategoryPager : public CatalogScreen
{
    Q_OBJECT
    Q_PROPERTY(QStringList tabTitles READ tabTitles NOTIFY pagesChanged)
    /** The pages in tab order; owned by this pager. */
    Q_PROPERTY(QList<QObject *> pages READ pages NOTIFY pagesChanged)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)
public:
    ~ContentCategoryPager() override;

    // Set by the opener.
    qint64 categoryId = 0;
    QString categoryName;
    /** 1 when the pager was opened for the editor's selected sticker. */
    int vcTag = 0;
    /** The editor to hand results to; without one, the nearest one below in the stack. */
    QPointer<ViewController> superController;

    /** The catalogs shown, in tab order after the first. */
    QList<std::shared_ptr<Catalog>> catalogArray;

    [[nodiscard]] QStringList tabTitles() const;
    [[nodiscard]] QList<QObject *> pages() const;
    [[nodiscard]] int currentIndex() const { return m_currentIndex; }
    void setCurrentIndex(int index);

    /** Makes the "Pick your own" page, then loads the catalogs. */
    void viewDidLoad() override;
    Q_INVOKABLE void back();

    /** Whoever the pager hands its result to; null when there is none. */
    [[nodiscard]] PickerTarget *target();
    /** Gives the target its result and pops back to it. */
    void handBack(const std::function<void(PickerTarget &target)> &give);

Q_SIGNALS:
    void pagesChanged();
    void currentIndexChanged();

protected:
    /** The storyboard identifiers of the first page and of the catalog pages. */
    ContentCategoryPager(QString ownPage, QString contentPage, QObject *parent);

    void startLoad() override;
    bool show(const QJsonObject &answer) override;

    /** After new catalogs are shown. */
    virtual void catalogsShown() { }

private:
    const QString m_ownPageIdentifier;
    const QString m_contentPageIdentifier;
    ViewController *m_ownPage = nullptr;
    QList<CatalogContentPage *> m_contentPages;
    int m_currentIndex = 0;
};
