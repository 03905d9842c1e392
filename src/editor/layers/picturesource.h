#pragma once

#include <QImage>
#include <QString>
#include <QUrl>

#include <functional>

class View;

/**
 * The picture a record's image field names. Local names are looked up inside the application's own
 * folders only: a bare name, a path or a "file" address counts by its last component, as a file in
 * Documents, then in resource/. A name found there is a template's asset on the content base
 * (`PrefixUrl`); a web address stands as it is; anything else ("qrc:", "data:", ...) names nothing.
 */
namespace PictureSource {

/** Where a picture lies: a file, or an address; both empty when the value names nothing usable. */
struct Location
{
    QString file;
    QUrl address;
};
[[nodiscard]] Location locate(const QString &value);

/** The picture when it is at hand: its file, or its address in the picture cache; else a null image. */
[[nodiscard]] QImage load(const QString &value);

/**
 * Gives `apply` the picture: at once when it is at hand, else once it has been loaded by address, with an
 * activity indicator over `host` meanwhile. A picture that can't be found or loaded never reaches
 * `apply`, and nothing happens once `host` has gone.
 */
void show(const QString &value, View *host, const std::function<void(const QImage &picture)> &apply);

} // namespace PictureSource
