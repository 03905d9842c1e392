#include "packbuilder.h"

#include "artwork.h"
#include "templatedesigner.h"
#include "templaterenderer.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QSaveFile>

#include <fstream>

namespace {

constexpr int kPhotos = 12;
constexpr int kPatterns = 6;
constexpr int kStoryVideos = 8;
constexpr int kBackgroundVideos = 8;
constexpr int kStockClips = 22;
constexpr const char *kUpdated = "2026-11-01 09:00:00";

const QColor kPaletteA[] = { QColor("#e05863"), QColor("#f4a261"), QColor("#2a9d8f"), QColor("#7209b7"),
    QColor("#ffb703"), QColor("#3a86ff"), QColor("#ff006e"), QColor("#52b788") };
const QColor kPaletteB[] = { QColor("#ffd166"), QColor("#264653"), QColor("#e9c46a"), QColor("#f72585"),
    QColor("#fb8500"), QColor("#8338ec"), QColor("#ffbe0b"), QColor("#1b4332") };

std::string str(const QString &s)
{
    return s.toStdString();
}

std::string base(const QString &folderAndName)
{
    return "{base}" + folderAndName.toStdString();
}

bool writeJson(const QString &file, const nlohmann::json &value)
{
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        return false;
    const std::string text = value.dump(1);
    out.write(text.data(), static_cast<qint64>(text.size()));
    return out.commit();
}

QString lavfiColour(const QColor &c)
{
    return QStringLiteral("0x") + c.name().mid(1);
}

} // namespace

PackBuilder::PackBuilder(const QDir &out, const QDir &data)
    : m_out(out)
    , m_data(data)
{ }

bool PackBuilder::build(QString &error)
{
    for (const char *folder : { "resource", "fonts", "video", "audio", "templates" }) {
        if (!m_out.mkpath(QString::fromLatin1(folder))) {
            error = QStringLiteral("cannot create %1").arg(m_out.filePath(QString::fromLatin1(folder)));
            return false;
        }
    }
    if (!m_fonts.load(error))
        return false;
    for (const auto &font : m_fonts.all()) {
        const QString target = m_out.filePath(QStringLiteral("fonts/") + font.fileName);
        QFile::remove(target);
        if (!QFile::copy(font.source, target)) {
            error = QStringLiteral("cannot copy %1").arg(font.source);
            return false;
        }
    }
    makeSharedPictures();
    queueMedia();
    if (!m_media.runAll(2, error))
        return false;
    if (!makeTemplates(error))
        return false;
    makeStickerCatalogs();
    makeBackgroundCatalogs();
    makeFontCatalogs();
    makeAudioCatalogs();
    makeShapeCatalogs();
    makeStockVideos();
    makePromotions();
    m_index["catalogs"] = m_catalogs;
    m_index["remote_config"] = { { "is_iha_ads_enable", 1 },
        { "ios_quillet_force_update",
            nlohmann::json({ { "app_version", "0.1" }, { "minimum_os_version", "12.0" }, { "force_update", false },
                               { "title", "Update available" }, { "message", "A new version of Quillet is ready." },
                               { "cancel_button", "Later" }, { "ok_button", "Update" } })
                .dump() } };
    writeLicenses();
    if (!writeJson(m_out.filePath(QStringLiteral("index.json")), m_index)) {
        error = QStringLiteral("cannot write index.json");
        return false;
    }
    return true;
}

void PackBuilder::makeSharedPictures()
{
    for (int i = 0; i < kPhotos; ++i)
        Artwork::scene(i % 5, i, 1080, 1920).save(resource(QStringLiteral("photo_%1.jpg").arg(i)), "JPG", 85);
    for (int i = 0; i < kPatterns; ++i)
        Artwork::pattern(i, kPaletteB[i % 8].lighter(160), kPaletteA[i % 8], 180)
            .save(resource(QStringLiteral("pattern_%1.png").arg(i)));
}

