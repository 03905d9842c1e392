#include "exporterror.h"

#include "avhandles.h"

void throwIfFailed(int code, bool soundFailed, const char *what)
{
    if (code < 0)
        throw ExportFailure({ soundFailed, QString::fromLatin1(what) + QStringLiteral(": ") + av::errorText(code) });
}
