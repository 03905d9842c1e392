#include "templatesample.h"

#include "alertmodel.h"
#include "applog.h"
#include "editorsession.h"
#include "fontlist.h"
#include "fontregistry.h"
#include "getjsonrequest.h"
#include "imagecache.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "nonfatalreporter.h"
#include "picturesource.h"
#include "prefixurl.h"
#include "qffontpicker.h"
#include "reachability.h"
#include "response.h"
#include "responsecache.h"
#include "serverclient.h"
#include "storyboard.h"
#include "templateresources.h"

#include <QGuiApplication>
#include <QJsonDocument>

namespace {

const QString jsonDataEndpoint = QStringLiteral("getJsonData");
constexpr qreal fontCheckSize = 10;

bool fontExists(const QString &name)
{
    return FontRegistry::shared().font(name, fontCheckSize).has_value();
}

} // namespace

TemplateSample::TemplateSample(QObject *parent)
    : ViewController(parent)
{ }

void TemplateSample::setServices(ServerClient *client, QFFontpicker *fontpicker, const Storyboard *storyboard)
{
    m_client = client;
    m_fontpicker = fontpicker;
    m_storyboard = storyboard;
}

QString TemplateSample::orientationFor(const Json &card)
{
    return card.width.value_or(0) > card.height.value_or(0) ? QStringLiteral("Landscape") : QStringLiteral("Portrait");
}

void TemplateSample::setState(State state)
{
    m_state = state;
    Q_EMIT stateChanged();
}

void TemplateSample::setPreview(const QString &source, qreal aspect)
{
    m_previewSource = source;
    m_previewAspect = aspect;
    Q_EMIT previewChanged();
}

QString TemplateSample::apiBase() const
{
    return m_client ? m_client->connection().serverUrl().toString() : QString();
}

bool TemplateSample::offline() const
{
    const QString host = m_client ? m_client->connection().serverUrl().host() : QString();
    return Reachability(host).connection() == Reachability::Connection::Unavailable;
}

void TemplateSample::showOfflineAlert()
{
    if (NavigationController *stack = navigationController()) {
        auto *alert = new AlertModel(QString(),
            QGuiApplication::applicationDisplayName() + QStringLiteral(" is unable to connect with internet"));
        stack->presentAlert(alert->addAction(QStringLiteral("Ok")));
    }
}

void TemplateSample::viewDidLoad()
{
    load();
}

void TemplateSample::reTryClicked()
{
    if (offline()) {
        showOfflineAlert();
        return;
    }
    load();
}

void TemplateSample::cancelClicked()
{
    if (NavigationController *stack = navigationController(); stack && stack->topViewController() == this)
        stack->pop();
}

void TemplateSample::editClicked()
{
    if (m_state == State::Ready)
        open();
}

void TemplateSample::beginRun()
{
    ++m_run;
    m_preloadSuccesses = 0;
    m_preloadFailures = 0;
    m_fontDownloads = 0;
    m_resourceNames.clear();
    setState(State::Loading);
}

void TemplateSample::load()
{
    beginRun();
    if (contentJson)
        loadNewDesign();
    else if (reEditJson)
        loadReEdit();
}

void TemplateSample::loadNewDesign()
{
    const Json &card = *contentJson;
    if (card.height.value_or(0) <= 0 || card.width.value_or(0) <= 0) {
        setState(State::Failed);
        return;
    }
    // Cards from the server always say whether they are offline; one that does not stays loading.
    if (card.nullRequiredFlags.contains(QStringLiteral("is_offline")) || !card.is_offline)
        return;
    const qreal aspect = *card.width / *card.height;
    const QString sample = card.sample_image.value_or(QString());
    if (*card.is_offline) {
        setPreview(QStringLiteral("image://assets/") + sample, aspect);
        resultJson = contentJson;
        prepare();
        return;
    }
    setPreview(QStringLiteral("image://cache/") + PrefixUrl::pictureAddress(sample).toString(), aspect);
    if (!card.json_id)
        return;
    if (offline()) {
        readCache(*card.json_id);
        if (m_state == State::Failed && !resultJson)
            showOfflineAlert();
        return;
    }
    getJsonData(*card.json_id);
}