void PackBuilder::queueMedia()
{
    // Video sources: animated gradients, the game of life and a mandelbrot zoom, small enough to stay light.
    auto source = [](int i, const QString &size, bool still = false) {
        const QColor a = kPaletteA[i % 8], b = kPaletteB[(i + 3) % 8];
        switch (i % 3) {
        case 0:
            return QStringLiteral("gradients=s=%1:r=25:c0=%2:c1=%3:nb_colors=2:speed=0.03:seed=%4")
                .arg(size, lavfiColour(a), lavfiColour(b))
                .arg(i + 1);
        case 1:
            return QStringLiteral("life=s=%1:r=25:mold=10:ratio=0.12:seed=%2:life_color=%3:death_color=%4,boxblur=2")
                .arg(size)
                .arg(i + 1)
                .arg(a.name(), b.darker(200).name());
        default:
            // The mandelbrot source is slow per frame, so moving clips use a cellular automaton instead.
            if (still)
                return QStringLiteral("mandelbrot=s=%1:start_scale=%2,hue=h=%3")
                    .arg(size)
                    .arg(1.5 + i * 0.1)
                    .arg(i * 40);
            return QStringLiteral("cellauto=s=%1:r=25:rule=%2:random_fill_ratio=0.4:scroll=1,format=rgb24,"
                                  "colorchannelmixer=rr=%3:gg=%4:bb=%5,gblur=sigma=3")
                .arg(size)
                .arg(QList<int> { 18, 30, 90, 110, 150 }[i % 5])
                .arg(a.redF(), 0, 'f', 2)
                .arg(a.greenF(), 0, 'f', 2)
                .arg(a.blueF(), 0, 'f', 2);
        }
    };
    const QStringList x264 = { QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-preset"),
        QStringLiteral("veryfast"), QStringLiteral("-crf"), QStringLiteral("30"), QStringLiteral("-pix_fmt"),
        QStringLiteral("yuv420p"), QStringLiteral("-movflags"), QStringLiteral("+faststart") };
    auto clip = [&](int i, const QString &size, const QString &video, const QString &still, double seconds) {
        m_media.add(QStringList { QStringLiteral("-t"), QString::number(seconds), QStringLiteral("-f"),
                        QStringLiteral("lavfi"), QStringLiteral("-i"), source(i, size),
                        QStringLiteral("-filter_complex"), QStringLiteral("[0]split[v][s];[s]select=eq(n\\,25)[t]"),
                        QStringLiteral("-map"), QStringLiteral("[v]") }
            + x264
            + QStringList { m_out.filePath(video), QStringLiteral("-map"), QStringLiteral("[t]"),
                QStringLiteral("-frames:v"), QStringLiteral("1"), QStringLiteral("-q:v"), QStringLiteral("4"),
                m_out.filePath(still) });
    };
    for (int i = 0; i < kStoryVideos; ++i)
        clip(i, QStringLiteral("540x960"), QStringLiteral("video/story_%1.mp4").arg(i),
            QStringLiteral("resource/story_%1.jpg").arg(i), 4);
    for (int i = 0; i < kBackgroundVideos; ++i)
        clip(i + 3, QStringLiteral("540x960"), QStringLiteral("video/bgvideo_%1.mp4").arg(i),
            QStringLiteral("resource/bgvideo_%1.jpg").arg(i), 4);
    for (int i = 0; i < kStockClips; ++i) {
        // Two renditions per clip, like the stock service offers, and a thumbnail.
        m_media.add(
            QStringList { QStringLiteral("-t"), QStringLiteral("3"), QStringLiteral("-f"), QStringLiteral("lavfi"),
                QStringLiteral("-i"), source(i + 1, QStringLiteral("640x360")), QStringLiteral("-filter_complex"),
                QStringLiteral("[0]split=3[a][b][c];[b]scale=320:180[s];[c]select=eq(n\\,25),scale=295:166[t]"),
                QStringLiteral("-map"), QStringLiteral("[a]") }
            + x264
            + QStringList { m_out.filePath(QStringLiteral("video/stock_%1_640.mp4").arg(i)), QStringLiteral("-map"),
                QStringLiteral("[s]") }
            + x264
            + QStringList { m_out.filePath(QStringLiteral("video/stock_%1_320.mp4").arg(i)), QStringLiteral("-map"),
                QStringLiteral("[t]"), QStringLiteral("-frames:v"), QStringLiteral("1"),
                m_out.filePath(QStringLiteral("video/stock_%1_295x166.jpg").arg(i)) });
    }
    // Sounds: chords with a slow pulse, and filtered noise for ambience.
    static const double roots[] = { 220.0, 261.63, 293.66, 329.63, 196.0 };
    for (int i = 0; i < 15; ++i) {
        const double f = roots[i % 5] * (i / 5 == 2 ? 0.5 : 1.0);
        const QString expression = i / 5 == 1
            ? QStringLiteral(
                "anoisesrc=d=12:c=pink:r=44100:a=0.3:seed=%1,lowpass=f=%2,volume='0.6+0.4*sin(2*PI*t/4)':eval=frame")
                  .arg(i + 1)
                  .arg(600 + i * 150)
            : QStringLiteral("aevalsrc='0.25*(sin(2*PI*%1*t)+0.6*sin(2*PI*%2*t)+0.5*sin(2*PI*%3*t))*(0.6+0.4*sin(2*PI*"
                             "t*%4))':s=44100:d=12")
                  .arg(f)
                  .arg(f * 1.26)
                  .arg(f * 1.5)
                  .arg(0.5 + (i % 3) * 0.5);
        m_media.add({ QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"), expression,
            QStringLiteral("-af"), QStringLiteral("afade=t=in:d=1,afade=t=out:st=11:d=1"), QStringLiteral("-ac"),
            QStringLiteral("2"), QStringLiteral("-c:a"), QStringLiteral("libmp3lame"), QStringLiteral("-b:a"),
            QStringLiteral("96k"), m_out.filePath(QStringLiteral("audio/track_%1.mp3").arg(i)) });
    }
    // Fractal and cellular pictures for the "Abstract" backgrounds.
    for (int i = 0; i < 10; ++i) {
        m_media.add({ QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
            source(i, QStringLiteral("1080x1920"), true), QStringLiteral("-frames:v"), QStringLiteral("1"),
            QStringLiteral("-q:v"), QStringLiteral("3"), resource(QStringLiteral("abstract_%1.jpg").arg(i)) });
    }
}

