#include "qffontpicker.h"

#include "applog.h"
#include "apppaths.h"
#include "fontfile.h"
#include "fontpickercatalogsrequest.h"
#include "fontpickerdownloadrequest.h"
#include "fontpickerresponse.h"
#include "mapper.h"
#include "remoteaddress.h"
#include "userdefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QSaveFile>

namespace {

const QString catalogsEndpoint = QStringLiteral("getCatalogsByTypeInWebp");
const QString fontsEndpoint = QStringLiteral("getAllFontsByCatalogId");
const QStringList fontSuffixes
    = { QStringLiteral("ttf"), QStringLiteral("otf"), QStringLiteral("ttc"), QStringLiteral("otc") };

template<class Member> auto member(std::shared_ptr<Member> FontpickerResponse::*field)
{
    return [field](const nlohmann::ordered_json &envelope) -> std::optional<QJsonObject> {
        const std::shared_ptr<FontpickerResponse> response = Mapper::map<FontpickerResponse>(envelope);
        const std::shared_ptr<Member> &record = (*response).*field;
        if (!record)
            return std::nullopt;
        return Mapper::toJSONObject(*record);
    };
}

template<class Request> ApiCall makeCall(const QString &endpoint, const Request &request)
{
    ApiCall call;
    call.endpoint = endpoint;
    call.body = Mapper::toJSON(request);
    call.requestLog = endpoint + QStringLiteral(" request: ");
    call.responseLog = endpoint + QStringLiteral(" reponse: ");
    return call;
}

/**
 * The Documents file for a font address: its last path component, whatever folders or encoded slashes the
 * name carries, so that a server's name never leads outside Documents. Empty when no usable name remains.
 */
QString documentsFileFor(const QUrl &url)
{
    return AppPaths::fileIn(AppPaths::documents(), url.fileName(QUrl::FullyDecoded));
}

/** Where a listed font's file lies: a path as it stands, an address as its file in Documents. */
QString listedFile(const QString &fontUrl)
{
    if (fontUrl.startsWith(QLatin1Char('/')) || fontUrl.startsWith(QLatin1String(":/")))
        return fontUrl;
    return documentsFileFor(QUrl(fontUrl));
}

/** Whether a file that a download would replace may go: none there, or a font (an earlier download). */
bool mayReplace(const QString &path)
{
    QFile existing(path);
    if (!existing.exists())
        return true;
    return existing.open(QIODevice::ReadOnly) && FontFile::create(existing.readAll()).created;
}

/**
 * GET a font into its Documents file; the file or the error. Only web addresses go out, the bytes land only
 * when Qt loads them as a font, never over a file that is not a font, and never half-written.
 */
void downloadToDocuments(QNetworkAccessManager *network, const QUrl &url, QObject *owner,
    std::function<void(const QString &path, const std::optional<QString> &error)> done)
{
    const QString path = documentsFileFor(url);
    auto refuse = [owner, done](const QString &why) {
        QMetaObject::invokeMethod(
            owner, [done, why] { done({}, why); }, Qt::QueuedConnection);
    };
    if (!RemoteAddress::isRemote(url)) {
        refuse(QStringLiteral("not a web address: ") + url.toString());
        return;
    }
    if (path.isEmpty()) {
        refuse(QStringLiteral("the address names no file"));
        return;
    }
    QNetworkReply *reply = network->get(QNetworkRequest(url));
    QObject::connect(reply, &QNetworkReply::finished, owner, [reply, path, done] {
        reply->deleteLater();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (reply->error() != QNetworkReply::NoError || (status != 0 && status != 200)) {
            done({}, reply->errorString());
            return;
        }
        const QByteArray bytes = reply->readAll();
        if (!FontFile::create(bytes).created) {
            done({}, QStringLiteral("not a font: ") + QFileInfo(path).fileName());
            return;
        }
        if (!mayReplace(path)) {
            done({}, QStringLiteral("a file that is not a font has the name ") + QFileInfo(path).fileName());
            return;
        }
        QDir().mkpath(AppPaths::documents());
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
            done({}, file.errorString());
            return;
        }
        done(path, std::nullopt);
    });
}

} // namespace

QFFontpicker::QFFontpicker(QNetworkAccessManager *network, FontpickerConnection connection, QObject *parent)
    : QObject(parent)
    , m_settings(std::move(connection))
    , m_connection(network, m_settings.serverURL, DefaultsKey::fontpickerToken, m_settings.tokenHeader)
    , m_network(network)
{ }

