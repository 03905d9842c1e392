#include "templateresources.h"

#include "apppaths.h"
#include "json.h"

namespace TemplateResources {

namespace {

void add(QStringList &names, const std::optional<QString> &name)
{
    if (name && !name->isEmpty())
        names.append(*name);
}

template<class Record, class Field> void addEach(QStringList &names, const RecordList<Record> &records, Field field)
{
    for (const auto &record : records.value_or(QList<std::shared_ptr<Record>>())) {
        if (record)
            add(names, (*record).*field);
    }
}

} // namespace

QStringList names(const Json &document, bool withBackground)
{
    QStringList names;
    if (withBackground && document.background_json)
        add(names, document.background_json->background_image);
    if (document.frame_json)
        add(names, document.frame_json->frame_image);
    addEach(names, document.sticker_json, &StickerJson::sticker_image);
    addEach(names, document.image_sticker_json, &ImageStickerJson::image_sticker_image);
    addEach(names, document.frame_image_sticker_json, &FrameImageStickerJson::image_sticker_image);
    return names;
}

QString fontFileName(const QString &fontPath)
{
    const QString last = AppPaths::fileName(fontPath);
    if (last.isEmpty())
        return {};
    const qsizetype dot = last.lastIndexOf(QLatin1Char('.'));
    const QString name = dot < 0 ? last : last.left(dot);
    const QString extension = dot < 0 ? QString() : last.mid(dot + 1).toLower();
    return (name + QLatin1Char('.') + extension).trimmed();
}

} // namespace TemplateResources
