// quillet-tool edit on a template of the sample content pack: the background steps run the editor's
// own background code, the result is stored in the printed document and drawn by quillet-tool render.
#include "contentserver.h"
#include "mapper.h"
#include "quillettool.h"
#include "testhome.h"

#include <QDir>
#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

namespace {

const QColor magenta(255, 0, 255);
const QColor yellow(255, 255, 0);

// The pack's first template, its "{base}" addresses pointing into the pack as local files.
QString packTemplate(const TestHome &home)
{
    const QDir pack(QString::fromStdString(ContentServer::defaultContentDir().string()));
    QDir templates(pack.filePath(QStringLiteral("templates")));
    const QStringList files = templates.entryList({ QStringLiteral("*.json") }, QDir::Files, QDir::Name);
    if (files.isEmpty())
        return {};
    QFile file(templates.filePath(files.first()));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString text = QString::fromUtf8(file.readAll());
    text.replace(QStringLiteral("{base}"), pack.absolutePath() + QLatin1Char('/'));
    return home.write(QStringLiteral("template.json"), text.toUtf8());
}

QString picture(const TestHome &home, const QString &name, const QImage &image)
{
    const QString path = home.filePath(name);
    image.save(path);
    return path;
}

bool isSet(const nlohmann::ordered_json &record, const char *key)
{
    const auto found = record.find(key);
    return found != record.end() && found->is_string() && !found->get<std::string>().empty();
}

} // namespace

TEST(BackgroundCommand, BackgroundStepsOnAPackTemplateAreStoredAndDrawn)
{
    TestHome home;
    const QString design = packTemplate(home);
    ASSERT_FALSE(design.isEmpty()) << "no template in the content pack (build the content-pack target)";

    QImage photo(90, 160, QImage::Format_ARGB32);
    photo.fill(QColor(200, 60, 30));
    QImage tile(16, 16, QImage::Format_ARGB32);
    tile.fill(magenta);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            if ((x < 8) != (y < 8))
                tile.setPixelColor(x, y, yellow);
        }
    }
    // A green border, a tenth of each side, round a clear middle.
    QImage frame(90, 160, QImage::Format_ARGB32);
    frame.fill(Qt::transparent);
    for (int y = 0; y < 160; ++y) {
        for (int x = 0; x < 90; ++x) {
            if (x < 9 || y < 16 || x >= 81 || y >= 144)
                frame.setPixelColor(x, y, Qt::green);
        }
    }
    const QByteArray steps
        = QStringLiteral(R"([
        {"op": "background", "image": "%1"},
        {"op": "flip", "row": 0},
        {"op": "flip", "row": 1},
        {"op": "filter", "name": "Monochrome"},
        {"op": "frame", "image": "%3"},
        {"op": "background", "texture": "%2"},
        {"op": "background", "color": "#3366cc"},
        {"op": "undo"}])")
              .arg(picture(home, QStringLiteral("photo.png"), photo), picture(home, QStringLiteral("tile.png"), tile),
                  picture(home, QStringLiteral("frame.png"), frame))
              .toUtf8();
    const ToolRun run = runQuilletTool(
        { "edit", design, "--area", "360x640", "--steps", home.write(QStringLiteral("steps.json"), steps) });
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const nlohmann::ordered_json result = Mapper::parse(run.out);
    // Five background steps and the picture; the frame is none, and the colour was undone.
    EXPECT_EQ(result["undoCount"], 1 + 5);
    EXPECT_EQ(result["canRedo"], true);
    const auto &document = result["masterJson"];
    const auto &background = document["background_json"];
    EXPECT_TRUE(isSet(background, "texture_image"));
    EXPECT_FALSE(isSet(background, "background_color"));
    EXPECT_FALSE(isSet(background, "background_image"));
    EXPECT_FALSE(background.contains("gradient_colors") && !background["gradient_colors"].is_null());
    ASSERT_TRUE(isSet(document["frame_json"], "frame_image"));
    EXPECT_EQ(QString::fromStdString(document["frame_json"]["frame_image"].get<std::string>()).indexOf('/'), -1);

    // The stored document, opened again and drawn: the pattern under the layers, the frame over them.
    const QString stored = home.write(QStringLiteral("stored.json"), Mapper::print(document, true).toUtf8());
    const QString out = home.filePath(QStringLiteral("out.png"));
    const ToolRun render = runQuilletTool({ "render", stored, "--area", "360x640", "--reedit", "-o", out });
    ASSERT_EQ(render.exitCode, 0) << render.err.toStdString();
    const QImage drawn(out);
    ASSERT_FALSE(drawn.isNull());
    EXPECT_EQ(drawn.pixelColor(2, 2), QColor(Qt::green));
    EXPECT_EQ(drawn.pixelColor(drawn.width() - 3, drawn.height() / 2), QColor(Qt::green));
    qint64 patterned = 0;
    for (int y = drawn.height() / 10; y < drawn.height() * 9 / 10; y += 2) {
        for (int x = drawn.width() / 10; x < drawn.width() * 9 / 10; x += 2) {
            const QColor pixel = drawn.pixelColor(x, y);
            patterned += pixel == magenta || pixel == yellow;
        }
    }
    EXPECT_GT(patterned, 100) << "the pattern does not show inside the frame";
}
