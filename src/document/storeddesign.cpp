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
    // The key alone tells the forms apart: an empty or null preview still makes a document.
    if (object.contains("sample_image"))
        return Mapper::map<Json>(object);
    return Mapper::map<ReEditJson>(object)->toDocument();
}
