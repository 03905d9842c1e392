#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <vector>

/** The merge workload, made with the ffmpeg command: a story-sized video with sound, a design, a music. */
struct MergeWorkload
{
    QString video;
    QString overlay;
    QString music;
};

/** Runs ffmpeg with `arguments`; false when it fails. */
bool runFfmpeg(const QStringList &arguments);

/**
 * A 15 s 1080 x 1920 30 fps H.264 video with AAC sound (a test pattern with light grain, like a camera's),
 * a 1080 x 1920 design with alpha (opaque title band and frame, a half-transparent text panel, stickers,
 * the middle clear), and a 4 s stereo music, in `folder`.
 */
[[nodiscard]] MergeWorkload makeMergeWorkload(const QString &folder);

/** The frames of a GIF as RGB888 pictures, decoded by ffmpeg. */
[[nodiscard]] std::vector<QImage> gifFrames(const QString &gif, QSize size);
/** The picture a movie shows at `seconds`, scaled to `size` by Qt's smooth scaling. */
[[nodiscard]] QImage movieFrame(const QString &movie, double seconds, QSize size);

/** Mean SSIM of the luma of two RGB pictures of one size, over 8 x 8 windows every 4 pixels. */
[[nodiscard]] double lumaSsim(const QImage &a, const QImage &b);
/** Mean SSIM of the luma planes of two movies of one size, frame by frame, decoded by FFmpeg's libraries. */
[[nodiscard]] double movieSsim(const QString &a, const QString &b);
