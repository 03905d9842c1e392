#pragma once

#include <QImage>
#include <QString>

/**
 * Writes a design's preview picture into Documents and returns its file name: the digits of the
 * current seconds since 1970, then ".jpg" for a bitmap without alpha that skips a byte per pixel (or
 * no bitmap at all), ".png" for every other layout. The empty text when the picture gives no data or
 * the file cannot be written; a file is complete or absent, never half written.
 */
class PreviewWriter
{
public:
    [[nodiscard]] static QString write(const QImage &picture);
    /** The suffix the picture's bitmap layout chooses, with its point. */
    [[nodiscard]] static QString suffixFor(const QImage &picture);
};
