#include "storeddesign.h"

#include "mapper.h"
#include "reeditjson.h"

std::shared_ptr<Json> readStoredDesign(const QString &text)
{
    return readStoredDesign(Mapper::parse(text));
}

std::shared_ptr<Json> readStoredDesign(const nlohmann::ordered_json &dictionary)
{
    static const nlohmann::ordered_json empty = nlohmann::ordered_json::object();
    const nlohmann::ordered_json &object = dictionary.is_object() ? dictionary : empty;
    const auto sample = object.find("sample_image");
    if (sample != object.end() && sample->is_string())
        return Mapper::map<Json>(object);
    return Mapper::map<ReEditJson>(object)->toDocument();
}
