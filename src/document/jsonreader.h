#pragma once

#include "cgfloattransform.h"
#include "recordlist.h"

#include <QString>
#include <QStringList>

#include <nlohmann/json.hpp>

#include <memory>
#include <optional>

/**
 * The reading side of a record's `mapping`: fills fields from one JSON object. An absent key leaves
 * the field alone; a JSON null or a value of another type makes an optional field absent and leaves a
 * non-optional one as it was. Unknown keys are ignored.
 */
class JsonReader
{
public:
    explicit JsonReader(const nlohmann::ordered_json &object)
        : m_object(object)
    { }

    template<class T> void operator()(const char *key, T &field)
    {
        if (const nlohmann::ordered_json *value = find(key))
            read(*value, field);
    }

    void operator()(const char *key, std::optional<double> &field, const CGFloatTransform &transform)
    {
        if (const nlohmann::ordered_json *value = find(key))
            field = transform.fromJSON(*value);
    }

    /** A flag that the template load needs to be present: a null is noted in `nullKeys`. */
    void requiredFlag(const char *key, std::optional<bool> &field, QStringList &nullKeys);

    /** Maps a JSON object into a new record; null when `value` is not an object. */
    template<class R> [[nodiscard]] static std::shared_ptr<R> record(const nlohmann::ordered_json &value)
    {
        if (!value.is_object())
            return nullptr;
        auto result = std::make_shared<R>();
        JsonReader reader(value);
        result->mapping(reader);
        return result;
    }

private:
    [[nodiscard]] const nlohmann::ordered_json *find(const char *key) const;

    static void read(const nlohmann::ordered_json &value, std::optional<double> &field);
    static void read(const nlohmann::ordered_json &value, std::optional<qint64> &field);
    static void read(const nlohmann::ordered_json &value, qint64 &field);
    static void read(const nlohmann::ordered_json &value, std::optional<bool> &field);
    static void read(const nlohmann::ordered_json &value, bool &field);
    static void read(const nlohmann::ordered_json &value, std::optional<QString> &field);
    static void read(const nlohmann::ordered_json &value, std::optional<QStringList> &field);

    template<class R> static void read(const nlohmann::ordered_json &value, std::shared_ptr<R> &field)
    {
        field = record<R>(value);
    }

    // Like the platform's mapper, an array takes effect only when every element is an object.
    template<class R> static void read(const nlohmann::ordered_json &value, RecordList<R> &field)
    {
        field.reset();
        if (!value.is_array())
            return;
        QList<std::shared_ptr<R>> records;
        records.reserve(qsizetype(value.size()));
        for (const auto &element : value) {
            auto mapped = record<R>(element);
            if (!mapped)
                return;
            records.append(std::move(mapped));
        }
        field = std::move(records);
    }

    const nlohmann::ordered_json &m_object;
};
