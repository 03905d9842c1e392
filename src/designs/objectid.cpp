#include "objectid.h"

#include <QRegularExpression>

namespace {
const QString scheme = QStringLiteral("x-quillet://");
} // namespace

QString ObjectId::toString() const
{
    return scheme + store + QLatin1Char('/') + entity + QStringLiteral("/p") + QString::number(rowid);
}

std::optional<ObjectId> ObjectId::fromString(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^x-quillet://([A-Za-z0-9_]+)/([A-Za-z0-9_]+)/p([1-9][0-9]{0,17})$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return ObjectId { match.captured(1), match.captured(2), match.captured(3).toLongLong() };
}
