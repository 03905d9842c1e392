// quillet-contentpack: generates the sample content pack that quillet-content-server serves.
#include "packbuilder.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    const qsizetype outAt = args.indexOf(QStringLiteral("--out"));
    const qsizetype dataAt = args.indexOf(QStringLiteral("--data"));
    if (outAt < 0 || outAt + 1 >= args.size() || dataAt < 0 || dataAt + 1 >= args.size()) {
        std::fprintf(stderr, "usage: quillet-contentpack --out DIR --data DIR\n");
        return 2;
    }
    QElapsedTimer timer;
    timer.start();
    QString error;
    PackBuilder builder { QDir(args[outAt + 1]), QDir(args[dataAt + 1]) };
    if (!builder.build(error)) {
        std::fprintf(stderr, "quillet-contentpack: %s\n", qPrintable(error));
        return 1;
    }
    std::printf("content pack written to %s in %.1f s\n", qPrintable(args[outAt + 1]), timer.elapsed() / 1000.0);
    return 0;
}
