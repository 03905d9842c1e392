#pragma once

#include "apiconnection.h"
#include "fontlist.h"
#include "fontpickercatalogs.h"
#include "fontpickerconnection.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QNetworkAccessManager;

/**
 * The font library: its connection (token "fontpickertoken"), the font list, the catalogs, and the
 * download and registration of font files into Documents. Made once by the application shell; the
 * screens and the template preparation share it. GUI thread only.
 */
class QFFontpicker : public QObject
{
    Q_OBJECT
public:
    /** (error or nothing, success, PostScript name or nothing), as a download reports. */
    using FontCompletion
        = std::function<void(const std::optional<QString> &error, bool success, const std::optional<QString> &name)>;

    QFFontpicker(QNetworkAccessManager *network, FontpickerConnection connection, QObject *parent = nullptr);

    [[nodiscard]] const FontpickerConnection &settings() const { return m_settings; }
    [[nodiscard]] ApiConnection &connection() { return m_connection; }

    /** The shipped default list. */
    [[nodiscard]] static QString defaultListPath();

    /** Start-up: the list from the default when absent, the one-time removal, then every listed file registered. */
    void start(const QString &defaultPath = defaultListPath());

    /** Registers each file of the list: "Load Font" when it works, "File can not find" when it is missing. */
    static void registerListedFonts();

    /** The catalogs of the font sub-category, free (1) or paid (0); cached under the URL, sub-category and selector. */
    void getCatalogsByTypeInWebp(qint64 isFree, QObject *context, ApiCompletion completion);
    [[nodiscard]] std::optional<QJsonObject> cachedCatalogsByTypeInWebp(qint64 isFree) const;
    /** The fonts of one catalog; never cached. */
    void getAllFontsByCatalogId(qint64 catalogId, QObject *context, ApiCompletion completion);

    /**
     * Downloads one font into Documents under the last path component of its address, registers it and
     * adds it to the list. A string that makes no address leads to no completion at all.
     */
    void downloadFont(const QString &urlString, QObject *context, FontCompletion completion);

    /**
     * Fetches a whole catalog: every font downloaded at once, then the catalog appended to the list when
     * all succeeded. `done(true)` on success, `done(false)` when a download failed or the answer was unusable.
     */
    void fetchCatalog(const FontpickerCatalogs &catalog, QObject *context, std::function<void(bool success)> done);

    /** Adds a font file chosen by the user; the words to show. */
    [[nodiscard]] QString addCustomFont(const QString &path);

    /** The connection is back: pages that could not reach the server try again. */
    void networkResumed() { Q_EMIT resumed(); }

Q_SIGNALS:
    /** The font list gained fonts. */
    void fontListChanged();
    void resumed();

private:
    void finishDownload(const QString &path, const FontCompletion &completion);

    FontpickerConnection m_settings;
    ApiConnection m_connection;
    QNetworkAccessManager *m_network;
};