QString QFFontpicker::defaultListPath()
{
    return QStringLiteral(":/Quillet/Fontpicker/qf_font_json.json");
}

void QFFontpicker::start(const QString &defaultPath)
{
    FontList::prepare(defaultPath);
    registerListedFonts();
}

void QFFontpicker::registerListedFonts()
{
    for (const auto &catalog : FontList::read().value_or(FontList::Catalogs())) {
        for (const auto &font : catalog->font_list.value_or(QList<std::shared_ptr<FontpickerFontList>>())) {
            if (!font || !font->font_url)
                continue;
            const QString path = listedFile(*font->font_url);
            QFile file(path);
            if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
                AppLog::print(QStringLiteral("File can not find"));
                continue;
            }
            if (FontFile::registerFile(path, file.readAll()).registered)
                AppLog::print(QStringLiteral("Load Font"));
        }
    }
}

void QFFontpicker::getCatalogsByTypeInWebp(qint64 isFree, QObject *context, ApiCompletion completion)
{
    ApiCall call = makeCall(catalogsEndpoint, FontpickerCatalogsRequest { m_settings.sub_category_id, isFree, 0 });
    call.member = member(&FontpickerResponse::fontpickerCatalogsResponse);
    const QString key = m_connection.endpointUrl(catalogsEndpoint) + QString::number(m_settings.sub_category_id)
        + QString::number(isFree);
    call.store = [key](const QJsonObject &record) { UserDefaults::standard().setDictionary(key, record); };
    call.cached = [this, isFree] { return cachedCatalogsByTypeInWebp(isFree); };
    m_connection.send(call, context, std::move(completion));
}

std::optional<QJsonObject> QFFontpicker::cachedCatalogsByTypeInWebp(qint64 isFree) const
{
    const QString key = m_connection.endpointUrl(catalogsEndpoint) + QString::number(m_settings.sub_category_id)
        + QString::number(isFree);
    std::optional<QJsonObject> entry = UserDefaults::standard().dictionary(key);
    if (entry)
        AppLog::print(QStringLiteral("getAllCatalogsByTypeFrom cache : ")
            + QString::fromUtf8(QJsonDocument(*entry).toJson(QJsonDocument::Compact)));
    return entry;
}

void QFFontpicker::getAllFontsByCatalogId(qint64 catalogId, QObject *context, ApiCompletion completion)
{
    ApiCall call = makeCall(fontsEndpoint, FontpickerDownloadRequest { catalogId });
    call.member = member(&FontpickerResponse::fontpickerDownloadResponse);
    m_connection.send(call, context, std::move(completion));
}

void QFFontpicker::downloadFont(const QString &urlString, QObject *context, FontCompletion completion)
{
    // The query character set: letters, digits and "-._~" stay, and "!$&'()*+,/:;=?@"; everything else,
    // '%', '#', '[' and ']' among it, is encoded.
    const QByteArray encoded = QUrl::toPercentEncoding(urlString, "!$&'()*+,/:;=?@");
    const QUrl url = QUrl::fromEncoded(encoded, QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty() || url.host().isEmpty())
        return;
    const bool hasContext = context != nullptr;
    downloadToDocuments(m_network, url, this,
        [this, guard = QPointer<QObject>(context), hasContext, completion](
            const QString &path, const std::optional<QString> &error) {
            if (hasContext && !guard)
                return;
            if (error) {
                AppLog::print(QStringLiteral("Error : ") + *error);
                completion(error, false, std::nullopt);
                return;
            }
            finishDownload(path, completion);
        });
}

void QFFontpicker::finishDownload(const QString &path, const FontCompletion &completion)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        AppLog::print(QStringLiteral("File can not find"));
        completion(file.errorString(), false, std::nullopt);
        return;
    }
    const FontFile font = FontFile::registerFile(path, file.readAll());
    if (!font.created) {
        completion(QStringLiteral("not a font: ") + QFileInfo(path).fileName(), false, std::nullopt);
        return;
    }
    const bool named = !font.postScriptName.isEmpty();
    if (font.registered) {
        // A registered face without a name is left without an answer; the served fonts all have one.
        if (!named)
            return;
        FontList::addFont(QFileInfo(path).fileName(), font.postScriptName, path);
        Q_EMIT fontListChanged();
        completion(std::nullopt, true, font.postScriptName);
        return;
    }
    if (!named) {
        completion(QStringLiteral("the font could not be registered"), false, std::nullopt);
        return;
    }
    // Registered already, usually by an earlier download: the same name serves.
    if (!FontList::containsFontUrl(FontList::read().value_or(FontList::Catalogs()), path)) {
        FontList::addFont(QFileInfo(path).fileName(), font.postScriptName, path);
        Q_EMIT fontListChanged();
    }
    completion(std::nullopt, true, font.postScriptName);
}

