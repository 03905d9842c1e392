#include "jsonwriter.h"

#include <cmath>

void JsonWriter::put(const char *key, nlohmann::ordered_json value)
{
    if (value.is_number_float() && !std::isfinite(value.get<double>()))
        m_valid = false;
    // Keys of one mapping are distinct, so the ordered object's lookup on insert is not needed.
    m_object.get_ref<nlohmann::ordered_json::object_t &>().emplace_back(key, std::move(value));
}

std::optional<nlohmann::ordered_json> JsonWriter::write(const std::optional<double> &field)
{
    if (!field)
        return std::nullopt;
    return jsonNumber(*field);
}

std::optional<nlohmann::ordered_json> JsonWriter::write(const std::optional<qint64> &field)
{
    if (!field)
        return std::nullopt;
    return *field;
}

std::optional<nlohmann::ordered_json> JsonWriter::write(const std::optional<bool> &field)
{
    if (!field)
        return std::nullopt;
    return *field;
}

std::optional<nlohmann::ordered_json> JsonWriter::write(const std::optional<QString> &field)
{
    if (!field)
        return std::nullopt;
    return field->toStdString();
}

std::optional<nlohmann::ordered_json> JsonWriter::write(const std::optional<QStringList> &field)
{
    if (!field)
        return std::nullopt;
    auto array = nlohmann::ordered_json::array();
    for (const QString &text : *field)
        array.push_back(text.toStdString());
    return array;
}
