#pragma once

#include "fontshelf.h"
#include "mediatool.h"

#include <QDir>
#include <QImage>

#include <nlohmann/json.hpp>

/**
 * Builds the sample content pack into one folder: "index.json" (what the content server reads),
 * "templates/", the asset folders "resource/", "fonts/", "video/", "audio/", and "LICENSES".
 */
class PackBuilder
{
public:
    PackBuilder(const QDir &out, const QDir &data);

    /** Builds everything; false with the reason in `error`. */
    bool build(QString &error);

private:
    void makeSharedPictures();
    void queueMedia();
    bool makeTemplates(QString &error);
    void makeStickerCatalogs();
    void makeBackgroundCatalogs();
    void makeFontCatalogs();
    void makeAudioCatalogs();
    void makeShapeCatalogs();
    void makeStockVideos();
    void makePromotions();
    void writeLicenses() const;

    /** Writes a picture in its sizes (original, compressed, thumbnail, WebP) and returns the item record. */
    nlohmann::json imageItem(const QImage &image, const QString &name, bool webpOriginal = false);
    nlohmann::json catalog(int id, int subCategory, const char *kind, const QString &name, const nlohmann::json &cover,
        int isFree = 1, int isFeatured = 0) const;
    QString resource(const QString &name) const { return m_out.filePath(QStringLiteral("resource/") + name); }

    QDir m_out;
    QDir m_data;
    FontShelf m_fonts;
    MediaTool m_media;
    nlohmann::json m_catalogs = nlohmann::json::array();
    nlohmann::json m_index = nlohmann::json::object();
    long long m_nextImageId = 5001;
};
