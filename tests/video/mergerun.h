#pragma once

#include "merge.h"

#include <QThread>

#include <optional>

/** What one call of `Merge::overlayVideo` gave, waited for on the GUI thread's event loop. */
struct MergeRun
{
    bool completedInCall = false;
    bool completedOnGuiThread = false;
    std::optional<QUrl> url;
    std::optional<bool> retryMuted;
    std::vector<float> progress;
    bool progressOffGuiThread = true;

    [[nodiscard]] QString path() const { return url ? url->toLocalFile() : QString(); }

    /** Runs the merge with the one caller's configuration in `directory`, unless `configuration` is given. */
    static MergeRun start(const MergeConfiguration &configuration, const QString &video, std::optional<QSizeF> size,
        bool muted, const std::optional<QString> &audio, const QImage &overlay,
        std::optional<FrameTap> tap = std::nullopt);
};
