// quillet-tool export: SAVE of a video design without screens. The editor opens the design and its
// video, the choice is answered, the canvas is drawn at the render size, and the result screen's
// export merges, makes the GIF when asked, stores the design and copies the result into the album
// folder, as the application does; prints the album file and the design's id.
#include "toolcommand.h"

#include "apppaths.h"
#include "designstore.h"
#include "editorscreens.h"
#include "editvideoportraitmode.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "savevideovc.h"
#include "storeddesign.h"
#include "storyboard.h"
#include "videoview.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdio>

namespace {

const char *const usage = "export FILE --area WxH (--video | --gif) --album DIR";

struct Options
{
    QString path;
    QSizeF area;
    std::optional<ExportMediaType> mediaType;
    QString album;
};

std::optional<Options> parse(const QStringList &args, QString *error)
{
    Options options;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (arg == QLatin1String("--video") || arg == QLatin1String("--gif")) {
            options.mediaType = arg == QLatin1String("--gif") ? ExportMediaType::GIF : ExportMediaType::Video;
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
            *error = QStringLiteral("usage: ") + QLatin1String(usage);
            return std::nullopt;
        }
    }
    if (options.path.isEmpty() || options.album.isEmpty() || options.area.isEmpty() || !options.mediaType) {
        *error = QStringLiteral("usage: ") + QLatin1String(usage);
        return std::nullopt;
    }
    return options;
}

/**
 * Opens the design in the editor: a stored design (it has "sample_image") as the designs list does, else
 * a template. Gives the address of its video as the document names it, before the load resolves names.
 */
std::optional<QString> open(EditVideoPortraitMode &editor, const QByteArray &text)
{
    const nlohmann::ordered_json dictionary = nlohmann::ordered_json::parse(text.constData(), nullptr, false);
    if (!dictionary.is_object())
        return std::nullopt;
    if (dictionary.contains("sample_image"))
        editor.reEditJson = readStoredDesign(dictionary);
    else
        editor.contentJson = Mapper::map<Json>(dictionary);
    const std::shared_ptr<Json> &document = editor.reEditJson ? editor.reEditJson : editor.contentJson;
    const std::shared_ptr<BackgroundJson> background = document ? document->background_json : nullptr;
    return background ? background->background_image.value_or(QString()) : QString();
}

int exportDesign(const QStringList &args)
{
    QString error;
    const std::optional<Options> options = parse(args, &error);
    if (!options)
        return toolFail(error);
    QFile file(options->path);
    if (!file.open(QIODevice::ReadOnly))
        return toolFail(QStringLiteral("cannot read %1: %2").arg(options->path, file.errorString()));

    DesignStore store;
    Storyboard storyboard;
    EditorScreens::registerScreens(storyboard, PhotoAlbum::atFolder(options->album));
    NavigationController navigation;
    auto *editor = new EditVideoPortraitMode();
    editor->setStoryboard(&storyboard);
    editor->setDesignStore(&store);
    editor->setCanvasArea(QRectF(QPointF(0, 0), options->area));
    editor->screenSize = options->area;
    const std::optional<QString> video = open(*editor, file.readAll());
    if (!video) {
        delete editor;
        return toolFail(QStringLiteral("%1 is not a JSON object").arg(options->path));
    }
    navigation.setRoot(editor);
    if (!editor->errorString().isEmpty())
        return toolFail(editor->errorString());
    if (!editor->videoView()->hasPlayerLayer() && !video->isEmpty())
        editor->videoView()->setVideo(*video);

    // The export ends after the album copy; the run ends with it.
    QEventLoop loop;
    QPointer<SaveVideoVC> result;
    QObject::connect(&editor->exportFlow(), &VideoExportFlow::handedOver, &loop, [&](SaveVideoVC *screen) {
        result = screen;
        // Nobody waits for a notice here.
        screen->setApplicationActive([] { return true; });
        QObject::connect(screen, &SaveVideoVC::exportFinished, &loop, &QEventLoop::quit);
    });
    // No screen shows the notice, so there is nothing to wait for before drawing.
    editor->exportFlow().setNoticeDelay(std::chrono::milliseconds(0));
    editor->exportFlow().exportAs(*options->mediaType);
    loop.exec();

    if (!result)
        return toolFail(QStringLiteral("the export did not start"));
    const bool exported = result->videoURL() || result->gifURL();
    if (!exported && editor->videoView()->hasPlayerLayer())
        return toolFail(QStringLiteral("the video could not be exported"));
    if (exported && result->albumFile().isEmpty())
        return toolFail(QStringLiteral("the result could not be put into the album %1").arg(options->album));
    if (!editor->objectId)
        return toolFail(QStringLiteral("the design could not be stored"));
    // Without a video the design's preview is all there is to show.
    const QString shown = exported
        ? result->albumFile()
        : QDir(AppPaths::documents()).filePath(editor->masterJson->sample_image.value_or(QString()));
    std::fprintf(stdout, "%s\n%s\n", qPrintable(shown), qPrintable(editor->objectId->toString()));
    return 0;
}

const ToolCommand command("export", usage, exportDesign);

} // namespace
