#pragma once

#include "exporter.h"
#include "frametap.h"
#include "mediaasset.h"
#include "mergeconfiguration.h"

#include <QImage>
#include <QSizeF>
#include <QUrl>

#include <functional>
#include <optional>

/**
 * Lays a full-frame overlay picture over a video with its sound, or with a separate music, and writes
 * one QuickTime movie (H.264 and AAC) into the configuration's directory, named by the milliseconds
 * since 1970. Holds no state between calls.
 */
class Merge
{
public:
    /**
     * Arrives on the GUI thread in one of three shapes: a URL alone (the finished movie); nothing (a
     * failure nothing more can be done about); no URL and `true` (the sound failed: worth repeating
     * with `muted`). A source without a picture completes at once, inside the call.
     */
    using Completion = std::function<void(const std::optional<QUrl> &url, std::optional<bool> retryMuted)>;
    /** Called off the GUI thread every 500 ms while the export runs, with 0 to 1. */
    using Progress = std::function<void(float progress)>;

    explicit Merge(MergeConfiguration configuration)
        : configuration(std::move(configuration))
    { }

    MergeConfiguration configuration;

    /**
     * Starts the merge and returns: the first picture track of `video` under `overlay`, with the first
     * sound of `audio` when given (even when it has none) or else of `video`, and no sound at all when
     * `muted`. Without `size` the render size is the picture's natural size, uncorrected for rotation.
     * `tap`, when given, receives composited frames as they pass.
     */
    void overlayVideo(const MediaAsset &video, std::optional<QSizeF> size, bool muted,
        const std::optional<MediaAsset> &audio, const QImage &overlay, Completion completion, Progress progress,
        std::optional<FrameTap> tap = std::nullopt) const;

    /**
     * The export `overlayVideo` runs, built but not started, with the encoders told `setting`; nothing
     * when the merge cannot start (no picture track, a composition that fails, no encoders). For
     * measuring the pipeline against other encoder settings.
     */
    [[nodiscard]] std::unique_ptr<Exporter> prepareExport(const MediaAsset &video, std::optional<QSizeF> size,
        bool muted, const std::optional<MediaAsset> &audio, const QImage &overlay, const EncoderSetting &setting) const;
};