nlohmann::json PackBuilder::imageItem(const QImage &image, const QString &name, bool webpOriginal)
{
    const bool alpha = image.hasAlphaChannel();
    const QString ext = alpha ? QStringLiteral(".png") : QStringLiteral(".jpg");
    const QString original = name + (webpOriginal ? QStringLiteral(".webp") : ext);
    const QString compressed = name + QStringLiteral("_compressed") + ext;
    const QString thumbnail = name + QStringLiteral("_thumb") + ext;
    const QString webp = name + QStringLiteral("_thumb.webp");
    image.save(resource(original), nullptr, webpOriginal ? 85 : 88);
    const QImage half = image.scaledToWidth(std::max(1, image.width() / 2), Qt::SmoothTransformation);
    const QImage small = image.scaledToWidth(std::min(image.width(), 240), Qt::SmoothTransformation);
    half.save(resource(compressed), nullptr, 82);
    small.save(resource(thumbnail), nullptr, 80);
    small.save(resource(webp), "WEBP", 80);
    if (!webpOriginal)
        image.save(resource(name + QStringLiteral(".webp")), "WEBP", 85);
    return { { "img_id", m_nextImageId++ }, { "original_img", base(QStringLiteral("resource/") + original) },
        { "compressed_img", base(QStringLiteral("resource/") + compressed) },
        { "thumbnail_img", base(QStringLiteral("resource/") + thumbnail) },
        { "webp_original_img", base(QStringLiteral("resource/") + name + QStringLiteral(".webp")) },
        { "webp_thumbnail_img", base(QStringLiteral("resource/") + webp) }, { "width", image.width() },
        { "height", image.height() }, { "is_free", 1 }, { "is_featured", 0 },
        { "is_portrait", image.height() >= image.width() ? 1 : 0 }, { "updated_at", kUpdated } };
}

