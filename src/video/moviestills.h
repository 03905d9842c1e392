#pragma once

#include "avhandles.h"

#include <QString>

#include <functional>
#include <vector>

/**
 * Pictures of a movie at chosen times, decoding as little as it can: for each time it seeks to the key
 * frame before it, unless decoding on from where it is gets there sooner, drops the pictures that no
 * other picture refers to and that are not shown at any of the times, and stops as soon as it has the
 * picture shown at the time.
 */
class MovieStills
{
public:
    explicit MovieStills(const QString &path);

    /** Whether the movie opened with a picture track and its decoder. */
    [[nodiscard]] bool isOpen() const { return bool(m_decoder); }
    /** Seconds of the picture track; NaN when unknown. */
    [[nodiscard]] double duration() const { return m_duration; }

    /**
     * For each time, in ascending order, the decoded picture shown at it (the first picture for a time
     * before it), handed to `take` as soon as it is found. False when decoding fails.
     */
    bool picturesAt(const std::vector<double> &times, const std::function<void(int, av::Frame)> &take);

private:
    [[nodiscard]] std::int64_t keyFrameBefore(std::int64_t timestamp) const;

    av::Input m_input;
    AVStream *m_stream = nullptr;
    av::Codec m_decoder;
    double m_duration = 0;
    double m_frameDuration = 0;
};
