#include "timestamp.h"

#include <charconv>
#include <chrono>

QString secondsSince1970Text()
{
    using namespace std::chrono;
    const auto micros = duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
    char text[64];
    const auto printed = std::to_chars(text, text + sizeof text, double(micros) / 1e6, std::chars_format::fixed);
    QString result = QString::fromLatin1(text, printed.ptr - text);
    // A whole second still reads as a double.
    if (!result.contains(QLatin1Char('.')))
        result += QStringLiteral(".0");
    return result;
}
