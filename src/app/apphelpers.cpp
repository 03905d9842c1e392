#include "apphelpers.h"

#include "applog.h"
#include "mapper.h"

#include <QDateTime>
#include <QFile>

namespace AppHelpers {

namespace {

// Reads a shipped JSON object, printing the application's two failure lines.
nlohmann::ordered_json readDataFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        AppLog::print(QStringLiteral("no file"));
        return nlohmann::ordered_json::object();
    }
    const nlohmann::ordered_json json = Mapper::parse(QString::fromUtf8(file.readAll()));
    if (json.is_discarded() || !json.is_object()) {
        AppLog::print(QStringLiteral("JSON is invalid"));
        return nlohmann::ordered_json::object();
    }
    return json;
}

template<class Record> QList<std::shared_ptr<Record>> recordsUnder(const nlohmann::ordered_json &json, const char *key)
{
    QList<std::shared_ptr<Record>> records;
    const auto it = json.find(key);
    if (it == json.end() || !it->is_array())
        return records;
    for (const auto &element : *it) {
        if (auto record = Mapper::map<Record>(element))
            records.append(record);
    }
    return records;
}

} // namespace

QString timestampName()
{
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddHHmmss"));
}

QString millisecondsName()
{
    return QString::number(QDateTime::currentMSecsSinceEpoch());
}

QString fontNameForWeight(const QString &weight)
{
    if (weight == QLatin1String("Medium"))
        return QStringLiteral("Montserrat-Medium");
    if (weight == QLatin1String("Semibold"))
        return QStringLiteral("Montserrat-SemiBold");
    if (weight == QLatin1String("Bold"))
        return QStringLiteral("Montserrat-Bold");
    return QStringLiteral("Montserrat-Regular");
}

double toPoints(double value, double screenScale)
{
    return value / screenScale;
}

QList<std::shared_ptr<CustomRatio>> customRatios(bool video, const QString &path)
{
    const auto json = readDataFile(path.isEmpty() ? QStringLiteral(":/Quillet/App/data/custom_ratio.json") : path);
    return recordsUnder<CustomRatio>(json, video ? "CustomVideoRatio" : "CustomImageRatio");
}

QList<std::shared_ptr<BgColor>> bgColors(const QString &path)
{
    const auto json = readDataFile(path.isEmpty() ? QStringLiteral(":/Quillet/App/data/bgColors.json") : path);
    return recordsUnder<BgColor>(json, "bgColor");
}

} // namespace AppHelpers