nlohmann::json PackBuilder::catalog(int id, int subCategory, const char *kind, const QString &name,
    const nlohmann::json &cover, int isFree, int isFeatured) const
{
    nlohmann::json c = { { "catalog_id", id }, { "sub_category_id", subCategory }, { "kind", kind },
        { "name", str(name) }, { "is_free", isFree }, { "is_featured", isFeatured }, { "updated_at", kUpdated },
        { "items", nlohmann::json::array() } };
    for (const char *key :
        { "thumbnail_img", "compressed_img", "original_img", "webp_original_img", "webp_thumbnail_img" }) {
        if (cover.contains(key))
            c[key] = cover[key];
    }
    return c;
}

bool PackBuilder::makeTemplates(QString &error)
{
    QFile file(m_data.filePath(QStringLiteral("templates.json")));
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("cannot read %1").arg(file.fileName());
        return false;
    }
    const auto recipes = nlohmann::json::parse(file.readAll().toStdString(), nullptr, false);
    if (!recipes.is_object() || !recipes.value("catalogs", nlohmann::json()).is_array()) {
        error = QStringLiteral("templates.json has no catalogs list");
        return false;
    }
    TemplateDesigner designer(QDir(m_out.filePath(QStringLiteral("resource"))), m_fonts, kPhotos, kPatterns);
    const TemplateRenderer renderer(m_out, m_fonts);
    long long jsonId = 1001;
    for (const auto &recipeCatalog : recipes["catalogs"]) {
        for (const auto &font : recipeCatalog.value("templates", nlohmann::json::array())) {
            for (const auto &key : font.value("fonts", nlohmann::json::array())) {
                if (!m_fonts.has(QString::fromStdString(key.get<std::string>()))) {
                    error = QStringLiteral("unknown font %1 in templates.json")
                                .arg(QString::fromStdString(key.get<std::string>()));
                    return false;
                }
            }
        }
        const int subCategory = recipeCatalog.value("sub_category_id", 47);
        nlohmann::json cat;
        for (const auto &recipe : recipeCatalog.value("templates", nlohmann::json::array())) {
            const long long id = jsonId++;
            nlohmann::json document = designer.design(recipe, id);
            const bool video = recipe.value("background", "") == "video";
            nlohmann::json drawable = document;
            if (video) {
                const std::string still = "story_" + std::to_string(recipe.value("video", 0)) + ".jpg";
                drawable["background_json"]["background_image"] = still;
            }
            const QImage sample = renderer.render(drawable, 0.5);
            const QString name = QStringLiteral("tpl_%1").arg(id);
            sample.save(resource(name + QStringLiteral(".jpg")), "JPG", 86);
            nlohmann::json card = imageItem(sample, name);
            card["img_id"] = id;
            for (const char *key :
                { "json_id", "width", "height", "is_free", "is_featured", "is_portrait", "is_offline" })
                card[key] = document[key];
            card["is_free"] = document["is_free"].get<bool>() ? 1 : 0;
            card["is_featured"] = document["is_featured"].get<bool>() ? 1 : 0;
            card["sample_image"] = base(QStringLiteral("resource/") + name + QStringLiteral(".jpg"));
            card["search_category"] = recipe.value("tags", "");
            if (video) {
                const std::string clip
                    = "{base}video/" + document["background_json"]["background_image"].get<std::string>();
                card["sample_video"] = clip;
                card["video_file"] = clip;
                document["sample_video"] = clip;
                document["video_file"] = clip;
                document["is_Video"] = true;
            }
            if (subCategory == 56)
                document["isHighlightCover"] = true;
            if (!writeJson(m_out.filePath(QStringLiteral("templates/%1.json").arg(id)), document)) {
                error = QStringLiteral("cannot write template %1").arg(id);
                return false;
            }
            if (cat.is_null())
                cat = catalog(recipeCatalog.value("catalog_id", 0), subCategory, "templates",
                    QString::fromStdString(recipeCatalog.value("name", "")), card, 1,
                    recipeCatalog.value("is_featured", 0));
            cat["items"].push_back(std::move(card));
        }
        m_catalogs.push_back(std::move(cat));
    }
    return true;
}