void QFFontpicker::fetchCatalog(
    const FontpickerCatalogs &catalog, QObject *context, std::function<void(bool success)> done)
{
    const bool hasContext = context != nullptr;
    auto report = [guard = QPointer<QObject>(context), hasContext, done](bool success) {
        if (!hasContext || guard)
            done(success);
    };
    getAllFontsByCatalogId(catalog.catalog_id.value_or(0), this,
        [this, catalog, report](const std::optional<QJsonObject> &data, const std::optional<ApiError> &, bool usable) {
            const auto answer = usable && data ? Mapper::map<FontpickerDownloadResponse>(*data) : nullptr;
            const auto fonts = answer ? answer->downloadFonts.value_or(QList<std::shared_ptr<FontpickerFontList>>())
                                      : QList<std::shared_ptr<FontpickerFontList>>();
            if (fonts.isEmpty()) {
                report(false);
                return;
            }
            struct Progress
            {
                qsizetype finished = 0;
                bool failed = false;
            };
            auto progress = std::make_shared<Progress>();
            for (const auto &font : fonts) {
                downloadToDocuments(m_network, QUrl(font ? font->font_url.value_or(QString()) : QString()), this,
                    [this, catalog, fonts, font, progress, report](
                        const QString &path, const std::optional<QString> &error) {
                        if (error) {
                            AppLog::print(QStringLiteral("Error : ") + *error);
                            progress->failed = true;
                        } else {
                            QFile file(path);
                            const FontFile made = file.open(QIODevice::ReadOnly)
                                ? FontFile::registerFile(path, file.readAll())
                                : FontFile();
                            progress->failed = progress->failed || !made.created;
                        }
                        if (++progress->finished < fonts.size())
                            return;
                        if (progress->failed) {
                            report(false);
                            return;
                        }
                        auto entry = std::make_shared<FontpickerFontJson>();
                        entry->catalog_id = catalog.catalog_id;
                        entry->name = catalog.name;
                        entry->thumbnail_img = catalog.webp_thumbnail_img;
                        entry->is_free = catalog.is_free;
                        entry->is_offline = 0;
                        entry->font_list = fonts;
                        FontList::Catalogs list = FontList::read().value_or(FontList::Catalogs());
                        list.append(entry);
                        FontList::write(list);
                        Q_EMIT fontListChanged();
                        report(true);
                    });
            }
        });
}

QString QFFontpicker::addCustomFont(const QString &path)
{
    const QFileInfo picked(path);
    if (!fontSuffixes.contains(picked.suffix().toLower()))
        return QStringLiteral("Please select valid font.");
    QFile file(path);
    const FontFile font = file.open(QIODevice::ReadOnly) ? FontFile::create(file.readAll()) : FontFile();
    if (!font.created)
        return QStringLiteral("Please select valid font.");
    const FontList::Catalogs list = FontList::read().value_or(FontList::Catalogs());
    if (const auto text = FontList::textCatalog(list)) {
        for (const auto &listed : text->font_list.value_or(QList<std::shared_ptr<FontpickerFontList>>())) {
            if (listed && listed->ios_font_name == font.postScriptName)
                return QStringLiteral("Font already exist.");
        }
    }
    QDir().mkpath(AppPaths::documents());
    const QString target = QDir(AppPaths::documents()).filePath(picked.fileName());
    if (QFileInfo(target) != picked) {
        QFile::remove(target);
        if (!QFile::copy(path, target))
            return QStringLiteral("Please try again.");
    }
    QFile copied(target);
    if (copied.open(QIODevice::ReadOnly))
        (void)FontFile::registerFile(target, copied.readAll());
    FontList::addFont(picked.fileName(), font.postScriptName, target);
    Q_EMIT fontListChanged();
    return QStringLiteral("Custom font has been added in downloaded list.");
}
