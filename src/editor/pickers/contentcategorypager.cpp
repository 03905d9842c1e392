#include "contentcategorypager.h"

#include "applog.h"
#include "catalogcontentpage.h"
#include "catalogoptionsresponse.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "pickertarget.h"
#include "serverclient.h"
#include "storyboard.h"

#include <utility>

ContentCategoryPager::ContentCategoryPager(QString ownPage, QString contentPage, QObject *parent)
    : CatalogScreen(parent)
    , m_ownPageIdentifier(std::move(ownPage))
    , m_contentPageIdentifier(std::move(contentPage))
{ }

ContentCategoryPager::~ContentCategoryPager() = default;

QStringList ContentCategoryPager::tabTitles() const
{
    QStringList titles;
    if (m_ownPage)
        titles.append(QStringLiteral("Pick your own"));
    for (const auto &catalog : catalogArray)
        titles.append(catalog->name.value_or(QString()));
    return titles;
}

QList<QObject *> ContentCategoryPager::pages() const
{
    QList<QObject *> all;
    if (m_ownPage)
        all.append(m_ownPage);
    for (CatalogContentPage *page : m_contentPages)
        all.append(page);
    return all;
}

void ContentCategoryPager::setCurrentIndex(int index)
{
    const QList<QObject *> all = pages();
    if (index == m_currentIndex || index < 0 || index >= all.size())
        return;
    m_currentIndex = index;
    Q_EMIT currentIndexChanged();
    static_cast<ViewController *>(all.at(index))->viewWillAppear();
}

void ContentCategoryPager::viewDidLoad()
{
    if (!m_ownPage && services().storyboard) {
        m_ownPage = services().storyboard->instantiate(m_ownPageIdentifier);
        if (m_ownPage)
            m_ownPage->setParent(this);
        Q_EMIT pagesChanged();
    }
    startLoad();
}

void ContentCategoryPager::startLoad()
{
    const qint64 subCategory = categoryId;
    load(services().client ? services().client->cachedCatalogBySubCategoryId(subCategory) : std::nullopt,
        [subCategory](ServerClient &client, QObject *context, ApiCompletion completion) {
            client.getCatalogBySubCategoryId(subCategory, context, std::move(completion));
        });
}

bool ContentCategoryPager::show(const QJsonObject &answer)
{
    const auto response = Mapper::map<CatalogOptionsResponse>(answer);
    QList<std::shared_ptr<Catalog>> catalogs;
    for (const auto &catalog : response->category_list.value_or(QList<std::shared_ptr<Catalog>>())) {
        if (catalog)
            catalogs.append(catalog);
    }
    // The same catalogs again keep their pages, and what those pages have loaded.
    const auto sameCatalogs = [&] {
        if (catalogs.size() != catalogArray.size())
            return false;
        for (qsizetype i = 0; i < catalogs.size(); ++i) {
            if (catalogs.at(i)->catalog_id != catalogArray.at(i)->catalog_id
                || catalogs.at(i)->name != catalogArray.at(i)->name)
                return false;
        }
        return true;
    };
    if (sameCatalogs())
        return !catalogs.isEmpty();

    catalogArray = catalogs;
    // The old pages go once the views have let go of them.
    const QList<CatalogContentPage *> oldPages = std::exchange(m_contentPages, {});
    for (const auto &catalog : catalogArray) {
        ViewController *made
            = services().storyboard ? services().storyboard->instantiate(m_contentPageIdentifier) : nullptr;
        auto *page = qobject_cast<CatalogContentPage *>(made);
        if (!page) {
            delete made;
            continue;
        }
        page->setParent(this);
        page->catalog_id = catalog->catalog_id.value_or(0);
        m_contentPages.append(page);
    }
    if (m_currentIndex >= pages().size()) {
        m_currentIndex = 0;
        Q_EMIT currentIndexChanged();
    }
    Q_EMIT pagesChanged();
    for (CatalogContentPage *page : oldPages)
        page->deleteLater();
    // A catalog page that took the place of the one on show loads now.
    if (m_currentIndex > 0)
        static_cast<ViewController *>(pages().at(m_currentIndex))->viewWillAppear();
    catalogsShown();
    return !catalogArray.isEmpty();
}

void ContentCategoryPager::back()
{
    if (NavigationController *stack = navigationController(); stack && stack->topViewController() == this)
        stack->pop();
}

PickerTarget *ContentCategoryPager::target()
{
    return PickerTarget::find(superController, this);
}

void ContentCategoryPager::handBack(const std::function<void(PickerTarget &target)> &give)
{
    PickerTarget *receiver = target();
    if (!receiver) {
        AppLog::print(identifier() + QStringLiteral(": no editor to hand the result to"));
        return;
    }
    give(*receiver);
    PickerTarget::popTo(receiver, this);
}
