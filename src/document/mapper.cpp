#include "mapper.h"

#include <QJsonDocument>

nlohmann::ordered_json Mapper::parse(const QString &jsonText)
{
    return nlohmann::ordered_json::parse(jsonText.toStdString(), nullptr, false);
}

QString Mapper::print(const nlohmann::ordered_json &json, bool prettyPrint)
{
    // Texts come from QString and are valid UTF-8; replacing is a guard, not a code path.
    return QString::fromStdString(
        json.dump(prettyPrint ? 2 : -1, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
}

nlohmann::ordered_json Mapper::fromQJsonObject(const QJsonObject &object)
{
    return parse(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

QJsonObject Mapper::toQJsonObject(const nlohmann::ordered_json &json)
{
    return QJsonDocument::fromJson(
        QByteArray::fromStdString(json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)))
        .object();
}
