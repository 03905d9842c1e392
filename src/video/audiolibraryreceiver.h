#pragma once

#include <QUrl>

#include <optional>

/** What the audio library hands back to the video editor that opened it. */
class AudioLibraryReceiver
{
public:
    virtual ~AudioLibraryReceiver() = default;
    /** A local sound file the user chose, or nothing when the user took the video's own sound. */
    virtual void audioLibraryDidPick(const std::optional<QUrl> &audioURL) = 0;
};