void PackBuilder::makeStickerCatalogs()
{
    struct Set
    {
        int id;
        int subCategory;
        const char *categoryName;
        const char *name;
        int kind;
    };
    const Set sets[] = { { 201, 47, "Graphics", "Party & Love", 0 }, { 202, 47, "Graphics", "Nature", 1 },
        { 211, 49, "Shapes", "Basic Shapes", 2 }, { 221, 50, "Text Arts", "Words", 3 },
        { 231, 57, "Frame", "Rings", 4 }, { 241, 58, "Icon", "Everyday", 5 } };
    static const char *words[] = { "WOW", "SALE", "Hello", "Love", "Thank you", "NEW", "Summer", "Yum!", "OPEN",
        "Best Day", "OMG", "Cheers", "Hot Deal", "XOXO" };
    static const char *wordFonts[] = { "Lobster", "BebasBold", "DancingScriptBold", "SpartanBlack", "Comfortaa" };
    for (const auto &set : sets) {
        nlohmann::json cat;
        for (int i = 0; i < 14; ++i) {
            const QColor a = kPaletteA[(i + set.id) % 8], b = kPaletteB[(i * 3 + set.id) % 8];
            QImage image;
            switch (set.kind) {
            case 0:
                image = Artwork::sticker(i % Artwork::kStickerKinds, a, b, 512);
                break;
            case 1:
                image = Artwork::sticker((i % 2 ? 3 : 6 + i % 4) % Artwork::kStickerKinds,
                    QColor::fromHsv((90 + i * 12) % 360, 160, 170), b, 512);
                break;
            case 2:
                image = Artwork::shape(i, a, 512);
                break;
            case 3:
                image = Artwork::textArt(QString::fromLatin1(words[i]),
                    m_fonts.qfont(QString::fromLatin1(wordFonts[i % 5]), 120), a, b, 640);
                break;
            case 4:
                image = Artwork::frame(i, a, b, 720);
                break;
            default:
                image = Artwork::icon(i, a, 384);
                break;
            }
            nlohmann::json item = imageItem(image, QStringLiteral("sticker_%1_%2").arg(set.id).arg(i), i % 3 == 2);
            item["search_category"] = set.categoryName;
            if (cat.is_null()) {
                cat = catalog(set.id, set.subCategory, "images", QString::fromLatin1(set.name), item, 1, i == 0);
                cat["category_name"] = set.categoryName;
            }
            cat["items"].push_back(std::move(item));
        }
        m_catalogs.push_back(std::move(cat));
    }
}

