#pragma once

#include "contentserver.h"
#include "mapper.h"

#include <QDir>
#include <QFile>
#include <QString>

#include <nlohmann/json.hpp>

#include <functional>

/**
 * Templates of the generated content pack as an editor gets them once prepared: the pack's pictures in
 * the home's resource/ folder (a link to the pack's own), and "{base}resource/" names made bare.
 */
namespace PackTemplates {

inline QString packDir()
{
    return QString::fromStdString(ContentServer::defaultContentDir().string());
}

/** Links the pack's pictures into the home in place of its empty resource/; false when there is no pack. */
inline bool linkResources(const QString &home)
{
    const QString pack = packDir();
    QDir(home).rmdir(QStringLiteral("resource"));
    return !pack.isEmpty()
        && QFile::link(
            QDir(pack).filePath(QStringLiteral("resource")), QDir(home).filePath(QStringLiteral("resource")));
}

/** The first template of the pack, in file name order, for which `wanted` holds; null when none does. */
inline nlohmann::ordered_json find(const std::function<bool(const nlohmann::ordered_json &)> &wanted)
{
    const QDir templates(QDir(packDir()).filePath(QStringLiteral("templates")));
    for (const QString &name : templates.entryList({ QStringLiteral("*.json") }, QDir::Files, QDir::Name)) {
        QFile file(templates.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QString text = QString::fromUtf8(file.readAll());
        text.replace(QStringLiteral("{base}resource/"), QString());
        nlohmann::ordered_json document = Mapper::parse(text);
        if (document.is_object() && wanted(document))
            return document;
    }
    return nullptr;
}

inline bool hasSlots(const nlohmann::ordered_json &document, const char *array)
{
    return document.contains(array) && document[array].is_array() && !document[array].empty();
}

/** A template with an outlined slot and no picture slot, whose background is no picture of a slot. */
inline nlohmann::ordered_json outlined()
{
    return find([](const nlohmann::ordered_json &document) {
        return hasSlots(document, "frame_image_sticker_json") && !hasSlots(document, "image_sticker_json")
            && !document.value("is_pip", false);
    });
}

/** A template with a round picture slot. */
inline nlohmann::ordered_json roundSlot()
{
    return find([](const nlohmann::ordered_json &document) {
        return hasSlots(document, "image_sticker_json") && document["image_sticker_json"][0].value("is_round", false)
            && !document.value("is_pip", false);
    });
}

} // namespace PackTemplates
