// quillet-tool save: SAVE of a picture design without screens. The editor opens the design, the save
// draws it, stores it with its preview, and the result screen's controller puts the picture into the
// album folder, as the application does; prints the album file and the design's id.
#include "toolcommand.h"

#include "designstore.h"
#include "editimageportraitmode.h"
#include "editorscreens.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "saveimagevc.h"
#include "storyboard.h"

#include <QEventLoop>
#include <QFile>

#include <chrono>
#include <cstdio>

namespace {

const QString usage = QStringLiteral("usage: save FILE --area WxH [--hd] --album DIR");

struct Options
{
    QString path;
    QSizeF area;
    bool hd = false;
    QString album;
};

std::optional<Options> parse(const QStringList &args, QString *error)
{
    Options options;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (arg == QLatin1String("--hd")) {
            options.hd = true;
        } else if (arg == QLatin1String("--album") && hasValue) {
            options.album = args.at(++i);
        } else if (arg == QLatin1String("--area") && hasValue) {
            const std::optional<QSizeF> area = parseToolSize(args.at(++i));
            if (!area) {
                *error = QStringLiteral("--area takes WxH, e.g. 360x640");
                return std::nullopt;
            }
            options.area = *area;
        } else if (options.path.isEmpty() && !arg.startsWith(QLatin1Char('-'))) {
            options.path = arg;
        } else {
            *error = usage;
            return std::nullopt;
        }
    }
    if (options.path.isEmpty() || options.album.isEmpty() || options.area.isEmpty()) {
        *error = usage;
        return std::nullopt;
    }
    return options;
}

int save(const QStringList &args)
{
    QString error;
    const std::optional<Options> options = parse(args, &error);
    if (!options)
        return toolFail(error);
    QFile file(options->path);
    if (!file.open(QIODevice::ReadOnly))
        return toolFail(QStringLiteral("cannot read %1: %2").arg(options->path, file.errorString()));
    const auto document = Mapper::map<Json>(QString::fromUtf8(file.readAll()));
    if (!document)
        return toolFail(QStringLiteral("%1 is not a JSON object").arg(options->path));

    DesignStore store;
    Storyboard storyboard;
    EditorScreens::registerScreens(storyboard, PhotoAlbum::atFolder(options->album));
    NavigationController navigation;
    auto *editor
        = qobject_cast<EditImagePortraitMode *>(storyboard.instantiate(QStringLiteral("EditImagePortraitMode")));
    editor->setDesignStore(&store);
    editor->setCanvasArea(QRectF(QPointF(0, 0), options->area));
    editor->screenSize = options->area;
    editor->contentJson = document;
    navigation.setRoot(editor);
    if (!editor->errorString().isEmpty())
        return toolFail(editor->errorString());
    if (!editor->masterJson->width || !editor->masterJson->height)
        return toolFail(QStringLiteral("%1 has no width and height to save at").arg(options->path));

    // The result screen saves into the album as it appears; the run ends when that is over.
    QEventLoop loop;
    QString albumFile;
    QObject::connect(&navigation, &NavigationController::pushed, &loop, [&](ViewController *screen) {
        if (auto *result = qobject_cast<SaveImageVC *>(screen)) {
            QObject::connect(result, &SaveImageVC::albumSaveFinished, &loop, [&albumFile, &loop, result] {
                albumFile = result->albumFile();
                loop.quit();
            });
        }
    });
    QObject::connect(&editor->saveFlow(), &ImageSaveFlow::saved, &loop, [&navigation, &loop] {
        if (!qobject_cast<SaveImageVC *>(navigation.topViewController()))
            loop.quit();
    });
    // No screen shows the notice, so there is nothing to wait for before drawing.
    editor->saveFlow().setNoticeDelay(std::chrono::milliseconds(0));
    editor->saveFlow().save(options->hd);
    loop.exec();

    if (albumFile.isEmpty())
        return toolFail(QStringLiteral("the picture could not be put into the album %1").arg(options->album));
    if (!editor->objectId)
        return toolFail(QStringLiteral("the design could not be stored"));
    std::fprintf(stdout, "%s\n%s\n", qPrintable(albumFile), qPrintable(editor->objectId->toString()));
    return 0;
}

const ToolCommand command("save", "save FILE --area WxH [--hd] --album DIR", save);

} // namespace
