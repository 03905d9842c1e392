#include "jsonreader.h"

#include <cmath>
#include <limits>

namespace {

// An integer from any JSON number that holds one exactly: 3 and 3.0 give 3, 3.5 gives nothing.
std::optional<qint64> integerValue(const nlohmann::ordered_json &value)
{
    if (value.is_number_integer() && !value.is_number_unsigned())
        return value.get<qint64>();
    if (value.is_number_unsigned()) {
        const auto number = value.get<std::uint64_t>();
        if (number > std::uint64_t(std::numeric_limits<qint64>::max()))
            return std::nullopt;
        return qint64(number);
    }
    if (value.is_number_float()) {
        const double number = value.get<double>();
        // 2^63 itself does not fit; every double below it that is integral does.
        if (std::trunc(number) == number && number >= -9223372036854775808.0 && number < 9223372036854775808.0)
            return qint64(number);
    }
    return std::nullopt;
}

// A boolean, or the numbers 0 and 1 that the platform's bridging also reads as one.
std::optional<bool> booleanValue(const nlohmann::ordered_json &value)
{
    if (value.is_boolean())
        return value.get<bool>();
    const std::optional<qint64> number = integerValue(value);
    if (number == 0 || number == 1)
        return *number == 1;
    return std::nullopt;
}

} // namespace

void JsonReader::requiredFlag(const char *key, std::optional<bool> &field, QStringList &nullKeys)
{
    const nlohmann::ordered_json *value = find(key);
    if (!value)
        return;
    if (value->is_null())
        nullKeys.append(QString::fromLatin1(key));
    read(*value, field);
}

const nlohmann::ordered_json *JsonReader::find(const char *key) const
{
    if (!m_object.is_object())
        return nullptr;
    const auto it = m_object.find(key);
    return it == m_object.end() ? nullptr : &*it;
}

void JsonReader::read(const nlohmann::ordered_json &value, std::optional<double> &field)
{
    field = value.is_number() ? std::optional(value.get<double>()) : std::nullopt;
}

void JsonReader::read(const nlohmann::ordered_json &value, std::optional<qint64> &field)
{
    field = integerValue(value);
}

void JsonReader::read(const nlohmann::ordered_json &value, qint64 &field)
{
    field = integerValue(value).value_or(field);
}

void JsonReader::read(const nlohmann::ordered_json &value, std::optional<bool> &field)
{
    field = booleanValue(value);
}

void JsonReader::read(const nlohmann::ordered_json &value, bool &field)
{
    field = booleanValue(value).value_or(field);
}

void JsonReader::read(const nlohmann::ordered_json &value, std::optional<QString> &field)
{
    if (value.is_string())
        field = QString::fromStdString(value.get_ref<const std::string &>());
    else
        field.reset();
}

void JsonReader::read(const nlohmann::ordered_json &value, std::optional<QStringList> &field)
{
    field.reset();
    if (!value.is_array())
        return;
    QStringList texts;
    texts.reserve(qsizetype(value.size()));
    for (const auto &element : value) {
        if (!element.is_string())
            return;
        texts.append(QString::fromStdString(element.get_ref<const std::string &>()));
    }
    field = std::move(texts);
}
