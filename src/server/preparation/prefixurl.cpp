#include "prefixurl.h"

namespace PrefixUrl {

namespace {
QString current = defaultValue();
}

QString value()
{
    return current;
}

void set(const QString &prefix)
{
    current = prefix;
}

QString defaultValue()
{
    // The in-process content server's asset base on its usual port.
    return QStringLiteral("http://127.0.0.1:8080/content/");
}

} // namespace PrefixUrl