void PackBuilder::makeBackgroundCatalogs()
{
    nlohmann::json photos, gradients, abstract;
    for (int i = 0; i < 12; ++i) {
        nlohmann::json item
            = imageItem(Artwork::scene(i % 5, 100 + i, 1080, 1920), QStringLiteral("bg_photo_%1").arg(i));
        if (photos.is_null())
            photos = catalog(301, 51, "images", QStringLiteral("Photos"), item, 1, 1);
        photos["items"].push_back(std::move(item));
        nlohmann::json gradient
            = imageItem(Artwork::gradient(kPaletteA[i % 8], kPaletteB[(i + 2) % 8], 1080, 1920, 30 + i * 25),
                QStringLiteral("bg_gradient_%1").arg(i));
        if (gradients.is_null())
            gradients = catalog(302, 51, "images", QStringLiteral("Gradients"), gradient);
        gradients["items"].push_back(std::move(gradient));
    }
    for (int i = 0; i < 10; ++i) {
        nlohmann::json item = imageItem(
            QImage(resource(QStringLiteral("abstract_%1.jpg").arg(i))), QStringLiteral("bg_abstract_%1").arg(i));
        if (abstract.is_null())
            abstract = catalog(303, 51, "images", QStringLiteral("Abstract"), item, 0);
        abstract["items"].push_back(std::move(item));
    }
    for (auto *c : { &photos, &gradients, &abstract }) {
        (*c)["category_name"] = "Background";
        m_catalogs.push_back(std::move(*c));
    }
    for (int group = 0; group < 2; ++group) {
        nlohmann::json cat;
        for (int i = group * 4; i < group * 4 + 4; ++i) {
            nlohmann::json item = imageItem(
                QImage(resource(QStringLiteral("bgvideo_%1.jpg").arg(i))), QStringLiteral("bgvideo_card_%1").arg(i));
            const std::string clip = "{base}video/bgvideo_" + std::to_string(i) + ".mp4";
            item["video_file"] = clip;
            item["sample_video"] = clip;
            item["sample_image"] = item["original_img"];
            item["is_offline"] = false;
            if (cat.is_null()) {
                cat = catalog(311 + group, 52, "images",
                    group ? QStringLiteral("Abstract Motion") : QStringLiteral("Colour Flow"), item);
                cat["category_name"] = "Background Video";
            }
            cat["items"].push_back(std::move(item));
        }
        m_catalogs.push_back(std::move(cat));
    }
}

void PackBuilder::makeFontCatalogs()
{
    struct Set
    {
        int id;
        const char *name;
        int isFree;
        std::vector<const char *> keys;
    };
    const Set sets[] = { { 401, "Script", 1, { "Lobster", "DancingScript", "DancingScriptBold" } },
        { 402, "Display", 1, { "Bebas", "BebasBold", "Spartan", "SpartanBlack", "ComfortaaBold" } },
        { 403, "Classic", 0, { "RobotoSlab", "RobotoSlabBold", "Lato", "LatoBlack", "OpenSans", "OpenSansBold" } },
        { 404, "Soft", 0, { "Quicksand", "QuicksandBold", "Cabin", "Cantarell", "Comfortaa" } } };
    long long fontId = 1;
    for (const auto &set : sets) {
        QImage preview(480, 240, QImage::Format_ARGB32_Premultiplied);
        preview.fill(QColor("#f5f5f5"));
        {
            QPainter p(&preview);
            p.setRenderHint(QPainter::TextAntialiasing);
            p.setFont(m_fonts.qfont(QString::fromLatin1(set.keys.front()), 84));
            p.setPen(QColor("#222222"));
            p.drawText(preview.rect(), Qt::AlignCenter, QString::fromLatin1(set.name));
        }
        nlohmann::json cover = imageItem(preview, QStringLiteral("fontcatalog_%1").arg(set.id));
        nlohmann::json cat
            = catalog(set.id, 37, "fonts", QString::fromLatin1(set.name), cover, set.isFree, set.id == 401);
        for (const char *key : set.keys) {
            const PackFont &font = m_fonts.font(QString::fromLatin1(key));
            cat["items"].push_back({ { "font_id", fontId++ }, { "catalog_id", set.id },
                { "font_name", str(font.family + QLatin1Char(' ') + font.style) }, { "font_file", str(font.fileName) },
                { "font_url", base(QStringLiteral("fonts/") + font.fileName) },
                { "ios_font_name", str(font.postScript) } });
        }
        m_catalogs.push_back(std::move(cat));
    }
}

