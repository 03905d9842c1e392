#pragma once

#include <QImage>
#include <QString>

/**
 * Writes a design's preview picture into Documents and returns its file name: the digits of the
 * current seconds since 1970, then the suffix of the picture's format (PictureEncoding). The empty
 * text when the picture gives no data or the file cannot be written; a file is complete or absent,
 * never half written.
 */
class PreviewWriter
{
public:
    [[nodiscard]] static QString write(const QImage &picture);
};
