// Test helper: saves one design over and over, printing each version number once its save has
// returned, until it is killed. Arguments: the row's object id and the first version number.
#include "applog.h"
#include "designsaver.h"
#include "sampledocument.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    // Standard output carries the version numbers only.
    AppLog::setOutput(stderr);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 3)
        return 2;
    DesignStore store;
    DesignSaver saver(store, ObjectId::fromString(args[1]));
    auto json = makeSampleDocument(200);
    for (qint64 version = args[2].toLongLong();; ++version) {
        json->json_id = version;
        if (!saver.saveEdit(*json))
            return 1;
        std::printf("%lld\n", static_cast<long long>(version));
        std::fflush(stdout);
    }
}