void PackBuilder::makeAudioCatalogs()
{
    static const char *names[] = { "Chill", "Ambient", "Warm Keys" };
    static const char *titles[]
        = { "Morning Light", "Soft Focus", "Golden Hour", "Slow Tide", "City Walk", "Rain Window", "Night Air",
              "Deep Forest", "Ocean Hum", "Wind Song", "Low Glow", "Velvet", "Evening Bells", "Hearth", "Daydream" };
    for (int c = 0; c < 3; ++c) {
        nlohmann::json cover = imageItem(Artwork::gradient(kPaletteA[c + 2], kPaletteB[c + 4], 400, 400, 45),
            QStringLiteral("audiocatalog_%1").arg(c));
        nlohmann::json cat = catalog(501 + c, 13, "audio", QString::fromLatin1(names[c]), cover);
        for (int i = c * 5; i < c * 5 + 5; ++i) {
            const QString file = QStringLiteral("audio/track_%1.mp3").arg(i);
            cat["items"].push_back({ { "img_id", 6001 + i }, { "audio_file", base(file) }, { "is_json_data", 0 },
                { "content_type", 3 }, { "is_featured", "0" }, { "is_free", 1 }, { "is_portrait", 0 },
                { "format_name", "mp3" }, { "duration", "00:12" },
                { "size", static_cast<double>(QFileInfo(m_out.filePath(file)).size()) }, { "bit_rate", "96000" },
                { "genre", names[c] }, { "tag", "Quillet Studio" }, { "title", titles[i] } });
        }
        m_catalogs.push_back(std::move(cat));
    }
}

void PackBuilder::makeShapeCatalogs()
{
    nlohmann::json shapes;
    for (int i = 0; i < 16; ++i) {
        nlohmann::json item = imageItem(Artwork::cropShape(i, 600), QStringLiteral("cropshape_%1").arg(i));
        item["search_category"] = "shape";
        if (shapes.is_null())
            shapes = catalog(61, 61, "images", QStringLiteral("Crop Shapes"), item);
        shapes["items"].push_back(std::move(item));
    }
    shapes["category_name"] = "Shape Crop";
    m_catalogs.push_back(std::move(shapes));
    nlohmann::json patterns;
    for (int i = 0; i < 12; ++i) {
        nlohmann::json item = imageItem(Artwork::pattern(i, kPaletteB[(i + 1) % 8].lighter(150), kPaletteA[i % 8], 240),
            QStringLiteral("croppattern_%1").arg(i));
        item["is_json_data"] = 0;
        item["json_data"] = "";
        item["search_category"] = "pattern";
        if (patterns.is_null())
            patterns = catalog(62, 62, "images", QStringLiteral("Patterns"), item);
        patterns["items"].push_back(std::move(item));
    }
    patterns["category_name"] = "Shape Crop Patterns";
    m_catalogs.push_back(std::move(patterns));
}

void PackBuilder::makeStockVideos()
{
    static const char *tags[] = { "abstract, colors, background", "nature, cells, life", "space, fractal, abstract",
        "sunset, colors, sky", "technology, pattern, digital", "ocean, blue, calm", "party, neon, lights",
        "city, night, lights", "nature, green, growth", "fire, warm, abstract", "sky, clouds, calm" };
    nlohmann::json hits = nlohmann::json::array();
    for (int i = 0; i < kStockClips; ++i) {
        auto rendition = [&](int width, int height) {
            const QString file = QStringLiteral("video/stock_%1_%2.mp4").arg(i).arg(width);
            return nlohmann::json { { "url", base(file) }, { "width", width }, { "height", height },
                { "size", QFileInfo(m_out.filePath(file)).size() } };
        };
        hits.push_back(
            { { "id", 90001 + i }, { "picture_id", str(QStringLiteral("stock_%1").arg(i)) }, { "type", "film" },
                { "tags", tags[i % 11] }, { "duration", 3 }, { "downloads", 1200 + i * 37 }, { "likes", 40 + i },
                { "favorites", 12 + i }, { "views", 9000 + i * 311 }, { "comments", i % 7 }, { "user_id", 700 + i % 5 },
                { "user", "QuilletStudio" }, { "userImageURL", base(QStringLiteral("resource/t_logo_0.png")) },
                { "pageURL", base(QStringLiteral("video/stock_%1_640.mp4").arg(i)) },
                { "videos",
                    { { "large", rendition(640, 360) }, { "medium", rendition(640, 360) },
                        { "small", rendition(320, 180) }, { "tiny", rendition(320, 180) } } } });
    }
    m_index["stock_videos"] = { { "thumbnail_url", "{base}video/" }, { "thumbnail_size", "_295x166.jpg" },
        { "user_profile_url", "{base}users/" }, { "hits", std::move(hits) } };
}

