#include "fontlist.h"

#include "applog.h"
#include "mapper.h"
#include "userdefaults.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString alphaEcho = QStringLiteral("AlphaEcho");

FontList::Catalogs catalogsOf(const nlohmann::ordered_json &array)
{
    FontList::Catalogs catalogs;
    if (!array.is_array())
        return catalogs;
    for (const auto &item : array) {
        if (auto catalog = Mapper::map<FontpickerFontJson>(item))
            catalogs.append(catalog);
    }
    return catalogs;
}

template<class Match> bool anyFont(const FontList::Catalogs &catalogs, Match match)
{
    for (const auto &catalog : catalogs) {
        for (const auto &font : catalog->font_list.value_or(QList<std::shared_ptr<FontpickerFontList>>())) {
            if (font && match(*font))
                return true;
        }
    }
    return false;
}

} // namespace

std::optional<FontList::Catalogs> FontList::read()
{
    const QJsonValue value = UserDefaults::standard().value(DefaultsKey::qfFontJson);
    // Earlier versions kept the array as JSON text; it reads the same.
    const QByteArray text
        = value.isArray() ? QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact) : value.toString().toUtf8();
    const nlohmann::ordered_json json = Mapper::parse(QString::fromUtf8(text));
    if (!json.is_array())
        return std::nullopt;
    return catalogsOf(json);
}

void FontList::write(const Catalogs &catalogs)
{
    nlohmann::ordered_json array = nlohmann::ordered_json::array();
    for (const auto &catalog : catalogs)
        array.push_back(Mapper::toJSON(*catalog));
    UserDefaults::standard().setValue(
        DefaultsKey::qfFontJson, QJsonDocument::fromJson(Mapper::print(array, false).toUtf8()).array());
}

FontList::Catalogs FontList::readDefault(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        AppLog::print(QStringLiteral("no file"));
        return {};
    }
    const nlohmann::ordered_json envelope = Mapper::parse(QString::fromUtf8(file.readAll()));
    if (envelope.is_discarded()) {
        AppLog::print(QStringLiteral("JSON is invalid"));
        return {};
    }
    const auto data
        = envelope.is_object() ? envelope.value("data", nlohmann::ordered_json()) : nlohmann::ordered_json();
    return catalogsOf(data.is_object() ? data.value("result", nlohmann::ordered_json()) : nlohmann::ordered_json());
}

void FontList::prepare(const QString &defaultPath)
{
    UserDefaults &defaults = UserDefaults::standard();
    if (!defaults.contains(DefaultsKey::qfFontJson))
        write(readDefault(defaultPath));
    if (defaults.contains(DefaultsKey::hasDeletedAlphaEchoFont))
        return;
    Catalogs catalogs = read().value_or(Catalogs());
    for (const auto &catalog : catalogs) {
        if (!catalog->font_list)
            continue;
        catalog->font_list->removeIf([](const std::shared_ptr<FontpickerFontList> &font) {
            return font && (font->font_name == alphaEcho || font->ios_font_name == alphaEcho);
        });
    }
    write(catalogs);
    defaults.setBoolean(DefaultsKey::hasDeletedAlphaEchoFont, true);
}

bool FontList::containsFontName(const Catalogs &catalogs, const QString &iosFontName)
{
    return anyFont(catalogs, [&](const FontpickerFontList &font) { return font.ios_font_name == iosFontName; });
}

bool FontList::containsCatalog(const Catalogs &catalogs, qint64 catalogId)
{
    return std::any_of(catalogs.cbegin(), catalogs.cend(),
        [catalogId](const auto &catalog) { return catalog->catalog_id == catalogId; });
}

bool FontList::containsFontUrl(const Catalogs &catalogs, const QString &fontUrl)
{
    return anyFont(catalogs, [&](const FontpickerFontList &font) { return font.font_url == fontUrl; });
}

std::shared_ptr<FontpickerFontJson> FontList::textCatalog(const Catalogs &catalogs)
{
    for (const auto &catalog : catalogs) {
        if (catalog->name == QStringLiteral("Text"))
            return catalog;
    }
    return nullptr;
}

void FontList::addFont(const QString &fileName, const QString &postScriptName, const QString &filePath)
{
    Catalogs catalogs = read().value_or(Catalogs());
    const auto text = textCatalog(catalogs);
    if (!text)
        return;
    auto font = std::make_shared<FontpickerFontList>();
    font->catalog_id = text->catalog_id;
    font->font_file = fileName;
    font->font_name = postScriptName;
    font->ios_font_name = postScriptName;
    font->font_url = filePath;
    if (!text->font_list)
        text->font_list.emplace();
    text->font_list->append(font);
    write(catalogs);
}
