#pragma once

#include <QString>

#include <stdexcept>

/**
 * Why an export stopped. A sound that cannot be decoded, resampled or encoded is the media stack's
 * "unknown error" of this system: the export is worth repeating without sound. Everything else (the
 * picture, the output file) fails for good.
 */
struct ExportError
{
    bool soundFailed = false;
    QString description;
};

/** An ExportError thrown out of the export's stages, to the exporter that records it. */
class ExportFailure : public std::runtime_error
{
public:
    explicit ExportFailure(ExportError error)
        : std::runtime_error(error.description.toStdString())
        , error(std::move(error))
    { }

    ExportError error;
};

/** Throws the failure of an FFmpeg call that returned `code` < 0, naming the step `what`. */
void throwIfFailed(int code, bool soundFailed, const char *what);