void PackBuilder::makePromotions()
{
    static const char *apps[]
        = { "Poster Maker", "Logo Studio", "Flyer Lab", "Invite Card", "Collage Go", "Photo Frames" };
    static const char *subtitles[]
        = { "Design posters in minutes", "Make a logo for your brand", "Flyers for every event",
              "Invitations for weddings and parties", "Collages from your photos", "Frames for every moment" };
    nlohmann::json list = nlohmann::json::array();
    for (int i = 0; i < 6; ++i) {
        const QString name = QString::fromLatin1(apps[i]);
        const QColor a = kPaletteA[i], b = kPaletteB[i];
        const QString banner = QStringLiteral("promo_banner_%1").arg(i), logo = QStringLiteral("t_logo_%1").arg(i);
        Artwork::banner(name, m_fonts.qfont(QStringLiteral("SpartanBlack"), 100), a, b)
            .save(resource(banner + QStringLiteral(".jpg")), "JPG", 85);
        Artwork::banner(name, m_fonts.qfont(QStringLiteral("SpartanBlack"), 100), a, b)
            .scaledToWidth(512, Qt::SmoothTransformation)
            .save(resource(banner + QStringLiteral("_compressed.jpg")), "JPG", 80);
        const QImage logoImage = Artwork::logo(name, m_fonts.qfont(QStringLiteral("Lobster"), 100), a, b);
        logoImage.save(resource(logo + QStringLiteral(".png")));
        logoImage.scaled(128, 128, Qt::KeepAspectRatio, Qt::SmoothTransformation)
            .save(resource(logo + QStringLiteral("_compressed.png")));
        list.push_back({ { "ads_id", 801 + i }, { "name", str(name) }, { "category_id", i % 3 == 2 ? 2 : 1 },
            { "sub_category_id", 0 }, { "rating", 4.1 + i * 0.15 }, { "is_featured", i < 4 ? 1 : 0 },
            { "cta_bg_color", "#E05863" }, { "cta_text", "Install" }, { "cta_text_color", "#FFFFFF" },
            { "cta_is_visible", 1 }, { "content_type", 1 }, { "feature_graphic_gif", "" },
            { "fg_thumbnail_img", base(QStringLiteral("resource/") + banner + QStringLiteral("_compressed.jpg")) },
            { "fg_compressed_img", base(QStringLiteral("resource/") + banner + QStringLiteral("_compressed.jpg")) },
            { "fg_original_img", base(QStringLiteral("resource/") + banner + QStringLiteral(".jpg")) },
            { "app_logo_thumbnail_img", base(QStringLiteral("resource/") + logo + QStringLiteral("_compressed.png")) },
            { "app_logo_compressed_img", base(QStringLiteral("resource/") + logo + QStringLiteral("_compressed.png")) },
            { "app_logo_original_img", base(QStringLiteral("resource/") + logo + QStringLiteral(".png")) },
            { "url", "https://apps.example.org/" + str(name.toLower().replace(QLatin1Char(' '), QLatin1Char('-'))) },
            { "platform", 2 }, { "app_description", subtitles[i] }, { "sub_title", subtitles[i] },
            { "update_time", "2026-10-0" + std::to_string(1 + i) + " 12:00:00" } });
    }
    m_index["promotions"] = { { "link_list", std::move(list) } };
}
