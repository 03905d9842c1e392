#pragma once

#include <QImage>
#include <QSize>

#include <functional>
#include <vector>

/**
 * Copies of a merge's composited frames, taken as they pass on their way to the encoder (before any
 * loss): `frameCount` frames spread evenly over the movie, at `size`. `take` runs on the export's
 * thread, once for each index in order.
 */
struct FrameTap
{
    int frameCount = 0;
    QSize size;
    std::function<void(int index, const QImage &frame)> take;
};

/** How many frames a GIF of a movie shows, spread evenly over it. */
constexpr int gifFrameCount = 16;

/** `count` times spread evenly over `duration` seconds: i * duration / count, the first at zero. */
[[nodiscard]] std::vector<double> evenlySpreadTimes(double duration, int count);