void TemplateSample::getJsonData(qint64 jsonId)
{
    if (!m_client) {
        readCache(jsonId);
        return;
    }
    const QString key = ResponseCache::key(m_client->endpointUrl(jsonDataEndpoint), { jsonId });
    ApiCall call;
    call.endpoint = jsonDataEndpoint;
    call.body = Mapper::toJSON(GetJsonRequest { jsonId });
    call.member = [](const nlohmann::ordered_json &envelope) -> std::optional<QJsonObject> {
        const auto response = Mapper::map<Response>(envelope);
        if (!response || !response->jsonResponse)
            return std::nullopt;
        return Mapper::toJSONObject(*response->jsonResponse);
    };
    // Code 200: a fresh copy of the template, its prefix taken, then the cache; every answer is read from there.
    call.store = [key, jsonId](const QJsonObject &record) {
        const auto fresh = Mapper::map<Json>(Mapper::toJSONObject(*Mapper::map<Json>(record)));
        if (fresh->prefix_url)
            PrefixUrl::set(*fresh->prefix_url);
        else
            NonFatalReporter::record(
                QStringLiteral("Prefix Url Empty"), QStringLiteral("\nJson_id : ") + QString::number(jsonId));
        ResponseCache::store(key, Mapper::toJSONObject(*fresh));
    };
    const quint64 current = run();
    m_client->connection().send(call, this,
        [this, current, jsonId](const std::optional<QJsonObject> &, const std::optional<ApiError> &error, bool) {
            if (!isCurrent(current))
                return;
            if (error)
                AppLog::print(QStringLiteral("error: ") + error->localizedDescription);
            readCache(jsonId);
        });
}

void TemplateSample::readCache(qint64 jsonId)
{
    const QString key
        = ResponseCache::key(m_client ? m_client->endpointUrl(jsonDataEndpoint) : jsonDataEndpoint, { jsonId });
    const std::optional<QJsonObject> entry = ResponseCache::load(key, QString());
    if (entry)
        AppLog::print(QStringLiteral("v: ") + QString::fromUtf8(QJsonDocument(*entry).toJson(QJsonDocument::Compact)));
    const auto document = entry ? Mapper::map<Json>(*entry) : nullptr;
    if (!document) {
        resultJson.reset();
        setState(State::Failed);
        return;
    }
    document->json_id = contentJson->json_id;
    resultJson = document;
    prepare();
}

void TemplateSample::resolveFonts(std::function<void()> next)
{
    const Json &document = *resultJson;
    if (!document.text_json) {
        next();
        return;
    }
    const FontList::Catalogs fonts = FontList::read().value_or(FontList::Catalogs());
    QList<std::shared_ptr<TextJson>> texts;
    QList<std::shared_ptr<TextJson>> missing;
    for (const auto &text : *document.text_json) {
        if (!text)
            continue;
        texts.append(text);
        if (!text->fontName || FontList::containsFontName(fonts, *text->fontName))
            continue;
        const bool listed = std::any_of(missing.cbegin(), missing.cend(),
            [&](const std::shared_ptr<TextJson> &other) { return other->fontName == text->fontName; });
        if (!listed)
            missing.append(text);
    }
    if (missing.isEmpty()) {
        next();
        return;
    }
    fetchMissingFonts(texts, missing, std::move(next));
}

