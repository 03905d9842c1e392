#include "fontpickerfontlistvc.h"

#include "alertmodel.h"
#include "fontlist.h"
#include "fontpickercatalogsresponse.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "qffontpicker.h"
#include "reachability.h"

#include <QGuiApplication>
#include <QVariantMap>

FontpickerFontListVC::FontpickerFontListVC(qint64 isFree, QObject *parent)
    : FontpickerPage(parent)
    , m_isFree(isFree)
{ }

QVariantList FontpickerFontListVC::itemsArray() const
{
    // What is present is read from the font list each time, so that a fetch shows at once.
    const FontList::Catalogs downloaded = FontList::read().value_or(FontList::Catalogs());
    QVariantList items;
    for (const auto &catalog : m_catalogs) {
        items.append(QVariantMap { { QStringLiteral("name"), catalog->name.value_or(QString()) },
            { QStringLiteral("thumbnail"),
                QStringLiteral("image://cache/") + catalog->webp_thumbnail_img.value_or(QString()) },
            { QStringLiteral("downloaded"),
                FontList::containsCatalog(downloaded, catalog->catalog_id.value_or(-1)) } });
    }
    return items;
}

void FontpickerFontListVC::show(const QJsonObject &answer)
{
    const auto response = Mapper::map<FontpickerCatalogsResponse>(answer);
    m_catalogs.clear();
    for (const auto &catalog : response->catalogs.value_or(QList<std::shared_ptr<FontpickerCatalogs>>())) {
        if (catalog)
            m_catalogs.append(catalog);
    }
}

void FontpickerFontListVC::viewDidLoad()
{
    if (QFFontpicker *library = fontpicker())
        connect(library, &QFFontpicker::resumed, this, [this] {
            if (m_catalogs.isEmpty() && !m_loading)
                load();
        });
    load();
}

void FontpickerFontListVC::load()
{
    QFFontpicker *library = fontpicker();
    if (!library)
        return;
    if (const auto cached = library->cachedCatalogsByTypeInWebp(m_isFree))
        show(*cached);
    m_loading = true;
    m_message = QStringLiteral("Loading...");
    Q_EMIT itemsChanged();
    const QString appName = QGuiApplication::applicationDisplayName();
    if (Reachability(library->settings().serverURL.host()).connection() == Reachability::Connection::Unavailable) {
        m_loading = false;
        m_message = m_catalogs.isEmpty() ? appName + QStringLiteral(" is unable to connect with internet") : QString();
        Q_EMIT itemsChanged();
        return;
    }
    library->getCatalogsByTypeInWebp(m_isFree, this,
        [this, appName](const std::optional<QJsonObject> &data, const std::optional<ApiError> &, bool usable) {
            m_loading = false;
            if (usable && data)
                show(*data);
            if (!m_catalogs.isEmpty())
                m_message.clear();
            else if (usable && data)
                m_message = QStringLiteral("No items found.");
            else
                m_message = appName + QStringLiteral(" is unable to connect with server");
            Q_EMIT itemsChanged();
        });
}

void FontpickerFontListVC::didSelectItem(int index)
{
    QFFontpicker *library = fontpicker();
    NavigationController *stack = navigation();
    if (!library || index < 0 || index >= m_catalogs.size())
        return;
    const FontpickerCatalogs catalog = *m_catalogs.at(index);
    if (FontList::containsCatalog(FontList::read().value_or(FontList::Catalogs()), catalog.catalog_id.value_or(-1))) {
        showMessage(QStringLiteral("Font already exist."));
        return;
    }
    QPointer<AlertModel> progress = new AlertModel(QStringLiteral("Downloading\u2026"), QString(), false, this);
    if (stack)
        stack->presentAlert(progress);
    library->fetchCatalog(catalog, this, [this, progress](bool success) {
        if (progress)
            Q_EMIT progress->finished();
        Q_EMIT itemsChanged();
        showMessage(success ? QStringLiteral("Fonts downloaded successfully.") : QStringLiteral("Please try again."));
    });
}
