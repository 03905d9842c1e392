#pragma once

#include <QImage>
#include <QString>

#include <functional>

/** The pictures of the trimmer's filmstrip, decoded with FFmpeg. Blocking; any thread. */
namespace FilmstripDecoder {

/** What the trimmer needs to know of a movie before it shows it. */
struct MovieInfo
{
    double duration = 0; // seconds; 0 when the file is not a movie with a picture that can be decoded
    double frameRate = 0;
};

[[nodiscard]] MovieInfo probe(const QString &path);

/**
 * `count` pictures of the movie spread evenly over its length, the middle of each slice, upright and
 * `height` pixels high, each handed to `deliver` as soon as it is decoded; deliver returns false to stop.
 */
void decode(const QString &path, int count, int height, const std::function<bool(int index, const QImage &)> &deliver);

} // namespace FilmstripDecoder