void TemplateSample::fetchMissingFonts(const QList<std::shared_ptr<TextJson>> &texts,
    const QList<std::shared_ptr<TextJson>> &missing, std::function<void()> next)
{
    struct Box
    {
        qsizetype successes = 0;
        qsizetype failures = 0;
        QString names;
    };
    auto box = std::make_shared<Box>();
    const QString jsonId = QString::number(resultJson->json_id.value_or(0));
    const QString sampleImage = resultJson->sample_image.value_or(QString());
    const quint64 current = run();
    for (const auto &entry : missing) {
        if (!entry->fontPath) {
            NonFatalReporter::record(QStringLiteral("Font Path Not Found"),
                QStringLiteral("\nJson_id : ") + jsonId + QStringLiteral(",\nURL : ") + apiBase() + box->names);
            setState(State::Failed);
            return;
        }
        const QString path = *entry->fontPath;
        const QString oldName = *entry->fontName;
        const QString url = PrefixUrl::fontAddress(TemplateResources::fontFileName(path));
        if (!m_fontpicker)
            continue;
        ++m_fontDownloads;
        m_fontpicker->downloadFont(url, this,
            [this, current, box, texts, missing, path, oldName, jsonId, sampleImage, next](
                const std::optional<QString> &, bool success, const std::optional<QString> &name) {
                if (!isCurrent(current))
                    return;
                if (success) {
                    ++box->successes;
                    if (name && !fontExists(oldName)) {
                        for (const auto &text : texts) {
                            if (text->fontName == oldName)
                                text->fontName = *name;
                        }
                    }
                } else {
                    ++box->failures;
                    box->names += QStringLiteral(",\nFont Path : ") + path;
                }
                if (box->successes + box->failures < missing.size())
                    return;
                if (!box->names.isEmpty())
                    NonFatalReporter::record(QStringLiteral("Font Path Not Found"),
                        QStringLiteral("\nJson_id : ") + jsonId + QStringLiteral(",\nSample_Image : ") + sampleImage
                            + QStringLiteral(",\nURL : ") + apiBase() + box->names);
                if (box->failures == 0)
                    next();
                else
                    setState(State::Failed);
            });
    }
}

void TemplateSample::preload(const QStringList &names, std::function<void()> allLoaded)
{
    m_resourceNames = names;
    const quint64 current = run();
    for (const QString &name : names) {
        ImageCache::shared().loadImage(PrefixUrl::pictureAddress(name), this,
            [this, current, total = names.size(), allLoaded](const QImage &image, const QString &) {
                if (!isCurrent(current))
                    return;
                if (image.isNull())
                    ++m_preloadFailures;
                else
                    ++m_preloadSuccesses;
                if (m_preloadFailures > 0)
                    setState(State::Failed);
                else if (m_preloadSuccesses == total)
                    allLoaded();
            });
    }
}

void TemplateSample::loadReEdit()
{
    const Json &design = *reEditJson;
    const qreal aspect = design.height.value_or(0) > 0 ? design.width.value_or(0) / *design.height : 0;
    // The saved preview: a file of the application's own, or a web address through the picture cache.
    const PictureSource::Location preview = PictureSource::locate(design.sample_image.value_or(QString()));
    QString source;
    if (!preview.file.isEmpty())
        source = QUrl::fromLocalFile(preview.file).toString();
    else if (!preview.address.isEmpty())
        source = QStringLiteral("image://cache/") + preview.address.toString();
    setPreview(source, aspect);
    checkSavedFonts();
}

void TemplateSample::checkSavedFonts()
{
    const FontList::Catalogs fonts = FontList::read().value_or(FontList::Catalogs());
    QString names;
    for (const auto &text : reEditJson->text_json.value_or(QList<std::shared_ptr<TextJson>>())) {
        if (!text || !text->fontName || FontList::containsFontName(fonts, *text->fontName))
            continue;
        if (fontExists(*text->fontName))
            continue;
        names += QStringLiteral(",\nFont Name : ") + *text->fontName;
        // The editor falls back on its default font; a saved design always opens.
        text->fontName.reset();
    }
    if (!names.isEmpty())
        NonFatalReporter::record(QStringLiteral("My Design Font Not Found"),
            QStringLiteral("\nFont Not Found : Json_id : ") + QString::number(reEditJson->json_id.value_or(0)) + names
                + QStringLiteral(",\nURL : ") + apiBase());
    setState(State::Ready);
}

bool TemplateSample::pushEditor(
    const QString &identifier, const std::function<void(EditorSession &editor)> &prepareEditor)
{
    NavigationController *stack = navigationController();
    ViewController *screen = m_storyboard ? m_storyboard->instantiate(identifier) : nullptr;
    auto *editor = qobject_cast<EditorSession *>(screen);
    if (!stack || !editor) {
        AppLog::print(QStringLiteral("no editor ") + identifier);
        delete screen;
        return false;
    }
    editor->contentJson = contentJson;
    editor->reEditJson = reEditJson;
    editor->objectId = objectId;
    if (prepareEditor)
        prepareEditor(*editor);
    stack->push(editor);
    return true;
}
