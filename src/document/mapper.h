#pragma once

#include "jsonreader.h"
#include "jsonwriter.h"

#include <QJsonObject>
#include <QString>

#include <nlohmann/json.hpp>

#include <memory>
#include <optional>

/**
 * Maps records to and from JSON through their `mapping`, which visits the keys in one order for both
 * directions. Reading always succeeds on a JSON object; a record keeps its defaults for whatever the
 * object lacks.
 */
class Mapper
{
public:
    /** The record of a JSON object; null when `json` is not an object. */
    template<class T> [[nodiscard]] static std::shared_ptr<T> map(const nlohmann::ordered_json &json)
    {
        return JsonReader::record<T>(json);
    }

    /** The record of a JSON text; null when the text is not a JSON object. */
    template<class T> [[nodiscard]] static std::shared_ptr<T> map(const QString &jsonText)
    {
        return map<T>(parse(jsonText));
    }

    template<class T> [[nodiscard]] static std::shared_ptr<T> map(const QJsonObject &object)
    {
        return map<T>(fromQJsonObject(object));
    }

    /** The record as a JSON object with its keys in mapped order. */
    template<class T> [[nodiscard]] static nlohmann::ordered_json toJSON(const T &value)
    {
        return JsonWriter::record(value);
    }

    /** The record for Qt's networking; QJsonObject sorts the keys. */
    template<class T> [[nodiscard]] static QJsonObject toJSONObject(const T &value)
    {
        return toQJsonObject(toJSON(value));
    }

    /**
     * The record as JSON text, keys in mapped order, pretty printed with an indentation of 2. Nothing
     * when the record holds a number that JSON cannot represent.
     */
    template<class T> [[nodiscard]] static std::optional<QString> toJSONString(const T &value, bool prettyPrint)
    {
        bool valid = true;
        const nlohmann::ordered_json json = JsonWriter::record(value, &valid);
        if (!valid)
            return std::nullopt;
        return print(json, prettyPrint);
    }

    /** Parses JSON text; the result `is_discarded()` when the text is not JSON. */
    [[nodiscard]] static nlohmann::ordered_json parse(const QString &jsonText);
    [[nodiscard]] static QString print(const nlohmann::ordered_json &json, bool prettyPrint);
    [[nodiscard]] static nlohmann::ordered_json fromQJsonObject(const QJsonObject &object);
    [[nodiscard]] static QJsonObject toQJsonObject(const nlohmann::ordered_json &json);
};
