#pragma once

#include "cgfloattransform.h"
#include "recordlist.h"

#include <QString>
#include <QStringList>

#include <nlohmann/json.hpp>

#include <memory>
#include <optional>

/**
 * The writing side of a record's `mapping`: builds one JSON object with the keys in the order the
 * mapping visits them. Absent optional fields are left out; non-optional ones are always written. A
 * number that JSON cannot hold (infinite, not a number) makes the result invalid, as the platform's
 * serialiser refuses such a document.
 */
class JsonWriter
{
public:
    template<class T> void operator()(const char *key, const T &field)
    {
        if (auto value = write(field))
            put(key, std::move(*value));
    }

    void operator()(const char *key, const std::optional<double> &field, const CGFloatTransform &transform)
    {
        if (field)
            put(key, transform.toJSON(*field));
    }

    void requiredFlag(const char *key, const std::optional<bool> &field, const QStringList &) { (*this)(key, field); }

    /** False when a value could not be written as JSON. */
    [[nodiscard]] bool isValid() const { return m_valid; }
    [[nodiscard]] nlohmann::ordered_json take() { return std::move(m_object); }

    /** The JSON object of a record. The mapping only reads the fields while writing. */
    template<class R> [[nodiscard]] static nlohmann::ordered_json record(const R &value, bool *valid = nullptr)
    {
        JsonWriter writer;
        const_cast<R &>(value).mapping(writer);
        if (valid)
            *valid = writer.isValid();
        return writer.take();
    }

private:
    void put(const char *key, nlohmann::ordered_json value);

    static std::optional<nlohmann::ordered_json> write(const std::optional<double> &field);
    static std::optional<nlohmann::ordered_json> write(const std::optional<qint64> &field);
    static std::optional<nlohmann::ordered_json> write(qint64 field) { return field; }
    static std::optional<nlohmann::ordered_json> write(const std::optional<bool> &field);
    static std::optional<nlohmann::ordered_json> write(bool field) { return field; }
    static std::optional<nlohmann::ordered_json> write(const std::optional<QString> &field);
    static std::optional<nlohmann::ordered_json> write(const std::optional<QStringList> &field);

    template<class R> std::optional<nlohmann::ordered_json> write(const std::shared_ptr<R> &field)
    {
        if (!field)
            return std::nullopt;
        bool valid = true;
        auto object = record(*field, &valid);
        m_valid = m_valid && valid;
        return object;
    }

    template<class R> std::optional<nlohmann::ordered_json> write(const RecordList<R> &field)
    {
        if (!field)
            return std::nullopt;
        auto array = nlohmann::ordered_json::array();
        array.get_ref<nlohmann::ordered_json::array_t &>().reserve(std::size_t(field->size()));
        for (const auto &element : *field) {
            if (auto object = write(element))
                array.push_back(std::move(*object));
        }
        return array;
    }

    nlohmann::ordered_json m_object = nlohmann::ordered_json::object();
    bool m_valid = true;
};
